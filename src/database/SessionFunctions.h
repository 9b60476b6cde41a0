#pragma once

#include "foundation/DateText.h"

#include <QString>

namespace qd8 {

// User settings and command captions, as the controls ask for them.
class SessionFunctions {
public:
    virtual ~SessionFunctions() = default;
    // The user's setting as a number (0 when neither the user nor the template user 0 has
    // it, or when connectionString is ""). Database failures are DbError.
    virtual double GetUserSetting(qint32 userId, const QString& name, const QString& connectionString) = 0;
    // The caption to show for a command: the command centre's override when there is one,
    // else the command's own name in the session language; reports show their number.
    virtual QString GetCommandCaption(int languageId, const QString& appConnectionString,
        const QString& commandCentreConnectionString, const QString& alias, int option, const QString& name,
        const QString& name2, const QString& reportNo) = 0;
};

// Reads QD8TUserSetting of the session database and QD8TCommandCaption of the command centre.
class DbSessionFunctions : public SessionFunctions {
public:
    double GetUserSetting(qint32 userId, const QString& name, const QString& connectionString) override;
    QString GetCommandCaption(int languageId, const QString& appConnectionString, const QString& commandCentreConnectionString,
        const QString& alias, int option, const QString& name, const QString& name2, const QString& reportNo) override;

    // The setting as stored (user first, then user 0); null when neither has it.
    static QString userSettingText(qint32 userId, const QString& name, const QString& connectionString);
    // How the user sees dates: the language's era unless the user's "DateEra" setting
    // chooses one (1 Buddhist, 2 Gregorian). The language's era when the setting cannot be
    // read (no connection string, a database failure).
    static DateLook userDateLook(qint32 userId, int languageId, const QString& connectionString);
    // Stores the user's own value of a setting (the template user 0 is not touched).
    static void storeUserSetting(qint32 userId, const QString& name, const QString& value, const QString& connectionString);
};

} // namespace qd8
