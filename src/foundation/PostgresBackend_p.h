#pragma once

#include "foundation/Backend.h"

#include <QHash>

struct pg_conn;
struct pg_result;

namespace qd8 {

class LockWait;

// PostgreSQL through libpq: statements seen more than once are prepared and reused,
// numeric is read as text so money stays exact, and a connection lost to a server
// restart is re-established before the next statement.
class PostgresBackend final : public Backend {
public:
    explicit PostgresBackend(const ConnectionString& cs);
    ~PostgresBackend() override;

    Engine engine() const override { return Engine::PostgreSQL; }
    std::unique_ptr<ResultData> query(const QString& sql, const QVariantList& params) override;
    qint64 execute(const QString& sql, const QVariantList& params) override;
    std::unique_ptr<RowStream> stream(const QString& sql, qsizetype firstRows) override;
    void begin() override;
    void commit() override;
    void rollback() override;
    bool inTransaction() const override;
    bool validate() override;
    QStringList primaryKey(const QString& table) override;
    QString placeholder(int n) const override { return QLatin1Char('$') + QString::number(n); }

    static constexpr int LockTimeoutMs = 10000;

private:
    void setLockTimeout();
    pg_result* run(const QString& sql, const QVariantList& params);
    pg_result* send(const QByteArray& sql, const QString& text, const QVariantList& params);
    // The result of the statement just sent (`sent` as PQsend... returned); nullptr when
    // it could not be sent.
    pg_result* await(int sent, const QString& text);
    bool reconnect();
    void simple(const char* sql);

    QByteArray m_connInfo;
    QString m_database;
    pg_conn* m_conn = nullptr;
    QHash<QString, QByteArray> m_prepared;  // statement text → prepared name
    QHash<QString, int> m_seen;
    int m_preparedNames = 0;
    QHash<QString, QStringList> m_keys;
    std::unique_ptr<LockWait> m_wait;  // the last statement's wait for another writer
};

} // namespace qd8
