#pragma once

#include "foundation/Cursor.h"
#include "foundation/DateText.h"

#include <QAbstractTableModel>
#include <QColor>
#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>
#include <functional>

namespace qd8 {

class DataRow;

// The rows of a DataView: one column per entry of the field list, read from one SELECT
// through a forward cursor, a screen at a time as the view asks for more. Cells stay in the
// cursor's compact store; a cell is turned into text only when the view paints it.
//
// Type codes: "0" text; "1" whole number and "2" number with two decimals, both right-aligned
// with thousands separators; "3" date shown dd/MM/yyyy; "4" yes/no shown as a check mark; any
// other code is text. Dates show dd/MM/yyyy (with HH:mm for a date-time) whatever their code,
// the year in the era of setDateLook (Gregorian until a control hands the user's).
class DataViewModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum class Type { Text, Integer, Number, Date, YesNo };

    struct Column {
        QString field;
        QString caption;
        int widthTwips = 0;  // 0: hidden, but its value is there for key text and colours
        Type type = Type::Text;
        int cursorColumn = -1;
    };

    static constexpr qsizetype FirstRows = 100;
    static constexpr qsizetype BatchRows = 1000;

    explicit DataViewModel(QObject* parent = nullptr);
    ~DataViewModel() override;

    static Type typeOfCode(const QString& code);

    void setColumns(const QList<Column>& columns);
    const QList<Column>& columns() const { return m_columns; }
    void setKeyFields(const QStringList& fields);
    void setRowColour(std::function<QColor(const DataRow&)> colour);
    void setDateLook(const DateLook& look);

    // Runs the SELECT and shows its first rows. Throws DbError when it fails or lacks a
    // listed field; the model then has no rows.
    void open(const Sql& select, const QString& connectionString);
    void clear();
    bool isOpen() const { return m_cursor.isOpen(); }

    // Reads up to `rows` more rows without showing them; false at the end or on an error
    // (fetchFailed tells which error).
    bool readMore(qsizetype rows);
    // Shows the rows read but not yet shown.
    void showReadRows();
    // Rows read, shown or not.
    qsizetype readRows() const { return m_cursor.rowCount(); }
    bool isComplete() const;
    bool hasFailed() const { return m_failed; }
    // While set, the view's own requests for more rows are refused (a reading in progress).
    void setReading(bool reading) { m_reading = reading; }

    // The cursor column of a field, by the SELECT's column names or the field list, without
    // regard to case; -1 when absent.
    int fieldColumn(const QString& field) const;
    QVariant value(int row, int cursorColumn) const;
    QVariant value(int row, const QString& field) const;
    QString keyText(int row) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool canFetchMore(const QModelIndex& parent) const override;
    void fetchMore(const QModelIndex& parent) override;

signals:
    // Reading further rows failed; the rows read so far stay.
    void fetchFailed(const QString& message);

private:
    // Finds each listed field's cursor column; returns the fields the cursor lacks.
    QStringList mapColumns();
    QString shownText(const QVariant& value, Type type) const;
    QColor rowColour(int row) const;

    QList<Column> m_columns;
    QStringList m_keyFields;
    std::function<QColor(const DataRow&)> m_colour;
    DateLook m_look = DateLook::forLanguage(1);
    Cursor m_cursor;
    QHash<QString, int> m_fieldColumns;  // case-folded names → cursor column
    int m_shown = 0;
    bool m_failed = false;
    bool m_reading = false;
    bool m_inserting = false;
};

} // namespace qd8
