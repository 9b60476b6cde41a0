#include "widgets/MonthYearView.h"

#include "foundation/Language.h"
#include "widgets/ButtonWords_p.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

namespace qd8 {

namespace {

constexpr int Columns = 3;

} // namespace

MonthYearView::MonthYearView(QWidget* parent)
    : QWidget(parent)
    , m_yearLabel(new QLabel(this))
{
    setFocusPolicy(Qt::StrongFocus);
    auto* previous = new QToolButton(this);
    auto* next = new QToolButton(this);
    previous->setArrowType(Qt::LeftArrow);
    next->setArrowType(Qt::RightArrow);
    previous->setObjectName(QStringLiteral("previousYear"));
    next->setObjectName(QStringLiteral("nextYear"));
    m_yearLabel->setAlignment(Qt::AlignCenter);
    QFont bold = m_yearLabel->font();
    bold.setBold(true);
    m_yearLabel->setFont(bold);
    auto* top = new QHBoxLayout;
    top->addWidget(previous);
    top->addWidget(m_yearLabel, 1);
    top->addWidget(next);

    auto* grid = new QGridLayout;
    grid->setSpacing(2);
    for (int m = 1; m <= 12; ++m) {
        auto* button = new QToolButton(this);
        button->setCheckable(true);
        button->setAutoRaise(true);
        button->setToolButtonStyle(Qt::ToolButtonTextOnly);
        button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
        button->setMinimumSize(72, 28);
        connect(button, &QToolButton::clicked, this, [this, m] {
            setMonthYear(m, m_year);
            Q_EMIT picked(m_month, m_year);
        });
        grid->addWidget(button, (m - 1) / Columns, (m - 1) % Columns);
        m_months << button;
    }
    for (QToolButton* b : {previous, next})
        b->setAutoRaise(true);
    for (QToolButton* b : findChildren<QToolButton*>())
        b->setFocusPolicy(Qt::NoFocus);
    connect(previous, &QToolButton::clicked, this, [this] { move(-12); });
    connect(next, &QToolButton::clicked, this, [this] { move(12); });

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->addLayout(top);
    layout->addLayout(grid);
    setDateLook(m_look);
}

void MonthYearView::setDateLook(const DateLook& look)
{
    m_look = look;
    setButtonWords(findChild<QToolButton*>(QStringLiteral("previousYear")), inLanguage(look.languageId, "ปีก่อน", "Previous year"));
    setButtonWords(findChild<QToolButton*>(QStringLiteral("nextYear")), inLanguage(look.languageId, "ปีถัดไป", "Next year"));
    m_yearLabel->setAccessibleName(inLanguage(look.languageId, "ปี", "Year"));
    showChoice();
}

void MonthYearView::setStyle(int style)
{
    m_style = style;
    showChoice();
}

void MonthYearView::setMonthYear(int month, int year)
{
    if (month < 1 || month > 12 || !QDate(year, month, 1).isValid())
        return;
    m_month = month;
    m_year = year;
    showChoice();
}

QString MonthYearView::choiceText(int month, int year, int style, const DateLook& look)
{
    const QString name = style == FullNames ? monthName(month, look.languageId) : shortMonthName(month, look.languageId);
    return name + u' ' + QString::number(shownYear(year, look.era));
}

QString MonthYearView::yearText() const
{
    return m_yearLabel->text();
}

void MonthYearView::move(int months)
{
    const QDate d = QDate(m_year, m_month, 1).addMonths(months);
    setMonthYear(d.month(), d.year());
}

void MonthYearView::showChoice()
{
    m_yearLabel->setText(QString::number(shownYear(m_year, m_look.era)));
    for (int m = 1; m <= 12; ++m) {
        QToolButton* b = m_months[m - 1];
        b->setText(m_style == FullNames ? monthName(m, m_look.languageId) : shortMonthName(m, m_look.languageId));
        b->setAccessibleName(monthName(m, m_look.languageId));
        b->setChecked(m == m_month);
    }
    setAccessibleName(choiceText());
}

void MonthYearView::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Left: move(-1); break;
    case Qt::Key_Right: move(1); break;
    case Qt::Key_Up: move(-Columns); break;
    case Qt::Key_Down: move(Columns); break;
    case Qt::Key_PageUp: move(-12); break;
    case Qt::Key_PageDown: move(12); break;
    case Qt::Key_T: setMonthYear(m_today.month(), m_today.year()); break;
    case Qt::Key_Return:
    case Qt::Key_Enter: Q_EMIT picked(m_month, m_year); break;
    case Qt::Key_Escape: Q_EMIT cancelled(); break;
    default: QWidget::keyPressEvent(event); return;
    }
    event->accept();
}

} // namespace qd8
