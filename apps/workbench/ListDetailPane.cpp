#include "ListDetailPane.h"

#include "DocumentPanels.h"
#include "documents/DocumentDetails.h"
#include "documents/DucumentList.h"
#include "foundation/Connection.h"
#include "foundation/DbError.h"
#include "foundation/Recordset.h"
#include "widgets/DataView.h"

#include <QHeaderView>
#include <QItemSelectionModel>
#include <QLabel>
#include <QSplitter>
#include <QTableView>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <iterator>

namespace qd8 {

namespace {

// What each list shows: its command, the title of its line view, and the header table
// whose history shows below (key field; the prefix of its status columns).
struct PaneKind {
    const char *command, *thai, *english;
    const char *table, *keyField, *prefix;
};

const PaneKind Kinds[] = {
    {"ICJOB", "ใบสั่งงาน", "Job Order", "QD8TJob", "TJobNo", "TJob"},
    {"ICJOBPRODUCTION", "ใบสั่งผลิต", "Production Order", "QD8TJobProduction", "TJPDNo", "TJPD"},
    {"PURPR", "ใบขอซื้อ", "Purchase Request", "QD8TPR", "TPRDNo", "TPRD"},
};

} // namespace

void ListDetailPane::attach(DucumentList& list, const QString& commandAlias)
{
    for (int i = 0; i < int(std::size(Kinds)); ++i)
        if (commandAlias == QLatin1String(Kinds[i].command))
            new ListDetailPane(list, Kind(i));
}

ListDetailPane::ListDetailPane(DucumentList& list, Kind kind)
    : m_list(list)
    , m_kind(kind)
{
    setObjectName(QStringLiteral("detailPane"));
    DataView* rows = list.dataView();
    auto* splitter = new QSplitter(Qt::Horizontal, &list);
    delete list.layout()->replaceWidget(rows, splitter);
    splitter->addWidget(rows);
    splitter->addWidget(this);
    splitter->setStretchFactor(0, 3);
    splitter->setStretchFactor(1, 2);
    splitter->setSizes({600, 400});  // taken as proportions once the list is laid out

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    m_title = new QLabel(this);
    m_title->setObjectName(QStringLiteral("title"));
    layout->addWidget(m_title);
    if (kind == Kind::Request) {
        m_request = new DocumentPR(this);
        m_request->setObjectName(QStringLiteral("requestDetail"));
    } else {
        m_job = new DocumentJob(this);
        m_job->setObjectName(QStringLiteral("jobDetail"));
    }
    layout->addWidget(detail(), 3);
    m_historyTitle = new QLabel(this);
    m_historyTitle->setObjectName(QStringLiteral("historyTitle"));
    layout->addWidget(m_historyTitle);
    m_status = new DocumentStatus(this);
    m_status->setObjectName(QStringLiteral("history"));
    layout->addWidget(m_status, 2);
    // Clicking the pane must not take the keyboard from the rows; columns fit their texts.
    for (DocumentDetailView* view : {detail(), static_cast<DocumentDetailView*>(m_status)}) {
        view->list()->setFocusPolicy(Qt::ClickFocus);
        view->list()->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    }

    m_settle.setSingleShot(true);
    m_settle.setInterval(SettleMs);
    connect(&m_settle, &QTimer::timeout, this, &ListDetailPane::showRow);
    auto settle = [this] { m_settle.start(); };
    connect(rows->tableView()->selectionModel(), &QItemSelectionModel::currentRowChanged, this, settle);
    connect(rows->tableView()->model(), &QAbstractItemModel::modelReset, this, settle);
}

DocumentDetailView* ListDetailPane::detail() const
{
    return m_request ? static_cast<DocumentDetailView*>(m_request) : m_job;
}

void ListDetailPane::clear()
{
    detail()->list()->clear();
    m_status->list()->clear();
}

void ListDetailPane::showRow()
{
    const PaneKind& k = Kinds[int(m_kind)];
    m_title->setText(m_list.bilingual(k.thai, k.english));
    m_historyTitle->setText(m_list.bilingual("ประวัติเอกสาร", "History"));
    QString cs = m_list.DataConnectionString();
    for (HostedControl* view : {static_cast<HostedControl*>(detail()), static_cast<HostedControl*>(m_status)})
        if (view->DataConnectionString() != cs || view->UserID() != m_list.UserID())
            shareSession(*view, m_list);

    const DataView& rows = *m_list.dataView();
    const int row = rows.currentRow();
    const auto value = [&](const char* field) { return row < 0 ? QString() : rows.value(row, QLatin1String(field)).toString(); };
    QString no = value(k.keyField);
    if (no.isEmpty()) {
        clear();
        return;
    }
    switch (m_kind) {
    case Kind::Job:
        m_job->ShowDocumentJOB(no, value("TJbMLn").toInt(), cs);
        break;
    case Kind::Production:
        m_job->ShowDocumentJOB2(value("TJPDTJobNo"), value("TJPDTJbMLn").toInt(), no, value("TJPMLn").toInt(), cs);
        break;
    case Kind::Request:
        if (const int line = firstRequestLine(no))
            m_request->ShowDocumentPR(no, line, cs);
        else
            m_request->list()->clear();  // a request without lines: its history only
        break;
    }
    int mode = 1, unused = 0;
    QString none, recorder, key = QLatin1String(k.keyField), prefix = QLatin1String(k.prefix), table = QLatin1String(k.table);
    m_status->ShowDocumentStatus(mode, unused, no, none, recorder, key, prefix, table, cs);
}

int ListDetailPane::firstRequestLine(const QString& requestNo) const
{
    try {
        Connection data;
        data.open(m_list.DataConnectionString());
        Recordset rs;
        rs.open(Sql("SELECT MIN(TPRMLn) AS Ln FROM QD8TPRSub WHERE TPRMTPRDNo=") + quoted(requestNo), data);
        return rs.eof() ? 0 : rs.field(QStringLiteral("Ln")).toInt();
    } catch (const DbError&) {
        return 0;  // the line is left out; the history still shows
    }
}

} // namespace qd8
