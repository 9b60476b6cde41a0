#include "foundation/ConnectionString.h"

#include "foundation/DbError.h"

namespace qd8 {

namespace {

[[noreturn]] void fail(const QString& text, const QString& why)
{
    throw DbError(DbError::Kind::Usage, QStringLiteral("Malformed connection string: %1").arg(why), text);
}

QString quoteConnInfo(const QString& value)
{
    QString out = value;
    out.replace(QLatin1Char('\\'), QLatin1String("\\\\"));
    out.replace(QLatin1Char('\''), QLatin1String("\\'"));
    return QLatin1Char('\'') + out + QLatin1Char('\'');
}

} // namespace

ConnectionString ConnectionString::parse(const QString& text)
{
    ConnectionString cs;
    cs.m_text = text;
    const qsizetype n = text.size();
    qsizetype i = 0;
    while (i < n) {
        // key
        const qsizetype keyStart = i;
        while (i < n && text[i] != QLatin1Char('=') && text[i] != QLatin1Char(';'))
            ++i;
        const QString key = text.mid(keyStart, i - keyStart).trimmed();
        if (i == n || text[i] == QLatin1Char(';')) {
            if (!key.isEmpty())
                fail(text, QStringLiteral("\"%1\" has no \"=\" and no value").arg(key));
            ++i;
            continue;
        }
        if (key.isEmpty())
            fail(text, QStringLiteral("a value at position %1 has no key").arg(keyStart + 1));
        ++i;  // '='
        while (i < n && text[i] == QLatin1Char(' '))
            ++i;
        QString value;
        if (i < n && (text[i] == QLatin1Char('"') || text[i] == QLatin1Char('\''))) {
            const QChar quote = text[i++];
            bool closed = false;
            while (i < n) {
                if (text[i] == quote) {
                    if (i + 1 < n && text[i + 1] == quote) {
                        value += quote;
                        i += 2;
                        continue;
                    }
                    closed = true;
                    ++i;
                    break;
                }
                value += text[i++];
            }
            if (!closed)
                fail(text, QStringLiteral("the value of \"%1\" opens a quote (%2) that is never closed").arg(key, quote));
            while (i < n && text[i] == QLatin1Char(' '))
                ++i;
            if (i < n && text[i] != QLatin1Char(';'))
                fail(text, QStringLiteral("unexpected text after the quoted value of \"%1\"").arg(key));
        } else {
            const qsizetype valueStart = i;
            while (i < n && text[i] != QLatin1Char(';'))
                ++i;
            value = text.mid(valueStart, i - valueStart).trimmed();
            if (value.contains(QLatin1Char('"')))
                fail(text, QStringLiteral("the value of \"%1\" holds an unbalanced quote").arg(key));
        }
        ++i;  // ';'
        const QString lower = key.toLower();
        for (qsizetype k = 0; k < cs.m_pairs.size(); ++k) {
            if (cs.m_pairs[k].first == lower) {
                cs.m_pairs.removeAt(k);
                break;
            }
        }
        cs.m_pairs.append({lower, value});
    }

    const QString driver = cs.value({"driver", "provider"}).toLower();
    if (driver.isEmpty() || driver == QLatin1String("sqlite") || driver == QLatin1String("sqlite3")) {
        cs.m_engine = Engine::SQLite;
        if (cs.sqliteFile().isEmpty())
            fail(text, QStringLiteral("missing data source (the database file: \"Data Source=...\")"));
    } else if (driver == QLatin1String("postgresql") || driver == QLatin1String("postgres") || driver == QLatin1String("pgsql")) {
        cs.m_engine = Engine::PostgreSQL;
        if (!cs.has({"database", "initial catalog", "dbname"}))
            fail(text, QStringLiteral("missing database (\"Database=...\")"));
    } else if (driver == QLatin1String("odbc")) {
        cs.m_engine = Engine::QtSql;
        if (!cs.has({"dsn", "odbc driver"}))
            fail(text, QStringLiteral("missing data source (\"DSN=...\" or \"ODBC Driver=...\")"));
    } else {
        fail(text, QStringLiteral("unknown driver \"%1\" (use SQLite, PostgreSQL or ODBC)").arg(cs.value({"driver", "provider"})));
    }
    return cs;
}

QString ConnectionString::value(std::initializer_list<const char*> keys) const
{
    for (const char* key : keys)
        for (const auto& pair : m_pairs)
            if (pair.first == QLatin1String(key))
                return pair.second;
    return {};
}

bool ConnectionString::has(std::initializer_list<const char*> keys) const
{
    for (const char* key : keys)
        for (const auto& pair : m_pairs)
            if (pair.first == QLatin1String(key) && !pair.second.isEmpty())
                return true;
    return false;
}

QString ConnectionString::sqliteFile() const
{
    return value({"data source", "datasource", "database", "filename"});
}

QString ConnectionString::libpqConnInfo() const
{
    struct Keyword {
        const char* name;
        std::initializer_list<const char*> aliases;
    };
    const Keyword keywords[] = {
        {"host", {"server", "host", "data source"}},
        {"port", {"port"}},
        {"dbname", {"database", "initial catalog", "dbname"}},
        {"user", {"user id", "uid", "user", "username"}},
        {"password", {"password", "pwd"}},
        {"sslmode", {"ssl mode", "sslmode"}},
        {"connect_timeout", {"timeout", "connect timeout"}},
    };
    QStringList parts;
    for (const Keyword& keyword : keywords) {
        const QString v = value(keyword.aliases);
        if (!v.isEmpty())
            parts << QLatin1String(keyword.name) + QLatin1Char('=') + quoteConnInfo(v);
    }
    if (!has({"timeout", "connect timeout"}))
        parts << QStringLiteral("connect_timeout=10");
    parts << QStringLiteral("client_encoding=UTF8") << QStringLiteral("application_name=QD8Designer2");
    return parts.join(QLatin1Char(' '));
}

QString ConnectionString::qtDriver() const
{
    return QStringLiteral("QODBC");
}

QString ConnectionString::odbcConnectString() const
{
    // Everything except our own "Driver=ODBC" goes to the ODBC driver manager;
    // "ODBC Driver" becomes its "DRIVER={...}".
    QStringList parts;
    for (const auto& [key, value] : m_pairs) {
        if (key == QLatin1String("driver") || key == QLatin1String("provider"))
            continue;
        if (key == QLatin1String("odbc driver"))
            parts << QStringLiteral("DRIVER={%1}").arg(value);
        else
            parts << key + QLatin1Char('=') + value;
    }
    return parts.join(QLatin1Char(';'));
}

QString commandCentreConnectionString(const QString& appConnectionString)
{
    QString out = appConnectionString;
    out.replace(QStringLiteral("QD8Command.dat"), QStringLiteral("QD8Center.dat"), Qt::CaseSensitive);
    return out;
}

} // namespace qd8
