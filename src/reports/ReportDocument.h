#pragma once

#include "foundation/Currency.h"
#include "reports/ReportDefinition.h"

#include <QObject>
#include <QPageLayout>
#include <functional>
#include <memory>

class QPainter;
class QPagedPaintDevice;

namespace qd8 {

// A report laid out in pages as its rows arrive. The statement of the ReportDefinition is read on a
// forward cursor in batches; every batch is laid out at once, so the first page is there
// long before the last row is read and a host keeps its window alive between batches.
// Rows are kept typed in a compact store (text as UTF-8, money as fixed point), pages as
// lists of positions; a page is painted only when asked, on any paint device.
//
// Every page carries the heading (company, title, criteria, the date and time printed in
// the report's era), the column headings and its number; groups open with their value,
// close with their subtotals; the grand total ends the report. Totals are summed in
// Currency, so they are exact whatever the number of rows.
class ReportDocument : public QObject {
    Q_OBJECT

public:
    enum class State { Idle, Reading, Complete, Cancelled, Failed };

    explicit ReportDocument(const ReportDefinition& definition, QObject* parent = nullptr);
    ~ReportDocument() override;

    const ReportDefinition& definition() const;
    // A4, in the ReportDefinition's orientation, without margins: the report draws its own.
    QPageLayout pageLayout() const;

    // Opens the statement on the connection and lays out its first rows. Throws DbError when
    // the statement fails or lacks a column the ReportDefinition names.
    void open(const QString& connectionString);
    // Reads and lays out up to `rows` more rows; false once every row is read (or the
    // reading stopped).
    bool readMore(qsizetype rows);
    // open() (the statement and its first rows, at once), then readMore() in steps from the
    // event loop, each a few milliseconds long, so the window stays alive. The end is told
    // by finished(), failed() or cancelled().
    void start(const QString& connectionString);
    // Stops the reading; the pages laid out stay for viewing, but the report is not whole.
    void cancel();
    // Reads what is left, letting the event loop run between steps; true when complete.
    bool readAll();

    State state() const;
    bool isComplete() const { return state() == State::Complete; }
    QString errorText() const;
    qsizetype rowCount() const;
    // Pages laid out so far (the last may still grow while reading).
    int pageCount() const;
    // Pages that will not change any more.
    int finishedPages() const;
    // Grand total of a column of the ReportDefinition (zero for columns without a total).
    Currency total(int column) const;

    // Paints page `page` (from 0) with the page's top left corner at the painter's origin,
    // one unit a point (1/72 inch): the caller scales to its device.
    void paintPage(QPainter& painter, int page) const;
    // Every page on a printer or PDF writer (already set to pageLayout()), one after the
    // other; `step` is told each page printed and stops the printing by answering false.
    bool paint(QPagedPaintDevice& device, const std::function<bool(int page)>& step = {}) const;
    // The whole report as a PDF file; nothing is left under the name when writing fails or
    // `step` stops it.
    bool writePdf(const QString& fileName, const std::function<bool(int page)>& step = {});
    // The rows, group headings, subtotals and grand total as a workbook or CSV file (by the
    // name's suffix), numbers as numbers; `step` is told the lines written and stops it by
    // answering false, leaving no file.
    bool exportTable(const QString& fileName, const std::function<bool(qsizetype lines)>& step = {});

Q_SIGNALS:
    // More rows read and laid out: rows so far, pages that will not change any more.
    void progressed(qsizetype rows, int finishedPages);
    void finished();
    void failed(const QString& message);
    void cancelled();

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace qd8
