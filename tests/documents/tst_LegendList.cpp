#include "support/SampleCompany.h"

#include "database/DataObject.h"
#include "documents/LegendList.h"
#include "foundation/Currency.h"
#include "widgets/DataView.h"

#include <QDateTime>
#include <QDir>

using namespace qd8;
using namespace qd8::test;

namespace {

// A grid row as a plain value holder; fields found without regard to case, as the grid does.
class HashRow : public DataRow {
public:
    HashRow(std::initializer_list<std::pair<const char*, QVariant>> values)
    {
        for (const auto& [field, value] : values)
            m_values.insert(QString::fromLatin1(field).toLower(), value);
    }
    QVariant value(const QString& field) const override { return m_values.value(field.toLower()); }
    bool hasField(const QString& field) const override { return m_values.contains(field.toLower()); }

private:
    QHash<QString, QVariant> m_values;
};

const QDate Today(2026, 3, 15);
const QVariant Null;

struct HoldsCase { const char* legend; HashRow row; bool holds; };

// Loads each one-entry legend and checks it loads cleanly and holds (or not) for its row.
void expectHolds(const std::vector<HoldsCase>& cases, const QString& prefix = QStringLiteral("TPRD"))
{
    for (const HoldsCase& c : cases) {
        SCOPED_TRACE(c.legend);
        LegendList legend;
        legend.setToday(Today);
        legend.load(QString::fromUtf8(c.legend), prefix);
        ASSERT_EQ(legend.entries().size(), 1) << legend.notice().toStdString();
        EXPECT_EQ(legend.colourOf(c.row).isValid(), c.holds);
        EXPECT_EQ(legend.holds(legend.entries().first(), c.row), c.holds);
    }
}

TEST(LegendList, NullKeywordsTellNullFromEmpty)
{
    expectHolds({
        {"TPRDRemark;IS NULL;;red", {{"TPRDRemark", Null}}, true},
        {"TPRDRemark;IS NULL;;red", {{"TPRDRemark", QString("")}}, false},
        {"TPRDRemark;IS NULL;;red", {{"TPRDRemark", 0}}, false},
        {"TPRDRemark;IS NULL;;red", {{"TPRDOther", Null}}, false},
        {"TPRDRemark;is  null;;red", {{"TPRDRemark", Null}}, true},
        {"TPRDRemark;IS NOT NULL;;red", {{"TPRDRemark", QString("")}}, true},
        {"TPRDRemark;IS NOT NULL;;red", {{"TPRDRemark", Null}}, false},
        {"TPRDRemark;Is Not Null;;red", {{"TPRDRemark", QString("x")}}, true},
        {"TPRDRemark;IS NOT NULL;;red", {{"TPRDOther", 1}}, false},
    });
}

TEST(LegendList, ComparisonsReadNumbersDatesThenText)
{
    expectHolds({
        // numbers, also when the field or the value is text that reads as one
        {"TPRDStatus;=;5;red", {{"TPRDStatus", 5}}, true},
        {"TPRDStatus;=;5.00;red", {{"TPRDStatus", 5.0}}, true},
        {"TPRDStatus;=;7;red", {{"TPRDStatus", QString("007")}}, true},
        {"TPRDStatus;>;9;red", {{"TPRDStatus", QString("10")}}, true},
        {"TPRDStatus;<;9;red", {{"TPRDStatus", QString("10")}}, false},
        {"TPRDAmount;>=;1234.5;red", {{"TPRDAmount", QVariant::fromValue(Currency::fromDouble(1234.5))}}, true},
        {"TPRDAmount;>;1234.5;red", {{"TPRDAmount", QVariant::fromValue(Currency::fromDouble(1234.5))}}, false},
        {"TPRDStatus;<>;1;red", {{"TPRDStatus", 1LL}}, false},
        {"TPRDStatus;<=;1;red", {{"TPRDStatus", 1}}, true},
        {"TPRDStatus;<=;1;red", {{"TPRDStatus", 2}}, false},
        // dates, in either notation, the time of day left out
        {"TPRDDate;<;2026-03-15;red", {{"TPRDDate", QDate(2026, 3, 1)}}, true},
        {"TPRDDate;<;2026-03-15;red", {{"TPRDDate", QDate(2026, 12, 1)}}, false},
        {"TPRDDate;=;01/03/2026;red", {{"TPRDDate", QDate(2026, 3, 1)}}, true},
        {"TPRDDate;>;15/02/2026;red", {{"TPRDDate", QDate(2026, 3, 1)}}, true},
        {"TPRDDate;=;2026-03-01;red", {{"TPRDDate", QDateTime(QDate(2026, 3, 1), QTime(10, 30))}}, true},
        {"TPRDDate;>=;02/03/2026;red", {{"TPRDDate", QString("2026-03-01")}}, false},
        // text, exactly
        {"TPRDType;=;ABC;red", {{"TPRDType", QString("ABC")}}, true},
        {"TPRDType;=;abc;red", {{"TPRDType", QString("ABC")}}, false},
        {"TPRDType;>;A;red", {{"TPRDType", QString("B")}}, true},
        {"TPRDType;=;อนุมัติ;red", {{"TPRDType", QString::fromUtf8("อนุมัติ")}}, true},
        {" TPRDType ; <> ; ABC ; red ", {{"TPRDType", QString("ABD")}}, true},
        // empty and null
        {"TPRDType;=;;red", {{"TPRDType", QString("")}}, true},
        {"TPRDType;=;;red", {{"TPRDType", Null}}, true},
        {"TPRDType;<>;;red", {{"TPRDType", Null}}, false},
        {"TPRDType;<>;X;red", {{"TPRDType", Null}}, true},
        {"TPRDType;=;X;red", {{"TPRDType", Null}}, false},
        {"TPRDStatus;<;5;red", {{"TPRDStatus", Null}}, false},
        {"TPRDStatus;>=;0;red", {{"TPRDStatus", Null}}, false},
        // a field the row lacks
        {"TPRDType;=;;red", {{"TPRDOther", QString("")}}, false},
        {"TPRDType;<>;X;red", {{"TPRDOther", QString("")}}, false},
    });
}

TEST(LegendList, DateSpansCountDaysMonthsAndYears)
{
    // Today is 2026-03-15.
    expectHolds({
        {"TPRDDate;D>=;10;red", {{"TPRDDate", QDate(2026, 3, 5)}}, true},
        {"TPRDDate;D>;10;red", {{"TPRDDate", QDate(2026, 3, 5)}}, false},
        {"TPRDDate;D<;0;red", {{"TPRDDate", QDate(2026, 3, 20)}}, true},
        {"TPRDDate;D=;-5;red;;;D", {{"TPRDDate", QDate(2026, 3, 20)}}, true},
        {"TPRDDate;D=;10;red", {{"TPRDDate", QString("2026-03-05")}}, true},
        {"TPRDDate;D=;30;red;TPRDDueDate", {{"TPRDDate", QDate(2026, 3, 1)}, {"TPRDDueDate", QDate(2026, 3, 31)}}, true},
        {"TPRDDate;D<>;30;red;TPRDDueDate", {{"TPRDDate", QDate(2026, 3, 1)}, {"TPRDDueDate", QDate(2026, 3, 31)}}, false},
        // calendar months and years crossed, not elapsed days divided
        {"TPRDDate;D=;2;red;;;M", {{"TPRDDate", QDate(2026, 1, 31)}}, true},
        {"TPRDDate;D=;1;red;;;m", {{"TPRDDate", QDate(2026, 2, 28)}}, true},
        {"TPRDDate;D=;1;red;;;Y", {{"TPRDDate", QDate(2025, 12, 31)}}, true},
        {"TPRDDate;D>=;1;red;;;Y", {{"TPRDDate", QDate(2026, 1, 1)}}, false},
        {"TPRDDate;D=;13;red;TPRDDueDate;;M", {{"TPRDDate", QDate(2025, 1, 10)}, {"TPRDDueDate", QDate(2026, 2, 1)}}, true},
        // a missing date never holds, not even "differs from 0"
        {"TPRDDate;D<>;0;red", {{"TPRDDate", Null}}, false},
        {"TPRDDate;D<>;0;red;TPRDDueDate", {{"TPRDDate", QDate(2026, 3, 1)}, {"TPRDDueDate", Null}}, false},
        {"TPRDDate;D<>;0;red;TPRDDueDate", {{"TPRDDate", QDate(2026, 3, 1)}}, false},
        {"TPRDDate;D<>;0;red", {{"TPRDOther", QDate(2026, 3, 1)}}, false},
    });
}

TEST(LegendList, FieldComparisonsReadBothFieldsOfTheRow)
{
    expectHolds({
        {"TPRDAmount;T>;TPRDPaid;red;TPRDPaid", {{"TPRDAmount", 100}, {"TPRDPaid", 20}}, true},
        {"TPRDAmount;T>;;red;TPRDPaid", {{"TPRDAmount", QString("100")}, {"TPRDPaid", QString("20")}}, true},
        {"TPRDAmount;T<=;;red;TPRDPaid", {{"TPRDAmount", 100}, {"TPRDPaid", 100.0}}, true},
        {"TPRDAmount;T<>;;red;TPRDPaid", {{"TPRDAmount", 100}, {"TPRDPaid", 100.0}}, false},
        {"TPRDDueDate;T<;;red;TPRDDate", {{"TPRDDueDate", QDate(2026, 3, 1)}, {"TPRDDate", QDate(2026, 3, 2)}}, true},
        {"TPRDDueDate;T>=;;red;TPRDDate", {{"TPRDDueDate", QDate(2026, 3, 1)}, {"TPRDDate", QDate(2026, 3, 2)}}, false},
        {"TPRDName;T=;;red;TPRDName2", {{"TPRDName", QString("Acme")}, {"TPRDName2", QString("Acme")}}, true},
        {"TPRDName;T=;;red;TPRDName2", {{"TPRDName", QString("Acme")}, {"TPRDName2", QString("ACME")}}, false},
        {"TPRDAmount;T>;;red;TPRDPaid", {{"TPRDAmount", 100}, {"TPRDPaid", Null}}, false},
        {"TPRDAmount;T>;;red;TPRDPaid", {{"TPRDAmount", 100}}, false},
    });
}

TEST(LegendList, AlertKeywordsWithoutOptionsAlertFromTheDueDay)
{
    // Unread options count as 0 alert days and no acknowledgement required.
    expectHolds(
        {
            {"x;BF1;;red", {{"TIvoBillStatus", 0}, {"TIvoDueDate", Today}}, true},
            {"x;BF1;;red", {{"TIvoBillStatus", 0}, {"TIvoDueDate", Today.addDays(-3)}}, true},
            {"x;BF1;;red", {{"TIvoBillStatus", 0}, {"TIvoDueDate", Today.addDays(1)}}, false},
            {"x;BF1;;red", {{"TIvoBillStatus", 1}, {"TIvoDueDate", Today}}, false},
            {"x;bf1;1;red", {{"TIvoBillStatus", 1}, {"TIvoDueDate", Today}}, true},
            {"x;BF1;;red", {{"TIvoBillStatus", Null}, {"TIvoDueDate", Today}}, true},
            {"x;BF1;;red", {{"TIvoBillStatus", 0}, {"TIvoDueDate", Null}}, false},
            {"x;BF1;;red", {{"TIvoDueDate", Today}}, false},
            {"x;BF1;;red", {{"TIvoBillStatus", 0}, {"TIvoDate", Today}}, false},
            {"x;BF2;;red", {{"TIvoBillStatus", 0}, {"TIvoDate", Today}, {"TIvoDueDate", Today.addDays(30)}}, true},
            {"x;BF2;;red", {{"TIvoBillStatus", 0}, {"TIvoDate", Today.addDays(1)}, {"TIvoDueDate", Today}}, false},
            {"x;SODUEDATE;;red", {{"TIvoDueDate", Today}}, true},
            {"x;SODUEDATE;;red", {{"TIvoDueDate", Today.addDays(1)}}, false},
            {"x;PODUEDATE;;red", {{"TIvoDueDate", Today}, {"TPO2Acknowledge", 1}}, true},
            {"x;PODUEDATE;;red", {{"TIvoDueDate", Today.addDays(1)}, {"TPO2Acknowledge", 0}}, false},
            {"x;TPO2Acknowledge;;red", {{"TIvoDueDate", Today}, {"TPO2Acknowledge", 1}}, false},
            {"x;TPO2Acknowledge;;red", {{"TIvoDueDate", Today}, {"TPO2Acknowledge", 0}}, true},
            {"x;TPO2Acknowledge;;red", {{"TIvoDueDate", Today}, {"TPO2Acknowledge", Null}}, true},
            {"x;TPO2Acknowledge;;red", {{"TIvoDueDate", Today.addDays(2)}, {"TPO2Acknowledge", 0}}, false},
        },
        QStringLiteral("TIvo"));
}

TEST(LegendList, FirstEntryThatHoldsColoursTheRow)
{
    LegendList legend;
    legend.load(QStringLiteral("TPRDStatus;=;1;#FF0000;;ยกเลิก,TPRDStatus;>=;1;green,TPRDStatus;>=;0;16711680"), QStringLiteral("TPRD"));
    ASSERT_EQ(legend.entries().size(), 3);
    EXPECT_EQ(legend.entries()[0].caption, QString::fromUtf8("ยกเลิก"));
    EXPECT_EQ(legend.colourOf(HashRow{{"TPRDStatus", 1}}), QColor(255, 0, 0));
    EXPECT_TRUE(legend.holds(legend.entries()[1], HashRow{{"TPRDStatus", 1}}));
    EXPECT_EQ(legend.colourOf(HashRow{{"TPRDStatus", 2}}), QColor(0, 128, 0));
    EXPECT_EQ(legend.colourOf(HashRow{{"TPRDStatus", 0}}), QColor(0, 0, 255));
    EXPECT_FALSE(legend.colourOf(HashRow{{"TPRDStatus", -1}}).isValid());
    EXPECT_FALSE(legend.colourOf(HashRow{{"TPRDOther", 1}}).isValid());
}

TEST(LegendList, ColoursComeInThreeNotations)
{
    const struct { const char* colour; QColor expected; } cases[] = {
        {"#00FF00", QColor(0, 255, 0)},
        {"#1a2b3c", QColor(0x1a, 0x2b, 0x3c)},
        {"navy", QColor(0, 0, 128)},
        {"Red", QColor(255, 0, 0)},
        {"255", QColor(255, 0, 0)},
        {"65280", QColor(0, 255, 0)},
        {"12632256", QColor(192, 192, 192)},
        {"3947580", QColor(0x3c, 0x3c, 0x3c)},
        {"0", QColor(0, 0, 0)},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.colour);
        LegendList legend;
        legend.load(QStringLiteral("TPRDStatus;=;1;") + QLatin1String(c.colour), QStringLiteral("TPRD"));
        ASSERT_EQ(legend.entries().size(), 1) << legend.notice().toStdString();
        EXPECT_EQ(legend.entries().first().colour, c.expected);
        EXPECT_EQ(legend.colourOf(HashRow{{"TPRDStatus", 1}}), c.expected);
    }
}

