#include "SampleTable.h"

#include "foundation/Connection.h"
#include "foundation/ConnectionPool.h"
#include "foundation/DbError.h"
#include "foundation/LockWait_p.h"
#include "foundation/Recordset.h"
#include "foundation/TransactionGuard.h"
#include "support/ScriptedServices.h"

#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <cstdio>
#include <functional>

using namespace qd8;
using namespace qd8::test;

namespace {

class ConnectionPoolTest : public SampleTableTest {};

TEST_P(ConnectionPoolTest, OpenAndCloseReuseOnePhysicalConnection)
{
    const Sql who = engine() == Engine::PostgreSQL ? Sql("SELECT pg_backend_pid() AS Who") : Sql("SELECT 1 AS Who");
    QString first;
    for (int i = 0; i < 50; ++i) {
        Connection connection;
        connection.open(db->connectionString());
        Recordset rs;
        rs.open(who, connection);
        if (i == 0)
            first = rs.text("Who");
        ASSERT_EQ(rs.text("Who"), first) << "a new physical connection on open " << i;
    }
}

TEST_P(ConnectionPoolTest, AWriterIsNotBlockedByAnOpenReader)
{
    Connection reader;
    reader.open(db->connectionString());
    // On PostgreSQL a snapshot for the whole transaction, as SQLite's readers have.
    reader.execute(engine() == Engine::PostgreSQL ? "BEGIN ISOLATION LEVEL REPEATABLE READ" : "BEGIN");
    Recordset before;
    before.open("SELECT COUNT(*) AS N FROM QD8TSample", reader);

    QElapsedTimer timer;
    timer.start();
    Connection writer;
    writer.open(db->connectionString());
    writer.execute("INSERT INTO QD8TSample (TSmpID, TSmpCode) VALUES (20, 'W')");
    EXPECT_LT(timer.elapsed(), 2000);

    // The reader still sees the rows as they were when it began.
    before.open("SELECT COUNT(*) AS N FROM QD8TSample", reader);
    EXPECT_EQ(before.field("N").toInt(), 6);
    reader.execute("COMMIT");
    before.open("SELECT COUNT(*) AS N FROM QD8TSample", reader);
    EXPECT_EQ(before.field("N").toInt(), 7);
}

TEST_P(ConnectionPoolTest, TheCommandCentreConnectionStringOpensTheCentreDatabase)
{
    QTemporaryDir folder;
    ScratchDatabase app(engine(), QStringLiteral("QD8Command.dat"), &folder);
    ScratchDatabase centre(engine(), QStringLiteral("QD8Center.dat"), &folder);
    centre.run({QStringLiteral("CREATE TABLE Marker (Name VARCHAR(20))"), QStringLiteral("INSERT INTO Marker VALUES ('centre')")});

    Connection connection;
    connection.open(commandCentreConnectionString(app.connectionString()));
    Recordset rs;
    rs.open("SELECT Name FROM Marker", connection);
    EXPECT_EQ(rs.text("Name"), QStringLiteral("centre"));
}

TEST_P(ConnectionPoolTest, AnUnreachableDatabaseIsAClearError)
{
    Connection connection;
    const QString missing = engine() == Engine::PostgreSQL ? QStringLiteral("Driver=PostgreSQL;Database=no_such_qd8_database")
                                                           : QStringLiteral("Driver=SQLite;Data Source=/nonexistent/QD8Data.dat");
    const DbError e = dbErrorOf([&] { connection.open(missing); });
    EXPECT_EQ(e.kind(), DbError::Kind::Connection);
    EXPECT_TRUE(e.message().contains(missing.section(u'=', -1))) << e.message().toStdString();
    EXPECT_FALSE(connection.isOpen());
    EXPECT_THROW(connection.execute("SELECT 1"), DbError);
}

TEST_P(ConnectionPoolTest, AWriterWaitingOnAnotherSaysWhoWaitsForWhatAndMayGiveUp)
{
    Connection holder;
    holder.open(db->connectionString());
    holder.beginTrans();
    holder.execute("UPDATE QD8TSample SET TSmpName='held' WHERE TSmpID=1");
    const QString name = engine() == Engine::PostgreSQL ? ConnectionString::parse(db->connectionString()).value({"database"})
                                                        : ConnectionString::parse(db->connectionString()).sqliteFile();
    // SQLite's lock is the whole file's, waited for when the transaction starts.
    const QString what = engine() == Engine::PostgreSQL ? QStringLiteral("QD8TSample") : QFileInfo(name).fileName();
    const struct {
        bool cancel;  // the user gives up at 600 ms; else the engine's wait runs out (PostgreSQL: 800 ms)
        QString said;
    } cases[] = {{true, "The wait for " + what + " was cancelled; nothing was saved"}, {false, "Another program or user is writing"}};
    for (const auto& t : cases) {
        if (!t.cancel && engine() == Engine::SQLite)
            continue;  // its wait is ten seconds
        scriptedProgress().reset();
        scriptedProgress().cancelTitle = t.cancel ? "รอผู้ใช้อื่น" : "";
        scriptedProgress().cancelAt = 600;
        Connection waiter;
        waiter.open(db->connectionString());
        if (engine() == Engine::PostgreSQL)
            waiter.execute("SET lock_timeout = 800");
        try {
            const OperationName operation("ใบขอซื้อ - PR0000013");
            TransactionGuard transaction(waiter);
            waiter.execute("UPDATE QD8TSample SET TSmpName='mine' WHERE TSmpID=1");
            FAIL() << "wrote past the lock";
        } catch (const DbError& e) {
            EXPECT_EQ(e.kind(), DbError::Kind::Locked);
            EXPECT_TRUE(e.userText(1).startsWith(t.said)) << e.userText(1).toStdString();
            EXPECT_TRUE(t.cancel || e.userText(1).contains(name));
        }
        ASSERT_EQ(scriptedProgress().operations.size(), 1);
        EXPECT_EQ(scriptedProgress().operations[0].text, "ใบขอซื้อ - PR0000013 กำลังรอ " + what + " ซึ่งผู้ใช้หรือโปรแกรมอื่นกำลังบันทึกอยู่");
        EXPECT_GE(scriptedProgress().operations[0].lastStep, LockWait::ShowAfterMs);
        EXPECT_EQ(scriptedProgress().ended, 1);
    }
    holder.commitTrans();
    Recordset rs;
    rs.open("SELECT TSmpName FROM QD8TSample WHERE TSmpID=1", holder);
    EXPECT_EQ(rs.text("TSmpName"), "held");
}

QD8_ON_BOTH_ENGINES(ConnectionPoolTest);

// SQLite only: a company file is a file others can delete, move or replace.
class CompanyFileTest : public SampleTableTest {};

TEST_P(CompanyFileTest, AFileReplacedOrDeletedWhileOpenFailsOnceNamingItAndIsNeverWrittenBlind)
{
    if (engine() != Engine::SQLite)
        GTEST_SKIP() << "a PostgreSQL database is not a file";
    const QString cs = db->connectionString();
    const QString file = ConnectionString::parse(cs).sqliteFile();
    {
        Connection c;
        c.open(cs);
        c.execute("PRAGMA wal_checkpoint(TRUNCATE)");
    }
    struct Case {
        const char* what;
        std::function<void()> change;
        const char* says;
        qint64 rowsAfter;  // -1: the next open fails, the file being gone
    };
    const QList<Case> cases{
        {"replaced", [&] { QFile::copy(file, file + ".new"); ::rename(QFile::encodeName(file + ".new"), QFile::encodeName(file)); },
            "was replaced by another file", 6},
        {"deleted", [&] { QFile::rename(file, file + ".gone"); }, "was deleted or moved", -1},
    };
    for (const Case& c : cases) {
        Connection held;  // a save under way
        held.open(cs);
        held.beginTrans();
        held.execute("INSERT INTO QD8TSample (TSmpID, TSmpCode) VALUES (30, 'N')");
        {
            Connection idle;  // a second physical connection, left in the pool
            idle.open(cs);
        }
        c.change();
        const QString said = dbErrorOf([&] { held.commitTrans(); }).userText(1);  // else saved into a file no one will see
        EXPECT_TRUE(said.contains(file) && said.contains(c.says)) << c.what << ": " << said.toStdString();
        held.close();
        Connection next;
        EXPECT_THROW(next.open(cs), DbError) << c.what << ": the pooled connection to the old file is reported once";
        if (c.rowsAfter < 0) {
            EXPECT_THROW(next.open(cs), DbError) << c.what;
            continue;
        }
        next.open(cs);  // then the file that is there now
        Recordset rs;
        rs.open("SELECT COUNT(*) AS N FROM QD8TSample", next);
        EXPECT_EQ(rs.field("N").toLongLong(), c.rowsAfter) << c.what;
    }
}

TEST_P(CompanyFileTest, AReadOnlyCompanyOpensForViewingAndRefusesWritesClearly)
{
    if (engine() != Engine::SQLite)
        GTEST_SKIP() << "read-only files are SQLite's";
    const QString cs = db->connectionString() + ";Mode=ReadOnly";
    const QString file = ConnectionString::parse(cs).sqliteFile();
    Connection c;
    c.open(cs);
    Recordset rs;
    rs.open("SELECT COUNT(*) AS N FROM QD8TSample", c);
    EXPECT_EQ(rs.field("N").toInt(), 6);
    const std::function<void()> writes[] = {[&] { c.execute("DELETE FROM QD8TSample"); }, [&] { c.beginTrans(); }};
    for (const auto& write : writes) {
        const DbError e = dbErrorOf(write);
        EXPECT_EQ(e.kind(), DbError::Kind::ReadOnly);
        EXPECT_EQ(e.userText(1), QStringLiteral("The company file \"%1\" is open for viewing only; changes cannot be saved").arg(file));
    }
}

QD8_ON_BOTH_ENGINES(CompanyFileTest);

} // namespace
