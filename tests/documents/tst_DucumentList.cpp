#include "support/SampleCompany.h"
#include "support/ScriptedServices.h"

#include "database/AppObject.h"
#include "database/ClientObject.h"
#include "database/DataObject.h"
#include "documents/DucumentList.h"
#include "foundation/SqlTrace.h"
#include "widgets/DataView.h"
#include "widgets/DateEdit.h"
#include "widgets/FormCollection.h"
#include "widgets/FormRegistry.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableView>
#include <QTest>
#include <functional>

using namespace qd8;
using namespace qd8::test;

// A document form as a host registers it: the late-bound members a list drives, recorded.
class RecordingForm : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QString RUNMODE MEMBER runMode)
    Q_PROPERTY(QString NewDocNo MEMBER newDocNo)
    Q_PROPERTY(QString DocNo MEMBER docNo)

public:
    using QWidget::QWidget;
    Q_INVOKABLE void Setbuttons() { calls << QStringLiteral("Setbuttons:") + runMode; }
    Q_INVOKABLE void FillData() { calls << QStringLiteral("FillData:") + docNo; }

    QString runMode, newDocNo, docNo;
    QStringList calls;
};

namespace {

RecordingForm* lastForm = nullptr;
constexpr int AllDocuments = 11;  // the "All" entry of the test list's status combo

// Documents of QD8TPR, one per status:    confirm approve cancel note
const struct {
    const char* no;
    int confirm, approve, cancel;
    const char* note;  // nullptr: NULL
    const char* date;
    const char* branch;
} Documents[] = {
    {"PR01", 0, 0, 0, "", "2026-01-05", "01"},   // draft
    {"PR02", 1, 0, 0, "A", "2026-01-10", "01"},  // waiting, note A
    {"PR03", 1, 0, 0, "", "2026-01-15", "02"},   // waiting, no note
    {"PR04", 1, 0, 0, nullptr, "2026-02-01", "01"},  // waiting, NULL note
    {"PR05", 1, 0, 0, "B", "2026-02-10", "01"},  // waiting, note B
    {"PR06", 1, 1, 0, "", "2026-02-20", "02"},   // approved
    {"PR07", 0, 0, 1, "", "2026-03-01", "01"},   // cancelled draft
    {"PR08", 1, 1, 1, "", "2026-03-05", "01"},   // approved, then cancelled
};

class DucumentListTest : public SampleCompanyTest {
protected:
    void SetUp() override
    {
        SampleCompanyTest::SetUp();
        if (IsSkipped())
            return;
        QStringList rows{QStringLiteral("DELETE FROM QD8TPR"),
            QStringLiteral("DELETE FROM QD8TUserSetting WHERE TUsSAlias IN ('ApproveNoteFilter', 'ApproveNoteValue', 'DefaultUserProject')")};
        for (const auto& d : Documents)
            rows << QStringLiteral("INSERT INTO QD8TPR (TPRDNo, TPRDDate, TPRDTBraCode, TPRDRefNo, TPRDDescription, TPRDConfirmStatus, "
                                   "TPRDApproveStatus, TPRDCancelStatus, TPRDApproveNote) VALUES ('%1', '%2', '%3', 'R-%1', 'ขอซื้อ %1', %4, %5, %6, %7)")
                        .arg(QLatin1String(d.no), QLatin1String(d.date), QLatin1String(d.branch))
                        .arg(d.confirm)
                        .arg(d.approve)
                        .arg(d.cancel)
                        .arg(d.note ? QStringLiteral("'%1'").arg(QLatin1String(d.note)) : QStringLiteral("NULL"));
        runOnData(rows);
        define("TESTPR", "TFDLFilterStatus, TFDLFilterStatusL, TFDLFilterCustom",
            "'0,1,2,3,4,5,6,7,8,9,10,', 'อนุมัติ,รออนุมัติ,ยืนยัน,ไม่ยืนยัน,ไม่อนุมัติ,ไม่ยกเลิก,ยกเลิก,เจ็ด,แปด,เก้า,สิบ,ทั้งหมด', "
            "' AND TPRDRefNo=''R-PR01'', AND TPRDBranch=''x'''");
        FormRegistry::registerForm(QStringLiteral("TESTDOC"), [](QWidget* parent) {
            lastForm = new RecordingForm(parent);
            return lastForm;
        });
    }
    void TearDown() override
    {
        FormRegistry::unregisterForm(QStringLiteral("TESTDOC"));
        lastForm = nullptr;
        SampleCompanyTest::TearDown();
    }

