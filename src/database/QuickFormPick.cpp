#include "database/QuickFormPick.h"

#include "database/ListService.h"
#include "database/QuickFormMetadata.h"
#include "database/SessionServices.h"
#include "foundation/Connection.h"
#include "foundation/DbError.h"
#include "foundation/Values.h"

#include <QHash>
#include <cmath>

namespace qd8 {

namespace {

// The suite converts a width to a whole number the way CLng does: to the nearest, ties to
// even; Null or anything that is not a number ends the routine.
qint64 wholeWidth(const QVariant& width, const QString& field)
{
    bool ok = false;
    const double value = width.isNull() ? 0 : text(width).trimmed().toDouble(&ok);
    if (!ok)
        throw DbError(DbError::Kind::Usage, QStringLiteral("The width \"%1\" of quick-form field %2 is not a number")
                                                .arg(width.isNull() ? QStringLiteral("Null") : text(width), field));
    return qint64(std::nearbyint(value));
}

// The label list of each field, "" for a field that is no LABELLIST; no entries at all when
// no field has labels.
QStringList labelListsOf(const QuickFormMetadata& form)
{
    QStringList lists;
    bool any = false;
    for (const QuickFieldMetadata& field : form.fields) {
        const QString list = field.isLabelList() ? field.labelList : QString();
        any = any || !list.isEmpty();
        lists << list;
    }
    return any ? lists : QStringList();
}

QString pickFromQuickForm(const QString& alias, const QString& appConnectionString, const QString& dataConnectionString,
    bool inUseFilter, const QString& customFilter)
{
    if (alias.isEmpty() || appConnectionString.isEmpty())
        return {};
    Connection app;
    app.open(appConnectionString);
    Connection data;
    data.open(dataConnectionString);
    const QuickFormMetadata form = QuickFormMetadata::read(app, alias, QuickFormMetadata::Reading::Pick);
    return SessionServices::listService().PickFromList(quickFormPickRequest(form, inUseFilter, customFilter, dataConnectionString));
}

} // namespace

PickRequest quickFormPickRequest(const QuickFormMetadata& form, bool inUseFilter, const QString& customFilter,
    const QString& dataConnectionString)
{
    PickRequest request;
    request.title = form.caption;
    request.keyField = form.pkList;
    QString typeCode;  // "" until the first field that is not a NUMBER, "0" from then on
    qint64 totalWidth = 0;
    for (const QuickFieldMetadata& field : form.fields) {
        const QString separator = request.fieldList.isEmpty() ? QString() : QStringLiteral(",");
        const qint64 width = wholeWidth(field.width, field.fieldName);
        request.fieldList += separator + field.fieldName;
        request.captionList += separator + field.caption;
        request.widthList += separator + QString::number(width);
        totalWidth += width;
        if (field.type != QLatin1String("NUMBER"))
            typeCode = QStringLiteral("0");
        request.typeList += separator + typeCode;
    }
    request.labelLists = labelListsOf(form);

    QString where;
    if (!form.where.isEmpty())
        where = QStringLiteral(" WHERE ") + form.where;
    else if (inUseFilter)
        where = QStringLiteral(" WHERE ") + form.keyPrefix + QStringLiteral("Flag1=1");
    if (!customFilter.isEmpty())
        where += QLatin1Char(' ') + customFilter;
    request.source = form.table + where + (form.order.isEmpty() ? QString() : QStringLiteral(" ORDER BY ") + form.order);
    request.connectionString = dataConnectionString;
    request.dialogWidth = totalWidth > 10000 ? 10000 : 0;
    return request;
}

PickRequest quickFormPickQuery(const QuickFormMetadata& form, int languageId, const QString& scopeCondition,
    const QString& customFilter, const QString& dataConnectionString)
{
    PickRequest request;
    request.title = form.captionIn(languageId);
    request.keyField = form.keyList();
    QStringList fields, captions, widths, types;
    qint64 totalWidth = 0;
    for (const QuickFieldMetadata& field : form.fields) {
        fields << field.fieldName;
        captions << field.captionIn(languageId);
        const qint64 width = qint64(toNumber(field.width));
        widths << QString::number(width);
        totalWidth += width;
        types << (field.isLabelList() ? QStringLiteral("13") : QStringLiteral("0"));
    }
    request.fieldList = fields.join(QLatin1Char(','));
    request.captionList = captions.join(QLatin1Char(','));
    request.widthList = widths.join(QLatin1Char(','));
    request.typeList = types.join(QLatin1Char(','));
    request.labelLists = labelListsOf(form);

    // A form's own filter replaces the active-row filter; it is not added to it.
    QString where = QStringLiteral(" WHERE ") + (form.where.isEmpty() ? form.keyPrefix + QStringLiteral("Flag1=1") : form.where);
    if (!scopeCondition.isEmpty())
        where += QStringLiteral(" AND ") + scopeCondition;
    if (!customFilter.isEmpty())
        where += QLatin1Char(' ') + customFilter;
    request.source = form.view + where + (form.order.isEmpty() ? QString() : QStringLiteral(" ORDER BY ") + form.order);
    request.connectionString = dataConnectionString;
    request.dialogWidth = totalWidth >= 10001 ? 10000 : 0;
    return request;
}

QString employeeScopeColumn(const QString& alias)
{
    static const QHash<QString, QString> columns = {{QStringLiteral("QD8TEMPLOYEETYPE"), QStringLiteral("TEmTCode")},
        {QStringLiteral("QD8TEMPLOYEE"), QStringLiteral("TEmpTEmTCode")}, {QStringLiteral("QD8TEMPSLIPPERIOD"), QStringLiteral("TSAPTEmTCode")}};
    return columns.value(alias.toUpper());
}

QString QuickFormPick(const QString& alias, const QString& appConnectionString, const QString& dataConnectionString)
{
    return pickFromQuickForm(alias, appConnectionString, dataConnectionString, true, {});
}

QString QuickFormPickAll(const QString& alias, const QString& appConnectionString, const QString& dataConnectionString,
    const QString& customFilter)
{
    return pickFromQuickForm(alias, appConnectionString, dataConnectionString, false, customFilter);
}

} // namespace qd8
