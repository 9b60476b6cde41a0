#include "support/SampleCompany.h"
#include "support/ScriptedServices.h"

#include "DocumentAttachments.h"
#include "DocumentForm.h"
#include "DocumentScanner.h"
#include "WorkbenchForms.h"
#include "WorkbenchSession.h"
#include "WorkbenchWindow.h"
#include "attachments/HardCopyScan.h"
#include "foundation/Connection.h"
#include "foundation/Recordset.h"

#include <QAbstractButton>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>

using namespace qd8;
using namespace qd8::test;

namespace {

class SalesDocumentTest : public SampleCompanyTest {
protected:
    void SetUp() override
    {
        SampleCompanyTest::SetUp();
        if (IsSkipped())
            return;
        registerWorkbenchForms();
        installScriptedServices();
        session = WorkbenchSession::fromConnectionStrings(appConnectionString(), dataConnectionString(), files.path());
    }
    // A new sales order of `customer` for `total`, typed as a clerk does.
    DocumentForm* newOrder(const char* user, const char* customer, const char* total)
    {
        EXPECT_TRUE(session.logIn(QString::fromLatin1(user), QStringLiteral("1234")));
        window = std::make_unique<WorkbenchWindow>(session);
        auto* form = qobject_cast<DocumentForm*>(window->add(QStringLiteral("DOCSO")));
        form->setRUNMODE(QStringLiteral("ADD"));
        form->Setbuttons();
        form->box("TSODTARNCode")->setText(QString::fromLatin1(customer));
        Q_EMIT form->box("TSODTARNCode")->editingFinished();
        form->box("TSODTotalAmount")->setText(QString::fromLatin1(total));
        return form;
    }
    QString read(const QString& sql) const
    {
        Connection data;
        data.open(dataConnectionString());
        Recordset rs;
        rs.open(Sql(sql), data);
        return rs.eof() ? QStringLiteral("<none>") : rs.text(rs.fieldName(0));
    }