    // A definition over QD8TPR with the given extra columns.
    void define(const char* alias, const QString& columns, const QString& values)
    {
        runOnApp({QStringLiteral("DELETE FROM QD8TFormDocList WHERE TFDLTCmdAlias='%1'").arg(QLatin1String(alias)),
            QStringLiteral("INSERT INTO QD8TFormDocList (TFDLTCmdAlias, TFDLPrimaryKeyList, TFDLColumnList, TFDLNameList, TFDLNameList2, "
                           "TFDLWidthList, TFDLTypeList, TFDLQuery, TFDLOrderList, TFDLOrderQuery, TFDLFormDetail, %2) VALUES ('%1', 'TPRDNo', "
                           "'TPRDNo,TPRDDate,TPRDTBraCode,TPRDConfirmStatus,TPRDApproveStatus,TPRDCancelStatus', 'เลขที่,วันที่,สาขา,ยืนยัน,อนุมัติ,ยกเลิก', "
                           "'No.,Date,Branch,Confirmed,Approved,Cancelled', '1500,1200,800,600,600,600', '0,3,0,1,1,1', 'QD8TPR', "
                           "'เลขที่,วันที่', 'TPRDNo,TPRDDate DESC', 'TESTDOC', %3)")
                .arg(QLatin1String(alias), columns, values)});
    }

    // As a host that hands the list nothing but its session objects.
    void open(DucumentList& list, const char* alias, qint32 user = 1)
    {
        list.SetFilter(QString::fromLatin1(alias), QStringLiteral("IC"),
            std::make_shared<DbDataObject>(dataConnectionString(), appConnectionString(), user),
            std::make_shared<SessionAppObject>(list.session()), std::make_shared<DbClientObject>(dataConnectionString(), user),
            &forms, QStringLiteral("ใบขอซื้อ"), QStringLiteral("Purchase Requests"));
    }

    // The documents the list shows, in its order.
    static QStringList shown(DucumentList& list)
    {
        list.dataView()->fetchAll();
        QStringList keys;
        for (int row = 0; row < list.dataView()->fetchedRows(); ++row)
            keys << list.dataView()->value(row, QStringLiteral("TPRDNo")).toString();
        return keys;
    }

    static void choose(DucumentList& list, const char* combo, int index) { list.findChild<QComboBox*>(combo)->setCurrentIndex(index); }
    static void type(DucumentList& list, const char* box, const QString& text) { list.findChild<QLineEdit*>(box)->setText(text); }

    WindowFormCollection forms;
};

const QString Head = QStringLiteral(
    "SELECT TPRDNo,TPRDDate,TPRDTBraCode,TPRDConfirmStatus,TPRDApproveStatus,TPRDCancelStatus FROM QD8TPR  WHERE TPRDNo<>''");

} // namespace

