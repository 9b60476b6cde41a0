#include "navigation/NavigationTest.h"

#include "foundation/PropertyBag.h"
#include "navigation/DocumentToolBar.h"

#include <QDir>
#include <QFile>
#include <QToolButton>

using namespace qd8;
using namespace qd8::test;

namespace {

class DocumentToolBarTest : public NavigationTest {
protected:
    void SetUp() override
    {
        NavigationTest::SetUp();
        QObject::connect(&bar, &DocumentToolBar::Lunch, [this](QString& alias) { launched << alias; });
    }
    // The aliases of the visible command buttons by position ("" for a hidden one).
    QStringList positions() const
    {
        QStringList shown;
        for (int i = 1; i <= DocumentToolBar::CommandButtons; ++i)
            shown << (bar.commandButton(i)->isVisibleTo(&bar) ? bar.commandAlias(i) : QString());
        while (!shown.isEmpty() && shown.last().isEmpty())
            shown.removeLast();
        return shown;
    }
    DocumentToolBar bar;
    QStringList launched;
};

TEST_P(DocumentToolBarTest, ADeniedRowKeepsItsPositionAndNothingPassesTheFifteenth)
{
    QStringList app, data;
    for (int i = 1; i <= 20; ++i) {
        const QString alias = QStringLiteral("BIG%1").arg(i, 2, 10, QLatin1Char('0'));
        app << QStringLiteral("INSERT INTO QD8TCommand (TCmdID, TCmdAlias, TCmdName, TCmdName2, TCmdTCmGAlias, TCmdSort) VALUES (%1, '%2', 'ชื่อ %2', 'Name %2', 'BIG', %3)")
                   .arg(8000 + i).arg(alias).arg(i);
        data << QStringLiteral("INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow) VALUES (1, '%1', 1, %2)").arg(alias).arg(i == 3 ? 0 : 1);
    }
    runOnApp(app);
    runOnData(data);
    attach(bar, 1, QStringLiteral("BIG"));
    bar.Refresh();
    bar.toggleButtons();
    bar.toggleButtons();  // mode 2: the main list
    QStringList expected;
    for (int i = 1; i <= 15; ++i)
        expected << (i == 3 ? QString() : QStringLiteral("BIG%1").arg(i, 2, 10, QLatin1Char('0')));
    EXPECT_EQ(positions(), expected);
    EXPECT_EQ(bar.commandButton(1)->text(), "ชื่อ BIG01");
    // A long caption is shortened on its button and kept whole in the tool tip.
    runOnApp({QStringLiteral("UPDATE QD8TCommand SET TCmdName='%1' WHERE TCmdAlias='BIG02'").arg(QString(60, QChar(0x0E01)))});
    bar.DOMAINLIST();
    EXPECT_LT(bar.commandButton(2)->text().size(), 60);
    EXPECT_EQ(bar.commandButton(2)->toolTip(), QString(60, QChar(0x0E01)));
}

TEST_P(DocumentToolBarTest, TheToggleCyclesUserModuleMainAndBack)
{
    attach(bar, 1);
    bar.Refresh();
    struct Step { int mode; const char* caption; const char* toolTip; QStringList shown; };
    const Step steps[] = {
        {0, "U", "Toggle Buttons: User", {"", "TSTB", "TSTA"}},
        {1, "G", "Toggle Buttons: Group", {"TSTI", "TSTA"}},
        {2, "M", "Toggle Buttons: Module", {"TSTJ", "TSTA", "TSTB", "", "", "", "TSTI"}},
        {0, "U", "Toggle Buttons: User", {"", "TSTB", "TSTA"}},
    };
    for (const Step& step : steps) {
        SCOPED_TRACE(step.mode);
        EXPECT_EQ(bar.toggleMode(), step.mode);
        EXPECT_EQ(bar.commandButton(0)->text(), step.caption);
        EXPECT_EQ(bar.commandButton(0)->toolTip(), step.toolTip);
        EXPECT_EQ(positions(), step.shown);
        // Captions lose their accelerator marks and keep "&&".
        if (step.mode == 0) {
            EXPECT_EQ(bar.commandButton(2)->text(), "บี && ซี");
        }
        bar.commandButton(0)->click();
    }
}

TEST_P(DocumentToolBarTest, CommandButtonsLaunchWhatTheCatalogueStillHolds)
{
    attach(bar, 2);
    bar.Refresh();
    bar.toggleButtons();  // module list: TSTI, TSTA
    bar.commandButton(2)->click();
    runOnApp({QStringLiteral("DELETE FROM QD8TCommand WHERE TCmdAlias='TSTI'")});
    bar.commandButton(1)->click();
    bar.utilityButton(4)->click();
    EXPECT_EQ(launched, (QStringList{"TSTA", "WINDOW:REPORTSEARCH"}));
}

QD8_ON_BOTH_ENGINES(DocumentToolBarTest);

TEST(DocumentToolBarTools, FolderButtonsRunTheirProgramOrSayWhichFolderIsMissing)
{
    DocumentToolBar bar;
    for (int i = 0; i < 4; ++i)
        bar.utilityButton(i)->click();
    bar.setSystemFolder("C:\\QD8");
    bar.setImageFolder("C:\\Images");
    bar.setSpecFolder("C:\\Spec");
    for (int i = 0; i < 4; ++i)
        bar.utilityButton(i)->click();
    EXPECT_EQ(scriptedShell().commands, (QStringList{"run:Calc.exe:0", "run:C:\\QD8\\QD8help.exe:0", "run:Calc.exe:0",
                                            "run:explorer.exe C:\\Images:0", "run:explorer.exe C:\\Spec:0"}));
    const auto& shown = scriptedMessages().shown;
    ASSERT_EQ(shown.size(), 3);
    const char* texts[] = {"ไม่ได้กำหนด System folder", "ไม่ได้กำหนด Image folder", "ไม่ได้กำหนด Spec folder"};
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(shown[i].kind, "information");
        EXPECT_EQ(shown[i].title, "System Configuration");
        EXPECT_EQ(shown[i].text, QString::fromUtf8(texts[i]));
    }
}

