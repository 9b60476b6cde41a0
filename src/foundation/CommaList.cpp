#include "foundation/CommaList.h"

#include "foundation/DbError.h"

namespace qd8 {

QStringList splitList(const QString& list)
{
    if (list.isEmpty())
        return {};
    return list.split(QLatin1Char(','));
}

QList<int> parseWidths(const QString& list)
{
    QList<int> widths;
    const QStringList entries = splitList(list);
    for (qsizetype i = 0; i < entries.size(); ++i) {
        const QString entry = entries[i].trimmed();
        if (entry.isEmpty()) {
            widths << 0;
            continue;
        }
        bool ok = false;
        const double value = entry.toDouble(&ok);
        if (!ok || value < 0 || value > 1e7)
            throw DbError(DbError::Kind::Usage,
                QStringLiteral("Width \"%1\" (entry %2 of \"%3\") is not a number of twips").arg(entries[i]).arg(i + 1).arg(list));
        widths << int(value + 0.5);
    }
    return widths;
}

} // namespace qd8
