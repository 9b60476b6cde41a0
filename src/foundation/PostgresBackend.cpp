#include "foundation/PostgresBackend_p.h"

#include "foundation/LockWait_p.h"

#include "foundation/Currency.h"
#include "foundation/DbError.h"
#include "foundation/RowStore.h"

#include <QDate>
#include <QDateTime>
#include <libpq-fe.h>
#include <poll.h>

#include <cerrno>
#include <cstring>
#include <functional>
#include <vector>

namespace qd8 {

namespace {

constexpr qsizetype MaxPrepared = 256;
constexpr qsizetype MaxRemembered = 4096;

// Type OIDs from pg_type.h.
enum : Oid {
    BoolOid = 16, Int8Oid = 20, Int2Oid = 21, Int4Oid = 23, OidOid = 26,
    Float4Oid = 700, Float8Oid = 701, NumericOid = 1700,
    DateOid = 1082, TimestampOid = 1114, TimestampTzOid = 1184, ByteaOid = 17,
};

ColumnKind kindOfOid(Oid oid)
{
    switch (oid) {
    case BoolOid: return ColumnKind::Bool;
    case Int2Oid: case Int4Oid: case Int8Oid: case OidOid: return ColumnKind::Integer;
    case Float4Oid: case Float8Oid: return ColumnKind::Real;
    case NumericOid: return ColumnKind::Money;
    case DateOid: return ColumnKind::Date;
    case TimestampOid: case TimestampTzOid: return ColumnKind::DateTime;
    case ByteaOid: return ColumnKind::Blob;
    default: return ColumnKind::Text;
    }
}

// A number's text as libpq gives it, parsed from a NUL-terminated copy.
template <typename Parse>
auto parsedNumber(const char* data, qsizetype size, Parse parse)
{
    char buffer[64];
    if (size < qsizetype(sizeof buffer)) {
        std::memcpy(buffer, data, size_t(size));
        buffer[size] = '\0';
        return parse(QByteArray::fromRawData(buffer, size));
    }
    return parse(QByteArray(data, size));
}

// One non-NULL cell of text format, as its column's kind reads it.
QVariant cellValue(const char* data, qsizetype size, ColumnKind kind)
{
    switch (kind) {
    case ColumnKind::Integer: {
        const qlonglong v = parsedNumber(data, size, [](const QByteArray& text) { return text.toLongLong(); });
        return v >= INT32_MIN && v <= INT32_MAX ? QVariant(int(v)) : QVariant(v);
    }
    case ColumnKind::Real:
        return parsedNumber(data, size, [](const QByteArray& text) { return text.toDouble(); });
    case ColumnKind::Bool:
        return QVariant(size > 0 && data[0] == 't');
    case ColumnKind::Money:
        // numeric arrives as exact decimal text; money that fits four decimals is Currency
        if (auto c = Currency::parse(data, size))
            return QVariant::fromValue(*c);
        return parsedNumber(data, size, [](const QByteArray& text) { return text.toDouble(); });
    case ColumnKind::Date:
        return QDate::fromString(QLatin1String(data, size), Qt::ISODate);
    case ColumnKind::DateTime: {
        // "2026-01-31 13:45:00[.123456][+07]"
        const QLatin1String text(data, qMin<qsizetype>(size, 19));
        QDateTime dt = QDateTime::fromString(text, QStringLiteral("yyyy-MM-dd HH:mm:ss"));
        if (size > 20 && data[19] == '.') {
            int ms = 0, digits = 0;
            for (qsizetype i = 20; i < size && data[i] >= '0' && data[i] <= '9'; ++i, ++digits)
                if (digits < 3)
                    ms = ms * 10 + (data[i] - '0');
            for (; digits < 3; ++digits)
                ms *= 10;
            dt = dt.addMSecs(ms);
        }
        return dt;
    }
    case ColumnKind::Blob: {
        const QByteArray escaped(data, size);  // libpq reads up to the NUL
        size_t length = 0;
        unsigned char* bytes = PQunescapeBytea(reinterpret_cast<const unsigned char*>(escaped.constData()), &length);
        QByteArray out(reinterpret_cast<const char*>(bytes), qsizetype(length));
        PQfreemem(bytes);
        return out;
    }
    default:
        return QString::fromUtf8(data, size);
    }
}

QList<ColumnInfo> columnsOf(const PGresult* result)
{
    QList<ColumnInfo> columns;
    const int count = PQnfields(result);
    columns.reserve(count);
    for (int c = 0; c < count; ++c)
        columns.append({QString::fromUtf8(PQfname(result, c)), kindOfOid(PQftype(result, c))});
    return columns;
}

// A statement's rows read at once: the PGresult itself is the row store.
class PostgresResult final : public ResultData {
public:
    explicit PostgresResult(PGresult* result) : m_result(result) { m_columns = columnsOf(result); }
    ~PostgresResult() override { PQclear(m_result); }

