#pragma once

#include "foundation/Currency.h"

#include <QString>
#include <QVariant>

namespace qd8 {

// Field values are QVariants; a database NULL is an invalid (null) QVariant, distinct
// from an empty string.
inline bool isNull(const QVariant& v) { return v.isNull(); }

// The suite appends "" to a field to read it as text: NULL becomes "", dates become ISO
// text, money its shortest exact decimal text.
QString text(const QVariant& v);

// Money from any field value: exact for Currency, integers and decimal text; doubles are
// rounded to four decimals. NULL and non-numeric text give zero.
Currency toCurrency(const QVariant& v);

// Number from any field value, NULL and non-numeric text giving zero (the suite's Val()).
double toNumber(const QVariant& v);

// A value type word of the metadata ("TEXT", "NUMBER", "LABELLIST"...) as every reader
// compares it: blanks around dropped, upper case, so " labellist " is "LABELLIST". Every
// comparison of type words goes through here.
QString normalTypeWord(QStringView word);

} // namespace qd8
