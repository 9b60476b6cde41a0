#include "support/ReadBack.h"
#include "support/ScratchDatabase.h"
#include "support/ScriptedServices.h"

#include "foundation/SqlTrace.h"
#include "widgets/PickListDialog.h"
#include "widgets/PickListModel_p.h"
#include "widgets/Twips.h"

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QJsonArray>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

using namespace qd8;
using namespace qd8::test;

namespace {

// Goods in the order of TPiSort: Pencil (2), Notebook (3), Ballpoint Pen (1), Eraser (4);
// item 5 is out of use and has no code.
class PickListTest : public ScratchTableTest {
protected:
    QStringList tableStatements() const override
    {
        return {
            QStringLiteral("CREATE TABLE QD8TPickItem (TPiID INTEGER PRIMARY KEY, TPiCode VARCHAR(20), TPiName VARCHAR(100), "
                           "TPiName2 VARCHAR(100), TPiPrice NUMERIC(19,4), TPiSort INTEGER, TPiFlag1 INTEGER)"),
            QStringLiteral("INSERT INTO QD8TPickItem VALUES (1, 'A001', 'ปากกาลูกลื่น', 'Ballpoint Pen', 12.5, 3, 1)"),
            QStringLiteral("INSERT INTO QD8TPickItem VALUES (2, 'A002', 'ดินสอ', 'Pencil', 5, 1, 1)"),
            QStringLiteral("INSERT INTO QD8TPickItem VALUES (3, 'B001', 'สมุดบันทึก', 'Notebook', 45, 2, 1)"),
            QStringLiteral("INSERT INTO QD8TPickItem VALUES (4, 'B002', 'ยางลบ', 'Eraser', NULL, 5, 1)"),
            QStringLiteral("INSERT INTO QD8TPickItem VALUES (5, NULL, 'กระดาษ A4', 'PAPER a4', 120, 4, 0)"),
        };
    }

    PickRequest goods() const
    {
        PickRequest r;
        r.title = QStringLiteral("เลือกสินค้า");
        r.keyField = QStringLiteral("TPiID");
        r.fieldList = QStringLiteral("TPiID,TPiCode,TPiName,TPiName2,TPiPrice");
        r.captionList = QStringLiteral("ID,รหัส,ชื่อสินค้า,Name,ราคา");
        r.widthList = QStringLiteral("0,1200,3000,2400,1000");
        r.typeList = QStringLiteral("0,0,0,0,");
        r.source = QStringLiteral("QD8TPickItem WHERE TPiFlag1=1 ORDER BY TPiSort");
        r.connectionString = db->connectionString();
        return r;
    }

    static QStringList shownKeys(const PickListModel& model)
    {
        QStringList keys;
        for (int r = 0; r < model.rowCount(); ++r)
            keys << model.keyAt(r);
        return keys;
    }

    static QString selectedKey(const PickListDialog& dialog)
    {
        const QModelIndex current = dialog.view()->currentIndex();
        return current.isValid() && dialog.view()->selectionModel()->isRowSelected(current.row(), {})
            ? dialog.model()->keyAt(current.row())
            : QStringLiteral("<none>");
    }

