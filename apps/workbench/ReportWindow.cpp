#include "ReportWindow.h"

#include "WorkbenchSession.h"
#include "database/SessionServices.h"
#include "database/SessionFunctions.h"
#include "foundation/ConnectionString.h"
#include "foundation/DbError.h"
#include "foundation/Recordset.h"
#include "navigation/CommandCatalogue.h"
#include "reports/ReportFilter.h"
#include "reports/ReportPreview.h"

#include <QLabel>
#include <QVBoxLayout>

namespace qd8 {

ReportWindow::ReportWindow(QWidget* parent)
    : HostedControl(parent)
    , m_filter(new ReportFilter(this))
    , m_missing(new QLabel(this))
{
    m_missing->setWordWrap(true);
    m_missing->hide();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_missing);
    layout->addWidget(m_filter, 1);
    connect(m_filter, &ReportFilter::PreviewAction, this,
        [this](const QString&, const QString&, const QString& criteria, const QString&) { preview(criteria); });
    connect(m_filter, &ReportFilter::CloseAction, this, &ReportWindow::CloseAction);
    setFocusProxy(m_filter);
}

QString ReportWindow::title() const
{
    const QString alias = session().ControlName;
    try {
        Connection c;
        c.open(AppConnectionString());
        Recordset rs;
        rs.open(Sql("SELECT TCmdName, TCmdName2, TCmdReportNo FROM QD8TCommand WHERE TCmdAlias=") + quoted(alias), c);
        if (!rs.eof())
            return CommandCatalogue::withoutAccelerators(SessionServices::sessionFunctions().GetCommandCaption(LanguageID(),
                AppConnectionString(), commandCentreConnectionString(AppConnectionString()), alias, 0, rs.text(QStringLiteral("TCmdName")),
                rs.text(QStringLiteral("TCmdName2")), rs.text(QStringLiteral("TCmdReportNo"))))
                .replace(QStringLiteral("&&"), QStringLiteral("&"));  // printed, not a label
    } catch (const DbError&) {
        // The alias stands for the title.
    }
    return alias;
}

void ReportWindow::Refresh()
{
    // The same report again (the language changed): what the user typed stays.
    const bool same = m_layout && m_layout->commandAlias == session().ControlName;
    try {
        m_layout = ReportLayout::read(session().ControlName, AppConnectionString(), LanguageID());
    } catch (const DbError& error) {
        m_layout.reset();
        m_missing->setText(error.report(LanguageID(), QStringLiteral(": ")));
    }
    if (!m_layout && m_missing->text().isEmpty())
        m_missing->setText(bilingual("รายงาน %1 ยังไม่มีรูปแบบรายงาน", "The report %1 has no layout yet").arg(session().ControlName));
    m_missing->setVisible(!m_layout);
    m_filter->setVisible(bool(m_layout));
    if (!m_layout)
        return;
    m_missing->clear();
    m_filter->setRLID(LanguageID());
    if (!same)
        m_filter->SetFirst(m_layout->reportGroup, QString(), m_layout->tableQuery, sharedDataObject(), sharedAppObject(), sharedClientObject());
}

void ReportWindow::preview(const QString& criteria)
{
    // The layout's query in the language read last ("{N}"), with the filter's condition.
    const QString statement = m_filter->criteria().statement(m_layout->tableQuery).text();
    m_lastReport = m_layout->definitionFor(statement, title(), WorkbenchSession::companyNameOf(DataConnectionString()), criteria);
    m_preview = new ReportPreview(m_lastReport, DataConnectionString(), this);
    m_preview->setAttribute(Qt::WA_DeleteOnClose);
    m_preview->show();
}

} // namespace qd8
