#include "support/SampleCompany.h"
#include "support/ScriptedServices.h"

#include "editors/CustomData.h"
#include "foundation/SqlTrace.h"
#include "widgets/GridEditor.h"

#include <QSignalSpy>

using namespace qd8;
using namespace qd8::test;

namespace {

// The sample lists REMARK, CANCELREASON and SHIPTERM all hold the codes 001-003; the sales
// orders use the shipping term 001.
class CustomDataTest : public SampleCompanyTest {
protected:
    void SetUp() override
    {
        SampleCompanyTest::SetUp();
        if (IsSkipped())
            return;
        lists.setConnectionString(appConnectionString());
        lists.SetLast2("", "CustomData", "1", dataConnectionString(), appConnectionString());
    }
    QStringList rows() const
    {
        return queryColumn(dataConnectionString(),
            "SELECT TCS1Type || '/' || TCS1Code || '/' || COALESCE(TCS1Name, '') FROM QD8TCustom1 ORDER BY TCS1Type, TCS1Code");
    }
    int rowOf(const QString& code) const
    {
        for (int row = 1; row <= lists.grid()->Rows(); ++row)
            if (lists.grid()->TextMatrix(row, 1) == code)
                return row;
        return 0;
    }
    CustomData lists;
};

TEST_P(CustomDataTest, ListsAreOfferedLoadedAndPrintedWithTheirOwnStatements)
{
    const struct { const char* group; const char* listing; const char* source; } cases[] = {
        {"", "SELECT * FROM QD8VCustomData ORDER BY TCusName", "QD8VCustomData WHERE TCusFlag1=1 AND TCmGFlag1=1  AND TCusMode=0 ORDER BY TCusName"},
        {"SO", "SELECT * FROM QD8VCustomData WHERE TCmGAlias='SO' ORDER BY TCusName",
            "QD8VCustomData WHERE TCusFlag1=1 AND TCmGFlag1=1 AND TCusMode=0 AND TCmGAlias='SO' ORDER BY TCusName"},
    };
    for (const auto& c : cases) {
        lists.setQuickGroup(c.group);
        SqlTrace::Recorder trace;
        lists.Refresh();
        scriptedPicker().answers << "SHIPTERM";
        lists.chooseForm();
        const PickRequest& pick = scriptedPicker().requests.last();
        EXPECT_EQ(QStringList({pick.title, pick.fieldList, pick.captionList, pick.widthList, pick.source}),
            QStringList({"Select หมายเหตุ", "TCusCode,TCusName", "ALIAS,หมายเหตุ", "0,3800", c.source}));
        for (const QString& sql : {QString(c.listing), QString("SELECT * FROM QD8TCustomData WHERE TCusCode='SHIPTERM'"),
                 QString("SELECT * FROM QD8TQuickField WHERE TQFFTCusCode='SHIPTERM' ORDER BY TQFFSort"),
                 QString("SELECT * FROM QD8TCustom1 WHERE TCS1Type='SHIPTERM' ORDER BY TCS1Code")})
            EXPECT_TRUE(trace.composed().contains(sql)) << sql.toStdString();
    }
    GridEditor* g = lists.grid();
    EXPECT_EQ(QStringList({g->TextMatrix(0, 1), g->TextMatrix(0, 2), g->TextMatrix(0, 3), g->TextMatrix(0, 5), g->TextMatrix(1, 5)}),
        QStringList({"รหัส", "OLDCODE", "รายละเอียด", "Show", "Yes"}));
    QSignalSpy printed(&lists, &CustomData::PrintAutoClick);
    lists.buttonClick("Print");
    ASSERT_EQ(printed.size(), 1);
    EXPECT_EQ(printed[0][0].toString(),
        "SELECT TCS1Code AS TDivCode, TCS1Name2 AS TDivName, TCS1Name AS TDivName2 ,TCS1Flag1 AS TDivFlag1 FROM QD8TCustom1 ORDER BY TCS1Code");
    EXPECT_EQ(printed[0][2].toString(), "Title;เงื่อนไขการขนส่ง#Caption1;รหัส#Caption2;รายละเอียด (อังกฤษ)#Caption3;รายละเอียด");
}

TEST_P(CustomDataTest, ACodeIsRenamedInItsOwnListAndACodeInUseIsNotDeleted)
{
    lists.cmdWhereShow("REMARK");
    lists.buttonClick("Edit");
    GridEditor* g = lists.grid();
    g->setTextMatrix(rowOf("002"), 1, "004");          // renamed, not copied
    g->setTextMatrix(rowOf("001"), 3, "ขอบคุณครับ");   // the other lists' 001 stay as they are
    g->DeleteRow(rowOf("003"));
    SqlTrace::Recorder trace;
    scriptedMessages().answers << true;
    ASSERT_TRUE(lists.save()) << scriptedMessages().shown.value(scriptedMessages().shown.size() - 1).text.toStdString();
    EXPECT_TRUE(trace.composed().contains("DELETE  FROM QD8TCustom1 WHERE TCS1Type='REMARK' AND TCS1Code='003'"));
    EXPECT_TRUE(trace.composed().contains("SELECT * FROM QD8TCustom1 WHERE TCS1Type='REMARK' AND TCS1Code='002'"));
    EXPECT_EQ(scriptedMessages().shown.last().text, "บันทึกข้อมูล  2 รายการ   ลบข้อมูล 1 รายการ เรียบร้อย");
    const QStringList after = rows().filter("REMARK/");
    EXPECT_EQ(after, QStringList({"REMARK/001/ขอบคุณครับ", "REMARK/004/สินค้าซื้อแล้วไม่รับเปลี่ยนหรือคืน"}));
    EXPECT_EQ(rows().filter("/003/").size(), 2);  // CANCELREASON and SHIPTERM keep theirs
    EXPECT_EQ(lists.RUNMODE(), "VIEW");

    // A shipping term the sales orders use is refused; an empty description too.
    lists.cmdWhereShow("SHIPTERM");
    lists.buttonClick("Edit");
    lists.grid()->DeleteRow(rowOf("001"));
    scriptedMessages().answers << true;
    EXPECT_FALSE(lists.save());
    EXPECT_EQ(scriptedMessages().shown.last().text, "เงื่อนไขนี้ยังใช้ในใบสั่งขาย ลบไม่ได้ (001)");
    lists.cmdCancel_Click();
    lists.buttonClick("Edit");
    lists.grid()->setTextMatrix(rowOf("002"), 3, "");
    scriptedMessages().answers << true;
    EXPECT_FALSE(lists.save());
    EXPECT_EQ(scriptedMessages().shown.last().text, "กรุณาระบุ รายละเอียด ให้ถูกต้อง");
    EXPECT_EQ(rows().filter("SHIPTERM/").size(), 3);
}

QD8_ON_BOTH_ENGINES(CustomDataTest);

} // namespace
