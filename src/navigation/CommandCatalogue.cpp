#include "navigation/CommandCatalogue.h"

#include "database/ListService.h"
#include "database/LookupScope_p.h"
#include "database/PermissionObject.h"
#include "database/SessionFunctions.h"
#include "database/SessionServices.h"
#include "foundation/Connection.h"
#include "foundation/DbError.h"
#include "foundation/Recordset.h"
#include "foundation/Values.h"

#include <cmath>

namespace qd8 {

const QString CommandCatalogue::BlankIcon = QStringLiteral("Blank");

CommandCatalogue::CommandCatalogue(const SessionContext& session, const QString& commandCentre)
    : m_session(session)
    , m_commandCentre(commandCentre)
{
}

Sql CommandCatalogue::mainListSql(const QString& commandGroup)
{
    // The doubled list-bar test and the two blanks of the group form are the statements
    // as the suite has always sent them.
    if (!commandGroup.isEmpty())
        return Sql("SELECT * FROM QD8TCommand WHERE TCmdShowListBar=1  AND TCmdActiveStatus=1 AND TCmdShowListbar=1 AND TCmdFlag1=1 AND TCmdTCmGAlias=")
            + quoted(commandGroup) + " ORDER" + " BY TCmdSort";
    return Sql("SELECT * FROM QD8TCommand WHERE TCmdShowListBar=1 AND TCmdActiveStatus=1 AND TCmdShowListbar=1 AND TCmdFlag1=1 ORDER BY TCmdSort");
}

Sql CommandCatalogue::moduleListSql(const QString& commandGroup)
{
    return Sql("SELECT * FROM QD8TModuleCommand WHERE TMdCTCmGAlias=") + quoted(commandGroup) + " ORDER BY TMdCSort";
}

Sql CommandCatalogue::userListSql(qint32 userId)
{
    return Sql("SELECT * FROM QD8TUserCommand WHERE TUscTUsRID=") + qint64(userId) + " ORDER BY TUsCSort";
}

Sql CommandCatalogue::commandByIdSql(const QString& commandId)
{
    return Sql("SELECT * FROM QD8TCommand WHERE TCmdFlag1=1 AND TCmdID=") + number(commandId);
}

Sql CommandCatalogue::aliasLookupSql(const QString& alias)
{
    return Sql("SELECT TCmdAlias FROM QD8TCommand WHERE TCmdAlias=") + quoted(alias.trimmed());
}

Sql CommandCatalogue::moduleCommandsSql(const QString& commandGroup)
{
    Sql sql("SELECT * FROM QD8TCommand WHERE TCmdActiveStatus=1 AND TCmdFlag1=1");
    if (!commandGroup.isEmpty())
        sql += Sql(" AND TCmdTCmGAlias=") + quoted(commandGroup);
    return sql + " ORDER BY TCmdTCmGAlias, TCmdSort";
}

QString CommandCatalogue::withoutAccelerators(const QString& caption)
{
    QString cleaned = caption;
    cleaned.replace(QStringLiteral("&&"), QStringLiteral("$$"));
    cleaned.remove(QLatin1Char('&'));
    cleaned.replace(QStringLiteral("$$"), QStringLiteral("&&"));
    return cleaned;
}

QString CommandCatalogue::iconKey(const QString& iconPath, const QVariant& iconName, QString* file)
{
    if (file)
        file->clear();
    if (iconName.isNull())
        return BlankIcon;
    const QString name = text(iconName);
    const QString path = localPath(iconPath + QLatin1Char('\\') + name);
    if (!name.right(4).toUpper().endsWith(QLatin1String(".ICO")) || !fileExistsInScope(path))
        return BlankIcon;
    if (file)
        *file = path;
    return name;
}

bool CommandCatalogue::canLoad() const
{
    return !m_session.ConnectionString.isEmpty() && !m_session.IconPath.isEmpty();
}

int CommandCatalogue::languageId() const
{
    try {
        return int(std::nearbyint(SessionServices::sessionFunctions().GetUserSetting(
            m_session.UserID, QStringLiteral("LanguageID"), m_session.ConnectionString)));
    } catch (const DbError&) {
        return 0;
    }
}

CommandEntry CommandCatalogue::entry(const Recordset& rs, int language, bool withIcons) const
{
    CommandEntry entry;
    entry.alias = rs.text(QStringLiteral("TCmdAlias"));
    entry.group = rs.text(QStringLiteral("TCmdTCmGAlias"));
    entry.type = rs.text(QStringLiteral("TCmdType"));
    const QVariant name = rs.field(QStringLiteral("TCmdName"));
    if (name.isNull()) {
        entry.caption = QStringLiteral(" ");
    } else {
        QString caption = text(name);
        try {
            caption = SessionServices::sessionFunctions().GetCommandCaption(language, m_session.AppConnectionString,
                m_commandCentre, entry.alias, 0, text(name), rs.text(QStringLiteral("TCmdName2")),
                rs.text(QStringLiteral("TCmdReportNo")));
        } catch (const DbError&) {
        }
        entry.caption = withoutAccelerators(caption);
    }
    if (withIcons) {
        entry.iconKey = iconKey(m_session.IconPath, rs.field(QStringLiteral("TCmdIcon")), &entry.iconFile);
        entry.smallIconKey = iconKey(m_session.IconPath, rs.field(QStringLiteral("TCmdSmallIcon")), &entry.smallIconFile);
    }
    try {
        const auto rights = SessionServices::newCommandPermission();
        rights->LoadCommandRights(m_session.UserID, entry.alias, m_session.ConnectionString, m_session.AppConnectionString);
        entry.listable = rights->right(QStringLiteral("Run")) == 1 && rights->right(QStringLiteral("Show")) == 1;
    } catch (const DbError&) {
        entry.listable = false;  // rights that cannot be read never show a command
    }
    return entry;
}

void CommandCatalogue::load(CommandSet set, const std::function<bool(const CommandEntry&)>& visit, bool withIcons) const
{
    if (!canLoad())
        return;
    LookupScope scope;
    try {
        Connection catalogue;
        catalogue.open(m_session.AppConnectionString);
        const int language = languageId();
        if (set == CommandSet::Main) {
            visitRows(mainListSql(m_session.CommandGroup), catalogue, language, withIcons, visit);
            return;
        }
        // Module and user lists: the session database names the commands, the catalogue
        // supplies each one that is still in use.
        Connection session;
        session.open(m_session.ConnectionString);
        Recordset list;
        const bool module = set == CommandSet::Module;
        list.open(module ? moduleListSql(m_session.CommandGroup) : userListSql(m_session.UserID), session);
        const QString idField = module ? QStringLiteral("TMdCTCmdID") : QStringLiteral("TUsCTCmdID");
        for (; !list.eof(); list.moveNext()) {
            try {
                if (!visitRows(commandByIdSql(list.text(idField)), catalogue, language, withIcons, visit))
                    return;
            } catch (const DbError&) {
                // A command that cannot be read adds nothing; the next one may.
            }
        }
    } catch (const DbError&) {
        // A database that cannot be read leaves the list as far as it got.
    }
}

void CommandCatalogue::load(const Sql& statement, int language, const std::function<bool(const CommandEntry&)>& visit) const
{
    if (m_session.ConnectionString.isEmpty() || m_session.AppConnectionString.isEmpty())
        return;
    LookupScope scope;
    try {
        Connection catalogue;
        catalogue.open(m_session.AppConnectionString);
        visitRows(statement, catalogue, language, true, visit);
    } catch (const DbError&) {
        // As far as it got, as the lists.
    }
}

bool CommandCatalogue::visitRows(const Sql& statement, Connection& catalogue, int language, bool withIcons,
    const std::function<bool(const CommandEntry&)>& visit) const
{
    Recordset rs;
    rs.open(statement, catalogue);
    for (; !rs.eof(); rs.moveNext())
        if (!visit(entry(rs, language, withIcons)))
            return false;
    return true;
}

QString CommandCatalogue::storedAlias(const QString& alias) const
{
    try {
        Connection catalogue;
        catalogue.open(m_session.AppConnectionString);
        Recordset rs;
        rs.open(aliasLookupSql(alias), catalogue);
        if (!rs.eof())
            return text(rs.field(0));
    } catch (const DbError&) {
    }
    return {};
}

bool CommandCatalogue::addUserCommand() const
{
    try {
        const QString picked = SessionServices::listService().PickFromList(
            QStringLiteral("เลือกคำสั่งที่ต้องการแสดง (การเรียกใช้จะขึ้นอยู่กับสิทธิที่ได้รับ)"), QStringLiteral("TCmdID"),
            QStringLiteral("TCmdID,TCmGName,TCmdReportno2,TCmdName"), QStringLiteral("ID,โมดูล,คำสั่ง,") + QStringLiteral("ชื่อคำสั่ง"),
            QStringLiteral("0,2800,800,6860"), QStringLiteral("0,0,0,0"),
            QStringLiteral("QD8VCommand WHERE (TCmdType='F' or TCmdType='R') and TCmGShow=1 and TCmdActiveStatus=1 and TCmdFlag1=1 ORDER BY TCmGSort,")
                + QStringLiteral("TCmdSort"),
            m_session.AppConnectionString, 0, 0, 0, 1, 0, 10200);
        if (picked.isEmpty())
            return false;
        Connection session;
        session.open(m_session.ConnectionString);
        Recordset rs;
        rs.open(Sql("SELECT * FROM QD8TUserCommand WHERE TUsCTUsrID=") + qint64(m_session.UserID) + " AND TUsCTCmdID=" + picked,
            session, Recordset::adOpenKeyset, Recordset::adLockOptimistic);
        if (rs.eof()) {
            const qint64 sort = SessionServices::listService().NextSortNumber(
                QStringLiteral("TUscSort"), QStringLiteral("QD8TUSerCommand"), m_session.ConnectionString, 0);
            rs.addNew();
            rs.setField(QStringLiteral("TUsCTUsrID"), m_session.UserID);
            rs.setField(QStringLiteral("TUsCTCmdID"), picked.toLongLong());
            rs.setField(QStringLiteral("TUsCSort"), sort);
            rs.update();
        }
        return true;
    } catch (const DbError&) {
        return false;
    }
}

bool CommandCatalogue::removeUserCommand(const QString& commandId) const
{
    try {
        Connection session;
        session.open(m_session.ConnectionString);
        session.execute(Sql("DELETE FROM QD8TUserCommand WHERE TUsCTUsRID=") + qint64(m_session.UserID) + " AND TUscTCmdID=" + commandId);
        return true;
    } catch (const DbError&) {
        return false;
    }
}

QString CommandCatalogue::commandId(const QString& alias) const
{
    try {
        return text(SessionServices::listService().LookupValue(QString(), 0, 0, QStringLiteral("TCmdAlias"), alias,
            QStringLiteral("TCmdID"), QStringLiteral("QD8TCommand"), m_session.AppConnectionString));
    } catch (const DbError&) {
        return {};
    }
}

} // namespace qd8
