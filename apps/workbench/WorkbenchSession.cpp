#include "WorkbenchSession.h"

#include "database/Schema.h"
#include "database/SessionFunctions.h"
#include "foundation/Connection.h"
#include "foundation/ConnectionString.h"
#include "foundation/Recordset.h"

#include <QCryptographicHash>
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

QList<WorkbenchUser> WorkbenchSession::users() const
{
    Connection c;
    c.open(dataConnectionString);
    Recordset rs;
    rs.open("SELECT TUsrID, TUsrLoginName, TUsrName, TUsrName2, TUsrLoginPassword FROM QD8TUser WHERE TUsrActiveStatus=1 AND TUsrFlag1=1 ORDER BY TUsrID", c);
    QList<WorkbenchUser> users;
    for (; !rs.eof(); rs.moveNext()) {
        WorkbenchUser user{rs.field(QStringLiteral("TUsrID")).toInt(), rs.text(QStringLiteral("TUsrLoginName")), {},
            rs.text(QStringLiteral("TUsrLoginPassword"))};
        // Each user's name in the language of his own setting.
        const double language = DbSessionFunctions().GetUserSetting(user.id, QStringLiteral("LanguageID"), dataConnectionString);
        user.name = rs.text(language == 0 ? QStringLiteral("TUsrName") : QStringLiteral("TUsrName2"));
        users << user;
    }
    return users;
}

QString WorkbenchSession::passwordHash(const QString& password)
{
    return QStringLiteral("sha256:") + QString::fromLatin1(QCryptographicHash::hash(password.toUtf8(), QCryptographicHash::Sha256).toHex());
}

bool WorkbenchSession::logIn(const QString& name, const QString& givenPassword)
{
    for (const WorkbenchUser& user : users()) {
        if (user.loginName.compare(name, Qt::CaseInsensitive) != 0)
            continue;
        if (!user.passwordHash.isEmpty() && user.passwordHash != passwordHash(givenPassword))
            return false;
        userId = user.id;
        loginName = user.loginName;
        password = givenPassword;
        languageId = int(std::nearbyint(DbSessionFunctions().GetUserSetting(userId, QStringLiteral("LanguageID"), dataConnectionString)));
        return true;
    }
    return false;
}

void WorkbenchSession::setLanguage(int language, bool store)
{
    languageId = language;
    if (store)
        DbSessionFunctions::storeUserSetting(userId, QStringLiteral("LanguageID"), QString::number(language), dataConnectionString);
}

} // namespace qd8