TEST(LegendList, BadEntriesAreKeptOutAndNamed)
{
    const struct { const char* bad; const char* reason; } cases[] = {
        {"TPRDStatus;LIKE;1;red", "LIKE"},
        {"TPRDStatus;=;1;purplish", "purplish"},
        {"TPRDStatus;=;1;16777216", "16777216"},
        {"TPRDStatus;=;1;-2147483643", "-2147483643"},
        {"TPRDStatus;=;1;", "colour"},
        {"TPRDStatus;=;1", "TPRDStatus;=;1"},
        {"TPRDDate;D>;10;red;;;W", "W"},
        {"TPRDDate;D>;ten;red", "ten"},
        {"x;BF1;open;red", "open"},
        {"TPRDAmount;T>;;red", "T>"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.bad);
        LegendList legend;
        legend.load(QStringLiteral("TPRDStatus;=;2;blue,") + QLatin1String(c.bad) + QStringLiteral(",TPRDStatus;=;3;#00FF00"),
            QStringLiteral("TPRD"));
        ASSERT_EQ(legend.entries().size(), 2);
        EXPECT_EQ(legend.entries()[1].colour, QColor(0, 255, 0));
        EXPECT_TRUE(legend.notice().contains(QLatin1String(c.bad)) && legend.notice().contains(QLatin1String(c.reason)))
            << legend.notice().toStdString();
        EXPECT_EQ(legend.notice().count(QLatin1Char('\n')), 0);
    }
}