TEST_P(DucumentListTest, EachStatusCodeComposesItsConditionAndListsItsDocuments)
{
    const struct { int index; QString condition; QStringList documents; } cases[] = {
        {0, " AND TPRDCancelStatus<>1 AND TPRDConfirmStatus=1 AND TPRDApproveStatus=1", {"PR06"}},
        {1, " AND (TPRDCancelStatus<>1 AND TPRDConfirmStatus=1 AND TPRDApproveStatus<>1) ", {"PR02", "PR03", "PR04", "PR05"}},
        {2, " AND TPRDCancelStatus<>1 AND TPRDConfirmStatus=1", {"PR02", "PR03", "PR04", "PR05", "PR06"}},
        {3, " AND TPRDCancelStatus<>1 AND TPRDConfirmStatus<>1", {"PR01"}},
        {4, " AND TPRDCancelStatus<>1 AND TPRDApproveStatus<>1", {"PR01", "PR02", "PR03", "PR04", "PR05"}},
        {5, " AND TPRDCancelStatus<>1", {"PR01", "PR02", "PR03", "PR04", "PR05", "PR06"}},
        {6, " AND TPRDCancelStatus=1", {"PR07", "PR08"}},
        {7, "", {"PR01", "PR02", "PR03", "PR04", "PR05", "PR06", "PR07", "PR08"}},  // "7" has no condition
        {8, " AND TPRDRefNo='R-PR01'", {"PR01"}},
        {9, " AND TPRDBranch='x'", {}},  // the second custom condition, as it stands: no such column
        {10, "", {"PR01", "PR02", "PR03", "PR04", "PR05", "PR06", "PR07", "PR08"}},  // "10" needs a third condition
        {11, "", {"PR01", "PR02", "PR03", "PR04", "PR05", "PR06", "PR07", "PR08"}},  // the "All" entry
    };
    DucumentList list;
    open(list, "TESTPR");
    QSignalSpy failures(&list, &DucumentList::statementFailed);
    for (const auto& c : cases) {
        SCOPED_TRACE(c.index);
        choose(list, "cboStatus", c.index);  // a choice reads the rows again by itself
        EXPECT_EQ(list.selectText().text(), Head + c.condition + " ORDER BY TPRDNo");
        EXPECT_EQ(shown(list), c.documents);
        EXPECT_EQ(failures.size(), c.index >= 9 ? 1 : 0);  // the engine refuses the unknown column, quietly
    }
    EXPECT_TRUE(scriptedMessages().shown.isEmpty());
}

TEST_P(DucumentListTest, AChangedChoiceOrEnterInAFilterBoxReadsTheRowsAgain)
{
    define("TESTPR3", "TFDLFilterStatus, TFDLFilterStatusL, TFDLFilterBackDate, TFDLBACKDAYLIST, TFDLFilter2, TFDLFilter2F",
        "'6,', 'ยกเลิก,ทั้งหมด', 1, '0,30', 'TPRDRefNo', 'อ้างอิง'");
    DucumentList list;
    open(list, "TESTPR3");
    const auto enter = [&](const char* box, const char* text) {
        type(list, box, text);
        QTest::keyClick(list.findChild<QLineEdit*>(box), Qt::Key_Return);
    };
    const struct {
        const char* step;
        std::function<void()> act;
        QString sent;           // in the statement read after the step
        QStringList documents;  // "*": not checked (depends on today)
    } steps[] = {
        {"all", [&] { choose(list, "cboStatus", 1); }, Head + " ORDER BY TPRDNo", {"PR01", "PR02", "PR03", "PR04", "PR05", "PR06", "PR07", "PR08"}},
        {"cancelled", [&] { choose(list, "cboStatus", 0); }, " AND TPRDCancelStatus=1", {"PR07", "PR08"}},
        {"reference", [&] { enter("txtFilter2", "R-PR07"); }, " AND TPRDRefNo='R-PR07'", {"PR07"}},
        {"to date", [&] { enter("txtDateTo", "28/02/2026"); }, " AND TPRDDate<=#$2026-02-28#$", {}},
        {"back days", [&] { choose(list, "cboBackDay", 1); },
            "TPRDDate>=#$" + QDate::currentDate().addDays(-30).toString(Qt::ISODate) + "#$", {"*"}},
    };
    for (const auto& t : steps) {
        SCOPED_TRACE(t.step);
        SqlTrace::Recorder trace;
        t.act();
        EXPECT_TRUE(list.selectText().text().contains(t.sent)) << list.selectText().text().toStdString();
        EXPECT_TRUE(trace.composed().contains(list.selectText().text()));
        EXPECT_TRUE(t.documents == QStringList{"*"} || shown(list) == t.documents) << shown(list).join(',').toStdString();
    }
}

