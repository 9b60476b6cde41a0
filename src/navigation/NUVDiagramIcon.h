#pragma once

#include <QGraphicsObject>
#include <QIcon>

namespace qd8 {

// One tile of a diagram: a command (or, in the index, a module) with its picture and
// caption. A tile the user has no right to is drawn grey and does nothing when opened;
// it still takes the focus, so a keyboard user can read what is there.
class NUVDiagramIcon : public QGraphicsObject {
    Q_OBJECT

public:
    // Size of a tile in diagram points (1/96 inch at 100 %).
    static constexpr qreal Width = 116;
    static constexpr qreal Height = 92;

    NUVDiagramIcon(const QString& alias, const QString& caption, const QIcon& icon, bool live, QGraphicsItem* parent = nullptr);

    QString alias() const { return m_alias; }
    QString caption() const { return m_caption; }
    // Both list rights granted: the tile opens its command.
    bool isLive() const { return m_live; }
    // Where arrows meet the tile: the point of its border towards `towards`.
    QPointF edgePoint(const QPointF& towards) const;

    QRectF boundingRect() const override;
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

Q_SIGNALS:
    // The user opened a live tile (click, Enter, Space).
    void activated(const QString& alias);
    // The tile took the focus (arrow, click, Tab).
    void focused();

protected:
    void mousePressEvent(QGraphicsSceneMouseEvent* event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void hoverEnterEvent(QGraphicsSceneHoverEvent* event) override;
    void hoverLeaveEvent(QGraphicsSceneHoverEvent* event) override;

private:
    void open();

    QString m_alias;
    QString m_caption;
    QIcon m_icon;
    bool m_live;
    bool m_hovered = false;
};

} // namespace qd8
