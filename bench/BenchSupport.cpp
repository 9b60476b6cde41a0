#include "BenchSupport.h"

#include "foundation/Connection.h"
#include "foundation/ConnectionPool.h"
#include "foundation/ThaiCollation.h"

#include <QCoreApplication>
#include <QDir>
#include <QTemporaryDir>
#include <libpq-fe.h>
#include <sqlite3.h>
#include <cstdio>
#include <map>

namespace qd8::bench {

void AnswerYes::critical(const QString& title, const QString& text)
{
    qFatal("%s: %s", qPrintable(title), qPrintable(text));
}

std::unique_ptr<BenchDatabase> BenchDatabase::sqlite()
{
    auto db = std::make_unique<BenchDatabase>();
    QTemporaryDir dir;
    dir.setAutoRemove(false);
    db->m_folder = dir.path();
    db->m_name = dir.filePath(QStringLiteral("bench.dat"));
    db->m_connectionString = QStringLiteral("Driver=SQLite;Data Source=") + db->m_name;
    Connection create;
    create.open(db->m_connectionString + QStringLiteral(";Create=yes"));
    return db;
}

std::unique_ptr<BenchDatabase> BenchDatabase::postgres()
{
    if (qEnvironmentVariableIsEmpty("PGHOST") && qEnvironmentVariableIsEmpty("PGPORT"))
        return nullptr;
    auto db = std::make_unique<BenchDatabase>();
    db->m_postgres = true;
    db->m_name = QStringLiteral("bench_%1").arg(QCoreApplication::applicationPid());
    db->m_connectionString = QStringLiteral("Driver=PostgreSQL;Database=") + db->m_name;
    Connection admin;
    admin.open(QStringLiteral("Driver=PostgreSQL;Database=postgres"));
    admin.execute(Sql(QStringLiteral("DROP DATABASE IF EXISTS ") + db->m_name));
    admin.execute(Sql(QStringLiteral("CREATE DATABASE ") + db->m_name + QStringLiteral(" TEMPLATE template0 ENCODING 'UTF8'")));
    Connection fresh;
    fresh.open(db->m_connectionString);
    fresh.execute("CREATE COLLATION IF NOT EXISTS thai (provider = icu, locale = 'th-TH')");
    return db;
}

BenchDatabase::~BenchDatabase()
{
    ConnectionPool::instance().clear();
    if (m_postgres) {
        Connection admin;
        admin.open(QStringLiteral("Driver=PostgreSQL;Database=postgres"));
        admin.execute(Sql(QStringLiteral("DROP DATABASE IF EXISTS ") + m_name + QStringLiteral(" WITH (FORCE)")));
    } else if (!m_folder.isEmpty()) {
        QDir(m_folder).removeRecursively();
    }
}

namespace {

class Collector : public benchmark::ConsoleReporter {
public:
    std::map<std::string, double> milliseconds;
    void ReportRuns(const std::vector<Run>& runs) override
    {
        // The fastest repetition: the least disturbed by whatever else the machine is doing.
        for (const Run& run : runs) {
            if (run.error_occurred || run.run_type != Run::RT_Iteration)
                continue;
            const double ms = run.GetAdjustedRealTime() * 1e3 / benchmark::GetTimeUnitMultiplier(run.time_unit);
            auto [it, inserted] = milliseconds.emplace(run.run_name.function_name, ms);
            if (!inserted && ms < it->second)
                it->second = ms;
        }
        ConsoleReporter::ReportRuns(runs);
    }
};

} // namespace

int runAndReport(int argc, char** argv, const std::vector<Ratio>& ratios)
{
    // Repetitions of ours and of the floor take turns, so a slow moment of the machine (or
    // of the database server) does not fall on one side only.
    std::vector<char*> arguments(argv, argv + argc);
    char interleave[] = "--benchmark_enable_random_interleaving=true";
    arguments.insert(arguments.begin() + 1, interleave);
    int count = int(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    Collector collector;
    benchmark::RunSpecifiedBenchmarks(&collector);
    std::printf("\n");
    for (const Ratio& r : ratios) {
        const auto ours = collector.milliseconds.find(r.ours.toStdString());
        const auto floor = collector.milliseconds.find(r.floor.toStdString());
        if (ours == collector.milliseconds.end() || floor == collector.milliseconds.end()) {
            std::printf("%s: not measured\n", qPrintable(r.title));
            continue;
        }
        const double ratio = ours->second / floor->second;
        std::printf("%s: ours %.2f ms, floor %.2f ms, ratio %.2f (target <= %.1f)%s\n", qPrintable(r.title), ours->second,
            floor->second, ratio, r.target, ratio <= r.target ? "" : "  OVER TARGET");
    }
    benchmark::Shutdown();
    return 0;
}

int runOnEngines(int argc, char** argv, const std::function<void(BenchDatabase&)>& fill,
    const std::function<void(const EngineRun&, std::vector<Ratio>&)>& define)
{
    std::vector<Ratio> ratios;
    std::unique_ptr<BenchDatabase> sqlite = BenchDatabase::sqlite();
    fill(*sqlite);
    define({sqlite.get(), QStringLiteral("sqlite/"), QStringLiteral("SQLite")}, ratios);
    std::unique_ptr<BenchDatabase> postgres = BenchDatabase::postgres();
    if (postgres) {
        fill(*postgres);
        define({postgres.get(), QStringLiteral("postgres/"), QStringLiteral("PostgreSQL")}, ratios);
    }
    return runAndReport(argc, argv, ratios);
}

benchmark::internal::Benchmark* registerOn(const EngineRun& run, const char* name,
    void (*fn)(benchmark::State&, const BenchDatabase*), int repetitions)
{
    return benchmark::RegisterBenchmark((run.prefix + QLatin1String(name)).toStdString().c_str(), fn,
        static_cast<const BenchDatabase*>(run.db))
        ->Unit(benchmark::kMillisecond)
        ->Repetitions(repetitions);
}

int readAllSqlite(sqlite3* handle, const char* sql)
{
    sqlite3_stmt* stmt = nullptr;
    sqlite3_prepare_v2(handle, sql, -1, &stmt, nullptr);
    const int columns = sqlite3_column_count(stmt);
    QList<QString> cells;
    int rows = 0;
    for (; sqlite3_step(stmt) == SQLITE_ROW; ++rows)
        for (int c = 0; c < columns; ++c)
            cells.append(QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(stmt, c)), sqlite3_column_bytes(stmt, c)));
    sqlite3_finalize(stmt);
    benchmark::DoNotOptimize(cells.size());
    return rows;
}

