#include "SampleTable.h"

#include "foundation/Connection.h"
#include "foundation/DbError.h"
#include "foundation/Recordset.h"
#include "foundation/SqlTrace.h"
#include "foundation/TransactionGuard.h"
#include "foundation/Values.h"

#include <QDate>
#include <functional>

using namespace qd8;
using namespace qd8::test;

namespace {

class ConnectionTest : public SampleTableTest {
protected:
    QStringList column(const Sql& sql) const { return queryColumn(db->connectionString(), sql); }
    qint64 count() const { return column("SELECT COUNT(*) FROM QD8TSample").value(0).toLongLong(); }
};

TEST_P(ConnectionTest, NullStaysDistinctFromEmptyTextAndFieldsAreFoundByNameWhateverTheCase)
{
    Connection connection;
    connection.open(db->connectionString());
    Recordset rs;
    rs.open("SELECT * FROM QD8TSample WHERE TSmpID=6", connection);
    ASSERT_FALSE(rs.eof());
    EXPECT_FALSE(rs.field("TSmpCode").isNull());
    EXPECT_EQ(rs.field("TSmpCode").toString(), QString(""));
    for (const char* name : {"TSmpName", "TSmpAmount", "TSmpDate"})
        EXPECT_TRUE(rs.field(name).isNull()) << name;
    EXPECT_EQ(rs.text("TSmpName"), QString(""));
    rs.open("SELECT TSmpCode, TSmpName FROM QD8TSample WHERE TSmpID=3", connection);
    for (const char* name : {"TSmpCode", "tsmpcode", "TSMPCODE", "TsMpCoDe"})
        EXPECT_EQ(rs.text(QString::fromLatin1(name)), QStringLiteral("C")) << name;
    EXPECT_EQ(rs.text("tsmpNAME"), QStringLiteral("แกง"));
    EXPECT_EQ(rs.fieldIndex("nosuchfield"), -1);
    EXPECT_THROW(rs.field("nosuchfield"), DbError);
    rs.moveNext();
    EXPECT_TRUE(rs.eof());
    EXPECT_THROW(rs.field("TSmpCode"), DbError);
}

TEST_P(ConnectionTest, DateMarkersSelectTheRowsOfTheRangeAndTheTraceShowsBothTexts)
{
    SqlTrace::Recorder trace;
    const Sql sql = Sql("SELECT TSmpID FROM QD8TSample WHERE TSmpDate>=") + dateMarker(QDate(2026, 1, 31))
        + " AND TSmpDate<=#$2026-02-28#$ ORDER BY TSmpID";
    EXPECT_EQ(column(sql), QStringList({"2", "3", "4"}));
    ASSERT_EQ(trace.entries().size(), 1);
    EXPECT_EQ(trace.entries()[0].composed,
        QStringLiteral("SELECT TSmpID FROM QD8TSample WHERE TSmpDate>=#$2026-01-31#$ AND TSmpDate<=#$2026-02-28#$ ORDER BY TSmpID"));
    EXPECT_NE(trace.entries()[0].sent, trace.entries()[0].composed);  // each engine's own spelling (tst_SqlComposition)
    EXPECT_EQ(trace.entries()[0].connection, db->connectionString());
}

TEST_P(ConnectionTest, AValueHoldingAQuoteIsRefusedBeforeItReachesTheDatabase)
{
    SqlTrace::Recorder trace;
    Connection connection;
    connection.open(db->connectionString());
    const Sql injected = Sql("DELETE FROM QD8TSample WHERE TSmpCode=") + quoted(QStringLiteral("x' OR '1'='1"));
    const DbError e = dbErrorOf([&] { connection.execute(injected); });
    EXPECT_EQ(e.kind(), DbError::Kind::Refused);
    EXPECT_TRUE(e.message().contains(QStringLiteral("x' OR '1'='1")));
    EXPECT_EQ(e.statement(), QStringLiteral("DELETE FROM QD8TSample WHERE TSmpCode='x' OR '1'='1'"));
    Recordset rs;
    EXPECT_THROW(rs.open(Sql("SELECT * FROM QD8TSample WHERE TSmpName=") + quoted("it's"), connection), DbError);
    ASSERT_EQ(trace.entries().size(), 2);
    EXPECT_TRUE(trace.entries()[0].refused);
    EXPECT_TRUE(trace.entries()[0].sent.isEmpty());
    EXPECT_EQ(count(), 6);
}

TEST_P(ConnectionTest, ExecuteCountsTheRowsAndAFailedTransactionLeavesNothingWritten)
{
    Connection connection;
    connection.open(db->connectionString());
    connection.beginTrans();
    connection.execute("INSERT INTO QD8TSample (TSmpID, TSmpCode) VALUES (7, 'F')");
    EXPECT_THROW(connection.execute("INSERT INTO QD8TSample (TSmpID, TSmpCode) VALUES (1, 'dup')"), DbError);
    connection.rollbackTrans();
    EXPECT_EQ(count(), 6);

    // A connection closed (given back to the pool) inside a transaction is rolled back,
    // and the next user of the pooled connection starts outside any transaction.
    connection.beginTrans();
    connection.execute("INSERT INTO QD8TSample (TSmpID, TSmpCode) VALUES (8, 'G')");
    connection.close();
    Connection next;
    next.open(db->connectionString());
    EXPECT_FALSE(next.inTransaction());
    EXPECT_EQ(count(), 6);
    EXPECT_EQ(next.execute("UPDATE QD8TSample SET TSmpCode='X' WHERE TSmpFlag1=1"), 4);
    EXPECT_EQ(next.execute("DELETE FROM QD8TSample WHERE TSmpID=99"), 0);
    EXPECT_EQ(next.execute("DELETE FROM QD8TSample WHERE TSmpFlag1 IS NULL OR TSmpFlag1=0"), 2);
}

TEST_P(ConnectionTest, ATransactionGuardKeepsOnlyWhatWasCommitted)
{
    struct Case {
        const char* name;
        std::function<void(Connection&, TransactionGuard&)> work;  // inserts row 7, then...
        qint64 rows;  // left in the table
    };
    const Case cases[] = {{"committed", [](Connection&, TransactionGuard& t) { t.commit(); }, 7},
        {"left without a commit", [](Connection&, TransactionGuard&) {}, 6},
        {"a failing statement on its way out",
            [](Connection& c, TransactionGuard&) { c.execute("INSERT INTO QD8TSample (TSmpID, TSmpCode) VALUES (1, 'dup')"); }, 6},
        {"rolled back early, then leaving", [](Connection&, TransactionGuard& t) { t.rollback(); }, 6},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        Connection connection;
        connection.open(db->connectionString());
        try {
            TransactionGuard transaction(connection);
            EXPECT_TRUE(connection.inTransaction());
            connection.execute("INSERT INTO QD8TSample (TSmpID, TSmpCode) VALUES (7, 'G')");
            c.work(connection, transaction);
        } catch (const DbError&) {
        }
        EXPECT_FALSE(connection.inTransaction());
        EXPECT_EQ(count(), c.rows);
        connection.execute("DELETE FROM QD8TSample WHERE TSmpID=7");
    }
}

TEST_P(ConnectionTest, ThaiNamesSortInDictionaryOrder)
{
    EXPECT_EQ(column("SELECT TSmpName FROM QD8TSample WHERE TSmpName IS NOT NULL ORDER BY TSmpName"),
        QStringList({"กา", "เก", "แกง", "ไก่", "ขา"}));
}

TEST_P(ConnectionTest, MoneyAndDatesComeBackAsTheirOwnTypes)
{
    Connection connection;
    connection.open(db->connectionString());
    Recordset rs;
    rs.open("SELECT TSmpAmount, TSmpDate FROM QD8TSample ORDER BY TSmpID", connection);
    const QStringList expected = {"10.5", "0.0001", "99999999999.9999", "-2.25", "0"};
    for (const QString& amount : expected) {
        ASSERT_EQ(rs.field("TSmpAmount").typeId(), qMetaTypeId<Currency>());
        EXPECT_EQ(rs.currency("TSmpAmount").toString(), amount);
        EXPECT_EQ(rs.field("TSmpDate").typeId(), QMetaType::QDate);
        rs.moveNext();
    }
    if (engine() != Engine::PostgreSQL)
        return;
    // numeric is exact on PostgreSQL: the largest amounts and sums of many of them.
    connection.execute("UPDATE QD8TSample SET TSmpAmount=1234567890123.4567 WHERE TSmpID=1");
    connection.execute("INSERT INTO QD8TSample (TSmpID, TSmpAmount) SELECT 100 + g, 0.0001 * g FROM generate_series(1, 20000) g");
    rs.open("SELECT TSmpAmount FROM QD8TSample WHERE TSmpID=1", connection);
    EXPECT_EQ(rs.currency("TSmpAmount").toString(), QStringLiteral("1234567890123.4567"));
    rs.open("SELECT SUM(TSmpAmount) AS Total FROM QD8TSample WHERE TSmpID > 100", connection);
    EXPECT_EQ(rs.field("Total").typeId(), qMetaTypeId<Currency>());
    EXPECT_EQ(rs.currency("Total").toString(), QStringLiteral("20001"));  // 0.0001 * (20000 * 20001 / 2)
}

QD8_ON_BOTH_ENGINES(ConnectionTest);

TEST(SqliteAttach, AttachedDatabasesAnswerUnqualifiedNamesAndAMissingOneRefusesTheConnection)
{
    ScratchDatabase session(Engine::SQLite, "QD8Data.dat"), catalogue(Engine::SQLite, "Q'D8Command.dat");
    session.run({"CREATE TABLE QD8TSession (TSsID INTEGER)", "INSERT INTO QD8TSession VALUES (1)"});
    catalogue.run({"CREATE TABLE QD8TCatalogue (TCaID INTEGER)", "INSERT INTO QD8TCatalogue VALUES (2)"});
    const QString file = catalogue.connectionString().section('=', -1);
    Connection c;
    c.open(session.connectionString() + ";Attach=" + file);
    Recordset rs;
    rs.open("SELECT TSsID, TCaID FROM QD8TSession, QD8TCatalogue", c);
    EXPECT_EQ(rs.field("TCaID").toInt(), 2);
    Connection missing;
    const DbError error = dbErrorOf([&] { missing.open(session.connectionString() + ";Attach=" + file + ",/nonexistent/QD8Command.dat"); });
    EXPECT_EQ(error.kind(), DbError::Kind::Connection);
    EXPECT_TRUE(error.message().contains("/nonexistent/QD8Command.dat"));
}

} // namespace
