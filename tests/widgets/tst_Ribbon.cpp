#include "widgets/Ribbon.h"

#include <QApplication>
#include <QLabel>
#include <QPainter>
#include <QPointer>
#include <QSignalSpy>
#include <QTabBar>
#include <QTest>
#include <QToolButton>

#include <gtest/gtest.h>

using namespace qd8;

namespace {

QIcon squareIcon(const QColor& color, int size)
{
    QPixmap pixmap(size, size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.fillRect(2, 2, size - 4, size - 4, color);
    return QIcon(pixmap);
}

QString s(const char* utf8)
{
    return QString::fromUtf8(utf8);
}

// Home: Documents (three large buttons, one without an icon) and Clipboard (a large button
// and four small ones: three in a column, the fourth in a column of its own).
// Reports: Print, with a button whose key repeats one on Home.
class RibbonTest : public testing::Test {
protected:
    void SetUp() override
    {
        ribbon.addTab(s("HOME"), s("หน้าหลัก"));
        ribbon.addTab(s("REPORT"), s("รายงาน"));
        ribbon.addGroup(s("HOME"), s("DOC"), s("เอกสาร"));
        ribbon.addGroup(s("HOME"), s("CLIP"), s("Clipboard"));
        ribbon.addGroup(s("REPORT"), s("PRINT"), s("พิมพ์"));
        large(s("HOME"), s("DOC"), s("NEW"), s("สร้าง\nใหม่"));
        large(s("HOME"), s("DOC"), s("SAVE"), s("บันทึก"));
        ASSERT_NE(ribbon.addButton(s("HOME"), s("DOC"), s("HARDCOPY"), s("Hard\ncopy")), nullptr);
        large(s("HOME"), s("CLIP"), s("PASTE"), s("Paste"));
        for (const char* key : {"CUT", "COPY", "FMT", "CLEAR"})
            small(s("HOME"), s("CLIP"), s(key), s(key).toLower());
        large(s("REPORT"), s("PRINT"), s("SAVE"), s("บันทึกเป็น\nไฟล์"));
        large(s("REPORT"), s("PRINT"), s("PREVIEW"), s("ดูก่อนพิมพ์"));
        ribbon.resize(ribbon.sizeHint());
        ribbon.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&ribbon));
        settle();
    }

    QToolButton* large(const QString& tab, const QString& group, const QString& key, const QString& caption)
    {
        QToolButton* button = ribbon.addButton(tab, group, key, caption, squareIcon(Qt::darkBlue, 32));
        EXPECT_NE(button, nullptr) << key.toStdString();
        return button;
    }
    QToolButton* small(const QString& tab, const QString& group, const QString& key, const QString& caption)
    {
        QToolButton* button = ribbon.addButton(tab, group, key, caption, {}, squareIcon(Qt::darkRed, 16), Ribbon::ButtonSize::Small);
        EXPECT_NE(button, nullptr) << key.toStdString();
        return button;
    }
    // Lets posted layout requests run, so geometries are final.
    static void settle()
    {
        for (int i = 0; i < 3; ++i)
            QApplication::processEvents();
    }
    QTabBar* tabBar() { return ribbon.findChild<QTabBar*>(); }
    // The group's framed box, found by its caption (the accessible name).
    QWidget* groupBox(const QString& caption)
    {
        for (QWidget* box : ribbon.findChildren<QWidget*>(QStringLiteral("ribbonGroup"))) {
            if (box->accessibleName() == caption)
                return box;
        }
        return nullptr;
    }
    QLabel* captionOf(QWidget* box) { return box->findChild<QLabel*>(QStringLiteral("ribbonGroupCaption")); }
    // A right click as the window system delivers it, so Qt makes the context-menu event.
    void rightClick(QWidget* target, const QPoint& pos)
    {
        QTest::mouseClick(ribbon.windowHandle(), Qt::RightButton, {}, target->mapTo(&ribbon, pos));
    }
    QRect inRibbon(const QWidget* widget) { return QRect(widget->mapTo(&ribbon, QPoint(0, 0)), widget->size()); }
    QList<QToolButton*> shownButtons()
    {
        QList<QToolButton*> shown;
        for (QToolButton* b : ribbon.findChildren<QToolButton*>()) {
            if (b->isVisible() && b->property("ribbonKey").isValid())
                shown << b;
        }
        return shown;
    }

