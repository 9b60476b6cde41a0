#pragma once

#include <QString>

namespace qd8 {

// Pick lists defined by data: the quick form `alias` (QD8TQuickForm/QD8TQuickField of the
// application database) describes the columns, the table and its filter; the rows come
// from the data database. Both return the picked key, or "" when nothing was picked or
// the alias or the application connection string is "". Database failures (and a width
// that is not a number) are DbError.

// Lists the rows in use ("<KeyIden>Flag1=1"), or those of the form's own WHERE instead.
QString QuickFormPick(const QString& alias, const QString& appConnectionString, const QString& dataConnectionString);

// Lists every row (the form's own WHERE only); `customFilter`, when not "", follows the
// WHERE after one blank, so it starts with its own connective ("AND ...", "WHERE ...").
QString QuickFormPickAll(const QString& alias, const QString& appConnectionString, const QString& dataConnectionString,
    const QString& customFilter);

} // namespace qd8
