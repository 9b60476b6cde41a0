#pragma once

#include "foundation/TableExport.h"

#include <QList>
#include <QString>
#include <functional>

class QAbstractButton;
class QAction;
class QMenu;
class QWidget;

namespace qd8 {

// The Export a list offers, data views and pick lists alike: a button whose menu holds "to a
// workbook" (Ctrl+Shift+E anywhere in `scope`) and "to CSV"; choosing one calls `run`.
class ExportMenu {
public:
    ExportMenu(QAbstractButton* button, QWidget* scope, std::function<void(TableExport::Format)> run);

    // Words the button and its entries in the session language.
    void word(int languageId);
    // The two entries, for a context menu.
    QList<QAction*> actions() const { return {m_xlsx, m_csv}; }
    // Asks where to write the list called `name` (the home folder suggested); "" when cancelled.
    QString askFile(TableExport::Format format, const QString& name) const;

private:
    QAbstractButton* m_button;
    QMenu* m_menu;
    QAction* m_xlsx;
    QAction* m_csv;
};

} // namespace qd8
