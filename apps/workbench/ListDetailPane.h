#pragma once

#include <QTimer>
#include <QWidget>

class QLabel;

namespace qd8 {

class DocumentDetailView;
class DocumentJob;
class DocumentPR;
class DocumentStatus;
class DucumentList;

// The pane beside a job, production-order or purchase-request list, in a splitter with
// the list's rows: the selected row's line (DocumentJob, or DocumentPR for a request)
// above its document's history (DocumentStatus). The list keeps the keyboard; the pane
// reads the row once the selection has rested, so arrowing through the list reads only
// the row it stops on. A row with nothing behind it, or no row, leaves the pane empty.
class ListDetailPane : public QWidget {
    Q_OBJECT

public:
    // How long the selection rests before the pane reads it.
    static constexpr int SettleMs = 150;

    // Gives the list of `commandAlias` its pane when it is one of the three; else nothing.
    static void attach(DucumentList& list, const QString& commandAlias);

    DocumentDetailView* detail() const;
    DocumentStatus* status() const { return m_status; }

private:
    enum class Kind { Job, Production, Request };

    ListDetailPane(DucumentList& list, Kind kind);
    void showRow();
    void clear();
    // The first line of a purchase request, 0 when it has none.
    int firstRequestLine(const QString& requestNo) const;

    DucumentList& m_list;
    const Kind m_kind;
    QTimer m_settle;
    QLabel* m_title;
    QLabel* m_historyTitle;
    DocumentJob* m_job = nullptr;
    DocumentPR* m_request = nullptr;
    DocumentStatus* m_status;
};

} // namespace qd8
