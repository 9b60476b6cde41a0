#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace qd8 {

// The three databases of an installation.
enum class DatabaseRole {
    Application,    // "QD8Command.dat": command catalogue and the editors' metadata
    CommandCentre,  // "QD8Center.dat": command caption overrides
    CompanyData     // "QD8Data.dat": session tables (users, settings, rights) and business rows
};

// The portable DDL and the sample company, compiled into the library, and what creates
// and checks them on any engine.
class Schema {
public:
    static QString fileName(DatabaseRole role);  // "QD8Command.dat", ...
    static QString roleName(DatabaseRole role);  // "app", "center", "data"
    // The role a connection string's database plays, from its file or database name.
    static DatabaseRole roleOf(const QString& connectionString);

    static QString ddl(DatabaseRole role);
    static QString sample(DatabaseRole role);
    // The statements of a script: split at lines ending in ";", "--" comment lines dropped.
    static QStringList statements(const QString& script);

    // Creates a PostgreSQL database named by the connection string when the server does
    // not have it yet (a database may be named "QD8Command.dat" literally). No-op on SQLite.
    static void createDatabaseIfMissing(const QString& connectionString);
    // Drops every table and view of the database (for init --force on PostgreSQL).
    static void dropAll(const QString& connectionString);
    // Creates every table and view of the role in one transaction.
    static void create(const QString& connectionString, DatabaseRole role);
    // Loads the sample company's rows of the role in one transaction; returns rows written.
    static qint64 loadSample(const QString& connectionString, DatabaseRole role);

    // The catalogue tables of the application database that statements on the session
    // (company data) database name: the ribbon's remove list joins QD8TCommand.
    static QStringList linkedCatalogueNames();
    // Makes those tables answer by their plain names on the session database. On
    // PostgreSQL: read-only foreign tables of postgres_fdw (server "qd8_catalogue", signed
    // in as the application connection's user and password), made anew on every call;
    // returns true. SQLite links per connection instead ("Attach=<QD8Command.dat>" in the
    // session connection string): nothing to create, false; likewise for two engines.
    static bool linkCatalogue(const QString& sessionConnectionString, const QString& appConnectionString);
    // Whether a database of the role holds those tables as a link of its own (a PostgreSQL
    // session database), which check() then checks too.
    static bool holdsCatalogueLink(const QString& connectionString, DatabaseRole role);

    struct Problem {
        QString table;
        QStringList missingColumns;  // empty: the whole table or view is missing
    };
    // Tables, views and columns of the role that the database lacks; a PostgreSQL session
    // database also needs the linked catalogue tables.
    static QList<Problem> check(const QString& connectionString, DatabaseRole role);
    // Every table and view name of the role, as the DDL spells it.
    static QStringList objectNames(DatabaseRole role);
};

} // namespace qd8
