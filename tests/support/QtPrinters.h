#pragma once

#include <QString>
#include <QStringList>
#include <ostream>

// Readable Qt values in GoogleTest failure messages.
inline void PrintTo(const QString& value, std::ostream* out)
{
    *out << '"' << value.toStdString() << '"';
}

inline void PrintTo(const QStringList& values, std::ostream* out)
{
    *out << '{';
    for (qsizetype i = 0; i < values.size(); ++i)
        *out << (i ? ", \"" : "\"") << values[i].toStdString() << '"';
    *out << '}';
}
