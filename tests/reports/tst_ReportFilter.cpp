#include "support/SampleCompany.h"
#include "support/ScriptedServices.h"

#include "database/DataObject.h"
#include "foundation/Connection.h"
#include "foundation/Recordset.h"
#include "reports/ReportFilter.h"
#include "reports/ReportLayout.h"
#include "widgets/DateEdit.h"

#include <QComboBox>
#include <QSignalSpy>
#include <QTest>

using namespace qd8;
using namespace qd8::test;

namespace {

ReportCriterion criterion(const char* type, const char* condition, const char* labels = "")
{
    ReportCriterion c;
    c.field = QStringLiteral("F");
    c.caption = QStringLiteral("ช่อง");
    c.caption2 = QStringLiteral("Field");
    c.typeWord = QString::fromLatin1(type);
    c.kind = ReportCriterion::kindOf(QString::fromLatin1(condition));
    c.labelList = QString::fromUtf8(labels);
    return c;
}

} // namespace

TEST(ReportCriteria, ComposesEveryTypeAndConditionWithItsSentence)
{
    const struct {
        const char* type;
        const char* condition;
        const char* labels;
        QStringList value;
        const char* sql;
        const char* thai;
        const char* english;
    } cases[] = {
        {"TEXT", "=", "", {"HQ"}, "F='HQ'", "ช่อง: HQ", "Field: HQ"},
        {"TEXT", "LIKE", "", {"ปูน"}, "F LIKE '%ปูน%'", "ช่อง มีคำว่า \"ปูน\"", "Field contains \"ปูน\""},
        {"NUMBER", ">=", "", {"1500.50"}, "F>=1500.50", "ช่อง ตั้งแต่ 1500.50", "Field from 1500.50"},
        {"NUMBER", "<=", "", {"-3"}, "F<=-3", "ช่อง ถึง -3", "Field up to -3"},
        {"DATE", "BETWEEN", "", {"2023-12-01", "@MONTHEND"}, "F>=#$2023-12-01#$ AND F<=#$2024-02-29#$",
            "ช่อง ตั้งแต่ 01/12/2566 ถึง 29/02/2567", "Field from 01/12/2023 to 29/02/2024"},
        {"DATE", "BETWEEN", "", {"", "2026-03-31"}, "F<=#$2026-03-31#$", "ช่อง ถึง 31/03/2569", "Field up to 31/03/2026"},
        {"TEXT", "IN", "", {"A", "B", "C"}, "(F='A' OR F='B' OR F='C')", "ช่อง: A, B หรือ C", "Field: A, B or C"},
        {"TEXT", "IN", "", {"A"}, "F='A'", "ช่อง: A", "Field: A"},
        {"YESNO", "=", "", {"0"}, "F=0", "ช่อง: ไม่ใช่", "Field: No"},
        {"LABELLIST", "=", "0;รอ,2;อนุมัติ", {"2"}, "F=2", "ช่อง: อนุมัติ", "Field: อนุมัติ"},
        {"LABELLIST", "=", "D;เดบิต,C;เครดิต", {"C"}, "F='C'", "ช่อง: เครดิต", "Field: เครดิต"},
        {"TEXT", "=", "", {""}, "", "", ""},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(std::string(c.type) + " " + c.condition);
        ReportCriteria criteria({criterion(c.type, c.condition, c.labels)}, RelativeDates::calendarYear(QDate(2024, 2, 10)));
        criteria.setValue(0, c.value);
        EXPECT_EQ(criteria.problem(1), "");
        EXPECT_EQ(criteria.condition().text(), QString::fromUtf8(c.sql));
        EXPECT_EQ(criteria.sentence(0), QString::fromUtf8(c.thai));
        EXPECT_EQ(criteria.sentence(1), QString::fromUtf8(c.english));
        // The stored form brings the same values back.
        ReportCriteria again({criterion(c.type, c.condition, c.labels)}, criteria.dates());
        again.apply(criteria.paramList());
        EXPECT_EQ(again.condition().text(), criteria.condition().text());
    }
    // The stored form survives the characters it is made of; a locked entry stays locked.
    ReportCriteria odd({criterion("TEXT", "IN")}, RelativeDates::calendarYear(QDate(2026, 1, 1)));
    odd.apply(QStringLiteral("!F=a%2Cb,c%3Bd%25"));
    EXPECT_EQ(odd.value(0), (QStringList{"a,b", "c;d%"}));
    EXPECT_TRUE(odd.isLocked(0));
    EXPECT_EQ(odd.paramList(), "");
    EXPECT_EQ(odd.paramList(true), "!F=a%2Cb,c%3Bd%25");
}

