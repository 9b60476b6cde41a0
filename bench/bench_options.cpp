// The company option editor on an option group of 1,000 options: loading the group into the
// grid, and saving 1,000 changed values (confirmation answered, one transaction, the group
// read again afterwards as the editor does), each against the raw C API of the engine
// running the same statements: the group, option and stored-value SELECTs; per option the
// same UPDATE of QD8TOptionValue in one transaction, then the SELECTs again.
#include "BenchSupport.h"

#include "database/Schema.h"
#include "editors/CustomOption.h"
#include "foundation/Connection.h"
#include "foundation/Services.h"
#include "foundation/ThaiCollation.h"
#include "widgets/GridEditor.h"

#include <QApplication>
#include <libpq-fe.h>
#include <sqlite3.h>

using namespace qd8;
using namespace qd8::bench;

namespace {

constexpr int Options = 1000;
const char* Reads[] = {"SELECT * FROM QD8TOptionGroup WHERE TOpGAlias='BIG'",
    "SELECT * FROM QD8TOption WHERE TOptTOpGAlias='BIG' AND TOptFlag1<>0 ORDER BY TOptName",
    "SELECT TOpVTOptAlias, TOpVValue FROM QD8TOptionValue WHERE TOpVScope='COMPANY' AND TOpVScopeKey=''"};
const char* Update = "UPDATE QD8TOptionValue SET TOpVValue=%1, TOpVNumber=%2, TOpVEditBy=%3, TOpVEditDate=%4 WHERE TOpVScope=%5 AND "
                     "TOpVScopeKey=%6 AND TOpVTOptAlias=%7";

QString alias(int i)
{
    return QStringLiteral("OPT%1").arg(i, 4, 10, QLatin1Char('0'));
}

// Every option already holds a company value, so each save updates 1,000 rows.
void fill(const BenchDatabase& db)
{
    const QString cs = db.connectionString();
    Schema::create(cs, DatabaseRole::Application);
    Schema::create(cs, DatabaseRole::CompanyData);
    Connection c;
    c.open(cs);
    c.beginTrans();
    c.execute("INSERT INTO QD8TCommandGroup (TCmGAlias, TCmGName, TCmGName2) VALUES ('GL', 'บัญชี', 'Ledger')");
    c.execute("INSERT INTO QD8TOptionGroup (TOpGAlias, TOpGName, TOpGName2, TOpGTCmGAlias) VALUES ('BIG', 'ตัวเลือก', 'Options', 'GL')");
    for (int i = 0; i < Options; ++i) {
        const bool number = i % 2;
        c.execute(Sql("INSERT INTO QD8TOption (TOptAlias, TOptTOpGAlias, TOptName, TOptName2, TOptFieldType, TOptDecimal, TOptDefaultValue) VALUES (")
            + quoted(alias(i)) + ", 'BIG', " + quoted(QStringLiteral("ตัวเลือกที่ %1").arg(i)) + ", " + quoted(QStringLiteral("Option %1").arg(i)) + ", "
            + (number ? "'NUMBER', 2, '0'" : "'TEXT', 0, ''") + ")");
        c.execute(Sql("INSERT INTO QD8TOptionValue (TOpVScope, TOpVScopeKey, TOpVTOptAlias, TOpVValue, TOpVNumber) VALUES ('COMPANY', '', ")
            + quoted(alias(i)) + ", '1', 1)");
    }
    c.commitTrans();
    c.execute("ANALYZE");
}

void openEditor(CustomOption& editor, const BenchDatabase* db)
{
    editor.setConnectionString(db->connectionString());
    editor.setDataConnectionString(db->connectionString());
}

void load(benchmark::State& state, const BenchDatabase* db)
{
    CustomOption editor;
    openEditor(editor, db);
    for (auto _ : state)
        editor.cmdWhereShow("BIG");
    if (editor.grid()->Rows() != Options)
        state.SkipWithError("the grid does not hold the options");
}

void save(benchmark::State& state, const BenchDatabase* db)
{
    AnswerYes yes;
    Services::setMessages(&yes);
    CustomOption editor;
    openEditor(editor, db);
    editor.cmdWhereShow("BIG");
    static int round = 0;
    for (auto _ : state) {
        state.PauseTiming();
        editor.buttonClick("Edit");
        ++round;
        for (int row = 1; row <= Options; ++row)
            editor.grid()->SetValue(row, OptionEditor::ColValue, QString::number(round * 10000 + row));
        state.ResumeTiming();
        if (!editor.save())
            state.SkipWithError("the save failed");
    }
    Services::setMessages(nullptr);
}

QByteArray now()
{
    return QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")).toUtf8();
}

void rawSqliteLoad(benchmark::State& state, const BenchDatabase* db)
{
    sqlite3* handle = nullptr;
    sqlite3_open_v2(db->name().toUtf8().constData(), &handle, SQLITE_OPEN_READONLY, nullptr);
    registerThaiCollation(handle);
    for (auto _ : state)
        for (const char* sql : Reads)
            readAllSqlite(handle, sql);
    sqlite3_close(handle);
}

void rawSqliteSave(benchmark::State& state, const BenchDatabase* db)
{
    sqlite3* handle = nullptr;
    sqlite3_open_v2(db->name().toUtf8().constData(), &handle, SQLITE_OPEN_READWRITE, nullptr);
    registerThaiCollation(handle);
    sqlite3_stmt* update = nullptr;
    sqlite3_prepare_v2(handle, QString::fromLatin1(Update).arg("?1", "?2", "?3", "?4", "?5", "?6", "?7").toUtf8().constData(), -1, &update, nullptr);
    static int round = 0;
    for (auto _ : state) {
        ++round;
        sqlite3_exec(handle, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr);
        for (int i = 0; i < Options; ++i) {
            const QByteArray value = QByteArray::number(round * 10000 + i + 1), key = alias(i).toUtf8(), at = now();
            sqlite3_bind_text(update, 1, value.constData(), int(value.size()), SQLITE_TRANSIENT);
            sqlite3_bind_double(update, 2, value.toDouble());
            sqlite3_bind_text(update, 3, "", 0, SQLITE_STATIC);
            sqlite3_bind_text(update, 4, at.constData(), int(at.size()), SQLITE_TRANSIENT);
            sqlite3_bind_text(update, 5, "COMPANY", 7, SQLITE_STATIC);
            sqlite3_bind_text(update, 6, "", 0, SQLITE_STATIC);
            sqlite3_bind_text(update, 7, key.constData(), int(key.size()), SQLITE_TRANSIENT);
            if (sqlite3_step(update) != SQLITE_DONE || sqlite3_changes(handle) != 1)
                state.SkipWithError("the floor's update failed");
            sqlite3_reset(update);
        }
        sqlite3_exec(handle, "COMMIT", nullptr, nullptr, nullptr);
        for (const char* sql : Reads)
            readAllSqlite(handle, sql);
    }
    sqlite3_finalize(update);
    sqlite3_close(handle);
}

void rawLibpqLoad(benchmark::State& state, const BenchDatabase* db)
{
    PGconn* conn = PQconnectdb(("dbname=" + db->name()).toUtf8().constData());
    for (auto _ : state)
        for (const char* sql : Reads)
            readAllLibpq(conn, sql);
    PQfinish(conn);
}

void rawLibpqSave(benchmark::State& state, const BenchDatabase* db)
{
    PGconn* conn = PQconnectdb(("dbname=" + db->name()).toUtf8().constData());
    PQclear(PQprepare(conn, "upd", QString::fromLatin1(Update).arg("$1", "$2", "$3", "$4", "$5", "$6", "$7").toUtf8().constData(), 7, nullptr));
    static int round = 0;
    for (auto _ : state) {
        ++round;
        PQclear(PQexec(conn, "BEGIN"));
        for (int i = 0; i < Options; ++i) {
            const QByteArray value = QByteArray::number(round * 10000 + i + 1), key = alias(i).toUtf8(), at = now();
            const char* values[] = {value.constData(), value.constData(), "", at.constData(), "COMPANY", "", key.constData()};
            PGresult* result = PQexecPrepared(conn, "upd", 7, values, nullptr, nullptr, 0);
            if (PQresultStatus(result) != PGRES_COMMAND_OK || QByteArray(PQcmdTuples(result)) != "1")
                state.SkipWithError("the floor's update failed");
            PQclear(result);
        }
        PQclear(PQexec(conn, "COMMIT"));
        for (const char* sql : Reads)
            readAllLibpq(conn, sql);
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
        registerOn(run, (floor + "_save").toLatin1().constData(), postgres ? rawLibpqSave : rawSqliteSave, 3)->Iterations(1);
        registerOn(run, "save", save, 3)->Iterations(1);
        ratios.push_back({run.title + QStringLiteral(", options load 1000"), run.prefix + "load", run.prefix + floor + "_load", 3.0});
        ratios.push_back({run.title + QStringLiteral(", options save 1000 changed"), run.prefix + "save", run.prefix + floor + "_save", 3.0});
    });
}
