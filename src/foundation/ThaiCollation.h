#pragma once

struct sqlite3;

namespace qd8 {

// Registers the collation THAI (see ThaiCompare.h) on a SQLite connection. Columns that
// people read and sort by are declared COLLATE THAI; on PostgreSQL the same name is an ICU
// th-TH collation created with the schema.
int registerThaiCollation(sqlite3* db);

} // namespace qd8
