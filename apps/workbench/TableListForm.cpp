#include "TableListForm.h"

#include "foundation/CommaList.h"
#include "foundation/Connection.h"
#include "foundation/DbError.h"
#include "foundation/Recordset.h"
#include "foundation/Services.h"
#include "foundation/Values.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

namespace qd8 {

TableListForm::TableListForm(const TableListDefinition& definition, QWidget* parent)
    : HostedControl(parent)
    , m_definition(definition)
    , m_search(new QLineEdit(this))
    , m_table(new QTableWidget(this))
    , m_total(new QLabel(this))
{
    m_search->setClearButtonEnabled(true);
    auto* print = new QPushButton(this);
    auto* close = new QPushButton(this);
    print->setObjectName(QStringLiteral("print"));
    close->setObjectName(QStringLiteral("close"));
    auto* bar = new QHBoxLayout;
    bar->addWidget(m_search, 1);
    bar->addWidget(m_total);
    bar->addWidget(print);
    bar->addWidget(close);
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->verticalHeader()->setVisible(false);
    m_table->horizontalHeader()->setStretchLastSection(true);
    m_table->installEventFilter(this);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(bar);
    layout->addWidget(m_table, 1);
    connect(m_search, &QLineEdit::returnPressed, this, &TableListForm::Refresh);
    connect(m_search, &QLineEdit::textChanged, this, [this](const QString& text) {
        if (text.isEmpty())
            Refresh();
    });
    connect(print, &QPushButton::clicked, this, [this] { Q_EMIT PrintAutoClick(statement(), 0, captionList()); });
    connect(close, &QPushButton::clicked, this, &TableListForm::CloseButtonClick);
    connect(m_table, &QTableWidget::cellDoubleClicked, this, &TableListForm::launchCurrent);
}

QString TableListForm::withSuffix(QString text) const
{
    return text.replace(QStringLiteral("{N}"), nameSuffix());
}

QString TableListForm::caption() const
{
    return inLanguage(LanguageID(), m_definition.title, m_definition.title2);
}

QString TableListForm::captionList() const
{
    return inLanguage(LanguageID(), m_definition.captions, m_definition.captions2);
}

QString TableListForm::statement() const
{
    Sql sql = Sql("SELECT ") + withSuffix(m_definition.fields) + " FROM " + m_definition.from;
    QStringList conditions;
    if (!m_definition.where.isEmpty())
        conditions << m_definition.where;
    const QString search = m_search->text().trimmed();
    if (!search.isEmpty()) {
        QStringList terms;
        if (search.contains(QLatin1Char('\'')))
            terms << QStringLiteral("1=0");  // a quote cannot be searched for; nothing matches
        else
            for (const QString& field : splitList(withSuffix(m_definition.searchFields)))
                terms << field + QStringLiteral(" LIKE '%") + search + QStringLiteral("%'");
        conditions << QLatin1Char('(') + terms.join(QStringLiteral(" OR ")) + QLatin1Char(')');
    }
    if (!conditions.isEmpty())
        sql = sql + " WHERE " + conditions.join(QStringLiteral(" AND "));
    if (!m_definition.order.isEmpty())
        sql = sql + " ORDER BY " + withSuffix(m_definition.order);
    return sql.text();
}

void TableListForm::Refresh()
{
    // The host refreshes after the session language changed: the words follow.
    m_search->setPlaceholderText(bilingual("ค้นหา", "Search"));
    m_search->setAccessibleName(m_search->placeholderText());
    m_table->setAccessibleName(caption());
    findChild<QPushButton*>(QStringLiteral("print"))->setText(bilingual("พิมพ์", "Print"));
    findChild<QPushButton*>(QStringLiteral("close"))->setText(bilingual("ปิด", "Close"));
    const QStringList captions = splitList(captionList());
    m_table->setColumnCount(int(captions.size()));
    m_table->setHorizontalHeaderLabels(captions);
    m_table->setRowCount(0);
    try {
        Connection c;
        c.open(m_definition.onCatalogue ? AppConnectionString() : DataConnectionString());
        Recordset rs;
        rs.open(Sql(statement()), c);
        m_table->setRowCount(int(rs.recordCount()));
        for (int row = 0; !rs.eof(); rs.moveNext(), ++row)
            for (int column = 0; column < m_table->columnCount() && column < rs.fieldCount(); ++column)
                m_table->setItem(row, column, new QTableWidgetItem(text(rs.field(column))));
    } catch (const DbError& error) {
        Services::messages().critical(caption(), error.report(LanguageID()));
    }
    m_table->resizeColumnsToContents();
    m_total->setText(QStringLiteral("%1 %2").arg(m_table->rowCount()).arg(bilingual("รายการ", "rows")));
    if (m_table->rowCount() > 0)
        m_table->selectRow(0);
}

void TableListForm::launchCurrent()
{
    const int row = m_table->currentRow();
    if (!m_definition.launches || row < 0 || !m_table->item(row, 0))
        return;
    QString alias = m_table->item(row, 0)->text();
    Q_EMIT Lunch(alias);
}

bool TableListForm::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_table && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            launchCurrent();
            return true;
        }
    }
    return HostedControl::eventFilter(watched, event);
}

} // namespace qd8
