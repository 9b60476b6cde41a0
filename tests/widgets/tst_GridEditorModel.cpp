#include "widgets/GridEditorModel.h"

#include "foundation/Currency.h"

#include <QAbstractItemModelTester>
#include <QDate>
#include <QSignalSpy>

#include <gtest/gtest.h>

using namespace qd8;

namespace {

GridColumn makeColumn(GridColumnType type, int decimals = 0, const QString& labelList = {})
{
    GridColumn c;
    c.caption = QStringLiteral("C");
    c.type = type;
    c.decimals = decimals;
    c.labels = GridColumn::parseLabelList(labelList);
    return c;
}

const QString Sexes = QStringLiteral("M;ชาย,F;หญิง");

TEST(GridColumnTypes, TypeWordsAreReadInAnyCaseAndUnknownWordsGiveText)
{
    const struct { const char* word; std::optional<GridColumnType> type; } cases[] = {
        {"TEXT", GridColumnType::Text}, {"number", GridColumnType::Number}, {" AbsNumber ", GridColumnType::AbsNumber},
        {"AUTONUMBER", GridColumnType::AutoNumber}, {"DATE", GridColumnType::Date}, {"DateTime", GridColumnType::DateTime},
        {"TIME", GridColumnType::Time}, {"YESNO", GridColumnType::YesNo}, {"CHECK", GridColumnType::Check},
        {"LABELLIST", GridColumnType::LabelList}, {"COLOR", GridColumnType::Color}, {"MEMO", std::nullopt}, {"", std::nullopt},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(GridColumn::typeFromWord(QString::fromUtf8(c.word)), c.type) << c.word;
        if (c.type) {
            EXPECT_EQ(GridColumn::typeFromWord(GridColumn::typeWord(*c.type)), c.type) << c.word;
        } else {
            EXPECT_EQ(GridColumn::fromDefinition(QStringLiteral("X"), 100, QString::fromUtf8(c.word)).type, GridColumnType::Text);
        }
    }
}

TEST(GridColumnTypes, LabelListsGiveCodesByNameOrPosition)
{
    using Labels = QList<GridLabel>;
    EXPECT_EQ(GridColumn::parseLabelList(QStringLiteral("No,Yes")), (Labels{{"0", "No"}, {"1", "Yes"}}));
    EXPECT_EQ(GridColumn::parseLabelList(Sexes), (Labels{{"M", "ชาย"}, {"F", "หญิง"}}));
    EXPECT_EQ(GridColumn::parseLabelList(QStringLiteral(" A ; ใช้งาน ,ยกเลิก")), (Labels{{"A", "ใช้งาน"}, {"1", "ยกเลิก"}}));
    EXPECT_TRUE(GridColumn::parseLabelList({}).isEmpty());
}

TEST(GridColumnTypes, CellsShowTheirTypeFormatted)
{
    const struct { GridColumn column; const char* stored; int language; const char* shown; } cases[] = {
        {makeColumn(GridColumnType::Number, 2), "1234567.891", 0, "1,234,567.89"},
        {makeColumn(GridColumnType::Number, 2), "999.995", 0, "1,000.00"},
        {makeColumn(GridColumnType::Number, 2), "-0.004", 0, "0.00"},
        {makeColumn(GridColumnType::Number, 0), "-1234.5", 0, "-1,235"},
        {makeColumn(GridColumnType::Number, 4), "123456789012345.6789", 0, "123,456,789,012,345.6789"},
        {makeColumn(GridColumnType::Number, 2), "", 0, ""},
        {makeColumn(GridColumnType::Number, 2), "n/a", 0, "n/a"},
        {makeColumn(GridColumnType::AutoNumber, 2), "1042", 0, "1,042"},
        {makeColumn(GridColumnType::Date), "2026-01-31", 0, "31/01/2569"},
        {makeColumn(GridColumnType::Date), "2026-01-31", 1, "31/01/2026"},
        {makeColumn(GridColumnType::DateTime), "2026-01-31 13:45:00", 1, "31/01/2026 13:45"},
        {makeColumn(GridColumnType::Time), "07:05:00", 0, "07:05"},
        {makeColumn(GridColumnType::YesNo), "1", 0, "Yes"},
        {makeColumn(GridColumnType::Check), "", 0, "No"},
        {makeColumn(GridColumnType::LabelList, 0, Sexes), "F", 0, "หญิง"},
        {makeColumn(GridColumnType::LabelList, 0, Sexes), "X", 0, "X"},
        {makeColumn(GridColumnType::Color), "255", 0, "#FF0000"},
        {makeColumn(GridColumnType::Color), "16711680", 0, "#0000FF"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(c.column.displayText(QString::fromUtf8(c.stored), DateLook::forLanguage(c.language).era), QString::fromUtf8(c.shown))
            << GridColumn::typeWord(c.column.type).toStdString() << " " << c.stored;
}

TEST(GridColumnTypes, TypedTextIsCheckedAndKeptInStoredForm)
{
    using P = GridInputProblem;
    const struct { GridColumn column; const char* typed; P problem; const char* stored; } cases[] = {
        {makeColumn(GridColumnType::Number, 2), "1,234.567", P::None, "1234.57"},
        {makeColumn(GridColumnType::Number, 2), "-12.005", P::None, "-12.01"},
        {makeColumn(GridColumnType::Number, 2), "", P::None, ""},
        {makeColumn(GridColumnType::Number, 2), "-", P::NotANumber, ""},
        {makeColumn(GridColumnType::Number, 2), "1.2.3", P::NotANumber, ""},
        {makeColumn(GridColumnType::Number, 2), ",5", P::NotANumber, ""},
        {makeColumn(GridColumnType::AbsNumber, 0), "-5", P::Negative, ""},
        {makeColumn(GridColumnType::AbsNumber, 0), "5.5", P::None, "6"},
        {makeColumn(GridColumnType::Date), "31/01/2569", P::None, "2026-01-31"},
        {makeColumn(GridColumnType::Date), "2026-1-5", P::None, "2026-01-05"},
        {makeColumn(GridColumnType::Date), "29/02/2026", P::NotADate, ""},
        {makeColumn(GridColumnType::DateTime), "31/01/2026 13:45", P::None, "2026-01-31 13:45:00"},
        {makeColumn(GridColumnType::DateTime), "31/01/2026 25:00", P::NotADateTime, ""},
        {makeColumn(GridColumnType::Time), "9:05", P::None, "09:05:00"},
        {makeColumn(GridColumnType::Time), "1345", P::None, "13:45:00"},
        {makeColumn(GridColumnType::Time), "24:00", P::NotATime, ""},
        {makeColumn(GridColumnType::Color), "#00ff00", P::None, "65280"},
        {makeColumn(GridColumnType::Color), "green", P::NotAColor, ""},
        {makeColumn(GridColumnType::YesNo), "Yes", P::None, "1"},
        {makeColumn(GridColumnType::LabelList, 0, Sexes), "หญิง", P::None, "F"},
    };
    for (const auto& c : cases) {
        QString stored;
        EXPECT_EQ(c.column.parseInput(QString::fromUtf8(c.typed), stored, DateEra::Buddhist), c.problem) << c.typed;
        if (c.problem == P::None) {
            EXPECT_EQ(stored, QString::fromUtf8(c.stored)) << c.typed;
        }
    }
}

TEST(GridColumnTypes, ValuesCarryTheTypeAHostWrites)
{
    const struct { GridColumn column; const char* stored; QVariant value; } cases[] = {
        {makeColumn(GridColumnType::Text), "", QVariant(QString())},
        {makeColumn(GridColumnType::Number, 0), "12", QVariant(qlonglong(12))},
        {makeColumn(GridColumnType::Number, 0), "12.5", QVariant::fromValue(Currency::fromRaw(125000))},
        {makeColumn(GridColumnType::Number, 2), "1234.5", QVariant::fromValue(Currency::fromRaw(12345000))},
        {makeColumn(GridColumnType::Number, 2), "0.123456", QVariant(0.123456)},
        {makeColumn(GridColumnType::Number, 2), "", QVariant()},
        {makeColumn(GridColumnType::AutoNumber), "", QVariant()},
        {makeColumn(GridColumnType::LabelList, 0, Sexes), "F", QVariant(QStringLiteral("F"))},
        {makeColumn(GridColumnType::YesNo), "1", QVariant(1)},
        {makeColumn(GridColumnType::YesNo), "", QVariant(0)},
        {makeColumn(GridColumnType::Date), "2026-01-31", QVariant(QDate(2026, 1, 31))},
        {makeColumn(GridColumnType::DateTime), "2026-01-31 13:45:00", QVariant(QDateTime(QDate(2026, 1, 31), QTime(13, 45)))},
        {makeColumn(GridColumnType::Color), "255", QVariant(qlonglong(255))},
    };
    for (const auto& c : cases) {
        const QVariant v = c.column.value(QString::fromUtf8(c.stored));
        EXPECT_EQ(v.isNull(), c.value.isNull()) << c.stored;
        EXPECT_EQ(v.typeId(), c.value.typeId()) << c.stored;
        EXPECT_EQ(v, c.value) << c.stored;
    }
    // Values handed over by code land in the stored form and come back unchanged.
    const GridColumn money = makeColumn(GridColumnType::Number, 2);
    EXPECT_EQ(money.storedFromValue(QVariant::fromValue(Currency::fromRaw(12345678))), QStringLiteral("1234.5678"));
    EXPECT_EQ(money.storedFromValue(0.1), QStringLiteral("0.1"));
    const GridColumn sex = makeColumn(GridColumnType::LabelList, 0, Sexes);
    EXPECT_EQ(sex.storedFromValue(QStringLiteral("F")), QStringLiteral("F"));
    EXPECT_EQ(sex.storedFromText(QStringLiteral("หญิง"), DateEra::Buddhist), QStringLiteral("F"));
    EXPECT_EQ(makeColumn(GridColumnType::YesNo).storedFromValue(true), QStringLiteral("1"));
    EXPECT_EQ(makeColumn(GridColumnType::DateTime).storedFromValue(QDate(2026, 1, 31)), QStringLiteral("2026-01-31 00:00:00"));
}

class GridEditorModelTest : public testing::Test {
protected:
    void SetUp() override
    {
        GridColumn code = GridColumn::fromDefinition(QStringLiteral("รหัส"), 1200, QStringLiteral("TEXT"), 0, -1, {}, false);
        model.appendColumn(code);
        model.appendColumn(GridColumn::fromDefinition(QStringLiteral("ชื่อ"), 2400, QStringLiteral("TEXT")));
        model.appendColumn(GridColumn::fromDefinition(QStringLiteral("วงเงิน"), 1500, QStringLiteral("NUMBER"), 2));
        model.appendColumn(GridColumn::fromDefinition(QStringLiteral("แสดง"), 600, QStringLiteral("YESNO")));
        model.appendColumn(GridColumn::fromDefinition(QStringLiteral("ลำดับ"), 600, QStringLiteral("AUTONUMBER")));
        model.appendRow({QStringLiteral("D01"), QStringLiteral("ฝ่ายขาย"), QVariant::fromValue(Currency::fromInt(5000)), 1, 7});
        model.appendRow({QStringLiteral("D02"), QStringLiteral("ฝ่ายบัญชี"), QVariant(), 0, 8});
    }

    GridEditorModel model;
};

TEST_F(GridEditorModelTest, KeepsTheModelContractThroughEveryChange)
{
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    model.insertRows(1, 2);
    model.setText(1, 1, QStringLiteral("ใหม่"));
    model.markDeleted(1);
    model.markDeleted(3);
    model.setData(model.index(0, 3), Qt::Unchecked, Qt::CheckStateRole);
    model.appendColumn(GridColumn::fromDefinition(QStringLiteral("หมายเหตุ"), 1000, QStringLiteral("TEXT")));
    model.acceptChanges();
    model.clearRows();
    model.appendRow({QStringLiteral("D09")});
    model.clear();
}

TEST_F(GridEditorModelTest, ChangesBufferPerRowAndMarkIt)
{
    QSignalSpy byCode(&model, &GridEditorModel::cellChangedByCode);
    QSignalSpy byUser(&model, &GridEditorModel::cellEdited);
    QSignalSpy changed(&model, &GridEditorModel::dataChanged);
    EXPECT_EQ(model.mark(0), QString());

    EXPECT_FALSE(model.setText(0, 1, QStringLiteral("ฝ่ายขาย")));  // same text: nothing happens
    EXPECT_EQ(changed.count(), 0);

    EXPECT_TRUE(model.setText(0, 1, QStringLiteral("ฝ่ายขายต่างประเทศ")));
    EXPECT_EQ(model.mark(0), QStringLiteral("E"));
    EXPECT_EQ(model.rowEdit(0).operation, GridEditorModel::RowOperation::Update);
    EXPECT_EQ(model.rowEdit(0).original, (QMap<int, QString>{{1, QStringLiteral("ฝ่ายขาย")}}));
    EXPECT_EQ(QList<qsizetype>({byCode.count(), byUser.count()}), QList<qsizetype>({1, 0}));

    EXPECT_TRUE(model.setData(model.index(0, 2), QStringLiteral("7,500.5")));
    EXPECT_EQ(QList<qsizetype>({byCode.count(), byUser.count()}), QList<qsizetype>({1, 1}));
    EXPECT_EQ(model.text(0, 2), QStringLiteral("7,500.50"));
    EXPECT_EQ(model.rowEdit(0).original.keys(), (QList<int>{1, 2}));

    // Putting both cells back leaves the row untouched again.
    model.setText(0, 1, QStringLiteral("ฝ่ายขาย"));
    model.setValue(0, 2, QVariant::fromValue(Currency::fromInt(5000)));
    EXPECT_EQ(model.mark(0), QString());
    EXPECT_EQ(model.rowEdit(0).operation, GridEditorModel::RowOperation::None);
}

TEST_F(GridEditorModelTest, NewRowsAreMarkedAndDeletingThemRemovesThem)
{
    model.insertRows(2, 1);
    EXPECT_TRUE(model.isNewRow(2));
    EXPECT_EQ(model.mark(2), QStringLiteral("E"));
    EXPECT_EQ(model.value(2, 3), QVariant(0));

    EXPECT_TRUE(model.markDeleted(2));
    EXPECT_EQ(model.rowCount(), 2);

    EXPECT_TRUE(model.markDeleted(1));
    EXPECT_EQ(model.mark(1), QStringLiteral("D"));
    EXPECT_FALSE(model.markDeleted(1));
    EXPECT_FALSE(model.flags(model.index(1, 1)) & Qt::ItemIsEditable);

    model.insertRows(2, 1);
    model.setText(2, 0, QStringLiteral("D03"));
    model.setText(0, 1, QStringLiteral("ขาย"));
    model.acceptChanges();
    ASSERT_EQ(model.rowCount(), 2);
    EXPECT_EQ(model.text(1, 0), QStringLiteral("D03"));
    for (int r = 0; r < model.rowCount(); ++r)
        EXPECT_TRUE(model.mark(r).isEmpty() && !model.isNewRow(r)) << r;
}

TEST_F(GridEditorModelTest, EditabilityFollowsColumnRowAndMode)
{
    auto editable = [this](int r, int c) {
        return bool(model.flags(model.index(r, c)) & (Qt::ItemIsEditable | Qt::ItemIsUserCheckable));
    };
    EXPECT_FALSE(editable(0, 0));  // a key is typed once, never changed afterwards
    EXPECT_TRUE(editable(0, 1));
    EXPECT_TRUE(model.flags(model.index(0, 3)) & Qt::ItemIsUserCheckable);
    EXPECT_FALSE(editable(0, 4));
    model.insertRows(2, 1);
    EXPECT_TRUE(editable(2, 0));
    EXPECT_FALSE(editable(2, 4));
    model.setReadOnly(true);
    EXPECT_FALSE(editable(2, 0));
    EXPECT_FALSE(editable(0, 1));
    EXPECT_FALSE(model.setData(model.index(0, 1), QStringLiteral("x")));
    EXPECT_EQ(model.text(0, 1), QStringLiteral("ฝ่ายขาย"));
}

TEST_F(GridEditorModelTest, RefusedValuesKeepTheCellAndSayWhy)
{
    QSignalSpy refused(&model, &GridEditorModel::valueRefused);
    QSignalSpy byUser(&model, &GridEditorModel::cellEdited);
    const struct { int language; int column; const char* typed; const char* message; } builtIn[] = {
        {0, 2, "-", "กรุณาระบุเป็นตัวเลข"},
        {1, 2, "12x", "Please enter a number"},
    };
    for (const auto& c : builtIn) {
        model.setLanguageId(c.language);
        EXPECT_FALSE(model.setData(model.index(0, c.column), QString::fromUtf8(c.typed)));
        ASSERT_EQ(refused.count(), 1);
        EXPECT_EQ(refused.takeFirst().at(1).toString(), QString::fromUtf8(c.message));
    }

    QVariant seen;
    model.setValidator([&seen](int row, int column, const QVariant& value) {
        seen = value;
        return row == 0 && column == 2 && value.value<Currency>() > Currency::fromInt(10000)
            ? QStringLiteral("วงเงินต้องไม่เกิน 10,000") : QString();
    });
    EXPECT_FALSE(model.setData(model.index(0, 2), QStringLiteral("12,000")));
    EXPECT_EQ(seen.value<Currency>(), Currency::fromInt(12000));
    ASSERT_EQ(refused.count(), 1);
    EXPECT_EQ(refused.at(0).at(0).value<QModelIndex>(), model.index(0, 2));
    EXPECT_EQ(refused.at(0).at(1).toString(), QStringLiteral("วงเงินต้องไม่เกิน 10,000"));
    EXPECT_EQ(model.text(0, 2), QStringLiteral("5,000.00"));
    EXPECT_EQ(byUser.count(), 0);

    EXPECT_TRUE(model.setData(model.index(0, 2), QStringLiteral("9999.999")));
    EXPECT_EQ(model.value(0, 2), QVariant::fromValue(Currency::fromInt(10000)));
    EXPECT_EQ(byUser.count(), 1);
}

TEST_F(GridEditorModelTest, ACellMayHaveATypeOfItsOwn)
{
    model.setCellFormat(1, 1, GridColumn::fromDefinition({}, 0, QStringLiteral("DATE")));
    EXPECT_TRUE(model.setData(model.index(1, 1), QStringLiteral("31/01/2569")));
    EXPECT_EQ(model.value(1, 1), QVariant(QDate(2026, 1, 31)));
    EXPECT_EQ(model.value(0, 1), QVariant(QStringLiteral("ฝ่ายขาย")));
    model.setCellFormat(0, 1, GridColumn::fromDefinition({}, 0, QStringLiteral("YESNO")));
    EXPECT_TRUE(model.flags(model.index(0, 1)) & Qt::ItemIsUserCheckable);
    EXPECT_EQ(model.value(0, 1), QVariant(0));
}

} // namespace
