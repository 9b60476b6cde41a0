#pragma once

#include "foundation/DateText.h"
#include "foundation/Sql.h"
#include "foundation/TableExport.h"

#include <QColor>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QWidget>
#include <functional>
#include <memory>

class QTableView;

namespace qd8 {

class DataViewModel;


// The row a colour callback looks at: a value of the row by field name (found without
// regard to case; an invalid QVariant when the SELECT has no such column).
class DataRow {
public:
    virtual ~DataRow() = default;
    virtual QVariant value(const QString& field) const = 0;
    virtual bool hasField(const QString& field) const = 0;
};

// The read-only grid of a document or master list. Columns come from the suite's four
// positional lists (fields, captions, widths in twips, type codes) and a row height; rows
// come from one SELECT read a screen at a time through a forward cursor, so a million rows
// show their first screen as fast as a thousand. The total is counted by a statement of its
// own on another connection while the first screen shows, never taken from the rows read.
// Sorting and filtering belong to the SELECT the list composes.
//
// Keys: Insert adds, Enter edits, Space views, Delete deletes, Esc closes; a double-click
// edits. Ctrl+End reads every row and goes to the last, with a progress display.
class DataView : public QWidget {
    Q_OBJECT

public:
    enum class Button { Add, Edit, View, Delete, Close };

    explicit DataView(QWidget* parent = nullptr);
    ~DataView() override;

    // Sets the columns. Throws DbError (kind Usage) when a width is not a number; surplus
    // entries of the caption/width/type lists are ignored, missing ones read as ""/0/"0".
    void setColumns(const QString& fieldList, const QString& captionList, const QString& widthList,
        const QString& typeList, int rowHeightTwips = 0);
    // The fields whose values make a row's key text (PrimaryKeyList), joined by ",".
    void setKeyFields(const QStringList& fields);

    // Runs `select` on the connection and shows its first screen; `count` (a SELECT COUNT(*)
    // of the same rows) gives the total, read in the background on a connection of its own
    // once the first screen is painted (an empty `count` leaves the total unknown). Throws
    // DbError when the SELECT fails or lacks a listed field; the view is then empty.
    void open(const Sql& select, const Sql& count, const QString& connectionString);
    // Empties the view and forgets the statement.
    void clear();

    // -1 until the count has come back.
    qint64 totalRows() const;
    // Rows read so far.
    int fetchedRows() const;
    // Reads every remaining row, showing progress; false when the reading failed.
    bool fetchAll();

    int currentRow() const;
    void setCurrentRow(int row);
    // The key text of the current row: the key fields' values joined by ","; "" with no row.
    QString keyText() const;
    QVariant value(int row, const QString& field) const;

    // Called for every painted row; an invalid colour leaves the row uncoloured.
    void setRowColour(std::function<QColor(const DataRow&)> colour);
    // Dates in the user's era (DbSessionFunctions::userDateLook); Gregorian until set.
    void setDateLook(const DateLook& look);

    // Writes every row of the statement in force (its filter included, not only the rows read
    // so far) to a workbook or, for a ".csv" name, a CSV file: the shown columns under their
    // captions, numbers and dates typed. Progress shows and Cancel leaves no file; false when
    // cancelled or failed (the reason told through the message service).
    bool exportRows(const QString& fileName);
    // Asks for the file name through the picker service, then exportRows(). The Export
    // button, the context menu and Ctrl+Shift+E (workbook) offer it.
    bool exportAs(TableExport::Format format);

    void setButtonVisible(Button button, bool visible);
    void setButtonCaption(Button button, const QString& caption);

    QTableView* tableView() const;
    DataViewModel* model() const;

signals:
    void addRequested();
    void editRequested();
    void viewRequested();
    void deleteRequested();
    void closeRequested();
    // The background count has come back (-1 when it failed).
    void totalKnown(qint64 total);
    // Reading rows failed after the first screen; the rows read stay.
    void fetchFailed(const QString& message);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace qd8
