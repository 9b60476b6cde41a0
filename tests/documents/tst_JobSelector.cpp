#include "support/SampleCompany.h"
#include "support/ScriptedServices.h"

#include "documents/JobSelector.h"
#include "foundation/Connection.h"
#include "foundation/DbError.h"
#include "foundation/Recordset.h"
#include "widgets/PickListModel_p.h"

#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>

using namespace qd8;
using namespace qd8::test;

namespace {

class JobSelectorTest : public SampleCompanyTest {
protected:
    void SetUp() override
    {
        SampleCompanyTest::SetUp();
        if (IsSkipped())
            return;
        selector.setAppConnectionString(appConnectionString());
        selector.SetFirst2(dataConnectionString(), 1);
    }
    void setFilterMode(int mode)
    {
        setCompanyOption("ICJOBFilterMode", QString::number(mode));
        selector.SetFirst2(dataConnectionString(), 1);  // options are read when the session is handed over
    }
    // The keys of every row the list shows, through the pick list's own model.
    QStringList listed(const PickRequest& request)
    {
        PickListModel model;
        model.load(request);
        model.fetchAll();
        QStringList keys;
        for (int row = 0; row < model.rowCount(); ++row)
            keys << model.keyAt(row);
        return keys;
    }

    JobSelector selector;
};

} // namespace

TEST_P(JobSelectorTest, TheFilterModeTableListsItsJobTypesAndModesSevenAndEightFailAtTheDatabase)
{
    const struct {
        int mode;
        const char* condition;
        QStringList jobLines;  // an empty list: the statement fails
    } cases[] = {
        // JOB0000001 has no invoice status (listed), its line 3 is finished; JOB0000002 is
        // invoiced but open until next month; JOB0000003's invoicing closed five days ago.
        {1, " AND TJobType in (0,3)", {"JOB0000001;1", "JOB0000001;2", "JOB0000002;1"}},
        {2, " AND TJobType in (0,3,4)", {"JOB0000001;1", "JOB0000001;2", "JOB0000002;1"}},
        {3, " AND TJobType in (3)", {"JOB0000002;1"}},
        {5, " AND TJobType in (5)", {"JOB0000006;1"}},  // JOB0000005 is cancelled
        {7, " AND TJobType in 0,3,4,5)", {}},
        {8, " AND TJobType in 0,3,4,5,6)", {}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.mode);
        setFilterMode(c.mode);
        const PickRequest request = selector.jobListRequest();
        EXPECT_TRUE(request.source.contains(QLatin1String(c.condition) + QStringLiteral(" ORDER BY TJobTPrjCode")));
        if (c.jobLines.isEmpty()) {
            EXPECT_THROW(listed(request), DbError);
            scriptedPicker().answers.clear();
            EXPECT_FALSE(selector.pickJob());  // nothing picked, nothing changed
            EXPECT_EQ(selector.JobNo(), QString());
            continue;
        }
        QStringList lines;
        for (const QString& key : listed(request))
            lines << key.section(QLatin1Char(';'), 1, 2);
        EXPECT_EQ(lines, c.jobLines);
    }
}

