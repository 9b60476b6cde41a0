#pragma once

#include "foundation/Connection.h"
#include "foundation/Currency.h"
#include "foundation/Sql.h"

#include <QHash>
#include <QVariant>
#include <memory>
#include <vector>

namespace qd8 {

class ResultData;

// The rows of one SELECT, read client-side when opened (the suite's static cursor).
// Fields are found by name without regard to case (PostgreSQL returns lower-cased
// names); NULL stays an invalid QVariant, distinct from "".
//
// Opened with adLockOptimistic on "SELECT * FROM <table> WHERE ...", the recordset can
// write back: addNew() + setField() + update() INSERTs, setField() + update() on a read
// row UPDATEs it by its original key values (and the original values of the changed
// fields). Values are bound as parameters; identifiers are the engine's own column names,
// unquoted. An UPDATE that finds no row raises DbError (kind Conflict): another user changed
// or deleted the row since it was read, and nothing is overwritten.
class Recordset {
public:
    enum CursorType { adOpenForwardOnly = 0, adOpenKeyset = 1, adOpenDynamic = 2, adOpenStatic = 3 };
    enum LockType { adLockReadOnly = 1, adLockPessimistic = 2, adLockOptimistic = 3, adLockBatchOptimistic = 4 };

    Recordset();
    ~Recordset();
    Recordset(Recordset&&) noexcept;
    Recordset& operator=(Recordset&&) noexcept;

    void open(const Sql& sql, Connection& connection, CursorType cursor = adOpenStatic, LockType lock = adLockReadOnly);
    void close();
    bool isOpen() const;

    bool eof() const;
    bool bof() const;
    void moveNext();
    void movePrevious();
    void moveFirst();
    void moveLast();
    qsizetype recordCount() const;
    // 0-based row under the cursor.
    qsizetype position() const { return m_position; }
    void setPosition(qsizetype row);

    int fieldCount() const;
    QString fieldName(int index) const;
    // -1 when the recordset has no such field.
    int fieldIndex(const QString& name) const;
    // Value of the current row; DbError (kind Usage) when there is no current row or no
    // such field.
    QVariant field(const QString& name) const;
    QVariant field(int index) const;
    // Field as text, NULL giving "" (the suite's `field & ""`).
    QString text(const QString& name) const;
    Currency currency(const QString& name) const;

    void addNew();
    void setField(const QString& name, const QVariant& value);
    void update();
    void cancelUpdate();
    bool editing() const { return m_editMode != EditMode::None; }

private:
    enum class EditMode { None, Edit, Add };
    int requireField(const QString& name) const;
    void requireRow() const;
    QVariant stored(qsizetype row, int column) const;
    void insertRow();
    void updateRow();

    std::unique_ptr<ResultData> m_data;
    // The connection the rows came from, needed again by update(); closing it ends the
    // recordset's ability to write, not its rows.
    Connection* m_connection = nullptr;
    std::weak_ptr<Connection::State> m_connectionState;
    QString m_table;
    bool m_updatable = false;
    QHash<QString, int> m_index;       // exact names
    QHash<QString, int> m_lowerIndex;  // lower-cased names
    mutable QHash<QString, int> m_spellings;  // other spellings already looked up
    qsizetype m_position = 0;
    // Rows written through this recordset: overrides of read rows, and added rows.
    QHash<qsizetype, QVariantList> m_changed;
    std::vector<QVariantList> m_added;
    EditMode m_editMode = EditMode::None;
    QVariantList m_buffer;
    std::vector<bool> m_touched;
};

} // namespace qd8
