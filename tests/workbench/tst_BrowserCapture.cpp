#include "support/LoopbackWebServer.h"
#include "support/SampleCompany.h"
#include "support/ScriptedServices.h"

#include "WorkbenchForms.h"
#include "WorkbenchSession.h"
#include "WorkbenchWindow.h"
#include "attachments/ClientCapture.h"
#include "browser/WebBrowser.h"
#include "navigation/NUVRibbon.h"
#include "widgets/Ribbon.h"

#include <QToolButton>
#include <QSettings>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTemporaryDir>

using namespace qd8;
using namespace qd8::test;

namespace {

class BrowserCaptureTest : public SampleCompanyTest {
protected:
    void SetUp() override
    {
        SampleCompanyTest::SetUp();
        if (IsSkipped())
            return;
        registerWorkbenchForms();
        session = WorkbenchSession::fromConnectionStrings(appConnectionString(), dataConnectionString(), files.path());
        ASSERT_TRUE(session.logIn(QStringLiteral("JOHN"), QStringLiteral("1234")));
    }
    QTemporaryDir files;
    WorkbenchSession session;
};

// The help menu's pages, a web command and a web address raised through Lunch open in a
// browser tab; a mail address still goes to the desktop, and so does every page once the
// engine is refused.
TEST_P(BrowserCaptureTest, WebPagesOpenInBrowserTabsUnlessTheEngineIsRefused)
{
    qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");  // the suite runs as root
    LoopbackWebServer server({{"news.html", "<title>News</title>"}, {"rates.html", "<title>Rates</title>"}});
    ASSERT_TRUE(server.isRunning());
    QSettings startup(files.filePath("QD8STARTUP.INI"), QSettings::IniFormat);
    startup.setValue("OEM/NEWSURL", server.url("news.html"));
    startup.setValue("OEM/CENTERFXRATE", server.url("rates.html"));
    startup.sync();
    WorkbenchWindow window(session);
    window.show();
    const struct {
        std::function<void()> open;
        QString url;
        QString tab;  // its caption once the page showed
    } cases[] = {
        {[&] { window.ribbon()->ribbon()->button("NEWS")->click(); }, server.url("news.html"), "News"},
        {[&] { window.launch("CENTERFXRATE"); }, server.url("rates.html"), "Exchange Rates (Bank of Thailand)"},
        {[&] { window.launch(server.url("rates.html")); }, server.url("rates.html"), "Rates"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.tab.toStdString());
        const int tabs = window.tabs()->count();
        c.open();
        auto* browser = qobject_cast<WebBrowser*>(window.tabs()->currentWidget());
        ASSERT_TRUE(browser);
        EXPECT_EQ(window.tabs()->count(), tabs + 1);
        QSignalSpy done(browser, &WebBrowser::DocumentComplete);
        ASSERT_TRUE(done.wait(30000));
        EXPECT_EQ(done.last(), (QVariantList{c.url, true}));
        EXPECT_EQ(window.tabs()->tabText(window.tabs()->currentIndex()), c.tab);
        c.open();  // again: the same tab
        EXPECT_EQ(window.tabs()->count(), tabs + 1);
    }
    EXPECT_EQ(scriptedShell().commands, QStringList());
    window.ribbon()->ribbon()->button("EMAIL")->click();
    EXPECT_EQ(scriptedShell().commands, QStringList{"url:mailto:support@qd8suite.com"});

    qputenv("QTWEBENGINE_PROCESS_PATH", "/nonexistent/QtWebEngineProcess");
    scriptedShell().reset();
    const int tabs = window.tabs()->count();
    window.launch("http://127.0.0.1:9/elsewhere.html");
    qunsetenv("QTWEBENGINE_PROCESS_PATH");
    EXPECT_EQ(window.tabs()->count(), tabs);
    EXPECT_EQ(scriptedShell().commands, QStringList{"url:http://127.0.0.1:9/elsewhere.html"});
    ASSERT_FALSE(scriptedMessages().shown.isEmpty());
    EXPECT_TRUE(scriptedMessages().shown.last().text.startsWith("The web viewer's helper program is missing"));
}

// The capture button of a document form keeps a picture of the window with the document's
// paper copies, named after the document; a document not saved yet keeps nothing.
TEST_P(BrowserCaptureTest, DocumentFormsCaptureIntoTheDocumentsFolder)
{
    runOnData({"INSERT INTO QD8TPR (TPRDNo, TPRDDescription, TPRDDate) VALUES ('PR0042', 'Paper', '2026-01-15')"});
    WorkbenchWindow window(session);
    window.show();
    for (const auto& [mode, expected] : {std::pair{"EDIT", "HardCopy/QD8TPR/PR0042.PNG"}, {"ADD", ""}}) {
        QWidget* form = window.add("DOCPR");
        ASSERT_TRUE(form);
        form->setProperty("RUNMODE", QString::fromLatin1(mode));
        form->setProperty("NewDocNo", QStringLiteral("PR0042"));
        form->setProperty("DocNo", QStringLiteral("PR0042"));
        QMetaObject::invokeMethod(form, "FillData");
        auto* capture = form->findChild<ClientCapture*>("capture");
        ASSERT_TRUE(capture);
        capture->crop = [](const QImage& picture) { return std::optional<QRect>(picture.rect()); };
        const QString file = capture->CaptureWindow();
        EXPECT_EQ(file, *expected ? QDir(files.path()).filePath(QString::fromLatin1(expected)) : QString());
        if (*expected)
            EXPECT_EQ(QImage(file).size(), window.size());
        EXPECT_EQ(scriptedMessages().shown.last().text,
            *expected ? QStringLiteral("Kept PR0042.PNG") : QStringLiteral("Save the document first, then capture a picture for it"));
        window.closeForm(form);
    }
}

QD8_ON_BOTH_ENGINES(BrowserCaptureTest);

} // namespace