TEST_P(JobSelectorTest, TheThreeListsAreDescribedAsTheSuiteDescribesThem)
{
    selector.setProjectCode("PJ01");
    selector.setJobCode("JC-001");
    selector.setJobNo("JOB0000001");
    selector.setJobLn(1);
    const QString today = QDate::currentDate().toString(Qt::ISODate);
    const struct { PickRequest request; const char* title; const char* source; QStringList firstKeys; } cases[] = {
        {selector.jobListRequest(), "เลือกรายละเอียดใบสั่งงาน",
            "QD8VJob WHERE  (TJobInvoiceStatus=0 OR TJobInvoiceStatus is null OR TJobIVCloseDate>='%1') AND TJbMProcessStatus<3 AND "
            "TJobCloseStatus<>1 AND TJobCancelStatus<>1 AND TJobConfirmStatus=1 AND TJobApproveStatus=1  AND TJobType in (0,3) AND "
            "TJobTPRJCode='PJ01' AND TJobCode='JC-001' ORDER BY TJobTPrjCode,TJobNo,TJbMLn",
            {"PJ01;JOB0000001;1;JC-001;SO0000901", "PJ01;JOB0000001;2;JC-001;SO0000901"}},
        {selector.stepListRequest(), "เลือกขั้นตอน ในใบสั่งงาน",
            "QD8VJobMethod WHERE TJobNo='JOB0000001' AND TJbMLn=1 AND  TJobCloseStatus<>1 AND TJobCancelStatus<>1 AND TJobApproveStatus=1 "
            " ORDER BY TJobTPrjCode,TJobNo,TJbMLn,TJStLn",
            {"1;1;1;ST10;S311;P1001", "2;2;1;ST20;S311;P1001", "3;3;2;ST30;S311;P1001"}},
        {selector.productionListRequest(), "เลือกรายละเอียดใบสั่งผลิต",
            "QD8VJobProductionM WHERE (TJobInvoiceStatus=0 OR TJobInvoiceStatus is null OR TJobIVCloseDate>='%1') AND "
            "(TJPMProcessStatus=1)  AND TJobNo='JOB0000001' AND  TJobCloseStatus<>1 AND TJobCancelStatus<>1 AND TJobApproveStatus=1  "
            "AND TJPDCancelStatus=0 AND TJPDConfirmStatus=1   ORDER BY TJobTPrjCode,TJobNo,TJbMLn,TJpMTJPDNo,TJPMLn",
            {"PJ01;JOB0000001;JC-001;1;PD0000001;1;ST10;ตัดแผ่นโลหะ", "PJ01;JOB0000001;JC-001;1;PD0000001;2;ST20;ประกอบตัวเครื่อง"}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.title);
        EXPECT_EQ(c.request.title, QString::fromUtf8(c.title));
        EXPECT_EQ(c.request.source, QString::fromUtf8(c.source).replace("%1", today));
        EXPECT_EQ(listed(c.request), c.firstKeys);
    }
    // The job line's custom captions are the user's settings.
    EXPECT_TRUE(selector.jobListRequest().captionList.contains(QStringLiteral(",รายละเอียด,สี,ขนาด,รุ่น,ค้างผลิต,")));
}

TEST_P(JobSelectorTest, RequirementLevelsDecideWhichOfTheFiveMessagesApplies)
{
    const struct { int job, mds, pd; QString jobNo; int jobLn, stepLn; QString production; int productionLn; const char* message; } cases[] = {
        {0, 0, 0, "", 0, 0, "", 0, ""},
        {1, 0, 0, "", 0, 0, "", 0, "กรุณาเลือก ใบสั่งงาน"},
        {1, 0, 0, "JOB0000001", 0, 0, "", 0, ""},
        {2, 0, 0, "JOB0000001", 0, 0, "", 0, "กรุณาเลือก ลำดับที่ ในใบสั่งงาน"},
        {0, 1, 0, "JOB0000001", 0, 0, "", 0, "กรุณาเลือก ลำดับที่ ในใบสั่งงาน"},
        {0, 1, 0, "JOB0000001", 1, 0, "", 0, "กรุณาเลือก ขั้นตอน"},
        {0, 1, 0, "JOB0000001", 1, 2, "", 0, ""},
        {0, 0, 1, "", 0, 0, "", 0, "กรุณาเลือก ใบสั่งผลิต"},
        {0, 0, 1, "", 0, 0, "PD0000001", 0, ""},
        {0, 0, 2, "", 0, 0, "PD0000001", 0, "กรุณาเลือก ลำดับที่ ในใบสั่งผลิต"},
        {2, 1, 2, "JOB0000001", 1, 2, "PD0000001", 1, ""},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.message);
        selector.Clear();
        selector.SetPermission(c.job, c.mds, c.pd);
        selector.setJobNo(c.jobNo);
        selector.setJobLn(c.jobLn);
        selector.setStepLn(c.stepLn);
        selector.setProcessCode(c.stepLn ? "ST20" : "");
        selector.setProductionNo(c.production);
        selector.setProductionLn(c.productionLn);
        EXPECT_EQ(selector.isReadyToSave(), QString::fromUtf8(c.message));
    }
    selector.SetPermissionByDocCode("ICISSUEJOB");
    EXPECT_EQ(std::tuple(selector.RequireJOB(), selector.RequireMDS(), selector.RequirePD()), std::tuple(2, 1, 0));
}