    Ribbon ribbon;
};

TEST_F(RibbonTest, TabsGroupsAndButtonsKeepTheirOrderAndExactKeys)
{
    ribbon.addGroup(s("HOME"), s("VIEW"), s("มุมมอง"));  // added after the other tab: still Home's last group
    settle();
    EXPECT_EQ(ribbon.tabKeys(), QStringList({"HOME", "REPORT"}));
    EXPECT_EQ(ribbon.groupKeys(s("HOME")), QStringList({"DOC", "CLIP", "VIEW"}));
    EXPECT_EQ(ribbon.buttonKeys(s("HOME"), s("CLIP")), QStringList({"PASTE", "CUT", "COPY", "FMT", "CLEAR"}));
    EXPECT_EQ(ribbon.buttonKeys(s("HOME"), s("DOC")), QStringList({"NEW", "SAVE", "HARDCOPY"}));
    EXPECT_EQ(QStringList({tabBar()->tabText(0), tabBar()->tabText(1)}), QStringList({"หน้าหลัก", "รายงาน"}));
    // Display order is insertion order on the screen too.
    EXPECT_LT(inRibbon(groupBox(s("เอกสาร"))).right(), inRibbon(groupBox(s("Clipboard"))).left());
    EXPECT_LT(inRibbon(groupBox(s("Clipboard"))).right(), inRibbon(groupBox(s("มุมมอง"))).left());

    // Keys are exact: another case is another key.
    EXPECT_FALSE(ribbon.hasTab(s("home")));
    EXPECT_TRUE(ribbon.groupKeys(s("home")).isEmpty());
    EXPECT_EQ(ribbon.button(s("save")), nullptr);

    // A key used on two tabs: the first tab's button, unless the place is named.
    QToolButton *homeSave = ribbon.button(s("HOME"), s("DOC"), s("SAVE")), *reportSave = ribbon.button(s("REPORT"), s("PRINT"), s("SAVE"));
    ASSERT_TRUE(homeSave && reportSave && homeSave != reportSave);
    EXPECT_EQ(ribbon.button(s("SAVE")), homeSave);
    EXPECT_EQ(ribbon.button(s("PREVIEW")), ribbon.button(s("REPORT"), s("PRINT"), s("PREVIEW")));

    ribbon.setCurrentTab(s("REPORT"));
    EXPECT_EQ(ribbon.currentTab(), s("REPORT"));
    ribbon.setCurrentTab(s("NOPE"));
    EXPECT_EQ(ribbon.currentTab(), s("REPORT"));
}

TEST_F(RibbonTest, ARepeatedTabOrGroupKeyKeepsOneAndTakesTheNewCaption)
{
    ribbon.addTab(s("HOME"), s("Home"));
    EXPECT_EQ(ribbon.tabKeys(), QStringList({"HOME", "REPORT"}));
    EXPECT_EQ(tabBar()->tabText(0), s("Home"));

    QWidget* box = groupBox(s("เอกสาร"));
    ASSERT_NE(box, nullptr);
    ribbon.addGroup(s("HOME"), s("DOC"), s("Documents"));
    EXPECT_EQ(ribbon.groupKeys(s("HOME")), QStringList({"DOC", "CLIP"}));
    EXPECT_EQ(captionOf(box)->text(), s("Documents"));
    EXPECT_EQ(ribbon.buttonKeys(s("HOME"), s("DOC")), QStringList({"NEW", "SAVE", "HARDCOPY"}));

    // The same group key on another tab is another group.
    ribbon.addGroup(s("REPORT"), s("DOC"), s("Report documents"));
    EXPECT_EQ(ribbon.groupKeys(s("REPORT")), QStringList({"PRINT", "DOC"}));
    EXPECT_EQ(ribbon.groupCaption(s("HOME"), s("DOC")), s("Documents"));
}

