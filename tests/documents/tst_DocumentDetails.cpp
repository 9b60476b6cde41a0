#include "support/SampleCompany.h"
#include "support/ScriptedServices.h"

#include "documents/DocumentDetails.h"
#include "documents/DocumentHistory.h"
#include "foundation/Connection.h"
#include "foundation/DateText.h"
#include "foundation/TransactionGuard.h"

#include <QSignalSpy>
#include <QTest>
#include <QTreeWidget>

using namespace qd8;
using namespace qd8::test;

namespace {

class DocumentDetailsTest : public SampleCompanyTest {
protected:
    void SetUp() override
    {
        SampleCompanyTest::SetUp();
        if (IsSkipped())
            return;
        setCompanyOption("InventoryCustom1", "สี");
        setCompanyOption("PurchaseCustom2", "ขนาด");
    }
    static QString daysAgo(int days) { return dateText(QDate::currentDate().addDays(-days), DateEra::Buddhist); }
};

} // namespace

TEST_P(DocumentDetailsTest, TheJobFormsShowTheJobItsSalesOrderProductionOrderMaterialsAndRequest)
{
    DocumentJob job;
    job.ShowDocumentJOB3("JOB0000001", 1, "PD0000001", 1, "PR0000901", 1, dataConnectionString());
    const QStringList rows = job.rowTexts();
    const QStringList expected = {"โครงการ|PJ01", "ใบสั่งงาน|JOB0000001", "บัตรงาน|JC-001", "วันที่ใบสั่งงาน|" + daysAgo(28),
        "หมายเหตุ|ผลิตหม้อหุงข้าวตามใบสั่งขาย", "ลูกค้า|C002 - ห้างหุ้นส่วนจำกัด ไทยพาณิชย์", "ลำดับรายการที่|1",
        "สินค้า|P1001 หม้อหุงข้าว 1.8 ลิตร ( สี ขาว / 1.8 L / RC-18 ) ", "จำนวนสั่งงาน|150 PCS / 15 BOX / 0",
        "จำนวนค้างสั่งผลิต|50 PCS / 5 BOX / 0", "จำนวนผลิตเสร็จ|100 PCS / 10 BOX / 0", "จำนวนค้างรับผลิต|20 PCS / 2 BOX / 0",
        "รายละเอียด|ล็อตแรกส่งแล้ว", "ใบสั่งขาย|SO0000901", "วันที่ใบสั่งขาย|" + daysAgo(30), "ชื่อผู้ติดต่อ|คุณสุดา พงษ์ไทย",
        "เอกสารอ้างอิง|CUS-901", "หมายเหตุ|หม้อหุงข้าวสั่งผลิต", "รหัสสินค้า|P1001", "ชื่อสินค้า|หม้อหุงข้าว 1.8 ลิตร ( สี ขาว / 1.8 L / RC-18 ) ",
        "จำนวน|150 PCS / 15 BOX / 0", "จำนวนค้างส่ง|150 PCS / 15 BOX / 0", "รายละเอียด|ส่งก่อนสิ้นเดือน", "ใบสั่งผลิต|PD0000001",
        "วันที่ใบสั่งผลิต|" + daysAgo(25), "หมายเหตุ|ผลิตล็อตที่ 2", "ลำดับรายการที่|1", "รหัสขั้นตอน|ST10", "ชื่อขั้นตอน|ตัดแผ่นโลหะ",
        // the line names no unit: the order's units
        "จำนวนสั่งผลิต|100 PCS / 10 BOX / 0", "จำนวนผลิตเสร็จ|60 PCS / 6 BOX / 0", "จำนวนค้างผลิต|40 PCS / 4 BOX / 0",
        "รายละเอียด|ตัดแผ่น", "รหัสวัตถุดิบ|M-STEEL", "ชื่อวัตถุดิบ|แผ่นสเตนเลส 0.5 มม.", "จำนวน|200 SHT / 2 PACK / 0",
        "รหัสวัตถุดิบ|M-CORD", "ชื่อวัตถุดิบ|สายไฟพร้อมปลั๊ก", "จำนวน|100 PCS / 0 / 0", "ใบขอซื้อ/ขอจ้าง|PR0000901",
        "วันที่ใบขอซื้อ/ขอจ้าง|" + daysAgo(24), "หมายเหตุ|วัตถุดิบสำหรับใบสั่งผลิต PD0000001", "ลำดับรายการที่|1", "รหัสสินค้า|M-STEEL",
        "ชื่อสินค้า|แผ่นสเตนเลส 0.5 มม. ( เงา / ขนาด 1220x2440 ) ", "จำนวนขอ|200 SHT / 2 PACK / 0", "รายละเอียด|ส่งเข้าคลัง A"};
    EXPECT_EQ(rows, expected);
    EXPECT_EQ(job.list()->topLevelItem(5)->text(0), "6");  // numbered

    // The shorter forms stop where they say; a line that is not there shows nothing of it.
    job.ShowDocumentJOB2("JOB0000001", 1, "PD0000001", 9, dataConnectionString());
    EXPECT_EQ(job.rowTexts().size(), 23 + 6);  // its materials still show
    job.ShowDocumentJOB("JOB0000002", 1, dataConnectionString());
    EXPECT_EQ(job.rowTexts().size(), 13);  // no sales order behind it

    DocumentPR pr;
    QSignalSpy clicks(&pr, &DocumentPR::Click);
    QSignalSpy keys(&pr, &DocumentPR::KeyDown);
    pr.ShowDocumentPR("PR0000901", 1, dataConnectionString());
    EXPECT_EQ(pr.rowTexts().mid(0, 8), (QStringList{"โครงการ|PJ01", "ใบขอซื้อ / ขอจ้าง|PR0000901", "บัตรงาน|JC-001",
                                           "วันที่ใบขอซื้อ / ขอจ้าง|" + daysAgo(24), "หมายเหตุ|วัตถุดิบสำหรับใบสั่งผลิต PD0000001",
                                           "รหัสลูกค้า|C002", "ชื่อลูกค้า|ห้างหุ้นส่วนจำกัด ไทยพาณิชย์", "ลำดับรายการที่|1"}));
    EXPECT_EQ(pr.rowTexts().mid(9, 4), (QStringList{"รหัสสินค้าผู้ขาย|SS-05-1220", "ชื่อสินค้า|แผ่นสเตนเลส 0.5 มม. ( เงา / ขนาด 1220x2440 ) ",
                                           "จำนวนขอ|200 SHT / 2 PACK / 0", "จำนวนค้างรับ|80 SHT / 1 PACK / 0"}));
    QTest::keyClick(pr.list(), Qt::Key_Down, Qt::ShiftModifier);
    ASSERT_FALSE(keys.isEmpty());
    EXPECT_EQ(keys.last(), (QList<QVariant>{int(Qt::Key_Down), 1}));

    // A quote in a number is refused with a message, not run.
    scriptedMessages().reset();
    pr.ShowDocumentPR("PR'1", 1, dataConnectionString());
    EXPECT_TRUE(pr.rowTexts().isEmpty());
    ASSERT_EQ(scriptedMessages().shown.size(), 1);
    EXPECT_TRUE(scriptedMessages().shown.first().text.contains("PR'1"));
}

