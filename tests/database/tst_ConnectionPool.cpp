#include "SampleTable.h"

#include "foundation/Connection.h"
#include "foundation/ConnectionPool.h"
#include "foundation/DbError.h"
#include "foundation/Recordset.h"

#include <QElapsedTimer>

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
    Recordset during;
    during.open("SELECT COUNT(*) AS N FROM QD8TSample", reader);
    EXPECT_EQ(during.field("N").toInt(), 6);
    reader.execute("COMMIT");
    Recordset after;
    after.open("SELECT COUNT(*) AS N FROM QD8TSample", reader);
    EXPECT_EQ(after.field("N").toInt(), 7);
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
    try {
        connection.open(missing);
        FAIL() << "opened";
    } catch (const DbError& e) {
        EXPECT_EQ(e.kind(), DbError::Kind::Connection);
        EXPECT_TRUE(e.message().contains(engine() == Engine::PostgreSQL ? "no_such_qd8_database" : "/nonexistent/QD8Data.dat"))
            << e.message().toStdString();
    }
    EXPECT_FALSE(connection.isOpen());
    EXPECT_THROW(connection.execute("SELECT 1"), DbError);
}

QD8_ON_BOTH_ENGINES(ConnectionPoolTest);

} // namespace
