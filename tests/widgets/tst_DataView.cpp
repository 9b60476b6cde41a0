#include "support/ScratchDatabase.h"

#include "foundation/Connection.h"
#include "foundation/Currency.h"
#include "foundation/DbError.h"
#include "foundation/RowStore.h"
#include "widgets/DataView.h"
#include "widgets/DataViewModel_p.h"
#include "widgets/Twips.h"

#include <QAbstractItemModelTester>
#include <QBrush>
#include <QElapsedTimer>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableView>
#include <QTest>
#include <limits>

using namespace qd8;
using namespace qd8::test;

namespace {

const QString Fields = QStringLiteral("TDocNo,TDocLine,TDocDate,TDocName,TDocAmount,TDocQty,TDocDone");
const QString Captions = QStringLiteral("เลขที่,ลำดับ,วันที่,รายละเอียด,จำนวนเงิน,จำนวน,เสร็จ");
const QString Widths = QStringLiteral("1500,0,1200,3000,1400,800,600");
const QString Types = QStringLiteral("0,1,3,0,2,1,4");

// Four document lines in the order of their key; the third is all NULL but its key, the
// second has an empty name.
class DataViewTest : public ScratchTableTest {
protected:
    QStringList tableStatements() const override
    {
        return {
            QStringLiteral("CREATE TABLE QD8TDocList (TDocNo VARCHAR(20) NOT NULL, TDocLine INTEGER NOT NULL, TDocDate DATE, "
                           "TDocName TEXT, TDocAmount NUMERIC(19,4), TDocQty INTEGER, TDocDone INTEGER, "
                           "PRIMARY KEY (TDocNo, TDocLine))"),
            QStringLiteral("INSERT INTO QD8TDocList VALUES ('PR0000001', 1, '2026-01-31', 'ค่าเครื่องเขียน', 1234.5, 1234, 1)"),
            QStringLiteral("INSERT INTO QD8TDocList VALUES ('PR0000001', 2, '2026-02-01', '', -2.25, -5, 0)"),
            QStringLiteral("INSERT INTO QD8TDocList VALUES ('PR0000002', 1, NULL, NULL, NULL, NULL, NULL)"),
            QStringLiteral("INSERT INTO QD8TDocList VALUES ('PR0000003', 1, '2026-12-25', 'Paper A4', 1234567.891, 1000000, 1)"),
        };
    }

    // One more document per n in [from, to], numbered "R<n>", in the order of their key.
    void addRows(int from, int to) const
    {
        db->run({QStringLiteral("INSERT INTO QD8TDocList (TDocNo, TDocLine, TDocName, TDocQty, TDocDone) "
                                "WITH RECURSIVE g(n) AS (SELECT %1 UNION ALL SELECT n + 1 FROM g WHERE n < %2) "
                                "SELECT 'R' || n, 1, 'รายการ ' || n, n, 0 FROM g")
                     .arg(from)
                     .arg(to)});
    }

    void describe(DataView& view, const QStringList& keys = {"TDocNo", "TDocLine"}) const
    {
        view.setColumns(Fields, Captions, Widths, Types);
        view.setKeyFields(keys);
    }

    void open(DataView& view, const QString& where = {}) const
    {
        view.open(Sql("SELECT ") + Fields + " FROM QD8TDocList" + where + " ORDER BY TDocNo, TDocLine",
            Sql("SELECT COUNT(*) FROM QD8TDocList") + where, db->connectionString());
    }

