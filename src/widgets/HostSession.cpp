#include "widgets/HostSession.h"

#include "database/AppObject.h"
#include "database/ClientObject.h"
#include "database/CompanyUsers.h"
#include "database/DataObject.h"
#include "database/Schema.h"
#include "database/SessionFunctions.h"
#include "database/SessionServices.h"
#include "foundation/ConnectionString.h"
#include "widgets/HostedControl.h"

#include <QDir>
#include <QFileInfo>
#include <QMetaClassInfo>
#include <cmath>

namespace qd8 {

QString HostSession::companyNameOf(const QString& dataConnectionString)
{
    const ConnectionString cs = ConnectionString::parse(dataConnectionString);
    return cs.engine() == Engine::SQLite ? QFileInfo(cs.sqliteFile()).absoluteDir().dirName() : cs.value({"database", "dbname"});
}

HostSession HostSession::inFolder(const QString& folder)
{
    const QDir dir(folder);
    const QString app = QStringLiteral("Driver=SQLite;Data Source=") + dir.absoluteFilePath(Schema::fileName(DatabaseRole::Application));
    const QString data = QStringLiteral("Driver=SQLite;Data Source=") + dir.absoluteFilePath(Schema::fileName(DatabaseRole::CompanyData));
    return fromConnectionStrings(app, data, dir.absolutePath());
}

HostSession HostSession::fromConnectionStrings(const QString& app, const QString& data, const QString& files)
{
    HostSession session;
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

bool HostSession::logIn(const QString& name, const QString& givenPassword)
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

void HostSession::setLanguage(int language, bool store)
{
    languageId = language;
    if (store)
        DbSessionFunctions::storeUserSetting(userId, QStringLiteral("LanguageID"), QString::number(language), dataConnectionString);
}

HostSession::Objects HostSession::sessionObjects(const HostedControl& control) const
{
    return {std::make_shared<DbDataObject>(dataConnectionString, appConnectionString, userId, loginName),
        std::make_shared<SessionAppObject>(control.session()), std::make_shared<DbClientObject>(sessionConnectionString, userId)};
}

void HostSession::setUp(HostedControl& control, const QString& commandAlias, const QString& commandGroup, QWidget* parentForm) const
{
    // The editors name the application database with ConnectionString, the launchers the
    // session database.
    const int info = control.metaObject()->indexOfClassInfo("ConnectionString");
    const bool application = info >= 0 && qstrcmp(control.metaObject()->classInfo(info).value(), "application") == 0;
    control.setConnectionString(application ? appConnectionString : sessionConnectionString);
    control.setAppConnectionString(appConnectionString);
    control.setDataConnectionString(dataConnectionString);
    control.setUserID(userId);
    control.setUserLoginName(loginName);
    control.setUserLoginPassword(password);
    control.setAppPath(appPath);
    control.setSystemFolder(appPath);
    control.setSpecFolder(appPath + QStringLiteral("/Spec"));
    control.setImageFolder(appPath + QStringLiteral("/Images"));
    control.setIconPath(iconPath());
    control.setCommandGroup(commandGroup);
    const auto [data, app, client] = sessionObjects(control);
    control.SetFirst(data, app, client);
    control.SetLast2(appPath + QStringLiteral("/Users/") + loginName, commandAlias, QString::number(userId), dataConnectionString,
        appConnectionString);
    std::shared_ptr<PermissionObject> rights = SessionServices::newCommandPermission();
    rights->LoadCommandRights(userId, commandAlias, sessionConnectionString, appConnectionString);
    control.SetPermission(std::move(rights));  // the control keeps it for its employee scope
    control.SetPrintCommand(0, appPath, loginName, password);
    control.SetParentForm(parentForm);
}

} // namespace qd8