TEST_F(RibbonTest, ButtonsAndGroupsNeedAPlaceThatExists)
{
    const struct { const char* tab; const char* group; } missing[] = {
        {"NOPE", "DOC"},
        {"HOME", "NOPE"},
        {"REPORT", "DOC"},  // a group of another tab
        {"home", "DOC"},
        {"", ""},
    };
    const qsizetype buttons = ribbon.findChildren<QToolButton*>().size();
    for (const auto& c : missing) {
        EXPECT_EQ(ribbon.addButton(s(c.tab), s(c.group), s("X"), s("X"), squareIcon(Qt::red, 32)), nullptr) << c.tab << "/" << c.group;
        EXPECT_TRUE(ribbon.buttonKeys(s(c.tab), s(c.group)).isEmpty());
    }
    EXPECT_EQ(ribbon.findChildren<QToolButton*>().size(), buttons);
    EXPECT_EQ(ribbon.button(s("X")), nullptr);

    ribbon.addGroup(s("NOPE"), s("G"), s("Group"));
    EXPECT_FALSE(ribbon.hasTab(s("NOPE")));
    EXPECT_TRUE(ribbon.groupKeys(s("NOPE")).isEmpty());
    EXPECT_EQ(groupBox(s("Group")), nullptr);
}

TEST_F(RibbonTest, ClearGroupAndRemoveTabDeleteTheirWidgets)
{
    // A button its host deletes is forgotten.
    delete ribbon.button(s("NEW"));
    EXPECT_EQ(ribbon.buttonKeys(s("HOME"), s("DOC")), QStringList({"SAVE", "HARDCOPY"}));
    EXPECT_EQ(ribbon.button(s("NEW")), nullptr);
    settle();

    const QPoint firstPlace = inRibbon(ribbon.button(s("PASTE"))).topLeft();
    QPointer<QToolButton> paste = ribbon.button(s("PASTE")), clear = ribbon.button(s("CLEAR"));
    ribbon.clearGroup(s("HOME"), s("CLIP"));
    EXPECT_TRUE(paste.isNull() && clear.isNull());
    EXPECT_TRUE(ribbon.buttonKeys(s("HOME"), s("CLIP")).isEmpty());
    EXPECT_EQ(ribbon.groupKeys(s("HOME")), QStringList({"DOC", "CLIP"}));
    EXPECT_EQ(ribbon.button(s("CUT")), nullptr);

    // The group starts over: the next button takes its first place.
    QToolButton* again = small(s("HOME"), s("CLIP"), s("CUT"), s("Cut"));
    settle();
    EXPECT_EQ(ribbon.button(s("CUT")), again);
    EXPECT_EQ(inRibbon(again).topLeft(), firstPlace);

    QPointer<QToolButton> reportSave = ribbon.button(s("REPORT"), s("PRINT"), s("SAVE"));
    QPointer<QWidget> printBox = groupBox(s("พิมพ์"));
    ASSERT_FALSE(printBox.isNull());
    ribbon.setCurrentTab(s("REPORT"));
    QSignalSpy current(&ribbon, &Ribbon::currentTabChanged);
    ribbon.removeTab(s("REPORT"));
    EXPECT_TRUE(reportSave.isNull() && printBox.isNull());
    EXPECT_EQ(ribbon.tabKeys(), QStringList({"HOME"}));
    EXPECT_EQ(tabBar()->count(), 1);
    EXPECT_EQ(ribbon.currentTab(), s("HOME"));
    ASSERT_FALSE(current.isEmpty());
    EXPECT_EQ(current.last().at(0).toString(), s("HOME"));
    EXPECT_EQ(ribbon.button(s("SAVE")), ribbon.button(s("HOME"), s("DOC"), s("SAVE")));
    settle();
    EXPECT_TRUE(ribbon.button(s("SAVE"))->isVisible());

    ribbon.removeTab(s("HOME"));
    EXPECT_TRUE(ribbon.tabKeys().isEmpty());
    EXPECT_EQ(ribbon.currentTab(), QString());
    EXPECT_EQ(ribbon.button(s("NEW")), nullptr);
    ribbon.addTab(s("HOME"), s("Home"));  // the ribbon is usable again
    EXPECT_EQ(ribbon.currentTab(), s("HOME"));
}

