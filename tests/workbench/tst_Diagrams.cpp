#include "support/SampleCompany.h"

#include "DiagramForms.h"
#include "WorkbenchForms.h"
#include "WorkbenchWindow.h"
#include "navigation/NUVDiagram.h"
#include "navigation/NUVDiagram2.h"
#include "navigation/NUVDiagramIndex.h"
#include "navigation/NUVMainMenu.h"

#include <QComboBox>
#include <QGraphicsView>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>

using namespace qd8;
using namespace qd8::test;

namespace {

class WorkbenchDiagramTest : public SampleCompanyTest {
protected:
    void SetUp() override
    {
        SampleCompanyTest::SetUp();
        if (IsSkipped())
            return;
        registerWorkbenchForms();
        session = WorkbenchSession::fromConnectionStrings(appConnectionString(), dataConnectionString(), files.path());
    }
    QTemporaryDir files;
    WorkbenchSession session;
};

TEST_P(WorkbenchDiagramTest, TheDiagramCommandOpensTheModulesDiagramOnceAndItsCommandsOpenForms)
{
    ASSERT_TRUE(session.logIn("SOMCHAI", "1234"));
    EXPECT_FALSE(startsInKeypad(session));
    for (auto [module, drawn] : {std::pair{"PU", true}, {"AR", false}}) {
        WorkbenchWindow window(session, QString::fromLatin1(module));
        window.show();
        for (int twice = 0; twice < 2; ++twice)
            window.findChild<QToolButton*>("btnDiagram")->click();
        ASSERT_EQ(window.tabs()->count(), 1) << module;
        auto* diagram = qobject_cast<DiagramLauncher*>(window.tabs()->widget(0));
        ASSERT_TRUE(diagram);
        EXPECT_EQ(qobject_cast<NUVDiagram*>(diagram) != nullptr, drawn);
        EXPECT_TRUE(window.tabs()->tabText(0).startsWith(QStringLiteral("ผังงาน ")));
        QStringList opened;
        QObject::connect(&window, &WorkbenchWindow::formOpened, [&](const QString& alias) { opened << alias; });
        const QString first = drawn ? QStringLiteral("PUPO") : QStringLiteral("ARCUSTOMER");
        diagram->setCurrentIcon(diagram->icon(first));
        QTest::keyClick(diagram->view(), Qt::Key_Return);
        EXPECT_EQ(opened, QStringList{first});
    }
    WorkbenchWindow window(session, QStringLiteral("GL"));
    window.findChild<QToolButton*>("btnModuleIndex")->click();
    EXPECT_TRUE(qobject_cast<NUVDiagramIndex*>(window.tabs()->currentWidget()));
}

TEST_P(WorkbenchDiagramTest, TheProductionUserStartsInTheKeypad)
{
    ASSERT_TRUE(session.logIn("PRODUCTION", "1234"));
    ASSERT_TRUE(startsInKeypad(session));
    WorkbenchWindow window(session);
    NUVMainMenu* menu = startInKeypad(window);
    window.show();
    EXPECT_EQ(window.tabs()->widget(0), menu);
    EXPECT_FALSE(window.menuWidget()->isVisible());
    EXPECT_EQ(menu->SubTitle(), "สมศักดิ์ ขยันดี");
    EXPECT_EQ(menu->pageAliases(), (QStringList{"ICISSUEUSE", "ICTRANSFER", "PURPR", "PURECEIVE", "ICSTOCK", "ICMOVEMENT"}));
    menu->commandButtons().at(2)->click();
    EXPECT_EQ(window.tabCommand(window.tabs()->currentIndex()), "PURPR");
    if (const QString folder = qEnvironmentVariable("QD8_PICTURES"); !folder.isEmpty())
        window.grab().save(folder + QStringLiteral("/workbench-keypad.png"));
}

QD8_ON_BOTH_ENGINES(WorkbenchDiagramTest);

} // namespace
