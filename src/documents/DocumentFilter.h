#pragma once

#include "foundation/Sql.h"

#include <QDate>
#include <QString>
#include <QStringList>
#include <optional>

namespace qd8 {

struct ListDefinition;

// What the user chose in a document list's filter panel, as values: the list composes its
// WHERE text from these alone, so the text can be built and checked without any widget.
// Empty texts and invalid dates add nothing.
struct DocumentFilter {
    QString employeeScope;               // the employee-type restriction of the user, "" when none
    QString statusCode;                  // code of the chosen status ("" for all)
    std::optional<QString> approveNote;  // the client's approve-note value, when its flag is set
    QDate dateFrom;
    QDate dateTo;
    QDate deliveryBy;
    QString customer;
    QString supplier;
    QString employees;                   // one code, or several separated by commas
    bool arrearOnly = false;
    bool invArrearOnly = false;
    int status2 = -1;                    // position in the second status list, -1 for none
    QDate date2From;
    QDate date2To;
    QString division;
    QString filter1;
    QString project;                     // only when the project filter is on
    QString product;
    QString productGroup;
    QString filter2;
    QString filter3;                     // one code, or two separated by a comma
    QString branch;

    // The condition a status code adds for the column prefix; codes "8".."10" take their
    // condition from `customConditions`. "7" and unknown codes add nothing.
    static QString statusCondition(const QString& code, const QString& prefix, const QStringList& customConditions);

    // " WHERE <prefix>No<>''" and then each condition in the list's fixed order, for the
    // definition `d`; `filter1Field` is the field of the Filter1 box ("" when it has none).
    Sql where(const ListDefinition& d, const QString& prefix, const QString& filter1Field) const;
};

} // namespace qd8
