// A static recordset reading 100,000 rows x 12 columns (text, dates, integers, Thai names,
// money), against the engine's own C library reading the same rows into QStrings.
#include "BenchSupport.h"

#include "foundation/Connection.h"
#include "foundation/Recordset.h"

#include <QCoreApplication>
#include <QList>
#include <libpq-fe.h>
#include <sqlite3.h>

using namespace qd8;
using namespace qd8::bench;

namespace {

constexpr int Rows = 100000;
const char* const Select = "SELECT * FROM QD8TBenchDoc";

void fill(const BenchDatabase& db)
{
    Connection c;
    c.open(db.connectionString());
    c.execute("CREATE TABLE QD8TBenchDoc (TBdID INTEGER PRIMARY KEY, TBdCode VARCHAR(20), TBdName VARCHAR(100) COLLATE THAI, "
              "TBdName2 VARCHAR(100), TBdDate DATE, TBdDueDate DATE, TBdQty INTEGER, TBdStatus INTEGER, "
              "TBdAmount NUMERIC(19,4), TBdVat NUMERIC(19,4), TBdRemark VARCHAR(200), TBdFlag1 INTEGER)");
    const QString rows = db.isPostgres()
        ? QStringLiteral("SELECT n, 'INV' || n, 'ลูกค้า บริษัท ไทยรุ่งเรือง ' || n, 'Customer Thai Rung Ruang ' || n, "
                         "DATE '2026-01-01' + (n % 365), DATE '2026-02-01' + (n % 365), n % 97, n % 11, "
                         "(n * 12.3456)::numeric(19,4), (n * 0.8642)::numeric(19,4), 'หมายเหตุ ' || n, 1 "
                         "FROM generate_series(1, %1) AS g(n)")
        : QStringLiteral("WITH RECURSIVE g(n) AS (SELECT 1 UNION ALL SELECT n + 1 FROM g WHERE n < %1) "
                         "SELECT n, 'INV' || n, 'ลูกค้า บริษัท ไทยรุ่งเรือง ' || n, 'Customer Thai Rung Ruang ' || n, "
                         "date('2026-01-01', '+' || (n % 365) || ' days'), date('2026-02-01', '+' || (n % 365) || ' days'), "
                         "n % 97, n % 11, round(n * 12.3456, 4), round(n * 0.8642, 4), 'หมายเหตุ ' || n, 1 FROM g");
    c.execute(Sql(QStringLiteral("INSERT INTO QD8TBenchDoc ") + rows.arg(Rows)));
}

void recordsetByIndex(benchmark::State& state, const BenchDatabase* db)
{
    Connection c;
    c.open(db->connectionString());
    for (auto _ : state) {
        Recordset rs;
        rs.open(Select, c);
        const int fields = rs.fieldCount();
        for (; !rs.eof(); rs.moveNext())
            for (int f = 0; f < fields; ++f)
                benchmark::DoNotOptimize(rs.field(f));
    }
}

void recordsetByName(benchmark::State& state, const BenchDatabase* db)
{
    const QStringList names = {"TBdID", "TBdCode", "TBdName", "TBdName2", "TBdDate", "TBdDueDate", "TBdQty", "TBdStatus",
                               "TBdAmount", "TBdVat", "TBdRemark", "TBdFlag1"};
    Connection c;
    c.open(db->connectionString());
    for (auto _ : state) {
        Recordset rs;
        rs.open(Select, c);
        for (; !rs.eof(); rs.moveNext())
            for (const QString& name : names)
                benchmark::DoNotOptimize(rs.field(name));
    }
}

void rawSqlite(benchmark::State& state, const BenchDatabase* db)
{
    sqlite3* handle = nullptr;
    sqlite3_open_v2(db->name().toUtf8().constData(), &handle, SQLITE_OPEN_READONLY, nullptr);
    for (auto _ : state)
        readAllSqlite(handle, Select);
    sqlite3_close(handle);
}

void rawLibpq(benchmark::State& state, const BenchDatabase* db)
{
    PGconn* conn = PQconnectdb(("dbname=" + db->name()).toUtf8().constData());
    for (auto _ : state)
        readAllLibpq(conn, Select);
    PQfinish(conn);
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    return runOnEngines(argc, argv, fill, [](const EngineRun& run, std::vector<Ratio>& ratios) {
        const bool postgres = run.db->isPostgres();
        const QString floor = run.prefix + (postgres ? "raw_libpq" : "raw_c_api");
        registerOn(run, postgres ? "raw_libpq" : "raw_c_api", postgres ? rawLibpq : rawSqlite, 3);
        registerOn(run, "recordset", recordsetByIndex, 3);
        registerOn(run, "recordset_by_name", recordsetByName, 3);
        ratios.push_back({run.title + QStringLiteral(", static recordset 100000 x 12"), run.prefix + "recordset", floor, 2.0});
        ratios.push_back({run.title + QStringLiteral(", same, fields by name"), run.prefix + "recordset_by_name", floor, 2.0});
    });
}
