#pragma once

#include <QColor>
#include <QDate>
#include <QList>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <functional>

namespace qd8 {

class DataObject;
class DataRow;

// The colour legend of a document or master list (TFDLLegendList). Entries are separated by
// commas, the elements of an entry by ";":
//
//   field ; keyword ; value ; colour ; operand ; caption ; operand2
//
// - colour: "#RRGGBB", a colour name ("red") or the suite's decimal colour number
//   (blue * 65536 + green * 256 + red);
// - caption: the text shown beside the colour in the legend strip (the entry's test
//   when empty);
// - operand, operand2: read by the "D" and "T" keyword families only.
//
// Entries are tested in the order of the list and the first that holds colours the row.
class LegendList {
public:
    struct Entry {
        QString field;
        QString keyword;
        QString value;
        QColor colour;
        QString operand;
        QString caption;
        QString operand2;
    };

    // Reads the list; an entry with fewer than four elements or an unknown colour is kept
    // out and named in notice().
    void load(const QString& legendList, const QString& prefix);
    // The options the alert keywords read ("BillProcessAlertTime", "POIncomingAlertDay",
    // "SOIncomingAlertDay", "PORequireAckBeforeDelivery"), read once here.
    void readOptions(DataObject& options);
    void setToday(const QDate& today) { m_today = today; }

    const QList<Entry>& entries() const { return m_entries; }
    const QString& notice() const { return m_notice; }
    bool isEmpty() const { return m_entries.isEmpty(); }

    // The colour of the first entry that holds for the row; invalid when none does.
    QColor colourOf(const DataRow& row) const;
    // Whether one entry holds for the row.
    bool holds(const Entry& entry, const DataRow& row) const;

private:
    // What an entry tests, decided once at load() so colourOf only compares values.
    enum class Test : quint8 { IsNull, IsNotNull, Compare, DateSpan, FieldCompare, BillDue, PoDue, PoUnacknowledged, SoDue };
    enum class Relation : quint8 { Equal, NotEqual, Greater, Less, GreaterOrEqual, LessOrEqual };
    enum class Span : quint8 { Days, Months, Years };
    // A value to compare: its text, and its number and date when it reads as one.
    struct Literal {
        QString text;
        double number = 0;
        bool isNumber = false;
        QDate date;
        bool isNull = false;
    };
    struct Rule {
        Test test = Test::IsNull;
        Relation relation = Relation::Equal;
        Span span = Span::Days;
        QString field;    // the row's field (BillDue: the bill status)
        QString operand;  // the other field; the due or document date of the alert keywords
        Literal value;
    };

    // The rule of an entry, or an error text when the entry cannot be used.
    Rule compile(const Entry& entry, QString* error) const;
    bool ruleHolds(const Rule& rule, const DataRow& row) const;
    bool spanHolds(const Rule& rule, const DataRow& row) const;
    bool alertHolds(const Rule& rule, const DataRow& row) const;
    static Literal literalOf(const QString& text);
    static Literal literalOf(const QVariant& value);
    // A row value read only as far as comparing it with `other` needs (colourOf runs per painted row).
    static Literal literalOf(const QVariant& value, const Literal& other);
    // Numbers when both read as numbers, else dates when both hold one, else exact text.
    static bool compareHolds(Relation relation, const Literal& left, const Literal& right);

    QList<Entry> m_entries;
    QList<Rule> m_rules;  // one per entry, same order
    QString m_prefix;
    QString m_notice;
    QDate m_today = QDate::currentDate();
    int m_billAlertDays = 0;
    int m_poAlertDays = 0;
    int m_soAlertDays = 0;
    bool m_poRequireAck = false;
};

} // namespace qd8