    static QString shown(const DataView& view, int row, int column)
    {
        return view.model()->index(row, column).data().toString();
    }
};

TEST_P(DataViewTest, ShowsTheListedColumnsTextConvertedOnlyForDisplay)
{
    DataView view;
    view.setColumns(Fields, Captions, Widths, Types, 300);
    view.setKeyFields({"TDocNo"});
    QAbstractItemModelTester tester(view.model(), QAbstractItemModelTester::FailureReportingMode::Fatal);
    open(view);
    ASSERT_EQ(view.fetchedRows(), 4);

    const QStringList captions = Captions.split(u',');
    const QList<int> twips = {1500, 0, 1200, 3000, 1400, 800, 600};
    QTableView* table = view.tableView();
    for (int c = 0; c < captions.size(); ++c) {
        SCOPED_TRACE(c);
        EXPECT_EQ(view.model()->headerData(c, Qt::Horizontal).toString(), captions[c]);
        EXPECT_EQ(table->isColumnHidden(c), twips[c] == 0);
        if (twips[c] > 0) {
            EXPECT_EQ(table->columnWidth(c), twipsToPixels(twips[c], table));
        }
    }
    EXPECT_EQ(table->rowHeight(3), twipsToPixels(300, table));

    const struct { int row, column; QString text; Qt::Alignment alignment; } cases[] = {
        {0, 0, "PR0000001", Qt::AlignLeft},
        {0, 2, "31/01/2026", Qt::AlignHCenter},
        {0, 3, "ค่าเครื่องเขียน", Qt::AlignLeft},
        {0, 4, "1,234.50", Qt::AlignRight},
        {0, 5, "1,234", Qt::AlignRight},
        {0, 6, "✓", Qt::AlignHCenter},
        {1, 1, "2", Qt::AlignRight},
        {1, 3, "", Qt::AlignLeft},
        {1, 4, "-2.25", Qt::AlignRight},
        {1, 5, "-5", Qt::AlignRight},
        {1, 6, "", Qt::AlignHCenter},
        {2, 2, "", Qt::AlignHCenter},
        {2, 4, "", Qt::AlignRight},
        {2, 6, "", Qt::AlignHCenter},
        {3, 2, "25/12/2026", Qt::AlignHCenter},
        {3, 4, "1,234,567.89", Qt::AlignRight},
        {3, 5, "1,000,000", Qt::AlignRight},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << "row " << c.row << " column " << c.column);
        const QModelIndex index = view.model()->index(c.row, c.column);
        EXPECT_EQ(index.data().toString(), c.text);
        EXPECT_EQ(index.data(Qt::TextAlignmentRole).value<Qt::Alignment>() & Qt::AlignHorizontal_Mask, c.alignment);
    }
    view.setDateLook(DateLook::forLanguage(0));  // a Thai user sees Buddhist-era years
    EXPECT_EQ(view.model()->index(3, 2).data().toString(), QStringLiteral("25/12/2569"));

    // The values themselves keep NULL apart from "" and keep their kinds.
    EXPECT_TRUE(view.value(2, "TDocName").isNull());
    EXPECT_EQ(view.value(1, "TDOCNAME"), QVariant(QString()));
    EXPECT_EQ(view.value(0, "TDocDate").toDate(), QDate(2026, 1, 31));
    EXPECT_EQ(view.value(3, "TDocAmount").value<Currency>().toString(), QStringLiteral("1234567.891"));
    EXPECT_FALSE(view.value(0, "NoSuchField").isValid());
    EXPECT_FALSE(view.value(4, "TDocNo").isValid());
}

