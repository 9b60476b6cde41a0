#include "editors/UserOption.h"

#include "foundation/SessionContext.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>

namespace qd8 {

namespace {

const QString GroupKey = QStringLiteral("UserOption/OptionGroup");

} // namespace

UserOption::UserOption(QWidget* parent)
    : OptionEditor({OptionScope::User, "QD8TUserOption", "TUOp", "  AND TUOpFlag1<>0", "TOpGShowUser", true}, parent)
{
}

void UserOption::SetLast3(const QString& FolderPathName, const QString& ControlName, qint32 UserID, const QString& DataConnectionString,
    const QString& AppConnectionString)
{
    SetLast2(FolderPathName, ControlName, QString::number(UserID), DataConnectionString, AppConnectionString);
}

QString UserOption::settingsFile() const
{
    const QString folder = session().FolderPathName;
    if (folder.isEmpty() || folder == QLatin1String("\\"))
        return {};
    // FolderPathName ends in "\"; the file keeps the suite's name "\QD8DEV.ini" under it.
    QString path = folder;
    path.chop(1);
    return path + QStringLiteral("\\QD8DEV.ini");
}

QString UserOption::rememberedGroup() const
{
    const QString file = settingsFile();
    if (file.isEmpty() || !QFileInfo::exists(localPath(file)))
        return {};
    return QSettings(localPath(file), QSettings::IniFormat).value(GroupKey).toString();
}

void UserOption::rememberGroup(const QString& group)
{
    const QString file = settingsFile();
    if (file.isEmpty() || !QFileInfo(localPath(file)).dir().exists())
        return;
    QSettings settings(localPath(file), QSettings::IniFormat);
    if (settings.value(GroupKey).toString() != group)
        settings.setValue(GroupKey, group);
}

} // namespace qd8
