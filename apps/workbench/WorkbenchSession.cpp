#include "WorkbenchSession.h"

#include "database/Schema.h"
#include "database/SessionFunctions.h"
#include "foundation/ConnectionString.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <cmath>

namespace qd8 {

QString WorkbenchSession::companyNameOf(const QString& dataConnectionString)
{
    const ConnectionString cs = ConnectionString::parse(dataConnectionString);
    return cs.engine() == Engine::SQLite ? QFileInfo(cs.sqliteFile()).absoluteDir().dirName() : cs.value({"database", "dbname"});
}

WorkbenchSession WorkbenchSession::sampleCompany(const QString& folder, const QString& adminProgram)
{
    const QDir dir(folder);
    if (!QFileInfo::exists(dir.filePath(QStringLiteral("QD8Data.dat")))) {
        QProcess admin;
        admin.start(adminProgram, {QStringLiteral("init"), dir.absolutePath()});
        if (!admin.waitForFinished(120000) || admin.exitStatus() != QProcess::NormalExit || admin.exitCode() != 0)
            throw std::runtime_error(QStringLiteral("Cannot create the sample company in %1 with %2:\n%3")
                                         .arg(dir.absolutePath(), adminProgram,
                                             QString::fromLocal8Bit(admin.readAllStandardError() + admin.readAllStandardOutput()))
                                         .toStdString());
    }
    return inFolder(dir.absolutePath());
}

WorkbenchSession WorkbenchSession::inFolder(const QString& folder)
{
    const QDir dir(folder);
    const QString app = QStringLiteral("Driver=SQLite;Data Source=") + dir.absoluteFilePath(Schema::fileName(DatabaseRole::Application));
    const QString data = QStringLiteral("Driver=SQLite;Data Source=") + dir.absoluteFilePath(Schema::fileName(DatabaseRole::CompanyData));
    return fromConnectionStrings(app, data, dir.absolutePath());
}

QList<WorkbenchSession> WorkbenchSession::companies() const
{
    QList<WorkbenchSession> found{*this};
    const ConnectionString data = ConnectionString::parse(dataConnectionString);
    if (data.engine() != Engine::SQLite)
        return found;
    const QDir folder = QFileInfo(data.sqliteFile()).absoluteDir();
    QDir parent = folder;
    if (!parent.cdUp())
        return found;
    for (const QFileInfo& sibling : parent.entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name)) {
        const QDir dir(sibling.absoluteFilePath());
        if (dir != folder && dir.exists(Schema::fileName(DatabaseRole::CompanyData))
            && dir.exists(Schema::fileName(DatabaseRole::Application)))
            found << inFolder(dir.absolutePath());
    }
    return found;
}

WorkbenchSession WorkbenchSession::fromConnectionStrings(const QString& app, const QString& data, const QString& files)
{
    WorkbenchSession session;
    session.appConnectionString = app;
    session.dataConnectionString = data;
    session.sessionConnectionString = data;
    // On SQLite the session connection attaches the catalogue, which some statements join.
    const ConnectionString catalogue = ConnectionString::parse(app);
    if (catalogue.engine() == Engine::SQLite && ConnectionString::parse(data).engine() == Engine::SQLite)
        session.sessionConnectionString += QStringLiteral(";Attach=") + catalogue.sqliteFile();
    session.appPath = files;
    return session;
}

bool WorkbenchSession::logIn(const QString& name, const QString& givenPassword)
{
    const std::optional<CompanyUser> user = checkLogin(dataConnectionString, name, givenPassword);
    if (!user)
        return false;
    userId = user->id;
    loginName = user->loginName;
    password = givenPassword;
    languageId = int(std::nearbyint(DbSessionFunctions().GetUserSetting(userId, QStringLiteral("LanguageID"), dataConnectionString)));
    return true;
}

void WorkbenchSession::setLanguage(int language, bool store)
{
    languageId = language;
    if (store)
        DbSessionFunctions::storeUserSetting(userId, QStringLiteral("LanguageID"), QString::number(language), dataConnectionString);
}

} // namespace qd8