// Cells of every kind, read back from chunks far smaller than the rows, from chunks of the
// usual size, and across rows that need a chunk of their own.
TEST(RowStore, ReadsBackEveryCellWhateverTheChunkSize)
{
    using Type = RowStore::Type;
    struct Value { Type type; qint64 integer; double real; QByteArray bytes; };
    const QList<Value> values = {
        {Type::Null, 0, 0, {}},
        {Type::Integer, 0, 0, {}},
        {Type::Integer, -1, 0, {}},
        {Type::Integer, std::numeric_limits<qint64>::min(), 0, {}},
        {Type::Integer, std::numeric_limits<qint64>::max(), 0, {}},
        {Type::Integer, 300, 0, {}},
        {Type::Real, 0, -1234.5678, {}},
        {Type::Text, 0, 0, ""},
        {Type::Text, 0, 0, "ใบขอซื้อ"},
        {Type::Text, 0, 0, QByteArray(5000, 'x')},
        {Type::Blob, 0, 0, QByteArray("a\0b", 3)},
    };
    for (qsizetype chunkBytes : {qsizetype(16), qsizetype(64), RowStore::DefaultChunkBytes}) {
        SCOPED_TRACE(chunkBytes);
        RowStore store(chunkBytes);
        constexpr int Rows = 200, Columns = 5;
        const auto valueAt = [&](int row, int column) { return values[(row * 3 + column * 7) % values.size()]; };
        for (int r = 0; r < Rows; ++r) {
            for (int c = 0; c < Columns; ++c) {
                const Value v = valueAt(r, c);
                switch (v.type) {
                case Type::Null: store.addNull(); break;
                case Type::Integer: store.addInteger(v.integer); break;
                case Type::Real: store.addReal(v.real); break;
                case Type::Text: store.addText(v.bytes.constData(), v.bytes.size()); break;
                case Type::Blob: store.addBlob(v.bytes.constData(), v.bytes.size()); break;
                }
            }
            store.endRow();
        }
        ASSERT_EQ(store.rowCount(), Rows);
        for (int r = Rows - 1; r >= 0; --r) {
            for (int c = 0; c < Columns; ++c) {
                const Value v = valueAt(r, c);
                const RowStore::Cell cell = store.cell(r, c);
                ASSERT_EQ(cell.type, v.type) << "row " << r << " column " << c;
                const bool text = v.type == Type::Text || v.type == Type::Blob;
                EXPECT_TRUE((v.type == Type::Integer ? cell.integer : 0) == v.integer && (v.type == Type::Real ? cell.real : 0) == v.real
                    && (text ? QByteArray(cell.data, cell.size) : QByteArray()) == v.bytes)
                    << "row " << r << " column " << c;
            }
        }
    }
}

// A list row of twelve short cells costs its bytes and little more: no fixed-size cell
// records, no arena grown by copying.
TEST(RowStore, KeepsAMillionRowListCompact)
{
    RowStore store;
    constexpr int Rows = 100000;
    const QByteArray code("PR0012345");
    for (int r = 0; r < Rows; ++r) {
        for (int c = 0; c < 6; ++c)
            store.addText(code.constData(), code.size());
        for (int c = 0; c < 3; ++c)
            store.addInteger(c);
        for (int c = 0; c < 3; ++c)
            store.addReal(r * 1.25);
        store.endRow();
    }
    // 6 × (type, length, 9 bytes) + 3 × (type, 1 byte) + 3 × (type, 8 bytes) + the position.
    const double payload = 6 * 11 + 3 * 2 + 3 * 9 + 8;
    EXPECT_LT(double(store.bytesHeld()) / Rows, payload * 1.2);
    EXPECT_EQ(QByteArray(store.cell(Rows - 1, 5).data, store.cell(Rows - 1, 5).size), code);
    EXPECT_EQ(store.cell(Rows - 1, 11).real, (Rows - 1) * 1.25);
}

TEST_P(DataViewTest, CellsLargerThanAStoreChunkAndEmptyTextsSurviveTheEngines)
{
    const QString big = QString(700000, QChar(u'ก'));  // 2.1 MB of UTF-8
    {
        Connection c;
        c.open(db->connectionString());
        c.execute(Sql("INSERT INTO QD8TDocList (TDocNo, TDocLine, TDocName) VALUES ('PR0000004', 1, ") + c.backend().placeholder(1) + ")",
            {big});
    }
    DataView view;
    describe(view);
    open(view);
    ASSERT_EQ(view.fetchedRows(), 5);
    EXPECT_EQ(view.value(4, "TDocName").toString(), big);
    EXPECT_EQ(view.value(3, "TDocName").toString(), QStringLiteral("Paper A4"));
}

