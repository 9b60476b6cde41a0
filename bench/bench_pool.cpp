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
std::unique_ptr<BenchDatabase> sqliteDb, postgresDb;

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
    std::vector<Ratio> ratios;
    sqliteDb = BenchDatabase::sqlite();
    fill(*sqliteDb);
    benchmark::RegisterBenchmark("sqlite/held_open", heldOpen, sqliteDb.get())->Unit(benchmark::kMillisecond)->MinTime(0.3)->Repetitions(5);
    benchmark::RegisterBenchmark("sqlite/open_per_lookup", openPerLookup, sqliteDb.get())->Unit(benchmark::kMillisecond)->MinTime(0.3)->Repetitions(5);
    ratios.push_back({"SQLite, 1000 lookups opening per operation", "sqlite/open_per_lookup", "sqlite/held_open", 1.2});
    postgresDb = BenchDatabase::postgres();
    if (postgresDb) {
        fill(*postgresDb);
        benchmark::RegisterBenchmark("postgres/held_open", heldOpen, postgresDb.get())->Unit(benchmark::kMillisecond)->MinTime(0.3)->Repetitions(5);
        benchmark::RegisterBenchmark("postgres/open_per_lookup", openPerLookup, postgresDb.get())->Unit(benchmark::kMillisecond)->MinTime(0.3)->Repetitions(5);
        ratios.push_back({"PostgreSQL, 1000 lookups opening per operation", "postgres/open_per_lookup", "postgres/held_open", 1.2});
    }
    const int rc = runAndReport(argc, argv, ratios);
    sqliteDb.reset();
    postgresDb.reset();
    return rc;
}
