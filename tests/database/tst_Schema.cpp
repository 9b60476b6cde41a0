#include "support/ScratchDatabase.h"
#include "support/SampleCompany.h"

#include "database/Schema.h"
#include "foundation/Connection.h"
#include "foundation/DbError.h"
#include "foundation/Recordset.h"
#include "foundation/Values.h"

#include <QProcess>
#include <QSet>

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
    "QD8TQuickField", "QD8TQuickForm", "QD8TReportFavorite", "QD8TSection", "QD8TSO", "QD8TUnit", "Qd8TUser",
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
    QTemporaryDir folder;
    std::vector<std::unique_ptr<ScratchDatabase>> dbs;
    for (DatabaseRole role : Roles) {
        dbs.push_back(std::make_unique<ScratchDatabase>(engine(), Schema::fileName(role), &folder));
        dbs.back()->createSchema(role);
        EXPECT_GT(Schema::loadSample(dbs.back()->connectionString(), role), 0) << Schema::roleName(role).toStdString();
    }
    const QString app = dbs[0]->connectionString(), data = dbs[2]->connectionString();
    const auto missing = [](const QString& cs, DatabaseRole role) {
        QStringList names;
        for (const auto& p : Schema::check(cs, role))
            names << p.table + QLatin1Char(' ') + p.missingColumns.join(',');
        return names;
    };
    // A PostgreSQL session database lacks the catalogue until it is linked; SQLite attaches
    // it per connection.
    const bool postgres = engine() == Engine::PostgreSQL;
    EXPECT_EQ(missing(data, DatabaseRole::CompanyData), postgres ? QStringList{"QD8TCommand "} : QStringList{});
    EXPECT_EQ(Schema::linkCatalogue(data, app), postgres);
    EXPECT_EQ(Schema::linkCatalogue(data, app), postgres) << "linking again replaces the link";
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(missing(dbs[i]->connectionString(), Roles[i]), QStringList{}) << Schema::roleName(Roles[i]).toStdString();
}

TEST_P(SchemaTest, CheckReportsMissingTablesAndColumns)
{
    ScratchDatabase db(engine(), QStringLiteral("QD8Command.dat"));
    db.createSchema(DatabaseRole::Application);
    db.run({QStringLiteral("DROP VIEW QD8VCommand"), QStringLiteral("ALTER TABLE QD8TQuickField DROP COLUMN TQFFFieldName")});
    const auto problems = Schema::check(db.connectionString(), DatabaseRole::Application);
    QStringList seen;
    for (const auto& p : problems)
        seen << p.table.toLower() + QLatin1Char(':') + p.missingColumns.join(',');
    seen.sort();
    EXPECT_EQ(seen, QStringList({"qd8tquickfield:tqfffieldname", "qd8vcommand:"}));
}

QD8_ON_BOTH_ENGINES(SchemaTest);

// The sample company on the engine under test, read back through the data layer.
class SampleSchemaTest : public SampleCompanyTest {
protected:
    QStringList appColumn(const Sql& sql) const { return queryColumn(appConnectionString(), sql); }
    QStringList dataColumn(const Sql& sql) const { return queryColumn(dataConnectionString(), sql); }
    // Why a statement cannot run, or "" when it runs.
    static QString failure(Connection& connection, const Sql& sql)
    {
        try {
            Recordset rs;
            rs.open(sql, connection);
            return {};
        } catch (const DbError& error) {
            return sql.text() + QStringLiteral(": ") + error.message();
        }
    }
};

