#include "editors/QuickFormDefinition.h"

#include "foundation/Connection.h"
#include "foundation/Language.h"
#include "foundation/Recordset.h"
#include "foundation/Values.h"

namespace qd8 {

namespace {

bool flag(const Recordset& rs, const char* column)
{
    return toNumber(rs.field(QLatin1String(column))) == 1;
}

// A flag left Null takes the column's usual meaning.
bool flagOr(const Recordset& rs, const char* column, bool whenNull)
{
    const QVariant value = rs.field(QLatin1String(column));
    return value.isNull() ? whenNull : toNumber(value) == 1;
}

int number(const Recordset& rs, const char* column)
{
    return int(toNumber(rs.field(QLatin1String(column))));
}

} // namespace

QList<int> QuickFormDefinition::keyColumns() const
{
    QList<int> columns;
    for (int i = 0; i < fields.size(); ++i)
        if (fields[i].primaryKey)
            columns << i + 1;
    return columns;
}

QuickFormDefinition QuickFormDefinition::load(Connection& app, const QString& alias, int languageId)
{
    const QString suffix = nameSuffix(languageId);
    QuickFormDefinition form;
    Recordset rs;
    rs.open(Sql("SELECT * FROM QD8TQuickForm WHERE TQFmAlias=") + quoted(alias) + " AND TQFMFlag1=1", app);
    if (rs.eof())
        return form;
    form.alias = alias;
    form.caption = rs.text(QStringLiteral("TQFmCaption") + suffix);
    form.where = rs.text(QStringLiteral("TQFmWhere"));
    form.order = rs.text(QStringLiteral("TQFmOrder"));
    form.masterReportNo = number(rs, "TQFMMasterReportNo");
    form.keyPrefix = rs.text(QStringLiteral("TQFmKeyIDEN"));
    form.deleteAuto = flag(rs, "TQFmDeleteAuto");
    form.deleteField = rs.text(QStringLiteral("TQFmDeleteField"));
    form.deleteTable = rs.text(QStringLiteral("TQFmDeleteTable"));
    form.deleteMessage = rs.text(QStringLiteral("TQFmDeleteMessage"));
    form.runQuickForm = rs.text(QStringLiteral("TQFmRunQuickForm"));
    form.fieldFilter = rs.text(QStringLiteral("TQFmFieldFilter"));
    form.fieldReturn = rs.text(QStringLiteral("TQFmFieldReturn"));
    form.printCommand = rs.text(QStringLiteral("TQFmPrintTCmdAlias"));
    form.canAdd = flagOr(rs, "TQFmCanAdd", true);
    form.canDelete = flagOr(rs, "TQFmCanDelete", true);
    form.readOnly = flagOr(rs, "TQFmReadOnly", false);
    form.view = rs.text(QStringLiteral("TQFmView"));
    form.table = rs.text(QStringLiteral("TQFmTable"));

    Recordset fields;
    fields.open(Sql("SELECT * FROM QD8TQuickField WHERE TQFFTQFmAlias=") + quoted(alias) + " AND TQFFFlag1=1 ORDER BY TQFFSort", app);
    QStringList keys;
    for (; !fields.eof(); fields.moveNext()) {
        QuickFieldDefinition f;
        f.fieldName = fields.text(QStringLiteral("TQFFFieldName"));
        f.runQuickForm = fields.text(QStringLiteral("TQFFRunQuickForm"));
        f.caption = fields.text(QStringLiteral("TQFFCaption") + suffix) + (f.runQuickForm.isEmpty() ? QString() : QStringLiteral(" (F2)"));
        f.type = fields.text(QStringLiteral("TQFFFieldType")).trimmed().toUpper();
        f.primaryKey = flag(fields, "TQFFPrimaryKey");
        f.decimals = number(fields, "TQFFDecimal");
        f.minCon = flag(fields, "TQFFMinCon");
        f.minValue = toNumber(fields.field(QStringLiteral("TQFFMinValue")));
        f.maxCon = flag(fields, "TQFFMaxCon");
        f.maxValue = toNumber(fields.field(QStringLiteral("TQFFMaxValue")));
        f.maxLength = number(fields, "TQFFMaxlength");
        f.canDuplicate = flagOr(fields, "TQFFCanDuplicate", true);
        f.canBlank = fields.text(QStringLiteral("TQFFCanBlank")) == QLatin1String("1");
        f.canEdit = flagOr(fields, "TQFFCanEdit", true);
        f.canDeleteAlias = fields.text(QStringLiteral("TQFFCanDeleteAlias"));
        const QVariant width = fields.field(QStringLiteral("TQFFWidth"));
        f.width = width.isNull() ? 1440 : int(toNumber(width));
        f.titleAlign = fields.field(QStringLiteral("TQFFTitleAlign")).isNull() ? -1 : number(fields, "TQFFTitleAlign");
        f.rowAlign = fields.field(QStringLiteral("TQFFRowAlign")).isNull() ? -1 : number(fields, "TQFFRowAlign");
        f.labelList = fields.text(QStringLiteral("TQFFLabelList"));
        f.defaultValue = fields.text(QStringLiteral("TQFFDefaultValue"));
        f.defaultText = fields.text(QStringLiteral("TQFFDefaultText"));
        form.fields << f;
        if (f.primaryKey) {
            form.keyColumn = int(form.fields.size());
            form.keyField = f.fieldName;
            keys << f.fieldName;
        }
    }
    form.keyList = keys.join(QLatin1Char(','));
    // The rows' active flag, shown and edited as the last column.
    QuickFieldDefinition show;
    show.fieldName = form.keyPrefix + QStringLiteral("Flag1");
    show.caption = inLanguage(languageId, "แสดง", "Show");
    show.type = QStringLiteral("YESNO");
    show.width = 700;
    show.defaultValue = QStringLiteral("1");
    form.fields << show;
    return form;
}

} // namespace qd8
