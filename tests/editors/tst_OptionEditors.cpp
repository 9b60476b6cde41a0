#include "support/SampleCompany.h"
#include "support/ScriptedServices.h"

#include "editors/BranchOption.h"
#include "editors/CustomOption.h"
#include "editors/HostOption.h"
#include "editors/UserOption.h"
#include "foundation/Connection.h"
#include "foundation/DbError.h"
#include "foundation/Recordset.h"
#include "foundation/SqlTrace.h"
#include "widgets/GridEditor.h"
#include "widgets/GridEditorModel.h"

#include <QTemporaryFile>

using namespace qd8;
using namespace qd8::test;

namespace {

// The sample company's options (groups GLOPTION, SOOPTION...) edited by user 1 (Somchai, branch HQ).
class OptionEditorsTest : public SampleCompanyTest {
protected:
    void SetUp() override
    {
        SampleCompanyTest::SetUp();
        if (IsSkipped())
            return;
        config.open();
    }
    // An editor of the scope named, given the session as the workbench gives it.
    std::unique_ptr<OptionEditor> editor(const QString& scope, const QString& module = "SO")
    {
        std::unique_ptr<OptionEditor> e(scope == "company" ? static_cast<OptionEditor*>(new CustomOption)
                : scope == "branch"                       ? new BranchOption
                : scope == "host"                         ? static_cast<OptionEditor*>(new HostOption)
                                                          : new UserOption);
        e->setConnectionString(appConnectionString());
        if (auto* host = qobject_cast<HostOption*>(e.get()))
            host->SetLast3("", "HostOption", 1, dataConnectionString(), appConnectionString(), "POS-HQ-01", config.fileName());
        else
            e->SetLast2("", "Options", "1", dataConnectionString(), appConnectionString());
        e->setOptionGroup(module);
        return e;
    }
    QString stored(const QString& scope, const QString& key, const QString& alias) const
    {
        return queryColumn(dataConnectionString(), "SELECT TOpVValue FROM QD8TOptionValue WHERE TOpVScope='" + scope + "' AND TOpVScopeKey='"
            + key + "' AND TOpVTOptAlias='" + alias + "'").value(0, "(none)");
    }
    static int rowOf(OptionEditor& e, const QString& alias)
    {
        for (int row = 1; row <= e.grid()->Rows(); ++row)
            if (e.grid()->TextMatrix(row, OptionEditor::ColAlias) == alias)
                return row;
        return 0;
    }
    // Types a value into column E as the user does; false when the grid refuses it.
    static bool type(OptionEditor& e, const QString& alias, const QString& text)
    {
        GridEditorModel* m = e.grid()->model();
        return m->setData(m->index(rowOf(e, alias) - 1, OptionEditor::ColValue - 1), text, Qt::EditRole);
    }
    QTemporaryFile config;
};

TEST_P(OptionEditorsTest, EachScopeSendsItsOwnStatementsAndStoresUnderItsKey)
{
    const struct {
        const char* scope;
        const char* group;
        const char* query;
        const char* source;
        const char* storedScope;
        const char* key;
    } cases[] = {
        {"company", "SOOPTION", "SELECT * FROM QD8TOption WHERE TOptTOpGAlias='SOOPTION' AND TOptFlag1<>0 ORDER BY TOptName",
            "QD8VOptionGroup WHERE TOpGFlag1=1 AND TCmGFlag1=1 AND TOpGTCmGAlias='SO' ORDER BY TOpGSort,TOpGTCmGAlias", "COMPANY", ""},
        {"branch", "SOOPTION", "SELECT * FROM QD8TBranchOption WHERE TBOpTOpGAlias='SOOPTION' ORDER BY TBOpName",
            "QD8VOptionGroup WHERE TOpGFlag1=1 AND TOpGShowBranch=1 AND TCmGFlag1=1 AND (TOpGTCmGAlias='SO') ORDER BY TOpGTCmGAlias,TOpGSort",
            "BRANCH", "HQ"},
        {"host", "SOOPTION", "SELECT * FROM QD8THostOption WHERE THopTOpGAlias='SOOPTION'  AND THopFlag1<>0 ORDER BY THopName",
            "QD8VOptionGroup WHERE TOpGFlag1=1 AND TOpGShowHost=1 AND TCmGFlag1=1 AND (TOpGTCmGAlias='SO' OR TOpGTCmGAlias='CENTER') ORDER BY "
            "TOpGTCmGAlias,TOpGSort",
            "HOST", "POS-HQ-01"},
        {"user", "CENTERUSERPREF", "SELECT * FROM QD8TUserOption WHERE TUOpTOpGAlias='CENTERUSERPREF'  AND TUOpFlag1<>0 ORDER BY TUOpName",
            "QD8VOptionGroup WHERE TOpGFlag1=1 AND TOpGShowUser=1 AND TCmGFlag1=1 AND (TOpGTCmGAlias='SO' OR TOpGTCmGAlias='CENTER') ORDER BY "
            "TOpGTCmGAlias,TOpGSort",
            "USER", "1"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.scope);
        auto e = editor(c.scope);
        SqlTrace::Recorder trace;
        scriptedPicker().answers << c.group;
        e->chooseGroup();
        ASSERT_FALSE(scriptedPicker().requests.isEmpty());
        const PickRequest& pick = scriptedPicker().requests.last();
        EXPECT_EQ(QStringList({pick.title, pick.keyField, pick.fieldList, pick.captionList, pick.widthList, pick.typeList, pick.source}),
            QStringList({"Select Group", "TOpGAlias", "TOpGAlias,TOpGName", "ALIAS,Group Name", "0,4000", "0,0", c.source}));
        EXPECT_TRUE(trace.composed().contains(c.query)) << trace.composed().join("\n").toStdString();
        ASSERT_EQ(e->RUNMODE(), "VIEW");
        // Every value the user changes is stored under the scope's key; the others keep following their default.
        const int row = e->grid()->Rows();
        const QString alias = e->grid()->TextMatrix(row, OptionEditor::ColAlias);
        e->buttonClick("Edit");
        e->grid()->SetValue(row, OptionEditor::ColValue, e->grid()->TextMatrix(row, OptionEditor::ColTypeWord) == "TIME" ? "06:15" : "1");
        scriptedMessages().answers << true;
        ASSERT_TRUE(e->save());
        EXPECT_EQ(scriptedMessages().shown.last().text, "บันทึกข้อมูลเรียบร้อย");
        EXPECT_EQ(stored(c.storedScope, c.key, alias), e->grid()->model()->storedText(row - 1, OptionEditor::ColValue - 1));
    }
    // The branch editor lists inactive options too; in JOB and SERVICE every group lists JOBCodeCaption.
    auto branch = editor("branch");
    branch->cmdWhereShow("SOOPTION");
    EXPECT_GT(rowOf(*branch, "SOBranchOldDiscount"), 0);
    // The company editor finds the module's groups through its options.
    auto company = editor("company");
    SqlTrace::Recorder refresh;
    company->Refresh();
    EXPECT_EQ(refresh.composed().value(0), "SELECT * FROM QD8VOption WHERE TCmGAlias='SO' ORDER BY TOptSort,TOptAlias");
    EXPECT_EQ(company->groups().value(0).first, "SOOPTION");
    runOnApp({"INSERT INTO QD8TOption (TOptAlias, TOptTOpGAlias, TOptName, TOptName2, TOptFieldType) VALUES ('JOBCodeCaption', 'NONE', 'ชื่อรหัสงาน', 'Job code caption', 'TEXT')"});
    for (const char* module : {"JOB", "SERVICE", "SO"}) {
        auto company = editor("company", module);
        company->cmdWhereShow("SOOPTION");
        EXPECT_EQ(rowOf(*company, "JOBCodeCaption") > 0, QString(module) != "SO") << module;
    }
}

TEST_P(OptionEditorsTest, ValuesAreEditedByTypeAndRefusedWhenWrong)
{
    auto e = editor("company", "GL");
    e->cmdWhereShow("GLOPTION");
    EXPECT_EQ(e->grid()->TextMatrix(0, OptionEditor::ColValue), "ค่าที่กำหนด (F2)");
    EXPECT_EQ(e->grid()->TextMatrix(rowOf(*e, "GLCloseDate"), OptionEditor::ColValue), "31/10/2569");  // Buddhist era in Thai
    EXPECT_EQ(e->grid()->TextMatrix(rowOf(*e, "GLDefaultBook"), OptionEditor::ColType), "F2 เลือกข้อมูล");
    EXPECT_EQ(e->grid()->TextMatrix(rowOf(*e, "EnableGLRefresh"), OptionEditor::ColValue), "Yes");
    // The type column follows the language (the captions themselves are a table of the code).
    const char* words[][4] = {{"DATE", "", "วันที่ (วว/ดด/ปปปป)", "Date (dd/mm/yyyy)"}, {"TEXT", "pick", "F2 เลือกข้อมูล", "F2 Select Data"}};
    for (const auto& w : words)
        EXPECT_EQ(OptionEditor::typeCaption(w[0], *w[1], 0) + "|" + OptionEditor::typeCaption(w[0], *w[1], 1), QString(w[2]) + "|" + w[3]);
    e->buttonClick("Edit");
    const struct {
        const char* group;
        const char* alias;
        const char* typed;
        const char* stored;  // nullptr: refused
    } cases[] = {
        {"GLOPTION", "GLCloseDate", "30/11/2569", "2026-11-30"}, {"GLOPTION", "GLCloseDate", "31/02/2569", nullptr},
        {"GLOPTION", "RDMode", "-2", "-2"}, {"GLOPTION", "RDMode", "abc", nullptr},
        {"GLOPTION", "GLVoucherPrefix", "PV", nullptr},  // TOptCanEdit 0
        {"GLOPTION", "GLZeroOption", "", nullptr},       // TOptCanBlank 0
        {"AROPTION", "ARDefaultCreditDay", "-5", nullptr}, {"AROPTION", "ARDefaultCreditDay", "45", "45"},
        {"AROPTION", "ARInterestRate", "1.755", "1.76"}, {"SOOPTION", "SOCutOffTime", "17:45", "17:45:00"},
        {"SOOPTION", "SOCutOffTime", "25:00", nullptr},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.alias);
        if (e->selectedGroup() != c.group) {
            e->cmdWhereShow(c.group);
            e->buttonClick("Edit");
        }
        const QString before = e->grid()->model()->storedText(rowOf(*e, c.alias) - 1, OptionEditor::ColValue - 1);
        EXPECT_EQ(type(*e, c.alias, c.typed), c.stored != nullptr);
        EXPECT_EQ(e->grid()->model()->storedText(rowOf(*e, c.alias) - 1, OptionEditor::ColValue - 1), c.stored ? QString(c.stored) : before);
    }
    // F2 picks a colour through the colour dialog.
    e->cmdWhereShow("AROPTION");
    e->buttonClick("Edit");
    e->grid()->setRow(rowOf(*e, "AROverdueColor"));
    scriptedPicker().colorAnswers << 255;
    int key = 113;
    Q_EMIT e->grid()->KeyDown(key, 0);
    EXPECT_EQ(e->grid()->GetValue(rowOf(*e, "AROverdueColor"), OptionEditor::ColValue).toInt(), 255);
}

