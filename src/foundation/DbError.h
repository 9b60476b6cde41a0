#pragma once

#include <QString>
#include <stdexcept>

namespace qd8 {

// A failed database operation: what the engine (or the data layer) said, and the
// statement it was running. Thrown by Connection and Recordset; each control decides
// at its own boundary whether to ignore it, stop, or show it. A user is shown userText()
// (one sentence in the session language saying what failed) with detail() under it.
class DbError : public std::runtime_error {
public:
    enum class Kind {
        Engine,      // the database engine refused the statement
        Connection,  // could not connect, the connection was lost, or the file is no longer the one opened
        Refused,     // the data layer refused to send the statement (a quote in a text, a non-number)
        Conflict,    // an optimistic update found no row: someone else changed or deleted it
        Usage,       // the caller used the API wrongly (closed connection, unknown field...)
        Locked,      // another program or user held the database longer than the wait allows
        ReadOnly     // the database may be read but not written
    };

    DbError(Kind kind, const QString& message, const QString& statement = {});

    Kind kind() const { return m_kind; }
    const QString& message() const { return m_message; }
    const QString& statement() const { return m_statement; }

    // The sentence a user is told: the one set by explain() where the cause is known in
    // plain words, else a sentence for the kind. Never the engine's own text.
    QString userText(int languageId) const;
    // The engine's (or data layer's) own words, when they add anything to userText().
    QString detail(int languageId) const;
    // What a user is shown: userText(), and detail() after `separator` when there is one.
    QString report(int languageId, const QString& separator = QStringLiteral("\n\n")) const;
    // Sets the user sentence, in Thai and English (or one already in the session language).
    DbError& explain(const QString& thai, const QString& english);
    DbError& explain(const QString& text) { return explain(text, text); }

private:
    Kind m_kind;
    QString m_message;
    QString m_statement;
    QString m_userThai;
    QString m_userEnglish;
};

} // namespace qd8