TEST_F(RibbonTest, ClicksAndKeysRaiseTheButtonsKey)
{
    QSignalSpy clicked(&ribbon, &Ribbon::buttonClicked);
    QTest::mouseClick(ribbon.button(s("NEW")), Qt::LeftButton);
    QTest::mouseClick(ribbon.button(s("FMT")), Qt::LeftButton);
    QTest::mouseClick(ribbon.button(s("PASTE")), Qt::RightButton);  // no click
    ribbon.setCurrentTab(s("REPORT"));
    settle();
    QTest::mouseClick(ribbon.button(s("REPORT"), s("PRINT"), s("SAVE")), Qt::LeftButton);
    const auto clickedKeys = [&] {
        QStringList out;
        for (const QList<QVariant>& args : clicked)
            out << args.at(0).toString();
        return out;
    };
    EXPECT_EQ(clickedKeys(), QStringList({"NEW", "FMT", "SAVE"}));

    // Tab walks from the tab bar through the buttons in display order, a button added
    // later to the first group included; Space and Enter click the focused button.
    ribbon.setCurrentTab(s("HOME"));
    large(s("HOME"), s("DOC"), s("LATE"), s("ทีหลัง"));
    ribbon.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&ribbon));
    settle();
    tabBar()->setFocus();
    ASSERT_TRUE(tabBar()->hasFocus());
    QStringList walked;
    for (int i = 0; i < 9; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        const QWidget* focus = QApplication::focusWidget();
        walked << (focus ? focus->property("ribbonKey").toString() : QString());
    }
    EXPECT_EQ(walked, QStringList({"NEW", "SAVE", "HARDCOPY", "LATE", "PASTE", "CUT", "COPY", "FMT", "CLEAR"}));

    clicked.clear();
    ribbon.button(s("COPY"))->setFocus();
    for (Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter})
        QTest::keyClick(QApplication::focusWidget(), key);
    EXPECT_EQ(clickedKeys(), QStringList({"COPY", "COPY", "COPY"}));
}

