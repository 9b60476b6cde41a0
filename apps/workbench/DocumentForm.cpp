#include "DocumentForm.h"

#include "DocumentAttachments.h"
#include "DocumentPanels.h"
#include "ListPrinter.h"
#include "accounting/CreditLimit.h"
#include "accounting/GLControl.h"
#include "accounting/PointControl.h"
#include "attachments/ClientCapture.h"
#include "attachments/HardCopyScan.h"
#include "database/ClientObject.h"
#include "documents/DocumentHistory.h"
#include "database/ListService.h"
#include "database/SessionFunctions.h"
#include "database/SessionServices.h"
#include "foundation/Backend.h"
#include "foundation/Connection.h"
#include "foundation/DbError.h"
#include "foundation/Recordset.h"
#include "foundation/Services.h"
#include "foundation/TransactionGuard.h"
#include "foundation/Values.h"
#include "widgets/DateEdit.h"
#include "widgets/EditorShortcuts_p.h"

#include <QCheckBox>
#include <QDate>
#include <QDateTime>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <optional>

namespace qd8 {

namespace {

constexpr int NumberDigits = 7;  // document numbers: the prefix and seven digits

QString withoutSeparators(const QString& text)
{
    QString plain = text.trimmed();
    plain.remove(QLatin1Char(','));
    return plain;
}

// Thousands separators and at least two decimals; every stored decimal stays.
QString shownMoney(const Currency& amount)
{
    QString digits = amount.toString();
    const bool negative = digits.startsWith(QLatin1Char('-'));
    if (negative)
        digits.remove(0, 1);
    QString whole = digits.section(QLatin1Char('.'), 0, 0);
    QString fraction = digits.section(QLatin1Char('.'), 1);
    while (fraction.size() < 2)
        fraction += QLatin1Char('0');
    for (qsizetype at = whole.size() - 3; at > 0; at -= 3)
        whole.insert(at, QLatin1Char(','));
    return (negative ? QStringLiteral("-") : QString()) + whole + QLatin1Char('.') + fraction;
}

// `percent` per cent of an amount, rounded half away from zero to whole satang.
Currency percentOf(Currency amount, int percent)
{
    constexpr int64_t Divisor = 100 * (Currency::Scale / 100);  // per cent, and four decimals to two
    const int64_t scaled = amount.raw() * percent;
    const int64_t satang = (scaled + (scaled >= 0 ? Divisor / 2 : -Divisor / 2)) / Divisor;
    return Currency::fromRaw(satang * (Currency::Scale / 100));
}

std::optional<QVariant> typedNumber(const QString& text)
{
    const QString plain = withoutSeparators(text);
    bool ok = false;
    const qlonglong whole = plain.toLongLong(&ok);
    if (ok)
        return QVariant(whole);
    const double value = plain.toDouble(&ok);
    return ok ? std::optional<QVariant>(value) : std::nullopt;
}

// The number after `last`: its trailing digits counted up, their width kept.
QString numberAfter(const QString& last)
{
    qsizetype start = last.size();
    while (start > 0 && last.at(start - 1).isDigit())
        --start;
    const QString digits = last.mid(start);
    if (digits.isEmpty())
        return last + QString::number(1).rightJustified(NumberDigits, QLatin1Char('0'));
    return last.left(start) + QString::number(digits.toLongLong() + 1).rightJustified(digits.size(), QLatin1Char('0'));
}

} // namespace

DocumentField DocumentField::text(const QString& field, const QString& caption, const QString& caption2)
{
    DocumentField f;
    f.field = field;
    f.caption = caption;
    f.caption2 = caption2;
    return f;
}

DocumentField DocumentField::date(const QString& field, const QString& caption, const QString& caption2)
{
    DocumentField f = text(field, caption, caption2);
    f.kind = Kind::Date;
    return f;
}

DocumentField DocumentField::number(const QString& field, const QString& caption, const QString& caption2)
{
    DocumentField f = text(field, caption, caption2);
    f.kind = Kind::Number;
    return f;
}

DocumentField DocumentField::money(const QString& field, const QString& caption, const QString& caption2)
{
    DocumentField f = text(field, caption, caption2);
    f.kind = Kind::Money;
    return f;
}

DocumentField DocumentField::status(const QString& field, const QString& caption, const QString& caption2)
{
    DocumentField f = text(field, caption, caption2);
    f.kind = Kind::Status;
    f.readOnly = true;
    return f;
}

DocumentField DocumentField::code(const QString& field, const QString& caption, const QString& caption2, const QString& table,
    const QString& key, const QString& name)
{
    DocumentField f = text(field, caption, caption2);
    f.kind = Kind::Code;
    f.pickTable = table;
    f.pickKey = key;
    f.pickName = name;
    return f;
}

DocumentField DocumentField::branch(const QString& field)
{
    DocumentField f = code(field, QStringLiteral("สาขา"), QStringLiteral("Branch"), QStringLiteral("QD8TBranch"), QStringLiteral("TBraCode"),
        QStringLiteral("TBraName{N}"));
    f.pickWhere = QStringLiteral("TBraFlag1=1 ORDER BY TBraSort");
    return f.startsAs(Initial::UserBranch);
}

DocumentField DocumentField::project(const QString& field)
{
    DocumentField f = code(field, QStringLiteral("โครงการ"), QStringLiteral("Project"), QStringLiteral("QD8TProject"), QStringLiteral("TPrjCode"),
        QStringLiteral("TPrjName{N}"));
    f.pickWhere = QStringLiteral("TPrjFlag1=1 ORDER BY TPrjCode");
    return f.startsAs(Initial::UserProject);
}

DocumentField DocumentField::customer(const QString& field)
{
    DocumentField f = code(field, QStringLiteral("ลูกค้า"), QStringLiteral("Customer"), QStringLiteral("QD8TAR"), QStringLiteral("TARNCode"),
        QStringLiteral("TARNName{N}"));
    f.pickWhere = QStringLiteral("TARNFlag1=1 AND TARNActiveStatus=1 ORDER BY TARNCode");
    return f;
}

DocumentField DocumentField::supplier(const QString& field)
{
    DocumentField f = code(field, QStringLiteral("ผู้จำหน่าย"), QStringLiteral("Supplier"), QStringLiteral("QD8TAP"), QStringLiteral("TAPNCode"),
        QStringLiteral("TAPNName{N}"));
    f.pickWhere = QStringLiteral("TAPNFlag1=1 AND TAPNActiveStatus=1 ORDER BY TAPNCode");
    return f;
}

DocumentField DocumentField::employee(const QString& field, const QString& caption, const QString& caption2)
{
    DocumentField f = code(field, caption, caption2, QStringLiteral("QD8TEmployee"), QStringLiteral("TEmpCode"), QStringLiteral("TEmpFullName{N}"));
    f.pickWhere = QStringLiteral("TEmpFlag1=1 AND TEmpActiveStatus=1 ORDER BY TEmpCode");
    return f;
}

DocumentField DocumentField::division(const QString& field)
{
    DocumentField f = code(field, QStringLiteral("ฝ่าย"), QStringLiteral("Division"), QStringLiteral("QD8TDivision"), QStringLiteral("TDivCode"),
        QStringLiteral("TDivName{N}"));
    f.pickWhere = QStringLiteral("TDivFlag1=1 ORDER BY TDivSort");
    return f;
}

DocumentDefinition& DocumentDefinition::withWorkflowStatuses(const QString& prefix)
{
    fields << DocumentField::status(prefix + QStringLiteral("ConfirmStatus"), QStringLiteral("ยืนยันแล้ว"), QStringLiteral("Confirmed"))
           << DocumentField::status(prefix + QStringLiteral("ApproveStatus"), QStringLiteral("อนุมัติแล้ว"), QStringLiteral("Approved"))
           << DocumentField::status(prefix + QStringLiteral("CancelStatus"), QStringLiteral("ยกเลิกแล้ว"), QStringLiteral("Cancelled"));
    return *this;
}

DocumentForm::DocumentForm(const DocumentDefinition& definition, QWidget* parent)
    : HostedControl(parent)
    , m_definition(definition)
    , m_title(new QLabel(this))
    , m_modeLabel(new QLabel(this))
    , m_status(new QLabel(this))
    , m_toolBar(new QHBoxLayout)
{
    m_title->setObjectName(QStringLiteral("title"));
    m_title->setStyleSheet(QStringLiteral("font-weight: bold; font-size: 12pt"));
    m_modeLabel->setObjectName(QStringLiteral("mode"));
    m_modeLabel->setStyleSheet(QStringLiteral("font-style: italic; color: palette(dark); padding: 2px 8px"));  // a word, not a button
    m_status->setObjectName(QStringLiteral("status"));
    m_toolBar->addWidget(m_status, 1);
    addCommand(QStringLiteral("Add"), "เพิ่ม", "Add", [this] { addNew(); });
    addCommand(QStringLiteral("Edit"), "แก้ไข", "Edit", [this] { editShown(); });
    m_save = addCommand(QStringLiteral("Update"), "บันทึก", "Save", [this] { save(); });
    addCommand(QStringLiteral("Delete"), "ลบ", "Delete", [this] { deleteShown(); });
    addCommand(QStringLiteral("Print"), "พิมพ์", "Print", [this] { print(); });
    m_close = addCommand(QStringLiteral("Cancel"), "ปิด", "Close", [this] { requestClose(); });
    m_save->setObjectName(QStringLiteral("save"));
    m_close->setObjectName(QStringLiteral("close"));

    auto* header = new QHBoxLayout;
    header->addWidget(m_title, 1);
    header->addWidget(m_modeLabel);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(header);
    if (!m_definition.sales.isEmpty()) {
        m_sales = new DocumentSales(m_definition.sales, *this);
        connect(m_sales, &DocumentSales::saveRequested, this, [this] { save(); });
    }
    // The fields, the credit panel beside them, the point panel under them.
    auto* fieldsColumn = new QVBoxLayout;
    buildEntries(fieldsColumn);
    auto* body = new QHBoxLayout;
    body->addLayout(fieldsColumn, 1);
    if (m_sales)
        body->addWidget(m_sales->credit(), 0, Qt::AlignTop);
    layout->addLayout(body);
    if (m_sales)
        layout->addWidget(m_sales->points());
    if (!m_definition.isMaster()) {
        m_attachments = new DocumentAttachments(*this, m_definition.table, new HardCopyScan(this));
        m_toolBar->insertWidget(0, m_attachments->strip());
        m_toolBar->insertWidget(1, m_attachments->capture());
    }
    if (!m_definition.posting.isEmpty()) {
        m_voucher = std::make_unique<DocumentVoucher>(m_definition.posting, new GLControl(this));
        layout->addWidget(m_voucher->panel(), 1);
    } else if (!DocumentPanels::wanted(m_definition)) {
        layout->addStretch(1);
    }
    if (DocumentPanels::wanted(m_definition)) {
        m_panels = new DocumentPanels(m_definition, this);
        layout->addWidget(m_panels, 1);
        connect(m_panels, &DocumentPanels::changed, this, [this] { FillData(); });
    }
    layout->addLayout(m_toolBar);
    Setbuttons();
}

DocumentForm::~DocumentForm() = default;

QPushButton* DocumentForm::addCommand(const QString& key, const char* thai, const char* english, std::function<void()> run)
{
    auto* button = new QPushButton(this);
    button->setObjectName(key.toLower());
    button->setAutoDefault(true);  // Enter on a focused button presses it, as on the fields it moves on
    registerToolButton(key, button);
    connect(button, &QPushButton::clicked, this, [run] { run(); });
    m_toolBar->addWidget(button);
    m_commands.append({key, thai, english, button, std::move(run)});
    return button;
}

void DocumentForm::buildEntries(QVBoxLayout* layout)
{
    auto* grid = new QGridLayout;
    grid->setColumnStretch(2, 1);
    auto* flags = new QHBoxLayout;
    DocumentField key = DocumentField::text(m_definition.keyField, m_definition.keyCaption, m_definition.keyCaption2).mandatory();
    QList<DocumentField> fields{key};
    fields << m_definition.fields;
    int row = 0;
    for (const DocumentField& field : fields) {
        addEntry(field);
        Entry& entry = m_entries.last();
        if (entry.check) {
            flags->addWidget(entry.check);
            continue;
        }
        grid->addWidget(entry.label, row, 0);
        grid->addWidget(entry.box, row, 1);
        if (entry.name)
            grid->addWidget(entry.name, row, 2);
        ++row;
    }
    flags->addStretch(1);
    layout->addLayout(grid);
    layout->addLayout(flags);
}

void DocumentForm::addEntry(const DocumentField& field)
{
    Entry entry;
    entry.field = field;
    if (field.kind == DocumentField::Kind::Status) {
        entry.check = new QCheckBox(this);
        entry.check->setObjectName(field.field);
        entry.check->setEnabled(false);  // the workflow sets it, never the form
        m_entries << entry;
        return;
    }
    entry.label = new QLabel(this);
    entry.box = field.kind == DocumentField::Kind::Date ? new DateEdit(this) : new QLineEdit(this);
    entry.box->setObjectName(field.field);
    entry.label->setBuddy(entry.box);
    entry.box->installEventFilter(this);
    const bool wide = field.kind == DocumentField::Kind::Text && field.field != m_definition.keyField;
    entry.box->setMinimumWidth(wide ? 360 : 160);
    if (field.kind == DocumentField::Kind::Number || field.kind == DocumentField::Kind::Money) {
        entry.box->setAlignment(Qt::AlignRight);
        connect(entry.box, &QLineEdit::textEdited, this, [this, name = field.field] { fieldEdited(name); });
    }
    if (field.kind == DocumentField::Kind::Code) {
        entry.name = new QLabel(this);
        entry.name->setObjectName(field.field + QStringLiteral("Name"));
        QLineEdit* box = entry.box;
        connect(box, &QLineEdit::editingFinished, this, [this, box] {
            for (Entry& e : m_entries)
                if (e.box == box)
                    showName(e);
        });
    }
    m_entries << entry;
}

QString DocumentForm::pickName(const DocumentField& field) const
{
    return QString(field.pickName).replace(QStringLiteral("{N}"), nameSuffix());
}

QString DocumentForm::shownCaption(const DocumentField& field) const
{
    return isThai(LanguageID()) || field.caption2.isEmpty() ? field.caption : field.caption2;
}

void DocumentForm::retranslate()
{
    // Embedded controls follow the form's language by themselves (HostedControl); the
    // panels' own tabs and buttons are worded here.
    if (m_panels)
        m_panels->retranslate();
    const QString title = inLanguage(LanguageID(), m_definition.title, m_definition.title2);
    m_title->setText(title);
    m_title->setAccessibleName(title);
    const QString mode = adding() ? bilingual("เพิ่ม", "Add") : editing() ? bilingual("แก้ไข", "Edit") : bilingual("ดู", "View");
    m_modeLabel->setText(mode);
    m_modeLabel->setAccessibleName(bilingual("โหมด", "Mode"));
    m_status->setAccessibleName(bilingual("สถานะ", "Status"));
    for (const Command& c : m_commands) {
        const QString caption = bilingual(c.thai, c.english);
        c.button->setText(withShortcut(caption, editorShortcut(c.key)));
        c.button->setAccessibleName(caption);
        c.button->setToolTip(c.button->text());
    }
    m_dateLook = DbSessionFunctions::userDateLook(UserID(), LanguageID(), DataConnectionString());
    for (Entry& entry : m_entries) {
        if (auto* date = qobject_cast<DateEdit*>(entry.box))
            date->setDateLook(m_dateLook);
        const QString caption = shownCaption(entry.field);
        if (entry.check) {
            entry.check->setText(caption);
            entry.check->setAccessibleName(caption);
            continue;
        }
        entry.label->setText(caption);
        entry.box->setAccessibleName(caption);
        if (entry.name) {
            entry.box->setToolTip(bilingual("F2 เลือกจากรายการ", "F2 picks from a list"));
            entry.name->setAccessibleName(caption + bilingual(" ชื่อ", " name"));
        }
    }
}

void DocumentForm::setRUNMODE(const QString& mode)
{
    const QString upper = mode.trimmed().toUpper();
    const QString next = upper == QLatin1String("ADD") || upper == QLatin1String("EDIT") ? upper : QStringLiteral("VIEW");
    if (next == QLatin1String("ADD") && m_mode != next)
        m_started = false;
    m_mode = next;
}

void DocumentForm::setNewKey(const QString& key)
{
    m_newKey = key.trimmed();
    if (!adding() || !m_started || m_newKey.isEmpty())
        return;
    keyBox()->setText(m_newKey);
    m_entries.first().clean = m_newKey;
    m_proposed.clear();
}

void DocumentForm::Setbuttons()
{
    retranslate();
    if (m_voucher)
        m_voucher->attach(*this);
    if (m_sales)
        m_sales->attach(m_mode);
    if (m_panels)
        m_panels->attach();
    if (adding() && !m_started)
        startNew();
    const bool writable = adding() || editing();
    for (Entry& entry : m_entries) {
        if (!entry.box)
            continue;
        const bool isKey = entry.field.field == m_definition.keyField;
        entry.box->setReadOnly(!writable || entry.field.readOnly || !entry.field.sumOf.isEmpty() || (isKey && !adding()));
    }
    if (m_panels)
        m_panels->setWritable(writable);
    // Disabled, never hidden: the buttons keep their places in every mode.
    const bool shown = m_loaded && !writable;
    const QHash<QString, bool> allowed{{QStringLiteral("Add"), !DataConnectionString().isEmpty()}, {QStringLiteral("Edit"), shown},
        {QStringLiteral("Update"), writable}, {QStringLiteral("Delete"), m_loaded && !adding()}, {QStringLiteral("Print"), m_loaded && !adding()},
        {QStringLiteral("Cancel"), true}};
    for (const Command& c : m_commands) {
        const bool granted = !permission() || !PermissionObject::ToolBarKeys.contains(c.key) || permission()->right(c.key) != 0;
        c.button->setEnabled(allowed.value(c.key, true) && granted);
    }
    if (m_attachments)
        m_attachments->setDocument(adding() ? QString() : m_key, writable);
    focusFirst();
}

void DocumentForm::FillData()
{
    retranslate();
    if (m_voucher)
        m_voucher->attach(*this);
    if (m_panels)
        m_panels->attach();
    if (adding())
        startNew();
    else
        loadRow();
    Setbuttons();
}

void DocumentForm::changeEvent(QEvent* event)
{
    // Labels and names follow a language switch at once, even while a clerk types.
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    HostedControl::changeEvent(event);
}

void DocumentForm::Refresh()
{
    retranslate();
    // A row only looked at is read again (dates and names in the new language); what a
    // clerk is typing stays as it is.
    if (!adding() && !editing() && m_loaded) {
        loadRow();
        return;
    }
    for (Entry& entry : m_entries)
        showName(entry);
}

QString DocumentForm::caption() const
{
    const QString title = inLanguage(LanguageID(), m_definition.title, m_definition.title2);
    const QString key = keyBox()->text().trimmed();
    return title + QStringLiteral(" - ") + (key.isEmpty() ? bilingual("เพิ่ม", "New") : key);
}

QLineEdit* DocumentForm::box(const QString& field) const
{
    for (const Entry& entry : m_entries)
        if (entry.field.field.compare(field, Qt::CaseInsensitive) == 0)
            return entry.box;
    return nullptr;
}

QCheckBox* DocumentForm::statusBox(const QString& field) const
{
    for (const Entry& entry : m_entries)
        if (entry.field.field.compare(field, Qt::CaseInsensitive) == 0)
            return entry.check;
    return nullptr;
}

void DocumentForm::clearEntries()
{
    for (Entry& entry : m_entries) {
        if (entry.box)
            entry.box->clear();
        if (entry.check)
            entry.check->setChecked(false);
        if (entry.name)
            entry.name->clear();
    }
    m_row.clear();
    m_loaded = false;
}

void DocumentForm::markClean()
{
    for (Entry& entry : m_entries)
        if (entry.box)
            entry.clean = entry.box->text();
}

bool DocumentForm::hasChanges() const
{
    if (!adding() && !editing())
        return false;
    for (const Entry& entry : m_entries)
        if (entry.box && entry.box->text() != entry.clean)
            return true;
    return false;
}

QString DocumentForm::defaultProject() const
{
    // The user's own project ("DefaultUserProject"), which his document lists start with.
    if (DataConnectionString().isEmpty())
        return {};
    try {
        return DbSessionFunctions::userSettingText(UserID(), QStringLiteral("DefaultUserProject"), DataConnectionString()).trimmed();
    } catch (const DbError&) {
        return {};  // no default: the clerk types the project
    }
}

void DocumentForm::startNew()
{
    clearEntries();
    m_proposed.clear();
    const QString branch = clientObject() ? clientObject()->branchCode() : QString();
    for (Entry& entry : m_entries) {
        if (entry.field.initial == DocumentField::Initial::Today)
            entry.box->setText(dateText(QDate::currentDate(), m_dateLook.era));
        else if (entry.field.initial == DocumentField::Initial::UserBranch)
            entry.box->setText(branch);
        else if (entry.field.initial == DocumentField::Initial::UserProject)
            entry.box->setText(defaultProject());
        showName(entry);
    }
    QString key = m_newKey;
    if (key.isEmpty() && !m_definition.isMaster() && !DataConnectionString().isEmpty()) {
        try {
            Connection data;
            data.open(DataConnectionString());
            key = m_proposed = proposeNumber(data);
        } catch (const DbError& error) {
            Services::messages().critical(m_title->text(), error.report(LanguageID()));
        }
    }
    keyBox()->setText(key);
    if (m_panels)
        m_panels->startNew(m_definition.fixedOnAdd.value(m_definition.auditPrefix + QStringLiteral("TCodAlias")));
    if (m_voucher)
        m_voucher->startNew();
    if (m_sales)
        m_sales->startNew();
    markClean();
    m_started = true;
}

QString DocumentForm::proposeNumber(Connection& data) const
{
    // Numbers are the prefix and a fixed run of digits; other keys of the table are left out.
    const QString& prefix = m_definition.numberPrefix;
    const QString& key = m_definition.keyField;
    Recordset rs;
    rs.open(Sql("SELECT MAX(") + key + ") AS LastNo FROM " + m_definition.table + " WHERE " + key + " LIKE "
            + quoted(prefix + QString(NumberDigits, QLatin1Char('_'))) + " AND " + key + " BETWEEN "
            + quoted(prefix + QString(NumberDigits, QLatin1Char('0'))) + " AND " + quoted(prefix + QString(NumberDigits, QLatin1Char('9'))),
        data);
    const QString last = rs.eof() ? QString() : qd8::text(rs.field(0));
    return last.isEmpty() ? prefix + QString::number(1).rightJustified(NumberDigits, QLatin1Char('0')) : numberAfter(last);
}

void DocumentForm::loadRow()
{
    clearEntries();
    const QString key = m_key.isEmpty() ? m_newKey : m_key;
    m_key = key;
    if (key.isEmpty()) {
        markClean();
        return;
    }
    try {
        Connection data;
        data.open(DataConnectionString());
        Recordset rs;
        rs.open(Sql("SELECT * FROM ") + m_definition.table + " WHERE " + m_definition.keyField + "=" + quoted(key), data);
        if (rs.eof()) {
            keyBox()->setText(key);
            Services::messages().critical(m_title->text(), bilingual("ไม่พบ %1 %2", "%1 %2 was not found").arg(shownCaption(m_entries.first().field), key));
        } else {
            showRow(rs);
            if (m_panels)
                m_panels->load(key);
        }
    } catch (const DbError& error) {
        Services::messages().critical(m_title->text(), error.report(LanguageID()));
    }
    markClean();
}

void DocumentForm::showRow(const Recordset& rs)
{
    for (int column = 0; column < rs.fieldCount(); ++column)
        m_row.insert(rs.fieldName(column).toLower(), rs.field(column));
    for (Entry& entry : m_entries) {
        const QVariant value = rs.field(entry.field.field);
        if (entry.check) {
            entry.check->setChecked(toNumber(value) != 0);
            continue;
        }
        switch (entry.field.kind) {
        case DocumentField::Kind::Date:
            entry.box->setText(dateText(value.toDate(), m_dateLook.era));
            break;
        case DocumentField::Kind::Money:
            entry.box->setText(value.isNull() ? QString() : shownMoney(toCurrency(value)));
            break;
        default:
            entry.box->setText(qd8::text(value));
        }
        showName(entry);
    }
    if (m_voucher)
        m_voucher->load(qd8::text(rs.field(m_definition.posting.voucherField)));
    if (m_sales)
        m_sales->load(m_key, qd8::text(rs.field(m_definition.sales.pointField)));
    m_loaded = true;
}

void DocumentForm::showName(Entry& entry)
{
    if (!entry.name)
        return;
    const QString code = entry.box->text().trimmed();
    if (m_sales && entry.field.field == m_definition.sales.customerField)
        m_sales->customerChanged(code);
    entry.name->clear();
    if (code.isEmpty() || code.contains(QLatin1Char('\'')) || DataConnectionString().isEmpty())
        return;
    try {
        const QVariant name = SessionServices::listService().LookupValue(QVariant(), entry.field.pickKey, code, pickName(entry.field),
            entry.field.pickTable, DataConnectionString());
        entry.name->setText(name.isValid() ? qd8::text(name) : bilingual("ไม่พบรหัสนี้", "Unknown code"));
    } catch (const DbError&) {
        entry.name->clear();  // a name is a help only; the code is checked when saving
    }
}

void DocumentForm::pick(Entry& entry)
{
    if (entry.box->isReadOnly())
        return;
    const DocumentField& f = entry.field;
    const QString source = f.pickWhere.isEmpty() ? f.pickTable : f.pickTable + QStringLiteral(" WHERE ") + f.pickWhere;
    QString code;
    try {
        code = SessionServices::listService().PickFromList(shownCaption(f), f.pickKey, f.pickKey + QLatin1Char(',') + pickName(f),
            bilingual("รหัส,ชื่อ", "Code,Name"), QStringLiteral("1800,5000"), QStringLiteral("0,0"), source, DataConnectionString(), 0, 0, 0, 1, 0, 0);
    } catch (const DbError& error) {
        Services::messages().critical(shownCaption(f), error.report(LanguageID()));
        return;
    }
    if (code.isEmpty())
        return;
    entry.box->setText(code);
    showName(entry);
    focusAfter(entry.box);
}

void DocumentForm::focusFirst()
{
    if (!adding() && !editing()) {
        m_close->setFocus();
        return;
    }
    for (const Entry& entry : m_entries)
        if (entry.box && !entry.box->isReadOnly()) {
            entry.box->setFocus();
            entry.box->selectAll();
            return;
        }
    m_save->setFocus();
}

void DocumentForm::focusAfter(QObject* from)
{
    qsizetype at = 0;
    while (at < m_entries.size() && m_entries[at].box != from)
        ++at;
    for (qsizetype next = at + 1; next < m_entries.size(); ++next) {
        QLineEdit* box = m_entries[next].box;
        if (box && !box->isReadOnly()) {
            box->setFocus();
            box->selectAll();
            return;
        }
    }
    (m_save->isEnabled() ? m_save : m_close)->setFocus();
}

bool DocumentForm::handleKey(QKeyEvent* event, QObject* from)
{
    const int key = event->key();
    const QKeySequence pressed(event->keyCombination());
    for (const Command& c : m_commands)
        if (pressed == editorShortcut(c.key)) {
            if (c.button->isEnabled())
                c.run();
            return true;
        }
    for (Entry& entry : m_entries) {
        if (entry.box != from)
            continue;
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            focusAfter(from);
            return true;
        }
        if (key == Qt::Key_F2 && entry.name) {
            pick(entry);
            return true;
        }
    }
    return false;
}

