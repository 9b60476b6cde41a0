#include "browser/WebBrowser.h"

#include "foundation/Language.h"
#include "foundation/Services.h"

#include <QAction>
#include <QDir>
#include <QEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QLineEdit>
#include <QProgressBar>
#include <QStyle>
#include <QToolBar>
#include <QVBoxLayout>
#include <QWebEngineHistory>
#include <QWebEnginePage>
#include <QWebEngineView>
#include <unistd.h>

namespace qd8 {

class WebBrowser::Private {
public:
    QWebEngineView* view = nullptr;
    QToolBar* bar = nullptr;
    QLineEdit* address = nullptr;
    QProgressBar* progress = nullptr;
    QAction* back = nullptr;
    QAction* forward = nullptr;
    QAction* reload = nullptr;
    QAction* stop = nullptr;
    QAction* print = nullptr;
    QString requested;   // the page asked for last
    bool shown = false;  // a page has finished loading: the engine works
};

QString WebBrowser::engineRefusal(int languageId)
{
    const bool root = ::getuid() == 0 || ::geteuid() == 0;
    const bool unsandboxed = qEnvironmentVariableIntValue("QTWEBENGINE_DISABLE_SANDBOX") != 0
        || qEnvironmentVariable("QTWEBENGINE_CHROMIUM_FLAGS").split(QLatin1Char(' ')).contains(QStringLiteral("--no-sandbox"));
    if (root && !unsandboxed)
        return inLanguage(languageId,
            "โปรแกรมทำงานด้วยสิทธิ์ root ซึ่งตัวแสดงเว็บในโปรแกรมไม่ยอมทำงาน (ผู้ดูแลระบบที่ยอมรับความเสี่ยงตั้ง QTWEBENGINE_DISABLE_SANDBOX=1 ได้)",
            "The program runs as root, where the built-in web viewer refuses to start (an administrator who accepts the risk may set QTWEBENGINE_DISABLE_SANDBOX=1)");
    QString helper = qEnvironmentVariable("QTWEBENGINE_PROCESS_PATH");
    if (helper.isEmpty())
        helper = QDir(QLibraryInfo::path(QLibraryInfo::LibraryExecutablesPath)).filePath(QStringLiteral("QtWebEngineProcess"));
    if (!QFileInfo(helper).isExecutable())
        return inLanguage(languageId, "ไม่พบโปรแกรมช่วยของตัวแสดงเว็บ (%1)", "The web viewer's helper program is missing (%1)").arg(helper);
    return {};
}

bool WebBrowser::openOutside(const QString& url, const QString& reason, int languageId, ShellService* desktop)
{
    const QString title = inLanguage(languageId, "เว็บเบราว์เซอร์", "Web browser");
    Services::messages().information(title,
        reason + QLatin1Char('\n') + inLanguage(languageId, "จะเปิด %1 ในเว็บเบราว์เซอร์ของเครื่องแทน", "%1 opens in the desktop's web browser instead").arg(url));
    if ((desktop ? *desktop : Services::shell()).openUrl(url))
        return true;
    Services::messages().information(title, inLanguage(languageId, "ไม่มีโปรแกรมในเครื่องนี้ที่เปิด %1 ได้", "No program on this computer opens %1").arg(url));
    return false;
}

WebBrowser::WebBrowser(QWidget* parent)
    : HostedControl(parent)
    , d(std::make_unique<Private>())
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    d->bar = new QToolBar(this);
    d->address = new QLineEdit(d->bar);
    d->address->setObjectName(QStringLiteral("address"));
    d->progress = new QProgressBar(this);
    d->progress->setMaximumHeight(4);
    d->progress->setTextVisible(false);
    d->progress->hide();
    const auto action = [this](QKeySequence key, QStyle::StandardPixmap icon, void (WebBrowser::*slot)()) {
        auto* a = d->bar->addAction(style()->standardIcon(icon), QString(), this, slot);
        a->setShortcut(key);
        a->setShortcutContext(Qt::WidgetWithChildrenShortcut);
        addAction(a);
        return a;
    };
    d->back = action(QKeySequence(Qt::ALT | Qt::Key_Left), QStyle::SP_ArrowBack, &WebBrowser::GoBack);
    d->forward = action(QKeySequence(Qt::ALT | Qt::Key_Right), QStyle::SP_ArrowForward, &WebBrowser::GoForward);
    d->reload = action(QKeySequence(Qt::Key_F5), QStyle::SP_BrowserReload, &WebBrowser::Reload);
    d->stop = action(QKeySequence(Qt::Key_Escape), QStyle::SP_BrowserStop, &WebBrowser::Stop);
    d->bar->addWidget(d->address);
    d->print = d->bar->addAction(style()->standardIcon(QStyle::SP_DialogSaveButton), QString(), this, [this] {
        const QString file = chooseFile(QDir::home().filePath(QStringLiteral("page.pdf")));
        if (!file.isEmpty())
            PrintToPdf(file);
    });
    d->print->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_P));
    d->print->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    addAction(d->print);
    auto* focusAddress = new QAction(this);
    focusAddress->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_L));
    focusAddress->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    connect(focusAddress, &QAction::triggered, this, [this] {
        d->address->setFocus(Qt::ShortcutFocusReason);
        d->address->selectAll();
    });
    addAction(focusAddress);
    connect(d->address, &QLineEdit::returnPressed, this, [this] { Navigate(d->address->text()); });
    chooseFile = [this](const QString& suggested) {
        return QFileDialog::getSaveFileName(this, bilingual("พิมพ์เป็น PDF", "Print to PDF"), suggested, QStringLiteral("PDF (*.pdf)"));
    };
    layout->addWidget(d->bar);
    layout->addWidget(d->progress);

    // Chromium as root with its sandbox on ends the whole program: never start it then.
    if (engineRefusal(LanguageID()).isEmpty()) {
        d->view = new QWebEngineView(this);
        layout->addWidget(d->view, 1);
        setFocusProxy(d->view);
        QWebEnginePage* page = d->view->page();
        connect(d->view, &QWebEngineView::titleChanged, this, [this](const QString& title) {
            setWindowTitle(title);
            Q_EMIT TitleChange(title);
        });
        connect(d->view, &QWebEngineView::urlChanged, this, [this](const QUrl& url) {
            d->address->setText(url.toDisplayString());
            d->back->setEnabled(canGoBack());
            d->forward->setEnabled(canGoForward());
        });
        connect(d->view, &QWebEngineView::loadStarted, this, [this] {
            d->progress->setValue(0);
            d->progress->show();
            d->stop->setEnabled(true);
        });
        connect(d->view, &QWebEngineView::loadProgress, this, [this](int percent) {
            d->progress->setValue(percent);
            Q_EMIT ProgressChange(percent);
        });
        connect(d->view, &QWebEngineView::loadFinished, this, [this](bool ok) {
            d->progress->hide();
            d->stop->setEnabled(false);
            d->shown = d->shown || ok;
            d->back->setEnabled(canGoBack());
            d->forward->setEnabled(canGoForward());
            Q_EMIT DocumentComplete(LocationURL(), ok);
        });
        connect(page, &QWebEnginePage::pdfPrintingFinished, this, [this](const QString& file, bool ok) {
            if (!ok)
                Services::messages().information(bilingual("พิมพ์เป็น PDF", "Print to PDF"),
                    bilingual("เขียน %1 ไม่ได้", "Could not write %1").arg(file));
            Q_EMIT PrintFinished(file, ok);
        });
        connect(page, &QWebEnginePage::renderProcessTerminated, this,
            [this](QWebEnginePage::RenderProcessTerminationStatus, int code) {
                // Before any page showed, the engine cannot work here; later a page's crash
                // is the page's own and Reload tries again.
                if (!d->shown)
                    fallBack(d->requested, bilingual("ตัวแสดงเว็บหยุดทำงาน (รหัส %1)", "The web viewer stopped (code %1)").arg(code));
            });
    }
    d->back->setEnabled(false);
    d->forward->setEnabled(false);
    d->stop->setEnabled(false);
    changeEvent(nullptr);
}

