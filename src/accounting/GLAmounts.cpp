#include "accounting/GLAmounts_p.h"

namespace qd8 {

namespace {

using Wide = __int128;

// numerator / denominator rounded half away from zero.
Wide divideRounded(Wide numerator, Wide denominator)
{
    if (denominator < 0) {
        numerator = -numerator;
        denominator = -denominator;
    }
    const Wide half = denominator / 2;
    return numerator >= 0 ? (numerator + half) / denominator : -((-numerator + half) / denominator);
}

std::optional<Currency> fromWide(Wide raw)
{
    if (raw > Wide(INT64_MAX) || raw < Wide(INT64_MIN))
        return std::nullopt;
    return Currency::fromRaw(int64_t(raw));
}

// Recursive descent over expression := term {(+|-) term}, term := factor {(*|/) factor},
// factor := [-|+] (number | Xn | "(" expression ")").
class FormulaReader {
public:
    FormulaReader(const QString& text, const Currency (&x)[20]) : m_text(text), m_x(x) {}

    std::optional<Currency> read()
    {
        auto value = expression();
        skipBlanks();
        if (!value || m_at != m_text.size())
            return std::nullopt;
        return value;
    }

private:
    void skipBlanks()
    {
        while (m_at < m_text.size() && m_text[m_at].isSpace())
            ++m_at;
    }
    bool take(QChar c)
    {
        skipBlanks();
        if (m_at < m_text.size() && m_text[m_at] == c) {
            ++m_at;
            return true;
        }
        return false;
    }

    std::optional<Currency> expression()
    {
        auto value = term();
        while (value) {
            if (take(QLatin1Char('+'))) {
                auto right = term();
                value = right ? fromWide(Wide(value->raw()) + right->raw()) : std::nullopt;
            } else if (take(QLatin1Char('-'))) {
                auto right = term();
                value = right ? fromWide(Wide(value->raw()) - right->raw()) : std::nullopt;
            } else {
                break;
            }
        }
        return value;
    }

    std::optional<Currency> term()
    {
        auto value = factor();
        while (value) {
            if (take(QLatin1Char('*'))) {
                auto right = factor();
                value = right ? fromWide(divideRounded(Wide(value->raw()) * right->raw(), Currency::Scale)) : std::nullopt;
            } else if (take(QLatin1Char('/'))) {
                auto right = factor();
                value = right && right->raw() != 0
                    ? fromWide(divideRounded(Wide(value->raw()) * Currency::Scale, right->raw()))
                    : std::nullopt;
            } else {
                break;
            }
        }
        return value;
    }

    std::optional<Currency> factor()
    {
        if (take(QLatin1Char('-'))) {
            auto value = factor();
            return value ? std::optional(-*value) : std::nullopt;
        }
        if (take(QLatin1Char('+')))
            return factor();
        if (take(QLatin1Char('('))) {
            auto value = expression();
            return value && take(QLatin1Char(')')) ? value : std::nullopt;
        }
        skipBlanks();
        if (m_at < m_text.size() && (m_text[m_at] == QLatin1Char('X') || m_text[m_at] == QLatin1Char('x'))) {
            const qsizetype start = ++m_at;
            while (m_at < m_text.size() && m_text[m_at].isDigit())
                ++m_at;
            bool ok = false;
            const int n = QStringView(m_text).sliced(start, m_at - start).toInt(&ok);
            if (!ok || n < 1 || n > 20)
                return std::nullopt;
            return m_x[n - 1];
        }
        const qsizetype start = m_at;
        while (m_at < m_text.size() && (m_text[m_at].isDigit() || m_text[m_at] == QLatin1Char('.')))
            ++m_at;
        if (m_at == start)
            return std::nullopt;
        return Currency::parse(QStringView(m_text).sliced(start, m_at - start));
    }

    const QString& m_text;
    const Currency (&m_x)[20];
    qsizetype m_at = 0;
};

} // namespace

Currency roundToCents(Currency value)
{
    return Currency::fromRaw(int64_t(divideRounded(value.raw(), 100) * 100));
}

std::optional<Currency> evaluateFormula(const QString& formula, const Currency (&x)[20])
{
    return FormulaReader(formula, x).read();
}

std::optional<ShareRatio> parseShareRatio(const QString& text)
{
    const QString t = text.trimmed();
    const qsizetype slash = t.indexOf(QLatin1Char('/'));
    if (slash > 0) {
        bool okNumerator = false, okDenominator = false;
        const qint64 numerator = t.left(slash).trimmed().toLongLong(&okNumerator);
        const qint64 denominator = t.mid(slash + 1).trimmed().toLongLong(&okDenominator);
        if (!okNumerator || !okDenominator || denominator <= 0 || numerator < 0)
            return std::nullopt;
        return ShareRatio{numerator, denominator};
    }
    const bool percent = t.endsWith(QLatin1Char('%'));
    const auto value = Currency::parse(percent ? QStringView(t).chopped(1).trimmed() : QStringView(t));
    if (!value || value->raw() < 0)
        return std::nullopt;
    return ShareRatio{value->raw(), Currency::Scale * (percent ? 100 : 1)};
}

QList<Currency> splitByShares(Currency total, const QList<ShareRatio>& ratios)
{
    QList<Currency> shares;
    Currency given;
    for (qsizetype i = 0; i < ratios.size(); ++i) {
        if (i + 1 == ratios.size()) {
            shares.append(total - given);
            break;
        }
        const Wide cents = divideRounded(Wide(total.raw()) * ratios[i].numerator, Wide(ratios[i].denominator) * 100);
        const Currency share = Currency::fromRaw(int64_t(cents * 100));
        shares.append(share);
        given += share;
    }
    return shares;
}

} // namespace qd8
