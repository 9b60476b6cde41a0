#pragma once

struct sqlite3;

namespace qd8 {

// Registers the collation THAI on a SQLite connection: Thai dictionary order through
// ICU's th-TH rules (กา เก แกง ไก่ ขา), ties broken byte-wise so that only equal text
// compares equal. Columns that people read and sort by are declared COLLATE THAI; on
// PostgreSQL the same name is an ICU collation created with the schema.
int registerThaiCollation(sqlite3* db);

} // namespace qd8
