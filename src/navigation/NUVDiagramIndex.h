#pragma once

#include "navigation/DiagramLauncher.h"

#include <QPointer>

namespace qd8 {

// Every module the user may use, as tiles: a shown module in use in which at least one
// command has both list rights. Opening a tile shows that module's diagram in place of the
// index (NUVDiagram when the module has a drawing, NUVDiagram2 otherwise), with the index's
// session and language; Escape or Backspace there comes back. The diagram's Lunch is the
// index's Lunch.
class NUVDiagramIndex : public DiagramLauncher {
    Q_OBJECT

public:
    explicit NUVDiagramIndex(QWidget* parent = nullptr);
    ~NUVDiagramIndex() override;

    // The diagram open in place of the index, nullptr while the index shows.
    DiagramLauncher* openDiagram() const { return m_diagram; }

    static Sql modulesSql();
    using DiagramLauncher::Refresh;

public Q_SLOTS:
    void Refresh() override;
    // Opens a module's diagram, as its tile does.
    void showModule(const QString& commandGroup);
    // Back to the index.
    void showIndex();

Q_SIGNALS:
    // A module's diagram opened (its CommandGroup), or "" when the index shows again.
    void ModuleChanged(const QString& CommandGroup);

protected:
    void openIcon(const QString& alias) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void dropDiagram();

    QPointer<DiagramLauncher> m_diagram;
};

} // namespace qd8