TEST_P(DocumentDetailsTest, TheStatusShowsTheHeaderWithAndWithoutWhereAndTheWholeHistory)
{
    DocumentStatus status;
    int header = 0, history = 1, unused = 0;
    QString no = "IS0000901", none, key = "TInvNo", prefix = "TInv", table = "QD8TInventory", cs = dataConnectionString();
    const struct { int* mode; QString where; QStringList actions; } cases[] = {
        {&header, {}, {"Create", "Edit R1", "Checked", "Rejected", "Revise"}},
        {&header, "TInvCancelStatus=1", {}},
        {&history, "TInvCancelStatus=0", {"Create", "Edit R1", "Checked", "Rejected", "Revise", "Create", "Edit", "Confirm", "Memo"}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.where.toStdString());
        status.ShowDocumentStatus2(*c.mode, unused, no, none, none, key, prefix, table, cs, c.where);
        QStringList actions;
        for (const QString& row : status.rowTexts())
            actions << row.section('|', 0, 0);
        EXPECT_EQ(actions, c.actions);
        EXPECT_EQ(status.lastStatement(),
            "SELECT * FROM QD8TInventory WHERE TInvNo='IS0000901'" + (c.where.isEmpty() ? QString() : " AND " + c.where));
    }
    status.ShowDocumentStatus(header, unused, no, none, none, key, prefix, table, cs);
    EXPECT_EQ(status.rowTexts().value(3), "Rejected|21/11/2569 14:30|SOMCHAI|สมชาย ใจดี|ขอจำนวนใหม่");
    EXPECT_EQ(status.rowTexts().value(4), "Revise||JOHN|จอห์น สมิธ|Revision 0");

    // An event is written inside the caller's transaction: rolled back, it is gone.
    {
        Connection data;
        data.open(cs);
        TransactionGuard transaction(data);
        DocumentHistory::record(data, nullptr, table, no, "Cancel", "JOHN");
    }
    EXPECT_EQ(DocumentHistory::read(cs, table, no).size(), 4);
    EXPECT_EQ(DocumentHistory::changes({{"A", 1}, {"B", "x"}}, {{"A", 1}, {"B", "y"}}), "B: x -> y");
}

QD8_ON_BOTH_ENGINES(DocumentDetailsTest);
