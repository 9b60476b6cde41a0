#include "support/ScratchDatabase.h"
#include "support/SampleCompany.h"

#include "database/Schema.h"
#include "editors/QuickGrid.h"
#include "documents/DucumentList.h"
#include "documents/ListDefinition.h"
#include "foundation/CommaList.h"
#include "foundation/Connection.h"
#include "foundation/ConnectionPool.h"
#include "foundation/DbError.h"
#include "foundation/Recordset.h"
#include "navigation/OemSettings.h"
#include "support/ScriptedServices.h"
#include "widgets/GridEditor.h"

#include <QColor>
#include <QCoreApplication>
#include <QDir>
#include <QHash>
#include <QImageReader>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QSettings>

using namespace qd8;
using namespace qd8::test;

namespace {

// Icons the catalogue names on purpose without shipping them: the launchers show "Blank".
const QSet<QString> IconsMeantMissing = {QStringLiteral("SOPROMO.ico"), QStringLiteral("SOPROMO16.ico")};

// Every icon name of the catalogue with the size it is shown at.
QList<QPair<QString, int>> catalogueIcons(const QString& appConnectionString)
{
    QList<QPair<QString, int>> names;
    for (const auto& [column, table, size] :
        {std::tuple{"TCmdIcon", "QD8TCommand", 32}, {"TCmdSmallIcon", "QD8TCommand", 16}, {"TCmGIcon", "QD8TCommandGroup", 32}})
        for (const QString& name : queryColumn(appConnectionString, Sql("SELECT ") + column + " FROM " + table + " WHERE " + column + " IS NOT NULL"))
            names.append({name, size});
    return names;
}

// An icon drawn in full: opaque colour, transparent corners and a white glyph.
QString drawingProblem(const QImage& image)
{
    if (qAlpha(image.pixel(0, 0)) != 0)
        return QStringLiteral("the corner is not transparent");
    int white = 0, coloured = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const QColor c = image.pixelColor(x, y);
            if (c.alpha() == 255 && c.lightness() > 230)
                ++white;
            else if (c.alpha() == 255 && c.lightness() < 200)
                ++coloured;
        }
    return white == 0 ? QStringLiteral("no glyph") : coloured == 0 ? QStringLiteral("no colour") : QString();
}

// The init arguments that put the three databases on the PostgreSQL server, each named
// <prefix><file name>; the names are added to names.
QStringList postgresDatabases(const QString& prefix, QStringList& names)
{
    QStringList arguments;
    const char* const options[] = {"--app", "--center", "--data"};
    const DatabaseRole roles[] = {DatabaseRole::Application, DatabaseRole::CommandCentre, DatabaseRole::CompanyData};
    for (int i = 0; i < 3; ++i) {
        names << prefix + Schema::fileName(roles[i]);
        arguments << QLatin1String(options[i]) << QStringLiteral("Driver=PostgreSQL;Database=") + names.back();
    }
    return arguments;
}

void dropDatabases(const QStringList& names)
{
    Connection server;
    server.open(ScratchDatabase::postgresAdminConnectionString());
    for (const QString& name : names)
        server.execute(Sql(QStringLiteral("DROP DATABASE IF EXISTS \"%1\" WITH (FORCE)").arg(name)));
}

class SampleFilesTest : public testing::Test {
protected:
    void SetUp() override
    {
        QString output;
        ASSERT_EQ(runAdmin({QStringLiteral("init"), dir.path()}, &output), 0) << output.toStdString();
    }
    QString path(const QString& relative) const { return dir.filePath(relative); }

    QTemporaryDir dir;
};

TEST_F(SampleFilesTest, EveryIconTheCatalogueNamesIsAWindowsIconOfItsSize)
{
    const auto icons = catalogueIcons(QStringLiteral("Driver=SQLite;Data Source=") + path(QStringLiteral("QD8Command.dat")));
    QSet<QString> named, missing;
    for (const auto& [name, size] : icons) {
        named.insert(name);
        const QString file = path(QStringLiteral("Icons/") + name);
        if (!name.endsWith(QLatin1String(".ico"), Qt::CaseInsensitive) || IconsMeantMissing.contains(name)) {
            missing.insert(name);
            EXPECT_FALSE(QFileInfo::exists(file)) << name.toStdString() << " should fall back to Blank";
            continue;
        }
        QImageReader reader(file);
        EXPECT_EQ(reader.format(), QByteArray("ico")) << name.toStdString();
        const QImage image = reader.read();
        if (image.isNull()) {
            ADD_FAILURE() << name.toStdString() << ": " << reader.errorString().toStdString();
            continue;
        }
        EXPECT_EQ(image.size(), QSize(size, size)) << name.toStdString();
        const QString problem = drawingProblem(image);
        EXPECT_TRUE(problem.isEmpty()) << name.toStdString() << ": " << problem.toStdString();
    }
    // The fall-backs are still in the catalogue: a bitmap and the icons not shipped.
    EXPECT_TRUE(missing.contains(QStringLiteral("ARCHEQUE.bmp")));
    EXPECT_TRUE(missing.contains(IconsMeantMissing));
    // No icon of a command the catalogue no longer names.
    for (const QString& file : QDir(path(QStringLiteral("Icons"))).entryList(QDir::Files))
        EXPECT_TRUE(named.contains(file)) << file.toStdString() << " is named by no command or module";
}

