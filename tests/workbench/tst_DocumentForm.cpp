#include "support/SampleCompany.h"
#include "support/ScriptedServices.h"

#include "DocumentForm.h"
#include "VoucherForm.h"
#include "WorkbenchForms.h"
#include "accounting/GLControl.h"
#include "documents/DocumentDetails.h"
#include "documents/DocumentHistory.h"
#include "documents/JobSelector.h"
#include "widgets/DateEdit.h"
#include "widgets/GridEditor.h"
#include "WorkbenchSession.h"
#include "WorkbenchWindow.h"
#include "foundation/Connection.h"
#include "foundation/DateText.h"
#include "foundation/Recordset.h"
#include "foundation/SqlTrace.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPrintPreviewWidget>
#include <QPushButton>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTest>

using namespace qd8;
using namespace qd8::test;

namespace {

// The registered forms, each with a free-text field the tests edit and the columns a row
// needs before it can be saved (comma lists; the same values typed when adding).
struct FormCase {
    const char* form;
    const char* table;
    const char* keyField;
    const char* prefix;  // documents number themselves; masters ("") take a typed code
    const char* textField;
    const char* columns;
    const char* values;
    bool master() const { return *prefix == 0; }
};

const FormCase Forms[] = {
    {"DOCPR", "QD8TPR", "TPRDNo", "PR", "TPRDDescription", "TPRDDate", "2026-01-15"},
    {"DOCPO", "QD8TPO", "TPODNo", "PO", "TPODDescription", "TPODDate,TPODTAPNCode", "2026-01-15,QS901"},
    {"DOCSO", "QD8TSO", "TSODNo", "SO", "TSODDescription", "TSODDate,TSODTARNCode", "2026-01-15,QC901"},
    {"DOCINVOICE", "QD8TARInvoice", "TIvoNo", "IV", "TIvoDescription", "TIvoDate,TIvoTARNCode,TIvoNetAmount", "2026-01-15,QC901,1500.25"},
    {"DOCISSUE", "QD8TInventory", "TInvNo", "IS", "TInvDescription", "TInvDate", "2026-01-15"},
    {"MASTERCUSTOMER", "QD8TAR", "TARNCode", "", "TARNName", "", ""},
    {"MASTERPRODUCT", "QD8TProduct", "TPdtCode", "", "TPdtName", "", ""},
    {"MASTERSUPPLIER", "QD8TAP", "TAPNCode", "", "TAPNName", "", ""},
};

const FormCase& formCase(const char* name)
{
    for (const FormCase& c : Forms)
        if (qstrcmp(c.form, name) == 0)
            return c;
    throw std::invalid_argument(name);
}

QStringList listOf(const char* commaList)
{
    return *commaList ? QString::fromLatin1(commaList).split(QLatin1Char(',')) : QStringList();
}

class DocumentFormTest : public SampleCompanyTest {
protected:
    void SetUp() override
    {
        SampleCompanyTest::SetUp();
        if (IsSkipped())
            return;
        registerWorkbenchForms();
        runOnData({"INSERT INTO QD8TAR (TARNCode, TARNName, TARNName2) VALUES ('QC901', 'บริษัท สยามค้าส่ง จำกัด', 'Siam Wholesale')",
            "INSERT INTO QD8TAP (TAPNCode, TAPNName, TAPNName2) VALUES ('QS901', 'ห้างหุ้นส่วน ไทยวัสดุ', 'Thai Materials')"});
        session = WorkbenchSession::fromConnectionStrings(appConnectionString(), dataConnectionString(), files.path());
    }
    void logIn(const char* user)
    {
        ASSERT_TRUE(session.logIn(QString::fromLatin1(user), QStringLiteral("1234")));
        window = std::make_unique<WorkbenchWindow>(session);
        window->show();
    }
    // Opens a form exactly as a document or master list does, by its late-bound members;
    // a member the form lacks fails the test.
    QWidget* openAsList(const FormCase& c, const QString& mode, const QString& key)
    {
        QWidget* form = window->add(QString::fromLatin1(c.form));
        EXPECT_TRUE(form) << c.form;
        if (!form)
            return nullptr;
        const bool adding = mode == QLatin1String("ADD");
        EXPECT_TRUE(form->setProperty("RUNMODE", mode));
        if (c.master()) {
            EXPECT_TRUE(form->setProperty("FormFunction", QStringLiteral("1")));
        }
        EXPECT_TRUE(QMetaObject::invokeMethod(form, "Setbuttons", Qt::DirectConnection));
        const char* newKey = c.master() ? "NewMasterCode" : "NewDocNo";
        const char* shownKey = c.master() ? "MasterCode" : "DocNo";
        EXPECT_TRUE(form->setProperty(newKey, key));
        if (!adding) {
            EXPECT_TRUE(form->setProperty(shownKey, key));
        }
        form->setWindowTitle(QStringLiteral("รายการ - ") + (adding ? QStringLiteral("เพิ่ม") : key));
        if (!adding) {
            EXPECT_TRUE(QMetaObject::invokeMethod(form, "FillData", Qt::DirectConnection));
        }
        return form;
    }
    void seed(const FormCase& c, const QString& key, const QString& text) const
    {
        QStringList columns{QString::fromLatin1(c.keyField), QString::fromLatin1(c.textField)};
        QStringList values{"'" + key + "'", "'" + text + "'"};
        columns << listOf(c.columns);
        for (const QString& value : listOf(c.values))
            values << "'" + value + "'";
        runOnData({QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)").arg(QLatin1String(c.table), columns.join(','), values.join(','))});
    }
    // A column of the first row read, "<none>" when there is no row.
    QString read(const Sql& sql, const QString& column) const
    {
        Connection data;
        data.open(dataConnectionString());
        Recordset rs;
        rs.open(sql, data);
        return rs.eof() ? QStringLiteral("<none>") : rs.text(column);
    }
    QString cell(const FormCase& c, const QString& key, const QString& column) const
    {
        return read(Sql("SELECT * FROM ") + c.table + " WHERE " + c.keyField + "=" + quoted(key), column);
    }
    qsizetype rowCount(const FormCase& c) const { return read(Sql("SELECT COUNT(*) AS N FROM ") + c.table, "N").toLongLong(); }
    QString branchOf(const char* user) const
    {
        return read(Sql("SELECT TEmpTBraCode FROM QD8TUser INNER JOIN QD8TEmployee ON TUsrTEmpCode=TEmpCode WHERE TUsrLoginName=") + quoted(user),
            "TEmpTBraCode");
    }
    static QLineEdit* box(QWidget* form, const QString& field) { return form->findChild<QLineEdit*>(field); }
    static void retype(QLineEdit* box, const QString& text)
    {
        box->clear();
        typeText(box, text);
    }
    static void pressSave(QWidget* form, const FormCase& c)
    {
        QTest::keyClick(box(form, QString::fromLatin1(c.textField)), Qt::Key_S, Qt::ControlModifier);
    }
    QStringList criticals() const
    {
        QStringList texts;
        for (const auto& shown : scriptedMessages().shown)
            if (shown.kind == QLatin1String("critical"))
                texts << shown.text;
        return texts;
    }

    QTemporaryDir files;
    WorkbenchSession session;
    std::unique_ptr<WorkbenchWindow> window;
};

TEST_P(DocumentFormTest, EachFormShowsARowReadOnlyInTheUsersLanguageAndSavesOnlyTheEditedOne)
{
    for (const char* user : {"SOMCHAI", "JOHN"}) {
        logIn(user);
        for (const FormCase& c : Forms) {
            SCOPED_TRACE(std::string(c.form) + " " + user);
            const QString first = QString::fromLatin1(c.master() ? "T01" : c.prefix) + user[0] + "TEST01",
                          second = QString::fromLatin1(c.master() ? "T02" : c.prefix) + user[0] + "TEST02";
            seed(c, first, QStringLiteral("ข้อความเดิม ฉบับที่หนึ่ง"));
            seed(c, second, QStringLiteral("ข้อความเดิม ฉบับที่สอง"));

            QWidget* view = openAsList(c, "VIEW", first);
            ASSERT_TRUE(view);
            EXPECT_EQ(box(view, c.keyField)->text(), first);
            EXPECT_EQ(box(view, c.textField)->text(), "ข้อความเดิม ฉบับที่หนึ่ง");
            EXPECT_EQ(window->tabs()->tabText(window->tabs()->indexOf(view)), "รายการ - " + first);
            EXPECT_EQ(view->findChild<QLabel*>("mode")->text(), qstrcmp(user, "JOHN") == 0 ? "View" : "ดู");
            for (QLineEdit* field : view->findChildren<QLineEdit*>())
                EXPECT_TRUE(field->isReadOnly()) << field->objectName().toStdString();
            EXPECT_FALSE(view->findChild<QPushButton*>("save")->isEnabled());
            EXPECT_TRUE(view->findChild<QPushButton*>("close")->isVisibleTo(view));
            pressSave(view, c);
            EXPECT_EQ(cell(c, first, c.textField), "ข้อความเดิม ฉบับที่หนึ่ง");

            QWidget* edit = openAsList(c, "EDIT", first);
            ASSERT_TRUE(edit);
            QSignalSpy saved(edit, SIGNAL(Saved(QString)));
            EXPECT_TRUE(box(edit, c.keyField)->isReadOnly());
            EXPECT_EQ(edit->findChild<QLabel*>("mode")->text(), qstrcmp(user, "JOHN") == 0 ? "Edit" : "แก้ไข");
            retype(box(edit, c.textField), QStringLiteral("แก้ไขแล้ว: ผู้จัดการอนุมัติ"));
            pressSave(edit, c);
            EXPECT_TRUE(criticals().isEmpty()) << criticals().join('\n').toStdString();
            EXPECT_EQ(saved, QList<QVariantList>{{first}});
            EXPECT_EQ(cell(c, first, c.textField), "แก้ไขแล้ว: ผู้จัดการอนุมัติ");
            EXPECT_EQ(cell(c, second, c.textField), "ข้อความเดิม ฉบับที่สอง");
            if (!c.master()) {
                EXPECT_EQ(cell(c, first, QString(c.keyField).chopped(2) + "EditBy"), user);
            }
            window->closeForm(view);
            window->closeForm(edit);
        }
    }
}

TEST_P(DocumentFormTest, AddingProposesTheNextNumberOrTakesATypedCodeAndInserts)
{
    logIn("SOMCHAI");
    for (const FormCase& c : Forms) {
        SCOPED_TRACE(c.form);
        QString key = QStringLiteral("NEW01");
        if (!c.master()) {
            seed(c, QString::fromLatin1(c.prefix) + QStringLiteral("9000041"), QStringLiteral("ฉบับก่อน"));
            seed(c, QString::fromLatin1(c.prefix) + QStringLiteral("X-OLD"), QStringLiteral("เลขที่แบบอื่น"));
            key = QString::fromLatin1(c.prefix) + QStringLiteral("9000042");
        }
        const qsizetype before = rowCount(c);
        QWidget* form = openAsList(c, "ADD", QString());
        ASSERT_TRUE(form);
        QSignalSpy saved(form, SIGNAL(Saved(QString)));
        EXPECT_EQ(form->findChild<QLabel*>("mode")->text(), "เพิ่ม");
        EXPECT_FALSE(box(form, c.keyField)->isReadOnly());
        if (c.master()) {
            EXPECT_EQ(box(form, c.keyField)->text(), "");
            typeText(box(form, c.keyField), key);
        } else {
            EXPECT_EQ(box(form, c.keyField)->text(), key);
        }
        const QStringList columns = listOf(c.columns), values = listOf(c.values);
        for (int i = 0; i < columns.size(); ++i)
            retype(box(form, columns[i]), values[i]);
        typeText(box(form, c.textField), QStringLiteral("เอกสารใหม่ของสมชาย"));
        pressSave(form, c);
        EXPECT_TRUE(criticals().isEmpty()) << criticals().join('\n').toStdString();
        EXPECT_EQ(saved, QList<QVariantList>{{key}});
        EXPECT_EQ(rowCount(c), before + 1);
        EXPECT_EQ(cell(c, key, c.textField), "เอกสารใหม่ของสมชาย");
        for (QLineEdit* branch : form->findChildren<QLineEdit*>()) {
            if (branch->objectName().endsWith("TBraCode")) {
                EXPECT_EQ(cell(c, key, branch->objectName()), branchOf("SOMCHAI"));
            }
        }
        if (!c.master()) {
            EXPECT_EQ(cell(c, key, QString(c.keyField).chopped(2) + "CreateBy"), "SOMCHAI");
        }
        // Saved, the form edits the new row under its key.
        EXPECT_EQ(form->property("RUNMODE").toString(), "EDIT");
        EXPECT_TRUE(box(form, c.keyField)->isReadOnly());
        EXPECT_EQ(window->tabs()->tabText(window->tabs()->indexOf(form)), "รายการ - " + key);
        window->closeForm(form);
    }
}

TEST_P(DocumentFormTest, AnInvoicePostsItsVoucherInItsOwnTransactionOrNotAtAll)
{
    logIn("SOMCHAI");
    const FormCase& c = formCase("DOCINVOICE");
    QWidget* form = openAsList(c, "ADD", QString());
    ASSERT_TRUE(form);
    const QString key = box(form, c.keyField)->text();
    retype(box(form, "TIvoTARNCode"), "QC901");
    SqlTrace::Recorder trace;
    retype(box(form, "TIvoNetAmount"), "1000");
    EXPECT_LE(trace.composed().filter("FROM QD8TGLFormat ").size(), 1);  // each keystroke refills from the format read once
    EXPECT_EQ(box(form, "TIvoVATAmount")->text(), "70.00");
    EXPECT_EQ(box(form, "TIvoAmount")->text(), "1,070.00");
    auto* voucher = form->findChild<GLControl*>("voucher");
    ASSERT_TRUE(voucher);
    EXPECT_EQ(voucher->GETSumDebit(), *Currency::parse(u"1070"));
    EXPECT_EQ(voucher->GETSumCredit(), *Currency::parse(u"1070"));

    const auto vouchers = [this] { return read(Sql("SELECT COUNT(*) AS N FROM QD8TGLTrans"), "N"); };
    const QString before = vouchers();
    const qsizetype invoices = rowCount(c);
    // Dated in last year, which the sample has closed: refused before anything is written.
    retype(box(form, "TIvoDate"), QString::number(QDate::currentDate().year() - 1) + "-06-15");
    pressSave(form, c);
    retype(box(form, "TIvoDate"), "2026-01-15");
    // The voucher lines cannot be written: the invoice is not written either.
    runOnData({"ALTER TABLE QD8TGLTransSub RENAME TO QD8TGLTransSubAway"});
    pressSave(form, c);
    runOnData({"ALTER TABLE QD8TGLTransSubAway RENAME TO QD8TGLTransSub"});
    ASSERT_EQ(criticals().size(), 2);
    EXPECT_EQ(rowCount(c), invoices);
    EXPECT_EQ(vouchers(), before);

    pressSave(form, c);
    EXPECT_EQ(criticals().size(), 2) << criticals().join('\n').toStdString();
    const QString number = cell(c, key, "TIvoTGLTNo");
    EXPECT_TRUE(number.startsWith("SV2601")) << number.toStdString();
    const auto lines = [&] {
        Connection data;
        data.open(dataConnectionString());
        Recordset rs;
        rs.open(Sql("SELECT * FROM QD8TGLTransSub WHERE TGTSTGLTNo=") + quoted(number) + " ORDER BY TGTSLn", data);
        QStringList shown;
        for (; !rs.eof(); rs.moveNext())
            shown << rs.text("TGTSTACCCode") + " " + rs.text("TGTSDebit") + "/" + rs.text("TGTSCredit") + " " + rs.text("TGTSTARNCode");
        return shown;
    };
    EXPECT_EQ(lines(), QStringList({"1121-01 1070/0 QC901", "4110-01 0/1000 QC901", "2131-01 0/70 QC901"}));
    EXPECT_EQ(read(Sql("SELECT TGLTRefNo FROM QD8TGLTrans WHERE TGLTNo=") + quoted(number), "TGLTRefNo"), key);

    // A corrected amount posts again under the same voucher number.
    retype(box(form, "TIvoNetAmount"), "2000");
    pressSave(form, c);
    EXPECT_EQ(cell(c, key, "TIvoTGLTNo"), number);
    EXPECT_EQ(lines(), QStringList({"1121-01 2140/0 QC901", "4110-01 0/2000 QC901", "2131-01 0/140 QC901"}));
    EXPECT_EQ(cell(c, key, "TIvoAmount"), "2140");
}

TEST_P(DocumentFormTest, AddingADocumentFillsTodayAndThePickedCodes)
{
    logIn("SOMCHAI");
    const FormCase& c = formCase("DOCPR");
    QWidget* form = openAsList(c, "ADD", QString());
    ASSERT_TRUE(form);
    const QDate today = QDate::currentDate();
    EXPECT_EQ(box(form, "TPRDDate")->text(), QStringLiteral("%1/%2/%3").arg(today.day(), 2, 10, QChar('0')).arg(today.month(), 2, 10, QChar('0')).arg(today.year() + 543));
    scriptedPicker().answers = {"PJ02"};
    QTest::keyClick(box(form, "TPRDTPrjCode"), Qt::Key_F2);
    ASSERT_EQ(scriptedPicker().requests.size(), 1);
    EXPECT_TRUE(scriptedPicker().requests[0].source.startsWith("QD8TProject"));
    EXPECT_EQ(box(form, "TPRDTPrjCode")->text(), "PJ02");
    EXPECT_EQ(form->findChild<QLabel*>("TPRDTPrjCodeName")->text(), read("SELECT TPrjName FROM QD8TProject WHERE TPrjCode='PJ02'", "TPrjName"));
    // The due date from the calendar (F4), opened on the box's date or today.
    scriptedPicker().dateAnswers = {QDateTime(QDate(2026, 12, 31), QTime())};
    QTest::keyClick(box(form, "TPRDDueDate"), Qt::Key_F4);
    ASSERT_EQ(scriptedPicker().dateAsks.size(), 1);
    EXPECT_EQ(scriptedPicker().dateAsks[0].initial.date(), today);
    EXPECT_EQ(box(form, "TPRDDueDate")->text(), "31/12/2569");
    pressSave(form, c);
    EXPECT_TRUE(criticals().isEmpty()) << criticals().join('\n').toStdString();
    const QString key = box(form, "TPRDNo")->text();
    EXPECT_EQ(QStringList({cell(c, key, "TPRDTPrjCode"), cell(c, key, "TPRDDate"), cell(c, key, "TPRDDueDate")}),
        QStringList({"PJ02", today.toString(Qt::ISODate), "2026-12-31"}));
    window->closeForm(form);

    // A Thai user who chose Gregorian years ("DateEra" 2) gets them on the form.
    runOnData({"INSERT INTO QD8TUserSetting (TUsSTUsrID, TUsSAlias, TUsSValue) SELECT TUsrID, 'DateEra', '2' FROM QD8TUser WHERE TUsrLoginName='SOMCHAI'"});
    form = openAsList(c, "ADD", QString());
    ASSERT_TRUE(form);
    EXPECT_EQ(box(form, "TPRDDate")->text(), today.toString("dd/MM/yyyy"));
}

TEST_P(DocumentFormTest, SavingIsRefusedForABadKeyOrValueAndKeepsWhatWasTyped)
{
    logIn("SOMCHAI");
    seed(formCase("DOCPR"), "PRTAKEN", "ของเดิม");
    seed(formCase("MASTERCUSTOMER"), "TAKEN", "ลูกค้าเดิม");
    const struct {
        const char* form;
        const char* key;     // typed over the proposal
        const char* field;   // and one more field
        const char* value;
        const char* said;    // in the message
    } cases[] = {
        {"DOCPR", "", "TPRDRefNo", "REF-1", "เลขที่"},
        {"DOCPR", "PRTAKEN", "TPRDRefNo", "REF-2", "PRTAKEN"},
        {"MASTERCUSTOMER", "", "TARNTelephone", "02-111-2222", "รหัส"},
        {"MASTERCUSTOMER", "TAKEN", "TARNTelephone", "02-333-4444", "TAKEN"},
        {"DOCPR", "PRNEW", "TPRDDueDate", "31/02/2569", "31/02/2569"},
        {"DOCSO", "SONEW", "TSODTARNCode", "NOSUCH", "NOSUCH"},
        {"MASTERCUSTOMER", "NEW'1", "TARNTelephone", "02", "'"},
    };
    for (const auto& t : cases) {
        SCOPED_TRACE(std::string(t.form) + " " + t.key + " " + t.field);
        scriptedMessages().reset();
        const FormCase& c = formCase(t.form);
        const qsizetype before = rowCount(c);
        QWidget* form = openAsList(c, "ADD", QString());
        ASSERT_TRUE(form);
        QSignalSpy saved(form, SIGNAL(Saved(QString)));
        const QStringList columns = listOf(c.columns), values = listOf(c.values);
        for (int i = 0; i < columns.size(); ++i)
            retype(box(form, columns[i]), values[i]);
        retype(box(form, c.keyField), QString::fromUtf8(t.key));
        retype(box(form, c.textField), QStringLiteral("ที่พิมพ์ไว้"));
        retype(box(form, t.field), QString::fromUtf8(t.value));
        pressSave(form, c);
        ASSERT_EQ(criticals().size(), 1);
        EXPECT_TRUE(criticals()[0].contains(QString::fromUtf8(t.said))) << criticals()[0].toStdString();
        EXPECT_EQ(saved.count(), 0);
        EXPECT_EQ(rowCount(c), before);
        EXPECT_EQ(QStringList({form->property("RUNMODE").toString(), box(form, c.keyField)->text(), box(form, c.textField)->text(),
                      box(form, t.field)->text()}),
            QStringList({"ADD", QString::fromUtf8(t.key), "ที่พิมพ์ไว้", QString::fromUtf8(t.value)}));
        scriptedMessages().saveAnswers = {MessageService::SaveAnswer::Discard};  // what failed to save is not closed silently
        EXPECT_TRUE(window->closeForm(form));
        EXPECT_TRUE(scriptedMessages().saveAnswers.isEmpty());
    }
    EXPECT_EQ(cell(formCase("DOCPR"), "PRTAKEN", "TPRDDescription"), "ของเดิม");
    EXPECT_EQ(cell(formCase("MASTERCUSTOMER"), "TAKEN", "TARNName"), "ลูกค้าเดิม");
}

TEST_P(DocumentFormTest, AChangeByAnotherUserIsReportedAndNeverOverwritten)
{
    logIn("SOMCHAI");
    const FormCase& c = formCase("DOCSO");
    const struct {
        const char* meanwhile;
        const char* description;  // what the table holds afterwards
    } cases[] = {
        {"UPDATE QD8TSO SET TSODDescription='แก้โดยคนอื่น' WHERE TSODNo='SO1'", "แก้โดยคนอื่น"},
        {"UPDATE QD8TSO SET TSODRefNo='R-9' WHERE TSODNo='SO1'", "ต้นฉบับ"},
        {"DELETE FROM QD8TSO WHERE TSODNo='SO1'", "<none>"},
        // Older rows hold bare dates in their stamps: no one changed them, the save goes through.
        {"", "ของผู้ใช้คนนี้"},
    };
    for (const auto& t : cases) {
        SCOPED_TRACE(t.meanwhile);
        scriptedMessages().reset();
        runOnData({"DELETE FROM QD8TSO"});
        seed(c, "SO1", "ต้นฉบับ");
        runOnData({"UPDATE QD8TSO SET TSODCreateDate='2026-01-15', TSODEditDate='2026-01-16' WHERE TSODNo='SO1'"});
        QWidget* form = openAsList(c, "EDIT", "SO1");
        ASSERT_TRUE(form);
        QSignalSpy saved(form, SIGNAL(Saved(QString)));
        retype(box(form, "TSODDescription"), QStringLiteral("ของผู้ใช้คนนี้"));
        if (*t.meanwhile)
            runOnData({QString::fromUtf8(t.meanwhile)});
        pressSave(form, c);
        EXPECT_EQ(criticals().size(), *t.meanwhile ? 1 : 0);
        EXPECT_EQ(saved.count(), *t.meanwhile ? 0 : 1);
        EXPECT_EQ(QStringList({cell(c, "SO1", "TSODDescription"), box(form, "TSODDescription")->text(), form->property("RUNMODE").toString()}),
            QStringList({QString::fromUtf8(t.description), "ของผู้ใช้คนนี้", "EDIT"}));
        scriptedMessages().saveAnswers = {MessageService::SaveAnswer::Discard};
        window->closeForm(form);
    }
}

// Each step of a clerk on one request, by key: the mode it leaves the form in, the commands
// enabled then (in their places: no button moves), the unsaved-changes answer it needs.
TEST_P(DocumentFormTest, TheToolBarKeepsItsPlacesAcrossModesAndAddAndEditAskBeforeDroppingChanges)
{
    logIn("SOMCHAI");
    const FormCase& c = formCase("DOCPR");
    seed(c, "PRTOOL", "ขอซื้อกระดาษ");
    window->launch("PURPR");  // the form takes the rights of the list that opens it
    QWidget* form = openAsList(c, "VIEW", "PRTOOL");
    ASSERT_TRUE(form);
    const QStringList names{"add", "edit", "save", "delete", "print", "close"};
    const auto places = [&] {
        QApplication::processEvents();
        QList<int> x;
        for (const QString& name : names)
            x << form->findChild<QPushButton*>(name)->mapTo(form, QPoint()).x();
        return x;
    };
    const QList<int> first = places();
    using Answer = MessageService::SaveAnswer;
    const struct {
        Qt::Key key;
        const char* typed;  // into the description before the key
        QList<Answer> answers;
        const char* mode;
        const char* enabled;
    } steps[] = {
        {Qt::Key_unknown, "", {}, "VIEW", "add edit delete print close"},
        {Qt::Key_E, "", {}, "EDIT", "add save delete print close"},
        {Qt::Key_N, "ยังไม่บันทึก", {Answer::Cancel}, "EDIT", "add save delete print close"},
        {Qt::Key_N, "", {Answer::Discard}, "ADD", "add save close"},
        {Qt::Key_N, "ใบใหม่", {Answer::Save}, "ADD", "add save close"},
    };
    for (const auto& t : steps) {
        SCOPED_TRACE(t.mode);
        scriptedMessages().saveAnswers = t.answers;
        if (*t.typed)
            retype(box(form, c.textField), QString::fromUtf8(t.typed));
        if (t.key != Qt::Key_unknown)
            QTest::keyClick(box(form, c.textField), t.key, Qt::ControlModifier);
        EXPECT_TRUE(scriptedMessages().saveAnswers.isEmpty());
        QStringList enabled;
        for (const QString& name : names)
            if (form->findChild<QPushButton*>(name)->isEnabled())
                enabled << name;
        EXPECT_EQ(QStringList({form->property("RUNMODE").toString(), enabled.join(' ')}), QStringList({t.mode, t.enabled}));
        EXPECT_EQ(places(), first);
    }
    // The Cancel kept the edit; the Save of the last step wrote the new request before a new one started.
    EXPECT_EQ(cell(c, "PRTOOL", c.textField), "ขอซื้อกระดาษ");
    EXPECT_EQ(read(Sql("SELECT COUNT(*) AS N FROM QD8TPR WHERE TPRDDescription='ใบใหม่'"), "N"), "1");
    EXPECT_TRUE(box(form, c.textField)->text().isEmpty());
    EXPECT_TRUE(form->findChild<QPushButton*>("delete")->toolTip().endsWith("(Ctrl+Del)"));
    // Esc closes after the same question; its Cancel keeps the form.
    QSignalSpy closing(form, SIGNAL(CloseAction()));
    scriptedMessages().saveAnswers = {Answer::Cancel, Answer::Discard};
    typeText(box(form, c.textField), "ร่าง");
    QTest::keyClick(box(form, c.textField), Qt::Key_Escape);
    EXPECT_EQ(closing.count(), 0);
    QTest::keyClick(box(form, c.textField), Qt::Key_Escape);
    EXPECT_EQ(closing.count(), 1);
    EXPECT_TRUE(scriptedMessages().saveAnswers.isEmpty());
}

TEST_P(DocumentFormTest, DeleteIsRefusedWhileInUseOrConfirmedAndOtherwiseAsksAndTakesLinesAndHistory)
{
    logIn("SOMCHAI");
    const struct {
        const char* list;
        const char* form;
        const char* key;
        const char* meanwhile;  // what keeps the row, if anything
        QList<bool> answers;    // to "Delete ...?"; none: it must not ask
        const char* said;       // the refusal
    } cases[] = {
        {"PURPR", "DOCPR", "PRDEL1", "UPDATE QD8TPR SET TPRDConfirmStatus=1 WHERE TPRDNo='PRDEL1'", {}, "PRDEL1 ยืนยัน อนุมัติ หรือยกเลิกแล้ว ลบไม่ได้"},
        {"SOORDER", "DOCSO", "SODEL1", "INSERT INTO QD8TJob (TJobNo, TJobRefNo) VALUES ('JOBDEL1', 'SODEL1')", {}, "SODEL1 ถูกใช้อยู่ใน QD8TJob ลบไม่ได้"},
        {"ARCUSTOMER", "MASTERCUSTOMER", "CDEL1", "INSERT INTO QD8TSO (TSODNo, TSODTARNCode) VALUES ('SODEL2', 'CDEL1')", {}, "CDEL1 ถูกใช้อยู่ใน QD8TSO ลบไม่ได้"},
        {"PURPR", "DOCPR", "PRDEL2", "", {false}, ""},
        {"PURPR", "DOCPR", "PRDEL3", "", {true}, ""},
    };
    for (const auto& t : cases) {
        SCOPED_TRACE(t.key);
        scriptedMessages().reset();
        const FormCase& c = formCase(t.form);
        seed(c, t.key, "ลบทดสอบ");
        runOnData({QStringLiteral("INSERT INTO QD8TPRSub (TPRMTPRDNo, TPRMLn, TPRMProductName) VALUES ('%1', 1, 'กระดาษ')").arg(t.key)});
        if (*t.meanwhile)
            runOnData({QString::fromUtf8(t.meanwhile)});
        window->launch(t.list);
        QWidget* form = openAsList(c, "VIEW", t.key);
        ASSERT_TRUE(form);
        QSignalSpy closed(form, SIGNAL(CloseAction()));
        scriptedMessages().answers = t.answers;
        QTest::keyClick(box(form, c.textField), Qt::Key_Delete, Qt::ControlModifier);
        EXPECT_TRUE(scriptedMessages().answers.isEmpty());
        EXPECT_EQ(criticals(), *t.said ? QStringList{QString::fromUtf8(t.said)} : QStringList());
        const bool gone = t.answers == QList<bool>{true};
        EXPECT_EQ(cell(c, t.key, c.textField), gone ? "<none>" : "ลบทดสอบ");
        EXPECT_EQ(read(Sql("SELECT COUNT(*) AS N FROM QD8TPRSub WHERE TPRMTPRDNo=") + quoted(t.key), "N"), gone && !c.master() ? "0" : "1");
        EXPECT_EQ(closed.count(), gone ? 1 : 0);
        if (gone) {
            const QList<HistoryEvent> events = DocumentHistory::read(dataConnectionString(), c.table, t.key);
            ASSERT_FALSE(events.isEmpty());
            EXPECT_EQ(events.last().action + " " + events.last().by, "Delete SOMCHAI");
        }
    }
}

TEST_P(DocumentFormTest, PrintingADocumentShowsItsHeaderAndLinesWithThaiDates)
{
    logIn("SOMCHAI");
    const FormCase& c = formCase("DOCPR");
    seed(c, "PRPRINT", "ขอซื้อกระดาษ");
    runOnData({"INSERT INTO QD8TPRSub (TPRMTPRDNo, TPRMLn, TPRMProductCode, TPRMProductName, TPRMQuantity, TPRMTUntCode) "
               "VALUES ('PRPRINT', 1, 'P001', 'กระดาษ A4', 5, 'REAM')"});
    window->launch("PURPR");
    auto* form = qobject_cast<DocumentForm*>(openAsList(c, "VIEW", "PRPRINT"));
    ASSERT_TRUE(form);
    const QString html = form->printout();
    for (const char* shown : {"ใบขอซื้อ - PRPRINT", "<th align=\"left\">วันที่</th><td>15/01/2569</td>", "ขอซื้อกระดาษ",
             "<td>P001</td><td>กระดาษ A4</td><td>5</td><td>REAM</td>", "<th>ชื่อสินค้า</th>"})
        EXPECT_TRUE(html.contains(QString::fromUtf8(shown))) << shown << "\n" << html.toStdString();
    QTest::keyClick(box(form, c.textField), Qt::Key_P, Qt::ControlModifier);
    auto* preview = form->findChild<QPrintPreviewWidget*>();
    ASSERT_TRUE(preview);
    EXPECT_GE(preview->pageCount(), 1);
    preview->window()->close();
}

TEST_P(DocumentFormTest, ASaveWaitingForAnotherWritersLockSaysSoAndMayGiveUpLosingNothing)
{
    logIn("SOMCHAI");
    const FormCase& c = formCase("DOCPR");
    seed(c, "PRLOCK", "ของเดิม");
    QWidget* form = openAsList(c, "EDIT", "PRLOCK");
    ASSERT_TRUE(form);
    retype(box(form, c.textField), "ของใหม่");
    Connection holder;
    holder.open(dataConnectionString());
    holder.beginTrans();
    holder.execute("UPDATE QD8TPR SET TPRDRefNo='HELD' WHERE TPRDNo='PRLOCK'");
    scriptedProgress().cancelTitle = "รอผู้ใช้อื่น";
    scriptedProgress().cancelAt = 600;
    pressSave(form, c);
    holder.rollbackTrans();
    ASSERT_FALSE(scriptedProgress().operations.isEmpty());
    const auto& waited = scriptedProgress().operations.last();  // a loaded server may be slow before it too
    EXPECT_TRUE(waited.text.startsWith("ใบขอซื้อ - PRLOCK กำลังรอ ")) << waited.text.toStdString();
    ASSERT_EQ(criticals().size(), 1);
    EXPECT_TRUE(criticals()[0].startsWith("ยกเลิกการรอ")) << criticals()[0].toStdString();
    EXPECT_EQ(QStringList({cell(c, "PRLOCK", c.textField), box(form, c.textField)->text(), form->property("RUNMODE").toString()}),
        QStringList({"ของเดิม", "ของใหม่", "EDIT"}));
    pressSave(form, c);  // the other writer is done: the same save goes through
    EXPECT_EQ(cell(c, "PRLOCK", c.textField), "ของใหม่");
}

TEST_P(DocumentFormTest, EnterWalksTheWritableFieldsInTheUsersLanguage)
{
    logIn("JOHN");
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    const FormCase& c = formCase("DOCINVOICE");
    seed(c, "IV1", "Invoice one");
    QWidget* form = openAsList(c, "EDIT", "IV1");
    ASSERT_TRUE(form);
    EXPECT_EQ(QStringList({form->findChild<QLabel*>("mode")->text(), box(form, "TIvoNetAmount")->accessibleName(),
                  box(form, "TIvoNetAmount")->text(), box(form, "TIvoDate")->text()}),
        QStringList({"Edit", "Amount before VAT", "1,500.25", "15/01/2026"}));
    // From the first writable field to the last, skipping the key, the total and the outstanding amount.
    QStringList visited{QApplication::focusWidget()->objectName()};
    for (int i = 0; i < 10 && qobject_cast<QLineEdit*>(QApplication::focusWidget()); ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        visited << QApplication::focusWidget()->objectName();
    }
    EXPECT_EQ(visited, QStringList({"TIvoDate", "TIvoDueDate", "TIvoTARNCode", "TIvoTBraCode", "TIvoNetAmount", "TIvoVATAmount", "TIvoRefNo", "TIvoDescription",
                           "save"}));
    EXPECT_EQ(form->findChild<QLabel*>("TIvoTARNCodeName")->text(), "Siam Wholesale");

    // A new invoice is wholly outstanding.
    QWidget* added = openAsList(c, "ADD", "IV-HANDED-1");
    ASSERT_TRUE(added);
    EXPECT_EQ(QStringList({box(added, "TIvoNo")->text(), box(added, "TIvoTBraCode")->text(), added->findChild<QLabel*>("mode")->text()}),
        QStringList({"IV-HANDED-1", branchOf("JOHN"), "Add"}));
    retype(box(added, "TIvoTARNCode"), "QC901");
    retype(box(added, "TIvoNetAmount"), "2,400.5");
    pressSave(added, c);
    EXPECT_TRUE(criticals().isEmpty()) << criticals().join('\n').toStdString();
    EXPECT_EQ(cell(c, "IV-HANDED-1", "TIvoArrears"), cell(c, "IV-HANDED-1", "TIvoAmount"));
    EXPECT_EQ(cell(c, "IV-HANDED-1", "TIvoAmount"), "2568.54");  // 7% VAT of 2,400.50 is 168.035: 168.04
}

TEST_P(DocumentFormTest, SwitchingTheLanguageReshowsAViewedRowAndKeepsAnEdit)
{
    logIn("SOMCHAI");
    const FormCase& c = formCase("DOCPR");
    seed(c, "PRLANG1", "ดูอย่างเดียว");
    seed(c, "PRLANG2", "กำลังแก้ไข");
    QWidget* viewed = openAsList(c, "VIEW", "PRLANG1");
    QWidget* edited = openAsList(c, "EDIT", "PRLANG2");
    ASSERT_TRUE(viewed && edited);
    EXPECT_EQ(box(viewed, "TPRDDate")->text(), "15/01/2569");
    retype(box(edited, "TPRDDescription"), "ยังไม่ได้บันทึก");
    window->setLanguage(1);
    EXPECT_EQ(QStringList({box(viewed, "TPRDDate")->text(), viewed->findChild<QLabel*>("mode")->text(),
                  window->tabs()->tabText(window->tabs()->indexOf(viewed))}),
        QStringList({"15/01/2026", "View", "Purchase Request - PRLANG1"}));
    EXPECT_EQ(box(edited, "TPRDDescription")->text(), "ยังไม่ได้บันทึก");
}

// The general journal's voucher form: an unbalanced voucher is refused, F9 balances it, the
// save numbers it in its book and month, and the list reopens it for editing.
TEST_P(DocumentFormTest, TheVoucherFormBalancesSavesAndReopensAVoucher)
{
    logIn("SOMCHAI");
    auto* form = qobject_cast<VoucherForm*>(openAsList({"DOCGL", "QD8TGLTrans", "TGLTNo", "JV", "", "", ""}, "ADD", ""));
    ASSERT_TRUE(form);
    GLControl* gl = form->panel();
    gl->FillLine("5310-01", true, *Currency::parse(u"1500.25"));
    gl->FillLine("1112-01", false, *Currency::parse(u"1500"));
    QTest::keyClick(form, Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(criticals(), QStringList{"ยอดบัญชีเดบิต และเครดิตไม่เท่ากัน หรือ รหัสบัญชีไม่ถูกต้อง กรุณาตรวจสอบรายการ"});
    gl->grid()->setRow(2), gl->grid()->setCol(GLControl::ColCredit);
    QTest::keyClick(gl->grid()->findChild<QAbstractItemView*>(), Qt::Key_F9);
    ASSERT_TRUE(form->save());
    const QString number = form->DocNo();
    EXPECT_TRUE(number.startsWith("JV" + QDate::currentDate().toString("yyMM")) && number.size() == 10) << number.toStdString();
    EXPECT_EQ(read(Sql("SELECT TGLTAmount FROM QD8TGLTrans WHERE TGLTNo=") + quoted(number), "TGLTAmount"), "1500.25");
    auto* again = qobject_cast<VoucherForm*>(openAsList({"DOCGL", "QD8TGLTrans", "TGLTNo", "JV", "", "", ""}, "EDIT", number));
    ASSERT_TRUE(again);
    EXPECT_EQ(again->panel()->GETGLList().size(), 2);
    EXPECT_EQ(again->panel()->GETSumCredit(), *Currency::parse(u"1500.25"));
    EXPECT_EQ(again->dateBox()->date(), QDate::currentDate());

    // Its history is written with it, or not at all.
    const auto events = [&] {
        QStringList shown;
        for (const HistoryEvent& e : DocumentHistory::read(dataConnectionString(), "QD8TGLTrans", number))
            shown << e.action + " " + e.changes;
        return shown;
    };
    retype(again->findChild<QLineEdit*>("reference"), "REF-1");
    runOnData({"ALTER TABLE QD8TDocHistory RENAME TO QD8TDocHistoryAway"});
    EXPECT_FALSE(again->save());
    runOnData({"ALTER TABLE QD8TDocHistoryAway RENAME TO QD8TDocHistory"});
    EXPECT_EQ(read(Sql("SELECT TGLTRefNo FROM QD8TGLTrans WHERE TGLTNo=") + quoted(number), "TGLTRefNo"), "");
    ASSERT_TRUE(again->save());
    EXPECT_EQ(events(), QStringList({"Create ", "Edit TGLTRefNo:  -> REF-1"}));
}

TEST_P(DocumentFormTest, TheGoodsIssueTakesAJobStepRefusesToSaveWithoutItAndKeepsItsHistory)
{
    logIn("SOMCHAI");
    const FormCase& c = formCase("DOCISSUE");
    QWidget* form = openAsList(c, "EDIT", "IS0000901");
    ASSERT_TRUE(form);
    auto* selector = form->findChild<JobSelector*>("jobSelector");
    ASSERT_TRUE(selector);
    EXPECT_EQ(selector->JobNo() + "/" + QString::number(selector->JobLn()) + " " + selector->ProcessCode(), "JOB0000001/1 ST10");
    EXPECT_EQ(form->findChild<DocumentJob*>("jobDetail")->rowTexts().value(1), "ใบสั่งงาน|JOB0000001");
    EXPECT_EQ(form->findChild<DocumentStatus*>("history")->rowTexts().size(), 9);

    // ICISSUEJOB asks for a job line and its step.
    selector->Clear();
    retype(box(form, c.textField), QStringLiteral("เบิกเข้าขั้นตอนประกอบ"));
    pressSave(form, c);
    EXPECT_EQ(criticals().value(0), "กรุณาเลือก ใบสั่งงาน");
    EXPECT_EQ(cell(c, "IS0000901", "TInvTJobNo"), "JOB0000001");
    scriptedMessages().reset();
    ASSERT_TRUE(selector->enterJob("JC-002"));
    pressSave(form, c);
    EXPECT_EQ(criticals().value(0), "กรุณาเลือก ขั้นตอน");
    ASSERT_TRUE(selector->enterStep("ST30"));
    scriptedMessages().reset();
    pressSave(form, c);
    EXPECT_TRUE(criticals().isEmpty()) << criticals().join('\n').toStdString();
    EXPECT_EQ(cell(c, "IS0000901", "TInvTJobNo") + "/" + cell(c, "IS0000901", "TInvTJstLn") + "/" + cell(c, "IS0000901", "TInvTJPDNo"),
        "JOB0000002/2/");
    QList<HistoryEvent> events = DocumentHistory::read(dataConnectionString(), "QD8TInventory", "IS0000901");
    ASSERT_EQ(events.size(), 5);
    EXPECT_EQ(events.last().action + " " + events.last().by, "Edit SOMCHAI");
    EXPECT_TRUE(events.last().changes.contains("TInvDescription: เบิกแผ่นสเตนเลสเข้าขั้นตอนตัด -> เบิกเข้าขั้นตอนประกอบ"));

    // A workflow step sets the header and writes the event in one go; a cancelled
    // document takes no further step.
    scriptedPicker().textAnswers = {QStringLiteral("เบิกซ้ำ")};
    QTest::mouseClick(form->findChild<QPushButton*>("Cancel"), Qt::LeftButton);
    EXPECT_EQ(cell(c, "IS0000901", "TInvCancelStatus") + " " + cell(c, "IS0000901", "TInvCancelNote"), "1 เบิกซ้ำ");
    QTest::mouseClick(form->findChild<QPushButton*>("Confirm"), Qt::LeftButton);
    events = DocumentHistory::read(dataConnectionString(), "QD8TInventory", "IS0000901");
    ASSERT_EQ(events.size(), 6);
    EXPECT_EQ(events.last().action + " " + events.last().remark, "Cancel เบิกซ้ำ");
    EXPECT_TRUE(form->findChild<DocumentStatus*>("history")->rowTexts().contains(
        QStringLiteral("Cancel|%1|SOMCHAI|สมชาย ใจดี|เบิกซ้ำ").arg(dateTimeText(events.last().when, DateEra::Buddhist))));

    // A new document of any kind is created with its event.
    const FormCase& pr = formCase("DOCPR");
    QWidget* add = openAsList(pr, "ADD", QString());
    retype(box(add, pr.textField), QStringLiteral("ขอซื้อวัตถุดิบ"));
    pressSave(add, pr);
    const QString added = box(add, pr.keyField)->text();
    events = DocumentHistory::read(dataConnectionString(), "QD8TPR", added);
    ASSERT_EQ(events.size(), 1);
    EXPECT_EQ(events.first().action, "Create");
}

QD8_ON_BOTH_ENGINES(DocumentFormTest);

} // namespace
