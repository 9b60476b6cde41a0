// The voucher panel on a voucher of 1,000 lines: loading it (FillData) against the raw C
// API reading the same view rows; saving it again (UpdateGL8 in EDIT) against the raw C API
// running the same statements in one transaction (the stamp check, the four deletes, the
// header's key SELECT and INSERT, per line the key SELECT and INSERT, the stamp read back);
// and the totals after one cell edit (SumColGrid1) against summing 1,000 Currency values
// already in memory.
#include "BenchSupport.h"

#include "accounting/GLControl.h"
#include "database/DataObject.h"
#include "database/Schema.h"
#include "foundation/Connection.h"
#include "foundation/ThaiCollation.h"
#include "widgets/GridEditor.h"

#include <QApplication>
#include <libpq-fe.h>
#include <sqlite3.h>

using namespace qd8;
using namespace qd8::bench;

namespace {

constexpr int Lines = 1000;
const char* Number = "JV26110001";
const char* Select = "SELECT * FROM QD8VGLTrans WHERE TGLTNo='JV26110001' ORDER BY TGTSLn";

void fill(const BenchDatabase& db)
{
    const QString cs = db.connectionString();
    Schema::create(cs, DatabaseRole::CompanyData);
    Connection c;
    c.open(cs);
    c.execute("INSERT INTO QD8TGLBook (TGLBCode, TGLBName) VALUES ('JV', 'สมุดรายวันทั่วไป')");
    c.execute("INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel) VALUES ('1100', 'เงินสด', 'Cash', 2)");
    c.execute("INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel) VALUES ('4100', 'รายได้', 'Sales', 2)");
    GLControl gl;
    gl.SetFirst(nullptr, std::make_shared<DbDataObject>(cs, QString(), 1, QStringLiteral("SOMCHAI")), nullptr, nullptr, {});
    gl.setGLBook("JV");
    gl.SpeedProcess2(true);
    for (int i = 0; i < Lines; ++i)
        gl.FillLine(i % 2 ? "4100" : "1100", i % 2 == 0, Currency::fromRaw(1000000 + i / 2 * 100));
    gl.SpeedProcess2(false);
    bool detailOnly = false;
    gl.UpdateGL8(QDate(2026, 11, 24), {}, {}, {}, {}, nullptr, QStringLiteral("ค่าขาย"), 0, {}, {}, {}, {}, {}, {}, 0, 0, detailOnly);
    c.execute("ANALYZE");
}

std::unique_ptr<GLControl> panel(const BenchDatabase* db)
{
    auto gl = std::make_unique<GLControl>();
    gl->SetFirst(nullptr, std::make_shared<DbDataObject>(db->connectionString(), QString(), 1, QStringLiteral("SOMCHAI")), nullptr,
        nullptr, {});
    return gl;
}

void load(benchmark::State& state, const BenchDatabase* db)
{
    auto gl = panel(db);
    for (auto _ : state)
        gl->FillData(Number);
    if (gl->grid()->Rows() != Lines)
        state.SkipWithError("the voucher does not hold its lines");
}

void save(benchmark::State& state, const BenchDatabase* db)
{
    auto gl = panel(db);
    gl->FillData(Number);
    gl->setRUNMODE("EDIT");
    bool detailOnly = false;
    for (auto _ : state)
        if (gl->UpdateGL8(QDate(2026, 11, 24), {}, {}, {}, {}, nullptr, {}, 0, {}, {}, {}, {}, {}, {}, 0, 0, detailOnly) != Number)
            state.SkipWithError("the save failed");
}

void totals(benchmark::State& state, const BenchDatabase* db)
{
    auto gl = panel(db);
    gl->FillData(Number);
    gl->SumColGrid1();
    qint64 cent = 0;
    for (auto _ : state) {
        gl->grid()->SetValue(500, GLControl::ColDebit, QVariant::fromValue(Currency::fromRaw(1000000 + (++cent % 2) * 100)));
        gl->SumColGrid1();
    }
    benchmark::DoNotOptimize(gl->GETSumDebit());
}

void inMemorySum(benchmark::State& state, const BenchDatabase*)
{
    std::vector<Currency> amounts(Lines);
    for (int i = 0; i < Lines; ++i)
        amounts[i] = Currency::fromRaw(1000000 + i * 100);
    for (auto _ : state) {
        Currency sum;
        for (const Currency& a : amounts)
            sum += a;
        benchmark::DoNotOptimize(sum);
    }
}

// The save's statements, as the floor runs them: texts composed per voucher and line, the
// values bound.
struct SaveStatements {
    static QByteArray line(int n) { return "SELECT * FROM QD8TGLTransSub WHERE TGTSTGLTNo = 'JV26110001' AND TGTSLn = " + QByteArray::number(n); }
    static constexpr const char* Before[] = {"UPDATE QD8TGLTrans SET TGLTRevision=TGLTRevision WHERE TGLTNo='JV26110001'",
        "SELECT TGLTFlag3, TGLTRevision FROM QD8TGLTrans WHERE TGLTNo='JV26110001'",
        "DELETE FROM QD8TGLTransSub WHERE TGTSTGLTNo='JV26110001'", "DELETE FROM QD8TGLTrans WHERE TGLTNo='JV26110001'",
        "DELETE FROM QD8TGLTransSub WHERE TGTSTGLTNo='JV26110001'", "DELETE FROM QD8TGLTrans WHERE TGLTNo='JV26110001'",
        "SELECT * FROM QD8TGLTrans WHERE TGLTNo='JV26110001'"};
    static constexpr const char* Header = "INSERT INTO QD8TGLTrans (TGLTNo, TGLTDate, TGLTTGLBCode, TGLTMode, TGLTDescription, "
        "TGLTInputSource, TGLTEditCode, TGLTEditBy, TGLTRevision, TGLTEditDate, TGLTAmount, TGLTConfirmStatus, TGLTFlag3) "
        "VALUES ('JV26110001', '2026-11-24', 'JV', 1, 'x', 'JV', '1', 'SOMCHAI', 0, '2026-11-24 10:00:00', 1000, 0, '2026-11-24 10:00:00')";
    static constexpr const char* Insert = "INSERT INTO QD8TGLTransSub (TGTSTGLTNo, TGTSBlock, TGTSLn, TGTSInputSource, TGTSStatus, "
        "TGTSTACCCode, TGTSDebit, TGTSCredit, TGTSName, TGTSName2, TGTSDescription, TGTSTACPTACYID, TGTSTACPID, TGTSBalanceFlag, "
        "TGTSFlag1, TGTSFlag3) VALUES ('JV26110001', 0, %1, 'JV', 0, '1100', 100, 0, 'เงินสด', 'Cash', 'x', 2026, 11, 0, 1, "
        "'2026-11-24 10:00:00')";
    static constexpr const char* After = "SELECT TGLTFlag3 FROM QD8TGLTrans WHERE TGLTNo='JV26110001'";
};

void rawSqliteLoad(benchmark::State& state, const BenchDatabase* db)
{
    sqlite3* handle = nullptr;
    sqlite3_open_v2(db->name().toUtf8().constData(), &handle, SQLITE_OPEN_READONLY, nullptr);
    registerThaiCollation(handle);
    for (auto _ : state)
        readAllSqlite(handle, Select);
    sqlite3_close(handle);
}

// The save's statements in its order, as the raw floors send them.
template <typename Run>
void runSaveStatements(const Run& run)
{
    for (const char* sql : SaveStatements::Before)
        run(sql);
    run(SaveStatements::Header);
    for (int n = 1; n <= Lines; ++n) {
        run(SaveStatements::line(n).constData());
        run(QString::fromUtf8(SaveStatements::Insert).arg(n).toUtf8().constData());
    }
    run(SaveStatements::After);
}

void rawSqliteSave(benchmark::State& state, const BenchDatabase* db)
{
    sqlite3* handle = nullptr;
    sqlite3_open_v2(db->name().toUtf8().constData(), &handle, SQLITE_OPEN_READWRITE, nullptr);
    registerThaiCollation(handle);
    auto run = [&](const char* sql) {
        sqlite3_stmt* s = nullptr;
        sqlite3_prepare_v2(handle, sql, -1, &s, nullptr);
        while (sqlite3_step(s) == SQLITE_ROW)
            for (int i = 0; i < sqlite3_column_count(s); ++i)
                benchmark::DoNotOptimize(sqlite3_column_text(s, i));
        sqlite3_finalize(s);
    };
    for (auto _ : state) {
        run("BEGIN IMMEDIATE");
        runSaveStatements(run);
        run("COMMIT");
    }
    sqlite3_close(handle);
}

void rawLibpqLoad(benchmark::State& state, const BenchDatabase* db)
{
    PGconn* conn = PQconnectdb(("dbname=" + db->name()).toUtf8().constData());
    for (auto _ : state)
        readAllLibpq(conn, Select);
    PQfinish(conn);
}

void rawLibpqSave(benchmark::State& state, const BenchDatabase* db)
{
    PGconn* conn = PQconnectdb(("dbname=" + db->name()).toUtf8().constData());
    auto run = [&](const char* sql) { PQclear(PQexec(conn, sql)); };
    for (auto _ : state) {
        run("BEGIN");
        runSaveStatements(run);
        run("COMMIT");
    }
    PQfinish(conn);
}

} // namespace

