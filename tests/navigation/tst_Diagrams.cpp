#include "navigation/NavigationTest.h"

#include "navigation/NUVDiagram.h"
#include "navigation/NUVDiagram2.h"
#include "navigation/NUVDiagramIcon.h"
#include "navigation/NUVDiagramIndex.h"
#include "navigation/NUVMainMenu.h"

#include <QAccessible>
#include <QDir>
#include <QGraphicsView>
#include <QLineEdit>
#include <QScreen>
#include <QTest>
#include <QToolButton>

using namespace qd8;
using namespace qd8::test;

namespace {

class DiagramTest : public NavigationTest {
protected:
    // Shown and active, so the scene takes the focus as on a desktop.
    template <class Control>
    void start(Control& control, qint32 user, const QString& module, qint16 language)
    {
        attach(control, user, module);
        QObject::connect(&control, &CommandLauncher::Lunch, [this](QString& alias) { launched << alias; });
        control.resize(1000, 700);
        control.show();
        control.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&control));
        control.Refresh(language, appConnectionString(), QString());
        control.setFocus();
    }
    static QStringList tiles(const DiagramLauncher& d, bool live)
    {
        QStringList aliases;
        for (NUVDiagramIcon* icon : d.icons())
            if (icon->isLive() == live)
                aliases << icon->alias();
        return aliases;
    }
    // What a user sees, kept for a look when QD8_PICTURES names a folder; never blank.
    static void picture(QWidget& control, const QString& name)
    {
        const QImage image = control.grab().toImage();
        EXPECT_GT(image.width(), 100);
        if (const QString folder = qEnvironmentVariable("QD8_PICTURES"); !folder.isEmpty())
            image.save(QDir(folder).filePath(name + QStringLiteral(".png")));
    }
    QStringList launched;
};

TEST_P(DiagramTest, ADrawnDiagramPlacesItsStepsGreysWhatTheUserMayNotRunAndLaunchesTheRest)
{
    for (auto [user, language, greyed, caption] :
        {std::tuple{1, 0, QStringList{"GLTB"}, "บันทึกบัญชี"},         // John: no period closing, no profit and loss, no rights row on three option editors.
        {2, 1, QStringList{"GLCLOSE", "GLPROFIT", "GLOPTION", "GLBRANCHOPTION", "GLHOSTOPTION"}, "Post Vouchers"}}) {
        NUVDiagram gl;
        start(gl, user, QStringLiteral("GL"), qint16(language));
        EXPECT_TRUE(gl.hasDrawing());
        // Every GL command in use is there: drawn ones where the drawing says, the rest beneath.
        EXPECT_EQ(gl.icons().size(), 15);
        EXPECT_EQ(gl.icon("GLJV")->pos(), QPointF(300, 250));
        EXPECT_GT(gl.icon("GLQUICK")->pos().y(), 480);
        EXPECT_EQ(gl.icon("GLJV")->caption(), caption);
        EXPECT_EQ(tiles(gl, false), greyed);
        const QAccessibleInterface* tree = QAccessible::queryAccessibleInterface(gl.view());
        ASSERT_EQ(tree->childCount(), 15);
        EXPECT_EQ(tree->child(int(gl.icons().indexOf(gl.icon("GLJV"))))->text(QAccessible::Name), caption);
        EXPECT_TRUE(tree->child(int(gl.icons().indexOf(gl.icon(greyed.first()))))->state().disabled);
        picture(gl, QStringLiteral("diagram-gl-%1").arg(language ? "en" : "th"));

        launched.clear();
        gl.setCurrentIcon(gl.icon(greyed.first()));
        QTest::keyClick(gl.view(), Qt::Key_Return);
        EXPECT_TRUE(launched.isEmpty());
        // The arrows walk the drawing: left of the voucher is the journal book beside it, up
        // the recurring entries, down the strip of the other commands.
        gl.setCurrentIcon(gl.icon("GLJV"));
        QStringList walked;
        for (Qt::Key key : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down, Qt::Key_Down}) {
            QTest::keyClick(gl.view(), key);
            walked << gl.currentIcon()->alias();
        }
        EXPECT_EQ(walked, (QStringList{"JOURNALBOOK", "GLJV", "GLRECURRING", "GLJV", walked.last()}));
        EXPECT_GT(gl.currentIcon()->pos().y(), 480);
        gl.setCurrentIcon(gl.icon("GLJV"));
        QTest::keyClick(gl.view(), Qt::Key_Enter);
        EXPECT_EQ(launched, QStringList{"GLJV"});
    }
}