bool DocumentForm::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress && handleKey(static_cast<QKeyEvent*>(event), watched))
        return true;
    return HostedControl::eventFilter(watched, event);
}

void DocumentForm::keyPressEvent(QKeyEvent* event)
{
    if (!handleKey(event, nullptr))
        HostedControl::keyPressEvent(event);
}

void DocumentForm::requestClose()
{
    if (!confirmClose(m_title->text()))
        return;
    markClean();  // saved or given up: the host has nothing left to ask about
    Q_EMIT CloseAction();
    if (isWindow())
        close();
}

QString DocumentForm::problem() const
{
    for (const Entry& entry : m_entries) {
        if (!entry.box || (entry.field.readOnly && entry.field.field != m_definition.keyField))
            continue;
        const QString typed = entry.box->text().trimmed();
        const QString caption = shownCaption(entry.field);
        if (typed.isEmpty()) {
            if (entry.field.required)
                return bilingual("กรุณาระบุ %1", "Please enter %1").arg(caption);
            continue;
        }
        const bool composed = entry.field.kind == DocumentField::Kind::Code || entry.field.field == m_definition.keyField;
        if (composed && typed.contains(QLatin1Char('\'')))
            return bilingual("%1 ต้องไม่มีเครื่องหมาย '", "%1 must not contain '").arg(caption);
        if (entry.field.kind == DocumentField::Kind::Date && !parseDate(typed, m_dateLook.era))
            return bilingual("%1: วันที่ไม่ถูกต้อง (%2) %3", "%1: not a date (%2) %3").arg(caption, datePattern(LanguageID()), typed);
        if (entry.field.kind == DocumentField::Kind::Number && !typedNumber(typed))
            return bilingual("%1: ตัวเลขไม่ถูกต้อง %2", "%1: not a number %2").arg(caption, typed);
        if (entry.field.kind == DocumentField::Kind::Money && !Currency::parse(withoutSeparators(typed)))
            return bilingual("%1: จำนวนเงินไม่ถูกต้อง %2", "%1: not an amount %2").arg(caption, typed);
    }
    return {};
}

