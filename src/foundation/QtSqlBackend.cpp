#include "foundation/QtSqlBackend_p.h"

#include "foundation/ConnectionPool.h"
#include "foundation/Currency.h"
#include "foundation/DbError.h"

#include <QAtomicInt>
#include <QCoreApplication>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlField>
#include <QSqlIndex>
#include <QSqlQuery>
#include <QSqlRecord>

namespace qd8 {

namespace {

QAtomicInt connectionCounter;

class QtSqlResult final : public ResultData {
public:
    explicit QtSqlResult(QSqlQuery& query)
    {
        const QSqlRecord record = query.record();
        for (int c = 0; c < record.count(); ++c) {
            const QSqlField field = record.field(c);
            ColumnKind kind = ColumnKind::Auto;
            if (field.precision() == 4 && (field.metaType().id() == QMetaType::Double || field.metaType().id() == QMetaType::QString))
                kind = ColumnKind::Money;
            m_columns.append({field.name(), kind});
        }
        while (query.next())
            for (int c = 0; c < record.count(); ++c)
                m_values.append(query.value(c));
    }

    qsizetype rowCount() const override { return m_columns.isEmpty() ? 0 : m_values.size() / m_columns.size(); }

    QVariant value(qsizetype row, int column) const override
    {
        const QVariant& v = m_values[row * m_columns.size() + column];
        if (v.isNull())
            return {};
        if (m_columns[column].kind == ColumnKind::Money) {
            if (auto c = Currency::parse(v.toString()))
                return QVariant::fromValue(*c);
        }
        return v;
    }

private:
    QVariantList m_values;
};

class QtSqlStream final : public RowStream {
public:
    explicit QtSqlStream(QSqlQuery query) : m_query(std::move(query))
    {
        const QSqlRecord record = m_query.record();
        for (int c = 0; c < record.count(); ++c)
            m_columns.append({record.fieldName(c), ColumnKind::Auto});
    }
    qsizetype fetch(qsizetype rows) override
    {
        qsizetype added = 0;
        while (!m_done && added < rows) {
            if (!m_query.next()) {
                m_done = true;
                break;
            }
            for (int c = 0; c < m_columns.size(); ++c)
                m_values.append(m_query.value(c));
            ++added;
        }
        return added;
    }
    bool atEnd() const override { return m_done; }
    qsizetype rowCount() const override { return m_columns.isEmpty() ? 0 : m_values.size() / m_columns.size(); }
    QVariant value(qsizetype row, int column) const override
    {
        const QVariant& v = m_values[row * m_columns.size() + column];
        return v.isNull() ? QVariant() : v;
    }

private:
    QSqlQuery m_query;
    QVariantList m_values;
    bool m_done = false;
};

[[noreturn]] void fail(const QSqlError& error, const QString& sql)
{
    const auto kind = error.type() == QSqlError::ConnectionError ? DbError::Kind::Connection : DbError::Kind::Engine;
    throw DbError(kind, error.text(), sql);
}

QSqlQuery run(const QString& name, const QString& sql, const QVariantList& params)
{
    QSqlQuery query(QSqlDatabase::database(name, false));
    query.setForwardOnly(true);
    if (!query.prepare(sql))
        fail(query.lastError(), sql);
    for (const QVariant& p : params)
        query.addBindValue(p.typeId() == qMetaTypeId<Currency>() ? QVariant(p.value<Currency>().toFixedString()) : p);
    if (!query.exec())
        fail(query.lastError(), sql);
    return query;
}

} // namespace

QtSqlBackend::QtSqlBackend(const ConnectionString& cs)
    : m_name(QStringLiteral("qd8-%1").arg(connectionCounter.fetchAndAddRelaxed(1)))
{
    // Qt SQL's registry of connections dies with the application object: pooled Qt SQL
    // connections must be closed before it, not at the end of the program.
    static const bool closeWithApplication = (qAddPostRoutine([] { ConnectionPool::instance().clear(); }), true);
    Q_UNUSED(closeWithApplication);
    QSqlDatabase db = QSqlDatabase::addDatabase(cs.qtDriver(), m_name);
    if (!db.isValid()) {
        QSqlDatabase::removeDatabase(m_name);
        throw DbError(DbError::Kind::Connection, QStringLiteral("The Qt SQL driver %1 is not installed").arg(cs.qtDriver()));
    }
    db.setDatabaseName(cs.odbcConnectString());
    db.setUserName(cs.value({"user id", "uid"}));
    db.setPassword(cs.value({"password", "pwd"}));
    if (!db.open()) {
        const QString message = db.lastError().text();
        db = QSqlDatabase();
        QSqlDatabase::removeDatabase(m_name);
        throw DbError(DbError::Kind::Connection, QStringLiteral("Cannot open the ODBC data source: %1").arg(message));
    }
}

QtSqlBackend::~QtSqlBackend()
{
    {
        QSqlDatabase db = QSqlDatabase::database(m_name, false);
        db.close();
    }
    QSqlDatabase::removeDatabase(m_name);
}

std::unique_ptr<ResultData> QtSqlBackend::query(const QString& sql, const QVariantList& params)
{
    QSqlQuery query = run(m_name, sql, params);
    return std::make_unique<QtSqlResult>(query);
}

std::unique_ptr<RowStream> QtSqlBackend::stream(const QString& sql, qsizetype firstRows)
{
    auto stream = std::make_unique<QtSqlStream>(run(m_name, sql, {}));
    stream->fetch(firstRows);
    return stream;
}

qint64 QtSqlBackend::execute(const QString& sql, const QVariantList& params)
{
    return run(m_name, sql, params).numRowsAffected();
}

void QtSqlBackend::begin()
{
    QSqlDatabase db = QSqlDatabase::database(m_name, false);
    if (!db.transaction())
        fail(db.lastError(), QStringLiteral("BEGIN"));
    m_inTransaction = true;
}

void QtSqlBackend::commit()
{
    QSqlDatabase db = QSqlDatabase::database(m_name, false);
    if (!db.commit())
        fail(db.lastError(), QStringLiteral("COMMIT"));
    m_inTransaction = false;
}

void QtSqlBackend::rollback()
{
    if (!m_inTransaction)
        return;
    m_inTransaction = false;
    QSqlDatabase db = QSqlDatabase::database(m_name, false);
    if (!db.rollback())
        fail(db.lastError(), QStringLiteral("ROLLBACK"));
}

bool QtSqlBackend::validate()
{
    return QSqlDatabase::database(m_name, false).isOpen();
}

QStringList QtSqlBackend::primaryKey(const QString& table)
{
    const QSqlIndex index = QSqlDatabase::database(m_name, false).primaryIndex(table);
    QStringList keys;
    for (int i = 0; i < index.count(); ++i)
        keys << index.fieldName(i);
    return keys;
}

} // namespace qd8
