#include "foundation/Currency.h"
#include "foundation/Values.h"

#include <QDate>
#include <gtest/gtest.h>

using namespace qd8;

namespace {

struct Parsed { const char* text; bool valid; int64_t raw; const char* shortest; };

class CurrencyText : public testing::TestWithParam<Parsed> {};

TEST_P(CurrencyText, ParsesExactlyAndPrintsShortest)
{
    const auto& p = GetParam();
    const auto c = Currency::parse(QString::fromLatin1(p.text));
    ASSERT_EQ(c.has_value(), p.valid) << p.text;
    if (!p.valid)
        return;
    EXPECT_EQ(c->raw(), p.raw);
    EXPECT_EQ(c->toString(), QString::fromLatin1(p.shortest));
}

INSTANTIATE_TEST_SUITE_P(Cases, CurrencyText, testing::Values(
    Parsed{"1234567890123.4567", true, 12345678901234567, "1234567890123.4567"},
    Parsed{"-0.0001", true, -1, "-0.0001"},
    Parsed{"12", true, 120000, "12"},
    Parsed{"12.50000000", true, 125000, "12.5"},
    Parsed{" 7.25 ", true, 72500, "7.25"},
    Parsed{"922337203685477.5807", true, INT64_MAX, "922337203685477.5807"},
    Parsed{"922337203685477.5808", false, 0, ""},
    Parsed{"0.00001", false, 0, ""},
    Parsed{"1e3", false, 0, ""},
    Parsed{"", false, 0, ""},
    Parsed{"-", false, 0, ""},
    Parsed{"12.3.4", false, 0, ""}));

TEST(Currency, SumsOfManyCentsStayExact)
{
    Currency total;
    for (int i = 0; i < 100000; ++i)
        total += *Currency::parse(QStringLiteral("0.0001"));
    EXPECT_EQ(total.toString(), QStringLiteral("10"));
    EXPECT_EQ(Currency::fromDouble(99999999999.9999).toString(), QStringLiteral("99999999999.9999"));
    EXPECT_EQ((-Currency::fromRaw(5)).toFixedString(), QStringLiteral("-0.0005"));
}

TEST(Values, TextTurnsNullIntoEmptyAndKeepsEmptyDistinct)
{
    EXPECT_TRUE(isNull(QVariant()));
    EXPECT_FALSE(isNull(QVariant(QString(""))));
    EXPECT_EQ(text(QVariant()), QString(""));
    EXPECT_EQ(text(QVariant::fromValue(Currency::fromRaw(12345))), QStringLiteral("1.2345"));
    EXPECT_EQ(text(QVariant(QDate(2026, 1, 31))), QStringLiteral("2026-01-31"));
    EXPECT_EQ(toCurrency(QVariant(QStringLiteral("12.34"))).raw(), 123400);
    EXPECT_EQ(toCurrency(QVariant(0.1 + 0.2)).raw(), 3000);
    EXPECT_DOUBLE_EQ(toNumber(QVariant(QStringLiteral("abc"))), 0.0);
    EXPECT_DOUBLE_EQ(QVariant::fromValue(Currency::fromRaw(15000)).toDouble(), 1.5);
}

} // namespace
