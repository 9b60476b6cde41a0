#pragma once

#include "navigation/DiagramLauncher.h"

namespace qd8 {

// A module's process diagram: the drawing of QD8TDiagram behind the module's commands,
// each at the place QD8TDiagramItem gives it, arrows from QD8TDiagramArrow between them.
// Commands of the module the drawing leaves out follow in rows beneath it, so every
// command in use is reachable. A command whose two list rights are not both granted is
// drawn grey and opens nothing; the others raise Lunch with their alias after the same
// catalogue re-lookup as the shortcut bar.
//
// The module is CommandGroup. The host gives the language (SetLanguageID or Refresh's
// argument) rather than the user's setting.
class NUVDiagram : public DiagramLauncher {
    Q_OBJECT

public:
    explicit NUVDiagram(QWidget* parent = nullptr);

    // The diagram's title in the session language, "" when the module has no drawing.
    QString title() const { return m_title; }
    // Whether the module has a drawing (a QD8TDiagram row in use) in either database.
    bool hasDrawing() const { return m_drawn; }

    static Sql diagramSql(const QString& commandGroup);
    static Sql itemsSql(const QString& commandGroup);
    static Sql arrowsSql(const QString& commandGroup);
    using DiagramLauncher::Refresh;

public Q_SLOTS:
    void SetLanguageID(qint16 LID);
    void Refresh() override;

private:
    QString m_title;
    bool m_drawn = false;
};

} // namespace qd8
