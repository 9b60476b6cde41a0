#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace qd8 {

// The suite describes columns with positional comma lists ("TCmdID,TCmdName", "0,6860").
// "" is a list of no entries; otherwise every comma separates two entries, empty ones
// included ("", "0" for ",0").
QStringList splitList(const QString& list);

// A width list in twips. Throws DbError (kind Usage) naming the entry and its position
// when an entry is not a whole number; an empty entry counts as 0.
QList<int> parseWidths(const QString& list);

} // namespace qd8