int readAllLibpq(pg_conn* connection, const char* sql)
{
    PGresult* result = PQexec(connection, sql);
    const int rows = PQntuples(result), columns = PQnfields(result);
    QList<QString> cells;
    cells.reserve(qsizetype(rows) * columns);
    for (int r = 0; r < rows; ++r)
        for (int c = 0; c < columns; ++c)
            cells.append(QString::fromUtf8(PQgetvalue(result, r, c), PQgetlength(result, r, c)));
    PQclear(result);
    benchmark::DoNotOptimize(cells.size());
    return rows;
}

void rawReadEach(benchmark::State& state, const BenchDatabase& db, const std::vector<const char*>& statements)
{
    if (db.isPostgres()) {
        PGconn* conn = PQconnectdb(("dbname=" + db.name()).toUtf8().constData());
        for (auto _ : state)
            for (const char* sql : statements)
                readAllLibpq(conn, sql);
        PQfinish(conn);
        return;
    }
    sqlite3* handle = nullptr;
    sqlite3_open_v2(db.name().toUtf8().constData(), &handle, SQLITE_OPEN_READONLY, nullptr);
    registerThaiCollation(handle);
    for (auto _ : state)
        for (const char* sql : statements)
            readAllSqlite(handle, sql);
    sqlite3_close(handle);
}

namespace {

QtMessageHandler defaultHandler = nullptr;

void quietHandler(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (!message.contains(QLatin1String("propagateSizeHints")))
        defaultHandler(type, context, message);
}

} // namespace

void useOffscreenPlatform()
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
}

void quietOffscreenWarnings()
{
    defaultHandler = qInstallMessageHandler(quietHandler);
}

} // namespace qd8::bench
