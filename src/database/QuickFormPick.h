#pragma once

#include "foundation/PickRequest.h"

#include <QString>

namespace qd8 {

struct QuickFormMetadata;

// Pick lists defined by data: the quick form `alias` (QD8TQuickForm/QD8TQuickField of the
// application database) describes the columns, the table and its filter; the rows come
// from the data database. Both return the picked key, or "" when nothing was picked or
// the alias or the application connection string is "". Database failures (and a width
// that is not a number, Null included) are DbError. A LABELLIST field shows its labels.

// Lists the rows in use ("<KeyIden>Flag1=1"), or those of the form's own WHERE instead.
QString QuickFormPick(const QString& alias, const QString& appConnectionString, const QString& dataConnectionString);

// Lists every row (the form's own WHERE only); `customFilter`, when not "", follows the
// WHERE after one blank, so it starts with its own connective ("AND ...", "WHERE ...").
QString QuickFormPickAll(const QString& alias, const QString& appConnectionString, const QString& dataConnectionString,
    const QString& customFilter);

// The descriptions, derived from a quick form read with QuickFormMetadata::read.

// The pick routines' description: Thai title and captions, the type-code
// rule (types "" until the first field that is not a NUMBER, "0" from there on), widths
// converted to whole numbers (DbError for one that is not a number), TQFmTable as the
// source, dialog width 10000 above 10000 twips. `inUseFilter` false is QuickFormPickAll's
// rule (the form's own WHERE only).
PickRequest quickFormPickRequest(const QuickFormMetadata& form, bool inUseFilter, const QString& customFilter,
    const QString& dataConnectionString);

// The editor's description (SelectQuickForm3): title and captions in the
// session language, the key list without its leading comma, type "13" for a LABELLIST
// field and "0" for the others, TQFmView as the source, `scopeCondition` (the employee
// types the user may see, "" for none) joined with AND, then `customFilter` after one
// blank; dialog width 10000 from 10001 twips.
PickRequest quickFormPickQuery(const QuickFormMetadata& form, int languageId, const QString& scopeCondition,
    const QString& customFilter, const QString& dataConnectionString);

// The column that limits an employee table's quick form to the user's employee types:
// "TEmTCode" for QD8TEMPLOYEETYPE, "TEmpTEmTCode" for QD8TEMPLOYEE, "TSAPTEmTCode" for
// QD8TEMPSLIPPERIOD (any case); "" for every other alias.
QString employeeScopeColumn(const QString& alias);

} // namespace qd8
