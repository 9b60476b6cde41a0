// The credit panel's usable credit for a customer with 100,000 invoices and 10,000 received
// cheques (among 50,000 invoices and 5,000 cheques of other customers), against the raw C
// API of the engine running the same four statements as the panel sends them.
#include "BenchSupport.h"

#include "accounting/CreditLimit.h"
#include "database/DataObject.h"
#include "database/Schema.h"
#include "foundation/Connection.h"

#include <QApplication>
#include <QDate>
#include <libpq-fe.h>
#include <sqlite3.h>

using namespace qd8;
using namespace qd8::bench;

namespace {

constexpr int Invoices = 100000;
constexpr int Cheques = 10000;

QList<QByteArray> statements(bool postgres)
{
    const QString today = QDate::currentDate().toString(Qt::ISODate);
    const QString date = postgres ? QStringLiteral("DATE '%1'").arg(today) : QStringLiteral("'%1'").arg(today);
    return {"SELECT TARNCreditLimit FROM QD8TAR WHERE TARNCode='BIG'", "SELECT TARNCreditAvaiBal FROM QD8TAR WHERE TARNCode='BIG'",
        "SELECT SUM(TCHRTotalRate) AS TCHRTotalRate  FROM Qd8TChequeRec WHERE (TCHRChqStatus=1 OR  TCHRChqStatus=0) AND TCHRTARNCode='BIG'",
        ("select sum(TIvoArrears) AS TIvoArrears FROM QD8TARInvoice WHERE TIvoApproveStatus=1 AND TIvoCancelStatus=0 AND TIvoCardStatus=1 "
         "AND TIvoDate<=" + date + " AND TIvoTARNCode='BIG'").toUtf8(),
        "SELECT TOpVScope, TOpVScopeKey, TOpVValue FROM QD8TOptionValue WHERE TOpVTOptAlias='ARCREDITBALANCEIGNORECHEQUE'"};
}

void fill(const BenchDatabase& db)
{
    const QString cs = db.connectionString();
    Schema::create(cs, DatabaseRole::CompanyData);
    Connection c;
    c.open(cs);
    c.beginTrans();
    c.execute("INSERT INTO QD8TAR (TARNCode, TARNName, TARNCreditLimit, TARNCreditAvaiBal) VALUES ('BIG', 'ลูกค้ารายใหญ่', 90000000, 80000000)");
    c.execute("INSERT INTO QD8TAR (TARNCode, TARNName, TARNCreditLimit, TARNCreditAvaiBal) VALUES ('OTHER', 'ลูกค้าอื่น', 1000, 1000)");
    const QDate first = QDate::currentDate().addDays(-1000);
    for (int i = 0; i < Invoices * 3 / 2; ++i) {
        const bool big = i < Invoices;
        c.execute(Sql("INSERT INTO QD8TARInvoice (TIvoNo, TIvoDate, TIvoTARNCode, TIvoAmount, TIvoArrears, TIvoApproveStatus, TIvoCancelStatus, TIvoCardStatus) VALUES (")
            + quoted(QStringLiteral("IV%1").arg(i, 7, 10, QLatin1Char('0'))) + ", " + dateMarker(first.addDays(i % 1010)) + ", "
            + quoted(big ? "BIG" : "OTHER") + ", 100, " + QString::number(i % 97) + ".25, " + (i % 10 ? "1" : "0") + ", " + (i % 13 ? "0" : "1")
            + ", " + (i % 17 ? "1" : "0") + ")");
    }
    for (int i = 0; i < Cheques * 3 / 2; ++i)
        c.execute(Sql("INSERT INTO QD8TChequeRec (TCHRNo, TCHRTARNCode, TCHRTotalRate, TCHRChqStatus) VALUES (")
            + quoted(QStringLiteral("RC%1").arg(i, 7, 10, QLatin1Char('0'))) + ", " + quoted(i < Cheques ? "BIG" : "OTHER") + ", "
            + QString::number(1000 + i % 500) + ", " + QString::number(i % 4) + ")");
    c.commitTrans();
    c.execute("ANALYZE");
}

void ours(benchmark::State& state, const BenchDatabase* db)
{
    auto data = std::make_shared<DbDataObject>(db->connectionString(), QString(), 1, QStringLiteral("BENCH"));
    CreditLimit panel;
    for (auto _ : state)
        benchmark::DoNotOptimize(panel.GetCreditBalance(QD8ModeCreditCustomer, QStringLiteral("BIG"), data));
    if (panel.overdueInvoices() == Currency())
        state.SkipWithError("no overdue invoices were summed");
}

void rawSqlite(benchmark::State& state, const BenchDatabase* db)
{
    sqlite3* handle = nullptr;
    sqlite3_open_v2(db->name().toUtf8().constData(), &handle, SQLITE_OPEN_READONLY, nullptr);
    const QList<QByteArray> sql = statements(false);
    for (auto _ : state)
        for (const QByteArray& s : sql)
            readAllSqlite(handle, s.constData());
    sqlite3_close(handle);
}

void rawLibpq(benchmark::State& state, const BenchDatabase* db)
{
    PGconn* conn = PQconnectdb(("dbname=" + db->name()).toUtf8().constData());
    const QList<QByteArray> sql = statements(true);
    for (auto _ : state)
        for (const QByteArray& s : sql)
            readAllLibpq(conn, s.constData());
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
        registerOn(run, floor.toLatin1().constData(), postgres ? rawLibpq : rawSqlite, 5);
        registerOn(run, "credit_balance", ours, 5);
        ratios.push_back({run.title + QStringLiteral(", GetCreditBalance over 100,000 invoices and 10,000 cheques"),
            run.prefix + "credit_balance", run.prefix + floor, 1.5});
    });
}
