#include "database/DataObject.h"

#include "foundation/Backend.h"
#include "foundation/Connection.h"
#include "foundation/DbError.h"
#include "foundation/Recordset.h"
#include "foundation/TransactionGuard.h"
#include "foundation/Values.h"

#include <QDateTime>
#include <QSysInfo>

namespace qd8 {

namespace {

// The definition table of each scope's options, with its column prefix.
struct OptionTable {
    const char* table;
    const char* prefix;
};

OptionTable definitionTable(OptionScope scope)
{
    switch (scope) {
    case OptionScope::Branch: return {"QD8TBranchOption", "TBOp"};
    case OptionScope::Host: return {"QD8THostOption", "THop"};
    case OptionScope::User: return {"QD8TUserOption", "TUOp"};
    case OptionScope::Company: break;
    }
    return {"QD8TOption", "TOpt"};
}

constexpr int MaxNumberAttempts = 5;

// Narrowest first: the order in which a stored value wins.
constexpr OptionScope ResolutionOrder[] = {OptionScope::User, OptionScope::Host, OptionScope::Branch, OptionScope::Company};

} // namespace

double DataObject::optionNumber(const QString& alias, OptionScope scope, const QString& scopeKey)
{
    return toNumber(optionText(alias, scope, scopeKey));
}

double DataObject::effectiveNumber(const QString& alias)
{
    return toNumber(effectiveText(alias));
}

DbDataObject::DbDataObject(const QString& dataConnectionString, const QString& appConnectionString, qint32 userId,
    const QString& userLoginName)
    : m_connectionString(dataConnectionString)
    , m_appConnectionString(appConnectionString)
    , m_userId(userId)
    , m_userLoginName(userLoginName)
    , m_hostName(QSysInfo::machineHostName())
{
}

QString DbDataObject::scopeName(OptionScope scope)
{
    switch (scope) {
    case OptionScope::Branch: return QStringLiteral("BRANCH");
    case OptionScope::Host: return QStringLiteral("HOST");
    case OptionScope::User: return QStringLiteral("USER");
    case OptionScope::Company: break;
    }
    return QStringLiteral("COMPANY");
}

QString DbDataObject::optionText(const QString& alias, OptionScope scope, const QString& scopeKey)
{
    {
        Connection data;
        data.open(m_connectionString);
        Recordset rs;
        rs.open(Sql("SELECT TOpVValue FROM QD8TOptionValue WHERE TOpVScope=") + quoted(scopeName(scope)) + " AND TOpVScopeKey="
                + quoted(scopeKey) + " AND TOpVTOptAlias=" + quoted(alias),
            data);
        if (!rs.eof())
            return rs.text(QStringLiteral("TOpVValue"));
    }
    if (m_appConnectionString.isEmpty())
        return {};
    Connection app;
    app.open(m_appConnectionString);
    return optionDefault(app, scope, alias).value_or(QString());
}

QString DbDataObject::userBranch(Connection& data, qint32 userId)
{
    Recordset user;
    user.open(Sql("SELECT TUsrTEmpCode FROM Qd8TUser WHERE TUsrID=") + number(QString::number(userId)), data);
    if (user.eof() || user.text(QStringLiteral("TUsrTEmpCode")).isEmpty())
        return {};
    Recordset employee;
    employee.open(Sql("SELECT TEmpTBraCode FROM Qd8TEmployee WHERE TEmpCode=") + quoted(user.text(QStringLiteral("TUsrTEmpCode"))), data);
    return employee.eof() ? QString() : employee.text(QStringLiteral("TEmpTBraCode"));
}

std::optional<QString> DbDataObject::optionDefault(Connection& app, OptionScope scope, const QString& alias)
{
    const OptionTable definition = definitionTable(scope);
    const QString prefix = QLatin1String(definition.prefix);
    Recordset rs;
    rs.open(Sql("SELECT ") + prefix + "DefaultValue FROM " + QLatin1String(definition.table) + " WHERE " + prefix + "Alias=" + quoted(alias), app);
    if (rs.eof())
        return std::nullopt;
    return rs.text(prefix + QStringLiteral("DefaultValue"));
}

OptionValue DbDataObject::effectiveOption(const QString& alias)
{
    OptionValue value;
    if (!m_appConnectionString.isEmpty()) {
        // An alias is defined in one scope's table; should two define it, the narrowest
        // definition gives the default.
        Connection app;
        app.open(m_appConnectionString);
        for (OptionScope scope : ResolutionOrder)
            if (const auto defined = optionDefault(app, scope, alias)) {
                value.defaultText = *defined;
                break;
            }
    }
    value.text = value.defaultText;
    Connection data;
    data.open(m_connectionString);
    Recordset rs;
    rs.open(Sql("SELECT TOpVScope, TOpVScopeKey, TOpVValue FROM QD8TOptionValue WHERE TOpVTOptAlias=") + quoted(alias), data);
    QHash<QString, QString> stored;  // "SCOPE|key" -> value
    bool branchValues = false;
    for (; !rs.eof(); rs.moveNext()) {
        const QString scope = rs.text(QStringLiteral("TOpVScope"));
        branchValues = branchValues || scope == scopeName(OptionScope::Branch);
        stored.insert(scope + QLatin1Char('|') + rs.text(QStringLiteral("TOpVScopeKey")), rs.text(QStringLiteral("TOpVValue")));
    }
    // The user's branch is looked up only when some branch holds a value.
    const QString keys[] = {QString::number(m_userId), m_hostName, branchValues ? userBranch(data, m_userId) : QString(), QString()};
    for (int i = 0; i < 4; ++i) {
        const OptionScope scope = ResolutionOrder[i];
        if (scope != OptionScope::Company && keys[i].isEmpty())
            continue;
        const auto found = stored.constFind(scopeName(scope) + QLatin1Char('|') + keys[i]);
        if (found == stored.constEnd())
            continue;
        value.text = *found;
        value.scope = scope;
        value.isDefault = false;
        break;
    }
    return value;
}

QHash<QString, QString> DbDataObject::storedOptions(OptionScope scope, const QString& scopeKey)
{
    QHash<QString, QString> values;
    Connection data;
    data.open(m_connectionString);
    Recordset rs;
    rs.open(Sql("SELECT TOpVTOptAlias, TOpVValue FROM QD8TOptionValue WHERE TOpVScope=") + quoted(scopeName(scope)) + " AND TOpVScopeKey="
            + quoted(scopeKey),
        data);
    for (; !rs.eof(); rs.moveNext())
        values.insert(rs.text(QStringLiteral("TOpVTOptAlias")), rs.text(QStringLiteral("TOpVValue")));
    return values;
}

void DbDataObject::removeOption(Connection& connection, OptionScope scope, const QString& scopeKey, const QString& alias)
{
    Backend& backend = connection.backend();
    connection.execute(Sql(QStringLiteral("DELETE FROM QD8TOptionValue WHERE TOpVScope=%1 AND TOpVScopeKey=%2 AND TOpVTOptAlias=%3")
                               .arg(backend.placeholder(1), backend.placeholder(2), backend.placeholder(3))),
        {scopeName(scope), scopeKey, alias});
}

void DbDataObject::storeOption(Connection& connection, OptionScope scope, const QString& scopeKey, const QString& alias,
    const QString& text, double number)
{
    Backend& backend = connection.backend();
    const QVariantList values = {text, number, m_userLoginName, QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")),
                                 scopeName(scope), scopeKey, alias};
    const QString update = QStringLiteral("UPDATE QD8TOptionValue SET TOpVValue=%1, TOpVNumber=%2, TOpVEditBy=%3, TOpVEditDate=%4 "
                                          "WHERE TOpVScope=%5 AND TOpVScopeKey=%6 AND TOpVTOptAlias=%7")
                               .arg(backend.placeholder(1), backend.placeholder(2), backend.placeholder(3), backend.placeholder(4),
                                   backend.placeholder(5), backend.placeholder(6), backend.placeholder(7));
    if (connection.execute(Sql(update), values) > 0)
        return;
    const QString insert = QStringLiteral("INSERT INTO QD8TOptionValue (TOpVValue, TOpVNumber, TOpVEditBy, TOpVEditDate, TOpVScope, "
                                          "TOpVScopeKey, TOpVTOptAlias) VALUES (%1,%2,%3,%4,%5,%6,%7)")
                               .arg(backend.placeholder(1), backend.placeholder(2), backend.placeholder(3), backend.placeholder(4),
                                   backend.placeholder(5), backend.placeholder(6), backend.placeholder(7));
    connection.execute(Sql(insert), values);
}

qint64 DbDataObject::takeNumberOn(Connection& connection, const QString& key, const QString& subKey)
{
    // The UPDATE takes the row's write lock first, so a second connection waits for this
    // transaction and then counts on from its result.
    Backend& backend = connection.backend();
    const QString now = QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
    const qint64 updated = connection.execute(
        Sql(QStringLiteral("UPDATE QD8TRunningNumber SET TRunLastNo=TRunLastNo+1, TRunEditDate=%1 WHERE TRunKey=%2 AND TRunSubKey=%3")
                .arg(backend.placeholder(1), backend.placeholder(2), backend.placeholder(3))),
        {now, key, subKey});
    if (updated == 0) {
        connection.execute(Sql(QStringLiteral("INSERT INTO QD8TRunningNumber (TRunKey, TRunSubKey, TRunLastNo, TRunEditDate) VALUES (%1,%2,1,%3)")
                                   .arg(backend.placeholder(1), backend.placeholder(2), backend.placeholder(3))),
            {key, subKey, now});
        return 1;
    }
    auto rows = connection.query(Sql(QStringLiteral("SELECT TRunLastNo FROM QD8TRunningNumber WHERE TRunKey=%1 AND TRunSubKey=%2")
                                         .arg(backend.placeholder(1), backend.placeholder(2))),
        {key, subKey});
    return rows->value(0, 0).toLongLong();
}

qint64 DbDataObject::takeNumber(const QString& key, const QString& subKey, Connection* within)
{
    if (within)
        return takeNumberOn(*within, key, subKey);
    // Two connections may both find no row and both insert the first number: the loser's
    // INSERT fails on the key, and it simply tries again, now finding the row.
    for (int attempt = 1;; ++attempt) {
        Connection connection;
        connection.open(m_connectionString);
        TransactionGuard transaction(connection);
        try {
            const qint64 number = takeNumberOn(connection, key, subKey);
            transaction.commit();
            return number;
        } catch (const DbError&) {
            if (attempt == MaxNumberAttempts)
                throw;
        }
    }
}

QString DbDataObject::nextRunningNumber(const QString& key, const QString& subKey, const QDate& date, Connection* within)
{
    const QString period = subKey + date.toString(QStringLiteral("yyMM"));
    const qint64 number = takeNumber(key, period, within);
    return period + QString::number(number).rightJustified(4, QLatin1Char('0'));
}

} // namespace qd8
