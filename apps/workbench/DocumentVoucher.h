#pragma once

#include "foundation/Currency.h"

#include <QDate>
#include <QList>
#include <QString>

namespace qd8 {

class Connection;
class GLControl;
class HostedControl;

// A document that posts its own voucher through an automatic posting format: the format
// group, the document fields its amounts X1, X2 ... come from, the column that keeps the
// voucher number and the customer or supplier code the lines carry.
struct DocumentPosting {
    QString formatGroup;
    QStringList amountFields;
    QString voucherField;
    QString customerField;
    QString supplierField;

    bool isEmpty() const { return formatGroup.isEmpty(); }
};

// What the voucher takes from its document.
struct VoucherHeader {
    QDate date;
    QString documentNo;   // the voucher's reference
    QString description;
    QString branch;
    QString project;
    QString customer;
    QString supplier;
};

// The voucher of a document form: a voucher panel under the document's fields whose lines
// always follow the posting format over the document's amounts (the clerk sees them, the
// format decides them), saved on the document's connection inside the document's
// transaction, so the two are written together or not at all.
class DocumentVoucher {
public:
    DocumentVoucher(const DocumentPosting& posting, GLControl* panel);

    GLControl* panel() const { return m_panel; }
    const DocumentPosting& posting() const { return m_posting; }
    // Hands the panel the form's session objects.
    void attach(HostedControl& form);
    // A new document: no voucher yet.
    void startNew();
    // The voucher a saved document posted ("" when it has none yet).
    void load(const QString& voucherNo);
    // The lines again from the format over the document's amounts.
    void refill(const QList<Currency>& amounts);
    // "" when the voucher may be saved with the document, else why not.
    QString problem(const QDate& date);
    // Writes the voucher on the document's open connection, inside its transaction, and
    // returns the voucher number.
    QString post(Connection& data, const VoucherHeader& header);
    // The document's transaction did not commit.
    void rollback();

private:
    void viewOnly();

    DocumentPosting m_posting;
    GLControl* m_panel;
    QString m_voucherNo;
};

} // namespace qd8