TEST_F(SampleFilesTest, OemSettingsReadTheThemeFileAndTheStartupOverrides)
{
    // AppPath as the suite writes it, with backslashes.
    const OemSettings oem(QString(dir.path()).replace(QLatin1Char('/'), QLatin1Char('\\')));
    EXPECT_EQ(oem.shortName(), QStringLiteral("QD8"));
    const struct { const char* key; const char* address; } pages[] = {
        {"MARKETINGURL", "https://www.qd8.example/sales"},
        {"FAQURL", "https://www.qd8.example/"},                    // empty: the web site
        {"KBASEURL", "https://www.qd8.example/"},
        {"CONTACTURL", "https://dealer-cnx.example/qd8/contact"},  // the installation's dealer
        {"NEWSURL", "https://www.qd8.example/news"},               // empty override keeps the theme's
        {"SUPPORTEMAIL", "helpdesk@siamtrading.example"},
    };
    for (const auto& c : pages)
        EXPECT_EQ(oem.webPage(QLatin1String(c.key)), QLatin1String(c.address)) << c.key;
    const QString about = oem.value(QStringLiteral("ABOUT"));
    EXPECT_TRUE(about.startsWith(QStringLiteral("QD8 Business Suite"))) << about.toStdString();
    EXPECT_TRUE(about.contains(QStringLiteral("\nระบบบริหารธุรกิจ QD8"))) << about.toStdString();

    QSettings startup(path(QStringLiteral("QD8STARTUP.INI")), QSettings::IniFormat);
    EXPECT_EQ(startup.value(QStringLiteral("Startup/Company")).toString(), QStringLiteral("บริษัท สยามเทรดดิ้ง จำกัด"));
    EXPECT_EQ(startup.value(QStringLiteral("Startup/CompanyEN")).toString(), QStringLiteral("Siam Trading Co., Ltd."));
    QSettings theme(path(QStringLiteral("Support/Theme/Theme.ini")), QSettings::IniFormat);
    EXPECT_EQ(theme.value(QStringLiteral("Theme/Default")).toString(), QStringLiteral("0"));
}

TEST_F(SampleFilesTest, ForceRewritesTheFilesAndNothingElseDoes)
{
    const QString icon = path(QStringLiteral("Icons/GLCHART.ICO"));
    const QString themeFile = path(QStringLiteral("Support/Theme/Theme.ini"));
    const auto spoil = [&] {
        QFile broken(icon);
        ASSERT_TRUE(broken.open(QIODevice::WriteOnly | QIODevice::Truncate));
        broken.write("not an icon");
        broken.close();
        QSettings theme(themeFile, QSettings::IniFormat);
        theme.setValue(QStringLiteral("OEM/OEMSHORTNAME"), QStringLiteral("OTHER"));
        theme.setValue(QStringLiteral("OEM/STALEKEY"), QStringLiteral("x"));
        theme.sync();
        QFile::remove(path(QStringLiteral("QD8STARTUP.INI")));
    };
    spoil();
    QString output;
    EXPECT_EQ(runAdmin({QStringLiteral("init"), dir.path()}, &output), 1);
    EXPECT_TRUE(output.contains(QStringLiteral("already exists"))) << output.toStdString();
    EXPECT_TRUE(QImage(icon).isNull()) << "init without --force wrote an icon";

    ASSERT_EQ(runAdmin({QStringLiteral("init"), dir.path(), QStringLiteral("--force")}, &output), 0) << output.toStdString();
    EXPECT_EQ(QImage(icon).size(), QSize(32, 32));
    QSettings theme(themeFile, QSettings::IniFormat);
    EXPECT_EQ(theme.value(QStringLiteral("OEM/OEMSHORTNAME")).toString(), QStringLiteral("QD8"));
    EXPECT_FALSE(theme.contains(QStringLiteral("OEM/STALEKEY")));
    EXPECT_TRUE(QFileInfo::exists(path(QStringLiteral("QD8STARTUP.INI"))));
}

