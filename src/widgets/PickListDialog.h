#pragma once

#include "foundation/PickRequest.h"

#include <QDialog>
#include <QString>
#include <memory>

class QDialogButtonBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTableView;

namespace qd8 {

class ExportMenu;
class PickListModel;

// The modal pick list: the request's columns over its source, a search box that filters
// the rows as the user types (Up/Down move through the rows meanwhile), Enter or a
// double-click picks the selected row, Esc leaves with nothing picked. A request that
// cannot be listed shows its reason inside the dialog over an empty list.
class PickListDialog : public QDialog {
    Q_OBJECT

public:
    explicit PickListDialog(const PickRequest& request, QWidget* parent = nullptr);
    ~PickListDialog() override;

    // The key field's value of the picked row; "" until a row is picked or after Esc.
    QString pickedKey() const { return m_pickedKey; }
    // The message the dialog shows about its request; "" when there is none.
    QString errorText() const { return m_errorText; }

    PickListModel* model() const { return m_model; }
    QLineEdit* searchBox() const { return m_search; }
    QTableView* view() const { return m_view; }

    // Writes the rows the list keeps (every row of the source, narrowed by the search in
    // force) in its shown columns to an XLSX or CSV file (by suffix); false, after saying
    // why, when that failed.
    bool exportRows(const QString& fileName);

    // Shows the pick list modally; the picked key, or "" when nothing was picked.
    static QString pick(const PickRequest& request, QWidget* parent = nullptr);

public slots:
    void accept() override;
    void reject() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void applyColumns();
    void sizeToRequest(int dialogWidthTwips);
    void search(const QString& text);
    void selectFirstRow();
    void showMessage(const QString& message, const QString& details = {});
    void updatePickButton();
    QPushButton* buildExport(int language);

    PickListModel* m_model;
    QLineEdit* m_search;
    QTableView* m_view;
    QLabel* m_message;
    QDialogButtonBox* m_buttons;
    QString m_pickedKey;
    QString m_errorText;
    std::unique_ptr<ExportMenu> m_export;
};

} // namespace qd8
