// The grid of a document list over a purchase-request header table of 1,000,000 rows x 12
// columns, on SQLite and (with a server) PostgreSQL:
//   (a) DataView::open to its first painted screen, 1,000,000 rows against 1,000 rows;
//   (b) the walk to the last row (open, read every row, go to the last, paint) against the
//       engine's C library reading every row of the same SELECT into QStrings;
//   (c) the peak memory of that walk, measured in a child process of this program.
// The SQLite database is kept beside the program between runs.
#include "BenchSupport.h"

#include "foundation/Connection.h"
#include "foundation/ConnectionPool.h"
#include "widgets/DataView.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QPixmap>
#include <QProcess>
#include <libpq-fe.h>
#include <sqlite3.h>
#include <cstdio>

using namespace qd8;
using namespace qd8::bench;

namespace {

constexpr int BigRows = 1000000;
constexpr int SmallRows = 1000;
const QString BigTable = QStringLiteral("QD8TBenchPR");
const QString SmallTable = QStringLiteral("QD8TBenchPRSmall");
const QString Fields = QStringLiteral(
    "TPRDNo,TPRDDate,TPRDDueDate,TPRDTBraCode,TPRDTDivCode,TPRDTEmpCode,TPRDDescription,TPRDAmount,TPRDVat,"
    "TPRDConfirmStatus,TPRDApproveStatus,TPRDCancelStatus");
const QString Captions = QStringLiteral(
    "เลขที่,วันที่,วันที่ต้องการ,สาขา,ฝ่าย,ผู้ขอซื้อ,รายละเอียด,จำนวนเงิน,ภาษี,ยืนยัน,อนุมัติ,ยกเลิก");
const QString Widths = QStringLiteral("1500,1200,1200,800,800,900,3600,1400,1200,700,700,700");
const QString Types = QStringLiteral("0,3,3,0,0,0,0,2,2,4,4,4");
constexpr int ScreenWidth = 1000;
constexpr int ScreenHeight = 700;
// Bump when the table's shape or contents change: the kept SQLite file is made again.
constexpr int SqliteFileVersion = 1;

// Where one engine's tables live.
struct Target {
    QString title;            // "SQLite", "PostgreSQL"
    QString prefix;           // benchmark names
    QString connectionString;
    QByteArray rawAddress;    // the file for sqlite3, the conninfo for libpq
    bool postgres = false;
};

QString selectOf(const QString& table)
{
    return QStringLiteral("SELECT ") + Fields + QStringLiteral(" FROM ") + table + QStringLiteral(" ORDER BY TPRDNo DESC");
}

QString countOf(const QString& table)
{
    return QStringLiteral("SELECT COUNT(*) FROM ") + table;
}

void createTables(Connection& c)
{
    for (const QString& table : {BigTable, SmallTable}) {
        c.execute(Sql(QStringLiteral("CREATE TABLE %1 (TPRDNo VARCHAR(20) PRIMARY KEY, TPRDDate DATE, TPRDDueDate DATE, "
                                     "TPRDTBraCode VARCHAR(10), TPRDTDivCode VARCHAR(10), TPRDTEmpCode VARCHAR(10), "
                                     "TPRDDescription VARCHAR(200), TPRDAmount NUMERIC(19,4), TPRDVat NUMERIC(19,4), "
                                     "TPRDConfirmStatus INTEGER, TPRDApproveStatus INTEGER, TPRDCancelStatus INTEGER)")
                          .arg(table)));
    }
}

// One statement fills the big table; the small one takes its first rows.
void fill(Connection& c, bool postgres)
{
    createTables(c);
    const QString rows = postgres
        ? QStringLiteral("SELECT 'PR' || lpad(n::text, 7, '0'), DATE '2025-01-01' + (n % 365), DATE '2025-01-31' + (n % 365), "
                         "'B0' || (n % 5), 'D' || (n % 20), 'E' || (n % 300), 'ขอซื้อวัสดุสำนักงานประจำเดือน ' || n, "
                         "round(((n * 137) % 100000) * 1.01, 2), round(((n * 137) % 100000) * 0.07, 2), n % 2, n % 3, "
                         "CASE WHEN n % 50 = 0 THEN 1 ELSE 0 END FROM generate_series(1, %1) AS g(n)")
        : QStringLiteral("WITH RECURSIVE g(n) AS (SELECT 1 UNION ALL SELECT n + 1 FROM g WHERE n < %1) "
                         "SELECT printf('PR%07d', n), date('2025-01-01', '+' || (n % 365) || ' days'), "
                         "date('2025-01-31', '+' || (n % 365) || ' days'), 'B0' || (n % 5), 'D' || (n % 20), 'E' || (n % 300), "
                         "'ขอซื้อวัสดุสำนักงานประจำเดือน ' || n, round(((n * 137) % 100000) * 1.01, 2), "
                         "round(((n * 137) % 100000) * 0.07, 2), n % 2, n % 3, CASE WHEN n % 50 = 0 THEN 1 ELSE 0 END FROM g");
    c.beginTrans();
    c.execute(Sql(QStringLiteral("INSERT INTO %1 ").arg(BigTable) + rows.arg(BigRows)));
    c.execute(Sql(QStringLiteral("INSERT INTO %1 SELECT * FROM %2 WHERE TPRDNo <= 'PR%3'")
                      .arg(SmallTable, BigTable)
                      .arg(SmallRows, 7, 10, QLatin1Char('0'))));
    c.commitTrans();
}

// The SQLite file of an earlier run when it is complete and of this version; else made anew.
Target sqliteTarget()
{
    const QString file = QDir(QCoreApplication::applicationDirPath())
                             .filePath(QStringLiteral("bench_documentlist.v%1.dat").arg(SqliteFileVersion));
    Target t{QStringLiteral("SQLite"), QStringLiteral("sqlite/"), QStringLiteral("Driver=SQLite;Data Source=") + file,
        QFile::encodeName(file), false};
    {
        sqlite3* handle = nullptr;
        bool ready = false;
        if (QFile::exists(file) && sqlite3_open_v2(t.rawAddress.constData(), &handle, SQLITE_OPEN_READONLY, nullptr) == SQLITE_OK) {
            sqlite3_stmt* stmt = nullptr;
            ready = sqlite3_prepare_v2(handle, "SELECT n FROM QD8TBenchReady", -1, &stmt, nullptr) == SQLITE_OK
                && sqlite3_step(stmt) == SQLITE_ROW && sqlite3_column_int(stmt, 0) == BigRows;
            sqlite3_finalize(stmt);
        }
        sqlite3_close(handle);
        if (ready)
            return t;
    }
    for (const char* suffix : {"", "-wal", "-shm"})
        QFile::remove(file + QLatin1String(suffix));
    std::printf("Making %s (kept for the next runs)...\n", qPrintable(file));
    std::fflush(stdout);
    Connection c;
    c.open(t.connectionString + QStringLiteral(";Create=yes"));
    fill(c, false);
    c.execute(Sql(QStringLiteral("CREATE TABLE QD8TBenchReady (n INTEGER)")));
    c.execute(Sql(QStringLiteral("INSERT INTO QD8TBenchReady VALUES (%1)").arg(BigRows)));
    c.close();
    ConnectionPool::instance().clear();
    return t;
}

Target postgresTarget(const BenchDatabase& db)
{
    std::printf("Filling the PostgreSQL database %s...\n", qPrintable(db.name()));
    std::fflush(stdout);
    Connection c;
    c.open(db.connectionString());
    fill(c, true);
    c.execute(Sql("VACUUM ANALYZE"));
    return {QStringLiteral("PostgreSQL"), QStringLiteral("postgres/"), db.connectionString(),
        ("dbname=" + db.name()).toUtf8(), true};
}

void describe(DataView& view)
{
    view.setColumns(Fields, Captions, Widths, Types);
    view.setKeyFields({QStringLiteral("TPRDNo")});
    view.resize(ScreenWidth, ScreenHeight);
    view.show();
    QCoreApplication::processEvents();
}

void open(DataView& view, const Target& target, const QString& table)
{
    view.open(Sql(selectOf(table)), Sql(countOf(table)), target.connectionString);
}

// Lets the background count come back before the view goes, so that counts of earlier
// iterations do not run beside later ones.
bool awaitTotal(const DataView& view)
{
    QElapsedTimer clock;
    clock.start();
    while (view.totalRows() < 0 && clock.elapsed() < 60000)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 20);
    return view.totalRows() >= 0;
}