TEST_F(RibbonTest, ARightClickInAGroupAsksForTheGroupsMenu)
{
    ribbon.addGroup(s("REPORT"), s("EMPTY"), s("ว่าง"));
    settle();
    QSignalSpy menu(&ribbon, &Ribbon::groupContextMenuRequested);
    QSignalSpy clicked(&ribbon, &Ribbon::buttonClicked);

    struct Case { const char* tab; const char* group; QWidget* target; QPoint pos; };
    QToolButton* cut = ribbon.button(s("CUT"));
    QToolButton* clear = ribbon.button(s("CLEAR"));
    QWidget* clipButtons = clear->parentWidget();
    QLabel* docCaption = captionOf(groupBox(s("เอกสาร")));
    const Case home[] = {
        {"HOME", "CLIP", cut, cut->rect().center()},
        {"HOME", "DOC", ribbon.button(s("HARDCOPY")), QPoint(3, 3)},
        {"HOME", "DOC", docCaption, docCaption->rect().center()},
        // Below the lone small button of the Clipboard's second column: the group, no button.
        {"HOME", "CLIP", clipButtons, QPoint(clear->geometry().center().x(), clipButtons->height() - 3)},
    };
    for (const Case& c : home) {
        ASSERT_EQ(clipButtons->childAt(QPoint(clear->geometry().center().x(), clipButtons->height() - 3)), nullptr);
        menu.clear();
        rightClick(c.target, c.pos);
        ASSERT_EQ(menu.size(), 1) << c.group;
        EXPECT_EQ(menu.at(0).at(0).toString(), s(c.tab));
        EXPECT_EQ(menu.at(0).at(1).toString(), s(c.group));
        EXPECT_EQ(menu.at(0).at(2).toPoint(), c.target->mapToGlobal(c.pos));
    }

    ribbon.setCurrentTab(s("REPORT"));
    settle();
    QWidget* empty = groupBox(s("ว่าง"));
    menu.clear();
    rightClick(empty, empty->rect().center());
    ASSERT_EQ(menu.size(), 1);
    EXPECT_EQ(menu.at(0).at(0).toString(), s("REPORT"));
    EXPECT_EQ(menu.at(0).at(1).toString(), s("EMPTY"));

    // Outside every group, or with the left button: no menu.
    menu.clear();
    rightClick(&ribbon, QPoint(ribbon.width() - 2, ribbon.height() - 5));
    rightClick(tabBar(), tabBar()->tabRect(0).center());
    QTest::mouseClick(empty, Qt::LeftButton, {}, empty->rect().center());
    EXPECT_TRUE(menu.isEmpty());
    EXPECT_TRUE(clicked.isEmpty());
}

TEST_F(RibbonTest, ThemesColourTheRibbonAndAnUnknownOneFallsBackToBlue)
{
    const QList<RibbonTheme>& themes = Ribbon::themes();
    ASSERT_GE(themes.size(), 4);
    EXPECT_EQ(Ribbon::themeNames().first(), s("Blue"));

    ribbon.resize(ribbon.sizeHint().width() + 80, ribbon.height());
    settle();
    QToolButton* paste = ribbon.button(s("PASTE"));
    QTest::mouseMove(paste);
    settle();
    ASSERT_TRUE(paste->underMouse());
    for (int index = 0; index < themes.size(); ++index) {
        ribbon.setTheme(index);
        settle();
        SCOPED_TRACE(themes[index].name.toStdString());
        EXPECT_EQ(ribbon.theme(), index);
        // The page body right of the last group, its top and its bottom.
        const QImage image = ribbon.grab().toImage();
        const int x = ribbon.width() - 20;
        const QColor top = image.pixelColor(x, tabBar()->height() + 1), bottom = image.pixelColor(x, ribbon.height() - 3);
        EXPECT_TRUE(themes[index].background_image ? top.lightness() > bottom.lightness()
                                                   : top == themes[index].background && bottom == themes[index].background);
        EXPECT_EQ(image.pixelColor(x, tabBar()->height() / 2), themes[index].tabBar);
        // The button under the mouse, beside its icon.
        const QPoint beside = paste->mapTo(&ribbon, QPoint(3, paste->height() / 3));
        EXPECT_EQ(image.pixelColor(beside), themes[index].hover);
    }
    for (int index : {-1, int(themes.size()), 99}) {
        ribbon.setTheme(2);
        ribbon.setTheme(index);
        EXPECT_EQ(ribbon.theme(), 0) << index;
        EXPECT_EQ(ribbon.backColor(), themes[0].background);
    }
}

