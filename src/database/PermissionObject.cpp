#include "database/PermissionObject.h"

#include "database/LookupScope_p.h"

#include "foundation/Connection.h"
#include "foundation/Recordset.h"
#include "foundation/Values.h"

namespace qd8 {

const QStringList PermissionObject::ToolBarKeys = {
    QStringLiteral("Add"), QStringLiteral("Delete"), QStringLiteral("UnPass"), QStringLiteral("Copy"),
    QStringLiteral("Edit"), QStringLiteral("Check"), QStringLiteral("Pass"), QStringLiteral("Print")};

namespace {

using RightsByAlias = QHash<QString, QHash<QString, int>>;

// The user's rights rows, keyed by command alias: one command's, or all of them at once
// when a lookup scope is in force.
RightsByAlias readRights(const QString& connectionString, qint32 userId, const QString& alias)
{
    static const QStringList keys = QStringList{QStringLiteral("Run"), QStringLiteral("Show")} + PermissionObject::ToolBarKeys;
    Connection connection;
    connection.open(connectionString);
    Sql sql = Sql("SELECT * FROM QD8TUserRight WHERE TURtTUsrID=") + qint64(userId);
    if (!alias.isNull())
        sql = sql + " AND TURtTCmdAlias=" + quoted(alias);
    Recordset rs;
    rs.open(sql, connection);
    // Columns and their keys are found once; a refresh reads every right of the user.
    QList<std::pair<QString, int>> columns;
    for (const QString& key : keys)
        columns.append({key.toLower(), rs.fieldIndex(QStringLiteral("TURt") + key)});
    const int aliasColumn = rs.fieldIndex(QStringLiteral("TURtTCmdAlias"));
    RightsByAlias rights;
    for (; !rs.eof(); rs.moveNext()) {
        QHash<QString, int>& row = rights[text(rs.field(aliasColumn))];
        for (const auto& [key, column] : columns)
            row.insert(key, rs.field(column).toInt());
    }
    return rights;
}

} // namespace

void DbPermissionObject::LoadCommandRights(qint32 userId, const QString& alias, const QString& connectionString, const QString&)
{
    m_userId = userId;
    m_alias = alias;
    m_connectionString = connectionString;
    m_rights.clear();
    if (LookupScope* scope = LookupScope::current()) {
        const RightsByAlias& all = scope->value<RightsByAlias>(
            QStringLiteral("rights\n%1\n").arg(userId) + connectionString, [&] { return readRights(connectionString, userId, QString()); });
        m_rights = all.value(alias);
        return;
    }
    m_rights = readRights(connectionString, userId, alias.isNull() ? QStringLiteral("") : alias).value(alias);
}

int DbPermissionObject::right(const QString& key) const
{
    return m_rights.value(key.toLower(), 0);
}

bool DbPermissionObject::hasRight(const QString& rightAlias)
{
    Connection connection;
    connection.open(m_connectionString);
    Recordset rs;
    rs.open(Sql("SELECT TURtRun FROM QD8TUserRight WHERE TURtTUsrID=") + qint64(m_userId) + " AND TURtTCmdAlias=" + quoted(rightAlias),
        connection);
    return !rs.eof() && rs.field(0).toInt() != 0;
}

QString DbPermissionObject::employeeScope(const QString& field, int level)
{
    Connection connection;
    connection.open(m_connectionString);
    Recordset rs;
    rs.open(Sql("SELECT TUEtTEmTCode FROM QD8TUserEmpType WHERE TUEtTUsrID=") + qint64(m_userId) + " AND TUEtLevel=" + level
            + " ORDER BY TUEtTEmTCode",
        connection);
    if (rs.eof())
        return {};
    Sql codes;
    for (; !rs.eof(); rs.moveNext()) {
        const Sql code = quoted(rs.text(QStringLiteral("TUEtTEmTCode")));
        if (code.isBroken())
            continue;  // a code that cannot be written into SQL grants nothing
        codes += codes.text().isEmpty() ? code : Sql(",") + code;
    }
    return codes.text().isEmpty() ? field + QStringLiteral(" IN ('')") : field + QStringLiteral(" IN (") + codes.text() + QLatin1Char(')');
}

} // namespace qd8
