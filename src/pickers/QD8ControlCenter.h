#pragma once

#include "foundation/DateText.h"
#include "widgets/HostedControl.h"

#include <QDate>
#include <QDateTime>
#include <optional>

namespace qd8 {

// The invisible service control through which forms ask for a date, a date and time or a
// month: each method opens its picker at the given screen position (kept on screen),
// waits for the user and returns the choice. The pickers show the session language
// (SetLast2 reads it) with the user's era.
class QD8ControlCenter : public HostedControl {
    Q_OBJECT

public:
    explicit QD8ControlCenter(QWidget* parent = nullptr);

    // The language with its own era unless set: a host that read the user's "DateEra"
    // setting hands it over here.
    void setDateLook(const DateLook& look) { m_look = look; }
    DateLook dateLook() const;

    // A day of the one-month calendar; an invalid date when the user gave up.
    QDate SelectMonthView(const QDate& DefaultDate, qint32& iLeft, qint32& iTop);
    // A day and a time; an invalid date-time when the user gave up.
    QDateTime SelectMonthViewWithTime(const QDate& DefaultDate, qint32& iLeft, qint32& iTop);
    // "month;year;view text" of the month picked (3;2026;มีนาคม 2569), "" when the user gave up.
    Q_INVOKABLE QString SelectMonthYearView(int DefaultMonth, int DefaultYear, int Style, qint32 Left, qint32 Top);
    // The first day of the month picked, whatever day DefaultDate has; invalid when the
    // user gave up.
    Q_INVOKABLE QDate SelectMonthYearViewDate(const QDate& DefaultDate, int Style, qint32 Left, qint32 Top);

private:
    std::optional<DateLook> m_look;
};

} // namespace qd8
