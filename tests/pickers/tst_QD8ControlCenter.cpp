#include "support/SampleCompany.h"
#include "support/ScriptedServices.h"

#include "database/SessionFunctions.h"
#include "pickers/QD8ControlCenter.h"

#include <gtest/gtest.h>

using namespace qd8;
using namespace qd8::test;

namespace {

struct MonthPick {
    int languageId;
    int style;
    QDate answer;         // the picker's answer; invalid: the user gave up
    const char* text;     // SelectMonthYearView
    QDate first;          // SelectMonthYearViewDate
};

class ControlCenterMonths : public testing::TestWithParam<MonthPick> {};

TEST_P(ControlCenterMonths, GiveMonthYearAndViewTextOrNothing)
{
    const MonthPick& p = GetParam();
    QD8ControlCenter centre;
    centre.setDateLook(DateLook::forLanguage(p.languageId));
    scriptedPicker().dateAnswers = {p.answer.startOfDay(), p.answer.startOfDay()};
    EXPECT_EQ(centre.SelectMonthYearView(3, 2010, p.style, 40, 50), QString::fromUtf8(p.text));
    EXPECT_EQ(centre.SelectMonthYearViewDate(QDate(2010, 3, 31), p.style, 40, 50), p.first);
    ASSERT_EQ(scriptedPicker().dateAsks.size(), 2);
    for (const auto& ask : scriptedPicker().dateAsks) {
        EXPECT_EQ(ask.kind, QStringLiteral("month"));
        EXPECT_EQ(ask.style, p.style);
        EXPECT_EQ(ask.position, QPoint(40, 50));
        EXPECT_EQ(ask.initial.date().month(), 3);
        EXPECT_EQ(ask.initial.date().year(), 2010);
    }
}

INSTANTIATE_TEST_SUITE_P(Cases, ControlCenterMonths, testing::Values(
    MonthPick{1, 0, QDate(2010, 3, 1), "3;2010;March 2010", QDate(2010, 3, 1)},
    MonthPick{0, 0, QDate(2010, 3, 1), "3;2010;มีนาคม 2553", QDate(2010, 3, 1)},
    MonthPick{0, 1, QDate(2024, 2, 29), "2;2024;ก.พ. 2567", QDate(2024, 2, 1)},  // always the first
    MonthPick{1, 0, QDate(), "", QDate()}));

TEST(ControlCenter, DatePickersOpenWithTheDefaultsWhereAsked)
{
    QD8ControlCenter centre;
    qint32 left = 120, top = 300;
    scriptedPicker().dateAnswers = {QDateTime(QDate(2026, 5, 16), QTime()), QDateTime(QDate(2026, 5, 16), QTime(14, 30))};
    EXPECT_EQ(centre.SelectMonthView(QDate(2026, 5, 15), left, top), QDate(2026, 5, 16));
    EXPECT_EQ(centre.SelectMonthViewWithTime(QDate(2026, 5, 15), left, top), QDateTime(QDate(2026, 5, 16), QTime(14, 30)));
    EXPECT_EQ(centre.SelectMonthView(QDate(2026, 5, 15), left, top), QDate());  // given up
    ASSERT_EQ(scriptedPicker().dateAsks.size(), 3);
    EXPECT_EQ(scriptedPicker().dateAsks[1].kind, QStringLiteral("datetime"));
    for (const auto& ask : scriptedPicker().dateAsks) {
        EXPECT_EQ(ask.initial.date(), QDate(2026, 5, 15));
        EXPECT_EQ(ask.position, QPoint(120, 300));
        EXPECT_EQ(ask.look, DateLook::forLanguage(0));
    }
}

// The language comes from the user's setting as for every control; a host that read the
// user's "DateEra" hands it over.
class ControlCenterSession : public SampleCompanyTest {};

TEST_P(ControlCenterSession, PickersShowTheUsersLanguageAndChosenEra)
{
    QD8ControlCenter english;
    english.SetLast2(QStringLiteral("C:\\u"), QStringLiteral("cc"), QStringLiteral("2"), dataConnectionString(), appConnectionString());
    scriptedPicker().dateAnswers = {QDateTime(QDate(2026, 3, 1), QTime())};
    EXPECT_EQ(english.SelectMonthYearView(3, 2026, 0, 0, 0), QStringLiteral("3;2026;March 2026"));

    DbSessionFunctions::storeUserSetting(1, QStringLiteral("DateEra"), QStringLiteral("2"), dataConnectionString());
    QD8ControlCenter thai;
    thai.SetLast2(QStringLiteral("C:\\u"), QStringLiteral("cc"), QStringLiteral("1"), dataConnectionString(), appConnectionString());
    EXPECT_EQ(thai.dateLook(), DateLook::forLanguage(0));
    thai.setDateLook(DbSessionFunctions::userDateLook(1, thai.LanguageID(), dataConnectionString()));
    scriptedPicker().dateAnswers = {QDateTime(QDate(2026, 3, 1), QTime())};
    EXPECT_EQ(thai.SelectMonthYearView(3, 2026, 0, 0, 0), QStringLiteral("3;2026;มีนาคม 2026"));
    EXPECT_EQ(DbSessionFunctions::userDateLook(2, 1, dataConnectionString()), DateLook::forLanguage(1));
    EXPECT_EQ(DbSessionFunctions::userDateLook(1, 0, QStringLiteral("Driver=SQLite;Data Source=/nonexistent/x.dat")),
        DateLook::forLanguage(0));
}

QD8_ON_BOTH_ENGINES(ControlCenterSession);

} // namespace
