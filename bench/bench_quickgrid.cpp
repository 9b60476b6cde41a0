// The quick form editor on a form of 10,000 divisions: loading the rows into the grid, and
// saving 10,000 changed rows (confirmation answered, one transaction, the rows read again
// afterwards as the editor does), each against the raw C API of the engine running the
// same statements: the same SELECT; per row the same key SELECT and an UPDATE, in one
// transaction, then the SELECT again.
#include "BenchSupport.h"

#include "database/Schema.h"
#include "editors/QuickGrid.h"
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

constexpr int Rows = 10000;
const char* Select = "SELECT * FROM QD8TDivision ORDER BY TDivSort";

void fill(const BenchDatabase& db)
{
    const QString cs = db.connectionString();
    Schema::create(cs, DatabaseRole::Application);
    Schema::create(cs, DatabaseRole::CompanyData);
    Connection c;
    c.open(cs);
    c.beginTrans();
    c.execute("INSERT INTO QD8TQuickForm (TQFmAlias, TQFmCaption, TQFmCaption2, TQFmTable, TQFmView, TQFmKeyIDEN, TQFmPKList, TQFmOrder) "
              "VALUES ('QDIV', 'ฝ่าย', 'Divisions', 'QD8TDivision', 'QD8TDivision', 'TDiv', 'TDivCode', 'TDivSort')");
    const char* fields[][3] = {{"TDivCode", "รหัส", "1"}, {"TDivName", "ชื่อ", "0"}, {"TDivName2", "ชื่ออังกฤษ", "0"}, {"TDivSort", "ลำดับ", "0"}};
    for (int i = 0; i < 4; ++i)
        c.execute(Sql("INSERT INTO QD8TQuickField (TQFFID, TQFFTQFmAlias, TQFFSort, TQFFFieldName, TQFFCaption, TQFFCaption2, TQFFFieldType, TQFFPrimaryKey) VALUES (")
            + (i + 1) + ", 'QDIV', " + i + ", '" + fields[i][0] + "', " + quoted(QString::fromUtf8(fields[i][1])) + ", '" + fields[i][0] + "', '"
            + (i == 3 ? "NUMBER" : "TEXT") + "', " + fields[i][2] + ")");
    for (int i = 0; i < Rows; ++i)
        c.execute(Sql("INSERT INTO QD8TDivision (TDivCode, TDivName, TDivName2, TDivSort, TDivFlag1) VALUES (") + quoted(QStringLiteral("D%1").arg(i, 5, 10, QLatin1Char('0')))
            + ", " + quoted(QStringLiteral("ฝ่ายที่ %1").arg(i)) + ", " + quoted(QStringLiteral("Division %1").arg(i)) + ", " + i + ", 1)");
    c.commitTrans();
    c.execute("ANALYZE");
}

void openGrid(QuickGrid& grid, const BenchDatabase* db)
{
    grid.setConnectionString(db->connectionString());
    grid.setDataConnectionString(db->connectionString());
}

void load(benchmark::State& state, const BenchDatabase* db)
{
    QuickGrid grid;
    openGrid(grid, db);
    for (auto _ : state)
        grid.cmdWhereShow("QDIV");
    if (grid.grid()->Rows() != Rows)
        state.SkipWithError("the grid does not hold the rows");
}

void save(benchmark::State& state, const BenchDatabase* db)
{
    AnswerYes yes;
    Services::setMessages(&yes);
    QuickGrid grid;
    openGrid(grid, db);
    grid.cmdWhereShow("QDIV");
    static int round = 0;  // across repetitions, so that every save changes every row
    for (auto _ : state) {
        state.PauseTiming();
        grid.buttonClick("Edit");
        ++round;
        for (int row = 1; row <= Rows; ++row)
            grid.grid()->SetValue(row, 2, QStringLiteral("ฝ่าย %1 รอบ %2").arg(row).arg(round));
        state.ResumeTiming();
        if (!grid.save())
            state.SkipWithError("the save failed");
    }
    Services::setMessages(nullptr);
}

// The floor's own changed names, so that every UPDATE changes the row.
QByteArray floorName(int row, int round)
{
    return QStringLiteral("พื้น %1 รอบ %2").arg(row).arg(round).toUtf8();
}