TEST_P(DucumentListTest, WaitingForApprovalShowsOnlyTheClientsNoteWhenItsFilterIsOn)
{
    runOnData({"INSERT INTO QD8TUserSetting (TUsSTUsrID, TUsSAlias, TUsSValue) VALUES (2, 'ApproveNoteFilter', '1')",
        "INSERT INTO QD8TUserSetting (TUsSTUsrID, TUsSAlias, TUsSValue) VALUES (2, 'ApproveNoteValue', 'A')"});
    DucumentList list;
    open(list, "TESTPR", 2);
    choose(list, "cboStatus", 1);
    list.runQuery();
    EXPECT_EQ(list.selectText().text(),
        Head + " AND (TPRDCancelStatus<>1 AND TPRDConfirmStatus=1 AND TPRDApproveStatus<>1) "
               " AND (TPRDApproveNote='A' or TPRDApproveNote='' or TPRDApproveNote is null)  ORDER BY TPRDNo");
    EXPECT_EQ(shown(list), QStringList({"PR02", "PR03", "PR04"}));
    choose(list, "cboStatus", 2);  // only code 1 reads the note
    list.runQuery();
    EXPECT_FALSE(list.selectText().text().contains("ApproveNote"));
}

TEST_P(DucumentListTest, FilterBoxesAddTheirConditionsInOrder)
{
    define("TESTPR2", "TFDLFilterStatus, TFDLFilterCustomW, TFDLFilter2, TFDLFilter2F, TFDLFilter3, TFDLFilter3F",
        "'', ' AND TPRDDescription IS NOT NULL', 'TPRDRefNo', 'อ้างอิง', 'TPRDTBraCode', 'สาขาเอกสาร'");
    DucumentList list;
    open(list, "TESTPR2");
    type(list, "txtDateFrom", "10/01/2026");
    type(list, "txtDateTo", "2026-02-15");
    type(list, "txtFilter2", "R-PR03");
    type(list, "txtFilter3", "01,02");
    type(list, "txtBranch", "02");
    choose(list, "cboSort", 1);
    list.runQuery();
    EXPECT_EQ(list.selectText().text(),
        Head + " AND TPRDDate>=#$2026-01-10#$ AND TPRDDate<=#$2026-02-15#$ AND TPRDRefNo='R-PR03'"
               " AND (TPRDTBraCode='01' OR TPRDTBraCode='02') AND TPRDTBraCode='02' AND TPRDDescription IS NOT NULL"
               " ORDER BY TPRDDate DESC");
    EXPECT_EQ(shown(list), QStringList({"PR03"}));

    // A Buddhist-era year is taken back; a quote in a box is refused with a message, never sent.
    for (const char* box : {"txtFilter2", "txtFilter3", "txtBranch", "txtDateTo"})
        type(list, box, "");
    type(list, "txtDateFrom", "01/02/2569");
    list.runQuery();
    EXPECT_EQ(shown(list), QStringList({"PR08", "PR07", "PR06", "PR05", "PR04"}));
    scriptedMessages().reset();
    type(list, "txtBranch", "0'1");
    SqlTrace::Recorder trace;
    list.findChild<QPushButton*>("cmdSelect")->click();
    ASSERT_EQ(scriptedMessages().shown.size(), 1);
    EXPECT_TRUE(scriptedMessages().shown[0].text.contains("0'1"));
    EXPECT_TRUE(trace.composed().isEmpty());
}

TEST_P(DucumentListTest, TheSessionComesFromTheObjectsAndAnotherDefinitionReplacesTheFirstWhole)
{
    DucumentList list;
    open(list, "TESTPR", 2);  // John reads English
    EXPECT_EQ(list.UserID(), 2);
    EXPECT_EQ(list.NameList(), "No.,Date,Branch,Confirmed,Approved,Cancelled");
    EXPECT_EQ(list.findChild<QPushButton*>("cmdSelect")->text(), "Select");
    const auto firstDate = [&] { return list.dataView()->tableView()->model()->index(0, 1).data().toString(); };
    EXPECT_EQ(firstDate(), "20/02/2026");

    open(list, "TESTPR", 1);  // Somchai reads Thai: Buddhist-era years, in the grid and in the date boxes
    EXPECT_EQ(firstDate(), "20/02/2569");
    scriptedPicker().dateAnswers = {QDateTime(QDate(2026, 2, 1), QTime())};
    auto* from = list.findChild<DateEdit*>("txtDateFrom");
    ASSERT_TRUE(from);
    QTest::keyClick(from, Qt::Key_F4);
    EXPECT_EQ(from->text(), "01/02/2569");
    list.findChild<QPushButton*>("cmdSelect")->click();
    EXPECT_TRUE(list.selectText().text().contains(" AND TPRDDate>=#$2026-02-01#$"));

    open(list, "PUPO", 1);
    EXPECT_EQ(list.UserID(), 1);
    EXPECT_EQ(list.Prefix(), "TPOD");
    EXPECT_TRUE(list.selectText().text().contains("FROM QD8TPO LEFT JOIN QD8TPO2 ON TPODNo = TPO2TPODNo LEFT JOIN QD8TAP ON "
                                                  "TPODTAPNCode = TAPNCode  WHERE TPODNo<>''"))
        << list.selectText().text().toStdString();
    EXPECT_EQ(list.findChild<QPushButton*>("cmdSelect")->text(), "เลือก");
}

