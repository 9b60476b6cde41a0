#pragma once

#include "foundation/DateText.h"

#include <QDateTime>
#include <QWidget>

class QTimeEdit;

namespace qd8 {

class MonthCalendar;

// A day of the one-month calendar and a time (HH:mm) below it. The calendar has the
// keys of MonthCalendar; Tab goes to the time, where Up/Down change it. Enter in either
// picks the day at that time, Escape gives up.
class DateTimeView : public QWidget {
    Q_OBJECT

public:
    explicit DateTimeView(QWidget* parent = nullptr);

    void setDateLook(const DateLook& look);
    QDateTime dateTime() const;
    void setDateTime(const QDateTime& dateTime);
    MonthCalendar* calendar() const { return m_calendar; }
    QTimeEdit* timeEdit() const { return m_time; }

Q_SIGNALS:
    void picked(const QDateTime& dateTime);
    void cancelled();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    MonthCalendar* m_calendar;
    QTimeEdit* m_time;
};

} // namespace qd8
