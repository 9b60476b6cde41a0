// NUVDiagramIndex::Refresh over 40 modules of 60 commands each (every command in use and
// listable, each with its caption and rights lookups) against ShortCutBar::Refresh of the
// same 2,400 commands (its main list without a command group). The index reads more than it
// shows (every command, to know which modules the user may use) and draws only 40 tiles.
#include "BenchSupport.h"

#include "database/Schema.h"
#include "foundation/Connection.h"
#include "navigation/NUVDiagramIndex.h"
#include "navigation/ShortCutBar.h"

#include <QApplication>
#include <QImage>
#include <QListWidget>
#include <QTemporaryDir>

using namespace qd8;
using namespace qd8::bench;

namespace {

constexpr int Modules = 40;
constexpr int CommandsPerModule = 60;

QTemporaryDir& iconFolder()
{
    static QTemporaryDir folder;
    return folder;
}

void fill(BenchDatabase& db)
{
    const QString cs = db.connectionString();
    for (DatabaseRole role : {DatabaseRole::Application, DatabaseRole::CommandCentre, DatabaseRole::CompanyData})
        Schema::create(cs, role);
    QImage picture(32, 32, QImage::Format_ARGB32);
    picture.fill(Qt::darkGreen);
    for (int m = 0; m < Modules; ++m)
        picture.save(iconFolder().filePath(QStringLiteral("M%1.ico").arg(m)), "ICO");
    Connection c;
    c.open(cs);
    c.beginTrans();
    c.execute("INSERT INTO QD8TUserSetting (TUsSTUsrID, TUsSAlias, TUsSValue) VALUES (1, 'LanguageID', '0')");
    int id = 0;
    for (int m = 0; m < Modules; ++m) {
        const QString group = QStringLiteral("M%1").arg(m);
        c.execute(Sql("INSERT INTO QD8TCommandGroup (TCmGAlias, TCmGName, TCmGName2, TCmGIcon, TCmGSort) VALUES (") + quoted(group) + ", "
            + quoted(QStringLiteral("โมดูล %1").arg(m)) + ", " + quoted(QStringLiteral("Module %1").arg(m)) + ", "
            + quoted(group + QStringLiteral(".ico")) + ", " + m + ")");
        for (int i = 1; i <= CommandsPerModule; ++i) {
            const QString alias = QStringLiteral("%1C%2").arg(group).arg(i);
            c.execute(Sql("INSERT INTO QD8TCommand (TCmdID, TCmdAlias, TCmdName, TCmdName2, TCmdTCmGAlias, TCmdIcon, TCmdSort) VALUES (")
                + ++id + ", " + quoted(alias) + ", " + quoted(QStringLiteral("คำสั่ง&ที่ %1").arg(id)) + ", "
                + quoted(QStringLiteral("&Command %1").arg(id)) + ", " + quoted(group) + ", " + quoted(group + QStringLiteral(".ico")) + ", " + i + ")");
            c.execute(Sql("INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow) VALUES (1, ") + quoted(alias) + ", 1, 1)");
        }
    }
    c.commitTrans();
    c.execute("ANALYZE");
}

template <class Control>
void attach(Control& control, const BenchDatabase* db)
{
    control.setConnectionString(db->connectionString());
    control.setAppConnectionString(db->connectionString());
    control.setUserID(1);
    control.setIconPath(iconFolder().path());
}

void index(benchmark::State& state, const BenchDatabase* db)
{
    NUVDiagramIndex index;
    attach(index, db);
    index.resize(1200, 800);
    for (auto _ : state)
        index.Refresh();
    if (index.icons().size() != Modules)
        state.SkipWithError("the index does not hold every module");
}

void shortcuts(benchmark::State& state, const BenchDatabase* db)
{
    ShortCutBar bar;
    attach(bar, db);
    for (auto _ : state)
        bar.Refresh();
    if (bar.listView(CommandSet::Main)->count() != Modules * CommandsPerModule)
        state.SkipWithError("the shortcut bar does not hold the catalogue");
}

} // namespace

int main(int argc, char** argv)
{
    useOffscreenPlatform();
    QApplication app(argc, argv);
    quietOffscreenWarnings();
    return runOnEngines(argc, argv, fill, [](const EngineRun& run, std::vector<Ratio>& ratios) {
        registerOn(run, "shortcutbar_refresh", shortcuts, 5);
        registerOn(run, "index_refresh", index, 5);
        ratios.push_back({run.title + QStringLiteral(", NUVDiagramIndex::Refresh, 40 modules x 60 commands, against ShortCutBar::Refresh"),
            run.prefix + "index_refresh", run.prefix + "shortcutbar_refresh", 1.5});
    });
}