Currency DocumentForm::amountOf(const QString& field) const
{
    const QLineEdit* edit = box(field);
    return edit ? Currency::parse(withoutSeparators(edit->text())).value_or(Currency()) : Currency();
}

QString DocumentForm::textOf(const QString& field) const
{
    const QLineEdit* edit = box(field);
    return edit ? edit->text().trimmed() : QString();
}

void DocumentForm::fieldEdited(const QString& field)
{
    for (Entry& entry : m_entries)
        if (entry.field.percentOf == field)
            entry.box->setText(shownMoney(percentOf(amountOf(field), entry.field.percent)));
    for (Entry& entry : m_entries) {
        if (entry.field.sumOf.isEmpty())
            continue;
        Currency total;
        for (const QString& part : entry.field.sumOf)
            total += amountOf(part);
        entry.box->setText(shownMoney(total));
    }
    refillVoucher();
}

void DocumentForm::refillVoucher()
{
    if (!m_voucher)
        return;
    QList<Currency> amounts;
    for (const QString& field : m_definition.posting.amountFields)
        amounts << amountOf(field);
    m_voucher->refill(amounts);
}

void DocumentForm::postVoucher(Connection& data, const QString& key)
{
    const QString stem = m_definition.auditPrefix;
    VoucherHeader header;
    header.date = parseDate(textOf(stem + QStringLiteral("Date")), m_dateLook.era).value_or(QDate::currentDate());
    header.documentNo = key;
    header.description = textOf(stem + QStringLiteral("Description"));
    header.branch = textOf(stem + QStringLiteral("TBraCode"));
    header.project = textOf(stem + QStringLiteral("TPrjCode"));
    header.customer = textOf(m_definition.posting.customerField);
    header.supplier = textOf(m_definition.posting.supplierField);
    const QString number = m_voucher->post(data, header);
    data.execute(Sql("UPDATE ") + m_definition.table + " SET " + m_definition.posting.voucherField + "=" + quoted(number) + " WHERE "
        + m_definition.keyField + "=" + quoted(key));
}

