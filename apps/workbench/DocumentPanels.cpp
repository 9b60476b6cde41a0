#include "DocumentPanels.h"

#include "DocumentForm.h"
#include "database/DataObject.h"
#include "documents/DocumentDetails.h"
#include "documents/DocumentHistory.h"
#include "documents/JobSelector.h"
#include "foundation/Backend.h"
#include "foundation/Connection.h"
#include "foundation/DbError.h"
#include "foundation/Recordset.h"
#include "foundation/Services.h"
#include "foundation/TransactionGuard.h"

#include <QDateTime>
#include <QHBoxLayout>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace qd8 {

namespace {

// The stock documents carry the job choice in these columns.
const QString JobTable = QStringLiteral("QD8TInventory");

} // namespace

void shareSession(HostedControl& to, const HostedControl& form)
{
    to.SetLast2(QString(), to.objectName(), QString::number(form.UserID()), form.DataConnectionString(), form.AppConnectionString());
    to.SetFirst(form.sharedDataObject(), form.sharedAppObject(), form.sharedClientObject());
    to.setUserLoginName(form.UserLoginName());
}

DocumentPanels::DocumentPanels(const DocumentDefinition& definition, HostedControl* form)
    : QTabWidget(form)
    , m_definition(definition)
    , m_form(form)
    , m_prefix(definition.auditPrefix)
{
    setObjectName(QStringLiteral("panels"));
    if (definition.table.compare(JobTable, Qt::CaseInsensitive) == 0) {
        auto* page = new QWidget(this);
        auto* layout = new QVBoxLayout(page);
        m_selector = new JobSelector(page);
        m_selector->setObjectName(QStringLiteral("jobSelector"));
        m_jobDetail = new DocumentJob(page);
        m_jobDetail->setObjectName(QStringLiteral("jobDetail"));
        layout->addWidget(m_selector);
        layout->addWidget(m_jobDetail, 1);
        addTab(page, QString());
        connect(m_selector, &JobSelector::DataChange, this, &DocumentPanels::showDetail);
    }
    auto* page = new QWidget(this);
    auto* layout = new QVBoxLayout(page);
    m_status = new DocumentStatus(page);
    m_status->setObjectName(QStringLiteral("history"));
    layout->addWidget(m_status, 1);
    auto* buttons = new QHBoxLayout;
    for (const char* action : {"Confirm", "Approve", "Reject", "Cancel"}) {
        auto* button = new QPushButton(page);
        button->setObjectName(QLatin1String(action));
        connect(button, &QPushButton::clicked, this, [this, action] { step(QLatin1String(action)); });
        buttons->addWidget(button);
        m_steps << button;
    }
    buttons->addStretch(1);
    layout->addLayout(buttons);
    addTab(page, QString());
    retranslate();
}

bool DocumentPanels::wanted(const DocumentDefinition& definition)
{
    return !definition.isMaster() && !definition.auditPrefix.isEmpty();
}

void DocumentPanels::retranslate()
{
    int tab = 0;
    if (m_selector)
        setTabText(tab++, m_form->bilingual("ใบสั่งงาน", "Job"));
    setTabText(tab, m_form->bilingual("ประวัติเอกสาร", "History"));
    setAccessibleName(m_form->bilingual("ข้อมูลประกอบเอกสาร", "Document details"));
    const char* words[][2] = {{"ยืนยัน", "Confirm"}, {"อนุมัติ", "Approve"}, {"ไม่อนุมัติ", "Reject"}, {"ยกเลิกเอกสาร", "Cancel"}};
    for (int i = 0; i < m_steps.size(); ++i)
        m_steps[i]->setText(m_form->bilingual(words[i][0], words[i][1]));
}

void DocumentPanels::attach()
{
    if (m_selector && (m_selector->ConnectionString() != m_form->DataConnectionString() || m_selector->LanguageID() != m_form->LanguageID())) {
        shareSession(*m_selector, *m_form);
        m_selector->SetFirst2(m_form->DataConnectionString(), m_form->UserID());
        shareSession(*m_jobDetail, *m_form);
    }
    if (m_status->DataConnectionString() != m_form->DataConnectionString() || m_status->LanguageID() != m_form->LanguageID())
        shareSession(*m_status, *m_form);
    retranslate();
}

