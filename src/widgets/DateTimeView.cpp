#include "widgets/DateTimeView.h"

#include "foundation/Language.h"
#include "widgets/MonthCalendar.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QTimeEdit>
#include <QVBoxLayout>

namespace qd8 {

DateTimeView::DateTimeView(QWidget* parent)
    : QWidget(parent)
    , m_calendar(new MonthCalendar(this))
    , m_time(new QTimeEdit(this))
{
    m_time->setDisplayFormat(QStringLiteral("HH:mm"));
    m_time->installEventFilter(this);
    auto* timeRow = new QHBoxLayout;
    timeRow->addStretch(1);
    timeRow->addWidget(m_time);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 4);
    layout->addWidget(m_calendar);
    layout->addLayout(timeRow);
    setFocusProxy(m_calendar);
    setTabOrder(m_calendar, m_time);
    connect(m_calendar, &MonthCalendar::picked, this, [this] { Q_EMIT picked(dateTime()); });
    connect(m_calendar, &MonthCalendar::cancelled, this, &DateTimeView::cancelled);
    setDateLook(DateLook());
}

void DateTimeView::setDateLook(const DateLook& look)
{
    m_calendar->setDateLook(look);
    m_time->setToolTip(inLanguage(look.languageId, "เวลา (ชช:นน)", "Time (hh:mm)"));
    m_time->setAccessibleName(inLanguage(look.languageId, "เวลา", "Time"));
}

QDateTime DateTimeView::dateTime() const
{
    return QDateTime(m_calendar->selectedDate(), QTime(m_time->time().hour(), m_time->time().minute()));
}

void DateTimeView::setDateTime(const QDateTime& dateTime)
{
    if (!dateTime.isValid())
        return;
    m_calendar->setSelectedDate(dateTime.date());
    m_time->setTime(dateTime.time());
}

bool DateTimeView::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_time && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            Q_EMIT picked(dateTime());
            return true;
        }
        if (key == Qt::Key_Escape) {
            Q_EMIT cancelled();
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace qd8
