#include "widgets/DateEdit.h"

#include "foundation/Language.h"
#include "foundation/Services.h"

#include <QKeyEvent>
#include <QValidator>

namespace qd8 {

namespace {

// Digits, separators, blanks: anything else cannot become a date, so it is not typed at
// all. Acceptable is a date or nothing.
class DateValidator : public QValidator {
public:
    explicit DateValidator(DateEdit* box)
        : QValidator(box)
        , m_box(box)
    {
    }

    State validate(QString& input, int&) const override
    {
        if (input.trimmed().isEmpty())
            return Acceptable;
        for (const QChar c : input) {
            if (c.digitValue() < 0 && !QStringView(u"/.- ").contains(c))
                return Invalid;
        }
        return parseDate(input, m_box->dateLook().era).has_value() ? Acceptable : Intermediate;
    }

private:
    DateEdit* m_box;
};

} // namespace

DateEdit::DateEdit(QWidget* parent)
    : QLineEdit(parent)
{
    setValidator(new DateValidator(this));
    setLanguageId(0);
    connect(this, &QLineEdit::textChanged, this, &DateEdit::noticeChange);
    // A whole date typed in any accepted form is shown back in the one form.
    connect(this, &QLineEdit::editingFinished, this, &DateEdit::showDate);
}

void DateEdit::setLanguageId(int languageId)
{
    setDateLook(DateLook::forLanguage(languageId));
}

void DateEdit::setDateLook(const DateLook& look)
{
    const QDate d = date();
    m_look = look;
    setPlaceholderText(datePattern(look.languageId));
    setToolTip(inLanguage(look.languageId, "วันที่ %1 (F4: ปฏิทิน)", "Date %1 (F4: calendar)").arg(datePattern(look.languageId)));
    if (d.isValid())
        setDate(d);
}

QDate DateEdit::date() const
{
    return parseDate(text(), m_look.era, m_today.isValid() ? m_today : QDate::currentDate()).value_or(QDate());
}

void DateEdit::setDate(QDate date)
{
    setText(dateText(date, m_look.era));
}

void DateEdit::openCalendar()
{
    const QDate initial = date().isValid() ? date() : (m_today.isValid() ? m_today : QDate::currentDate());
    const QDate picked = Services::picker().pickDate(initial, mapToGlobal(rect().bottomLeft()), m_look);
    if (!picked.isValid())
        return;
    setDate(picked);
    Q_EMIT editingFinished();
}

void DateEdit::keyPressEvent(QKeyEvent* event)
{
    const bool altDown = event->key() == Qt::Key_Down && (event->modifiers() & Qt::AltModifier);
    if (event->key() == Qt::Key_F4 || altDown) {
        openCalendar();
        event->accept();
        return;
    }
    QLineEdit::keyPressEvent(event);
}

void DateEdit::focusOutEvent(QFocusEvent* event)
{
    QLineEdit::focusOutEvent(event);
    showDate();
}

void DateEdit::showDate()
{
    const QDate d = date();
    if (d.isValid() && text() != dateText(d, m_look.era))
        setDate(d);
}

void DateEdit::noticeChange()
{
    const QDate d = date();
    if (d == m_last)
        return;
    m_last = d;
    Q_EMIT dateChanged(d);
}

} // namespace qd8
