#pragma once

#include "foundation/PickRequest.h"

#include <QString>
#include <QVariant>

namespace qd8 {

// The pick list and the small lookups the controls share.
class ListService {
public:
    virtual ~ListService() = default;
    // Opens the modal pick list (through the picker service in force) and returns the key
    // field's value of the picked row, "" when nothing was picked. labelLists, one entry per
    // field, makes a label-list column show its labels (PickRequest).
    virtual QString PickFromList(const QString& title, const QString& keyField, const QString& fieldList,
        const QString& captionList, const QString& widthList, const QString& typeList, const QString& source,
        const QString& connectionString, int option1, int option2, int option3, int option4, int option5, int dialogWidth,
        const QStringList& labelLists = {});
    // The same for a description built as a whole.
    QString PickFromList(const PickRequest& r)
    {
        return PickFromList(r.title, r.keyField, r.fieldList, r.captionList, r.widthList, r.typeList, r.source, r.connectionString,
            r.option1, r.option2, r.option3, r.option4, r.option5, r.dialogWidth, r.labelLists);
    }
    // "SELECT returnField FROM table WHERE conditionField=value": the first row's value, or
    // the default when there is none. Text values are quoted, numbers are not.
    virtual QVariant LookupValue(const QVariant& defaultValue, int option1, int option2, const QString& conditionField,
        const QVariant& conditionValue, const QString& returnField, const QString& table, const QString& connectionString);
    QVariant LookupValue(const QVariant& defaultValue, const QString& conditionField, const QVariant& conditionValue,
        const QString& returnField, const QString& table, const QString& connectionString)
    {
        return LookupValue(defaultValue, 0, 0, conditionField, conditionValue, returnField, table, connectionString);
    }
    // One more than the largest value of the sort column (1 for an empty table).
    virtual qint64 NextSortNumber(const QString& sortColumn, const QString& table, const QString& connectionString, int option);
};

} // namespace qd8
