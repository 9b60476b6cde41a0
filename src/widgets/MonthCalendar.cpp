#include "widgets/MonthCalendar.h"

#include "foundation/Language.h"
#include "widgets/ButtonWords_p.h"

#include <QCalendarWidget>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QTableView>
#include <QToolButton>
#include <QVBoxLayout>

namespace qd8 {

MonthCalendar::MonthCalendar(QWidget* parent)
    : QWidget(parent)
    , m_days(new QCalendarWidget(this))
    , m_title(new QLabel(this))
    , m_previous(new QToolButton(this))
    , m_next(new QToolButton(this))
{
    // Qt's own title counts Gregorian years only; ours comes from the date module.
    m_days->setNavigationBarVisible(false);
    m_days->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    m_days->setGridVisible(true);
    m_days->installEventFilter(this);
    for (QWidget* child : m_days->findChildren<QWidget*>())
        child->installEventFilter(this);
    m_title->setAlignment(Qt::AlignCenter);
    m_previous->setArrowType(Qt::LeftArrow);
    m_next->setArrowType(Qt::RightArrow);
    for (QToolButton* b : {m_previous, m_next}) {
        b->setFocusPolicy(Qt::NoFocus);
        b->setAutoRaise(true);
    }
    setFocusProxy(m_days);

    auto* top = new QHBoxLayout;
    top->addWidget(m_previous);
    top->addWidget(m_title, 1);
    top->addWidget(m_next);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(2, 2, 2, 2);
    layout->addLayout(top);
    layout->addWidget(m_days);

    connect(m_previous, &QToolButton::clicked, this, [this] { setSelectedDate(selectedDate().addMonths(-1)); });
    connect(m_next, &QToolButton::clicked, this, [this] { setSelectedDate(selectedDate().addMonths(1)); });
    connect(m_days, &QCalendarWidget::selectionChanged, this, &MonthCalendar::showTitle);
    connect(m_days, &QCalendarWidget::currentPageChanged, this, &MonthCalendar::showTitle);
    connect(m_days, &QCalendarWidget::clicked, this, [this](QDate d) { Q_EMIT picked(d); });
    setDateLook(m_look);
}

void MonthCalendar::setDateLook(const DateLook& look)
{
    m_look = look;
    // Weekday names in the user's language; the year is never shown by Qt here.
    m_days->setLocale(QLocale(isThai(look.languageId) ? QLocale::Thai : QLocale::English,
                              isThai(look.languageId) ? QLocale::Thailand : QLocale::UnitedStates));
    setButtonWords(m_previous, inLanguage(look.languageId, "เดือนก่อน (PgUp)", "Previous month (PgUp)"));
    setButtonWords(m_next, inLanguage(look.languageId, "เดือนถัดไป (PgDn)", "Next month (PgDn)"));
    m_title->setAccessibleName(inLanguage(look.languageId, "เดือน", "Month"));
    // The table of days inside Qt's calendar is what takes the focus.
    m_days->setAccessibleName(inLanguage(look.languageId, "วัน", "Days"));
    if (auto* days = m_days->findChild<QTableView*>())
        days->setAccessibleName(m_days->accessibleName());
    showTitle();
}

QDate MonthCalendar::selectedDate() const
{
    return m_days->selectedDate();
}

void MonthCalendar::setSelectedDate(QDate date)
{
    if (!date.isValid())
        return;
    m_days->setSelectedDate(date);
    m_days->setCurrentPage(date.year(), date.month());
    showTitle();
}

QString MonthCalendar::title() const
{
    return m_title->text();
}

void MonthCalendar::showTitle()
{
    const QDate d = selectedDate();
    m_title->setText(monthYearText(d.month(), d.year(), m_look));
}

void MonthCalendar::keyPressEvent(QKeyEvent* event)
{
    const QDate d = selectedDate();
    switch (event->key()) {
    case Qt::Key_Left: setSelectedDate(d.addDays(-1)); break;
    case Qt::Key_Right: setSelectedDate(d.addDays(1)); break;
    case Qt::Key_Up: setSelectedDate(d.addDays(-7)); break;
    case Qt::Key_Down: setSelectedDate(d.addDays(7)); break;
    case Qt::Key_PageUp: setSelectedDate(d.addMonths(-1)); break;
    case Qt::Key_PageDown: setSelectedDate(d.addMonths(1)); break;
    case Qt::Key_T: setSelectedDate(m_today); break;
    case Qt::Key_Return:
    case Qt::Key_Enter: Q_EMIT picked(d); break;
    case Qt::Key_Escape: Q_EMIT cancelled(); break;
    default: QWidget::keyPressEvent(event); return;
    }
    event->accept();
}

// The calendar's own view takes the keys first; they are ours, so that every key moves
// through the Buddhist-era title the same way.
bool MonthCalendar::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress) {
        auto* key = static_cast<QKeyEvent*>(event);
        if (key->modifiers() & (Qt::ControlModifier | Qt::AltModifier))
            return QWidget::eventFilter(watched, event);
        keyPressEvent(key);
        return key->isAccepted();
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace qd8