    // One more row per n in [from, to], coded "R<n>", in the order of their ID.
    void addRows(int from, int to) const
    {
        db->run({QStringLiteral("INSERT INTO QD8TPickItem (TPiID, TPiCode, TPiName, TPiSort, TPiFlag1) "
                                "WITH RECURSIVE g(n) AS (SELECT %1 UNION ALL SELECT n + 1 FROM g WHERE n < %2) "
                                "SELECT n, 'R' || n, 'รายการ ' || n, n, 1 FROM g")
                     .arg(from)
                     .arg(to)});
    }
};

TEST_P(PickListTest, ShowsTheDescribedColumnsInTheSourcesOrder)
{
    SqlTrace::Recorder trace;
    PickListDialog dialog(goods());
    ASSERT_EQ(dialog.errorText(), QString());
    EXPECT_EQ(trace.composed(),
        QStringList{QStringLiteral("SELECT TPiID,TPiCode,TPiName,TPiName2,TPiPrice FROM QD8TPickItem WHERE TPiFlag1=1 ORDER BY TPiSort")});
    EXPECT_EQ(dialog.windowTitle(), QStringLiteral("เลือกสินค้า"));

    const PickListModel& model = *dialog.model();
    const QStringList captions = {"ID", "รหัส", "ชื่อสินค้า", "Name", "ราคา"};
    const QList<int> twips = {0, 1200, 3000, 2400, 1000};
    ASSERT_EQ(model.columnCount(), 5);
    for (int c = 0; c < 5; ++c) {
        SCOPED_TRACE(c);
        EXPECT_EQ(model.headerData(c, Qt::Horizontal).toString(), captions[c]);
        EXPECT_EQ(dialog.view()->isColumnHidden(c), c == 0);
        if (c > 0 && c < 4) {  // the last one stretches
            EXPECT_EQ(dialog.view()->columnWidth(c), twipsToPixels(twips[c], &dialog));
        }
    }

    // The hidden key column still holds its value; rows keep the ORDER BY.
    EXPECT_EQ(shownKeys(model), (QStringList{"2", "3", "1", "4"}));
    EXPECT_EQ(model.index(2, 2).data().toString(), QStringLiteral("ปากกาลูกลื่น"));
    EXPECT_EQ(model.index(2, 4).data().toDouble(), 12.5);
    EXPECT_EQ(model.index(3, 4).data().toString(), QString());  // NULL price

    // Type "0" is text, anything else a number.
    for (const auto& [column, alignment] : {std::pair{2, Qt::AlignLeft}, std::pair{4, Qt::AlignRight}})
        EXPECT_EQ(model.index(0, column).data(Qt::TextAlignmentRole).value<Qt::Alignment>() & Qt::AlignHorizontal_Mask, alignment);

    // Opens on the first row with the search box focused; self-sized to its columns.
    EXPECT_EQ(selectedKey(dialog), QStringLiteral("2"));
    EXPECT_EQ(dialog.focusWidget(), dialog.searchBox());
    EXPECT_GE(dialog.width(), twipsToPixels(1200 + 3000 + 2400 + 1000, &dialog));

    PickRequest wide = goods();
    wide.dialogWidth = 10200;
    PickListDialog sized(wide);
    EXPECT_EQ(sized.width(), twipsToPixels(10200, &sized));
}

TEST_P(PickListTest, TypingFiltersTheShownTextColumns)
{
    PickListDialog dialog(goods());
    dialog.show();
    QAbstractItemModelTester tester(dialog.model(), QAbstractItemModelTester::FailureReportingMode::Fatal);

    // The search box's whole text, in sequence: narrowing, widening again and starting over.
    const struct { const char* typed; QStringList keys; } cases[] = {
        {"pen", {"2", "1"}},          // "Pencil", "Ballpoint Pen", in the source's order
        {"PENC", {"2"}},              // Latin letters without regard to case
        {"pen", {"2", "1"}},          // back to the wider search
        {"ดินสอ", {"2"}},
        {"สอ", {"2"}},                // a Thai substring
        {"ลบ", {"4"}},
        {"a00", {"2", "1"}},          // the code column
        {"0", {"2", "3", "1", "4"}},  // each row once, however often it holds the text
        {"1ปาก", {}},                 // never across two cells (code "A001" then "ปากกา...")
        {"12.5", {}},                 // a number column is not searched
        {"3", {}},                    // nor is the hidden key
        {"กระดาษ", {}},               // nor rows the source leaves out
        {"", {"2", "3", "1", "4"}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.typed);
        dialog.searchBox()->setText(QString::fromUtf8(c.typed));
        EXPECT_EQ(shownKeys(*dialog.model()), c.keys);
        EXPECT_EQ(selectedKey(dialog), c.keys.value(0, QStringLiteral("<none>")));
        EXPECT_EQ(dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->isEnabled(), !c.keys.isEmpty());
    }

    // Key by key, as a user types.
    dialog.searchBox()->clear();
    typeText(dialog.searchBox(), QStringLiteral("not"));
    EXPECT_EQ(shownKeys(*dialog.model()), QStringList{"3"});
}

TEST_P(PickListTest, KeysPickAndCancel)
{
    const struct {
        const char* name;
        std::function<void(PickListDialog&)> act;
        QDialog::DialogCode result;
        QString key;
        bool staysOpen = false;
    } cases[] = {
        {"Enter picks the first row", [](PickListDialog& d) { QTest::keyClick(d.searchBox(), Qt::Key_Return); }, QDialog::Accepted, "2"},
        {"Down then Enter in the search box",
            [](PickListDialog& d) {
                QTest::keyClick(d.searchBox(), Qt::Key_Down);
                QTest::keyClick(d.searchBox(), Qt::Key_Down);
                QTest::keyClick(d.searchBox(), Qt::Key_Up);
                QTest::keyClick(d.searchBox(), Qt::Key_Enter);
            },
            QDialog::Accepted, "3"},
        {"Enter on a search's first match",
            [](PickListDialog& d) {
                typeText(d.searchBox(), QStringLiteral("ยาง"));
                QTest::keyClick(d.searchBox(), Qt::Key_Return);
            },
            QDialog::Accepted, "4"},
        {"Enter in the grid",
            [](PickListDialog& d) {
                d.view()->setFocus();
                QTest::keyClick(d.view(), Qt::Key_End, Qt::ControlModifier);
                QTest::keyClick(d.view(), Qt::Key_Return);
            },
            QDialog::Accepted, "4"},
        {"double-click",
            [](PickListDialog& d) {
                const QRect cell = d.view()->visualRect(d.model()->index(2, 2));
                // As a window system delivers it: a click, then the double-click.
                QTest::mouseClick(d.view()->viewport(), Qt::LeftButton, {}, cell.center());
                QTest::mouseDClick(d.view()->viewport(), Qt::LeftButton, {}, cell.center());
            },
            QDialog::Accepted, "1"},
        {"Esc cancels",
            [](PickListDialog& d) {
                QTest::keyClick(d.searchBox(), Qt::Key_Down);
                QTest::keyClick(d.searchBox(), Qt::Key_Escape);
            },
            QDialog::Rejected, ""},
        {"Enter with nothing matching stays",
            [](PickListDialog& d) {
                typeText(d.searchBox(), QStringLiteral("zzz"));
                QTest::keyClick(d.searchBox(), Qt::Key_Return);
            },
            QDialog::Rejected, "", true},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        PickListDialog dialog(goods());
        dialog.open();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&dialog));
        c.act(dialog);
        EXPECT_EQ(dialog.result(), c.result);
        EXPECT_EQ(dialog.isVisible(), c.staysOpen);
        EXPECT_EQ(dialog.pickedKey(), c.key);
    }
}