TEST(SampleFiles, ThePostgresFormWritesTheFilesWhereItIsTold)
{
    if (!ScratchDatabase::postgresAvailable())
        GTEST_SKIP() << "no PostgreSQL server";
    QTemporaryDir files;
    const QString prefix = QStringLiteral("files%1_").arg(QCoreApplication::applicationPid());
    QStringList names;
    const QStringList arguments = QStringList{QStringLiteral("init"), QStringLiteral("--files"), files.path()}
        + postgresDatabases(prefix, names);
    QString output;
    EXPECT_EQ(runAdmin(arguments, &output), 0) << output.toStdString();
    EXPECT_EQ(OemSettings(files.path()).shortName(), QStringLiteral("QD8"));
    // The catalogue on the server names the same icons as the files hold.
    for (const auto& [name, size] : catalogueIcons(QStringLiteral("Driver=PostgreSQL;Database=") + names[0])) {
        if (!name.endsWith(QLatin1String(".ico"), Qt::CaseInsensitive) || IconsMeantMissing.contains(name))
            continue;
        EXPECT_EQ(QImage(files.filePath(QStringLiteral("Icons/") + name)).size(), QSize(size, size)) << name.toStdString();
    }
    EXPECT_FALSE(QFileInfo::exists(files.filePath(QStringLiteral("QD8Command.dat"))));

    // A second run without --force refuses before it touches a database or a file; with it,
    // it makes them again.
    EXPECT_EQ(runAdmin(arguments, &output), 1);
    EXPECT_TRUE(output.contains(QStringLiteral("Theme.ini already exists"))) << output.toStdString();
    EXPECT_EQ(runAdmin(arguments + QStringList{QStringLiteral("--force")}, &output), 0) << output.toStdString();
    for (const QString& name : names)
        EXPECT_EQ(runAdmin({QStringLiteral("check"), QStringLiteral("Driver=PostgreSQL;Database=") + name}, &output), 0)
            << output.toStdString();
    // The session database reaches the catalogue's commands, read-only.
    {
        Connection session;
        session.open(QStringLiteral("Driver=PostgreSQL;Database=") + names[2]);
        Recordset rs;
        rs.open(Sql("SELECT COUNT(*) FROM QD8TUserCommand JOIN QD8TCommand ON TUsCTCmdID = TCmdID"), session);
        EXPECT_GT(rs.field(0).toInt(), 0);
        EXPECT_THROW(session.execute(Sql("DELETE FROM QD8TCommand")), DbError);
    }
    ConnectionPool::instance().clear(QStringLiteral("Driver=PostgreSQL;Database=") + names[2]);
    dropDatabases(names);
}

// A row of the list definitions, every column as text under its lower-case name.
class Definition {
public:
    explicit Definition(const Recordset& rs)
    {
        for (int f = 0; f < rs.fieldCount(); ++f)
            m_columns.insert(rs.fieldName(f).toLower(), rs.text(rs.fieldName(f)));
    }
    QString operator[](const char* column) const { return m_columns.value(QString::fromLatin1(column).toLower()); }
    QStringList list(const char* column) const { return splitList((*this)[column]); }
    QString alias() const { return (*this)["TFDLTCmdAlias"]; }
    bool isMaster() const { return (*this)["TFDLFormDetail"].startsWith(QLatin1String("MASTER")); }
    // A read-only list (buttons "C") opens no form and shows its sample data as the job tests keep it.
    bool readOnly() const { return (*this)["TFDLButtonMode"] == QLatin1String("C"); }

private:
    QHash<QString, QString> m_columns;
};

const QStringList DocumentForms = {"DOCGL", "DOCPR", "DOCPO", "DOCSO", "DOCINVOICE", "DOCISSUE"};
const QStringList MasterForms = {"MASTERCUSTOMER", "MASTERPRODUCT", "MASTERSUPPLIER"};
const QStringList LegendKeywords = {"IS NULL", "IS NOT NULL", "=", "<>", ">", "<", ">=", "<=", "D=", "D<>", "D>", "D<",
    "D>=", "D<=", "T=", "T<>", "T>", "T<", "T>=", "T<=", "BF1", "BF2", "PODUEDATE", "TPO2Acknowledge", "SODUEDATE"};

class SampleListsTest : public SampleCompanyTest {
protected:
    void SetUp() override
    {
        SampleCompanyTest::SetUp();
        if (IsSkipped())
            return;
        app.open(appConnectionString());
        data.open(dataConnectionString());
        Recordset rs;
        rs.open(Sql("SELECT * FROM QD8TFormDocList ORDER BY TFDLTCmdAlias"), app);
        for (; !rs.eof(); rs.moveNext())
            definitions.append(Definition(rs));
    }
    void TearDown() override
    {
        app.close();
        data.close();
        SampleCompanyTest::TearDown();
    }

