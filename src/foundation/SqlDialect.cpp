#include "foundation/SqlDialect.h"

#include "foundation/DbError.h"

#include <QDate>
#include <QDateTime>

namespace qd8 {

namespace {

const QLatin1String Marker("#$");

QString dateLiteral(Engine engine, const QString& inner, const QString& statement)
{
    const QString value = inner.trimmed();
    const bool hasTime = value.size() > 10;
    const bool valid = hasTime
        ? QDateTime::fromString(value, QStringLiteral("yyyy-MM-dd HH:mm:ss")).isValid()
            || QDateTime::fromString(value, QStringLiteral("yyyy-MM-dd HH:mm")).isValid()
        : QDate::fromString(value, Qt::ISODate).isValid() && value.size() == 10;
    if (!valid)
        throw DbError(DbError::Kind::Refused,
            QStringLiteral("Date \"%1\" between #$ markers is not an ISO date (yyyy-MM-dd or yyyy-MM-dd HH:mm:ss)").arg(inner),
            statement);
    switch (engine) {
    case Engine::SQLite:
        return QLatin1Char('\'') + value + QLatin1Char('\'');
    case Engine::PostgreSQL:
        return (hasTime ? QStringLiteral("TIMESTAMP '") : QStringLiteral("DATE '")) + value + QLatin1Char('\'');
    case Engine::QtSql:
        return (hasTime ? QStringLiteral("{ts '") : QStringLiteral("{d '")) + value + QStringLiteral("'}");
    }
    return value;
}

bool isWordChar(QChar c)
{
    return c.isLetterOrNumber() || c == QLatin1Char('_');
}

} // namespace

QString toEngineSql(Engine engine, const QString& composed)
{
    const bool hasMarker = composed.contains(Marker);
    const bool rewriteLike = engine == Engine::PostgreSQL && composed.contains(QLatin1String("like"), Qt::CaseInsensitive);
    if (!hasMarker && !rewriteLike)
        return composed;

    QString out;
    out.reserve(composed.size() + 16);
    const qsizetype n = composed.size();
    qsizetype i = 0;
    while (i < n) {
        const QChar c = composed[i];
        if (c == QLatin1Char('#') && i + 1 < n && composed[i + 1] == QLatin1Char('$')) {
            const qsizetype close = composed.indexOf(Marker, i + 2);
            if (close < 0)
                throw DbError(DbError::Kind::Refused, QStringLiteral("A #$ date marker is never closed"), composed);
            out += dateLiteral(engine, composed.mid(i + 2, close - i - 2), composed);
            i = close + 2;
            continue;
        }
        if (c == QLatin1Char('\'') || c == QLatin1Char('"')) {
            // copy the literal or quoted identifier unchanged
            qsizetype j = i + 1;
            while (j < n && composed[j] != c)
                ++j;
            out += QStringView(composed).mid(i, j - i + 1);
            i = j + 1;
            continue;
        }
        if (rewriteLike && (c == QLatin1Char('l') || c == QLatin1Char('L')) && i + 4 <= n
            && QStringView(composed).mid(i, 4).compare(QLatin1String("like"), Qt::CaseInsensitive) == 0
            && (i == 0 || !isWordChar(composed[i - 1])) && (i + 4 == n || !isWordChar(composed[i + 4]))) {
            out += QLatin1String("ILIKE");
            i += 4;
            continue;
        }
        out += c;
        ++i;
    }
    return out;
}

} // namespace qd8
