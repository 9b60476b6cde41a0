#include "DocumentVoucher.h"

#include "accounting/GLControl.h"
#include "foundation/Connection.h"

#include <QScopeGuard>

namespace qd8 {

namespace {

constexpr int MethodFromFormat = 2;  // the panel's posting method: lines from the format
constexpr int AmountCount = 20;      // a format reads X1..X20

} // namespace

DocumentVoucher::DocumentVoucher(const DocumentPosting& posting, GLControl* panel)
    : m_posting(posting)
    , m_panel(panel)
{
    m_panel->setObjectName(QStringLiteral("voucher"));
    m_panel->setFormatGroupAlias(posting.formatGroup);
    m_panel->setInputSource(posting.formatGroup);
    m_panel->setGLMethod(MethodFromFormat);
    m_panel->setLockMethod(true);
}

void DocumentVoucher::attach(HostedControl& form)
{
    // Once per session: the panel follows the form's language by itself (HostedControl).
    if (m_panel->dataObject() == form.dataObject())
        return;
    m_panel->SetFirst(&form, form.sharedDataObject(), form.sharedAppObject(), form.sharedClientObject(), m_posting.formatGroup);
    viewOnly();
}

void DocumentVoucher::viewOnly()
{
    // The format decides the lines: the clerk sees them and changes the document instead.
    m_panel->setGLMethod(MethodFromFormat);
    m_panel->EditStatus(0);
}

void DocumentVoucher::startNew()
{
    m_voucherNo.clear();
    m_panel->ClearOldRecord();
    m_panel->setRUNMODE(QString());
    viewOnly();
}

void DocumentVoucher::load(const QString& voucherNo)
{
    startNew();
    m_voucherNo = voucherNo.trimmed();
    if (m_voucherNo.isEmpty())
        return;
    m_panel->setRUNMODE(QStringLiteral("EDIT"));
    m_panel->FillData(m_voucherNo);
    viewOnly();
}

void DocumentVoucher::refill(const QList<Currency>& amounts)
{
    for (int n = 1; n <= AmountCount; ++n)
        m_panel->setInValueX(n, amounts.value(n - 1));
    m_panel->setInputValueReady(true);
    m_panel->SpeedProcess2(true);
    m_panel->FillAutoFormatNow(true);
    m_panel->CLEARZEROGL();  // a format line whose amount is nothing here (no service part)
    m_panel->SpeedProcess2(false);
}

QString DocumentVoucher::problem(const QDate& date)
{
    m_panel->setGLDocDate(date);
    return m_panel->isReadyToSave();
}

QString DocumentVoucher::post(Connection& data, const VoucherHeader& header)
{
    m_panel->FillParam2(0, header.customer, header.supplier, header.project, header.branch);
    m_panel->setSaveConnection(&data);
    const auto detach = qScopeGuard([this] { m_panel->setSaveConnection(nullptr); });
    bool detailOnly = false;
    const QString mode = m_voucherNo.isEmpty() ? QString() : QStringLiteral("EDIT");
    return m_panel->UpdateGL8(header.date, header.documentNo, header.date, QString(), QDate(), nullptr, header.description, 0,
        header.project, QString(), header.branch, m_voucherNo, mode, QString(), 0, 0, detailOnly);
}

void DocumentVoucher::rollback()
{
    // A new voucher's number went back with the document's transaction: the panel must not
    // keep it, or a later save could overwrite another voucher saved under it meanwhile.
    m_panel->saveRolledBack();
}

} // namespace qd8
