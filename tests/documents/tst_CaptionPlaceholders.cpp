#include "support/SampleCompany.h"

#include "database/DataObject.h"
#include "documents/CaptionPlaceholders.h"

using namespace qd8;
using namespace qd8::test;

namespace {

const QDate Today(2026, 3, 15);

// The sample company with the caption options of a shop that names its custom fields,
// leaves some options empty and keeps two formula groups.
class CaptionPlaceholdersTest : public SampleCompanyTest {
protected:
    void SetUp() override
    {
        SampleCompanyTest::SetUp();
        if (IsSkipped())
            return;
        for (const auto& [alias, value] : std::initializer_list<std::pair<const char*, const char*>>{
                 {"Custom1", "สีรถ"},
                 {"Custom3", "Size"},
                 {"Custom4", " 1500.25"},
                 {"ICCUSTOM2", "รุ่น"},
                 {"SECUSTOM1", "01/04/2569"},
                 {"SECUSTOM5", "Zone"},
                 {"JobCodeCaption", "เลขที่งาน"},
                 {"MRPSECTIONCAPTION", ""},
                 {"MRPFORMULAMAJOR", "FM01"},
                 {"MRPFORMULAMINOR", "FM02"},
             })
            setCompanyOption(QLatin1String(alias), QString::fromUtf8(value));
        runOnData({"DELETE FROM QD8TMRPFormulaGrp",
            "INSERT INTO QD8TMRPFormulaGrp (TMRGCode, TMRGName, TMRGName2) VALUES ('FM01', 'สูตรหลัก', 'Main formula')",
            "INSERT INTO QD8TMRPFormulaGrp (TMRGCode, TMRGName, TMRGName2) VALUES ('FM02', 'สูตรย่อย', 'Sub formula')",
            "INSERT INTO QD8TMRPFormulaGrp (TMRGCode, TMRGName, TMRGName2) VALUES ('FM03', NULL, 'Unnamed')"});
        options = std::make_unique<DbDataObject>(dataConnectionString(), appConnectionString(), 1);
    }
    CaptionPlaceholders placeholders() const
    {
        CaptionPlaceholders p(options.get(), dataConnectionString());
        p.setToday(Today);
        return p;
    }

