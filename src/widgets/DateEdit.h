#pragma once

#include "foundation/DateText.h"

#include <QLineEdit>

namespace qd8 {

// A box for one date, typed as the date module reads it (either era, ISO, ddMMyyyy,
// two-digit years) and shown dd/MM/yyyy in the user's era. F4 or Alt+Down opens the
// one-month calendar through the picker service. Empty is acceptable; whether a date is
// required is the form's business.
class DateEdit : public QLineEdit {
    Q_OBJECT
    Q_PROPERTY(QDate date READ date WRITE setDate NOTIFY dateChanged USER true)

public:
    explicit DateEdit(QWidget* parent = nullptr);

    // The language of hints with its own era, or the era the user chose.
    void setLanguageId(int languageId);
    void setDateLook(const DateLook& look);
    const DateLook& dateLook() const { return m_look; }

    // The date typed; invalid when the box is empty or holds no date (text() has it as typed).
    QDate date() const;
    // Shows the date in the user's era; an invalid date empties the box.
    void setDate(QDate date);
    // The box holds a date (not merely acceptable input: empty is not a date).
    bool isValid() const { return date().isValid(); }
    // The day two-digit years are read around; today unless set.
    void setToday(QDate today) { m_today = today; }
    // Opens the calendar at the box's bottom left corner; the date picked replaces the text.
    void openCalendar();

Q_SIGNALS:
    // The date the box holds changed, by typing a whole date, by the calendar or by code.
    void dateChanged(QDate date);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void showDate();
    void noticeChange();

    DateLook m_look;
    QDate m_today;
    QDate m_last;
};

} // namespace qd8
