#include "widgets/GridEditor.h"

#include "support/ScratchDatabase.h"

#include "foundation/Currency.h"
#include "widgets/GridEditorModel.h"
#include "widgets/Twips.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QSignalSpy>
#include <QTableView>
#include <QTest>
#include <memory>

#include <gtest/gtest.h>

using namespace qd8;
using namespace qd8::test;

namespace {

using Cell = std::pair<int, int>;

class GridEditorTest : public testing::Test {
protected:
    void SetUp() override
    {
        grid.resize(900, 300);
        grid.AddColumn(QStringLiteral("รหัส"), 1200, QStringLiteral("TEXT"), 0, -1, {}, false);
        grid.AddColumn(QStringLiteral("ชื่อ"), 2400);
        grid.AddColumn(QStringLiteral("วงเงิน"), 1500, QStringLiteral("NUMBER"), 2);
        grid.AddColumn(QStringLiteral("สถานะ"), 1500, QStringLiteral("LABELLIST"), 0, -1, QStringLiteral("A;ใช้งาน,I;ยกเลิก"));
        grid.AddColumn(QStringLiteral("แสดง"), 600, QStringLiteral("YESNO"));
        grid.AddColumn(QStringLiteral("OLDCODE"), 0);
        grid.AddItem({QStringLiteral("D01"), QStringLiteral("ฝ่ายขาย"), QVariant::fromValue(Currency::fromInt(5000)),
                      QStringLiteral("A"), 1, QStringLiteral("D01")});
        grid.AddItem({QStringLiteral("D02"), QStringLiteral("ฝ่ายบัญชี"), QVariant(), QStringLiteral("I"), 0,
                      QStringLiteral("D02")});
        grid.show();
        grid.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&grid));
        view()->setFocus();
    }

    QTableView* view() { return grid.findChild<QTableView*>(); }
    // The open editor, if any: the focus widget inside the cells' area.
    QWidget* editor()
    {
        QWidget* focus = QApplication::focusWidget();
        return focus && focus != view()->viewport() && view()->viewport()->isAncestorOf(focus) ? focus : nullptr;
    }
    void press(Qt::Key key)
    {
        QWidget* target = QApplication::focusWidget();
        QTest::keyClick(target ? target : view(), key);
    }
    void type(const char* latin)
    {
        for (const char* c = latin; *c; ++c)
            QTest::keyClick(QApplication::focusWidget(), *c);
    }
    void go(int row, int col)
    {
        grid.setRow(row);
        grid.setCol(col);
    }
    Cell current() const { return {grid.Row(), grid.Col()}; }
    QLabel* message() { return grid.findChild<QLabel*>(QStringLiteral("cellMessage")); }

    GridEditor grid;
};

TEST_F(GridEditorTest, SetParentFormRecordsTheHostFormAndSaysWhetherItTookOne)
{
    auto form = std::make_unique<QWidget>();
    EXPECT_EQ(grid.SetParentForm(form.get(), true), 1);
    EXPECT_EQ(grid.parentForm(), form.get());
    form.reset();
    EXPECT_EQ(grid.parentForm(), nullptr);  // a form that went away is not kept
    EXPECT_EQ(grid.SetParentForm(nullptr, true), 0);
}

TEST_F(GridEditorTest, ColumnsTakeTheirWidthsInTwipsAndZeroHidesOne)
{
    EXPECT_EQ(grid.Cols(), 6);
    EXPECT_EQ(view()->columnWidth(1), twipsToPixels(2400, &grid));
    EXPECT_TRUE(view()->isColumnHidden(5) && !view()->isColumnHidden(0));
    EXPECT_EQ(grid.TextMatrix(0, 3), QStringLiteral("วงเงิน"));
    EXPECT_EQ(view()->model()->headerData(3, Qt::Horizontal).toString(), QStringLiteral("สถานะ"));
    grid.setTextMatrix(0, 2, QStringLiteral("ชื่อฝ่าย"));
    EXPECT_EQ(view()->model()->headerData(1, Qt::Horizontal).toString(), QStringLiteral("ชื่อฝ่าย"));
    EXPECT_EQ(grid.column(3).cellAlignment() & Qt::AlignHorizontal_Mask, Qt::AlignRight);
}

