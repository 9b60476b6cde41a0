#include "database/ClientObject.h"

#include "database/SessionFunctions.h"
#include "foundation/Connection.h"
#include "foundation/Recordset.h"
#include "foundation/Values.h"

#include <QSysInfo>

namespace qd8 {

DbClientObject::DbClientObject(const QString& connectionString, qint32 userId, const QString& hostName)
    : m_hostName(hostName.isEmpty() ? QSysInfo::machineHostName() : hostName)
{
    m_approveNoteFilter = toNumber(DbSessionFunctions::userSettingText(userId, QStringLiteral("ApproveNoteFilter"), connectionString)) != 0;
    m_approveNoteValue = DbSessionFunctions::userSettingText(userId, QStringLiteral("ApproveNoteValue"), connectionString);
    Connection connection;
    connection.open(connectionString);
    Recordset rs;
    rs.open(Sql("SELECT TEmpTBraCode FROM QD8TUser INNER JOIN QD8TEmployee ON TUsrTEmpCode=TEmpCode WHERE TUsrID=") + qint64(userId),
        connection);
    if (!rs.eof())
        m_branchCode = rs.text(QStringLiteral("TEmpTBraCode"));
}

} // namespace qd8