TEST(ReportCriteria, RelativeDatesOnFixedDays)
{
    const struct {
        QDate today;
        const char* word;
        QDate expected;
    } cases[] = {
        {QDate(2026, 1, 31), "@LASTMONTHSTART", QDate(2025, 12, 1)},
        {QDate(2026, 1, 31), "@LASTMONTHEND", QDate(2025, 12, 31)},
        {QDate(2024, 3, 1), "@LASTMONTHEND", QDate(2024, 2, 29)},
        {QDate(2024, 2, 10), "@MONTHEND", QDate(2024, 2, 29)},
        {QDate(2023, 2, 10), "@MONTHEND", QDate(2023, 2, 28)},
        {QDate(2026, 12, 31), "@MONTHSTART", QDate(2026, 12, 1)},
        {QDate(2026, 12, 31), "@YEAREND", QDate(2026, 12, 31)},
        {QDate(2026, 1, 1), "@YEARSTART", QDate(2026, 1, 1)},
        {QDate(2026, 5, 5), "@today", QDate(2026, 5, 5)},
        {QDate(2026, 5, 5), "29/02/2567", QDate(2024, 2, 29)},  // Buddhist-era input
        {QDate(2026, 5, 5), "29/02/2566", QDate()},             // 2023 has no 29 February
        {QDate(2026, 5, 5), "@NEXTWEEK", QDate()},
    };
    for (const auto& c : cases)
        EXPECT_EQ(RelativeDates::calendarYear(c.today).resolve(QString::fromLatin1(c.word), DateEra::Buddhist), c.expected) << c.word;
}

class ReportFilterTest : public SampleCompanyTest {
protected:
    void SetUp() override
    {
        SampleCompanyTest::SetUp();
        if (IsSkipped())
            return;
        installScriptedServices();
    }
    // A filter of the sample's general ledger for a user, on a fixed day.
    std::unique_ptr<ReportFilter> open(qint32 user, const QString& group = QStringLiteral("GLLEDGER"), const QString& params = {},
        const QString& query = QStringLiteral("SELECT * FROM QD8VGLTrans"))
    {
        auto filter = std::make_unique<ReportFilter>();
        filter->setToday(QDate(2026, 2, 10));
        filter->SetFirst(group, params, query, std::make_shared<DbDataObject>(dataConnectionString(), appConnectionString(), user), nullptr,
            nullptr);
        filter->show();
        filter->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(filter.get()));
        return filter;
    }
    static QString typed(ReportFilter& f, int criterion, int box = 0) { return qobject_cast<QLineEdit*>(f.editor(criterion, box))->text(); }
};

TEST_P(ReportFilterTest, AccountingYearComesFromTheCompany)
{
    runOnData({"DELETE FROM QD8TACYear", "DELETE FROM QD8TACPeriod",
        "INSERT INTO QD8TACYear (TACYID, TACYStartDate, TACYEndDate) VALUES (2025, '2025-04-01', '2026-03-31')"});
    const RelativeDates dates = RelativeDates::on(QDate(2026, 2, 10), dataConnectionString());
    EXPECT_EQ(dates.yearStart, QDate(2025, 4, 1));
    EXPECT_EQ(dates.yearEnd, QDate(2026, 3, 31));
    EXPECT_EQ(RelativeDates::on(QDate(2027, 6, 1), dataConnectionString()).yearStart, QDate(2027, 1, 1));  // no such year: the calendar's
}

