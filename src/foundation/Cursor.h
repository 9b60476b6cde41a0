#pragma once

#include "foundation/Backend.h"
#include "foundation/Connection.h"

#include <QHash>

namespace qd8 {

// A forward cursor for big lists: the rows of one SELECT read a batch at a time on a
// connection of the cursor's own, so that the first screen of a million-row list shows at
// once. Rows fetched stay readable until close(). The statement passes the same refusal,
// dialect and tracing as any other.
class Cursor {
public:
    Cursor();
    ~Cursor();
    Cursor(const Cursor&) = delete;
    Cursor& operator=(const Cursor&) = delete;

    // Opens the statement and reads its first `firstRows` rows.
    void open(const Sql& sql, const QString& connectionString, qsizetype firstRows = 256);
    // Reads up to `rows` more rows; returns how many came (0 at the end).
    qsizetype fetch(qsizetype rows);
    bool atEnd() const;
    bool isOpen() const { return m_stream != nullptr; }
    void close();

    qsizetype rowCount() const;
    int columnCount() const;
    QString columnName(int column) const;
    // Found without regard to case; -1 when absent.
    int columnIndex(const QString& name) const;
    QVariant value(qsizetype row, int column) const;

private:
    Connection m_connection;
    std::unique_ptr<RowStream> m_stream;
    QHash<QString, int> m_index;  // lower-cased names
};

} // namespace qd8
