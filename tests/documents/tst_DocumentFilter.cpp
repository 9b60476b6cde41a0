#include "documents/DocumentFilter.h"
#include "documents/ListDefinition.h"

#include <gtest/gtest.h>

using namespace qd8;

// The WHERE text from the filter values alone: every box in its place in the order, the
// list forms and the boxes whose definition names no field.
TEST(DocumentFilter, EachChoiceAddsItsConditionInItsPlace)
{
    ListDefinition d;
    d.FilterCustom = QStringLiteral(" AND A=1, AND B=2");
    d.FilterCustom2 = QStringLiteral(", AND TPO2Acknowledge=1");
    d.FilterDeliveryDate = QStringLiteral("TPODDueDate");
    d.FilterAR = QStringLiteral("TPODTARNCode");
    d.FilterEmployee = QStringLiteral("TPODTEmpCode");
    d.FilterArrear = QStringLiteral("TPODBalance>0");
    d.FilterDate = QStringLiteral("TPODShipDate");
    d.FilterDivision = QStringLiteral("TPODTDepCode");
    d.FilterProject = QStringLiteral("TPODTPrjCode");
    d.FILTER3 = QStringLiteral("TPODRefNo");
    d.FilterCustomW = QStringLiteral(" AND TPODKind='PO'");
    const QString head = QStringLiteral(" WHERE TPODNo<>''");

    const auto with = [](auto change) {
        DocumentFilter f;
        change(f);
        return f;
    };
    const struct { const char* name; DocumentFilter filter; QString expected; } cases[] = {
        {"nothing chosen", {}, ""},
        {"restricted user, status 9 and the second list",
            with([](DocumentFilter& f) { f.employeeScope = "TEmpTEMTCode IN ('01')"; f.statusCode = "9"; f.status2 = 1; }),
            " AND TEmpTEMTCode IN ('01') AND B=2 AND TPO2Acknowledge=1"},
        {"approve note only with code 1",
            with([](DocumentFilter& f) { f.statusCode = "2"; f.approveNote = "A"; }),
            " AND TPODCancelStatus<>1 AND TPODConfirmStatus=1"},
        {"dates of both ranges and the delivery bound",
            with([](DocumentFilter& f) {
                f.dateFrom = QDate(2026, 1, 1); f.deliveryBy = QDate(2026, 2, 1); f.date2To = QDate(2026, 3, 1); }),
            " AND TPODDate>=#$2026-01-01#$ AND TPODDueDate<=#$2026-02-01#$ AND TPODShipDate<=#$2026-03-01#$"},
        {"several employees and two references",
            with([](DocumentFilter& f) { f.employees = " E1, E2 "; f.filter3 = "R1,R2,R3"; }),
            " AND (TPODTEmpCode='E1' OR TPODTEmpCode='E2') AND (TPODRefNo='R1' OR TPODRefNo='R2')"},
        {"boxes in order, blanks trimmed",
            with([](DocumentFilter& f) {
                f.branch = " 02 "; f.project = "P1"; f.division = "P11"; f.arrearOnly = true; f.customer = "C1"; }),
            " AND TPODTARNCode='C1' AND TPODBalance>0 AND TPODTDepCode='P11' AND TPODTPrjCode='P1' AND TPODTBraCode='02'"},
        {"boxes the list has no field for",
            with([](DocumentFilter& f) { f.supplier = "S1"; f.product = "X"; f.invArrearOnly = true; f.filter1 = "F"; }), ""},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(c.filter.where(d, QStringLiteral("TPOD"), QString()).text(), head + c.expected + d.FilterCustomW);
    }
}
