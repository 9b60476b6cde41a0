#include "widgets/GridColumn.h"

#include "foundation/CommaList.h"
#include "foundation/Currency.h"
#include "foundation/DateText.h"
#include "foundation/Language.h"
#include "foundation/Values.h"

#include <QDate>
#include <QDateTime>
#include <QRegularExpression>
#include <QTime>

#include <algorithm>
#include <array>

namespace qd8 {

namespace {

struct TypeWord {
    const char* word;
    GridColumnType type;
};

constexpr std::array<TypeWord, 11> TypeWords{{
    {"TEXT", GridColumnType::Text},
    {"NUMBER", GridColumnType::Number},
    {"ABSNUMBER", GridColumnType::AbsNumber},
    {"AUTONUMBER", GridColumnType::AutoNumber},
    {"DATE", GridColumnType::Date},
    {"DATETIME", GridColumnType::DateTime},
    {"TIME", GridColumnType::Time},
    {"YESNO", GridColumnType::YesNo},
    {"CHECK", GridColumnType::Check},
    {"LABELLIST", GridColumnType::LabelList},
    {"COLOR", GridColumnType::Color},
}};

// A decimal number as digits, so that amounts are rounded and shown without going
// through double.
struct Decimal {
    bool negative = false;
    QString whole;     // no leading zeros; "" for zero
    QString fraction;  // as many digits as given

