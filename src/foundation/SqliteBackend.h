#pragma once

#include "foundation/Backend.h"

#include <QHash>

struct sqlite3;
struct sqlite3_stmt;

namespace qd8 {

// SQLite through its C library: a statement cache, a busy timeout and the WAL journal (a
// writer is not blocked by an open reader), and the THAI collation on every connection.
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
    bool validate() override { return m_db != nullptr; }
    QStringList primaryKey(const QString& table) override;
    QString placeholder(int) const override { return QStringLiteral("?"); }

    static constexpr int BusyTimeoutMs = 10000;

private:
    sqlite3_stmt* prepare(const QString& sql, const QVariantList& params);
    void finish(sqlite3_stmt* stmt, const QString& sql);
    [[noreturn]] void fail(const QString& sql) const;
    void run(const char* sql);
    void attach(const QString& files);

    sqlite3* m_db = nullptr;
    QHash<QString, sqlite3_stmt*> m_cache;
    QHash<QString, QStringList> m_keys;
};

} // namespace qd8
