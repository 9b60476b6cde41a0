#pragma once

#include "foundation/Backend.h"

#include <QElapsedTimer>
#include <QHash>
#include <sys/types.h>

struct sqlite3;
struct sqlite3_stmt;

namespace qd8 {

class LockWait;

// SQLite through its C library: a statement cache, a busy timeout and the WAL journal (a
// writer is not blocked by an open reader), and the THAI collation on every connection.
// The file is remembered by device and inode: once it is deleted, moved or replaced, the
// next checkout, write or commit fails naming it instead of writing into a file no one
// will see. A file (or folder) the user may not write opens read-only and refuses writes.
class SqliteBackend final : public Backend {
public:
    explicit SqliteBackend(const ConnectionString& cs);
    ~SqliteBackend() override;

    Engine engine() const override { return Engine::SQLite; }
    std::unique_ptr<ResultData> query(const QString& sql, const QVariantList& params) override;
    qint64 execute(const QString& sql, const QVariantList& params) override;
    std::unique_ptr<RowStream> stream(const QString& sql, qsizetype firstRows) override;
    void begin() override;
    void commit() override;
    void rollback() override;
    bool inTransaction() const override;
    // Throws DbError (kind Connection) when the file is no longer the one opened.
    bool validate() override;
    QStringList primaryKey(const QString& table) override;
    QString placeholder(int) const override { return QStringLiteral("?"); }

    static constexpr int BusyTimeoutMs = 10000;
    bool isReadOnly() const { return m_readOnly; }

private:
    static int busyWait(void* self, int count);
    void endBusyWait();
    void checkFile() const;
    void refuseWrite(const QString& sql) const;
    sqlite3_stmt* prepare(const QString& sql, const QVariantList& params);
    void finish(sqlite3_stmt* stmt, const QString& sql);
    [[noreturn]] void fail(const QString& sql) const;
    void run(const char* sql);
    void attach(const QString& files);

    sqlite3* m_db = nullptr;
    QString m_file;
    bool m_readOnly = false;
    bool m_identityKnown = false;
    dev_t m_device = 0;
    ino_t m_inode = 0;
    QElapsedTimer m_busySince;
    QString m_statement;              // the statement running, for the wait's words
    std::unique_ptr<LockWait> m_wait;  // while it waits for another writer
    QHash<QString, sqlite3_stmt*> m_cache;
    QHash<QString, QStringList> m_keys;
};

} // namespace qd8
