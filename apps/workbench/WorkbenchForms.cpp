#include "WorkbenchForms.h"

#include "DocumentForm.h"
#include "ListDetailPane.h"
#include "MemoForms.h"
#include "ReportSearchForm.h"
#include "ReportWindow.h"
#include "TableListForm.h"
#include "VoucherForm.h"
#include "WorkbenchWindow.h"
#include "documents/DucumentList.h"
#include "documents/MasterList.h"
#include "editors/BranchOption.h"
#include "editors/CustomData.h"
#include "editors/CustomOption.h"
#include "editors/HostOption.h"
#include "editors/QuickGrid.h"
#include "editors/UserOption.h"
#include "foundation/Connection.h"
#include "foundation/TransactionGuard.h"
#include "widgets/FormRegistry.h"

namespace qd8 {

namespace {

void registerList(const QString& name, const TableListDefinition& definition)
{
    FormRegistry::registerForm(name, [definition](QWidget* parent) { return new TableListForm(definition, parent); });
}

// The forms by name, before they are registered: a master's in-use check is every code
// field of another form that picks from its table.
QList<QPair<QString, DocumentDefinition>> pending;

void registerDocument(const QString& name, const DocumentDefinition& definition)
{
    pending.append({name, definition});
}

void registerPending()
{
    for (auto& [name, master] : pending) {
        if (!master.isMaster())
            continue;
        for (const auto& [other, definition] : std::as_const(pending))
            for (const DocumentField& field : definition.fields)
                if (field.kind == DocumentField::Kind::Code && field.pickTable.compare(master.table, Qt::CaseInsensitive) == 0)
                    master.usedBy.append({definition.table, field.field});
    }
    for (const auto& [name, definition] : std::as_const(pending))
        FormRegistry::registerForm(name, [definition](QWidget* parent) { return new DocumentForm(definition, parent); });
    // A list's Delete goes through the same checks and history as its form's.
    const std::pair<const char*, const char*> lists[] = {{"PURPR", "DOCPR"}, {"PUPO", "DOCPO"}, {"SOORDER", "DOCSO"}, {"ARINVOICE", "DOCINVOICE"},
        {"ICISSUEUSE", "DOCISSUE"}, {"ARCUSTOMER", "MASTERCUSTOMER"}, {"ICPRODUCT", "MASTERPRODUCT"}, {"APVENDOR", "MASTERSUPPLIER"}};
    for (const auto& [list, form] : lists)
        for (const auto& [name, definition] : std::as_const(pending))
            if (name == QLatin1String(form))
                WorkbenchWindow::registerDeleter(QString::fromLatin1(list), [definition](const QString& key, const WorkbenchSession& session) {
                    Connection data;
                    data.open(session.dataConnectionString);
                    TransactionGuard transaction(data);
                    DocumentForm::deleteRow(definition, key, data, nullptr, session.loginName);
                    transaction.commit();
                    return true;
                });
    pending.clear();
}

// A document header: number, date (today when added), due date, then the form's own fields,
// reference, description and the workflow flags; the prefix names every column.
DocumentDefinition document(const char* title, const char* title2, const char* table, const char* prefix, const char* number,
    const QList<DocumentField>& fields)
{
    const QString stem = QString::fromLatin1(prefix);
    const QString key = stem + QStringLiteral("No");
    DocumentDefinition d{QString::fromUtf8(title), QString::fromUtf8(title2), QString::fromLatin1(table), key, QStringLiteral("เลขที่"),
        QStringLiteral("No."), QString::fromLatin1(number), stem, {}, {}, {}};
    d.fields << DocumentField::date(stem + QStringLiteral("Date"), QStringLiteral("วันที่"), QStringLiteral("Date"))
                    .mandatory()
                    .startsAs(DocumentField::Initial::Today)
             << DocumentField::date(stem + QStringLiteral("DueDate"), QStringLiteral("วันครบกำหนด"), QStringLiteral("Due Date"));
    d.fields << fields;
    d.fields << DocumentField::text(stem + QStringLiteral("RefNo"), QStringLiteral("เลขที่อ้างอิง"), QStringLiteral("Reference"))
             << DocumentField::text(stem + QStringLiteral("Description"), QStringLiteral("รายละเอียด"), QStringLiteral("Description"));
    return d.withWorkflowStatuses(stem);
}

DocumentDefinition master(const char* title, const char* title2, const char* table, const char* key, const QList<DocumentField>& fields)
{
    return {QString::fromUtf8(title), QString::fromUtf8(title2), QString::fromLatin1(table), QString::fromLatin1(key), QStringLiteral("รหัส"),
        QStringLiteral("Code"), QString(), QString(), fields, {}, {}};
}

void registerDocumentForms()
{
    using F = DocumentField;
    DocumentDefinition request = document("ใบขอซื้อ", "Purchase Request", "QD8TPR", "TPRD", "PR",
        {F::branch("TPRDTBraCode"), F::project("TPRDTPrjCode"), F::division("TPRDTDivCode"),
            F::employee("TPRDTEmpCode", QStringLiteral("ผู้ขอซื้อ"), QStringLiteral("Requested By"))});
    request.lines = {QStringLiteral("QD8TPRSub"), QStringLiteral("TPRMTPRDNo"), QStringLiteral("TPRMLn,TPRMProductCode,TPRMProductName,TPRMQuantity,TPRMTUntCode"),
        QStringLiteral("ลำดับ,รหัสสินค้า,ชื่อสินค้า,จำนวน,หน่วย"), QStringLiteral("Line,Product,Name,Quantity,Unit")};
    registerDocument(QStringLiteral("DOCPR"), request);
    DocumentDefinition purchase = document("ใบสั่งซื้อ", "Purchase Order", "QD8TPO", "TPOD", "PO",
        {F::supplier("TPODTAPNCode").mandatory(), F::branch("TPODTBraCode"), F::project("TPODTPrjCode"),
            F::money("TPODTotalAmount", QStringLiteral("ยอดรวม"), QStringLiteral("Total Amount")),
            F::status("TPODBillStatus", QStringLiteral("รับใบแจ้งหนี้แล้ว"), QStringLiteral("Billed"))});
    purchase.lines = {QStringLiteral("QD8TPO2"), QStringLiteral("TPO2TPODNo"), QStringLiteral("TPO2Acknowledge,TPO2AckDate,TPO2AckBy"),
        QStringLiteral("ผู้จำหน่ายตอบรับ,วันที่ตอบรับ,ผู้ตอบรับ"), QStringLiteral("Acknowledged,Date,By")};
    registerDocument(QStringLiteral("DOCPO"), purchase);
    // A sales order shows the customer's credit beside him and his points under the fields;
    // it spends point documents made for sales orders (type 1).
    DocumentDefinition order = document("ใบสั่งขาย", "Sales Order", "QD8TSO", "TSOD", "SO",
        {F::customer("TSODTARNCode").mandatory(), F::text("TSODContactName", QStringLiteral("ผู้ติดต่อ"), QStringLiteral("Contact")),
            F::branch("TSODTBraCode"), F::project("TSODTPrjCode"),
            F::employee("TSODSaleCode", QStringLiteral("พนักงานขาย"), QStringLiteral("Salesperson")),
            F::money("TSODTotalAmount", QStringLiteral("ยอดรวม"), QStringLiteral("Total Amount")),
            F::status("TSODBillStatus", QStringLiteral("ออกใบแจ้งหนี้แล้ว"), QStringLiteral("Invoiced"))});
    order.sales = {QStringLiteral("TSODTARNCode"), QStringLiteral("TSODTotalAmount"), QStringLiteral("TInvTJobNo"), QStringLiteral("SO"), 1};
    order.lines = {QStringLiteral("QD8TSOSub"), QStringLiteral("TSOBTSODNo"), QStringLiteral("TSOBLn,TSOBTPOSCode,TSOBPOSName,TSOBQuantity,TSOBTUntCode,TSOBAmount"),
        QStringLiteral("ลำดับ,รหัสสินค้า,ชื่อสินค้า,จำนวน,หน่วย,จำนวนเงิน"), QStringLiteral("Line,Product,Name,Quantity,Unit,Amount")};
    // A job made for the order, or a point document it spent, keeps it.
    order.usedBy = {{QStringLiteral("QD8TJob"), QStringLiteral("TJobRefNo")}, {QStringLiteral("QD8TPointTrans"), QStringLiteral("TPiTRefNo")}};
    registerDocument(QStringLiteral("DOCSO"), order);
    // The point documents a sales order spends (opened from its point panel).
    DocumentDefinition points{QStringLiteral("ใบใช้ Point"), QStringLiteral("Point Document"), QStringLiteral("QD8TPointTrans"),
        QStringLiteral("TPiTNo"), QStringLiteral("เลขที่"), QStringLiteral("No."), QStringLiteral("PT"), QStringLiteral("TPiT"), {}, {}, {}};
    points.fields << F::date("TPiTDate", QStringLiteral("วันที่"), QStringLiteral("Date")).mandatory().startsAs(DocumentField::Initial::Today)
                  << F::customer("TPiTTARNCode").mandatory()
                  << F::number("TPiTType", QStringLiteral("ใช้กับเอกสารประเภท"), QStringLiteral("For Document Type"))
                  << F::number("TPiTTotalQuantity", QStringLiteral("จำนวน Point"), QStringLiteral("Points"))
                  << F::text("TPiTRefNo", QStringLiteral("ใช้โดยเอกสาร"), QStringLiteral("Used by")).shownOnly()
                  << F::text("TPiTDescription", QStringLiteral("หมายเหตุ"), QStringLiteral("Note"));
    points.lines = {QStringLiteral("QD8TPointTransSub"), QStringLiteral("TPoTTPitNo"), QStringLiteral("TPoTLn,TPoTQuantity,TPoTValue,TPoTDescription"),
        QStringLiteral("ลำดับ,จำนวน Point,มูลค่า,หมายเหตุ"), QStringLiteral("Line,Points,Value,Note")};
    registerDocument(QStringLiteral("DOCPOINT"), points.withWorkflowStatuses(QStringLiteral("TPiT")));
    // An invoice posts its voucher (receivable, sales, output VAT) through the posting format
    // ARINVOICE, in the invoice's own transaction.
    const QString net = QStringLiteral("TIvoNetAmount");
    const QString vat = QStringLiteral("TIvoVATAmount");
    DocumentDefinition invoice = document("ใบแจ้งหนี้", "Invoice", "QD8TARInvoice", "TIvo", "IV",
        {F::customer("TIvoTARNCode").mandatory(), F::branch("TIvoTBraCode"),
            F::money(net, QStringLiteral("ยอดก่อนภาษี"), QStringLiteral("Amount before VAT")).mandatory(),
            F::money(vat, QStringLiteral("ภาษีมูลค่าเพิ่ม 7%"), QStringLiteral("VAT 7%")).percentOfField(net, 7),
            F::money("TIvoAmount", QStringLiteral("จำนวนเงินรวม"), QStringLiteral("Total")).sumOfFields({net, vat}),
            F::money("TIvoArrears", QStringLiteral("ยอดค้างชำระ"), QStringLiteral("Outstanding")).shownOnly()});
    invoice.copiedOnAdd.insert(QStringLiteral("TIvoArrears"), QStringLiteral("TIvoAmount"));
    invoice.posting = {QStringLiteral("ARINVOICE"), {net, vat}, QStringLiteral("TIvoTGLTNo"), QStringLiteral("TIvoTARNCode"), {}};
    registerDocument(QStringLiteral("DOCINVOICE"), invoice);
    // A goods issue is an inventory document of the kind ICISSUEUSE, requested by an employee.
    DocumentDefinition issue = document("ใบเบิกสินค้า", "Goods Issue", "QD8TInventory", "TInv", "IS",
        {F::branch("TInvTBraCode"), F::employee("TInvTEmpCode", QStringLiteral("ผู้เบิก"), QStringLiteral("Requested by")), F::project("TInvTPrjCode"),
            F::code("TInvTJobNo", QStringLiteral("ใบสั่งงาน"), QStringLiteral("Job"), QStringLiteral("QD8TJob"), QStringLiteral("TJobNo"),
                QStringLiteral("TJobDescription"))});
    issue.fixedOnAdd.insert(QStringLiteral("TInvTCodAlias"), QStringLiteral("ICISSUEUSE"));
    registerDocument(QStringLiteral("DOCISSUE"), issue);

    registerDocument(QStringLiteral("MASTERCUSTOMER"),
        master("ลูกค้า", "Customer", "QD8TAR", "TARNCode",
            {F::text("TARNName", QStringLiteral("ชื่อ"), QStringLiteral("Name (Thai)")).mandatory(),
                F::text("TARNName2", QStringLiteral("ชื่อภาษาอังกฤษ"), QStringLiteral("Name")),
                F::text("TARNTaxID", QStringLiteral("เลขประจำตัวผู้เสียภาษี"), QStringLiteral("Tax ID")),
                F::text("TARNAddress", QStringLiteral("ที่อยู่"), QStringLiteral("Address")),
                F::text("TARNTelephone", QStringLiteral("โทรศัพท์"), QStringLiteral("Telephone")), F::branch("TARNTBraCode"),
                F::number("TARNCreditDay", QStringLiteral("เครดิต (วัน)"), QStringLiteral("Credit Days")),
                F::money("TARNCreditLimit", QStringLiteral("วงเงินเครดิต"), QStringLiteral("Credit Limit")),
                F::status("TARNActiveStatus", QStringLiteral("ใช้งาน"), QStringLiteral("Active"))}));
    registerDocument(QStringLiteral("MASTERPRODUCT"),
        master("สินค้า", "Product", "QD8TProduct", "TPdtCode",
            {F::text("TPdtName", QStringLiteral("ชื่อสินค้า"), QStringLiteral("Name (Thai)")).mandatory(),
                F::text("TPdtName2", QStringLiteral("ชื่อภาษาอังกฤษ"), QStringLiteral("Name")),
                F::code("TPdtTPDLCode", QStringLiteral("สายสินค้า"), QStringLiteral("Product Line"), QStringLiteral("QD8TProductLine"),
                    QStringLiteral("TPDLCode"), QStringLiteral("TPDLName{N}")),
                F::code("TPdtTPSECode", QStringLiteral("หมวดสินค้า"), QStringLiteral("Section"), QStringLiteral("QD8TProductSection"),
                    QStringLiteral("TPSECode"), QStringLiteral("TPSEName{N}")),
                F::code("TPdtTPG1Code", QStringLiteral("กลุ่มสินค้า"), QStringLiteral("Group"), QStringLiteral("QD8TProductGroup"),
                    QStringLiteral("TPG1Code"), QStringLiteral("TPG1Name{N}")),
                F::code("TPdtTUntCode", QStringLiteral("หน่วยนับ"), QStringLiteral("Unit"), QStringLiteral("QD8TUnit"), QStringLiteral("TUntCode"),
                    QStringLiteral("TUntName{N}")),
                F::status("TPdtActiveStatus", QStringLiteral("ใช้งาน"), QStringLiteral("Active"))}));
    registerDocument(QStringLiteral("MASTERSUPPLIER"),
        master("ผู้จำหน่าย", "Supplier", "QD8TAP", "TAPNCode",
            {F::text("TAPNName", QStringLiteral("ชื่อ"), QStringLiteral("Name (Thai)")).mandatory(),
                F::text("TAPNName2", QStringLiteral("ชื่อภาษาอังกฤษ"), QStringLiteral("Name")),
                F::text("TAPNTaxID", QStringLiteral("เลขประจำตัวผู้เสียภาษี"), QStringLiteral("Tax ID")),
                F::text("TAPNAddress", QStringLiteral("ที่อยู่"), QStringLiteral("Address")),
                F::text("TAPNTelephone", QStringLiteral("โทรศัพท์"), QStringLiteral("Telephone")),
                F::number("TAPNCreditDay", QStringLiteral("เครดิต (วัน)"), QStringLiteral("Credit Days")),
                F::status("TAPNActiveStatus", QStringLiteral("ใช้งาน"), QStringLiteral("Active"))}));
    registerPending();
}

} // namespace

void registerWorkbenchForms()
{
    // The quick form editor: for a command named after a quick form, and for the commands
    // that open a module's master data.
    const auto quickGrid = [](QWidget* parent) { return new QuickGrid(parent); };
    FormRegistry::registerForm(QStringLiteral("QUICKFORM"), quickGrid);
    // The master data of a module: every quick form of the command's module.
    for (const char* alias : {"GLQUICK", "ICQUICK", "HRQUICK"})
        FormRegistry::registerForm(QString::fromLatin1(alias), quickGrid);
    // Each module's option commands open the editor of their scope on the module's groups.
    for (const char* module : {"GL", "AR", "IC", "AP", "PU", "SO", "HR"}) {
        const QString m = QString::fromLatin1(module);
        FormRegistry::registerForm(m + QStringLiteral("OPTION"), [](QWidget* parent) { return new CustomOption(parent); });
        FormRegistry::registerForm(m + QStringLiteral("BRANCHOPTION"), [](QWidget* parent) { return new BranchOption(parent); });
        FormRegistry::registerForm(m + QStringLiteral("HOSTOPTION"), [](QWidget* parent) { return new HostOption(parent); });
        FormRegistry::registerForm(m + QStringLiteral("USEROPTION"), [](QWidget* parent) { return new UserOption(parent); });
    }
    // The custom code lists: every list from the common module, a module's own from it.
    FormRegistry::registerForm(QStringLiteral("CENTERCUSTOM"), [](QWidget* parent) {
        auto* lists = new CustomData(parent);
        lists->setQuickGroup(QStringLiteral("SM"));
        return lists;
    });
    FormRegistry::registerForm(QStringLiteral("SOCUSTOM"), [](QWidget* parent) { return new CustomData(parent); });
    // The report search of the tool bar, and the window of every report command.
    FormRegistry::registerForm(QStringLiteral("WINDOW:REPORTSEARCH"), [](QWidget* parent) { return new ReportSearchForm(parent); });
    FormRegistry::registerForm(QStringLiteral("TYPE:R"), [](QWidget* parent) { return new ReportWindow(parent); });
    registerList(QStringLiteral("HREMPLOYEE"),
        {QStringLiteral("ข้อมูลพนักงาน"), QStringLiteral("Employees"), false,
            QStringLiteral("TEmpCode,TEmpFullName{N},TEmpTEmTCode,TEmpTBraCode,TEmpStartDate"),
            QStringLiteral("รหัส,ชื่อพนักงาน,ประเภท,สาขา,วันเริ่มงาน"), QStringLiteral("Code,Name,Type,Branch,Start Date"),
            QStringLiteral("QD8TEmployee"), QStringLiteral("TEmpFlag1=1"), QStringLiteral("TEmpCode"),
            QStringLiteral("TEmpCode,TEmpFullName,TEmpFullName2"), false});
    registerList(QStringLiteral("CENTERUSER"),
        {QStringLiteral("ผู้ใช้งาน"), QStringLiteral("Users"), false, QStringLiteral("TUsrID,TUsrLoginName,TUsrName{N},TUsrTEmpCode"),
            QStringLiteral("รหัส,ชื่อเข้าระบบ,ชื่อผู้ใช้,พนักงาน"), QStringLiteral("ID,Login,Name,Employee"), QStringLiteral("QD8TUser"),
            QStringLiteral("TUsrFlag1=1"), QStringLiteral("TUsrID"), QStringLiteral("TUsrLoginName,TUsrName,TUsrName2"), false});
    // The lists of the document and master-data commands, by their definitions.
    // Jobs, production orders and purchase requests show the selected line beside the rows.
    for (const char* alias : {"GLJV", "PURPR", "PUPO", "SOORDER", "ARINVOICE", "ICISSUEUSE", "ICJOB", "ICJOBPRODUCTION"}) {
        const QString command = QString::fromLatin1(alias);
        FormRegistry::registerForm(command, [command](QWidget* parent) {
            auto* list = new DucumentList(parent);
            ListDetailPane::attach(*list, command);
            return list;
        });
    }
    for (const char* alias : {"ARCUSTOMER", "ICPRODUCT", "APVENDOR"})
        FormRegistry::registerForm(QString::fromLatin1(alias), [](QWidget* parent) { return new MasterList(parent); });
    // The document and master forms the lists open; the general journal's is the voucher form.
    registerDocumentForms();
    FormRegistry::registerForm(QStringLiteral("DOCGL"), [](QWidget* parent) { return new VoucherForm(parent); });
    registerMemoForms();
}

} // namespace qd8
