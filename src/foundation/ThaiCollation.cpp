#include "foundation/ThaiCollation.h"

#include "foundation/ThaiCompare_p.h"

#include <sqlite3.h>

namespace qd8 {

int registerThaiCollation(sqlite3* db)
{
    UCollator* collator = openThaiCollator();
    if (!collator)
        return SQLITE_ERROR;
    const int rc = sqlite3_create_collation_v2(db, "THAI", SQLITE_UTF8, collator, compareThai, closeThaiCollator);
    if (rc != SQLITE_OK)
        closeThaiCollator(collator);
    return rc;
}

} // namespace qd8
