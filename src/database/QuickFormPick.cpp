#include "database/QuickFormPick.h"

#include "database/ListService.h"
#include "database/SessionServices.h"
#include "foundation/Connection.h"
#include "foundation/DbError.h"
#include "foundation/Recordset.h"
#include "foundation/Values.h"

#include <cmath>

namespace qd8 {

namespace {

enum class WhereRule { InUseUnlessFormWhere, FormWhereOnly };

// The suite converts a width to a whole number the way CLng does: to the nearest, ties to even.
qint64 wholeWidth(const QVariant& width, const QString& field)
{
    if (width.isNull())
        return 0;
    bool ok = false;
    const double value = text(width).trimmed().toDouble(&ok);
    if (!ok)
        throw DbError(DbError::Kind::Usage, QStringLiteral("The width \"%1\" of quick-form field %2 is not a number").arg(text(width), field));
    return qint64(std::nearbyint(value));
}

QString pickFromQuickForm(const QString& alias, const QString& appConnectionString, const QString& dataConnectionString,
    WhereRule rule, const QString& customFilter)
{
    if (alias.isEmpty() || appConnectionString.isEmpty())
        return {};
    Connection app;
    app.open(appConnectionString);
    Connection data;
    data.open(dataConnectionString);

    Recordset form;
    form.open(Sql("SELECT * FROM QD8TQuickForm WHERE TQFmAlias=") + quoted(alias), app);
    const auto formText = [&form](const char* column) { return form.eof() ? QString() : form.text(QLatin1String(column)); };
    const QString title = formText("TQFmCaption");
    const QString keyField = formText("TQFmPKList");

    Recordset fields;
    fields.open(Sql("SELECT * FROM QD8TQuickField WHERE TQFFTQFmAlias=") + quoted(alias) + " ORDER BY TQFFSort", app);
    QString fieldList, captionList, widthList, typeList;
    QString typeCode;  // "" until the first field that is not a NUMBER, "0" from then on
    qint64 totalWidth = 0;
    for (; !fields.eof(); fields.moveNext()) {
        const QString separator = fieldList.isEmpty() ? QString() : QStringLiteral(",");
        const QString name = fields.text(QStringLiteral("TQFFFieldName"));
        const qint64 width = wholeWidth(fields.field(QStringLiteral("TQFFWidth")), name);
        fieldList += separator + name;
        captionList += separator + fields.text(QStringLiteral("TQFFCaption"));
        widthList += separator + QString::number(width);
        totalWidth += width;
        if (fields.text(QStringLiteral("TQFFFieldType")) != QLatin1String("NUMBER"))
            typeCode = QStringLiteral("0");
        typeList += separator + typeCode;
    }

    const QString formWhere = formText("TQFmWhere");
    QString where;
    if (!formWhere.isEmpty())
        where = QStringLiteral(" WHERE ") + formWhere;
    else if (rule == WhereRule::InUseUnlessFormWhere)
        where = QStringLiteral(" WHERE ") + formText("TQFMKeyIden") + QStringLiteral("Flag1=1");
    if (!customFilter.isEmpty())
        where += QLatin1Char(' ') + customFilter;
    const QString order = formText("TQFmOrder");
    const QString source = formText("TQFmTable") + where + (order.isEmpty() ? QString() : QStringLiteral(" ORDER BY ") + order);

    return SessionServices::listService().PickFromList(title, keyField, fieldList, captionList, widthList, typeList, source,
        dataConnectionString, 0, 0, 0, 1, 0, totalWidth > 10000 ? 10000 : 0);
}

} // namespace

QString QuickFormPick(const QString& alias, const QString& appConnectionString, const QString& dataConnectionString)
{
    return pickFromQuickForm(alias, appConnectionString, dataConnectionString, WhereRule::InUseUnlessFormWhere, {});
}

QString QuickFormPickAll(const QString& alias, const QString& appConnectionString, const QString& dataConnectionString,
    const QString& customFilter)
{
    return pickFromQuickForm(alias, appConnectionString, dataConnectionString, WhereRule::FormWhereOnly, customFilter);
}

} // namespace qd8