TEST_P(DiagramTest, AModuleWithoutDrawingIsLaidOutWithTheSameRightsAndTheSameReLookup)
{
    NUVDiagram2 tst;
    start(tst, 1, QStringLiteral("TST"), 0);
    // Every command in use, list bar or not; only both rights exactly 1 are live.
    EXPECT_EQ(tiles(tst, true), (QStringList{"TSTJ", "TSTA", "TSTB", "TSTC", "TSTI"}));
    EXPECT_EQ(tiles(tst, false), (QStringList{"TSTF", "TSTG", "TSTH"}));
    picture(tst, QStringLiteral("diagram2-tst-th"));

    tst.setCurrentIcon(tst.icon("TSTA"));
    QTest::keyClick(tst.view(), Qt::Key_Space);
    // Gone from the catalogue since the refresh: nothing is launched.
    runOnApp({QStringLiteral("DELETE FROM QD8TCommand WHERE TCmdAlias='TSTB'")});
    tst.setCurrentIcon(tst.icon("TSTB"));
    QTest::keyClick(tst.view(), Qt::Key_Return);
    EXPECT_EQ(launched, QStringList{"TSTA"});
}

TEST_P(DiagramTest, AutomaticLayoutFlowsNoneOneOrManyTilesAcrossTheWindowAndReflows)
{
    runOnApp({QStringLiteral("INSERT INTO QD8TCommandGroup (TCmGAlias, TCmGName, TCmGName2) VALUES ('NONE', 'ว่าง', 'Empty')"),
        QStringLiteral("INSERT INTO QD8TCommandGroup (TCmGAlias, TCmGName, TCmGName2) VALUES ('ONE', 'หนึ่ง', 'One')"),
        QStringLiteral("UPDATE QD8TCommand SET TCmdTCmGAlias='ONE' WHERE TCmdAlias='TSTA'")});
    for (auto [module, count] : {std::pair{"NONE", 0}, {"ONE", 1}, {"TST", 7}}) {
        NUVDiagram2 d;
        start(d, 1, QString::fromLatin1(module), 1);
        ASSERT_EQ(d.icons().size(), count) << module;
        EXPECT_EQ(d.currentIcon() != nullptr, count > 0);
        if (count == 0)
            continue;
        QSet<qreal> rows;
        for (NUVDiagramIcon* icon : d.icons())
            rows << icon->pos().y();
        EXPECT_EQ(rows.size(), 1) << "1000 pixels hold seven tiles in a row";
        // Narrower than two tiles: one column, and every tile within the window's width.
        d.resize(200, 700);
        QCoreApplication::processEvents();
        for (NUVDiagramIcon* icon : d.icons())
            EXPECT_LE(d.view()->mapFromScene(icon->sceneBoundingRect()).boundingRect().right(), 200);
        EXPECT_EQ(d.icons().last()->pos().y() - d.icons().first()->pos().y(), (count - 1) * (NUVDiagramIcon::Height + 14));
    }
}

TEST_P(DiagramTest, TheIndexOffersTheModulesTheUserMayUseAndOpensTheirDiagrams)
{
    NUVDiagramIndex index;
    start(index, 2, QString(), 1);
    QStringList modules;
    for (NUVDiagramIcon* icon : index.icons())
        modules << icon->alias();
    // Hidden modules (fixed assets, common settings) are not offered.
    EXPECT_EQ(modules, (QStringList{"GL", "AR", "IC", "AP", "PU", "SO", "HR", "TST"}));
    EXPECT_EQ(index.icon("GL")->caption(), "General Ledger");
    picture(index, QStringLiteral("index-en"));

    for (auto [module, drawn] : {std::pair{"PU", true}, {"AR", false}}) {
        index.setCurrentIcon(index.icon(module));
        QTest::keyClick(index.view(), Qt::Key_Return);
        ASSERT_TRUE(index.openDiagram());
        EXPECT_EQ(qobject_cast<NUVDiagram*>(index.openDiagram()) != nullptr, drawn) << module;
        EXPECT_EQ(index.openDiagram()->CommandGroup(), module);
        index.openDiagram()->setCurrentIcon(index.openDiagram()->icon(tiles(*index.openDiagram(), true).first()));
        QTest::keyClick(index.openDiagram()->view(), Qt::Key_Return);
        QTest::keyClick(index.openDiagram()->view(), Qt::Key_Escape);
        EXPECT_EQ(index.openDiagram(), nullptr);
    }
    // The first command John may run in each: his purchase-order right is 2, no right.
    EXPECT_EQ(launched, (QStringList{"PURECEIVE", "ARCUSTOMER"}));
}

