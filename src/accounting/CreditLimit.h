#pragma once

#include "foundation/Currency.h"
#include "widgets/HostedControl.h"

#include <memory>

namespace qd8 {

class Connection;

enum QD8ModeCredit { QD8ModeCreditCustomer = 0, QD8ModeCreditVendor = 1 };

// The credit panel a sales document shows beside its customer: the credit limit, the
// available credit, the received cheques not yet cleared, the available credit after them
// and the overdue invoices, read from QD8TAR, QD8TChequeRec and QD8TARInvoice. It answers
// the host two questions: the limit, and the credit that may still be used. Only customer
// mode reads anything; vendor mode leaves the panel as it was. Database errors (a customer
// code holding a quote among them) reach the host as DbError.
class CreditLimit : public HostedControl {
    Q_OBJECT
    Q_PROPERTY(bool InuseTransaction READ InuseTransaction WRITE setInuseTransaction)

public:
    explicit CreditLimit(QWidget* parent = nullptr);
    ~CreditLimit() override;

    // Reloads the five amounts of customer iCode, each shown as soon as it is read.
    void Refresh(QD8ModeCredit iMode, const QString& iCode, std::shared_ptr<DataObject> DataObj);
    // Refresh, then the credit limit.
    Currency GetCreditLimit(QD8ModeCredit iMode, const QString& iCode, std::shared_ptr<DataObject> DataObj);
    // Refresh, then the usable credit: the available credit (after cheques unless the
    // option "ARCREDITBALANCEIGNORECHEQUE" is 1), never below 0 nor above the limit.
    Currency GetCreditBalance(QD8ModeCredit iMode, const QString& iCode, std::shared_ptr<DataObject> DataObj);

    // True: the queries run on the connection the host handed over (setHostConnection), inside
    // its transaction, so a document not yet committed already counts. False (the default),
    // or without such a connection: the panel opens its own with the data object's
    // connection string.
    bool InuseTransaction() const;
    void setInuseTransaction(bool inUse);
    void setHostConnection(Connection* connection);

    // The amounts as last shown.
    Currency creditLimit() const;
    Currency availableCredit() const;
    Currency pendingCheques() const;
    Currency availableAfterCheques() const;
    Currency overdueInvoices() const;

protected:
    void changeEvent(QEvent* event) override;

private:
    class Private;
    std::unique_ptr<Private> const d;
};

} // namespace qd8
