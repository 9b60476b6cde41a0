#pragma once

#include "reports/ReportDefinition.h"

#include <optional>

namespace qd8 {

// What a report command prints (QD8TReportLayout and QD8TReportColumn of the application
// database): the report group of its criteria, its query on the company data and its
// layout, in one language ("{N}" already the language's name suffix).
struct ReportLayout {
    QString commandAlias;
    QString reportGroup;
    QString tableQuery;  // the SELECT the criteria are added to
    QString order;       // ORDER BY text, "" for the query's own order
    ReportDefinition definition;     // groups, columns, orientation and language; no heading or SQL yet

    // Nothing when the command has no layout in use.
    static std::optional<ReportLayout> read(const QString& commandAlias, const QString& appConnectionString, int languageId);
    // The ReportDefinition of a statement with the criteria: the statement ordered, the heading given.
    ReportDefinition definitionFor(const QString& statement, const QString& title, const QString& company, const QString& criteria) const;
    static ReportColumn::Kind kindOf(const QString& word);
};

} // namespace qd8
