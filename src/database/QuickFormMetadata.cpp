#include "database/QuickFormMetadata.h"

#include "foundation/Connection.h"
#include "foundation/Language.h"
#include "foundation/Recordset.h"
#include "foundation/Values.h"

namespace qd8 {

namespace {

// The current row's columns by name; a column the table lacks reads as Null, so a reader
// asks only what the statement gave.
class Row {
public:
    explicit Row(const Recordset& rs)
        : m_rs(rs)
    {
    }
    QVariant value(const char* column) const
    {
        const int index = m_rs.fieldIndex(QLatin1String(column));
        return index < 0 ? QVariant() : m_rs.field(index);
    }
    QString text(const char* column) const { return qd8::text(value(column)); }
    int number(const char* column) const { return int(toNumber(value(column))); }
    double real(const char* column) const { return toNumber(value(column)); }
    bool flag(const char* column) const { return toNumber(value(column)) == 1; }
    // A flag left Null takes the column's usual meaning.
    bool flagOr(const char* column, bool whenNull) const
    {
        const QVariant v = value(column);
        return v.isNull() ? whenNull : toNumber(v) == 1;
    }
    int numberOr(const char* column, int whenNull) const
    {
        const QVariant v = value(column);
        return v.isNull() ? whenNull : int(toNumber(v));
    }

private:
    const Recordset& m_rs;
};

void readForm(QuickFormMetadata& form, const Row& row)
{
    form.found = true;
    form.caption = row.text("TQFmCaption");
    form.caption2 = row.text("TQFmCaption2");
    form.table = row.text("TQFmTable");
    form.view = row.text("TQFmView");
    form.keyPrefix = row.text("TQFmKeyIDEN");
    form.pkList = row.text("TQFmPKList");
    form.where = row.text("TQFmWhere");
    form.order = row.text("TQFmOrder");
    form.masterReportNo = row.number("TQFMMasterReportNo");
    form.deleteAuto = row.flag("TQFmDeleteAuto");
    form.deleteField = row.text("TQFmDeleteField");
    form.deleteTable = row.text("TQFmDeleteTable");
    form.deleteMessage = row.text("TQFmDeleteMessage");
    form.runQuickForm = row.text("TQFmRunQuickForm");
    form.fieldFilter = row.text("TQFmFieldFilter");
    form.fieldReturn = row.text("TQFmFieldReturn");
    form.printCommand = row.text("TQFmPrintTCmdAlias");
    form.canAdd = row.flagOr("TQFmCanAdd", true);
    form.canDelete = row.flagOr("TQFmCanDelete", true);
    form.readOnly = row.flagOr("TQFmReadOnly", false);
}

QuickFieldMetadata readField(const Row& row)
{
    QuickFieldMetadata f;
    f.fieldName = row.text("TQFFFieldName");
    f.caption = row.text("TQFFCaption");
    f.caption2 = row.text("TQFFCaption2");
    f.type = normalTypeWord(row.text("TQFFFieldType"));
    f.width = row.value("TQFFWidth");
    f.active = row.flag("TQFFFlag1");
    f.primaryKey = row.flag("TQFFPrimaryKey");
    f.decimals = row.number("TQFFDecimal");
    f.minCon = row.flag("TQFFMinCon");
    f.minValue = row.real("TQFFMinValue");
    f.maxCon = row.flag("TQFFMaxCon");
    f.maxValue = row.real("TQFFMaxValue");
    f.maxLength = row.number("TQFFMaxlength");
    f.canDuplicate = row.flagOr("TQFFCanDuplicate", true);
    f.canBlank = row.text("TQFFCanBlank") == QLatin1String("1");
    f.canEdit = row.flagOr("TQFFCanEdit", true);
    f.canDeleteAlias = row.text("TQFFCanDeleteAlias");
    f.titleAlign = row.numberOr("TQFFTitleAlign", -1);
    f.rowAlign = row.numberOr("TQFFRowAlign", -1);
    f.labelList = row.text("TQFFLabelList");
    f.defaultValue = row.text("TQFFDefaultValue");
    f.defaultText = row.text("TQFFDefaultText");
    f.runQuickForm = row.text("TQFFRunQuickForm");
    return f;
}

} // namespace

const QString& QuickFieldMetadata::captionIn(int languageId) const
{
    return inLanguage(languageId, caption, caption2);
}

const QString& QuickFormMetadata::captionIn(int languageId) const
{
    return inLanguage(languageId, caption, caption2);
}

QString QuickFormMetadata::keyList() const
{
    return pkList.startsWith(QLatin1Char(',')) ? pkList.mid(1) : pkList;
}

QuickFormMetadata QuickFormMetadata::readCustomList(Connection& app, const QString& code)
{
    QuickFormMetadata list;
    list.alias = code;
    int maxLength = 0;
    {
        Recordset rs;
        rs.open(Sql("SELECT * FROM QD8TCustomData WHERE TCusCode=") + quoted(code), app);
        if (rs.eof())
            return list;
        const Row row(rs);
        list.found = true;
        list.caption = row.text("TCusName");
        list.caption2 = row.text("TCusName2");
        list.table = row.text("TCusTable").isEmpty() ? QStringLiteral("QD8TCustom1") : row.text("TCusTable");
        list.view = QStringLiteral("QD8TCustom1");
        list.keyPrefix = QStringLiteral("TCS1");
        list.pkList = row.text("TCusPKList");
        list.where = QStringLiteral("TCS1Type='") + code + QLatin1Char('\'')
            + (row.text("TCusWhere").isEmpty() ? QString() : QStringLiteral(" AND ") + row.text("TCusWhere"));
        list.order = row.text("TCusOrder");
        list.deleteTable = row.text("TCusDeleteTable");
        list.deleteField = row.text("TCusDeleteField");
        list.deleteMessage = row.text("TCusDeleteMessage");
        list.deleteAuto = !list.deleteTable.isEmpty() && !list.deleteField.isEmpty();
        maxLength = row.number("TCusMaxLen");
    }
    Recordset rs;
    rs.open(Sql("SELECT * FROM QD8TQuickField WHERE TQFFTCusCode=") + quoted(code) + " ORDER BY TQFFSort", app);
    const Row row(rs);
    for (; !rs.eof(); rs.moveNext()) {
        list.fields << readField(row);
        QuickFieldMetadata& f = list.fields.last();
        if (f.fieldName.compare(QLatin1String("TCS1Code"), Qt::CaseInsensitive) == 0 && f.maxLength == 0)
            f.maxLength = maxLength;
    }
    return list;
}

QuickFormMetadata QuickFormMetadata::read(Connection& app, const QString& alias, Reading reading)
{
    const bool activeOnly = reading == Reading::Editor;
    QuickFormMetadata form;
    form.alias = alias;
    {
        Recordset rs;
        rs.open(Sql("SELECT * FROM QD8TQuickForm WHERE TQFmAlias=") + quoted(alias) + (activeOnly ? " AND TQFMFlag1=1" : ""), app);
        if (!rs.eof())
            readForm(form, Row(rs));
    }
    if (reading == Reading::FormOnly || (!form.found && reading != Reading::Pick))
        return form;
    Recordset rs;
    rs.open(Sql("SELECT * FROM QD8TQuickField WHERE TQFFTQFmAlias=") + quoted(alias) + (activeOnly ? " AND TQFFFlag1=1" : "")
            + " ORDER BY TQFFSort",
        app);
    const Row row(rs);
    for (; !rs.eof(); rs.moveNext())
        form.fields << readField(row);
    return form;
}

} // namespace qd8
