#pragma once

#include <QList>
#include <QString>

namespace qd8 {

// One column of a report: which field of the query it shows, under which caption, and how
// its values are formatted, aligned and summed.
struct ReportColumn {
    enum class Kind { Text, Integer, Quantity, Money, Date };
    QString field;      // column of the query's result
    QString caption;    // already in the report's language
    Kind kind = Kind::Text;
    bool total = false; // summed in group subtotals and the grand total
    int width = 10;     // relative width, in characters
};

// What a host hands the report engine: the heading, the complete query and its layout.
// The rows are laid out in the order the query returns them.
struct ReportDefinition {
    QString title, company, criteria; // heading lines; criteria is the readable sentence of the filter
    QString sql;                      // the complete SELECT: condition and ORDER BY included
    QString groupField;               // empty: no groups; rows arrive ordered by it
    QString groupCaptionField;        // optional text shown beside the group value
    QList<ReportColumn> columns;
    bool landscape = false;
    int languageId = 0;               // 0 Thai (Buddhist-era dates), other English
};

} // namespace qd8