QString DocumentForm::missingCode(Connection& data) const
{
    for (const Entry& entry : m_entries) {
        if (entry.field.kind != DocumentField::Kind::Code || entry.box->isReadOnly() || entry.box->text() == entry.clean)
            continue;
        const QString code = entry.box->text().trimmed();
        if (code.isEmpty())
            continue;
        Recordset rs;
        rs.open(Sql("SELECT ") + entry.field.pickKey + " FROM " + entry.field.pickTable + " WHERE " + entry.field.pickKey + "=" + quoted(code),
            data);
        if (rs.eof())
            return bilingual("ไม่พบ%1 %2", "There is no %1 %2").arg(shownCaption(entry.field), code);
    }
    return {};
}

QVariant DocumentForm::storedValue(const Entry& entry) const
{
    const QString typed = entry.box->text().trimmed();
    if (typed.isEmpty())
        return {};
    switch (entry.field.kind) {
    case DocumentField::Kind::Date:
        return parseDate(typed, m_dateLook.era).value_or(QDate());
    case DocumentField::Kind::Number:
        return typedNumber(typed).value_or(QVariant());
    case DocumentField::Kind::Money:
        if (const auto amount = Currency::parse(withoutSeparators(typed)))
            return QVariant::fromValue(*amount);
        return {};
    default:
        return typed;
    }
}

