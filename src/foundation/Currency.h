#pragma once

#include <QMetaType>
#include <QString>
#include <cstdint>
#include <optional>

namespace qd8 {

// Money: a 64-bit fixed-point amount with four decimals, as the suite's Currency type.
// Never goes through double unless asked to (fromDouble/toDouble).
class Currency {
public:
    static constexpr int64_t Scale = 10000;

    constexpr Currency() = default;
    static constexpr Currency fromRaw(int64_t raw) { Currency c; c.m_raw = raw; return c; }
    static Currency fromInt(int64_t units);
    // Rounds half away from zero to four decimals.
    static Currency fromDouble(double value);
    // Exact decimal text ("-1234.5678", "12", "1e3" is not accepted). Returns nothing when
    // the text is not a plain decimal, has more than four non-zero decimals, or overflows.
    static std::optional<Currency> parse(QStringView text);
    static std::optional<Currency> parse(const char* text, qsizetype length);

    int64_t raw() const { return m_raw; }
    double toDouble() const { return double(m_raw) / double(Scale); }
    // Shortest exact text: "1234.5", "-0.0001", "12".
    QString toString() const;
    // Always four decimals: "1234.5000" (used when binding to the database).
    QString toFixedString() const;

    Currency operator+(Currency o) const { return fromRaw(m_raw + o.m_raw); }
    Currency operator-(Currency o) const { return fromRaw(m_raw - o.m_raw); }
    Currency operator-() const { return fromRaw(-m_raw); }
    Currency& operator+=(Currency o) { m_raw += o.m_raw; return *this; }
    Currency& operator-=(Currency o) { m_raw -= o.m_raw; return *this; }
    auto operator<=>(const Currency&) const = default;

private:
    int64_t m_raw = 0;
};

} // namespace qd8

Q_DECLARE_METATYPE(qd8::Currency)
