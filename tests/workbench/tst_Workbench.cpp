#include "support/SampleCompany.h"
#include "support/ScriptedServices.h"

#include "DocumentForm.h"
#include "ListPrinter.h"
#include "LoginDialog.h"
#include "MemoForms.h"
#include "TableListForm.h"
#include "WorkbenchForms.h"
#include "WorkbenchSession.h"
#include "WorkbenchWindow.h"
#include "database/SessionFunctions.h"
#include "documents/DucumentList.h"
#include "documents/MasterList.h"
#include "editors/QuickGrid.h"
#include "widgets/DataView.h"
#include "foundation/Connection.h"
#include "foundation/ConnectionString.h"
#include "foundation/Recordset.h"
#include "navigation/DocumentToolBar.h"
#include "navigation/NUVRibbon.h"
#include "navigation/ShortCutBar.h"
#include "widgets/FormRegistry.h"
#include "widgets/GridEditor.h"
#include "widgets/Ribbon.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QComboBox>
#include <QDir>
#include <QTimer>
#include <QDialog>
#include <QFile>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTreeWidget>
#include <QListWidget>
#include <QPrintPreviewWidget>
#include <QRegularExpression>
#include <QTabWidget>
#include <QTableWidget>
#include <QHeaderView>
#include <QTest>
#include <QToolButton>

using namespace qd8;
using namespace qd8::test;

namespace {

// A list as the host meets it: it asks its host to delete.
class DeletingForm : public HostedControl {
    Q_OBJECT
public:
    using HostedControl::HostedControl;
Q_SIGNALS:
    void DeleteAction(const QString& SelectRowData);
    void ChangeCaption(const QString& iCaption, const QString& iCommandAlias);
    void CloseAction();
};

class WorkbenchTest : public SampleCompanyTest {
protected:
    void SetUp() override
    {
        SampleCompanyTest::SetUp();
        if (IsSkipped())
            return;
        registerWorkbenchForms();
        session = WorkbenchSession::fromConnectionStrings(appConnectionString(), dataConnectionString(), files.path());
    }
    // Logs in and opens the window on a module.
    std::unique_ptr<WorkbenchWindow> open(const char* user, const char* module)
    {
        EXPECT_TRUE(session.logIn(QString::fromLatin1(user), QStringLiteral("1234")));
        auto window = std::make_unique<WorkbenchWindow>(session, QString::fromLatin1(module));
        window->show();
        return window;
    }
    static QListWidgetItem* entry(WorkbenchWindow& window, CommandSet set, const QString& alias)
    {
        QListWidget* list = window.shortcutBar()->listView(set);
        for (int i = 0; i < list->count(); ++i)
            if (list->item(i)->data(Qt::UserRole).toString() == alias)
                return list->item(i);
        return nullptr;
    }