void DocumentForm::setAudit(Recordset& rs, const char* by, const char* at) const
{
    if (m_definition.auditPrefix.isEmpty())
        return;
    const QString byField = m_definition.auditPrefix + QLatin1String(by);
    const QString atField = m_definition.auditPrefix + QLatin1String(at);
    if (rs.fieldIndex(byField) >= 0)
        rs.setField(byField, UserLoginName());
    if (rs.fieldIndex(atField) >= 0)
        rs.setField(atField, QDateTime::currentDateTime());
}

QString DocumentForm::writeNew(Connection& data, const QString& typedKey)
{
    QString key = typedKey;
    const auto rowOf = [&](const QString& value) {
        Recordset rs;
        rs.open(Sql("SELECT * FROM ") + m_definition.table + " WHERE " + m_definition.keyField + "=" + quoted(value), data,
            Recordset::adOpenKeyset, Recordset::adLockOptimistic);
        return rs;
    };
    Recordset rs = rowOf(key);
    // Someone else saved under the number this form proposed: the next one is taken.
    if (!rs.eof() && !m_proposed.isEmpty() && key == m_proposed) {
        key = proposeNumber(data);
        rs = rowOf(key);
    }
    if (!rs.eof())
        throw DbError(DbError::Kind::Conflict,
            bilingual("%1 %2 มีอยู่แล้ว บันทึกซ้ำไม่ได้", "%1 %2 already exists and cannot be added again").arg(shownCaption(m_entries.first().field), key));
    rs.addNew();
    rs.setField(m_definition.keyField, key);
    for (const Entry& entry : m_entries) {
        if (!entry.box || entry.field.readOnly || entry.field.field == m_definition.keyField)
            continue;
        const QVariant value = storedValue(entry);
        if (value.isNull())
            continue;
        rs.setField(entry.field.field, value);
        for (auto copy = m_definition.copiedOnAdd.cbegin(); copy != m_definition.copiedOnAdd.cend(); ++copy)
            if (copy.value() == entry.field.field)
                rs.setField(copy.key(), value);
    }
    for (auto fixed = m_definition.fixedOnAdd.cbegin(); fixed != m_definition.fixedOnAdd.cend(); ++fixed)
        rs.setField(fixed.key(), fixed.value());
    setAudit(rs, "CreateBy", "CreateDate");
    rs.update();
    return key;
}

