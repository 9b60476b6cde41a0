#pragma once

#include "foundation/Language.h"

#include <QAbstractButton>
#include <QHeaderView>
#include <QProgressBar>
#include <QScrollBar>
#include <QTableView>

namespace qd8 {

// Names a table's parts for screen readers in the session language: the view itself
// (`thai` / `english`), its column titles and row marks, the scroll bars, the corner button
// and the progress bar under it. Called again when the language changes.
inline void nameTableParts(QTableView* view, QProgressBar* progress, int languageId, const char* thai, const char* english)
{
    const auto words = [languageId](const char* t, const char* e) { return inLanguage(languageId, t, e); };
    view->setAccessibleName(words(thai, english));
    view->horizontalHeader()->setAccessibleName(words("หัวคอลัมน์", "Column titles"));
    view->verticalHeader()->setAccessibleName(words("หัวแถว", "Row marks"));
    for (QScrollBar* bar : view->findChildren<QScrollBar*>())
        bar->setAccessibleName(bar->orientation() == Qt::Horizontal ? words("แถบเลื่อนแนวนอน", "Horizontal scroll bar")
                                                                    : words("แถบเลื่อนแนวตั้ง", "Vertical scroll bar"));
    if (auto* corner = view->findChild<QAbstractButton*>())
        corner->setAccessibleName(words("เลือกทั้งหมด", "Select all"));
    if (!progress->isVisible())  // a running progress is named after its operation
        progress->setAccessibleName(words("ความคืบหน้า", "Progress"));
}

} // namespace qd8