TEST_P(OptionEditorsTest, ASaveFailingHalfwayChangesNothingAndTheFirstEmptyAliasEndsTheSave)
{
    // The host's data object fails on the second value it stores.
    struct Failing : DbDataObject {
        using DbDataObject::DbDataObject;
        void storeOption(Connection& c, OptionScope s, const QString& k, const QString& a, const QString& t, double n) override
        {
            if (++stores == 2)
                throw DbError(DbError::Kind::Conflict, "refused");
            DbDataObject::storeOption(c, s, k, a, t, n);
        }
        int stores = 0;
    };
    auto e = editor("company", "AR");
    e->SetFirst(std::make_shared<Failing>(dataConnectionString(), appConnectionString(), 1), nullptr, nullptr);
    e->cmdWhereShow("AROPTION");
    e->buttonClick("Edit");
    ASSERT_TRUE(type(*e, "ARDefaultCreditDay", "45") && type(*e, "ARInterestRate", "2"));
    scriptedMessages().answers << true;
    EXPECT_FALSE(e->save());
    EXPECT_EQ(scriptedMessages().shown.last().kind, "critical");
    EXPECT_EQ(stored("COMPANY", "", "ARDefaultCreditDay") + stored("COMPANY", "", "ARInterestRate"), "(none)1.50");
    EXPECT_EQ(e->RUNMODE(), "EDIT");

    // An option whose alias is empty sorts first: nothing after it is stored, yet the save succeeds.
    runOnApp({"INSERT INTO QD8TOption (TOptAlias, TOptTOpGAlias, TOptName, TOptName2, TOptFieldType) VALUES ('', 'AROPTION', '', '', 'TEXT')"});
    auto first = editor("company", "AR");
    first->cmdWhereShow("AROPTION");
    first->buttonClick("Edit");
    ASSERT_TRUE(type(*first, "ARDefaultCreditDay", "45"));
    scriptedMessages().answers << true;
    EXPECT_TRUE(first->save());
    EXPECT_EQ(stored("COMPANY", "", "ARDefaultCreditDay"), "(none)");

    // Reset to the default removes the stored value, so the company follows the default again.
    auto reset = editor("company", "AR");
    runOnApp({"DELETE FROM QD8TOption WHERE TOptAlias=''"});
    reset->cmdWhereShow("AROPTION");
    EXPECT_EQ(reset->grid()->TextMatrix(rowOf(*reset, "ARInterestRate"), OptionEditor::ColFrom), "บริษัท *");
    reset->buttonClick("Edit");
    reset->grid()->setRow(rowOf(*reset, "ARInterestRate"));
    reset->buttonClick("Default");
    scriptedMessages().answers << true;
    EXPECT_TRUE(reset->save());
    EXPECT_EQ(stored("COMPANY", "", "ARInterestRate") + stored("COMPANY", "", "ARDefaultCreditDay"), "(none)(none)");
    EXPECT_EQ(reset->grid()->TextMatrix(rowOf(*reset, "ARInterestRate"), OptionEditor::ColFrom), "ค่าเริ่มต้น");
}