    QTemporaryDir files;
    WorkbenchSession session;
};

TEST_P(WorkbenchTest, LoggingInChecksThePasswordAndTakesTheUsersLanguage)
{
    const QList<WorkbenchUser> users = session.users();
    ASSERT_EQ(users.size(), 4);
    EXPECT_EQ(users[1].name + "|" + users[2].loginName, "สมชาย ใจดี|JOHN");
    EXPECT_FALSE(session.logIn("SOMCHAI", "12345") || session.logIn("NOBODY", ""));
    EXPECT_TRUE(session.logIn("john", "1234"));
    EXPECT_EQ(QList<int>({int(session.userId), int(session.languageId)}), QList<int>({2, 1}));
}

TEST_P(WorkbenchTest, AShortcutOpensItsFormOnce)
{
    auto window = open("SOMCHAI", "HR");
    QStringList opened;
    QObject::connect(window.get(), &WorkbenchWindow::formOpened, [&](const QString& alias) { opened << alias; });
    QListWidgetItem* employees = entry(*window, CommandSet::Main, "HREMPLOYEE");
    ASSERT_TRUE(employees);
    QListWidget* list = window->shortcutBar()->listView(CommandSet::Main);
    list->setCurrentItem(employees);
    QTest::keyClick(list, Qt::Key_Return);
    ASSERT_EQ(window->tabs()->count(), 1);
    EXPECT_EQ(window->tabCommand(0) + "|" + window->tabs()->tabText(0), "HREMPLOYEE|ข้อมูลพนักงาน");
    auto* form = qobject_cast<TableListForm*>(window->tabs()->widget(0));
    ASSERT_TRUE(form);
    EXPECT_EQ(form->table()->rowCount(), 4);
    EXPECT_EQ(form->UserID(), 1);  // the host handed it the session
    emit list->itemDoubleClicked(employees);
    EXPECT_EQ(window->tabs()->count(), 1);  // the open tab comes forward instead
    EXPECT_EQ(opened, QStringList{"HREMPLOYEE"});

    // Its close button closes the tab.
    form->findChild<QPushButton*>("close")->click();
    QApplication::processEvents();
    EXPECT_EQ(window->tabs()->count(), 0);
}

TEST_P(WorkbenchTest, DeniedCommandsNeverAppearAndUnknownOnesAreReported)
{
    auto window = open("SOMCHAI", "GL");
    EXPECT_TRUE(entry(*window, CommandSet::Main, "GLJV"));
    EXPECT_FALSE(entry(*window, CommandSet::Main, "GLTB"));  // Somchai may not use the trial balance
    EXPECT_FALSE(window->ribbon()->ribbon()->button("GLTB"));

    window->launch("NOSUCHCOMMAND");
    EXPECT_TRUE(window->statusMessage().contains("NOSUCHCOMMAND"));
    window->launch("GLRECURRING");  // in the catalogue, but no form in this build
    EXPECT_TRUE(window->statusMessage().contains("GLRECURRING") && window->statusMessage().contains("รายการบัญชีประจำงวด"));
    window->launch("x' OR '1'='1");
    EXPECT_EQ(window->tabs()->count(), 0);
}

TEST_P(WorkbenchTest, DeleteActionAsksThenDeletesThroughTheFormsChecks)
{
    QPointer<DeletingForm> form;
    FormRegistry::registerForm("ARINVOICE", [&](QWidget* parent) { return form = new DeletingForm(parent); });
    runOnData({"INSERT INTO QD8TARInvoice (TIvoNo, TIvoTARNCode, TIvoConfirmStatus) VALUES ('IVDEL1', 'C001', 0)",
        "INSERT INTO QD8TARInvoice (TIvoNo, TIvoTARNCode, TIvoConfirmStatus) VALUES ('IVDEL2', 'C001', 1)"});
    auto window = open("SOMCHAI", "AR");
    window->launch("ARINVOICE");
    ASSERT_TRUE(form);
    scriptedMessages().answers = {false, true, true};
    for (const char* key : {"IVDEL1", "IVDEL1", "IVDEL2"})
        emit form->DeleteAction(key);
    Connection c;
    c.open(dataConnectionString());
    Recordset rs;
    rs.open("SELECT TIvoNo FROM QD8TARInvoice WHERE TIvoNo LIKE 'IVDEL%'", c);
    EXPECT_EQ(rs.text("TIvoNo") + " " + QString::number(rs.recordCount()), "IVDEL2 1");  // the confirmed one stays
    EXPECT_TRUE(scriptedMessages().shown.last().text.startsWith("IVDEL2 ยืนยัน อนุมัติ หรือยกเลิกแล้ว ลบไม่ได้"));
    emit form->ChangeCaption("ใบแจ้งหนี้ IVDEL2", "ARINVOICE");
    EXPECT_EQ(window->tabs()->tabText(0), "ใบแจ้งหนี้ IVDEL2");
    emit form->CloseAction();
    QApplication::processEvents();
    EXPECT_EQ(window->tabs()->count(), 0);
    FormRegistry::unregisterForm("ARINVOICE");
}

TEST_P(WorkbenchTest, PrintingAListPreviewsItsRowsAndExportsPdfAndTheLanguageSwitchRetitlesIt)
{
    auto window = open("SOMCHAI", "HR");
    window->launch("HREMPLOYEE");
    auto* form = qobject_cast<TableListForm*>(window->tabs()->widget(0));
    ASSERT_TRUE(form);
    const ListPrinter printer("Employees", form->statement(), "Code,Name,Type,Branch,Start", session.sessionConnectionString,
        DateLook::forLanguage(0));
    EXPECT_EQ(printer.rowCount(), 4);
    EXPECT_TRUE(printer.html().contains("มาลี ศรีสุข"));
    // Start dates print as a Thai user reads them.
    EXPECT_TRUE(printer.html().contains(QRegularExpression("<td>\\d\\d/\\d\\d/25\\d\\d</td>"))) << printer.html().toStdString();
    const QString pdf = files.filePath("employees.pdf");
    ASSERT_TRUE(printer.exportPdf(pdf));
    QFile file(pdf);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.read(5) == "%PDF-");