TEST_P(DataViewTest, TheTotalComesFromTheCountWhileOnlyTheFirstScreenIsRead)
{
    addRows(10001, 14996);  // 5,000 rows in all
    DataView view;
    describe(view);
    QSignalSpy totals(&view, &DataView::totalKnown);
    open(view);
    EXPECT_EQ(view.fetchedRows(), DataViewModel::FirstRows);
    ASSERT_TRUE(QTest::qWaitFor([&] { return totals.count() > 0; }, 10000));
    EXPECT_EQ(totals.count(), 1);
    EXPECT_EQ(totals[0][0].toLongLong(), 5000);
    EXPECT_EQ(view.totalRows(), 5000);

    EXPECT_TRUE(view.fetchAll());
    EXPECT_EQ(view.fetchedRows(), 5000);
    EXPECT_EQ(view.value(4999, "TDocNo").toString(), QStringLiteral("R14996"));
    EXPECT_TRUE(view.findChild<QProgressBar*>()->isHidden());

    // Another statement counts afresh.
    open(view, " WHERE TDocNo LIKE 'R14%'");
    EXPECT_EQ(view.totalRows(), -1);
    ASSERT_TRUE(QTest::qWaitFor([&] { return totals.count() > 1; }, 10000));
    EXPECT_EQ(view.totalRows(), 997);
    EXPECT_EQ(view.fetchedRows(), DataViewModel::FirstRows);

    // A view on screen counts once its first screen is painted.
    view.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&view));
    open(view, " WHERE TDocNo LIKE 'R13%'");
    EXPECT_EQ(view.totalRows(), -1);
    ASSERT_TRUE(QTest::qWaitFor([&] { return totals.count() > 2; }, 10000));
    EXPECT_EQ(view.totalRows(), 1000);
}

// A slow count of an older statement comes back after whatever replaced it: it must not
// land, nor hold anything up, nor touch a view that is gone.
TEST_P(DataViewTest, ACountOfAnOlderStatementNeverLands)
{
    addRows(10001, 12500);
    const Sql slowCount("SELECT COUNT(*) FROM QD8TDocList a CROSS JOIN QD8TDocList b");
    QElapsedTimer clock;
    clock.start();
    {
        Connection c;
        c.open(db->connectionString());
        c.query(slowCount);
    }
    const int slowMs = int(clock.elapsed());
    ASSERT_GE(slowMs, 20) << "the slow count is too quick to come back late";
    const Sql select = Sql("SELECT ") + Fields + " FROM QD8TDocList ORDER BY TDocNo, TDocLine";

    enum class Then { OpenAnother, Clear, FailToOpen, Destroy };
    const struct { const char* name; Then then; qint64 total; } cases[] = {
        {"a newer statement", Then::OpenAnother, 4},
        {"clear", Then::Clear, -1},
        {"a failing statement", Then::FailToOpen, -1},
        {"the view closed", Then::Destroy, -1},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        auto view = std::make_unique<DataView>();
        describe(*view);
        QList<qint64> totals;
        QObject::connect(view.get(), &DataView::totalKnown, [&totals](qint64 total) { totals << total; });
        view->open(select, slowCount, db->connectionString());
        EXPECT_EQ(view->totalRows(), -1);  // open() does not wait for the count

        clock.restart();
        switch (c.then) {
        case Then::OpenAnother:
            open(*view, " WHERE TDocNo LIKE 'PR%'");
            break;
        case Then::Clear:
            view->clear();
            break;
        case Then::FailToOpen:
            EXPECT_THROW(view->open(Sql("SELECT NoSuchColumn FROM QD8TDocList"), Sql("SELECT COUNT(*) FROM QD8TDocList"),
                             db->connectionString()),
                DbError);
            break;
        case Then::Destroy:
            view.reset();
            EXPECT_LT(clock.elapsed(), slowMs / 2 + 10);
            break;
        }
        QTest::qWait(2 * slowMs + 300);
        if (!view)
            continue;
        EXPECT_EQ(totals, c.total < 0 ? QList<qint64>{} : QList<qint64>{c.total});
        EXPECT_EQ(view->totalRows(), c.total);
        EXPECT_EQ(view->fetchedRows(), c.total < 0 ? 0 : int(c.total));
    }
}

