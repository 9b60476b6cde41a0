#include "foundation/Currency.h"

#include <QVariant>
#include <cmath>

namespace qd8 {

Currency Currency::fromInt(int64_t units)
{
    return fromRaw(units * Scale);
}

Currency Currency::fromDouble(double value)
{
    return fromRaw(int64_t(std::llround(value * double(Scale))));
}

std::optional<Currency> Currency::parse(const char* s, qsizetype n)
{
    qsizetype i = 0;
    while (i < n && s[i] == ' ')
        ++i;
    while (n > i && s[n - 1] == ' ')
        --n;
    bool negative = false;
    if (i < n && (s[i] == '-' || s[i] == '+'))
        negative = s[i++] == '-';
    if (i == n)
        return std::nullopt;
    int64_t raw = 0;
    const auto push = [&raw](int digit) {
        return !__builtin_mul_overflow(raw, 10, &raw) && !__builtin_add_overflow(raw, digit, &raw);
    };
    int digits = 0;
    for (; i < n && s[i] >= '0' && s[i] <= '9'; ++i, ++digits)
        if (!push(s[i] - '0'))
            return std::nullopt;
    int decimals = 0;
    if (i < n && s[i] == '.') {
        for (++i; i < n && s[i] >= '0' && s[i] <= '9'; ++i, ++digits) {
            if (decimals == 4) {
                if (s[i] != '0')
                    return std::nullopt;  // more precision than money holds
                continue;
            }
            if (!push(s[i] - '0'))
                return std::nullopt;
            ++decimals;
        }
    }
    if (i != n || digits == 0)
        return std::nullopt;
    for (; decimals < 4; ++decimals)
        if (!push(0))
            return std::nullopt;
    return fromRaw(negative ? -raw : raw);
}

std::optional<Currency> Currency::parse(QStringView text)
{
    const QByteArray latin = text.toLatin1();
    return parse(latin.constData(), latin.size());
}

QString Currency::toFixedString() const
{
    const uint64_t magnitude = m_raw < 0 ? uint64_t(0) - uint64_t(m_raw) : uint64_t(m_raw);
    QString out = QString::number(magnitude / Scale) + QLatin1Char('.')
        + QString::number(magnitude % Scale).rightJustified(4, QLatin1Char('0'));
    return m_raw < 0 ? QLatin1Char('-') + out : out;
}

QString Currency::toString() const
{
    QString out = toFixedString();
    while (out.endsWith(QLatin1Char('0')))
        out.chop(1);
    if (out.endsWith(QLatin1Char('.')))
        out.chop(1);
    return out;
}

namespace {
// Lets QVariant::toDouble()/toString()/toLongLong() work on money values.
const bool registered = [] {
    QMetaType::registerConverter<Currency, double>(&Currency::toDouble);
    QMetaType::registerConverter<Currency, QString>(&Currency::toString);
    QMetaType::registerConverter<Currency, qlonglong>([](const Currency& c) {
        return qlonglong(std::llround(c.toDouble()));
    });
    return true;
}();
} // namespace

} // namespace qd8