    bool isZero() const
    {
        return whole.isEmpty() && std::all_of(fraction.begin(), fraction.end(), [](QChar c) { return c == u'0'; });
    }
};

std::optional<Decimal> parseDecimal(QStringView text, bool allowGrouping)
{
    static const QRegularExpression pattern(QStringLiteral("^([+-]?)([0-9,]*)(?:\\.([0-9]*))?$"));
    const QString trimmed = text.trimmed().toString();
    const auto match = pattern.match(trimmed);
    if (!match.hasMatch())
        return std::nullopt;
    QString whole = match.captured(2);
    if (whole.contains(u',')) {
        if (!allowGrouping || whole.startsWith(u','))
            return std::nullopt;
        whole.remove(u',');
    }
    const QString fraction = match.captured(3);
    if (whole.isEmpty() && fraction.isEmpty())
        return std::nullopt;
    Decimal d;
    d.negative = match.captured(1) == QLatin1String("-");
    qsizetype lead = 0;
    while (lead < whole.size() && whole[lead] == u'0')
        ++lead;
    d.whole = whole.mid(lead);
    d.fraction = fraction;
    return d;
}

// Rounds half away from zero to `decimals` fraction digits (exactly that many kept).
Decimal rounded(Decimal d, int decimals)
{
    decimals = std::max(decimals, 0);
    if (d.fraction.size() <= decimals) {
        d.fraction = d.fraction.leftJustified(decimals, u'0');
        return d;
    }
    const bool up = d.fraction[decimals] >= u'5';
    QString digits = d.whole + d.fraction.left(decimals);
    if (up) {
        qsizetype i = digits.size() - 1;
        for (; i >= 0; --i) {
            if (digits[i] == u'9') {
                digits[i] = u'0';
            } else {
                digits[i] = QChar(digits[i].unicode() + 1);
                break;
            }
        }
        if (i < 0)
            digits.prepend(u'1');
    }
    d.whole = digits.left(digits.size() - decimals);
    d.fraction = digits.right(decimals);
    qsizetype lead = 0;
    while (lead < d.whole.size() && d.whole[lead] == u'0')
        ++lead;
    d.whole = d.whole.mid(lead);
    return d;
}

// "1234.5", "-0.25", "0": no grouping, no trailing fraction zeros, no "-0".
QString canonical(Decimal d)
{
    while (d.fraction.endsWith(u'0'))
        d.fraction.chop(1);
    if (d.isZero())
        return QStringLiteral("0");
    QString out = d.negative ? QStringLiteral("-") : QString();
    out += d.whole.isEmpty() ? QStringLiteral("0") : d.whole;
    if (!d.fraction.isEmpty())
        out += u'.' + d.fraction;
    return out;
}

QString formatted(const Decimal& value, int decimals, bool grouping)
{
    const Decimal d = rounded(value, decimals);
    QString whole = d.whole.isEmpty() ? QStringLiteral("0") : d.whole;
    if (grouping) {
        for (qsizetype i = whole.size() - 3; i > 0; i -= 3)
            whole.insert(i, u',');
    }
    QString out = (d.negative && !d.isZero()) ? QStringLiteral("-") : QString();
    out += whole;
    if (decimals > 0)
        out += u'.' + d.fraction;
    return out;
}

QString numberText(const QVariant& value)
{
    switch (value.typeId()) {
    case QMetaType::Double:
    case QMetaType::Float:
        return canonical(*parseDecimal(QString::number(value.toDouble(), 'f', 10), false));
    case QMetaType::Int:
    case QMetaType::LongLong:
    case QMetaType::UInt:
    case QMetaType::ULongLong:
    case QMetaType::Short:
    case QMetaType::UShort:
        return value.toString();
    case QMetaType::Bool:
        return value.toBool() ? QStringLiteral("1") : QStringLiteral("0");
    default:
        break;
    }
    const QString text = qd8::text(value);
    if (const auto d = parseDecimal(text, true))
        return canonical(*d);
    return text;
}

// Stored dates are ISO with four-digit years: no era to settle.
std::optional<QDateTime> storedDateTimeOf(const QString& stored)
{
    return parseDateTime(stored, DateEra::Gregorian);
}

QString storedDate(QDate d) { return d.toString(Qt::ISODate); }
QString storedTime(QTime t) { return t.toString(QStringLiteral("HH:mm:ss")); }
QString storedDateTime(const QDateTime& dt)
{
    return storedDate(dt.date()) + u' ' + storedTime(dt.time());
}

bool isTrue(const QString& text)
{
    const QString t = text.trimmed().toLower();
    if (t == QLatin1String("true") || t == QLatin1String("yes") || t == QLatin1String("y") || t == QLatin1String("t"))
        return true;
    const auto d = parseDecimal(t, false);
    return d && !d->isZero();
}

std::optional<qint64> parseColor(QStringView text)
{
    static const QRegularExpression hex(QStringLiteral("^#([0-9A-Fa-f]{6})$"));
    const QString t = text.trimmed().toString();
    if (const auto match = hex.match(t); match.hasMatch()) {
        const uint rgb = match.captured(1).toUInt(nullptr, 16);
        const uint r = (rgb >> 16) & 0xFF, g = (rgb >> 8) & 0xFF, b = rgb & 0xFF;
        return qint64(r + g * 256 + b * 65536);
    }
    bool ok = false;
    const qint64 n = t.toLongLong(&ok);
    if (ok && n >= 0 && n <= 0xFFFFFF)
        return n;
    return std::nullopt;
}

} // namespace

GridColumn GridColumn::fromDefinition(const QString& caption, int width, const QString& typeWord, int decimals,
                                      int alignment, const QString& labelList, bool canEdit)
{
    GridColumn column;
    column.caption = caption;
    column.width = std::max(width, 0);
    column.type = typeFromWord(typeWord).value_or(GridColumnType::Text);
    column.decimals = std::max(decimals, 0);
    column.alignment = alignmentFromCode(alignment);
    column.labels = parseLabelList(labelList);
    column.editable = canEdit;
    column.newRowsEditable = true;
    return column;
}

std::optional<GridColumnType> GridColumn::typeFromWord(QStringView word)
{
    const QString normal = normalTypeWord(word);
    for (const TypeWord& entry : TypeWords) {
        if (normal == QLatin1String(entry.word))
            return entry.type;
    }
    return std::nullopt;
}

QString GridColumn::typeWord(GridColumnType type)
{
    for (const TypeWord& entry : TypeWords) {
        if (entry.type == type)
            return QLatin1String(entry.word);
    }
    return QStringLiteral("TEXT");
}

QList<GridLabel> GridColumn::parseLabelList(const QString& labelList)
{
    QList<GridLabel> labels;
    const QStringList entries = splitList(labelList);
    for (qsizetype i = 0; i < entries.size(); ++i) {
        const QString& entry = entries[i];
        const qsizetype sep = entry.indexOf(u';');
        if (sep < 0)
            labels.append({QString::number(i), entry.trimmed()});
        else
            labels.append({entry.left(sep).trimmed(), entry.mid(sep + 1).trimmed()});
    }
    return labels;
}

Qt::Alignment GridColumn::alignmentFromCode(int code)
{
    switch (code) {
    case 0: return Qt::AlignLeft;
    case 1: return Qt::AlignRight;
    case 2: return Qt::AlignHCenter;
    default: return {};
    }
}

bool GridColumn::isNumeric() const
{
    return type == GridColumnType::Number || type == GridColumnType::AbsNumber || type == GridColumnType::AutoNumber;
}

Qt::Alignment GridColumn::cellAlignment() const
{
    Qt::Alignment horizontal = alignment & Qt::AlignHorizontal_Mask;
    if (!horizontal)
        horizontal = isNumeric() ? Qt::AlignRight : isCheck() ? Qt::AlignHCenter : Qt::AlignLeft;
    return horizontal | Qt::AlignVCenter;
}

Qt::Alignment GridColumn::titleAlignment() const
{
    const Qt::Alignment horizontal = captionAlignment & Qt::AlignHorizontal_Mask;
    return horizontal ? (horizontal | Qt::AlignVCenter) : cellAlignment();
}

bool GridColumn::canEdit(bool newRow) const
{
    if (type == GridColumnType::AutoNumber)
        return false;
    return newRow ? newRowsEditable : editable;
}

QString GridColumn::labelOf(const QString& code) const
{
    for (const GridLabel& l : labels) {
        if (l.code == code)
            return l.label;
    }
    return code;
}

QString GridColumn::displayText(const QString& stored, DateEra era) const
{
    switch (type) {
    case GridColumnType::Text:
        return stored;
    case GridColumnType::Number:
    case GridColumnType::AbsNumber:
    case GridColumnType::AutoNumber:
        if (const auto d = parseDecimal(stored, false))
            return formatted(*d, type == GridColumnType::AutoNumber ? 0 : decimals, true);
        return stored;
    case GridColumnType::Date:
        if (const QDate d = QDate::fromString(stored, Qt::ISODate); d.isValid())
            return dateText(d, era);
        return stored;
    case GridColumnType::DateTime:
        if (const auto dt = storedDateTimeOf(stored))
            return dateTimeText(*dt, era);
        return stored;
    case GridColumnType::Time:
        if (const auto t = parseTime(stored))
            return t->toString(QStringLiteral("HH:mm"));
        return stored;
    case GridColumnType::YesNo:
    case GridColumnType::Check:
        return isTrue(stored) ? QStringLiteral("Yes") : QStringLiteral("No");
    case GridColumnType::LabelList:
        return labelOf(stored);
    case GridColumnType::Color:
        if (const auto n = parseColor(stored)) {
            const int r = int(*n & 0xFF), g = int((*n >> 8) & 0xFF), b = int((*n >> 16) & 0xFF);
            return QStringLiteral("#%1%2%3")
                .arg(r, 2, 16, QLatin1Char('0'))
                .arg(g, 2, 16, QLatin1Char('0'))
                .arg(b, 2, 16, QLatin1Char('0'))
                .toUpper();
        }
        return stored;
    }
    return stored;
}

QString GridColumn::editText(const QString& stored, DateEra era) const
{
    if (type == GridColumnType::Number || type == GridColumnType::AbsNumber) {
        if (const auto d = parseDecimal(stored, false))
            return formatted(*d, decimals, false);
    }
    return displayText(stored, era);
}

QVariant GridColumn::value(const QString& stored) const
{
    if (type == GridColumnType::Text)
        return stored;
    if (isCheck())
        return int(isTrue(stored));
    if (stored.isEmpty())
        return {};
    switch (type) {
    case GridColumnType::Number:
    case GridColumnType::AbsNumber:
    case GridColumnType::AutoNumber: {
        const auto d = parseDecimal(stored, false);
        if (!d)
            return stored;
        const QString exact = canonical(*d);
        const qsizetype point = exact.indexOf(u'.');
        const qsizetype fractionDigits = point < 0 ? 0 : exact.size() - point - 1;
        if (fractionDigits == 0 && (decimals == 0 || type == GridColumnType::AutoNumber)) {
            bool ok = false;
            const qlonglong whole = exact.toLongLong(&ok);
            if (ok)
                return whole;
        }
        if (fractionDigits <= 4) {
            if (const auto money = Currency::parse(exact))
                return QVariant::fromValue(*money);
        }
        return exact.toDouble();
    }
    case GridColumnType::Date:
        if (const QDate d = QDate::fromString(stored, Qt::ISODate); d.isValid())
            return d;
        return stored;
    case GridColumnType::DateTime:
        if (const auto dt = storedDateTimeOf(stored))
            return *dt;
        return stored;
    case GridColumnType::Time:
        if (const auto t = parseTime(stored))
            return *t;
        return stored;
    case GridColumnType::Color:
        if (const auto n = parseColor(stored))
            return qlonglong(*n);
        return stored;
    default:
        return stored;
    }
}

QString GridColumn::storedFromValue(const QVariant& value) const
{
    if (isCheck()) {
        if (value.isNull())
            return QStringLiteral("0");
        if (value.typeId() == QMetaType::Bool)
            return value.toBool() ? QStringLiteral("1") : QStringLiteral("0");
        return isTrue(qd8::text(value)) ? QStringLiteral("1") : QStringLiteral("0");
    }
    if (value.isNull())
        return {};
    switch (type) {
    case GridColumnType::Number:
    case GridColumnType::AbsNumber:
    case GridColumnType::AutoNumber:
        return numberText(value);
    case GridColumnType::Date:
        if (value.typeId() == QMetaType::QDate)
            return storedDate(value.toDate());
        if (value.typeId() == QMetaType::QDateTime)
            return storedDate(value.toDateTime().date());
        return storedFromText(qd8::text(value), DateEra::Gregorian);
    case GridColumnType::DateTime:
        if (value.typeId() == QMetaType::QDateTime)
            return storedDateTime(value.toDateTime());
        if (value.typeId() == QMetaType::QDate)
            return storedDateTime(QDateTime(value.toDate(), QTime(0, 0)));
        return storedFromText(qd8::text(value), DateEra::Gregorian);
    case GridColumnType::Time:
        if (value.typeId() == QMetaType::QTime)
            return storedTime(value.toTime());
        if (value.typeId() == QMetaType::QDateTime)
            return storedTime(value.toDateTime().time());
        return storedFromText(qd8::text(value), DateEra::Gregorian);
    case GridColumnType::LabelList: {
        const QString code = qd8::text(value);
        for (const GridLabel& l : labels) {
            if (l.code == code)
                return code;
        }
        for (const GridLabel& l : labels) {
            if (l.label == code)
                return l.code;
        }
        return code;
    }
    case GridColumnType::Color:
        return storedFromText(qd8::text(value), DateEra::Gregorian);
    default:
        return qd8::text(value);
    }
}

QString GridColumn::storedFromText(const QString& text, DateEra era) const
{
    switch (type) {
    case GridColumnType::Text:
        return text;
    case GridColumnType::YesNo:
    case GridColumnType::Check:
        return isTrue(text) ? QStringLiteral("1") : QStringLiteral("0");
    case GridColumnType::LabelList:
        for (const GridLabel& l : labels) {
            if (l.label == text)
                return l.code;
        }
        return text;
    default:
        break;
    }
    if (text.trimmed().isEmpty())
        return {};
    switch (type) {
    case GridColumnType::Number:
    case GridColumnType::AbsNumber:
    case GridColumnType::AutoNumber:
        if (const auto d = parseDecimal(text, true))
            return canonical(*d);
        return text;
    case GridColumnType::Date:
        if (const auto d = parseDate(text, era))
            return storedDate(*d);
        if (const auto dt = parseDateTime(text, era))
            return storedDate(dt->date());
        return text;
    case GridColumnType::DateTime:
        if (const auto dt = parseDateTime(text, era))
            return storedDateTime(*dt);
        return text;
    case GridColumnType::Time:
        if (const auto t = parseTime(text))
            return storedTime(*t);
        return text;
    case GridColumnType::Color:
        if (const auto n = parseColor(text))
            return QString::number(*n);
        return text;
    default:
        return text;
    }
}

GridInputProblem GridColumn::parseInput(const QString& text, QString& stored, DateEra era) const
{
    if (isCheck() || type == GridColumnType::Text || type == GridColumnType::LabelList) {
        stored = storedFromText(text, era);
        return GridInputProblem::None;
    }
    if (text.trimmed().isEmpty()) {
        stored.clear();
        return GridInputProblem::None;
    }
    switch (type) {
    case GridColumnType::Number:
    case GridColumnType::AbsNumber:
    case GridColumnType::AutoNumber: {
        const auto d = parseDecimal(text, true);
        if (!d)
            return GridInputProblem::NotANumber;
        if (type == GridColumnType::AbsNumber && d->negative && !d->isZero())
            return GridInputProblem::Negative;
        stored = canonical(rounded(*d, type == GridColumnType::AutoNumber ? 0 : decimals));
        return GridInputProblem::None;
    }
    case GridColumnType::Date:
        if (const auto d = parseDate(text, era)) {
            stored = storedDate(*d);
            return GridInputProblem::None;
        }
        return GridInputProblem::NotADate;
    case GridColumnType::DateTime:
        if (const auto dt = parseDateTime(text, era)) {
            stored = storedDateTime(*dt);
            return GridInputProblem::None;
        }
        return GridInputProblem::NotADateTime;
    case GridColumnType::Time:
        if (const auto t = parseTime(text)) {
            stored = storedTime(*t);
            return GridInputProblem::None;
        }
        return GridInputProblem::NotATime;
    case GridColumnType::Color:
        if (const auto n = parseColor(text)) {
            stored = QString::number(*n);
            return GridInputProblem::None;
        }
        return GridInputProblem::NotAColor;
    default:
        stored = text;
        return GridInputProblem::None;
    }
}

QString GridColumn::problemText(GridInputProblem problem, int languageId)
{
    const bool thai = isThai(languageId);
    switch (problem) {
    case GridInputProblem::None:
        return {};
    case GridInputProblem::NotANumber:
        return thai ? QStringLiteral("กรุณาระบุเป็นตัวเลข") : QStringLiteral("Please enter a number");
    case GridInputProblem::Negative:
        return thai ? QStringLiteral("กรุณาระบุตัวเลขที่ไม่ติดลบ") : QStringLiteral("Please enter a number that is not negative");
    case GridInputProblem::NotADate:
        return (thai ? QStringLiteral("กรุณาระบุวันที่ในรูปแบบ ") : QStringLiteral("Please enter a date as ")) + datePattern(languageId);
    case GridInputProblem::NotADateTime:
        return (thai ? QStringLiteral("กรุณาระบุวันที่และเวลาในรูปแบบ ") : QStringLiteral("Please enter a date and time as "))
            + dateTimePattern(languageId);
    case GridInputProblem::NotATime:
        return thai ? QStringLiteral("กรุณาระบุเวลาในรูปแบบ ชช:นน") : QStringLiteral("Please enter a time as hh:mm");
    case GridInputProblem::NotAColor:
        return thai ? QStringLiteral("กรุณาระบุสีในรูปแบบ #RRGGBB") : QStringLiteral("Please enter a colour as #RRGGBB");
    }
    return {};
}

} // namespace qd8
