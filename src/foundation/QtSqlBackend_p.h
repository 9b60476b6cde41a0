#pragma once

#include "foundation/Backend.h"

namespace qd8 {

// Any other engine through a Qt SQL driver (ODBC to SQL Server and the like). Slower
// than the native backends (Qt's value layer), but the same narrow interface.
class QtSqlBackend final : public Backend {
public:
    explicit QtSqlBackend(const ConnectionString& cs);
    ~QtSqlBackend() override;

    Engine engine() const override { return Engine::QtSql; }
    std::unique_ptr<ResultData> query(const QString& sql, const QVariantList& params) override;
    qint64 execute(const QString& sql, const QVariantList& params) override;
    std::unique_ptr<RowStream> stream(const QString& sql, qsizetype firstRows) override;
    void begin() override;
    void commit() override;
    void rollback() override;
    bool inTransaction() const override { return m_inTransaction; }
    bool validate() override;
    QStringList primaryKey(const QString& table) override;
    QString placeholder(int) const override { return QStringLiteral("?"); }

private:
    QString m_name;
    bool m_inTransaction = false;
};

} // namespace qd8