    QString lookup(const QString& sql) const { return queryColumn(appConnectionString(), Sql(sql)).value(0); }
    // The key field as the lists take it: from the document code when the list names one.
    QString keyOf(const Definition& d)
    {
        if (!d["TFDLTCodAlias"].isEmpty())
            return lookup(QStringLiteral("SELECT TCodPrimaryKey FROM QD8TCode WHERE TCodAlias='%1'").arg(d["TFDLTCodAlias"]));
        return d.list("TFDLPrimaryKeyList").value(0).trimmed();
    }
    QString prefixOf(const Definition& d)
    {
        const QString key = keyOf(d);
        return key.endsWith(QLatin1String("No")) ? key.chopped(2) : QString();
    }
    // The rows a list shows with an extra condition; -1 and a failure when the text does not run.
    qint64 count(const Definition& d, const QString& condition)
    {
        const QString sql = QStringLiteral("SELECT COUNT(*) FROM %1 WHERE %2<>''%3%4")
                                .arg(d["TFDLQuery"], keyOf(d), condition, d["TFDLFilterCustomW"]);
        try {
            Recordset rs;
            rs.open(Sql(sql), data);
            return rs.field(0).toLongLong();
        } catch (const DbError& e) {
            ADD_FAILURE() << sql.toStdString() << ": " << e.message().toStdString();
            return -1;
        }
    }
    void expectRuns(const QString& sql)
    {
        try {
            Recordset rs;
            rs.open(Sql(sql), data);
        } catch (const DbError& e) {
            ADD_FAILURE() << sql.toStdString() << ": " << e.message().toStdString();
        }
    }

    Connection app, data;
    QList<Definition> definitions;
};

TEST_P(SampleListsTest, EveryListCommandHasADefinitionAndTheVariantHasItsOption)
{
    QStringList aliases;
    for (const Definition& d : definitions)
        aliases << d.alias();
    for (const char* alias : {"PURPR", "PURPRMB", "PUPO", "SOORDER", "ARINVOICE", "ICISSUEUSE", "ARCUSTOMER", "ICPRODUCT", "APVENDOR"})
        EXPECT_TRUE(aliases.contains(QLatin1String(alias))) << alias;
    for (const QString& alias : aliases) {
        const bool command = !lookup(QStringLiteral("SELECT TCmdAlias FROM QD8TCommand WHERE TCmdAlias='%1'").arg(alias)).isEmpty();
        // A variant is reached through the option <base>Menu of its base command.
        const QString base = alias.endsWith(QLatin1String("MB")) ? alias.chopped(2) : QString();
        EXPECT_TRUE(command || !base.isEmpty()) << alias.toStdString() << " is opened by no command";
        if (!base.isEmpty()) {
            EXPECT_EQ(lookup(QStringLiteral("SELECT TOptTOpGAlias FROM QD8TOption WHERE TOptAlias='%1Menu'").arg(base)), "DOCLIST")
                << alias.toStdString();
        }
    }
}

TEST_P(SampleListsTest, ParallelListsMatchTheColumnsAndEveryFormIsOneTheWorkbenchOpens)
{
    for (const Definition& d : definitions) {
        SCOPED_TRACE(d.alias().toStdString());
        const int columns = d.list("TFDLColumnList").size();
        ASSERT_GT(columns, 1);
        for (const char* parallel : {"TFDLNameList", "TFDLNameList2", "TFDLWidthList", "TFDLTypeList"})
            EXPECT_EQ(d.list(parallel).size(), columns) << parallel;
        for (const QString& type : d.list("TFDLTypeList"))
            EXPECT_TRUE(QStringList({"0", "1", "2", "3", "4"}).contains(type)) << type.toStdString();
        const auto isNumber = [](const QString& text) { bool number = false; text.toInt(&number); return number; };
        for (QString width : d.list("TFDLWidthList"))
            EXPECT_TRUE(isNumber(width.remove(QStringLiteral("{COST}")))) << width.toStdString();
        EXPECT_TRUE(d.readOnly() ? d["TFDLFormDetail"].isEmpty() : (d.isMaster() ? MasterForms : DocumentForms).contains(d["TFDLFormDetail"]))
            << d["TFDLFormDetail"].toStdString();
        EXPECT_EQ(d.list("TFDLOrderList").size(), d.list("TFDLOrderQuery").size());
        EXPECT_LT(d["TFDLDefaultOrder"].toInt(), qMax<qsizetype>(1, d.list("TFDLOrderList").size()));
        EXPECT_EQ(d.list("TFDLFilterStatus").size(), d.list("TFDLFilterStatusL").size());
        EXPECT_LT(d["TFDLDefaultFilter"].toInt(), qMax<qsizetype>(d.isMaster() ? 3 : 1, d.list("TFDLFilterStatus").size()));
        EXPECT_EQ(d.list("TFDLFilterStatus2").size(), d.list("TFDLFilterStatusL2").size());
        EXPECT_EQ(d.list("TFDLFilterStatus2").size(), d.list("TFDLFilterCustom2").size());
        if (d.isMaster())
            continue;
        EXPECT_FALSE(prefixOf(d).isEmpty()) << "the key of a document list ends in No";
        EXPECT_FALSE(d.list("TFDLFilterStatus").isEmpty());
        for (const QString& code : d.list("TFDLFilterStatus"))
            EXPECT_TRUE(code.isEmpty() || (code.toInt() >= 0 && code.toInt() <= 10 && code == QString::number(code.toInt())))
                << "status code " << code.toStdString();
        EXPECT_EQ(d["TFDLFilterBackDate"], "1");
        for (const QString& days : d.list("TFDLBACKDAYLIST"))
            EXPECT_TRUE(isNumber(days)) << days.toStdString();
    }
}

