#pragma once

#include "foundation/DateText.h"
#include "foundation/PickRequest.h"

#include <QDateTime>
#include <QPoint>
#include <QString>
#include <QStringList>
#include <optional>

namespace qd8 {

// Everything modal or external goes through these services, so that a host can replace
// them and tests answer them from a script; no test ever waits on a dialog. The widgets
// layer installs the Qt implementations (QMessageBox, the pick-list dialog, QProcess,
// QDesktopServices) when the library loads.

class MessageService {
public:
    virtual ~MessageService() = default;
    virtual void information(const QString& title, const QString& text) = 0;
    virtual void critical(const QString& title, const QString& text) = 0;
    // Yes/No question; No is the default button. True when the user answered Yes.
    virtual bool question(const QString& title, const QString& text) = 0;
    // What to do with unsaved changes before they would be dropped: Save, Discard or
    // Cancel (the default and Escape, so a stray key loses nothing). The buttons are worded
    // in the session language like every other box's.
    enum class SaveAnswer { Save, Discard, Cancel };
    virtual SaveAnswer askToSave(const QString& title, const QString& text) = 0;

    // The session language the buttons are worded in (LanguageID: 0 Thai, else English);
    // the host sets it at login and when the user switches.
    void setLanguage(int languageId) { m_languageId = languageId; }
    int language() const { return m_languageId; }

private:
    int m_languageId = 0;
};

class PickerService {
public:
    virtual ~PickerService() = default;
    // The key field's value of the picked row, or "" when nothing was picked.
    virtual QString pick(const PickRequest& request) = 0;
    // A choice among a few fixed entries (a theme, a language): the index chosen, or -1
    // when the user cancelled. `current` is the entry selected when the choice opens.
    virtual int choose(const QString& title, const QStringList& entries, int current) = 0;

    // The date pickers open at `position` (screen pixels, the picker's top left corner)
    // and stay on the screen; dates show in `look`.
    // A day of the one-month calendar; an invalid date when the user cancelled.
    virtual QDate pickDate(QDate initial, QPoint position, const DateLook& look) = 0;
    // A day and a time of the date-time view; invalid when cancelled.
    virtual QDateTime pickDateTime(const QDateTime& initial, QPoint position, const DateLook& look) = 0;
    // A month of the month/year view, as its first day; invalid when cancelled. `style` is
    // the view's (MonthYearView::Style).
    virtual QDate pickMonth(QDate initial, int style, QPoint position, const DateLook& look) = 0;
    // Several lines of text; nothing when the user cancelled.
    virtual std::optional<QString> inputMultiLine(const QString& title, const QString& text, int languageId) = 0;
    // A colour of the colour dialog as the suite's colour number (red + green*256 +
    // blue*65536); -1 when the user cancelled.
    virtual int pickColor(int initial, const QString& title) = 0;
    // The name of a file to write: `suggested` is offered, `filter` in the file dialog's
    // form ("PDF (*.pdf)"); "" when the user cancelled.
    virtual QString saveFileName(const QString& title, const QString& suggested, const QString& filter) = 0;
};

class ShellService {
public:
    virtual ~ShellService() = default;
    // Starts a program; windowStyle as the suite passes it (1 normal, 3 maximised...).
    virtual bool run(const QString& commandLine, int windowStyle) = 0;
    // Opens a web page, a mail address ("mailto:") or a folder with the desktop's handler.
    virtual bool openUrl(const QString& url) = 0;
};

// How far a long operation is (a save of many rows, a wait for a locked database). The Qt
// implementation shows a dialog with a Cancel button only once the operation has run for a
// moment, so short ones show nothing. Operations may nest (a wait inside a save).
class ProgressService {
public:
    virtual ~ProgressService() = default;
    // `total` steps, 0 when not known.
    virtual void begin(const QString& title, const QString& text, qint64 total) = 0;
    // `done` steps so far; false once the user asked to cancel.
    virtual bool step(qint64 done) = 0;
    virtual void end() = 0;
};

// The services in force. Setting one does not take ownership; pass nullptr to return to
// the default. Calling a service none has been installed for throws std::logic_error.
class Services {
public:
    static MessageService& messages();
    static PickerService& picker();
    static ShellService& shell();
    // Reports nothing when none is installed: the data layer also runs without widgets.
    static ProgressService& progress();
    static void setMessages(MessageService* service);
    static void setPicker(PickerService* service);
    static void setShell(ShellService* service);
    static void setProgress(ProgressService* service);
    // Used by the widgets layer to install the Qt implementations.
    static void setDefaults(MessageService* messages, PickerService* picker, ShellService* shell,
        ProgressService* progress = nullptr);
};

// The name of a file to write, asked through the picker service, `suffix` (".pdf") added
// when the user typed none; "" when cancelled.
QString askFileToWrite(const QString& title, const QString& suggested, const QString& suffix, const QString& filter);

// One operation on the progress service in force, ended when the scope ends.
class ProgressScope {
public:
    ProgressScope(const QString& title, const QString& text, qint64 total) { Services::progress().begin(title, text, total); }
    ~ProgressScope() { Services::progress().end(); }
    ProgressScope(const ProgressScope&) = delete;
    ProgressScope& operator=(const ProgressScope&) = delete;
    // False once the user asked to cancel.
    bool step(qint64 done) { return Services::progress().step(done); }
};

// Names what the user is doing while it lives ("Purchase Request - PR0000013"), for the
// texts the data layer words itself (a wait for another writer's lock). Scopes nest; the
// innermost names.
class OperationName {
public:
    explicit OperationName(const QString& name);
    ~OperationName();
    OperationName(const OperationName&) = delete;
    OperationName& operator=(const OperationName&) = delete;
    // "" outside every scope.
    static QString current();
};

} // namespace qd8