TEST_P(PickListTest, PickRunsModallyAndReturnsTheKeyAsText)
{
    // The code column as key: text, and "" for the row whose code is NULL.
    PickRequest request = goods();
    request.keyField = QStringLiteral("tpicode");  // found without regard to case
    request.source = QStringLiteral("QD8TPickItem ORDER BY TPiSort");

    const auto answer = [](std::function<void(PickListDialog&)> keys) {
        QTimer::singleShot(0, [keys] {
            auto* dialog = qobject_cast<PickListDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            keys(*dialog);
        });
    };
    // Typed text, then the key; the text picked.
    for (const auto& [typed, key, picked] : {std::tuple{"note", Qt::Key_Return, "B001"}, std::tuple{"กระดาษ", Qt::Key_Return, ""},
             std::tuple{"", Qt::Key_Escape, ""}}) {
        answer([typed = typed, key = key](PickListDialog& d) {
            typeText(d.searchBox(), QString::fromUtf8(typed));
            QTest::keyClick(d.searchBox(), key);
        });
        EXPECT_EQ(PickListDialog::pick(request), QString::fromUtf8(picked)) << typed;
    }
}

TEST_P(PickListTest, BadRequestsShowTheirReasonInsideTheDialog)
{
    const struct {
        const char* name;
        std::function<void(PickRequest&)> change;
        QString mentions;  // lower case
        int rows;          // rows still listed
    } cases[] = {
        {"fewer captions than fields", [](PickRequest& r) { r.captionList = QStringLiteral("ID,รหัส"); }, "caption list", 0},
        {"fewer types than fields", [](PickRequest& r) { r.typeList = QStringLiteral("0,0"); }, "type list", 0},
        {"a width that is no number", [](PickRequest& r) { r.widthList = QStringLiteral("0,12x0,3000,2400,1000"); }, "12x0", 0},
        {"no fields", [](PickRequest& r) { r.fieldList.clear(); }, "no fields", 0},
        {"a key field not listed", [](PickRequest& r) { r.keyField = QStringLiteral("TPiSort"); }, "tpisort", 0},
        {"a source the engine refuses", [](PickRequest& r) { r.source = QStringLiteral("QD8TNoSuchTable"); }, "qd8tnosuchtable", 0},
        {"a field the engine refuses", [](PickRequest& r) { r.fieldList.replace("TPiName2", "TPiNope"); }, "tpinope", 0},
        {"no connection string", [](PickRequest& r) { r.connectionString.clear(); }, "connection string", 0},
        // More captions than fields, as the remove-a-user-command list asks: still listed.
        {"surplus captions", [](PickRequest& r) { r.captionList += QStringLiteral(",เกิน"); }, "ignored", 4},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        PickRequest request = goods();
        c.change(request);
        PickListDialog dialog(request);
        dialog.open();
        EXPECT_TRUE(dialog.errorText().toLower().contains(c.mentions)) << dialog.errorText().toStdString();
        const auto labels = dialog.findChildren<QLabel*>();
        EXPECT_TRUE(std::any_of(labels.begin(), labels.end(), [&](QLabel* l) { return l->isVisible() && l->text() == dialog.errorText(); }));
        EXPECT_EQ(dialog.model()->rowCount(), c.rows);

        typeText(dialog.searchBox(), QStringLiteral("a"));
        QTest::keyClick(dialog.searchBox(), Qt::Key_Return);
        EXPECT_EQ(dialog.isVisible(), c.rows == 0);
        QTest::keyClick(dialog.searchBox(), Qt::Key_Escape);
        EXPECT_FALSE(dialog.isVisible());
    }
}