    form->findChild<QPushButton*>("print")->click();
    QPrintPreviewWidget* preview = nullptr;
    for (QWidget* top : QApplication::topLevelWidgets())
        if (auto* found = top->findChild<QPrintPreviewWidget*>(); found && top->isVisible())
            preview = found;
    ASSERT_TRUE(preview);
    EXPECT_GE(preview->pageCount(), 1);
    preview->window()->close();

    // The language switch stores the setting and retitles the tab, the shortcut and the list.
    window->languageBox()->setCurrentIndex(1);
    EXPECT_EQ(DbSessionFunctions::userSettingText(1, "LanguageID", dataConnectionString()), "1");
    EXPECT_EQ(window->tabs()->tabText(0), "Employees");
    EXPECT_EQ(entry(*window, CommandSet::Main, "HREMPLOYEE")->text(), "Employees");
    EXPECT_EQ(form->table()->horizontalHeaderItem(1)->text(), "Name");
    EXPECT_EQ(form->table()->item(0, 1)->text(), "Somchai Jaidee");
}

TEST_P(WorkbenchTest, AClerkMaintainsAMasterTableFromTheRibbon)
{
    auto window = open("JOHN", "HR");
    QToolButton* divisions = window->ribbon()->ribbon()->button("DIVISION");
    ASSERT_TRUE(divisions);
    divisions->click();
    auto* editor = qobject_cast<QuickGrid*>(window->tabs()->currentWidget());
    ASSERT_TRUE(editor);
    EXPECT_EQ(window->tabs()->tabText(window->tabs()->currentIndex()), "Divisions");
    editor->buttonClick("Edit");
    editor->grid()->SetValue(1, 3, "Accounting and Finance");
    scriptedMessages().answers = {true};
    editor->buttonClick("Update");
    EXPECT_EQ(editor->RUNMODE(), "VIEW");
    Connection c;
    c.open(dataConnectionString());
    Recordset rs;
    rs.open("SELECT TDivName2 FROM QD8TDivision WHERE TDivCode='D01'", c);
    EXPECT_EQ(rs.text("TDivName2"), "Accounting and Finance");
    EXPECT_EQ(scriptedMessages().shown.last().text, "บันทึกข้อมูล  1 รายการ   ลบข้อมูล 0 รายการ เรียบร้อย");

    // Switching the language while editing keeps what was typed.
    editor->buttonClick("Edit");
    editor->grid()->SetValue(1, 3, "Finance");
    window->languageBox()->setCurrentIndex(0);
    EXPECT_EQ(editor->grid()->GetValue(1, 3).toString() + "|" + editor->RUNMODE(), "Finance|EDIT");
    editor->cmdCancel_Click();
    EXPECT_EQ(window->tabs()->tabText(window->tabs()->currentIndex()) + "|" + editor->grid()->TextMatrix(0, 1), "ฝ่าย|รหัส");
}

