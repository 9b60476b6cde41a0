#pragma once

#include "foundation/Connection.h"

namespace qd8 {

// One transaction on an open connection, all or nothing: begins when constructed, and
// rolls back when it goes out of scope unless commit() ran first. Work that fails anywhere
// in between (an exception on its way out) leaves the database as it was, without a
// try/rollback block around it:
//
//     TransactionGuard transaction(connection);
//     ... statements ...
//     transaction.commit();
//
// A commit that fails leaves the transaction open, so it is rolled back as well.
class TransactionGuard {
public:
    explicit TransactionGuard(Connection& connection)
        : m_connection(connection)
    {
        connection.beginTrans();
        m_open = true;
    }
    ~TransactionGuard() { rollback(); }
    TransactionGuard(const TransactionGuard&) = delete;
    TransactionGuard& operator=(const TransactionGuard&) = delete;

    void commit()
    {
        m_connection.commitTrans();
        m_open = false;
    }
    // Rolls back now; nothing when already committed or rolled back. Never throws: a
    // rollback that fails leaves the rest to the pool, which rolls back what it is handed.
    void rollback() noexcept
    {
        if (!m_open)
            return;
        m_open = false;
        try {
            if (m_connection.inTransaction())
                m_connection.rollbackTrans();
        } catch (...) {
        }
    }
    // Begun and neither committed nor rolled back.
    bool isOpen() const { return m_open; }

private:
    Connection& m_connection;
    bool m_open = false;
};

} // namespace qd8
