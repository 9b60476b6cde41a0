#include "DocumentGenerator.h"

#include "foundation/Connection.h"
#include "foundation/DbError.h"
#include "foundation/Recordset.h"
#include "foundation/TransactionGuard.h"

namespace qd8 {

namespace {

constexpr int NumberDigits = 7;
constexpr qint64 LargestNumber = 9999999;
constexpr qint64 SpanDays = 3 * 365;
constexpr int StatusCycle = 12;

// Code rows of the company that generated documents refer to; "" stands for Null.
using Pool = QList<QStringList>;

struct Pools {
    Pool branches;     // TBraCode
    Pool projects;     // TPrjCode, and "" for documents without a project
    Pool departments;  // TDepCode, TDepTDivCode
    Pool employees;    // TEmpCode, TEmpTBraCode
    Pool customers;    // TARNCode, TAR2SaleCode, TARNTBraCode
    Pool suppliers;    // TAPNCode
    Pool users;        // TUsrLoginName
};

// A column of the generated rows with its value as an expression over the row index i.
struct Column {
    QString name;
    Sql value;
};

using ColumnsOf = QList<Column> (*)(const QString& prefix, const Pools& pools);

struct GeneratedList {
    const char* alias;
    const char* table;
    const char* prefix;
    const char* numberPrefix;
    ColumnsOf columns;
    const char* descriptions[6];
};

// The value of one field of a pool row, chosen by the row index; rows taken with
// different strides spread independently.
Sql pick(const Pool& pool, int field, int stride)
{
    if (pool.isEmpty())
        return Sql("NULL");
    const auto value = [&](const QStringList& row) {
        const QString v = row.value(field);
        return v.isEmpty() ? Sql("NULL") : quoted(v);
    };
    if (pool.size() == 1)
        return value(pool[0]);
    Sql out = Sql("CASE ((i * ") + stride + ") % " + int(pool.size()) + ")";
    for (int k = 0; k < pool.size(); ++k)
        out += Sql(" WHEN ") + k + " THEN " + value(pool[k]);
    return out + " END";
}

// Status slot of a row: 0-1 drafts, 2-5 waiting for approval (notes '', 'A', 'B', Null),
// 6-8 and 11 approved (7 and 8 billed), 9 a cancelled draft, 10 confirmed then cancelled.
const char* const Slot = "(i % 12)";

Sql whenSlot(const char* slotList, const char* then, const char* otherwise)
{
    return Sql("CASE WHEN ") + Slot + " IN (" + slotList + ") THEN " + then + " ELSE " + otherwise + " END";
}

Sql amount()
{
    return Sql("((i * 7919) % 99000 + 1000 + (i % 4) * 0.25)");
}

QList<Column> statusColumns(const QString& p)
{
    return {
        {p + "ConfirmStatus", whenSlot("0,1,9", "0", "1")},
        {p + "ApproveStatus", whenSlot("6,7,8,11", "1", "0")},
        {p + "ApproveNote", Sql("CASE ") + Slot + " WHEN 3 THEN 'A' WHEN 4 THEN 'B' WHEN 0 THEN NULL WHEN 5 THEN NULL ELSE '' END"},
        {p + "CancelStatus", whenSlot("9,10", "1", "0")},
    };
}

Column billColumn(const QString& p)
{
    return {p + "BillStatus", whenSlot("7,8", "1", "0")};
}

QList<Column> purchaseRequestColumns(const QString& p, const Pools& pools)
{
    return {
        {p + "TEmpCode", pick(pools.employees, 0, 1)},
        {p + "TBraCode", pick(pools.employees, 1, 1)},
        {p + "TDepCode", pick(pools.departments, 0, 3)},
        {p + "TDivCode", pick(pools.departments, 1, 3)},
        {p + "TPrjCode", pick(pools.projects, 0, 5)},
    };
}

QList<Column> purchaseOrderColumns(const QString& p, const Pools& pools)
{
    return {
        {p + "TAPNCode", pick(pools.suppliers, 0, 1)},
        {p + "TBraCode", pick(pools.branches, 0, 3)},
        {p + "TPrjCode", pick(pools.projects, 0, 5)},
        {p + "TotalAmount", amount()},
        billColumn(p),
    };
}

QList<Column> salesOrderColumns(const QString& p, const Pools& pools)
{
    return {
        {QStringLiteral("TSOType"), Sql("0")},
        {p + "TARNCode", pick(pools.customers, 0, 1)},
        {p + "SaleCode", pick(pools.customers, 1, 1)},
        {p + "TBraCode", pick(pools.customers, 2, 1)},
        {p + "TPrjCode", pick(pools.projects, 0, 5)},
        {p + "TotalAmount", amount()},
        billColumn(p),
    };
}

QList<Column> invoiceColumns(const QString& p, const Pools& pools)
{
    // A third of the invoices are paid, cancelled ones owe nothing.
    const Sql arrears = Sql("CASE WHEN ") + Slot + " IN (9,10) OR i % 3 = 0 THEN 0 ELSE " + amount() + " END";
    return {
        {p + "TARNCode", pick(pools.customers, 0, 1)},
        {p + "TBraCode", pick(pools.customers, 2, 1)},
        {p + "Amount", amount()},
        {p + "Arrears", arrears},
        {p + "CardStatus", Sql("1")},
        billColumn(p),
    };
}

QList<Column> stockIssueColumns(const QString& p, const Pools& pools)
{
    return {
        {p + "TCodAlias", Sql("'ICISSUEUSE'")},
        {p + "TEmpCode", pick(pools.employees, 0, 1)},
        {p + "TBraCode", pick(pools.employees, 1, 1)},
        {p + "TPrjCode", pick(pools.projects, 0, 5)},
    };
}

const GeneratedList Lists[] = {
    {"PURPR", "QD8TPR", "TPRD", "PR", purchaseRequestColumns,
        {"ขอซื้อกระดาษถ่ายเอกสาร", "Office supplies", "ขอซื้อวัสดุซ่อมบำรุง", "Spare parts for the warehouse",
            "ขอซื้ออุปกรณ์คอมพิวเตอร์", "Packing materials"}},
    {"PUPO", "QD8TPO", "TPOD", "PO", purchaseOrderColumns,
        {"สั่งซื้อสินค้าเข้าคลัง", "Stock replenishment", "สั่งซื้อวัสดุสิ้นเปลือง", "Consumables",
            "สั่งซื้ออะไหล่", "Spare parts order"}},
    {"SOORDER", "QD8TSO", "TSOD", "SO", salesOrderColumns,
        {"ขายหม้อหุงข้าว", "Air conditioners", "ขายไมโครเวฟ", "Cement delivery",
            "ขายแอร์ติดผนังพร้อมติดตั้ง", "Rice cookers for a promotion"}},
    {"ARINVOICE", "QD8TARInvoice", "TIvo", "IV", invoiceColumns,
        {"ค่าสินค้าตามใบสั่งขาย", "Goods delivered", "ค่าบริการติดตั้ง", "Installation service",
            "ค่าขนส่งสินค้า", "Maintenance contract"}},
    {"ICISSUEUSE", "QD8TInventory", "TInv", "IS", stockIssueColumns,
        {"เบิกวัสดุสำนักงาน", "Issue for a customer demo", "เบิกอะไหล่ซ่อมบำรุง", "Issue to the branch warehouse",
            "เบิกสินค้าตัวอย่าง", "Cleaning supplies"}},
};

const GeneratedList* generatedList(const QString& listAlias)
{
    for (const GeneratedList& list : Lists)
        if (listAlias.compare(QLatin1String(list.alias), Qt::CaseInsensitive) == 0)
            return &list;
    return nullptr;
}

Pool readPool(Connection& connection, const char* sql)
{
    Recordset rs;
    rs.open(Sql(sql), connection);
    Pool pool;
    for (; !rs.eof(); rs.moveNext()) {
        QStringList row;
        for (int f = 0; f < rs.fieldCount(); ++f)
            row << rs.text(rs.fieldName(f)).trimmed();
        pool << row;
    }
    return pool;
}

Pools readPools(Connection& connection)
{
    Pools pools;
    pools.branches = readPool(connection, "SELECT TBraCode FROM QD8TBranch WHERE TBraFlag1=1 ORDER BY TBraSort, TBraCode");
    pools.projects = readPool(connection, "SELECT TPrjCode FROM QD8TProject WHERE TPrjFlag1=1 ORDER BY TPrjCode");
    pools.projects << QStringList{QString()};
    pools.departments = readPool(connection, "SELECT TDepCode, TDepTDivCode FROM QD8TDepartment WHERE TDepFlag1=1 ORDER BY TDepCode");
    pools.employees = readPool(connection, "SELECT TEmpCode, TEmpTBraCode FROM QD8TEmployee WHERE TEmpFlag1=1 ORDER BY TEmpCode");
    pools.customers = readPool(connection,
        "SELECT TARNCode, TAR2SaleCode, TARNTBraCode FROM QD8TAR LEFT JOIN QD8TAR2 ON TARNCode = TAR2TARNCode "
        "WHERE TARNFlag1=1 ORDER BY TARNCode");
    pools.suppliers = readPool(connection, "SELECT TAPNCode FROM QD8TAP WHERE TAPNFlag1=1 ORDER BY TAPNCode");
    pools.users = readPool(connection, "SELECT TUsrLoginName FROM QD8TUser WHERE TUsrID>0 AND TUsrFlag1=1 ORDER BY TUsrID");
    return pools;
}

// The highest number of the list's form (prefix + 7 digits) already in the table; 0 when
// there is none.
qint64 lastNumber(Connection& connection, const GeneratedList& list)
{
    const QString no = QLatin1String(list.prefix) + QStringLiteral("No");
    const QString prefix = QLatin1String(list.numberPrefix);
    Recordset rs;
    rs.open(Sql("SELECT MAX(") + no + ") AS LastNo FROM " + list.table + " WHERE " + no + " LIKE "
            + quoted(prefix + QString(NumberDigits, QLatin1Char('_'))) + " AND " + no + " >= "
            + quoted(prefix + QString(NumberDigits, QLatin1Char('0'))) + " AND " + no + " <= "
            + quoted(prefix + QString(NumberDigits, QLatin1Char('9'))),
        connection);
    const QString last = rs.eof() ? QString() : rs.text(QStringLiteral("LastNo"));
    if (last.isEmpty())
        return 0;
    bool ok = false;
    const qint64 number = last.mid(prefix.size()).toLongLong(&ok);
    if (!ok)
        throw DbError(DbError::Kind::Usage, QStringLiteral("Cannot number documents after %1 in %2").arg(last, QLatin1String(list.table)));
    return number;
}

QString documentNo(const GeneratedList& list, qint64 number)
{
    return QLatin1String(list.numberPrefix) + QString::number(number).rightJustified(NumberDigits, QLatin1Char('0'));
}

// The document date `days` (an expression) after `start`, as the engine counts days.
Sql dayAfter(Engine engine, const QDate& start, const Sql& days)
{
    if (engine == Engine::PostgreSQL)
        return Sql("(DATE '") + start.toString(Qt::ISODate) + "' + CAST(" + days + " AS INTEGER))";
    // SQLite counts in Julian days; toJulianDay() is the day's noon, the date starts half a day before.
    return Sql("date(") + QString::number(start.toJulianDay() - 0.5, 'f', 1) + " + " + days + ")";
}

QList<Column> commonColumns(const GeneratedList& list, const Pools& pools, Engine engine, const QDate& start, qint64 rows,
    qint64 firstNumber)
{
    const QString p = QLatin1String(list.prefix);
    // The newest document is dated today, the oldest about three years back.
    const Sql day = Sql("(") + (SpanDays - 1) + " - (" + rows + " - i) * " + SpanDays + " / " + rows + ")";
    Sql description = Sql("CASE (i % 6)");
    for (int k = 0; k < 6; ++k)
        description += Sql(" WHEN ") + k + " THEN " + quoted(QString::fromUtf8(list.descriptions[k]));
    description += " END";
    QList<Column> columns = {
        {p + "No", quoted(QLatin1String(list.numberPrefix)) + " || substr(CAST(" + (qint64(10000000) + firstNumber - 1)
                + " + i AS VARCHAR(8)), 2)"},
        {p + "Date", dayAfter(engine, start, day)},
        {p + "DueDate", dayAfter(engine, start, day + " + 7 + (i % 24)")},
        {p + "RefNo", Sql("'REF-' || CAST(i AS VARCHAR(20))")},
        {p + "Description", description},
        {p + "CreateBy", pick(pools.users, 0, 1)},
        {p + "CreateDate", dayAfter(engine, start, day)},
    };
    columns << statusColumns(p) << list.columns(p, pools);
    return columns;
}

Sql insertStatement(const GeneratedList& list, const QList<Column>& columns, Engine engine, qint64 rows)
{
    Sql names, values;
    for (const Column& column : columns) {
        names += Sql(names.text().isEmpty() ? "" : ", ") + column.name;
        values += Sql(values.text().isEmpty() ? "" : ", ") + column.value;
    }
    Sql insert = Sql("INSERT INTO ") + list.table + " (" + names + ") ";
    if (engine == Engine::PostgreSQL)
        return insert + "SELECT " + values + " FROM generate_series(CAST(1 AS BIGINT), " + rows + ") AS n(i)";
    return insert + "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < " + rows + ") SELECT " + values
        + " FROM n";
}

} // namespace

QStringList DocumentGenerator::listAliases()
{
    QStringList aliases;
    for (const GeneratedList& list : Lists)
        aliases << QLatin1String(list.alias);
    return aliases;
}

QString DocumentGenerator::tableOf(const QString& listAlias)
{
    const GeneratedList* list = generatedList(listAlias);
    return list ? QLatin1String(list->table) : QString();
}

DocumentGenerator::DocumentGenerator(const QString& dataConnectionString, const QDate& today)
    : m_connectionString(dataConnectionString), m_today(today)
{
}

DocumentGenerator::Outcome DocumentGenerator::generate(const QString& listAlias, qint64 rows)
{
    const GeneratedList* list = generatedList(listAlias);
    if (!list)
        throw DbError(DbError::Kind::Usage, QStringLiteral("No document list %1 to generate documents for").arg(listAlias));
    if (rows <= 0)
        throw DbError(DbError::Kind::Usage, QStringLiteral("The number of documents must be above 0"));
    Connection connection;
    connection.open(m_connectionString);
    TransactionGuard transaction(connection);
    const qint64 first = lastNumber(connection, *list) + 1;
    if (first + rows - 1 > LargestNumber) {
        throw DbError(DbError::Kind::Usage, QStringLiteral("%1 documents after %2 would need more than %3 digits")
                                                .arg(rows)
                                                .arg(documentNo(*list, first - 1))
                                                .arg(NumberDigits));
    }
    const QList<Column> columns = commonColumns(*list, readPools(connection), connection.engine(),
        m_today.addDays(-(SpanDays - 1)), rows, first);
    const qint64 written = connection.execute(insertStatement(*list, columns, connection.engine(), rows));
    transaction.commit();
    return {QLatin1String(list->table), written, documentNo(*list, first), documentNo(*list, first + rows - 1)};
}

} // namespace qd8
