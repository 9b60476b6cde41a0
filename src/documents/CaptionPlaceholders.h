#pragma once

#include <QDate>
#include <QHash>
#include <QString>
#include <optional>

namespace qd8 {

class DataObject;

// The placeholders a list definition may hold in its captions and conditions
// ({Custom1}, {ICCustom1}, {SECustom1}, {JobCodeCaption}, {MRPSECTIONCAPTION}, ...),
// expanded from the company's options. Options are read once per instance.
class CaptionPlaceholders {
public:
    // `options` answers the option values; `dataConnectionString` is where the formula
    // group names (QD8TMRPFormulaGrp) are read.
    CaptionPlaceholders(DataObject* options, const QString& dataConnectionString);

    QString ReplaceCustomCaption(const QString& text);
    QDate ReplaceDateValue(const QString& text);
    double ReplaceValue(const QString& text);
    QString ReplaceTextValue(const QString& text);

    // The day "{TODAY}" stands for (the current date unless set).
    void setToday(const QDate& today) { m_today = today; }

private:
    // The text of a placeholder; nothing for a name that is not one.
    std::optional<QString> placeholderValue(const QString& name);
    // An option's stored text, "" without options or when it cannot be read.
    QString option(const QString& alias);
    QString formulaGroupName(const QString& code) const;

    DataObject* m_options;
    QString m_connectionString;
    QHash<QString, QString> m_values;  // placeholder name (upper case) -> its text
    QHash<QString, QString> m_optionTexts;  // option alias -> its stored text
    QDate m_today = QDate::currentDate();
};

} // namespace qd8