TEST_F(GridEditorTest, ColumnListsThatDoNotReadAreRefusedWithAReason)
{
    const struct { const char* captions; const char* widths; const char* mentions; } bad[] = {
        {"ID,ชื่อ", "0,abc", "abc"},
        {"ID,ชื่อ,ที่อยู่", "0,2000", "3 captions"},
    };
    for (const auto& c : bad) {
        const QString error = grid.AddColumns(QString::fromUtf8(c.captions), QString::fromUtf8(c.widths));
        EXPECT_TRUE(error.contains(QString::fromUtf8(c.mentions))) << error.toStdString();
        EXPECT_EQ(grid.Cols(), 6);
    }
    EXPECT_EQ(grid.AddColumns(QStringLiteral("ID,วันที่"), QStringLiteral("0,1200"), QStringLiteral("TEXT,DATE")), QString());
    EXPECT_EQ(grid.Cols(), 8);
    EXPECT_EQ(grid.column(8).type, GridColumnType::Date);
    EXPECT_TRUE(view()->isColumnHidden(6));
}

TEST_F(GridEditorTest, CellsReadAsShownAndAsValuesCountingFromOne)
{
    EXPECT_EQ(grid.Rows(), 2);
    // Row, column, text shown, value kept.
    const std::tuple<int, int, const char*, QVariant> cells[] = {
        {1, 3, "5,000.00", QVariant::fromValue(Currency::fromInt(5000))},
        {2, 4, "ยกเลิก", QStringLiteral("I")},
        {1, 5, "Yes", 1},
    };
    for (const auto& [row, col, text, value] : cells) {
        EXPECT_EQ(grid.TextMatrix(row, col), QString::fromUtf8(text)) << row << "," << col;
        EXPECT_EQ(grid.GetValue(row, col), value) << row << "," << col;
    }
    EXPECT_EQ(grid.TextMatrix(2, 3), QString());
    EXPECT_EQ(grid.TextMatrix(9, 9), QString());
    grid.setTextMatrix(9, 9, QStringLiteral("x"));
    grid.setRow(3);
    EXPECT_NE(grid.Row(), 3);

    QSignalSpy byCode(&grid, &GridEditor::CellChanged);
    QSignalSpy byUser(&grid, &GridEditor::AfterChange);
    grid.setTextMatrix(2, 4, QStringLiteral("ใช้งาน"));
    EXPECT_EQ(grid.GetValue(2, 4), QVariant(QStringLiteral("A")));
    EXPECT_EQ(grid.TextMatrix(2, 0), QStringLiteral("E"));
    ASSERT_EQ(byCode.count(), 1);
    EXPECT_EQ(byCode.at(0), (QVariantList{2, 4}));
    EXPECT_EQ(byUser.count(), 0);
}

TEST_F(GridEditorTest, EnterMovesToTheNextCellTheUserCanChange)
{
    go(1, 1);
    // Column 1 is a key kept as loaded and column 6 is hidden; at the end Enter stays put.
    const Cell expected[] = {{1, 2}, {1, 3}, {1, 4}, {1, 5}, {2, 2}, {2, 3}, {2, 4}, {2, 5}, {2, 5}};
    for (const Cell& next : expected) {
        press(Qt::Key_Return);
        EXPECT_EQ(current(), next);
    }
    grid.setReadOnly(true);
    go(1, 1);
    press(Qt::Key_Enter);
    EXPECT_EQ(current(), Cell(1, 2));
}

TEST_F(GridEditorTest, TypedValuesAreCommittedByEnterWhichThenMovesOn)
{
    QSignalSpy byUser(&grid, &GridEditor::AfterChange);
    go(1, 3);
    type("2500.456");
    ASSERT_NE(editor(), nullptr);
    press(Qt::Key_Return);
    EXPECT_EQ(editor(), nullptr);
    EXPECT_EQ(grid.GetValue(1, 3), QVariant::fromValue(Currency::fromRaw(25004600)));
    EXPECT_EQ(grid.TextMatrix(1, 3), QStringLiteral("2,500.46"));
    EXPECT_EQ(grid.RowMark(1), QStringLiteral("E"));
    ASSERT_EQ(byUser.count(), 1);
    EXPECT_EQ(byUser.at(0), (QVariantList{1, 3}));
    EXPECT_EQ(current(), Cell(1, 4));
}