TEST_P(WorkbenchTest, ClosingATabOrTheWindowLoggingOutOrSwitchingCompanyAsksBeforeUnsavedWorkIsDropped)
{
    // On SQLite two companies side by side in folders; PostgreSQL offers its own company only.
    QTemporaryDir root;
    QString other = session.companyName();
    if (engine() == Engine::SQLite) {
        for (const QString& name : {QStringLiteral("siam"), QStringLiteral("north")}) {
            QDir(root.path()).mkdir(name);
            for (const QString& source : {appConnectionString(), dataConnectionString()}) {
                Connection c;
                c.open(source);
                c.execute("VACUUM INTO " + quoted(QDir(root.filePath(name)).filePath(QFileInfo(ConnectionString::parse(source).sqliteFile()).fileName())));
            }
        }
        session = WorkbenchSession::inFolder(root.filePath("siam"));
        other = "north";
    }
    using Answer = MessageService::SaveAnswer;
    enum How { Tab, Window, LogOut, Switch };
    const struct {
        const char* user;
        How how;               // the tab's ×, the main window's close, logging out or switching company
        const char* typed;     // the English name of D01 typed before closing; "" types nothing
        QList<Answer> answer;  // none: it must not ask
        bool closed;
        const char* stored;
    } cases[] = {
        {"SOMCHAI", Tab, "", {}, true, "Accounting & Finance"},
        {"SOMCHAI", Tab, "Finance", {Answer::Cancel}, false, "Accounting & Finance"},
        {"JOHN", Tab, "Finance", {Answer::Discard}, true, "Accounting & Finance"},
        {"JOHN", Tab, "Finance", {Answer::Save}, true, "Finance"},
        {"SOMCHAI", Window, "Treasury", {Answer::Cancel}, false, "Finance"},
        {"JOHN", Window, "Treasury", {Answer::Save}, true, "Treasury"},
        {"SOMCHAI", LogOut, "Audit", {Answer::Cancel}, false, "Treasury"},
        {"JOHN", LogOut, "Audit", {Answer::Discard}, true, "Treasury"},
        {"JOHN", Switch, "Audit", {Answer::Cancel}, false, "Treasury"},
        {"JOHN", Switch, "Audit", {Answer::Discard}, true, "Treasury"},
        {"SOMCHAI", Switch, "Audit", {Answer::Save}, true, "Audit"},
    };
    for (const auto& t : cases) {
        SCOPED_TRACE(std::string(t.user) + " " + std::to_string(t.how) + " " + t.typed);
        scriptedMessages().reset();
        auto window = open(t.user, "HR");
        window->launch("DIVISION");
        auto* editor = qobject_cast<QuickGrid*>(window->tabs()->currentWidget());
        ASSERT_TRUE(editor);
        editor->buttonClick("Edit");
        if (*t.typed)
            editor->grid()->SetValue(1, 3, QString::fromUtf8(t.typed));
        EXPECT_EQ(editor->hasUnsavedChanges(), *t.typed != 0);
        scriptedMessages().saveAnswers = t.answer;
        // "Save" is the user's confirmation: the editor does not ask again (an unscripted
        // question would fail the test). The login box, once it shows, is answered as it comes.
        QString offered;
        if (t.how == Window)
            window->close();
        else if (t.how != Tab) {
            window->activateWindow();
            ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
            QTimer::singleShot(0, window.get(), [&] {
                if (auto* login = qobject_cast<LoginDialog*>(QApplication::activeModalWidget())) {
                    offered = login->companyBox()->currentText();
                    login->passwordBox()->setText("1234");
                    login->accept();
                }
            });
            QTest::keyClick(QApplication::focusWidget(), t.how == LogOut ? Qt::Key_L : Qt::Key_O, Qt::ControlModifier | Qt::ShiftModifier);
        }
        else
            emit window->tabs()->tabCloseRequested(window->tabs()->currentIndex());
        EXPECT_EQ(window->tabs()->count(), t.closed ? 0 : 1);
        EXPECT_EQ(window->isVisible(), !(t.how != Tab && t.closed));
        EXPECT_EQ(window->loggedOut(), t.how == LogOut && t.closed);
        // Switching offers the next company and keeps the clerk.
        const bool switched = t.how == Switch && t.closed;
        EXPECT_EQ(offered, switched ? other : QString());
        EXPECT_EQ(window->nextCompany() ? window->nextCompany()->companyName() + "|" + window->nextCompany()->loginName : "",
            switched ? other + "|" + t.user : "");
        const int language = QLatin1String(t.user) == QLatin1String("JOHN") ? 1 : 0;
        EXPECT_EQ(scriptedMessages().saveLanguages, QList<int>(t.answer.size(), language));
        Connection c;
        c.open(session.dataConnectionString);
        Recordset rs;
        rs.open("SELECT TDivName2 FROM QD8TDivision WHERE TDivCode='D01'", c);
        EXPECT_EQ(rs.text("TDivName2"), t.stored);
    }
    EXPECT_TRUE(open("JOHN", "HR")->findChild<QToolButton*>("btnSwitchCompany")->toolTip().contains("Ctrl+Shift+O"));
}

