#pragma once

#include "ui_LedgerForm.h"
#include "ui_OrdersForm.h"
#include "ui_ProductsForm.h"
#include "ui_SalesDesk.h"

#include <QD8Designer2/reports/ReportLayout.h>
#include <QD8Designer2/widgets/FormCollection.h>
#include <QD8Designer2/widgets/HostSession.h>

#include <QMainWindow>
#include <optional>

// The sales desk: the module's shortcuts beside three forms built from .ui files — the
// product master data (QuickGrid), the sales orders (DucumentList) and the ledger
// (ReportFilter above the latest voucher in a GLControl).
class SalesDesk : public QMainWindow {
    Q_OBJECT

public:
    explicit SalesDesk(const qd8::HostSession& session, QWidget* parent = nullptr);

    // Hands every control its session and loads it. DbError reaches the caller.
    void open();
    // What each form shows, by tab: its rows (master data, orders) or voucher lines.
    QList<QPair<QString, int>> shownRows() const;
    QTabWidget* forms() const { return m_ui.forms; }

private:
    void launch(const QString& alias);
    bool isQuickForm(const QString& alias) const;
    void preview(const QString& criteria);
    QString text(const char* thai, const char* english) const;

    qd8::HostSession m_session;
    Ui::SalesDesk m_ui;
    Ui::ProductsForm m_products;
    Ui::OrdersForm m_orders;
    Ui::LedgerForm m_ledger;
    qd8::WindowFormCollection m_windows{this};  // a document opened from the list gets a window
    std::optional<qd8::ReportLayout> m_report;
};
