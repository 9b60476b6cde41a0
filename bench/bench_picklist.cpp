// The pick-list dialog on a 100,000-row SQLite source: time to its first screen against the
// sqlite3 C API reading the first 100 rows of the same query, against a plain Qt table
// showing those rows, and against the same dialog on 1,000 rows; then one keystroke's
// search over the 100,000 loaded rows against a plain contains() filter of the same texts,
// and the first search of a dialog that has read only its first screen.
#include "BenchSupport.h"

#include "foundation/Connection.h"
#include "foundation/PickRequest.h"
#include "widgets/PickListDialog.h"
#include "widgets/PickListModel_p.h"

#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QLineEdit>
#include <QStandardItemModel>
#include <QTableView>
#include <QVBoxLayout>
#include <sqlite3.h>

using namespace qd8;
using namespace qd8::bench;

namespace {

constexpr int BigRows = 100000;
constexpr int SmallRows = 1000;
const QString Fields = QStringLiteral("TBiID,TBiCode,TBiName,TBiName2,TBiPrice");
std::unique_ptr<BenchDatabase> sqliteDb;

void fill(const BenchDatabase& db, const QString& table, int rows)
{
    Connection c;
    c.open(db.connectionString());
    c.execute(Sql(QStringLiteral("CREATE TABLE %1 (TBiID INTEGER PRIMARY KEY, TBiCode VARCHAR(20), TBiName VARCHAR(100) COLLATE THAI, "
                                 "TBiName2 VARCHAR(100), TBiPrice NUMERIC(19,4), TBiSort INTEGER, TBiFlag1 INTEGER)")
                      .arg(table)));
    c.execute(Sql(QStringLiteral("CREATE INDEX %1Sort ON %1 (TBiSort)").arg(table)));
    c.execute(Sql(QStringLiteral("INSERT INTO %1 WITH RECURSIVE g(n) AS (SELECT 1 UNION ALL SELECT n + 1 FROM g WHERE n < %2) "
                                 "SELECT n, 'P' || n, 'สินค้า บริษัท ไทยรุ่งเรือง รุ่น ' || n, 'Thai Rung Ruang product ' || n, "
                                 "round(n * 1.25, 2), n, 1 FROM g")
                      .arg(table)
                      .arg(rows)));
}

PickRequest request(const QString& table)
{
    PickRequest r;
    r.title = QStringLiteral("เลือกสินค้า");
    r.keyField = QStringLiteral("TBiID");
    r.fieldList = Fields;
    r.captionList = QStringLiteral("ID,รหัส,ชื่อสินค้า,Name,ราคา");
    r.widthList = QStringLiteral("0,1200,3600,3000,1200");
    r.typeList = QStringLiteral("0,0,0,0,");
    r.source = table + QStringLiteral(" WHERE TBiFlag1=1 ORDER BY TBiSort");
    r.connectionString = sqliteDb->connectionString();
    return r;
}

QString selectOf(const QString& table)
{
    return QStringLiteral("SELECT ") + Fields + QStringLiteral(" FROM ") + request(table).source;
}

// The first `rows` rows of the query, every cell as a QString.
QList<QStringList> readRaw(sqlite3* handle, const QByteArray& sql, int rows)
{
    QList<QStringList> result;
    sqlite3_stmt* stmt = nullptr;
    sqlite3_prepare_v2(handle, sql.constData(), int(sql.size()), &stmt, nullptr);
    const int columns = sqlite3_column_count(stmt);
    while ((rows < 0 || result.size() < rows) && sqlite3_step(stmt) == SQLITE_ROW) {
        QStringList cells;
        cells.reserve(columns);
        for (int c = 0; c < columns; ++c)
            cells.append(QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(stmt, c)), sqlite3_column_bytes(stmt, c)));
        result.append(cells);
    }
    sqlite3_finalize(stmt);
    return result;
}

void rawFirstRows(benchmark::State& state)
{
    sqlite3* handle = nullptr;
    sqlite3_open_v2(sqliteDb->name().toUtf8().constData(), &handle, SQLITE_OPEN_READONLY, nullptr);
    const QByteArray sql = selectOf(QStringLiteral("QD8TBenchItem")).toUtf8();
    for (auto _ : state)
        benchmark::DoNotOptimize(readRaw(handle, sql, int(PickListModel::FirstRows)).size());
    sqlite3_close(handle);
}

