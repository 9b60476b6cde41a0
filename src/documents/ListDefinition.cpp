#include "documents/ListDefinition.h"

#include "database/ListService.h"
#include "database/PermissionObject.h"
#include "database/SessionServices.h"
#include "foundation/CommaList.h"
#include "foundation/Language.h"

namespace qd8 {

namespace {

const QString Table = QStringLiteral("QD8TFormDocList");
const QString KeyColumn = QStringLiteral("TFDLTCmdAlias");
const QString CostMarker = QStringLiteral("{COST}");

// Reads one definition column at a time, as the single-value lookup does it.
class ColumnReader {
public:
    ColumnReader(const QString& alias, const QString& connectionString) : m_alias(alias), m_cs(connectionString) {}

    QString text(const QString& column) const
    {
        const QVariant v = SessionServices::listService().LookupValue(QString(), KeyColumn, m_alias, column, Table, m_cs);
        return v.isNull() ? QString() : v.toString();
    }
    int number(const char* column) const { return qRound(text(QString::fromLatin1(column)).trimmed().toDouble()); }
    // A text the user reads, from the column's English twin in an English session; a twin
    // left empty falls back to the Thai text so the list still has its choices.
    QString caption(const char* thaiColumn, int languageId) const
    {
        const QString thai = QString::fromLatin1(thaiColumn);
        if (isThai(languageId))
            return text(thai);
        const QString english = text(englishTwin(thai));
        return english.isEmpty() ? text(thai) : english;
    }

private:
    // The language suffix appended to the Thai column's name; TFDLFilterStatusL + "2" is the
    // second status list already, so its twin is TFDLFilterStatusL12.
    static QString englishTwin(const QString& thaiColumn)
    {
        return thaiColumn == QLatin1String("TFDLFilterStatusL") ? QStringLiteral("TFDLFilterStatusL12") : thaiColumn + nameSuffix(1);
    }

