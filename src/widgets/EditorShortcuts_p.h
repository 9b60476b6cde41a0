#pragma once

#include <QKeySequence>
#include <QString>

class QAction;
class QWidget;

namespace qd8 {

// The keys every editor gives its tool-bar commands, so a clerk meets the same ones in each:
// Add Ctrl+N, Edit Ctrl+E, Update (save) Ctrl+S, Cancel Esc, Delete Ctrl+Delete, Print Ctrl+P.
// `buttonKey` is the button's key as SetPermission names it; other keys have none.
QKeySequence editorShortcut(const QString& buttonKey);

// The caption of an editor's tool-bar button by its key ("Update": "บันทึก" / "Update"), in the
// session language; the key itself for a key no editor has.
QString editorButtonText(const QString& buttonKey, int languageId);

// "<caption> (<keys>)": how a tool tip names a command's shortcut.
QString withShortcut(const QString& caption, const QKeySequence& keys);

// Gives the action its key, live while focus is anywhere in `owner` (a control among other
// open tabs), and a tool tip naming the key that follows the action's text.
void bindEditorShortcut(QAction* action, const QString& buttonKey, QWidget* owner);

} // namespace qd8
