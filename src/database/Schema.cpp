#include "database/Schema.h"

#include "foundation/Backend.h"
#include "foundation/Connection.h"
#include "foundation/ConnectionPool.h"
#include "foundation/DbError.h"
#include "foundation/Recordset.h"

#include <QFile>
#include <QRegularExpression>

namespace qd8 {

namespace {

QString resource(const QString& path)
{
    QFile file(QStringLiteral(":/qd8/schema/") + path);
    if (!file.open(QIODevice::ReadOnly))
        throw DbError(DbError::Kind::Usage, QStringLiteral("The schema file %1 is missing from the library").arg(path));
    return QString::fromUtf8(file.readAll());
}

// Column names of a table or view, read from an empty SELECT (works on every engine).
QStringList columnsOf(Connection& connection, const QString& table)
{
    auto rows = connection.query(Sql(QStringLiteral("SELECT * FROM ") + table + QStringLiteral(" WHERE 1=0")));
    QStringList names;
    for (const auto& column : rows->columns())
        names << column.name.toLower();
    return names;
}

} // namespace

QString Schema::fileName(DatabaseRole role)
{
    switch (role) {
    case DatabaseRole::Application: return QStringLiteral("QD8Command.dat");
    case DatabaseRole::CommandCentre: return QStringLiteral("QD8Center.dat");
    case DatabaseRole::CompanyData: return QStringLiteral("QD8Data.dat");
    }
    return {};
}

QString Schema::roleName(DatabaseRole role)
{
    switch (role) {
    case DatabaseRole::Application: return QStringLiteral("app");
    case DatabaseRole::CommandCentre: return QStringLiteral("center");
    case DatabaseRole::CompanyData: return QStringLiteral("data");
    }
    return {};
}

DatabaseRole Schema::roleOf(const QString& connectionString)
{
    if (connectionString.contains(fileName(DatabaseRole::Application), Qt::CaseInsensitive))
        return DatabaseRole::Application;
    if (connectionString.contains(fileName(DatabaseRole::CommandCentre), Qt::CaseInsensitive))
        return DatabaseRole::CommandCentre;
    return DatabaseRole::CompanyData;
}

QString Schema::ddl(DatabaseRole role)
{
    return resource(roleName(role) + QStringLiteral(".sql"));
}

QString Schema::sample(DatabaseRole role)
{
    return resource(QStringLiteral("sample/") + roleName(role) + QStringLiteral(".sql"));
}

QStringList Schema::statements(const QString& script)
{
    QStringList out;
    QString current;
    const auto lines = script.split(QLatin1Char('\n'));
    for (const QString& line : lines) {
        const QString trimmed = line.trimmed();
        if (trimmed.isEmpty() || trimmed.startsWith(QLatin1String("--")))
            continue;
        if (!current.isEmpty())
            current += QLatin1Char('\n');
        current += line;
        if (trimmed.endsWith(QLatin1Char(';'))) {
            current = current.trimmed();
            current.chop(1);
            out << current;
            current.clear();
        }
    }
    if (!current.trimmed().isEmpty())
        out << current.trimmed();
    return out;
}

void Schema::createDatabaseIfMissing(const QString& connectionString)
{
    const ConnectionString cs = ConnectionString::parse(connectionString);
    if (cs.engine() != Engine::PostgreSQL)
        return;
    try {
        Connection probe;
        probe.open(connectionString);
        return;
    } catch (const DbError& e) {
        if (!e.message().contains(QLatin1String("does not exist")))
            throw;
    }
    const QString name = cs.value({"database", "initial catalog", "dbname"});
    if (name.contains(QLatin1Char('"')))
        throw DbError(DbError::Kind::Usage, QStringLiteral("A database name may not hold a double quote: %1").arg(name));
    static const QRegularExpression databaseKey(QStringLiteral(R"((^|;)\s*(Database|Initial Catalog|dbname)\s*=[^;]*)"),
        QRegularExpression::CaseInsensitiveOption);
    QString server = connectionString;
    server.replace(databaseKey, QStringLiteral("\\1Database=postgres"));
    Connection admin;
    admin.open(server);
    admin.execute(Sql(QStringLiteral("CREATE DATABASE \"") + name + QStringLiteral("\" TEMPLATE template0 ENCODING 'UTF8'")));
    admin.close();
    ConnectionPool::instance().clear(server);
}

void Schema::dropAll(const QString& connectionString)
{
    Connection connection;
    connection.open(connectionString);
    if (connection.engine() == Engine::PostgreSQL) {
        connection.execute(Sql("DROP SCHEMA public CASCADE"));
        connection.execute(Sql("CREATE SCHEMA public"));
        return;
    }
    Recordset rs;
    rs.open(Sql("SELECT type, name FROM sqlite_master WHERE type IN ('view','table') AND name NOT LIKE 'sqlite_%' ORDER BY type DESC"), connection);
    QStringList drops;
    for (; !rs.eof(); rs.moveNext())
        drops << QStringLiteral("DROP %1 %2").arg(rs.text(QStringLiteral("type")).toUpper(), rs.text(QStringLiteral("name")));
    for (const QString& drop : drops)
        connection.execute(Sql(drop));
}

void Schema::create(const QString& connectionString, DatabaseRole role)
{
    Connection connection;
    connection.open(connectionString);
    connection.beginTrans();
    if (connection.engine() == Engine::PostgreSQL)
        connection.execute(Sql("CREATE COLLATION IF NOT EXISTS thai (provider = icu, locale = 'th-TH')"));
    for (const QString& statement : statements(ddl(role)))
        connection.execute(Sql(statement));
    connection.commitTrans();
}

qint64 Schema::loadSample(const QString& connectionString, DatabaseRole role)
{
    Connection connection;
    connection.open(connectionString);
    connection.beginTrans();
    qint64 rows = 0;
    for (const QString& statement : statements(sample(role)))
        rows += connection.execute(Sql(statement));
    connection.commitTrans();
    return rows;
}

QStringList Schema::objectNames(DatabaseRole role)
{
    static const QRegularExpression create(QStringLiteral(R"(^\s*CREATE\s+(?:TABLE|VIEW)\s+([A-Za-z_][A-Za-z0-9_]*))"),
        QRegularExpression::CaseInsensitiveOption);
    QStringList names;
    for (const QString& statement : statements(ddl(role))) {
        const auto match = create.match(statement);
        if (match.hasMatch())
            names << match.captured(1);
    }
    return names;
}

QList<Schema::Problem> Schema::check(const QString& connectionString, DatabaseRole role)
{
    // The reference is the schema itself, built in a private in-memory database.
    const auto referenceBackend = openBackend(ConnectionString::parse(QStringLiteral("Data Source=:memory:")));
    for (const QString& statement : statements(ddl(role)))
        referenceBackend->execute(statement, {});

    Connection connection;
    connection.open(connectionString);
    QList<Problem> problems;
    for (const QString& name : objectNames(role)) {
        QStringList expected;
        {
            auto rows = referenceBackend->query(QStringLiteral("SELECT * FROM ") + name + QStringLiteral(" WHERE 1=0"), {});
            for (const auto& column : rows->columns())
                expected << column.name.toLower();
        }
        QStringList present;
        try {
            present = columnsOf(connection, name);
        } catch (const DbError&) {
            problems.append({name, {}});
            if (connection.inTransaction())
                connection.rollbackTrans();
            continue;
        }
        QStringList missing;
        for (const QString& column : expected)
            if (!present.contains(column))
                missing << column;
        if (!missing.isEmpty())
            problems.append({name, missing});
    }
    return problems;
}

} // namespace qd8