TEST_P(JobSelectorTest, FillDataAndPicksTakeTheStepWithItsBookSectionLocationAndQualitySet)
{
    QSignalSpy changes(&selector, &JobSelector::DataChange);
    selector.FillData("IS0000901");  // production order line 1: step ST10
    EXPECT_EQ(selector.JobNo(), "JOB0000001");
    EXPECT_EQ(selector.JobCode(), "JC-001");
    EXPECT_EQ(std::tuple(selector.JobLn(), selector.StepLn(), selector.ProductionLn()), std::tuple(1, 1, 1));
    EXPECT_EQ(selector.ProcessCode() + "|" + selector.ProcessBook() + "|" + selector.Section() + "|" + selector.Location(),
        "ST10|ICISSUEJOB|S311|WH-A");
    EXPECT_EQ(changes.count(), 1);

    // The production line's set first, then the job step's, then the product's steps.
    const struct {
        QString production;
        int productionLn, jobLn, stepLn;
        const char* set;
    } cases[] = {{"PD0000001", 1, 1, 1, "QC-PD-CUT"}, {"PD0000001", 2, 1, 1, "QC-CUT"}, {"PD0000001", 2, 1, 2, "QC-P1001"},
        {"", 0, 2, 1, "QC-P1002"}, {"", 0, 1, 0, ""}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.set);
        selector.Clear();
        selector.setJobNo("JOB0000001");
        selector.setJobLn(c.jobLn);
        selector.setStepLn(c.stepLn);
        selector.setProductionNo(c.production);
        selector.setProductionLn(c.productionLn);
        EXPECT_EQ(selector.GetQCSet(), QString::fromUtf8(c.set));
    }

    // A job line with one step takes it with the line.
    selector.Clear();
    scriptedPicker().answers = {"PJ01;JOB0000001;2;JC-001;SO0000901"};
    ASSERT_TRUE(selector.pickJob());
    EXPECT_EQ(selector.ProcessCode() + "|" + selector.Location() + "|" + QString::number(selector.StepLn()), "ST20|WH-B|1");
    scriptedPicker().answers = {"PJ01;JOB0000001;JC-001;1;PD0000001;2;ST20;ประกอบตัวเครื่อง"};
    ASSERT_TRUE(selector.pickProduction());
    EXPECT_EQ(selector.JobLn(), 1);
    EXPECT_EQ(selector.GetQCSet(), "QC-P1001");
}

TEST_P(JobSelectorTest, ATypedOrScannedNumberOrCardIsFoundWithoutTheListAndAQuoteIsRefusedClearly)
{
    auto* job = selector.findChild<QLineEdit*>("txtJobNo");
    const struct {
        const char* typed;
        const char* jobLine;  // "": not found, the message says so
        int lists;            // pick lists opened
    } cases[] = {{"JOB0000002", "JOB0000002/1", 0}, {"JC-002", "JOB0000002/1", 0}, {"JC-001", "", 1}, {"JOB0000004", "", 0},
        {"JC'9", "", 0}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.typed);
        selector.Clear();
        scriptedPicker().reset();
        scriptedMessages().reset();
        job->setText(QString::fromUtf8(c.typed));
        QTest::keyClick(job, Qt::Key_Return);
        EXPECT_EQ(selector.JobNo().isEmpty() ? QString() : selector.JobNo() + "/" + QString::number(selector.JobLn()), c.jobLine);
        EXPECT_EQ(scriptedPicker().requests.size(), c.lists);
        EXPECT_EQ(scriptedMessages().shown.size(), QString(c.jobLine).isEmpty() && c.lists == 0 ? 1 : 0);
        if (c.lists) {  // several open lines on one card: the list opens on that card
            EXPECT_TRUE(scriptedPicker().requests.last().source.contains(QStringLiteral("TJobCode='%1'").arg(c.typed)));
        }
    }
    EXPECT_EQ(scriptedMessages().shown.last().kind, "critical");
    EXPECT_TRUE(scriptedMessages().shown.last().text.contains("JC'9"));

    selector.setJobNo("JOB0000001");
    selector.setJobLn(1);
    auto* step = selector.findChild<QLineEdit*>("txtProcess");
    step->setText("ST30");
    QTest::keyClick(step, Qt::Key_Return);
    EXPECT_EQ(selector.StepLn(), 3);
    EXPECT_EQ(selector.ProcessBook(), "ICISSUEPD");
}

QD8_ON_BOTH_ENGINES(JobSelectorTest);
