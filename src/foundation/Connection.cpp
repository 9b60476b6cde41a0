#include "foundation/Connection.h"

#include "foundation/Backend.h"
#include "foundation/ConnectionPool.h"
#include "foundation/DbError.h"
#include "foundation/SqlDialect.h"
#include "foundation/SqlTrace.h"

namespace qd8 {

struct Connection::State {
    QString connectionString;
    std::unique_ptr<Backend> backend;
};

DbError refusal(const Sql& sql)
{
    const QString value = sql.brokenValue();
    if (sql.flaw() == Sql::Flaw::NotANumber)
        return DbError(DbError::Kind::Refused,
            QStringLiteral("Statement refused: the value \"%1\" stands where a number belongs and is not a plain number").arg(value),
            sql.text())
            .explain(QStringLiteral("\"%1\" ไม่ใช่ตัวเลข").arg(value), QStringLiteral("\"%1\" is not a number").arg(value));
    return DbError(DbError::Kind::Refused,
        QStringLiteral("Statement refused: the text value \"%1\" holds a single quote, "
                       "which cannot stand between the quotes of the statement")
            .arg(value),
        sql.text())
        .explain(QStringLiteral("ค่า \"%1\" มีเครื่องหมาย ' ซึ่งใช้ไม่ได้").arg(value),
            QStringLiteral("The value \"%1\" holds a single quote ('), which cannot be used").arg(value));
}

namespace {

// Refusal, dialect rewrite and tracing around one statement.
template <typename Run>
auto traced(Backend& backend, const QString& connectionString, const Sql& sql, Run&& run)
{
    if (sql.isBroken()) {
        DbError refused = refusal(sql);
        SqlTrace::report({sql.text(), {}, connectionString, true, refused.message()});
        throw refused;
    }
    QString sent;
    try {
        sent = toEngineSql(backend.engine(), sql.text());
    } catch (const DbError& e) {
        SqlTrace::report({sql.text(), {}, connectionString, true, e.message()});
        throw;
    }
    if (!SqlTrace::active())
        return run(sent);
    try {
        auto result = run(sent);
        SqlTrace::report({sql.text(), sent, connectionString, false, {}});
        return result;
    } catch (const DbError& e) {
        SqlTrace::report({sql.text(), sent, connectionString, false, e.message()});
        throw;
    }
}

} // namespace

Connection::Connection() = default;

Connection::~Connection()
{
    close();
}

void Connection::open(const QString& connectionString)
{
    close();
    auto state = std::make_shared<State>();
    state->connectionString = connectionString;
    state->backend = ConnectionPool::instance().acquire(connectionString);
    d = std::move(state);
}

void Connection::close()
{
    if (!d)
        return;
    ConnectionPool::instance().release(d->connectionString, std::move(d->backend));
    d.reset();
}

bool Connection::isOpen() const
{
    return d && d->backend;
}

const QString& Connection::connectionString() const
{
    static const QString none;
    return d ? d->connectionString : none;
}

Engine Connection::engine() const
{
    return backend().engine();
}

Backend& Connection::backend() const
{
    if (!isOpen())
        throw DbError(DbError::Kind::Usage, QStringLiteral("The connection is not open"));
    return *d->backend;
}

std::unique_ptr<ResultData> Connection::query(const Sql& sql, const QVariantList& params)
{
    Backend& b = backend();
    return traced(b, d->connectionString, sql, [&](const QString& sent) { return b.query(sent, params); });
}

qint64 Connection::execute(const Sql& sql, const QVariantList& params)
{
    Backend& b = backend();
    return traced(b, d->connectionString, sql, [&](const QString& sent) { return b.execute(sent, params); });
}

std::unique_ptr<RowStream> Connection::stream(const Sql& sql, qsizetype firstRows)
{
    Backend& b = backend();
    return traced(b, d->connectionString, sql, [&](const QString& sent) { return b.stream(sent, firstRows); });
}

qint64 Connection::execute(const Sql& sql)
{
    return execute(sql, {});
}

void Connection::beginTrans()
{
    backend().begin();
}

void Connection::commitTrans()
{
    backend().commit();
}

void Connection::rollbackTrans()
{
    backend().rollback();
}

bool Connection::inTransaction() const
{
    return isOpen() && d->backend->inTransaction();
}

} // namespace qd8
