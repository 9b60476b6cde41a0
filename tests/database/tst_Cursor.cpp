#include "SampleTable.h"

#include "foundation/Connection.h"
#include "foundation/Cursor.h"
#include "foundation/DbError.h"
#include "foundation/Recordset.h"
#include "foundation/SqlTrace.h"

using namespace qd8;
using namespace qd8::test;

namespace {

class CursorTest : public SampleTableTest {
protected:
    void addRows(int count) const
    {
        db->run({QStringLiteral("INSERT INTO QD8TSample (TSmpID, TSmpCode) WITH RECURSIVE g(n) AS (SELECT 100 UNION ALL "
                                "SELECT n + 1 FROM g WHERE n < %1) SELECT n, 'R' || n FROM g").arg(99 + count)});
    }
};

TEST_P(CursorTest, ReadsTheFirstRowsAtOnceAndTheRestInBatches)
{
    addRows(1000);
    SqlTrace::Recorder trace;
    Cursor cursor;
    cursor.open("SELECT TSmpID, TSmpCode FROM QD8TSample WHERE TSmpID>=100 ORDER BY TSmpID", db->connectionString(), 100);
    EXPECT_EQ(trace.composed().value(0), QStringLiteral("SELECT TSmpID, TSmpCode FROM QD8TSample WHERE TSmpID>=100 ORDER BY TSmpID"));
    EXPECT_EQ(cursor.rowCount(), 100);
    EXPECT_FALSE(cursor.atEnd());
    EXPECT_EQ(cursor.columnIndex(QStringLiteral("tsmpcode")), 1);
    EXPECT_EQ(cursor.value(99, 1).toString(), QStringLiteral("R199"));

    // Another user writes while the list is half read: neither waits on the other.
    {
        Connection writer;
        writer.open(db->connectionString());
        EXPECT_EQ(writer.execute("UPDATE QD8TSample SET TSmpCode='changed' WHERE TSmpID=1"), 1);
    }
    qsizetype total = cursor.rowCount();
    while (qsizetype added = cursor.fetch(333))
        total += added;
    EXPECT_TRUE(cursor.atEnd());
    EXPECT_EQ(total, 1000);
    EXPECT_EQ(cursor.rowCount(), 1000);
    EXPECT_EQ(cursor.value(0, 0).toInt(), 100);
    EXPECT_EQ(cursor.value(999, 1).toString(), QStringLiteral("R1099"));
    EXPECT_EQ(cursor.fetch(10), 0);

    // Closing hands the connection back outside any transaction.
    cursor.close();
    Connection next;
    next.open(db->connectionString());
    EXPECT_FALSE(next.inTransaction());
}

TEST_P(CursorTest, AFailingStatementIsAnErrorAndLeavesTheCursorClosed)
{
    Cursor cursor;
    EXPECT_THROW(cursor.open("SELECT NoSuchColumn FROM QD8TSample", db->connectionString()), DbError);
    EXPECT_FALSE(cursor.isOpen());
    EXPECT_EQ(cursor.rowCount(), 0);
    EXPECT_TRUE(cursor.atEnd());
    cursor.open("SELECT * FROM QD8TSample WHERE TSmpID=0", db->connectionString());
    EXPECT_TRUE(cursor.atEnd());
    EXPECT_EQ(cursor.columnCount(), 6);
}

QD8_ON_BOTH_ENGINES(CursorTest);

} // namespace
