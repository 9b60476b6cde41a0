#include "DocumentSales.h"

#include "DocumentForm.h"
#include "accounting/CreditLimit.h"
#include "accounting/PointControl.h"
#include "database/PermissionObject.h"
#include "foundation/Connection.h"
#include "foundation/DbError.h"
#include "foundation/NumberText.h"
#include "foundation/Recordset.h"
#include "foundation/Services.h"
#include "foundation/Values.h"
#include "widgets/FormCollection.h"

#include <QLineEdit>

namespace qd8 {

DocumentSales::DocumentSales(const DocumentSalesFields& fields, HostedControl& form)
    : QObject(&form)
    , m_fields(fields)
    , m_form(form)
    , m_credit(new CreditLimit(&form))
    , m_points(new PointControl(&form))
{
    m_credit->setObjectName(QStringLiteral("creditLimit"));
    m_points->setObjectName(QStringLiteral("pointControl"));
    connect(m_points, &PointControl::AddNew, this, [this](const QString&) { openPointDocument(QStringLiteral("ADD"), {}, m_fields.pointType); });
    connect(m_points, &PointControl::OpenDocument, this, [this](const QString&, int type, const QString&, const QString&) {
        const QString number = m_points->PointNo().trimmed();
        if (number.isEmpty())
            Services::messages().information(title(), m_form.bilingual("ยังไม่ได้เลือกใบใช้ Point", "No point document is chosen"));
        else
            openPointDocument(QStringLiteral("VIEW"), number, type);
    });
    connect(m_points, &PointControl::OpenDocumentTransfer, this,
        [this](const QString&, int type, const QString&, const QString&) { openPointDocument(QStringLiteral("ADD"), {}, type); });
    connect(m_points, &PointControl::Apply, this, [this] { Q_EMIT saveRequested(); });
}

void DocumentSales::attach(const QString& mode)
{
    m_points->SetFirst(m_form.DataConnectionString(), m_form.UserID(), m_fields.documentGroup, m_fields.pointType);
    m_points->setMODE(mode);
}

void DocumentSales::customerChanged(const QString& code)
{
    if (code == m_customer)
        return;
    m_customer = code;
    m_points->setCustomerCode(code);
    if (code.isEmpty() || !m_form.dataObject())
        return;
    try {
        m_credit->Refresh(QD8ModeCreditCustomer, code, m_form.sharedDataObject());
        showPointBalance();
    } catch (const DbError& error) {
        Services::messages().critical(title(), error.userText(m_form.LanguageID()));
    }
}

void DocumentSales::showPointBalance()
{
    // Points still to spend: the customer's approved point documents no document used yet.
    Connection data;
    data.open(m_form.DataConnectionString());
    Recordset rs;
    rs.open("SELECT SUM(TPiTTotalQuantity) AS Points FROM QD8TPointTrans WHERE TPiTApproveStatus=1 AND TPiTCancelStatus=0 "
            "AND (TPiTRefNo='' OR TPiTRefNo IS NULL) AND TPiTTARNCode=" + quoted(m_customer),
        data);
    m_points->setPointAvailable(rs.eof() ? 0 : toNumber(rs.field(0)));
}

void DocumentSales::startNew()
{
    m_usedBefore.clear();
    m_points->setPointNo(QString());
    m_points->FillData(QString());
}

void DocumentSales::load(const QString& number, const QString& pointNo)
{
    m_usedBefore = pointNo.trimmed();
    m_points->setPointNo(m_usedBefore);
    try {
        m_points->FillData(number);
    } catch (const DbError& error) {
        Services::messages().critical(title(), error.userText(m_form.LanguageID()));
    }
}

bool DocumentSales::allowsSave(const QString& customer, Currency total)
{
    Currency usable;
    try {
        usable = m_credit->GetCreditBalance(QD8ModeCreditCustomer, customer, m_form.sharedDataObject());
    } catch (const DbError& error) {
        Services::messages().critical(title(), error.userText(m_form.LanguageID()));
        return false;
    }
    if (total <= usable)
        return true;
    const QString over = m_form.bilingual("ยอดรวม %1 เกินวงเงินเครดิตที่ใช้ได้ของลูกค้า %2 (%3)", "The total %1 exceeds the credit customer %2 may still use (%3)")
                             .arg(groupedNumber(total.toDouble(), 2), customer, groupedNumber(usable.toDouble(), 2));
    DbPermissionObject rights(m_form.DataConnectionString(), m_form.UserID());
    bool allowed = false;
    try {
        allowed = rights.hasRight(QString::fromLatin1(OverCreditRight));
    } catch (const DbError&) {
        allowed = false;  // a right that cannot be read is not held
    }
    if (!allowed) {
        Services::messages().critical(title(),
            over + QLatin1Char('\n')
                + m_form.bilingual("ท่านไม่มีสิทธิ์บันทึกเกินวงเงิน (%1) ข้อมูลยังอยู่ในฟอร์ม", "You hold no right to exceed the credit (%1); the order stays in the form.")
                      .arg(QString::fromLatin1(OverCreditRight)));
        return false;
    }
    return Services::messages().question(title(), over + QLatin1Char('\n') + m_form.bilingual("ต้องการบันทึกต่อหรือไม่", "Save it all the same?"));
}

void DocumentSales::record(Connection& data, const QString& table, const QString& keyField, const QString& number)
{
    const QString pointNo = m_points->PointNo().trimmed();
    if (pointNo == m_usedBefore)
        return;
    data.execute(Sql("UPDATE ") + table + " SET " + m_fields.pointField + "=" + quoted(pointNo) + " WHERE " + keyField + "=" + quoted(number));
    if (!m_usedBefore.isEmpty())
        data.execute("UPDATE QD8TPointTrans SET TPiTRefNo=NULL WHERE TPiTNo=" + quoted(m_usedBefore) + " AND TPiTRefNo=" + quoted(number));
    if (!pointNo.isEmpty()) {
        // Only a document nobody used meanwhile.
        if (data.execute("UPDATE QD8TPointTrans SET TPiTRefNo=" + quoted(number) + " WHERE TPiTNo=" + quoted(pointNo)
                + " AND (TPiTRefNo='' OR TPiTRefNo IS NULL)") != 1)
            throw DbError(DbError::Kind::Conflict, QStringLiteral("Point document %1 is already used").arg(pointNo))
                .explain(QStringLiteral("ใบใช้ Point %1 ถูกใช้ไปแล้ว").arg(pointNo), QStringLiteral("Point document %1 is already used").arg(pointNo));
    }
    m_usedBefore = pointNo;
}

void DocumentSales::openPointDocument(const QString& mode, const QString& number, int type)
{
    FormCollection* forms = nullptr;
    for (QWidget* w = &m_form; w && !forms; w = w->parentWidget())
        forms = dynamic_cast<FormCollection*>(w);
    WindowFormCollection windows(&m_form);
    QWidget* opened = (forms ? forms : &windows)->add(QStringLiteral("DOCPOINT"));
    auto* form = qobject_cast<DocumentForm*>(opened);
    if (!form)
        return;
    form->setRUNMODE(mode);
    if (number.isEmpty()) {
        form->setNewDocNo(QString());
    } else {
        form->setDocNo(number);
    }
    form->FillData();
    if (mode == QLatin1String("ADD")) {
        // A new point document of this customer, for documents of the type asked.
        if (QLineEdit* customer = form->box(QStringLiteral("TPiTTARNCode")))
            customer->setText(m_customer);
        if (QLineEdit* kind = form->box(QStringLiteral("TPiTType")))
            kind->setText(QString::number(type));
    }
}

QString DocumentSales::title() const
{
    return m_form.bilingual("ลูกค้า", "Customer");
}

} // namespace qd8