TEST_P(ReportFilterTest, RefusesWhatCannotBeUsedAndNamesTheCriterion)
{
    auto filter = open(1);
    QSignalSpy previewed(filter.get(), &ReportFilter::PreviewAction);
    const struct {
        int criterion;
        int box;
        const char* text;
        const char* message;
    } cases[] = {
        {0, 0, "", "กรุณาระบุวันที่ ทั้งวันเริ่มต้นและวันสิ้นสุด"},
        {0, 0, "31/02/2569", "วันที่: \"31/02/2569\" ไม่ใช่วันที่ (วว/ดด/ปปปป)"},
        {0, 0, "01/03/2569", "วันที่: ค่าเริ่มต้นมากกว่าค่าสิ้นสุด"},
        {5, 0, "1,5", "ยอดเดบิตตั้งแต่: \"1,5\" ไม่ใช่ตัวเลข"},
        {4, 0, "it's", "ค่า \"%it's%\" มีเครื่องหมาย ' ซึ่งใช้ไม่ได้"},  // refused before the engine
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.text);
        filter->Refresh();
        auto* box = qobject_cast<QLineEdit*>(filter->editor(c.criterion, c.box));
        box->selectAll();
        QTest::keyClick(box, Qt::Key_Delete);
        typeText(box, QString::fromUtf8(c.text));
        scriptedMessages().reset();
        QTest::keyClick(box, Qt::Key_F5);
        ASSERT_EQ(scriptedMessages().shown.size(), 1);
        EXPECT_TRUE(scriptedMessages().shown[0].text.startsWith(QString::fromUtf8(c.message))) << scriptedMessages().shown[0].text.toStdString();
        EXPECT_EQ(previewed.size(), 0);
    }
}

TEST_P(ReportFilterTest, KeyboardPicksPreviewsAndCloses)
{
    auto filter = open(2, QStringLiteral("GLLEDGER"), QStringLiteral("!TGLTTPrjCode=PJ01"));
    ASSERT_FALSE(filter->editor(3)->isEnabled());  // the host's value, locked
    QSignalSpy previewed(filter.get(), &ReportFilter::PreviewAction);
    QSignalSpy closed(filter.get(), &ReportFilter::CloseAction);
    QWidget* accounts = filter->editor(1);
    accounts->setFocus();
    scriptedPicker().answers << "1112-01" << "4110-01";
    QTest::keyClick(accounts, Qt::Key_F2);
    QTest::keyClick(accounts, Qt::Key_F2);
    ASSERT_EQ(scriptedPicker().requests.size(), 2);
    EXPECT_EQ(scriptedPicker().requests[0].source, "QD8TACChart WHERE TACCFlag1=1 ORDER BY TACCCode");
    EXPECT_EQ(typed(*filter, 1), "1112-01, 4110-01");
    QTest::keyClick(accounts, Qt::Key_Return);
    EXPECT_EQ(QApplication::focusWidget(), filter->editor(2));
    QTest::keyClick(filter->editor(2), Qt::Key_Return, Qt::ControlModifier);
    ASSERT_EQ(previewed.size(), 1);
    EXPECT_EQ(previewed[0][0].toString(), "SELECT * FROM QD8VGLTrans WHERE TGLTDate>=#$2026-02-01#$ AND TGLTDate<=#$2026-02-28#$ AND "
                                          "(TGTSTACCCode='1112-01' OR TGTSTACCCode='4110-01') AND TGLTTPrjCode='PJ01'");
    EXPECT_EQ(previewed[0][2].toString(), "วันที่ ตั้งแต่ 01/02/2569 ถึง 28/02/2569; รหัสบัญชี: 1112-01 หรือ 4110-01; โครงการ: PJ01");
    filter->setRLID(1);
    QTest::keyClick(filter->editor(2), Qt::Key_F5);
    EXPECT_EQ(previewed.last()[2].toString(), "Date from 01/02/2026 to 28/02/2026; Accounts: 1112-01 or 4110-01; Project: PJ01");
    QTest::keyClick(filter->editor(2), Qt::Key_Escape);
    EXPECT_EQ(closed.size(), 1);
}

