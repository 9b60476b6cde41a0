#include "foundation/Values.h"

#include <QDate>
#include <QDateTime>

namespace qd8 {

QString text(const QVariant& v)
{
    if (v.isNull())
        return {};
    switch (v.typeId()) {
    case QMetaType::QString:
        return v.toString();
    case QMetaType::QDate:
        return v.toDate().toString(Qt::ISODate);
    case QMetaType::QDateTime:
        return v.toDateTime().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
    case QMetaType::Double:
        return QString::number(v.toDouble(), 'g', 15);
    case QMetaType::Bool:
        return v.toBool() ? QStringLiteral("1") : QStringLiteral("0");
    default:
        if (v.typeId() == qMetaTypeId<Currency>())
            return v.value<Currency>().toString();
        return v.toString();
    }
}

Currency toCurrency(const QVariant& v)
{
    if (v.isNull())
        return {};
    if (v.typeId() == qMetaTypeId<Currency>())
        return v.value<Currency>();
    switch (v.typeId()) {
    case QMetaType::Int:
    case QMetaType::LongLong:
    case QMetaType::UInt:
    case QMetaType::ULongLong:
        return Currency::fromInt(v.toLongLong());
    case QMetaType::Double:
    case QMetaType::Float:
        return Currency::fromDouble(v.toDouble());
    default:
        break;
    }
    if (auto exact = Currency::parse(v.toString()))
        return *exact;
    bool ok = false;
    const double d = v.toString().trimmed().toDouble(&ok);
    return ok ? Currency::fromDouble(d) : Currency();
}

double toNumber(const QVariant& v)
{
    if (v.isNull())
        return 0;
    if (v.typeId() == qMetaTypeId<Currency>())
        return v.value<Currency>().toDouble();
    bool ok = false;
    const double d = v.toDouble(&ok);
    if (ok)
        return d;
    const double parsed = v.toString().trimmed().toDouble(&ok);
    return ok ? parsed : 0;
}

QString normalTypeWord(QStringView word)
{
    return word.trimmed().toString().toUpper();
}

} // namespace qd8
