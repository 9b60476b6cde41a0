#include "navigation/NavigationTest.h"

#include "database/SessionFunctions.h"
#include "foundation/SqlTrace.h"
#include "navigation/NUVRibbon.h"
#include "navigation/OemSettings.h"
#include "widgets/FormRegistry.h"
#include "widgets/PickListModel_p.h"
#include "widgets/Ribbon.h"

#include <QApplication>
#include <algorithm>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QToolButton>

using namespace qd8;
using namespace qd8::test;

namespace {

class NUVRibbonTest : public NavigationTest {
protected:
    void SetUp() override
    {
        NavigationTest::SetUp();
        QObject::connect(&ribbon, &NUVRibbon::Lunch, [this](QString& alias) { launched << alias; });
    }
    QStringList buttons(const char* tab, const char* group) const
    {
        return ribbon.ribbon()->buttonKeys(QString::fromLatin1(tab), QString::fromLatin1(group));
    }
    NUVRibbon ribbon;
    QStringList launched;
};

TEST_P(NUVRibbonTest, CatalogueTabsHoldTheThreeCommandSets)
{
    attach(ribbon, 1);
    ribbon.Refresh();
    EXPECT_EQ(buttons("MODULE", "MAINCOMMAND"), (QStringList{"TSTJ", "TSTA", "TSTB", "TSTI"}));
    EXPECT_EQ(buttons("GROUP", "FREQUENCY"), (QStringList{"TSTI", "TSTA"}));
    EXPECT_EQ(buttons("USERCOMMAND", "USERCOMMAND"), (QStringList{"TSTB", "TSTA"}));
    Ribbon* r = ribbon.ribbon();
    EXPECT_EQ(QStringList({r->tabCaption("MODULE"), r->groupCaption("MODULE", "MAINCOMMAND"), r->tabCaption("GROUP"),
                  r->groupCaption("GROUP", "FREQUENCY"), r->button("TSTB")->text(), r->button("TSTB")->toolTip()}),
        QStringList({"Module", "Main Module Command", "Group", "Frequency Command", "บี && ซี", "บี && ซี"}));

    // A refresh replaces the buttons instead of adding to them, and loads the sets in the
    // shortcut bar's order: the user's, the module's, the main list.
    SqlTrace::Recorder trace;
    ribbon.Refresh();
    EXPECT_EQ(buttons("MODULE", "MAINCOMMAND").size(), 4);
    QStringList lists;
    for (const QString& statement : trace.composed())
        for (const char* from : {"QD8TUserCommand WHERE", "QD8TModuleCommand WHERE", "QD8TCommand WHERE TCmdShowListBar"})
            if (statement.startsWith(QStringLiteral("SELECT * FROM ") + QLatin1String(from)))
                lists << QString::fromLatin1(from).section(' ', 0, 0);
    EXPECT_EQ(lists, (QStringList{"QD8TUserCommand", "QD8TModuleCommand", "QD8TCommand"}));
    ribbon.ribbon()->button("TSTA")->click();
    EXPECT_EQ(launched, QStringList{"TSTA"});
}

TEST_P(NUVRibbonTest, APickedThemeIsStoredAppliedAndAnnounced)
{
    attach(ribbon, 1);
    ribbon.Refresh();
    QList<std::pair<int, QObject*>> changes;
    QObject::connect(&ribbon, &NUVRibbon::ThemeChange, [&](int theme, QObject* hosted) { changes.append({theme, hosted}); });
    scriptedPicker().choices = {2, -1};
    ribbon.buttonClick("theme");
    ribbon.buttonClick("THEME");  // cancelled: nothing changes
    ASSERT_EQ(changes.size(), 1);
    EXPECT_EQ(changes[0].first, 2);
    EXPECT_EQ(changes[0].second, ribbon.ribbon());
    EXPECT_EQ(ribbon.ribbon()->theme(), 2);
    EXPECT_EQ(ribbon.BackColor(), Ribbon::themes()[2].background);
    EXPECT_EQ(DbSessionFunctions::userSettingText(1, "RibbonTheme", sessionConnectionString()), "2");

    NUVRibbon next;
    attach(next, 1);
    next.Refresh();
    EXPECT_EQ(next.ribbon()->theme(), 2);
}

TEST_P(NUVRibbonTest, RemovingPicksFromTheTemplateUsersListAndDeletesForTheSessionUser)
{
    attach(ribbon, 1);
    ribbon.Refresh();
    scriptedPicker().answers = {QStringLiteral("9002")};
    ribbon.mnuDelete_click();
    EXPECT_EQ(buttons("USERCOMMAND", "USERCOMMAND"), QStringList{"TSTA"});
    const PickRequest& request = scriptedPicker().requests.first();
    EXPECT_EQ(QStringList({request.title, request.keyField, request.fieldList, request.captionList, request.widthList, request.typeList}),
        QStringList({"เลือกคำสั่งที่ต้องการลบ", "TUscTCmdID", "TUscTCmdID,TCmdName", "ID,โมดูล,คำสั่ง", "0,6860", "0,0"}));
    EXPECT_EQ(request.source,
        "(SELECT QD8TUserCommand.*, QD8TCommand.* FROM QD8TUserCommand LEFT JOIN QD8TCommand ON QD8TUserCommand.TUsCTCmdID = "
        "QD8TCommand.TCmdID WHERE (((QD8TUserCommand.TUsCTUsrID)=0)))  A ORDER BY TCmdName");
    EXPECT_EQ(request.connectionString, sessionConnectionString());

    // The list as the pick list shows it: the session connection reaches the catalogue it
    // joins on both engines, so every row of user 0 comes with its command's name.
    PickListModel list;
    list.load(request);
    list.fetchAll();
    QStringList ids, names;
    for (int row = 0; row < list.rowCount(); ++row) {
        ids << list.keyAt(row);
        names << list.data(list.index(row, 1)).toString();
    }
    std::sort(ids.begin(), ids.end());
    EXPECT_EQ(ids, (QStringList{"102", "201", "401", "602", "701", "801"}));
    EXPECT_FALSE(names.contains(QString())) << names.join(',').toStdString();

    scriptedPicker().answers = {QStringLiteral("9010")};
    ribbon.mnuAdd_click();
    EXPECT_EQ(buttons("USERCOMMAND", "USERCOMMAND"), (QStringList{"TSTA", "TSTJ"}));
}

QD8_ON_BOTH_ENGINES(NUVRibbonTest);

// The fixed tabs follow the catalogue's; their groups and buttons are a table of the code,
// but the two misspelt captions are kept as users have always seen them.
TEST(NUVRibbonContent, FixedTabsFollowTheCatalogueTabsAndKeepTheirOldCaptions)
{
    NUVRibbon ribbon;
    Ribbon* r = ribbon.ribbon();
    EXPECT_EQ(r->tabKeys(), (QStringList{"MODULE", "GROUP", "USERCOMMAND", "STANDARD", "ORGANIZER", "HELP"}));
    EXPECT_EQ(QStringList({r->groupCaption("HELP", "PREMIERE"), r->groupCaption("ORGANIZER", "PERSONNEL")}),
        QStringList({"Premeire Services", "Pesonnel"}));
}

TEST(NUVRibbonContent, ButtonsActLocallyOrLaunchTheCatalogueCommand)
{
    QTemporaryDir app;
    QDir(app.path()).mkpath("Support/Theme");
    QFile ini(app.filePath("Support/Theme/Theme.ini"));
    ASSERT_TRUE(ini.open(QIODevice::WriteOnly));
    ini.write("[OEM]\nOEMSHORTNAME=QD8\nWEBSITE=https://site.example/\nNEWSURL=https://news.example/\nSUPPORTEMAIL=help@site.example\nABOUT=QD8 Business Suite 2\n");
    ini.close();
    NUVRibbon ribbon;
    ribbon.setAppPath(app.path());
    ribbon.setSystemFolder("C:\\QD8");
    const struct { const char* key; const char* effect; } cases[] = {
        {"CALC", "run:Calc.exe:0"},
        {"news", "url:https://news.example/"},
        {"FAQ", "url:https://site.example/"},
        {"CUSTOMERSERVICE", "url:https://site.example/"},
        {"WEBSITE", "url:https://site.example/"},
        {"BROWSER", "url:https://site.example/"},
        {"EMAIL", "url:mailto:help@site.example"},
        {"CONTENT", "run:C:\\QD8\\QD8help.exe:0"},
        {"VIDEO", "run:C:\\QD8\\QD8help.exe:0"},
    };
    for (const auto& c : cases) {
        scriptedShell().reset();
        ribbon.buttonClick(c.key);
        EXPECT_EQ(scriptedShell().commands, QStringList{c.effect}) << c.key;
    }
    ribbon.buttonClick("ABOUT");
    ribbon.buttonClick("IMAGEFOLDER");
    const auto& shown = scriptedMessages().shown;
    ASSERT_EQ(shown.size(), 2);
    EXPECT_EQ(shown[0].title + "|" + shown[0].text, "QD8|QD8 Business Suite 2");
    EXPECT_EQ(shown[1].title + "|" + shown[1].text, "System Configuration|ไม่ได้กำหนด Image folder");

    // Clipboard keys go to the focused widget as keystrokes.
    QLineEdit edit;
    edit.setText("copy me");
    edit.show();
    QApplication::setActiveWindow(&edit);
    edit.setFocus();
    edit.selectAll();
    ribbon.buttonClick("CUT");
    QApplication::processEvents();
    EXPECT_EQ(edit.text(), "");
    ribbon.buttonClick("PASTE");
    QApplication::processEvents();
    EXPECT_EQ(edit.text(), "copy me");
}

TEST(NUVRibbonContent, FormButtonsOpenTheRegisteredFormOrSayItIsMissing)
{
    QPointer<QDialog> opened;
    FormRegistry::registerForm(NUVRibbon::SearchForm, [&](QWidget* parent) { return opened = new QDialog(parent); });
    NUVRibbon ribbon;
    ribbon.buttonClick("SEARCH");
    ASSERT_TRUE(opened);
    EXPECT_TRUE(opened->isVisible());
    EXPECT_EQ(opened->windowModality(), Qt::ApplicationModal);
    opened->close();
    FormRegistry::unregisterForm(NUVRibbon::SearchForm);
    ribbon.buttonClick("POST");
    ASSERT_EQ(scriptedMessages().shown.size(), 1);
    EXPECT_TRUE(scriptedMessages().shown[0].text.contains("MemoEntry"));
}

} // namespace
