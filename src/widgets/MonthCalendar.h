#pragma once

#include "foundation/DateText.h"

#include <QDate>
#include <QWidget>

class QCalendarWidget;
class QLabel;
class QToolButton;

namespace qd8 {

// The one-month calendar: a month's days under a title in the user's language and era
// ("มีนาคม 2569"). Keyboard: arrows move a day or a week, PgUp/PgDn a month, T goes to
// today, Enter picks the day, Escape gives up. A click on a day picks it too.
class MonthCalendar : public QWidget {
    Q_OBJECT

public:
    explicit MonthCalendar(QWidget* parent = nullptr);

    void setDateLook(const DateLook& look);
    const DateLook& dateLook() const { return m_look; }
    QDate selectedDate() const;
    void setSelectedDate(QDate date);
    // The day T goes to; today unless set.
    void setToday(QDate today) { m_today = today; }
    // The title as shown: month name and year.
    QString title() const;

Q_SIGNALS:
    void picked(QDate date);
    void cancelled();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void showTitle();

    DateLook m_look;
    QDate m_today = QDate::currentDate();
    QCalendarWidget* m_days;
    QLabel* m_title;
    QToolButton* m_previous;
    QToolButton* m_next;
};

} // namespace qd8
