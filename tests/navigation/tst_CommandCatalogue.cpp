#include "navigation/CommandCatalogue.h"
#include "navigation/OemSettings.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace qd8;

namespace {

TEST(CommandCatalogue, AcceleratorMarksGoAndDoubledAmpersandsStay)
{
    const struct { const char* caption; const char* shown; } cases[] = {
        {"&Journal Voucher", "Journal Voucher"},
        {"Credit Limit && Balance", "Credit Limit && Balance"},
        {"&&&Both", "&&Both"},
        {"Save &As && Close&", "Save As && Close"},
        {"บันทึก&บัญชี", "บันทึกบัญชี"},
        {"Price $$ & tax", "Price &&  tax"},  // a "$$" in the name comes back as "&&"
        {"", ""},
    };
    for (const auto& c : cases)
        EXPECT_EQ(CommandCatalogue::withoutAccelerators(QString::fromUtf8(c.caption)), QString::fromUtf8(c.shown)) << c.caption;
}

TEST(CommandCatalogue, AnIconNeedsAnExistingFileEndingInIco)
{
    QTemporaryDir folder;
    for (const char* name : {"a.ico", "c.Ico", "e.ico.bak", "f.icon"}) {
        QFile file(folder.filePath(QString::fromLatin1(name)));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }
    const struct { QVariant name; const char* key; } cases[] = {
        // A NULL name, a missing file, upper case and .bmp are the shortcut bar suite's cases.
        {QString("a.ico"), "a.ico"},
        {QString("c.Ico"), "c.Ico"},
        {QString("e.ico.bak"), "Blank"},
        {QString("f.icon"), "Blank"},
        {QString(""), "Blank"},
    };
    for (const auto& c : cases) {
        QString file;
        EXPECT_EQ(CommandCatalogue::iconKey(folder.path(), c.name, &file), QString::fromLatin1(c.key)) << c.name.toString().toStdString();
        EXPECT_EQ(file.isEmpty(), QByteArray(c.key) == "Blank");
    }
    // The folder is joined with "\" as the suite writes paths.
    EXPECT_EQ(CommandCatalogue::iconKey(folder.path().replace('/', '\\'), QString("a.ico")), "a.ico");
}

TEST(OemSettings, WebPagesFallBackToTheWebsiteThenToTheBuiltInPage)
{
    QTemporaryDir app;
    QDir(app.path()).mkpath("Support/Theme");
    const auto write = [&](const QString& file, const QByteArray& text) {
        QFile ini(app.filePath(file));
        ASSERT_TRUE(ini.open(QIODevice::WriteOnly));
        ini.write(text);
    };
    const OemSettings oem(app.path());
    EXPECT_EQ(oem.webPage("NEWSURL"), OemSettings::builtInPage("NEWSURL"));
    write("Support/Theme/Theme.ini", "[OEM]\nNEWSURL=https://news.example/\nFAQURL=\nWEBSITE=https://site.example/\nCONTACTURL=https://maker.example/contact\n");
    write("QD8STARTUP.INI", "[OEM]\nCONTACTURL=https://dealer.example/\nNEWSURL=\n");
    EXPECT_EQ(oem.webPage("NEWSURL"), "https://news.example/");       // an empty override does not count
    EXPECT_EQ(oem.webPage("FAQURL"), "https://site.example/");        // empty: the website
    EXPECT_EQ(oem.webPage("CONTACTURL"), "https://dealer.example/");  // the installation's own wins
    write("Support/Theme/Theme.ini", "[OEM]\nWEBSITE=\n");
    EXPECT_EQ(oem.webPage("FAQURL"), OemSettings::builtInPage("FAQURL"));
    EXPECT_NE(OemSettings::builtInPage("FAQURL"), OemSettings::builtInPage("NEWSURL"));
}

} // namespace
