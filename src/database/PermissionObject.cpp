#include "database/PermissionObject.h"

#include "foundation/Connection.h"
#include "foundation/Recordset.h"

namespace qd8 {

const QStringList PermissionObject::ToolBarKeys = {
    QStringLiteral("Add"), QStringLiteral("Delete"), QStringLiteral("UnPass"), QStringLiteral("Copy"),
    QStringLiteral("Edit"), QStringLiteral("Check"), QStringLiteral("Pass"), QStringLiteral("Print")};

void DbPermissionObject::LoadCommandRights(qint32 userId, const QString& alias, const QString& connectionString, const QString&)
{
    m_userId = userId;
    m_alias = alias;
    m_connectionString = connectionString;
    m_rights.clear();
    Connection connection;
    connection.open(connectionString);
    Recordset rs;
    rs.open(Sql("SELECT * FROM QD8TUserRight WHERE TURtTUsrID=") + qint64(userId) + " AND TURtTCmdAlias=" + quoted(alias), connection);
    if (rs.eof())
        return;
    for (const QString& key : QStringList{QStringLiteral("Run"), QStringLiteral("Show")} + ToolBarKeys)
        m_rights.insert(key.toLower(), rs.field(QStringLiteral("TURt") + key).toInt());
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
