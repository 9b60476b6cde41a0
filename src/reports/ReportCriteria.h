#pragma once

#include "foundation/DateText.h"
#include "foundation/Sql.h"

#include <QDate>
#include <QHash>
#include <QList>
#include <QStringList>

namespace qd8 {

// One line of a report's filter screen: a row of QD8VReportFilter.
struct ReportCriterion {
    // How the criterion compares (TRpFCondition): "=", "LIKE", "BETWEEN", ">=", "<=", "IN".
    enum class Kind { Equals, Like, Between, AtLeast, AtMost, OneOf };

    QString field;
    QString caption;      // Thai
    QString caption2;     // English
    QString typeWord;     // TEXT, NUMBER, DATE, YESNO or LABELLIST (normalised)
    Kind kind = Kind::Equals;
    QString labelList;    // "code;label,..." in Thai
    QString labelList2;   // the same codes in English; the Thai list when empty
    QString quickForm;    // the quick form F2 picks from, "" for none
    QString defaultValue; // a stored value (see ReportCriteria), relative dates included
    bool canBlank = true;

    QString captionIn(int languageId) const;
    bool isDate() const { return typeWord == QLatin1String("DATE"); }
    // The pieces a value of this criterion has: two for a range, one or more for a list.
    int boxes() const { return kind == Kind::Between ? 2 : 1; }
    // The label of a code of the label list (or of a yes/no value), in the language.
    QString label(const QString& code, int languageId) const;
    // The codes and labels offered (a yes/no criterion offers 1 and 0).
    QList<QPair<QString, QString>> choices(int languageId) const;

    static Kind kindOf(const QString& condition);
    // The criteria of a report group in TRpFSort order (rows in use only).
    static QList<ReportCriterion> read(const QString& reportGroup, const QString& appConnectionString);
};

// Dates relative to the day a report runs, kept as words so that a favourite for "this
// month" still means this month next month: "@TODAY", "@MONTHSTART", "@MONTHEND",
// "@LASTMONTHSTART", "@LASTMONTHEND", "@YEARSTART", "@YEAREND" (the accounting year).
struct RelativeDates {
    QDate today;
    QDate yearStart;  // the accounting year holding today
    QDate yearEnd;

    // The accounting year of QD8TACYear holding `today` (its start and end dates), else
    // the one numbered as today's calendar year with the dates of its periods; a calendar
    // year when the company has neither. Read failures fall back to the calendar year.
    static RelativeDates on(QDate today, const QString& dataConnectionString);
    static RelativeDates calendarYear(QDate today);

    static const QStringList& words();
    static bool isRelative(const QString& value) { return value.startsWith(QLatin1Char('@')); }
    // Caption of a word ("ต้นเดือนนี้", "First day of this month").
    static QString caption(const QString& word, int languageId);
    // The date of a word, or of a typed date (either era, ISO); invalid for anything else.
    QDate resolve(const QString& value, DateEra era) const;
};

// What the user gave each criterion, as stored values: a date is ISO text or a relative
// word; a range holds its two ends, a list its entries; "" is nothing given.
//
// The stored form (the host's parameter list and favourites, TRFvParamList) is
// "FIELD=value;FIELD=value": a range "from~to", a list "a,b,c"; "%", ";", "=", "~" and ","
// inside a value are percent-encoded. An entry written "!FIELD=value" is locked: the user
// sees it and cannot change it.
class ReportCriteria {
public:
    ReportCriteria() = default;
    ReportCriteria(QList<ReportCriterion> criteria, RelativeDates dates);

    const QList<ReportCriterion>& criteria() const { return m_criteria; }
    const RelativeDates& dates() const { return m_dates; }
    void setDates(const RelativeDates& dates) { m_dates = dates; }

    QStringList value(int index) const { return m_values.value(index); }
    void setValue(int index, const QStringList& value);
    bool isLocked(int index) const { return m_locked.value(index); }
    // Every criterion to its default value.
    void reset();
    // Takes the values of a stored list (criteria not named keep theirs); locked entries
    // lock their criterion.
    void apply(const QString& paramList);
    // The values in the stored form; locked criteria are left out unless asked for.
    QString paramList(bool withLocked = false) const;

    // The first thing wrong with the values in the session language, naming the
    // criterion: a required criterion left blank, a number or a date that is none. ""
    // when the values can be used; *index is the criterion at fault.
    QString problem(int languageId, int* index = nullptr) const;
    // The criteria as one condition, "A AND B ...", "" for none; broken (Sql::isBroken) when
    // a value holds a quote.
    Sql condition() const;
    // The query with the condition: in place of "{FILTER}" as " AND <condition>" (for a
    // query with a WHERE or a GROUP BY of its own), else after it as " WHERE <condition>".
    Sql statement(const QString& tableQuery) const;
    // The criteria as the report's heading says them, in the language, dates in its era.
    QString sentence(int languageId) const;

    static QHash<QString, QString> parseParamList(const QString& paramList, QSet<QString>* locked = nullptr);

private:
    QString shown(const ReportCriterion& c, const QString& value, int languageId) const;
    Sql literal(const ReportCriterion& c, const QString& value) const;

    QList<ReportCriterion> m_criteria;
    QList<QStringList> m_values;
    QList<bool> m_locked;
    RelativeDates m_dates;
};

} // namespace qd8
