#pragma once

#include "foundation/ConnectionString.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <memory>

namespace qd8 {

// What a column holds, as far as the engine tells: decides how a cell turns into a
// QVariant (money into Currency, dates into QDate/QDateTime).
enum class ColumnKind { Auto, Integer, Real, Money, Date, DateTime, Text, Bool, Blob };

struct ColumnInfo {
    QString name;
    ColumnKind kind = ColumnKind::Auto;
};

// Rows read client-side by one statement, stored the backend's compact way; cells are
// turned into QVariants only when read.
class ResultData {
public:
    virtual ~ResultData() = default;
    virtual qsizetype rowCount() const = 0;
    virtual QVariant value(qsizetype row, int column) const = 0;
    const QList<ColumnInfo>& columns() const { return m_columns; }

protected:
    QList<ColumnInfo> m_columns;
};

// Rows of one statement read a batch at a time, for lists too big to read at once.
// Keeps its statement open on the backend until destroyed.
class RowStream {
public:
    virtual ~RowStream() = default;
    // Reads up to `rows` more rows into the stream's own store; returns how many came.
    virtual qsizetype fetch(qsizetype rows) = 0;
    virtual bool atEnd() const = 0;
    virtual qsizetype rowCount() const = 0;
    virtual QVariant value(qsizetype row, int column) const = 0;
    const QList<ColumnInfo>& columns() const { return m_columns; }

protected:
    QList<ColumnInfo> m_columns;
};

// One physical connection to an engine. Connection and Recordset are the only users;
// the pool owns idle backends. Every failure is a DbError.
class Backend {
public:
    virtual ~Backend() = default;
    virtual Engine engine() const = 0;
    // `sql` is already in the engine's dialect; `params` bind to its placeholders.
    virtual std::unique_ptr<ResultData> query(const QString& sql, const QVariantList& params) = 0;
    virtual qint64 execute(const QString& sql, const QVariantList& params) = 0;
    // Starts a statement whose rows are read in batches; its first `firstRows` rows are
    // read at once (so the columns are known). The backend is busy until the stream dies.
    virtual std::unique_ptr<RowStream> stream(const QString& sql, qsizetype firstRows) = 0;
    virtual void begin() = 0;
    virtual void commit() = 0;
    virtual void rollback() = 0;
    virtual bool inTransaction() const = 0;
    // Checked when the pool hands the backend out: false when the connection is lost
    // and could not be re-established.
    virtual bool validate() = 0;
    // Primary-key columns of a table, as the engine names them ("" table → empty).
    virtual QStringList primaryKey(const QString& table) = 0;
    // Placeholder for the n-th (1-based) bound parameter.
    virtual QString placeholder(int n) const = 0;
};

std::unique_ptr<Backend> openBackend(const ConnectionString& connectionString);

} // namespace qd8
