#include "attachments/HardCopyScan.h"

#include <QAbstractButton>
#include <QSignalSpy>
#include <gtest/gtest.h>

using namespace qd8;

namespace {

// What a strip shows after DefaultSuffix was set to `list`, and what each button raises.
TEST(HardCopyScan, TypeButtonsFollowTheSuffixList)
{
    struct Case {
        const char* list;
        bool changeFolder;
        QStringList captions;  // of the visible type buttons, in order
    };
    const Case cases[] = {
        {nullptr, false, {"PDF", "TIF", "JPG", "DWG"}},  // the default
        {"", false, {"PDF", "TIF", "JPG", "DWG"}},       // changes nothing
        {"XLS", false, {"XLS"}},
        {"A,B", false, {"A", "B"}},
        {"A,B,C", false, {"A", "B", "C"}},
        {"PDF,TIF,JPG,DWG,XLS", false, {"PDF", "TIF", "JPG", "DWG"}},
        {"PDF,TIF,JPG,DWG,XLS", true, {"PDF", "TIF", "JPG"}},  // change-folder in the fourth's place
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.list ? c.list : "(default)");
        HardCopyScan strip;
        if (c.list)
            strip.setDefaultSuffix(QString::fromLatin1(c.list));
        strip.setChangeFolderActive(c.changeFolder);
        strip.setEditStatus(true);
        QSignalSpy clicks(&strip, &HardCopyScan::ButtonClick);
        QStringList shown;
        QList<QVariantList> expected;
        for (int i = 0; i <= HardCopyScan::ChangeIndex; ++i) {
            QAbstractButton* b = strip.button(i);
            if (b->isHidden())
                continue;
            if (i < HardCopyScan::TypeButtonCount)
                shown << b->text();
            b->click();
            expected << QVariantList{i, i == 4 ? QString("FOLDER") : i == 5 ? QString("CHANGE") : b->text()};
        }
        EXPECT_EQ(shown, c.captions);
        EXPECT_EQ(QList<QVariantList>(clicks.begin(), clicks.end()), expected);
        EXPECT_EQ(strip.button(HardCopyScan::ChangeIndex)->isHidden(), !c.changeFolder);
        strip.setEditStatus(false);  // the folder buttons only while editing
        EXPECT_FALSE(strip.button(HardCopyScan::FolderIndex)->isEnabled() || strip.button(HardCopyScan::ChangeIndex)->isEnabled());
    }
}

} // namespace
