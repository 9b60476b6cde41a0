#include "support/SampleCompany.h"

#include "ListDetailPane.h"
#include "WorkbenchForms.h"
#include "WorkbenchSession.h"
#include "WorkbenchWindow.h"
#include "documents/DocumentDetails.h"
#include "documents/DucumentList.h"
#include "foundation/DateText.h"
#include "foundation/SqlTrace.h"
#include "widgets/DataView.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QTabWidget>
#include <QTableView>
#include <QTest>

using namespace qd8;
using namespace qd8::test;

namespace {

using ListPaneTest = SampleCompanyTest;

// Each list, every date shown: arrowing fast onto a sample row reads its line once, after
// the selection rests, shows a value of it and its history in the user's language, and
// leaves the keyboard with the rows.
TEST_P(ListPaneTest, ArrowingOntoARowShowsItsLineAndHistoryReadOnce)
{
    registerWorkbenchForms();
    QTemporaryDir files;
    WorkbenchSession session = WorkbenchSession::fromConnectionStrings(appConnectionString(), dataConnectionString(), files.path());
    const QString requested = dateText(QDate::currentDate().addDays(-24), DateEra::Gregorian);
    const struct {
        const char *user, *command, *keyField, *key, *read, *titles;
        QString shown;
    } cases[] = {
        {"SOMCHAI", "ICJOB", "TJobNo", "JOB0000001", "FROM QD8VJOB WHERE", "ใบสั่งงาน|ประวัติเอกสาร", "ลูกค้า|C002 - ห้างหุ้นส่วนจำกัด ไทยพาณิชย์"},
        {"SOMCHAI", "ICJOBPRODUCTION", "TJPDNo", "PD0000001", "FROM QD8VJOBPRODUCTION WHERE", "ใบสั่งผลิต|ประวัติเอกสาร", "บัตรงาน|JC-001"},
        {"SOMCHAI", "PURPR", "TPRDNo", "PR0000901", "FROM QD8VPR WHERE", "ใบขอซื้อ|ประวัติเอกสาร", "รหัสสินค้าผู้ขาย|SS-05-1220"},
        {"JOHN", "PURPR", "TPRDNo", "PR0000901", "FROM QD8VPR WHERE", "Purchase Request|History", "วันที่ใบขอซื้อ / ขอจ้าง|" + requested},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(std::string(c.user) + " " + c.command);
        ASSERT_TRUE(session.logIn(QString::fromLatin1(c.user), QStringLiteral("1234")));
        WorkbenchWindow window(session);
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        window.launch(QString::fromLatin1(c.command));
        auto* list = qobject_cast<DucumentList*>(window.tabs()->currentWidget());
        ASSERT_TRUE(list) << window.statusMessage().toStdString();
        auto* pane = list->findChild<ListDetailPane*>();
        auto* backDays = list->findChild<QComboBox*>("cboBackDay");
        backDays->setCurrentIndex(backDays->count() - 1);
        DataView* rows = list->dataView();
        rows->fetchAll();
        int row = rows->fetchedRows() - 1;
        while (row > 0 && rows->value(row, c.keyField).toString() != QLatin1String(c.key))
            --row;
        const int start = row < rows->fetchedRows() / 2 ? rows->fetchedRows() - 1 : 0;
        rows->setCurrentRow(start);
        rows->tableView()->setFocus();
        QTest::qWait(ListDetailPane::SettleMs * 3);
        SqlTrace::Recorder trace;
        for (int i = 0; i < std::abs(start - row); ++i)
            QTest::keyClick(rows->tableView(), start > row ? Qt::Key_Up : Qt::Key_Down);
        EXPECT_TRUE(QTest::qWaitFor([&] { return pane->detail()->rowTexts().contains(c.shown); }))
            << pane->detail()->rowTexts().join('\n').toStdString();
        const QStringList read = trace.sent().filter(c.read);
        ASSERT_EQ(read.size(), 1) << read.join('\n').toStdString();
        EXPECT_TRUE(read.first().contains(c.key));
        EXPECT_EQ(pane->findChild<QLabel*>("title")->text() + "|" + pane->findChild<QLabel*>("historyTitle")->text(), QString::fromUtf8(c.titles));
        EXPECT_TRUE(pane->status()->rowTexts().value(0).startsWith("Create|"));
        EXPECT_EQ(QApplication::focusWidget(), rows->tableView());
        if (const QString folder = qEnvironmentVariable("QD8_PICTURES"); !folder.isEmpty())
            window.grab().save(folder + QStringLiteral("/workbench-pane-%1-%2.png").arg(c.user, c.command));
    }
}

QD8_ON_BOTH_ENGINES(ListPaneTest);

} // namespace
