#include "foundation/Sql.h"

#include <QDate>
#include <QDateTime>

namespace qd8 {

Sql Sql::quoted(const QString& value)
{
    Sql sql(QLatin1Char('\'') + value + QLatin1Char('\''));
    if (value.contains(QLatin1Char('\'')))
        sql.m_brokenValue = value;
    return sql;
}

Sql& Sql::operator+=(const Sql& other)
{
    m_text += other.m_text;
    if (!isBroken() && other.isBroken())
        m_brokenValue = other.m_brokenValue;
    return *this;
}

QString dateMarker(const QDate& date)
{
    return QStringLiteral("#$") + date.toString(Qt::ISODate) + QStringLiteral("#$");
}

QString dateTimeMarker(const QDateTime& dateTime)
{
    return QStringLiteral("#$") + dateTime.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")) + QStringLiteral("#$");
}

} // namespace qd8
