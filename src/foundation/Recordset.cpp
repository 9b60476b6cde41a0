#include "foundation/Recordset.h"

#include "foundation/Backend.h"
#include "foundation/Connection.h"
#include "foundation/DbError.h"
#include "foundation/Values.h"

#include <QRegularExpression>

namespace qd8 {

namespace {

// The table of "SELECT * FROM <table> [WHERE ...]": the only shape a recordset writes to.
QString updatableTable(const QString& sql)
{
    static const QRegularExpression shape(
        QStringLiteral(R"(^\s*SELECT\s+\*\s+FROM\s+([A-Za-z_][A-Za-z0-9_]*)\s*(?:WHERE\b.*|ORDER\s+BY\b.*)?;?\s*$)"),
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::DotMatchesEverythingOption);
    const auto match = shape.match(sql);
    return match.hasMatch() ? match.captured(1) : QString();
}

} // namespace

Recordset::Recordset() = default;
Recordset::~Recordset() = default;
Recordset::Recordset(Recordset&&) noexcept = default;
Recordset& Recordset::operator=(Recordset&&) noexcept = default;

void Recordset::open(const Sql& sql, Connection& connection, CursorType, LockType lock)
{
    close();
    m_data = connection.query(sql);
    m_connection = &connection;
    m_connectionState = connection.state();
    const auto& columns = m_data->columns();
    for (int c = 0; c < columns.size(); ++c) {
        m_index.insert(columns[c].name, c);
        m_lowerIndex.insert(columns[c].name.toLower(), c);
    }
    if (lock != adLockReadOnly) {
        m_table = updatableTable(sql.text());
        m_updatable = !m_table.isEmpty();
    }
}

void Recordset::close()
{
    m_data.reset();
    m_connection = nullptr;
    m_connectionState.reset();
    m_table.clear();
    m_updatable = false;
    m_index.clear();
    m_lowerIndex.clear();
    m_spellings.clear();
    m_position = 0;
    m_changed.clear();
    m_added.clear();
    cancelUpdate();
}

bool Recordset::isOpen() const
{
    return m_data != nullptr;
}

qsizetype Recordset::recordCount() const
{
    return m_data ? m_data->rowCount() + qsizetype(m_added.size()) : 0;
}

bool Recordset::eof() const
{
    return m_position >= recordCount();
}

bool Recordset::bof() const
{
    return m_position < 0 || recordCount() == 0;
}

void Recordset::moveNext()
{
    if (m_position < recordCount())
        ++m_position;
}

void Recordset::movePrevious()
{
    if (m_position >= 0)
        --m_position;
}

void Recordset::moveFirst()
{
    m_position = 0;
}

void Recordset::moveLast()
{
    m_position = recordCount() - 1;
}

void Recordset::setPosition(qsizetype row)
{
    m_position = qBound<qsizetype>(-1, row, recordCount());
}

int Recordset::fieldCount() const
{
    return m_data ? int(m_data->columns().size()) : 0;
}

QString Recordset::fieldName(int index) const
{
    return m_data && index >= 0 && index < fieldCount() ? m_data->columns()[index].name : QString();
}

int Recordset::fieldIndex(const QString& name) const
{
    if (auto it = m_index.constFind(name); it != m_index.constEnd())
        return *it;
    // Controls spell a field the same way on every row: remember each spelling once.
    if (auto it = m_spellings.constFind(name); it != m_spellings.constEnd())
        return *it;
    const int index = m_lowerIndex.value(name.toLower(), -1);
    if (index >= 0)
        m_spellings.insert(name, index);
    return index;
}

int Recordset::requireField(const QString& name) const
{
    if (!m_data)
        throw DbError(DbError::Kind::Usage, QStringLiteral("The recordset is not open"));
    const int index = fieldIndex(name);
    if (index < 0)
        throw DbError(DbError::Kind::Usage, QStringLiteral("The recordset has no field \"%1\"").arg(name));
    return index;
}

void Recordset::requireRow() const
{
    if (!m_data)
        throw DbError(DbError::Kind::Usage, QStringLiteral("The recordset is not open"));
    if (m_editMode == EditMode::Add)
        return;
    if (m_position < 0 || m_position >= recordCount())
        throw DbError(DbError::Kind::Usage, QStringLiteral("There is no current row (the recordset is at BOF or EOF)"));
}

QVariant Recordset::stored(qsizetype row, int column) const
{
    const qsizetype base = m_data->rowCount();
    if (row >= base)
        return m_added[size_t(row - base)][column];
    if (!m_changed.isEmpty())
        if (auto it = m_changed.constFind(row); it != m_changed.constEnd())
            return (*it)[column];
    return m_data->value(row, column);
}

QVariant Recordset::field(int index) const
{
    requireRow();
    if (index < 0 || index >= fieldCount())
        throw DbError(DbError::Kind::Usage, QStringLiteral("The recordset has no field number %1").arg(index));
    if (m_editMode != EditMode::None && m_touched[size_t(index)])
        return m_buffer[index];
    if (m_editMode == EditMode::Add)
        return {};
    return stored(m_position, index);
}

QVariant Recordset::field(const QString& name) const
{
    return field(requireField(name));
}

QString Recordset::text(const QString& name) const
{
    return qd8::text(field(name));
}

Currency Recordset::currency(const QString& name) const
{
    return toCurrency(field(name));
}

void Recordset::addNew()
{
    if (!m_updatable)
        throw DbError(DbError::Kind::Usage, QStringLiteral("The recordset was not opened for writing on SELECT * FROM a table"));
    m_editMode = EditMode::Add;
    m_buffer = QVariantList(fieldCount());
    m_touched.assign(size_t(fieldCount()), false);
}

void Recordset::setField(const QString& name, const QVariant& value)
{
    if (!m_updatable)
        throw DbError(DbError::Kind::Usage, QStringLiteral("The recordset was not opened for writing on SELECT * FROM a table"));
    const int index = requireField(name);
    if (m_editMode == EditMode::None) {
        requireRow();
        m_editMode = EditMode::Edit;
        m_buffer = QVariantList(fieldCount());
        m_touched.assign(size_t(fieldCount()), false);
    }
    m_buffer[index] = value;
    m_touched[size_t(index)] = true;
}

void Recordset::cancelUpdate()
{
    m_editMode = EditMode::None;
    m_buffer.clear();
    m_touched.clear();
}

void Recordset::update()
{
    if (m_editMode == EditMode::None)
        return;
    if (m_connectionState.expired() || !m_connection || !m_connection->isOpen())
        throw DbError(DbError::Kind::Usage, QStringLiteral("The connection of the recordset is closed"));
    if (m_editMode == EditMode::Add)
        insertRow();
    else
        updateRow();
    cancelUpdate();
}

void Recordset::insertRow()
{
    Backend& backend = m_connection->backend();
    QStringList names, marks;
    QVariantList params;
    for (int c = 0; c < fieldCount(); ++c) {
        if (!m_touched[size_t(c)])
            continue;
        names << fieldName(c);
        params << m_buffer[c];
        marks << backend.placeholder(int(params.size()));
    }
    const QString sql = QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)").arg(m_table, names.join(QLatin1Char(',')), marks.join(QLatin1Char(',')));
    m_connection->execute(Sql(sql), params);
    QVariantList row(fieldCount());
    for (int c = 0; c < fieldCount(); ++c)
        if (m_touched[size_t(c)])
            row[c] = m_buffer[c];
    m_added.push_back(row);
    m_position = recordCount() - 1;
}

