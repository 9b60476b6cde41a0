#include "navigation/NUVDiagramIcon.h"

#include <QCursor>
#include <QGraphicsSceneMouseEvent>
#include <QKeyEvent>
#include <QLineF>
#include <QPainter>
#include <QPalette>
#include <QWidget>

namespace qd8 {

namespace {

constexpr qreal IconSide = 40;
constexpr qreal Radius = 8;

// The caption as the tile shows it: "&&" is one ampersand (accelerator marks are gone already).
QString shownCaption(const QString& caption)
{
    return QString(caption).replace(QStringLiteral("&&"), QStringLiteral("&"));
}

} // namespace

NUVDiagramIcon::NUVDiagramIcon(const QString& alias, const QString& caption, const QIcon& icon, bool live, QGraphicsItem* parent)
    : QGraphicsObject(parent)
    , m_alias(alias)
    , m_caption(caption)
    , m_icon(icon)
    , m_live(live)
{
    setFlag(ItemIsFocusable);
    setAcceptHoverEvents(true);
    setToolTip(shownCaption(caption));
    setCursor(QCursor(live ? Qt::PointingHandCursor : Qt::ArrowCursor));
}

QRectF NUVDiagramIcon::boundingRect() const
{
    return QRectF(-Width / 2, -Height / 2, Width, Height);
}

QPointF NUVDiagramIcon::edgePoint(const QPointF& towards) const
{
    const QRectF box = sceneBoundingRect();
    const QLineF line(box.center(), towards);
    const QLineF sides[] = {{box.topLeft(), box.topRight()}, {box.topRight(), box.bottomRight()},
        {box.bottomRight(), box.bottomLeft()}, {box.bottomLeft(), box.topLeft()}};
    for (const QLineF& side : sides) {
        QPointF cut;
        if (line.intersects(side, &cut) == QLineF::BoundedIntersection)
            return cut;
    }
    return box.center();
}

void NUVDiagramIcon::paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget* widget)
{
    const QPalette palette = widget ? widget->palette() : QPalette();
    const QRectF box = boundingRect().adjusted(1, 1, -1, -1);
    painter->setRenderHint(QPainter::Antialiasing);
    QColor fill = m_live ? palette.color(QPalette::Base) : palette.color(QPalette::Window);
    if (m_live && m_hovered)
        fill = palette.color(QPalette::Highlight).lighter(190);
    painter->setBrush(fill);
    painter->setPen(QPen(m_live ? palette.color(QPalette::Mid) : palette.color(QPalette::Midlight), 1));
    painter->drawRoundedRect(box, Radius, Radius);
    if (hasFocus()) {
        // The focus is a thick frame in the highlight colour, visible on any drawing.
        painter->setBrush(Qt::NoBrush);
        painter->setPen(QPen(palette.color(QPalette::Highlight), 3));
        painter->drawRoundedRect(box.adjusted(1.5, 1.5, -1.5, -1.5), Radius, Radius);
    }
    const QRectF iconBox(-IconSide / 2, box.top() + 6, IconSide, IconSide);
    m_icon.paint(painter, iconBox.toRect(), Qt::AlignCenter, m_live ? QIcon::Normal : QIcon::Disabled);

    QFont font = widget ? widget->font() : painter->font();
    font.setPixelSize(12);
    painter->setFont(font);
    painter->setPen(palette.color(m_live ? QPalette::Active : QPalette::Disabled, QPalette::Text));
    const QRectF textBox(box.left() + 4, iconBox.bottom() + 2, box.width() - 8, box.bottom() - iconBox.bottom() - 4);
    painter->drawText(textBox, Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, shownCaption(m_caption));
}

void NUVDiagramIcon::open()
{
    if (m_live)
        Q_EMIT activated(m_alias);
}

void NUVDiagramIcon::mousePressEvent(QGraphicsSceneMouseEvent* event)
{
    setFocus(Qt::MouseFocusReason);
    event->accept();
}

void NUVDiagramIcon::mouseReleaseEvent(QGraphicsSceneMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && boundingRect().contains(event->pos()))
        open();
}

void NUVDiagramIcon::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        open();
        return;
    default:
        event->ignore();
    }
}

void NUVDiagramIcon::focusInEvent(QFocusEvent*)
{
    update();
    Q_EMIT focused();
}

void NUVDiagramIcon::focusOutEvent(QFocusEvent*)
{
    update();
}

void NUVDiagramIcon::hoverEnterEvent(QGraphicsSceneHoverEvent*)
{
    m_hovered = true;
    update();
}

void NUVDiagramIcon::hoverLeaveEvent(QGraphicsSceneHoverEvent*)
{
    m_hovered = false;
    update();
}

} // namespace qd8
