#include "support/ScratchDatabase.h"

#include "accounting/CreditLimit.h"
#include "database/DataObject.h"
#include "foundation/DbError.h"
#include "foundation/Sql.h"
#include "foundation/SqlTrace.h"

#include <QDate>
#include <QLineEdit>

using namespace qd8;
using namespace qd8::test;

namespace {

Currency money(const char* text) { return *Currency::parse(QString::fromLatin1(text)); }

// Customers: a normal one with cheques of every status and invoices of every kind, a limit of
// 0, available credit above the limit, negative available credit, and cheques exceeding it.
QStringList fixture()
{
    const QString past = QDate::currentDate().addDays(-40).toString(Qt::ISODate);
    const QString future = QDate::currentDate().addDays(5).toString(Qt::ISODate);
    QStringList sql = {
        "INSERT INTO QD8TAR (TARNCode, TARNName, TARNCreditLimit, TARNCreditAvaiBal) VALUES ('C1', 'หนึ่ง', 100000, 60000)",
        "INSERT INTO QD8TAR (TARNCode, TARNName, TARNCreditLimit, TARNCreditAvaiBal) VALUES ('ZERO', 'ศูนย์', 0, 5000)",
        "INSERT INTO QD8TAR (TARNCode, TARNName, TARNCreditLimit, TARNCreditAvaiBal) VALUES ('HIGH', 'สูง', 10000, 20000)",
        "INSERT INTO QD8TAR (TARNCode, TARNName, TARNCreditLimit, TARNCreditAvaiBal) VALUES ('NEG', 'ติดลบ', 10000, -500)",
        "INSERT INTO QD8TAR (TARNCode, TARNName, TARNCreditLimit, TARNCreditAvaiBal) VALUES ('CHQ', 'เช็ค', 10000, 4000)",
        "INSERT INTO QD8TChequeRec (TCHRNo, TCHRTARNCode, TCHRTotalRate, TCHRChqStatus) VALUES ('R1', 'C1', 5000, 0)",
        "INSERT INTO QD8TChequeRec (TCHRNo, TCHRTARNCode, TCHRTotalRate, TCHRChqStatus) VALUES ('R2', 'C1', 3000.25, 1)",
        "INSERT INTO QD8TChequeRec (TCHRNo, TCHRTARNCode, TCHRTotalRate, TCHRChqStatus) VALUES ('R3', 'C1', 7000, 2)",
        "INSERT INTO QD8TChequeRec (TCHRNo, TCHRTARNCode, TCHRTotalRate, TCHRChqStatus) VALUES ('R4', 'C1', 1000, 3)",
        "INSERT INTO QD8TChequeRec (TCHRNo, TCHRTARNCode, TCHRTotalRate, TCHRChqStatus) VALUES ('R5', 'CHQ', 6000, 0)",
    };
    // Only the first two invoices are overdue: the others are later, cancelled, not approved or off the card.
    const char* invoices[][6] = {{"I1", "2000", "1", "0", "1", "P"}, {"I2", "500.5", "1", "0", "1", "P"}, {"I3", "900", "1", "0", "1", "F"},
        {"I4", "100", "1", "1", "1", "P"}, {"I5", "50", "0", "0", "1", "P"}, {"I6", "30", "1", "0", "0", "P"}};
    for (const auto& i : invoices)
        sql << QStringLiteral("INSERT INTO QD8TARInvoice (TIvoNo, TIvoTARNCode, TIvoArrears, TIvoApproveStatus, TIvoCancelStatus, "
                              "TIvoCardStatus, TIvoDate) VALUES ('%1', 'C1', %2, %3, %4, %5, '%6')")
                   .arg(i[0], i[1], i[2], i[3], i[4], i[5][0] == 'P' ? past : future);
    return sql;
}

class CreditLimitTest : public CompanyDataTest {
protected:
    void SetUp() override
    {
        CompanyDataTest::SetUp();
        if (IsSkipped())
            return;
        db->run(fixture());
        data = std::make_shared<DbDataObject>(db->connectionString(), QString(), 1, QStringLiteral("SOMCHAI"));
    }
    void setIgnoreCheques(const QString& value) const
    {
        db->run({QStringLiteral("DELETE FROM QD8TOptionValue"),
            QStringLiteral("INSERT INTO QD8TOptionValue (TOpVScope, TOpVScopeKey, TOpVTOptAlias, TOpVValue) VALUES ('%1', '', "
                           "'ARCREDITBALANCEIGNORECHEQUE', '%2')")
                .arg(DbDataObject::scopeName(OptionScope::Company), value)});
    }
    std::shared_ptr<DataObject> data;
    CreditLimit panel;
};

TEST_P(CreditLimitTest, SendsTheStatementsAsWritten)
{
    SqlTrace::Recorder trace;
    panel.Refresh(QD8ModeCreditCustomer, QStringLiteral("C1"), data);
    QStringList composed = trace.composed().filter(QStringLiteral("C1"));
    ASSERT_EQ(composed.size(), 4);
    EXPECT_EQ(composed[0], "SELECT TARNCreditLimit FROM QD8TAR WHERE TARNCode='C1'");
    EXPECT_EQ(composed[1], "SELECT TARNCreditAvaiBal FROM QD8TAR WHERE TARNCode='C1'");
    EXPECT_EQ(composed[2], "SELECT SUM(TCHRTotalRate) AS TCHRTotalRate  FROM Qd8TChequeRec WHERE (TCHRChqStatus=1 OR  TCHRChqStatus=0) "
                           "AND TCHRTARNCode='C1'");
    EXPECT_EQ(composed[3], "select sum(TIvoArrears) AS TIvoArrears FROM QD8TARInvoice WHERE TIvoApproveStatus=1 AND TIvoCancelStatus=0 "
                           "AND TIvoCardStatus=1 AND TIvoDate<=" + dateMarker(QDate::currentDate()) + " AND TIvoTARNCode='C1'");
    // A quote in the code never reaches the database.
    EXPECT_THROW(panel.Refresh(QD8ModeCreditCustomer, QStringLiteral("O'NEIL"), data), DbError);
    EXPECT_TRUE(trace.entries().last().refused);
}

TEST_P(CreditLimitTest, AmountsAndUsableCreditFollowTheOption)
{
    struct Case { const char* option; const char* customer; const char* afterCheques; const char* balance; };
    const Case cases[] = {
        {"0", "C1", "51999.75", "51999.75"},   // cheques of status 0 and 1 only
        {"1", "C1", "60000", "60000"},
        {"2", "C1", "60000", "60000"},         // neither 0 nor 1: the field after cheques, holding the available credit
        {"0", "ZERO", "5000", "0"},            // a limit of 0 gives nothing
        {"0", "HIGH", "20000", "10000"},       // capped at the limit
        {"0", "NEG", "-500", "0"},
        {"0", "CHQ", "-2000", "0"},
        {"1", "CHQ", "4000", "4000"},
        {"0", "NOBODY", "0", "0"},             // no row, empty sums
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(std::string(c.customer) + " option " + c.option);
        setIgnoreCheques(QString::fromLatin1(c.option));
        EXPECT_EQ(panel.GetCreditBalance(QD8ModeCreditCustomer, QString::fromLatin1(c.customer), data), money(c.balance));
        EXPECT_EQ(panel.availableAfterCheques(), money(c.afterCheques));
    }
    setIgnoreCheques(QStringLiteral("0"));
    EXPECT_EQ(panel.GetCreditLimit(QD8ModeCreditCustomer, QStringLiteral("C1"), data), money("100000"));
    EXPECT_EQ(panel.pendingCheques(), money("8000.25"));
    EXPECT_EQ(panel.overdueInvoices(), money("2500.5"));
    EXPECT_EQ(panel.findChild<QLineEdit*>(QStringLiteral("credit0"))->text(), "100,000.00");
    EXPECT_EQ(panel.findChild<QLineEdit*>(QStringLiteral("credit4"))->text(), "2,500.50");
    // Vendor mode reads nothing and answers what was shown.
    SqlTrace::Recorder trace;
    EXPECT_EQ(panel.GetCreditLimit(QD8ModeCreditVendor, QStringLiteral("HIGH"), data), money("100000"));
    EXPECT_TRUE(trace.composed().isEmpty());
}

QD8_ON_BOTH_ENGINES(CreditLimitTest);

} // namespace
