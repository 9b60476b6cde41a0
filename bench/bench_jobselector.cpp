// The job selector's job list: its first screen (the pick list's first 100 rows, the job
// list's own statement) over 100,000 job lines and over 1,000, against the engine's C API
// reading the first 100 rows of the same statement (sqlite3; libpq through a cursor, as the
// data layer reads). And ShowDocumentJOB3 on a production order of 1,000 materials against
// the C API reading the same four statements' rows.
#include "BenchSupport.h"

#include "database/Schema.h"
#include "documents/DocumentDetails.h"
#include "documents/JobSelector.h"
#include "foundation/Connection.h"
#include "foundation/ThaiCollation.h"
#include "widgets/PickListModel_p.h"

#include <QApplication>
#include <QDate>
#include <QTreeWidget>
#include <libpq-fe.h>
#include <sqlite3.h>

using namespace qd8;
using namespace qd8::bench;

namespace {

constexpr int BigLines = 100000;
constexpr int SmallLines = 1000;
constexpr int Materials = 1000;
constexpr int FirstScreen = 100;

// Jobs of four lines each in project BIG (100,000 lines) and SMALL (1,000 lines).
void fill(BenchDatabase& db)
{
    const QString cs = db.connectionString();
    Schema::create(cs, DatabaseRole::CompanyData);
    Connection c;
    c.open(cs);
    auto jobs = [&](const char* project, int lines, int offset) {
        const QString series = QStringLiteral("WITH RECURSIVE g(n) AS (SELECT 1 UNION ALL SELECT n + 1 FROM g WHERE n < %1) ").arg(lines / 4);
        c.execute(Sql(QStringLiteral("INSERT INTO QD8TJob (TJobNo, TJobCode, TJobDate, TJobType, TJobTPrjCode, TJobTARNCode, "
                                     "TJobCustomerName, TJobRefNo, TJobInvoiceStatus, TJobCloseStatus, TJobConfirmStatus, TJobApproveStatus, "
                                     "TJobCancelStatus) %1SELECT 'J' || (%2 + n), 'C' || (%2 + n), '2026-11-01', 0, '%3', 'C002', "
                                     "'ห้างหุ้นส่วนจำกัด ไทยพาณิชย์', 'SO' || n, 0, 0, 1, 1, 0 FROM g")
                          .arg(series)
                          .arg(offset)
                          .arg(QLatin1String(project))));
        for (int line = 1; line <= 4; ++line)
            c.execute(Sql(QStringLiteral("INSERT INTO QD8TJobSub (TJbMTJobNo, TJbMLn, TJbMTPdtCode, TJbMProductName, TJbMQuantity, "
                                         "TJbMTUntCode, TJbMTotalArrear, TJbMProcessStatus) %1SELECT 'J' || (%2 + n), %3, 'P1001', "
                                         "'หม้อหุงข้าว 1.8 ลิตร', 10, 'PCS', 10, 0 FROM g")
                              .arg(series)
                              .arg(offset)
                              .arg(line)));
    };
    jobs("BIG", BigLines, 1000000);
    jobs("SMALL", SmallLines, 2000000);
    c.execute("INSERT INTO QD8TJobProduction (TJPDNo, TJPDDate, TJPDTJobNo, TJPDTJbMLn, TJPDProductCode, TJPDConfirmStatus) "
              "VALUES ('PD1', '2026-11-01', 'J1000001', 1, 'P1001', 1)");
    c.execute("INSERT INTO QD8TJobProductionSub (TJpMTJPDNo, TJPMLn, TJPMTSepCode, TJPMRequest, TJPMTUntCode) VALUES ('PD1', 1, 'ST10', 10, 'PCS')");
    c.execute(Sql(QStringLiteral("INSERT INTO QD8TJobProdMat (TMteTJPDNo, TMteLn, TMteTJPMLn, TMteProductCode, TMteProductName, "
                                 "TMteQuantity, TMteUntCode) WITH RECURSIVE g(n) AS (SELECT 1 UNION ALL SELECT n + 1 FROM g WHERE n < %1) "
                                 "SELECT 'PD1', n, 1, 'M' || n, 'วัตถุดิบ ' || n, n, 'PCS' FROM g")
                      .arg(Materials)));
    c.execute("INSERT INTO QD8TPR (TPRDNo, TPRDDate) VALUES ('PR1', '2026-11-01')");
    c.execute("INSERT INTO QD8TPRSub (TPRMTPRDNo, TPRMLn, TPRMProductCode, TPRMQuantity, TPRMTJobNo, TPRMTJbMLn) "
              "VALUES ('PR1', 1, 'M1', 5, 'J1000001', 1)");
    c.execute("ANALYZE");
}

std::unique_ptr<JobSelector> selector(const BenchDatabase* db, const char* project)
{
    auto s = std::make_unique<JobSelector>();
    s->SetFirst2(db->connectionString(), 1);
    s->setProjectCode(QLatin1String(project));
    return s;
}

QByteArray listStatement(const BenchDatabase* db, const char* project)
{
    const PickRequest r = selector(db, project)->jobListRequest();
    return (QStringLiteral("SELECT ") + r.fieldList + QStringLiteral(" FROM ") + r.source).toUtf8();
}

void firstScreen(benchmark::State& state, const BenchDatabase* db, const char* project)
{
    const PickRequest request = selector(db, project)->jobListRequest();
    for (auto _ : state) {
        PickListModel model;
        model.load(request);
        if (model.rowCount() != FirstScreen)
            state.SkipWithError("the first screen is not full");
        benchmark::DoNotOptimize(model.keyAt(FirstScreen - 1));
    }
}

void firstScreenBig(benchmark::State& state, const BenchDatabase* db) { firstScreen(state, db, "BIG"); }
void firstScreenSmall(benchmark::State& state, const BenchDatabase* db) { firstScreen(state, db, "SMALL"); }

// The floor: the first 100 rows of the same statement as QStrings.
void rawFirstScreen(benchmark::State& state, const BenchDatabase* db, const char* project)
{
    const QByteArray sql = listStatement(db, project);
    if (db->isPostgres()) {
        PGconn* conn = PQconnectdb(("dbname=" + db->name()).toUtf8().constData());
        const QByteArray declare = "DECLARE raw_stream NO SCROLL CURSOR FOR " + sql;
        for (auto _ : state) {
            PQclear(PQexec(conn, "BEGIN"));
            PQclear(PQexec(conn, declare.constData()));
            PGresult* rows = PQexec(conn, "FETCH FORWARD 100 FROM raw_stream");
            for (int r = 0; r < PQntuples(rows); ++r)
                for (int f = 0; f < PQnfields(rows); ++f)
                    benchmark::DoNotOptimize(QString::fromUtf8(PQgetvalue(rows, r, f)));
            if (PQntuples(rows) != FirstScreen)
                state.SkipWithError("libpq read too few rows");
            PQclear(rows);
            PQclear(PQexec(conn, "CLOSE raw_stream"));
            PQclear(PQexec(conn, "COMMIT"));
        }
        PQfinish(conn);
        return;
    }
    sqlite3* handle = nullptr;
    sqlite3_open_v2(db->name().toUtf8().constData(), &handle, SQLITE_OPEN_READONLY, nullptr);
    registerThaiCollation(handle);
    for (auto _ : state) {
        sqlite3_stmt* s = nullptr;
        sqlite3_prepare_v2(handle, sql.constData(), -1, &s, nullptr);
        int rows = 0;
        while (rows < FirstScreen && sqlite3_step(s) == SQLITE_ROW) {
            for (int f = 0; f < sqlite3_column_count(s); ++f)
                benchmark::DoNotOptimize(QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(s, f))));
            ++rows;
        }
        sqlite3_finalize(s);
        if (rows != FirstScreen)
            state.SkipWithError("sqlite3 read too few rows");
    }
    sqlite3_close(handle);
}

