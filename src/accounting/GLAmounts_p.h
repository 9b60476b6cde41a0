#pragma once

#include "foundation/Currency.h"

#include <QList>
#include <QString>
#include <optional>

namespace qd8 {

// Money arithmetic of the voucher panel: posting-format formulas and allocation shares,
// exact in Currency (never through floating point).

// An amount rounded to whole satang (2 decimals), half away from zero.
Currency roundToCents(Currency value);

// Evaluates a posting-format formula over the inputs X1..X20 (x[0] is X1): decimal
// constants, + - * / and parentheses, unary minus. Products and quotients keep four
// decimals (half away from zero). Nothing when the formula is not one of these, names
// another variable, or divides by zero: a formula is read, never run as SQL.
std::optional<Currency> evaluateFormula(const QString& formula, const Currency (&x)[20]);

// A share-ratio text as a fraction numerator/denominator: "1/3", "30%", "0.3" (also "1").
struct ShareRatio {
    qint64 numerator = 0;
    qint64 denominator = 1;
};
std::optional<ShareRatio> parseShareRatio(const QString& text);

// Splits `total` by the ratios: each share rounded to 2 decimals, the last one taking what
// is left, so the shares always sum to `total` exactly.
QList<Currency> splitByShares(Currency total, const QList<ShareRatio>& ratios);

} // namespace qd8
