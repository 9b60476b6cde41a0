#pragma once

#include "foundation/DateText.h"
#include "foundation/Sql.h"

#include <QList>
#include <QPair>
#include <QString>
#include <QWidget>

class QPrinter;
class QTextDocument;

namespace qd8 {

// Prints a list the way the host prints a control's own list (PrintAutoClick): the rows of
// a SELECT under the caption list, as a table with a title and the date, previewed before
// printing and exportable as PDF. Dates print in the user's era. A document prints the same
// way: its header's captions and values above the table of its lines (no table without a
// statement).
class ListPrinter {
public:
    ListPrinter(const QString& title, const Sql& sql, const QString& captionList, const QString& connectionString,
        const DateLook& look, const QList<QPair<QString, QString>>& header = {});

    // The document as HTML; a statement that fails prints its error instead of rows.
    QString html() const;
    int rowCount() const { return m_rows; }
    bool exportPdf(const QString& file) const;
    // A preview window with Print, Export PDF and Close; shown without blocking.
    QWidget* preview(QWidget* parent) const;

private:
    void render(QPrinter& printer) const;
    QString m_title;
    QString m_html;
    int m_rows = 0;
};

} // namespace qd8
