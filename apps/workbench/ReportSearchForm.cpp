#include "ReportSearchForm.h"

#include "foundation/Connection.h"
#include "foundation/DbError.h"
#include "foundation/Recordset.h"
#include "foundation/Services.h"
#include "navigation/CommandCatalogue.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace qd8 {

namespace {

// What a report item is found by, upper case.
constexpr int SearchRole = Qt::UserRole + 1;

} // namespace

ReportSearchForm::ReportSearchForm(QWidget* parent)
    : HostedControl(parent)
    , m_search(new QLineEdit(this))
    , m_tree(new QTreeWidget(this))
{
    m_search->setClearButtonEnabled(true);
    m_search->installEventFilter(this);
    m_tree->setColumnCount(2);
    m_tree->setRootIsDecorated(true);
    m_tree->setUniformRowHeights(true);
    m_tree->header()->setStretchLastSection(true);
    m_tree->installEventFilter(this);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_search);
    layout->addWidget(m_tree, 1);
    connect(m_search, &QLineEdit::textChanged, this, &ReportSearchForm::narrow);
    connect(m_tree, &QTreeWidget::itemActivated, this, [this](QTreeWidgetItem* item) { launch(item); });
    setFocusProxy(m_search);
}

QString ReportSearchForm::caption() const
{
    return bilingual("ค้นหารายงาน", "Report Search");
}

void ReportSearchForm::Refresh()
{
    m_search->setPlaceholderText(bilingual("พิมพ์ชื่อ เลขที่ หรือรหัสรายงาน", "Type a report's name, number or alias"));
    m_search->setAccessibleName(bilingual("ค้นหารายงาน", "Search reports"));
    m_tree->setAccessibleName(bilingual("รายงาน", "Reports"));
    m_tree->setHeaderLabels({bilingual("รายงาน", "Report"), bilingual("เลขที่รายงาน", "Report No.")});
    m_tree->clear();
    try {
        Connection c;
        c.open(AppConnectionString());
        Recordset rs;
        rs.open(Sql("SELECT TCmdAlias, TCmdName, TCmdName2, TCmdReportno2, TCmGAlias, TCmGName, TCmGName2 FROM QD8VCommand "
                    "WHERE TCmdType='R' AND TCmdActiveStatus=1 AND TCmdFlag1=1 AND TCmGFlag1=1 ORDER BY TCmGSort, TCmdSort"),
            c);
        QTreeWidgetItem* module = nullptr;
        for (; !rs.eof(); rs.moveNext()) {
            // A name missing in one language shows the other's.
            const auto named = [&rs, this](const char* stem) {
                const QString thai = rs.text(QLatin1String(stem)), english = rs.text(QLatin1String(stem) + QStringLiteral("2"));
                const QString& shown = inLanguage(LanguageID(), thai, english);
                // Plain text here: a doubled "&" is one ampersand.
                return CommandCatalogue::withoutAccelerators(shown.isEmpty() ? (thai.isEmpty() ? english : thai) : shown)
                    .replace(QStringLiteral("&&"), QStringLiteral("&"));
            };
            const QString group = rs.text(QStringLiteral("TCmGAlias"));
            if (!module || module->data(0, Qt::UserRole).toString() != group) {
                module = new QTreeWidgetItem(m_tree, {named("TCmGName")});
                module->setData(0, Qt::UserRole, group);
                module->setFlags(Qt::ItemIsEnabled);
                module->setExpanded(true);
            }
            const QString alias = rs.text(QStringLiteral("TCmdAlias"));
            auto* report = new QTreeWidgetItem(module, {named("TCmdName"), rs.text(QStringLiteral("TCmdReportno2"))});
            report->setData(0, Qt::UserRole, alias);
            report->setData(0, SearchRole,
                QStringList{alias, rs.text(QStringLiteral("TCmdReportno2")), rs.text(QStringLiteral("TCmdName")), rs.text(QStringLiteral("TCmdName2")),
                    rs.text(QStringLiteral("TCmGName")), rs.text(QStringLiteral("TCmGName2"))}
                    .join(QLatin1Char(' '))
                    .toUpper());
        }
    } catch (const DbError& error) {
        Services::messages().critical(caption(), error.report(LanguageID()));
    }
    m_tree->resizeColumnToContents(0);
    narrow();
}

void ReportSearchForm::narrow()
{
    const QStringList words = m_search->text().toUpper().split(QLatin1Char(' '), Qt::SkipEmptyParts);
    QTreeWidgetItem* first = nullptr;
    for (int m = 0; m < m_tree->topLevelItemCount(); ++m) {
        QTreeWidgetItem* module = m_tree->topLevelItem(m);
        bool any = false;
        for (int r = 0; r < module->childCount(); ++r) {
            QTreeWidgetItem* report = module->child(r);
            const QString found = report->data(0, SearchRole).toString();
            const bool shown = std::all_of(words.begin(), words.end(), [&found](const QString& w) { return found.contains(w); });
            report->setHidden(!shown);
            if (shown && !first)
                first = report;
            any = any || shown;
        }
        module->setHidden(!any);
    }
    if (first && (!m_tree->currentItem() || m_tree->currentItem()->isHidden() || m_tree->currentItem()->childCount() > 0))
        m_tree->setCurrentItem(first);
}

QStringList ReportSearchForm::shownReports() const
{
    QStringList out;
    for (int m = 0; m < m_tree->topLevelItemCount(); ++m)
        for (int r = 0; r < m_tree->topLevelItem(m)->childCount(); ++r)
            if (QTreeWidgetItem* report = m_tree->topLevelItem(m)->child(r); !report->isHidden() && !m_tree->topLevelItem(m)->isHidden())
                out << report->data(0, Qt::UserRole).toString();
    return out;
}

void ReportSearchForm::launch(QTreeWidgetItem* item)
{
    if (!item || item->childCount() > 0 || item->isHidden())
        return;
    QString alias = item->data(0, Qt::UserRole).toString();
    if (!alias.isEmpty())
        Q_EMIT Lunch(alias);
}

bool ReportSearchForm::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            launch(m_tree->currentItem());
            return true;
        }
        if (key == Qt::Key_Escape) {
            Q_EMIT CloseButtonClick();
            return true;
        }
        if (watched == m_search && (key == Qt::Key_Down || key == Qt::Key_Up)) {
            // The arrows walk the reports while the typing stays in the box.
            QTreeWidgetItem* item = m_tree->currentItem();
            do
                item = item ? (key == Qt::Key_Down ? m_tree->itemBelow(item) : m_tree->itemAbove(item)) : nullptr;
            while (item && item->childCount() > 0);
            if (item)
                m_tree->setCurrentItem(item);
            return true;
        }
    }
    return HostedControl::eventFilter(watched, event);
}

} // namespace qd8
