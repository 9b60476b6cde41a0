#include "support/SampleCompany.h"
#include "support/ScriptedServices.h"

#include "database/PermissionObject.h"
#include "editors/QuickGrid.h"
#include "foundation/SqlTrace.h"
#include "widgets/GridEditor.h"

#include <QAbstractItemView>
#include <QAction>
#include <QSignalSpy>
#include <QTest>
#include <functional>

using namespace qd8;
using namespace qd8::test;

namespace {

// Pick lists, the form selector and printing of the quick form editor, on a form of
// branches (QBRA: code, name, a label-list status, English name) whose widths the tests
// set, and on the sample's employee types (EMPTYPE).
class QuickGridPickTest : public SampleCompanyTest {
protected:
    void SetUp() override
    {
        SampleCompanyTest::SetUp();
        if (IsSkipped())
            return;
        runOnApp({"INSERT INTO QD8TQuickForm (TQFmAlias, TQFmCaption, TQFmCaption2, TQFmTCmGAlias, TQFmTable, TQFmView, TQFmKeyIDEN, TQFmPKList, "
                  "TQFMMasterReportNo) VALUES ('QBRA', 'สาขา', 'Branches', 'AR', 'QD8TBranch', 'QD8TBranch', 'TBra', ',TBraCode', 2)",
            "INSERT INTO QD8TQuickField (TQFFID, TQFFTQFmAlias, TQFFSort, TQFFFieldName, TQFFCaption, TQFFCaption2, TQFFFieldType, TQFFPrimaryKey, TQFFWidth) "
            "VALUES (9101, 'QBRA', 1, 'TBraCode', 'รหัส', 'Code', 'TEXT', 1, 2000)",
            "INSERT INTO QD8TQuickField (TQFFID, TQFFTQFmAlias, TQFFSort, TQFFFieldName, TQFFCaption, TQFFCaption2, TQFFFieldType, TQFFWidth) "
            "VALUES (9102, 'QBRA', 2, 'TBraName', 'ชื่อสาขา', 'Name', 'TEXT', 4000)",
            "INSERT INTO QD8TQuickField (TQFFID, TQFFTQFmAlias, TQFFSort, TQFFFieldName, TQFFCaption, TQFFCaption2, TQFFFieldType, TQFFWidth, TQFFFlag1) "
            "VALUES (9103, 'QBRA', 3, 'TBraSort', 'ลำดับ', 'Order', 'LABELLIST', 2000, 0)",
            "INSERT INTO QD8TQuickField (TQFFID, TQFFTQFmAlias, TQFFSort, TQFFFieldName, TQFFCaption, TQFFCaption2, TQFFFieldType, TQFFWidth) "
            "VALUES (9104, 'QBRA', 4, 'TBraName2', 'ชื่ออังกฤษ', 'English', 'TEXT', 2000)"});
        grid.setConnectionString(appConnectionString());
        grid.setDataConnectionString(dataConnectionString());
        grid.SetLast2("C:\\QD8\\", "QuickGrid", "2", dataConnectionString(), appConnectionString());  // JOHN, English
    }
    void setWidth(int id, int width) { runOnApp({QStringLiteral("UPDATE QD8TQuickField SET TQFFWidth=%1 WHERE TQFFID=%2").arg(width).arg(id)}); }
    PickRequest pick(const char* alias, int hf = 0, const char* filter = "")
    {
        scriptedPicker().requests.clear();
        grid.SelectQuickForm3(QString::fromLatin1(alias), hf, QString::fromLatin1(filter));
        return scriptedPicker().requests.value(0);
    }
    // A quick form named after the employee-type table, which is scoped.
    void defineEmployeeTypeForm()
    {
        runOnApp({"INSERT INTO QD8TQuickForm (TQFmAlias, TQFmCaption, TQFmCaption2, TQFmTable, TQFmView, TQFmKeyIDEN, TQFmPKList, TQFmOrder) "
                  "VALUES ('QD8TEmployeeType', 'ประเภท', 'Types', 'QD8TEmployeeType', 'QD8TEmployeeType', 'TEmT', 'TEmTCode', 'TEmTSort')",
            "INSERT INTO QD8TQuickField (TQFFID, TQFFTQFmAlias, TQFFSort, TQFFFieldName, TQFFCaption, TQFFCaption2, TQFFPrimaryKey) "
            "VALUES (9201, 'QD8TEmployeeType', 1, 'TEmTCode', 'รหัส', 'Code', 1)"});
    }
    QuickGrid grid;
};

// The host's own permission object: every right, and employee types limited to '07',
// recording what it was asked.
class HostPermission : public PermissionObject {
public:
    void LoadCommandRights(qint32, const QString&, const QString&, const QString&) override {}
    int right(const QString&) const override { return 1; }
    bool hasRight(const QString&) override { return true; }
    QString employeeScope(const QString& field, int level) override
    {
        asked << QStringLiteral("%1@%2").arg(field).arg(level);
        return field + QStringLiteral(" IN ('07')");
    }
    QStringList asked;
};

TEST_P(QuickGridPickTest, ThePickQueryListsEveryFieldAndFiltersActiveRows)
{
    const PickRequest request = pick("QBRA");
    // The key without its leading comma; inactive fields listed too.
    EXPECT_EQ(QStringList({request.title, request.keyField, request.fieldList, request.captionList, request.widthList, request.typeList,
                  request.source, request.connectionString}),
        QStringList({"Branches", "TBraCode", "TBraCode,TBraName,TBraSort,TBraName2", "Code,Name,Order,English", "2000,4000,2000,2000",
            "0,0,13,0", "QD8TBranch WHERE TBraFlag1=1", dataConnectionString()}));
    EXPECT_EQ(request.dialogWidth, 0);  // exactly 10000 twips: the list sizes itself
    setWidth(9104, 2001);
    EXPECT_EQ(pick("QBRA").dialogWidth, 10000);

    EXPECT_EQ(pick("QBRA", 0, "AND TBraCode<>'HQ'").source, "QD8TBranch WHERE TBraFlag1=1 AND TBraCode<>'HQ'");
    runOnApp({"UPDATE QD8TQuickForm SET TQFmWhere='TBraSort>0', TQFmOrder='TBraSort' WHERE TQFmAlias='QBRA'"});
    EXPECT_EQ(pick("QBRA").source, "QD8TBranch WHERE TBraSort>0 ORDER BY TBraSort");  // the form's own filter replaces the flag filter

    scriptedPicker().requests.clear();
    EXPECT_EQ(grid.SelectQuickForm("NOSUCHFORM"), "");
    EXPECT_TRUE(scriptedPicker().requests.isEmpty());
}

TEST_P(QuickGridPickTest, EmployeeTableFormsAreLimitedToTheUsersEmployeeTypes)
{
    // A form named after an employee table is scoped; the sample's EMPTYPE is not. No
    // permission object from the host: the editor asks the database.
    defineEmployeeTypeForm();
    EXPECT_EQ(pick("EMPTYPE", 1).source, "QD8TEmployeeType WHERE TEmTFlag1=1 ORDER BY TEmTSort");
    EXPECT_EQ(pick("QD8TEmployeeType", 0).source, "QD8TEmployeeType WHERE TEmTFlag1=1 ORDER BY TEmTSort");
    // JOHN (user 2) sees employee types 01 and 02 at level 0, asked for with HF 1.
    EXPECT_EQ(pick("QD8TEmployeeType", 1).source, "QD8TEmployeeType WHERE TEmTFlag1=1 AND TEmTCode IN ('01','02') ORDER BY TEmTSort");
    EXPECT_EQ(pick("QD8TEmployeeType", 2).source, "QD8TEmployeeType WHERE TEmTFlag1=1 ORDER BY TEmTSort");  // nothing at level 1
}

TEST_P(QuickGridPickTest, EmployeeScopeAsksThePermissionObjectTheHostHandedOver)
{
    defineEmployeeTypeForm();
    const QString limited = "QD8TEmployeeType WHERE TEmTFlag1=1 AND TEmTCode IN ('07') ORDER BY TEmTSort";
    const QString johns = "QD8TEmployeeType WHERE TEmTFlag1=1 AND TEmTCode IN ('01','02') ORDER BY TEmTSort";
    const QString unscoped = "QD8TEmployeeType WHERE TEmTFlag1=1 ORDER BY TEmTSort";
    auto kept = std::make_unique<HostPermission>();
    const struct Case {
        const char* how;
        std::function<void()> hand;  // what the host does before asking
        int hf;
        QString source;
        QStringList asked;  // of the object kept
    } cases[] = {
        {"by reference", [&] { grid.SetPermission(*kept); }, 1, limited, {"TEmTCode@0"}},
        {"level HF - 1", [] {}, 2, limited, {"TEmTCode@1"}},
        {"HF 0 asks nobody", [] {}, 0, unscoped, {}},
        {"late bound", [&] {
             ASSERT_TRUE(QMetaObject::invokeMethod(&grid, "SetPermission", Q_ARG(qd8::PermissionObject*, kept.get())));
         }, 1, limited, {"TEmTCode@0"}},
        {"late bound nullptr: the database's", [&] {
             ASSERT_TRUE(QMetaObject::invokeMethod(&grid, "SetPermission", Q_ARG(qd8::PermissionObject*, nullptr)));
         }, 1, johns, {}},
        {"destroyed by the host: the database's", [&] {
             auto gone = std::make_unique<HostPermission>();
             grid.SetPermission(*gone);
         }, 1, johns, {}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.how);
        if (kept)
            kept->asked.clear();
        c.hand();
        SqlTrace::Recorder trace;
        EXPECT_EQ(pick("QD8TEmployeeType", c.hf).source, c.source);
        if (kept) {
            EXPECT_EQ(kept->asked, c.asked);
        }
        // The host's object answers without the database's rights being read.
        const bool readRights = trace.composed().join('\n').contains("QD8TUserRight");
        EXPECT_EQ(readRights, c.source == johns);
    }
}

TEST_P(QuickGridPickTest, ALabelListColumnHandsItsLabelsToThePickList)
{
    // Type words in any case: " labellist " is a LABELLIST in the pick list and in the grid.
    runOnApp({"UPDATE QD8TQuickField SET TQFFFieldType=' labellist ', TQFFLabelList='1;หนึ่ง,2;สอง' WHERE TQFFID=9103",
        "UPDATE QD8TQuickField SET TQFFFieldType='LabelList' WHERE TQFFTQFmAlias='PROJECT' AND TQFFFieldName='TPrjLevel'"});
    const PickRequest branches = pick("QBRA");
    EXPECT_EQ(branches.typeList, "0,0,13,0");
    EXPECT_EQ(branches.labelLists, (QStringList{"", "", "1;หนึ่ง,2;สอง", ""}));
    const PickRequest projects = pick("PROJECT");
    EXPECT_EQ(projects.fieldList + "|" + projects.typeList, "TPrjCode,TPrjName,TPrjName2,TPrjLevel|0,0,0,13");
    EXPECT_EQ(projects.labelLists, (QStringList{"", "", "", "0;บริษัท,1;ฝ่าย,2;แผนก"}));

    grid.cmdWhereShow("PROJECT");
    ASSERT_EQ(grid.RUNMODE(), "VIEW");
    EXPECT_EQ(grid.grid()->column(4).type, GridColumnType::LabelList);
    EXPECT_EQ(grid.grid()->column(4).labels.size(), 3);

    // A form without labels hands none.
    EXPECT_TRUE(pick("EMPTYPE").labelLists.isEmpty());
}

TEST_P(QuickGridPickTest, F2PutsThePickedKeyIntoTheCurrentCell)
{
    runOnApp({"UPDATE QD8TQuickField SET TQFFRunQuickForm='EMPTYPE' WHERE TQFFID=9104"});
    grid.cmdWhereShow("QBRA");
    GridEditor* g = grid.grid();
    ASSERT_GE(g->Rows(), 1);
    scriptedPicker().answers = {"02", ""};
    g->setRow(1);
    g->setCol(3);
    QTest::keyClick(g->findChild<QAbstractItemView*>(), Qt::Key_F2);  // VIEW: no pick
    EXPECT_TRUE(scriptedPicker().requests.isEmpty());
    grid.button("Edit")->trigger();
    const QString before = g->TextMatrix(1, 3);
    QTest::keyClick(g->findChild<QAbstractItemView*>(), Qt::Key_F2);
    EXPECT_EQ(g->GetValue(1, 3).toString(), "02");
    EXPECT_EQ(g->RowMark(1), "E");
    QTest::keyClick(g->findChild<QAbstractItemView*>(), Qt::Key_F2);  // cancelled: the cell stays
    EXPECT_EQ(g->GetValue(1, 3).toString(), "02");
    EXPECT_EQ(scriptedPicker().requests.size(), 2);
    EXPECT_NE(before, "02");
}

TEST_P(QuickGridPickTest, TheSelectorListsOneGroupOrEveryGroup)
{
    SqlTrace::Recorder trace;
    grid.setQuickGroup("SM");
    grid.Refresh();
    EXPECT_TRUE(trace.composed().contains("SELECT * FROM QD8VQuickGroup WHERE TCmGAlias='SM' ORDER BY TQfMSort"));
    scriptedPicker().answers = {"QBRA"};
    QSignalSpy changed(&grid, &QuickGrid::ChangeGroup);
    grid.chooseForm();
    EXPECT_EQ(scriptedPicker().requests.last().source, "QD8VQuickGroupBK WHERE TQFmFlag1=1 AND TCmGFlag1=1 ORDER BY TQFmCaption");
    EXPECT_EQ(scriptedPicker().requests.last().fieldList, "TQFmAlias,TQFmCaption2");
    EXPECT_EQ(changed.count(), 1);
    EXPECT_EQ(grid.selectedAlias(), "QBRA");

    grid.setQuickGroup("AR");
    grid.Refresh();
    ASSERT_FALSE(grid.groupForms().isEmpty());
    EXPECT_TRUE(grid.groupForms().contains(QPair<QString, QString>{"QBRA", "Branches"}));
    grid.chooseForm();
    EXPECT_EQ(scriptedPicker().requests.last().source,
        "QD8VQuickGroup WHERE TQFmFlag1=1 AND TCmGFlag1=1 AND TCmGAlias='AR' ORDER BY TQFmCaption");
}

TEST_P(QuickGridPickTest, AutomaticPrintHandsTheCodeListStatementToTheHost)
{
    QList<QStringList> printed;
    QObject::connect(&grid, &QuickGrid::PrintAutoClick, [&](const QString& sql, int mode, const QString& captions) {
        printed.append({sql, QString::number(mode), captions});
    });
    grid.cmdWhereShow("QBRA");
    grid.button("Print")->trigger();
    runOnApp({"UPDATE QD8TQuickForm SET TQFMMasterReportNo=1 WHERE TQFmAlias='QBRA'"});
    grid.cmdWhereShow("QBRA");
    grid.button("Print")->trigger();
    ASSERT_EQ(printed.size(), 2);
    EXPECT_EQ(printed[0], QStringList({"SELECT TBraCode AS TDivCode, TBraName AS TDivName, TBraName2 AS TDivName2 ,TBraFlag1 AS TDivFlag1 "
                                       "FROM QD8TBranch ORDER BY TBraCode", "2", "Title;Branches#Caption1;Code#Caption2;Name#Caption3;English"}));
    EXPECT_EQ(printed[1][0], "SELECT TBraCode AS TDivCode, TBraName AS TDivName, TBraFlag1 AS TDivFlag1 FROM QD8TBranch ORDER BY TBraCode");
    EXPECT_EQ(printed[1][2], "Title;Branches#Caption1;Code#Caption2;Name");

    QStringList commands;
    QObject::connect(&grid, &QuickGrid::PrintButtonClick, [&](const QString& alias) { commands << alias; });
    runOnApp({"UPDATE QD8TQuickForm SET TQFmPrintTCmdAlias='GLTB' WHERE TQFmAlias='QBRA'"});
    grid.cmdWhereShow("QBRA");
    grid.button("Print")->trigger();
    EXPECT_EQ(commands, QStringList{"GLTB"});
    EXPECT_EQ(printed.size(), 2);

    // The captions go as the columns were loaded: a column with a pick list keeps " (F2)".
    runOnApp({"UPDATE QD8TQuickForm SET TQFmPrintTCmdAlias=NULL WHERE TQFmAlias='QBRA'",
        "UPDATE QD8TQuickField SET TQFFRunQuickForm='EMPTYPE' WHERE TQFFID=9102"});
    grid.cmdWhereShow("QBRA");
    EXPECT_EQ(grid.grid()->TextMatrix(0, 2), "Name (F2)");
    grid.button("Print")->trigger();
    ASSERT_EQ(printed.size(), 3);
    EXPECT_EQ(printed[2][2], "Title;Branches#Caption1;Code#Caption2;Name (F2)");
}

QD8_ON_BOTH_ENGINES(QuickGridPickTest);

} // namespace
