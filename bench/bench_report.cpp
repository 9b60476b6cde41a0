// A report of 100,000 invoices grouped by customer: its rows read, laid out in pages and
// written as a PDF, and as a workbook, each against the raw C API reading the same rows;
// then the time until its first page is laid out, and the peak memory of the whole run.
#include "BenchSupport.h"

#include "database/Schema.h"
#include "foundation/Connection.h"
#include "foundation/ThaiCollation.h"
#include "reports/ReportDocument.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <libpq-fe.h>
#include <sqlite3.h>
#include <sys/resource.h>

using namespace qd8;
using namespace qd8::bench;

namespace {

constexpr int Rows = 100000;
constexpr int Customers = 100;
const char* Select = "SELECT i.TIvoNo, i.TIvoDate, i.TIvoTARNCode, a.TARNName, i.TIvoDescription, i.TIvoCardStatus, "
                     "i.TIvoAmount FROM QD8TARInvoice i JOIN QD8TAR a ON a.TARNCode = i.TIvoTARNCode "
                     "ORDER BY i.TIvoTARNCode, i.TIvoNo";

QTemporaryDir& outputFolder()
{
    static QTemporaryDir folder;
    return folder;
}

void fill(const BenchDatabase& db)
{
    const QString cs = db.connectionString();
    Schema::create(cs, DatabaseRole::CompanyData);
    Connection c;
    c.open(cs);
    c.beginTrans();
    for (int n = 0; n < Customers; ++n)
        c.execute(QStringLiteral("INSERT INTO QD8TAR (TARNCode, TARNName) VALUES ('C%1', 'ลูกค้า ห้างหุ้นส่วนจำกัด %1')").arg(n, 3, 10, QChar('0')));
    for (int first = 0; first < Rows; first += 1000) {
        QStringList values;
        for (int i = first; i < first + 1000; ++i)
            values << QStringLiteral("('IV%1', '2026-%2-%3', 'C%4', 'ค่าสินค้าและบริการงวดที่ %5', %6, %7.%8)")
                          .arg(i, 6, 10, QChar('0')).arg(i % 12 + 1, 2, 10, QChar('0')).arg(i % 28 + 1, 2, 10, QChar('0'))
                          .arg(i % Customers, 3, 10, QChar('0')).arg(i % 36 + 1).arg(i % 3).arg(i * 7 % 100000).arg(i % 10000, 4, 10, QChar('0'));
        c.execute("INSERT INTO QD8TARInvoice (TIvoNo, TIvoDate, TIvoTARNCode, TIvoDescription, TIvoCardStatus, TIvoAmount) VALUES " +
            values.join(QLatin1Char(',')));
    }
    c.commitTrans();
    c.execute("ANALYZE");
}

ReportDefinition definition()
{
    ReportDefinition s;
    s.title = QStringLiteral("ใบแจ้งหนี้ตามลูกค้า");
    s.company = QStringLiteral("บริษัท ตัวอย่าง จำกัด");
    s.criteria = QStringLiteral("วันที่ 01/01/2569 ถึง 31/12/2569");
    s.sql = QString::fromLatin1(Select);
    s.groupField = QStringLiteral("TIvoTARNCode");
    s.groupCaptionField = QStringLiteral("TARNName");
    s.columns = {{"TIvoNo", "เลขที่", ReportColumn::Kind::Text, false, 9}, {"TIvoDate", "วันที่", ReportColumn::Kind::Date, false, 9},
        {"TIvoDescription", "รายละเอียด", ReportColumn::Kind::Text, false, 24},
        {"TIvoCardStatus", "สถานะ", ReportColumn::Kind::Integer, true, 6},
        {"TIvoAmount", "จำนวนเงิน", ReportColumn::Kind::Money, true, 12}};
    return s;
}

void toFile(benchmark::State& state, const BenchDatabase* db, bool pdf)
{
    const QString file = outputFolder().filePath(pdf ? QStringLiteral("report.pdf") : QStringLiteral("report.xlsx"));
    for (auto _ : state) {
        ReportDocument report(definition());
        report.open(db->connectionString());
        const bool written = report.readAll() && (pdf ? report.writePdf(file) : report.exportTable(file));
        if (!written || report.rowCount() != Rows)
            state.SkipWithError("the report was not written whole");
    }
}

void pdf(benchmark::State& state, const BenchDatabase* db)
{
    toFile(state, db, true);
}

void xlsx(benchmark::State& state, const BenchDatabase* db)
{
    toFile(state, db, false);
}

void rawSqlite(benchmark::State& state, const BenchDatabase* db)
{
    sqlite3* handle = nullptr;
    sqlite3_open_v2(db->name().toUtf8().constData(), &handle, SQLITE_OPEN_READONLY, nullptr);
    registerThaiCollation(handle);
    for (auto _ : state)
        if (readAllSqlite(handle, Select) != Rows)
            state.SkipWithError("the floor read the wrong rows");
    sqlite3_close(handle);
}

void rawLibpq(benchmark::State& state, const BenchDatabase* db)
{
    PGconn* conn = PQconnectdb(("dbname=" + db->name()).toUtf8().constData());
    for (auto _ : state)
        if (readAllLibpq(conn, Select) != Rows)
            state.SkipWithError("the floor read the wrong rows");
    PQfinish(conn);
}

// The wait between asking for the report and its first finished page, the best of five.
QString firstPage(const EngineRun& run)
{
    qint64 best = -1;
    for (int i = 0; i < 5; ++i) {
        QElapsedTimer clock;
        clock.start();
        ReportDocument report(definition());
        report.open(run.db->connectionString());
        while (report.finishedPages() < 1 && report.readMore(500)) {
        }
        const qint64 ms = clock.elapsed();
        best = best < 0 ? ms : qMin(best, ms);
    }
    return QStringLiteral("%1 first page of the 100000-row report: %2 ms").arg(run.title).arg(best);
}

} // namespace

int main(int argc, char** argv)
{
    useOffscreenPlatform();
    QApplication app(argc, argv);
    quietOffscreenWarnings();
    QStringList figures;
    const int rc = runOnEngines(argc, argv, fill, [&](const EngineRun& run, std::vector<Ratio>& ratios) {
        const bool postgres = run.db->isPostgres();
        const QString floor = postgres ? QStringLiteral("raw_libpq") : QStringLiteral("raw_c_api");
        registerOn(run, floor.toLatin1().constData(), postgres ? rawLibpq : rawSqlite, 3);
        registerOn(run, "report_pdf", pdf, 3)->Iterations(1);
        registerOn(run, "report_xlsx", xlsx, 3)->Iterations(1);
        ratios.push_back({run.title + QStringLiteral(", 100000-row report to PDF"), run.prefix + "report_pdf", run.prefix + floor, 5.0});
        ratios.push_back({run.title + QStringLiteral(", 100000-row report to XLSX"), run.prefix + "report_xlsx", run.prefix + floor, 5.0});
        figures << firstPage(run);
    });
    for (const QString& line : std::as_const(figures))
        std::printf("%s\n", qPrintable(line));
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    std::printf("peak memory of the run (both engines, 100000-row reports): %.1f MB (target <= 300 MB)\n", usage.ru_maxrss / 1024.0);
    return rc;
}
