#include "documents/DocumentFilter.h"

#include "documents/ListDefinition.h"
#include "foundation/CommaList.h"

namespace qd8 {

namespace {

// " AND field='value'" for a filled box.
void appendEquals(Sql& where, const QString& field, const QString& value)
{
    if (!field.isEmpty() && !value.trimmed().isEmpty())
        where += Sql(" AND ") + field + "=" + quoted(value.trimmed());
}

void appendDate(Sql& where, const QString& field, const char* comparison, const QDate& date)
{
    if (!field.isEmpty() && date.isValid())
        where += Sql(" AND ") + field + comparison + dateMarker(date);
}

// Several codes in one box: " AND (field='a' OR field='b' ...)".
void appendAnyOf(Sql& where, const QString& field, const QStringList& codes)
{
    Sql any;
    for (const QString& code : codes)
        any += Sql(any.text().isEmpty() ? "" : " OR ") + field + "=" + quoted(code.trimmed());
    where += Sql(" AND (") + any + ")";
}

} // namespace

QString DocumentFilter::statusCondition(const QString& code, const QString& p, const QStringList& customConditions)
{
    if (code == QLatin1String("0"))
        return " AND " + p + "CancelStatus<>1 AND " + p + "ConfirmStatus=1 AND " + p + "ApproveStatus=1";
    if (code == QLatin1String("1"))
        return " AND (" + p + "CancelStatus<>1 AND " + p + "ConfirmStatus=1 AND " + p + "ApproveStatus<>1) ";
    if (code == QLatin1String("2"))
        return " AND " + p + "CancelStatus<>1 AND " + p + "ConfirmStatus=1";
    if (code == QLatin1String("3"))
        return " AND " + p + "CancelStatus<>1 AND " + p + "ConfirmStatus<>1";
    if (code == QLatin1String("4"))
        return " AND " + p + "CancelStatus<>1 AND " + p + "ApproveStatus<>1";
    if (code == QLatin1String("5"))
        return " AND " + p + "CancelStatus<>1";
    if (code == QLatin1String("6"))
        return " AND " + p + "CancelStatus=1";
    if (code == QLatin1String("8"))
        return customConditions.value(0);
    if (code == QLatin1String("9") && customConditions.size() >= 2)
        return customConditions.value(1);
    if (code == QLatin1String("10") && customConditions.size() >= 3)
        return customConditions.value(2);
    return {};
}

Sql DocumentFilter::where(const ListDefinition& d, const QString& p, const QString& filter1Field) const
{
    Sql where = Sql(" WHERE ") + p + "No<>''";
    if (!employeeScope.isEmpty())
        where += Sql(" AND ") + employeeScope;

    where += statusCondition(statusCode, p, splitList(d.FilterCustom));
    if (statusCode == QLatin1String("1") && approveNote)
        where += Sql(" AND (") + p + "ApproveNote=" + quoted(*approveNote) + " or " + p + "ApproveNote='' or " + p
            + "ApproveNote is null) ";

    appendDate(where, p + QStringLiteral("Date"), ">=", dateFrom);
    appendDate(where, p + QStringLiteral("Date"), "<=", dateTo);
    appendDate(where, d.FilterDeliveryDate, "<=", deliveryBy);
    appendEquals(where, d.FilterAR, customer);
    appendEquals(where, d.FilterAP, supplier);
    const QStringList employeeCodes = splitList(employees.trimmed());
    if (!d.FilterEmployee.isEmpty() && employeeCodes.size() > 1)
        appendAnyOf(where, d.FilterEmployee, employeeCodes);
    else
        appendEquals(where, d.FilterEmployee, employees);
    if (arrearOnly && !d.FilterArrear.isEmpty())
        where += Sql(" AND ") + d.FilterArrear;
    if (invArrearOnly && !d.FilterInvArrear.isEmpty())
        where += Sql(" AND ") + d.FilterInvArrear;
    if (status2 >= 0)
        where += splitList(d.FilterCustom2).value(status2);
    appendDate(where, d.FilterDate, ">=", date2From);
    appendDate(where, d.FilterDate, "<=", date2To);
    appendEquals(where, d.FilterDivision, division);
    appendEquals(where, filter1Field.isEmpty() ? QString() : p + filter1Field, filter1);
    appendEquals(where, d.FilterProject, project);
    appendEquals(where, d.FilterProduct, product);
    appendEquals(where, d.FilterProductG, productGroup);
    appendEquals(where, d.FILTER2, filter2);
    const QStringList codes = splitList(filter3.trimmed());
    if (!d.FILTER3.isEmpty() && codes.size() >= 2)
        appendAnyOf(where, d.FILTER3, codes.mid(0, 2));
    else
        appendEquals(where, d.FILTER3, filter3);
    if (!branch.trimmed().isEmpty())
        where += Sql(" AND ") + p + "TBraCode=" + quoted(branch.trimmed());
    where += d.FilterCustomW;
    return where;
}

} // namespace qd8
