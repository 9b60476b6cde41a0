#include "database/CompanyUsers.h"

#include "database/SessionFunctions.h"
#include "foundation/Connection.h"
#include "foundation/Language.h"
#include "foundation/Recordset.h"

#include <QCryptographicHash>

namespace qd8 {

namespace {

// The active users by TUsrID; `named`: with each one's name in the language of his own
// setting, which costs a read per user.
QList<CompanyUser> readUsers(const QString& dataConnectionString, bool named)
{
    Connection c;
    c.open(dataConnectionString);
    Recordset rs;
    rs.open("SELECT TUsrID, TUsrLoginName, TUsrName, TUsrName2, TUsrLoginPassword FROM QD8TUser WHERE TUsrActiveStatus=1 AND TUsrFlag1=1 ORDER BY TUsrID", c);
    QList<CompanyUser> users;
    for (; !rs.eof(); rs.moveNext()) {
        CompanyUser user{rs.field(QStringLiteral("TUsrID")).toInt(), rs.text(QStringLiteral("TUsrLoginName")), {},
            rs.text(QStringLiteral("TUsrLoginPassword"))};
        if (named) {
            const double language = DbSessionFunctions().GetUserSetting(user.id, QStringLiteral("LanguageID"), dataConnectionString);
            user.name = rs.text(QStringLiteral("TUsrName") + nameSuffix(int(language)));
        }
        users << user;
    }
    return users;
}

} // namespace

QList<CompanyUser> companyUsers(const QString& dataConnectionString)
{
    return readUsers(dataConnectionString, true);
}

QString passwordHash(const QString& password)
{
    return QStringLiteral("sha256:") + QString::fromLatin1(QCryptographicHash::hash(password.toUtf8(), QCryptographicHash::Sha256).toHex());
}

std::optional<CompanyUser> checkLogin(const QString& dataConnectionString, const QString& loginName, const QString& password)
{
    for (const CompanyUser& user : readUsers(dataConnectionString, false))
        if (user.loginName.compare(loginName, Qt::CaseInsensitive) == 0)
            return user.passwordHash.isEmpty() || user.passwordHash == passwordHash(password) ? std::optional(user) : std::nullopt;
    return std::nullopt;
}

} // namespace qd8