WebBrowser::~WebBrowser() = default;

void WebBrowser::changeEvent(QEvent* event)
{
    if (!event || event->type() == QEvent::LanguageChange) {
        const auto word = [this](QAction* a, const char* thai, const char* english) {
            a->setText(bilingual(thai, english));
            a->setToolTip(a->text() + QStringLiteral(" (") + a->shortcut().toString(QKeySequence::NativeText) + QLatin1Char(')'));
        };
        word(d->back, "ย้อนกลับ", "Back");
        word(d->forward, "ไปข้างหน้า", "Forward");
        word(d->reload, "โหลดใหม่", "Reload");
        word(d->stop, "หยุด", "Stop");
        word(d->print, "พิมพ์เป็น PDF", "Print to PDF");
        d->address->setAccessibleName(bilingual("ที่อยู่เว็บ", "Address"));
        d->progress->setAccessibleName(bilingual("ความคืบหน้า", "Progress"));
        if (d->view)
            d->view->setAccessibleName(bilingual("หน้าเว็บ", "Web page"));
    }
    if (event)
        HostedControl::changeEvent(event);
}

void WebBrowser::fallBack(const QString& url, const QString& reason)
{
    openOutside(url, reason, LanguageID(), desktop);
    Q_EMIT CloseAction();
}

void WebBrowser::Navigate(const QString& url)
{
    const QUrl target = QUrl::fromUserInput(url);
    d->requested = target.toString();
    d->address->setText(target.toDisplayString());
    if (!d->view)
        fallBack(d->requested, engineRefusal(LanguageID()));
    else
        d->view->load(target);
}

void WebBrowser::GoBack() { if (d->view) d->view->back(); }
void WebBrowser::GoForward() { if (d->view) d->view->forward(); }
void WebBrowser::Reload() { if (d->view) d->view->reload(); }
void WebBrowser::Stop() { if (d->view) d->view->stop(); }

void WebBrowser::PrintToPdf(const QString& fileName)
{
    if (d->view)
        d->view->page()->printToPdf(fileName);
}

QString WebBrowser::LocationURL() const { return d->view ? d->view->url().toString() : d->requested; }
QString WebBrowser::LocationName() const { return d->view ? d->view->title() : QString(); }
bool WebBrowser::canGoBack() const { return d->view && d->view->history()->canGoBack(); }
bool WebBrowser::canGoForward() const { return d->view && d->view->history()->canGoForward(); }
bool WebBrowser::isEmbedded() const { return d->view; }
QLineEdit* WebBrowser::addressBar() const { return d->address; }
QProgressBar* WebBrowser::progressBar() const { return d->progress; }

} // namespace qd8
