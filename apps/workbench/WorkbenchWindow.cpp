#include "WorkbenchWindow.h"

#include "DiagramForms.h"
#include "ListPrinter.h"
#include "LoginDialog.h"
#include "WorkbenchWeb.h"
#include "database/SessionFunctions.h"
#include "database/SessionServices.h"
#include "documents/DucumentList.h"
#include "documents/MasterList.h"
#include "editors/CustomData.h"
#include "editors/HostOption.h"
#include "foundation/Connection.h"
#include "foundation/ConnectionString.h"
#include "foundation/DbError.h"
#include "foundation/Language.h"
#include "foundation/Recordset.h"
#include "foundation/Services.h"
#include "navigation/CommandCatalogue.h"
#include "navigation/DocumentToolBar.h"
#include "navigation/NUVRibbon.h"
#include "navigation/ShortCutBar.h"
#include "widgets/DataView.h"
#include "widgets/FormRegistry.h"
#include "widgets/Ribbon.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QDir>
#include <QElapsedTimer>
#include <QDockWidget>
#include <QLabel>
#include <QListWidget>
#include <QScrollArea>
#include <QRegularExpression>
#include <QScreen>
#include <QStatusBar>
#include <QSysInfo>
#include <QTabWidget>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWindow>

namespace qd8 {

namespace {

// A thin scroll bar under the tool bar, there only when the window is too narrow for it.
constexpr int ToolBarScrollBarPixels = 6;

QHash<QString, WorkbenchWindow::Deleter>& deleters()
{
    static QHash<QString, WorkbenchWindow::Deleter> registered;
    return registered;
}

} // namespace

WorkbenchWindow::WorkbenchWindow(const WorkbenchSession& session, const QString& module, QWidget* parent)
    : QMainWindow(parent)
    , m_session(session)
    , m_web(std::make_unique<WorkbenchWeb>(*this))
    , m_ribbon(new NUVRibbon(this))
    , m_shortcuts(new ShortCutBar(this))
    , m_toolBar(new DocumentToolBar(this))
    , m_tabs(new QTabWidget(this))
    , m_modules(new QComboBox(this))
{
    setWindowTitle(QStringLiteral("QD8 Workbench"));
    Services::messages().setLanguage(m_session.languageId);
    setMenuWidget(m_ribbon);

    auto* dockBody = new QWidget(this);
    auto* dockLayout = new QVBoxLayout(dockBody);
    dockLayout->setContentsMargins(2, 2, 2, 2);
    dockLayout->addWidget(m_modules);
    dockLayout->addWidget(m_shortcuts, 1);
    auto* dock = new QDockWidget(this);
    dock->setObjectName(QStringLiteral("shortcuts"));
    dock->setFeatures(QDockWidget::DockWidgetMovable);
    dock->setTitleBarWidget(new QWidget(dock));
    dock->setWidget(dockBody);
    dock->setMinimumWidth(200);
    addDockWidget(Qt::LeftDockWidgetArea, dock);

    auto* centre = new QWidget(this);
    centre->setObjectName(QStringLiteral("centre"));
    auto* centreLayout = new QVBoxLayout(centre);
    centreLayout->setContentsMargins(0, 0, 0, 0);
    // On a small screen the tool bar scrolls sideways instead of widening the window.
    auto* toolBarRoom = new QScrollArea(centre);
    toolBarRoom->setFocusPolicy(Qt::NoFocus);  // Tab goes to its buttons
    toolBarRoom->setObjectName(QStringLiteral("toolBarRoom"));
    toolBarRoom->setFrameShape(QFrame::NoFrame);
    toolBarRoom->setWidgetResizable(true);
    toolBarRoom->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    toolBarRoom->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    toolBarRoom->setWidget(m_toolBar);
    toolBarRoom->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    toolBarRoom->setStyleSheet(QStringLiteral("#toolBarRoom, #toolBarRoom > QWidget > QWidget { background: transparent; } "
                                              "#toolBarRoom QScrollBar:horizontal { height: %1px; }")
                                   .arg(ToolBarScrollBarPixels));
    toolBarRoom->setFixedHeight(m_toolBar->sizeHint().height() + ToolBarScrollBarPixels);
    centreLayout->addWidget(toolBarRoom);
    centreLayout->addWidget(m_tabs, 1);
    m_tabs->setTabsClosable(true);
    m_tabs->setDocumentMode(true);
    setCentralWidget(centre);
    connect(m_tabs, &QTabWidget::tabCloseRequested, this, [this](int index) { closeForm(m_tabs->widget(index)); });

    buildStatusBar();
    addDiagramCommands(*this);
    fillModules(module);
    for (HostedControl* launcher : std::initializer_list<HostedControl*>{m_ribbon, m_shortcuts, m_toolBar})
        connectEvents(launcher);
    refreshLaunchers();
    connect(m_modules, &QComboBox::currentIndexChanged, this, [this] { setModule(m_modules->currentData().toString()); });
    m_shortcuts->listView(CommandSet::Main)->setFocus();
    resize(1280, 800);
}

WorkbenchWindow::~WorkbenchWindow() = default;

QString WorkbenchWindow::text(const char* thai, const char* english) const
{
    return inLanguage(m_session.languageId, thai, english);
}

void WorkbenchWindow::registerDeleter(const QString& commandAlias, Deleter deleter)
{
    deleters().insert(commandAlias, std::move(deleter));
}

void WorkbenchWindow::buildStatusBar()
{
    m_userLabel = new QLabel(this);
    m_companyLabel = new QLabel(this);
    m_language = new QComboBox(this);
    m_language->addItem(QStringLiteral("ไทย"), 0);
    m_language->addItem(QStringLiteral("English"), 1);
    m_language->setCurrentIndex(isThai(m_session.languageId) ? 0 : 1);
    connect(m_language, &QComboBox::currentIndexChanged, this, [this] { setLanguage(m_language->currentData().toInt()); });
    statusBar()->addPermanentWidget(m_userLabel);
    statusBar()->addPermanentWidget(m_companyLabel);
    statusBar()->addPermanentWidget(m_language);
    const auto command = [this](const char* name, QKeyCombination key, bool (WorkbenchWindow::*slot)()) {
        auto* action = new QAction(this);
        action->setShortcut(QKeySequence(key));
        connect(action, &QAction::triggered, this, slot);
        addAction(action);
        auto* button = new QToolButton(this);
        button->setObjectName(QLatin1String(name));
        button->setDefaultAction(action);
        statusBar()->addPermanentWidget(button);
        return action;
    };
    m_switchCompany = command("btnSwitchCompany", Qt::CTRL | Qt::SHIFT | Qt::Key_O, &WorkbenchWindow::switchCompany);
    m_logOut = command("btnLogOut", Qt::CTRL | Qt::SHIFT | Qt::Key_L, &WorkbenchWindow::logOut);
    updateStatusLabels();
}

void WorkbenchWindow::updateStatusLabels()
{
    QString name = m_session.loginName;
    for (const WorkbenchUser& user : m_session.users())
        if (user.id == m_session.userId)
            name = user.loginName + QStringLiteral(" — ") + user.name;
    m_userLabel->setText(text("ผู้ใช้: ", "User: ") + name);
    m_companyLabel->setText(text("ฐานข้อมูล: ", "Company: ") + m_session.companyName());
    m_modules->setAccessibleName(text("โมดูล", "Module"));
    m_language->setAccessibleName(text("ภาษา", "Language"));
    m_tabs->setAccessibleName(text("แบบฟอร์มที่เปิดอยู่", "Open forms"));
    m_switchCompany->setText(text("เปลี่ยนบริษัท", "Switch company"));
    m_logOut->setText(text("ออกจากระบบ", "Log out"));
    for (QAction* action : {m_switchCompany, m_logOut})
        action->setToolTip(action->text() + QStringLiteral(" (") + action->shortcut().toString(QKeySequence::NativeText)
            + QLatin1Char(')'));
}

void WorkbenchWindow::fillModules(const QString& module)
{
    QSignalBlocker quiet(m_modules);
    m_modules->clear();
    m_modules->addItem(text("ทุกโมดูล", "All modules"), QString());
    try {
        Connection c;
        c.open(m_session.appConnectionString);
        Recordset rs;
        rs.open(Sql("SELECT TCmGAlias, TCmGName, TCmGName2 FROM QD8TCommandGroup WHERE TCmGShow=1 AND TCmGFlag1=1 ORDER BY TCmGSort"), c);
        for (; !rs.eof(); rs.moveNext())
            m_modules->addItem(rs.text(QStringLiteral("TCmGName") + nameSuffix(m_session.languageId)),
                rs.text(QStringLiteral("TCmGAlias")));
    } catch (const DbError& error) {
        showStatus(error);
    }
    // Without a module asked for, the first one: all three command sets have entries.
    const int index = module.isEmpty() ? -1 : m_modules->findData(module);
    m_modules->setCurrentIndex(index < 0 ? (m_modules->count() > 1 ? 1 : 0) : index);
}

void WorkbenchWindow::setUpControl(HostedControl& control, const QString& commandAlias, const QString& commandGroup)
{
    m_session.setUp(control, commandAlias, commandGroup, this);
}

void WorkbenchWindow::refreshLaunchers()
{
    const QString module = m_modules->currentData().toString();
    try {
        for (HostedControl* launcher : std::initializer_list<HostedControl*>{m_ribbon, m_shortcuts, m_toolBar}) {
            setUpControl(*launcher, QString(), module);
            launcher->Refresh();
        }
    } catch (const DbError& error) {
        showStatus(error);
    }
    onThemeChange(m_ribbon->ribbon()->theme(), m_ribbon->ribbon());
}

void WorkbenchWindow::setModule(const QString& commandGroup)
{
    const int index = m_modules->findData(commandGroup);
    if (index >= 0 && index != m_modules->currentIndex()) {
        QSignalBlocker quiet(m_modules);
        m_modules->setCurrentIndex(index);
    }
    refreshLaunchers();
}

void WorkbenchWindow::setLanguage(int languageId)
{
    try {
        m_session.setLanguage(languageId, true);
    } catch (const DbError& error) {
        showStatus(error);
        return;
    }
    {
        QSignalBlocker quiet(m_language);
        m_language->setCurrentIndex(isThai(languageId) ? 0 : 1);
    }
    Services::messages().setLanguage(languageId);
    fillModules(m_modules->currentData().toString());
    refreshLaunchers();
    updateStatusLabels();
    // Open forms take the new language from the user's setting again; a form with changes
    // in progress keeps them and changes language at its next load.
    try {
        for (int i = 0; i < m_tabs->count(); ++i) {
            auto* control = qobject_cast<HostedControl*>(m_tabs->widget(i));
            const QString mode = control ? control->property("RUNMODE").toString() : QString();
            if (!control)
                continue;
            control->SetLast2(control->session().FolderPathName, control->session().ControlName, QString::number(m_session.userId),
                m_session.dataConnectionString, m_session.appConnectionString);
            Command command;
            if (qobject_cast<DucumentList*>(control) || qobject_cast<MasterList*>(control)) {
                // A list builds its panel, captions and legend from its definition: read it again.
                if (findCommand(tabCommand(i), &command))
                    loadControl(*control, command);
            } else if (mode != QLatin1String("ADD") && mode != QLatin1String("EDIT")) {
                control->Refresh();
                if (control->metaObject()->indexOfSlot("FillData()") >= 0)
                    QMetaObject::invokeMethod(control, "FillData");
            }
            // The tab takes the form's own title, else its command's caption in the new language.
            QString caption;
            if (control->metaObject()->indexOfMethod("caption()") >= 0)
                QMetaObject::invokeMethod(control, "caption", Q_RETURN_ARG(QString, caption));
            else if (findCommand(tabCommand(i), &command))
                caption = command.caption;
            if (!caption.isEmpty())
                m_tabs->setTabText(i, caption);
        }
    } catch (const DbError& error) {
        showStatus(error);
        return;
    }
    showStatus(text("ภาษาไทย", "English"));
}

bool WorkbenchWindow::findCommand(const QString& alias, Command* command) const
{
    Connection c;
    c.open(m_session.appConnectionString);
    Recordset rs;
    rs.open(Sql("SELECT TCmdAlias, TCmdName, TCmdName2, TCmdType, TCmdTCmGAlias, TCmdReportNo FROM QD8TCommand WHERE TCmdAlias=")
            + quoted(alias.trimmed()),
        c);
    if (rs.eof())
        return false;
    command->alias = rs.text(QStringLiteral("TCmdAlias"));
    command->type = rs.text(QStringLiteral("TCmdType"));
    command->group = rs.text(QStringLiteral("TCmdTCmGAlias"));
    command->caption = CommandCatalogue::withoutAccelerators(SessionServices::sessionFunctions().GetCommandCaption(m_session.languageId,
        m_session.appConnectionString, commandCentreConnectionString(m_session.appConnectionString), command->alias, 0,
        rs.text(QStringLiteral("TCmdName")), rs.text(QStringLiteral("TCmdName2")), rs.text(QStringLiteral("TCmdReportNo"))));
    return true;
}

bool WorkbenchWindow::isQuickForm(const QString& alias) const
{
    try {
        Connection c;
        c.open(m_session.appConnectionString);
        Recordset rs;
        rs.open(Sql("SELECT TQFmAlias FROM QD8TQuickForm WHERE TQFmFlag1=1 AND TQFmAlias=") + quoted(alias), c);
        return !rs.eof();
    } catch (const DbError&) {
        return false;
    }
}

QString WorkbenchWindow::tabCommand(int index) const
{
    QWidget* form = m_tabs->widget(index);
    return form ? form->property(CommandProperty).toString() : QString();
}

void WorkbenchWindow::launch(const QString& shellFunction)
{
    for (int i = 0; i < m_tabs->count(); ++i)
        if (tabCommand(i) == shellFunction) {
            m_tabs->setCurrentIndex(i);
            return;
        }
    if (WorkbenchWeb::isWebAddress(shellFunction)) {
        openWebPage(shellFunction.trimmed(), QString(), shellFunction);
        return;
    }
    Command command{shellFunction, shellFunction, QString(), QString(), QString()};
    if (shellFunction == QLatin1String("WINDOW:REPORTSEARCH")) {
        command.caption = text("ค้นหารายงาน", "Report Search");
    } else {
        try {
            if (!findCommand(shellFunction, &command)) {
                showStatus(text("ไม่พบคำสั่ง %1 ในรายการคำสั่ง", "The command %1 is not in the command catalogue").arg(shellFunction));
                return;
            }
        } catch (const DbError& error) {
            showStatus(error);
            return;
        }
    }
    if (command.type == QLatin1String("W")) {
        openWebCommand(command.alias, command.caption);
        return;
    }
    const QString typeForm = QStringLiteral("TYPE:") + command.type;
    QString form = FormRegistry::contains(command.alias) ? command.alias : FormRegistry::contains(typeForm) ? typeForm : QString();
    if (form.isEmpty() && FormRegistry::contains(QStringLiteral("QUICKFORM")) && isQuickForm(command.alias)) {
        form = QStringLiteral("QUICKFORM");
        command.quickForm = command.alias;
    }
    if (form.isEmpty()) {
        // A command whose form comes later still answers: it says what it is.
        const QString message = text("คำสั่ง \"%1\" (%2): รุ่นนี้ยังไม่มีฟอร์มของคำสั่งนี้", "The command \"%1\" (%2): this build has no form for it yet")
                                    .arg(command.caption, command.alias);
        showStatus(message);
        Services::messages().information(windowTitle(), message);
        return;
    }
    openForm(form, command);
}

void WorkbenchWindow::openForm(const QString& formName, const Command& command)
{
    QWidget* form = FormRegistry::create(formName, m_tabs);
    if (!form)
        return;
    form->setProperty(CommandProperty, command.alias);
    form->setAutoFillBackground(true);  // forms keep their own background under a dark theme
    if (!command.quickForm.isEmpty())
        form->setProperty("DefaultFormAlias", command.quickForm);
    try {
        if (auto* control = qobject_cast<HostedControl*>(form))
            setUpControl(*control, command.alias, command.group);
        connectEvents(form);
        const int index = m_tabs->addTab(form, command.caption);
        m_tabs->setCurrentIndex(index);
        if (auto* control = qobject_cast<HostedControl*>(form))
            loadControl(*control, command);
    } catch (const DbError& error) {
        delete form;
        showStatus(error);
        return;
    } catch (const std::exception& error) {
        delete form;
        showStatus(QString::fromUtf8(error.what()));
        return;
    }
    showStatus(text("เปิด %1", "Opened %1").arg(command.caption));
    Q_EMIT formOpened(command.alias);
}

void WorkbenchWindow::loadControl(HostedControl& control, const Command& command)
{
    if (auto* list = qobject_cast<DucumentList*>(&control)) {
        const auto [data, app, client] = m_session.sessionObjects(control);
        list->SetFilter(command.alias, command.group, data, app, client, this, command.caption, command.caption);
        return;
    }
    if (auto* list = qobject_cast<MasterList*>(&control)) {
        const auto [data, app, client] = m_session.sessionObjects(control);
        list->SetFilter(command.alias, command.group, data, app, client, this, command.caption, command.caption);
        return;
    }
    // Editors offer the forms or option groups of the command's module.
    for (const char* group : {"QuickGroup", "OptionGroup"})
        if (control.property(group).isValid() && control.property(group).toString().isEmpty())
            control.setProperty(group, command.group);
    // The workstation editor is told which workstation this is and its configuration file.
    if (auto* host = qobject_cast<HostOption*>(&control))
        host->SetLast2(control.session().FolderPathName, command.alias, QString::number(m_session.userId), m_session.dataConnectionString,
            m_session.appConnectionString, QSysInfo::machineHostName(), m_session.appPath + QStringLiteral("/QD8STARTUP.INI"));
    control.Refresh();
    // The code lists open on the first list offered.
    if (auto* lists = qobject_cast<CustomData*>(&control); lists && lists->DefaultFormAlias().isEmpty() && !lists->groupForms().isEmpty())
        lists->setDefaultFormAlias(lists->groupForms().first().first);
    // Editors load their rows after listing what they offer.
    if (control.metaObject()->indexOfSlot("FillData()") >= 0)
        QMetaObject::invokeMethod(&control, "FillData");
}

QWidget* WorkbenchWindow::add(const QString& name)
{
    QWidget* list = m_tabs->currentWidget();
    const QString alias = list ? list->property(CommandProperty).toString() : QString();
    Command command;
    findCommand(alias, &command);
    QWidget* form = FormRegistry::create(name, m_tabs);
    if (!form)
        return nullptr;
    form->setProperty(CommandProperty, alias);
    form->setAutoFillBackground(true);
    try {
        if (auto* control = qobject_cast<HostedControl*>(form))
            setUpControl(*control, alias, command.group);
    } catch (const DbError& error) {
        delete form;
        showStatus(error);
        return nullptr;
    }
    connectEvents(form);
    const int index = m_tabs->addTab(form, name);
    m_tabs->setCurrentIndex(index);
    // The list titles the form "<caption> - <key>" once it has handed the key over.
    connect(form, &QWidget::windowTitleChanged, this, [this, form](const QString& title) {
        const int at = m_tabs->indexOf(form);
        if (at >= 0)
            m_tabs->setTabText(at, title);
    });
    return form;
}

void WorkbenchWindow::connectEvents(QObject* form)
{
    // Events are found by name: a form raises those it has.
    const struct {
        const char* signal;
        const char* slot;
    } events[] = {
        {SIGNAL(Lunch(QString&)), SLOT(onLunch(QString&))},
        {SIGNAL(CloseButtonClick()), SLOT(onCloseRequest())},
        {SIGNAL(CloseAction()), SLOT(onCloseRequest())},
        {SIGNAL(PrintButtonClick(QString)), SLOT(onPrintCommand(QString))},
        {SIGNAL(PrintAutoClick(QString,int,QString)), SLOT(onPrintList(QString,int,QString))},
        {SIGNAL(ChangeCaption(QString,QString)), SLOT(onChangeCaption(QString,QString))},
        {SIGNAL(DeleteAction(QString)), SLOT(onDeleteAction(QString))},
        {SIGNAL(ThemeChange(int,QObject*)), SLOT(onThemeChange(int,QObject*))},
    };
    for (const auto& event : events)
        if (form->metaObject()->indexOfSignal(QMetaObject::normalizedSignature(event.signal + 1)) >= 0)
            connect(form, event.signal, this, event.slot);
}

QWidget* WorkbenchWindow::formOf(QObject* sender) const
{
    for (QObject* o = sender; o; o = o->parent())
        if (m_tabs->indexOf(qobject_cast<QWidget*>(o)) >= 0)
            return static_cast<QWidget*>(o);
    return nullptr;
}

void WorkbenchWindow::onLunch(QString& shellFunction)
{
    launch(shellFunction);
}

bool WorkbenchWindow::closeForm(QWidget* form)
{
    const int index = m_tabs->indexOf(form);
    if (index < 0)
        return false;
    auto* control = qobject_cast<HostedControl*>(form);
    if (control && control->hasUnsavedChanges()) {
        m_tabs->setCurrentIndex(index);
        if (!control->confirmClose(m_tabs->tabText(index)))
            return false;
    }
    m_tabs->removeTab(m_tabs->indexOf(form));
    form->deleteLater();
    return true;
}

bool WorkbenchWindow::closeAllForms()
{
    // Every question first: a Cancel on the third tab leaves the first two open too.
    for (int i = 0; i < m_tabs->count(); ++i) {
        auto* control = qobject_cast<HostedControl*>(m_tabs->widget(i));
        if (!control || !control->hasUnsavedChanges())
            continue;
        m_tabs->setCurrentIndex(i);
        if (!control->confirmClose(m_tabs->tabText(i)))
            return false;
    }
    while (m_tabs->count() > 0) {
        QWidget* form = m_tabs->widget(0);
        m_tabs->removeTab(0);
        form->deleteLater();
    }
    return true;
}

bool WorkbenchWindow::logOut()
{
    if (!closeAllForms())
        return false;
    m_loggedOut = true;
    close();
    return true;
}

bool WorkbenchWindow::switchCompany()
{
    if (!closeAllForms())
        return false;
    WorkbenchSession next = m_session;
    LoginDialog login(next, this);
    // The command is for going elsewhere: the first other company is offered.
    if (login.companyBox()->count() > 1)
        login.companyBox()->setCurrentIndex(1);
    if (login.exec() != QDialog::Accepted)
        return false;
    m_nextCompany = next;
    close();
    return true;
}

void WorkbenchWindow::closeEvent(QCloseEvent* event)
{
    if (closeAllForms())
        event->accept();
    else
        event->ignore();
}

void WorkbenchWindow::onCloseRequest()
{
    closeForm(formOf(sender()));
}

void WorkbenchWindow::onPrintCommand(const QString& printCommandAlias)
{
    launch(printCommandAlias);
}

void WorkbenchWindow::onPrintList(const QString& sqlStatement, int, const QString& captionList)
{
    QWidget* form = formOf(sender());
    const QString title = form ? m_tabs->tabText(m_tabs->indexOf(form)) : windowTitle();
    const DateLook look = DbSessionFunctions::userDateLook(m_session.userId, m_session.languageId, m_session.dataConnectionString);
    ListPrinter(title, sqlStatement, captionList, m_session.sessionConnectionString, look).preview(this);
    showStatus(text("ตัวอย่างก่อนพิมพ์: %1", "Print preview: %1").arg(title));
}

void WorkbenchWindow::onChangeCaption(const QString& caption, const QString&)
{
    if (QWidget* form = formOf(sender()))
        m_tabs->setTabText(m_tabs->indexOf(form), caption);
}

void WorkbenchWindow::onDeleteAction(const QString& selectRowData)
{
    QWidget* form = formOf(sender());
    const QString alias = form ? form->property(CommandProperty).toString() : QString();
    const auto deleter = deleters().constFind(alias);
    if (deleter == deleters().constEnd()) {
        showStatus(text("คำสั่ง %1 ลบเอกสารไม่ได้", "The command %1 cannot delete documents").arg(alias));
        return;
    }
    if (!Services::messages().question(text("ยืนยันคำสั่ง", "Confirm"), text("ต้องการลบเอกสาร %1 ใช่หรือไม่", "Delete the document %1?").arg(selectRowData)))
        return;
    try {
        if ((*deleter)(selectRowData, m_session))
            showStatus(text("ลบเอกสาร %1 แล้ว", "Deleted the document %1").arg(selectRowData));
    } catch (const DbError& error) {
        Services::messages().critical(text("ลบเอกสาร", "Delete"), error.report(m_session.languageId));
    }
    if (auto* control = qobject_cast<HostedControl*>(form))
        control->Refresh();
}

void WorkbenchWindow::onThemeChange(int theme, QObject*)
{
    const QList<RibbonTheme>& themes = Ribbon::themes();
    const RibbonTheme& t = themes.value(theme, themes.first());
    setStyleSheet(QStringLiteral("QMainWindow { background: %1; } QStatusBar { background: %2; color: %3; } QStatusBar QLabel { color: %3; } "
                                 "#centre qd8--DocumentToolBar QToolButton { color: %3; }")
                      .arg(t.background.name(), t.tabBar.name(), t.text.name()));
}

void WorkbenchWindow::showStatus(const DbError& error)
{
    showStatus(error.report(m_session.languageId, QStringLiteral(": ")));
}

void WorkbenchWindow::showStatus(const QString& message)
{
    m_status = message;
    statusBar()->showMessage(message);
    Q_EMIT statusChanged(message);
}

QString WorkbenchWindow::savePicture(const QString& file)
{
    QApplication::processEvents();
    QPixmap picture;
    if (QScreen* screen = windowHandle() ? windowHandle()->screen() : nullptr; screen && QGuiApplication::platformName() != QLatin1String("offscreen"))
        picture = screen->grabWindow(winId());
    if (picture.isNull())
        picture = grab();
    return picture.save(file) ? file : QString();
}

QStringList WorkbenchWindow::saveScreenshots(const QString& folder)
{
    QDir().mkpath(folder);
    QStringList files;
    files << savePicture(QDir(folder).filePath(QStringLiteral("main.png")));
    // Every registered form, every command that opens a quick form and every report with a layout.
    QStringList names = FormRegistry::names();
    try {
        Connection c;
        c.open(m_session.appConnectionString);
        Recordset rs;
        rs.open(Sql("SELECT c.TCmdAlias, l.TRpLTCmdAlias FROM QD8TCommand c LEFT JOIN QD8TReportLayout l ON l.TRpLTCmdAlias=c.TCmdAlias "
                    "WHERE c.TCmdFlag1=1 ORDER BY c.TCmdID"),
            c);
        for (; !rs.eof(); rs.moveNext())
            if (!rs.text(QStringLiteral("TRpLTCmdAlias")).isEmpty() || isQuickForm(rs.text(QStringLiteral("TCmdAlias"))))
                names << rs.text(QStringLiteral("TCmdAlias"));
    } catch (const DbError& error) {
        showStatus(error);
    }
    for (const QString& name : names) {
        launch(name);
        const int index = m_tabs->currentIndex();
        if (index < 0 || tabCommand(index) != name)
            continue;
        // A list's total comes back from its own connection: the picture shows it.
        if (auto* list = m_tabs->widget(index)->findChild<DataView*>()) {
            QElapsedTimer waited;
            waited.start();
            while (list->totalRows() < 0 && waited.elapsed() < 2000)
                QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        }
        QString file = name;
        file.replace(QRegularExpression(QStringLiteral("[^A-Za-z0-9_-]")), QStringLiteral("_"));
        files << savePicture(QDir(folder).filePath(file + QStringLiteral(".png")));
        closeForm(m_tabs->widget(index));
    }
    files.removeAll(QString());
    return files;
}

} // namespace qd8
