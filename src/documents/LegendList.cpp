#include "documents/LegendList.h"

#include "database/DataObject.h"
#include "foundation/CommaList.h"
#include "foundation/Currency.h"
#include "foundation/DateText.h"
#include "foundation/DbError.h"
#include "foundation/Values.h"
#include "widgets/DataView.h"

#include <QDateTime>
#include <QRegularExpression>
#include <optional>

namespace qd8 {

namespace {

constexpr int FieldElement = 0;
constexpr int KeywordElement = 1;
constexpr int ValueElement = 2;
constexpr int ColourElement = 3;
constexpr int OperandElement = 4;
constexpr int CaptionElement = 5;
constexpr int Operand2Element = 6;
constexpr int RequiredElements = 4;

const QString AcknowledgeField = QStringLiteral("TPO2Acknowledge");

// A date written as text, as the date module reads it; a time may follow, as in a
// timestamp read as text.
QDate dateFromText(const QString& text)
{
    static const QRegularExpression timeStart(QStringLiteral("[ T]"));
    const QString trimmed = text.trimmed();
    return parseDate(trimmed.left(trimmed.indexOf(timeStart)), DateEra::Gregorian).value_or(QDate());
}

// The date a row value holds: a date column, or text that reads as one (SQLite hands
// computed date columns over as text).
QDate dateOf(const QVariant& value)
{
    switch (value.typeId()) {
    case QMetaType::QDate: return value.toDate();
    case QMetaType::QDateTime: return value.toDateTime().date();
    case QMetaType::QString: return dateFromText(value.toString());
    default: return {};
    }
}

std::optional<double> numberOf(const QVariant& value)
{
    if (value.isNull())
        return std::nullopt;
    if (value.typeId() == qMetaTypeId<Currency>())
        return value.value<Currency>().toDouble();
    switch (value.typeId()) {
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Double:
    case QMetaType::Float:
        return value.toDouble();
    case QMetaType::QString: {
        bool ok = false;
        const double number = value.toString().trimmed().toDouble(&ok);
        return ok ? std::optional<double>(number) : std::nullopt;
    }
    default:
        return std::nullopt;
    }
}

std::optional<QColor> colourFromText(const QString& text)
{
    if (text.isEmpty())
        return std::nullopt;
    bool isNumber = false;
    const qlonglong number = text.toLongLong(&isNumber);
    if (isNumber) {
        // The suite's colour number: red in the low byte, blue in the high one.
        if (number < 0 || number > 0xFFFFFF)
            return std::nullopt;
        return QColor(int(number & 0xFF), int((number >> 8) & 0xFF), int((number >> 16) & 0xFF));
    }
    const QColor colour = QColor::fromString(text);
    return colour.isValid() ? std::optional<QColor>(colour) : std::nullopt;
}

int sign(double difference)
{
    return difference < 0 ? -1 : (difference > 0 ? 1 : 0);
}

bool acknowledged(const DataRow& row)
{
    return toNumber(row.value(AcknowledgeField)) == 1;
}

} // namespace

void LegendList::load(const QString& legendList, const QString& prefix)
{
    m_entries.clear();
    m_rules.clear();
    m_notice.clear();
    m_prefix = prefix;
    QStringList problems;
    for (const QString& text : splitList(legendList)) {
        if (text.trimmed().isEmpty())
            continue;
        QStringList elements = text.split(QLatin1Char(';'));
        for (QString& element : elements)
            element = element.trimmed();
        if (elements.size() < RequiredElements) {
            problems << QStringLiteral("Legend entry \"%1\": needs field;keyword;value;colour").arg(text.trimmed());
            continue;
        }
        while (elements.size() <= Operand2Element)
            elements << QString();
        Entry entry{elements[FieldElement], elements[KeywordElement], elements[ValueElement], QColor(), elements[OperandElement],
            elements[CaptionElement], elements[Operand2Element]};
        const std::optional<QColor> colour = colourFromText(elements[ColourElement]);
        if (!colour) {
            problems << QStringLiteral("Legend entry \"%1\": unknown colour \"%2\"").arg(text.trimmed(), elements[ColourElement]);
            continue;
        }
        entry.colour = *colour;
        QString error;
        const Rule rule = compile(entry, &error);
        if (!error.isEmpty()) {
            problems << QStringLiteral("Legend entry \"%1\": %2").arg(text.trimmed(), error);
            continue;
        }
        m_entries << entry;
        m_rules << rule;
    }
    m_notice = problems.join(QLatin1Char('\n'));
}

void LegendList::readOptions(DataObject& options)
{
    const auto read = [&options](const char* alias) {
        try {
            return options.effectiveNumber(QLatin1String(alias));
        } catch (const DbError&) {
            return 0.0;
        }
    };
    m_billAlertDays = int(read("BillProcessAlertTime"));
    m_poAlertDays = int(read("POIncomingAlertDay"));
    m_soAlertDays = int(read("SOIncomingAlertDay"));
    m_poRequireAck = read("PORequireAckBeforeDelivery") == 1;
}

QColor LegendList::colourOf(const DataRow& row) const
{
    for (qsizetype i = 0; i < m_rules.size(); ++i)
        if (ruleHolds(m_rules[i], row))
            return m_entries[i].colour;
    return {};
}

bool LegendList::holds(const Entry& entry, const DataRow& row) const
{
    QString error;
    const Rule rule = compile(entry, &error);
    return error.isEmpty() && ruleHolds(rule, row);
}

LegendList::Literal LegendList::literalOf(const QString& text)
{
    Literal literal;
    literal.text = text;
    bool ok = false;
    literal.number = text.trimmed().toDouble(&ok);
    literal.isNumber = ok;
    literal.date = dateFromText(text);
    return literal;
}

LegendList::Literal LegendList::literalOf(const QVariant& value)
{
    Literal literal;
    literal.isNull = value.isNull();
    literal.text = qd8::text(value);
    const std::optional<double> number = numberOf(value);
    literal.isNumber = number.has_value();
    literal.number = number.value_or(0);
    literal.date = dateOf(value);
    return literal;
}

LegendList::Literal LegendList::literalOf(const QVariant& value, const Literal& other)
{
    Literal literal;
    if (value.isNull()) {
        literal.isNull = true;
        return literal;
    }
    if (other.isNumber) {
        if (const std::optional<double> number = numberOf(value)) {
            literal.isNumber = true;
            literal.number = *number;
            return literal;
        }
    }
    if (other.date.isValid()) {
        literal.date = dateOf(value);
        if (literal.date.isValid())
            return literal;
    }
    literal.text = qd8::text(value);
    return literal;
}

bool LegendList::compareHolds(Relation relation, const Literal& left, const Literal& right)
{
    if (left.isNull || right.isNull) {
        // NULL reads as "" for (in)equality and orders against nothing.
        if (relation == Relation::Equal)
            return left.text == right.text;
        if (relation == Relation::NotEqual)
            return left.text != right.text;
        return false;
    }
    int order = 0;
    if (left.isNumber && right.isNumber)
        order = sign(left.number - right.number);
    else if (left.date.isValid() && right.date.isValid())
        order = sign(double(right.date.daysTo(left.date)));
    else
        order = sign(QString::compare(left.text, right.text, Qt::CaseSensitive));
    switch (relation) {
    case Relation::Equal: return order == 0;
    case Relation::NotEqual: return order != 0;
    case Relation::Greater: return order > 0;
    case Relation::Less: return order < 0;
    case Relation::GreaterOrEqual: return order >= 0;
    case Relation::LessOrEqual: return order <= 0;
    }
    return false;
}

LegendList::Rule LegendList::compile(const Entry& entry, QString* error) const
{
    struct Keyword {
        const char* text;
        Test test;
        Relation relation;
    };
    static const Keyword keywords[] = {
        {"IS NULL", Test::IsNull, Relation::Equal},
        {"IS NOT NULL", Test::IsNotNull, Relation::Equal},
        {"=", Test::Compare, Relation::Equal},
        {"<>", Test::Compare, Relation::NotEqual},
        {">", Test::Compare, Relation::Greater},
        {"<", Test::Compare, Relation::Less},
        {">=", Test::Compare, Relation::GreaterOrEqual},
        {"<=", Test::Compare, Relation::LessOrEqual},
        {"D=", Test::DateSpan, Relation::Equal},
        {"D<>", Test::DateSpan, Relation::NotEqual},
        {"D>", Test::DateSpan, Relation::Greater},
        {"D<", Test::DateSpan, Relation::Less},
        {"D>=", Test::DateSpan, Relation::GreaterOrEqual},
        {"D<=", Test::DateSpan, Relation::LessOrEqual},
        {"T=", Test::FieldCompare, Relation::Equal},
        {"T<>", Test::FieldCompare, Relation::NotEqual},
        {"T>", Test::FieldCompare, Relation::Greater},
        {"T<", Test::FieldCompare, Relation::Less},
        {"T>=", Test::FieldCompare, Relation::GreaterOrEqual},
        {"T<=", Test::FieldCompare, Relation::LessOrEqual},
        {"BF1", Test::BillDue, Relation::Equal},
        {"BF2", Test::BillDue, Relation::Equal},
        {"PODUEDATE", Test::PoDue, Relation::Equal},
        {"TPO2ACKNOWLEDGE", Test::PoUnacknowledged, Relation::Equal},
        {"SODUEDATE", Test::SoDue, Relation::Equal},
    };
    const QString keyword = entry.keyword.simplified().toUpper();
    const Keyword* found = nullptr;
    for (const Keyword& candidate : keywords)
        if (keyword == QLatin1String(candidate.text)) {
            found = &candidate;
            break;
        }
    Rule rule;
    if (!found) {
        *error = QStringLiteral("unknown keyword \"%1\"").arg(entry.keyword);
        return rule;
    }
    rule.test = found->test;
    rule.relation = found->relation;
    rule.field = entry.field;
    rule.operand = entry.operand;
    rule.value = literalOf(entry.value);
    const bool needsNumber = rule.test == Test::DateSpan || rule.test == Test::BillDue;
    if (needsNumber && !rule.value.isNumber) {
        if (!entry.value.trimmed().isEmpty()) {
            *error = QStringLiteral("\"%1\" is not a number").arg(entry.value);
            return rule;
        }
        rule.value.number = 0;
        rule.value.isNumber = true;
    }
    switch (rule.test) {
    case Test::DateSpan: {
        const QString unit = entry.operand2.trimmed().toUpper();
        if (unit.isEmpty() || unit == QLatin1String("D"))
            rule.span = Span::Days;
        else if (unit == QLatin1String("M"))
            rule.span = Span::Months;
        else if (unit == QLatin1String("Y"))
            rule.span = Span::Years;
        else
            *error = QStringLiteral("unknown unit \"%1\" (D, M or Y)").arg(entry.operand2);
        break;
    }
    case Test::FieldCompare:
        if (rule.operand.isEmpty())
            *error = QStringLiteral("%1 needs the field to compare with").arg(entry.keyword);
        break;
    case Test::BillDue:
        rule.field = m_prefix + QStringLiteral("BillStatus");
        rule.operand = m_prefix + (keyword == QLatin1String("BF2") ? QStringLiteral("Date") : QStringLiteral("DueDate"));
        break;
    case Test::PoDue:
    case Test::PoUnacknowledged:
    case Test::SoDue:
        rule.operand = m_prefix + QStringLiteral("DueDate");
        break;
    default:
        break;
    }
    return rule;
}

bool LegendList::ruleHolds(const Rule& rule, const DataRow& row) const
{
    switch (rule.test) {
    case Test::IsNull:
        return row.hasField(rule.field) && row.value(rule.field).isNull();
    case Test::IsNotNull:
        return row.hasField(rule.field) && !row.value(rule.field).isNull();
    case Test::Compare:
        return row.hasField(rule.field) && compareHolds(rule.relation, literalOf(row.value(rule.field), rule.value), rule.value);
    case Test::FieldCompare: {
        if (!row.hasField(rule.field) || !row.hasField(rule.operand))
            return false;
        const Literal other = literalOf(row.value(rule.operand));
        return compareHolds(rule.relation, literalOf(row.value(rule.field), other), other);
    }
    case Test::DateSpan:
        return spanHolds(rule, row);
    default:
        return alertHolds(rule, row);
    }
}

bool LegendList::spanHolds(const Rule& rule, const DataRow& row) const
{
    if (!row.hasField(rule.field))
        return false;
    const QDate from = dateOf(row.value(rule.field));
    QDate to = m_today;
    if (!rule.operand.isEmpty())
        to = row.hasField(rule.operand) ? dateOf(row.value(rule.operand)) : QDate();
    if (!from.isValid() || !to.isValid())
        return false;
    Literal span;
    span.isNumber = true;
    // Months and years count the calendar boundaries crossed, as the suite's date difference does.
    switch (rule.span) {
    case Span::Days: span.number = double(from.daysTo(to)); break;
    case Span::Months: span.number = (to.year() - from.year()) * 12 + (to.month() - from.month()); break;
    case Span::Years: span.number = to.year() - from.year(); break;
    }
    return compareHolds(rule.relation, span, rule.value);
}

bool LegendList::alertHolds(const Rule& rule, const DataRow& row) const
{
    if (!row.hasField(rule.operand))
        return false;
    const QDate due = dateOf(row.value(rule.operand));
    if (!due.isValid())
        return false;
    const qint64 daysLeft = m_today.daysTo(due);
    switch (rule.test) {
    case Test::BillDue:
        return row.hasField(rule.field) && toNumber(row.value(rule.field)) == rule.value.number && daysLeft <= m_billAlertDays;
    case Test::PoDue:
        return !(m_poRequireAck && acknowledged(row)) && daysLeft <= m_poAlertDays;
    case Test::PoUnacknowledged:
        return !acknowledged(row) && daysLeft <= m_poAlertDays;
    case Test::SoDue:
        return daysLeft <= m_soAlertDays;
    default:
        return false;
    }
}

} // namespace qd8
