#include "support/SampleCompany.h"
#include "support/ScriptedServices.h"

#include "DiagramForms.h"
#include "LoginDialog.h"
#include "WorkbenchForms.h"
#include "WorkbenchWindow.h"
#include "attachments/CropDialog_p.h"
#include "foundation/Connection.h"
#include "foundation/Recordset.h"
#include "widgets/DataView.h"
#include "widgets/DateTimeView.h"
#include "widgets/FormRegistry.h"
#include "widgets/MonthYearView.h"
#include "widgets/PickListDialog.h"
#include "widgets/frmInputMultiLine.h"

#include <QAccessible>
#include <QApplication>
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

// Every visible element a user acts on that a screen reader cannot name (no name, or a mark
// such as "..."), as its path of roles and classes. A tab bar is named by its current tab;
// the cells of tables and lists are their data.
void findUnnamed(QAccessibleInterface* node, const QString& path, QStringList* unnamed)
{
    static const QList<QAccessible::Role> acted = {QAccessible::PushButton, QAccessible::CheckBox, QAccessible::RadioButton,
        QAccessible::ComboBox, QAccessible::EditableText, QAccessible::SpinBox, QAccessible::Slider, QAccessible::PageTab,
        QAccessible::Table, QAccessible::Tree, QAccessible::List, QAccessible::ButtonMenu, QAccessible::ButtonDropDown,
        QAccessible::ButtonDropGrid, QAccessible::MenuItem, QAccessible::Link};
    static const QRegularExpression word(QStringLiteral("[\\p{L}\\p{N}]"));
    if (!node || node->state().invisible)
        return;
    const QObject* object = node->object();
    const QString here = path + QStringLiteral(" > ") + QMetaEnum::fromType<QAccessible::Role>().valueToKey(node->role())
        + (object ? u':' + QString::fromLatin1(object->metaObject()->className()) + u'#' + object->objectName() : QString());
    const auto* tabs = qobject_cast<const QTabBar*>(object);
    if ((node->state().focusable || acted.contains(node->role())) && !(tabs && tabs->count() == 0)
        && !node->text(QAccessible::Name).contains(word))
        *unnamed << here;
    if (!node->tableInterface() && node->role() != QAccessible::List && node->role() != QAccessible::Tree)
        for (int i = 0; i < node->childCount(); ++i)
            findUnnamed(node->child(i), here, unnamed);
}

// The same on every page of every tab bar under `root`, one click away.
QStringList unnamedIn(const QString& scene, QWidget* root)
{
    QStringList unnamed;
    findUnnamed(QAccessible::queryAccessibleInterface(root), scene, &unnamed);
    for (QTabBar* bar : root->findChildren<QTabBar*>())
        for (int i = 0; i < bar->count(); ++i) {
            bar->setCurrentIndex(i);
            findUnnamed(QAccessible::queryAccessibleInterface(root), scene, &unnamed);
        }
    unnamed.removeDuplicates();
    return unnamed;
}

class AccessibilityTest : public SampleCompanyTest {
protected:
    std::unique_ptr<WorkbenchWindow> open(const char* user, const char* module)
    {
        registerWorkbenchForms();
        session = WorkbenchSession::fromConnectionStrings(appConnectionString(), dataConnectionString(), files.path());
        EXPECT_TRUE(session.logIn(QString::fromLatin1(user), QStringLiteral("1234")));
        auto window = std::make_unique<WorkbenchWindow>(session, QString::fromLatin1(module));
        window->show();
        return window;
    }
    QTemporaryDir files;
    WorkbenchSession session;
};

// The main window with every ribbon page; the form of every command and registered name, a
// document added from each list, each report's preview, the diagrams, with the dialogs they
// show; the keypad, the login and the dialogs and pickers the services open.
TEST_P(AccessibilityTest, EveryFormAndDialogNamesEverythingAUserCanReach)
{
    auto window = open("SOMCHAI", "AR");
    QStringList unnamed = unnamedIn(QStringLiteral("main window"), window.get());
    const auto walkOpened = [&](const QString& scene) {
        for (int i = 0; i < window->tabs()->count(); ++i)
            unnamed << unnamedIn(scene, window->tabs()->widget(i));
        for (QWidget* w : QApplication::topLevelWidgets())
            if (w->isVisible() && w != window.get()) {
                unnamed << unnamedIn(scene, w);
                w->close();
            }
    };
    Connection c;
    c.open(appConnectionString());
    Recordset rs;
    rs.open(Sql("SELECT TCmdAlias FROM QD8TCommand WHERE TCmdFlag1=1"), c);
    QStringList names = FormRegistry::names();
    for (; !rs.eof(); rs.moveNext())
        names << rs.text("TCmdAlias");
    for (const QString& name : names + QStringList{"btnDiagram", "btnModuleIndex"}) {
        if (auto* button = window->findChild<QToolButton*>(name))
            button->click();
        else
            window->launch(name);
        walkOpened(name);
        if (auto* list = window->tabs()->currentWidget() ? window->tabs()->currentWidget()->findChild<DataView*>() : nullptr) {
            Q_EMIT list->addRequested();
            walkOpened(name + QStringLiteral(" add"));
        }
        if (auto* preview = window->findChild<QPushButton*>(QStringLiteral("preview"))) {
            preview->click();
            walkOpened(name + QStringLiteral(" preview"));
        }
        scriptedMessages().saveAnswers = {MessageService::SaveAnswer::Discard, MessageService::SaveAnswer::Discard};
        while (window->tabs()->count() > 0)
            window->closeForm(window->tabs()->widget(0));
    }
    ASSERT_TRUE(session.logIn(QStringLiteral("PRODUCTION"), QStringLiteral("1234")));
    WorkbenchWindow keypad(session);
    startInKeypad(keypad);
    QImage picture(200, 100, QImage::Format_RGB32);
    picture.fill(Qt::white);
    const std::pair<const char*, std::function<QWidget*()>> scenes[] = {{"keypad", [&] { return &keypad; }},
        {"login", [&] { return new LoginDialog(session); }},
        {"pick list", [&] { return new PickListDialog({"ลูกค้า", "TARNCode", "TARNCode,TARNName", "รหัส,ชื่อ", "1200,3000", "0,0", "QD8TAR", dataConnectionString()}); }},
        {"multi-line input", [] { return new frmInputMultiLine(0); }}, {"crop", [&] { return new CropDialog(picture, 0); }},
        {"date and time", [] { return new DateTimeView; }}, {"month and year", [] { return new MonthYearView; }}};
    for (const auto& [scene, make] : scenes) {
        QWidget* w = make();
        w->show();
        unnamed << unnamedIn(QString::fromUtf8(scene), w);
        if (w != &keypad)
            delete w;
    }
    EXPECT_EQ(unnamed, QStringList());
}

// A list's cells and column titles reach a screen reader through the table interface; names,
// descriptions and tips follow the session's language when it switches.
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
    // The column title, the list, the criterion and its condition, and a picked criterion's tip (said once).
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
