#include "documents/DocumentHistory.h"

#include "database/DataObject.h"
#include "foundation/Backend.h"
#include "foundation/Connection.h"
#include "foundation/Recordset.h"
#include "foundation/Values.h"

namespace qd8 {

const QString DocumentHistory::Memo = QStringLiteral("Memo");

namespace {

const QString Columns = QStringLiteral("TDcHID, TDcHTable, TDcHDocNo, TDcHAction, TDcHDate, TDcHBy, TDcHChanges, TDcHRemark");

QList<HistoryEvent> readEvents(const QString& connectionString, const Sql& where)
{
    Connection connection;
    connection.open(connectionString);
    Recordset rs;
    rs.open(Sql("SELECT ") + Columns + " FROM QD8TDocHistory" + where, connection);
    QList<HistoryEvent> events;
    for (; !rs.eof(); rs.moveNext())
        events.append({rs.field(QStringLiteral("TDcHID")).toLongLong(), rs.text(QStringLiteral("TDcHTable")),
            rs.text(QStringLiteral("TDcHDocNo")), rs.text(QStringLiteral("TDcHAction")), rs.field(QStringLiteral("TDcHDate")).toDateTime(),
            rs.text(QStringLiteral("TDcHBy")), rs.text(QStringLiteral("TDcHChanges")), rs.text(QStringLiteral("TDcHRemark"))});
    return events;
}

} // namespace

void DocumentHistory::record(Connection& connection, DataObject* numbers, const QString& table, const QString& documentNo,
    const QString& action, const QString& by, const QString& changes, const QString& remark)
{
    // One numbering for every writer: the running number, taken inside the transaction.
    DbDataObject own(connection.connectionString(), QString(), 0);
    const qint64 id = (numbers ? numbers : &own)->takeNumber(QStringLiteral("QD8TDocHistory"), QString(), &connection);
    const Backend& b = connection.backend();
    QStringList marks;
    for (int i = 1; i <= 8; ++i)
        marks << b.placeholder(i);
    connection.execute(Sql("INSERT INTO QD8TDocHistory (") + Columns + ") VALUES (" + marks.join(QLatin1Char(',')) + ")",
        {id, table, documentNo, action, QDateTime::currentDateTime(), by, changes.left(4000), remark.left(500)});
}

QList<HistoryEvent> DocumentHistory::read(const QString& connectionString, const QString& table, const QString& documentNo,
    const QString& action)
{
    Sql where = Sql(" WHERE TDcHTable=") + quoted(table) + " AND TDcHDocNo=" + quoted(documentNo);
    if (!action.isEmpty())
        where += Sql(" AND TDcHAction=") + quoted(action);
    return readEvents(connectionString, where + " ORDER BY TDcHDate, TDcHID");
}

QList<HistoryEvent> DocumentHistory::memos(const QString& connectionString)
{
    return readEvents(connectionString, Sql(" WHERE TDcHAction=") + quoted(Memo) + " ORDER BY TDcHDate DESC, TDcHID DESC");
}

bool DocumentHistory::remove(const QString& connectionString, qint64 id)
{
    Connection connection;
    connection.open(connectionString);
    return connection.execute(Sql("DELETE FROM QD8TDocHistory WHERE TDcHID=") + id) > 0;
}

QString DocumentHistory::changes(const QVariantMap& before, const QVariantMap& after)
{
    QStringList parts;
    for (auto it = after.cbegin(); it != after.cend(); ++it) {
        const QString old = text(before.value(it.key()));
        const QString now = text(it.value());
        if (old != now)
            parts << it.key() + QStringLiteral(": ") + old + QStringLiteral(" -> ") + now;
    }
    return parts.join(QStringLiteral("; "));
}

} // namespace qd8