TEST_P(OptionEditorsTest, OneReadResolvesUserThenWorkstationThenBranchThenCompanyThenDefault)
{
    DbDataObject options(dataConnectionString(), appConnectionString(), 1);
    options.setHostName("POS-HQ-01");
    runOnData({"INSERT INTO QD8TOptionValue (TOpVScope, TOpVScopeKey, TOpVTOptAlias, TOpVValue) VALUES ('COMPANY', '', 'GLZeroOption', 'c')",
        "INSERT INTO QD8TOptionValue (TOpVScope, TOpVScopeKey, TOpVTOptAlias, TOpVValue) VALUES ('BRANCH', 'HQ', 'GLZeroOption', 'b')",
        "INSERT INTO QD8TOptionValue (TOpVScope, TOpVScopeKey, TOpVTOptAlias, TOpVValue) VALUES ('BRANCH', 'CNX', 'GLZeroOption', 'x')",
        "INSERT INTO QD8TOptionValue (TOpVScope, TOpVScopeKey, TOpVTOptAlias, TOpVValue) VALUES ('HOST', 'POS-HQ-01', 'GLZeroOption', 'h')",
        "INSERT INTO QD8TOptionValue (TOpVScope, TOpVScopeKey, TOpVTOptAlias, TOpVValue) VALUES ('USER', '1', 'GLZeroOption', 'u')"});
    for (const char* removed : {"USER", "HOST", "BRANCH", "COMPANY", ""}) {
        const OptionValue v = options.effectiveOption("GLZeroOption");
        const QString seen = v.isDefault ? "default:" + v.text : DbDataObject::scopeName(v.scope) + ":" + v.text;
        EXPECT_EQ(seen, QString(removed).isEmpty() ? "default:0" : QString(removed) + ":" + QString(removed).left(1).toLower()) << removed;
        runOnData({QString("DELETE FROM QD8TOptionValue WHERE TOpVScope='%1'").arg(removed)});
    }
    // The workstation editor without its configuration file says so and loads nothing.
    config.remove();
    auto host = editor("host");
    host->cmdWhereShow("SOOPTION");
    EXPECT_EQ(host->RUNMODE(), "BLANK");
    EXPECT_EQ(scriptedMessages().shown.last().text, "กรุณาระบุรายละเอียดไฟล์ หรือกำหนดสิทธิการใช้แหล่งข้อมูลให้ถูกต้อง");
}

QD8_ON_BOTH_ENGINES(OptionEditorsTest);

} // namespace