void dialogFirstScreen(benchmark::State& state, const QString& table)
{
    const PickRequest r = request(table);
    for (auto _ : state) {
        PickListDialog dialog(r);
        dialog.show();
        benchmark::DoNotOptimize(dialog.grab().width());
        if (!dialog.errorText().isEmpty())
            state.SkipWithError(qPrintable(dialog.errorText()));
    }
}

// What Qt needs at least for the same screen: a dialog with a table over 100 ready rows.
void plainTableFirstScreen(benchmark::State& state)
{
    sqlite3* handle = nullptr;
    sqlite3_open_v2(sqliteDb->name().toUtf8().constData(), &handle, SQLITE_OPEN_READONLY, nullptr);
    const QByteArray sql = selectOf(QStringLiteral("QD8TBenchItem")).toUtf8();
    for (auto _ : state) {
        const QList<QStringList> rows = readRaw(handle, sql, int(PickListModel::FirstRows));
        QDialog dialog;
        auto* view = new QTableView(&dialog);
        auto* model = new QStandardItemModel(int(rows.size()), 5, view);
        for (int r = 0; r < rows.size(); ++r)
            for (int c = 0; c < 5; ++c)
                model->setItem(r, c, new QStandardItem(rows[r][c]));
        view->setModel(model);
        view->setColumnHidden(0, true);
        (new QVBoxLayout(&dialog))->addWidget(view);
        dialog.resize(640, 440);
        dialog.show();
        benchmark::DoNotOptimize(dialog.grab().width());
    }
    sqlite3_close(handle);
}

void sendKey(QWidget* widget, int key, const QString& text)
{
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
    QApplication::sendEvent(widget, &press);
    QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, text);
    QApplication::sendEvent(widget, &release);
}

// One keystroke in the search box of a dialog whose 100,000 rows are read: the filter,
// the reset of the grid and the repaint of its visible rows.
void keystroke(benchmark::State& state, const QString& before, int key, const QString& typed)
{
    PickListDialog dialog(request(QStringLiteral("QD8TBenchItem")));
    dialog.show();
    dialog.model()->fetchAll();
    QLineEdit* search = dialog.searchBox();
    for (auto _ : state) {
        state.PauseTiming();
        search->setText(before);
        state.ResumeTiming();
        sendKey(search, key, typed);
        dialog.view()->viewport()->repaint();
    }
    state.counters["matches"] = dialog.model()->rowCount();
}

// The first keystroke on a dialog that has shown only its first screen: the search reads
// the other rows and indexes them once.
void firstSearchOnUnreadRows(benchmark::State& state)
{
    const PickRequest r = request(QStringLiteral("QD8TBenchItem"));
    for (auto _ : state) {
        state.PauseTiming();
        auto dialog = std::make_unique<PickListDialog>(r);
        dialog->show();
        state.ResumeTiming();
        sendKey(dialog->searchBox(), Qt::Key_7, QStringLiteral("7"));
        dialog->view()->viewport()->repaint();
        state.PauseTiming();
        dialog.reset();
        state.ResumeTiming();
    }
}

void rawAllRows(benchmark::State& state)
{
    sqlite3* handle = nullptr;
    sqlite3_open_v2(sqliteDb->name().toUtf8().constData(), &handle, SQLITE_OPEN_READONLY, nullptr);
    const QByteArray sql = selectOf(QStringLiteral("QD8TBenchItem")).toUtf8();
    for (auto _ : state)
        benchmark::DoNotOptimize(readRaw(handle, sql, -1).size());
    sqlite3_close(handle);
}

