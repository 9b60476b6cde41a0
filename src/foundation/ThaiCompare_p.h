#pragma once

#include <unicode/ucol.h>

#include <cstring>

namespace qd8 {

// Thai dictionary order through ICU's th-TH rules (กา เก แกง ไก่ ขา), ties broken byte-wise so
// that only equal text compares equal. Shared by the library's SQLite connections and the
// loadable extension that teaches the stock sqlite3 shell the same collation.

inline UCollator* openThaiCollator()
{
    UErrorCode status = U_ZERO_ERROR;
    UCollator* collator = ucol_open("th_TH", &status);
    return U_SUCCESS(status) ? collator : nullptr;
}

inline void closeThaiCollator(void* collator)
{
    ucol_close(static_cast<UCollator*>(collator));
}

inline int compareThai(void* collator, int leftLength, const void* left, int rightLength, const void* right)
{
    UErrorCode status = U_ZERO_ERROR;
    const UCollationResult r = ucol_strcollUTF8(static_cast<UCollator*>(collator), static_cast<const char*>(left),
        leftLength, static_cast<const char*>(right), rightLength, &status);
    if (U_SUCCESS(status) && r != UCOL_EQUAL)
        return r == UCOL_LESS ? -1 : 1;
    const int common = leftLength < rightLength ? leftLength : rightLength;
    const int bytes = std::memcmp(left, right, size_t(common));
    return bytes != 0 ? bytes : leftLength - rightLength;
}

} // namespace qd8
