#include "widgets/SendKeys.h"

#include <QApplication>
#include <QLineEdit>
#include <QTest>
#include <QVBoxLayout>
#include <gtest/gtest.h>

using namespace qd8;

namespace {

// Two line edits in a window that has the focus, as the voucher grid's editors would.
class SendKeysTest : public testing::Test {
protected:
    void SetUp() override
    {
        auto* layout = new QVBoxLayout(&window);
        first = new QLineEdit(&window);
        second = new QLineEdit(&window);
        layout->addWidget(first);
        layout->addWidget(second);
        window.show();
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        first->setFocus();
        QApplication::processEvents();
    }
    QWidget window;
    QLineEdit* first = nullptr;
    QLineEdit* second = nullptr;
};

TEST_F(SendKeysTest, TypesTextModifiersNamedKeysAndRepeats)
{
    struct Case { const char* keys; const char* text; };
    const Case cases[] = {
        {"abc", "abc"},
        {"+ab", "Ab"},
        {"+(ab)c", "ABc"},
        {"ab{BS}", "a"},
        {"abc{LEFT 2}x", "axbc"},
        {"{+}{^}{%}{~}{{}{}}", "+^%~{}"},
        {"12{HOME}{DEL}", "2"},
    };
    for (const Case& c : cases) {
        first->clear();
        first->setFocus();
        SendKeys(QString::fromLatin1(c.keys), true);
        EXPECT_EQ(first->text(), QString::fromLatin1(c.text)) << c.keys;
    }
}

TEST_F(SendKeysTest, TabMovesOnAndClipboardChordsWork)
{
    SendKeys(QStringLiteral("ใบสำคัญ"), true);
    EXPECT_EQ(first->text(), QStringLiteral("ใบสำคัญ"));
    SendKeys(QStringLiteral("{HOME}+{END}^C{TAB}"), true);
    EXPECT_TRUE(second->hasFocus());
    SendKeys(QStringLiteral("^V"), false);  // queued: arrives with the event loop
    QApplication::processEvents();
    EXPECT_EQ(second->text(), QStringLiteral("ใบสำคัญ"));
    SendKeys(QStringLiteral("^A^X"), true);
    EXPECT_EQ(second->text(), QString());
}

TEST_F(SendKeysTest, MalformedStringsAreIgnored)
{
    for (const char* keys : {"{TAB", "(ab", "ab)", "{NOSUCHKEY}", "{DOWN x}"}) {
        SendKeys(QString::fromLatin1(keys), true);
        EXPECT_EQ(first->text(), QString()) << keys;
        EXPECT_TRUE(first->hasFocus()) << keys;
    }
}

} // namespace