TEST_F(RibbonTest, LargeCaptionsBreakOnlyWhereToldAndButtonsLineUp)
{
    const struct { const char* caption; Ribbon::ButtonSize size; const char* shown; } cases[] = {
        {"Hard\ncopy", Ribbon::ButtonSize::Large, "Hard\ncopy"},
        {"Two words", Ribbon::ButtonSize::Large, "Two words"},
        {"ปิดงวด\r\nบัญชี", Ribbon::ButtonSize::Large, "ปิดงวด\nบัญชี"},
        {"a\nb\nc", Ribbon::ButtonSize::Large, "a\nb c"},
        {"Hard\ncopy", Ribbon::ButtonSize::Small, "Hard copy"},
    };
    ribbon.addGroup(s("HOME"), s("T"), s("Captions"));
    int n = 0;
    for (const auto& c : cases) {
        QToolButton* b = ribbon.addButton(s("HOME"), s("T"), QString::number(n++), s(c.caption), {}, {}, c.size);
        ASSERT_NE(b, nullptr);
        EXPECT_EQ(b->text(), s(c.shown)) << c.caption;
        const bool isLarge = c.size == Ribbon::ButtonSize::Large;
        EXPECT_EQ(b->toolButtonStyle(), isLarge ? Qt::ToolButtonTextUnderIcon : Qt::ToolButtonTextBesideIcon);
        // No icon given: the icon's room is kept all the same.
        EXPECT_EQ(b->icon().actualSize(b->iconSize()), isLarge ? QSize(32, 32) : QSize(16, 16));
    }
    settle();
    QToolButton* hardCopy = ribbon.button(s("HARDCOPY"));
    for (const QString& line : hardCopy->text().split(QLatin1Char('\n')))
        EXPECT_GE(hardCopy->width(), hardCopy->fontMetrics().horizontalAdvance(line)) << line.toStdString();
    EXPECT_EQ(ribbon.button(s("SAVE"))->width(), 48);  // a short caption: the narrowest large button

    // Large buttons of a group share their top; the same number of caption lines, with or
    // without an icon, gives the same height.
    for (const char* group : {"DOC", "T"}) {
        int top = -1;
        for (const QString& key : ribbon.buttonKeys(s("HOME"), s(group))) {
            QToolButton* b = ribbon.button(s("HOME"), s(group), key);
            if (b->toolButtonStyle() != Qt::ToolButtonTextUnderIcon)
                continue;
            if (top < 0)
                top = b->y();
            EXPECT_EQ(b->y(), top) << group << " " << key.toStdString();
        }
    }
    EXPECT_EQ(hardCopy->height(), ribbon.button(s("NEW"))->height());
    EXPECT_EQ(ribbon.button(s("1"))->height(), ribbon.button(s("SAVE"))->height());
    EXPECT_GT(hardCopy->height(), ribbon.button(s("SAVE"))->height());

    ribbon.addButton(s("HOME"), s("T"), s("AMP"), s("Options && Settings"));
    EXPECT_EQ(ribbon.button(s("AMP"))->accessibleName(), s("Options & Settings"));
    ribbon.addGroup(s("HOME"), s("AMP"), s("Tools && Options"));
    EXPECT_EQ(captionOf(groupBox(s("Tools & Options")))->text(), s("Tools & Options"));
    EXPECT_EQ(ribbon.groupCaption(s("HOME"), s("AMP")), s("Tools && Options"));
}

TEST_F(RibbonTest, SmallButtonsStackThreeToAColumn)
{
    QToolButton *paste = ribbon.button(s("PASTE")), *cut = ribbon.button(s("CUT")), *copy = ribbon.button(s("COPY"));
    QToolButton *fmt = ribbon.button(s("FMT")), *clear = ribbon.button(s("CLEAR"));
    EXPECT_GT(cut->x(), paste->geometry().right());
    EXPECT_TRUE(copy->x() == cut->x() && fmt->x() == cut->x() && cut->y() == paste->y());
    EXPECT_GT(copy->y(), cut->geometry().bottom());
    EXPECT_GT(fmt->y(), copy->geometry().bottom());
    EXPECT_GT(clear->x(), std::max({cut->geometry().right(), copy->geometry().right(), fmt->geometry().right()}));
    EXPECT_EQ(clear->y(), cut->y());

    // A large button ends the column; a small one after it starts a new one.
    QToolButton* big = large(s("HOME"), s("CLIP"), s("BIG"), s("Big"));
    QToolButton* after = small(s("HOME"), s("CLIP"), s("AFTER"), s("after"));
    settle();
    EXPECT_TRUE(big->x() > clear->geometry().right() && big->y() == paste->y());
    EXPECT_TRUE(after->x() > big->geometry().right() && after->y() == cut->y());
}