TEST_P(WorkbenchTest, AClerkFiltersADocumentListAndOpensADocumentInEachMode)
{
    auto window = open("SOMCHAI", "IC");
    window->launch(QStringLiteral("PURPR"));
    auto* list = qobject_cast<DucumentList*>(window->tabs()->currentWidget());
    ASSERT_TRUE(list) << window->statusMessage().toStdString();
    ASSERT_TRUE(list->definition().found);
    list->findChild<QComboBox*>("cboBackDay")->setCurrentIndex(list->findChild<QComboBox*>("cboBackDay")->count() - 1);
    auto* status = list->findChild<QComboBox*>("cboStatus");
    QStringList seen;
    for (int i = 0; i < status->count(); ++i) {
        status->setCurrentIndex(i);
        QTest::mouseClick(list->findChild<QPushButton*>("cmdSelect"), Qt::LeftButton);
        list->dataView()->fetchAll();
        if (list->dataView()->fetchedRows() > 0)
            seen << status->itemText(i);
    }
    EXPECT_GE(seen.size(), 5) << seen.join(',').toStdString();

    // The first document of "all": view it, then add one.
    status->setCurrentIndex(0);
    list->runQuery();
    ASSERT_GT(list->dataView()->fetchedRows(), 0);
    list->dataView()->setCurrentRow(0);
    const QString key = list->dataView()->keyText();
    const int tabs = window->tabs()->count();
    Q_EMIT list->dataView()->viewRequested();
    ASSERT_EQ(window->tabs()->count(), tabs + 1);
    QWidget* form = window->tabs()->currentWidget();
    EXPECT_EQ(QStringList({form->property("RUNMODE").toString(), form->property("DocNo").toString(),
                  window->tabs()->tabText(window->tabs()->currentIndex())}),
        QStringList({"VIEW", key, list->LCaption() + " - " + key}));

    window->tabs()->setCurrentWidget(list);
    Q_EMIT list->dataView()->addRequested();
    ASSERT_EQ(window->tabs()->count(), tabs + 2);
    EXPECT_EQ(window->tabs()->currentWidget()->property("RUNMODE").toString(), "ADD");
}

TEST_P(WorkbenchTest, AGoodsIssueAddedFromItsListIsListedAfterTheSaveAndACustomerFoundIsEdited)
{
    auto window = open("JOHN", "IC");  // John sees the issues of employee types 01 and 02 only
    window->launch(QStringLiteral("ICISSUEUSE"));
    auto* list = qobject_cast<DucumentList*>(window->tabs()->currentWidget());
    ASSERT_TRUE(list);
    list->findChild<QComboBox*>("cboStatus")->setCurrentIndex(0);
    Q_EMIT list->dataView()->addRequested();
    auto* form = qobject_cast<DocumentForm*>(window->tabs()->currentWidget());
    ASSERT_TRUE(form);
    form->box("TInvTEmpCode")->setText("E002");
    form->box("TInvDescription")->setText("เบิกวัสดุสำนักงาน");
    ASSERT_TRUE(form->save());
    QStringList listed;
    list->dataView()->fetchAll();
    for (int row = 0; row < list->dataView()->fetchedRows(); ++row)
        listed << list->dataView()->value(row, "TInvNo").toString();
    EXPECT_TRUE(listed.contains(form->keyBox()->text())) << list->selectText().text().toStdString();

    window->launch(QStringLiteral("ARCUSTOMER"));
    auto* customers = qobject_cast<MasterList*>(window->tabs()->currentWidget());
    ASSERT_TRUE(customers);
    auto* search = customers->findChild<QLineEdit*>("txtSearch");
    search->setText("chiang");  // an English name in lower case, on both engines
    QTest::keyClick(search, Qt::Key_Return);
    customers->dataView()->fetchAll();
    ASSERT_EQ(customers->dataView()->fetchedRows(), 1) << customers->selectText().text().toStdString();
    Q_EMIT customers->dataView()->editRequested();
    form = qobject_cast<DocumentForm*>(window->tabs()->currentWidget());
    ASSERT_TRUE(form);
    EXPECT_EQ(QStringList({form->property("RUNMODE").toString(), form->property("MasterCode").toString(), form->keyBox()->text()}),
        QStringList({"EDIT", "C001", "C001"}));
}

