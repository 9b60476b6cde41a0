#include "SampleTable.h"

#include "foundation/Connection.h"

#include <QProcess>

using namespace qd8;
using namespace qd8::test;

namespace {

// Restarts the shared PostgreSQL server: runs alone (its own program, serial in CTest).
class ServerRestartTest : public SampleTableTest {};

TEST_P(ServerRestartTest, ThePostgresServerRestartedBetweenTwoOperationsDoesNotBreakTheNext)
{
    if (engine() != Engine::PostgreSQL)
        GTEST_SKIP() << "a PostgreSQL server restart";
    {
        Connection connection;
        connection.open(db->connectionString());
        connection.execute("UPDATE QD8TSample SET TSmpCode='before' WHERE TSmpID=1");
    }
    // The cluster pg_virtualenv started, found by its port. Stopped, then started again: a
    // start may find the old server's pid file still held for a moment on a busy machine
    // ("Cluster is already running"), so it is tried a few times.
    QProcess restart;
    restart.setProcessChannelMode(QProcess::MergedChannels);
    restart.start(QStringLiteral("sh"), {QStringLiteral("-c"),
        QStringLiteral("c=$(pg_lsclusters -h | awk -v p=\"$PGPORT\" '$3==p {print $1\" \"$2}'); "
                       "[ -n \"$c\" ] || exit 1; pg_ctlcluster $c stop -m fast; "
                       "for i in 1 2 3 4 5; do pg_ctlcluster $c start && exit 0; sleep 1; done; exit 1")});
    ASSERT_TRUE(restart.waitForFinished(60000));
    ASSERT_EQ(restart.exitCode(), 0) << restart.readAll().toStdString();

    Connection connection;
    connection.open(db->connectionString());
    EXPECT_EQ(connection.execute("UPDATE QD8TSample SET TSmpCode='after' WHERE TSmpID=1"), 1);
}

INSTANTIATE_TEST_SUITE_P(Engines, ServerRestartTest, testing::Values(Engine::PostgreSQL), engineName);

} // namespace
