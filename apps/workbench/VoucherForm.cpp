#include "VoucherForm.h"

#include "DocumentPanels.h"
#include "accounting/GLControl.h"
#include "documents/DocumentHistory.h"
#include "foundation/Connection.h"
#include "foundation/DbError.h"
#include "foundation/Services.h"
#include "foundation/TransactionGuard.h"
#include "widgets/DateEdit.h"

#include <QScopeGuard>

#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace qd8 {

namespace {
// The general journal of the sample company: the book a new voucher starts in.
const QString DefaultBook = QStringLiteral("JV");
} // namespace

VoucherForm::VoucherForm(QWidget* parent)
    : HostedControl(parent)
    , m_gl(new GLControl(this))
    , m_date(new DateEdit(this))
    , m_reference(new QLineEdit(this))
    , m_dateLabel(new QLabel(this))
    , m_referenceLabel(new QLabel(this))
    , m_status(new QLabel(this))
    , m_save(new QPushButton(this))
    , m_close(new QPushButton(this))
{
    m_definition.title = QStringLiteral("บันทึกรายการบัญชีรายวัน");
    m_definition.title2 = QStringLiteral("Journal Voucher");
    m_definition.table = QStringLiteral("QD8TGLTrans");
    m_definition.keyField = QStringLiteral("TGLTNo");
    m_definition.numberPrefix = DefaultBook;
    m_definition.auditPrefix = QStringLiteral("TGLT");
    m_panels = new DocumentPanels(m_definition, this);
    m_reference->setObjectName(QStringLiteral("reference"));
    m_dateLabel->setBuddy(m_date);
    m_referenceLabel->setBuddy(m_reference);
    connect(m_panels, &DocumentPanels::changed, this, &VoucherForm::FillData);
    auto* top = new QHBoxLayout;
    for (QWidget* w : std::initializer_list<QWidget*>{m_dateLabel, m_date, m_referenceLabel, m_reference, m_save, m_close})
        top->addWidget(w);
    top->addStretch(1);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addWidget(m_gl, 2);
    layout->addWidget(m_panels, 1);
    layout->addWidget(m_status);
    connect(m_save, &QPushButton::clicked, this, &VoucherForm::save);
    connect(m_close, &QPushButton::clicked, this, &VoucherForm::CloseAction);
    retranslate();
}

VoucherForm::~VoucherForm() = default;

void VoucherForm::ensureSession()
{
    if (m_sessionGiven)
        return;
    m_gl->SetFirst(this, sharedDataObject(), sharedAppObject(), sharedClientObject(), {});
    m_date->setDateLook(DateLook::forLanguage(LanguageID()));
    m_panels->attach();
    m_sessionGiven = true;
    retranslate();
}

void VoucherForm::retranslate()
{
    m_panels->retranslate();
    m_dateLabel->setText(bilingual("วันที่", "Date"));
    m_referenceLabel->setText(bilingual("เลขที่อ้างอิง", "Reference"));
    m_save->setText(bilingual("บันทึก (Ctrl+S)", "Save (Ctrl+S)"));
    m_close->setText(bilingual("ปิด", "Close"));
}

void VoucherForm::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    HostedControl::changeEvent(event);
}

void VoucherForm::Setbuttons()
{
    ensureSession();
    const bool adding = m_mode == QLatin1String("ADD");
    const bool editing = adding || m_mode == QLatin1String("EDIT");
    m_gl->setRUNMODE(adding ? QString() : m_mode);
    m_date->setReadOnly(!editing);
    m_reference->setReadOnly(!editing);
    m_save->setVisible(editing);
    m_panels->setWritable(editing);
    if (adding) {
        m_panels->startNew(QString());
        m_loaded.clear();
        m_gl->ClearOldRecord();
        m_gl->setGLBook(DefaultBook);
        m_gl->setGLDocNo(m_newNumber);
        m_date->setDate(QDate::currentDate());
        m_reference->clear();
        m_status->clear();
    }
}

void VoucherForm::FillData()
{
    ensureSession();
    try {
        m_gl->FillData(m_number);
    } catch (const DbError& error) {
        Services::messages().critical(windowTitle(), error.userText(LanguageID()));
        return;
    }
    m_date->setDate(m_gl->GLDocDate());
    m_reference->setText(m_gl->loadedHeader(QStringLiteral("TGLTRefNo")).toString());
    m_loaded = shown();
    m_panels->load(m_number);
}

QVariantMap VoucherForm::shown() const
{
    QVariantMap fields{{QStringLiteral("TGLTDate"), m_date->date()}, {QStringLiteral("TGLTRefNo"), m_reference->text()},
        {QStringLiteral("TGLTDescription"), m_gl->Description()}};
    QStringList lines;
    for (const GLLine& line : m_gl->GETGLList())
        lines << line.account + QLatin1Char(' ') + line.debit.toString() + QLatin1Char('/') + line.credit.toString();
    fields.insert(QStringLiteral("TGTSLines"), lines.join(QStringLiteral(", ")));
    return fields;
}

bool VoucherForm::save()
{
    if (m_mode != QLatin1String("ADD") && m_mode != QLatin1String("EDIT"))
        return false;
    const QString title = bilingual("บันทึกรายการบัญชีรายวัน", "Journal Voucher");
    if (!m_date->isValid()) {
        m_date->setFocus();
        Services::messages().critical(title, bilingual("กรุณาระบุวันที่", "Please enter the date"));
        return false;
    }
    m_gl->setGLDocDate(m_date->date());
    const QString problem = m_gl->isReadyToSave();
    if (!problem.isEmpty()) {
        Services::messages().critical(title, problem);
        return false;
    }
    const bool adding = m_mode == QLatin1String("ADD");
    const QVariantMap now = shown();
    bool detailOnly = false;
    QString number;
    const OperationName operation(title + QStringLiteral(" - ") + (adding ? m_newNumber : m_number));
    try {
        // The voucher and its history event are kept or lost together.
        Connection data;
        data.open(DataConnectionString());
        TransactionGuard transaction(data);
        m_gl->setSaveConnection(&data);
        const auto detach = qScopeGuard([this] { m_gl->setSaveConnection(nullptr); });
        number = m_gl->UpdateGL8(m_date->date(), m_reference->text(), {}, {}, {}, this, m_gl->Description(), 0, {}, {}, {},
            adding ? m_newNumber : QString(), adding ? QString() : m_mode, {},
            m_gl->loadedHeader(QStringLiteral("TGLTRevision")).toInt(), 0, detailOnly);
        if (number.isEmpty())
            return false;
        m_panels->write(data, number, adding, adding ? QString() : DocumentHistory::changes(m_loaded, now));
        transaction.commit();
    } catch (const DbError& error) {
        m_gl->saveRolledBack();
        Services::messages().critical(title, error.userText(LanguageID()));
        return false;
    }
    m_number = number;
    m_mode = QStringLiteral("EDIT");
    m_gl->setRUNMODE(m_mode);
    m_loaded = now;
    m_panels->load(number);
    m_status->setText(bilingual("บันทึกแล้ว เลขที่ %1", "Saved as %1").arg(number));
    setWindowTitle(title + QStringLiteral(" - ") + number);
    Q_EMIT Saved(number);
    return true;
}

void VoucherForm::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Save)) {
        save();
        return;
    }
    if (event->key() == Qt::Key_Escape) {
        Q_EMIT CloseAction();
        return;
    }
    HostedControl::keyPressEvent(event);
}

} // namespace qd8