// The visible caption of a widget, as a user reads it.
QString captionOf(const QWidget* w)
{
    if (auto* label = qobject_cast<const QLabel*>(w))
        return label->text();
    if (auto* button = qobject_cast<const QAbstractButton*>(w))
        return button->text();
    return {};
}

// Every text a user can read in the window or hear from a screen reader: labels, buttons, tool
// bar actions, choices, hints, tool tips, column titles (grid cells are data and are left out)
// and accessible names.
QStringList shownTexts(const QWidget& root)
{
    QStringList texts;
    const auto add = [&texts](const QString& text) {
        if (!text.trimmed().isEmpty())
            texts << text;
    };
    for (const QWidget* w : root.findChildren<QWidget*>()) {
        if (!w->isVisibleTo(&root))
            continue;
        add(w->toolTip());
        add(captionOf(w));
        add(w->accessibleName());
        if (auto* box = qobject_cast<const QLineEdit*>(w))
            add(box->placeholderText());
        else if (auto* combo = qobject_cast<const QComboBox*>(w); combo && combo->isEditable() == false)
            for (int i = 0; i < combo->count(); ++i)
                add(combo->itemText(i));
        else if (auto* view = qobject_cast<const QAbstractItemView*>(w); view && view->model())
            for (int c = 0; c < view->model()->columnCount(); ++c)
                add(view->model()->headerData(c, Qt::Horizontal).toString());
        for (const QAction* action : w->actions())
            if (action->isVisible())
                add(action->text());
    }
    return texts;
}

