#include "support/SampleCompany.h"

#include "DiagramForms.h"
#include "LoginDialog.h"
#include "WorkbenchForms.h"
#include "WorkbenchSession.h"
#include "WorkbenchWindow.h"
#include "foundation/Connection.h"
#include "foundation/Recordset.h"
#include "attachments/ClientCapture.h"
#include "attachments/CropDialog_p.h"
#include "support/ScriptedServices.h"
#include "widgets/DataView.h"
#include "widgets/DateTimeView.h"
#include "widgets/FormRegistry.h"
#include "widgets/MonthCalendar.h"
#include "widgets/MonthYearView.h"
#include "widgets/PickListDialog.h"
#include "widgets/frmInputMultiLine.h"

#include <QAccessible>
#include <QApplication>
#include <QDialog>
#include <QMetaEnum>
#include <QPushButton>
#include <QRegularExpression>
#include <QTabBar>
#include <QTabWidget>
#include <QTableView>
#include <QToolButton>

using namespace qd8;
using namespace qd8::test;

namespace {

// What a user acts on: a screen reader must be able to say what it is. A tab bar is named
// by its current tab, so one without tabs offers nothing.
bool isInteractive(QAccessibleInterface* node)
{
    if (auto* tabs = qobject_cast<QTabBar*>(node->object()); tabs && tabs->count() == 0)
        return false;
    static const QList<QAccessible::Role> roles = {QAccessible::PushButton, QAccessible::CheckBox, QAccessible::RadioButton,
        QAccessible::ComboBox, QAccessible::EditableText, QAccessible::SpinBox, QAccessible::Slider, QAccessible::PageTab,
        QAccessible::Table, QAccessible::Tree, QAccessible::List, QAccessible::ButtonMenu, QAccessible::ButtonDropDown,
        QAccessible::ButtonDropGrid, QAccessible::MenuItem, QAccessible::Link};
    return node->state().focusable || roles.contains(node->role());
}

QString step(QAccessibleInterface* node)
{
    QString text = QString::fromLatin1(QMetaEnum::fromType<QAccessible::Role>().valueToKey(node->role()));
    if (const QObject* object = node->object()) {
        text += u':' + QString::fromLatin1(object->metaObject()->className());
        if (!object->objectName().isEmpty())
            text += u'#' + object->objectName();
    }
    return text;
}

// The path of every visible element a user can act on but a screen reader cannot name: no
// name, or a mark such as "..." that says nothing. The cells of tables and lists are their
// data, checked apart.
void findUnnamed(QAccessibleInterface* node, const QString& path, QStringList* unnamed)
{
    if (!node || !node->isValid() || node->state().invisible)
        return;
    const QString here = path + QStringLiteral(" > ") + step(node);
    static const QRegularExpression word(QStringLiteral("[\\p{L}\\p{N}]"));
    if (isInteractive(node) && !node->text(QAccessible::Name).contains(word))
        *unnamed << here;
    if (node->tableInterface() || node->role() == QAccessible::List || node->role() == QAccessible::Tree)
        return;
    for (int i = 0; i < node->childCount(); ++i)
        findUnnamed(node->child(i), here, unnamed);
}

// The same on every page of every tab bar under `root`, one click away.
QStringList unnamedIn(QWidget* root)
{
    QStringList unnamed;
    findUnnamed(QAccessible::queryAccessibleInterface(root), QString(), &unnamed);
    for (QTabBar* bar : root->findChildren<QTabBar*>())
        for (int i = 0; i < bar->count(); ++i) {
            bar->setCurrentIndex(i);
            findUnnamed(QAccessible::queryAccessibleInterface(root), QString(), &unnamed);
        }
    unnamed.removeDuplicates();
    return unnamed;
}

class AccessibilityTest : public SampleCompanyTest {
protected:
    void SetUp() override
    {
        SampleCompanyTest::SetUp();
        if (IsSkipped())
            return;
        registerWorkbenchForms();
        session = WorkbenchSession::fromConnectionStrings(appConnectionString(), dataConnectionString(), files.path());
    }
    std::unique_ptr<WorkbenchWindow> open(const char* user, const char* module)
    {
        EXPECT_TRUE(session.logIn(QString::fromLatin1(user), QStringLiteral("1234")));
        auto window = std::make_unique<WorkbenchWindow>(session, QString::fromLatin1(module));
        window->show();
        return window;
    }
    QStringList commandAliases() const
    {
        Connection c;
        c.open(appConnectionString());
        Recordset rs;
        rs.open(Sql("SELECT TCmdAlias FROM QD8TCommand WHERE TCmdFlag1=1 ORDER BY TCmdID"), c);
        QStringList aliases;
        for (; !rs.eof(); rs.moveNext())
            aliases << rs.text("TCmdAlias");
        return aliases;
    }

