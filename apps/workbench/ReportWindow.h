#pragma once

#include "reports/ReportLayout.h"
#include "reports/ReportPreview.h"
#include "widgets/HostedControl.h"

#include <QPointer>
#include <optional>

class QLabel;

namespace qd8 {

class ReportFilter;

// The window of a report command (TYPE:R): the report's criteria (ReportFilter) over the
// command's layout; Preview opens a ReportPreview of the report built from the layout and
// the criteria (print, PDF, XLSX and CSV from there),
// Close asks the host to close the tab. The command is the one SetLast2 names (ControlName).
class ReportWindow : public HostedControl {
    Q_OBJECT

public:
    explicit ReportWindow(QWidget* parent = nullptr);

    ReportFilter* filter() const { return m_filter; }
    // The report the last preview showed, and its window while it is open.
    const ReportDefinition& lastReport() const { return m_lastReport; }
    ReportPreview* preview() const { return m_preview; }

public Q_SLOTS:
    void Refresh() override;

Q_SIGNALS:
    void CloseAction();

private:
    void preview(const QString& criteria);
    QString title() const;

    ReportFilter* m_filter = nullptr;
    QLabel* m_missing = nullptr;
    std::optional<ReportLayout> m_layout;
    ReportDefinition m_lastReport;
    QPointer<ReportPreview> m_preview;
};

} // namespace qd8
