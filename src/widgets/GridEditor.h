#pragma once

#include "widgets/GridColumn.h"

#include <QVariant>
#include <QWidget>

#include <functional>
#include <memory>

namespace qd8 {

class GridEditorModel;

// The editing grid of the metadata-driven editors (quick forms, options, code tables, GL
// voucher lines). The host clears it, adds typed columns (caption, width in twips, type
// word, decimals, alignment, label list, whether it may be edited), loads rows, and lets
// the user change cells, add rows (Insert) and mark rows for deletion (Delete). Every row
// carries a change mark: "E" for a row added or changed, "D" for a row marked for deletion,
// "" for an untouched one; the host writes the marked rows and then calls ClearMarks().
//
// Rows and columns count from 1. Row 0 holds the captions and column 0 the change marks, so
// TextMatrix(0, Col) is a column's caption and TextMatrix(Row, 0) a row's mark.
//
// Keys: Enter moves to the next editable cell (committing an open editor); Insert adds a row
// at the end; Delete marks the current row "D" (a row added and never saved is removed).
// Every key reaches the host first through KeyDown with the suite's key codes (F2 = 113),
// function keys also from inside an open editor, so the host can put a picked value into
// the current cell.
class GridEditor : public QWidget {
    Q_OBJECT
    Q_PROPERTY(int Row READ Row WRITE setRow)
    Q_PROPERTY(int Col READ Col WRITE setCol)
    Q_PROPERTY(int Rows READ Rows)
    Q_PROPERTY(int Cols READ Cols)
    Q_PROPERTY(bool RefuseAdd READ RefuseAdd WRITE setRefuseAdd)
    Q_PROPERTY(bool RefuseDelete READ RefuseDelete WRITE setRefuseDelete)
    Q_PROPERTY(bool ReadOnly READ ReadOnly WRITE setReadOnly)
    Q_PROPERTY(int LanguageID READ LanguageID WRITE setLanguageID)

public:
    // Row, column and the value about to be taken from the user; returns the message shown
    // at the cell when the value is refused (the cell keeps its value), "" to take it.
    using Validator = std::function<QString(int Row, int Col, const QVariant& Value)>;

    explicit GridEditor(QWidget* parent = nullptr);
    ~GridEditor() override;

    // The current cell; 0 when there is none. Setting a row or column out of range is ignored.
    int Row() const;
    void setRow(int row);
    int Col() const;
    void setCol(int col);
    int Rows() const;
    int Cols() const;

    // The user may not add rows / mark rows for deletion (Insert, Delete, AddRow, DeleteRow).
    bool RefuseAdd() const;
    void setRefuseAdd(bool refuse);
    bool RefuseDelete() const;
    void setRefuseDelete(bool refuse);
    // Nothing may be edited, added or deleted by the user (the "VIEW" mode of an editor).
    bool ReadOnly() const;
    void setReadOnly(bool readOnly);
    // 0 Thai (dates with Buddhist-era years, Thai messages), otherwise English.
    int LanguageID() const;
    void setLanguageID(int languageId);
    // The language with the era the user chose for dates (the "DateEra" setting).
    void setDateLook(const DateLook& look);

    // Removes all columns and rows.
    Q_INVOKABLE void Clear();
    // Removes all rows, keeping the columns.
    Q_INVOKABLE void ClearRows();
    // Adds a column and returns its number. Width in twips, 0 hides it; an unknown type word
    // gives a text column; Alignment 0 left, 1 right, 2 centre, other codes by type. A column
    // that may not be edited can still be filled in rows added in the grid.
    Q_INVOKABLE int AddColumn(const QString& Caption, int Width, const QString& ColumnType = QStringLiteral("TEXT"),
                              int Decimals = 0, int Alignment = -1, const QString& LabelList = QString(),
                              bool CanEdit = true);
    int addColumn(const GridColumn& column);
    // Adds text columns from positional comma lists (captions, widths in twips, type words).
    // Returns "" when done, else what is wrong with the lists; then no column is added.
    Q_INVOKABLE QString AddColumns(const QString& CaptionList, const QString& WidthList,
                                   const QString& TypeList = QString());