void Recordset::updateRow()
{
    Backend& backend = m_connection->backend();
    QStringList keys = backend.primaryKey(m_table);
    QStringList sets, where;
    QVariantList params;
    for (int c = 0; c < fieldCount(); ++c) {
        if (!m_touched[size_t(c)])
            continue;
        params << m_buffer[c];
        sets << fieldName(c) + QLatin1Char('=') + backend.placeholder(int(params.size()));
    }
    // The row is found by its original key values; the changed fields must still hold
    // what was read, or someone else has changed them meanwhile. Without a primary key,
    // every original value identifies the row.
    std::vector<bool> inWhere(size_t(fieldCount()), keys.isEmpty());
    for (const QString& key : keys) {
        const int index = fieldIndex(key);
        if (index >= 0)
            inWhere[size_t(index)] = true;
    }
    for (int c = 0; c < fieldCount(); ++c) {
        if (!inWhere[size_t(c)] && !m_touched[size_t(c)])
            continue;
        const QVariant original = stored(m_position, c);
        if (original.isNull()) {
            where << fieldName(c) + QStringLiteral(" IS NULL");
        } else {
            params << original;
            where << fieldName(c) + QLatin1Char('=') + backend.placeholder(int(params.size()));
        }
    }
    const QString sql = QStringLiteral("UPDATE %1 SET %2 WHERE %3").arg(m_table, sets.join(QLatin1Char(',')), where.join(QStringLiteral(" AND ")));
    const qint64 affected = m_connection->execute(Sql(sql), params);
    if (affected == 0)
        throw DbError(DbError::Kind::Conflict,
            QStringLiteral("The row of %1 was changed or deleted by another user since it was read; nothing was written").arg(m_table), sql);
    QVariantList row(fieldCount());
    for (int c = 0; c < fieldCount(); ++c)
        row[c] = m_touched[size_t(c)] ? m_buffer[c] : stored(m_position, c);
    m_changed.insert(m_position, row);
}

} // namespace qd8
