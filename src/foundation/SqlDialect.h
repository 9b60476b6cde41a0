#pragma once

#include "foundation/ConnectionString.h"

#include <QString>

namespace qd8 {

class DbError;
class Sql;

// The one place where composed SQL meets an engine's dialect. Controls write the system's
// text; just before a statement runs the connection turns it into the engine's:
//  - "#$2026-01-31#$" / "#$2026-01-31 13:45:00#$" become the engine's date literal
//    (SQLite: ISO text; PostgreSQL: DATE '...'/TIMESTAMP '...'; ODBC: {d '...'}/{ts '...'});
//  - on PostgreSQL, LIKE becomes ILIKE so that searches ignore the case of Latin letters
//    as they do on SQLite.
// Text inside string literals and quoted identifiers is never touched. A malformed
// date marker throws DbError (kind Refused).
QString toEngineSql(Engine engine, const QString& composed);

// The error the data layer throws for a broken statement (Sql::isBroken), for callers that
// hand composed text on (a pick list's source) and refuse it themselves first.
DbError refusal(const Sql& sql);

} // namespace qd8
