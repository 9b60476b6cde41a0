#include "foundation/RowStore.h"

#include <cstring>

namespace qd8 {

namespace {

// The first chunk of a store: the few rows of most statements take a few kilobytes.
constexpr qsizetype FirstChunkBytes = 4096;
constexpr qsizetype MaxVarintBytes = 10;

char* putVarint(char* p, quint64 value)
{
    while (value >= 0x80) {
        *p++ = char(value | 0x80);
        value >>= 7;
    }
    *p++ = char(value);
    return p;
}

const char* getVarint(const char* p, quint64& value)
{
    quint64 result = 0;
    for (int shift = 0;; shift += 7) {
        const auto byte = quint8(*p++);
        result |= quint64(byte & 0x7f) << shift;
        if (!(byte & 0x80))
            break;
    }
    value = result;
    return p;
}

// Small negative numbers stay short too.
quint64 zigzag(qint64 value)
{
    return (quint64(value) << 1) ^ quint64(value >> 63);
}

qint64 unzigzag(quint64 value)
{
    return qint64(value >> 1) ^ -qint64(value & 1);
}

const char* skipCell(const char* p)
{
    const auto type = RowStore::Type(quint8(*p++));
    quint64 value = 0;
    switch (type) {
    case RowStore::Type::Integer:
        return getVarint(p, value);
    case RowStore::Type::Real:
        return p + sizeof(double);
    case RowStore::Type::Text:
    case RowStore::Type::Blob:
        p = getVarint(p, value);
        return p + value;
    case RowStore::Type::Null:
        break;
    }
    return p;
}

} // namespace

RowStore::RowStore(qsizetype chunkBytes)
    : m_chunkBytes(qMax<qsizetype>(chunkBytes, 16))
{
}

RowStore::~RowStore() = default;

char* RowStore::room(qsizetype bytes)
{
    if (m_used + bytes <= m_capacity)
        return m_chunk + m_used;
    const qsizetype started = m_used - m_rowStart;
    const qsizetype grown = qMin(m_chunkBytes, qMax(FirstChunkBytes, m_capacity * 2));
    const qsizetype capacity = qMax(grown, started + bytes);
    std::unique_ptr<char[]> chunk(new char[size_t(capacity)]);
    if (started > 0)
        std::memcpy(chunk.get(), m_chunk + m_rowStart, size_t(started));
    if (m_rowStart == 0 && !m_chunks.empty()) {
        // The full chunk holds nothing but the row being added, which has just moved.
        m_chunkTotal -= m_capacity;
        m_chunks.back() = std::move(chunk);
    } else {
        m_chunks.push_back(std::move(chunk));
    }
    m_chunk = m_chunks.back().get();
    m_capacity = capacity;
    m_chunkTotal += capacity;
    m_used = started;
    m_rowStart = 0;
    return m_chunk + m_used;
}

void RowStore::addNull()
{
    *room(1) = char(Type::Null);
    ++m_used;
}

void RowStore::addInteger(qint64 value)
{
    char* p = room(1 + MaxVarintBytes);
    *p = char(Type::Integer);
    m_used = putVarint(p + 1, zigzag(value)) - m_chunk;
}

void RowStore::addReal(double value)
{
    char* p = room(1 + qsizetype(sizeof value));
    *p = char(Type::Real);
    std::memcpy(p + 1, &value, sizeof value);
    m_used += 1 + qsizetype(sizeof value);
}

void RowStore::addText(const char* data, qsizetype size)
{
    addBytes(Type::Text, data, size);
}

void RowStore::addBlob(const char* data, qsizetype size)
{
    addBytes(Type::Blob, data, size);
}

void RowStore::addBytes(Type type, const char* data, qsizetype size)
{
    char* p = room(1 + MaxVarintBytes + size);
    *p = char(type);
    p = putVarint(p + 1, quint64(size));
    if (size > 0)
        std::memcpy(p, data, size_t(size));
    m_used = p + size - m_chunk;
}

void RowStore::endRow()
{
    if (!m_chunk)
        room(0);
    m_rows.push_back(quint64(m_chunks.size() - 1) << 32 | quint64(m_rowStart));
    m_rowStart = m_used;
}

RowStore::Cell RowStore::cell(qsizetype row, int column) const
{
    const quint64 at = m_rows[size_t(row)];
    const char* p = m_chunks[size_t(at >> 32)].get() + (at & 0xffffffffu);
    for (int c = 0; c < column; ++c)
        p = skipCell(p);
    Cell cell;
    cell.type = Type(quint8(*p++));
    quint64 value = 0;
    switch (cell.type) {
    case Type::Integer:
        getVarint(p, value);
        cell.integer = unzigzag(value);
        break;
    case Type::Real:
        std::memcpy(&cell.real, p, sizeof cell.real);
        break;
    case Type::Text:
    case Type::Blob:
        cell.data = getVarint(p, value);
        cell.size = qsizetype(value);
        break;
    case Type::Null:
        break;
    }
    return cell;
}

qsizetype RowStore::bytesHeld() const
{
    return m_chunkTotal + qsizetype(m_rows.capacity() * sizeof(quint64));
}

} // namespace qd8