TEST_F(GridEditorTest, ARefusedValueKeepsTheCellAndIsExplainedAtIt)
{
    grid.setValidator([](int row, int col, const QVariant& value) {
        return col == 3 && value.value<Currency>() > Currency::fromInt(10000) && row > 0
            ? QStringLiteral("วงเงินต้องไม่เกิน 10,000") : QString();
    });
    QSignalSpy byUser(&grid, &GridEditor::AfterChange);
    const struct { const char* typed; const char* message; } cases[] = {
        {"12000", "วงเงินต้องไม่เกิน 10,000"}, {"-", "กรุณาระบุเป็นตัวเลข"}};
    for (const auto& c : cases) {
        go(1, 3);
        type(c.typed);
        press(Qt::Key_Return);
        EXPECT_EQ(grid.TextMatrix(1, 3), QStringLiteral("5,000.00"));
        EXPECT_EQ(current(), Cell(1, 3));
        ASSERT_TRUE(message() && message()->isVisible());
        EXPECT_EQ(message()->text(), QString::fromUtf8(c.message));
        press(Qt::Key_Down);
        EXPECT_FALSE(message()->isVisible());
    }
    EXPECT_EQ(byUser.count(), 0);
    EXPECT_EQ(grid.RowMark(1), QString());
}

TEST_F(GridEditorTest, InsertAddsAMarkedRowUnlessAddingIsRefused)
{
    const struct { bool refuseAdd; bool readOnly; int rows; } cases[] = {{false, false, 3}, {true, false, 2}, {false, true, 2}};
    for (const auto& c : cases) {
        GridEditor local;
        local.AddColumn(QStringLiteral("รหัส"), 1200, QStringLiteral("TEXT"), 0, -1, {}, false);
        local.AddColumn(QStringLiteral("ชื่อ"), 2400);
        local.AddItem({QStringLiteral("D01"), QStringLiteral("ฝ่ายขาย")});
        local.AddItem({QStringLiteral("D02"), QStringLiteral("ฝ่ายบัญชี")});
        local.setRefuseAdd(c.refuseAdd);
        local.setReadOnly(c.readOnly);
        QSignalSpy added(&local, &GridEditor::AfterAddRow);
        QTest::keyClick(local.findChild<QTableView*>(), Qt::Key_Insert);
        EXPECT_EQ(local.Rows(), c.rows);
        EXPECT_EQ(added.count(), c.rows - 2);
        EXPECT_EQ(local.AddRow() != 0, !c.refuseAdd);
        if (c.rows == 3) {
            EXPECT_EQ(added.at(0), QVariantList{3});
            EXPECT_TRUE(local.IsNewRow(3) && local.RowMark(3) == QStringLiteral("E"));
            EXPECT_TRUE(local.model()->flags(local.model()->index(2, 0)) & Qt::ItemIsEditable);  // the key may be typed
        }
    }
}

TEST_F(GridEditorTest, DeleteMarksTheRowOrDropsANewOne)
{
    const struct { const char* name; bool newRow; bool cancel; bool refuse; int rows; const char* mark; int after; } cases[] = {
        {"loaded row", false, false, false, 3, "D", 1},
        {"new row", true, false, false, 2, "", 1},
        {"host cancels", false, true, false, 3, "", 0},
        {"deleting refused", false, false, true, 3, "", 0},
    };
    for (const auto& c : cases) {
        grid.ClearMarks();
        while (grid.Rows() > 2)
            grid.RemoveRow(grid.Rows());
        grid.AddRow();
        if (!c.newRow)
            grid.ClearMarks();
        grid.setRefuseDelete(c.refuse);
        const auto connection = QObject::connect(&grid, &GridEditor::BeforeDeleteRow, [&](int row, bool& cancel) {
            EXPECT_EQ(row, 3);
            cancel = c.cancel;
        });
        QSignalSpy after(&grid, &GridEditor::AfterDeleteRow);
        go(3, 2);
        press(Qt::Key_Delete);
        QObject::disconnect(connection);
        EXPECT_EQ(grid.Rows(), c.rows) << c.name;
        EXPECT_EQ(grid.RowMark(3), QString::fromUtf8(c.mark)) << c.name;
        EXPECT_EQ(after.count(), c.after) << c.name;
    }
}

