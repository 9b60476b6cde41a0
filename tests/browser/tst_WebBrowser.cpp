#include "browser/WebBrowser.h"
#include "support/LoopbackWebServer.h"

#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

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
    browser.addressBar()->setText(server.url("b.html"));
    ASSERT_TRUE(shows(browser, [&] { QTest::keyClick(browser.addressBar(), Qt::Key_Return); }));
    EXPECT_EQ(browser.LocationName(), "หน้า B");
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

} // namespace
