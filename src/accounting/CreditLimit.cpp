#include "accounting/CreditLimit.h"

#include "database/DataObject.h"
#include "foundation/Connection.h"
#include "foundation/DbError.h"
#include "foundation/NumberText.h"
#include "foundation/Recordset.h"
#include "foundation/Values.h"

#include <QDate>
#include <QEvent>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>

namespace qd8 {

namespace {

// The panel's rows, top to bottom.
enum Row { Limit, Available, Cheques, AfterCheques, Overdue, RowCount };

const char* const Captions[RowCount][2] = {
    {"วงเงินเครดิต", "Credit Limit"},
    {"วงเงินคงเหลือ", "Available Credit"},
    {"เช็ครับยังไม่ผ่าน", "Cheques Not Cleared"},
    {"คงเหลือหลังหักเช็ค", "Available after Cheques"},
    {"ยอดค้างเกินกำหนด", "Overdue Invoices"},
};

QString shown(Currency amount)
{
    return groupedNumber(amount.toDouble(), 2);
}

} // namespace

class CreditLimit::Private {
public:
    explicit Private(CreditLimit* q) : q(q) {}

    // Every option of the panel is read here: the value in force for the session.
    double option(DataObject& data, const QString& alias) const { return data.effectiveNumber(alias); }
    // The first field of the statement's first row; an empty sum (NULL) or no row is 0.
    Currency first(Connection& c, const Sql& sql) const;
    void show(Row row, Currency value);
    void retranslate();

    CreditLimit* q;
    QLabel* captions[RowCount] = {};
    QLineEdit* fields[RowCount] = {};
    Currency values[RowCount];
    double ignoreCheques = 0;  // "ARCREDITBALANCEIGNORECHEQUE" as last read
    bool inuseTransaction = false;
    Connection* hostConnection = nullptr;
};

Currency CreditLimit::Private::first(Connection& c, const Sql& sql) const
{
    Recordset rs;
    rs.open(sql, c);
    return rs.eof() ? Currency() : toCurrency(rs.field(0));
}

void CreditLimit::Private::show(Row row, Currency value)
{
    values[row] = value;
    fields[row]->setText(shown(value));
    if (row == AfterCheques || row == Available) {
        // The credit still usable, in the error colour once it is used up.
        QPalette palette = q->palette();
        if (value <= Currency())
            palette.setColor(QPalette::Text, Qt::red);
        fields[row]->setPalette(palette);
    }
}

void CreditLimit::Private::retranslate()
{
    for (int row = 0; row < RowCount; ++row) {
        captions[row]->setText(q->bilingual(Captions[row][0], Captions[row][1]));
        fields[row]->setAccessibleName(captions[row]->text());
    }
}

CreditLimit::CreditLimit(QWidget* parent)
    : HostedControl(parent)
    , d(std::make_unique<Private>(this))
{
    auto* form = new QFormLayout(this);
    form->setContentsMargins(0, 0, 0, 0);
    for (int row = 0; row < RowCount; ++row) {
        d->captions[row] = new QLabel(this);
        d->fields[row] = new QLineEdit(shown(Currency()), this);
        d->fields[row]->setReadOnly(true);
        d->fields[row]->setFocusPolicy(Qt::NoFocus);
        d->fields[row]->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        d->fields[row]->setObjectName(QStringLiteral("credit%1").arg(row));
        form->addRow(d->captions[row], d->fields[row]);
    }
    d->retranslate();
}

CreditLimit::~CreditLimit() = default;

bool CreditLimit::InuseTransaction() const { return d->inuseTransaction; }
void CreditLimit::setInuseTransaction(bool inUse) { d->inuseTransaction = inUse; }
void CreditLimit::setHostConnection(Connection* connection) { d->hostConnection = connection; }

Currency CreditLimit::creditLimit() const { return d->values[Limit]; }
Currency CreditLimit::availableCredit() const { return d->values[Available]; }
Currency CreditLimit::pendingCheques() const { return d->values[Cheques]; }
Currency CreditLimit::availableAfterCheques() const { return d->values[AfterCheques]; }
Currency CreditLimit::overdueInvoices() const { return d->values[Overdue]; }

void CreditLimit::Refresh(QD8ModeCredit iMode, const QString& iCode, std::shared_ptr<DataObject> DataObj)
{
    if (iMode != QD8ModeCreditCustomer || !DataObj)
        return;
    if (DataObj != sharedDataObject()) {
        // A new session: its user's language for the captions.
        SetFirst(DataObj, sharedAppObject(), sharedClientObject());
        takeSessionFromDataObject();
    }
    Connection own;
    Connection* c = d->hostConnection;
    if (!d->inuseTransaction || !c || !c->isOpen()) {
        own.open(DataObj->connectionString());
        c = &own;
    }
    const Sql code = quoted(iCode);
    d->show(Limit, d->first(*c, "SELECT TARNCreditLimit FROM QD8TAR WHERE TARNCode=" + code));
    d->show(Available, d->first(*c, "SELECT TARNCreditAvaiBal FROM QD8TAR WHERE TARNCode=" + code));
    d->show(Cheques, d->first(*c,
        "SELECT SUM(TCHRTotalRate) AS TCHRTotalRate  FROM Qd8TChequeRec WHERE (TCHRChqStatus=1 OR  TCHRChqStatus=0) AND TCHRTARNCode="
            + code));
    d->ignoreCheques = d->option(*DataObj, QStringLiteral("ARCREDITBALANCEIGNORECHEQUE"));
    d->show(AfterCheques, d->ignoreCheques == 0 ? d->values[Available] - d->values[Cheques] : d->values[Available]);
    // The date marker carries the engine's own quotes.
    d->show(Overdue, d->first(*c,
        "select sum(TIvoArrears) AS TIvoArrears FROM QD8TARInvoice WHERE TIvoApproveStatus=1 AND TIvoCancelStatus=0 AND TIvoCardStatus=1 "
        "AND TIvoDate<=" + dateMarker(QDate::currentDate()) + " AND TIvoTARNCode=" + code));
}

Currency CreditLimit::GetCreditLimit(QD8ModeCredit iMode, const QString& iCode, std::shared_ptr<DataObject> DataObj)
{
    Refresh(iMode, iCode, std::move(DataObj));
    return d->values[Limit];
}

Currency CreditLimit::GetCreditBalance(QD8ModeCredit iMode, const QString& iCode, std::shared_ptr<DataObject> DataObj)
{
    Refresh(iMode, iCode, std::move(DataObj));
    // Tests 1 where Refresh tests 0: any other value reads the field after cheques, which
    // then holds the available credit as well.
    Currency usable = d->ignoreCheques == 1 ? d->values[Available] : d->values[AfterCheques];
    if (usable < Currency())
        usable = Currency();
    return usable > d->values[Limit] ? d->values[Limit] : usable;
}

void CreditLimit::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        d->retranslate();
    HostedControl::changeEvent(event);
}

} // namespace qd8