TEST_P(PickListTest, ALabelListColumnShowsTheLabelOfEachStoredCode)
{
    // The sort number as a label list (code;label, or a bare label coded by its position),
    // the way a LABELLIST column of a quick form reaches the pick list.
    PickRequest request = goods();
    request.fieldList = QStringLiteral("TPiID,TPiCode,TPiSort");
    request.captionList = QStringLiteral("ID,รหัส,ลำดับ");
    request.widthList = QStringLiteral("0,1200,2000");
    request.typeList = QStringLiteral("0,0,13");
    const struct {
        const char* name;
        QStringList labelLists;
        QStringList shown;  // the third column, rows in TPiSort order
    } cases[] = {
        {"codes named", {"", "", "1;หนึ่ง,2;สอง,3;สาม,4;สี่,5;ห้า"}, {"หนึ่ง", "สอง", "สาม", "ห้า"}},
        {"codes by position; a code the list lacks shows itself", {"", "", "ศูนย์,หนึ่ง,สอง"}, {"หนึ่ง", "สอง", "3", "5"}},
        {"no label lists", {}, {"1", "2", "3", "5"}},
        {"fewer label lists than fields", {""}, {"1", "2", "3", "5"}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        request.labelLists = c.labelLists;
        PickListDialog dialog(request);
        ASSERT_EQ(dialog.errorText(), QString());
        const PickListModel& model = *dialog.model();
        QStringList shown;
        for (int r = 0; r < model.rowCount(); ++r) {
            shown << model.index(r, 2).data().toString();
            EXPECT_EQ(model.shownText(r, 2), shown.last());
        }
        EXPECT_EQ(shown, c.shown);
        EXPECT_EQ(shownKeys(model), (QStringList{"2", "3", "1", "4"}));  // the key is picked as stored
    }

    // Labels are text: searched and aligned as text.
    request.labelLists = cases[0].labelLists;
    PickListDialog dialog(request);
    EXPECT_EQ(dialog.model()->index(0, 2).data(Qt::TextAlignmentRole).value<Qt::Alignment>() & Qt::AlignHorizontal_Mask, Qt::AlignLeft);
    dialog.searchBox()->setText(QStringLiteral("สาม"));
    EXPECT_EQ(shownKeys(*dialog.model()), QStringList{"1"});

    // More label lists than fields are ignored, and said so.
    request.labelLists << QStringLiteral("x;y");
    PickListDialog surplus(request);
    EXPECT_TRUE(surplus.errorText().contains(QStringLiteral("ignored"))) << surplus.errorText().toStdString();
    EXPECT_EQ(surplus.model()->rowCount(), 4);
}

TEST_P(PickListTest, ListsWrittenForOneFieldMayBeOneEmptyEntry)
{
    // A lone numeric field: its type list is "" (one empty entry), and so may its caption be.
    PickRequest request = goods();
    request.keyField = QStringLiteral("TPiPrice");
    request.fieldList = QStringLiteral("TPiPrice");
    request.captionList.clear();
    request.widthList = QStringLiteral("1500");
    request.typeList.clear();
    PickListDialog dialog(request);
    EXPECT_EQ(dialog.errorText(), QString());
    ASSERT_EQ(dialog.model()->rowCount(), 4);
    EXPECT_FALSE(dialog.view()->isColumnHidden(0));
    EXPECT_EQ(dialog.model()->index(0, 0).data(Qt::TextAlignmentRole).value<Qt::Alignment>() & Qt::AlignHorizontal_Mask, Qt::AlignRight);
    // A list of numbers only searches the numbers it shows.
    dialog.searchBox()->setText(QStringLiteral("45"));
    EXPECT_EQ(shownKeys(*dialog.model()), QStringList{"45"});
}

TEST_P(PickListTest, BigSourcesAreReadAScreenAtATime)
{
    addRows(100, 5099);  // 5,004 rows in use, coded "R<n>"
    PickRequest request = goods();
    request.keyField = QStringLiteral("TPiCode");
    request.source = QStringLiteral("QD8TPickItem WHERE TPiFlag1=1 ORDER BY TPiSort DESC");

    PickListModel model;
    model.load(request);
    EXPECT_EQ(model.rowCount(), PickListModel::FirstRows);
    ASSERT_TRUE(model.canFetchMore({}));
    EXPECT_EQ(model.keyAt(0), QStringLiteral("R5099"));
    model.fetchMore({});
    EXPECT_EQ(model.rowCount(), PickListModel::FirstRows + PickListModel::BatchRows);
    EXPECT_EQ(model.keyAt(PickListModel::FirstRows + PickListModel::BatchRows - 1), QStringLiteral("R4000"));

    // Watched from here on (the tester fetches more itself, also from inside modelReset
    // before it counts the reset as finished, so it cannot watch load()).
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    ASSERT_TRUE(model.canFetchMore({}));
    model.fetchMore({});

    // A search reads the rest, keeps the DESC order and needs no more fetching.
    model.setSearchText(QStringLiteral("r49"));
    QStringList expected;
    for (int n = 5099; n >= 100; --n) {
        const QString code = QStringLiteral("R%1").arg(n);
        if (code.startsWith(QLatin1String("R49")))
            expected << code;
    }
    EXPECT_EQ(shownKeys(model), expected);
    EXPECT_TRUE(model.isComplete() && !model.canFetchMore({}));
    model.setSearchText(QStringLiteral("r4999"));
    EXPECT_EQ(shownKeys(model), QStringList{"R4999"});
    model.setSearchText(QStringLiteral("รายการ 100"));
    EXPECT_EQ(shownKeys(model), (QStringList{"R1009", "R1008", "R1007", "R1006", "R1005", "R1004", "R1003", "R1002", "R1001",
                                    "R1000", "R100"}));
    model.setSearchText(QString());
    EXPECT_EQ(model.rowCount(), 5004);
    EXPECT_EQ(model.keyAt(5003), QStringLiteral("A002"));

    // The dialog shows its first screen from the first rows; scrolling to the end reads on.
    PickListDialog dialog(request);
    dialog.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&dialog));
    QTest::qWait(50);
    EXPECT_EQ(dialog.model()->rowCount(), PickListModel::FirstRows);
    dialog.view()->scrollToBottom();
    EXPECT_TRUE(QTest::qWaitFor([&] { return dialog.model()->rowCount() > PickListModel::FirstRows; }));
    QTest::keyClick(dialog.searchBox(), Qt::Key_PageDown);
    EXPECT_NE(selectedKey(dialog), QStringLiteral("R5099"));
}