TEST_P(DiagramTest, TheKeypadPagesTheUsersCommandsOverColsByRowsAndTakesNumbers)
{
    struct Case {
        int cols, rows, pages;
        QStringList lastPage;
    };
    // The production user's own list: six commands he may run (the product list has no Show right).
    for (const Case& c : {Case{2, 2, 2, {"ICSTOCK", "ICMOVEMENT"}}, Case{3, 2, 1, {"ICISSUEUSE", "ICTRANSFER", "PURPR", "PURECEIVE", "ICSTOCK", "ICMOVEMENT"}},
             Case{1, 1, 6, {"ICMOVEMENT"}}}) {
        NUVMainMenu menu;
        attach(menu, 3, QString());
        QObject::connect(&menu, &CommandLauncher::Lunch, [this](QString& alias) { launched << alias; });
        menu.SetFirst(QStringLiteral("เมนูหลัก"), QStringLiteral("ฝ่ายผลิต"), c.cols, c.rows);
        menu.Refresh();
        menu.show();
        EXPECT_EQ(menu.pageCount(), c.pages);
        for (int i = 0; i < c.pages + 2; ++i)
            menu.nextPage();
        EXPECT_EQ(menu.pageAliases(), c.lastPage);
        int shown = 0;
        for (QToolButton* b : menu.commandButtons())
            shown += b->isVisible();
        EXPECT_EQ(shown, c.lastPage.size());
        menu.setPage(0);
        menu.commandButtons().first()->click();
    }
    EXPECT_EQ(launched, (QStringList(3, QStringLiteral("ICISSUEUSE"))));

    NUVMainMenu menu;
    attach(menu, 3, QString());
    menu.SetFirst(QStringLiteral("Production"), QString(), 3, 2);
    menu.Refresh();
    menu.resize(900, 600);
    menu.show();
    QStringList accepted;
    QObject::connect(&menu, &NUVMainMenu::EntryAccepted, [&](const QString& text) { accepted << text; });
    // Every target is 9 mm or more at the screen's dpi.
    const qreal mm = 25.4 / menu.logicalDpiY();
    for (QToolButton* b : menu.findChildren<QToolButton*>()) {
        if (b->isVisible()) {
            EXPECT_GE(qMin(b->width(), b->height()) * mm, 9.0) << b->text().toStdString();
        }
    }
    for (const char* key : {"1", "2", ".", "5", ".", "BS", "7", "OK"})
        menu.keypadButton(QString::fromLatin1(key))->click();
    // Arrows move among the commands; digits typed there land in the entry line.
    menu.commandButtons().first()->setFocus();
    menu.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&menu));
    ASSERT_TRUE(menu.commandButtons().first()->hasFocus());
    QTest::keyClick(menu.commandButtons().first(), Qt::Key_Right);
    EXPECT_TRUE(menu.commandButtons().at(1)->hasFocus());
    menu.keypadButton("C")->click();
    QTest::keyClicks(menu.commandButtons().at(1), "40x");
    QTest::keyClick(menu.entry(), Qt::Key_Return);
    menu.keypadButton("TEXT")->click();
    typeText(menu.entry(), QStringLiteral(" ล็อต ก"));
    menu.keypadButton("OK")->click();
    EXPECT_EQ(accepted, (QStringList{"12.7", "40", "40 ล็อต ก"}));
    picture(menu, QStringLiteral("keypad-th"));
}

QD8_ON_BOTH_ENGINES(DiagramTest);

} // namespace
