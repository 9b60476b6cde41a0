#pragma once

#include "foundation/DbError.h"
#include "foundation/Sql.h"

namespace qd8 {

// Why the data layer refuses a broken statement (Sql::isBroken), worded for the user: what
// Connection throws for it, for a caller that must refuse before any statement runs (a
// pick list's source).
DbError refusal(const Sql& sql);

} // namespace qd8