int main(int argc, char** argv)
{
    useOffscreenPlatform();
    QApplication app(argc, argv);
    quietOffscreenWarnings();
    return runOnEngines(argc, argv, fill, [](const EngineRun& run, std::vector<Ratio>& ratios) {
        const bool postgres = run.db->isPostgres();
        const QString floor = postgres ? QStringLiteral("raw_libpq") : QStringLiteral("raw_c_api");
        registerOn(run, (floor + "_load").toLatin1().constData(), postgres ? rawLibpqLoad : rawSqliteLoad, 3);
        registerOn(run, "load", load, 3);
        registerOn(run, (floor + "_save").toLatin1().constData(), postgres ? rawLibpqSave : rawSqliteSave, 3)->Iterations(5);
        registerOn(run, "save", save, 3)->Iterations(5);
        registerOn(run, "in_memory_sum", inMemorySum, 3);
        registerOn(run, "totals_after_edit", totals, 3);
        ratios.push_back({run.title + QStringLiteral(", GLControl FillData 1000 lines"), run.prefix + "load", run.prefix + floor + "_load", 3.0});
        ratios.push_back({run.title + QStringLiteral(", GLControl UpdateGL8 1000 lines"), run.prefix + "save", run.prefix + floor + "_save", 3.0});
        ratios.push_back({run.title + QStringLiteral(", GLControl SumColGrid1 after one edit"), run.prefix + "totals_after_edit",
            run.prefix + "in_memory_sum", 20.0});
    });
}
