#pragma once

#include <QList>
#include <QPair>
#include <QString>

namespace qd8 {

enum class Engine { SQLite, PostgreSQL, QtSql };

// An ADO-style "Key=Value;" connection string, parsed. Keys are case-insensitive; a value
// may be enclosed in double or single quotes (a doubled quote inside stands for one) so
// that it can hold ";".
//   Driver=SQLite;Data Source=/srv/qd8/QD8Command.dat
//   Driver=PostgreSQL;Server=127.0.0.1;Port=5432;Database=QD8Command.dat;User ID=qd8;Password=...
//   Driver=ODBC;ODBC Driver=SQLite3;Database=/srv/qd8/QD8Data.dat   (through Qt SQL)
// Parsing throws DbError (kind Usage) naming the bad part.
class ConnectionString {
public:
    static ConnectionString parse(const QString& text);

    Engine engine() const { return m_engine; }
    const QString& text() const { return m_text; }
    // Value of a key (any of the given aliases), "" when absent.
    QString value(std::initializer_list<const char*> keys) const;
    bool has(std::initializer_list<const char*> keys) const;

    // SQLite: the database file.
    QString sqliteFile() const;
    // PostgreSQL: the libpq conninfo text; absent keys fall back to libpq's PG* variables.
    QString libpqConnInfo() const;
    // Qt SQL: the Qt driver name and the options handed to it.
    QString qtDriver() const;
    QString odbcConnectString() const;

private:
    QString m_text;
    Engine m_engine = Engine::SQLite;
    QList<QPair<QString, QString>> m_pairs;  // keys lower-cased
};

// The command-centre database sits beside the application database: its connection
// string is the application one with every "QD8Command.dat" replaced by "QD8Center.dat"
// (case-sensitive, as the suite does it).
QString commandCentreConnectionString(const QString& appConnectionString);

} // namespace qd8
