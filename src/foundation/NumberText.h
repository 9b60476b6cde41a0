#pragma once

#include "foundation/Currency.h"

#include <QLocale>
#include <QString>

namespace qd8 {

// A number as the panels show it: digit grouping and a fixed count of decimals
// ("1,234.50"), whatever the system's locale.
inline QString groupedNumber(double value, int decimals)
{
    QLocale locale = QLocale::c();
    locale.setNumberOptions(QLocale::DefaultNumberOptions);
    return locale.toString(value, 'f', decimals);
}

// Money with digit grouping, rounded half away from zero to `decimals` (0 to 4) in
// fixed point, so no amount is ever off by a double's rounding ("-1,234,567,890,123.46").
inline QString groupedMoney(Currency value, int decimals = 2)
{
    int64_t step = 1;
    for (int i = decimals; i < 4; ++i)
        step *= 10;
    const int64_t raw = value.raw();
    const uint64_t magnitude = raw < 0 ? uint64_t(0) - uint64_t(raw) : uint64_t(raw);
    const uint64_t rounded = (magnitude + uint64_t(step) / 2) / uint64_t(step);
    uint64_t units = rounded;
    for (int i = 0; i < decimals; ++i)
        units /= 10;
    QLocale locale = QLocale::c();
    locale.setNumberOptions(QLocale::DefaultNumberOptions);
    QString text = locale.toString(qulonglong(units));
    if (decimals > 0) {
        uint64_t scale = 1;
        for (int i = 0; i < decimals; ++i)
            scale *= 10;
        text += QLatin1Char('.') + QString::number(rounded % scale).rightJustified(decimals, QLatin1Char('0'));
    }
    return raw < 0 && rounded != 0 ? QLatin1Char('-') + text : text;
}

} // namespace qd8
