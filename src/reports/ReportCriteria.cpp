#include "reports/ReportCriteria.h"

#include "foundation/Connection.h"
#include "foundation/DbError.h"
#include "foundation/Language.h"
#include "foundation/Recordset.h"
#include "foundation/Values.h"
#include "widgets/GridColumn.h"

#include <QRegularExpression>
#include <QSet>

namespace qd8 {

namespace {

// Characters that separate the stored form's entries and pieces.
const QString Reserved = QStringLiteral("%;=~,");

QString encode(const QString& value)
{
    QString out;
    for (const QChar ch : value)
        out += Reserved.contains(ch) ? QStringLiteral("%%1").arg(ch.unicode(), 2, 16, QLatin1Char('0')).toUpper() : QString(ch);
    return out;
}

QString decode(const QString& value)
{
    QString out;
    for (qsizetype i = 0; i < value.size(); ++i) {
        bool ok = false;
        const uint code = value[i] == QLatin1Char('%') ? value.mid(i + 1, 2).toUInt(&ok, 16) : 0;
        if (ok && i + 2 < value.size()) {
            out += QChar(code);
            i += 2;
        } else {
            out += value[i];
        }
    }
    return out;
}

QChar separator(ReportCriterion::Kind kind)
{
    return kind == ReportCriterion::Kind::Between ? QLatin1Char('~') : QLatin1Char(',');
}

// A stored value's pieces: a range's two ends, a list's entries, else the one value.
QStringList piecesOf(ReportCriterion::Kind kind, const QString& stored)
{
    QStringList parts;
    if (kind != ReportCriterion::Kind::Between && kind != ReportCriterion::Kind::OneOf)
        return {decode(stored)};
    for (const QString& part : stored.split(separator(kind)))
        parts << decode(part);
    return parts;
}

bool isPlainNumber(const QString& value)
{
    return !Sql::number(value.trimmed()).isBroken();
}

QStringList filled(const QStringList& parts)
{
    QStringList out;
    for (const QString& part : parts)
        if (!part.trimmed().isEmpty())
            out << part.trimmed();
    return out;
}

// The key of each criterion in the stored form: its field, "FIELD#2" for the second
// criterion on the same field.
QStringList keysOf(const QList<ReportCriterion>& criteria)
{
    QStringList keys;
    QHash<QString, int> seen;
    for (const ReportCriterion& c : criteria) {
        const int n = ++seen[c.field.toUpper()];
        keys << (n == 1 ? c.field : c.field + QStringLiteral("#") + QString::number(n));
    }
    return keys;
}

} // namespace

QString ReportCriterion::captionIn(int languageId) const
{
    const QString& text = inLanguage(languageId, caption, caption2);
    return text.isEmpty() ? (caption.isEmpty() ? caption2 : caption) : text;
}

QList<QPair<QString, QString>> ReportCriterion::choices(int languageId) const
{
    if (typeWord == QLatin1String("YESNO"))
        return {{QStringLiteral("1"), inLanguage(languageId, "ใช่", "Yes")}, {QStringLiteral("0"), inLanguage(languageId, "ไม่ใช่", "No")}};
    const QString& list = labelList2.isEmpty() ? labelList : inLanguage(languageId, labelList, labelList2);
    QList<QPair<QString, QString>> out;
    for (const GridLabel& l : GridColumn::parseLabelList(list))
        out.append({l.code, l.label});
    return out;
}

QString ReportCriterion::label(const QString& code, int languageId) const
{
    for (const auto& [c, l] : choices(languageId))
        if (c == code.trimmed())
            return l;
    return code;
}

ReportCriterion::Kind ReportCriterion::kindOf(const QString& condition)
{
    const QString c = condition.trimmed().toUpper();
    if (c == QLatin1String("LIKE"))
        return Kind::Like;
    if (c == QLatin1String("BETWEEN"))
        return Kind::Between;
    if (c == QLatin1String(">="))
        return Kind::AtLeast;
    if (c == QLatin1String("<="))
        return Kind::AtMost;
    if (c == QLatin1String("IN"))
        return Kind::OneOf;
    return Kind::Equals;
}

QList<ReportCriterion> ReportCriterion::read(const QString& reportGroup, const QString& appConnectionString)
{
    QList<ReportCriterion> out;
    Connection c;
    c.open(appConnectionString);
    Recordset rs;
    rs.open(Sql("SELECT * FROM QD8VReportFilter WHERE TRpFReportGroup=") + quoted(reportGroup) + " AND TRpFFlag1=1 ORDER BY TRpFSort", c);
    for (; !rs.eof(); rs.moveNext()) {
        ReportCriterion r;
        r.field = rs.text(QStringLiteral("TRpFFieldName")).trimmed();
        r.caption = rs.text(QStringLiteral("TRpFCaption"));
        r.caption2 = rs.text(QStringLiteral("TRpFCaption2"));
        r.typeWord = normalTypeWord(rs.text(QStringLiteral("TRpFFieldType")));
        if (r.typeWord == QLatin1String("DATETIME"))
            r.typeWord = QStringLiteral("DATE");
        else if (r.typeWord == QLatin1String("CHECK"))
            r.typeWord = QStringLiteral("YESNO");
        else if (r.typeWord != QLatin1String("NUMBER") && r.typeWord != QLatin1String("DATE") && r.typeWord != QLatin1String("YESNO")
            && r.typeWord != QLatin1String("LABELLIST"))
            r.typeWord = QStringLiteral("TEXT");
        r.kind = kindOf(rs.text(QStringLiteral("TRpFCondition")));
        r.labelList = rs.text(QStringLiteral("TRpFLabelList"));
        r.labelList2 = rs.text(QStringLiteral("TRpFLabelList2"));
        r.quickForm = rs.text(QStringLiteral("TRpFRunQuickForm")).trimmed();
        r.defaultValue = rs.text(QStringLiteral("TRpFDefaultValue"));
        r.canBlank = rs.field(QStringLiteral("TRpFCanBlank")).isNull() || toNumber(rs.field(QStringLiteral("TRpFCanBlank"))) != 0;
        out << r;
    }
    return out;
}

const QStringList& RelativeDates::words()
{
    static const QStringList all{QStringLiteral("@TODAY"), QStringLiteral("@MONTHSTART"), QStringLiteral("@MONTHEND"),
        QStringLiteral("@LASTMONTHSTART"), QStringLiteral("@LASTMONTHEND"), QStringLiteral("@YEARSTART"), QStringLiteral("@YEAREND")};
    return all;
}

QString RelativeDates::caption(const QString& word, int languageId)
{
    static const char* const thai[] = {"วันนี้", "วันแรกของเดือนนี้", "วันสุดท้ายของเดือนนี้", "วันแรกของเดือนก่อน", "วันสุดท้ายของเดือนก่อน",
        "วันแรกของปีบัญชี", "วันสุดท้ายของปีบัญชี"};
    static const char* const english[] = {"Today", "First day of this month", "Last day of this month", "First day of last month",
        "Last day of last month", "First day of the accounting year", "Last day of the accounting year"};
    const qsizetype i = words().indexOf(word.trimmed().toUpper());
    return i < 0 ? word : inLanguage(languageId, thai[i], english[i]);
}

RelativeDates RelativeDates::calendarYear(QDate today)
{
    return {today, QDate(today.year(), 1, 1), QDate(today.year(), 12, 31)};
}

RelativeDates RelativeDates::on(QDate today, const QString& dataConnectionString)
{
    RelativeDates dates = calendarYear(today);
    try {
        Connection c;
        c.open(dataConnectionString);
        Recordset rs;
        rs.open(Sql("SELECT TACYStartDate, TACYEndDate FROM QD8TACYear WHERE TACYStartDate<=") + dateMarker(today)
                + " AND TACYEndDate>=" + dateMarker(today),
            c);
        if (!rs.eof()) {
            dates.yearStart = rs.field(QStringLiteral("TACYStartDate")).toDate();
            dates.yearEnd = rs.field(QStringLiteral("TACYEndDate")).toDate();
        } else {
            // Years without dates of their own are numbered as calendar years; their periods may say more.
            rs.open(Sql("SELECT MIN(TACPStartDate) AS StartDate, MAX(TACPEndDate) AS EndDate FROM QD8TACPeriod WHERE TACPTACYID=")
                    + today.year(),
                c);
            const QDate start = rs.eof() ? QDate() : rs.field(QStringLiteral("StartDate")).toDate();
            const QDate end = rs.eof() ? QDate() : rs.field(QStringLiteral("EndDate")).toDate();
            if (start.isValid() && end.isValid() && start <= today && today <= end) {
                dates.yearStart = start;
                dates.yearEnd = end;
            }
        }
    } catch (const DbError&) {
        // The calendar year stands.
    }
    if (!dates.yearStart.isValid() || !dates.yearEnd.isValid())
        dates = calendarYear(today);
    return dates;
}

QDate RelativeDates::resolve(const QString& value, DateEra era) const
{
    const QString v = value.trimmed().toUpper();
    const QDate monthStart(today.year(), today.month(), 1);
    switch (words().indexOf(v)) {
    case 0: return today;
    case 1: return monthStart;
    case 2: return monthStart.addMonths(1).addDays(-1);
    case 3: return monthStart.addMonths(-1);
    case 4: return monthStart.addDays(-1);
    case 5: return yearStart;
    case 6: return yearEnd;
    default: break;
    }
    if (isRelative(v))
        return {};
    return parseDate(value.trimmed(), era, today).value_or(QDate());
}

ReportCriteria::ReportCriteria(QList<ReportCriterion> criteria, RelativeDates dates)
    : m_criteria(std::move(criteria))
    , m_dates(dates)
{
    reset();
}

void ReportCriteria::setValue(int index, const QStringList& value)
{
    if (index >= 0 && index < m_values.size())
        m_values[index] = value;
}

void ReportCriteria::reset()
{
    m_values.clear();
    m_locked = QList<bool>(m_criteria.size(), false);
    for (const ReportCriterion& c : m_criteria)
        m_values << (c.defaultValue.isEmpty() ? QStringList() : piecesOf(c.kind, c.defaultValue));
}

QHash<QString, QString> ReportCriteria::parseParamList(const QString& paramList, QSet<QString>* locked)
{
    QHash<QString, QString> out;
    for (const QString& entry : paramList.split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
        const qsizetype eq = entry.indexOf(QLatin1Char('='));
        if (eq < 0)
            continue;
        QString key = entry.left(eq).trimmed();
        if (key.startsWith(QLatin1Char('!'))) {
            key = key.mid(1).trimmed();
            if (locked)
                locked->insert(key.toUpper());
        }
        out.insert(key.toUpper(), entry.mid(eq + 1));
    }
    return out;
}

void ReportCriteria::apply(const QString& paramList)
{
    QSet<QString> locked;
    const QHash<QString, QString> given = parseParamList(paramList, &locked);
    const QStringList keys = keysOf(m_criteria);
    for (int i = 0; i < m_criteria.size(); ++i) {
        const QString key = keys[i].toUpper();
        if (!given.contains(key) || m_locked[i])
            continue;
        m_values[i] = piecesOf(m_criteria[i].kind, given[key]);
        m_locked[i] = locked.contains(key);
    }
}

QString ReportCriteria::paramList(bool withLocked) const
{
    QStringList entries;
    const QStringList keys = keysOf(m_criteria);
    for (int i = 0; i < m_criteria.size(); ++i) {
        if (filled(m_values[i]).isEmpty() || (m_locked[i] && !withLocked))
            continue;
        QStringList parts;
        for (const QString& part : m_values[i])
            parts << encode(part.trimmed());
        entries << (m_locked[i] ? QStringLiteral("!") : QString()) + keys[i] + QLatin1Char('=') + parts.join(separator(m_criteria[i].kind));
    }
    return entries.join(QLatin1Char(';'));
}

QString ReportCriteria::problem(int languageId, int* index) const
{
    for (int i = 0; i < m_criteria.size(); ++i) {
        const ReportCriterion& c = m_criteria[i];
        const QString caption = c.captionIn(languageId);
        const QStringList parts = m_values[i];
        QString message;
        const bool blank = c.kind == ReportCriterion::Kind::Between ? filled(parts).size() < 2 || parts.size() < 2
                                                                    : filled(parts).isEmpty();
        if (!c.canBlank && blank)
            message = inLanguage(languageId, "กรุณาระบุ%1", "Enter %1.").arg(c.kind == ReportCriterion::Kind::Between
                    ? caption + inLanguage(languageId, " ทั้งวันเริ่มต้นและวันสิ้นสุด", ": both the start and the end")
                    : caption);
        for (const QString& part : filled(parts)) {
            if (!message.isEmpty())
                break;
            if (c.typeWord == QLatin1String("NUMBER") && !isPlainNumber(part))
                message = inLanguage(languageId, "%1: \"%2\" ไม่ใช่ตัวเลข", "%1: \"%2\" is not a number").arg(caption, part);
            else if (c.isDate() && !m_dates.resolve(part, DateEra::Gregorian).isValid())
                message = inLanguage(languageId, "%1: \"%2\" ไม่ใช่วันที่ (%3)", "%1: \"%2\" is not a date (%3)")
                              .arg(caption, part, datePattern(languageId));
        }
        if (message.isEmpty() && c.kind == ReportCriterion::Kind::Between && filled(parts).size() == 2 && parts.size() == 2) {
            const bool reversed = c.isDate()
                ? m_dates.resolve(parts[0], DateEra::Gregorian) > m_dates.resolve(parts[1], DateEra::Gregorian)
                : c.typeWord == QLatin1String("NUMBER") ? parts[0].toDouble() > parts[1].toDouble() : false;
            if (reversed)
                message = inLanguage(languageId, "%1: ค่าเริ่มต้นมากกว่าค่าสิ้นสุด", "%1: the start is after the end").arg(caption);
        }
        if (!message.isEmpty()) {
            if (index)
                *index = i;
            return message;
        }
    }
    if (index)
        *index = -1;
    return {};
}

Sql ReportCriteria::literal(const ReportCriterion& c, const QString& value) const
{
    const QString v = value.trimmed();
    if (c.isDate()) {
        const QDate date = m_dates.resolve(v, DateEra::Gregorian);
        // Not a date: refused like a number that is none, never sent as text.
        return date.isValid() ? Sql(dateMarker(date)) : number(v);
    }
    if (c.typeWord == QLatin1String("NUMBER") || c.typeWord == QLatin1String("YESNO"))
        return number(v);
    if (c.typeWord == QLatin1String("LABELLIST") && isPlainNumber(v))
        return Sql(v);
    return quoted(v);
}

Sql ReportCriteria::condition() const
{
    Sql out;
    const auto add = [&out](const Sql& piece) { out += Sql(out.text().isEmpty() ? "" : " AND ") + piece; };
    for (int i = 0; i < m_criteria.size(); ++i) {
        const ReportCriterion& c = m_criteria[i];
        const QStringList parts = m_values[i];
        const QStringList given = filled(parts);
        if (given.isEmpty())
            continue;
        switch (c.kind) {
        case ReportCriterion::Kind::Between:
            if (!parts.value(0).trimmed().isEmpty())
                add(Sql(c.field) + ">=" + literal(c, parts[0]));
            if (!parts.value(1).trimmed().isEmpty())
                add(Sql(c.field) + "<=" + literal(c, parts[1]));
            break;
        case ReportCriterion::Kind::AtLeast:
            add(Sql(c.field) + ">=" + literal(c, given[0]));
            break;
        case ReportCriterion::Kind::AtMost:
            add(Sql(c.field) + "<=" + literal(c, given[0]));
            break;
        case ReportCriterion::Kind::Like:
            if (c.typeWord == QLatin1String("TEXT")) {
                add(Sql(c.field) + " LIKE " + quoted(QStringLiteral("%") + given[0] + QStringLiteral("%")));
                break;
            }
            [[fallthrough]];
        case ReportCriterion::Kind::Equals:
            add(Sql(c.field) + "=" + literal(c, given[0]));
            break;
        case ReportCriterion::Kind::OneOf:
            if (given.size() == 1) {
                add(Sql(c.field) + "=" + literal(c, given[0]));
            } else {
                Sql any;
                for (const QString& v : given)
                    any += Sql(any.text().isEmpty() ? "" : " OR ") + c.field + "=" + literal(c, v);
                add(Sql("(") + any + ")");
            }
            break;
        }
    }
    return out;
}

Sql ReportCriteria::statement(const QString& tableQuery) const
{
    const Sql cond = condition();
    static const QString Marker = QStringLiteral("{FILTER}");
    const qsizetype at = tableQuery.indexOf(Marker, 0, Qt::CaseInsensitive);
    if (at >= 0)
        return Sql(tableQuery.left(at)) + (cond.text().isEmpty() ? Sql() : Sql(" AND ") + cond) + tableQuery.mid(at + Marker.size());
    return cond.text().isEmpty() ? Sql(tableQuery) : Sql(tableQuery) + " WHERE " + cond;
}

QString ReportCriteria::shown(const ReportCriterion& c, const QString& value, int languageId) const
{
    if (c.isDate()) {
        const QDate date = m_dates.resolve(value, DateEra::Gregorian);
        return date.isValid() ? dateText(date, DateLook::forLanguage(languageId).era) : value;
    }
    if (c.typeWord == QLatin1String("YESNO") || c.typeWord == QLatin1String("LABELLIST"))
        return c.label(value, languageId);
    return value.trimmed();
}

QString ReportCriteria::sentence(int languageId) const
{
    QStringList pieces;
    for (int i = 0; i < m_criteria.size(); ++i) {
        const ReportCriterion& c = m_criteria[i];
        const QStringList parts = m_values[i];
        QStringList given;
        for (const QString& v : filled(parts))
            given << shown(c, v, languageId);
        if (given.isEmpty())
            continue;
        const QString caption = c.captionIn(languageId);
        const QString from = c.kind == ReportCriterion::Kind::Between ? shown(c, parts.value(0), languageId) : QString();
        const QString to = c.kind == ReportCriterion::Kind::Between ? shown(c, parts.value(1), languageId) : QString();
        switch (c.kind) {
        case ReportCriterion::Kind::Between:
            if (!from.isEmpty() && !to.isEmpty())
                pieces << inLanguage(languageId, "%1 ตั้งแต่ %2 ถึง %3", "%1 from %2 to %3").arg(caption, from, to);
            else if (!from.isEmpty())
                pieces << inLanguage(languageId, "%1 ตั้งแต่ %2", "%1 from %2").arg(caption, from);
            else
                pieces << inLanguage(languageId, "%1 ถึง %2", "%1 up to %2").arg(caption, to);
            break;
        case ReportCriterion::Kind::AtLeast:
            pieces << inLanguage(languageId, "%1 ตั้งแต่ %2", "%1 from %2").arg(caption, given[0]);
            break;
        case ReportCriterion::Kind::AtMost:
            pieces << inLanguage(languageId, "%1 ถึง %2", "%1 up to %2").arg(caption, given[0]);
            break;
        case ReportCriterion::Kind::Like:
            pieces << inLanguage(languageId, "%1 มีคำว่า \"%2\"", "%1 contains \"%2\"").arg(caption, given[0]);
            break;
        case ReportCriterion::Kind::Equals:
            pieces << QStringLiteral("%1: %2").arg(caption, given[0]);
            break;
        case ReportCriterion::Kind::OneOf: {
            const QString last = given.takeLast();
            pieces << QStringLiteral("%1: %2").arg(caption, given.isEmpty() ? last
                    : given.join(QStringLiteral(", ")) + inLanguage(languageId, " หรือ ", " or ") + last);
            break;
        }
        }
    }
    return pieces.join(QStringLiteral("; "));
}

} // namespace qd8
