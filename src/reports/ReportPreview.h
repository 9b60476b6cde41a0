#pragma once

#include "reports/ReportDefinition.h"

#include <QWidget>
#include <memory>

namespace qd8 {

class DataObject;
class ReportDocument;

// The window a host opens on a report: its pages shown as they are laid out, with Print,
// Print preview, Save PDF, Export XLSX, Export CSV and Close on its tool bar, and the
// reading's progress with Cancel below. Keys: Ctrl+P prints, PageUp/PageDown turn the
// pages, Esc closes. File names are asked through the picker service; the captions follow
// the report's language. The rows are read from the event loop, so the host's window stays
// alive and the first page shows before the last row is read.
class ReportPreview : public QWidget {
    Q_OBJECT

public:
    // Opens a preview window on the company data of `data` and starts reading; the window
    // deletes itself when closed.
    static ReportPreview* open(DataObject* data, const ReportDefinition& definition, QWidget* parent = nullptr);

    ReportPreview(const ReportDefinition& definition, const QString& connectionString, QWidget* parent = nullptr);
    ~ReportPreview() override;

    ReportDocument* document() const;
    // The page shown, from 0.
    int currentPage() const;
    void setCurrentPage(int page);

public Q_SLOTS:
    void print();
    void printPreview();
    // Each asks for a file name, waits for the last row if need be, and writes; false when
    // the user cancelled or writing failed (the reason told in a message).
    bool savePdf();
    bool exportXlsx();
    bool exportCsv();
    // Stops the reading, or the writing under way.
    void cancel();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace qd8
