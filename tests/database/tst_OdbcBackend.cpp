#include "foundation/Connection.h"
#include "foundation/DbError.h"
#include "foundation/Recordset.h"
#include "foundation/SqlTrace.h"

#include <QDate>
#include <QFileInfo>
#include <QSqlDatabase>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace qd8;

namespace {

// The generic backend through Qt's ODBC driver, against the SQLite ODBC driver.
TEST(OdbcBackend, ReadsWritesAndKeepsNullDistinct)
{
    if (!QSqlDatabase::isDriverAvailable(QStringLiteral("QODBC")) || !QFileInfo::exists(QStringLiteral("/usr/lib/x86_64-linux-gnu/odbc/libsqlite3odbc.so")))
        GTEST_SKIP() << "Qt's ODBC driver or the SQLite ODBC driver is not installed";
    QTemporaryDir dir;
    const QString cs = QStringLiteral("Driver=ODBC;ODBC Driver=SQLite3;Database=") + dir.filePath(QStringLiteral("odbc.dat"));
    Connection connection;
    connection.open(cs);
    EXPECT_EQ(connection.engine(), Engine::QtSql);
    connection.execute("CREATE TABLE QD8TOdbc (TOdbID INTEGER PRIMARY KEY, TOdbName VARCHAR(50), TOdbDate DATE)");
    connection.execute("INSERT INTO QD8TOdbc VALUES (1, '', '2026-01-31')");
    connection.execute("INSERT INTO QD8TOdbc VALUES (2, NULL, '2026-03-01')");

    Recordset rs;
    rs.open("SELECT * FROM QD8TOdbc WHERE TOdbID=3", connection, Recordset::adOpenStatic, Recordset::adLockOptimistic);
    rs.addNew();
    rs.setField("TOdbID", 3);
    rs.setField("todbname", QStringLiteral("ชื่อ 'ไทย'"));
    rs.update();

    SqlTrace::Recorder trace;
    rs.open("SELECT * FROM QD8TOdbc WHERE TOdbDate<=#$2026-02-01#$ OR TOdbID=3 ORDER BY TOdbID", connection);
    EXPECT_EQ(trace.sent().value(0), QStringLiteral("SELECT * FROM QD8TOdbc WHERE TOdbDate<={d '2026-02-01'} OR TOdbID=3 ORDER BY TOdbID"));
    ASSERT_EQ(rs.recordCount(), 2);
    EXPECT_FALSE(rs.field("TOdbName").isNull());
    EXPECT_EQ(rs.text("TOdbName"), QString(""));
    rs.moveNext();
    EXPECT_EQ(rs.text("TODBNAME"), QStringLiteral("ชื่อ 'ไทย'"));
    EXPECT_EQ(connection.execute("DELETE FROM QD8TOdbc WHERE TOdbName IS NULL"), 1);
}

} // namespace
