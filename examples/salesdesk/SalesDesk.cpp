#include "SalesDesk.h"

#include <QD8Designer2/foundation/Connection.h>
#include <QD8Designer2/foundation/Language.h>
#include <QD8Designer2/foundation/Recordset.h>
#include <QD8Designer2/reports/ReportPreview.h>
#include <QD8Designer2/widgets/GridEditor.h>
#include <QD8Designer2/widgets/DataView.h>

#include <QAbstractItemModel>
#include <QStatusBar>
#include <QTableView>

SalesDesk::SalesDesk(const qd8::HostSession& session, QWidget* parent)
    : QMainWindow(parent)
    , m_session(session)
{
    m_ui.setupUi(this);
    const auto addForm = [this](auto& ui, const QString& caption) {
        auto* form = new QWidget;
        ui.setupUi(form);
        m_ui.forms->addTab(form, caption);
    };
    addForm(m_products, text("สินค้าและรหัส", "Products and codes"));
    addForm(m_orders, text("ใบสั่งขาย", "Sales orders"));
    addForm(m_ledger, text("บัญชีแยกประเภท", "Ledger"));
    setWindowTitle(text("โต๊ะขาย — %1", "Sales desk — %1").arg(m_session.companyName()));

    connect(m_ui.shortcuts, &qd8::ShortCutBar::Lunch, this, [this](QString& alias) { launch(alias); });
    connect(m_products.quickGrid, &qd8::QuickGrid::CloseButtonClick, this, &QWidget::close);
    connect(m_orders.orders, &qd8::DucumentList::ChangeCaption, this,
        [this](const QString& caption, const QString&) { m_ui.forms->setTabText(1, caption); });
    connect(m_ledger.criteria, &qd8::ReportFilter::PreviewAction, this,
        [this](const QString&, const QString&, const QString& criteria, const QString&) { preview(criteria); });
}

QString SalesDesk::text(const char* thai, const char* english) const
{
    return qd8::inLanguage(m_session.languageId, thai, english);
}

void SalesDesk::open()
{
    // Each control's design-time settings (its module, list, quick form group) come from
    // the .ui file; the session comes from the login.
    qd8::ShortCutBar* shortcuts = m_ui.shortcuts;
    m_session.setUp(*shortcuts, QString(), shortcuts->CommandGroup(), this);
    shortcuts->Refresh();

    qd8::QuickGrid* grid = m_products.quickGrid;
    m_session.setUp(*grid, grid->DefaultFormAlias(), grid->QuickGroup(), this);
    grid->Refresh();
    grid->FillData();

    qd8::DucumentList* orders = m_orders.orders;
    const QString alias = orders->CommandAlias();
    m_session.setUp(*orders, alias, orders->CommandGroup(), this);
    const auto [data, app, client] = m_session.sessionObjects(*orders);
    orders->SetFilter(alias, orders->CommandGroup(), data, app, client, &m_windows, QString(), QString());

    // The ledger: the criteria of its report and, below them, the latest voucher.
    qd8::ReportFilter* criteria = m_ledger.criteria;
    const QString report = criteria->property("reportCommand").toString();
    m_session.setUp(*criteria, report, criteria->CommandGroup(), this);
    m_report = qd8::ReportLayout::read(report, m_session.appConnectionString, m_session.languageId);
    if (m_report) {
        criteria->setRLID(m_session.languageId);
        criteria->SetFirst(m_report->reportGroup, QString(), m_report->tableQuery, criteria->sharedDataObject(),
            criteria->sharedAppObject(), criteria->sharedClientObject());
    }
    qd8::GLControl* voucher = m_ledger.voucher;
    m_session.setUp(*voucher, QString(), voucher->CommandGroup(), this);
    voucher->SetFirst(this, voucher->sharedDataObject(), voucher->sharedAppObject(), voucher->sharedClientObject(), QString());
    qd8::Connection c;
    c.open(m_session.dataConnectionString);
    qd8::Recordset latest;
    latest.open("SELECT MAX(TGLTNo) AS N FROM QD8TGLTrans", c);
    voucher->FillData(latest.text(QStringLiteral("N")));
}

QList<QPair<QString, int>> SalesDesk::shownRows() const
{
    return {{QStringLiteral("products"), m_products.quickGrid->grid()->Rows()},
        {QStringLiteral("orders"), m_orders.orders->dataView()->tableView()->model()->rowCount()},
        {QStringLiteral("ledger"), int(m_ledger.voucher->GETGLList().size())}};
}

void SalesDesk::launch(const QString& alias)
{
    // The shortcut bar asks; the host decides. Commands of the forms here show their tab.
    if (alias == m_orders.orders->CommandAlias())
        m_ui.forms->setCurrentIndex(1);
    else if (m_report && alias == m_report->commandAlias)
        m_ui.forms->setCurrentIndex(2);
    else if (isQuickForm(alias)) {
        m_products.quickGrid->cmdWhereShow(alias);
        m_ui.forms->setCurrentIndex(0);
    }
    else
        statusBar()->showMessage(text("คำสั่ง %1 ไม่มีแบบฟอร์มในโต๊ะขายนี้", "The command %1 has no form on this desk").arg(alias));
}

bool SalesDesk::isQuickForm(const QString& alias) const
{
    const auto& offered = m_products.quickGrid->groupForms();
    return std::any_of(offered.begin(), offered.end(), [&](const auto& form) { return form.first == alias; });
}

void SalesDesk::preview(const QString& criteria)
{
    const QString statement = m_ledger.criteria->criteria().statement(m_report->tableQuery).text();
    auto* window = new qd8::ReportPreview(
        m_report->definitionFor(statement, m_ui.forms->tabText(2), m_session.companyName(), criteria), m_session.dataConnectionString, this);
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->show();
}
