#pragma once

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

} // namespace qd8
