#include "foundation/ThaiCollation.h"

#include <sqlite3.h>
#include <unicode/ucol.h>

#include <cstring>

namespace qd8 {

namespace {

int compareThai(void* context, int leftLength, const void* left, int rightLength, const void* right)
{
    auto* collator = static_cast<UCollator*>(context);
    UErrorCode status = U_ZERO_ERROR;
    const UCollationResult r = ucol_strcollUTF8(collator, static_cast<const char*>(left), leftLength,
        static_cast<const char*>(right), rightLength, &status);
    if (U_SUCCESS(status) && r != UCOL_EQUAL)
        return r == UCOL_LESS ? -1 : 1;
    const int common = leftLength < rightLength ? leftLength : rightLength;
    const int bytes = std::memcmp(left, right, size_t(common));
    return bytes != 0 ? bytes : leftLength - rightLength;
}

void destroyCollator(void* context)
{
    ucol_close(static_cast<UCollator*>(context));
}

} // namespace

int registerThaiCollation(sqlite3* db)
{
    UErrorCode status = U_ZERO_ERROR;
    UCollator* collator = ucol_open("th_TH", &status);
    if (U_FAILURE(status))
        return SQLITE_ERROR;
    return sqlite3_create_collation_v2(db, "THAI", SQLITE_UTF8, collator, compareThai, destroyCollator);
}

} // namespace qd8
