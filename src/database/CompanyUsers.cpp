#include "database/CompanyUsers.h"

#include "database/SessionFunctions.h"
#include "foundation/Connection.h"
#include "foundation/Language.h"
#include "foundation/Recordset.h"

#include <QCryptographicHash>

namespace qd8 {

QList<CompanyUser> companyUsers(const QString& dataConnectionString)
{
    Connection c;
    c.open(dataConnectionString);
    Recordset rs;
    rs.open("SELECT TUsrID, TUsrLoginName, TUsrName, TUsrName2, TUsrLoginPassword FROM QD8TUser WHERE TUsrActiveStatus=1 AND TUsrFlag1=1 ORDER BY TUsrID", c);
    QList<CompanyUser> users;
    for (; !rs.eof(); rs.moveNext()) {
        CompanyUser user{rs.field(QStringLiteral("TUsrID")).toInt(), rs.text(QStringLiteral("TUsrLoginName")), {},
            rs.text(QStringLiteral("TUsrLoginPassword"))};
        // Each user's name in the language of his own setting.
        const double language = DbSessionFunctions().GetUserSetting(user.id, QStringLiteral("LanguageID"), dataConnectionString);
        user.name = rs.text(QStringLiteral("TUsrName") + nameSuffix(int(language)));
        users << user;
    }
    return users;
}

QString passwordHash(const QString& password)
{
    return QStringLiteral("sha256:") + QString::fromLatin1(QCryptographicHash::hash(password.toUtf8(), QCryptographicHash::Sha256).toHex());
}

std::optional<CompanyUser> checkLogin(const QString& dataConnectionString, const QString& loginName, const QString& password)
{
    for (const CompanyUser& user : companyUsers(dataConnectionString))
        if (user.loginName.compare(loginName, Qt::CaseInsensitive) == 0)
            return user.passwordHash.isEmpty() || user.passwordHash == passwordHash(password) ? std::optional(user) : std::nullopt;
    return std::nullopt;
}

} // namespace qd8