TEST_P(SampleListsTest, EveryQueryOrderFilterAndConditionRunsAndTheListsShowRows)
{
    for (const Definition& d : definitions) {
        SCOPED_TRACE(d.alias().toStdString());
        const QString from = d["TFDLQuery"];
        const QString where = QStringLiteral(" WHERE %1<>''%2").arg(keyOf(d), d["TFDLFilterCustomW"]);
        const QString select = QStringLiteral("SELECT %1 FROM %2%3").arg(d["TFDLColumnList"], from, where);
        expectRuns(select);
        for (const QString& order : d.list("TFDLOrderQuery"))
            expectRuns(select + QStringLiteral(" ORDER BY ") + order);
        EXPECT_GT(count(d, QString()), 0) << "the list shows no rows";
        // Fields the filter boxes compare, the quick-form filter's among them.
        QStringList fields;
        for (const char* column : {"TFDLFilterAR", "TFDLFilterAP", "TFDLFilterEmployee", "TFDLFilterDivision", "TFDLFilterProject",
                 "TFDLFilterProduct", "TFDLFilterProductG", "TFDLFilterDeliveryDate", "TFDLFilterDate", "TFDLFilter2",
                 "TFDLFilter3", "TFDLFilter1W"})
            if (!d[column].isEmpty())
                fields << d[column];
        if (!d["TFDLFilter1"].isEmpty() && d["TFDLFilter1W"].isEmpty()) {
            const QString key = lookup(QStringLiteral("SELECT TQFmPKList FROM QD8TQuickForm WHERE TQFmAlias='%1'").arg(d["TFDLFilter1"]));
            ASSERT_FALSE(key.isEmpty()) << "no quick form " << d["TFDLFilter1"].toStdString();
            fields << ListDefinition::prefixOfKey(keyOf(d)) + splitList(key).value(0);
        }
        for (const QString& field : fields)
            expectRuns(QStringLiteral("SELECT %1 FROM %2 WHERE 1=0").arg(field, from));
        QStringList conditions = d.list("TFDLFilterCustom") + d.list("TFDLFilterCustom2");
        for (const char* column : {"TFDLFilterArrear", "TFDLFilterInvArr"})
            if (!d[column].isEmpty())
                conditions << QStringLiteral(" AND ") + d[column];
        for (const QString& condition : conditions)
            EXPECT_GT(count(d, condition), 0) << condition.toStdString() << " holds for no document";
    }
}

TEST_P(SampleListsTest, LegendsReadOnlyShownColumnsAndNameKnownKeywordsAndColours)
{
    for (const Definition& d : definitions) {
        SCOPED_TRACE(d.alias().toStdString());
        QStringList columns;
        for (const QString& column : d.list("TFDLColumnList"))
            columns << column.trimmed().toLower();
        const QString p = prefixOf(d).toLower();
        const QStringList entries = d.list("TFDLLegendList");
        EXPECT_FALSE(entries.isEmpty());
        for (const QString& entry : entries) {
            SCOPED_TRACE(entry.toStdString());
            const QStringList e = entry.split(QLatin1Char(';'));
            ASSERT_GE(e.size(), 6);
            const QString keyword = e[1];
            EXPECT_TRUE(LegendKeywords.contains(keyword));
            EXPECT_TRUE(columns.contains(e[0].toLower())) << "legend field not in the column list";
            bool decimal = false;
            e[3].toInt(&decimal);
            EXPECT_TRUE(decimal || QColor(e[3]).isValid()) << "colour " << e[3].toStdString();
            EXPECT_FALSE(e[5].isEmpty()) << "no caption";
            QStringList read;
            if ((keyword.startsWith(QLatin1Char('D')) || keyword.startsWith(QLatin1Char('T'))) && !e[4].isEmpty()
                && keyword != QLatin1String("TPO2Acknowledge"))
                read << e[4].toLower();
            if (keyword == QLatin1String("BF1") || keyword == QLatin1String("BF2"))
                read << p + "billstatus" << p + (keyword == QLatin1String("BF1") ? "duedate" : "date");
            if (keyword.endsWith(QLatin1String("DUEDATE")) || keyword == QLatin1String("TPO2Acknowledge"))
                read << p + "duedate";
            if (keyword == QLatin1String("PODUEDATE") || keyword == QLatin1String("TPO2Acknowledge"))
                read << QStringLiteral("tpo2acknowledge");
            for (const QString& field : read)
                EXPECT_TRUE(columns.contains(field)) << field.toStdString() << " is read but not in the column list";
        }
    }
}

