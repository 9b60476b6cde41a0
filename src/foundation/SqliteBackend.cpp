#include "foundation/SqliteBackend_p.h"

#include "foundation/LockWait_p.h"

#include "foundation/Currency.h"
#include "foundation/DbError.h"
#include "foundation/RowStore.h"
#include "foundation/Services.h"
#include "foundation/ThaiCollation.h"

#include <QFileInfo>
#include <QDate>
#include <QDateTime>
#include <QScopeGuard>
#include <sqlite3.h>
#include <sys/stat.h>
#include <unistd.h>

namespace qd8 {

namespace {

constexpr qsizetype MaxCachedStatements = 64;

ColumnKind kindOfDeclaredType(const char* declared)
{
    if (!declared)
        return ColumnKind::Auto;
    const QByteArray t = QByteArray(declared).toUpper();
    if (t.contains("INT"))
        return ColumnKind::Integer;
    if (t.contains("CHAR") || t.contains("TEXT") || t.contains("CLOB"))
        return ColumnKind::Text;
    if (t.startsWith("TIMESTAMP") || t.startsWith("DATETIME"))
        return ColumnKind::DateTime;
    if (t.startsWith("DATE"))
        return ColumnKind::Date;
    if (t.startsWith("MONEY") || t.startsWith("CURRENCY")
        || ((t.startsWith("NUMERIC") || t.startsWith("DECIMAL")) && t.contains(",4)")))
        return ColumnKind::Money;
    if (t.contains("REAL") || t.contains("DOUBLE") || t.contains("FLOAT") || t.startsWith("NUMERIC") || t.startsWith("DECIMAL"))
        return ColumnKind::Real;
    if (t.startsWith("BOOL"))
        return ColumnKind::Bool;
    if (t.contains("BLOB"))
        return ColumnKind::Blob;
    return ColumnKind::Auto;
}

QVariant integerVariant(qint64 v)
{
    return v >= INT32_MIN && v <= INT32_MAX ? QVariant(int(v)) : QVariant(qlonglong(v));
}

// Rows packed into a RowStore: a cell keeps its storage class and its bytes; text stays
// UTF-8 until a cell is read.
class SqliteResult final : public ResultData {
public:
    explicit SqliteResult(sqlite3_stmt* stmt)
    {
        const int count = sqlite3_column_count(stmt);
        m_columns.reserve(count);
        for (int c = 0; c < count; ++c)
            m_columns.append({QString::fromUtf8(sqlite3_column_name(stmt, c)), kindOfDeclaredType(sqlite3_column_decltype(stmt, c))});
    }

    void append(sqlite3_stmt* stmt)
    {
        const int count = int(m_columns.size());
        for (int c = 0; c < count; ++c) {
            switch (sqlite3_column_type(stmt, c)) {
            case SQLITE_INTEGER:
                m_rows.addInteger(sqlite3_column_int64(stmt, c));
                break;
            case SQLITE_FLOAT:
                m_rows.addReal(sqlite3_column_double(stmt, c));
                break;
            case SQLITE_TEXT: {
                const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(stmt, c));
                m_rows.addText(text, sqlite3_column_bytes(stmt, c));
                break;
            }
            case SQLITE_BLOB: {
                const void* blob = sqlite3_column_blob(stmt, c);
                m_rows.addBlob(static_cast<const char*>(blob), sqlite3_column_bytes(stmt, c));
                break;
            }
            default:
                m_rows.addNull();
                break;
            }
        }
        m_rows.endRow();
    }

    qsizetype rowCount() const override { return m_rows.rowCount(); }