TEST_P(DucumentListTest, CostColumnsAreHiddenFromUsersWithoutTheRight)
{
    runOnApp({"UPDATE QD8TFormDocList SET TFDLWidthList='1500,1200{COST},800,{COST}600,600,600' WHERE TFDLTCmdAlias='TESTPR'"});
    runOnData({"DELETE FROM QD8TUserRight WHERE TURtTCmdAlias='ICINVENTORYCOST'",
        "INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun) VALUES (1, 'ICINVENTORYCOST', 1)",
        "INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun) VALUES (2, 'ICINVENTORYCOST', 0)"});
    const struct { qint32 user; const char* widths; } cases[] = {{1, "1500,1200,800,600,600,600"}, {2, "1500,0,800,0,600,600"}, {0, "1500,0,800,0,600,600"}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.user);
        DucumentList list;
        open(list, "TESTPR", c.user);
        EXPECT_EQ(list.WidthList(), QString::fromLatin1(c.widths));
    }
}

TEST_P(DucumentListTest, TheMenuOptionSwitchesToTheVariantDefinition)
{
    define("PURPR", "TFDLFilterStatus", "''");
    define("PURPRMB", "TFDLFilterStatus, TFDLFilterCustomW", "'', ' AND TPRDTBraCode=''02'''");
    setCompanyOption("PURPRMenu", "0");
    {
        DucumentList list;
        open(list, "PURPR");
        EXPECT_EQ(list.definition().alias, "PURPR");
        EXPECT_EQ(shown(list).size(), 8);
    }
    setCompanyOption("PURPRMenu", "1");
    DucumentList list;
    open(list, "PURPR");
    EXPECT_EQ(list.definition().alias, "PURPRMB");
    EXPECT_EQ(list.CommandAlias(), "PURPR");
    EXPECT_EQ(shown(list), QStringList({"PR03", "PR06"}));

    const struct { const char* alias; double option; const char* used; } variants[] = {{"PURPR", 1, "PURPRMB"}, {"ICLOTIN", 2, "ICLOTINMB"}, {"ICISSUEUSE", -1, "ICISSUEUSEMB"},
        {"ICISSUEUSE", 0, "ICISSUEUSE"}, {"PUPO", 1, "PUPO"}};
    for (const auto& v : variants)
        EXPECT_EQ(ListDefinition::variantAlias(QString::fromLatin1(v.alias), v.option), QString::fromLatin1(v.used)) << v.alias;
}