TEST_P(DataViewTest, KeyTextJoinsTheKeyFieldsOfTheCurrentRow)
{
    const struct { QStringList keys; int row; QString expected; } cases[] = {
        {{"TDocNo"}, 1, "PR0000001"},
        {{"TDocNo", "TDocLine"}, 1, "PR0000001,2"},  // TDocLine is a hidden column
        {{"tdocline", "TDOCNO"}, 3, "1,PR0000003"},
        {{"TDocNo", "TDocName"}, 2, "PR0000002,"},  // NULL reads as ""
        {{"TDocNo"}, -1, ""},
    };
    DataView view;
    describe(view);
    open(view);
    EXPECT_EQ(view.currentRow(), 0);
    for (const auto& c : cases) {
        SCOPED_TRACE(c.keys.join(u',').toStdString() + " row " + std::to_string(c.row));
        view.setKeyFields(c.keys);
        view.setCurrentRow(c.row);
        EXPECT_EQ(view.currentRow(), c.row);
        EXPECT_EQ(view.keyText(), c.expected);
    }
    view.clear();
    EXPECT_EQ(view.keyText(), QString());
}

TEST_P(DataViewTest, BadListsAndFailingStatementsLeaveTheViewEmpty)
{
    DataView view;
    const DbError e = dbErrorOf([&] { view.setColumns(Fields, Captions, QStringLiteral("1500,wide,1200"), Types); });
    EXPECT_EQ(e.kind(), DbError::Kind::Usage);
    EXPECT_TRUE(e.message().contains(QStringLiteral("wide"))) << e.message().toStdString();
    EXPECT_EQ(view.model()->columnCount(), 0);

    describe(view);
    open(view);
    ASSERT_EQ(view.fetchedRows(), 4);
    const struct { const char* name; Sql select; } failing[] = {
        {"an engine error", Sql("SELECT NoSuchColumn FROM QD8TDocList")},
        {"a field the statement lacks", Sql("SELECT TDocNo, TDocLine FROM QD8TDocList")},
    };
    for (const auto& f : failing) {
        SCOPED_TRACE(f.name);
        EXPECT_THROW(view.open(f.select, Sql("SELECT COUNT(*) FROM QD8TDocList"), db->connectionString()), DbError);
        EXPECT_EQ(view.fetchedRows(), 0);
        EXPECT_EQ(view.keyText(), QString());
        open(view);
    }
}