void rawSqliteLoad(benchmark::State& state, const BenchDatabase* db)
{
    sqlite3* handle = nullptr;
    sqlite3_open_v2(db->name().toUtf8().constData(), &handle, SQLITE_OPEN_READONLY, nullptr);
    for (auto _ : state)
        readAllSqlite(handle, Select);
    sqlite3_close(handle);
}

void rawSqliteSave(benchmark::State& state, const BenchDatabase* db)
{
    sqlite3* handle = nullptr;
    sqlite3_open_v2(db->name().toUtf8().constData(), &handle, SQLITE_OPEN_READWRITE, nullptr);
    sqlite3_stmt* update = nullptr;
    registerThaiCollation(handle);
    sqlite3_prepare_v2(handle, "UPDATE QD8TDivision SET TDivName=? WHERE TDivCode=? AND TDivName=?", -1, &update, nullptr);
    static int round = 0;
    for (auto _ : state) {
        ++round;
        sqlite3_exec(handle, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr);
        for (int i = 0; i < Rows; ++i) {
            const QByteArray key = QStringLiteral("D%1").arg(i, 5, 10, QLatin1Char('0')).toUtf8();
            sqlite3_stmt* select = nullptr;
            sqlite3_prepare_v2(handle, ("SELECT * FROM QD8TDivision WHERE TDivCode='" + key + "'").constData(), -1, &select, nullptr);
            QByteArray old;
            if (sqlite3_step(select) == SQLITE_ROW)
                old = QByteArray(reinterpret_cast<const char*>(sqlite3_column_text(select, 1)));
            sqlite3_finalize(select);
            const QByteArray name = floorName(i, round);
            sqlite3_bind_text(update, 1, name.constData(), int(name.size()), SQLITE_TRANSIENT);
            sqlite3_bind_text(update, 2, key.constData(), int(key.size()), SQLITE_TRANSIENT);
            sqlite3_bind_text(update, 3, old.constData(), int(old.size()), SQLITE_TRANSIENT);
            if (sqlite3_step(update) != SQLITE_DONE || sqlite3_changes(handle) != 1)
                state.SkipWithError("the floor's update failed");
            sqlite3_reset(update);
        }
        sqlite3_exec(handle, "COMMIT", nullptr, nullptr, nullptr);
        readAllSqlite(handle, Select);
    }
    sqlite3_finalize(update);
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
    PQclear(PQprepare(conn, "upd", "UPDATE QD8TDivision SET TDivName=$1 WHERE TDivCode=$2 AND TDivName=$3", 3, nullptr));
    static int round = 0;
    for (auto _ : state) {
        ++round;
        PQclear(PQexec(conn, "BEGIN"));
        for (int i = 0; i < Rows; ++i) {
            const QByteArray key = QStringLiteral("D%1").arg(i, 5, 10, QLatin1Char('0')).toUtf8();
            PGresult* select = PQexec(conn, ("SELECT * FROM QD8TDivision WHERE TDivCode='" + key + "'").constData());
            const QByteArray old = PQntuples(select) ? QByteArray(PQgetvalue(select, 0, 1)) : QByteArray();
            PQclear(select);
            const QByteArray name = floorName(i, round);
            const char* values[] = {name.constData(), key.constData(), old.constData()};
            PGresult* result = PQexecPrepared(conn, "upd", 3, values, nullptr, nullptr, 0);
            if (PQresultStatus(result) != PGRES_COMMAND_OK || QByteArray(PQcmdTuples(result)) != "1")
                state.SkipWithError("the floor's update failed");
            PQclear(result);
        }
        PQclear(PQexec(conn, "COMMIT"));
        readAllLibpq(conn, Select);
    }
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
        const QString floor = postgres ? QStringLiteral("raw_libpq") : QStringLiteral("raw_c_api");
        registerOn(run, (floor + "_load").toLatin1().constData(), postgres ? rawLibpqLoad : rawSqliteLoad, 3);
        registerOn(run, "load", load, 3);
        registerOn(run, (floor + "_save").toLatin1().constData(), postgres ? rawLibpqSave : rawSqliteSave, 3)->Iterations(1);
        registerOn(run, "save", save, 3)->Iterations(1);
        ratios.push_back({run.title + QStringLiteral(", QuickGrid load 10000 rows"), run.prefix + "load", run.prefix + floor + "_load", 3.0});
        ratios.push_back({run.title + QStringLiteral(", QuickGrid save 10000 changed rows"), run.prefix + "save", run.prefix + floor + "_save", 3.0});
    });
}
