#pragma once

#include "widgets/GridColumn.h"

#include <QAbstractTableModel>
#include <QList>
#include <QMap>
#include <QStringList>

#include <functional>

namespace qd8 {

// The cells of the editing grid and what was done to them since the rows were loaded.
// Every row keeps its buffered edit: whether it was added in the grid, changed or marked for
// deletion, and the stored text each changed cell had before its first change. The row's
// change mark ("E" added or changed, "D" marked for deletion, "" untouched) is shown in the
// vertical header; the host writes the marked rows in one transaction and then accepts.
//
// setData() is the user's way in (through the view and its editors): typed text is checked
// against the column type and then offered to the validator, which may refuse it. Code
// changes cells with setText()/setValue(), which take the value as given. The two raise
// different signals.
class GridEditorModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Role {
        ValueRole = Qt::UserRole + 1,  // the value (GetValue); written by an editor that picks a value
        StoredRole                     // the stored text
    };

    enum class RowOperation { None, Insert, Update };

    struct RowEdit {
        RowOperation operation = RowOperation::None;
        bool deleted = false;
        QMap<int, QString> original;  // column -> stored text before its first change
    };

    // Gets the row, the column (both from 0) and the value about to be taken; returns the
    // message to show when the value is refused, "" to take it.
    using Validator = std::function<QString(int row, int column, const QVariant& value)>;

    explicit GridEditorModel(QObject* parent = nullptr);
    ~GridEditorModel() override;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    // Inserted rows are new rows: marked "E" and editable in every column that lets new
    // rows be filled. Removed rows are gone without a mark (use markDeleted for "D").
    bool insertRows(int row, int count, const QModelIndex& parent = {}) override;
    bool removeRows(int row, int count, const QModelIndex& parent = {}) override;

    void clear();
    void clearRows();
    int appendColumn(const GridColumn& column);
    const GridColumn& column(int column) const;
    void setCaption(int column, const QString& caption);
    // The column a cell follows: its own format when one was set, else its column's.
    const GridColumn& cellColumn(int row, int column) const;
    // Gives one cell a type of its own (type, decimals and labels of `format`); `format` may
    // close the cell to editing (a read-only option) but never opens one its column closes.
    void setCellFormat(int row, int column, const GridColumn& format);

    // A row read from the table: values in column order, untouched. Returns its row.
    int appendRow(const QVariantList& values);
    // Appends read rows at once; returns the last one's index.
    int appendRows(const QList<QVariantList>& rows);
    // Marks a row for deletion; a row added in the grid and never saved is removed instead.
    // False when the row was already marked or does not exist.
    bool markDeleted(int row);
    // The marked rows were written: rows marked "D" go, the other marks are cleared.
    void acceptChanges();

    QString storedText(int row, int column) const;
    QString text(int row, int column) const;
    QVariant value(int row, int column) const;
    // Changes by code; true when the cell changed. The row is marked as edited.
    bool setText(int row, int column, const QString& text);
    bool setValue(int row, int column, const QVariant& value);

    QString mark(int row) const;
    // Whether any row waits to be written: added, changed or marked for deletion.
    bool hasChanges() const;
    const RowEdit& rowEdit(int row) const;
    bool isNewRow(int row) const;

    void setValidator(Validator validator);
    void setReadOnly(bool readOnly);
    bool isReadOnly() const { return m_readOnly; }
    // The language of messages; dates in its own era.
    void setLanguageId(int languageId);
    int languageId() const { return m_look.languageId; }
    // The language and the era the user chose for dates.
    void setDateLook(const DateLook& look);
    const DateLook& dateLook() const { return m_look; }

signals:
    void cellEdited(int row, int column);
    void cellChangedByCode(int row, int column);
    void valueRefused(const QModelIndex& index, const QString& message);

private:
    struct Row {
        QStringList cells;
        RowEdit edit;
        QMap<int, GridColumn> formats;
    };

    bool inRange(int row, int column) const;
    QString blankCell(int column) const;
    bool store(int row, int column, const QString& stored);

    QList<GridColumn> m_columns;
    QList<Row> m_rows;
    Validator m_validator;
    bool m_readOnly = false;
    DateLook m_look;
};

} // namespace qd8
