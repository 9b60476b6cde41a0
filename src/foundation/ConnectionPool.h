#pragma once

#include "foundation/Backend.h"

#include <QMutex>
#include <memory>
#include <unordered_map>
#include <vector>

namespace qd8 {

// Physical connections kept between the controls' per-operation open/close, keyed by
// connection string. A backend handed out is validated first (a PostgreSQL server restarted
// meanwhile is reconnected to; a SQLite file deleted or replaced fails that checkout, naming
// the file, and drops the idle connections to it); one handed back is rolled back if it still holds an open
// transaction. At most maxIdle() idle connections are kept per connection string.
class ConnectionPool {
public:
    static ConnectionPool& instance();

    std::unique_ptr<Backend> acquire(const QString& connectionString);
    void release(const QString& connectionString, std::unique_ptr<Backend> backend);

    // Closes every idle connection (all, or those of one connection string), e.g. before
    // a database file is removed or a PostgreSQL database dropped.
    void clear();
    void clear(const QString& connectionString);

    int maxIdle() const { return m_maxIdle; }
    void setMaxIdle(int count) { m_maxIdle = count; }

    ~ConnectionPool();

private:
    ConnectionPool() = default;
    struct Slot {
        ConnectionString parsed;
        std::vector<std::unique_ptr<Backend>> idle;
    };
    Slot& slot(const QString& connectionString);

    QMutex m_mutex;
    std::unordered_map<QString, Slot> m_slots;
    int m_maxIdle = 8;
};

} // namespace qd8