void rawFirstScreenBig(benchmark::State& state, const BenchDatabase* db) { rawFirstScreen(state, db, "BIG"); }
void rawFirstScreenSmall(benchmark::State& state, const BenchDatabase* db) { rawFirstScreen(state, db, "SMALL"); }

const char* const DetailStatements[] = {"SELECT * FROM QD8VJOB WHERE TJobNo='J1000001' AND TJbMLn=1",
    "SELECT * FROM QD8VSO WHERE TSODNo='SO1'", "SELECT * FROM QD8VJOBPRODUCTION WHERE TJPDNo='PD1' AND TJPMLn=1",
    "SELECT * FROM QD8TJobProdMat WHERE TMteTJPDNo='PD1'", "SELECT * FROM QD8VPR WHERE TPRDNo='PR1' AND TPRMLn=1"};

void detail(benchmark::State& state, const BenchDatabase* db)
{
    DocumentJob job;
    for (auto _ : state)
        job.ShowDocumentJOB3("J1000001", 1, "PD1", 1, "PR1", 1, db->connectionString());
    if (job.list()->topLevelItemCount() < 3 * Materials)
        state.SkipWithError("the materials are not shown");
}

void rawDetail(benchmark::State& state, const BenchDatabase* db)
{
    rawReadEach(state, *db, {std::begin(DetailStatements), std::end(DetailStatements)});
}

} // namespace

int main(int argc, char** argv)
{
    useOffscreenPlatform();
    QApplication app(argc, argv);
    quietOffscreenWarnings();
    return runOnEngines(argc, argv, fill, [](const EngineRun& run, std::vector<Ratio>& ratios) {
        registerOn(run, "raw_first_screen_100000", rawFirstScreenBig, 5);
        registerOn(run, "first_screen_100000", firstScreenBig, 5);
        registerOn(run, "raw_first_screen_1000", rawFirstScreenSmall, 5);
        registerOn(run, "first_screen_1000", firstScreenSmall, 5);
        registerOn(run, "raw_detail", rawDetail, 3);
        registerOn(run, "detail", detail, 3);
        ratios.push_back({run.title + QStringLiteral(", job list first screen of 100,000 job lines"), run.prefix + "first_screen_100000",
            run.prefix + "raw_first_screen_100000", 1.5});
        ratios.push_back({run.title + QStringLiteral(", job list first screen of 1,000 job lines"), run.prefix + "first_screen_1000",
            run.prefix + "raw_first_screen_1000", 1.5});
        ratios.push_back({run.title + QStringLiteral(", ShowDocumentJOB3 with 1,000 materials"), run.prefix + "detail",
            run.prefix + "raw_detail", 3.0});
    });
}
