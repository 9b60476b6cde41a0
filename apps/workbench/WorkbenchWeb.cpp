#include "WorkbenchWeb.h"

#include "WorkbenchWindow.h"
#include "browser/WebBrowser.h"
#include "foundation/DbError.h"
#include "foundation/Language.h"
#include "navigation/OemSettings.h"

#include <QTabWidget>
#include <QUrl>

namespace qd8 {

WorkbenchWeb::WorkbenchWeb(WorkbenchWindow& window)
    : m_window(window)
    , m_desktop(&Services::shell())
{
    Services::setShell(this);
}

WorkbenchWeb::~WorkbenchWeb()
{
    if (&Services::shell() == this)
        Services::setShell(m_desktop);
}

bool WorkbenchWeb::run(const QString& commandLine, int windowStyle)
{
    return m_desktop->run(commandLine, windowStyle);
}

bool WorkbenchWeb::openUrl(const QString& url)
{
    if (!isWebAddress(url))
        return m_desktop->openUrl(url);
    m_window.openWebPage(url, QString(), url);
    return true;
}

bool WorkbenchWeb::isWebAddress(const QString& text)
{
    const QUrl url(text.trimmed(), QUrl::StrictMode);
    return url.isValid() && (url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https")) && !url.host().isEmpty();
}

void WorkbenchWindow::openWebCommand(const QString& alias, const QString& caption)
{
    const QString address = OemSettings(m_session.appPath).value(alias);
    if (!WorkbenchWeb::isWebAddress(address)) {
        const QString message = text("คำสั่งเว็บ \"%1\" (%2) ยังไม่มีที่อยู่เว็บ: ใส่ %2=<ที่อยู่> ในส่วน [OEM] ของ QD8STARTUP.INI",
            "The web command \"%1\" (%2) has no web address: set %2=<address> in the [OEM] section of QD8STARTUP.INI")
                                    .arg(caption, alias);
        showStatus(message);
        Services::messages().information(windowTitle(), message);
        return;
    }
    openWebPage(address, caption, alias);
}

void WorkbenchWindow::openWebPage(const QString& url, const QString& caption, const QString& key)
{
    for (int i = 0; i < m_tabs->count(); ++i)
        if (tabCommand(i) == key) {
            m_tabs->setCurrentIndex(i);
            return;
        }
    const QString refusal = WebBrowser::engineRefusal(m_session.languageId);
    if (!refusal.isEmpty()) {
        showStatus(refusal);
        WebBrowser::openOutside(url, refusal, m_session.languageId, &m_web->desktop());
        return;
    }
    auto* browser = new WebBrowser(m_tabs);
    browser->setProperty(CommandProperty, key);
    browser->desktop = &m_web->desktop();
    try {
        setUpControl(*browser, QString(), QString());
    } catch (const DbError& error) {
        showStatus(error);  // the page still shows, worded in Thai
    }
    connectEvents(browser);  // CloseAction: the page went to the desktop's browser
    const int index = m_tabs->addTab(browser, caption.isEmpty() ? url : caption);
    m_tabs->setCurrentIndex(index);
    if (caption.isEmpty())
        connect(browser, &WebBrowser::TitleChange, this, [this, browser](const QString& title) {
            const int at = m_tabs->indexOf(browser);
            if (at >= 0 && !title.isEmpty())
                m_tabs->setTabText(at, title);
        });
    browser->Navigate(url);
    showStatus(text("เปิด %1", "Opened %1").arg(url));
    Q_EMIT formOpened(key);
}

} // namespace qd8
