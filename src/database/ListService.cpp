#include "database/ListService.h"

#include "foundation/Connection.h"
#include "foundation/Recordset.h"
#include "foundation/Services.h"
#include "foundation/Values.h"

namespace qd8 {

QString ListService::PickFromList(const QString& title, const QString& keyField, const QString& fieldList,
    const QString& captionList, const QString& widthList, const QString& typeList, const QString& source,
    const QString& connectionString, int option1, int option2, int option3, int option4, int option5, int dialogWidth,
    const QStringList& labelLists)
{
    return Services::picker().pick({title, keyField, fieldList, captionList, widthList, typeList, source, connectionString,
        option1, option2, option3, option4, option5, dialogWidth, labelLists});
}

QVariant ListService::LookupValue(const QVariant& defaultValue, int, int, const QString& conditionField,
    const QVariant& conditionValue, const QString& returnField, const QString& table, const QString& connectionString)
{
    Sql value;
    switch (conditionValue.typeId()) {
    case QMetaType::Int:
    case QMetaType::LongLong:
    case QMetaType::UInt:
    case QMetaType::ULongLong:
    case QMetaType::Double:
        value = number(text(conditionValue));
        break;
    default:
        value = quoted(text(conditionValue));
    }
    Connection connection;
    connection.open(connectionString);
    Recordset rs;
    rs.open(Sql("SELECT ") + returnField + " FROM " + table + " WHERE " + conditionField + "=" + value, connection);
    return rs.eof() ? defaultValue : rs.field(0);
}

qint64 ListService::NextSortNumber(const QString& sortColumn, const QString& table, const QString& connectionString, int)
{
    Connection connection;
    connection.open(connectionString);
    Recordset rs;
    rs.open(Sql("SELECT MAX(") + sortColumn + ") AS LastSort FROM " + table, connection);
    return qint64(toNumber(rs.field(0))) + 1;
}

} // namespace qd8