TEST_P(SampleSchemaTest, AutoNumberKeysAreAssignedByTheDatabaseAndNeverGivenTwice)
{
    Connection data;
    data.open(dataConnectionString());
    QList<qint64> sample;
    for (const QString& id : dataColumn(Sql("SELECT TUntID FROM QD8TUnit ORDER BY TUntID")))
        sample << id.toLongLong();
    ASSERT_GE(sample.size(), 2) << "the sample inserts its units without a key";
    EXPECT_EQ(QSet<qint64>(sample.begin(), sample.end()).size(), sample.size());

    // A row written by statement and a row written as the quick form editor writes one
    // (a recordset whose key field is never set) both take keys after the sample's: on
    // PostgreSQL the identity has counted the sample rows, it does not start again at 1.
    data.execute(Sql("INSERT INTO QD8TUnit (TUntCode, TUntName, TUntName2) VALUES ('TST1', 'ทดสอบ', 'Test')"));
    Recordset added;
    added.open(Sql("SELECT * FROM QD8TUnit WHERE 1=0"), data, Recordset::adOpenKeyset, Recordset::adLockOptimistic);
    added.addNew();
    added.setField(QStringLiteral("TUntCode"), QStringLiteral("TST2"));
    added.setField(QStringLiteral("TUntName"), QStringLiteral("ทดสอบสอง"));
    added.update();
    added.close();
    const QStringList fresh = dataColumn(Sql("SELECT TUntID FROM QD8TUnit WHERE TUntCode IN ('TST1','TST2') ORDER BY TUntID"));
    ASSERT_EQ(fresh.size(), 2);
    EXPECT_NE(fresh[0], fresh[1]);
    EXPECT_GT(fresh[0].toLongLong(), sample.last());
    EXPECT_EQ(dataColumn(Sql("SELECT TUntFlag1 FROM QD8TUnit WHERE TUntCode='TST2'")), QStringList{"1"});  // column defaults apply

    // The key of a deleted row is not handed out again, so an old reference to it can
    // never come to mean a new unit.
    data.execute(Sql("DELETE FROM QD8TUnit WHERE TUntID=") + fresh[1]);
    data.execute(Sql("INSERT INTO QD8TUnit (TUntCode, TUntName) VALUES ('TST3', 'สาม')"));
    EXPECT_GT(dataColumn(Sql("SELECT TUntID FROM QD8TUnit WHERE TUntCode='TST3'")).value(0).toLongLong(), fresh[1].toLongLong());
    // The code stays unique.
    EXPECT_THROW(data.execute(Sql("INSERT INTO QD8TUnit (TUntCode) VALUES ('TST1')")), DbError);
}

