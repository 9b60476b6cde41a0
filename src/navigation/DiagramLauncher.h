#pragma once

#include "navigation/CommandLauncher.h"
#include "navigation/IconList.h"
#include "navigation/NUVDiagramIcon.h"

#include <QList>
#include <QPointer>

class QGraphicsItem;
class QGraphicsScene;
class QGraphicsView;

namespace qd8 {

// The base of the diagrams and the module index: tiles on a Graphics View scene, laid out
// by the control (at positions a drawing gives, or flowing in rows under section headings),
// kept the same physical size on every screen and fitted to the window. Arrows move the
// focus to the nearest tile that way, Enter or a click opens it; each tile is a child of the
// view in the accessibility tree, named by its caption.
class DiagramLauncher : public CommandLauncher {
    Q_OBJECT

public:
    explicit DiagramLauncher(QWidget* parent = nullptr);
    ~DiagramLauncher() override;

    QGraphicsView* view() const { return m_view; }
    QGraphicsScene* scene() const { return m_scene; }
    // The tiles in the order they were placed.
    const QList<NUVDiagramIcon*>& icons() const { return m_icons; }
    NUVDiagramIcon* icon(const QString& alias) const;
    // The tile with the focus (or last given it); nullptr on an empty diagram.
    NUVDiagramIcon* currentIcon() const { return m_current; }
    void setCurrentIcon(NUVDiagramIcon* icon);
    // Moves the focus to the nearest tile in the direction of an arrow key; false when none lies that way.
    bool moveFocus(int key);

    // The company's own diagram database; a diagram without a drawing reads nothing from it.
    QString CustomConnectionString() const { return m_custom; }
    void setCustomConnectionString(const QString& value) { m_custom = value; }
    using CommandLauncher::Refresh;

public Q_SLOTS:
    // Refresh with the language and databases given; "" keeps a database as it is.
    void Refresh(qint16 LanguageID, const QString& AppConnectionString, const QString& CustomConnectionString);

protected:
    struct Section {
        QString heading;
        QList<NUVDiagramIcon*> icons;
    };

    // The language of the captions, given by the host rather than read from the user's settings.
    void setLanguage(qint16 languageId);
    // Empties the scene (the current tile's alias is kept, to find it again).
    void clearDiagram();
    // A tile; its picture is loaded once per key (IconList), "Blank" without a file.
    NUVDiagramIcon* addIcon(const QString& alias, const QString& caption, const QString& iconKey, const QString& iconFile, bool live);
    void addArrow(const QString& fromAlias, const QString& toAlias);
    // A drawing of `size` points behind the tiles: SVG, or any picture Qt reads. False when it cannot be read.
    bool setBackground(const QString& file, const QSizeF& size);
    // Tiles that flow in rows, each section under its heading: below the drawing when there
    // is one (its width), else across the window.
    // The tiles keep the order they are seen in: drawn ones first, then section by section.
    void setSections(const QList<Section>& sections);
    // After a refresh has placed everything: lays the scene out and gives the focus back
    // to the tile that had it (the first tile when it is gone).
    void finishDiagram();
    // Lays the scene out again for the window's size; called on every resize.
    void arrange();
    // Opening a tile: by default Lunch after the catalogue re-lookup.
    virtual void openIcon(const QString& alias);
    bool canLaunch(const CommandCatalogue& commands) const override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    QString m_custom;
    qreal flowSections(qreal top, qreal width);
    void restoreFocus();

    QGraphicsScene* m_scene = nullptr;
    QGraphicsView* m_view = nullptr;
    QList<NUVDiagramIcon*> m_icons;
    QList<Section> m_sections;
    QList<QGraphicsItem*> m_headings;
    QSizeF m_drawing;  // empty without a drawing
    QPointer<NUVDiagramIcon> m_current;
    QString m_currentAlias;
    IconList m_images;
};

} // namespace qd8
