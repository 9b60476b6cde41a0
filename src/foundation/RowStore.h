#pragma once

#include <QtGlobal>
#include <memory>
#include <vector>

namespace qd8 {

// The rows a statement has read, packed for lists of a million rows. Cells go one after
// another into chunks (growing from a few kilobytes to `chunkBytes`, then all that size),
// each cell a type byte, a length where the type needs one, and its bytes; every row costs
// one 8-byte position more. A row never spans two chunks, so the store grows without ever
// moving what it holds. Text stays in the engine's UTF-8 until a cell is read.
class RowStore {
public:
    enum class Type : quint8 { Null, Integer, Real, Text, Blob };

    struct Cell {
        Type type = Type::Null;
        qint64 integer = 0;
        double real = 0;
        const char* data = nullptr;  // text and blob bytes, not NUL-terminated
        qsizetype size = 0;
    };

    static constexpr qsizetype DefaultChunkBytes = qsizetype(1) << 20;

    explicit RowStore(qsizetype chunkBytes = DefaultChunkBytes);
    ~RowStore();
    RowStore(const RowStore&) = delete;
    RowStore& operator=(const RowStore&) = delete;

    // A row is its cells added in column order, then endRow().
    void addNull();
    void addInteger(qint64 value);
    void addReal(double value);
    void addText(const char* data, qsizetype size);
    void addBlob(const char* data, qsizetype size);
    void endRow();

    qsizetype rowCount() const { return qsizetype(m_rows.size()); }
    // The column-th cell of a stored row, found by walking the cells before it. Its bytes
    // stay valid while the store lives.
    Cell cell(qsizetype row, int column) const;
    // Bytes taken by the chunks and the row positions.
    qsizetype bytesHeld() const;

private:
    // Room for `bytes` more bytes of the row being added; moves that row to a new chunk
    // when the current one is full.
    char* room(qsizetype bytes);
    void addBytes(Type type, const char* data, qsizetype size);

    qsizetype m_chunkBytes;
    std::vector<std::unique_ptr<char[]>> m_chunks;
    std::vector<quint64> m_rows;  // chunk index << 32 | offset in the chunk
    char* m_chunk = nullptr;      // the chunk rows are added to
    qsizetype m_capacity = 0;
    qsizetype m_used = 0;
    qsizetype m_rowStart = 0;     // where the row being added begins in m_chunk
    qsizetype m_chunkTotal = 0;   // bytes of every chunk
};

} // namespace qd8