// An export writes every row the list keeps, not only the screen read so far, in the shown
// columns, prices as numbers and a missing price as an empty cell.
TEST_P(PickListTest, ExportWritesEveryKeptRowTyped)
{
    addRows(100, 349);  // 250 more rows in use than the first screen's 100
    QTemporaryDir folder;
    const QString file = folder.filePath("goods.xlsx");
    for (const QString& search : {QString(), QStringLiteral("b00")}) {
        SCOPED_TRACE(search.toStdString());
        PickListDialog dialog(goods());
        dialog.show();
        dialog.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
        dialog.searchBox()->setText(search);
        scriptedPicker().fileAnswers = {file};
        QTest::keyClick(&dialog, Qt::Key_E, Qt::ControlModifier | Qt::ShiftModifier);
        const QJsonArray rows = readWorkbook(file);
        ASSERT_EQ(rows.size(), 1 + dialog.model()->rowCount() + 1);  // header, rows, frozen pane
        EXPECT_EQ(rows.size(), search.isEmpty() ? 1 + 254 + 1 : 1 + 2 + 1);
        EXPECT_EQ(rows[0].toArray().size(), 4);  // the hidden ID column stays out
        if (!search.isEmpty()) {
            EXPECT_EQ(rows[1].toArray()[3].toArray()[1].toString(), "45");
            EXPECT_NE(rows[1].toArray()[3].toArray()[0].toString(), "str");  // a number, not its text
            EXPECT_EQ(rows[2].toArray()[1].toArray()[1].toString(), "ยางลบ");
            EXPECT_EQ(rows[2].toArray()[3].toArray()[0].toString(), "NoneType");
        }
    }
}

TEST_P(PickListTest, EveryWidgetHasAnAccessibleName)
{
    PickListDialog dialog(goods());
    EXPECT_FALSE(dialog.accessibleName().isEmpty());
    int reachable = 0;
    for (QWidget* w : dialog.findChildren<QWidget*>()) {
        if (!qobject_cast<QLabel*>(w) && !qobject_cast<QLineEdit*>(w) && !qobject_cast<QAbstractButton*>(w)
            && !qobject_cast<QTableView*>(w) && !qobject_cast<QDialogButtonBox*>(w))
            continue;
        ++reachable;
        // The parts Qt builds into the line edit and the table are left out.
        EXPECT_TRUE(dialog.searchBox()->isAncestorOf(w) || dialog.view()->isAncestorOf(w) || !w->accessibleName().isEmpty())
            << w->metaObject()->className();
    }
    EXPECT_GE(reachable, 6);
}

QD8_ON_BOTH_ENGINES(PickListTest);

} // namespace
