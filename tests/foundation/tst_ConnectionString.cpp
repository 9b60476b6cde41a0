#include "foundation/ConnectionString.h"
#include "foundation/DbError.h"
#include "support/ScratchDatabase.h"

#include <gtest/gtest.h>

using namespace qd8;
using namespace qd8::test;

namespace {

struct Malformed {
    const char* text;
    const char* mentions;  // what the message must name
};

class MalformedConnectionString : public testing::TestWithParam<Malformed> {};

TEST_P(MalformedConnectionString, IsRefusedWithAMessageNamingTheProblem)
{
    const DbError e = dbErrorOf([&] { ConnectionString::parse(QString::fromUtf8(GetParam().text)); });
    EXPECT_EQ(e.kind(), DbError::Kind::Usage);
    EXPECT_TRUE(e.message().contains(QString::fromUtf8(GetParam().mentions), Qt::CaseInsensitive)) << e.message().toStdString();
}

INSTANTIATE_TEST_SUITE_P(Cases, MalformedConnectionString, testing::Values(
    Malformed{"Driver=Oracle;Data Source=x", "unknown driver \"Oracle\""},
    Malformed{"Driver=SQLite;", "missing data source"},
    Malformed{"Driver=SQLite;Data Source=", "missing data source"},
    Malformed{"Driver=PostgreSQL;Server=127.0.0.1", "missing database"},
    Malformed{"Driver=ODBC;UID=sa", "missing data source"},
    Malformed{"Driver=SQLite;Data Source=\"/tmp/a;b.dat", "never closed"},
    Malformed{"Driver=SQLite;Data Source=/tmp/a\"b.dat", "unbalanced quote"},
    Malformed{"Driver=SQLite;Data Source='/tmp/x' trailing", "after the quoted value"},
    Malformed{"Driver=SQLite;Data Source=/tmp/x;Timeout", "\"Timeout\" has no \"=\""},
    Malformed{"=x;Data Source=/tmp/x", "has no key"}));

TEST(ConnectionString, KeysIgnoreCaseAndQuotedValuesKeepSemicolons)
{
    const auto cs = ConnectionString::parse(QStringLiteral(" driver = postgresql ; SERVER=db1;port=5433;"
                                                           "database=\"QD8;Command.dat\";user id=qd8;password='it''s'"));
    EXPECT_EQ(cs.engine(), Engine::PostgreSQL);
    EXPECT_EQ(cs.value({"database"}), QStringLiteral("QD8;Command.dat"));
    EXPECT_EQ(cs.value({"password"}), QStringLiteral("it's"));
    EXPECT_EQ(cs.libpqConnInfo(), QStringLiteral("host='db1' port='5433' dbname='QD8;Command.dat' user='qd8' password='it\\'s' "
                                                 "connect_timeout=10 client_encoding=UTF8 application_name=QD8Designer2"));
}

TEST(ConnectionString, WithoutDriverMeansSQLiteAndOdbcKeysPassThrough)
{
    EXPECT_EQ(ConnectionString::parse(QStringLiteral("Data Source=/srv/QD8Data.dat")).engine(), Engine::SQLite);
    const auto odbc = ConnectionString::parse(QStringLiteral("Driver=ODBC;ODBC Driver=SQLite3;Database=/srv/x.dat"));
    EXPECT_EQ(odbc.engine(), Engine::QtSql);
    EXPECT_EQ(odbc.odbcConnectString(), QStringLiteral("DRIVER={SQLite3};database=/srv/x.dat"));
}

TEST(ConnectionString, CommandCentreReplacesTheApplicationFileCaseSensitively)
{
    EXPECT_EQ(commandCentreConnectionString(QStringLiteral("Data Source=/a/QD8Command.dat")),
        QStringLiteral("Data Source=/a/QD8Center.dat"));
    EXPECT_EQ(commandCentreConnectionString(QStringLiteral("Database=QD8Command.dat;X=QD8Command.dat")),
        QStringLiteral("Database=QD8Center.dat;X=QD8Center.dat"));
    EXPECT_EQ(commandCentreConnectionString(QStringLiteral("Data Source=/a/qd8command.dat")),
        QStringLiteral("Data Source=/a/qd8command.dat"));
}

} // namespace