TEST_P(WorkbenchTest, EachSessionReadsInItsLanguageAndTheSwitchRewordsEveryOpenTab)
{
    // The system's own quoted words and the names of the company's data stay as they are.
    const QRegularExpression thai(QStringLiteral("[\u0E00-\u0E7F]"));
    const QStringList keptAsGiven = {"ไทย", "เลือกเอกสาร", "เลือกรายการ", "พนักงานอ้างอิง", "Module", "Main Module Command"};
    auto window = open("JOHN", "AR");
    for (const char* alias : {"PURPR", "ARINVOICE", "ARCUSTOMER", "EMPTYPE"})
        window->launch(alias);
    auto* invoices = qobject_cast<DucumentList*>(window->tabs()->widget(1));
    ASSERT_TRUE(invoices);
    Q_EMIT invoices->dataView()->addRequested();  // a document form too
    ASSERT_EQ(window->tabs()->count(), 5);
    // The mode is a word, not a button; clipped column titles of both grids end in "…" with
    // the whole caption in the tool tip; the login shows no password hint.
    auto* mode = window->tabs()->widget(4)->findChild<QLabel*>("mode");
    EXPECT_FALSE(mode->frameShape() != QFrame::NoFrame || mode->autoFillBackground() || mode->focusPolicy() & Qt::TabFocus);
    for (const QTableView* view : {invoices->dataView()->tableView(), window->tabs()->widget(3)->findChild<QTableView*>()}) {
        EXPECT_EQ(view->horizontalHeader()->textElideMode(), Qt::ElideRight);
        for (int c = 0; c < view->model()->columnCount(); ++c)
            EXPECT_EQ(view->model()->headerData(c, Qt::Horizontal, Qt::ToolTipRole), view->model()->headerData(c, Qt::Horizontal));
    }
    EXPECT_TRUE(LoginDialog(session).passwordBox()->placeholderText().isEmpty());
    // What speaks the wrong language: Thai in an English session; in a Thai session a name in
    // English only that is not its own caption (tst_Accessibility finds the unnamed).
    const auto wrongTexts = [&](int language) {
        QStringList found;
        for (int i = 0; i < window->tabs()->count(); ++i) {
            window->tabs()->setCurrentIndex(i);
            QStringList wrong;
            if (language == 1)
                for (const QString& text : shownTexts(*window))
                    if (text.contains(thai) && !keptAsGiven.contains(text))
                        wrong << text;
            for (const QWidget* w : window->findChildren<QWidget*>()) {
                if (language == 1 || !w->isVisibleTo(window.get()) || w->objectName().startsWith(QLatin1String("qt_")))
                    continue;
                const QString name = w->accessibleName();
                if (!name.isEmpty() && !name.contains(thai) && name != captionOf(w) && !keptAsGiven.contains(name))
                    wrong << name;
            }
            for (const QString& text : wrong)
                if (!found.contains(text))
                    found << text;
        }
        return found;
    };
    EXPECT_EQ(wrongTexts(1), QStringList());
    const auto combo = [&](int tab, const char* name) { return window->tabs()->widget(tab)->findChild<QComboBox*>(name); };
    const auto grid = [&] { return qobject_cast<QuickGrid*>(window->tabs()->widget(3)); };
    // A command named after a quick form opens the editor, which reads its metadata from the
    // application database.
    ASSERT_TRUE(grid());
    EXPECT_EQ(QStringList({grid()->ConnectionString(), grid()->DataConnectionString(), grid()->RUNMODE(), QString::number(grid()->grid()->Rows())}),
        QStringList({appConnectionString(), dataConnectionString(), "VIEW", "4"}));
    const struct { int language; QString purprStatus, invoiceStatus2, invoiceSort, update; } sessions[] = {
        {0, "ทั้งหมด", "ยังไม่วางบิล", "ครบกำหนด", "บันทึก"}, {1, "All", "Not billed", "Due Date", "Update"}};
    for (const auto& s : sessions) {
        window->setLanguage(s.language);
        EXPECT_EQ(combo(0, "cboStatus")->itemText(0), s.purprStatus);
        EXPECT_EQ(combo(1, "Combo1")->itemText(1), s.invoiceStatus2);
        EXPECT_EQ(combo(1, "cboSort")->itemText(1), s.invoiceSort);
        EXPECT_EQ(grid()->button("Update")->text(), s.update);
        EXPECT_EQ(wrongTexts(s.language), QStringList()) << s.language;
    }
}