    std::unique_ptr<DbDataObject> options;
};

TEST_P(CaptionPlaceholdersTest, PlaceholdersReadTheCompanyOptions)
{
    const struct { const char* text; const char* expected; } cases[] = {
        {"{Custom1}", "สีรถ"},
        {"{custom1}", "สีรถ"},
        {"{CUSTOM3}", "Size"},
        {"{Custom2}", ""},
        {"{ICCustom2}", "รุ่น"},
        {"{ICCustom1}", ""},
        {"{SECustom5}", "Zone"},
        {"{secustom4}", ""},
        {"{JobCodeCaption}", "เลขที่งาน"},
        {"{MRPSECTIONCAPTION}", "หมวดสินค้า"},
        {"{MRPGroupCaption}", " กลุ่มสินค้า"},
        {"{MRPFORMULAMAJOR}", "FM01"},
        {"{MRPFORMULAMINOR}", "FM02"},
        {"{MRPFORMULAMAJORNAME}", "สูตรหลัก"},
        {"{Custom6}", "{Custom6}"},
        {"{TODAY}", "{TODAY}"},
        {"{ Custom1 }", "{ Custom1 }"},
        {"{}", "{}"},
        {"รหัส,{Custom1},{Custom3},{Unknown},{JobCodeCaption} {ICCustom2}", "รหัส,สีรถ,Size,{Unknown},เลขที่งาน รุ่น"},
        {"{{Custom1}}", "{สีรถ}"},
        {"Plain caption", "Plain caption"},
        {"", ""},
    };
    CaptionPlaceholders p = placeholders();
    for (const auto& c : cases) {
        SCOPED_TRACE(c.text);
        EXPECT_EQ(p.ReplaceCustomCaption(QString::fromUtf8(c.text)), QString::fromUtf8(c.expected));
    }
}

TEST_P(CaptionPlaceholdersTest, FormulaNameFallsBackWhenTheGroupHasNoName)
{
    const struct { const char* code; const char* expected; } cases[] = {
        {"FM02", "สูตรย่อย"},
        {"FM03", "รหัสสูตร"},
        {"FM99", "รหัสสูตร"},
        {"", "รหัสสูตร"},
        {"FM'01", "รหัสสูตร"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.code);
        setCompanyOption("MRPFORMULAMAJOR", QString::fromUtf8(c.code));
        EXPECT_EQ(placeholders().ReplaceCustomCaption(QStringLiteral("{MRPFORMULAMAJORNAME}")), QString::fromUtf8(c.expected));
    }
}

TEST_P(CaptionPlaceholdersTest, OptionsAreReadOncePerInstance)
{
    CaptionPlaceholders first = placeholders();
    EXPECT_EQ(first.ReplaceCustomCaption(QStringLiteral("{Custom1}/{MRPFORMULAMAJORNAME}")), QString::fromUtf8("สีรถ/สูตรหลัก"));
    setCompanyOption("Custom1", "Colour");
    runOnData({"UPDATE QD8TMRPFormulaGrp SET TMRGName='Renamed' WHERE TMRGCode='FM01'"});
    EXPECT_EQ(first.ReplaceCustomCaption(QStringLiteral("{Custom1}/{MRPFORMULAMAJORNAME}")), QString::fromUtf8("สีรถ/สูตรหลัก"));
    EXPECT_EQ(placeholders().ReplaceCustomCaption(QStringLiteral("{Custom1}/{MRPFORMULAMAJORNAME}")), QStringLiteral("Colour/Renamed"));
}

TEST_P(CaptionPlaceholdersTest, TextsAndNumbersAreTheExpandedTextTrimmed)
{
    CaptionPlaceholders p = placeholders();
    const struct { const char* text; const char* trimmed; double number; } cases[] = {
        {"  {Custom1}  ", "สีรถ", 0},
        {"{MRPGROUPCAPTION}", "กลุ่มสินค้า", 0},
        {"{Custom4}", "1500.25", 1500.25},
        {" 12.5 ", "12.5", 12.5},
        {"-3", "-3", -3},
        {"{Custom2}", "", 0},
        {"12abc", "12abc", 0},
        {"", "", 0},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.text);
        EXPECT_EQ(p.ReplaceTextValue(QString::fromUtf8(c.text)), QString::fromUtf8(c.trimmed));
        EXPECT_DOUBLE_EQ(p.ReplaceValue(QString::fromUtf8(c.text)), c.number);
    }
}

TEST_P(CaptionPlaceholdersTest, DatesReadTodayAndBothNotations)
{
    CaptionPlaceholders p = placeholders();
    const struct { const char* text; QDate expected; } cases[] = {
        {"{TODAY}", Today},
        {" {today} ", Today},
        {"{TODAY-7}", Today.addDays(-7)},
        {"{TODAY+3}", Today.addDays(3)},
        {"{TODAY - 20}", Today.addDays(-20)},
        {"2026-02-28", QDate(2026, 2, 28)},
        {"28/02/2026", QDate(2026, 2, 28)},
        {"5/1/2026", QDate(2026, 1, 5)},
        {"28/02/2569", QDate(2026, 2, 28)},
        {"2569-02-28", QDate(2026, 2, 28)},
        {"{SECustom1}", QDate(2026, 4, 1)},
        {"2026-02-30", QDate()},
        {"02/28/2026", QDate()},
        {"{TODAY*2}", QDate()},
        {"{Custom1}", QDate()},
        {"", QDate()},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.text);
        EXPECT_EQ(p.ReplaceDateValue(QString::fromUtf8(c.text)).toString(Qt::ISODate), c.expected.toString(Qt::ISODate));
    }
}

QD8_ON_BOTH_ENGINES(CaptionPlaceholdersTest);

TEST(CaptionPlaceholders, WithoutOptionsEveryPlaceholderShowsItsDefault)
{
    CaptionPlaceholders p(nullptr, QString());
    EXPECT_EQ(p.ReplaceCustomCaption(QStringLiteral("{Custom1}|{ICCustom5}|{JobCodeCaption}|{MRPSECTIONCAPTION}|{MRPGROUPCAPTION}|{MRPFORMULAMAJORNAME}")),
        QString::fromUtf8("|||หมวดสินค้า| กลุ่มสินค้า|รหัสสูตร"));
}

} // namespace