TEST_P(SampleListsTest, EveryDocumentListHoldsDocumentsInEveryStatusAndDueDatesAroundToday)
{
    const QString today = dateMarker(QDate::currentDate());
    const QString inAWeek = dateMarker(QDate::currentDate().addDays(7));
    for (const Definition& d : definitions) {
        if (d.isMaster() || d.readOnly())
            continue;
        SCOPED_TRACE(d.alias().toStdString());
        const QString p = prefixOf(d);
        for (int code = 0; code <= 6; ++code)
            EXPECT_GT(count(d, DocumentFilter::statusCondition(QString::number(code), p, {})), 0) << "status " << code;
        const QString open = QStringLiteral(" AND %1CancelStatus<>1").arg(p);
        if (d.alias() != QLatin1String("GLJV")) {  // vouchers never fall due
            EXPECT_GT(count(d, open + QStringLiteral(" AND %1DueDate<%2").arg(p, today)), 0) << "nothing overdue";
            EXPECT_GT(count(d, open + QStringLiteral(" AND %1DueDate>=%2 AND %1DueDate<=%3").arg(p, today, inAWeek)), 0)
                << "nothing due within a week";
        }
        EXPECT_GT(count(d, QStringLiteral(" AND %1Date<%2").arg(p, dateMarker(QDate::currentDate().addDays(-365)))), 0)
            << "nothing older than a year";
    }
}

QD8_ON_BOTH_ENGINES(SampleListsTest);

// The sample's masters against the company schema: a column T<Prefix><Column> of another table
// refers to a master's column, so a master row still referred to must not be deleted.
class SampleReferencesTest : public SampleCompanyTest {
protected:
    struct Reference { QString table; QString column; bool operator==(const Reference&) const = default; };
    struct Master {
        QString alias;
        QString table;
        bool deletes = false;
        QList<QPair<QString, Reference>> references;  // the master's column, the referring one
        QList<QPair<QString, Reference>> checks;
    };

    QList<Master> masters() const
    {
        Connection app, data;
        app.open(appConnectionString());
        data.open(dataConnectionString());
        QHash<QString, QStringList> columns;  // lower case: PostgreSQL folds names
        auto tables = QRegularExpression(QStringLiteral("CREATE TABLE (\\w+)")).globalMatch(Schema::ddl(DatabaseRole::CompanyData));
        while (tables.hasNext()) {
            const QString table = tables.next().captured(1).toLower();
            Recordset rs;
            rs.open(Sql("SELECT * FROM ") + table + " WHERE 1=0", data);
            for (int i = 0; i < rs.fieldCount(); ++i)
                columns[table] << rs.fieldName(i).toLower();
        }
        const QRegularExpression prefix(QStringLiteral("^t[a-z0-9]{2,4}$"));
        QList<Master> result;
        Recordset forms;
        forms.open(Sql("SELECT * FROM QD8TQuickForm WHERE TQFmFlag1=1 ORDER BY TQFmAlias"), app);
        for (; !forms.eof(); forms.moveNext()) {
            Master m{forms.text("TQFmAlias"), forms.text("TQFmTable").toLower(),
                forms.field("TQFmCanDelete").toInt() != 0 && forms.field("TQFmReadOnly").toInt() == 0, {}, {}};
            Recordset fields;
            fields.open(Sql("SELECT * FROM QD8TQuickField WHERE TQFFFlag1=1 AND TQFFTQFmAlias=") + quoted(m.alias), app);
            for (; !fields.eof(); fields.moveNext()) {
                const QString field = fields.text("TQFFFieldName").toLower();
                for (auto t = columns.cbegin(); t != columns.cend(); ++t)
                    for (const QString& column : t.value())
                        if (t.key() != m.table && column.endsWith(field) && prefix.match(column.chopped(field.size())).hasMatch())
                            m.references.append({field, {t.key(), column}});
                if (const QString other = fields.text("TQFFCanDeleteAlias"); !other.isEmpty()) {
                    Recordset named;
                    named.open(Sql("SELECT * FROM QD8TQuickForm WHERE TQFmAlias=") + quoted(other), app);
                    EXPECT_FALSE(named.eof()) << other.toStdString();
                    if (!named.eof())
                        m.checks.append({field, {named.text("TQFmTable").toLower(), (named.text("TQFmKeyIDEN") + field).toLower()}});
                }
            }
            if (forms.field("TQFmDeleteAuto").toInt() == 1) {
                const QString column = forms.text("TQFmDeleteField").toLower();
                const auto referred = std::find_if(m.references.cbegin(), m.references.cend(),
                    [&](const auto& r) { return r.second == Reference{forms.text("TQFmDeleteTable").toLower(), column}; });
                m.checks.append({referred == m.references.cend() ? QString() : referred->first, {forms.text("TQFmDeleteTable").toLower(), column}});
            }
            result << m;
        }
        return result;
    }
};

