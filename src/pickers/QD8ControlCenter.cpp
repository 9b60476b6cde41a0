#include "pickers/QD8ControlCenter.h"

#include "foundation/Services.h"
#include "widgets/MonthYearView.h"

namespace qd8 {

QD8ControlCenter::QD8ControlCenter(QWidget* parent)
    : HostedControl(parent)
{
    setVisible(false);
}

DateLook QD8ControlCenter::dateLook() const
{
    return m_look.value_or(DateLook::forLanguage(LanguageID()));
}

QDate QD8ControlCenter::SelectMonthView(const QDate& DefaultDate, qint32& iLeft, qint32& iTop)
{
    return Services::picker().pickDate(DefaultDate, QPoint(iLeft, iTop), dateLook());
}

QDateTime QD8ControlCenter::SelectMonthViewWithTime(const QDate& DefaultDate, qint32& iLeft, qint32& iTop)
{
    return Services::picker().pickDateTime(DefaultDate.startOfDay(), QPoint(iLeft, iTop), dateLook());
}

QString QD8ControlCenter::SelectMonthYearView(int DefaultMonth, int DefaultYear, int Style, qint32 Left, qint32 Top)
{
    const DateLook look = dateLook();
    const QDate picked = Services::picker().pickMonth(QDate(DefaultYear, DefaultMonth, 1), Style, QPoint(Left, Top), look);
    if (!picked.isValid())
        return {};
    return QStringLiteral("%1;%2;%3")
        .arg(picked.month())
        .arg(picked.year())
        .arg(MonthYearView::choiceText(picked.month(), picked.year(), Style, look));
}

QDate QD8ControlCenter::SelectMonthYearViewDate(const QDate& DefaultDate, int Style, qint32 Left, qint32 Top)
{
    const QDate picked = Services::picker().pickMonth(DefaultDate, Style, QPoint(Left, Top), dateLook());
    return picked.isValid() ? QDate(picked.year(), picked.month(), 1) : QDate();
}

} // namespace qd8
