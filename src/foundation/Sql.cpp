#include "foundation/Sql.h"

#include <QDate>
#include <QDateTime>
#include <QRegularExpression>

namespace qd8 {

Sql Sql::quoted(const QString& value)
{
    Sql sql(QLatin1Char('\'') + value + QLatin1Char('\''));
    if (value.contains(QLatin1Char('\'')))
        sql.breakBy(Flaw::QuoteInText, value);
    return sql;
}

Sql Sql::number(const QString& value)
{
    // An optional minus, digits, and at most one decimal point with digits after it.
    static const QRegularExpression plain(QStringLiteral("\\A-?[0-9]+(\\.[0-9]+)?\\z"));
    Sql sql(value);
    if (!plain.match(value).hasMatch())
        sql.breakBy(Flaw::NotANumber, value);
    return sql;
}

void Sql::breakBy(Flaw flaw, const QString& value)
{
    m_flaw = flaw;
    m_brokenValue = value;
}

Sql& Sql::operator+=(const Sql& other)
{
    m_text += other.m_text;
    if (!isBroken() && other.isBroken())
        breakBy(other.m_flaw, other.m_brokenValue);
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
