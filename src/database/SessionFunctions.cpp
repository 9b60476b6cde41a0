#include "database/SessionFunctions.h"

#include "foundation/Connection.h"
#include "foundation/DbError.h"
#include "foundation/Recordset.h"
#include "foundation/Values.h"

namespace qd8 {

QString DbSessionFunctions::userSettingText(qint32 userId, const QString& name, const QString& connectionString)
{
    Connection connection;
    connection.open(connectionString);
    Recordset rs;
    rs.open(Sql("SELECT TUsSTUsrID, TUsSValue FROM QD8TUserSetting WHERE TUsSTUsrID IN (") + qint64(userId) + ",0) AND TUsSAlias="
            + quoted(name) + " ORDER BY TUsSTUsrID DESC",
        connection);
    if (rs.eof())
        return {};
    return rs.text(QStringLiteral("TUsSValue"));
}

double DbSessionFunctions::GetUserSetting(qint32 userId, const QString& name, const QString& connectionString)
{
    if (connectionString.isEmpty())
        return 0;
    return toNumber(userSettingText(userId, name, connectionString));
}

QString DbSessionFunctions::GetCommandCaption(int languageId, const QString&, const QString& commandCentreConnectionString,
    const QString& alias, int, const QString& name, const QString& name2, const QString& reportNo)
{
    QString caption = languageId == 0 ? name : name2;
    if (!commandCentreConnectionString.isEmpty() && !alias.isEmpty()) {
        // An override is optional: a missing or unreadable command centre leaves the name.
        try {
            Connection centre;
            centre.open(commandCentreConnectionString);
            Recordset rs;
            rs.open(Sql("SELECT TCCpName, TCCpName2 FROM QD8TCommandCaption WHERE TCCpTCmdAlias=") + quoted(alias) + " AND TCCpFlag1=1",
                centre);
            if (!rs.eof()) {
                const QString override = rs.text(languageId == 0 ? QStringLiteral("TCCpName") : QStringLiteral("TCCpName2"));
                if (!override.isEmpty())
                    caption = override;
            }
        } catch (const DbError&) {
        }
    }
    if (caption.isEmpty())
        caption = languageId == 0 ? name2 : name;
    const QString number = reportNo.trimmed();
    if (!number.isEmpty() && number != QLatin1String("0"))
        caption = number + QStringLiteral(" - ") + caption;
    return caption;
}

} // namespace qd8
