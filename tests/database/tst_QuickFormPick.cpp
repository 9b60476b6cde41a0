#include "support/SampleCompany.h"
#include "support/ScriptedServices.h"

#include "database/QuickFormPick.h"
#include "foundation/DbError.h"
#include "foundation/SqlTrace.h"

using namespace qd8;
using namespace qd8::test;

namespace {

class QuickFormPickTest : public SampleCompanyTest {
protected:
    // A quick form "T1" over the employee types with the given fields (name, type, width).
    void defineForm(const QString& where, const QString& order, const QList<std::tuple<QString, QString, QString>>& fields)
    {
        QStringList statements{QStringLiteral("INSERT INTO QD8TQuickForm (TQFmAlias, TQFmCaption, TQFmTable, TQFmKeyIDEN, TQFmPKList, "
                                              "TQFmWhere, TQFmOrder) VALUES ('T1', 'ทดสอบ', 'QD8TEmployeeType', 'TEmT', 'TEmTCode', %1, %2)")
                                   .arg(literal(where), literal(order))};
        int sort = 0;
        for (const auto& [name, type, width] : fields)
            statements << QStringLiteral("INSERT INTO QD8TQuickField (TQFFID, TQFFTQFmAlias, TQFFSort, TQFFFieldName, TQFFCaption, "
                                         "TQFFFieldType, TQFFWidth) VALUES (%1, 'T1', %1, '%2', 'หัว %2', '%3', %4)")
                              .arg(100 + ++sort).arg(name, type, width);
        runOnApp(statements);
    }
    static QString literal(QString text)
    {
        return text.isNull() ? QStringLiteral("NULL") : QLatin1Char('\'') + text.replace(QLatin1Char('\''), QLatin1String("''")) + QLatin1Char('\'');
    }
};

TEST_P(QuickFormPickTest, TheSampleFormHandsTheListServiceItsExactDescription)
{
    scriptedPicker().answers << QStringLiteral("02");
    SqlTrace::Recorder trace;
    EXPECT_EQ(QuickFormPick(QStringLiteral("EMPTYPE"), appConnectionString(), dataConnectionString()), QStringLiteral("02"));
    EXPECT_EQ(trace.composed(), QStringList({"SELECT * FROM QD8TQuickForm WHERE TQFmAlias='EMPTYPE'",
                                    "SELECT * FROM QD8TQuickField WHERE TQFFTQFmAlias='EMPTYPE' ORDER BY TQFFSort"}));
    ASSERT_EQ(scriptedPicker().requests.size(), 1);
    const PickRequest expected{QStringLiteral("ประเภทพนักงาน"), QStringLiteral("TEmTCode"),
        QStringLiteral("TEmTCode,TEmTName,TEmTName2,TEmTSort"), QStringLiteral("รหัส,ชื่อประเภทพนักงาน,ชื่อภาษาอังกฤษ,ลำดับ"),
        QStringLiteral("1200,3500,3500,800"), QStringLiteral("0,0,0,0"), QStringLiteral("QD8TEmployeeType WHERE TEmTFlag1=1 ORDER BY TEmTSort"),
        dataConnectionString(), 0, 0, 0, 1, 0, 0, {}};
    EXPECT_EQ(scriptedPicker().requests[0], expected);
}

struct Shape {
    const char* name;
    QList<std::tuple<QString, QString, QString>> fields;
    const char* where;  // TQFmWhere, nullptr for NULL
    const char* order;  // TQFmOrder, nullptr for NULL
    const char* types;
    const char* widths;
    const char* source;     // QuickFormPick
    const char* sourceAll;  // QuickFormPickAll with custom filter "AND TEmTSort<3"
    int dialogWidth;
};

const Shape shapes[] = {
    {"AllText", {{"TEmTCode", "TEXT", "1000"}, {"TEmTName", "TEXT", "2000"}}, "", "TEmTSort", "0,0", "1000,2000",
        "QD8TEmployeeType WHERE TEmTFlag1=1 ORDER BY TEmTSort", "QD8TEmployeeType AND TEmTSort<3 ORDER BY TEmTSort", 0},
    {"NumberThenText", {{"TEmTSort", "NUMBER", "800"}, {"TEmTCode", "TEXT", "1000"}, {"TEmTFlag1", "NUMBER", "500"}}, "", "", ",0,0",
        "800,1000,500", "QD8TEmployeeType WHERE TEmTFlag1=1", "QD8TEmployeeType AND TEmTSort<3", 0},
    {"NumbersOnly", {{"TEmTSort", "NUMBER", "800"}, {"TEmTFlag1", "NUMBER", "500"}}, nullptr, nullptr, ",", "800,500",
        "QD8TEmployeeType WHERE TEmTFlag1=1", "QD8TEmployeeType AND TEmTSort<3", 0},
    {"ExactlyTenThousandTwips", {{"TEmTCode", "TEXT", "4000"}, {"TEmTName", "TEXT", "6000"}}, "", "", "0,0", "4000,6000",
        "QD8TEmployeeType WHERE TEmTFlag1=1", "QD8TEmployeeType AND TEmTSort<3", 0},
    {"OneTwipMore", {{"TEmTCode", "TEXT", "4000"}, {"TEmTName", "TEXT", "6001"}}, "", "", "0,0", "4000,6001",
        "QD8TEmployeeType WHERE TEmTFlag1=1", "QD8TEmployeeType AND TEmTSort<3", 10000},
    {"FormWhereReplacesTheInUseFilter", {{"TEmTCode", "TEXT", "1000"}}, "TEmTCode<>'03'", "TEmTName", "0", "1000",
        "QD8TEmployeeType WHERE TEmTCode<>'03' ORDER BY TEmTName", "QD8TEmployeeType WHERE TEmTCode<>'03' AND TEmTSort<3 ORDER BY TEmTName", 0},
    // Type words are read as the editor reads them: any case, blanks around.
    {"TypeWordsInAnyCase", {{"TEmTSort", " Number ", "800"}, {"TEmTFlag1", "number", "500"}, {"TEmTCode", "text", "1000"}}, "", "",
        ",,0", "800,500,1000", "QD8TEmployeeType WHERE TEmTFlag1=1", "QD8TEmployeeType AND TEmTSort<3", 0},
};

TEST_P(QuickFormPickTest, ListsAreBuiltFieldByFieldWithTheTypeCodeQuirkAndTheWidthRule)
{
    for (const Shape& shape : shapes) {
        SCOPED_TRACE(shape.name);
        runOnApp({QStringLiteral("DELETE FROM QD8TQuickField WHERE TQFFTQFmAlias='T1'"), QStringLiteral("DELETE FROM QD8TQuickForm WHERE TQFmAlias='T1'")});
        defineForm(shape.where ? QString::fromUtf8(shape.where) : QString(), shape.order ? QString::fromUtf8(shape.order) : QString(), shape.fields);
        scriptedPicker().reset();
        QuickFormPick(QStringLiteral("T1"), appConnectionString(), dataConnectionString());
        QuickFormPickAll(QStringLiteral("T1"), appConnectionString(), dataConnectionString(), QStringLiteral("AND TEmTSort<3"));
        ASSERT_EQ(scriptedPicker().requests.size(), 2);
        for (const PickRequest& r : scriptedPicker().requests) {
            EXPECT_EQ(r.typeList, QString::fromUtf8(shape.types));
            EXPECT_EQ(r.widthList, QString::fromUtf8(shape.widths));
            EXPECT_EQ(r.dialogWidth, shape.dialogWidth);
            EXPECT_EQ(r.title, QStringLiteral("ทดสอบ"));
        }
        EXPECT_EQ(scriptedPicker().requests[0].source, QString::fromUtf8(shape.source));
        EXPECT_EQ(scriptedPicker().requests[1].source, QString::fromUtf8(shape.sourceAll));
    }
}

TEST_P(QuickFormPickTest, EmptyAliasOrMetadataStringGivesNothingWithoutOpeningAnything)
{
    SqlTrace::Recorder trace;
    EXPECT_EQ(QuickFormPick(QString(), appConnectionString(), dataConnectionString()), QString());
    EXPECT_EQ(QuickFormPick(QStringLiteral("EMPTYPE"), QString(), dataConnectionString()), QString());
    EXPECT_EQ(QuickFormPickAll(QStringLiteral("EMPTYPE"), QString(), dataConnectionString(), QString()), QString());
    EXPECT_TRUE(trace.entries().isEmpty());
    EXPECT_TRUE(scriptedPicker().requests.isEmpty());

    // An unknown alias still asks the list service, with empty lists.
    QuickFormPick(QStringLiteral("NOSUCHFORM"), appConnectionString(), dataConnectionString());
    ASSERT_EQ(scriptedPicker().requests.size(), 1);
    EXPECT_EQ(scriptedPicker().requests[0].fieldList, QString());
}

TEST_P(QuickFormPickTest, AWidthThatIsNotANumberEndsTheRoutine)
{
    // Null ends it as any other non-number does (on both engines); text only SQLite keeps
    // in an INTEGER column.
    QStringList widths{"NULL"};
    if (engine() == Engine::SQLite)
        widths << "'wide'";
    for (const QString& width : widths) {
        SCOPED_TRACE(width.toStdString());
        runOnApp({QStringLiteral("DELETE FROM QD8TQuickField WHERE TQFFTQFmAlias='T1'"), QStringLiteral("DELETE FROM QD8TQuickForm WHERE TQFmAlias='T1'")});
        defineForm(QString(), QString(), {{"TEmTCode", "TEXT", "1000"}, {"TEmTName", "TEXT", width}});
        scriptedPicker().reset();
        EXPECT_THROW(QuickFormPick(QStringLiteral("T1"), appConnectionString(), dataConnectionString()), DbError);
        EXPECT_THROW(QuickFormPickAll(QStringLiteral("T1"), appConnectionString(), dataConnectionString(), QString()), DbError);
        EXPECT_TRUE(scriptedPicker().requests.isEmpty());
    }
}

TEST_P(QuickFormPickTest, ALabelListFieldHandsItsLabelsToThePickList)
{
    // The sample's projects: the level is a LABELLIST ("0;บริษัท,1;ฝ่าย,2;แผนก"); the
    // type word is matched in any case. A label list on a field that is no LABELLIST is not
    // handed on.
    runOnApp({"UPDATE QD8TQuickField SET TQFFFieldType=' labellist ' WHERE TQFFTQFmAlias='PROJECT' AND TQFFFieldName='TPrjLevel'",
        "UPDATE QD8TQuickField SET TQFFLabelList='A;x,B;y' WHERE TQFFTQFmAlias='PROJECT' AND TQFFSort=1"});
    QuickFormPick(QStringLiteral("PROJECT"), appConnectionString(), dataConnectionString());
    ASSERT_EQ(scriptedPicker().requests.size(), 1);
    const PickRequest& r = scriptedPicker().requests[0];
    const QStringList fields = r.fieldList.split(',');
    ASSERT_EQ(r.labelLists.size(), fields.size());
    for (int i = 0; i < fields.size(); ++i)
        EXPECT_EQ(r.labelLists[i], fields[i] == "TPrjLevel" ? "0;บริษัท,1;ฝ่าย,2;แผนก" : "") << fields[i].toStdString();
}

QD8_ON_BOTH_ENGINES(QuickFormPickTest);

} // namespace