    QString m_alias;
    QString m_cs;
};

} // namespace

ListDefinition ListDefinition::load(const QString& alias, const QString& appConnectionString, int languageId)
{
    ListDefinition d;
    d.alias = alias;
    const ColumnReader row(alias, appConnectionString);
    d.codeAlias = row.text("TFDLTCodAlias");
    d.BACKDAYLIST = row.text("TFDLBACKDAYLIST");
    if (!d.codeAlias.isEmpty()) {
        ListService& lookup = SessionServices::listService();
        d.TABLENAME = lookup.LookupValue(QString(), QStringLiteral("TCodAlias"), d.codeAlias, QStringLiteral("TCodTable"),
            QStringLiteral("QD8TCode"), appConnectionString).toString();
        d.PKey = lookup.LookupValue(QString(), QStringLiteral("TCodAlias"), d.codeAlias, QStringLiteral("TCodPrimaryKey"),
            QStringLiteral("QD8TCode"), appConnectionString).toString();
    }
    d.PrimaryKeyList = row.text("TFDLPrimaryKeyList");
    d.ColumnList = row.text("TFDLColumnList");
    d.NameList = row.caption("TFDLNameList", languageId);
    d.WidthList = row.text("TFDLWidthList");
    d.rowHeight = row.number("TFDLRowHeight");
    d.TypeList = row.text("TFDLTypeList");
    d.Query = row.text("TFDLQuery");
    d.OrderList = row.caption("TFDLOrderList", languageId);
    d.OrderQuery = row.text("TFDLOrderQuery");
    d.FilterCustom = row.text("TFDLFilterCustom");
    d.FilterCustom2 = row.text("TFDLFilterCustom2");
    d.FilterCustomW = row.text("TFDLFilterCustomW");
    d.Filter1 = row.text("TFDLFilter1");
    d.Filter1W = row.text("TFDLFilter1W");
    d.FILTER2 = row.text("TFDLFilter2");
    d.Filter2Caption = row.caption("TFDLFilter2F", languageId);
    d.FILTER3 = row.text("TFDLFilter3");
    d.Filter3Caption = row.caption("TFDLFilter3F", languageId);
    d.FilterEmployee = row.text("TFDLFilterEmployee");
    d.FilterEmpLabel = row.caption("TFDLFilterEmpLabel", languageId);
    d.FilterAR = row.text("TFDLFilterAR");
    d.FilterARByEmp = row.number("TFDLFilterARByEmp");
    d.FilterAP = row.text("TFDLFilterAP");
    d.FilterDivision = row.text("TFDLFilterDivision");
    d.FilterProject = row.text("TFDLFilterProject");
    d.FilterProduct = row.text("TFDLFilterProduct");
    d.FilterProductM = row.number("TFDLFilterProductM");
    d.FilterProductG = row.text("TFDLFilterProductG");
    d.FilterProductT = row.number("TFDLFilterProductT");
    d.filterBackDate = row.number("TFDLFilterBackDate") != 0;
    d.FilterDeliveryDate = row.text("TFDLFilterDeliveryDate");
    d.FilterArrear = row.text("TFDLFilterArrear");
    d.FilterArrearCaption = row.caption("TFDLFilterArrearC", languageId);
    d.FilterInvArrear = row.text("TFDLFilterInvArr");
    d.FilterInvArrearCaption = row.caption("TFDLFilterInvArrC", languageId);
    d.FilterStatus = row.text("TFDLFilterStatus");
    d.FilterStatusCaptions = row.caption("TFDLFilterStatusL", languageId);
    d.FilterStatus2 = row.text("TFDLFilterStatus2");
    d.FilterStatusCaptions2 = row.caption("TFDLFilterStatusL2", languageId);
    d.FilterDate = row.text("TFDLFilterDate");
    d.FilterDateCaption = row.caption("TFDLFilterDateC", languageId);
    d.LegendList = row.caption("TFDLLegendList", languageId);
    d.FormDetail = row.text("TFDLFormDetail");
    d.FormFunction = row.text("TFDLFormFunction");
    d.DefaultFilter = row.number("TFDLDefaultFilter");
    d.DefaultOrder = row.number("TFDLDefaultOrder");
    d.SwitchOption = row.text("TFDLSwitchOption");
    d.ExtraSearch = row.text("TFDLExtraSearch");
    d.DeleteActionMode = row.number("TFDLDeleteAction");
    d.DeleteActionCaption = row.caption("TFDLDeleteActionC", languageId);
    d.AutoRefresh = row.text("TFDLAutoRefresh");
    d.buttonMode = row.text("TFDLButtonMode");

    d.found = !d.ColumnList.isEmpty();
    if (d.PKey.isEmpty())
        d.PKey = splitList(d.PrimaryKeyList).value(0).trimmed();
    if (d.TABLENAME.isEmpty())
        d.TABLENAME = d.Query;
    return d;
}

QString ListDefinition::variantAlias(const QString& alias, double menuOption)
{
    if (menuOption == 0)
        return alias;
    for (const char* base : {"PURPR", "ICLOTIN", "ICISSUEUSE"}) {
        if (alias == QLatin1String(base))
            return alias + QStringLiteral("MB");
    }
    return alias;
}

QString ListDefinition::costWidths(const QString& widthList, PermissionObject* permission)
{
    if (!widthList.contains(CostMarker))
        return widthList;
    const bool maySee = permission && permission->hasRight(QStringLiteral("ICINVENTORYCOST"));
    QStringList widths = splitList(widthList);
    for (QString& width : widths) {
        if (!maySee && width.contains(CostMarker))
            width = QStringLiteral("0");
        width.remove(CostMarker);
    }
    return widths.join(QLatin1Char(','));
}

QString ListDefinition::prefixOfKey(const QString& keyField)
{
    QString field = keyField.trimmed();
    field = field.mid(field.lastIndexOf(QLatin1Char('.')) + 1);
    for (const char* stem : {"No", "Code"}) {
        const QLatin1String s(stem);
        if (field.endsWith(s) && field.size() > s.size())
            return field.left(field.size() - s.size());
    }
    return field;
}

} // namespace qd8
