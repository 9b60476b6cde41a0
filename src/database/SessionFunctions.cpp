#include "database/SessionFunctions.h"

#include "database/LookupScope_p.h"

#include "foundation/Connection.h"
#include "foundation/DbError.h"
#include "foundation/Language.h"
#include "foundation/Recordset.h"
#include "foundation/Values.h"

#include <QHash>
#include <QPair>

namespace qd8 {

QString DbSessionFunctions::userSettingText(qint32 userId, const QString& name, const QString& connectionString)
{
    const auto read = [&] {
        Connection connection;
        connection.open(connectionString);
        Recordset rs;
        rs.open(Sql("SELECT TUsSTUsrID, TUsSValue FROM QD8TUserSetting WHERE TUsSTUsrID IN (") + qint64(userId) + ",0) AND TUsSAlias="
                + quoted(name) + " ORDER BY TUsSTUsrID DESC",
            connection);
        return rs.eof() ? QString() : rs.text(QStringLiteral("TUsSValue"));
    };
    // A refresh asks for the language once per list; the answer cannot change meanwhile.
    if (LookupScope* scope = LookupScope::current())
        return scope->value<QString>(QStringLiteral("setting\n%1\n%2\n").arg(userId).arg(name) + connectionString, read);
    return read();
}

void DbSessionFunctions::storeUserSetting(qint32 userId, const QString& name, const QString& value, const QString& connectionString)
{
    Connection connection;
    connection.open(connectionString);
    Recordset rs;
    rs.open(Sql("SELECT * FROM QD8TUserSetting WHERE TUsSTUsrID=") + qint64(userId) + " AND TUsSAlias=" + quoted(name), connection,
        Recordset::adOpenKeyset, Recordset::adLockOptimistic);
    if (rs.eof()) {
        rs.addNew();
        rs.setField(QStringLiteral("TUsSTUsrID"), userId);
        rs.setField(QStringLiteral("TUsSAlias"), name);
    }
    rs.setField(QStringLiteral("TUsSValue"), value);
    rs.update();
}

DateLook DbSessionFunctions::userDateLook(qint32 userId, int languageId, const QString& connectionString)
{
    if (connectionString.isEmpty())
        return DateLook::forLanguage(languageId);
    try {
        return DateLook::forLanguage(languageId, userSettingText(userId, QStringLiteral("DateEra"), connectionString));
    } catch (const DbError&) {
        return DateLook::forLanguage(languageId);  // dates still show, in the language's era
    }
}

double DbSessionFunctions::GetUserSetting(qint32 userId, const QString& name, const QString& connectionString)
{
    if (connectionString.isEmpty())
        return 0;
    return toNumber(userSettingText(userId, name, connectionString));
}

namespace {

using CaptionOverrides = QHash<QString, QPair<QString, QString>>;

// The command centre's active overrides of one command, or of every command at once when
// a lookup scope is in force (a launcher asks for hundreds in one refresh).
CaptionOverrides readOverrides(const QString& centreConnectionString, const QString& alias)
{
    Connection centre;
    centre.open(centreConnectionString);
    Sql sql("SELECT TCCpTCmdAlias, TCCpName, TCCpName2 FROM QD8TCommandCaption WHERE TCCpFlag1=1");
    if (!alias.isNull())
        sql = sql + " AND TCCpTCmdAlias=" + quoted(alias);
    Recordset rs;
    rs.open(sql, centre);
    CaptionOverrides overrides;
    for (; !rs.eof(); rs.moveNext())
        overrides.insert(rs.text(QStringLiteral("TCCpTCmdAlias")), {rs.text(QStringLiteral("TCCpName")), rs.text(QStringLiteral("TCCpName2"))});
    return overrides;
}

} // namespace

QString DbSessionFunctions::GetCommandCaption(int languageId, const QString&, const QString& commandCentreConnectionString,
    const QString& alias, int, const QString& name, const QString& name2, const QString& reportNo)
{
    QString caption = inLanguage(languageId, name, name2);
    if (!commandCentreConnectionString.isEmpty() && !alias.isEmpty()) {
        // An override is optional: a missing or unreadable command centre leaves the name.
        try {
            CaptionOverrides one;
            const CaptionOverrides* overrides = &one;
            if (LookupScope* scope = LookupScope::current())
                overrides = &scope->value<CaptionOverrides>(QStringLiteral("captions\n") + commandCentreConnectionString,
                    [&] { return readOverrides(commandCentreConnectionString, QString()); });
            else
                one = readOverrides(commandCentreConnectionString, alias);
            const auto found = overrides->constFind(alias);
            if (found != overrides->constEnd()) {
                const QString override = inLanguage(languageId, found->first, found->second);
                if (!override.isEmpty())
                    caption = override;
            }
        } catch (const DbError&) {
        }
    }
    if (caption.isEmpty())
        caption = inLanguage(languageId, name2, name);
    const QString number = reportNo.trimmed();
    if (!number.isEmpty() && number != QLatin1String("0"))
        caption = number + QStringLiteral(" - ") + caption;
    return caption;
}

} // namespace qd8