// Quick form metadata is only text naming tables, columns, forms and commands; a typo
// would otherwise surface when a user opens the form. Every form of the sample is checked
// against the databases it describes.
TEST_P(SampleSchemaTest, EveryQuickFormNamesTablesColumnsFormsAndCommandsThatExist)
{
    Connection app, data;
    app.open(appConnectionString());
    data.open(dataConnectionString());
    const auto asSet = [](const QStringList& list) { return QSet<QString>(list.begin(), list.end()); };
    const QSet<QString> forms = asSet(appColumn(Sql("SELECT TQFmAlias FROM QD8TQuickForm")));
    const QSet<QString> commands = asSet(appColumn(Sql("SELECT TCmdAlias FROM QD8TCommand")));
    const QSet<QString> groups = asSet(appColumn(Sql("SELECT TCmGAlias FROM QD8TCommandGroup")));
    const QSet<QString> types{"TEXT", "NUMBER", "LABELLIST", "YESNO", "AUTONUMBER"};
    ASSERT_GE(forms.size(), 10);
    EXPECT_EQ(appColumn(Sql("SELECT TQFFTQFmAlias FROM QD8TQuickField WHERE TQFFTQFmAlias IS NOT NULL AND TQFFTQFmAlias NOT IN "
                              "(SELECT TQFmAlias FROM QD8TQuickForm)")),
        QStringList()) << "fields of no form";

    Recordset form;
    form.open(Sql("SELECT * FROM QD8TQuickForm ORDER BY TQFmAlias"), app);
    for (; !form.eof(); form.moveNext()) {
        const QString alias = form.text(QStringLiteral("TQFmAlias"));
        SCOPED_TRACE(alias.toStdString());
        const auto get = [&](const char* name) { return form.text(QLatin1String(name)).trimmed(); };
        const QString table = get("TQFmTable"), flag = get("TQFmKeyIDEN") + QStringLiteral("Flag1");
        EXPECT_FALSE(get("TQFmCaption").isEmpty() || get("TQFmCaption2").isEmpty()) << "a title in both languages";
        EXPECT_TRUE(groups.contains(get("TQFmTCmGAlias"))) << "module " << get("TQFmTCmGAlias").toStdString();
        if (get("TQFmFlag1") != QLatin1String("1"))
            continue;  // a form kept only as another's deletion check

        QStringList active, keys;
        Recordset field;
        field.open(Sql("SELECT * FROM QD8TQuickField WHERE TQFFTQFmAlias=") + quoted(alias) + " ORDER BY TQFFSort", app);
        for (; !field.eof(); field.moveNext()) {
            const QString name = field.text(QStringLiteral("TQFFFieldName"));
            const QString type = field.text(QStringLiteral("TQFFFieldType"));
            SCOPED_TRACE(name.toStdString());
            EXPECT_TRUE(types.contains(type)) << type.toStdString();
            EXPECT_EQ(type == QLatin1String("LABELLIST"), !field.text(QStringLiteral("TQFFLabelList")).isEmpty());
            if (field.text(QStringLiteral("TQFFFlag1")) != QLatin1String("1"))
                continue;
            active << name;
            EXPECT_FALSE(field.text(QStringLiteral("TQFFCaption")).isEmpty() || field.text(QStringLiteral("TQFFCaption2")).isEmpty());
            if (field.text(QStringLiteral("TQFFPrimaryKey")) == QLatin1String("1"))
                keys << name;
            else
                EXPECT_NE(type, "AUTONUMBER") << "only a key is numbered by the database";
            const QString deleteAlias = field.text(QStringLiteral("TQFFCanDeleteAlias"));
            if (!deleteAlias.isEmpty()) {
                // The referring column is the other form's prefix + this column's name.
                Recordset other;
                other.open(Sql("SELECT TQFmTable, TQFmKeyIDEN FROM QD8TQuickForm WHERE TQFmAlias=") + quoted(deleteAlias), app);
                ASSERT_FALSE(other.eof()) << "deletion check form " << deleteAlias.toStdString();
                EXPECT_EQ(failure(data, Sql("SELECT ") + other.text(QStringLiteral("TQFmKeyIDEN")) + name + " FROM "
                                      + other.text(QStringLiteral("TQFmTable")) + " WHERE 1=0"),
                    QString());
            }
        }
        ASSERT_FALSE(active.isEmpty());
        // The pick list and its F2 forms are run through the editor itself (tst_QuickGrid).
        // A save writes the active fields and the flag to the table.
        EXPECT_EQ(failure(data, Sql("SELECT ") + active.join(QLatin1Char(',')) + "," + flag + " FROM " + table + " WHERE 1=0"), QString());
        // The key list of the pick list and the key flags of the editor name the same fields.
        QStringList listed = get("TQFmPKList").split(QLatin1Char(','), Qt::SkipEmptyParts);
        for (QString& key : listed)
            key = key.trimmed();
        EXPECT_EQ(listed, keys);

        const QString pick = get("TQFmRunQuickForm");
        EXPECT_TRUE(pick.isEmpty() || forms.contains(pick)) << "pick form " << pick.toStdString();
        const QString print = get("TQFmPrintTCmdAlias");
        EXPECT_TRUE(print.isEmpty() || commands.contains(print)) << "print command " << print.toStdString();
        if (get("TQFmDeleteAuto") == QLatin1String("1")) {
            EXPECT_EQ(failure(data, Sql("SELECT ") + get("TQFmDeleteField") + " FROM " + get("TQFmDeleteTable") + " WHERE 1=0"), QString());
        }
    }
}

