#include "navigation/DiagramLauncher.h"

#include "navigation/NUVDiagramIcon.h"

#include <QAccessible>
#include <QAccessibleObject>
#include <QAccessibleWidget>
#include <QFileInfo>
#include <QGraphicsPixmapItem>
#include <QGraphicsScene>
#include <QGraphicsSimpleTextItem>
#include <QGraphicsSvgItem>
#include <QSvgRenderer>
#include <QGraphicsView>
#include <QKeyEvent>
#include <QPainterPath>
#include <QScreen>
#include <QVBoxLayout>
#include <QtMath>

namespace qd8 {

namespace {

constexpr qreal Gap = 14;           // between tiles, in points
constexpr qreal Margin = 16;        // around the flowing tiles
constexpr qreal HeadingHeight = 30;

// The view: arrows move between tiles instead of scrolling; the owner is told.
class DiagramView : public QGraphicsView {
public:
    DiagramView(QGraphicsScene* scene, DiagramLauncher* owner)
        : QGraphicsView(scene, owner)
        , m_owner(owner)
    {
    }
    DiagramLauncher* owner() const { return m_owner; }

protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        const int key = event->key();
        if ((key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Up || key == Qt::Key_Down) && event->modifiers() == Qt::NoModifier) {
            m_owner->moveFocus(key);
            return;
        }
        QGraphicsView::keyPressEvent(event);
    }
    void focusInEvent(QFocusEvent* event) override
    {
        QGraphicsView::focusInEvent(event);
        if (!scene()->focusItem() && m_owner->currentIcon())
            m_owner->setCurrentIcon(m_owner->currentIcon());
    }

private:
    DiagramLauncher* m_owner;
};

// A tile in the accessibility tree: a button named by its caption, under the view.
class TileAccessible : public QAccessibleObject {
public:
    explicit TileAccessible(NUVDiagramIcon* icon)
        : QAccessibleObject(icon)
    {
    }
    NUVDiagramIcon* icon() const { return static_cast<NUVDiagramIcon*>(object()); }
    QGraphicsView* view() const
    {
        const auto views = icon()->scene() ? icon()->scene()->views() : QList<QGraphicsView*>();
        return views.isEmpty() ? nullptr : views.first();
    }
    QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(view()); }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QAccessible::Role role() const override { return QAccessible::Button; }
    QString text(QAccessible::Text t) const override
    {
        if (t == QAccessible::Name)
            return QString(icon()->caption()).replace(QStringLiteral("&&"), QStringLiteral("&"));
        return {};
    }
    QAccessible::State state() const override
    {
        QAccessible::State s;
        s.focusable = true;
        s.focused = icon()->hasFocus();
        s.disabled = !icon()->isLive();
        return s;
    }
    QRect rect() const override
    {
        QGraphicsView* v = view();
        if (!v)
            return {};
        const QRect local = v->mapFromScene(icon()->sceneBoundingRect()).boundingRect();
        return QRect(v->viewport()->mapToGlobal(local.topLeft()), local.size());
    }
};

// The view in the accessibility tree: its children are the tiles.
class ViewAccessible : public QAccessibleWidget {
public:
    explicit ViewAccessible(DiagramView* view)
        : QAccessibleWidget(view, QAccessible::Pane)
    {
    }
    const QList<NUVDiagramIcon*>& icons() const { return static_cast<DiagramView*>(widget())->owner()->icons(); }
    int childCount() const override { return int(icons().size()); }
    QAccessibleInterface* child(int index) const override
    {
        return index >= 0 && index < icons().size() ? QAccessible::queryAccessibleInterface(icons().at(index)) : nullptr;
    }
    int indexOfChild(const QAccessibleInterface* child) const override
    {
        return child ? int(icons().indexOf(static_cast<NUVDiagramIcon*>(child->object()))) : -1;
    }
};

QAccessibleInterface* diagramAccessible(const QString& className, QObject* object)
{
    if (className == QLatin1String("qd8::NUVDiagramIcon"))
        return new TileAccessible(static_cast<NUVDiagramIcon*>(object));
    if (auto* view = dynamic_cast<DiagramView*>(object); view && className == QLatin1String("QGraphicsView"))
        return new ViewAccessible(view);
    return nullptr;
}

} // namespace

