#include "support/SampleCompany.h"
#include "support/ScriptedServices.h"

#include "ReportSearchForm.h"
#include "ReportWindow.h"
#include "WorkbenchForms.h"
#include "WorkbenchSession.h"
#include "WorkbenchWindow.h"
#include "foundation/Connection.h"
#include "foundation/Recordset.h"
#include "navigation/DocumentToolBar.h"
#include "reports/ReportFilter.h"
#include "reports/ReportPreview.h"

#include <QLineEdit>
#include <QTabWidget>
#include <QTest>
#include <QToolButton>
#include <QTreeWidget>

using namespace qd8;
using namespace qd8::test;

namespace {

class ReportWindowTest : public SampleCompanyTest {
protected:
    void SetUp() override
    {
        SampleCompanyTest::SetUp();
        if (IsSkipped())
            return;
        installScriptedServices();
        registerWorkbenchForms();
        session = WorkbenchSession::fromConnectionStrings(appConnectionString(), dataConnectionString(), files.path());
    }
    std::unique_ptr<WorkbenchWindow> open(const char* user)
    {
        EXPECT_TRUE(session.logIn(QString::fromLatin1(user), QStringLiteral("1234")));
        auto window = std::make_unique<WorkbenchWindow>(session, QStringLiteral("GL"));
        window->show();
        return window;
    }

    QTemporaryDir files;
    WorkbenchSession session;
};

} // namespace

TEST_P(ReportWindowTest, ReportsAreFoundByModuleInEitherLanguageAndOpenTheirCriteria)
{
    const struct {
        const char* user;
        const char* search;
        const char* title;
        QStringList found;
        const char* firstModule;
    } cases[] = {
        {"JOHN", "", "Report Search", {}, "General Ledger"},
        {"JOHN", "status purchase", "Report Search", {"PUPRSTATUS"}, "General Ledger"},
        {"SOMCHAI", "ใบขอซื้อ", "ค้นหารายงาน", {"PUPRSTATUS"}, "บัญชีแยกประเภท"},
        {"SOMCHAI", "commission", "ค้นหารายงาน", {"SOCOMMISSION"}, "บัญชีแยกประเภท"},  // no Thai name: the English one
        {"JOHN", "it's", "Report Search", {}, "General Ledger"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.search);
        auto window = open(c.user);
        window->toolBar()->utilityButton(4)->click();
        auto* search = qobject_cast<ReportSearchForm*>(window->tabs()->currentWidget());
        ASSERT_TRUE(search);
        EXPECT_EQ(window->tabs()->tabText(0), QString::fromUtf8(c.title));
        EXPECT_EQ(search->tree()->topLevelItem(0)->text(0), QString::fromUtf8(c.firstModule));
        typeText(search->searchBox(), QString::fromUtf8(c.search));
        if (*c.search == 0)
            EXPECT_GE(search->shownReports().size(), 20);
        else
            EXPECT_EQ(search->shownReports(), c.found);
        EXPECT_TRUE(scriptedMessages().shown.isEmpty());
    }
    // Enter opens the report: its criteria, Preview builds the report, Close closes the tab.
    auto window = open("JOHN");
    window->launch("WINDOW:REPORTSEARCH");
    auto* search = qobject_cast<ReportSearchForm*>(window->tabs()->currentWidget());
    typeText(search->searchBox(), "general ledger report");
    QTest::keyClick(search->searchBox(), Qt::Key_Return);
    auto* report = qobject_cast<ReportWindow*>(window->tabs()->currentWidget());
    ASSERT_TRUE(report);
    EXPECT_EQ(window->tabs()->tabText(1), "GL-R02 - General Ledger Report");
    EXPECT_EQ(report->filter()->RLID(), 1);
    typeText(report->filter()->editor(1), "1112-01");
    QTest::keyClick(report->filter()->editor(1), Qt::Key_F5);
    const ReportDefinition& definition = report->lastReport();
    EXPECT_EQ(definition.title, "GL-R02 - General Ledger Report");
    EXPECT_TRUE(definition.criteria.startsWith("Date from 01/")) << definition.criteria.toStdString();
    EXPECT_TRUE(definition.sql.endsWith("AND TGTSTACCCode='1112-01' ORDER BY TGTSTACCCode, TGLTDate, TGLTNo, TGTSLn")) << definition.sql.toStdString();
    EXPECT_EQ(definition.groupCaptionField, "AccountName");
    EXPECT_EQ(definition.columns.value(3).caption, "Description");
    ASSERT_TRUE(report->preview());
    EXPECT_EQ(report->preview()->windowTitle(), definition.title);
    report->preview()->close();
    // A language switch rewords the criteria and the report and keeps what was typed.
    window->setLanguage(0);
    QTest::keyClick(report->filter()->editor(1), Qt::Key_F5);
    EXPECT_TRUE(report->lastReport().criteria.endsWith("รหัสบัญชี: 1112-01")) << report->lastReport().criteria.toStdString();
    EXPECT_TRUE(report->lastReport().sql.startsWith("SELECT TGTSTACCCode, TACCName AS AccountName"));
    EXPECT_EQ(report->lastReport().columns.value(3).caption, "คำอธิบาย");
    QTest::keyClick(report->filter()->editor(1), Qt::Key_Escape);
    QTest::qWait(0);
    EXPECT_EQ(window->tabs()->count(), 1);
    // A report command without a layout says so in its window.
    window->launch("GLPROFIT");
    report = qobject_cast<ReportWindow*>(window->tabs()->currentWidget());
    ASSERT_TRUE(report);
    EXPECT_FALSE(report->filter()->isVisibleTo(report));
}

QD8_ON_BOTH_ENGINES(ReportWindowTest);
