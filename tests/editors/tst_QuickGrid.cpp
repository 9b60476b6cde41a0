#include "support/SampleCompany.h"
#include "support/ScriptedServices.h"

#include "database/PermissionObject.h"
#include "editors/QuickGrid.h"
#include "foundation/Connection.h"
#include "foundation/Recordset.h"
#include "foundation/SqlTrace.h"
#include "widgets/GridEditor.h"
#include "widgets/GridEditorModel.h"

#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>

using namespace qd8;
using namespace qd8::test;

namespace {

// Two quick forms over the divisions and departments of the company data:
//   QDIV  key TDivCode (TEXT, not blank, not duplicate), name (not blank, at most 30
//         characters), English name, sort (NUMBER 0..999); automatic print mode 1;
//         a division a department uses cannot be deleted (the form's own check).
//   QDEP  key TDepCode, name, division code with QDIV as its F2 pick list; print command.
class QuickGridTest : public SampleCompanyTest {
protected:
    void SetUp() override
    {
        SampleCompanyTest::SetUp();
        if (IsSkipped())
            return;
        runOnApp({
            "INSERT INTO QD8TQuickForm (TQFmAlias, TQFmCaption, TQFmCaption2, TQFmTCmGAlias, TQFmTable, TQFmView, TQFmKeyIDEN, TQFmPKList, TQFmOrder, "
            "TQFMMasterReportNo, TQFmDeleteAuto, TQFmDeleteTable, TQFmDeleteField, TQFmDeleteMessage, TQFmSort) VALUES ('QDIV', 'ฝ่าย', 'Divisions', 'GL', "
            "'QD8TDivision', 'QD8TDivision', 'TDiv', 'TDivCode', 'TDivSort', 1, 1, 'QD8TDepartment', 'TDepTDivCode', 'ฝ่ายนี้มีแผนกใช้อยู่', 91)",
            "INSERT INTO QD8TQuickForm (TQFmAlias, TQFmCaption, TQFmCaption2, TQFmTCmGAlias, TQFmTable, TQFmView, TQFmKeyIDEN, TQFmPKList, TQFmOrder, "
            "TQFmPrintTCmdAlias, TQFmSort) VALUES ('QDEP', 'แผนก', 'Departments', 'GL', 'QD8TDepartment', 'QD8TDepartment', 'TDep', 'TDepCode', "
            "'TDepCode', 'GLTB', 92)",
            field(9001, "QDIV", 1, "TDivCode", "รหัสฝ่าย", "TEXT", "TQFFPrimaryKey, TQFFCanBlank, TQFFCanDuplicate, TQFFWidth", "1, 0, 0, 1200"),
            field(9002, "QDIV", 2, "TDivName", "ชื่อฝ่าย", "TEXT", "TQFFCanBlank, TQFFMaxlength, TQFFWidth", "0, 30, 3000"),
            field(9003, "QDIV", 3, "TDivName2", "ชื่ออังกฤษ", "TEXT", "TQFFWidth", "3000"),
            field(9004, "QDIV", 4, "TDivSort", "ลำดับ", "NUMBER", "TQFFMinCon, TQFFMinValue, TQFFMaxCon, TQFFMaxValue, TQFFWidth", "1, 0, 1, 999, 800"),
            field(9005, "QDIV", 5, "TDivName", "ไม่ใช้", "TEXT", "TQFFFlag1", "0"),
            field(9011, "QDEP", 1, "TDepCode", "รหัสแผนก", "TEXT", "TQFFPrimaryKey, TQFFCanBlank", "1, 0"),
            field(9012, "QDEP", 2, "TDepName", "ชื่อแผนก", "TEXT", "TQFFCanBlank", "0"),
            field(9013, "QDEP", 3, "TDepTDivCode", "ฝ่าย", "TEXT", "TQFFRunQuickForm", "'QDIV'"),
        });
        runOnData({"DELETE FROM QD8TDepartment", "DELETE FROM QD8TDivision",
            "INSERT INTO QD8TDivision (TDivCode, TDivName, TDivName2, TDivSort, TDivFlag1) VALUES ('D01', 'บัญชี', 'Accounting', 1, 1)",
            "INSERT INTO QD8TDivision (TDivCode, TDivName, TDivName2, TDivSort, TDivFlag1) VALUES ('D02', 'ขาย', 'Sales', 2, 1)",
            "INSERT INTO QD8TDivision (TDivCode, TDivName, TDivName2, TDivSort, TDivFlag1) VALUES ('D03', 'เลิกใช้', 'Retired', 3, 0)",
            "INSERT INTO QD8TDepartment (TDepCode, TDepName, TDepTDivCode) VALUES ('P01', 'บัญชีทั่วไป', 'D01')"});
        grid.setConnectionString(appConnectionString());
        grid.setDataConnectionString(dataConnectionString());
        grid.SetLast2("C:\\QD8\\", "QuickGrid", "1", dataConnectionString(), appConnectionString());
    }
    static QString field(int id, const char* form, int sort, const char* name, const char* caption, const char* type, const char* columns,
        const char* values)
    {
        return QStringLiteral("INSERT INTO QD8TQuickField (TQFFID, TQFFTQFmAlias, TQFFSort, TQFFFieldName, TQFFCaption, TQFFCaption2, TQFFFieldType, %1) "
                              "VALUES (%2, '%3', %4, '%5', '%6', '%5', '%7', %8)")
            .arg(QLatin1String(columns)).arg(id).arg(QLatin1String(form)).arg(sort).arg(QLatin1String(name), QString::fromUtf8(caption),
                QLatin1String(type), QLatin1String(values));
    }
    QStringList divisions() const
    {
        return queryColumn(dataConnectionString(), "SELECT TDivCode || '|' || TDivName || '|' || TDivSort FROM QD8TDivision ORDER BY TDivCode");
    }
    // The buttons on the bar, those of them a click reaches marked "*".
    QStringList bar() const
    {
        QStringList keys;
        for (const QString& key : QuickGrid::ButtonKeys)
            if (grid.button(key)->isVisible())
                keys << key + (grid.button(key)->isEnabled() ? "*" : "");
        return keys;
    }
    QuickGrid grid;
};

TEST_P(QuickGridTest, LoadingReadsTheActiveFormItsActiveFieldsAndTheRows)
{
    SqlTrace::Recorder trace;
    grid.cmdWhereShow("QDIV");
    for (const char* sql : {"SELECT * FROM QD8TQuickForm WHERE TQFmAlias='QDIV' AND TQFMFlag1=1",
             "SELECT * FROM QD8TQuickField WHERE TQFFTQFmAlias='QDIV' AND TQFFFlag1=1 ORDER BY TQFFSort", "SELECT * FROM QD8TDivision ORDER BY TDivSort"})
        EXPECT_TRUE(trace.composed().contains(sql)) << sql;
    GridEditor* g = grid.grid();
    ASSERT_EQ(g->Cols(), 5);  // four active fields and the active flag
    ASSERT_EQ(g->Rows(), 3);
    EXPECT_EQ(QStringList({g->TextMatrix(0, 1), g->TextMatrix(0, 5), grid.form().keyField, g->TextMatrix(2, 2)}),
        QStringList({"รหัสฝ่าย", "แสดง", "TDivCode", "ขาย"}));
    EXPECT_EQ(g->GetValue(3, 5).toInt(), 0);
    EXPECT_EQ(grid.RUNMODE(), "VIEW");

    QuickGrid departments;
    departments.setConnectionString(appConnectionString());
    departments.setDataConnectionString(dataConnectionString());
    departments.cmdWhereShow2("QDEP", true);
    EXPECT_EQ(departments.grid()->TextMatrix(0, 3), "ฝ่าย (F2)");  // a column with a pick list says so
    EXPECT_TRUE(departments.selectorLocked());

    // Metadata naming a column the table does not have is reported, not shown half-empty.
    runOnApp({"UPDATE QD8TQuickField SET TQFFFieldName='TDivNmae' WHERE TQFFID=9002"});
    grid.cmdWhereShow("QDIV");
    EXPECT_EQ(grid.RUNMODE(), "BLANK");
    ASSERT_EQ(scriptedMessages().shown.size(), 1);
    EXPECT_TRUE(scriptedMessages().shown[0].text.contains("TDivNmae"));
}

TEST_P(QuickGridTest, FillDataWithNoFormChosenAndNoDefaultOpensNothing)
{
    grid.setQuickGroup("GL");
    grid.Refresh();
    ASSERT_FALSE(grid.groupForms().isEmpty());  // forms to offer, none chosen
    SqlTrace::Recorder trace;
    grid.FillData();
    EXPECT_TRUE(trace.entries().isEmpty() && scriptedMessages().shown.isEmpty());
    EXPECT_EQ(grid.RUNMODE() + "|" + grid.selectedAlias(), "BLANK|");
    EXPECT_EQ(grid.grid()->Cols(), 0);

    grid.setDefaultFormAlias("QDIV");
    grid.FillData();
    EXPECT_EQ(grid.RUNMODE() + "|" + grid.selectedAlias(), "VIEW|QDIV");
}

TEST_P(QuickGridTest, TypeWordsMeanTheSameInAnyCaseAndTheCursorFollowsItsRecordThroughASave)
{
    // The key typed " text " is still a TEXT key (quoted in SQL); " Number " a number column.
    runOnApp({"UPDATE QD8TQuickField SET TQFFFieldType=' text ' WHERE TQFFID=9001",
        "UPDATE QD8TQuickField SET TQFFFieldType=' Number ' WHERE TQFFID=9004"});
    grid.cmdWhereShow("QDIV");
    ASSERT_EQ(grid.RUNMODE(), "VIEW");
    EXPECT_EQ(grid.form().fields[0].type, "TEXT");
    EXPECT_EQ(grid.grid()->column(4).type, GridColumnType::Number);
    grid.button("Edit")->trigger();
    grid.grid()->SetValue(1, 4, 7);
    grid.grid()->setRow(1);
    scriptedMessages().answers = {true};
    SqlTrace::Recorder trace;
    ASSERT_TRUE(grid.save());
    EXPECT_TRUE(trace.composed().contains("SELECT * FROM QD8TDivision WHERE TDivCode='D01'"));
    EXPECT_EQ(divisions().first(), "D01|บัญชี|7");
    // Rows are ordered by TDivSort: the cursor follows D01 from the first row to the last.
    EXPECT_EQ(grid.grid()->Row(), 3);
    EXPECT_EQ(grid.grid()->TextMatrix(grid.grid()->Row(), 1), "D01");
}

TEST_P(QuickGridTest, SetPermissionAndSetParentFormBindLate)
{
    // A host that knows the control only through the meta-object.
    QWidget form;
    int answer = -1;
    ASSERT_TRUE(QMetaObject::invokeMethod(&grid, "SetParentForm", Q_RETURN_ARG(int, answer), Q_ARG(QWidget*, &form)));
    EXPECT_EQ(answer, 1);  // the hosted grid took the form
    EXPECT_EQ(grid.grid()->parentForm(), &form);
    EXPECT_FALSE(grid.grid()->actionSingleControl());
    ASSERT_TRUE(QMetaObject::invokeMethod(&grid, "SetParentForm", Q_RETURN_ARG(int, answer), Q_ARG(QWidget*, &form), Q_ARG(bool, true)));
    EXPECT_EQ(answer, 1);
    EXPECT_TRUE(grid.grid()->actionSingleControl());

    // SetPermission by name: the rights the object lacks disable their buttons.
    grid.cmdWhereShow("QDIV");
    DbPermissionObject rights(dataConnectionString(), 2);
    rights.LoadCommandRights(2, "NOSUCHCOMMAND", dataConnectionString(), appConnectionString());  // no rights at all
    ASSERT_TRUE(QMetaObject::invokeMethod(&grid, "SetPermission", Q_ARG(qd8::PermissionObject*, &rights)));
    EXPECT_FALSE(grid.button("Edit")->isEnabled());
    EXPECT_FALSE(grid.button("Print")->isEnabled());
    grid.cmdWhereShow("QDIV");  // no mode enables a button the rights refuse
    EXPECT_FALSE(grid.button("Edit")->isEnabled());
    EXPECT_TRUE(grid.button("Close")->isEnabled());  // no right governs it
}

TEST_P(QuickGridTest, TheToolBarFollowsTheModeAndKeepsItsPlaces)
{
    EXPECT_EQ(bar(), (QStringList{"Add", "Delete", "Filter", "Edit", "Update", "Cancel", "Close*"}));
    QSignalSpy changed(&grid, &QuickGrid::ChangeGroup);
    grid.cmdWhereShow("QDIV");
    EXPECT_EQ(changed.count(), 1);
    // A mode disables what it does not show: the others never move.
    EXPECT_EQ(bar(), (QStringList{"Add*", "Delete", "Filter*", "Edit*", "Update", "Cancel", "Close*", "Print*"}));
    EXPECT_TRUE(grid.grid()->ReadOnly());
    grid.button("Edit")->trigger();
    EXPECT_EQ(grid.RUNMODE(), "EDIT");
    EXPECT_EQ(bar(), (QStringList{"Add*", "Delete*", "Filter*", "Edit", "Update*", "Cancel*", "Close", "Print"}));
    EXPECT_FALSE(grid.grid()->ReadOnly());
    grid.button("Cancel")->trigger();
    EXPECT_EQ(grid.RUNMODE(), "VIEW");
}

TEST_P(QuickGridTest, EveryCommandHasItsKeyNamedInItsToolTip)
{
    const struct { const char* key; QKeySequence keys; } commands[] = {{"Add", Qt::CTRL | Qt::Key_N}, {"Edit", Qt::CTRL | Qt::Key_E}, {"Update", Qt::CTRL | Qt::Key_S},
        {"Cancel", Qt::Key_Escape}, {"Delete", Qt::CTRL | Qt::Key_Delete}, {"Print", Qt::CTRL | Qt::Key_P}};
    for (const auto& c : commands) {
        SCOPED_TRACE(c.key);
        EXPECT_EQ(grid.button(c.key)->shortcut(), c.keys);
        EXPECT_EQ(grid.button(c.key)->toolTip(), grid.button(c.key)->text() + " (" + c.keys.toString(QKeySequence::NativeText) + ")");
    }
    // The keys act when focus is in the editor, as a clerk works.
    grid.show();
    grid.cmdWhereShow("QDIV");
    grid.grid()->setFocus();
    QApplication::setActiveWindow(&grid);
    QTest::keyClick(grid.grid(), Qt::Key_E, Qt::ControlModifier);
    EXPECT_EQ(grid.RUNMODE(), "EDIT");
    grid.grid()->SetValue(1, 2, "บัญชีและการเงิน");
    scriptedMessages().answers = {false};  // Escape asks before it drops a change
    QTest::keyClick(grid.grid(), Qt::Key_Escape);
    EXPECT_EQ(grid.RUNMODE(), "EDIT");
    EXPECT_TRUE(grid.hasUnsavedChanges());
    scriptedMessages().answers = {true};
    QTest::keyClick(grid.grid(), Qt::Key_Escape);
    EXPECT_EQ(grid.RUNMODE(), "VIEW");
    EXPECT_FALSE(grid.hasUnsavedChanges());
    // F2 on the form selector opens the choice of forms.
    scriptedPicker().answers = {"QDEP"};
    grid.findChild<QLineEdit*>()->setFocus();
    QTest::keyClick(grid.findChild<QLineEdit*>(), Qt::Key_F2);
    EXPECT_EQ(grid.selectedAlias(), "QDEP");
}

TEST_P(QuickGridTest, SavingWritesEveryMarkedRowAndCountsThem)
{
    grid.cmdWhereShow("QDIV");
    grid.button("Edit")->trigger();
    GridEditor* g = grid.grid();
    g->SetValue(1, 2, "บัญชีและการเงิน");
    g->DeleteRow(3);
    const int added = g->AddRow();
    g->SetValue(added, 1, "D04");
    g->SetValue(added, 2, "จัดซื้อ");
    g->SetValue(added, 4, 4);
    const int dropped = g->AddRow();  // added, then deleted before saving: skipped
    g->DeleteRow(dropped);
    scriptedMessages().answers = {true};
    SqlTrace::Recorder trace;
    ASSERT_TRUE(grid.save());
    EXPECT_TRUE(trace.composed().contains("DELETE  FROM QD8TDivision WHERE TDivCode='D03'"));
    EXPECT_TRUE(trace.composed().contains("SELECT * FROM QD8TDivision WHERE TDivCode='D01'"));
    EXPECT_EQ(divisions(), (QStringList{"D01|บัญชีและการเงิน|1", "D02|ขาย|2", "D04|จัดซื้อ|4"}));
    const auto& shown = scriptedMessages().shown;
    ASSERT_EQ(shown.size(), 2);
    EXPECT_EQ(QStringList({shown[0].kind, shown[0].title, shown[0].text, shown[1].text}),
        QStringList({"question", "ยืนยันคำสั่ง", "ท่านต้องการบันทึกข้อมูลที่เปลี่ยนแปลงนี้ ใช่หรือไม่", "บันทึกข้อมูล  2 รายการ   ลบข้อมูล 1 รายการ เรียบร้อย"}));
    EXPECT_EQ(grid.RUNMODE(), "VIEW");
    EXPECT_EQ(g->Rows(), 3);
}

TEST_P(QuickGridTest, NothingIsWrittenWhenTheUserSaysNoOrABlankIsLeft)
{
    grid.cmdWhereShow("QDIV");
    grid.button("Add")->trigger();
    GridEditor* g = grid.grid();
    EXPECT_EQ(g->GetValue(4, 5).toInt(), 1);  // a new row is shown (in use) unless changed
    g->SetValue(4, 1, "D05");  // no name
    scriptedMessages().answers = {false, true};
    EXPECT_FALSE(grid.save());
    EXPECT_EQ(grid.RUNMODE(), "ADD");
    EXPECT_FALSE(grid.save());
    const auto& shown = scriptedMessages().shown;
    ASSERT_EQ(shown.size(), 3);
    EXPECT_EQ(shown[2].kind + "|" + shown[2].text, "critical|กรุณาระบุ ชื่อฝ่าย ให้ถูกต้อง");
    EXPECT_EQ(divisions().size(), 3);
    EXPECT_EQ(g->Rows(), 4);  // the grid keeps what the user typed
}

TEST_P(QuickGridTest, ABatchThatFailsHalfwayLeavesTheTableAsItWas)
{
    grid.cmdWhereShow("QDIV");
    grid.button("Edit")->trigger();
    GridEditor* g = grid.grid();
    g->SetValue(1, 2, "เปลี่ยนแล้ว");
    g->DeleteRow(2);
    const int first = g->AddRow();
    g->SetValue(first, 1, "D09");
    g->SetValue(first, 2, "หนึ่ง");
    const int second = g->AddRow();
    g->SetValue(second, 1, "D09");  // the same key again: refused at the second row
    g->SetValue(second, 2, "สอง");
    const QStringList before = divisions();
    scriptedMessages().answers = {true};
    EXPECT_FALSE(grid.save());
    EXPECT_EQ(divisions(), before);
    ASSERT_EQ(scriptedMessages().shown.size(), 2);
    EXPECT_EQ(scriptedMessages().shown[1].kind, "critical");
    EXPECT_TRUE(scriptedMessages().shown[1].text.contains(QString::number(second)));
    EXPECT_EQ(grid.RUNMODE(), "EDIT");
}

TEST_P(QuickGridTest, AnotherUsersChangeIsReportedNotOverwritten)
{
    grid.cmdWhereShow("QDIV");
    grid.button("Edit")->trigger();
    grid.grid()->SetValue(1, 2, "ของฉัน");
    runOnData({"UPDATE QD8TDivision SET TDivName='ของคนอื่น' WHERE TDivCode='D01'"});
    scriptedMessages().answers = {true};
    EXPECT_FALSE(grid.save());
    EXPECT_EQ(divisions().first(), "D01|ของคนอื่น|1");
    EXPECT_TRUE(scriptedMessages().shown.last().text.contains("แก้ไขรายการนี้ไปแล้ว"));

    runOnData({"DELETE FROM QD8TDivision WHERE TDivCode='D02'"});
    grid.cmdCancel_Click();
    grid.button("Edit")->trigger();
    runOnData({"DELETE FROM QD8TDivision WHERE TDivCode='D01'"});
    grid.grid()->SetValue(1, 2, "ของฉัน");
    scriptedMessages().answers = {true};
    EXPECT_FALSE(grid.save());
    EXPECT_TRUE(scriptedMessages().shown.last().text.contains("ลบรายการนี้ไปแล้ว"));
}

TEST_P(QuickGridTest, ADeleteThatWouldNotRemoveExactlyTheOneEntryIsRefusedAndUndone)
{
    struct Case {
        const char* form;  // how QDIV's key is declared
        int row;           // the row deleted (rows by TDivSort)
        const char* says;
    } cases[] = {
        {"UPDATE QD8TQuickField SET TQFFFieldType='NUMBER' WHERE TQFFID=9001", 4, "\"0 OR 1=1\" ไม่ใช่ตัวเลข"},
        {"UPDATE QD8TQuickField SET TQFFPrimaryKey=CASE WHEN TQFFID=9003 THEN 1 ELSE 0 END WHERE TQFFID IN (9001, 9003)", 2,
            "รหัสของรายการนี้ตรงกับ 2 รายการ จึงไม่ลบ"},
        {"UPDATE QD8TQuickField SET TQFFPrimaryKey=0 WHERE TQFFID=9001", 1, "แบบฟอร์มนี้ไม่มีช่องรหัส"},
    };
    runOnData({"INSERT INTO QD8TDivision (TDivCode, TDivName, TDivName2, TDivSort, TDivFlag1) VALUES ('0 OR 1=1', 'x', 'Sales', 4, 1)"});
    for (const Case& c : cases) {
        runOnApp({"UPDATE QD8TQuickField SET TQFFFieldType='TEXT', TQFFPrimaryKey=CASE WHEN TQFFID=9001 THEN 1 ELSE 0 END WHERE TQFFID IN (9001, 9003)",
            c.form});
        grid.cmdWhereShow("QDIV");
        grid.button("Edit")->trigger();
        grid.grid()->DeleteRow(c.row);
        scriptedMessages().answers = {true};
        EXPECT_FALSE(grid.save()) << c.form;
        EXPECT_TRUE(scriptedMessages().shown.last().text.contains(QString::fromUtf8(c.says))) << scriptedMessages().shown.last().text.toStdString();
        EXPECT_EQ(divisions().size(), 4) << c.form;
        grid.cmdCancel_Click();
    }
}

TEST_P(QuickGridTest, ALongSaveShowsProgressAndCancelWritesNothing)
{
    grid.cmdWhereShow("QDIV");
    grid.button("Edit")->trigger();
    grid.grid()->SetValue(1, 2, "ยกเลิกได้");
    grid.grid()->DeleteRow(3);
    scriptedProgress().cancelTitle = "ฝ่าย";
    scriptedProgress().cancelAt = 4;  // after the delete, before the changed row
    scriptedMessages().answers = {true};
    EXPECT_FALSE(grid.save());
    EXPECT_EQ(scriptedMessages().shown.last().text, "ยกเลิกการบันทึกแล้ว ไม่มีข้อมูลใดถูกบันทึก");
    EXPECT_EQ(divisions().size(), 3);
    EXPECT_EQ(grid.RUNMODE(), "EDIT");

    scriptedProgress().reset();
    scriptedMessages().answers = {true};
    ASSERT_TRUE(grid.save());
    ASSERT_EQ(scriptedProgress().operations.size(), 1);
    EXPECT_EQ(QList<int>({int(scriptedProgress().operations[0].total), int(scriptedProgress().operations[0].lastStep), int(scriptedProgress().ended)}),
        QList<int>({6, 6, 1}));
    EXPECT_EQ(divisions().first(), "D01|ยกเลิกได้|1");
}

TEST_P(QuickGridTest, AKeyStillInUseIsNotDeletedByTheFormsCheckOrTheColumnsCheck)
{
    grid.cmdWhereShow("QDIV");
    grid.button("Edit")->trigger();
    grid.grid()->DeleteRow(1);  // D01 has a department
    scriptedMessages().answers = {true};
    EXPECT_FALSE(grid.save());
    EXPECT_EQ(scriptedMessages().shown.last().text, "ฝ่ายนี้มีแผนกใช้อยู่ (D01)");
    EXPECT_EQ(divisions().size(), 3);
    grid.cmdCancel_Click();

    // Not the form's own check this time: the key column names QDEP, whose table refers to
    // it by QDEP's prefix + the column's name (QD8TDepartment.TDepTDivCode).
    runOnApp({"UPDATE QD8TQuickForm SET TQFmDeleteAuto=0 WHERE TQFmAlias='QDIV'",
        "UPDATE QD8TQuickField SET TQFFCanDeleteAlias='QDEP' WHERE TQFFID=9001"});
    grid.cmdWhereShow("QDIV");
    grid.button("Edit")->trigger();
    grid.grid()->DeleteRow(1);  // D01 has a department
    scriptedMessages().answers = {true};
    SqlTrace::Recorder trace;
    EXPECT_FALSE(grid.save());
    EXPECT_EQ(scriptedMessages().shown.last().text, "รหัสฝ่าย D01 ยังถูกใช้งานอยู่ ลบไม่ได้");
    EXPECT_TRUE(trace.composed().contains("SELECT * FROM QD8TQuickForm WHERE TQFmAlias='QDEP'"));
    EXPECT_TRUE(trace.composed().contains("SELECT TDepTDivCode FROM QD8TDepartment WHERE TDepTDivCode='D01'"));
    EXPECT_EQ(divisions().size(), 3);

    grid.cmdCancel_Click();
    grid.button("Edit")->trigger();
    grid.grid()->DeleteRow(2);  // D02 has none
    scriptedMessages().answers = {true};
    EXPECT_TRUE(grid.save());
    EXPECT_EQ(divisions().size(), 2);
}

TEST_P(QuickGridTest, CellChecksRefuseDuplicatesBoundsAndLength)
{
    grid.cmdWhereShow("QDIV");
    grid.button("Edit")->trigger();
    GridEditorModel* model = grid.grid()->model();
    const struct { int col; QVariant value; bool refused; } cases[] = {
        {1, "D02", true},                       // already in row 2
        {1, "D09", false},
        {2, QString(31, QChar(0x0E01)), true},  // 31 characters, 30 allowed
        {2, QString(30, QChar(0x0E01)), false},
        {4, -1, true},
        {4, 999, false},
        {4, 1000, true},
    };
    for (const auto& c : cases) {
        const QVariant before = grid.grid()->GetValue(1, c.col);
        model->setData(model->index(0, c.col - 1), c.value.toString(), Qt::EditRole);  // as the user types into row 1
        EXPECT_EQ(grid.grid()->GetValue(1, c.col) == before, c.refused) << c.col << " " << c.value.toString().toStdString();
        grid.grid()->SetValue(1, c.col, before);
    }
}

TEST_P(QuickGridTest, ANewRowOfAnAutonumberFormGetsItsKeyFromTheDatabase)
{
    grid.cmdWhereShow("UNIT");
    GridEditor* g = grid.grid();
    const int rows = g->Rows();
    grid.buttonClick("Add");
    const int added = g->Rows();
    ASSERT_EQ(added, rows + 1);
    g->SetValue(added, 1, "CTN");
    g->SetValue(added, 2, "ลัง");
    g->SetValue(added, 4, 10);
    scriptedMessages().answers = {true};
    SqlTrace::Recorder trace;
    ASSERT_TRUE(grid.save());
    for (const QString& statement : trace.sent())
        EXPECT_FALSE(statement.startsWith("INSERT") && statement.contains("TUntID")) << statement.toStdString();  // never written
    Connection c;
    c.open(dataConnectionString());
    Recordset rs;
    rs.open("SELECT TUntID, TUntRatio, TUntFlag1 FROM QD8TUnit WHERE TUntCode='CTN'", c);
    ASSERT_FALSE(rs.eof());
    EXPECT_GT(rs.field("TUntID").toInt(), 7);
    EXPECT_EQ(rs.field("TUntFlag1").toInt(), 1);
    EXPECT_EQ(g->Rows(), rows + 1);  // read back with the key the database gave it
}

TEST_P(QuickGridTest, EverySampleQuickFormLoadsAndItsPickListRuns)
{
    const QStringList aliases = queryColumn(appConnectionString(),
        "SELECT TQFmAlias FROM QD8TQuickForm WHERE TQFmFlag1=1 AND TQFmAlias NOT IN ('QDIV','QDEP') ORDER BY TQFmAlias");
    ASSERT_GE(aliases.size(), 9);
    Connection data;
    data.open(dataConnectionString());
    for (const QString& alias : aliases) {
        SCOPED_TRACE(alias.toStdString());
        grid.cmdWhereShow(alias);
        EXPECT_EQ(grid.RUNMODE(), "VIEW");
        EXPECT_EQ(grid.form().fields.size(), grid.grid()->Cols());
        // The pick list's statement, as the pick list would run it.
        scriptedPicker().requests.clear();
        grid.SelectQuickForm(alias);
        ASSERT_EQ(scriptedPicker().requests.size(), 1);
        const PickRequest& request = scriptedPicker().requests.first();
        Recordset rows;
        EXPECT_NO_THROW(rows.open(Sql("SELECT ") + request.fieldList + " FROM " + request.source, data));
        for (const QuickFieldDefinition& field : grid.form().fields)
            if (!field.runQuickForm.isEmpty()) {
                EXPECT_TRUE(aliases.contains(field.runQuickForm) || field.runQuickForm == "QDIV") << field.runQuickForm.toStdString();
            }
    }
    EXPECT_TRUE(scriptedMessages().shown.isEmpty());
}

QD8_ON_BOTH_ENGINES(QuickGridTest);

} // namespace
