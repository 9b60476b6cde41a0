#include "support/ScriptedServices.h"

#include "foundation/Services.h"
#include "widgets/DateEdit.h"
#include "widgets/DateTimeView.h"
#include "widgets/DefaultServices_p.h"
#include "widgets/MonthCalendar.h"
#include "widgets/MonthYearView.h"
#include "widgets/PickerPopup_p.h"
#include "widgets/frmInputMultiLine.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>
#include <QTimeEdit>
#include <QTimer>

#include <gtest/gtest.h>

using namespace qd8;
using namespace qd8::test;

namespace {

const QDate Today(2026, 5, 15);
const DateLook Thai = DateLook::forLanguage(0);
const DateLook English = DateLook::forLanguage(1);

// "Left Left PgDn" and the like.
void press(QWidget* w, const QString& keys)
{
    static const QHash<QString, Qt::Key> names{{"Left", Qt::Key_Left}, {"Right", Qt::Key_Right}, {"Up", Qt::Key_Up},
        {"Down", Qt::Key_Down}, {"PgUp", Qt::Key_PageUp}, {"PgDn", Qt::Key_PageDown}, {"T", Qt::Key_T}};
    for (const QString& k : keys.split(u' ', Qt::SkipEmptyParts))
        QTest::keyClick(w, names.value(k));
}

struct CalendarKeys { const char* keys; QDate expected; };

class MonthCalendarKeys : public testing::TestWithParam<CalendarKeys> {};

TEST_P(MonthCalendarKeys, MoveTheDayAndEnterPicksIt)
{
    MonthCalendar calendar;
    calendar.setToday(Today);
    calendar.setSelectedDate(QDate(2024, 2, 28));
    QSignalSpy picked(&calendar, &MonthCalendar::picked);
    press(&calendar, QString::fromLatin1(GetParam().keys));
    EXPECT_EQ(calendar.selectedDate(), GetParam().expected);
    QTest::keyClick(&calendar, Qt::Key_Return);
    ASSERT_EQ(picked.size(), 1);
    EXPECT_EQ(picked[0][0].toDate(), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Cases, MonthCalendarKeys, testing::Values(
    CalendarKeys{"", QDate(2024, 2, 28)},
    CalendarKeys{"Right", QDate(2024, 2, 29)},
    CalendarKeys{"Right Right", QDate(2024, 3, 1)},
    CalendarKeys{"Left Up", QDate(2024, 2, 20)},
    CalendarKeys{"Down", QDate(2024, 3, 6)},
    CalendarKeys{"PgUp", QDate(2024, 1, 28)},
    CalendarKeys{"PgDn PgDn PgDn PgDn PgDn PgDn PgDn PgDn PgDn PgDn PgDn PgDn", QDate(2025, 2, 28)},
    CalendarKeys{"T", Today}));

TEST(MonthCalendar, ShowsTheMonthInTheUsersLanguageAndEraAndEscapeGivesUp)
{
    MonthCalendar calendar;
    calendar.setSelectedDate(QDate(2026, 3, 15));
    calendar.setDateLook(Thai);
    EXPECT_EQ(calendar.title(), QStringLiteral("มีนาคม 2569"));
    QTest::keyClick(&calendar, Qt::Key_PageDown);
    EXPECT_EQ(calendar.title(), QStringLiteral("เมษายน 2569"));
    calendar.setDateLook(English);
    EXPECT_EQ(calendar.title(), QStringLiteral("April 2026"));
    QSignalSpy cancelled(&calendar, &MonthCalendar::cancelled);
    QSignalSpy picked(&calendar, &MonthCalendar::picked);
    QTest::keyClick(&calendar, Qt::Key_Escape);
    EXPECT_EQ(cancelled.size(), 1);
    EXPECT_EQ(picked.size(), 0);
}

struct MonthKeys { const char* keys; int month, year; };

class MonthYearViewKeys : public testing::TestWithParam<MonthKeys> {};

TEST_P(MonthYearViewKeys, MoveTheMonthAndEnterPicksIt)
{
    MonthYearView view;
    view.setToday(Today);
    view.setMonthYear(1, 2026);
    QSignalSpy picked(&view, &MonthYearView::picked);
    press(&view, QString::fromLatin1(GetParam().keys));
    QTest::keyClick(&view, Qt::Key_Enter);
    ASSERT_EQ(picked.size(), 1);
    EXPECT_EQ(picked[0][0].toInt(), GetParam().month);
    EXPECT_EQ(picked[0][1].toInt(), GetParam().year);
}

INSTANTIATE_TEST_SUITE_P(Cases, MonthYearViewKeys, testing::Values(
    MonthKeys{"", 1, 2026},
    MonthKeys{"Left", 12, 2025},
    MonthKeys{"Right Down", 5, 2026},
    MonthKeys{"Up", 10, 2025},
    MonthKeys{"PgDn PgDn", 1, 2028},
    MonthKeys{"PgUp Right", 2, 2025},
    MonthKeys{"PgUp T", 5, 2026}));

TEST(MonthYearView, ShowsTheYearInTheUsersEraAndEscapeGivesUp)
{
    MonthYearView view;
    view.setMonthYear(3, 2026);
    view.setDateLook(Thai);
    EXPECT_EQ(view.choiceText(), QStringLiteral("มีนาคม 2569"));
    view.setStyle(MonthYearView::ShortNames);
    view.setDateLook(English);
    EXPECT_EQ(view.choiceText(), QStringLiteral("Mar 2026"));
    view.setMonthYear(13, 2026);  // refused
    EXPECT_EQ(view.month(), 3);
    QSignalSpy cancelled(&view, &MonthYearView::cancelled);
    QTest::keyClick(&view, Qt::Key_Escape);
    EXPECT_EQ(cancelled.size(), 1);
}

TEST(DateTimeView, EnterInTheTimePicksTheDayAtThatTime)
{
    DateTimeView view;
    view.setDateTime(QDateTime(QDate(2026, 5, 15), QTime(9, 30)));
    QSignalSpy picked(&view, &DateTimeView::picked);
    press(view.calendar(), QStringLiteral("Right"));
    view.timeEdit()->setTime(QTime(16, 45));
    QTest::keyClick(view.timeEdit(), Qt::Key_Return);
    ASSERT_EQ(picked.size(), 1);
    EXPECT_EQ(picked[0][0].toDateTime(), QDateTime(QDate(2026, 5, 16), QTime(16, 45)));
    QSignalSpy cancelled(&view, &DateTimeView::cancelled);
    QTest::keyClick(view.timeEdit(), Qt::Key_Escape);
    QTest::keyClick(view.calendar(), Qt::Key_Escape);
    EXPECT_EQ(cancelled.size(), 2);
}

struct Typed {
    int languageId;
    const char* typed;
    QDate date;
    const char* shown;  // after the box is left
    bool acceptable;
};

class DateEditTyping : public testing::TestWithParam<Typed> {};

TEST_P(DateEditTyping, ReadsWhatTheModuleReadsAndShowsItInTheUsersEra)
{
    const Typed& t = GetParam();
    DateEdit box;
    box.setToday(Today);
    box.setLanguageId(t.languageId);
    QTest::keyClicks(&box, QString::fromUtf8(t.typed));
    EXPECT_EQ(box.date(), t.date);
    EXPECT_EQ(box.hasAcceptableInput(), t.acceptable);
    Q_EMIT box.editingFinished();
    EXPECT_EQ(box.text(), QString::fromUtf8(t.shown));
}

INSTANTIATE_TEST_SUITE_P(Cases, DateEditTyping, testing::Values(
    Typed{0, "15052569", QDate(2026, 5, 15), "15/05/2569", true},
    Typed{1, "15/5/2569", QDate(2026, 5, 15), "15/05/2026", true},
    Typed{0, "29/02/2566", QDate(), "29/02/2566", false},
    Typed{1, "15x05", QDate(), "1505", false},  // letters are not typed at all
    Typed{1, "", QDate(), "", true}));

TEST(DateEdit, F4AndAltDownOpenTheCalendarAtTheBoxAndTakeTheDayPicked)
{
    installScriptedServices();
    DateEdit box;
    box.setLanguageId(0);
    box.setDate(QDate(2024, 2, 29));
    EXPECT_EQ(box.text(), QStringLiteral("29/02/2567"));
    QSignalSpy changed(&box, &DateEdit::dateChanged);
    scriptedPicker().dateAnswers = {QDateTime(QDate(2026, 1, 5), QTime())};
    QTest::keyClick(&box, Qt::Key_F4);
    ASSERT_EQ(scriptedPicker().dateAsks.size(), 1);
    const auto& ask = scriptedPicker().dateAsks[0];
    EXPECT_EQ(ask.kind, QStringLiteral("date"));
    EXPECT_EQ(ask.initial.date(), QDate(2024, 2, 29));
    EXPECT_EQ(ask.position, box.mapToGlobal(box.rect().bottomLeft()));
    EXPECT_EQ(ask.look, Thai);
    EXPECT_EQ(box.text(), QStringLiteral("05/01/2569"));
    EXPECT_EQ(changed.size(), 1);
    QTest::keyClick(&box, Qt::Key_Down, Qt::AltModifier);  // nothing picked: the date stays
    EXPECT_EQ(scriptedPicker().dateAsks.size(), 2);
    box.setDateLook(DateLook::forLanguage(0, QStringLiteral("2")));
    EXPECT_EQ(box.text(), QStringLiteral("05/01/2026"));
}

TEST(PickerPopup, StaysWholeOnTheScreenAtThePointAsked)
{
    const QRect area = QGuiApplication::primaryScreen()->availableGeometry();
    const QSize size(200, 150);
    const struct { QPoint wanted, expected; } cases[] = {
        {area.topLeft() + QPoint(10, 20), area.topLeft() + QPoint(10, 20)},
        {area.bottomRight(), area.bottomRight() - QPoint(199, 149)},
        {QPoint(area.right() - 50, area.top() + 5), QPoint(area.right() - 199, area.top() + 5)},
        {QPoint(area.left() - 500, area.bottom() + 900), QPoint(area.left(), area.bottom() - 149)},
    };
    for (const auto& c : cases)
        EXPECT_EQ(PickerPopup::keptOnScreen(c.wanted, size), c.expected) << c.wanted.x() << "," << c.wanted.y();
}

TEST(frmInputMultiLine, OkCopiesTheTextAndCancelLeavesTheResultEmpty)
{
    for (const bool ok : {true, false}) {
        frmInputMultiLine form(1);
        form.setText(QStringLiteral("บรรทัดแรก\nsecond line"));
        auto* buttons = form.findChild<QDialogButtonBox*>();
        buttons->button(ok ? QDialogButtonBox::Ok : QDialogButtonBox::Cancel)->click();
        EXPECT_EQ(form.result(), ok ? QStringLiteral("บรรทัดแรก\nsecond line") : QString());
        EXPECT_EQ(form.QDialog::result(), ok ? QDialog::Accepted : QDialog::Rejected);
    }
}

// The Qt pickers themselves, driven by keys once they show: placed on screen, keys reach
// the view, Enter picks and Escape gives up.
TEST(DialogPickerService, PickersOpenOnScreenAndAnswerTheKeys)
{
    DialogPickerService service;
    const QRect area = QGuiApplication::primaryScreen()->availableGeometry();
    QRect shownAt;
    const auto whenShown = [&shownAt](QList<int> keys) {
        QTimer::singleShot(0, [&shownAt, keys] {
            QWidget* popup = QApplication::activeModalWidget();
            if (!popup) {
                ADD_FAILURE() << "no picker is showing";
                return;
            }
            shownAt = popup->frameGeometry();
            for (int key : keys)
                QTest::keyClick(popup->focusWidget() ? popup->focusWidget() : popup, Qt::Key(key));
        });
    };
    whenShown({Qt::Key_Right, Qt::Key_PageDown, Qt::Key_Return});
    EXPECT_EQ(service.pickMonth(QDate(2026, 3, 20), 0, area.bottomRight(), Thai), QDate(2027, 4, 1));
    EXPECT_TRUE(area.contains(shownAt)) << shownAt.x() << "," << shownAt.y();
    whenShown({Qt::Key_Down, Qt::Key_Return});
    EXPECT_EQ(service.pickDate(QDate(2024, 2, 22), area.topLeft(), English), QDate(2024, 2, 29));
    EXPECT_EQ(shownAt.topLeft(), area.topLeft());
    whenShown({Qt::Key_Escape});
    EXPECT_EQ(service.pickDateTime(QDateTime(QDate(2024, 2, 22), QTime(8, 0)), area.topLeft(), English), QDateTime());
}

} // namespace