DiagramLauncher::DiagramLauncher(QWidget* parent)
    : CommandLauncher(parent)
    , m_scene(new QGraphicsScene(this))
{
    static const bool factoryInstalled = (QAccessible::installFactory(diagramAccessible), true);
    Q_UNUSED(factoryInstalled);
    m_view = new DiagramView(m_scene, this);
    m_view->setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform);
    m_view->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_view->setFocusPolicy(Qt::StrongFocus);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_view);
    setFocusProxy(m_view);
}

DiagramLauncher::~DiagramLauncher() = default;

void DiagramLauncher::Refresh(qint16 LanguageID, const QString& AppConnectionString, const QString& CustomConnectionString)
{
    setLanguage(LanguageID);
    if (!AppConnectionString.isEmpty())
        setAppConnectionString(AppConnectionString);
    if (!CustomConnectionString.isEmpty())
        m_custom = CustomConnectionString;
    Refresh();
}

void DiagramLauncher::setLanguage(qint16 languageId)
{
    mutableSession().LanguageID = languageId;
}

bool DiagramLauncher::canLaunch(const CommandCatalogue&) const
{
    return !ConnectionString().isEmpty() && !AppConnectionString().isEmpty();
}

NUVDiagramIcon* DiagramLauncher::icon(const QString& alias) const
{
    for (NUVDiagramIcon* icon : m_icons)
        if (icon->alias() == alias)
            return icon;
    return nullptr;
}

void DiagramLauncher::clearDiagram()
{
    if (m_current)
        m_currentAlias = m_current->alias();
    m_current = nullptr;
    m_icons.clear();
    m_sections.clear();
    m_headings.clear();
    m_drawing = QSizeF();
    m_scene->clear();
}

NUVDiagramIcon* DiagramLauncher::addIcon(const QString& alias, const QString& caption, const QString& iconKey, const QString& iconFile, bool live)
{
    m_images.add(iconKey, iconFile);
    auto* tile = new NUVDiagramIcon(alias, caption, m_images.icon(iconKey), live);
    tile->setZValue(2);
    m_scene->addItem(tile);
    m_icons << tile;
    connect(tile, &NUVDiagramIcon::activated, this, [this](const QString& a) { openIcon(a); });
    connect(tile, &NUVDiagramIcon::focused, this, [this, tile] { m_current = tile; });
    return tile;
}

