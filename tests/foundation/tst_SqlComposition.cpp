#include "foundation/DbError.h"
#include "foundation/Sql.h"
#include "foundation/SqlDialect.h"
#include "support/ScratchDatabase.h"

#include <QDate>
#include <gtest/gtest.h>

using namespace qd8;
using namespace qd8::test;

namespace {

TEST(Sql, QuotedValuesAreWrittenAsTheyStandAndAQuoteBreaksTheStatement)
{
    const Sql ok = "SELECT * FROM QD8TCommand WHERE TCmdAlias=" + quoted(QStringLiteral("GL-ใบสำคัญ")) + " AND TCmdID=" + 7;
    EXPECT_EQ(ok.text(), QStringLiteral("SELECT * FROM QD8TCommand WHERE TCmdAlias='GL-ใบสำคัญ' AND TCmdID=7"));
    EXPECT_FALSE(ok.isBroken());

    const Sql broken = Sql("SELECT * FROM T WHERE A=") + quoted(QStringLiteral("x' OR '1'='1")) + " AND B=" + quoted("fine");
    EXPECT_EQ(broken.text(), QStringLiteral("SELECT * FROM T WHERE A='x' OR '1'='1' AND B='fine'"));
    EXPECT_TRUE(broken.isBroken());
    EXPECT_EQ(broken.brokenValue(), QStringLiteral("x' OR '1'='1"));

    Sql appended("SELECT 1");
    appended += quoted(QStringLiteral("O'Brien"));
    EXPECT_TRUE(appended.isBroken());
}

TEST(Sql, ANumberPositionTakesOnlyAPlainNumber)
{
    for (const char* good : {"0", "42", "-7", "3.50"}) {
        const Sql sql = Sql("DELETE FROM T WHERE N=") + number(QString::fromLatin1(good));
        EXPECT_FALSE(sql.isBroken()) << good;
        EXPECT_EQ(sql.text(), QStringLiteral("DELETE FROM T WHERE N=") + QLatin1String(good));
    }
    for (const char* bad : {"0 OR 1=1", "", " 1", "1;DROP TABLE T", "1e5", "0x10", "1.", "--1", "1-1"}) {
        const Sql sql = Sql("DELETE FROM T WHERE N=") + number(QString::fromLatin1(bad)) + " AND M=" + quoted("x");
        EXPECT_EQ(sql.flaw(), Sql::Flaw::NotANumber) << bad;
        EXPECT_EQ(sql.brokenValue(), QLatin1String(bad));
    }
}

struct Rewrite { Engine engine; const char* composed; const char* sent; };

class EngineDialect : public testing::TestWithParam<Rewrite> {};

TEST_P(EngineDialect, RewritesMarkersAndLikeOutsideLiterals)
{
    EXPECT_EQ(toEngineSql(GetParam().engine, QString::fromUtf8(GetParam().composed)), QString::fromUtf8(GetParam().sent));
}

INSTANTIATE_TEST_SUITE_P(Cases, EngineDialect, testing::Values(
    Rewrite{Engine::SQLite, "D>=#$2026-01-31#$ AND D<=#$2026-02-28 23:59:59#$", "D>='2026-01-31' AND D<='2026-02-28 23:59:59'"},
    Rewrite{Engine::PostgreSQL, "D>=#$2026-01-31#$ AND D<=#$2026-02-28 23:59:59#$", "D>=DATE '2026-01-31' AND D<=TIMESTAMP '2026-02-28 23:59:59'"},
    Rewrite{Engine::QtSql, "D>=#$2026-01-31#$", "D>={d '2026-01-31'}"},
    Rewrite{Engine::PostgreSQL, "N LIKE '%a%' OR N not like 'LIKE' OR UNLIKELY=1 OR N ILIKE 'b'",
        "N ILIKE '%a%' OR N not ILIKE 'LIKE' OR UNLIKELY=1 OR N ILIKE 'b'"},
    Rewrite{Engine::SQLite, "N LIKE '%a%'", "N LIKE '%a%'"},
    Rewrite{Engine::PostgreSQL, "SELECT '#$' AS \"like\"", "SELECT '#$' AS \"like\""}));

TEST(EngineDialect, MalformedDateMarkersAreRefused)
{
    for (const char* bad : {"D>=#$31/01/2026#$", "D>=#$2026-02-30#$", "D>=#$2026-01-31"})
        EXPECT_EQ(dbErrorOf([&] { toEngineSql(Engine::SQLite, QString::fromLatin1(bad)); }).kind(), DbError::Kind::Refused) << bad;
    EXPECT_EQ(dateMarker(QDate(2026, 1, 5)), QStringLiteral("#$2026-01-05#$"));
}

} // namespace
