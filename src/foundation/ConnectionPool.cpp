#include "foundation/ConnectionPool.h"

#include "foundation/DbError.h"
#include "foundation/PostgresBackend_p.h"
#include "foundation/QtSqlBackend_p.h"
#include "foundation/SqliteBackend_p.h"

namespace qd8 {

std::unique_ptr<Backend> openBackend(const ConnectionString& cs)
{
    switch (cs.engine()) {
    case Engine::SQLite:
        return std::make_unique<SqliteBackend>(cs);
    case Engine::PostgreSQL:
        return std::make_unique<PostgresBackend>(cs);
    case Engine::QtSql:
        return std::make_unique<QtSqlBackend>(cs);
    }
    return nullptr;
}

ConnectionPool& ConnectionPool::instance()
{
    static ConnectionPool pool;
    return pool;
}

ConnectionPool::~ConnectionPool()
{
    clear();
}

ConnectionPool::Slot& ConnectionPool::slot(const QString& connectionString)
{
    auto it = m_slots.find(connectionString);
    if (it == m_slots.end())
        it = m_slots.emplace(connectionString, Slot{ConnectionString::parse(connectionString), {}}).first;
    return it->second;
}

std::unique_ptr<Backend> ConnectionPool::acquire(const QString& connectionString)
{
    ConnectionString cs;
    {
        QMutexLocker lock(&m_mutex);
        Slot& s = slot(connectionString);
        while (!s.idle.empty()) {
            std::unique_ptr<Backend> backend = std::move(s.idle.back());
            s.idle.pop_back();
            try {
                if (backend->validate())
                    return backend;
            } catch (const DbError&) {
                // The database is no longer the one these connections opened (a replaced
                // SQLite file): this operation fails with the reason, and the next one opens
                // what is there now.
                s.idle.clear();
                throw;
            }
        }
        cs = s.parsed;
    }
    return openBackend(cs);
}

void ConnectionPool::release(const QString& connectionString, std::unique_ptr<Backend> backend)
{
    if (!backend)
        return;
    try {
        if (backend->inTransaction())
            backend->rollback();
    } catch (const DbError&) {
        return;  // a connection that cannot roll back is not kept
    }
    QMutexLocker lock(&m_mutex);
    auto it = m_slots.find(connectionString);
    if (it == m_slots.end() || int(it->second.idle.size()) >= m_maxIdle)
        return;
    it->second.idle.push_back(std::move(backend));
}

void ConnectionPool::clear()
{
    std::unordered_map<QString, Slot> dropped;
    {
        QMutexLocker lock(&m_mutex);
        dropped.swap(m_slots);
    }
}

void ConnectionPool::clear(const QString& connectionString)
{
    Slot removed;
    {
        QMutexLocker lock(&m_mutex);
        auto it = m_slots.find(connectionString);
        if (it == m_slots.end())
            return;
        removed = std::move(it->second);
        m_slots.erase(it);
    }
}

} // namespace qd8