QString DocumentForm::conflictWith(const Recordset& rs) const
{
    // A moment compares by its value: older rows hold a bare date in a TIMESTAMP column,
    // which reads back as midnight however it was written.
    const auto comparable = [](const QVariant& value) {
        if (value.typeId() == QMetaType::QDate)
            return value.toDate().startOfDay().toString(Qt::ISODate);
        if (value.typeId() == QMetaType::QDateTime)
            return value.toDateTime().toString(Qt::ISODate);
        return qd8::text(value);
    };
    for (int column = 0; column < rs.fieldCount(); ++column) {
        const auto read = m_row.constFind(rs.fieldName(column).toLower());
        if (read == m_row.constEnd() || comparable(*read) != comparable(rs.field(column)))
            return rs.fieldName(column);
    }
    return {};
}

void DocumentForm::writeChanges(Connection& data)
{
    const QString key = qd8::text(m_row.value(m_definition.keyField.toLower()));
    const QString caption = shownCaption(m_entries.first().field);
    const Sql byKey = Sql(" WHERE ") + m_definition.keyField + "=" + quoted(key);
    // The row's write lock first, so no other save slips in between the check and the write.
    if (data.execute(Sql("UPDATE ") + m_definition.table + " SET " + m_definition.keyField + "=" + m_definition.keyField + byKey) == 0)
        throw DbError(DbError::Kind::Conflict, bilingual("ผู้ใช้อื่นลบ %1 %2 ไปแล้ว", "Another user deleted %1 %2").arg(caption, key));
    Recordset rs;
    rs.open(Sql("SELECT * FROM ") + m_definition.table + byKey, data);
    if (!conflictWith(rs).isEmpty())
        throw DbError(DbError::Kind::Conflict,
            bilingual("ผู้ใช้อื่นแก้ไข %1 %2 ไปแล้วหลังจากที่ท่านเปิด", "Another user changed %1 %2 after you opened it").arg(caption, key));
    // Found by its key alone: the check above has compared every column.
    const Backend& backend = data.backend();
    QStringList sets;
    QVariantList values;
    const auto set = [&](const QString& field, const QVariant& value) {
        values << value;
        sets << field + QLatin1Char('=') + backend.placeholder(int(values.size()));
    };
    for (const Entry& entry : m_entries) {
        const bool typed = !entry.box || !entry.box->isReadOnly() || !entry.field.sumOf.isEmpty();
        if (entry.box && typed && entry.box->text() != entry.clean)
            set(entry.field.field, storedValue(entry));
    }
    if (sets.isEmpty())
        return;
    const QString& stem = m_definition.auditPrefix;
    if (!stem.isEmpty() && rs.fieldIndex(stem + QStringLiteral("EditBy")) >= 0)
        set(stem + QStringLiteral("EditBy"), UserLoginName());
    if (!stem.isEmpty() && rs.fieldIndex(stem + QStringLiteral("EditDate")) >= 0)
        set(stem + QStringLiteral("EditDate"), QDateTime::currentDateTime());
    data.execute(Sql("UPDATE ") + m_definition.table + " SET " + sets.join(QStringLiteral(", ")) + byKey, values);
}

