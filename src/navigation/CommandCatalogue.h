#pragma once

#include "foundation/SessionContext.h"
#include "foundation/Sql.h"

#include <QString>
#include <QVariant>
#include <functional>

namespace qd8 {

class Connection;
class Recordset;

// The three command sets every launcher shows.
enum class CommandSet { Main = 1, Module = 2, User = 3 };

// One command as a launcher shows it.
struct CommandEntry {
    QString alias;            // TCmdAlias as stored: what Lunch carries
    QString group;            // TCmdTCmGAlias, the module
    QString type;             // TCmdType: F form, R report, others programs and pages
    QString caption;          // session-language caption, accelerator marks removed
    QString iconKey;          // TCmdIcon when its .ICO file exists, else "Blank"
    QString smallIconKey;     // the same for TCmdSmallIcon
    QString iconFile;         // local path of the large icon ("" for "Blank")
    QString smallIconFile;
    bool listable = false;    // both list rights of the user are exactly 1
};

// The command catalogue as the launchers read it: the statements of the three command
// sets, one entry per command row with its caption, icons and rights, the launch
// re-lookup and the user's own list. Loads never raise: a statement that fails adds
// nothing, as the launchers show what they can and say nothing.
class CommandCatalogue {
public:
    static const QString BlankIcon;  // "Blank"

    // commandCentre: the command-centre connection string, passed to the caption function.
    CommandCatalogue(const SessionContext& session, const QString& commandCentre);

    static Sql mainListSql(const QString& commandGroup);
    static Sql moduleListSql(const QString& commandGroup);
    static Sql userListSql(qint32 userId);
    static Sql commandByIdSql(const QString& commandId);
    static Sql aliasLookupSql(const QString& alias);
    // Every command of a module in use, list bar or not (all modules for ""): what a
    // module's diagram offers.
    static Sql moduleCommandsSql(const QString& commandGroup);
    // "&&" kept, every other "&" (an accelerator mark) removed.
    static QString withoutAccelerators(const QString& caption);
    // The key of an icon named by the catalogue: the name itself when IconPath\name exists
    // and ends in ".ICO" (any case), else "Blank". *file receives the local path.
    static QString iconKey(const QString& iconPath, const QVariant& iconName, QString* file = nullptr);

    // The user's "LanguageID" setting (0 when it cannot be read): the language of the lists.
    int languageId() const;
    // A load happens only with a session database and an icon folder.
    bool canLoad() const;
    // Calls visit for every command row of the set, in order, until it returns false.
    // Icons are resolved only when withIcons is true.
    void load(CommandSet set, const std::function<bool(const CommandEntry&)>& visit, bool withIcons = true) const;
    // The same for the rows of any statement on the catalogue, captions in the language
    // given; needs the two connection strings only (a diagram has no icon folder to wait for).
    void load(const Sql& statement, int languageId, const std::function<bool(const CommandEntry&)>& visit) const;
    // The alias as stored in the catalogue for the trimmed alias, or "" when it is gone.
    QString storedAlias(const QString& alias) const;

    // Lets the user pick a form or report of the catalogue and appends it to his own list
    // unless it is there already. False when nothing was picked or a statement failed.
    bool addUserCommand() const;
    // Removes the command from the user's own list. False when a statement failed.
    bool removeUserCommand(const QString& commandId) const;
    // The TCmdID of an alias, "" when unknown.
    QString commandId(const QString& alias) const;

private:
    CommandEntry entry(const Recordset& rs, int languageId, bool withIcons) const;
    bool visitRows(const Sql& statement, Connection& catalogue, int language, bool withIcons,
        const std::function<bool(const CommandEntry&)>& visit) const;

    SessionContext m_session;
    QString m_commandCentre;
};

} // namespace qd8