    // Appends a row read from the table, values in column order (codes for label lists,
    // numbers, dates, 1/0); the row is untouched. Returns its number.
    Q_INVOKABLE int AddItem(const QVariantList& Values);
    // Appends many read rows at once (a form's whole table); returns the last row's number.
    int AddItems(const QList<QVariantList>& Rows);
    // Appends a new row marked "E", makes it current and returns its number; 0 when adding
    // is refused.
    Q_INVOKABLE int AddRow();
    // Marks a row "D" (removes a new row); false when deleting is refused or nothing changed.
    Q_INVOKABLE bool DeleteRow(int Row);
    // Takes a row out of the grid without a mark.
    Q_INVOKABLE void RemoveRow(int Row);

    // The text of a cell as shown: numbers formatted, labels for codes, "Yes"/"No".
    Q_INVOKABLE QString TextMatrix(int Row, int Col) const;
    // Sets a cell by code (shown or stored forms both read; the row is marked "E"), or a
    // caption with Row 0.
    Q_INVOKABLE void setTextMatrix(int Row, int Col, const QString& Text);
    // The value of a cell: a label list's code, 1/0 for yes/no, numbers, dates; see GridColumn.
    Q_INVOKABLE QVariant GetValue(int Row, int Col) const;
    Q_INVOKABLE void SetValue(int Row, int Col, const QVariant& Value);

    Q_INVOKABLE QString RowMark(int Row) const;
    // A row added in the grid and not saved yet.
    Q_INVOKABLE bool IsNewRow(int Row) const;
    // The marked rows were saved: rows marked "D" leave the grid, the other marks go.
    Q_INVOKABLE void ClearMarks();

    // Gives one cell its own type (the value column of an option list, whose rows differ).
    Q_INVOKABLE void SetCellType(int Row, int Col, const QString& ColumnType, int Decimals = 0,
                                 const QString& LabelList = QString());

    // Hides a row from view (a show-only filter); it keeps its values and mark.
    Q_INVOKABLE void setRowHidden(int Row, bool Hidden);
    Q_INVOKABLE bool isRowHidden(int Row) const;

    // A progress display under the grid for long work; Maximum 0 shows a busy bar.
    Q_INVOKABLE void ShowProgress(const QString& Caption, int Maximum = 0);
    Q_INVOKABLE void SetProgress(int Value);
    Q_INVOKABLE void HideProgress();

    // The host form the grid lives on, handed down by its control's SetParentForm, and
    // whether that form holds only this control. Returns 1 when the grid took a form, 0
    // when PassForm is null (the grid then has none).
    Q_INVOKABLE int SetParentForm(QWidget* PassForm, bool ActionSingleControl = false);
    QWidget* parentForm() const;
    bool actionSingleControl() const;

    void setValidator(Validator validator);
    const GridColumn& column(int col) const;
    GridEditorModel* model() const;

signals:
    // A cell is about to be edited by the user (an editor opens or a check box toggles).
    void BeforeEdit(int Row, int Col, bool& Cancel);
    // The user changed a cell.
    void AfterChange(int Row, int Col);
    // Code changed a cell (setTextMatrix, SetValue).
    void CellChanged(int Row, int Col);
    // A key was pressed in the grid; KeyCode is the suite's key code (F2 = 113, Enter = 13),
    // Shift 1 + Ctrl 2 + Alt 4. Setting KeyCode to 0 takes the key away from the grid.
    void KeyDown(int& KeyCode, int Shift);
    // The user added a row with Insert.
    void AfterAddRow(int Row);
    // The user is about to mark a row for deletion with Delete.
    void BeforeDeleteRow(int Row, bool& Cancel);
    // The user marked a row for deletion (or removed a new row) with Delete.
    void AfterDeleteRow(int Row);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    class Private;
    std::unique_ptr<Private> const d;
};

} // namespace qd8
