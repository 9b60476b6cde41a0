#include "support/ScratchDatabase.h"
#include "support/ScriptedServices.h"

#include "accounting/PointControl.h"

#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

using namespace qd8;
using namespace qd8::test;

namespace {

// Point documents of customer C1 for sales documents of type 1: P1 approved and free, P2
// cancelled, P3 already referred to, P4 not approved, P5 of another type; a repair order
// spending P1.
const QStringList Fixture = {
    "INSERT INTO QD8TAR (TARNCode, TARNName) VALUES ('C1', 'ลูกค้าหนึ่ง')",
    "INSERT INTO QD8TPointTrans (TPiTNo, TPiTType, TPiTTARNCode, TPiTTotalQuantity, TPiTRefNo, TPiTApproveStatus, TPiTCancelStatus) VALUES "
    "('P1', 1, 'C1', 300, NULL, 1, 0), ('P2', 1, 'C1', 0, '', 1, 1), ('P3', 1, 'C1', 0, 'SO1', 1, 0), ('P4', 1, 'C1', 0, '', 0, 0), "
    "('P5', 2, 'C1', 0, '', 1, 0), ('P6', 1, 'C1', 0, '', 1, 0)",
    "INSERT INTO QD8TPointTransSub (TPoTTPitNo, TPoTLn, TPoTQuantity, TPoTPax) VALUES ('P1', 1, -200, 4), ('P1', 2, -100, 0)",
    "INSERT INTO QD8TSO (TSODNo, TSOType, TSODTARNCode, TInvTJobNo) VALUES ('RO1', 2, 'C1', 'P1'), ('SO9', 0, 'C1', 'P6')",
};

class PointControlTest : public CompanyDataTest {
protected:
    void SetUp() override
    {
        CompanyDataTest::SetUp();
        if (IsSkipped())
            return;
        db->run(Fixture);
        panel.SetFirst(db->connectionString(), 1, QStringLiteral("SO"), 1);
    }
    QLineEdit* field(const char* name) const { return panel.findChild<QLineEdit*>(QString::fromLatin1(name)); }
    PointControl panel;
};

TEST_P(PointControlTest, PickListOffersOnlyFreeApprovedDocumentsAndFillsTheChoice)
{
    panel.setCustomerCode(QStringLiteral("C1"));
    QSignalSpy changed(&panel, &PointControl::DataChange);
    scriptedPicker().answers << QStringLiteral("P1");
    panel.selectPointDocument();
    ASSERT_EQ(scriptedPicker().requests.size(), 1);
    const PickRequest& r = scriptedPicker().requests[0];
    EXPECT_EQ(r.source, "QD8VPointTransH WHERE (TPiTRefNo='' or TPiTRefNo is null) AND TPiTCancelStatus=0 AND TPiTApproveStatus=1 "
                        "AND TPiTType=1 AND TPiTTARNCode='C1' ORDER BY TPiTNo");
    EXPECT_EQ(QStringList({r.title, r.keyField, r.fieldList, r.captionList, r.widthList, r.typeList}),
        QStringList({"เลือกรายละเอียดใบใช้ Point", "TPiTNo", "TPiTNo,TPiTDate,TPiTTARNCode,TARNName,TPiTTotalQuantity,TPITDescription",
            "เลขที่เอกสาร,วันที่,รหัสลูกค้า,ชื่อลูกค้า,จำนวน Point,หมายเหตุ", "1600,1000,1000,3000,1000,4000", "0,6,0,0,2,0"}));
    // The list's rows on the engine: referred, cancelled, unapproved and other types never show.
    EXPECT_EQ(queryColumn(db->connectionString(), Sql("SELECT TPiTNo FROM ") + r.source), QStringList({"P1", "P6"}));
    // The choice: its usage shown positive, its persons, and DataChange once.
    EXPECT_EQ(panel.PointNo(), "P1");
    EXPECT_EQ(panel.PointUse(), 300);
    EXPECT_EQ(field("pointUse")->text(), "300");
    EXPECT_EQ(panel.PointUsePax(), 4);
    EXPECT_EQ(changed.count(), 1);
}

TEST_P(PointControlTest, RefusalsOpenNoList)
{
    struct Case { const char* customer; const char* message; };
    const Case cases[] = {{"", "กรุณาระบุลูกค้า ก่อน เลือกรายการ"}, {"  ", "กรุณาระบุลูกค้า ก่อน เลือกรายการ"}, {"O'NEIL", "O'NEIL"}};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.customer);
        scriptedMessages().reset();
        scriptedPicker().reset();
        panel.setCustomerCode(QString::fromUtf8(c.customer));
        panel.selectPointDocument();
        EXPECT_TRUE(scriptedPicker().requests.isEmpty());
        ASSERT_EQ(scriptedMessages().shown.size(), 1);
        EXPECT_TRUE(scriptedMessages().shown[0].text.contains(QString::fromUtf8(c.message)));
    }
}

TEST_P(PointControlTest, EnterValidatesTheTypedNumber)
{
    struct Case { const char* number; double use; int messages; int changes; };
    const Case cases[] = {{"P1", 300, 0, 1}, {"NONE", 0, 1, 0}, {"P'1", 0, 1, 0}};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.number);
        scriptedMessages().reset();
        QSignalSpy changed(&panel, &PointControl::DataChange);
        field("pointNo")->setText(QString::fromLatin1(c.number));
        QTest::keyClick(field("pointNo"), Qt::Key_Return);
        EXPECT_EQ(panel.PointUse(), c.use);
        EXPECT_EQ(scriptedMessages().shown.size(), c.messages);
        EXPECT_EQ(changed.count(), c.changes);
    }
}

TEST_P(PointControlTest, EventsCarryTheHostDocumentAndTransferAlwaysType3)
{
    panel.setCustomerCode(QStringLiteral("C1"));
    panel.FillData(QStringLiteral("SO9"));  // not a repair order: the point number stays as it was
    EXPECT_EQ(panel.PointNo(), "");
    QSignalSpy added(&panel, &PointControl::AddNew);
    QSignalSpy opened(&panel, &PointControl::OpenDocument);
    QSignalSpy applied(&panel, &PointControl::Apply);
    QSignalSpy transferred(&panel, &PointControl::OpenDocumentTransfer);
    for (const char* name : {"pointNew", "pointOpen", "pointApply", "pointTransfer"})
        panel.findChild<QPushButton*>(QString::fromLatin1(name))->click();
    ASSERT_EQ(added.count(), 1);
    EXPECT_EQ(added[0][0].toString(), "C1");
    const QVariantList expected = {"SO", 1, "SO9", "C1"};
    EXPECT_EQ(opened.value(0), expected);
    EXPECT_EQ(applied.value(0), expected);
    EXPECT_EQ(transferred.value(0), QVariantList({"SO", 3, "SO9", "C1"}));
    EXPECT_EQ(panel.isReadyToSave(), "");
    // A repair order takes its point document from the order.
    panel.SetFirst(db->connectionString(), 1, QStringLiteral("RO"), 1);
    panel.FillData(QStringLiteral("RO1"));
    EXPECT_EQ(panel.PointNo(), "P1");
    EXPECT_EQ(panel.PointUse(), 300);
}

QD8_ON_BOTH_ENGINES(PointControlTest);

} // namespace