TEST(LegendList, ReloadingForgetsTheEarlierList)
{
    LegendList legend;
    legend.load(QStringLiteral("TPRDStatus;BAD;1;red,TPRDStatus;=;1;red"), QStringLiteral("TPRD"));
    ASSERT_FALSE(legend.notice().isEmpty());
    legend.load(QStringLiteral("TPRDStatus;=;2;blue,"), QStringLiteral("TPRD"));
    EXPECT_TRUE(legend.notice().isEmpty());
    ASSERT_EQ(legend.entries().size(), 1);
    EXPECT_FALSE(legend.colourOf(HashRow{{"TPRDStatus", 1}}).isValid());
    legend.load(QString(), QStringLiteral("TPRD"));
    EXPECT_TRUE(legend.isEmpty() && legend.notice().isEmpty());
}

class LegendOptionsTest : public SampleCompanyTest {};

TEST_P(LegendOptionsTest, AlertKeywordsReadTheCompanyOptions)
{
    setCompanyOption("BillProcessAlertTime", "5");
    setCompanyOption("POIncomingAlertDay", "3");
    setCompanyOption("SOIncomingAlertDay", "7");
    setCompanyOption("PORequireAckBeforeDelivery", "1");
    DbDataObject options(dataConnectionString(), appConnectionString(), 1);
    LegendList legend;
    legend.setToday(Today);
    legend.load(QStringLiteral("x;BF1;;red,x;PODUEDATE;;green,x;SODUEDATE;;blue"), QStringLiteral("TIvo"));
    ASSERT_TRUE(legend.notice().isEmpty()) << legend.notice().toStdString();
    legend.readOptions(options);

    const auto colour = [&legend](QVariant status, int dueIn, QVariant acknowledged) {
        return legend.colourOf(HashRow{{"TIvoBillStatus", status}, {"TIvoDueDate", Today.addDays(dueIn)}, {"TPO2Acknowledge", acknowledged}});
    };
    const struct { QVariant status; int dueIn; QVariant acknowledged; QColor expected; } cases[] = {
        {0, 5, Null, Qt::red},
        {0, 6, Null, QColor(0, 0, 255)},
        {1, 3, Null, QColor(0, 128, 0)},
        {1, 4, 0, QColor(0, 0, 255)},
        {1, 3, 1, QColor(0, 0, 255)},
        {1, 7, 1, QColor(0, 0, 255)},
        {1, 8, 0, QColor()},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << "status " << c.status.toInt() << ", due in " << c.dueIn << ", ack " << c.acknowledged.toInt());
        EXPECT_EQ(colour(c.status, c.dueIn, c.acknowledged), c.expected);
    }

    // Options that cannot be read count as 0: only what is due today or overdue alerts.
    DbDataObject unreachable(QStringLiteral("Driver=SQLite;Data Source=") + QDir::tempPath() + QStringLiteral("/no-such-folder/QD8Data.dat"),
        QString(), 1);
    legend.readOptions(unreachable);
    EXPECT_FALSE(colour(0, 5, Null).isValid());
    EXPECT_EQ(colour(0, 0, Null), QColor(Qt::red));
    EXPECT_EQ(colour(1, 0, 1), QColor(0, 128, 0));
}

QD8_ON_BOTH_ENGINES(LegendOptionsTest);

} // namespace
