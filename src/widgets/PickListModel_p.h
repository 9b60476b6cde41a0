#pragma once

#include "foundation/Cursor.h"
#include "foundation/PickRequest.h"
#include "widgets/GridColumn.h"

#include <QAbstractTableModel>
#include <QList>
#include <QString>
#include <vector>

namespace qd8 {

// The rows of a pick list: one column per entry of the request's field list, read from
// "SELECT <fields> FROM <source>" through a forward cursor, a screen at a time as a view
// asks for more. A column with a label list shows the label of each stored code (as the
// editing grid does, GridColumn), and is searched and aligned as text. A search keeps, in
// the source's own order, the rows whose shown text columns contain the searched text; it
// reads the rest of the rows first.
class PickListModel : public QAbstractTableModel {
    Q_OBJECT

public:
    struct Column {
        QString field;
        QString caption;
        int widthTwips = 0;  // 0: the column is hidden but its value is there
        bool isText = true;  // type code "0" or a label list; any other code is a number
        int cursorColumn = -1;
        QList<GridLabel> labels;  // the column's label list; none: the stored value is shown
    };

    static constexpr qsizetype FirstRows = 100;
    static constexpr qsizetype BatchRows = 1000;

    explicit PickListModel(QObject* parent = nullptr);
    ~PickListModel() override;

    // Reads the request's four lists and opens its query with the first rows. Throws
    // DbError when the lists do not describe the fields, a width is not a number, the
    // source fails or the key field is not listed; the model then has no rows (and no
    // columns when the lists were at fault).
    void load(const PickRequest& request);
    // What load() let pass: surplus list entries it ignored; "" when the lists agree.
    const QString& notice() const { return m_notice; }

    const QList<Column>& columns() const { return m_columns; }
    // The key field's value of a shown row as text ("" for NULL); for a key list "A;B"
    // the values joined by ";".
    QString keyAt(int row) const;
    // What a cell shows: its stored value as text, a label list's label for its code.
    QString shownText(int row, int column) const;

    // Keeps the rows whose shown text columns contain `text` (Latin letters without
    // regard to case); "" shows every row again.
    void setSearchText(const QString& text);
    const QString& searchText() const { return m_searchText; }
    // Reads every row still in the source.
    void fetchAll();
    bool isComplete() const;

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
    qsizetype sourceRow(int row) const;
    QString cellText(qsizetype sourceRow, int column) const;
    // Reads up to `rows` more rows into the cursor; false (and fetchFailed) on an error.
    bool readMore(qsizetype rows);
    // Shows the rows read but not yet shown (while no search is on).
    void showReadRows();
    void indexRows();
    // The indexed rows holding `needle`, in order; only among `within` when given.
    std::vector<int> findRows(const QString& needle, const std::vector<int>* within) const;

    QList<Column> m_columns;
    QList<GridColumn> m_shown;  // per column: how a stored value is shown
    QList<int> m_keyColumns;
    QString m_notice;
    Cursor m_cursor;
    bool m_failed = false;
    int m_loaded = 0;  // rows of the cursor shown while no search is on
    bool m_inserting = false;

    // The search index: the folded text of each row's searched columns, one after another
    // and each cell closed by a unit separator so that a match never spans two cells.
    QList<int> m_searchColumns;
    QString m_index;
    std::vector<qsizetype> m_rowStart;  // indexed rows + 1 entries
    QString m_searchText;
    QString m_needle;  // m_searchText folded
    bool m_searching = false;
    std::vector<int> m_matches;
};

} // namespace qd8