TEST_P(DucumentListTest, EditOpensOnlyDocumentsThatAreNotConfirmedApprovedOrCancelled)
{
    const struct { int row; const char* mode; } cases[] = {{0, "EDIT"}, {1, "VIEW"}, {5, "VIEW"}, {6, "VIEW"}};  // rows in TPRDNo order
    DucumentList list;
    open(list, "TESTPR");
    choose(list, "cboStatus", AllDocuments);
    list.runQuery();
    QSignalSpy captions(&list, &DucumentList::ChangeCaption);
    for (const auto& c : cases) {
        SCOPED_TRACE(c.row);
        scriptedMessages().reset();
        list.dataView()->setCurrentRow(c.row);
        const QString key = list.dataView()->keyText();
        Q_EMIT list.dataView()->editRequested();
        ASSERT_NE(lastForm, nullptr);
        EXPECT_EQ(QStringList({lastForm->runMode, lastForm->docNo, lastForm->newDocNo}), QStringList({c.mode, key, key}));
        EXPECT_EQ(lastForm->calls, QStringList({"Setbuttons:" + QString::fromLatin1(c.mode), "FillData:" + key}));
        EXPECT_EQ(lastForm->windowTitle(), "ใบขอซื้อ - " + key);
        EXPECT_EQ(scriptedMessages().shown.size(), c.mode == QLatin1String("EDIT") ? 0 : 1);
        delete lastForm;
        lastForm = nullptr;
    }
    EXPECT_EQ(captions.size(), 4);
    EXPECT_EQ(captions[0], QVariantList({"ใบขอซื้อ", "TESTPR"}));

    Q_EMIT list.dataView()->addRequested();
    ASSERT_NE(lastForm, nullptr);
    EXPECT_EQ(lastForm->runMode, "ADD");
    EXPECT_EQ(lastForm->calls, QStringList({"Setbuttons:ADD"}));
    delete lastForm;
}

TEST_P(DucumentListTest, OnlyDeleteModeTwoAsksTheHostToDelete)
{
    for (int mode : {0, 1, 2, 3}) {
        SCOPED_TRACE(mode);
        runOnApp({QStringLiteral("UPDATE QD8TFormDocList SET TFDLDeleteAction=%1 WHERE TFDLTCmdAlias='TESTPR'").arg(mode)});
        DucumentList list;
        open(list, "TESTPR");
        choose(list, "cboStatus", AllDocuments);
        list.runQuery();
        QSignalSpy deletes(&list, &DucumentList::DeleteAction);
        QSignalSpy captions(&list, &DucumentList::ChangeCaption);
        list.dataView()->setCurrentRow(2);
        Q_EMIT list.dataView()->deleteRequested();
        EXPECT_EQ(captions.size(), mode == 2 ? 1 : 0);
        EXPECT_EQ(deletes, mode == 2 ? QList<QVariantList>{{"PR03"}} : QList<QVariantList>{});
    }
}

TEST_P(DucumentListTest, TheTotalComesFromTheQueryBeforeEveryRowIsRead)
{
    runOnData({"INSERT INTO QD8TPR (TPRDNo, TPRDDate, TPRDConfirmStatus, TPRDApproveStatus, TPRDCancelStatus) "
               "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 3000) "
               "SELECT 'X' || (10000 + i), '2026-04-01', 0, 0, 0 FROM n"});
    DucumentList list;
    open(list, "TESTPR");
    choose(list, "cboStatus", AllDocuments);
    list.runQuery();
    EXPECT_EQ(list.countText(), "เลือกเอกสาร");
    EXPECT_TRUE(QTest::qWaitFor([&] { return list.countText() == "Total 3008 Records"; }, 10000)) << list.countText().toStdString();
    EXPECT_LT(list.dataView()->fetchedRows(), 3008);
}

TEST_P(DucumentListTest, AMissingDefinitionShowsNoColumnsAndRunsNoQuery)
{
    SqlTrace::Recorder trace;
    DucumentList list;
    open(list, "NOSUCHLIST");
    EXPECT_FALSE(list.definition().found);
    EXPECT_TRUE(list.selectText().text().isEmpty());
    for (const QString& statement : trace.composed())
        EXPECT_FALSE(statement.startsWith("SELECT COUNT") || statement.contains("FROM QD8TPR")) << statement.toStdString();
}

