#include "navigation/OemSettings.h"

#include "foundation/SessionContext.h"

#include <QFileInfo>
#include <QHash>
#include <QSettings>

namespace qd8 {

QString OemSettings::themeFile(const QString& appPath)
{
    return appPath + QStringLiteral("\\Support\\Theme\\Theme.ini");
}

QString OemSettings::startupFile(const QString& appPath)
{
    return appPath + QStringLiteral("\\QD8STARTUP.INI");
}

QString OemSettings::read(const QString& file, const QString& key)
{
    const QString path = localPath(file);
    if (!QFileInfo::exists(path))
        return {};
    QSettings ini(path, QSettings::IniFormat);
    return ini.value(QStringLiteral("OEM/") + key).toString().trimmed();
}

QString OemSettings::shortName() const
{
    const QString name = read(themeFile(m_appPath), QStringLiteral("OEMSHORTNAME"));
    return name.isEmpty() ? QStringLiteral("NUV") : name;
}

QString OemSettings::value(const QString& key) const
{
    const QString local = read(startupFile(m_appPath), key);
    return local.isEmpty() ? read(themeFile(m_appPath), key) : local;
}

QString OemSettings::webPage(const QString& key) const
{
    QString address = value(key);
    if (address.isEmpty())
        address = value(QStringLiteral("WEBSITE"));
    return address.isEmpty() ? builtInPage(key) : address;
}

QString OemSettings::builtInPage(const QString& key)
{
    static const QHash<QString, QString> pages = {
        {QStringLiteral("MARKETINGURL"), QStringLiteral("https://www.qd8suite.com/sales")},
        {QStringLiteral("NEWSURL"), QStringLiteral("https://www.qd8suite.com/news")},
        {QStringLiteral("FAQURL"), QStringLiteral("https://www.qd8suite.com/faq")},
        {QStringLiteral("ELEARNINGURL"), QStringLiteral("https://www.qd8suite.com/learning")},
        {QStringLiteral("DOWNLOADURL"), QStringLiteral("https://www.qd8suite.com/download")},
        {QStringLiteral("KBASEURL"), QStringLiteral("https://www.qd8suite.com/kb")},
        {QStringLiteral("COMMENTURL"), QStringLiteral("https://www.qd8suite.com/comment")},
        {QStringLiteral("CONTACTURL"), QStringLiteral("https://www.qd8suite.com/contact")},
        {QStringLiteral("SUPPORTEMAIL"), QStringLiteral("support@qd8suite.com")},
    };
    return pages.value(key, QStringLiteral("https://www.qd8suite.com/"));
}

} // namespace qd8
