#include "MemoForms.h"

#include "WorkbenchWindow.h"
#include "documents/DocumentHistory.h"
#include "foundation/Connection.h"
#include "foundation/DateText.h"
#include "foundation/DbError.h"
#include "foundation/Language.h"
#include "foundation/Recordset.h"
#include "foundation/Services.h"
#include "foundation/TransactionGuard.h"
#include "widgets/FormRegistry.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace qd8 {

MemoForm::MemoForm(Kind kind, QWidget* parent)
    : QDialog(parent)
    , m_kind(kind)
{
    const char* names[] = {"frmViewMemorandum", "frmMemorandum", "frmRemoveMemorandum", "frmSearchDocument"};
    const char* captions[] = {"Memorandum Dashboard", "Memorandum", "Remove Memorandom", "Search Document"};
    setObjectName(QLatin1String(names[int(kind)]));
    setWindowTitle(QLatin1String(captions[int(kind)]));
    auto* layout = new QVBoxLayout(this);
    if (kind == Kind::Dashboard) {
        m_list = new QTreeWidget(this);
        m_list->setObjectName(QStringLiteral("List1"));
        m_list->setRootIsDecorated(false);
        m_list->setHeaderLabels({word("เลขที่", "No"), word("วันที่", "Date"), word("ผู้บันทึก", "By"), word("เอกสาร", "Document"),
            word("ข้อความ", "Note")});
        layout->addWidget(m_list, 1);
    } else {
        auto* row = new QHBoxLayout;
        row->addWidget(new QLabel(kind == Kind::Removal ? word("เลขที่บันทึก", "Memorandum No") : word("เลขที่เอกสาร", "Document No"), this));
        m_text = new QLineEdit(this);
        m_text->setObjectName(QStringLiteral("Text4"));
        row->addWidget(m_text, 1);
        layout->addLayout(row);
        if (kind == Kind::Entry) {
            m_note = new QPlainTextEdit(this);
            m_note->setObjectName(QStringLiteral("txtNote"));
            layout->addWidget(m_note, 1);
        }
    }
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    if (kind != Kind::Dashboard) {
        m_select = new QPushButton(kind == Kind::Entry ? word("บันทึก", "Save") : kind == Kind::Removal ? word("ลบ", "Remove")
                                                                                                     : word("ค้นหา", "Search"),
            this);
        m_select->setObjectName(QStringLiteral("cmdSelect"));
        m_select->setDefault(true);
        connect(m_select, &QPushButton::clicked, this, [this] {
            if (select() && m_kind != Kind::Removal)
                accept();
        });
        buttons->addWidget(m_select);
    }
    m_close = new QPushButton(QStringLiteral("Close"), this);
    m_close->setObjectName(QStringLiteral("Command2"));
    connect(m_close, &QPushButton::clicked, this, &QDialog::reject);
    buttons->addWidget(m_close);
    layout->addLayout(buttons);
    resize(kind == Kind::Dashboard ? QSize(720, 420) : QSize(480, kind == Kind::Entry ? 260 : 120));
    reload();
}

const WorkbenchSession* MemoForm::session() const
{
    for (QWidget* w = parentWidget(); w; w = w->parentWidget())
        if (auto* window = qobject_cast<WorkbenchWindow*>(w))
            return &window->session();
    return nullptr;
}

QString MemoForm::word(const char* thai, const char* english) const
{
    const WorkbenchSession* s = session();
    return inLanguage(s ? s->languageId : 0, thai, english);
}

QList<DocumentPlace> MemoForm::documentPlaces()
{
    return {{QStringLiteral("QD8TPR"), QStringLiteral("TPRDNo"), QStringLiteral("DOCPR")},
        {QStringLiteral("QD8TPO"), QStringLiteral("TPODNo"), QStringLiteral("DOCPO")},
        {QStringLiteral("QD8TSO"), QStringLiteral("TSODNo"), QStringLiteral("DOCSO")},
        {QStringLiteral("QD8TARInvoice"), QStringLiteral("TIvoNo"), QStringLiteral("DOCINVOICE")},
        {QStringLiteral("QD8TInventory"), QStringLiteral("TInvNo"), QStringLiteral("DOCISSUE")},
        {QStringLiteral("QD8TGLTrans"), QStringLiteral("TGLTNo"), QStringLiteral("DOCGL")},
        {QStringLiteral("QD8TJob"), QStringLiteral("TJobNo"), QString()},
        {QStringLiteral("QD8TJobProduction"), QStringLiteral("TJPDNo"), QString()}};
}