TEST_P(WorkbenchTest, EveryCommandAndEveryRibbonButtonOpensSomethingOrSaysSomething)
{
    auto window = open("SOMCHAI", "AR");
    QStringList opened;
    QObject::connect(window.get(), &WorkbenchWindow::formOpened, [&](const QString& alias) { opened << alias; });
    // Something visible happened: a tab, a message, a program or page, a choice, a window.
    const auto windows = [] {
        QList<QWidget*> shown;
        for (QWidget* w : QApplication::topLevelWidgets())
            if (w->isVisible() && qobject_cast<QDialog*>(w))
                shown << w;
        return shown;
    };
    const auto answered = [&](const QString& what, const std::function<void()>& act) {
        const qsizetype messages = scriptedMessages().shown.size(), shell = scriptedShell().commands.size(),
                        choices = scriptedPicker().choiceTitles.size(), forms = opened.size(), dialogs = windows().size();
        act();
        const QString current = window->tabCommand(window->tabs()->currentIndex());
        EXPECT_TRUE(scriptedMessages().shown.size() > messages || scriptedShell().commands.size() > shell
            || scriptedPicker().choiceTitles.size() > choices || opened.size() > forms || current == what
            || windows().size() > dialogs)
            << what.toStdString();
        for (QWidget* w : windows())
            w->close();
    };
    Connection c;
    c.open(appConnectionString());
    Recordset rs;
    rs.open(Sql("SELECT TCmdAlias FROM QD8TCommand WHERE TCmdFlag1=1"), c);
    int commands = 0;
    for (; !rs.eof(); rs.moveNext(), ++commands) {
        const QString alias = rs.text("TCmdAlias");
        const qsizetype before = scriptedMessages().shown.size(), forms = opened.size();
        answered(alias, [&] { window->launch(alias); });
        if (scriptedMessages().shown.size() > before && opened.size() == forms) {  // a form of a later build: it says which command
            EXPECT_TRUE(scriptedMessages().shown.last().text.contains(alias)) << scriptedMessages().shown.last().text.toStdString();
        }
        while (window->tabs()->count() > 0)
            window->closeForm(window->tabs()->widget(0));
    }
    EXPECT_GT(commands, 50);
    // The clipboard keys act on the focused box and show nothing of their own.
    const QStringList keysOnly = {"CUT", "COPY", "PASTE"};
    Ribbon* ribbon = window->ribbon()->ribbon();
    for (const QString& tab : ribbon->tabKeys())
        for (const QString& group : ribbon->groupKeys(tab))
            for (const QString& key : ribbon->buttonKeys(tab, group))
                if (!keysOnly.contains(key))
                    answered(key, [&] { ribbon->button(tab, group, key)->click(); });
    // A desktop without the program says so.
    scriptedMessages().reset();
    scriptedShell().starts = false;
    ribbon->button("CALC")->click();
    ASSERT_EQ(scriptedMessages().shown.size(), 1);
    EXPECT_TRUE(scriptedMessages().shown[0].text.contains("Calc.exe"));
}

TEST_P(WorkbenchTest, TheRibbonsMemorandumFormsNoteListAndRemoveAndTheSearchOpensTheDocument)
{
    installScriptedServices();
    auto window = open("SOMCHAI", "IC");
    auto form = [&](const char* name) {
        auto* f = qobject_cast<MemoForm*>(FormRegistry::create(QString::fromLatin1(name), window.get()));
        EXPECT_TRUE(f) << name;
        return std::unique_ptr<MemoForm>(f);
    };
    auto entry = form("MemoEntry");
    EXPECT_EQ(entry->windowTitle(), "Memorandum");
    entry->findChild<QLineEdit*>("Text4")->setText("PD0000001");
    entry->findChild<QPlainTextEdit*>("txtNote")->setPlainText("ตรวจวัตถุดิบก่อนผลิต");
    ASSERT_TRUE(entry->select());
    entry->findChild<QLineEdit*>("Text4")->setText("NO-SUCH");
    EXPECT_FALSE(entry->select());  // no document of that number: said so, nothing written

    auto dashboard = form("MemoViewer");
    EXPECT_EQ(dashboard->windowTitle(), "Memorandum Dashboard");
    auto* list = dashboard->findChild<QTreeWidget*>("List1");
    ASSERT_EQ(list->topLevelItemCount(), 3);
    EXPECT_EQ(list->topLevelItem(0)->text(3) + " " + list->topLevelItem(0)->text(4), "PD0000001 ตรวจวัตถุดิบก่อนผลิต");

    auto removal = form("MemoRemoval");
    EXPECT_EQ(removal->windowTitle(), "Remove Memorandom");
    removal->findChild<QLineEdit*>("Text4")->setText(list->topLevelItem(0)->text(0));
    scriptedMessages().answers = {true};
    ASSERT_TRUE(removal->select());
    dashboard->reload();
    EXPECT_EQ(list->topLevelItemCount(), 2);

    auto search = form("DocumentSearch");
    EXPECT_EQ(search->windowTitle(), "Search Document");
    search->findChild<QLineEdit*>("Text4")->setText("IS0000901");
    const int tabs = window->tabs()->count();
    ASSERT_TRUE(search->select());
    ASSERT_EQ(window->tabs()->count(), tabs + 1);
    auto* document = qobject_cast<DocumentForm*>(window->tabs()->currentWidget());
    ASSERT_TRUE(document);
    EXPECT_EQ(document->keyBox()->text(), "IS0000901");
}

QD8_ON_BOTH_ENGINES(WorkbenchTest);

} // namespace

#include "tst_Workbench.moc"
