#include "support/ScratchDatabase.h"
#include "support/SampleCompany.h"

#include "database/Schema.h"
#include "foundation/Connection.h"
#include "foundation/ConnectionPool.h"
#include "foundation/Recordset.h"

#include <QCoreApplication>
#include <QDir>
#include <QProcess>

using namespace qd8;
using namespace qd8::test;

namespace {

// Every table and view the suite's statements name, as they spell them.
const char* const SuiteObjects[] = {
    "QD8TACAllocate", "QD8TACChart", "QD8TAccountMap", "QD8TAP", "QD8TAR", "QD8TAR2", "QD8TARInvoice",
    "QD8TBranch", "QD8TBranchOption", "Qd8TChequeRec", "QD8TCode", "QD8TCommand", "QD8TCustom1",
    "QD8TCustomData", "QD8TDepartment", "QD8TDivision", "QD8TEMPLOYEE", "QD8TEMPLOYEETYPE",
    "QD8TEMPSLIPPERIOD", "QD8TFormDocList", "QD8TGLBook", "QD8TGLTrans", "QD8TGLTransSub", "QD8THostOption",
    "QD8TInventory", "QD8TJob", "QD8TJobMethod", "QD8TJobProdMat", "QD8TModuleCommand", "QD8TMRPFormulaGrp",
    "QD8TMRPStepName", "QD8TOption", "QD8TOptionGroup", "QD8TPointTrans", "QD8TProduct", "QD8TProductGroup",
    "QD8TProductLine", "QD8TProductMethod", "QD8TProductSec2", "QD8TProductSection", "QD8TProject",
    "QD8TQuickField", "QD8TQuickForm", "QD8TReportFavorite", "QD8TSection", "QD8TSO", "Qd8TUser",
    "QD8TUserCommand", "QD8TUserOption", "QD8VCommand", "QD8VCustomData", "QD8VGLTrans", "QD8VJob",
    "QD8VJobMethod", "QD8VJobProduction", "QD8VJobProductionM", "QD8VOption", "QD8VOptionGroup",
    "QD8VPointTrans", "QD8VPointTransH", "QD8VPointTransSum", "QD8VPR", "QD8VQuickGroup", "QD8VQuickGroupBK",
    "QD8VReportFilter", "QD8VSO",
};

const DatabaseRole Roles[] = {DatabaseRole::Application, DatabaseRole::CommandCentre, DatabaseRole::CompanyData};

TEST(Schema, NamesEveryTableAndViewTheSuiteUses)
{
    QStringList all;
    for (DatabaseRole role : Roles)
        for (const QString& name : Schema::objectNames(role))
            all << name.toLower();
    for (const char* name : SuiteObjects)
        EXPECT_TRUE(all.contains(QString::fromLatin1(name).toLower())) << name << " is not in the schema";
    all.removeDuplicates();
    EXPECT_EQ(all.size(), [&] { QStringList d; for (DatabaseRole r : Roles) d << Schema::objectNames(r); return d.size(); }())
        << "a table is defined in two databases";
}

TEST(Schema, ScriptsSplitAtLineEndSemicolonsAndDropComments)
{
    EXPECT_EQ(Schema::statements(QStringLiteral("-- a comment; not a statement\nCREATE TABLE A (X INTEGER);\n\n"
                                                "INSERT INTO A\n  VALUES (1);\nINSERT INTO A VALUES (2)")),
        QStringList({"CREATE TABLE A (X INTEGER)", "INSERT INTO A\n  VALUES (1)", "INSERT INTO A VALUES (2)"}));
}

class SchemaTest : public EngineTest {};

TEST_P(SchemaTest, CreatesAndLoadsEveryDatabaseAndTheCheckFindsNothingMissing)
{
    for (DatabaseRole role : Roles) {
        ScratchDatabase db(engine(), Schema::fileName(role));
        db.createSchema(role);
        EXPECT_GT(Schema::loadSample(db.connectionString(), role), 0) << Schema::roleName(role).toStdString();
        const auto problems = Schema::check(db.connectionString(), role);
        for (const auto& p : problems)
            ADD_FAILURE() << p.table.toStdString() << " " << p.missingColumns.join(',').toStdString();
    }
}

TEST_P(SchemaTest, CheckReportsMissingTablesAndColumns)
{
    ScratchDatabase db(engine(), QStringLiteral("QD8Command.dat"));
    db.createSchema(DatabaseRole::Application);
    db.run({QStringLiteral("DROP VIEW QD8VCommand"), QStringLiteral("ALTER TABLE QD8TQuickField DROP COLUMN TQFFFieldName")});
    const auto problems = Schema::check(db.connectionString(), DatabaseRole::Application);
    ASSERT_EQ(problems.size(), 2);
    QStringList seen;
    for (const auto& p : problems)
        seen << p.table.toLower() + QLatin1Char(':') + p.missingColumns.join(',');
    EXPECT_TRUE(seen.contains(QStringLiteral("qd8vcommand:"))) << seen.join(' ').toStdString();
    EXPECT_TRUE(seen.contains(QStringLiteral("qd8tquickfield:tqfffieldname"))) << seen.join(' ').toStdString();
}

QD8_ON_BOTH_ENGINES(SchemaTest);

TEST(Admin, InitCreatesTheSampleCompanyThatTheStockSqliteShellReads)
{
    QTemporaryDir dir;
    QString output;
    ASSERT_EQ(runAdmin({QStringLiteral("init"), dir.path()}, &output), 0) << output.toStdString();
    for (DatabaseRole role : Roles)
        EXPECT_TRUE(QFileInfo::exists(dir.filePath(Schema::fileName(role))));
    EXPECT_EQ(runAdmin({QStringLiteral("init"), dir.path()}, &output), 1) << "a second init must not overwrite";
    EXPECT_TRUE(output.contains(QStringLiteral("already exists")));

    QProcess shell;
    shell.start(QStringLiteral("sqlite3"), {dir.filePath(QStringLiteral("QD8Command.dat")),
                                            QStringLiteral("SELECT COUNT(*) > 0 FROM QD8TCommand; PRAGMA journal_mode;")});
    ASSERT_TRUE(shell.waitForFinished(30000));
    EXPECT_EQ(QString::fromUtf8(shell.readAllStandardOutput()).trimmed(), QStringLiteral("1\nwal"));

    // Sorting Thai names needs the collation: the shell gets it from the loadable extension.
    const QString extension = QString::fromLocal8Bit(qgetenv("QD8_THAI_EXTENSION"));
    if (!extension.isEmpty()) {
        shell.start(QStringLiteral("sqlite3"), {dir.filePath(QStringLiteral("QD8Data.dat")),
                                                QStringLiteral(".load ") + extension,
                                                QStringLiteral("SELECT COUNT(*) FROM (SELECT TUsrName FROM QD8TUser ORDER BY TUsrName)")});
        ASSERT_TRUE(shell.waitForFinished(30000));
        EXPECT_EQ(shell.exitCode(), 0) << shell.readAllStandardError().toStdString();
        EXPECT_GT(QString::fromUtf8(shell.readAllStandardOutput()).trimmed().toInt(), 0);
    }

    const QString data = QStringLiteral("Driver=SQLite;Data Source=") + dir.filePath(QStringLiteral("QD8Data.dat"));
    EXPECT_EQ(runAdmin({QStringLiteral("check"), data}, &output), 0) << output.toStdString();
    EXPECT_EQ(runAdmin({QStringLiteral("check"), data, QStringLiteral("--role"), QStringLiteral("app")}, &output), 1);
    EXPECT_TRUE(output.contains(QStringLiteral("missing table or view: QD8TCommand"))) << output.toStdString();
    EXPECT_EQ(runAdmin({QStringLiteral("check"), QStringLiteral("Driver=Nope;Data Source=x")}, &output), 1);
    EXPECT_TRUE(output.contains(QStringLiteral("unknown driver")));
    EXPECT_EQ(runAdmin({QStringLiteral("frobnicate")}), 2);
}

TEST(Admin, InitCreatesThePostgresDatabasesWhenMissing)
{
    if (!ScratchDatabase::postgresAvailable())
        GTEST_SKIP() << "no PostgreSQL server";
    const QString prefix = QStringLiteral("admin%1_").arg(QCoreApplication::applicationPid());
    QStringList arguments{QStringLiteral("init")};
    QStringList names;
    for (const char* option : {"--app", "--center", "--data"}) {
        const DatabaseRole role = Roles[names.size()];
        names << prefix + Schema::fileName(role);
        arguments << QLatin1String(option) << QStringLiteral("Driver=PostgreSQL;Database=") + names.back();
    }
    QString output;
    EXPECT_EQ(runAdmin(arguments, &output), 0) << output.toStdString();
    EXPECT_EQ(runAdmin({QStringLiteral("check"), QStringLiteral("Driver=PostgreSQL;Database=") + names[0]}, &output), 0)
        << output.toStdString();
    Connection server;
    server.open(ScratchDatabase::postgresAdminConnectionString());
    for (const QString& name : names)
        server.execute(Sql(QStringLiteral("DROP DATABASE IF EXISTS \"%1\" WITH (FORCE)").arg(name)));
}

} // namespace
