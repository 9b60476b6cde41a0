#include "documents/DucumentList.h"

#include "database/ClientObject.h"
#include "database/DataObject.h"
#include "database/ListService.h"
#include "database/PermissionObject.h"
#include "database/SessionFunctions.h"
#include "database/SessionServices.h"
#include "foundation/CommaList.h"
#include "foundation/Connection.h"
#include "foundation/DbError.h"
#include "foundation/Recordset.h"
#include "foundation/Services.h"
#include "foundation/DateText.h"
#include "widgets/DateEdit.h"
#include "widgets/SendKeys.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDate>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>

namespace qd8 {

namespace {

// Label/box pairs per row of the filter panel: four on a wide screen, three on a small one
// (1024 pixels), so the panel never widens the window.
constexpr int WidePanelColumns = 4;
constexpr int NarrowPanelColumns = 3;
constexpr int WideScreenPixels = 1280;
constexpr int ComboMinimumCharacters = 10;

QDate boxDate(const DateEdit* box)
{
    return box ? box->date() : QDate();
}

// The division box filters divisions, departments or sections, whichever the list's field
// refers to (TPRDTDepCode: departments); its caption and pick list follow.
struct OrganisationList {
    const char* keyEnding;
    const char* thai;
    const char* english;
    const char* key;
    const char* name;
    const char* table;
};

const OrganisationList& organisationListOf(const QString& field)
{
    static const OrganisationList lists[] = {
        {"TDepCode", "แผนก", "Department", "TDepCode", "TDepName", "QD8TDepartment"},
        {"TSecCode", "ส่วน", "Section", "TSecCode", "TSecName", "QD8TSection"},
        {"", "ฝ่าย", "Division", "TDivCode", "TDivName", "QD8TDivision"},
    };
    for (const OrganisationList& list : lists) {
        if (field.trimmed().endsWith(QLatin1String(list.keyEnding), Qt::CaseInsensitive))
            return list;
    }
    return lists[std::size(lists) - 1];
}

QString boxText(const QLineEdit* box)
{
    return box ? box->text().trimmed() : QString();
}

} // namespace

DucumentList::DucumentList(QWidget* parent) : ListControl("รายการเอกสาร", "Document list", parent)
{
}

DucumentList::~DucumentList() = default;

void DucumentList::SetFilter(const QString& iCommandAlias, const QString& iCommandGroup, std::shared_ptr<DataObject> iDataObj,
    std::shared_ptr<AppObject> iAppObj, std::shared_ptr<ClientObject> iClientObj, FormCollection* iForms,
    const QString& iLCaption, const QString& iFCaption)
{
    SetFilter2(iCommandAlias, iCommandGroup, std::move(iDataObj), std::move(iAppObj), std::move(iClientObj), iForms,
        iLCaption, iFCaption, true);
}

void DucumentList::SetFilter2(const QString& iCommandAlias, const QString& iCommandGroup, std::shared_ptr<DataObject> iDataObj,
    std::shared_ptr<AppObject> iAppObj, std::shared_ptr<ClientObject> iClientObj, FormCollection* iForms,
    const QString& iLCaption, const QString& iFCaption, bool iDoFilterEmployee)
{
    m_doFilterEmployee = iDoFilterEmployee;
    const bool found = loadDefinition(iCommandAlias, iCommandGroup, std::move(iDataObj), std::move(iAppObj),
        std::move(iClientObj), iForms, iLCaption, iFCaption);
    readSessionChoices();
    buildPanel();
    if (found)
        runQuery();
}

void DucumentList::readSessionChoices()
{
    m_hrFilter = 0;
    m_projectFilterOn = false;
    m_defaultProject.clear();
    m_salesman.clear();
    try {
        m_hrFilter = SessionServices::listService()
                         .LookupValue(0, QStringLiteral("TCmdAlias"), CommandAlias(), QStringLiteral("TCmdHRFilter"),
                             QStringLiteral("QD8TCommand"), AppConnectionString())
                         .toInt();
        if (dataObject())
            m_projectFilterOn = dataObject()->effectiveNumber(QStringLiteral("EnableProjectFilter")) != 0;
        m_defaultProject =
            DbSessionFunctions::userSettingText(UserID(), QStringLiteral("DefaultUserProject"), DataConnectionString()).trimmed();
        m_salesman = SessionServices::listService()
                         .LookupValue(QString(), QStringLiteral("TUsrID"), UserID(), QStringLiteral("TUsrTEmpCode"),
                             QStringLiteral("QD8TUser"), DataConnectionString())
                         .toString();
    } catch (const DbError& e) {
        loadFailed(e.message());
    }
}

QString DucumentList::loadingCaption() const
{
    return QStringLiteral("เลือกเอกสาร");
}

DocumentFilter DucumentList::currentFilter()
{
    DocumentFilter f;
    if (m_doFilterEmployee && m_hrFilter > 0) {
        try {
            f.employeeScope = permission()->employeeScope(QStringLiteral("TEmpTEMTCode"), m_hrFilter - 1);
        } catch (const DbError& e) {
            loadFailed(e.message());
        }
    }
    f.statusCode = m_status ? m_statusCodes.value(m_status->currentIndex()) : QString();
    if (clientObject() && clientObject()->approveNoteFilter())
        f.approveNote = clientObject()->approveNoteValue();
    f.dateFrom = boxDate(m_dateFrom);
    f.dateTo = boxDate(m_dateTo);
    f.deliveryBy = boxDate(m_deliveryDate);
    f.customer = boxText(m_customer);
    f.supplier = boxText(m_supplier);
    f.employees = boxText(m_employee);
    f.arrearOnly = m_arrearOnly && m_arrearOnly->isChecked();
    f.invArrearOnly = m_invArrearOnly && m_invArrearOnly->isChecked();
    f.status2 = m_status2 ? m_status2->currentIndex() : -1;
    f.date2From = boxDate(m_date2From);
    f.date2To = boxDate(m_date2To);
    f.division = boxText(m_division);
    f.filter1 = boxText(m_filter1);
    f.project = m_projectFilterOn ? boxText(m_project) : QString();
    f.product = boxText(m_product);
    f.productGroup = boxText(m_productGroup);
    f.filter2 = boxText(m_filter2);
    f.filter3 = boxText(m_filter3);
    f.branch = boxText(m_branch);
    return f;
}

Sql DucumentList::composeWhere()
{
    return currentFilter().where(m_def, Prefix(), filter1KeyField());
}

QString DucumentList::composeOrder() const
{
    if (!CustomOrder().isEmpty())
        return ListControl::composeOrder();
    const QString order = m_sort ? splitList(m_def.OrderQuery).value(m_sort->currentIndex()).trimmed() : QString();
    return order.isEmpty() ? QString() : QStringLiteral(" ORDER BY ") + order;
}

bool DucumentList::mayEdit(const QString& key)
{
    const QString p = Prefix();
    try {
        Connection data;
        data.open(DataConnectionString());
        Recordset rs;
        rs.open(Sql("SELECT ") + p + "ApproveStatus, " + p + "CancelStatus, " + p + "ConfirmStatus FROM " + TABLENAME()
                + " WHERE " + PKey() + "=" + quoted(key),
            data);
        if (rs.eof())
            return true;
        for (const char* status : {"ApproveStatus", "CancelStatus", "ConfirmStatus"}) {
            if (rs.field(p + QLatin1String(status)).toInt() == 1)
                return false;
        }
        return true;
    } catch (const DbError& e) {
        loadFailed(e.message());
        return true;  // the document form reports what it cannot read
    }
}

QStringList DucumentList::keyMembers(bool adding) const
{
    if (adding)
        return {QStringLiteral("NewDocNo")};
    return {QStringLiteral("NewDocNo"), QStringLiteral("DocNo")};
}

void DucumentList::buildPanel()
{
    delete m_panel;
    m_pickers.clear();
    m_panel = new QWidget(this);
    m_panel->setObjectName(QStringLiteral("filterPanel"));
    m_grid = new QGridLayout(m_panel);
    m_grid->setContentsMargins(0, 0, 0, 0);
    m_cell = 0;
    const QScreen* shownOn = screen();
    m_columns = shownOn && shownOn->availableGeometry().width() < WideScreenPixels ? NarrowPanelColumns : WidePanelColumns;
    panelLayout()->addWidget(m_panel);
    // The boxes in the order their conditions are written.
    addStatusBoxes();
    addDateBoxes();
    addPartyBoxes();
    addCheckBoxes();
    addCodeBoxes();
    addSortAndSelect();
    applyBackDays();
}

DucumentList::Picker DucumentList::codePicker(const QString& title, const QString& keyField, const QString& nameField, const QString& source)
{
    return [=, this](QLineEdit* box) {
        const QString code = source.isEmpty() ? pickFromQuickForm(m_def.Filter1) : pickCode(title, keyField, nameField, source);
        if (!code.isEmpty()) {
            box->setText(code);
            SendKeys(QStringLiteral("{TAB}"));  // the pick moves on to the next box
        }
    };
}

void DucumentList::addStatusBoxes()
{
    const ListDefinition& d = m_def;
    m_statusCodes = splitList(d.FilterStatus);
    QStringList captions = splitList(d.FilterStatusCaptions);
    if (m_statusCodes.isEmpty())
        m_statusCodes = {QString()};
    while (captions.size() < m_statusCodes.size())
        captions << (captions.isEmpty() ? QStringLiteral("All") : m_statusCodes[captions.size()]);
    m_status = addCombo("cboStatus", bilingual("สถานะ", "Status"), captions.mid(0, m_statusCodes.size()), d.DefaultFilter);
    m_status2 = d.FilterStatus2.isEmpty() ? nullptr
                                          : addCombo("Combo1", bilingual("สถานะ 2", "Status 2"), splitList(d.FilterStatusCaptions2), 0);
    // A choice is a filter: the rows follow it at once, so the list never shows other rows
    // than its choices say.
    for (QComboBox* choice : {m_status, m_status2})
        if (choice)
            connect(choice, &QComboBox::currentIndexChanged, this, &DucumentList::select);
}

void DucumentList::addDateBoxes()
{
    const ListDefinition& d = m_def;
    m_backDays = nullptr;
    if (d.filterBackDate && !d.BACKDAYLIST.isEmpty()) {
        QStringList captions;
        for (const QString& days : splitList(d.BACKDAYLIST))
            captions << (days.trimmed().toInt() == 0 ? bilingual("ทุกวันที่", "All dates") : bilingual("ย้อนหลัง %1 วัน", "Last %1 days").arg(days.trimmed()));
        m_backDays = addCombo("cboBackDay", bilingual("ย้อนหลัง", "Back days"), captions, 0);
        connect(m_backDays, &QComboBox::currentIndexChanged, this, [this] {
            applyBackDays();
            select();
        });
    }
    m_dateFrom = addDateBox("txtDateFrom", bilingual("จากวันที่", "From date"));
    m_dateTo = addDateBox("txtDateTo", bilingual("ถึงวันที่", "To date"));
    m_deliveryDate = d.FilterDeliveryDate.isEmpty() ? nullptr : addDateBox("txtDeliveryDate", bilingual("กำหนดส่งถึง", "Delivery by"));
}

void DucumentList::addPartyBoxes()
{
    const ListDefinition& d = m_def;
    QString customers = QStringLiteral("QD8TAR INNER JOIN QD8TAR2 ON QD8TAR.TARNCode = QD8TAR2.TAR2TARNCode WHERE TARNCode<>''");
    if (d.FilterARByEmp != 0)
        customers += QStringLiteral(" AND TAR2SaleCode='") + m_salesman + QLatin1Char('\'');
    m_customer = addBox("txtCustomer", bilingual("ลูกค้า", "Customer"), d.FilterAR,
        codePicker(bilingual("ลูกค้า", "Customers"), QStringLiteral("TARNCode"), QStringLiteral("TARNName") + nameSuffix(), customers));
    m_supplier = addBox("txtSupplier", bilingual("ผู้จำหน่าย", "Supplier"), d.FilterAP,
        codePicker(bilingual("ผู้จำหน่าย", "Suppliers"), QStringLiteral("TAPNCode"), QStringLiteral("TAPNName") + nameSuffix(),
            QStringLiteral("QD8TAP")));
    m_employee = addBox("txtEmployee", d.FilterEmpLabel.isEmpty() ? QStringLiteral("พนักงานอ้างอิง") : d.FilterEmpLabel,
        d.FilterEmployee,
        codePicker(bilingual("พนักงาน", "Employees"), QStringLiteral("TEmpCode"), QStringLiteral("TEmpFullName") + nameSuffix(),
            QStringLiteral("QD8TEmployee")));
}

void DucumentList::addCheckBoxes()
{
    const ListDefinition& d = m_def;
    m_arrearOnly = d.FilterArrear.isEmpty()
        ? nullptr
        : addCheck("chkArrearOnly", d.FilterArrearCaption.isEmpty() ? bilingual("ค้างเท่านั้น", "Outstanding only") : d.FilterArrearCaption);
    m_invArrearOnly = d.FilterInvArrear.isEmpty() ? nullptr
                                                  : addCheck("chkInvArrearOnly", d.FilterInvArrearCaption.isEmpty()
                                                          ? bilingual("ค้างออกใบแจ้งหนี้", "Not invoiced only")
                                                          : d.FilterInvArrearCaption);
}

void DucumentList::addCodeBoxes()
{
    const ListDefinition& d = m_def;
    const QString dateCaption = d.FilterDateCaption.isEmpty() ? d.FilterDate : d.FilterDateCaption;
    m_date2From = d.FilterDate.isEmpty() ? nullptr : addDateBox("txtDate2From", dateCaption + bilingual(" จาก", " from"));
    m_date2To = d.FilterDate.isEmpty() ? nullptr : addDateBox("txtDate2To", dateCaption + bilingual(" ถึง", " to"));
    const OrganisationList& unit = organisationListOf(d.FilterDivision);
    const QString unitCaption = bilingual(unit.thai, unit.english);
    m_division = addBox("txtDivision", unitCaption, d.FilterDivision,
        codePicker(unitCaption, QString::fromLatin1(unit.key), QString::fromLatin1(unit.name) + nameSuffix(),
            QString::fromLatin1(unit.table)));
    m_filter1 = addBox("txtFilter1", filter1Caption(), filter1KeyField().isEmpty() ? QString() : d.Filter1,
        codePicker(QString(), QString(), QString(), QString()));
    m_project = addBox("txtProject", bilingual("โครงการ", "Project"), m_projectFilterOn ? d.FilterProject : QString(),
        codePicker(bilingual("โครงการ", "Projects"), QStringLiteral("TPrjCode"), QStringLiteral("TPrjName") + nameSuffix(),
            QStringLiteral("QD8TProject")));
    if (m_project) {
        m_project->setText(m_defaultProject);
        m_project->setReadOnly(m_projectLevel > 0 && !m_defaultProject.isEmpty());  // bound to his project
    }
    const bool program = d.FilterProductM != 0;
    m_product = addBox("txtProduct", program ? QStringLiteral("โปรแกรม") : bilingual("สินค้า", "Product"), d.FilterProduct,
        codePicker(program ? QStringLiteral("โปรแกรม") : bilingual("สินค้า", "Products"), QStringLiteral("TPdtCode"), QStringLiteral("TPdtName"),
            program ? QStringLiteral("QD8TProduct WHERE TPdtTPTTCode='PROGRAM'") : QStringLiteral("QD8TProduct")));
    struct GroupList { const char* caption; const char* key; const char* name; const char* table; };
    static const GroupList groups[] = {{"หมวด", "TPSECode", "TPSEName", "QD8TProductSection"},
        {"กลุ่ม", "TPG1Code", "TPG1Name", "QD8TProductGroup"}, {"สาย", "TPDLCode", "TPDLName", "QD8TProductLine"}};
    const GroupList& group = groups[qBound(0, d.FilterProductT, 2)];
    m_productGroup = addBox("txtProductGroup", QString::fromUtf8(group.caption), d.FilterProductG,
        codePicker(QString::fromUtf8(group.caption), QString::fromLatin1(group.key), QString::fromLatin1(group.name),
            QString::fromLatin1(group.table)));
    m_filter2 = addBox("txtFilter2", d.Filter2Caption.isEmpty() ? d.FILTER2 : d.Filter2Caption, d.FILTER2);
    m_filter3 = addBox("txtFilter3", d.Filter3Caption.isEmpty() ? d.FILTER3 : d.Filter3Caption, d.FILTER3);
    m_branch = addBox("txtBranch", bilingual("สาขา", "Branch"), Prefix().isEmpty() ? QString() : Prefix() + QStringLiteral("TBraCode"),
        codePicker(bilingual("สาขา", "Branches"), QStringLiteral("TBraCode"), QStringLiteral("TBraName") + nameSuffix(),
            QStringLiteral("QD8TBranch")));
}

void DucumentList::addSortAndSelect()
{
    const QStringList captions = splitList(m_def.OrderList);
    m_sort = captions.isEmpty() ? nullptr : addCombo("cboSort", bilingual("เรียงตาม", "Sort by"), captions, m_def.DefaultOrder);
    auto* selectButton = new QPushButton(bilingual("เลือก", "Select"), m_panel);
    selectButton->setObjectName(QStringLiteral("cmdSelect"));
    selectButton->setAccessibleName(selectButton->text());
    connect(selectButton, &QPushButton::clicked, this, &DucumentList::select);
    addWide(selectButton);
}

QCheckBox* DucumentList::addCheck(const char* name, const QString& caption)
{
    auto* check = new QCheckBox(caption, m_panel);
    check->setObjectName(QString::fromLatin1(name));
    check->setAccessibleName(caption);
    addWide(check);
    return check;
}

void DucumentList::addWide(QWidget* widget)
{
    m_grid->addWidget(widget, m_cell / m_columns, (m_cell % m_columns) * 2, 1, 2);
    ++m_cell;
}

QLineEdit* DucumentList::addBox(const char* name, const QString& caption, const QString& field, Picker pick)
{
    if (field.isEmpty())
        return nullptr;
    auto* box = new QLineEdit(m_panel);
    if (pick) {
        box->setToolTip(bilingual("F2 เลือกจากรายการ", "F2 picks from a list"));
        m_pickers.insert(box, pick);
        box->installEventFilter(this);
    }
    placeBox(name, caption, box);
    return box;
}

DateEdit* DucumentList::addDateBox(const char* name, const QString& caption)
{
    auto* box = new DateEdit(m_panel);
    box->setDateLook(dateLook());  // the calendar on F4 and the user's era
    placeBox(name, caption, box);
    return box;
}

void DucumentList::placeBox(const char* name, const QString& caption, QLineEdit* box)
{
    auto* label = new QLabel(caption, m_panel);
    box->setObjectName(QString::fromLatin1(name));
    box->setAccessibleName(caption);
    label->setBuddy(box);
    connect(box, &QLineEdit::returnPressed, this, &DucumentList::select);
    m_grid->addWidget(label, m_cell / m_columns, (m_cell % m_columns) * 2);
    m_grid->addWidget(box, m_cell / m_columns, (m_cell % m_columns) * 2 + 1);
    ++m_cell;
}

QComboBox* DucumentList::addCombo(const char* name, const QString& caption, const QStringList& captions, int current)
{
    auto* label = new QLabel(caption, m_panel);
    auto* combo = new QComboBox(m_panel);
    // Long choices ("ผู้จำหน่ายยังไม่รับทราบ") must not widen the panel past a small screen.
    combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    combo->setMinimumContentsLength(ComboMinimumCharacters);
    combo->setObjectName(QString::fromLatin1(name));
    combo->setAccessibleName(caption);
    combo->addItems(captions);
    combo->setCurrentIndex(current >= 0 && current < captions.size() ? current : 0);
    label->setBuddy(combo);
    m_grid->addWidget(label, m_cell / m_columns, (m_cell % m_columns) * 2);
    m_grid->addWidget(combo, m_cell / m_columns, (m_cell % m_columns) * 2 + 1);
    ++m_cell;
    return combo;
}

void DucumentList::applyBackDays()
{
    if (!m_backDays)
        return;
    const int days = splitList(m_def.BACKDAYLIST).value(m_backDays->currentIndex()).trimmed().toInt();
    m_dateFrom->setDate(days > 0 ? QDate::currentDate().addDays(-days) : QDate());
    m_dateTo->clear();
}

QString DucumentList::badInput() const
{
    const auto named = [](const QLineEdit* box) { return box->accessibleName() + QStringLiteral(": ") + box->text(); };
    for (const DateEdit* box : {m_dateFrom, m_dateTo, m_deliveryDate, m_date2From, m_date2To}) {
        if (!boxText(box).isEmpty() && !box->isValid())
            return bilingual("วันที่ไม่ถูกต้อง ", "Not a date ") + QLatin1Char('(') + datePattern(LanguageID()) + QStringLiteral(") ")
                + named(box);
    }
    // A quote would break the composed statement, which then refuses to run.
    for (const QLineEdit* box : m_panel->findChildren<QLineEdit*>()) {
        if (box->text().contains(QLatin1Char('\'')))
            return bilingual("ค่าที่ใช้กรองมีเครื่องหมาย ' ไม่ได้ ", "A filter value cannot hold a quote (') ") + named(box);
    }
    return {};
}

void DucumentList::select()
{
    const QString bad = badInput();
    if (!bad.isEmpty()) {
        Services::messages().information(LCaption(), bad);
        return;
    }
    runQuery();
}

bool DucumentList::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_F2) {
        const auto pick = m_pickers.value(watched);
        if (pick) {
            pick(static_cast<QLineEdit*>(watched));
            return true;
        }
    }
    return ListControl::eventFilter(watched, event);
}

} // namespace qd8