    QTemporaryDir files;
    WorkbenchSession session;
};

// Every window the workbench opens: the main window with every ribbon page, the form of every
// command and of every registered name, a document form added from each list, the diagrams
// and the report preview, each with the dialogs it shows.
TEST_P(AccessibilityTest, EveryFormTheWorkbenchOpensNamesEverythingAUserCanReach)
{
    auto window = open("SOMCHAI", "AR");
    QStringList unnamed = unnamedIn(window.get());
    const auto walk = [&](const QString& scene, QWidget* root) {
        for (const QString& path : unnamedIn(root))
            unnamed << scene + QStringLiteral(": ") + path;
    };
    const auto walkOpened = [&](const QString& scene) {
        for (int i = 0; i < window->tabs()->count(); ++i)
            walk(scene, window->tabs()->widget(i));
        for (QWidget* w : QApplication::topLevelWidgets())
            if (w->isVisible() && w != window.get()) {
                walk(scene, w);
                w->close();
            }
    };
    const auto closeAll = [&] {
        while (window->tabs()->count() > 0)
            window->closeForm(window->tabs()->widget(0));
    };
    for (const QString& name : FormRegistry::names() + commandAliases()) {
        window->launch(name);
        walkOpened(name);
        // The form a list adds through, then the preview of a report's criteria.
        if (auto* list = window->tabs()->currentWidget() ? window->tabs()->currentWidget()->findChild<DataView*>() : nullptr) {
            Q_EMIT list->addRequested();
            walkOpened(name + QStringLiteral(" add"));
        }
        if (auto* preview = window->findChild<QPushButton*>(QStringLiteral("preview"))) {
            preview->click();
            walkOpened(name + QStringLiteral(" preview"));
        }
        scriptedMessages().saveAnswers = {MessageService::SaveAnswer::Discard, MessageService::SaveAnswer::Discard};
        closeAll();
    }
    for (const char* button : {"btnDiagram", "btnModuleIndex"}) {
        window->findChild<QToolButton*>(QString::fromLatin1(button))->click();
        walkOpened(QString::fromLatin1(button));
        closeAll();
    }
    unnamed.removeDuplicates();
    EXPECT_EQ(unnamed, QStringList());
}

// The dialogs and pickers a control opens through the services (scripted in every other test).
TEST_P(AccessibilityTest, DialogsAndPickersNameEverythingAUserCanReach)
{
    PickRequest request{QStringLiteral("ลูกค้า"), QStringLiteral("TARNCode"), QStringLiteral("TARNCode,TARNName"), QStringLiteral("รหัส,ชื่อ"),
        QStringLiteral("1200,3000"), QStringLiteral("0,0"), QStringLiteral("QD8TAR"), dataConnectionString()};
    QImage picture(200, 100, QImage::Format_RGB32);
    picture.fill(Qt::white);
    ASSERT_TRUE(session.logIn(QStringLiteral("PRODUCTION"), QStringLiteral("1234")));
    WorkbenchWindow keypadWindow(session);
    startInKeypad(keypadWindow);
    const std::pair<const char*, std::function<std::unique_ptr<QWidget>()>> scenes[] = {
        {"login", [&] { return std::make_unique<LoginDialog>(session); }},
        {"pick list", [&] { return std::make_unique<PickListDialog>(request); }},
        {"multi-line input", [] { return std::make_unique<frmInputMultiLine>(0); }},
        {"crop", [&] { return std::make_unique<CropDialog>(picture, 0); }},
        {"capture", [] { return std::make_unique<ClientCapture>(); }},
        {"calendar", [] { return std::make_unique<MonthCalendar>(); }},
        {"date and time", [] { return std::make_unique<DateTimeView>(); }},
        {"month and year", [] { return std::make_unique<MonthYearView>(); }},
    };
    keypadWindow.show();
    QStringList unnamed = unnamedIn(&keypadWindow);
    for (const auto& [scene, make] : scenes) {
        std::unique_ptr<QWidget> widget = make();
        widget->show();
        for (const QString& path : unnamedIn(widget.get()))
            unnamed << QString::fromUtf8(scene) + QStringLiteral(": ") + path;
    }
    EXPECT_EQ(unnamed, QStringList());
}

// A list's cells and column titles reach a screen reader through the table interface, and
// names, descriptions and titles follow the session's language when it switches.
TEST_P(AccessibilityTest, TablesExposeTheirCellsAndNamesFollowTheLanguage)
{
    auto window = open("SOMCHAI", "PU");
    window->launch(QStringLiteral("PURPR"));
    QTableView* rows = window->tabs()->currentWidget()->findChild<DataView*>()->tableView();
    window->launch(QStringLiteral("GLTB"));
    QWidget* criterion = window->tabs()->currentWidget()->findChild<QWidget*>(QStringLiteral("criterion0_0"));
    QWidget* picked = window->tabs()->currentWidget()->findChild<QWidget*>(QStringLiteral("criterion1_0"));
    ASSERT_TRUE(rows && criterion && picked);
    QAccessibleInterface* list = QAccessible::queryAccessibleInterface(rows);
    QAccessibleInterface* box = QAccessible::queryAccessibleInterface(criterion);
    ASSERT_TRUE(list->tableInterface());
    const QString first = list->tableInterface()->cellAt(0, 0)->text(QAccessible::Name);
    EXPECT_TRUE(first.startsWith(QLatin1String("PR")) && first == rows->model()->index(0, 0).data().toString()) << first.toStdString();
    // The column title, the list, the criterion and its condition, and a picked criterion's tip
    // (said once), in each language.
    const auto heard = [&] {
        return QStringList{list->tableInterface()->columnDescription(0), list->text(QAccessible::Name), box->text(QAccessible::Name),
            box->text(QAccessible::Description).section(QStringLiteral("; "), 0, 1), picked->toolTip()};
    };
    EXPECT_EQ(heard(), QStringList({"เลขที่", "รายการ", "วันที่ ตั้งแต่", "ค่าในช่วงที่ระบุ; ต้องระบุ", "F2 เลือกจากรายการ"}));
    window->setLanguage(1);
    EXPECT_EQ(heard(), QStringList({"No.", "Rows", "Date from", "within the range given; required", "F2 picks from the list"}));
}

QD8_ON_BOTH_ENGINES(AccessibilityTest);

} // namespace
