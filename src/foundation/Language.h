#pragma once

#include <QString>

namespace qd8 {

// The session language picks between the two texts of everything shown: LanguageID 0 is
// Thai (the primary texts, ...Name), any other value English (the secondary, ...Name2).
inline bool isThai(int languageId)
{
    return languageId == 0;
}

// "" for Thai, "2" for English: appended to a column stem (TCmdName, TCmdName2).
inline QString nameSuffix(int languageId)
{
    return isThai(languageId) ? QString() : QStringLiteral("2");
}

// One of two texts written in the source (UTF-8).
inline QString inLanguage(int languageId, const char* thai, const char* english)
{
    return QString::fromUtf8(isThai(languageId) ? thai : english);
}

// One of two texts read from data.
inline const QString& inLanguage(int languageId, const QString& thai, const QString& english)
{
    return isThai(languageId) ? thai : english;
}

} // namespace qd8
