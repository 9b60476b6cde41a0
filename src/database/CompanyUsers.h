#pragma once

#include <QList>
#include <QString>
#include <optional>

namespace qd8 {

// One user of a company as a login offers him.
struct CompanyUser {
    qint32 id = 0;
    QString loginName;
    QString name;          // in his own language
    QString passwordHash;  // "sha256:<hex>", "" for none
};

// The active users of the company data database (QD8TUser), by TUsrID. Database failures
// are DbError.
QList<CompanyUser> companyUsers(const QString& dataConnectionString);
// A password as QD8TUser keeps it.
QString passwordHash(const QString& password);
// The user with this login name (in any case) when the password is his; a user without a
// password takes any. The user found carries no name.
std::optional<CompanyUser> checkLogin(const QString& dataConnectionString, const QString& loginName, const QString& password);

} // namespace qd8
