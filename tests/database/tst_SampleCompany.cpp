#include "support/ScratchDatabase.h"
#include "support/SampleCompany.h"

#include "database/Schema.h"
#include "foundation/Connection.h"
#include "foundation/Recordset.h"
#include "navigation/OemSettings.h"

#include <QCoreApplication>
#include <QDir>
#include <QImageReader>
#include <QProcess>
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
    Connection app;
    app.open(appConnectionString);
    QList<QPair<QString, int>> names;
    const auto collect = [&](const char* sql, const char* field, int size) {
        Recordset rs;
        rs.open(Sql(sql), app);
        for (; !rs.eof(); rs.moveNext())
            if (!rs.field(QLatin1String(field)).isNull())
                names.append({rs.text(QLatin1String(field)), size});
    };
    collect("SELECT TCmdIcon FROM QD8TCommand", "TCmdIcon", 32);
    collect("SELECT TCmdSmallIcon FROM QD8TCommand", "TCmdSmallIcon", 16);
    collect("SELECT TCmGIcon FROM QD8TCommandGroup", "TCmGIcon", 32);
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
    struct Case {
        const char* key;
        const char* address;
    };
    const Case pages[] = {
        {"MARKETINGURL", "https://www.qd8.example/sales"},
        {"FAQURL", "https://www.qd8.example/"},                    // empty: the web site
        {"KBASEURL", "https://www.qd8.example/"},
        {"CONTACTURL", "https://dealer-cnx.example/qd8/contact"},  // the installation's dealer
        {"NEWSURL", "https://www.qd8.example/news"},               // empty override keeps the theme's
        {"SUPPORTEMAIL", "helpdesk@siamtrading.example"},
    };
    for (const Case& c : pages)
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
    QStringList arguments{QStringLiteral("init"), QStringLiteral("--files"), files.path()};
    QStringList names;
    const char* const options[] = {"--app", "--center", "--data"};
    const DatabaseRole roles[] = {DatabaseRole::Application, DatabaseRole::CommandCentre, DatabaseRole::CompanyData};
    for (int i = 0; i < 3; ++i) {
        names << prefix + Schema::fileName(roles[i]);
        arguments << QLatin1String(options[i]) << QStringLiteral("Driver=PostgreSQL;Database=") + names.back();
    }
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

    // A second run without --force refuses before it touches a database or a file.
    EXPECT_EQ(runAdmin(arguments, &output), 1);
    EXPECT_TRUE(output.contains(QStringLiteral("Theme.ini already exists"))) << output.toStdString();

    Connection server;
    server.open(ScratchDatabase::postgresAdminConnectionString());
    for (const QString& name : names)
        server.execute(Sql(QStringLiteral("DROP DATABASE IF EXISTS \"%1\" WITH (FORCE)").arg(name)));
}

} // namespace
