#include "reports/ReportFavorites.h"

#include "database/DataObject.h"
#include "foundation/Backend.h"
#include "foundation/Recordset.h"
#include "foundation/TransactionGuard.h"
#include "foundation/Values.h"

#include <QDateTime>

namespace qd8 {

namespace {

const QString Columns = QStringLiteral("TRFvID, TRFvName, TRFvParamList, TRFvKind");

} // namespace

ReportFavorites::ReportFavorites(const QString& dataConnectionString, qint32 userId, const QString& reportGroup, DataObject* numbers)
    : m_connectionString(dataConnectionString)
    , m_userId(userId)
    , m_group(reportGroup)
    , m_numbers(numbers)
{
}

QList<ReportFavorite> ReportFavorites::read(const QString& condition) const
{
    Connection c;
    c.open(m_connectionString);
    Recordset rs;
    rs.open(Sql("SELECT ") + Columns + " FROM QD8TReportFavorite WHERE TRFvTUsrID=" + qint64(m_userId) + " AND TRFvTRpFReportGroup="
            + quoted(m_group) + " AND TRFvFlag1=1 AND " + condition + " ORDER BY TRFvName, TRFvID",
        c);
    QList<ReportFavorite> out;
    for (; !rs.eof(); rs.moveNext())
        out.append({rs.field(QStringLiteral("TRFvID")).toLongLong(), rs.text(QStringLiteral("TRFvName")),
            rs.text(QStringLiteral("TRFvParamList")), int(toNumber(rs.field(QStringLiteral("TRFvKind")))) == DefaultFavorite});
    return out;
}

QList<ReportFavorite> ReportFavorites::list() const
{
    return read(QStringLiteral("TRFvKind<>%1").arg(LastUsed));
}

std::optional<ReportFavorite> ReportFavorites::defaultFavorite() const
{
    const QList<ReportFavorite> found = read(QStringLiteral("TRFvKind=%1").arg(DefaultFavorite));
    return found.isEmpty() ? std::nullopt : std::optional(found.first());
}

QString ReportFavorites::lastUsed() const
{
    const QList<ReportFavorite> found = read(QStringLiteral("TRFvKind=%1").arg(LastUsed));
    return found.isEmpty() ? QString() : found.first().paramList;
}

std::optional<ReportFavorite> ReportFavorites::findByName(const QString& name) const
{
    for (const ReportFavorite& f : list())
        if (f.name == name)
            return f;
    return std::nullopt;
}

qint64 ReportFavorites::insert(const QString& name, const QString& paramList, Kind kind)
{
    Connection c;
    c.open(m_connectionString);
    TransactionGuard transaction(c);
    DbDataObject own(m_connectionString, QString(), m_userId);
    const qint64 id = (m_numbers ? m_numbers : &own)->takeNumber(QStringLiteral("QD8TReportFavorite"), QString(), &c);
    if (kind == LastUsed)
        c.execute(Sql("DELETE FROM QD8TReportFavorite WHERE TRFvTUsrID=") + qint64(m_userId) + " AND TRFvTRpFReportGroup=" + quoted(m_group)
            + " AND TRFvKind=" + int(LastUsed));
    const Backend& b = c.backend();
    QStringList marks;
    for (int i = 1; i <= 8; ++i)
        marks << b.placeholder(i);
    c.execute(Sql("INSERT INTO QD8TReportFavorite (TRFvID, TRFvTUsrID, TRFvTRpFReportGroup, TRFvName, TRFvParamList, TRFvKind, "
                  "TRFvCreateDate, TRFvFlag1) VALUES (")
            + marks.join(QLatin1Char(',')) + ")",
        {id, m_userId, m_group, name, paramList, int(kind), QDateTime::currentDateTime(), 1});
    transaction.commit();
    return id;
}

qint64 ReportFavorites::save(const QString& name, const QString& paramList)
{
    if (const auto existing = findByName(name)) {
        Connection c;
        c.open(m_connectionString);
        TransactionGuard transaction(c);
        c.execute(Sql("UPDATE QD8TReportFavorite SET TRFvParamList=") + c.backend().placeholder(1) + ", TRFvCreateDate="
                + c.backend().placeholder(2) + " WHERE TRFvID=" + existing->id,
            {paramList, QDateTime::currentDateTime()});
        transaction.commit();
        return existing->id;
    }
    return insert(name, paramList, Favorite);
}

bool ReportFavorites::rename(qint64 id, const QString& name)
{
    if (const auto holder = findByName(name))
        return holder->id == id;
    Connection c;
    c.open(m_connectionString);
    TransactionGuard transaction(c);
    c.execute(Sql("UPDATE QD8TReportFavorite SET TRFvName=") + c.backend().placeholder(1) + " WHERE TRFvID=" + id, {name});
    transaction.commit();
    return true;
}

void ReportFavorites::remove(qint64 id)
{
    Connection c;
    c.open(m_connectionString);
    TransactionGuard transaction(c);
    c.execute(Sql("DELETE FROM QD8TReportFavorite WHERE TRFvID=") + id);
    transaction.commit();
}

void ReportFavorites::setDefault(qint64 id)
{
    Connection c;
    c.open(m_connectionString);
    TransactionGuard transaction(c);
    c.execute(Sql("UPDATE QD8TReportFavorite SET TRFvKind=") + int(Favorite) + " WHERE TRFvTUsrID=" + qint64(m_userId)
        + " AND TRFvTRpFReportGroup=" + quoted(m_group) + " AND TRFvKind=" + int(DefaultFavorite));
    if (id > 0)
        c.execute(Sql("UPDATE QD8TReportFavorite SET TRFvKind=") + int(DefaultFavorite) + " WHERE TRFvID=" + id);
    transaction.commit();
}

void ReportFavorites::rememberLast(const QString& paramList)
{
    insert(QString(), paramList, LastUsed);
}

} // namespace qd8
