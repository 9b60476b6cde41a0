#include "navigation/ToolLauncher.h"

#include "foundation/Services.h"
#include "navigation/OemSettings.h"

namespace qd8 {

QString ToolLauncher::themeFile() const
{
    return OemSettings::themeFile(AppPath());
}

QString ToolLauncher::OEMShortName() const
{
    return OemSettings(AppPath()).shortName();
}

QStringList ToolLauncher::propertyKeysRead() const
{
    return {QStringLiteral("TodayPage"), QStringLiteral("AppPath"), QStringLiteral("SystemFolder")};
}

bool ToolLauncher::runInFolder(const QString& folder, const QString& commandLine, const QString& folderName)
{
    if (folder.isEmpty()) {
        Services::messages().information(QStringLiteral("System Configuration"), QStringLiteral("ไม่ได้กำหนด ") + folderName);
        return false;
    }
    return start(commandLine);
}

bool ToolLauncher::start(const QString& commandLine)
{
    if (Services::shell().run(commandLine, 0))
        return true;
    Services::messages().information(QStringLiteral("System Configuration"),
        bilingual("เปิดโปรแกรม %1 ไม่ได้: ไม่มีโปรแกรมนี้ในเครื่อง", "Cannot start %1: no such program is installed on this computer").arg(commandLine));
    return false;
}

void ToolLauncher::runHelp()
{
    runInFolder(SystemFolder(), SystemFolder() + QStringLiteral("\\QD8help.exe"), QStringLiteral("System folder"));
}

void ToolLauncher::runCalculator()
{
    start(QStringLiteral("Calc.exe"));
}

void ToolLauncher::openImageFolder()
{
    runInFolder(ImageFolder(), QStringLiteral("explorer.exe ") + ImageFolder(), QStringLiteral("Image folder"));
}

void ToolLauncher::openSpecFolder()
{
    runInFolder(SpecFolder(), QStringLiteral("explorer.exe ") + SpecFolder(), QStringLiteral("Spec folder"));
}

} // namespace qd8
