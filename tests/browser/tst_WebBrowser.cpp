#include "browser/WebBrowser.h"
#include "support/LoopbackWebServer.h"
#include "support/ScriptedServices.h"

#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>
#include <unistd.h>

using namespace qd8;
using namespace qd8::test;

namespace {

// Waits for the page `go` asks for; false when it did not show.
bool shows(WebBrowser& browser, const std::function<void()>& go)
{
    QSignalSpy done(&browser, &WebBrowser::DocumentComplete);
    go();
    return done.wait(30000) && done.last().at(1).toBool();
}

// Pages from a server on the loopback address: the title, the address typed, back and forward
// by keyboard, and Ctrl+P into a PDF that poppler reads back.
TEST(WebBrowser, ShowsLoopbackPagesGoesBackAndForthAndPrintsToPdf)
{
    qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");  // the suite runs as root, as an administrator would allow
    LoopbackWebServer server({{"a.html", "<title>Page A</title>"},
        {"b.html", "<meta charset='utf-8'><title>หน้า B</title><p>Second page from the loopback</p>"}});
    WebBrowser browser;
    browser.show();
    ASSERT_TRUE(shows(browser, [&] { browser.Navigate(server.url("a.html")); }));
    EXPECT_EQ(browser.LocationName(), "Page A");
    EXPECT_EQ(browser.addressBar()->text(), server.url("a.html"));
    QSignalSpy titles(&browser, &WebBrowser::TitleChange);
    browser.addressBar()->setText(server.url("b.html"));
    ASSERT_TRUE(shows(browser, [&] { QTest::keyClick(browser.addressBar(), Qt::Key_Return); }));
    EXPECT_EQ(titles.last(), QVariantList{"หน้า B"});
    for (const auto& [key, page] : {std::pair{Qt::Key_Left, "a.html"}, {Qt::Key_Right, "b.html"}}) {
        ASSERT_TRUE(shows(browser, [&, key = key] { QTest::keyClick(browser.addressBar(), key, Qt::AltModifier); }));
        EXPECT_EQ(browser.LocationURL(), server.url(page));
    }
    QTemporaryDir dir;
    browser.chooseFile = [&](const QString&) { return dir.filePath("page.pdf"); };
    QSignalSpy printed(&browser, &WebBrowser::PrintFinished);
    QTest::keyClick(browser.addressBar(), Qt::Key_P, Qt::ControlModifier);
    ASSERT_TRUE(printed.wait(30000));
    EXPECT_EQ(printed.first(), (QVariantList{dir.filePath("page.pdf"), true}));
    QProcess text;
    text.start("pdftotext", {dir.filePath("page.pdf"), "-"});
    ASSERT_TRUE(text.waitForFinished());
    EXPECT_TRUE(text.readAllStandardOutput().contains("Second page from the loopback"));
}

// Where Chromium cannot start the form shows nothing, says why in the session language and
// hands the page to the desktop's browser.
TEST(WebBrowser, RefusedEngineSendsThePageToTheDesktopsBrowser)
{
    const struct {
        const char* helper;      // QTWEBENGINE_PROCESS_PATH
        const char* sandboxOff;  // QTWEBENGINE_DISABLE_SANDBOX
        bool refused;
        const char* reason;
    } cases[] = {
        {"/nonexistent/QtWebEngineProcess", "1", true, "ไม่พบโปรแกรมช่วยของตัวแสดงเว็บ (/nonexistent/QtWebEngineProcess)"},
        {"", "0", ::geteuid() == 0, "โปรแกรมทำงานด้วยสิทธิ์ root ซึ่งตัวแสดงเว็บในโปรแกรมไม่ยอมทำงาน"}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.reason);
        qputenv("QTWEBENGINE_PROCESS_PATH", c.helper);
        qputenv("QTWEBENGINE_DISABLE_SANDBOX", c.sandboxOff);
        EXPECT_EQ(!WebBrowser::engineRefusal(0).isEmpty(), c.refused);
        if (!c.refused)
            continue;
        scriptedMessages().reset();
        scriptedShell().reset();
        WebBrowser browser;
        QSignalSpy closing(&browser, &WebBrowser::CloseAction);
        browser.Navigate("http://127.0.0.1:9/help.html");
        EXPECT_EQ(scriptedShell().commands, QStringList{"url:http://127.0.0.1:9/help.html"});
        ASSERT_EQ(scriptedMessages().shown.size(), 1);
        EXPECT_TRUE(scriptedMessages().shown[0].text.startsWith(QString::fromUtf8(c.reason)));
        EXPECT_TRUE(scriptedMessages().shown[0].text.endsWith("จะเปิด http://127.0.0.1:9/help.html ในเว็บเบราว์เซอร์ของเครื่องแทน"));
        EXPECT_EQ(closing.size(), 1);
    }
    qunsetenv("QTWEBENGINE_PROCESS_PATH");
}

} // namespace
