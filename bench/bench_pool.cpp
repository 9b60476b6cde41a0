// 1,000 single-row lookups, each opening and closing its connection as the controls do,
// against the floor of one connection held open for all of them.
#include "BenchSupport.h"

#include "foundation/Connection.h"
#include "foundation/Recordset.h"

#include <QCoreApplication>

using namespace qd8;
using namespace qd8::bench;

namespace {

constexpr int Lookups = 1000;

void fill(const BenchDatabase& db)
{
    Connection c;
    c.open(db.connectionString());
    c.execute("CREATE TABLE QD8TBench (TBnID INTEGER PRIMARY KEY, TBnAlias VARCHAR(30), TBnName VARCHAR(100) COLLATE THAI)");
    c.beginTrans();
    for (int i = 0; i < Lookups; ++i)
        c.execute(Sql("INSERT INTO QD8TBench VALUES (") + i + ", " + quoted(QStringLiteral("CMD%1").arg(i)) + ", "
            + quoted(QStringLiteral("คำสั่งที่ %1").arg(i)) + ")");
    c.commitTrans();
}

QString lookup(Connection& c, int id)
{
    Recordset rs;
    rs.open(Sql("SELECT TBnName FROM QD8TBench WHERE TBnID=") + id, c);
    return rs.text(QStringLiteral("TBnName"));
}

void heldOpen(benchmark::State& state, const BenchDatabase* db)
{
    for (auto _ : state) {
        Connection c;
        c.open(db->connectionString());
        for (int i = 0; i < Lookups; ++i)
            benchmark::DoNotOptimize(lookup(c, i));
    }
}

void openPerLookup(benchmark::State& state, const BenchDatabase* db)
{
    for (auto _ : state) {
        for (int i = 0; i < Lookups; ++i) {
            Connection c;
            c.open(db->connectionString());
            benchmark::DoNotOptimize(lookup(c, i));
            c.close();
        }
    }
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    return runOnEngines(argc, argv, fill, [](const EngineRun& run, std::vector<Ratio>& ratios) {
        registerOn(run, "held_open", heldOpen, 5)->MinTime(0.3);
        registerOn(run, "open_per_lookup", openPerLookup, 5)->MinTime(0.3);
        ratios.push_back({run.title + QStringLiteral(", 1000 lookups opening per operation"), run.prefix + "open_per_lookup",
            run.prefix + "held_open", 1.2});
    });
}