TEST_P(ReportFilterTest, FavouritesAreKeptPerUserWithTheirRelativeDates)
{
    auto filter = open(1);
    typeText(filter->editor(4), QStringLiteral("ค่า"));
    auto* to = qobject_cast<DateEdit*>(filter->editor(0, 1));
    to->selectAll();
    typeText(to, QStringLiteral("15/02/2569"));
    scriptedPicker().textAnswers << QStringLiteral("เดือนนี้");
    filter->saveFavorite();
    typeText(filter->editor(5), QStringLiteral("9"));  // typed after saving: not lost by what the favourites do
    filter->toggleDefaultFavorite();
    EXPECT_EQ(typed(*filter, 5), "9");
    EXPECT_EQ(filter->favoriteBox()->currentText(), "เดือนนี้ ★");
    QSignalSpy previewed(filter.get(), &ReportFilter::PreviewAction);
    ASSERT_TRUE(filter->Preview());
    EXPECT_EQ(previewed[0][3].toString(), "เดือนนี้");

    // Next month the default still starts this month; the typed end date stays as typed.
    auto later = std::make_unique<ReportFilter>();
    later->setToday(QDate(2026, 3, 20));
    later->SetFirst("GLLEDGER", {}, "SELECT * FROM QD8VGLTrans", std::make_shared<DbDataObject>(dataConnectionString(), appConnectionString(), 1),
        nullptr, nullptr);
    EXPECT_EQ(later->favoriteName(), "เดือนนี้");
    EXPECT_EQ(later->criteria().paramList(), "TGLTDate=@MONTHSTART~2026-02-15;TGLTDescription=ค่า");
    EXPECT_EQ(qobject_cast<DateEdit*>(later->editor(0))->date(), QDate(2026, 3, 1));

    // Another user has no favourites and starts from the criteria last used, else the defaults.
    auto other = open(2);
    EXPECT_EQ(other->favoriteBox()->count(), 1);
    EXPECT_EQ(other->criteria().paramList(), "TGLTDate=@MONTHSTART~@MONTHEND");
    typeText(other->editor(5), QStringLiteral("1000"));
    ASSERT_TRUE(other->Preview());
    EXPECT_EQ(open(2)->criteria().paramList(), "TGLTDate=@MONTHSTART~@MONTHEND;TGTSDebit=1000");

    // Rename refuses a name in use; delete asks first.
    scriptedPicker().textAnswers << QStringLiteral("สอง");
    later->saveFavorite();
    scriptedPicker().textAnswers << QStringLiteral("เดือนนี้");
    later->renameFavorite();
    EXPECT_EQ(scriptedMessages().shown.last().text, "มีรายการโปรดชื่อ \"เดือนนี้\" แล้ว");
    scriptedMessages().answers << true;
    later->deleteFavorite();
    EXPECT_EQ(later->favoriteBox()->count(), 2);
    EXPECT_TRUE(later->loadFavorite("เดือนนี้"));
    EXPECT_FALSE(later->loadFavorite("สอง"));
}

TEST_P(ReportFilterTest, EverySampleReportRunsWithItsDefaultCriteria)
{
    Connection app;
    app.open(appConnectionString());
    Recordset layouts;
    layouts.open(Sql("SELECT TRpLTCmdAlias FROM QD8TReportLayout ORDER BY TRpLTCmdAlias"), app);
    QStringList seen;
    for (; !layouts.eof(); layouts.moveNext())
        for (int language : {0, 1}) {
            const QString alias = layouts.text(QStringLiteral("TRpLTCmdAlias"));
            SCOPED_TRACE(alias.toStdString());
            const std::optional<ReportLayout> layout = ReportLayout::read(alias, appConnectionString(), language);
            ASSERT_TRUE(layout && !layout->definition.columns.isEmpty());
            auto filter = std::make_unique<ReportFilter>();
            filter->setRLID(language);
            filter->SetFirst(layout->reportGroup, {}, layout->tableQuery,
                std::make_shared<DbDataObject>(dataConnectionString(), appConnectionString(), 1), nullptr, nullptr);
            QSignalSpy previewed(filter.get(), &ReportFilter::PreviewAction);
            ASSERT_TRUE(filter->Preview());
            const ReportDefinition definition = layout->definitionFor(previewed[0][0].toString(), {}, {}, previewed[0][2].toString());
            Connection data;
            data.open(dataConnectionString());
            Recordset rs;
            rs.open(Sql(definition.sql), data);
            for (const ReportColumn& column : definition.columns)
                EXPECT_GE(rs.fieldIndex(column.field), 0) << column.field.toStdString();
            EXPECT_TRUE(definition.groupCaptionField.isEmpty() || rs.fieldIndex(definition.groupCaptionField) >= 0);
            if (!rs.eof())
                seen << alias;
        }
    EXPECT_EQ(seen.size(), 10);  // five reports, each with rows in both languages
}

QD8_ON_BOTH_ENGINES(ReportFilterTest);
