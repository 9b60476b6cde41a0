// Loadable SQLite extension: the THAI collation for the stock sqlite3 shell and other
// programs, so that they can sort and compare the Thai name columns of our databases:
//   sqlite3 QD8Command.dat ".load /usr/lib/libqd8thai" "SELECT TCmdName FROM QD8TCommand ORDER BY TCmdName"
#include <sqlite3ext.h>
SQLITE_EXTENSION_INIT1

#include "foundation/ThaiCompare_p.h"

extern "C" int sqlite3_qd8thai_init(sqlite3* db, char** error, const sqlite3_api_routines* api)
{
    SQLITE_EXTENSION_INIT2(api);
    UCollator* collator = qd8::openThaiCollator();
    if (!collator) {
        *error = sqlite3_mprintf("ICU has no th_TH collation");
        return SQLITE_ERROR;
    }
    const int rc = sqlite3_create_collation_v2(db, "THAI", SQLITE_UTF8, collator, qd8::compareThai, qd8::closeThaiCollator);
    if (rc != SQLITE_OK)
        qd8::closeThaiCollator(collator);
    return rc;
}

// The entry point SQLite derives from the file name: "sqlite3_" + the letters of
// "libqd8thai" after "lib" (digits are dropped) + "_init".
extern "C" int sqlite3_qdthai_init(sqlite3* db, char** error, const sqlite3_api_routines* api)
{
    return sqlite3_qd8thai_init(db, error, api);
}