DocumentPlace MemoForm::findDocument(const QString& connectionString, const QString& number)
{
    Connection data;
    data.open(connectionString);
    for (const DocumentPlace& place : documentPlaces()) {
        Recordset rs;
        rs.open(Sql("SELECT ") + place.keyField + " FROM " + place.table + " WHERE " + place.keyField + "=" + quoted(number), data);
        if (!rs.eof())
            return place;
    }
    return {};
}

void MemoForm::reload()
{
    const WorkbenchSession* s = session();
    if (!m_list || !s)
        return;
    m_list->clear();
    try {
        const DateEra era = DateLook::forLanguage(s->languageId).era;
        for (const HistoryEvent& memo : DocumentHistory::memos(s->dataConnectionString))
            new QTreeWidgetItem(m_list, {QString::number(memo.id), dateTimeText(memo.when, era), memo.by, memo.documentNo, memo.remark});
    } catch (const DbError& error) {
        Services::messages().critical(windowTitle(), error.userText(s->languageId));
    }
}

bool MemoForm::select()
{
    const WorkbenchSession* s = session();
    const QString typed = m_text ? m_text->text().trimmed() : QString();
    if (!s || typed.isEmpty())
        return false;
    auto& messages = Services::messages();
    try {
        if (m_kind == Kind::Removal) {
            bool isNumber = false;
            const qint64 id = typed.toLongLong(&isNumber);
            if (!isNumber || !messages.question(windowTitle(), word("ลบบันทึกเลขที่ %1 ?", "Remove memorandum %1?").arg(typed)))
                return false;
            if (!DocumentHistory::remove(s->dataConnectionString, id)) {
                messages.information(windowTitle(), word("ไม่พบบันทึกเลขที่ %1", "There is no memorandum %1").arg(typed));
                return false;
            }
            m_text->clear();
            return true;
        }
        const DocumentPlace place = findDocument(s->dataConnectionString, typed);
        if (place.isEmpty()) {
            messages.information(windowTitle(), word("ไม่พบเอกสารเลขที่ %1", "There is no document %1").arg(typed));
            return false;
        }
        if (m_kind == Kind::Entry) {
            const QString note = m_note->toPlainText().trimmed();
            if (note.isEmpty()) {
                messages.information(windowTitle(), word("กรุณาพิมพ์ข้อความ", "Type the note first"));
                return false;
            }
            Connection data;
            data.open(s->dataConnectionString);
            TransactionGuard transaction(data);
            DocumentHistory::record(data, nullptr, place.table, typed, DocumentHistory::Memo, s->loginName, QString(), note);
            transaction.commit();
            return true;
        }
        // Search: the document's own form, in view.
        auto* window = qobject_cast<WorkbenchWindow*>(parentWidget() ? parentWidget()->window() : nullptr);
        QWidget* form = window && !place.form.isEmpty() ? window->add(place.form) : nullptr;
        if (!form) {
            messages.information(windowTitle(), word("พบเลขที่ %1 ใน %2", "%1 is in %2").arg(typed, place.table));
            return true;
        }
        form->setProperty("RUNMODE", QStringLiteral("VIEW"));
        form->setProperty("DocNo", typed);
        QMetaObject::invokeMethod(form, "Setbuttons");
        QMetaObject::invokeMethod(form, "FillData");
        return true;
    } catch (const DbError& error) {
        messages.critical(windowTitle(), error.userText(s->languageId) + QLatin1Char('\n') + error.detail(s->languageId));
        return false;
    }
}

void registerMemoForms()
{
    const std::pair<QString, MemoForm::Kind> forms[] = {{QStringLiteral("MemoViewer"), MemoForm::Kind::Dashboard},
        {QStringLiteral("MemoEntry"), MemoForm::Kind::Entry}, {QStringLiteral("MemoRemoval"), MemoForm::Kind::Removal},
        {QStringLiteral("DocumentSearch"), MemoForm::Kind::Search}};
    for (const auto& [name, kind] : forms)
        FormRegistry::registerForm(name, [kind](QWidget* parent) { return new MemoForm(kind, parent); });
}

} // namespace qd8