    QVariant value(qsizetype row, int column) const override
    {
        const RowStore::Cell cell = m_rows.cell(row, column);
        const ColumnKind kind = m_columns[column].kind;
        switch (cell.type) {
        case RowStore::Type::Integer:
            if (kind == ColumnKind::Money)
                return QVariant::fromValue(Currency::fromInt(cell.integer));
            if (kind == ColumnKind::Bool)
                return QVariant(cell.integer != 0);
            return integerVariant(cell.integer);
        case RowStore::Type::Real:
            // SQLite keeps NUMERIC as REAL: exact to 15 significant digits.
            return kind == ColumnKind::Money ? QVariant::fromValue(Currency::fromDouble(cell.real)) : QVariant(cell.real);
        case RowStore::Type::Text:
            return textValue(cell.data, cell.size, kind);
        case RowStore::Type::Blob:
            return QByteArray(cell.data, cell.size);
        case RowStore::Type::Null:
            break;
        }
        return {};
    }

private:
    static QVariant textValue(const char* data, qsizetype size, ColumnKind kind)
    {
        switch (kind) {
        case ColumnKind::Date: {
            const QDate d = QDate::fromString(QLatin1String(data, qMin<qsizetype>(size, 10)), Qt::ISODate);
            if (d.isValid())
                return d;
            break;
        }
        case ColumnKind::DateTime: {
            QDateTime dt = QDateTime::fromString(QString::fromLatin1(data, size).replace(QLatin1Char('T'), QLatin1Char(' ')),
                size > 19 ? QStringLiteral("yyyy-MM-dd HH:mm:ss.zzz") : QStringLiteral("yyyy-MM-dd HH:mm:ss"));
            if (!dt.isValid() && size == 10)
                dt = QDate::fromString(QLatin1String(data, size), Qt::ISODate).startOfDay();
            if (dt.isValid())
                return dt;
            break;
        }
        case ColumnKind::Money:
            if (auto c = Currency::parse(data, size))
                return QVariant::fromValue(*c);
            break;
        default:
            break;
        }
        return QString::fromUtf8(data, size);
    }

    RowStore m_rows;
};

// A statement of its own, stepped a batch at a time into the result's row store.
class SqliteStream final : public RowStream {
public:
    explicit SqliteStream(sqlite3_stmt* stmt) : m_stmt(stmt), m_rows(stmt) { m_columns = m_rows.columns(); }
    ~SqliteStream() override { sqlite3_finalize(m_stmt); }

