#pragma once

#include "widgets/HostedControl.h"

class QLineEdit;
class QTreeWidget;
class QTreeWidgetItem;

namespace qd8 {

// The report search of the tool bar (WINDOW:REPORTSEARCH): every report command of the
// catalogue under its module, narrowed as the user types (alias, report number and both
// names, every word); Enter or a double click raises Lunch with the report's alias.
class ReportSearchForm : public HostedControl {
    Q_OBJECT

public:
    explicit ReportSearchForm(QWidget* parent = nullptr);

    Q_INVOKABLE QString caption() const;
    QLineEdit* searchBox() const { return m_search; }
    QTreeWidget* tree() const { return m_tree; }
    // The aliases of the reports shown, in order.
    QStringList shownReports() const;

public Q_SLOTS:
    void Refresh() override;

Q_SIGNALS:
    void Lunch(QString& ShellFunction);
    void CloseButtonClick();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void narrow();
    void launch(QTreeWidgetItem* item);

    QLineEdit* m_search = nullptr;
    QTreeWidget* m_tree = nullptr;
};

} // namespace qd8
