#pragma once

#include "foundation/ConnectionString.h"
#include "foundation/Sql.h"

#include <QVariantList>
#include <memory>

namespace qd8 {

class Backend;
class ResultData;

// A database connection as the controls use it: opened per operation with a connection
// string, closed when done. Physically served by the ConnectionPool, so opening costs
// next to nothing. Every statement passes the refusal check of Sql, the dialect rewrite
// (date markers, LIKE) and SqlTrace. Errors are DbError.
class Connection {
public:
    Connection();
    ~Connection();
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    void open(const QString& connectionString);
    // Returns the connection to the pool; an open transaction is rolled back.
    void close();
    bool isOpen() const;
    const QString& connectionString() const;
    Engine engine() const;

    // Runs a statement that returns no rows; returns the rows affected.
    qint64 execute(const Sql& sql);

    void beginTrans();
    void commitTrans();
    void rollbackTrans();
    bool inTransaction() const;

    // For Recordset and the data layer: a statement in the system's dialect, with
    // parameters bound to the engine's placeholders.
    std::unique_ptr<ResultData> query(const Sql& sql, const QVariantList& params = {});
    qint64 execute(const Sql& sql, const QVariantList& params);
    std::unique_ptr<class RowStream> stream(const Sql& sql, qsizetype firstRows);
    Backend& backend() const;

    struct State;
    std::weak_ptr<State> state() const { return d; }

private:
    std::shared_ptr<State> d;
};

} // namespace qd8
