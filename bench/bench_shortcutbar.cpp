// ShortCutBar::Refresh over a catalogue of 1,000 listable commands (the main list shows
// all of them; the module list holds 20 and the user list 10, each looked up by ID as the
// control does), every entry with its caption and rights lookups, against the floor of
// one joined query that returns the main list's 1,000 rows with their captions and rights
// (raw sqlite3 / libpq, all columns as text).
#include "BenchSupport.h"

#include "database/Schema.h"
#include "foundation/Connection.h"
#include "navigation/ShortCutBar.h"

#include <QApplication>
#include <QImage>
#include <QListWidget>
#include <QTemporaryDir>
#include <libpq-fe.h>
#include <sqlite3.h>

using namespace qd8;
using namespace qd8::bench;

namespace {

constexpr int Commands = 1000;
constexpr int ModuleCommands = 20;
constexpr int UserCommands = 10;
constexpr int Icons = 20;

QTemporaryDir& iconFolder()
{
    static QTemporaryDir folder;
    return folder;
}

const char* Floor =
    "SELECT c.*, cc.TCCpName, cc.TCCpName2, r.TURtRun, r.TURtShow FROM QD8TCommand c "
    "LEFT JOIN QD8TCommandCaption cc ON cc.TCCpTCmdAlias = c.TCmdAlias AND cc.TCCpFlag1 = 1 "
    "LEFT JOIN QD8TUserRight r ON r.TURtTCmdAlias = c.TCmdAlias AND r.TURtTUsrID = 1 "
    "WHERE c.TCmdShowListBar = 1 AND c.TCmdActiveStatus = 1 AND c.TCmdFlag1 = 1 ORDER BY c.TCmdSort";

// The catalogue, the command centre and the session tables in one database, so that one
// joined query can be the floor.
void fill(BenchDatabase& db)
{
    const QString cs = db.connectionString();
    for (DatabaseRole role : {DatabaseRole::Application, DatabaseRole::CommandCentre, DatabaseRole::CompanyData})
        Schema::create(cs, role);
    QImage picture(32, 32, QImage::Format_ARGB32);
    picture.fill(Qt::darkGreen);
    for (int i = 0; i < Icons; ++i)
        picture.save(iconFolder().filePath(QStringLiteral("B%1.ico").arg(i)), "ICO");
    Connection c;
    c.open(cs);
    c.beginTrans();
    c.execute("INSERT INTO QD8TCommandGroup (TCmGAlias, TCmGName, TCmGName2) VALUES ('BEN', 'ทดสอบ', 'Bench')");
    c.execute("INSERT INTO QD8TUserSetting (TUsSTUsrID, TUsSAlias, TUsSValue) VALUES (1, 'LanguageID', '0')");
    for (int i = 1; i <= Commands; ++i) {
        const QString alias = QStringLiteral("BEN%1").arg(i);
        c.execute(Sql("INSERT INTO QD8TCommand (TCmdID, TCmdAlias, TCmdName, TCmdName2, TCmdTCmGAlias, TCmdIcon, TCmdSmallIcon, TCmdSort) VALUES (")
            + i + ", " + quoted(alias) + ", " + quoted(QStringLiteral("คำสั่ง&ที่ %1").arg(i)) + ", " + quoted(QStringLiteral("&Command %1").arg(i))
            + ", 'BEN', " + quoted(QStringLiteral("B%1.ico").arg(i % Icons)) + ", " + quoted(QStringLiteral("B%1.ico").arg((i + 1) % Icons)) + ", " + i + ")");
        c.execute(Sql("INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow) VALUES (1, ") + quoted(alias) + ", 1, 1)");
        if (i % 10 == 0)
            c.execute(Sql("INSERT INTO QD8TCommandCaption (TCCpTCmdAlias, TCCpName, TCCpName2, TCCpFlag1) VALUES (") + quoted(alias) + ", "
                + quoted(QStringLiteral("ชื่อใหม่ %1").arg(i)) + ", " + quoted(QStringLiteral("New name %1").arg(i)) + ", 1)");
    }
    for (int i = 1; i <= ModuleCommands; ++i)
        c.execute(Sql("INSERT INTO QD8TModuleCommand (TMdCTCmGAlias, TMdCTCmdID, TMdCSort) VALUES ('BEN', ") + i * 7 + ", " + i + ")");
    for (int i = 1; i <= UserCommands; ++i)
        c.execute(Sql("INSERT INTO QD8TUserCommand (TUsCTUsrID, TUsCTCmdID, TUsCSort) VALUES (1, ") + i * 13 + ", " + i + ")");
    c.commitTrans();
    c.execute("ANALYZE");  // fresh statistics, so the floor's joins use the keys
}

void refresh(benchmark::State& state, const BenchDatabase* db)
{
    ShortCutBar bar;
    bar.setConnectionString(db->connectionString());
    bar.setAppConnectionString(db->connectionString());
    bar.setUserID(1);
    bar.setIconPath(iconFolder().path());
    bar.setCommandGroup(QStringLiteral("BEN"));
    for (auto _ : state)
        bar.Refresh();
    if (bar.listView(CommandSet::Main)->count() != Commands || bar.listView(CommandSet::Module)->count() != ModuleCommands
        || bar.listView(CommandSet::User)->count() != UserCommands)
        state.SkipWithError("the lists do not hold the catalogue");
}

void rawSqlite(benchmark::State& state, const BenchDatabase* db)
{
    sqlite3* handle = nullptr;
    sqlite3_open_v2(db->name().toUtf8().constData(), &handle, SQLITE_OPEN_READONLY, nullptr);
    for (auto _ : state)
        if (readAllSqlite(handle, Floor) != Commands)
            state.SkipWithError("the floor query lost rows");
    sqlite3_close(handle);
}

void rawLibpq(benchmark::State& state, const BenchDatabase* db)
{
    PGconn* conn = PQconnectdb(("dbname=" + db->name()).toUtf8().constData());
    for (auto _ : state)
        if (readAllLibpq(conn, Floor) != Commands)
            state.SkipWithError("the floor query lost rows");
    PQfinish(conn);
}

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    return runOnEngines(argc, argv, fill, [](const EngineRun& run, std::vector<Ratio>& ratios) {
        const bool postgres = run.db->isPostgres();
        const QString floor = run.prefix + (postgres ? "raw_libpq" : "raw_c_api");
        registerOn(run, postgres ? "raw_libpq" : "raw_c_api", postgres ? rawLibpq : rawSqlite, 5);
        registerOn(run, "refresh", refresh, 5);
        ratios.push_back({run.title + QStringLiteral(", ShortCutBar::Refresh, 1000 listable commands"), run.prefix + "refresh", floor,
            postgres ? 5.0 : 3.0});
    });
}
