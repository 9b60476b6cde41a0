#include "support/ReadBack.h"
#include "support/ScratchDatabase.h"
#include "support/ScriptedServices.h"

#include "widgets/DataView.h"

#include <QAction>
#include <QFile>
#include <QJsonArray>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>

using namespace qd8;
using namespace qd8::test;

namespace {

constexpr int Rows = 3000;
constexpr int Kept = 2000;  // the rows the list's filter keeps

class DataViewExportTest : public CompanyDataTest {
protected:
    void SetUp() override
    {
        CompanyDataTest::SetUp();
        if (IsSkipped())
            return;
        QStringList values;
        for (int i = 0; i < Rows; ++i)
            values << QStringLiteral("('IV%1', '2026-02-%2', 'C%3', 'งานติดตั้ง \"ระบบ\", ชุด %1', %4.25, %5)")
                          .arg(i, 5, 10, QChar('0')).arg(i % 28 + 1, 2, 10, QChar('0')).arg(i % 7).arg(i).arg(i % 3 ? 1 : 0);
        db->run({"INSERT INTO QD8TARInvoice (TIvoNo, TIvoDate, TIvoTARNCode, TIvoDescription, TIvoAmount, TIvoCardStatus) VALUES " +
                 values.join(",")});
        view.setDateLook(DateLook::forLanguage(1));
        // The customer code is hidden (width 0): it is not exported.
        view.setColumns("TIvoNo,TIvoTARNCode,TIvoDate,TIvoDescription,TIvoAmount", "เลขที่,ลูกค้า,วันที่,รายละเอียด,จำนวนเงิน",
            "1200,0,1200,3000,1500", "0,0,3,0,2");
        view.open("SELECT * FROM QD8TARInvoice WHERE TIvoCardStatus = 1 ORDER BY TIvoNo", {}, db->connectionString());
        view.show();
        view.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&view));
        ASSERT_LT(view.fetchedRows(), Kept);
    }

    DataView view;
    QTemporaryDir folder;
};

// Every route to an export writes every row the filter keeps, in the shown columns, typed.
TEST_P(DataViewExportTest, ExportsAllFilteredRowsTyped)
{
    const QList<std::function<void()>> routes = {
        [&] { view.findChild<QAction*>("actExportXlsx")->trigger(); },
        [&] { QTest::keyClick(view.tableView(), Qt::Key_E, Qt::ControlModifier | Qt::ShiftModifier); },
        [&] { view.tableView()->actions().at(1)->trigger(); },  // the context menu's CSV entry
    };
    for (int route = 0; route < routes.size(); ++route) {
        SCOPED_TRACE(route);
        const QString file = folder.filePath(QStringLiteral("list%1").arg(route));
        scriptedPicker().fileAnswers << file;
        routes[route]();
        if (route < 2) {
            const QJsonArray rows = readWorkbook(file + ".xlsx");
            ASSERT_EQ(rows.size(), 1 + Kept + 1);
            EXPECT_EQ(rows.last().toArray()[1].toString(), "A2");
            const QJsonArray header = rows[0].toArray();
            ASSERT_EQ(header.size(), 4);
            EXPECT_EQ(header[1].toArray()[1].toString(), "วันที่");
            EXPECT_TRUE(header[1].toArray()[2].toBool());
            const QJsonArray last = rows[Kept].toArray();
            const QStringList types = {"str", "datetime", "str", "float"};
            for (int c = 0; c < types.size(); ++c)
                EXPECT_EQ(last[c].toArray()[0].toString(), types[c]) << c;
            EXPECT_EQ(last[0].toArray()[1].toString(), "IV02999");
            EXPECT_EQ(last[3].toArray()[1].toString(), "2999.25");
        } else {
            QFile csv(file + ".csv");
            ASSERT_TRUE(csv.open(QIODevice::ReadOnly));
            const QList<QByteArray> lines = csv.readAll().split('\n');
            ASSERT_EQ(lines.size(), 1 + Kept + 1);  // the last line break ends an empty piece
            EXPECT_EQ(lines[0], "\xEF\xBB\xBF" "เลขที่,วันที่,รายละเอียด,จำนวนเงิน\r");
            EXPECT_EQ(lines[1].toStdString(), "IV00001,2026-02-02,\"งานติดตั้ง \"\"ระบบ\"\", ชุด 00001\",1.25\r");
        }
    }
    EXPECT_EQ(scriptedPicker().fileTitles,
        (QStringList{"Export to Excel (XLSX)", "Export to Excel (XLSX)", "Export to CSV"}));
}

TEST_P(DataViewExportTest, CancelLeavesNoFile)
{
    scriptedProgress().cancelTitle = "Export the list";
    scriptedProgress().cancelAt = 1;
    const QString file = folder.filePath("cancelled.xlsx");
    EXPECT_FALSE(view.exportRows(file));
    EXPECT_TRUE(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).isEmpty());
    EXPECT_TRUE(scriptedMessages().shown.isEmpty());
}

} // namespace

QD8_ON_BOTH_ENGINES(DataViewExportTest);
