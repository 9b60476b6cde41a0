#include "foundation/DateText.h"

#include <gtest/gtest.h>

using namespace qd8;

namespace {

constexpr auto BE = DateEra::Buddhist;
constexpr auto CE = DateEra::Gregorian;
// Today is pinned: 15 May 2026 = 15/05/2569 BE. Two-digit years fall in 1976..2075.
const QDate Today(2026, 5, 15);

struct Typed {
    const char* text;
    DateEra era;
    const char* stored;  // ISO; "" when refused
};

class DateInput : public testing::TestWithParam<Typed> {};

TEST_P(DateInput, ReadsEitherEraAndStoresGregorian)
{
    const Typed& t = GetParam();
    const auto date = parseDate(QString::fromUtf8(t.text), t.era, Today);
    EXPECT_EQ(date ? date->toString(Qt::ISODate) : QString(), QString::fromLatin1(t.stored)) << t.text;
}

INSTANTIATE_TEST_SUITE_P(Cases, DateInput, testing::Values(
    Typed{"15/05/2569", BE, "2026-05-15"},
    Typed{"15/05/2569", CE, "2026-05-15"},     // a year from 2400 on is Buddhist in any era
    Typed{"15/05/2026", BE, "2026-05-15"},
    Typed{"5/1/2026", CE, "2026-01-05"},
    Typed{"05.01.2569", CE, "2026-01-05"},
    Typed{"29/02/2567", BE, "2024-02-29"},
    Typed{"29/02/2566", BE, ""},
    Typed{"29/02/2024", CE, "2024-02-29"},
    Typed{"29/02/2023", CE, ""},
    Typed{"29/02/2000", CE, "2000-02-29"},
    Typed{"29/02/1900", CE, ""},
    Typed{"31/04/2026", CE, ""},
    Typed{"00/01/2026", CE, ""},
    Typed{"01/13/2026", CE, ""},
    Typed{"15052569", BE, "2026-05-15"},
    Typed{"15052026", BE, "2026-05-15"},
    Typed{"2026-05-15", BE, "2026-05-15"},
    Typed{"2569-05-15", CE, "2026-05-15"},
    Typed{" ๑๕/๐๕/๒๕๖๙ ", BE, "2026-05-15"},   // Thai digits
    Typed{"15/05/69", BE, "2026-05-15"},
    Typed{"15/05/18", BE, "2075-05-15"},       // 2618 BE: 49 years ahead
    Typed{"15/05/19", BE, "1976-05-15"},       // 2519 BE: 50 years back
    Typed{"15/05/26", CE, "2026-05-15"},
    Typed{"15/05/75", CE, "2075-05-15"},
    Typed{"15/05/76", CE, "1976-05-15"},
    Typed{"150526", CE, "2026-05-15"},
    Typed{"29/02/67", BE, "2024-02-29"},
    Typed{"29/02/66", BE, ""},
    Typed{"", BE, ""},
    Typed{"tomorrow", CE, ""},
    Typed{"15/05/2026x", CE, ""},
    Typed{"15/05-2026", CE, ""},
    Typed{"15/05/226", CE, ""},
    Typed{"1505202", CE, ""}));

struct Shown {
    const char* iso;
    DateEra era;
    const char* date;
    const char* dateTime;  // of the date at 09:05
};

class DateDisplay : public testing::TestWithParam<Shown> {};

TEST_P(DateDisplay, ShowsTheUsersEraAndReadsBack)
{
    const Shown& s = GetParam();
    const QDate date = QDate::fromString(QString::fromLatin1(s.iso), Qt::ISODate);
    EXPECT_EQ(dateText(date, s.era), QString::fromLatin1(s.date));
    const QDateTime at(date, QTime(9, 5));
    EXPECT_EQ(dateTimeText(at, s.era), QString::fromLatin1(s.dateTime));
    EXPECT_EQ(parseDateTime(dateTimeText(at, s.era), s.era, Today), at);
}

INSTANTIATE_TEST_SUITE_P(Cases, DateDisplay, testing::Values(
    Shown{"2026-05-15", BE, "15/05/2569", "15/05/2569 09:05"},
    Shown{"2026-05-15", CE, "15/05/2026", "15/05/2026 09:05"},
    Shown{"2024-02-29", BE, "29/02/2567", "29/02/2567 09:05"},
    Shown{"1900-01-01", BE, "01/01/2443", "01/01/2443 09:05"},
    Shown{"1582-10-10", CE, "10/10/1582", "10/10/1582 09:05"}));  // no Julian switch

TEST(DateText, InvalidValuesShowNothing)
{
    EXPECT_EQ(dateText(QDate(), BE), QString());
    EXPECT_EQ(dateTimeText(QDateTime(), CE), QString());
}

struct TypedDateTime {
    const char* text;
    const char* stored;  // "" when refused
};

class DateTimeInput : public testing::TestWithParam<TypedDateTime> {};

TEST_P(DateTimeInput, ReadsDateThenTime)
{
    const TypedDateTime& t = GetParam();
    const auto dt = parseDateTime(QString::fromLatin1(t.text), BE, Today);
    EXPECT_EQ(dt ? dt->toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")) : QString(), QString::fromLatin1(t.stored)) << t.text;
}

INSTANTIATE_TEST_SUITE_P(Cases, DateTimeInput, testing::Values(
    TypedDateTime{"15/05/2569 13:45", "2026-05-15 13:45:00"},
    TypedDateTime{"15/05/2569 1345", "2026-05-15 13:45:00"},
    TypedDateTime{"2026-05-15T13:45:30", "2026-05-15 13:45:30"},
    TypedDateTime{"2026-05-15 13:45:30.250", "2026-05-15 13:45:30"},
    TypedDateTime{"15/05/2569", "2026-05-15 00:00:00"},
    TypedDateTime{"15/05/2569 24:00", ""},
    TypedDateTime{"15/05/2569 13:60", ""},
    TypedDateTime{"29/02/2566 10:00", ""},
    TypedDateTime{"15/05/2569 noon", ""}));

struct Month { int month; const char* thai; const char* thaiShort; const char* english; const char* englishShort; };

class MonthNames : public testing::TestWithParam<Month> {};

TEST_P(MonthNames, ComeInBothLanguages)
{
    const Month& m = GetParam();
    EXPECT_EQ(monthName(m.month, 0), QString::fromUtf8(m.thai));
    EXPECT_EQ(shortMonthName(m.month, 0), QString::fromUtf8(m.thaiShort));
    EXPECT_EQ(monthName(m.month, 1), QString::fromUtf8(m.english));
    EXPECT_EQ(shortMonthName(m.month, 1), QString::fromUtf8(m.englishShort));
}

INSTANTIATE_TEST_SUITE_P(Cases, MonthNames, testing::Values(
    Month{1, "มกราคม", "ม.ค.", "January", "Jan"},
    Month{2, "กุมภาพันธ์", "ก.พ.", "February", "Feb"},
    Month{12, "ธันวาคม", "ธ.ค.", "December", "Dec"},
    Month{0, "", "", "", ""},
    Month{13, "", "", "", ""}));

struct Look {
    int languageId;
    const char* setting;
    DateEra era;
    const char* monthYear;  // March 2026
};

class DateLooks : public testing::TestWithParam<Look> {};

TEST_P(DateLooks, FollowTheLanguageUnlessTheUserChoseAnEra)
{
    const Look& l = GetParam();
    const DateLook look = DateLook::forLanguage(l.languageId, QString::fromLatin1(l.setting));
    EXPECT_EQ(look.era, l.era);
    EXPECT_EQ(monthYearText(3, 2026, look), QString::fromUtf8(l.monthYear));
}

INSTANTIATE_TEST_SUITE_P(Cases, DateLooks, testing::Values(
    Look{0, "", BE, "มีนาคม 2569"},
    Look{1, "", CE, "March 2026"},
    Look{0, "2", CE, "มีนาคม 2026"},
    Look{1, "1", BE, "March 2569"},
    Look{1, "7", CE, "March 2026"}));

} // namespace
