#include "browser/WebBrowser.h"
#include "support/LoopbackWebServer.h"
#include "support/ScriptedServices.h"

#include <QLineEdit>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>
#include <unistd.h>

using namespace qd8;
using namespace qd8::test;

namespace {

constexpr int PageWaitMs = 30000;

// The suite runs as root on the build machines: it accepts Chromium without its sandbox the
// way an administrator would.
void allowRoot()
{
    qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
}

bool showPage(WebBrowser& browser, const std::function<void()>& go)
{
    QSignalSpy done(&browser, &WebBrowser::DocumentComplete);
    go();
    return done.wait(PageWaitMs) && done.last().at(1).toBool();
}

// A page from a server on the loopback address: its title, the address bar, back and
// forward by keyboard, and a print to PDF that poppler reads back.
TEST(WebBrowser, ShowsLoopbackPagesGoesBackAndForthAndPrintsToPdf)
{
    allowRoot();
    LoopbackWebServer server({{"a.html", "<title>Page A</title><p>First page</p>"},
        {"b.html", "<html><head><meta charset='utf-8'><title>หน้า B</title></head><body>Second page from the loopback</body></html>"}});
    ASSERT_TRUE(server.isRunning());
    WebBrowser browser;
    ASSERT_TRUE(browser.isEmbedded());
    browser.resize(800, 600);
    browser.show();
    QSignalSpy titles(&browser, &WebBrowser::TitleChange);
    ASSERT_TRUE(showPage(browser, [&] { browser.Navigate(server.url("a.html")); }));
    EXPECT_EQ(browser.LocationName(), QStringLiteral("Page A"));
    EXPECT_EQ(browser.addressBar()->text(), server.url("a.html"));
    EXPECT_FALSE(browser.canGoBack());
    // Typed into the address bar.
    browser.addressBar()->setText(server.url("b.html"));
    ASSERT_TRUE(showPage(browser, [&] { QTest::keyClick(browser.addressBar(), Qt::Key_Return); }));
    EXPECT_EQ(browser.LocationName(), QStringLiteral("หน้า B"));
    EXPECT_TRUE(titles.contains(QVariantList{QStringLiteral("หน้า B")}));

    ASSERT_TRUE(showPage(browser, [&] { QTest::keyClick(browser.addressBar(), Qt::Key_Left, Qt::AltModifier); }));
    EXPECT_EQ(browser.LocationURL(), server.url("a.html"));
    EXPECT_TRUE(browser.canGoForward());
    ASSERT_TRUE(showPage(browser, [&] { QTest::keyClick(browser.addressBar(), Qt::Key_Right, Qt::AltModifier); }));
    EXPECT_EQ(browser.LocationURL(), server.url("b.html"));

    QTemporaryDir dir;
    const QString pdf = dir.filePath(QStringLiteral("page.pdf"));
    browser.chooseFile = [&](const QString&) { return pdf; };
    QSignalSpy printed(&browser, &WebBrowser::PrintFinished);
    QTest::keyClick(browser.addressBar(), Qt::Key_P, Qt::ControlModifier);
    ASSERT_TRUE(printed.wait(PageWaitMs));
    EXPECT_EQ(printed.first(), (QVariantList{pdf, true}));
    QProcess text;
    text.start(QStringLiteral("pdftotext"), {pdf, QStringLiteral("-")});
    ASSERT_TRUE(text.waitForFinished());
    EXPECT_TRUE(text.readAllStandardOutput().contains("Second page from the loopback"));
}

// When Chromium cannot start here the form shows nothing, says why in the session language
// and hands the page to the desktop's browser.
TEST(WebBrowser, RefusedEngineSendsThePageToTheDesktopsBrowser)
{
    struct Case {
        const char* processPath;  // QTWEBENGINE_PROCESS_PATH, nullptr for Qt's own
        const char* sandboxOff;   // QTWEBENGINE_DISABLE_SANDBOX
        bool refused;
        const char* reason;       // how the Thai message begins
    };
    const bool root = ::geteuid() == 0;
    const Case cases[] = {
        {"/nonexistent/QtWebEngineProcess", "1", true, "ไม่พบโปรแกรมช่วยของตัวแสดงเว็บ (/nonexistent/QtWebEngineProcess)"},
        {nullptr, "0", root, "โปรแกรมทำงานด้วยสิทธิ์ root"},
        {nullptr, "1", false, ""},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.reason);
        c.processPath ? qputenv("QTWEBENGINE_PROCESS_PATH", c.processPath) : qunsetenv("QTWEBENGINE_PROCESS_PATH");
        qputenv("QTWEBENGINE_DISABLE_SANDBOX", c.sandboxOff);
        EXPECT_EQ(WebBrowser::engineRefusal(0).startsWith(QString::fromUtf8(c.reason)) && !WebBrowser::engineRefusal(0).isEmpty(), c.refused);
        if (!c.refused)
            continue;
        scriptedMessages().reset();
        scriptedShell().reset();
        WebBrowser browser;
        EXPECT_FALSE(browser.isEmbedded());
        QSignalSpy closing(&browser, &WebBrowser::CloseAction);
        browser.Navigate(QStringLiteral("http://127.0.0.1:9/help.html"));
        EXPECT_EQ(scriptedShell().commands, QStringList{"url:http://127.0.0.1:9/help.html"});
        ASSERT_EQ(scriptedMessages().shown.size(), 1);
        EXPECT_TRUE(scriptedMessages().shown[0].text.startsWith(QString::fromUtf8(c.reason)));
        EXPECT_TRUE(scriptedMessages().shown[0].text.endsWith(
            QStringLiteral("จะเปิด http://127.0.0.1:9/help.html ในเว็บเบราว์เซอร์ของเครื่องแทน")));
        EXPECT_EQ(closing.size(), 1);
    }
    qunsetenv("QTWEBENGINE_PROCESS_PATH");
    // A desktop without a browser is said too.
    scriptedMessages().reset();
    scriptedShell().starts = false;
    EXPECT_FALSE(WebBrowser::openOutside(QStringLiteral("https://example.com/"), QStringLiteral("why"), 1));
    ASSERT_EQ(scriptedMessages().shown.size(), 2);
    EXPECT_EQ(scriptedMessages().shown[1].text, QStringLiteral("No program on this computer opens https://example.com/"));
}

} // namespace