QString DocumentForm::changedFields() const
{
    QStringList parts;
    for (const Entry& entry : m_entries)
        if (entry.box && !entry.box->isReadOnly() && entry.box->text() != entry.clean)
            parts << entry.field.field + QStringLiteral(": ") + entry.clean + QStringLiteral(" -> ") + entry.box->text();
    return parts.join(QStringLiteral("; "));
}

bool DocumentForm::save()
{
    if (!adding() && !editing())
        return false;
    auto& messages = Services::messages();
    const QString title = m_title->text();
    if (editing() && !m_loaded) {
        messages.critical(title, bilingual("ยังไม่ได้เปิดข้อมูลที่จะแก้ไข", "Nothing is loaded to edit"));
        return false;
    }
    QString bad = problem();
    if (bad.isEmpty() && m_voucher) {
        // The voucher always follows the document's amounts as they stand now.
        refillVoucher();
        bad = m_voucher->problem(parseDate(textOf(m_definition.auditPrefix + QStringLiteral("Date")), m_dateLook.era).value_or(QDate()));
    }
    if (bad.isEmpty() && m_panels)
        bad = m_panels->problem();
    if (!bad.isEmpty()) {
        messages.critical(title, bad);
        return false;
    }
    if (m_sales && !m_sales->allowsSave(textOf(m_definition.sales.customerField), amountOf(m_definition.sales.totalField)))
        return false;
    QString key = keyBox()->text().trimmed();
    const QString changes = editing() ? changedFields() : QString();
    const OperationName operation(caption());  // who waits, should another writer hold the rows
    try {
        Connection data;
        data.open(DataConnectionString());
        const QString missing = missingCode(data);
        if (!missing.isEmpty()) {
            messages.critical(title, missing);
            return false;
        }
        // The row as a whole or nothing: a refusal leaves the table and the form as they were.
        TransactionGuard transaction(data);
        if (adding())
            key = writeNew(data, key);
        else
            writeChanges(data);
        if (m_voucher)
            postVoucher(data, key);
        if (m_sales)
            m_sales->record(data, m_definition.table, m_definition.keyField, key);
        if (m_panels)
            m_panels->write(data, key, adding(), changes);
        transaction.commit();
    } catch (const DbError& error) {
        if (m_voucher)
            m_voucher->rollback();
        messages.critical(title, error.report(LanguageID()) + QStringLiteral("\n\n")
                + bilingual("ข้อมูลที่ท่านป้อนยังอยู่ในฟอร์ม ไม่ได้บันทึก", "What you entered is still in the form; nothing was saved."));
        return false;
    }
    afterSave(key);
    return true;
}

void DocumentForm::afterSave(const QString& key)
{
    const bool wasAdding = adding();
    m_key = key;
    m_newKey = key;
    m_mode = QStringLiteral("EDIT");
    m_started = false;
    loadRow();
    Setbuttons();
    if (wasAdding)
        retitle(key);
    setStatusText(bilingual("บันทึก %1 แล้ว", "Saved %1").arg(key));
    Q_EMIT Saved(key);
}

void DocumentForm::setStatusText(const QString& message)
{
    m_status->setText(message);
}

void DocumentForm::retitle(const QString& key)
{
    // The host's tab follows the title: "<list's caption> - <key>".
    const QString shown = windowTitle();
    const QString head = shown.contains(QLatin1String(" - ")) ? shown.section(QStringLiteral(" - "), 0, -2) : m_title->text();
    setWindowTitle(head + QStringLiteral(" - ") + (key.isEmpty() ? bilingual("เพิ่ม", "New") : key));
}

