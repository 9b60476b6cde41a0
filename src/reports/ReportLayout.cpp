#include "reports/ReportLayout.h"

#include "foundation/Connection.h"
#include "foundation/Language.h"
#include "foundation/Recordset.h"
#include "foundation/Values.h"

namespace qd8 {

ReportColumn::Kind ReportLayout::kindOf(const QString& word)
{
    const QString w = normalTypeWord(word);
    if (w == QLatin1String("INTEGER"))
        return ReportColumn::Kind::Integer;
    if (w == QLatin1String("QUANTITY") || w == QLatin1String("NUMBER"))
        return ReportColumn::Kind::Quantity;
    if (w == QLatin1String("MONEY"))
        return ReportColumn::Kind::Money;
    if (w == QLatin1String("DATE"))
        return ReportColumn::Kind::Date;
    return ReportColumn::Kind::Text;
}

std::optional<ReportLayout> ReportLayout::read(const QString& commandAlias, const QString& appConnectionString, int languageId)
{
    const QString suffix = nameSuffix(languageId);
    const auto named = [&suffix](QString text) { return text.replace(QStringLiteral("{N}"), suffix); };
    Connection c;
    c.open(appConnectionString);
    Recordset rs;
    rs.open(Sql("SELECT * FROM QD8TReportLayout WHERE TRpLTCmdAlias=") + quoted(commandAlias) + " AND TRpLFlag1=1", c);
    if (rs.eof())
        return std::nullopt;
    ReportLayout layout;
    layout.commandAlias = commandAlias;
    layout.reportGroup = rs.text(QStringLiteral("TRpLReportGroup")).trimmed();
    layout.tableQuery = named(rs.text(QStringLiteral("TRpLQuery")).trimmed());
    layout.order = named(rs.text(QStringLiteral("TRpLOrder")).trimmed());
    layout.definition.groupField = named(rs.text(QStringLiteral("TRpLGroupField")).trimmed());
    layout.definition.groupCaptionField = named(rs.text(QStringLiteral("TRpLGroupCaptionField")).trimmed());
    layout.definition.landscape = toNumber(rs.field(QStringLiteral("TRpLLandscape"))) != 0;
    layout.definition.languageId = languageId;
    rs.open(Sql("SELECT * FROM QD8TReportColumn WHERE TRpCTCmdAlias=") + quoted(commandAlias) + " ORDER BY TRpCSort", c);
    for (; !rs.eof(); rs.moveNext()) {
        ReportColumn column;
        column.field = named(rs.text(QStringLiteral("TRpCFieldName")).trimmed());
        column.caption = inLanguage(languageId, rs.text(QStringLiteral("TRpCCaption")), rs.text(QStringLiteral("TRpCCaption2")));
        column.kind = kindOf(rs.text(QStringLiteral("TRpCKind")));
        column.total = toNumber(rs.field(QStringLiteral("TRpCTotal"))) != 0;
        if (const int width = int(toNumber(rs.field(QStringLiteral("TRpCWidth")))); width > 0)
            column.width = width;
        layout.definition.columns << column;
    }
    return layout;
}

ReportDefinition ReportLayout::definitionFor(const QString& statement, const QString& title, const QString& company, const QString& criteria) const
{
    ReportDefinition out = definition;
    out.sql = order.isEmpty() ? statement : statement + QStringLiteral(" ORDER BY ") + order;
    out.title = title;
    out.company = company;
    out.criteria = criteria;
    return out;
}

} // namespace qd8
