#include "WorkbenchForms.h"

#include "TableListForm.h"
#include "editors/QuickGrid.h"
#include "widgets/FormRegistry.h"

namespace qd8 {

namespace {

void registerList(const QString& name, const TableListDefinition& definition)
{
    FormRegistry::registerForm(name, [definition](QWidget* parent) { return new TableListForm(definition, parent); });
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
    // The report search of the tool bar: every report of the catalogue; Enter runs one.
    registerList(QStringLiteral("WINDOW:REPORTSEARCH"),
        {QStringLiteral("ค้นหารายงาน"), QStringLiteral("Report Search"), true,
            QStringLiteral("TCmdAlias,TCmdReportno2,TCmdName{N},TCmGName{N}"), QStringLiteral("คำสั่ง,เลขที่รายงาน,ชื่อรายงาน,โมดูล"),
            QStringLiteral("Command,Report No.,Report,Module"), QStringLiteral("QD8VCommand"),
            QStringLiteral("TCmdType='R' AND TCmdActiveStatus=1 AND TCmdFlag1=1"), QStringLiteral("TCmGSort,TCmdSort"),
            QStringLiteral("TCmdAlias,TCmdReportno2,TCmdName{N}"), true});
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
}

} // namespace qd8