void DocumentForm::addNew()
{
    if (!confirmClose(m_title->text()))
        return;
    m_mode = QStringLiteral("ADD");
    m_newKey.clear();
    m_started = false;
    Setbuttons();
    retitle(QString());
    setStatusText(QString());
}

void DocumentForm::editShown()
{
    if (!m_loaded || adding() || editing())
        return;
    m_mode = QStringLiteral("EDIT");
    loadRow();  // what the clerk edits is the row as it stands now
    Setbuttons();
}

QString DocumentForm::deleteRefusal(const DocumentDefinition& definition, const QString& key, Connection& data, int languageId)
{
    Recordset rs;
    rs.open(Sql("SELECT * FROM ") + definition.table + " WHERE " + definition.keyField + "=" + quoted(key), data);
    if (rs.eof())
        return inLanguage(languageId, "ไม่พบ %1 อาจถูกลบไปแล้ว", "%1 is not there; it may be deleted already").arg(key);
    // A document that went through its workflow is cancelled, not deleted.
    const QString& p = definition.auditPrefix;
    if (!definition.isMaster() && !p.isEmpty()) {
        for (const char* stem : {"ConfirmStatus", "ApproveStatus", "CancelStatus"})
            if (rs.fieldIndex(p + QLatin1String(stem)) >= 0 && toNumber(rs.field(p + QLatin1String(stem))) != 0)
                return inLanguage(languageId, "%1 ยืนยัน อนุมัติ หรือยกเลิกแล้ว ลบไม่ได้", "%1 is confirmed, approved or cancelled and cannot be deleted")
                    .arg(key);
    }
    for (const auto& [table, column] : definition.usedBy) {
        Recordset used;
        used.open(Sql("SELECT ") + column + " FROM " + table + " WHERE " + column + "=" + quoted(key), data);
        if (!used.eof())
            return inLanguage(languageId, "%1 ถูกใช้อยู่ใน %2 ลบไม่ได้", "%1 is in use in %2 and cannot be deleted").arg(key, table);
    }
    return {};
}

void DocumentForm::deleteRow(const DocumentDefinition& definition, const QString& key, Connection& data, DataObject* numbers, const QString& by)
{
    const QString thai = deleteRefusal(definition, key, data, 0);
    if (!thai.isEmpty())
        throw DbError(DbError::Kind::Refused, QStringLiteral("delete refused")).explain(thai, deleteRefusal(definition, key, data, 1));
    if (!definition.posting.isEmpty()) {
        Recordset rs;
        rs.open(Sql("SELECT ") + definition.posting.voucherField + " FROM " + definition.table + " WHERE " + definition.keyField + "=" + quoted(key),
            data);
        const QString voucher = rs.eof() ? QString() : qd8::text(rs.field(0));
        if (!voucher.isEmpty()) {
            data.execute(Sql("DELETE FROM QD8TGLTransSub WHERE TGTSTGLTNo=") + quoted(voucher));
            data.execute(Sql("DELETE FROM QD8TGLTrans WHERE TGLTNo=") + quoted(voucher));
        }
    }
    if (!definition.lines.isEmpty())
        data.execute(Sql("DELETE FROM ") + definition.lines.table + " WHERE " + definition.lines.keyField + "=" + quoted(key));
    if (data.execute(Sql("DELETE FROM ") + definition.table + " WHERE " + definition.keyField + "=" + quoted(key)) != 1)
        throw DbError(DbError::Kind::Conflict, QStringLiteral("row already deleted"))
            .explain(QStringLiteral("ผู้ใช้อื่นลบ %1 ไปแล้ว").arg(key), QStringLiteral("Another user deleted %1").arg(key));
    if (!definition.isMaster() && !definition.auditPrefix.isEmpty())
        DocumentHistory::record(data, numbers, definition.table, key, QStringLiteral("Delete"), by);
}

bool DocumentForm::deleteShown()
{
    if (!m_loaded || adding())
        return false;
    auto& messages = Services::messages();
    const QString title = m_title->text();
    const QString key = m_key;
    try {
        Connection data;
        data.open(DataConnectionString());
        const QString refusal = deleteRefusal(m_definition, key, data, LanguageID());
        if (!refusal.isEmpty()) {
            messages.critical(title, refusal);
            return false;
        }
        data.close();
        if (!messages.question(bilingual("ยืนยันคำสั่ง", "Confirm"), bilingual("ต้องการลบ %1 ใช่หรือไม่", "Delete %1?").arg(key)))
            return false;
        data.open(DataConnectionString());
        TransactionGuard transaction(data);
        deleteRow(m_definition, key, data, dataObject(), UserLoginName());
        transaction.commit();
    } catch (const DbError& error) {
        messages.critical(title, error.report(LanguageID()));
        return false;
    }
    Q_EMIT Deleted(key);
    m_mode = QStringLiteral("VIEW");
    clearEntries();
    markClean();
    Q_EMIT CloseAction();
    if (isWindow())
        close();
    return true;
}

ListPrinter DocumentForm::printer() const
{
    QList<QPair<QString, QString>> header;
    for (const Entry& entry : m_entries) {
        const QString caption = shownCaption(entry.field);
        if (entry.check)
            header.append({caption, entry.check->isChecked() ? bilingual("ใช่", "Yes") : bilingual("ไม่ใช่", "No")});
        else if (!entry.box->text().isEmpty())
            header.append({caption, entry.name && !entry.name->text().isEmpty() ? entry.box->text() + QStringLiteral(" ") + entry.name->text()
                                                                               : entry.box->text()});
    }
    const DocumentLines& lines = m_definition.lines;
    Sql sql;
    QString captions;
    if (!lines.isEmpty()) {
        sql = Sql("SELECT ") + lines.fields + " FROM " + lines.table + " WHERE " + lines.keyField + "=" + quoted(m_key) + " ORDER BY "
            + lines.fields.section(QLatin1Char(','), 0, 0);
        captions = isThai(LanguageID()) ? lines.captions : lines.captions2;
    }
    return ListPrinter(caption(), sql, captions, DataConnectionString(), m_dateLook, header);
}

QString DocumentForm::printout() const
{
    return printer().html();
}

void DocumentForm::print()
{
    if (m_loaded && !adding())
        printer().preview(this);
}

} // namespace qd8
