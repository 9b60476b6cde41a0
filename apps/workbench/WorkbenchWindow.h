#pragma once

#include "WorkbenchSession.h"
#include "widgets/FormCollection.h"

#include <QHash>
#include <QMainWindow>
#include <functional>
#include <memory>
#include <optional>

class QAction;
class QComboBox;
class QLabel;
class QTabWidget;

namespace qd8 {

class DbError;
class HostedControl;
class NUVRibbon;
class ShortCutBar;
class DocumentToolBar;
class WorkbenchWeb;

// The host application: the ribbon across the top, the shortcut bar on the left, a module
// tool bar over the forms, the forms as tabs in the centre and a status bar with the user,
// the company database and the language. It hands every control its session in the
// documented order and acts on every event a control raises.
class WorkbenchWindow : public QMainWindow, public FormCollection {
    Q_OBJECT

public:
    // Deletes the document `key` of a command's list; true when it is gone.
    using Deleter = std::function<bool(const QString& key, const WorkbenchSession& session)>;

    explicit WorkbenchWindow(const WorkbenchSession& session, const QString& module = QString(), QWidget* parent = nullptr);
    ~WorkbenchWindow() override;

    const WorkbenchSession& session() const { return m_session; }
    ShortCutBar* shortcutBar() const { return m_shortcuts; }
    NUVRibbon* ribbon() const { return m_ribbon; }
    DocumentToolBar* toolBar() const { return m_toolBar; }
    QTabWidget* tabs() const { return m_tabs; }
    QComboBox* moduleBox() const { return m_modules; }
    QComboBox* languageBox() const { return m_language; }
    // The last message of the status bar.
    QString statusMessage() const { return m_status; }
    // The command alias of the tab at index, "" for none.
    QString tabCommand(int index) const;

    static void registerDeleter(const QString& commandAlias, Deleter deleter);

    // A web page in a browser tab (the tab of `key` when one is open), or in the desktop's
    // browser where the embedded one cannot run. The help menu's pages come here through the
    // shell service, web commands through launch (WorkbenchWeb.cpp).
    void openWebPage(const QString& url, const QString& caption, const QString& key);

    // The document and master forms a list opens: a tab of their own, set up for the
    // command of the list in the current tab.
    QWidget* add(const QString& name) override;

    // Writes main.png and one picture per registered form into the folder; the files.
    QStringList saveScreenshots(const QString& folder);
    // A picture of the window as the screen shows it.
    QString savePicture(const QString& file);
    // The user logged out: the window closed for the next login, not to end the program.
    bool loggedOut() const { return m_loggedOut; }
    // The company the user changed to: the window closed to reopen on it.
    const std::optional<WorkbenchSession>& nextCompany() const { return m_nextCompany; }

public Q_SLOTS:
    // What the host does for Lunch: opens the command's form, or says why it cannot.
    void launch(const QString& shellFunction);
    void setLanguage(int languageId);
    void setModule(const QString& commandGroup);
    // Closes a form's tab; a form holding unsaved changes first asks Save / Discard / Cancel.
    // False when the form stays (the user cancelled, or its save failed).
    bool closeForm(QWidget* form);
    // Before the session ends (closing the window, logging out, changing company): asks
    // every tab with unsaved changes in turn, then closes them all. False, with every tab
    // still open, when the user cancelled one or a save failed.
    bool closeAllForms();
    // Ends the session (Ctrl+Shift+L): closes every form as closeAllForms does, then the
    // window, and the program asks who logs in next. False when a form stays open.
    bool logOut();
    // Changes company (Ctrl+Shift+O): closes every form as closeAllForms does, then the login
    // box offers the companies; on OK the window closes to reopen on the chosen one. False when
    // a form stays open or the login was cancelled (the window stays on this company).
    bool switchCompany();

Q_SIGNALS:
    // Every status message, for logs and tests.
    void statusChanged(const QString& message);
    void formOpened(const QString& commandAlias);

protected:
    void closeEvent(QCloseEvent* event) override;

private Q_SLOTS:
    void onLunch(QString& shellFunction);
    void onCloseRequest();
    void onPrintCommand(const QString& printCommandAlias);
    void onPrintList(const QString& sqlStatement, int reportMasterMode, const QString& captionList);
    void onChangeCaption(const QString& caption, const QString& commandAlias);
    void onDeleteAction(const QString& selectRowData);
    void onThemeChange(int theme, QObject* ribbon);

private:
    struct Command {
        QString alias;
        QString caption;
        QString type;
        QString group;
        QString quickForm;  // the quick form the command is named after
    };
    void buildStatusBar();
    void fillModules(const QString& module);
    // The session, rights, print command and this window as the parent form.
    void setUpControl(HostedControl& control, const QString& commandAlias, const QString& commandGroup);
    // Document and master lists load their definition and rows; other controls refresh.
    void loadControl(HostedControl& control, const Command& command);
    void refreshLaunchers();
    bool findCommand(const QString& alias, Command* command) const;
    bool isQuickForm(const QString& alias) const;
    void openForm(const QString& formName, const Command& command);
    void connectEvents(QObject* form);
    void showStatus(const QString& message);
    // A database error in one line: the sentence in the session language, then the engine's words.
    void showStatus(const DbError& error);
    void updateStatusLabels();
    QWidget* formOf(QObject* sender) const;
    QString text(const char* thai, const char* english) const;
    // A catalogue command of type "W": the address the installation's settings hold under its alias.
    void openWebCommand(const QString& alias, const QString& caption);

    static constexpr const char* CommandProperty = "qd8CommandAlias";
    WorkbenchSession m_session;
    std::unique_ptr<WorkbenchWeb> m_web;
    NUVRibbon* m_ribbon = nullptr;
    ShortCutBar* m_shortcuts = nullptr;
    DocumentToolBar* m_toolBar = nullptr;
    QTabWidget* m_tabs = nullptr;
    QComboBox* m_modules = nullptr;
    QComboBox* m_language = nullptr;
    QLabel* m_userLabel = nullptr;
    QLabel* m_companyLabel = nullptr;
    QAction* m_logOut = nullptr;
    QAction* m_switchCompany = nullptr;
    bool m_loggedOut = false;
    std::optional<WorkbenchSession> m_nextCompany;
    QString m_status;
};

} // namespace qd8