TEST(DocumentToolBarTools, ClientConfigurationStartsWithTheLoginAndRemindsToLinkTheCommands)
{
    const char* reminder = "Client Configuration: ท่านต้องเชื่อมคำสั่งในแต่ระบบจาก Application Center ของแต่ละเครื่อง";
    const char* command = "D:\\QD8\\QD8ClientConfig.exe /U=somchai /P=s3cret";
    const struct {
        const char* program;  // "": the default in SystemFolder
        const char* systemFolder;
        bool starts;
        QString run, shown;
    } cases[] = {
        {"C:\\Setup.exe", "", true, "C:\\Setup.exe /U=somchai /P=s3cret", reminder},
        {"", "D:\\QD8", true, command, reminder},
        {"", "", true, "", "System Configuration: ไม่ได้กำหนด System folder"},
        {"", "D:\\QD8", false, command, QStringLiteral("System Configuration: เปิดโปรแกรม %1 ไม่ได้: ไม่มีโปรแกรมนี้ในเครื่อง").arg(command)},
    };
    for (const auto& c : cases) {
        installScriptedServices();
        scriptedShell().starts = c.starts;
        DocumentToolBar bar;
        bar.setUserLoginName("somchai");
        bar.setUserLoginPassword("s3cret");
        bar.setSystemFolder(c.systemFolder);
        // Late bound, as a host form calls it.
        ASSERT_TRUE(*c.program ? QMetaObject::invokeMethod(&bar, "ClientConfiguration", Q_ARG(QString, c.program))
                               : QMetaObject::invokeMethod(&bar, "ClientConfiguration"));
        EXPECT_EQ(scriptedShell().commands.join('|'), c.run.isEmpty() ? QString() : "run:" + c.run + ":0") << c.program;
        ASSERT_EQ(scriptedMessages().shown.size(), 1) << c.program;
        EXPECT_EQ(scriptedMessages().shown[0].title + ": " + scriptedMessages().shown[0].text, c.shown) << c.program;
    }
}

TEST(DocumentToolBarTools, TheOemShortNameComesFromTheThemeFileOrIsNUV)
{
    QTemporaryDir app;
    DocumentToolBar bar;
    bar.setAppPath(app.path());
    EXPECT_EQ(bar.themeFile(), app.path() + "\\Support\\Theme\\Theme.ini");
    EXPECT_EQ(bar.OEMShortName(), "NUV");
    QDir(app.path()).mkpath("Support/Theme");
    QFile ini(app.filePath("Support/Theme/Theme.ini"));
    ASSERT_TRUE(ini.open(QIODevice::WriteOnly));
    ini.write("[OEM]\nOEMSHORTNAME=\n");
    ini.close();
    EXPECT_EQ(bar.OEMShortName(), "NUV");
    ASSERT_TRUE(ini.open(QIODevice::WriteOnly));
    ini.write("[OEM]\nOEMSHORTNAME=QD8\n");
    ini.close();
    EXPECT_EQ(bar.OEMShortName(), "QD8");
}

TEST(DocumentToolBarTools, PropertyBagKeepsTodayPageAppPathAndSystemFolder)
{
    PropertyBag bag;
    bag.write("TodayPage", "today.htm");
    bag.write("AppPath", "C:\\QD8");
    bag.write("ConnectionString", "not read");
    DocumentToolBar bar;
    bar.readProperties(bag);
    EXPECT_EQ(bar.TodayPage(), "today.htm");
    EXPECT_EQ(bar.AppPath(), "C:\\QD8");
    EXPECT_EQ(bar.SystemFolder(), "");
    EXPECT_EQ(bar.ConnectionString(), "");
    PropertyBag saved;
    bar.writeProperties(saved);
    EXPECT_EQ(saved.keys(), (QStringList{"AppPath", "SystemFolder", "TodayPage"}));
}

} // namespace