void firstScreen(benchmark::State& state, const Target& target, const QString& table, int rows)
{
    for (auto _ : state) {
        state.PauseTiming();
        auto view = std::make_unique<DataView>();
        describe(*view);
        state.ResumeTiming();
        open(*view, target, table);
        benchmark::DoNotOptimize(view->grab().width());  // lays the view out and paints it
        state.PauseTiming();
        if (!awaitTotal(*view) || view->totalRows() != rows)
            state.SkipWithError("the count did not come back right");
        view.reset();
        state.ResumeTiming();
    }
}

void walkToLastRow(benchmark::State& state, const Target& target)
{
    for (auto _ : state) {
        state.PauseTiming();
        auto view = std::make_unique<DataView>();
        describe(*view);
        state.ResumeTiming();
        open(*view, target, BigTable);
        if (!view->fetchAll())
            state.SkipWithError("reading failed");
        view->setCurrentRow(view->fetchedRows() - 1);
        benchmark::DoNotOptimize(view->grab().width());
        state.PauseTiming();
        if (view->fetchedRows() != BigRows)
            state.SkipWithError("not every row was read");
        awaitTotal(*view);
        view.reset();
        state.ResumeTiming();
    }
}

void rawReadAll(benchmark::State& state, const Target& target)
{
    const QByteArray sql = selectOf(BigTable).toUtf8();
    if (target.postgres) {
        PGconn* conn = PQconnectdb(target.rawAddress.constData());
        for (auto _ : state) {
            if (readAllLibpq(conn, sql.constData()) != BigRows)
                state.SkipWithError("libpq read too few rows");
        }
        PQfinish(conn);
        return;
    }
    sqlite3* handle = nullptr;
    sqlite3_open_v2(target.rawAddress.constData(), &handle, SQLITE_OPEN_READONLY, nullptr);
    for (auto _ : state) {
        if (readAllSqlite(handle, sql.constData()) != BigRows)
            state.SkipWithError("sqlite3 read too few rows");
    }
    sqlite3_close(handle);
}