TEST_F(RibbonTest, AThaiRibbonShowsEverythingAtItsSizeHint)
{
    const int height = ribbon.sizeHint().height();
    EXPECT_TRUE(height >= 100 && height <= 150) << height;
    EXPECT_LT(ribbon.minimumSizeHint().width(), 300);  // a narrow main window is not refused

    const QRect whole = ribbon.rect();
    for (const QString& tab : ribbon.tabKeys()) {
        ribbon.setCurrentTab(tab);
        settle();
        SCOPED_TRACE(tab.toStdString());
        for (const QString& groupKey : ribbon.groupKeys(tab)) {
            QWidget* box = groupBox(ribbon.groupCaption(tab, groupKey));
            ASSERT_NE(box, nullptr);
            const QRect boxRect = inRibbon(box);
            EXPECT_TRUE(whole.contains(boxRect)) << groupKey.toStdString();
            QLabel* caption = captionOf(box);
            EXPECT_GE(caption->height(), caption->sizeHint().height());
            EXPECT_GE(caption->width(), caption->fontMetrics().horizontalAdvance(caption->text()));
            for (const QString& key : ribbon.buttonKeys(tab, groupKey)) {
                QToolButton* b = ribbon.button(tab, groupKey, key);
                EXPECT_TRUE(boxRect.contains(inRibbon(b))) << key.toStdString();
                EXPECT_LE(inRibbon(b).bottom(), inRibbon(caption).top()) << key.toStdString();
                EXPECT_GE(b->height(), b->sizeHint().height()) << key.toStdString();
            }
        }
    }

    // Narrower than its pages: the groups are cut at the right, never squeezed.
    ribbon.setCurrentTab(s("HOME"));
    QMap<QToolButton*, QSize> sizes;
    for (QToolButton* b : shownButtons())
        sizes[b] = b->size();
    ribbon.resize(200, ribbon.height());
    settle();
    for (auto it = sizes.cbegin(); it != sizes.cend(); ++it)
        EXPECT_EQ(it.key()->size(), it.value()) << it.key()->property("ribbonKey").toString().toStdString();
    // ... and scrolls: the arrows at the edges bring every button into view, and so does the focus.
    QList<QToolButton*> row = shownButtons();
    std::sort(row.begin(), row.end(), [&](auto* a, auto* b) { return inRibbon(a).x() < inRibbon(b).x(); });
    QWidget* page = row.first();
    while (page->objectName() != "ribbonPage")
        page = page->parentWidget();
    const auto arrow = [&](const char* name) { return page->findChild<QToolButton*>(name, Qt::FindDirectChildrenOnly); };
    ASSERT_TRUE(arrow("ribbonScrollForward")->isVisible());
    EXPECT_FALSE(arrow("ribbonScrollBack")->isVisible());
    for (int clicks = 0; arrow("ribbonScrollForward")->isVisible() && clicks < 20; ++clicks)
        arrow("ribbonScrollForward")->click();
    EXPECT_LE(inRibbon(row.last()).right(), ribbon.width());
    EXPECT_TRUE(arrow("ribbonScrollBack")->isVisible());
    row.first()->setFocus();
    EXPECT_GE(inRibbon(row.first()).left(), 0);

    // A bigger font makes room for itself.
    QFont font = ribbon.font();
    font.setPointSizeF(font.pointSizeF() * 1.5);
    ribbon.setFont(font);
    settle();
    EXPECT_GT(ribbon.sizeHint().height(), height);
    ribbon.resize(ribbon.sizeHint());
    settle();
    QToolButton* twoLines = ribbon.button(s("NEW"));
    EXPECT_GE(twoLines->height(), twoLines->sizeHint().height());
    EXPECT_TRUE(inRibbon(groupBox(s("เอกสาร"))).contains(inRibbon(twoLines)));
}

} // namespace