TEST_F(GridEditorTest, F2ReachesTheHostWhichMayPutAPickedValueIntoTheCell)
{
    QList<int> codes;
    QObject::connect(&grid, &GridEditor::KeyDown, [&](int& code, int) {
        codes << code;
        if (code == 113 && grid.Col() == 1) {
            grid.setTextMatrix(grid.Row(), grid.Col(), QStringLiteral("D099"));
            code = 0;
        }
    });

    press(Qt::Key_Insert);
    ASSERT_EQ(current(), Cell(3, 1));
    press(Qt::Key_F2);
    EXPECT_EQ(grid.TextMatrix(3, 1), QStringLiteral("D099"));

    // From inside an open editor too: the picked value wins over what was typed.
    type("D0");
    ASSERT_NE(editor(), nullptr);
    press(Qt::Key_F2);
    EXPECT_EQ(editor(), nullptr);
    EXPECT_EQ(grid.TextMatrix(3, 1), QStringLiteral("D099"));

    // A key the host leaves alone keeps its meaning in the grid: F2 edits the cell.
    go(1, 2);
    press(Qt::Key_F2);
    auto* line = qobject_cast<QLineEdit*>(editor());
    ASSERT_NE(line, nullptr);
    EXPECT_EQ(line->text(), QStringLiteral("ฝ่ายขาย"));
    EXPECT_EQ(codes, (QList<int>{45, 113, 68, 113, 113}));
}

TEST_F(GridEditorTest, TheHostMayRefuseAnEditBeforeItStarts)
{
    QList<Cell> asked;
    bool refuse = true;
    QObject::connect(&grid, &GridEditor::BeforeEdit, [&](int row, int col, bool& cancel) {
        asked << Cell(row, col);
        cancel = refuse;
    });
    QSignalSpy byUser(&grid, &GridEditor::AfterChange);

    go(1, 5);
    press(Qt::Key_Space);
    EXPECT_EQ(grid.GetValue(1, 5), QVariant(1));
    go(1, 2);
    type("x");
    EXPECT_EQ(editor(), nullptr);
    EXPECT_EQ(asked, (QList<Cell>{{1, 5}, {1, 2}}));

    refuse = false;
    go(1, 5);
    press(Qt::Key_Space);
    EXPECT_EQ(grid.TextMatrix(1, 5), QStringLiteral("No"));
    ASSERT_EQ(byUser.count(), 1);
    EXPECT_EQ(byUser.at(0), (QVariantList{1, 5}));
}

TEST_F(GridEditorTest, ALabelListIsChosenByLabelAndKeepsTheCode)
{
    go(2, 4);
    press(Qt::Key_F2);
    auto* combo = qobject_cast<QComboBox*>(editor());
    ASSERT_NE(combo, nullptr);
    EXPECT_EQ(combo->count(), 2);
    EXPECT_EQ(combo->currentText(), QStringLiteral("ยกเลิก"));
    combo->setCurrentIndex(combo->findText(QStringLiteral("ใช้งาน")));
    press(Qt::Key_Return);
    EXPECT_EQ(grid.GetValue(2, 4), QVariant(QStringLiteral("A")));
    EXPECT_EQ(grid.TextMatrix(2, 4), QStringLiteral("ใช้งาน"));
}

TEST_F(GridEditorTest, EveryWidgetAPersonCanReachHasAName)
{
    grid.ShowProgress(QStringLiteral("Clearing Zero Value"), 10);
    go(1, 3);
    type("1");
    ASSERT_NE(editor(), nullptr);
    EXPECT_EQ(editor()->accessibleName(), QStringLiteral("วงเงิน"));
    EXPECT_EQ(unnamedWidgets(&grid), QStringList());
    EXPECT_EQ(grid.findChild<QProgressBar*>()->accessibleName(), QStringLiteral("Clearing Zero Value"));
}

} // namespace
