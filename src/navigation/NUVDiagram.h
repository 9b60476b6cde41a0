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

    // The database of the company's own drawings: when it holds a QD8TDiagram row for the
    // module, its drawing, steps and arrows replace the application database's.
    QString CustomConnectionString() const { return m_custom; }
    void setCustomConnectionString(const QString& value) { m_custom = value; }
    // The diagram's title in the session language, "" when the module has no drawing.
    QString title() const { return m_title; }
    // Whether the module has a drawing (a QD8TDiagram row in use) in either database.
    bool hasDrawing() const { return m_drawn; }

    static Sql diagramSql(const QString& commandGroup);
    static Sql itemsSql(const QString& commandGroup);
    static Sql arrowsSql(const QString& commandGroup);

public Q_SLOTS:
    void SetLanguageID(qint16 LID);
    // Refresh with the language and databases given; "" keeps a database as it is.
    void Refresh(qint16 LanguageID, const QString& AppConnectionString, const QString& CustomConnectionString);
    void Refresh() override;

private:
    QString m_custom;
    QString m_title;
    bool m_drawn = false;
};

} // namespace qd8
