#pragma once

#include "widgets/HostedControl.h"

class QLineEdit;
class QTableWidget;
class QLabel;

namespace qd8 {

// What a table list shows. "{N}" in the field list and order is the language's name
// suffix ("" Thai, "2" English).
struct TableListDefinition {
    QString title;          // Thai
    QString title2;         // English
    bool onCatalogue = false;  // the application database, else the company data
    QString fields;         // comma list; the first is the key
    QString captions;       // comma list, Thai
    QString captions2;      // comma list, English
    QString from;
    QString where;          // "" for every row
    QString order;
    QString searchFields;   // comma list of text columns the search box looks in
    bool launches = false;  // Enter or a double click raises Lunch with the key
};

// A read-only list of one table for the workbench: a search box that filters in SQL, a
// print button that hands the list's statement to the host (PrintAutoClick) and a close
// button (CloseButtonClick). A list of commands raises Lunch for the chosen one.
class TableListForm : public HostedControl {
    Q_OBJECT

public:
    explicit TableListForm(const TableListDefinition& definition, QWidget* parent = nullptr);

    // The list's title in the session language; the host titles its tab with it.
    Q_INVOKABLE QString caption() const;
    // The SELECT of the list as it stands (search included).
    QString statement() const;
    QTableWidget* table() const { return m_table; }
    QLineEdit* searchBox() const { return m_search; }

public Q_SLOTS:
    void Refresh() override;

Q_SIGNALS:
    void Lunch(QString& ShellFunction);
    void CloseButtonClick();
    void PrintAutoClick(const QString& SQLStatement, int ReportMasterMode, const QString& CaptionList);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QString captionList() const;
    QString withSuffix(QString text) const;
    void launchCurrent();

    TableListDefinition m_definition;
    QLineEdit* m_search = nullptr;
    QTableWidget* m_table = nullptr;
    QLabel* m_total = nullptr;
};

} // namespace qd8