void DocumentPanels::startNew(const QString& documentCode)
{
    m_key.clear();
    m_status->list()->clear();
    for (QPushButton* b : std::as_const(m_steps))
        b->setEnabled(false);
    if (!m_selector)
        return;
    m_selector->Clear();
    try {
        m_selector->SetPermissionByDocCode(documentCode);
    } catch (const DbError& error) {
        m_selector->SetPermission(0, 0, 0);  // the code cannot be read: nothing required
        Services::messages().critical(m_form->bilingual("ใบสั่งงาน", "Job"), error.userText(m_form->LanguageID()));
    }
}

void DocumentPanels::setWritable(bool writable)
{
    if (m_selector)
        m_selector->setEnabled(writable);
}

void DocumentPanels::load(const QString& key)
{
    m_key = key;
    for (QPushButton* b : std::as_const(m_steps))
        b->setEnabled(true);
    if (m_selector) {
        try {
            Connection data;
            data.open(m_form->DataConnectionString());
            Recordset rs;
            rs.open(Sql("SELECT TInvTCodAlias FROM QD8TInventory WHERE TInvNo=") + quoted(key), data);
            const QString code = rs.eof() ? QString() : rs.text(QStringLiteral("TInvTCodAlias"));
            rs.close();
            data.close();
            m_selector->SetPermissionByDocCode(code);
            m_selector->FillData(key);
        } catch (const DbError& error) {
            Services::messages().critical(m_form->bilingual("ใบสั่งงาน", "Job"), error.userText(m_form->LanguageID()));
        }
    }
    showHistory();
}

QString DocumentPanels::problem() const
{
    return m_selector ? m_selector->isReadyToSave() : QString();
}

void DocumentPanels::write(Connection& data, const QString& key, bool added, const QString& changes)
{
    if (m_selector) {
        const Backend& b = data.backend();
        QStringList sets;
        const char* columns[] = {"TInvTJobNo", "TInvTJbMLn", "TInvTJstLn", "TInvTJPDNo", "TInvTJPMLn", "TInvTMPSNo"};
        for (int i = 0; i < 6; ++i)
            sets << QLatin1String(columns[i]) + QLatin1Char('=') + b.placeholder(i + 1);
        auto orNull = [](const QString& text) { return text.isEmpty() ? QVariant() : QVariant(text); };
        auto lineOrNull = [](int line) { return line > 0 ? QVariant(line) : QVariant(); };
        const JobSelector& s = *m_selector;
        QVariantList values{orNull(s.JobNo()), lineOrNull(s.JobLn()), lineOrNull(s.StepLn()), orNull(s.ProductionNo()),
            lineOrNull(s.ProductionLn()), orNull(s.MPSNo()), key};
        data.execute(Sql("UPDATE QD8TInventory SET ") + sets.join(QStringLiteral(", ")) + " WHERE TInvNo=" + b.placeholder(7), values);
    }
    if (added || !changes.isEmpty())
        DocumentHistory::record(data, m_form->dataObject(), m_definition.table, key, added ? QStringLiteral("Create") : QStringLiteral("Edit"),
            m_form->UserLoginName(), changes);
}

