#pragma once

#include "foundation/Language.h"

#include <QString>

namespace qd8 {

// The session values a control keeps as its own private copy: which databases, who is
// logged in, which language, which folders. Nothing here is shared between controls.
struct SessionContext {
    QString ConnectionString;     // session database: users, settings, user command lists
    QString AppConnectionString;  // application database: catalogue and metadata
    QString DataConnectionString; // company data database
    qint32 UserID = 0;
    QString UserLoginName;
    QString UserLoginPassword;
    qint16 LanguageID = 0;        // 0 Thai texts (...Name), otherwise English (...Name2)
    QString AppPath;
    QString SystemFolder;
    QString SpecFolder;
    QString ImageFolder;
    QString IconPath;
    QString CommandGroup;
    QString FolderPathName;       // per-user folder, always ending in "\"
    QString ControlName;

    // "" for LanguageID 0, "2" otherwise: appended to a column stem (TCmdName, TCmdName2).
    QString nameSuffix() const { return qd8::nameSuffix(LanguageID); }
    // Column stem + suffix: column("TCmdName") is "TCmdName" or "TCmdName2".
    QString column(const QString& stem) const { return stem + nameSuffix(); }
};

// Folder paths keep the suite's "\" joins: a path not ending in "\" gets one.
inline QString withTrailingBackslash(const QString& path)
{
    return path.endsWith(QLatin1Char('\\')) ? path : path + QLatin1Char('\\');
}

// A path as the suite writes it ("\" joins) turned into one this machine can open.
inline QString localPath(QString path)
{
    return path.replace(QLatin1Char('\\'), QLatin1Char('/'));
}

} // namespace qd8