// What the sample is there to show, form by form (docs/schema.md lists the same).
TEST_P(SampleSchemaTest, TheSampleFormsShowWhatTheyAreThereToShow)
{
    const struct {
        const char* form;
        const char* feature;
        const char* condition;  // on QD8TQuickForm f, or from "q." on a field q of it
    } cases[] = {
        {"UNIT", "a key the database assigns", "q.TQFFFieldType='AUTONUMBER' AND q.TQFFPrimaryKey=1"},
        {"UNIT", "a yes/no field", "q.TQFFFieldType='YESNO' AND q.TQFFFlag1=1"},
        {"UNIT", "a number with decimals and both bounds", "q.TQFFFieldType='NUMBER' AND q.TQFFDecimal>0 AND q.TQFFMinCon=1 AND q.TQFFMaxCon=1 AND q.TQFFMinValue<q.TQFFMaxValue"},
        {"UNIT", "a text of limited length that no two rows share", "q.TQFFFieldType='TEXT' AND q.TQFFMaxlength>0 AND q.TQFFCanDuplicate=0 AND q.TQFFPrimaryKey=0"},
        {"PROJECT", "a label list", "q.TQFFFieldType='LABELLIST' AND q.TQFFFlag1=1"},
        {"DEPARTMENT", "an F2 pick list", "q.TQFFRunQuickForm='DIVISION'"},
        {"SECTION", "a two-column key",
            "(SELECT COUNT(*) FROM QD8TQuickField q WHERE q.TQFFTQFmAlias=f.TQFmAlias AND q.TQFFPrimaryKey=1 AND q.TQFFFlag1=1)=2"},
        {"DIVISION", "a deletion check with its own message",
            "f.TQFmDeleteAuto=1 AND f.TQFmDeleteTable='QD8TDepartment' AND f.TQFmDeleteMessage<>''"},
        {"DEPARTMENT", "a print command", "f.TQFmPrintTCmdAlias='HRORGANIZATION'"},
        {"DIVISION", "automatic print", "COALESCE(f.TQFmPrintTCmdAlias,'')='' AND f.TQFMMasterReportNo IN (1,2)"},
        {"PRODUCTLINE", "read-only", "f.TQFmReadOnly=1"},
        {"BRANCH", "rows are never deleted", "f.TQFmCanDelete=0 AND f.TQFmReadOnly=0"},
        {"JOURNALBOOK", "rows are neither added nor deleted", "f.TQFmCanAdd=0 AND f.TQFmCanDelete=0 AND f.TQFmReadOnly=0"},
        {"BRANCH", "a field kept but not in use", "q.TQFFFlag1=0"},
    };
    for (const auto& c : cases) {
        QString condition = QString::fromLatin1(c.condition);
        if (condition.startsWith(QLatin1String("q.")))
            condition = QStringLiteral("EXISTS (SELECT 1 FROM QD8TQuickField q WHERE q.TQFFTQFmAlias=f.TQFmAlias AND %1)").arg(condition);
        EXPECT_EQ(appColumn(Sql("SELECT f.TQFmAlias FROM QD8TQuickForm f WHERE f.TQFmFlag1=1 AND f.TQFmAlias='") + c.form + "' AND "
                                  + condition),
            QStringList{QString::fromLatin1(c.form)})
            << c.form << ": " << c.feature;
    }
}

// A command is listed only with a right row, and user 0 is the template every new user
// copies: it holds every right of every command, the quick-form commands included. Each
// quick-form group command opens a group that offers forms.
TEST_P(SampleSchemaTest, TheTemplateUserMayRunEveryCommandAndEveryQuickGroupOffersForms)
{
    const QStringList all = appColumn(Sql("SELECT TCmdAlias FROM QD8TCommand ORDER BY TCmdAlias"));
    const QStringList granted = dataColumn(Sql("SELECT TURtTCmdAlias FROM QD8TUserRight WHERE TURtTUsrID=0 AND TURtRun=1 AND TURtShow=1 "
                                                 "AND TURtAdd=1 AND TURtDelete=1 AND TURtEdit=1 AND TURtPrint=1"));
    for (const QString& alias : all)
        EXPECT_TRUE(granted.contains(alias)) << alias.toStdString();

    const QStringList quickGroups = appColumn(Sql("SELECT TCmdAlias FROM QD8TCommand WHERE TCmdAlias LIKE '%QUICK' ORDER BY TCmdAlias"));
    EXPECT_GE(quickGroups.size(), 3);
    for (const QString& alias : quickGroups) {
        const QStringList offered = appColumn(Sql("SELECT v.TQFmAlias FROM QD8VQuickGroup v INNER JOIN QD8TCommand c ON c.TCmdTCmGAlias=v.TCmGAlias "
                                                    "WHERE v.TQFmFlag1=1 AND c.TCmdAlias=") + quoted(alias));
        EXPECT_GE(offered.size(), 2) << alias.toStdString();
    }
}

QD8_ON_BOTH_ENGINES(SampleSchemaTest);

TEST(Admin, InitCreatesTheSampleCompanyThatTheStockSqliteShellReads)
{
    QTemporaryDir dir;
    QString output;
    ASSERT_EQ(runAdmin({QStringLiteral("init"), dir.path()}, &output), 0) << output.toStdString();
    for (DatabaseRole role : Roles)
        EXPECT_TRUE(QFileInfo::exists(dir.filePath(Schema::fileName(role))));

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

} // namespace
