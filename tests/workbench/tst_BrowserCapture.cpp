#include "support/LoopbackWebServer.h"
#include "support/SampleCompany.h"
#include "support/ScriptedServices.h"

#include "WorkbenchForms.h"
#include "WorkbenchWindow.h"
#include "attachments/ClientCapture.h"
#include "browser/WebBrowser.h"
#include "navigation/NUVRibbon.h"
#include "widgets/Ribbon.h"

#include <QSettings>
#include <QSignalSpy>
#include <QTabWidget>
#include <QToolButton>
#include <unistd.h>

using namespace qd8;
using namespace qd8::test;

namespace {

class BrowserCaptureTest : public SampleCompanyTest {
protected:
    // John (English) logged in to the company whose files are in `files`.
    WorkbenchSession johnsSession()
    {
        registerWorkbenchForms();
        WorkbenchSession s = WorkbenchSession::fromConnectionStrings(appConnectionString(), dataConnectionString(), files.path());
        EXPECT_TRUE(s.logIn("JOHN", "1234"));
        return s;
    }
    QTemporaryDir files;
};

// A help-menu page, a web command and a web address raised through Lunch open in a browser tab
// (asked again, the same tab); a mail address still goes to the desktop, and so does a page
// once the engine is refused.
TEST_P(BrowserCaptureTest, WebPagesOpenInBrowserTabsUnlessTheEngineIsRefused)
{
    qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
    LoopbackWebServer server({{"news.html", "<title>News</title>"}, {"rates.html", "<title>Rates</title>"}});
    QSettings startup(files.filePath("QD8STARTUP.INI"), QSettings::IniFormat);
    startup.setValue("OEM/NEWSURL", server.url("news.html"));
    startup.setValue("OEM/CENTERFXRATE", server.url("rates.html"));
    startup.sync();
    WorkbenchWindow window(johnsSession());
    window.show();
    const struct {
        std::function<void()> open;
        QString url;
        QString tab;
    } cases[] = {
        {[&] { window.ribbon()->ribbon()->button("NEWS")->click(); }, server.url("news.html"), "News"},
        {[&] { window.launch("CENTERFXRATE"); }, server.url("rates.html"), "Exchange Rates (Bank of Thailand)"},
        {[&] { window.launch(server.url("rates.html")); }, server.url("rates.html"), "Rates"},
    };
    for (int i = 0; i < 3; ++i) {
        cases[i].open();
        auto* browser = qobject_cast<WebBrowser*>(window.tabs()->currentWidget());
        ASSERT_TRUE(browser) << i;
        QSignalSpy done(browser, &WebBrowser::DocumentComplete);
        ASSERT_TRUE(done.wait(30000));
        EXPECT_EQ(done.last(), (QVariantList{cases[i].url, true}));
        EXPECT_EQ(window.tabs()->tabText(i), cases[i].tab);
        cases[i].open();
        EXPECT_EQ(window.tabs()->count(), i + 1);
    }
    window.ribbon()->ribbon()->button("EMAIL")->click();
    EXPECT_EQ(scriptedShell().commands, QStringList{"url:mailto:support@qd8suite.com"});

    // Refused (Chromium's helper missing; as root, the sandbox on, which would end the
    // program): the page goes to the desktop with the reason, and no tab opens.
    for (const auto& [helper, sandboxOff, reason] : {std::tuple{"/nonexistent/QtWebEngineProcess", "1", "The web viewer's helper program is missing"},
             {"", "0", "The program runs as root, where the built-in web viewer refuses to start"}}) {
        if (*helper == 0 && ::geteuid() != 0)
            continue;
        qputenv("QTWEBENGINE_PROCESS_PATH", helper);
        qputenv("QTWEBENGINE_DISABLE_SANDBOX", sandboxOff);
        scriptedMessages().reset();
        window.launch("http://127.0.0.1:9/x.html");
        EXPECT_EQ(window.tabs()->count(), 3);
        EXPECT_EQ(scriptedShell().commands.last(), "url:http://127.0.0.1:9/x.html");
        EXPECT_TRUE(scriptedMessages().shown.value(0).text.startsWith(reason)) << reason;
    }
    qunsetenv("QTWEBENGINE_PROCESS_PATH");
}

// A document form's Capture keeps a picture of the window with the document's paper copies;
// without a camera the user is told so in his language.
TEST_P(BrowserCaptureTest, DocumentFormsCaptureIntoTheDocumentsFolder)
{
    runOnData({"INSERT INTO QD8TPR (TPRDNo, TPRDDescription, TPRDDate) VALUES ('PR0042', 'Paper', '2026-01-15')"});
    WorkbenchWindow window(johnsSession());
    window.show();
    QWidget* form = window.add("DOCPR");
    form->setProperty("RUNMODE", "EDIT");
    form->setProperty("DocNo", "PR0042");
    QMetaObject::invokeMethod(form, "FillData");
    auto* capture = form->findChild<ClientCapture*>("capture");
    capture->crop = [](const QImage& picture) { return std::optional<QRect>(picture.rect()); };
    const QString file = capture->CaptureWindow();
    EXPECT_EQ(file, files.filePath("HardCopy/QD8TPR/PR0042.PNG"));
    EXPECT_EQ(QImage(file).size(), window.size());
    EXPECT_EQ(scriptedMessages().shown.last().text, "Kept PR0042.PNG");
    if (!ClientCapture::HasCamera()) {  // said in the user's language, not raised as an error
        EXPECT_EQ(capture->CaptureCamera(), QString());
        EXPECT_EQ(scriptedMessages().shown.last().text, "There is no camera on this computer; you can capture the screen or a window instead");
    }
}

QD8_ON_BOTH_ENGINES(BrowserCaptureTest);

} // namespace
