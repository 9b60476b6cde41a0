#include "foundation/Cursor.h"

namespace qd8 {

Cursor::Cursor() = default;

Cursor::~Cursor()
{
    close();
}

void Cursor::open(const Sql& sql, const QString& connectionString, qsizetype firstRows)
{
    close();
    m_connection.open(connectionString);
    try {
        m_stream = m_connection.stream(sql, firstRows);
    } catch (...) {
        m_connection.close();
        throw;
    }
    const auto& columns = m_stream->columns();
    for (int c = 0; c < columns.size(); ++c)
        m_index.insert(columns[c].name.toLower(), c);
}

qsizetype Cursor::fetch(qsizetype rows)
{
    return m_stream ? m_stream->fetch(rows) : 0;
}

bool Cursor::atEnd() const
{
    return !m_stream || m_stream->atEnd();
}

void Cursor::close()
{
    m_stream.reset();  // before the connection goes back to the pool
    m_connection.close();
    m_index.clear();
}

qsizetype Cursor::rowCount() const
{
    return m_stream ? m_stream->rowCount() : 0;
}

int Cursor::columnCount() const
{
    return m_stream ? int(m_stream->columns().size()) : 0;
}

QString Cursor::columnName(int column) const
{
    return m_stream && column >= 0 && column < columnCount() ? m_stream->columns()[column].name : QString();
}

int Cursor::columnIndex(const QString& name) const
{
    return m_index.value(name.toLower(), -1);
}

QVariant Cursor::value(qsizetype row, int column) const
{
    return m_stream->value(row, column);
}

} // namespace qd8