    qsizetype rowCount() const override { return PQntuples(m_result); }

    QVariant value(qsizetype row, int column) const override
    {
        const int r = int(row);
        if (PQgetisnull(m_result, r, column))
            return {};
        return cellValue(PQgetvalue(m_result, r, column), PQgetlength(m_result, r, column), m_columns[column].kind);
    }

private:
    PGresult* m_result;
};

struct ResultClear {
    void operator()(PGresult* result) const { PQclear(result); }
};

// A server-side cursor in a read-only transaction of the stream's own connection; each
// batch is one FETCH, copied into the stream's row store and its PGresult freed at once
// (a PGresult takes about twice the room).
class PostgresStream final : public RowStream {
public:
    PostgresStream(PostgresBackend& backend, std::function<PGresult*(const QString&)> run)
        : m_backend(backend), m_run(std::move(run))
    {
    }
    ~PostgresStream() override
    {
        try {
            m_backend.rollback();
        } catch (...) {
        }
    }

    qsizetype fetch(qsizetype rows) override
    {
        if (m_done || rows <= 0)
            return 0;
        const std::unique_ptr<PGresult, ResultClear> batch(m_run(QStringLiteral("FETCH FORWARD %1 FROM qd8_stream").arg(rows)));
        if (m_columns.isEmpty())
            m_columns = columnsOf(batch.get());
        const int added = PQntuples(batch.get());
        const int columns = PQnfields(batch.get());
        for (int r = 0; r < added; ++r) {
            for (int c = 0; c < columns; ++c) {
                if (PQgetisnull(batch.get(), r, c))
                    m_rows.addNull();
                else
                    m_rows.addText(PQgetvalue(batch.get(), r, c), PQgetlength(batch.get(), r, c));
            }
            m_rows.endRow();
        }
        if (added < rows)
            m_done = true;
        return added;
    }
    bool atEnd() const override { return m_done; }
    qsizetype rowCount() const override { return m_rows.rowCount(); }
    QVariant value(qsizetype row, int column) const override
    {
        const RowStore::Cell cell = m_rows.cell(row, column);
        if (cell.type == RowStore::Type::Null)
            return {};
        return cellValue(cell.data, cell.size, m_columns[column].kind);
    }

private:
    PostgresBackend& m_backend;
    std::function<PGresult*(const QString&)> m_run;
    RowStore m_rows;
    bool m_done = false;
};

QByteArray parameterText(const QVariant& v)
{
    switch (v.typeId()) {
    case QMetaType::Bool:
        return v.toBool() ? "1" : "0";
    case QMetaType::Double:
    case QMetaType::Float:
        return QByteArray::number(v.toDouble(), 'g', 17);
    case QMetaType::QDate:
        return v.toDate().toString(Qt::ISODate).toLatin1();
    case QMetaType::QDateTime:
        return v.toDateTime().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss.zzz")).toLatin1();
    default:
        break;
    }
    if (v.typeId() == qMetaTypeId<Currency>())
        return v.value<Currency>().toFixedString().toLatin1();
    return v.toString().toUtf8();
}

bool connectionLost(PGconn* conn)
{
    return PQstatus(conn) == CONNECTION_BAD;
}

} // namespace

PostgresBackend::PostgresBackend(const ConnectionString& cs)
    : m_connInfo(cs.libpqConnInfo().toUtf8())
{
    m_conn = PQconnectdb(m_connInfo.constData());
    if (PQstatus(m_conn) != CONNECTION_OK) {
        const QString message = QString::fromUtf8(PQerrorMessage(m_conn)).trimmed();
        PQfinish(m_conn);
        m_conn = nullptr;
        throw DbError(DbError::Kind::Connection,
            QStringLiteral("Cannot connect to PostgreSQL database \"%1\": %2").arg(cs.value({"database", "initial catalog", "dbname"}), message));
    }
    PQsetNoticeProcessor(m_conn, [](void*, const char*) {}, nullptr);
    m_database = cs.value({"database", "initial catalog", "dbname"});
    setLockTimeout();
}

void PostgresBackend::setLockTimeout()
{
    // A row another user holds locked is waited for as long as SQLite waits, then reported.
    PQclear(PQexec(m_conn, QStringLiteral("SET lock_timeout = %1").arg(LockTimeoutMs).toUtf8().constData()));
}

PostgresBackend::~PostgresBackend()
{
    PQfinish(m_conn);
}

bool PostgresBackend::reconnect()
{
    m_prepared.clear();
    m_seen.clear();
    PQreset(m_conn);
    if (PQstatus(m_conn) != CONNECTION_OK)
        return false;
    setLockTimeout();
    return true;
}

bool PostgresBackend::validate()
{
    if (connectionLost(m_conn))
        return reconnect();
    // An idle connection has nothing to read unless the server said goodbye (a restart
    // sends a FATAL notice and closes the socket): a poll costs no round trip.
    pollfd fd{PQsocket(m_conn), POLLIN, 0};
    if (fd.fd < 0)
        return reconnect();
    if (poll(&fd, 1, 0) > 0) {
        if (!PQconsumeInput(m_conn) || connectionLost(m_conn))
            return reconnect();
        while (PGnotify* n = PQnotifies(m_conn))
            PQfreemem(n);
    }
    return true;
}

PGresult* PostgresBackend::send(const QByteArray& sql, const QString& text, const QVariantList& params)
{
    std::vector<QByteArray> values;
    std::vector<const char*> pointers;
    values.reserve(size_t(params.size()));
    pointers.reserve(size_t(params.size()));
    for (const QVariant& p : params) {
        if (p.isNull()) {
            values.emplace_back();
            pointers.push_back(nullptr);
        } else {
            values.push_back(parameterText(p));
            pointers.push_back(values.back().constData());
        }
    }
    const int count = int(params.size());
    if (auto it = m_prepared.constFind(text); it != m_prepared.constEnd())
        return await(PQsendQueryPrepared(m_conn, it->constData(), count, pointers.data(), nullptr, nullptr, 0), text);

    // A statement met again is worth a server-side plan; one-off statements are not.
    // Composed texts embed their values, so the memory of texts met once stays bounded.
    if (m_seen.size() >= MaxRemembered)
        m_seen.clear();
    int& seen = m_seen[text];
    if (++seen >= 2 && m_prepared.size() < MaxPrepared) {
        const QByteArray name = "qd8_" + QByteArray::number(++m_preparedNames);
        PGresult* prepared = PQprepare(m_conn, name.constData(), sql.constData(), count, nullptr);
        const bool ok = PQresultStatus(prepared) == PGRES_COMMAND_OK;
        PQclear(prepared);
        if (ok) {
            m_prepared.insert(text, name);
            m_seen.remove(text);
            return await(PQsendQueryPrepared(m_conn, name.constData(), count, pointers.data(), nullptr, nullptr, 0), text);
        }
    }
    return await(PQsendQueryParams(m_conn, sql.constData(), count, nullptr, pointers.data(), nullptr, nullptr, 0), text);
}

PGresult* PostgresBackend::await(int sent, const QString& text)
{
    if (!sent)
        return nullptr;  // PQerrorMessage says why
    // Waiting for the answer without blocking in libpq, so that a statement another
    // writer's lock holds up says so and can be cancelled.
    m_wait.reset();
    while (PQisBusy(m_conn)) {
        pollfd fd{PQsocket(m_conn), POLLIN, 0};
        if (poll(&fd, 1, 20) < 0 && errno != EINTR)
            break;
        if (!PQconsumeInput(m_conn) || !PQisBusy(m_conn))
            break;
        if (!m_wait)
            m_wait = std::make_unique<LockWait>(text, m_database);
        if (!m_wait->cancelled() && !m_wait->waiting()) {
            if (PGcancel* cancel = PQgetCancel(m_conn)) {
                char error[256];
                PQcancel(cancel, error, sizeof error);
                PQfreeCancel(cancel);
            }
        }
    }
    PGresult* result = nullptr;
    while (PGresult* next = PQgetResult(m_conn)) {
        if (result)
            PQclear(result);
        result = next;
    }
    return result;
}

PGresult* PostgresBackend::run(const QString& sql, const QVariantList& params)
{
    const QByteArray utf8 = sql.toUtf8();
    const bool wasIdle = PQtransactionStatus(m_conn) == PQTRANS_IDLE;
    PGresult* result = send(utf8, sql, params);
    ExecStatusType status = PQresultStatus(result);
    if ((status == PGRES_FATAL_ERROR || !result) && connectionLost(m_conn) && wasIdle) {
        // The server went away between two operations; outside a transaction nothing was
        // half-done, so reconnect and run the statement once more.
        PQclear(result);
        if (!reconnect())
            throw DbError(DbError::Kind::Connection,
                QStringLiteral("The connection to PostgreSQL was lost: %1").arg(QString::fromUtf8(PQerrorMessage(m_conn)).trimmed()), sql);
        result = send(utf8, sql, params);
        status = PQresultStatus(result);
    }
    if (status != PGRES_TUPLES_OK && status != PGRES_COMMAND_OK) {
        const char* state = PQresultErrorField(result, PG_DIAG_SQLSTATE);
        const QString message = QString::fromUtf8(result ? PQresultErrorMessage(result) : PQerrorMessage(m_conn)).trimmed();
        const bool lost = connectionLost(m_conn);
        if (state && QByteArrayView(state) == "0A000" && m_prepared.contains(sql))
            m_prepared.remove(sql);  // plan outdated by a schema change; prepare again next time
        PQclear(result);
        const auto wait = std::move(m_wait);
        if (wait && wait->cancelled() && state && QByteArrayView(state) == "57014")
            throw wait->cancelledError(sql);
        if (state && (QByteArrayView(state) == "55P03" || QByteArrayView(state) == "40P01"))
            throw DbError(DbError::Kind::Locked, message, sql)
                .explain(QStringLiteral("ฐานข้อมูล \"%1\" มีโปรแกรมหรือผู้ใช้อื่นกำลังบันทึกรายการเดียวกันอยู่ รอแล้ว %2 วินาที กรุณาลองใหม่เมื่อเสร็จแล้ว")
                             .arg(m_database).arg(LockTimeoutMs / 1000),
                    QStringLiteral("Another program or user is writing the same entries of the database \"%1\"; waited %2 s for it. Try again when it is done.")
                        .arg(m_database).arg(LockTimeoutMs / 1000));
        throw DbError(lost ? DbError::Kind::Connection : DbError::Kind::Engine, message, sql);
    }
    m_wait.reset();
    return result;
}

std::unique_ptr<ResultData> PostgresBackend::query(const QString& sql, const QVariantList& params)
{
    return std::make_unique<PostgresResult>(run(sql, params));
}

qint64 PostgresBackend::execute(const QString& sql, const QVariantList& params)
{
    PGresult* result = run(sql, params);
    const qint64 affected = QByteArray(PQcmdTuples(result)).toLongLong();
    PQclear(result);
    return affected;
}

std::unique_ptr<RowStream> PostgresBackend::stream(const QString& sql, qsizetype firstRows)
{
    simple("BEGIN READ ONLY");
    try {
        PQclear(run(QStringLiteral("DECLARE qd8_stream NO SCROLL CURSOR FOR ") + sql, {}));
    } catch (...) {
        rollback();
        throw;
    }
    auto stream = std::make_unique<PostgresStream>(*this, [this](const QString& fetch) { return run(fetch, {}); });
    stream->fetch(qMax<qsizetype>(firstRows, 1));
    return stream;
}

void PostgresBackend::simple(const char* sql)
{
    PQclear(run(QString::fromLatin1(sql), {}));
}

void PostgresBackend::begin()
{
    simple("BEGIN");
}

void PostgresBackend::commit()
{
    simple("COMMIT");
}

void PostgresBackend::rollback()
{
    if (inTransaction())
        simple("ROLLBACK");
}

bool PostgresBackend::inTransaction() const
{
    const PGTransactionStatusType status = PQtransactionStatus(m_conn);
    return status == PQTRANS_INTRANS || status == PQTRANS_INERROR || status == PQTRANS_ACTIVE;
}

QStringList PostgresBackend::primaryKey(const QString& table)
{
    if (auto it = m_keys.constFind(table.toLower()); it != m_keys.constEnd())
        return *it;
    QStringList keys;
    const QString sql = QStringLiteral(
        "SELECT a.attname FROM pg_index i JOIN pg_attribute a ON a.attrelid = i.indrelid AND a.attnum = ANY(i.indkey) "
        "WHERE i.indrelid = to_regclass($1) AND i.indisprimary ORDER BY array_position(i.indkey::int2[], a.attnum)");
    auto rows = query(sql, {table});
    for (qsizetype r = 0; r < rows->rowCount(); ++r)
        keys << rows->value(r, 0).toString();
    m_keys.insert(table.toLower(), keys);
    return keys;
}

} // namespace qd8
