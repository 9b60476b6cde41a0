#include "SampleTable.h"

#include "foundation/Connection.h"
#include "foundation/DbError.h"
#include "foundation/Recordset.h"
#include "foundation/SqlTrace.h"

#include <QDate>

using namespace qd8;
using namespace qd8::test;

namespace {

class RecordsetTest : public SampleTableTest {
protected:
    void SetUp() override
    {
        SampleTableTest::SetUp();
        if (!IsSkipped())
            connection.open(db->connectionString());
    }
    void TearDown() override
    {
        connection.close();
        SampleTableTest::TearDown();
    }
    QString mark(int n) const { return engine() == Engine::PostgreSQL ? QStringLiteral("$%1").arg(n) : QStringLiteral("?"); }
    // Column names as the engine reports them (PostgreSQL folds unquoted names).
    QString col(const char* name) const
    {
        const QString n = QString::fromLatin1(name);
        return engine() == Engine::PostgreSQL ? n.toLower() : n;
    }

    Connection connection;
};

TEST_P(RecordsetTest, AddNewInsertsWithBoundParametersSoQuotesAreJustData)
{
    Recordset rs;
    rs.open("SELECT * FROM QD8TSample WHERE TSmpID=10", connection, Recordset::adOpenStatic, Recordset::adLockOptimistic);
    ASSERT_TRUE(rs.eof());
    SqlTrace::Recorder trace;
    rs.addNew();
    rs.setField("TSmpID", 10);
    rs.setField("tsmpcode", QStringLiteral("O'Brien"));
    rs.setField("TSmpName", QStringLiteral("ร้าน 'สมใจ'"));
    // The largest amount each engine keeps exactly: NUMERIC(19,4) on PostgreSQL, REAL
    // (15 significant digits) on SQLite.
    const QString amount = engine() == Engine::PostgreSQL ? QStringLiteral("1234567890123.4567") : QStringLiteral("99999999999.9999");
    rs.setField("TSmpAmount", QVariant::fromValue(*Currency::parse(amount)));
    rs.setField("TSmpDate", QDate(2026, 11, 21));
    rs.update();
    ASSERT_EQ(trace.sent().size(), 1);
    EXPECT_EQ(trace.sent()[0], QStringLiteral("INSERT INTO QD8TSample (%1,%2,%3,%4,%5) VALUES (%6,%7,%8,%9,%10)")
        .arg(col("TSmpID"), col("TSmpCode"), col("TSmpName"), col("TSmpAmount"), col("TSmpDate"))
        .arg(mark(1), mark(2), mark(3), mark(4), mark(5)));
    EXPECT_EQ(rs.text("TSmpCode"), QStringLiteral("O'Brien"));

    Recordset check;
    check.open("SELECT * FROM QD8TSample WHERE TSmpID=10", connection);
    ASSERT_EQ(check.recordCount(), 1);
    EXPECT_EQ(check.text("TSmpCode"), QStringLiteral("O'Brien"));
    EXPECT_EQ(check.text("TSmpName"), QStringLiteral("ร้าน 'สมใจ'"));
    EXPECT_EQ(check.currency("TSmpAmount").toString(), amount);
    EXPECT_EQ(check.field("TSmpDate").toDate(), QDate(2026, 11, 21));
    EXPECT_TRUE(check.field("TSmpFlag1").isNull());
}

TEST_P(RecordsetTest, UpdateFindsTheRowByItsOriginalKeyAndChangedValues)
{
    Recordset rs;
    rs.open("SELECT * FROM QD8TSample WHERE TSmpID=1", connection, Recordset::adOpenStatic, Recordset::adLockOptimistic);
    SqlTrace::Recorder trace;
    rs.setField("TSmpName", QStringLiteral("กาแฟ"));
    rs.setField("TSmpID", 11);
    rs.update();
    ASSERT_EQ(trace.sent().size(), 1);
    EXPECT_EQ(trace.sent()[0], QStringLiteral("UPDATE QD8TSample SET %1=%3,%2=%4 WHERE %1=%5 AND %2=%6")
        .arg(col("TSmpID"), col("TSmpName"), mark(1), mark(2), mark(3), mark(4)));
    EXPECT_EQ(rs.field("TSmpID").toInt(), 11);

    EXPECT_EQ(queryColumn(db->connectionString(), "SELECT TSmpName FROM QD8TSample WHERE TSmpID=11"), QStringList{"กาแฟ"});
}

TEST_P(RecordsetTest, AnUpdateOverAnotherUsersChangeIsAConflictAndOverwritesNothing)
{
    Recordset mine;
    mine.open("SELECT * FROM QD8TSample WHERE TSmpID<=2 ORDER BY TSmpID", connection, Recordset::adOpenStatic, Recordset::adLockOptimistic);
    Connection other;
    other.open(db->connectionString());
    other.execute("UPDATE QD8TSample SET TSmpName='theirs' WHERE TSmpID=1");
    other.execute("DELETE FROM QD8TSample WHERE TSmpID=2");

    mine.setField("TSmpName", QStringLiteral("mine"));
    EXPECT_EQ(dbErrorOf([&] { mine.update(); }).kind(), DbError::Kind::Conflict);  // else the other user's change is overwritten
    mine.cancelUpdate();
    mine.moveNext();
    mine.setField("TSmpCode", QStringLiteral("Z"));
    EXPECT_THROW(mine.update(), DbError);

    EXPECT_EQ(queryColumn(db->connectionString(), "SELECT TSmpName FROM QD8TSample WHERE TSmpID=1"), QStringList{"theirs"});
}

TEST_P(RecordsetTest, OnlyOptimisticSelectStarOfOneTableCanWrite)
{
    Recordset readOnly;
    readOnly.open("SELECT * FROM QD8TSample", connection);
    EXPECT_THROW(readOnly.addNew(), DbError);
    Recordset joined;
    joined.open("SELECT A.* FROM QD8TSample A JOIN QD8TSample B ON A.TSmpID=B.TSmpID", connection,
        Recordset::adOpenStatic, Recordset::adLockOptimistic);
    EXPECT_THROW(joined.setField("TSmpCode", QStringLiteral("x")), DbError);
}

TEST_P(RecordsetTest, EofAndBofFollowTheCursor)
{
    Recordset rs;
    rs.open("SELECT * FROM QD8TSample WHERE TSmpID=0", connection);
    EXPECT_TRUE(rs.eof());
    EXPECT_TRUE(rs.bof());
    EXPECT_EQ(rs.recordCount(), 0);
    rs.open("SELECT TSmpID FROM QD8TSample ORDER BY TSmpID", connection);
    EXPECT_EQ(rs.recordCount(), 6);
    int seen = 0;
    for (; !rs.eof() && !rs.bof(); rs.moveNext())
        ++seen;
    EXPECT_EQ(seen, 6);
    rs.moveLast();
    EXPECT_EQ(rs.field("TSmpID").toInt(), 6);
    rs.moveFirst();
    rs.movePrevious();
    EXPECT_TRUE(rs.bof());
}

QD8_ON_BOTH_ENGINES(RecordsetTest);

} // namespace
