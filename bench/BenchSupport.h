#pragma once

#include "foundation/Services.h"

#include <QString>
#include <benchmark/benchmark.h>
#include <functional>
#include <memory>
#include <vector>

struct sqlite3;
struct pg_conn;

namespace qd8::bench {

// The floors' reading: every row and column of a SELECT as QStrings, through the engine's
// own C API. Returns the number of rows.
int readAllSqlite(sqlite3* handle, const char* sql);
int readAllLibpq(pg_conn* connection, const char* sql);

// A benchmark database that lives for the run: a SQLite file in a temporary folder, or a
// scratch PostgreSQL database on the server of the PG* variables (skipped without one).
class BenchDatabase {
public:
    static std::unique_ptr<BenchDatabase> sqlite();
    static std::unique_ptr<BenchDatabase> postgres();  // null without a server
    ~BenchDatabase();
    const QString& connectionString() const { return m_connectionString; }
    const QString& name() const { return m_name; }
    bool isPostgres() const { return m_postgres; }

private:
    QString m_connectionString;
    QString m_name;
    QString m_folder;
    bool m_postgres = false;
};

// The clerk of the editor benchmarks: answers Yes to every confirmation, reads every
// message, and stops the run on an error message.
class AnswerYes : public MessageService {
public:
    void information(const QString&, const QString&) override {}
    void critical(const QString& title, const QString& text) override;
    bool question(const QString&, const QString&) override { return true; }
    SaveAnswer askToSave(const QString&, const QString&) override { return SaveAnswer::Save; }
};

// A measured figure against its floor.
struct Ratio {
    QString title;
    QString ours;
    QString floor;
    double target;
};

// The floor of a control that reads several statements: every row of each, per iteration,
// through the engine's C API on a connection of its own.
void rawReadEach(benchmark::State& state, const BenchDatabase& db, const std::vector<const char*>& statements);

// Runs the registered benchmarks (give them Repetitions: the fastest counts), then prints
// one line per ratio:
//   title: ours 12.3 ms, floor 10.1 ms, ratio 1.22 (target <= 2.0)
int runAndReport(int argc, char** argv, const std::vector<Ratio>& ratios);

// Widget benchmarks: the offscreen platform unless another is named (before the
// QApplication), and its size-hint warning kept out of the figures (after it).
void useOffscreenPlatform();
void quietOffscreenWarnings();

// One engine's share of a data benchmark: its database (already holding what `fill` put
// there) and the prefix its benchmark names take ("sqlite/", "postgres/").
struct EngineRun {
    BenchDatabase* db;
    QString prefix;
    QString title;  // "SQLite", "PostgreSQL"
};

// Creates a database per engine (PostgreSQL only with a server), fills it, lets `define`
// register the benchmarks and ratios of each, runs them and reports.
int runOnEngines(int argc, char** argv, const std::function<void(BenchDatabase&)>& fill,
    const std::function<void(const EngineRun&, std::vector<Ratio>&)>& define);

// Registers fn(state, db) under prefix + name, timed in milliseconds, `repetitions` times.
benchmark::internal::Benchmark* registerOn(const EngineRun& run, const char* name,
    void (*fn)(benchmark::State&, const BenchDatabase*), int repetitions);

} // namespace qd8::bench
