#include "DiagramForms.h"

#include "WorkbenchWindow.h"

#include "database/SessionFunctions.h"
#include "foundation/DbError.h"
#include "foundation/Language.h"
#include "navigation/NUVDiagram.h"
#include "navigation/NUVDiagram2.h"
#include "navigation/NUVDiagramIndex.h"
#include "navigation/NUVMainMenu.h"
#include "navigation/NUVRibbon.h"

#include <QAction>
#include <QComboBox>
#include <QDockWidget>
#include <QStatusBar>
#include <QTabBar>
#include <QTabWidget>
#include <QToolButton>

namespace qd8 {

namespace {

const char* DiagramProperty = "qd8DiagramModule";  // the module of a diagram tab; "*" the index

void handSession(HostedControl& control, const WorkbenchSession& s, const QString& module)
{
    control.setConnectionString(s.sessionConnectionString);
    control.setAppConnectionString(s.appConnectionString);
    control.setUserID(s.userId);
    control.setUserLoginName(s.loginName);
    control.setUserLoginPassword(s.password);
    control.setIconPath(s.iconPath());
    control.setImageFolder(s.appPath + QStringLiteral("/Images"));
    control.setCommandGroup(module);
}

QWidget* findTab(WorkbenchWindow& window, const QString& key)
{
    for (int i = 0; i < window.tabs()->count(); ++i)
        if (window.tabs()->widget(i)->property(DiagramProperty).toString() == key) {
            window.tabs()->setCurrentIndex(i);
            return window.tabs()->widget(i);
        }
    return nullptr;
}

QWidget* addTab(WorkbenchWindow& window, CommandLauncher* control, const QString& key, const QString& caption)
{
    control->setProperty(DiagramProperty, key);
    QObject::connect(control, &CommandLauncher::Lunch, &window, [&window](QString& alias) { window.launch(alias); });
    window.tabs()->setCurrentIndex(window.tabs()->addTab(control, caption));
    control->setFocus();
    return control;
}

} // namespace

QWidget* openModuleDiagram(WorkbenchWindow& window, const QString& module)
{
    if (QWidget* open = findTab(window, module))
        return open;
    const WorkbenchSession& s = window.session();
    auto* drawn = new NUVDiagram;
    handSession(*drawn, s, module);
    drawn->Refresh(qint16(s.languageId), s.appConnectionString, QString());
    DiagramLauncher* diagram = drawn;
    if (!drawn->hasDrawing()) {
        delete drawn;
        auto* laidOut = new NUVDiagram2;
        handSession(*laidOut, s, module);
        laidOut->Refresh(qint16(s.languageId), s.appConnectionString, QString());
        diagram = laidOut;
    }
    const QString name = window.moduleBox()->itemText(window.moduleBox()->findData(module));
    return addTab(window, diagram, module, inLanguage(s.languageId, "ผังงาน ", "Diagram ") + name);
}

QWidget* openDiagramIndex(WorkbenchWindow& window)
{
    if (QWidget* open = findTab(window, QStringLiteral("*")))
        return open;
    const WorkbenchSession& s = window.session();
    auto* index = new NUVDiagramIndex;
    handSession(*index, s, QString());
    index->Refresh(qint16(s.languageId), s.appConnectionString, QString());
    return addTab(window, index, QStringLiteral("*"), inLanguage(s.languageId, "ดัชนีโมดูล", "Module index"));
}

void addDiagramCommands(WorkbenchWindow& window)
{
    const auto command = [&](const char* name, QKeyCombination key, const char* thai, const char* english, auto open) {
        auto* action = new QAction(inLanguage(window.session().languageId, thai, english), &window);
        action->setShortcut(QKeySequence(key));
        action->setToolTip(action->text() + QStringLiteral(" (") + action->shortcut().toString(QKeySequence::NativeText) + QLatin1Char(')'));
        QObject::connect(action, &QAction::triggered, &window, open);
        window.addAction(action);
        auto* button = new QToolButton(&window);
        button->setObjectName(QLatin1String(name));
        button->setDefaultAction(action);
        window.statusBar()->addPermanentWidget(button);
    };
    command("btnDiagram", Qt::Key_F7, "ผังงาน", "Diagram",
        [&window] { openModuleDiagram(window, window.moduleBox()->currentData().toString()); });
    command("btnModuleIndex", Qt::SHIFT | Qt::Key_F7, "ดัชนีโมดูล", "Module index", [&window] { openDiagramIndex(window); });
}

bool startsInKeypad(const WorkbenchSession& session)
{
    try {
        return DbSessionFunctions::userSettingText(session.userId, QStringLiteral("StartMode"), session.dataConnectionString)
                   .compare(QLatin1String("KEYPAD"), Qt::CaseInsensitive)
            == 0;
    } catch (const DbError&) {
        return false;  // no setting readable: the usual main window
    }
}

NUVMainMenu* startInKeypad(WorkbenchWindow& window)
{
    const WorkbenchSession& s = window.session();
    auto* menu = new NUVMainMenu;
    handSession(*menu, s, QString());
    QString name = s.loginName;
    for (const WorkbenchUser& user : s.users())
        if (user.id == s.userId)
            name = user.name;
    menu->SetFirst(inLanguage(s.languageId, "เมนูการผลิต", "Production menu"), name, 3, 3);
    menu->Refresh();
    addTab(window, menu, QStringLiteral("KEYPAD"), inLanguage(s.languageId, "เมนู", "Menu"));
    window.tabs()->tabBar()->setTabButton(window.tabs()->indexOf(menu), QTabBar::RightSide, nullptr);
    window.tabs()->tabBar()->moveTab(window.tabs()->indexOf(menu), 0);
    window.menuWidget()->hide();
    for (QDockWidget* dock : window.findChildren<QDockWidget*>())
        dock->hide();
    return menu;
}

} // namespace qd8