    QTemporaryDir files;
    WorkbenchSession session;
    std::unique_ptr<WorkbenchWindow> window;
};

TEST_P(SalesDocumentTest, AnOrderAboveTheCustomersCreditNeedsTheRightToGoOn)
{
    struct Case {
        const char* user;
        const char* total;
        std::optional<bool> answer;  // to "save it all the same?", when asked
        bool saved;
    };
    // C001 may use 500,000 - ... : 420,000 available less 65,000 of uncleared cheques.
    const Case cases[] = {
        {"SOMCHAI", "355000", {}, true},
        {"SOMCHAI", "355000.01", {}, false},  // no right: refused
        {"JOHN", "400000", false, false},
        {"JOHN", "400000", true, true},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(std::string(c.user) + " " + c.total);
        scriptedMessages().reset();
        if (c.answer)
            scriptedMessages().answers << *c.answer;
        DocumentForm* form = newOrder(c.user, "C001", c.total);
        EXPECT_EQ(form->findChild<QLineEdit*>(QStringLiteral("credit0"))->text(), "500,000.00");
        EXPECT_EQ(form->save(), c.saved);
        const auto& shown = scriptedMessages().shown;
        EXPECT_EQ(shown.size(), c.saved && !c.answer ? 0 : 1);
        if (!c.saved && !c.answer) {
            ASSERT_FALSE(shown.isEmpty());
            EXPECT_TRUE(shown[0].text.contains("SOOVERCREDIT")) << qPrintable(shown[0].text);
            EXPECT_EQ(form->box("TSODTotalAmount")->text(), c.total);  // nothing lost
        }
    }
}

TEST_P(SalesDocumentTest, ThePointDocumentPickedIsSpentByTheOrderAndTransferOpensType3)
{
    DocumentForm* form = newOrder("SOMCHAI", "C001", "1000");
    auto* points = form->findChild<QWidget*>(QStringLiteral("pointControl"));
    EXPECT_EQ(points->findChild<QLineEdit*>(QStringLiteral("pointAvailable"))->text(), "1,700");  // PT0000001 and PT0000002
    scriptedPicker().answers << QStringLiteral("PT0000001");
    points->findChild<QPushButton*>(QStringLiteral("pointSelect"))->click();
    EXPECT_EQ(points->findChild<QLineEdit*>(QStringLiteral("pointUse"))->text(), "1,200");
    ASSERT_TRUE(form->save());
    const QString order = form->DocNo();
    EXPECT_EQ(read("SELECT TInvTJobNo FROM QD8TSO WHERE TSODNo='" + order + "'"), "PT0000001");
    EXPECT_EQ(read("SELECT TPiTRefNo FROM QD8TPointTrans WHERE TPiTNo='PT0000001'"), order);

    auto* tabs = qobject_cast<QTabWidget*>(form->parentWidget()->parentWidget());
    ASSERT_TRUE(tabs);
    const int before = tabs->count();
    points->findChild<QPushButton*>(QStringLiteral("pointTransfer"))->click();
    ASSERT_EQ(tabs->count(), before + 1);
    auto* pointForm = qobject_cast<DocumentForm*>(tabs->widget(before));
    ASSERT_TRUE(pointForm);
    EXPECT_EQ(pointForm->definition().table, "QD8TPointTrans");
    EXPECT_EQ(pointForm->box("TPiTType")->text(), "3");
    EXPECT_EQ(pointForm->box("TPiTTARNCode")->text(), "C001");
}

QD8_ON_BOTH_ENGINES(SalesDocumentTest);

// The scan strip of a document form, scanning from SANE's test device (its feeder holds ten
// pages), with its configuration of ours.
TEST(DocumentAttachments, ScansTheFeederIntoOnePdfOpensCopiesAndDrops)
{
    QTemporaryDir dir;
    QFile conf(dir.filePath("dll.conf"));
    ASSERT_TRUE(conf.open(QIODevice::WriteOnly));
    conf.write("test\n");
    conf.close();
    qputenv("SANE_CONFIG_DIR", dir.path().toLocal8Bit());
    installScriptedServices();
    HostedControl form;
    form.setAppPath(dir.path());
    auto* strip = new HardCopyScan(&form);
    DocumentAttachments attachments(form, QStringLiteral("QD8TSO"), strip);
    attachments.scannerDevice = QStringLiteral("test:0");
    int previewed = 0;
    bool keep = false;
    attachments.preview = [&](const QList<QImage>& pages) { previewed = int(pages.size()); return keep; };

    strip->button(0)->click();  // not saved yet: nothing to attach to
    EXPECT_EQ(scriptedMessages().shown.size(), 1);
    attachments.setDocument(QStringLiteral("SO0000001"), true);
    const QString pdf = dir.filePath("HardCopy/QD8TSO/SO0000001.PDF");
    for (bool kept : {false, true}) {
        keep = kept;
        scriptedMessages().answers << true;  // scan now?
        strip->button(0)->click();
        EXPECT_EQ(previewed, 10);
        EXPECT_EQ(QFile::exists(pdf), kept);
    }
    EXPECT_EQ(DocumentScanner::pdfPageCount(pdf), 10);
    strip->button(0)->click();  // there now: opened
    strip->button(HardCopyScan::FolderIndex)->click();
    EXPECT_EQ(scriptedShell().commands,
        QStringList({"url:" + QUrl::fromLocalFile(pdf).toString(), "url:" + QUrl::fromLocalFile(dir.filePath("HardCopy/QD8TSO")).toString()}));

    attachments.chooseFolder = [&](const QString&) { return dir.filePath("elsewhere"); };
    strip->button(HardCopyScan::ChangeIndex)->click();
    EXPECT_EQ(attachments.folder(), dir.filePath("elsewhere"));
    EXPECT_EQ(attachments.copyIn({pdf, pdf}), QStringList({"SO0000001.PDF", "SO0000001-2.PDF"}));
    EXPECT_EQ(attachments.files(QStringLiteral("PDF")).size(), 2);
}

} // namespace