TEST_P(SampleReferencesTest, EveryMasterOthersReferToRefusesToDeleteARowInUse)
{
    Connection data;
    data.open(dataConnectionString());
    int refused = 0;
    for (const Master& m : masters()) {
        SCOPED_TRACE(m.alias.toStdString());
        if (m.references.isEmpty() || !m.deletes)
            continue;
        EXPECT_FALSE(m.checks.isEmpty()) << "no in-use check";
        for (const auto& [field, check] : m.checks) {
            SCOPED_TRACE((check.table + "." + check.column).toStdString());
            // A check looks where the master is really referred to.
            ASSERT_TRUE(m.references.contains(qMakePair(field, check)));
            Recordset used;
            used.open(Sql("SELECT ") + check.column + " FROM " + check.table + " WHERE " + check.column + " IS NOT NULL", data);
            ASSERT_FALSE(used.eof()) << "the sample refers to no row: the check is never tried";
            const QString key = used.field(0).toString();
            QuickGrid grid;
            grid.setConnectionString(appConnectionString());
            grid.setDataConnectionString(dataConnectionString());
            grid.SetLast2("C:\\QD8\\", "QuickGrid", "1", dataConnectionString(), appConnectionString());
            grid.cmdWhereShow(m.alias);
            grid.buttonClick("Edit");
            int col = 0;
            while (col < grid.form().fields.size() && grid.form().fields[col].fieldName.toLower() != field)
                ++col;
            int row = 1;
            while (row <= grid.grid()->Rows() && grid.grid()->TextMatrix(row, col + 1) != key)
                ++row;
            ASSERT_LE(row, grid.grid()->Rows()) << key.toStdString();
            grid.grid()->DeleteRow(row);
            scriptedMessages().answers = {true};
            EXPECT_FALSE(grid.save());
            EXPECT_EQ(scriptedMessages().shown.last().kind, "critical");
            Recordset still;
            still.open(Sql("SELECT ") + field + " FROM " + m.table + " WHERE " + field + "=" + quoted(key), data);
            EXPECT_FALSE(still.eof());
            ++refused;
        }
    }
    EXPECT_GE(refused, 8);
}

QD8_ON_BOTH_ENGINES(SampleReferencesTest);

// A company made by qd8-admin init on the engine under test, and the arguments that name
// its data database to qd8-admin.
class GenerateDocumentsTest : public EngineTest {
protected:
    void SetUp() override
    {
        EngineTest::SetUp();
        if (IsSkipped())
            return;
        QStringList init{QStringLiteral("init")};
        if (engine() == Engine::SQLite) {
            init << dir.path();
            target = {dir.path()};
            dataCs = QStringLiteral("Driver=SQLite;Data Source=") + dir.filePath(QStringLiteral("QD8Data.dat"));
        } else {
            init << postgresDatabases(QStringLiteral("gen%1_").arg(QCoreApplication::applicationPid()), names)
                 << QStringLiteral("--force");
            dataCs = QStringLiteral("Driver=PostgreSQL;Database=") + names.back();
            target = {QStringLiteral("--data"), dataCs};
        }
        QString output;
        ASSERT_EQ(runAdmin(init, &output), 0) << output.toStdString();
    }
    void TearDown() override
    {
        ConnectionPool::instance().clear(dataCs);
        if (!names.isEmpty())
            dropDatabases(names);
    }
    int generate(const QStringList& arguments, QString* output)
    {
        return runAdmin(QStringList{QStringLiteral("generate"), QStringLiteral("documents")} + arguments + target, output);
    }
    qint64 number(const QString& sql) const { return queryColumn(dataCs, Sql(sql)).value(0).toLongLong(); }

