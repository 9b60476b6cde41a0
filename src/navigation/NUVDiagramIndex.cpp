#include "navigation/NUVDiagramIndex.h"

#include "foundation/Connection.h"
#include "foundation/DbError.h"
#include "foundation/Language.h"
#include "foundation/Recordset.h"
#include "navigation/NUVDiagram.h"
#include "navigation/NUVDiagram2.h"
#include "navigation/NUVDiagramIcon.h"

#include <QGraphicsView>
#include <QKeyEvent>
#include <QLayout>
#include <QSet>

namespace qd8 {

NUVDiagramIndex::NUVDiagramIndex(QWidget* parent)
    : DiagramLauncher(parent)
{
}

NUVDiagramIndex::~NUVDiagramIndex() = default;

Sql NUVDiagramIndex::modulesSql()
{
    return Sql("SELECT * FROM QD8TCommandGroup WHERE TCmGShow=1 AND TCmGFlag1=1 ORDER BY TCmGSort");
}

void NUVDiagramIndex::Refresh()
{
    deriveCommandCentre();
    clearDiagram();
    if (ConnectionString().isEmpty() || AppConnectionString().isEmpty())
        return;
    // The modules in which the user may run something: one pass over every command.
    QSet<QString> usable;
    catalogue().load(CommandCatalogue::moduleCommandsSql(QString()), LanguageID(), [&](const CommandEntry& entry) {
        if (entry.listable)
            usable.insert(entry.group);
        return true;
    });
    Section modules;
    try {
        Connection c;
        c.open(AppConnectionString());
        Recordset rs;
        rs.open(modulesSql(), c);
        for (; !rs.eof(); rs.moveNext()) {
            const QString alias = rs.text(QStringLiteral("TCmGAlias"));
            if (!usable.contains(alias))
                continue;
            QString file;
            const QString key = CommandCatalogue::iconKey(IconPath(), rs.field(QStringLiteral("TCmGIcon")), &file);
            modules.icons << addIcon(alias, inLanguage(LanguageID(), rs.text(QStringLiteral("TCmGName")), rs.text(QStringLiteral("TCmGName2"))),
                key, file, true);
        }
    } catch (const DbError&) {
    }
    setSections({modules});
    finishDiagram();
    view()->setAccessibleName(bilingual("ดัชนีโมดูล", "Module index"));
    // A module's diagram open over the index is read again too (the language may have changed).
    if (m_diagram)
        showModule(m_diagram->CommandGroup());
}

void NUVDiagramIndex::openIcon(const QString& alias)
{
    showModule(alias);
}

void NUVDiagramIndex::dropDiagram()
{
    // Later, as the diagram's own key press may be what closes it.
    if (m_diagram) {
        m_diagram->hide();
        m_diagram->deleteLater();
        m_diagram = nullptr;
    }
}

void NUVDiagramIndex::showModule(const QString& commandGroup)
{
    dropDiagram();
    // A drawn diagram when the module has one, else the laid-out one.
    auto* drawn = new NUVDiagram(this);
    DiagramLauncher* diagram = drawn;
    const auto hand = [&](DiagramLauncher* d) {
        d->setConnectionString(ConnectionString());
        d->setUserID(UserID());
        d->setUserLoginName(UserLoginName());
        d->setUserLoginPassword(UserLoginPassword());
        d->setIconPath(IconPath());
        d->setImageFolder(ImageFolder());
        d->setCommandGroup(commandGroup);
    };
    hand(drawn);
    drawn->Refresh(LanguageID(), AppConnectionString(), CustomConnectionString());
    if (!drawn->hasDrawing()) {
        delete drawn;
        auto* laidOut = new NUVDiagram2(this);
        hand(laidOut);
        laidOut->Refresh(LanguageID(), AppConnectionString(), CustomConnectionString());
        diagram = laidOut;
    }
    connect(diagram, &CommandLauncher::Lunch, this, [this](QString& alias) { Q_EMIT Lunch(alias); });
    diagram->view()->installEventFilter(this);
    layout()->addWidget(diagram);
    view()->hide();
    m_diagram = diagram;
    diagram->setFocus();
    Q_EMIT ModuleChanged(commandGroup);
}

void NUVDiagramIndex::showIndex()
{
    if (!m_diagram)
        return;
    dropDiagram();
    view()->show();
    view()->setFocus();
    Q_EMIT ModuleChanged(QString());
}

bool NUVDiagramIndex::eventFilter(QObject* watched, QEvent* event)
{
    if (m_diagram && watched == m_diagram->view() && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Escape || key == Qt::Key_Backspace) {
            showIndex();
            return true;
        }
    }
    return DiagramLauncher::eventFilter(watched, event);
}

} // namespace qd8