    qsizetype fetch(qsizetype rows) override
    {
        qsizetype added = 0;
        while (!m_done && added < rows) {
            const int rc = sqlite3_step(m_stmt);
            if (rc == SQLITE_ROW) {
                m_rows.append(m_stmt);
                ++added;
            } else {
                m_done = true;
                if (rc != SQLITE_DONE)
                    throw DbError(DbError::Kind::Engine, QString::fromUtf8(sqlite3_errmsg(sqlite3_db_handle(m_stmt))),
                        QString::fromUtf8(sqlite3_sql(m_stmt)));
            }
        }
        return added;
    }
    bool atEnd() const override { return m_done; }
    qsizetype rowCount() const override { return m_rows.rowCount(); }
    QVariant value(qsizetype row, int column) const override { return m_rows.value(row, column); }

private:
    sqlite3_stmt* m_stmt;
    SqliteResult m_rows;
    bool m_done = false;
};

void bind(sqlite3_stmt* stmt, int index, const QVariant& v)
{
    if (v.isNull()) {
        sqlite3_bind_null(stmt, index);
        return;
    }
    switch (v.typeId()) {
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Short:
        sqlite3_bind_int64(stmt, index, v.toLongLong());
        return;
    case QMetaType::Double:
    case QMetaType::Float:
        sqlite3_bind_double(stmt, index, v.toDouble());
        return;
    case QMetaType::QDate:
        sqlite3_bind_text(stmt, index, v.toDate().toString(Qt::ISODate).toUtf8().constData(), -1, SQLITE_TRANSIENT);
        return;
    case QMetaType::QDateTime:
        sqlite3_bind_text(stmt, index, v.toDateTime().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")).toUtf8().constData(), -1, SQLITE_TRANSIENT);
        return;
    case QMetaType::QByteArray: {
        const QByteArray b = v.toByteArray();
        sqlite3_bind_blob(stmt, index, b.constData(), int(b.size()), SQLITE_TRANSIENT);
        return;
    }
    default:
        break;
    }
    if (v.typeId() == qMetaTypeId<Currency>()) {
        // Whole amounts stay INTEGER; others are stored as REAL by the NUMERIC affinity.
        const Currency c = v.value<Currency>();
        if (c.raw() % Currency::Scale == 0)
            sqlite3_bind_int64(stmt, index, c.raw() / Currency::Scale);
        else
            sqlite3_bind_text(stmt, index, c.toFixedString().toLatin1().constData(), -1, SQLITE_TRANSIENT);
        return;
    }
    const QByteArray utf8 = v.toString().toUtf8();
    sqlite3_bind_text(stmt, index, utf8.constData(), int(utf8.size()), SQLITE_TRANSIENT);
}

} // namespace

SqliteBackend::SqliteBackend(const ConnectionString& cs)
    : m_file(cs.sqliteFile())
{
    const QByteArray file = m_file.toUtf8();
    const bool create = cs.value({"create"}).compare(QLatin1String("yes"), Qt::CaseInsensitive) == 0
        || cs.value({"create"}) == QLatin1String("1");
    // A company the user may only read (the file, or the folder its journal lives in) opens
    // for viewing; writes are refused with a message instead of failing in the engine.
    const QByteArray folder = QFileInfo(m_file).absolutePath().toUtf8();
    m_readOnly = cs.value({"mode"}).compare(QLatin1String("ReadOnly"), Qt::CaseInsensitive) == 0
        || (::access(file.constData(), F_OK) == 0 && (::access(file.constData(), W_OK) != 0 || ::access(folder.constData(), W_OK) != 0));
    const int flags = (m_readOnly ? SQLITE_OPEN_READONLY : SQLITE_OPEN_READWRITE | (create ? SQLITE_OPEN_CREATE : 0))
        | SQLITE_OPEN_NOMUTEX;
    if (sqlite3_open_v2(file.constData(), &m_db, flags, nullptr) != SQLITE_OK) {
        const QString message = m_db ? QString::fromUtf8(sqlite3_errmsg(m_db)) : QStringLiteral("out of memory");
        sqlite3_close_v2(m_db);
        m_db = nullptr;
        throw DbError(DbError::Kind::Connection, QStringLiteral("Cannot open the database file \"%1\": %2").arg(m_file, message))
            .explain(QStringLiteral("เปิดแฟ้มข้อมูล \"%1\" ไม่ได้").arg(m_file), QStringLiteral("The database file \"%1\" cannot be opened").arg(m_file));
    }
    struct stat info;
    if (::stat(file.constData(), &info) == 0) {
        m_identityKnown = true;
        m_device = info.st_dev;
        m_inode = info.st_ino;
    }
    sqlite3_busy_handler(m_db, &SqliteBackend::busyWait, this);
    sqlite3_extended_result_codes(m_db, 1);
    if (registerThaiCollation(m_db) != SQLITE_OK) {
        sqlite3_close_v2(m_db);
        m_db = nullptr;
        throw DbError(DbError::Kind::Connection, QStringLiteral("Cannot register the THAI collation (ICU th_TH missing)"));
    }
    try {
        if (!m_readOnly) {
            run("PRAGMA journal_mode=WAL");
            run("PRAGMA synchronous=NORMAL");
        }
        attach(cs.value({"attach"}));
    } catch (...) {
        sqlite3_close_v2(m_db);
        m_db = nullptr;
        throw;
    }
}

int SqliteBackend::busyWait(void* self, int count)
{
    // Another connection holds the write lock: wait as long as the busy timeout allows,
    // saying who waits for what, and give up early when the user cancels.
    auto* backend = static_cast<SqliteBackend*>(self);
    if (count == 0 && !backend->m_wait) {
        backend->m_wait = std::make_unique<LockWait>(backend->m_statement, QFileInfo(backend->m_file).fileName());
        backend->m_busySince.start();
    }
    if (backend->m_busySince.elapsed() >= BusyTimeoutMs || !backend->m_wait->waiting())
        return 0;
    sqlite3_sleep(20);
    return 1;
}

void SqliteBackend::endBusyWait()
{
    m_wait.reset();
}

bool SqliteBackend::validate()
{
    if (!m_db)
        return false;
    checkFile();
    return true;
}

void SqliteBackend::checkFile() const
{
    if (!m_identityKnown)
        return;
    struct stat info;
    if (::stat(m_file.toUtf8().constData(), &info) != 0)
        throw DbError(DbError::Kind::Connection,
            QStringLiteral("The database file \"%1\" was deleted or moved after it was opened; nothing more is written to it").arg(m_file))
            .explain(QStringLiteral("แฟ้มข้อมูล \"%1\" ถูกลบหรือย้ายไปหลังจากเปิดใช้งาน จึงไม่ได้บันทึกข้อมูลนี้").arg(m_file),
                QStringLiteral("The company file \"%1\" was deleted or moved while in use, so this was not saved").arg(m_file));
    if (info.st_dev != m_device || info.st_ino != m_inode)
        throw DbError(DbError::Kind::Connection,
            QStringLiteral("The database file \"%1\" was replaced by another file after it was opened; nothing more is written to the old one").arg(m_file))
            .explain(QStringLiteral("แฟ้มข้อมูล \"%1\" ถูกแทนที่ด้วยแฟ้มอื่นหลังจากเปิดใช้งาน จึงไม่ได้บันทึกข้อมูลนี้ กรุณาเปิดใหม่อีกครั้ง").arg(m_file),
                QStringLiteral("The company file \"%1\" was replaced by another file while in use, so this was not saved; open it again").arg(m_file));
}

void SqliteBackend::refuseWrite(const QString& sql) const
{
    throw DbError(DbError::Kind::ReadOnly, QStringLiteral("The database file \"%1\" is open read-only").arg(m_file), sql)
        .explain(QStringLiteral("แฟ้มข้อมูล \"%1\" เปิดได้เพื่อดูเท่านั้น บันทึกการเปลี่ยนแปลงไม่ได้").arg(m_file),
            QStringLiteral("The company file \"%1\" is open for viewing only; changes cannot be saved").arg(m_file));
}

void SqliteBackend::attach(const QString& files)
{
    // "Attach=file[,file...]": other databases of the installation whose tables statements
    // on this connection name unqualified, such as the catalogue beside the session tables.
    // SQLite looks for an unqualified name in the main database first, then in these.
    int number = 0;
    for (const QString& item : files.split(QLatin1Char(','), Qt::SkipEmptyParts)) {
        const QString file = item.trimmed();
        if (!QFileInfo::exists(file))
            throw DbError(DbError::Kind::Connection, QStringLiteral("Cannot attach the database file \"%1\": it does not exist").arg(file));
        QString literal = file;
        literal.replace(QLatin1Char('\''), QStringLiteral("''"));
        run(QStringLiteral("ATTACH DATABASE '%1' AS attached%2").arg(literal).arg(++number).toUtf8().constData());
    }
}

SqliteBackend::~SqliteBackend()
{
    for (sqlite3_stmt* stmt : std::as_const(m_cache))
        sqlite3_finalize(stmt);
    sqlite3_close_v2(m_db);
}

void SqliteBackend::fail(const QString& sql) const
{
    const int code = sqlite3_extended_errcode(m_db) & 0xff;
    const QString message = QString::fromUtf8(sqlite3_errmsg(m_db));
    if ((code == SQLITE_BUSY || code == SQLITE_LOCKED) && m_wait && m_wait->cancelled())
        throw m_wait->cancelledError(sql);
    if (code == SQLITE_BUSY || code == SQLITE_LOCKED)
        throw DbError(DbError::Kind::Locked, message, sql)
            .explain(QStringLiteral("โปรแกรมหรือผู้ใช้อื่นกำลังบันทึกแฟ้มข้อมูล \"%1\" อยู่ รอแล้ว %2 วินาที กรุณาลองใหม่เมื่อเสร็จแล้ว")
                         .arg(m_file).arg(BusyTimeoutMs / 1000),
                QStringLiteral("Another program or user is writing to the company file \"%1\"; waited up to %2 s for it. Try again when it is done.")
                    .arg(m_file).arg(BusyTimeoutMs / 1000));
    if (code == SQLITE_READONLY)
        refuseWrite(sql);
    const bool lost = code == SQLITE_CANTOPEN || code == SQLITE_NOTADB || code == SQLITE_IOERR || code == SQLITE_CORRUPT;
    DbError error(lost ? DbError::Kind::Connection : DbError::Kind::Engine, message, sql);
    if (lost)
        error.explain(QStringLiteral("อ่านหรือเขียนแฟ้มข้อมูล \"%1\" ไม่ได้").arg(m_file),
            QStringLiteral("The company file \"%1\" cannot be read or written").arg(m_file));
    throw error;
}

void SqliteBackend::run(const char* sql)
{
    const auto waited = qScopeGuard([this] { endBusyWait(); });
    m_statement = QString::fromUtf8(sql);
    char* error = nullptr;
    if (sqlite3_exec(m_db, sql, nullptr, nullptr, &error) != SQLITE_OK) {
        sqlite3_free(error);
        fail(QString::fromUtf8(sql));
    }
}

sqlite3_stmt* SqliteBackend::prepare(const QString& sql, const QVariantList& params)
{
    sqlite3_stmt* stmt = m_cache.value(sql);
    if (!stmt) {
        const QByteArray utf8 = sql.toUtf8();
        const char* tail = nullptr;
        if (sqlite3_prepare_v3(m_db, utf8.constData(), int(utf8.size()), SQLITE_PREPARE_PERSISTENT, &stmt, &tail) != SQLITE_OK)
            fail(sql);
        if (!stmt)
            throw DbError(DbError::Kind::Usage, QStringLiteral("The statement is empty"), sql);
        for (; tail && *tail; ++tail) {
            if (*tail != ' ' && *tail != '\n' && *tail != '\r' && *tail != '\t' && *tail != ';') {
                sqlite3_finalize(stmt);
                throw DbError(DbError::Kind::Usage, QStringLiteral("Only one statement may run at a time"), sql);
            }
        }
        if (m_cache.size() >= MaxCachedStatements) {
            for (sqlite3_stmt* old : std::as_const(m_cache))
                sqlite3_finalize(old);
            m_cache.clear();
        }
        m_cache.insert(sql, stmt);
    }
    if (params.size() != sqlite3_bind_parameter_count(stmt))
        throw DbError(DbError::Kind::Usage,
            QStringLiteral("The statement takes %1 parameters, %2 given").arg(sqlite3_bind_parameter_count(stmt)).arg(params.size()), sql);
    for (int i = 0; i < params.size(); ++i)
        bind(stmt, i + 1, params[i]);
    return stmt;
}

void SqliteBackend::finish(sqlite3_stmt* stmt, const QString&)
{
    sqlite3_reset(stmt);
    sqlite3_clear_bindings(stmt);
}

std::unique_ptr<ResultData> SqliteBackend::query(const QString& sql, const QVariantList& params)
{
    const auto waited = qScopeGuard([this] { endBusyWait(); });
    m_statement = sql;
    sqlite3_stmt* stmt = prepare(sql, params);
    auto result = std::make_unique<SqliteResult>(stmt);
    int rc;
    while ((rc = sqlite3_step(stmt)) == SQLITE_ROW)
        result->append(stmt);
    if (rc != SQLITE_DONE) {
        sqlite3_reset(stmt);
        fail(sql);
    }
    finish(stmt, sql);
    return result;
}

qint64 SqliteBackend::execute(const QString& sql, const QVariantList& params)
{
    const auto waited = qScopeGuard([this] { endBusyWait(); });
    m_statement = sql;
    // A write outside a transaction checks the file here; in one, begin and commit do.
    if (!inTransaction())
        checkFile();
    sqlite3_stmt* stmt = prepare(sql, params);
    if (m_readOnly && !sqlite3_stmt_readonly(stmt)) {
        finish(stmt, sql);
        refuseWrite(sql);
    }
    int rc;
    while ((rc = sqlite3_step(stmt)) == SQLITE_ROW) {
    }
    if (rc != SQLITE_DONE) {
        sqlite3_reset(stmt);
        fail(sql);
    }
    finish(stmt, sql);
    return sqlite3_changes64(m_db);
}

std::unique_ptr<RowStream> SqliteBackend::stream(const QString& sql, qsizetype firstRows)
{
    const QByteArray utf8 = sql.toUtf8();
    sqlite3_stmt* stmt = nullptr;
    if (sqlite3_prepare_v2(m_db, utf8.constData(), int(utf8.size()), &stmt, nullptr) != SQLITE_OK)
        fail(sql);
    auto stream = std::make_unique<SqliteStream>(stmt);
    stream->fetch(firstRows);
    return stream;
}

void SqliteBackend::begin()
{
    // IMMEDIATE takes the write lock now, so two writers queue on the busy timeout instead
    // of failing half-way through.
    checkFile();
    if (m_readOnly)
        refuseWrite(QStringLiteral("BEGIN IMMEDIATE"));
    run("BEGIN IMMEDIATE");
}

void SqliteBackend::commit()
{
    checkFile();
    run("COMMIT");
}

void SqliteBackend::rollback()
{
    if (!sqlite3_get_autocommit(m_db))
        run("ROLLBACK");
}

bool SqliteBackend::inTransaction() const
{
    return m_db && !sqlite3_get_autocommit(m_db);
}

QStringList SqliteBackend::primaryKey(const QString& table)
{
    if (auto it = m_keys.constFind(table.toLower()); it != m_keys.constEnd())
        return *it;
    QStringList keys;
    const QString sql = QStringLiteral("SELECT name FROM pragma_table_info(?) WHERE pk > 0 ORDER BY pk");
    auto rows = query(sql, {table});
    for (qsizetype r = 0; r < rows->rowCount(); ++r)
        keys << rows->value(r, 0).toString();
    m_keys.insert(table.toLower(), keys);
    return keys;
}

} // namespace qd8
