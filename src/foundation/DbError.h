#pragma once

#include <QString>
#include <stdexcept>

namespace qd8 {

// A failed database operation: what the engine (or the data layer) said, and the
// statement it was running. Thrown by Connection and Recordset; each control decides
// at its own boundary whether to ignore it, stop, or show it.
class DbError : public std::runtime_error {
public:
    enum class Kind {
        Engine,      // the database engine refused the statement
        Connection,  // could not connect, or the connection was lost
        Refused,     // the data layer refused to send the statement (a quote in a value)
        Conflict,    // an optimistic update found no row: someone else changed or deleted it
        Usage        // the caller used the API wrongly (closed connection, unknown field...)
    };

    DbError(Kind kind, const QString& message, const QString& statement = {});

    Kind kind() const { return m_kind; }
    const QString& message() const { return m_message; }
    const QString& statement() const { return m_statement; }

private:
    Kind m_kind;
    QString m_message;
    QString m_statement;
};

} // namespace qd8