// A plain in-memory filter: the shown text cells of every row, contains() without case.
void plainFilter(benchmark::State& state, const QString& needle)
{
    sqlite3* handle = nullptr;
    sqlite3_open_v2(sqliteDb->name().toUtf8().constData(), &handle, SQLITE_OPEN_READONLY, nullptr);
    const QList<QStringList> rows = readRaw(handle, selectOf(QStringLiteral("QD8TBenchItem")).toUtf8(), -1);
    sqlite3_close(handle);
    for (auto _ : state) {
        QList<int> matches;
        for (int r = 0; r < rows.size(); ++r) {
            const QStringList& cells = rows[r];
            if (cells[1].contains(needle, Qt::CaseInsensitive) || cells[2].contains(needle, Qt::CaseInsensitive)
                || cells[3].contains(needle, Qt::CaseInsensitive))
                matches.append(r);
        }
        benchmark::DoNotOptimize(matches.size());
    }
}

} // namespace

int main(int argc, char** argv)
{
    useOffscreenPlatform();
    QApplication app(argc, argv);
    quietOffscreenWarnings();
    sqliteDb = BenchDatabase::sqlite();
    fill(*sqliteDb, QStringLiteral("QD8TBenchItem"), BigRows);
    fill(*sqliteDb, QStringLiteral("QD8TBenchSmall"), SmallRows);

    const auto ms = [](benchmark::internal::Benchmark* b) { b->Unit(benchmark::kMillisecond)->Repetitions(3); };
    ms(benchmark::RegisterBenchmark("sqlite/raw_first_100_rows", rawFirstRows));
    ms(benchmark::RegisterBenchmark("qt/plain_table_first_screen", plainTableFirstScreen));
    ms(benchmark::RegisterBenchmark("picklist/first_screen_100000", dialogFirstScreen, QStringLiteral("QD8TBenchItem")));
    ms(benchmark::RegisterBenchmark("picklist/first_screen_1000", dialogFirstScreen, QStringLiteral("QD8TBenchSmall")));
    ms(benchmark::RegisterBenchmark("picklist/first_key_7", keystroke, QString(), int(Qt::Key_7), QStringLiteral("7")));
    ms(benchmark::RegisterBenchmark("picklist/narrowing_key", keystroke, QStringLiteral("รุ่น 77"), int(Qt::Key_7), QStringLiteral("7")));
    ms(benchmark::RegisterBenchmark("picklist/backspace_key", keystroke, QStringLiteral("รุ่น 777"), int(Qt::Key_Backspace), QString()));
    ms(benchmark::RegisterBenchmark("picklist/first_key_on_unread_rows", firstSearchOnUnreadRows));
    ms(benchmark::RegisterBenchmark("sqlite/raw_all_rows", rawAllRows));
    ms(benchmark::RegisterBenchmark("plain/contains_7", plainFilter, QStringLiteral("7")));
    ms(benchmark::RegisterBenchmark("plain/contains_thai", plainFilter, QStringLiteral("รุ่น 77")));

    const std::vector<Ratio> ratios = {
        {"SQLite 100000 rows, dialog to first screen vs raw C API reading 100 rows", "picklist/first_screen_100000",
            "sqlite/raw_first_100_rows", 60.0},
        {"SQLite 100000 rows, dialog to first screen vs plain QTableView over 100 read rows", "picklist/first_screen_100000",
            "qt/plain_table_first_screen", 1.5},
        {"Dialog to first screen, 100000 rows vs 1000 rows", "picklist/first_screen_100000", "picklist/first_screen_1000", 1.3},
        {"Search, first keystroke \"7\" on 100000 rows (ms) vs plain contains() filter", "picklist/first_key_7", "plain/contains_7", 1.0},
        {"Search, keystroke narrowing \"รุ่น 77\" to \"รุ่น 777\" vs plain filter of \"รุ่น 77\"", "picklist/narrowing_key",
            "plain/contains_thai", 1.0},
        {"Search, backspace widening \"รุ่น 777\" to \"รุ่น 77\" vs plain filter of \"รุ่น 77\"", "picklist/backspace_key",
            "plain/contains_thai", 1.0},
        {"Search, first keystroke while only the first screen is read, vs raw C API reading all 100000 rows",
            "picklist/first_key_on_unread_rows", "sqlite/raw_all_rows", 2.0},
    };
    const int rc = runAndReport(argc, argv, ratios);
    sqliteDb.reset();
    return rc;
}
