#pragma once

#include "database/CompanyUsers.h"

#include <QList>
#include <QString>
#include <stdexcept>

namespace qd8 {

using WorkbenchUser = CompanyUser;

// What the workbench hands every control: the company's databases, its folders and the
// logged-in user.
struct WorkbenchSession {
    QString appConnectionString;    // the command catalogue (QD8Command.dat)
    QString dataConnectionString;   // company data and session tables (QD8Data.dat)
    QString sessionConnectionString;  // the data database with the catalogue reachable from it
    QString appPath;                // installation folder: icons, theme and startup files
    qint32 userId = 0;
    QString loginName;
    QString password;
    int languageId = 0;

    QString iconPath() const { return appPath + QStringLiteral("/Icons"); }
    // A short name of the company database for the status bar and the login's company box:
    // the folder of a SQLite company, the database name otherwise.
    QString companyName() const { return companyNameOf(dataConnectionString); }
    // The company of a data connection string: its folder (SQLite) or database name.
    static QString companyNameOf(const QString& dataConnectionString);

    // The sample company in a folder, created with qd8-admin when it is not there yet.
    // std::runtime_error when it cannot be created.
    static WorkbenchSession sampleCompany(const QString& folder, const QString& adminProgram);
    // The SQLite company whose QD8Command.dat and QD8Data.dat are in the folder.
    static WorkbenchSession inFolder(const QString& folder);
    // The databases given by connection strings; `files` holds icons and INI files.
    static WorkbenchSession fromConnectionStrings(const QString& app, const QString& data, const QString& files);

    // The companies a user may change to, this one first: a SQLite company's sibling folders
    // that hold a company too (~/.qd8/sample, ~/.qd8/branch2, ...). Nobody is logged in to them.
    QList<WorkbenchSession> companies() const;

    QList<WorkbenchUser> users() const { return companyUsers(dataConnectionString); }
    // Logs the user in: true when the login name exists and the password matches.
    bool logIn(const QString& loginName, const QString& password);
    // The user's "LanguageID" setting, stored for him when `store` is set.
    void setLanguage(int languageId, bool store);
};

} // namespace qd8
