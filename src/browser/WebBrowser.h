#pragma once

#include "widgets/HostedControl.h"

#include <functional>
#include <memory>

class QLineEdit;
class QProgressBar;

namespace qd8 {

class ShellService;

// The web pages of the help menu and the web commands, shown inside the program on Qt
// WebEngine: back (Alt+Left), forward (Alt+Right), reload (F5), stop (Esc), the address
// (Ctrl+L), print to PDF (Ctrl+P), the page's title and how far it has loaded.
//
// Chromium cannot run everywhere: as root it refuses to start with its sandbox on (and ends
// the whole program), and without its helper program it shows nothing. engineRefusal() says
// so before anything is started; a form made while the engine is refused, or whose page
// process dies before its first page showed, says why in the session language and hands the
// page to the desktop's browser (the `desktop` shell), then raises CloseAction.
//
// Linked as its own library (QD8Designer2::Browser), so that a host without web pages does
// not load Chromium.
class WebBrowser : public HostedControl {
    Q_OBJECT
    Q_PROPERTY(QString LocationURL READ LocationURL)
    Q_PROPERTY(QString LocationName READ LocationName)

public:
    explicit WebBrowser(QWidget* parent = nullptr);
    ~WebBrowser() override;

    // Why Qt WebEngine cannot run in this program, in the language; "" when it can. Read
    // afresh on every call: the user (root or not), QTWEBENGINE_DISABLE_SANDBOX or
    // --no-sandbox in QTWEBENGINE_CHROMIUM_FLAGS, the helper program
    // (QTWEBENGINE_PROCESS_PATH, else Qt's own).
    static QString engineRefusal(int languageId);
    // Says `reason` in a message and opens the page with the desktop's browser (the shell
    // service in force when `desktop` is null); false when no program opened it, which is said too.
    static bool openOutside(const QString& url, const QString& reason, int languageId, ShellService* desktop = nullptr);

    // Shows the page (an address as typed: "example.com" is read as http://example.com).
    Q_INVOKABLE void Navigate(const QString& url);
    Q_INVOKABLE void GoBack();
    Q_INVOKABLE void GoForward();
    Q_INVOKABLE void Reload();
    Q_INVOKABLE void Stop();
    // Prints the page shown into a PDF file; PrintFinished tells when it is written.
    Q_INVOKABLE void PrintToPdf(const QString& fileName);
    QString LocationURL() const;
    // The page's title.
    QString LocationName() const;
    bool canGoBack() const;
    bool canGoForward() const;
    // False when the engine was refused: the form shows nothing.
    bool isEmbedded() const;
    QLineEdit* addressBar() const;
    QProgressBar* progressBar() const;

    // The shell that opens pages outside the program; the one in force when null. A host that
    // routes web addresses of the shell service into this form sets the desktop's own here.
    ShellService* desktop = nullptr;
    // The PDF file Ctrl+P prints into, "" to give up; the save dialog by default.
    std::function<QString(const QString& suggested)> chooseFile;

Q_SIGNALS:
    void TitleChange(QString Text);
    void ProgressChange(int Progress);
    void DocumentComplete(QString URL, bool Success);
    void PrintFinished(QString FileName, bool Success);
    // The page went to the desktop's browser; the host closes the form.
    void CloseAction();

protected:
    void changeEvent(QEvent* event) override;

private:
    void fallBack(const QString& url, const QString& reason);
    class Private;
    std::unique_ptr<Private> const d;
};

} // namespace qd8