TEST_P(DataViewTest, KeysButtonsAndDoubleClickAskForTheirActions)
{
    addRows(10001, 13000);
    DataView view;
    describe(view);
    view.resize(900, 500);
    view.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&view));
    open(view);
    QStringList asked;
    const std::pair<const char*, void (DataView::*)()> actions[] = {{"add", &DataView::addRequested},
        {"edit", &DataView::editRequested}, {"view", &DataView::viewRequested}, {"delete", &DataView::deleteRequested},
        {"close", &DataView::closeRequested}};
    for (const auto& [name, signal] : actions)
        QObject::connect(&view, signal, [&asked, name = name] { asked << QString::fromLatin1(name); });

    const struct { Qt::Key key; Qt::KeyboardModifiers modifiers; const char* action; } keys[] = {
        {Qt::Key_Insert, Qt::NoModifier, "add"},
        {Qt::Key_Return, Qt::NoModifier, "edit"},
        {Qt::Key_Enter, Qt::KeypadModifier, "edit"},
        {Qt::Key_Space, Qt::NoModifier, "view"},
        {Qt::Key_Delete, Qt::NoModifier, "delete"},
        {Qt::Key_Escape, Qt::NoModifier, "close"},
        {Qt::Key_Delete, Qt::ShiftModifier, ""},
    };
    for (const auto& k : keys) {
        SCOPED_TRACE(k.action);
        asked.clear();
        QTest::keyClick(view.tableView(), k.key, k.modifiers);
        EXPECT_EQ(asked, *k.action ? QStringList{k.action} : QStringList{});
    }

    const struct { const char* objectName; DataView::Button button; const char* action; } buttons[] = {
        {"btnAdd", DataView::Button::Add, "add"},
        {"btnEdit", DataView::Button::Edit, "edit"},
        {"btnView", DataView::Button::View, "view"},
        {"btnDelete", DataView::Button::Delete, "delete"},
        {"btnClose", DataView::Button::Close, "close"},
    };
    for (const auto& b : buttons) {
        SCOPED_TRACE(b.objectName);
        auto* button = view.findChild<QPushButton*>(QLatin1String(b.objectName));
        ASSERT_NE(button, nullptr);
        asked.clear();
        button->click();
        EXPECT_EQ(asked, QStringList{b.action});
        view.setButtonVisible(b.button, false);
        EXPECT_TRUE(button->isHidden());
        view.setButtonVisible(b.button, true);
    }
    view.setButtonCaption(DataView::Button::Delete, QStringLiteral("ลบใบขอซื้อ"));
    EXPECT_EQ(view.findChild<QPushButton*>("btnDelete")->text(), QStringLiteral("ลบใบขอซื้อ"));
    EXPECT_EQ(view.findChild<QPushButton*>("btnDelete")->accessibleName(), QStringLiteral("ลบใบขอซื้อ"));

    asked.clear();
    const QRect cell = view.tableView()->visualRect(view.model()->index(2, 3));
    QTest::mouseClick(view.tableView()->viewport(), Qt::LeftButton, {}, cell.center());  // a double-click follows a press
    QTest::mouseDClick(view.tableView()->viewport(), Qt::LeftButton, {}, cell.center());
    EXPECT_EQ(asked, QStringList{"edit"});
    EXPECT_EQ(view.keyText(), QStringLiteral("PR0000002,1"));

    // Ctrl+End reads every row and goes to the last.
    asked.clear();
    QTest::keyClick(view.tableView(), Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(view.fetchedRows(), 3004);
    EXPECT_EQ(view.currentRow(), 3003);
    EXPECT_EQ(view.keyText(), QStringLiteral("R13000,1"));
    EXPECT_TRUE(asked.isEmpty());
}

TEST_P(DataViewTest, RowColoursComeFromTheCallbackOverTheRowsFields)
{
    DataView view;
    describe(view);
    QStringList unknownFields;
    view.setRowColour([&](const DataRow& row) {
        if (row.hasField("NoSuchField"))
            unknownFields << "NoSuchField";
        if (row.value("tdocdone").isNull())
            return QColor();
        return row.value("TDOCDONE").toInt() == 1 && row.value("TDocAmount").toDouble() > 1000 ? QColor(Qt::green)
                                                                                                 : QColor(Qt::gray);
    });
    open(view);
    const QList<QColor> expected = {QColor(Qt::green), QColor(Qt::gray), QColor(), QColor(Qt::green)};
    for (int row = 0; row < expected.size(); ++row) {
        for (int column : {0, 1, 6}) {
            SCOPED_TRACE(testing::Message() << "row " << row << " column " << column);
            const QVariant background = view.model()->index(row, column).data(Qt::BackgroundRole);
            EXPECT_EQ(background.isValid() ? background.value<QBrush>().color() : QColor(), expected[row]);
        }
    }
    EXPECT_TRUE(unknownFields.isEmpty());

    view.setRowColour({});
    EXPECT_FALSE(view.model()->index(0, 0).data(Qt::BackgroundRole).isValid());
}

QD8_ON_BOTH_ENGINES(DataViewTest);

} // namespace
