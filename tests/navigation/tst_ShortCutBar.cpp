#include "navigation/NavigationTest.h"

#include "foundation/PropertyBag.h"
#include "foundation/SqlTrace.h"
#include "navigation/ShortCutBar.h"

#include <QAction>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QTest>

using namespace qd8;
using namespace qd8::test;

namespace {

class ShortCutBarTest : public NavigationTest {
protected:
    void show(qint32 user, const QString& group = QStringLiteral("TST"))
    {
        attach(bar, user, group);
        bar.Refresh();
    }
    static QStringList column(QListWidget* list, int role)
    {
        QStringList values;
        for (int i = 0; i < list->count(); ++i)
            values << list->item(i)->data(role).toString();
        return values;
    }
    QStringList aliases(CommandSet set) const { return column(bar.listView(set), Qt::UserRole); }
    QStringList captions(CommandSet set) const { return column(bar.listView(set), Qt::DisplayRole); }
    QStringList userCommandIds(qint32 user) const
    {
        return queryColumn(dataConnectionString(), Sql("SELECT TUsCTCmdID FROM QD8TUserCommand WHERE TUsCTUsrID=") + qint64(user) + " ORDER BY TUsCSort");
    }
    QStringList launched;
    ShortCutBar bar;

    void SetUp() override
    {
        NavigationTest::SetUp();
        QObject::connect(&bar, &ShortCutBar::Lunch, [this](QString& alias) { launched << alias; });
    }
};

TEST_P(ShortCutBarTest, ListsShowOnlyCommandsInUseWithBothRightsInTheirOrder)
{
    show(1);
    EXPECT_EQ(aliases(CommandSet::Main), (QStringList{"TSTJ", "TSTA", "TSTB", "TSTI"}));
    EXPECT_EQ(aliases(CommandSet::Module), (QStringList{"TSTI", "TSTA"}));
    EXPECT_EQ(aliases(CommandSet::User), (QStringList{"TSTB", "TSTA"}));
    // Thai for user 1: the accelerator mark goes, a doubled ampersand stays, no name is one blank.
    EXPECT_EQ(captions(CommandSet::Main), (QStringList{"คำสั่งเจ", "คำสั่งเอ", "บี && ซี", " "}));

    ShortCutBar english;
    attach(english, 2);
    english.Refresh();
    EXPECT_EQ(english.listView(CommandSet::Main)->item(1)->text(), "Alpha");
    EXPECT_EQ(english.listView(CommandSet::Main)->item(2)->text(), "B && C");
    // A user list never shows another user's rows.
    EXPECT_FALSE(english.listView(CommandSet::User)->findItems("Alpha", Qt::MatchExactly).size());
}

TEST_P(ShortCutBarTest, AnEmptyCommandGroupListsTheListBarCommandsOfEveryGroup)
{
    show(1, QString());
    const QStringList main = aliases(CommandSet::Main);
    for (const char* listed : {"GLJV", "TSTA"})
        EXPECT_TRUE(main.contains(listed)) << listed;
    EXPECT_FALSE(main.contains("GLTB"));    // Somchai may not use the trial balance
    EXPECT_FALSE(main.contains("GLBOOK"));  // not on the list bar
    EXPECT_FALSE(main.contains("ICCOUNT")); // not in use
    EXPECT_TRUE(aliases(CommandSet::Module).isEmpty());  // no module "" in the module lists
}

TEST_P(ShortCutBarTest, RefreshSendsTheCatalogueStatementsAsWritten)
{
    SqlTrace::Recorder trace;
    show(1);
    const QStringList sent = trace.composed();
    const QStringList expected = {
        "SELECT * FROM QD8TUserCommand WHERE TUscTUsRID=1 ORDER BY TUsCSort",
        "SELECT * FROM QD8TCommand WHERE TCmdFlag1=1 AND TCmdID=9007",
        "SELECT * FROM QD8TModuleCommand WHERE TMdCTCmGAlias='TST' ORDER BY TMdCSort",
        "SELECT * FROM QD8TCommand WHERE TCmdFlag1=1 AND TCmdID=9999",
        "SELECT * FROM QD8TCommand WHERE TCmdShowListBar=1  AND TCmdActiveStatus=1 AND TCmdShowListbar=1 AND TCmdFlag1=1 AND TCmdTCmGAlias='TST' ORDER BY TCmdSort",
    };
    qsizetype from = 0;
    for (const QString& statement : expected) {
        const qsizetype at = sent.indexOf(statement, from);
        EXPECT_GE(at, 0) << statement.toStdString();
        from = at < 0 ? from : at;
    }
    trace.clear();
    bar.setCommandGroup(QString());
    bar.DOMAINLIST();
    EXPECT_TRUE(trace.composed().contains(
        "SELECT * FROM QD8TCommand WHERE TCmdShowListBar=1 AND TCmdActiveStatus=1 AND TCmdShowListbar=1 AND TCmdFlag1=1 ORDER BY TCmdSort"));
    // One rights read and one caption read per refresh, however many commands are listed.
    trace.clear();
    bar.Refresh();
    EXPECT_EQ(trace.composed().filter("QD8TUserRight").size(), 1);
    EXPECT_EQ(trace.composed().filter("QD8TCommandCaption").size(), 1);
}

TEST_P(ShortCutBarTest, IconsNeedAnExistingIcoFileAndKeepTheirFirstPicture)
{
    show(1);
    QListWidget* main = bar.listView(CommandSet::Main);
    EXPECT_EQ(column(main, Qt::UserRole + 2), (QStringList{"Blank", "T1.ico", "t2.ico", "Blank"}));  // missing, ok, lower case, .bmp
    EXPECT_EQ(column(main, Qt::UserRole + 1), (QStringList{"Blank", "T1.ico", "Blank", "T3.ICO"}));
    // The user list loads first: TSTB's picture is the first one added.
    EXPECT_EQ(bar.imageKeys(), (QStringList{"Blank", "t2.ico", "T1.ico", "T3.ICO"}));
    EXPECT_FALSE(main->item(1)->icon().isNull());
}

TEST_P(ShortCutBarTest, NothingLoadsOrLaunchesWithoutIconFolderOrSessionDatabase)
{
    show(1);
    attach(bar, 1);
    bar.setIconPath(QString());
    bar.setCommandGroup(QStringLiteral("GL"));
    bar.Refresh();
    EXPECT_EQ(aliases(CommandSet::Main).first(), "TSTJ");  // kept what it had
    emit bar.listView(CommandSet::Main)->itemDoubleClicked(bar.listView(CommandSet::Main)->item(0));
    EXPECT_TRUE(launched.isEmpty());

    ShortCutBar unreachable;
    attach(unreachable, 1);
    unreachable.setAppConnectionString(QStringLiteral("Driver=SQLite;Data Source=/nonexistent/QD8Command.dat"));
    unreachable.Refresh();  // no exception, no message
    EXPECT_EQ(unreachable.listView(CommandSet::Main)->count(), 0);
    EXPECT_TRUE(scriptedMessages().shown.isEmpty());
}

TEST_P(ShortCutBarTest, SelectionAndLaunchGoThroughTheCatalogue)
{
    show(1);
    EXPECT_EQ(bar.selectedAlias(), "TSTJ");
    EXPECT_EQ(QList<int>({bar.currentList(), bar.shownList()}), QList<int>({1, 1}));

    QListWidget* users = bar.listView(CommandSet::User);
    bar.headerButton(CommandSet::User)->click();
    EXPECT_EQ(bar.shownList(), 3);
    EXPECT_TRUE(users->isVisibleTo(&bar));
    EXPECT_FALSE(bar.listView(CommandSet::Main)->isVisibleTo(&bar));
    emit users->itemClicked(users->item(1));
    EXPECT_EQ(bar.currentList(), 3);
    QTest::keyClick(users, Qt::Key_Return);
    emit bar.listView(CommandSet::Module)->itemDoubleClicked(bar.listView(CommandSet::Module)->item(0));
    EXPECT_EQ(launched, (QStringList{"TSTA", "TSTI"}));
    EXPECT_EQ(bar.currentList(), 2);

    // A command taken out of the catalogue since the list was loaded launches nothing.
    runOnApp({QStringLiteral("DELETE FROM QD8TCommand WHERE TCmdAlias='TSTA'")});
    emit users->itemDoubleClicked(users->item(1));
    EXPECT_EQ(launched.size(), 2);
    EXPECT_TRUE(scriptedMessages().shown.isEmpty());
}

TEST_P(ShortCutBarTest, AddingACommandTwiceKeepsOneRowAndADatabaseErrorKeepsTheList)
{
    show(1);
    scriptedPicker().answers = {QStringLiteral("9010"), QStringLiteral("9010"), QString()};
    bar.mnuAdd_click();
    bar.mnuAdd_click();
    bar.mnuAdd_click();  // nothing picked
    EXPECT_EQ(userCommandIds(1), (QStringList{"9007", "9002", "9001", "9010"}));
    EXPECT_EQ(aliases(CommandSet::User), (QStringList{"TSTB", "TSTA", "TSTJ"}));

    ASSERT_EQ(scriptedPicker().requests.size(), 3);
    const PickRequest& request = scriptedPicker().requests.first();
    EXPECT_EQ(QStringList({request.title, request.keyField, request.fieldList, request.captionList, request.widthList, request.typeList}),
        QStringList({"เลือกคำสั่งที่ต้องการแสดง (การเรียกใช้จะขึ้นอยู่กับสิทธิที่ได้รับ)", "TCmdID", "TCmdID,TCmGName,TCmdReportno2,TCmdName",
            "ID,โมดูล,คำสั่ง,ชื่อคำสั่ง", "0,2800,800,6860", "0,0,0,0"}));
    EXPECT_EQ(request.source, "QD8VCommand WHERE (TCmdType='F' or TCmdType='R') and TCmGShow=1 and TCmdActiveStatus=1 and TCmdFlag1=1 ORDER BY TCmGSort,TCmdSort");
    EXPECT_EQ(request.connectionString, appConnectionString());
    EXPECT_EQ(request.dialogWidth, 10200);

    // A database error stops the add silently and keeps the list.
    bar.setConnectionString(QStringLiteral("Driver=SQLite;Data Source=/nonexistent/QD8Data.dat"));
    scriptedPicker().answers = {QStringLiteral("9009")};
    bar.mnuAdd_click();
    EXPECT_EQ(aliases(CommandSet::User), (QStringList{"TSTB", "TSTA", "TSTJ"}));
    EXPECT_TRUE(scriptedMessages().shown.isEmpty());
}

TEST_P(ShortCutBarTest, RemoveWorksOnlyOnTheUserList)
{
    show(1);
    QListWidget* users = bar.listView(CommandSet::User);
    // A selection in the main list: "Remove" is disabled and does nothing.
    bar.showConfigMenu(QPoint(0, 0));
    EXPECT_FALSE(bar.removeAction()->isEnabled());
    EXPECT_TRUE(bar.addAction()->isEnabled());
    bar.configMenu()->hide();
    bar.mnuDelete_click();
    EXPECT_EQ(userCommandIds(1).size(), 3);

    emit users->itemClicked(users->item(0));  // TSTB
    bar.showConfigMenu(QPoint(0, 0));
    EXPECT_TRUE(bar.removeAction()->isEnabled());
    bar.configMenu()->hide();
    bar.removeAction()->trigger();
    EXPECT_EQ(userCommandIds(1), (QStringList{"9007", "9001"}));
    EXPECT_EQ(aliases(CommandSet::User), (QStringList{"TSTA"}));
    EXPECT_EQ(bar.selectedAlias(), "TSTA");  // the reloaded list selects its first item
}

QD8_ON_BOTH_ENGINES(ShortCutBarTest);

TEST(ShortCutBarProperties, TheIconFolderIsReadFromOneKeyAndWrittenToAnother)
{
    PropertyBag bag;
    for (const auto& [key, value] : {std::pair{"ConnectionString", "Driver=SQLite;Data Source=a.dat"}, {"CommandGroup", "GL"},
             {"mIconPath", "C:\\icons"}, {"IconPath", "D:\\other"}})
        bag.write(key, value);
    ShortCutBar bar;
    bar.readProperties(bag);
    EXPECT_EQ(bar.IconPath(), "C:\\icons");
    EXPECT_EQ(bar.CommandGroup(), "GL");
    PropertyBag saved;
    bar.writeProperties(saved);
    EXPECT_EQ(saved.keys(), (QStringList{"CommandGroup", "ConnectionString", "IconPath"}));
    ShortCutBar reloaded;
    reloaded.setIconPath("set before loading");
    reloaded.readProperties(saved);
    EXPECT_EQ(reloaded.IconPath(), "");
    EXPECT_EQ(reloaded.ConnectionString(), "Driver=SQLite;Data Source=a.dat");
}

} // namespace
