#pragma once

#include <QString>

class QWidget;

namespace qd8 {

class NUVMainMenu;
class WorkbenchWindow;
struct WorkbenchSession;

// The module diagrams in the workbench: F7 opens the current module's diagram as a tab
// (the drawn one where the module has a drawing, else the laid-out one), Shift+F7 the
// index of every module the user may use. Their Lunch is the window's.
void addDiagramCommands(WorkbenchWindow& window);
QWidget* openModuleDiagram(WorkbenchWindow& window, const QString& module);
QWidget* openDiagramIndex(WorkbenchWindow& window);

// A user whose "StartMode" setting is "KEYPAD" works from the production keypad.
bool startsInKeypad(const WorkbenchSession& session);
// Makes the keypad the window's first tab, always open, and leaves out the ribbon and the
// shortcut bar: a touch screen shows the keypad and the forms it opens.
NUVMainMenu* startInKeypad(WorkbenchWindow& window);

} // namespace qd8