void DiagramLauncher::addArrow(const QString& fromAlias, const QString& toAlias)
{
    NUVDiagramIcon* from = icon(fromAlias);
    NUVDiagramIcon* to = icon(toAlias);
    if (!from || !to || from == to)
        return;
    const QPointF start = from->edgePoint(to->pos());
    const QPointF end = to->edgePoint(from->pos());
    QPainterPath path(start);
    path.lineTo(end);
    // The head: two strokes 10 points long, 25 degrees off the line.
    for (qreal turn : {25.0, -25.0}) {
        QLineF barb = QLineF(end, start);
        barb.setLength(10);
        barb.setAngle(barb.angle() + turn);
        path.moveTo(end);
        path.lineTo(barb.p2());
    }
    auto* arrow = m_scene->addPath(path, QPen(palette().color(QPalette::Dark), 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    arrow->setZValue(1);
}

bool DiagramLauncher::setBackground(const QString& file, const QSizeF& size)
{
    m_drawing = size;
    QGraphicsItem* picture = nullptr;
    if (file.endsWith(QLatin1String(".svg"), Qt::CaseInsensitive)) {
        auto* svg = new QGraphicsSvgItem(file);
        if (svg->renderer()->isValid())
            picture = svg;
        else
            delete svg;
    } else if (QPixmap pixmap(file); !pixmap.isNull()) {
        picture = new QGraphicsPixmapItem(pixmap);
    }
    if (!picture)
        return false;
    const QRectF box = picture->boundingRect();
    if (!box.isEmpty())
        picture->setTransform(QTransform::fromScale(size.width() / box.width(), size.height() / box.height()));
    picture->setZValue(0);
    m_scene->addItem(picture);
    return true;
}

void DiagramLauncher::setSections(const QList<Section>& sections)
{
    m_sections = sections;
    QList<NUVDiagramIcon*> flowing;
    for (const Section& section : sections)
        flowing << section.icons;
    QList<NUVDiagramIcon*> ordered;
    for (NUVDiagramIcon* icon : std::as_const(m_icons))
        if (!flowing.contains(icon))
            ordered << icon;
    m_icons = ordered + flowing;
}

qreal DiagramLauncher::flowSections(qreal top, qreal width)
{
    for (QGraphicsItem* heading : std::as_const(m_headings))
        delete heading;
    m_headings.clear();
    const qreal cellWidth = NUVDiagramIcon::Width + Gap;
    const int columns = qMax(1, int((width - 2 * Margin + Gap) / cellWidth));
    qreal y = top;
    for (const Section& section : std::as_const(m_sections)) {
        if (section.icons.isEmpty())
            continue;
        if (!section.heading.isEmpty()) {
            auto* heading = m_scene->addSimpleText(section.heading);
            QFont font = this->font();
            font.setPixelSize(15);
            font.setBold(true);
            heading->setFont(font);
            heading->setBrush(palette().color(QPalette::WindowText));
            heading->setPos(Margin, y + 6);
            m_headings << heading;
            y += HeadingHeight;
        }
        for (int i = 0; i < section.icons.size(); ++i) {
            const int row = i / columns, column = i % columns;
            section.icons.at(i)->setPos(Margin + column * cellWidth + NUVDiagramIcon::Width / 2,
                y + row * (NUVDiagramIcon::Height + Gap) + NUVDiagramIcon::Height / 2);
        }
        y += ((section.icons.size() + columns - 1) / columns) * (NUVDiagramIcon::Height + Gap);
    }
    return y;
}

void DiagramLauncher::arrange()
{
    // One point is 1/96 inch: a tile keeps its physical size on any screen, and a drawing
    // shrinks to fit the window but never grows beyond that size.
    const qreal dpiScale = logicalDpiX() / 96.0;
    const QSize port = m_view->viewport()->size();
    qreal scale = dpiScale;
    if (!m_drawing.isEmpty()) {
        const qreal bottom = flowSections(m_drawing.height(), m_drawing.width());
        const QRectF all(0, 0, m_drawing.width(), qMax(bottom, m_drawing.height()));
        m_scene->setSceneRect(all);
        if (!port.isEmpty())  // not laid out yet: the drawing's own size
            scale = qMin(dpiScale, qMin(port.width() / all.width(), port.height() / all.height()));
    } else {
        const qreal bottom = flowSections(Margin, port.width() / dpiScale);
        m_scene->setSceneRect(0, 0, port.width() / dpiScale, bottom + Margin);
    }
    m_view->setTransform(QTransform::fromScale(scale, scale));
}

void DiagramLauncher::finishDiagram()
{
    arrange();
    restoreFocus();
}

void DiagramLauncher::restoreFocus()
{
    NUVDiagramIcon* again = icon(m_currentAlias);
    if (!again && !m_icons.isEmpty())
        again = m_icons.first();
    if (again)
        setCurrentIcon(again);
}

void DiagramLauncher::setCurrentIcon(NUVDiagramIcon* icon)
{
    m_current = icon;
    if (!icon)
        return;
    m_currentAlias = icon->alias();
    icon->setFocus(Qt::OtherFocusReason);
    m_view->ensureVisible(icon);
}

bool DiagramLauncher::moveFocus(int key)
{
    if (!m_current) {
        restoreFocus();
        return m_current;
    }
    const QPointF from = m_current->pos();
    NUVDiagramIcon* best = nullptr;
    qreal bestCost = 0;
    for (NUVDiagramIcon* candidate : std::as_const(m_icons)) {
        const QPointF d = candidate->pos() - from;
        // Distance along the arrow's way, and off it: a tile straight ahead beats a closer one aside.
        qreal along = 0, aside = 0;
        switch (key) {
        case Qt::Key_Right: along = d.x(); aside = d.y(); break;
        case Qt::Key_Left: along = -d.x(); aside = d.y(); break;
        case Qt::Key_Down: along = d.y(); aside = d.x(); break;
        case Qt::Key_Up: along = -d.y(); aside = d.x(); break;
        default: return false;
        }
        if (along < 1)
            continue;
        const qreal cost = along + 2 * qAbs(aside);
        if (!best || cost < bestCost) {
            best = candidate;
            bestCost = cost;
        }
    }
    if (best)
        setCurrentIcon(best);
    return best;
}

void DiagramLauncher::openIcon(const QString& alias)
{
    launch(alias);
}

void DiagramLauncher::resizeEvent(QResizeEvent* event)
{
    CommandLauncher::resizeEvent(event);
    arrange();
}

void DiagramLauncher::showEvent(QShowEvent* event)
{
    CommandLauncher::showEvent(event);
    arrange();
}

} // namespace qd8
