#include "navigation/NUVDiagram2.h"

#include "foundation/Connection.h"
#include "foundation/DbError.h"
#include "foundation/Language.h"
#include "foundation/Recordset.h"
#include "navigation/NUVDiagramIcon.h"

#include <QGraphicsView>
#include <QMap>

namespace qd8 {

namespace {

// Forms first, then reports, then whatever else a module offers.
int kindOf(const QString& type)
{
    return type == QLatin1String("F") ? 0 : type == QLatin1String("R") ? 1 : 2;
}

} // namespace

NUVDiagram2::NUVDiagram2(QWidget* parent)
    : DiagramLauncher(parent)
{
}

void NUVDiagram2::Refresh()
{
    deriveCommandCentre();
    clearDiagram();
    if (ConnectionString().isEmpty() || AppConnectionString().isEmpty())
        return;
    const QString module = CommandGroup();
    // The modules' names and order.
    QStringList groups;
    QHash<QString, QString> names;
    try {
        Connection c;
        c.open(AppConnectionString());
        Recordset rs;
        rs.open(Sql("SELECT TCmGAlias, TCmGName, TCmGName2 FROM QD8TCommandGroup ORDER BY TCmGSort"), c);
        for (; !rs.eof(); rs.moveNext()) {
            const QString alias = rs.text(QStringLiteral("TCmGAlias"));
            groups << alias;
            names.insert(alias, inLanguage(LanguageID(), rs.text(QStringLiteral("TCmGName")), rs.text(QStringLiteral("TCmGName2"))));
        }
    } catch (const DbError&) {
    }
    QMap<std::pair<qsizetype, int>, Section> sections;
    catalogue().load(CommandCatalogue::moduleCommandsSql(module), LanguageID(), [&](const CommandEntry& entry) {
        const int kind = kindOf(entry.type);
        Section& section = sections[{groups.indexOf(entry.group), kind}];
        if (section.heading.isEmpty()) {
            const QString kindName = kind == 0 ? bilingual("เอกสารและข้อมูลหลัก", "Documents and master data")
                : kind == 1                    ? bilingual("รายงาน", "Reports")
                                               : bilingual("โปรแกรมและเว็บ", "Programs and web pages");
            section.heading = names.value(entry.group, entry.group) + QStringLiteral(" – ") + kindName;
        }
        section.icons << addIcon(entry.alias, entry.caption, entry.iconKey, entry.iconFile, entry.listable);
        return true;
    });
    setSections(sections.values());
    finishDiagram();
    view()->setAccessibleName(module.isEmpty() ? bilingual("คำสั่งทุกโมดูล", "Commands of every module")
                                               : names.value(module, module));
}

} // namespace qd8
