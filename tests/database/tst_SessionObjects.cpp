#include "support/SampleCompany.h"

#include "database/ClientObject.h"
#include "database/DataObject.h"
#include "database/ListService.h"
#include "database/PermissionObject.h"
#include "database/SessionFunctions.h"
#include "foundation/Backend.h"
#include "foundation/Connection.h"
#include "foundation/DbError.h"
#include "foundation/SqlTrace.h"

#include <QSet>
#include <thread>

using namespace qd8;
using namespace qd8::test;

namespace {

class SessionObjectsTest : public SampleCompanyTest {};

TEST_P(SessionObjectsTest, UserSettingsFallBackToTheTemplateUserThenZero)
{
    DbSessionFunctions functions;
    const QString data = dataConnectionString();
    EXPECT_EQ(functions.GetUserSetting(1, QStringLiteral("LanguageID"), data), 0);
    EXPECT_EQ(functions.GetUserSetting(2, QStringLiteral("LanguageID"), data), 1);
    EXPECT_EQ(functions.GetUserSetting(2, QStringLiteral("RibbonTheme"), data), 2);
    runOnData({QStringLiteral("UPDATE QD8TUserSetting SET TUsSValue='3' WHERE TUsSTUsrID=0 AND TUsSAlias='RibbonTheme'")});
    EXPECT_EQ(functions.GetUserSetting(1, QStringLiteral("RibbonTheme"), data), 3);
    EXPECT_EQ(functions.GetUserSetting(1, QStringLiteral("NoSuchSetting"), data), 0);
    EXPECT_EQ(functions.GetUserSetting(1, QStringLiteral("LanguageID"), QString()), 0);
    EXPECT_THROW(functions.GetUserSetting(1, QStringLiteral("LanguageID"), QStringLiteral("Driver=SQLite;Data Source=/nonexistent/x.dat")), DbError);
}

TEST_P(SessionObjectsTest, CommandCaptionsPreferTheCommandCentre)
{
    DbSessionFunctions functions;
    const QString centre = centreConnectionString();
    struct Case { int language; const char* alias; const char* reportNo; const char* expected; };
    const Case cases[] = {
        {0, "ARINVOICE", "", "ใบแจ้งหนี้/ใบกำกับภาษี"},
        {1, "ARINVOICE", "", "Invoice / Tax Invoice"},
        {0, "GLJV", "", "ชื่อไทย"},
        {1, "GLJV", "0", "English name"},
        {1, "GLTB", "12", "12 - English name"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(functions.GetCommandCaption(c.language, appConnectionString(), centre, QLatin1String(c.alias), 0,
                      QStringLiteral("ชื่อไทย"), QStringLiteral("English name"), QLatin1String(c.reportNo)),
            QString::fromUtf8(c.expected))
            << c.alias << " " << c.language;
    // No command centre: the command's own name.
    EXPECT_EQ(functions.GetCommandCaption(0, appConnectionString(), QStringLiteral("Driver=SQLite;Data Source=/nonexistent/QD8Center.dat"),
                  QStringLiteral("ARINVOICE"), 0, QStringLiteral("ชื่อไทย"), QStringLiteral("English name"), QString()),
        QStringLiteral("ชื่อไทย"));
}

TEST_P(SessionObjectsTest, RightsComeFromTheUsersRowAndAreZeroWithoutOne)
{
    DbPermissionObject rights(dataConnectionString());
    rights.LoadCommandRights(2, QStringLiteral("ARINVOICE"), dataConnectionString(), appConnectionString());
    QStringList allowed;
    for (const QString& key : QStringList{"Run", "Show"} + PermissionObject::ToolBarKeys)
        if (rights.right(key) != 0)
            allowed << key;
    EXPECT_EQ(allowed, QStringList({"Run", "Show", "Add", "Copy", "Edit", "Check", "Print"}));

    rights.LoadCommandRights(1, QStringLiteral("GLTB"), dataConnectionString(), appConnectionString());
    EXPECT_EQ(rights.right(QStringLiteral("Run")), 0);
    rights.LoadCommandRights(1, QStringLiteral("NOSUCHCOMMAND"), dataConnectionString(), appConnectionString());
    EXPECT_EQ(rights.right(QStringLiteral("Add")), 0);

    // Named rights and a restricted user's employee types: the list and quick grid suites.
    EXPECT_EQ(DbPermissionObject(dataConnectionString(), 1).employeeScope(QStringLiteral("TEmpTEmTCode"), 0), QString());
}

TEST_P(SessionObjectsTest, LookupsQuoteTextButNotNumbersAndSortNumbersCountOn)
{
    ListService list;
    SqlTrace::Recorder trace;
    const QVariant id = list.LookupValue(QString(), 0, 0, QStringLiteral("TCmdAlias"), QStringLiteral("GLJV"), QStringLiteral("TCmdID"),
        QStringLiteral("QD8TCommand"), appConnectionString());
    EXPECT_EQ(trace.composed().value(0), QStringLiteral("SELECT TCmdID FROM QD8TCommand WHERE TCmdAlias='GLJV'"));
    const QVariant alias = list.LookupValue(QString(), QStringLiteral("TCmdID"), id, QStringLiteral("TCmdAlias"),
        QStringLiteral("QD8TCommand"), appConnectionString());
    EXPECT_EQ(trace.composed().value(1), QStringLiteral("SELECT TCmdAlias FROM QD8TCommand WHERE TCmdID=") + id.toString());
    EXPECT_EQ(alias.toString(), QStringLiteral("GLJV"));
    EXPECT_EQ(list.LookupValue(QStringLiteral("none"), QStringLiteral("TCmdAlias"), QStringLiteral("NOPE"), QStringLiteral("TCmdID"),
                  QStringLiteral("QD8TCommand"), appConnectionString()),
        QVariant(QStringLiteral("none")));
    EXPECT_THROW(list.LookupValue(QString(), QStringLiteral("TCmdAlias"), QStringLiteral("x' OR '1'='1"), QStringLiteral("TCmdID"),
                     QStringLiteral("QD8TCommand"), appConnectionString()),
        DbError);

    Connection data;
    data.open(dataConnectionString());
    data.execute("DELETE FROM QD8TUserCommand");
    EXPECT_EQ(list.NextSortNumber(QStringLiteral("TUscSort"), QStringLiteral("QD8TUSerCommand"), dataConnectionString(), 0), 1);
    data.execute("INSERT INTO QD8TUserCommand (TUsCTUsrID, TUsCTCmdID, TUsCSort) VALUES (1, 101, 7)");
    EXPECT_EQ(list.NextSortNumber(QStringLiteral("TUscSort"), QStringLiteral("QD8TUSerCommand"), dataConnectionString(), 0), 8);
}

TEST_P(SessionObjectsTest, OptionsReadStoredValuesThenDefaultsAndStoreInTheCallersTransaction)
{
    DbDataObject data(dataConnectionString(), appConnectionString(), 1, QStringLiteral("SOMCHAI"));
    EXPECT_EQ(data.optionText(QStringLiteral("ARCREDITBALANCEIGNORECHEQUE")), QStringLiteral("0"));
    EXPECT_EQ(data.optionText(QStringLiteral("EnableProjectFilter")), QStringLiteral("1"));
    EXPECT_EQ(data.optionText(QStringLiteral("NOSUCHOPTION")), QString());

    Connection connection;
    connection.open(dataConnectionString());
    for (const bool commit : {false, true}) {
        connection.beginTrans();
        data.storeOption(connection, OptionScope::Company, QString(), QStringLiteral("ARCREDITBALANCEIGNORECHEQUE"), QStringLiteral("1"), 1);
        data.storeOption(connection, OptionScope::User, QStringLiteral("1"), QStringLiteral("EnableProjectFilter"), QStringLiteral("0"), 0);
        commit ? connection.commitTrans() : connection.rollbackTrans();
        EXPECT_EQ(data.optionNumber(QStringLiteral("ARCREDITBALANCEIGNORECHEQUE")), commit ? 1 : 0);
    }
    EXPECT_EQ(data.optionText(QStringLiteral("EnableProjectFilter"), OptionScope::User, QStringLiteral("1")), QStringLiteral("0"));
    EXPECT_EQ(data.optionText(QStringLiteral("EnableProjectFilter")), QStringLiteral("1"));
}

TEST_P(SessionObjectsTest, VoucherNumbersCountOnPerBookAndMonth)
{
    DbDataObject data(dataConnectionString(), appConnectionString(), 1);
    const QString key = QStringLiteral("DAILYRECORDCALL");
    EXPECT_EQ(data.nextRunningNumber(key, QStringLiteral("JV"), QDate(2019, 11, 21)), QStringLiteral("JV19110001"));
    EXPECT_EQ(data.nextRunningNumber(key, QStringLiteral("JV"), QDate(2019, 11, 30)), QStringLiteral("JV19110002"));
    EXPECT_EQ(data.nextRunningNumber(key, QStringLiteral("JV"), QDate(2019, 12, 1)), QStringLiteral("JV19120001"));
    EXPECT_EQ(data.nextRunningNumber(key, QStringLiteral("PV"), QDate(2019, 11, 21)), QStringLiteral("PV19110001"));

    // Inside the caller's transaction the number is given back with it on rollback.
    Connection connection;
    connection.open(dataConnectionString());
    connection.beginTrans();
    EXPECT_EQ(data.nextRunningNumber(key, QStringLiteral("PV"), QDate(2019, 11, 21), &connection), QStringLiteral("PV19110002"));
    connection.rollbackTrans();
    EXPECT_EQ(data.nextRunningNumber(key, QStringLiteral("PV"), QDate(2019, 11, 21)), QStringLiteral("PV19110002"));

    // The sample's vouchers of this month took their numbers: the next one follows them.
    const QDate today = QDate::currentDate();
    Connection check;
    check.open(dataConnectionString());
    const QString prefix = QStringLiteral("JV") + today.toString(QStringLiteral("yyMM"));
    const qint64 taken = check.query(Sql("SELECT COUNT(*) FROM QD8TGLTrans WHERE TGLTNo LIKE ") + Sql::quoted(prefix + QLatin1Char('%')))
                             ->value(0, 0).toLongLong();
    EXPECT_EQ(data.nextRunningNumber(key, QStringLiteral("JV"), today), prefix + QString::number(taken + 1).rightJustified(4, QLatin1Char('0')));
}

TEST_P(SessionObjectsTest, TwoConnectionsTakingNumbersAtOnceNeverShareOne)
{
    constexpr int PerConnection = 500;
    QList<qint64> taken[2];
    QString failure[2];
    auto take = [this, &taken, &failure](int which) {
        DbDataObject data(dataConnectionString(), appConnectionString(), which);
        try {
            for (int i = 0; i < PerConnection; ++i)
                taken[which] << data.takeNumber(QStringLiteral("TEST"), QStringLiteral("RACE"));
        } catch (const std::exception& e) {
            failure[which] = QString::fromUtf8(e.what());
        }
    };
    std::thread first(take, 0), second(take, 1);
    first.join();
    second.join();
    ASSERT_TRUE(failure[0].isEmpty() && failure[1].isEmpty()) << failure[0].toStdString() << failure[1].toStdString();
    QSet<qint64> all;
    for (const auto& list : taken)
        for (qint64 n : list)
            all.insert(n);
    EXPECT_EQ(all.size(), 2 * PerConnection);
    EXPECT_EQ(*std::max_element(all.begin(), all.end()), 2 * PerConnection);
}

TEST_P(SessionObjectsTest, TheClientObjectKnowsTheBranchAndTheApproveNoteFilter)
{
    DbClientObject somchai(dataConnectionString(), 1, QStringLiteral("POS-01"));
    EXPECT_EQ(somchai.hostName(), QStringLiteral("POS-01"));
    EXPECT_EQ(somchai.branchCode(), QStringLiteral("HQ"));
    EXPECT_TRUE(somchai.approveNoteFilter());
    EXPECT_EQ(somchai.approveNoteValue(), QStringLiteral("ฝ่ายบัญชี"));
    DbClientObject john(dataConnectionString(), 2);
    EXPECT_EQ(john.branchCode(), QStringLiteral("CNX"));
    EXPECT_FALSE(john.approveNoteFilter());
    EXPECT_FALSE(john.hostName().isEmpty());
}

QD8_ON_BOTH_ENGINES(SessionObjectsTest);

} // namespace
