#include "navigation/NUVDiagram.h"

#include "foundation/Connection.h"
#include "foundation/DbError.h"
#include "foundation/Language.h"
#include "foundation/Recordset.h"
#include "foundation/Values.h"
#include "navigation/NUVDiagramIcon.h"

#include <QGraphicsView>
#include <QHash>

namespace qd8 {

NUVDiagram::NUVDiagram(QWidget* parent)
    : DiagramLauncher(parent)
{
}

Sql NUVDiagram::diagramSql(const QString& commandGroup)
{
    return Sql("SELECT * FROM QD8TDiagram WHERE TDgmFlag1=1 AND TDgmTCmGAlias=") + quoted(commandGroup);
}

Sql NUVDiagram::itemsSql(const QString& commandGroup)
{
    return Sql("SELECT * FROM QD8TDiagramItem WHERE TDgIFlag1=1 AND TDgITCmGAlias=") + quoted(commandGroup) + " ORDER BY TDgISort";
}

Sql NUVDiagram::arrowsSql(const QString& commandGroup)
{
    return Sql("SELECT * FROM QD8TDiagramArrow WHERE TDgAFlag1=1 AND TDgATCmGAlias=") + quoted(commandGroup);
}

void NUVDiagram::SetLanguageID(qint16 LID)
{
    setLanguage(LID);
}

void NUVDiagram::Refresh()
{
    deriveCommandCentre();
    clearDiagram();
    m_title.clear();
    m_drawn = false;
    const QString module = CommandGroup();
    if (ConnectionString().isEmpty() || AppConnectionString().isEmpty())
        return;

    // The drawing: the company's own when it has one for the module, else the application's.
    struct Step {
        QPointF centre;
        QString caption;
    };
    QHash<QString, Step> steps;
    QList<QPair<QString, QString>> arrows;
    QString background;
    QSizeF size;
    for (const QString& source : {CustomConnectionString(), AppConnectionString()}) {
        if (source.isEmpty())
            continue;
        try {
            Connection c;
            c.open(source);
            Recordset rs;
            rs.open(diagramSql(module), c);
            if (rs.eof())
                continue;
            m_drawn = true;
            m_title = inLanguage(LanguageID(), rs.text(QStringLiteral("TDgmName")), rs.text(QStringLiteral("TDgmName2")));
            background = rs.text(QStringLiteral("TDgmBackground"));
            size = QSizeF(rs.field(QStringLiteral("TDgmWidth")).toReal(), rs.field(QStringLiteral("TDgmHeight")).toReal());
            Recordset items;
            items.open(itemsSql(module), c);
            for (; !items.eof(); items.moveNext())
                steps.insert(items.text(QStringLiteral("TDgITCmdAlias")),
                    {QPointF(items.field(QStringLiteral("TDgIX")).toReal(), items.field(QStringLiteral("TDgIY")).toReal()),
                        inLanguage(LanguageID(), items.text(QStringLiteral("TDgICaption")), items.text(QStringLiteral("TDgICaption2")))});
            Recordset links;
            links.open(arrowsSql(module), c);
            for (; !links.eof(); links.moveNext())
                arrows.append({links.text(QStringLiteral("TDgAFromTCmdAlias")), links.text(QStringLiteral("TDgAToTCmdAlias"))});
            break;
        } catch (const DbError&) {
            // A database without the diagram tables, or unreachable: the next source, or none.
        }
    }

    if (!size.isEmpty() && !background.isEmpty()) {
        const QString file = background.startsWith(QLatin1Char(':')) ? background : localPath(ImageFolder() + QLatin1Char('\\') + background);
        setBackground(file, size);
    }
    Section rest{bilingual("คำสั่งอื่นของโมดูล", "More commands of the module"), {}};
    catalogue().load(CommandCatalogue::moduleCommandsSql(module), LanguageID(), [&](const CommandEntry& entry) {
        const auto step = steps.constFind(entry.alias);
        const bool drawn = step != steps.cend() && !size.isEmpty();
        NUVDiagramIcon* tile = addIcon(entry.alias, drawn && !step->caption.isEmpty() ? step->caption : entry.caption,
            entry.iconKey, entry.iconFile, entry.listable);
        if (drawn)
            tile->setPos(step->centre);  // in the drawing's points
        else
            rest.icons << tile;
        return true;
    });
    // Without a drawing the commands flow under no heading.
    if (size.isEmpty())
        rest.heading.clear();
    setSections({rest});
    for (const auto& [from, to] : std::as_const(arrows))
        addArrow(from, to);
    finishDiagram();
    view()->setAccessibleName(m_title.isEmpty() ? bilingual("ผังงานโมดูล", "Module diagram") : m_title);
}

} // namespace qd8