void define(const Target& t, std::vector<Ratio>& ratios)
{
    const auto name = [&t](const char* what) { return (t.prefix + QLatin1String(what)).toStdString(); };
    benchmark::RegisterBenchmark(name("first_screen_1000000").c_str(), firstScreen, t, BigTable, BigRows)
        ->Unit(benchmark::kMillisecond)->Iterations(10)->Repetitions(5);
    benchmark::RegisterBenchmark(name("first_screen_1000").c_str(), firstScreen, t, SmallTable, SmallRows)
        ->Unit(benchmark::kMillisecond)->Iterations(10)->Repetitions(5);
    benchmark::RegisterBenchmark(name("walk_to_last_row_1000000").c_str(), walkToLastRow, t)
        ->Unit(benchmark::kMillisecond)->Iterations(1)->Repetitions(3);
    benchmark::RegisterBenchmark(name("raw_read_all_1000000").c_str(), rawReadAll, t)
        ->Unit(benchmark::kMillisecond)->Iterations(1)->Repetitions(3);
    ratios.push_back({t.title + QStringLiteral(" DataView to first painted screen, 1000000 rows vs 1000 rows"),
        t.prefix + QStringLiteral("first_screen_1000000"), t.prefix + QStringLiteral("first_screen_1000"), 1.5});
    ratios.push_back({t.title + QStringLiteral(" DataView walk to the last of 1000000 rows vs ")
            + (t.postgres ? QStringLiteral("libpq") : QStringLiteral("sqlite3")) + QStringLiteral(" reading them into QStrings"),
        t.prefix + QStringLiteral("walk_to_last_row_1000000"), t.prefix + QStringLiteral("raw_read_all_1000000"), 1.5});
}

qint64 statusKilobytes(const char* field)
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return -1;
    const QByteArray prefix = QByteArray(field) + ':';
    for (const QByteArray& line : status.readAll().split('\n')) {
        if (line.startsWith(prefix))
            return line.mid(prefix.size()).trimmed().split(' ').value(0).toLongLong();
    }
    return -1;
}

// The child's part of (c): a fresh process shows the view, then walks to the last row.
// Prints the resident memory before the walk and the peak after it, in kilobytes.
int walkInChild(const QString& connectionString)
{
    DataView view;
    describe(view);
    const qint64 baseline = statusKilobytes("VmRSS");
    view.open(Sql(selectOf(BigTable)), Sql(countOf(BigTable)), connectionString);
    const bool read = view.fetchAll();
    view.setCurrentRow(view.fetchedRows() - 1);
    view.grab();
    awaitTotal(view);
    std::printf("%lld %lld %d\n", baseline, statusKilobytes("VmHWM"), read ? view.fetchedRows() : -1);
    return 0;
}

QString peakMemoryOfWalk(const Target& t)
{
    QProcess child;
    child.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--walk"), t.connectionString});
    child.waitForFinished(600000);
    const QList<QByteArray> figures = child.readAllStandardOutput().trimmed().split(' ');
    const QString title = t.title + QStringLiteral(" peak memory of the walk to the last of 1000000 rows");
    if (figures.size() != 3 || figures[2].toInt() != BigRows)
        return title + QStringLiteral(": not measured (%1)").arg(QString::fromLocal8Bit(child.readAllStandardError()).trimmed());
    const double baselineMb = figures[0].toLongLong() / 1024.0;
    const double walkMb = (figures[1].toLongLong() - figures[0].toLongLong()) / 1024.0;
    return title + QStringLiteral(": %1 MB above the %2 MB before it (target <= 300 MB)%3")
                       .arg(walkMb, 0, 'f', 1)
                       .arg(baselineMb, 0, 'f', 1)
                       .arg(walkMb <= 300 ? QString() : QStringLiteral("  OVER TARGET"));
}

} // namespace

int main(int argc, char** argv)
{
    useOffscreenPlatform();
    QApplication app(argc, argv);
    quietOffscreenWarnings();
    if (argc == 3 && qstrcmp(argv[1], "--walk") == 0)
        return walkInChild(QString::fromUtf8(argv[2]));

    std::vector<Ratio> ratios;
    QStringList memory;
    const Target sqlite = sqliteTarget();
    define(sqlite, ratios);
    memory << peakMemoryOfWalk(sqlite);
    std::unique_ptr<BenchDatabase> postgresDb = BenchDatabase::postgres();
    if (postgresDb) {
        const Target postgres = postgresTarget(*postgresDb);
        define(postgres, ratios);
        memory << peakMemoryOfWalk(postgres);
    }
    const int rc = runAndReport(argc, argv, ratios);
    for (const QString& line : std::as_const(memory))
        std::printf("%s\n", qPrintable(line));
    postgresDb.reset();
    return rc;
}