    QTemporaryDir dir;
    QStringList names;
    QStringList target;
    QString dataCs;
};

TEST_P(GenerateDocumentsTest, AddsExactlyTheRowsAskedWithNewNumbersEveryStatusAndKnownCodes)
{
    const struct {
        const char* list;
        const char* table;
        const char* prefix;
    } cases[] = {{"PURPR", "QD8TPR", "TPRD"}, {"PUPO", "QD8TPO", "TPOD"}, {"SOORDER", "QD8TSO", "TSOD"},
        {"ARINVOICE", "QD8TARInvoice", "TIvo"}, {"ICISSUEUSE", "QD8TInventory", "TInv"}};
    const QString oldest = dateMarker(QDate::currentDate().addYears(-3));
    const QString today = dateMarker(QDate::currentDate());
    for (const auto& c : cases) {
        SCOPED_TRACE(c.list);
        const QString t = QLatin1String(c.table), p = QLatin1String(c.prefix);
        const qint64 before = number(QStringLiteral("SELECT COUNT(*) FROM ") + t);
        const qint64 rows = 240;
        for (int run = 0; run < 2; ++run) {
            QString output;
            ASSERT_EQ(generate({QStringLiteral("--rows"), QString::number(rows), QStringLiteral("--list"), QLatin1String(c.list)}, &output), 0)
                << output.toStdString();
            EXPECT_TRUE(output.contains(QStringLiteral("generated %1 rows in %2").arg(rows).arg(t))) << output.toStdString();
        }
        EXPECT_EQ(number(QStringLiteral("SELECT COUNT(*) FROM ") + t), before + 2 * rows);
        EXPECT_EQ(number(QStringLiteral("SELECT COUNT(DISTINCT %1No) FROM %2").arg(p, t)), before + 2 * rows);
        const QString generated = QStringLiteral(" FROM %1 WHERE %2CreateDate IS NOT NULL AND %2RefNo LIKE 'REF-%'").arg(t, p);
        EXPECT_EQ(number(QStringLiteral("SELECT COUNT(*)") + generated), 2 * rows);
        for (int code = 0; code <= 6; ++code)
            EXPECT_GT(number(QStringLiteral("SELECT COUNT(*)") + generated + DocumentFilter::statusCondition(QString::number(code), p, {})), 0)
                << "status " << code;
        EXPECT_EQ(number(QStringLiteral("SELECT COUNT(*)") + generated + QStringLiteral(" AND (%1Date<%2 OR %1Date>%3)").arg(p, oldest, today)), 0)
            << "a date outside the last three years";
        EXPECT_GT(number(QStringLiteral("SELECT COUNT(*)") + generated + QStringLiteral(" AND %1Date<%2").arg(p, dateMarker(QDate::currentDate().addYears(-2)))), 0)
            << "dates do not spread back";
        EXPECT_EQ(number(QStringLiteral("SELECT COUNT(*)") + generated
                      + QStringLiteral(" AND %1TBraCode NOT IN (SELECT TBraCode FROM QD8TBranch)").arg(p)),
            0)
            << "a branch the company does not have";
    }
}

TEST_P(GenerateDocumentsTest, BadArgumentsAreRefusedBeforeTheDatabaseIsTouched)
{
    const qint64 before = number(QStringLiteral("SELECT COUNT(*) FROM QD8TPR"));
    const struct { QStringList arguments; const char* message; } cases[] = {
        {{"--rows", "abc"}, "--rows"},
        {{"--rows", "-5"}, "--rows"},
        {{"--rows", "0"}, "--rows"},
        {{"--rows", "1.5"}, "--rows"},
        {{"--list", "PURPR"}, "--rows"},
        {{"--rows", "10", "--list", "NOSUCHLIST"}, "no document list \"NOSUCHLIST\""},
        {{"--rows", "10", "--list"}, "no document list"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.arguments.join(' ').toStdString());
        QString output;
        EXPECT_EQ(generate(c.arguments, &output), 2);
        EXPECT_TRUE(output.contains(QLatin1String(c.message))) << output.toStdString();
    }
    EXPECT_EQ(number(QStringLiteral("SELECT COUNT(*) FROM QD8TPR")), before);

    // Good arguments on a folder without a company neither create one nor succeed.
    QTemporaryDir empty;
    QString output;
    EXPECT_EQ(runAdmin({"generate", "documents", "--rows", "5", empty.path()}, &output), 1) << output.toStdString();
    EXPECT_FALSE(QFileInfo::exists(empty.filePath(QStringLiteral("QD8Data.dat"))));
    EXPECT_EQ(runAdmin({"generate", "receipts", "--rows", "5", empty.path()}, &output), 2);
}

QD8_ON_BOTH_ENGINES(GenerateDocumentsTest);

} // namespace
