#pragma once

#include "foundation/Currency.h"

#include <QObject>
#include <QString>

namespace qd8 {

class Connection;
class CreditLimit;
class HostedControl;
class PointControl;

// A sales document's customer panels: where the form keeps the customer, the total the
// credit is checked against and the point document the order spends, and the group and
// type its point documents are made for.
struct DocumentSalesFields {
    QString customerField;
    QString totalField;
    QString pointField;     // the column that keeps the point document spent
    QString documentGroup;  // "SO"
    int pointType = 0;      // TPiTType of the point documents a document of this kind spends

    bool isEmpty() const { return customerField.isEmpty(); }
};

// The credit panel beside the customer and the point panel under the fields of a sales
// document form. Saving an order above the usable credit warns; only a user holding the
// right OverCreditRight (a row of QD8TUserRight) may go on. The point events open the point
// documents (form DOCPOINT) in the host's form collection; the point document chosen is
// written with the order and marked as used by it (TPiTRefNo), in the order's transaction.
class DocumentSales : public QObject {
    Q_OBJECT

public:
    static constexpr const char* OverCreditRight = "SOOVERCREDIT";

    DocumentSales(const DocumentSalesFields& fields, HostedControl& form);

    const DocumentSalesFields& fields() const { return m_fields; }
    CreditLimit* credit() const { return m_credit; }
    PointControl* points() const { return m_points; }
    // Hands the panels the form's session and mode.
    void attach(const QString& mode);
    // The customer typed, picked or loaded.
    void customerChanged(const QString& code);
    // A new document, or the saved one with its number and the point document it spends.
    void startNew();
    void load(const QString& number, const QString& pointNo);
    // Before the save: false when the order is refused for the customer's credit (the user
    // was told), true when it may be written.
    bool allowsSave(const QString& customer, Currency total);
    // In the save's transaction: the point document spent by the order.
    void record(Connection& data, const QString& table, const QString& keyField, const QString& number);

Q_SIGNALS:
    // The clerk asked to save from the point panel (Apply).
    void saveRequested();

private:
    void openPointDocument(const QString& mode, const QString& number, int type);
    void showPointBalance();
    QString title() const;

    DocumentSalesFields m_fields;
    HostedControl& m_form;
    CreditLimit* m_credit;
    PointControl* m_points;
    QString m_customer;
    QString m_usedBefore;  // the point document the saved order spent
};

} // namespace qd8