TEST_P(DucumentListTest, F2InACodeBoxPicksFromItsTableAndMovesOn)
{
    define("TESTSO", "TFDLFilterStatus, TFDLFilterAR, TFDLFilterARByEmp, TFDLFilter1, TFDLFilterDivision",
        "'', 'TPRDRefNo', 1, 'BRANCH', 'TPRDTDepCode'");
    const struct { const char* box; const char* keyField; const char* source; } cases[] = {
        {"txtCustomer", "TARNCode",
            "QD8TAR INNER JOIN QD8TAR2 ON QD8TAR.TARNCode = QD8TAR2.TAR2TARNCode WHERE TARNCode<>'' AND TAR2SaleCode='E001'"},
        {"txtBranch", "TBraCode", "QD8TBranch"},
        {"txtDivision", "TDepCode", "QD8TDepartment"},  // the list filters departments
        {"txtFilter1", "TBraCode", nullptr},  // the quick form's own pick list
    };
    DucumentList list;
    open(list, "TESTSO");
    list.show();
    list.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&list));
    for (const auto& c : cases) {
        SCOPED_TRACE(c.box);
        scriptedPicker().reset();
        scriptedPicker().answers = {"P1"};
        auto* box = list.findChild<QLineEdit*>(QString::fromLatin1(c.box));
        ASSERT_TRUE(box);
        box->setFocus();
        QTest::keyClick(box, Qt::Key_F2);
        ASSERT_EQ(scriptedPicker().requests.size(), 1);
        EXPECT_EQ(scriptedPicker().requests[0].keyField, QString::fromLatin1(c.keyField));
        if (c.source) {
            EXPECT_EQ(scriptedPicker().requests[0].source, QString::fromUtf8(c.source));
        }
        EXPECT_EQ(box->text(), "P1");
        EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::focusWidget() != box; }, 2000));  // the pick moved on
    }
}

TEST_P(DucumentListTest, CaptionsNameTheCompanysCustomFields)
{
    runOnApp({"UPDATE QD8TFormDocList SET TFDLNameList='เลขที่,วันที่,{ICCustom1},ยืนยัน,อนุมัติ,ยกเลิก', TFDLOrderList='{ICCustom1},วันที่' "
              "WHERE TFDLTCmdAlias='TESTPR'"});
    setCompanyOption("ICCUSTOM1", "สี");
    DucumentList list;
    open(list, "TESTPR");
    EXPECT_EQ(list.NameList(), "เลขที่,วันที่,สี,ยืนยัน,อนุมัติ,ยกเลิก");
    EXPECT_EQ(list.dataView()->tableView()->model()->headerData(2, Qt::Horizontal).toString(), "สี");
    EXPECT_EQ(list.findChild<QComboBox*>("cboSort")->itemText(0), "สี");
}

TEST_P(DucumentListTest, LegendColoursTheRowsAndTheAutoButtonTogglesTheTimer)
{
    const struct { const char* autoRefresh; bool running; } timers[] = {{"", false}, {"0", false}, {"30", true}, {"1", true}};
    for (const auto& t : timers) {
        SCOPED_TRACE(t.autoRefresh);
        runOnApp({QStringLiteral("UPDATE QD8TFormDocList SET TFDLAutoRefresh='%1', TFDLLegendList='TPRDCancelStatus;=;1;#C0C0C0;;ยกเลิก,"
                                 "TPRDApproveStatus;=;1;#C8F0C8;;อนุมัติแล้ว' WHERE TFDLTCmdAlias='TESTPR'")
                .arg(QLatin1String(t.autoRefresh))});
        DucumentList list;
        open(list, "TESTPR");
        choose(list, "cboStatus", AllDocuments);
        list.runQuery();
        auto* button = list.findChild<QPushButton*>("Command1");
        for (const bool running : {t.running, !t.running}) {
            EXPECT_EQ(list.autoRefreshRunning(), running);
            EXPECT_EQ(button->text(), running ? "Stop" : "Auto");
            button->click();
        }

        // PR06 approved, PR07 cancelled, PR08 both: the first entry wins.
        QAbstractItemModel* model = list.dataView()->tableView()->model();
        const auto colour = [&](int row) { return model->index(row, 0).data(Qt::BackgroundRole).value<QBrush>().color(); };
        EXPECT_FALSE(model->index(0, 0).data(Qt::BackgroundRole).isValid());
        EXPECT_EQ(colour(5), QColor("#C8F0C8"));
        EXPECT_EQ(colour(6), QColor("#C0C0C0"));
        EXPECT_EQ(colour(7), QColor("#C0C0C0"));
    }
}

QD8_ON_BOTH_ENGINES(DucumentListTest);

#include "tst_DucumentList.moc"
