#pragma once

#include "foundation/DateText.h"

#include <QList>
#include <QWidget>

class QLabel;
class QToolButton;

namespace qd8 {

// Twelve months of one year to pick from, under the year in the user's era. Keyboard:
// Left/Right move a month, Up/Down a row of three, PgUp/PgDn a year, T goes to this month,
// Enter picks, Escape gives up. A click on a month picks it too.
class MonthYearView : public QWidget {
    Q_OBJECT

public:
    // Style 0 shows full month names; any other style their short names.
    enum Style { FullNames = 0, ShortNames = 1 };

    explicit MonthYearView(QWidget* parent = nullptr);

    void setDateLook(const DateLook& look);
    void setStyle(int style);
    int style() const { return m_style; }
    int month() const { return m_month; }
    int year() const { return m_year; }  // Gregorian
    // Out-of-range months are refused.
    void setMonthYear(int month, int year);
    // The month T goes to; this month unless set.
    void setToday(QDate today) { m_today = today; }
    // The view's text of a choice: "มีนาคม 2569", "Mar 2026" (short names in the short style).
    static QString choiceText(int month, int year, int style, const DateLook& look);
    QString choiceText() const { return choiceText(m_month, m_year, m_style, m_look); }
    QString yearText() const;

Q_SIGNALS:
    void picked(int month, int year);
    void cancelled();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void move(int months);
    void showChoice();

    DateLook m_look;
    int m_style = FullNames;
    int m_month = QDate::currentDate().month();
    int m_year = QDate::currentDate().year();
    QDate m_today = QDate::currentDate();
    QLabel* m_yearLabel;
    QList<QToolButton*> m_months;
};

} // namespace qd8
