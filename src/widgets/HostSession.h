#pragma once

#include <QString>
#include <memory>
#include <tuple>

class QWidget;

namespace qd8 {

class AppObject;
class ClientObject;
class DataObject;
class HostedControl;

// What a host hands every control: the company's databases, its folders and the logged-in
// user, and the calls that hand them over in the order the host contract asks.
struct HostSession {
    QString appConnectionString;      // the command catalogue (QD8Command.dat)
    QString dataConnectionString;     // company data and session tables (QD8Data.dat)
    QString sessionConnectionString;  // the data database with the catalogue reachable from it
    QString appPath;                  // installation folder: icons, theme and startup files
    qint32 userId = 0;
    QString loginName;
    QString password;
    int languageId = 0;

    QString iconPath() const { return appPath + QStringLiteral("/Icons"); }
    // A short name of the company database for a status bar or a login's company box:
    // the folder of a SQLite company, the database name otherwise.
    QString companyName() const { return companyNameOf(dataConnectionString); }
    static QString companyNameOf(const QString& dataConnectionString);

    // The SQLite company whose QD8Command.dat and QD8Data.dat are in the folder.
    static HostSession inFolder(const QString& folder);
    // The databases given by connection strings; `files` holds icons and INI files.
    static HostSession fromConnectionStrings(const QString& app, const QString& data, const QString& files);

    // Logs the user in: true when the login name exists and the password matches; the
    // language is then the user's "LanguageID" setting. Database failures are DbError.
    bool logIn(const QString& loginName, const QString& password);
    // The user's "LanguageID" setting, stored for him when `store` is set.
    void setLanguage(int languageId, bool store);

    // New data, application and client objects for a control (its SetFirst).
    using Objects = std::tuple<std::shared_ptr<DataObject>, std::shared_ptr<AppObject>, std::shared_ptr<ClientObject>>;
    Objects sessionObjects(const HostedControl& control) const;
    // The session properties, SetFirst, SetLast2 (which reads the user's language), the
    // command's rights, the print command and the parent form; the caller then connects the
    // events and calls Refresh. DbError and std::invalid_argument reach the caller.
    void setUp(HostedControl& control, const QString& commandAlias, const QString& commandGroup, QWidget* parentForm) const;
};

} // namespace qd8