bool DocumentPanels::step(const QString& action)
{
    if (m_key.isEmpty())
        return false;
    auto& messages = Services::messages();
    const QString title = m_form->bilingual("ประวัติเอกสาร", "History");
    QString note;
    if (action == QLatin1String("Reject") || action == QLatin1String("Cancel")) {
        const auto typed = Services::picker().inputMultiLine(m_form->bilingual("เหตุผล", "Reason"), QString(), m_form->LanguageID());
        if (!typed)
            return false;
        note = typed->trimmed();
    }
    try {
        Connection data;
        data.open(m_form->DataConnectionString());
        TransactionGuard transaction(data);
        Recordset rs;
        rs.open(Sql("SELECT * FROM ") + m_definition.table + " WHERE " + m_definition.keyField + "=" + quoted(m_key), data,
            Recordset::adOpenKeyset, Recordset::adLockOptimistic);
        if (rs.eof())
            throw DbError(DbError::Kind::Conflict, m_form->bilingual("ไม่พบเอกสาร %1", "There is no document %1").arg(m_key));
        const QString p = m_prefix;
        auto status = [&](const char* stem) { return rs.field(p + QLatin1String(stem)).toInt(); };
        auto set = [&](const char* stem, const QVariant& value) {
            if (rs.fieldIndex(p + QLatin1String(stem)) >= 0)
                rs.setField(p + QLatin1String(stem), value);
        };
        // A cancelled document takes no step; approval follows confirmation.
        QString refusal;
        if (status("CancelStatus") == 1)
            refusal = m_form->bilingual("เอกสารถูกยกเลิกแล้ว", "The document is cancelled");
        else if ((action == QLatin1String("Approve") || action == QLatin1String("Reject")) && status("ConfirmStatus") != 1)
            refusal = m_form->bilingual("ต้องยืนยันเอกสารก่อนอนุมัติ", "Confirm the document before approving it");
        if (!refusal.isEmpty()) {
            messages.critical(title, refusal);
            return false;
        }
        const QDateTime now = QDateTime::currentDateTime();
        const QString by = m_form->UserLoginName();
        if (action == QLatin1String("Confirm")) {
            set("ConfirmStatus", 1), set("ConfirmDate", now), set("ConfirmBy", by);
        } else if (action == QLatin1String("Cancel")) {
            set("CancelStatus", 1), set("CancelDate", now), set("CancelBy", by), set("CancelNote", note);
        } else {
            set("ApproveStatus", action == QLatin1String("Approve") ? 1 : 2), set("ApproveDate", now), set("ApproveBy", by);
            set("ApproveNote", note);
        }
        rs.update();
        DocumentHistory::record(data, m_form->dataObject(), m_definition.table, m_key, action, by, QString(), note);
        transaction.commit();
    } catch (const DbError& error) {
        messages.critical(title, error.userText(m_form->LanguageID()) + QLatin1Char('\n') + error.message());
        return false;
    }
    Q_EMIT changed();
    return true;
}

void DocumentPanels::showDetail()
{
    if (!m_selector || m_selector->JobNo().isEmpty()) {
        if (m_jobDetail)
            m_jobDetail->list()->clear();
        return;
    }
    // The request line bought for the job line, when there is one.
    QString prNo;
    int prLn = 0;
    try {
        Connection data;
        data.open(m_form->DataConnectionString());
        Recordset rs;
        rs.open(Sql("SELECT TPRMTPRDNo, TPRMLn FROM QD8TPRSub WHERE TPRMTJobNo=") + quoted(m_selector->JobNo()) + " AND TPRMTJbMLn="
                + m_selector->JobLn() + " ORDER BY TPRMTPRDNo, TPRMLn",
            data);
        if (!rs.eof()) {
            prNo = rs.text(QStringLiteral("TPRMTPRDNo"));
            prLn = rs.field(QStringLiteral("TPRMLn")).toInt();
        }
    } catch (const DbError&) {
        // the request is left out; the job and its order still show
    }
    m_jobDetail->ShowDocumentJOB3(m_selector->JobNo(), m_selector->JobLn(), m_selector->ProductionNo(), m_selector->ProductionLn(), prNo,
        prLn, m_form->DataConnectionString());
}

void DocumentPanels::showHistory()
{
    int mode = 1, unused = 0;
    QString no = m_key, none, recorder, key = m_definition.keyField, prefix = m_prefix, table = m_definition.table,
            cs = m_form->DataConnectionString();
    m_status->ShowDocumentStatus(mode, unused, no, none, recorder, key, prefix, table, cs);
}

} // namespace qd8
