#include "support/ScratchDatabase.h"
#include "support/ScriptedServices.h"

#include "accounting/GLAmounts_p.h"
#include "accounting/GLControl.h"
#include "database/DataObject.h"
#include "foundation/Connection.h"
#include "foundation/SqlTrace.h"
#include "foundation/TransactionGuard.h"
#include "widgets/GridEditor.h"
#include "widgets/GridEditorModel.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QProcess>
#include <QTest>
#include <csignal>

using namespace qd8;
using namespace qd8::test;

namespace {

const QDate Day(2026, 11, 24);
Currency money(const char* text) { return *Currency::parse(QString::fromLatin1(text)); }

void fixture(const QString& cs)
{
    Connection c;
    c.open(cs);
    for (const char* sql : {"INSERT INTO QD8TGLBook (TGLBCode, TGLBName) VALUES ('JV', 'สมุดรายวันทั่วไป')",
             "INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCISControl) VALUES ('1000', 'สินทรัพย์', 'Assets', 1, 1)",
             "INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel) VALUES ('1100', 'เงินสด', 'Cash', 2)",
             "INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel) VALUES ('2100', 'ภาษี-ขาย', 'Output VAT', 2)",
             "INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel) VALUES ('4100', 'รายได้จากการขาย', 'Sales', 2)",
             "INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel, TACCAutoAllocate) VALUES ('5100', 'ค่าเช่า', 'Rent', 2, 1)",
             "INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel) VALUES ('5110', 'ค่าเช่า ก', 'Rent A', 2)",
             "INSERT INTO QD8TACChart (TACCCode, TACCName, TACCName2, TACCLevel) VALUES ('5120', 'ค่าเช่า ข', 'Rent B', 2)",
             "INSERT INTO QD8TAccountMap (TACMAlias, TACMTACCCode) VALUES ('CASH', '1100')",
             "INSERT INTO QD8TAccountMap (TACMAlias, TACMTACCCode) VALUES ('SALES', '4100')",
             "INSERT INTO QD8TACAllocate (TACLTACCCode, TACLLn, TACLToTACCCode, TACLShareRatioText, TACLTBraCode) VALUES ('5100', 1, '5110', '1/3', 'B1')",
             "INSERT INTO QD8TACAllocate (TACLTACCCode, TACLLn, TACLToTACCCode, TACLShareRatioText) VALUES ('5100', 2, '5120', '1/3')",
             "INSERT INTO QD8TACAllocate (TACLTACCCode, TACLLn, TACLToTACCCode, TACLShareRatioText) VALUES ('5100', 3, '5110', '1/3')",
             "INSERT INTO QD8TGLFormatGroup (TGFGAlias, TGFGTGLBCode) VALUES ('INV', 'JV')",
             "INSERT INTO QD8TGLFormat (TGFMTGFGAlias, TGFMLn, TGFMTACMAlias, TGFMSide, TGFMFormula) VALUES ('INV', 1, 'CASH', 'D', 'X1 + X2*7/100')",
             "INSERT INTO QD8TGLFormat (TGFMTGFGAlias, TGFMLn, TGFMTACMAlias, TGFMSide, TGFMFormula) VALUES ('INV', 2, 'SALES', 'C', 'X1')",
             "INSERT INTO QD8TGLFormat (TGFMTGFGAlias, TGFMLn, TGFMTACCCode, TGFMSide, TGFMFormula, TGFMDescription) VALUES ('INV', 3, '2100', 'C', '(X2*7)/100', 'ภาษีขาย')",
             "INSERT INTO QD8TGLFormat (TGFMTGFGAlias, TGFMLn, TGFMTACMAlias, TGFMSide, TGFMFormula) VALUES ('INV', 4, 'SALES', 'C', 'X3 - X1')",
             "INSERT INTO QD8TACYear (TACYID, TACYClosed) VALUES (2025, 1)",
             "INSERT INTO QD8TACPeriod (TACPTACYID, TACPID, TACPClosed) VALUES (2026, 3, 1)"})
        c.execute(Sql(sql));
}

// A voucher panel on a scratch company database of the engine under test.
class GLControlTest : public CompanyDataTest {
protected:
    void SetUp() override
    {
        CompanyDataTest::SetUp();
        if (IsSkipped())
            return;
        fixture(db->connectionString());
        gl = panel();
    }
    std::unique_ptr<GLControl> panel() const
    {
        auto p = std::make_unique<GLControl>();
        p->SetFirst(nullptr, std::make_shared<DbDataObject>(db->connectionString(), QString(), 1, QStringLiteral("SOMCHAI")), nullptr,
            nullptr, QStringLiteral("INV"));
        return p;
    }
    static QString save(GLControl& p, const QString& mode = {}, bool detailOnly = false, const QString& number = {}, QDate day = Day)
    {
        return p.UpdateGL8(day, "R1", day, {}, {}, nullptr, {}, 0, {}, {}, {}, number, mode, {}, 0, 0, detailOnly);
    }
    // Cash 100 against sales 100.
    void twoLines(GLControl& p) const
    {
        p.setGLBook("JV");
        p.FillLine("1100", true, money("100"));
        p.FillLine("4100", false, money("100"));
    }
    qint64 count(const char* sql) const { return queryColumn(db->connectionString(), Sql(sql)).value(0).toLongLong(); }
    std::unique_ptr<GLControl> gl;
};

TEST_P(GLControlTest, SavesRunTheStatementsInOrder)
{
    struct Case {
        const char* mode;
        bool detailOnly;
        const char* number;
        QStringList expected;  // the DELETEs and key SELECTs, with the first number as A and a new one as B
    };
    const Case cases[] = {
        {"", false, "", {"SELECT * FROM QD8TGLTrans WHERE TGLTNo='A'", "SUB 1", "SUB 2"}},
        {"EDIT", false, "", {"DELETE FROM QD8TGLTransSub WHERE TGTSTGLTNo='A'", "DELETE FROM QD8TGLTrans WHERE TGLTNo='A'",
            "DELETE FROM QD8TGLTransSub WHERE TGTSTGLTNo='A'", "DELETE FROM QD8TGLTrans WHERE TGLTNo='A'",
            "SELECT * FROM QD8TGLTrans WHERE TGLTNo='A'", "SUB 1", "SUB 2"}},
        {"EDIT", false, "B", {"DELETE FROM QD8TGLTransSub WHERE TGTSTGLTNo='A'", "DELETE FROM QD8TGLTrans WHERE TGLTNo='A'",
            "DELETE FROM QD8TGLTransSub WHERE TGTSTGLTNo='B'", "DELETE FROM QD8TGLTrans WHERE TGLTNo='B'",
            "SELECT * FROM QD8TGLTrans WHERE TGLTNo='B'", "SUB 1", "SUB 2"}},
        {"EDIT", true, "", {"DELETE FROM QD8TGLTransSub WHERE TGTSTGLTNo='A'", "DELETE FROM QD8TGLTransSub WHERE TGTSTGLTNo='A'",
            "SELECT * FROM QD8TGLTrans WHERE TGLTNo='A'", "SUB 1", "SUB 2"}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(std::string(c.mode) + (c.detailOnly ? " detail only " : " ") + c.number);
        auto p = panel();
        twoLines(*p);
        p->FillLine("2100", true, {});  // a zero line is not saved
        const QString a = save(*p);
        ASSERT_EQ(a, "JV26110001");
        p->grid()->SetValue(1, GLControl::ColDebit, QVariant::fromValue(money("250.5")));
        p->grid()->SetValue(2, GLControl::ColCredit, QVariant::fromValue(money("250.5")));
        SqlTrace::Recorder trace;
        bool detailOnly = c.detailOnly;
        const QString b = p->UpdateGL8(Day, "R1", Day, {}, {}, nullptr, {}, 0, {}, {}, {}, QString::fromLatin1(c.number), c.mode, {}, 0, 0, detailOnly);
        QStringList got;
        for (const QString& s : trace.composed())
            if (s.startsWith("DELETE") || s.startsWith("SELECT * FROM QD8TGLTrans"))
                got << QString(s).replace(a, "A").replace("SELECT * FROM QD8TGLTransSub WHERE TGTSTGLTNo = 'B' AND TGTSLn = ", "SUB ")
                              .replace("SELECT * FROM QD8TGLTransSub WHERE TGTSTGLTNo = 'A' AND TGTSLn = ", "SUB ");
        EXPECT_EQ(got, c.expected);
        EXPECT_EQ(b, *c.number ? QString("B") : a);
        // Read back: one voucher, its amount and lines in grid order, the old number gone.
        p->FillData(b);
        EXPECT_EQ(p->grid()->Rows(), 2);
        EXPECT_EQ(p->GETSumDebit(), money("250.5"));
        EXPECT_EQ(p->loadedHeader("TGLTRefNo").toString(), "R1");
        EXPECT_EQ(count("SELECT COUNT(*) FROM QD8TGLTrans"), 1);
        db->run({"DELETE FROM QD8TGLTransSub", "DELETE FROM QD8TGLTrans", "DELETE FROM QD8TRunningNumber"});
    }
    // An empty description is stored as one blank; the lines carry year and month.
    auto p = panel();
    twoLines(*p);
    const QString n = save(*p);
    EXPECT_EQ(count("SELECT COUNT(*) FROM QD8TGLTrans WHERE TGLTDescription=' ' AND TGLTInputSource='JV' AND TGLTAmount=100"), 1) << n.toStdString();
    EXPECT_EQ(count("SELECT COUNT(*) FROM QD8TGLTransSub WHERE TGTSTACPTACYID=2026 AND TGTSTACPID=11 AND TGTSName='เงินสด'"), 1);
}

TEST_P(GLControlTest, ReadinessAndRefusals)
{
    struct Case {
        const char* name;
        std::function<void(GLControl&)> setup;
        int zeroOption;
        const char* message;  // start of it
        int savedLines;       // -1: a host would not save
    };
    const Case cases[] = {
        {"balanced", [](GLControl&) {}, 0, "", 2},
        {"no book", [](GLControl& p) { p.setGLBook({}); }, 0, "เลือกสมุดรายวัน หรือ กำหนด ค่าเริ่มต้นสมุดรายวันให้เรียบร้อย", -1},
        {"unbalanced", [](GLControl& p) { p.FillLine("1100", true, money("0.01")); }, 0,
            "ยอดบัญชีเดบิต และเครดิตไม่เท่ากัน หรือ รหัสบัญชีไม่ถูกต้อง กรุณาตรวจสอบรายการ", -1},
        {"deleted and blank rows ignored",
            [](GLControl& p) {
                p.grid()->DeleteRow(p.grid()->AddItem({"1100", "", "", "5"}));
                p.FillLine({}, true, money("7"));
            },
            0, "", 2},
        {"zero, option 0", [](GLControl& p) { p.grid()->ClearRows(); p.FillLine("1100", true, {}); }, 0,
            "ยอดรวม เป็น 0 โปรดตรวสอบรูปแบบการบันทึกบัญชี", -1},
        {"zero, option 1: no voucher", [](GLControl& p) { p.grid()->ClearRows(); }, 1, "", 0},
        {"zero, option 2: zero lines saved", [](GLControl& p) { p.grid()->ClearRows(); p.FillLine("1100", true, {}); }, 2, "", 1},
        {"closed year", [](GLControl& p) { p.setGLDocDate({2025, 6, 1}); }, 0, "ปีบัญชี 2568 ปิดแล้ว", 0},
        {"closed period", [](GLControl& p) { p.setGLDocDate({2026, 3, 9}); }, 0, "งวดบัญชี", 0},
        {"quote", [](GLControl& p) { p.setDescription("O'Brien"); }, 0, "ข้อความ \"O'Brien\" มีเครื่องหมาย '", 0},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        db->run({QStringLiteral("DELETE FROM QD8TOptionValue"),
            QStringLiteral("INSERT INTO QD8TOptionValue (TOpVScope, TOpVScopeKey, TOpVTOptAlias, TOpVValue) VALUES ('%1', '1', 'GLZeroOption', '%2')")
                .arg(DbDataObject::scopeName(OptionScope::User))
                .arg(c.zeroOption)});
        scriptedMessages().reset();
        auto p = panel();
        twoLines(*p);
        p->setGLDocDate(Day);
        c.setup(*p);
        const QString message = p->isReadyToSave();
        const QString expected = QString::fromUtf8(c.message);
        EXPECT_EQ(message.left(expected.isEmpty() ? message.size() : expected.size()), expected);
        // The save refuses on its own a closed period and a quote, before writing anything.
        if (c.savedLines >= 0) {
            EXPECT_EQ(save(*p, {}, false, {}, p->GLDocDate()).isEmpty(), c.savedLines == 0);
            EXPECT_EQ(count("SELECT COUNT(*) FROM QD8TGLTransSub"), c.savedLines);
            EXPECT_EQ(count("SELECT COUNT(*) FROM QD8TRunningNumber"), c.savedLines ? 1 : 0);
        }
        db->run({"DELETE FROM QD8TGLTransSub", "DELETE FROM QD8TGLTrans", "DELETE FROM QD8TRunningNumber"});
    }
}

TEST_P(GLControlTest, AutomaticFormatAllocationAndF9)
{
    for (int n : {1, 2, 3})
        gl->setInValueX(n, money(n == 1 ? "1000" : n == 2 ? "1000.01" : "900"));
    QStringList fired;
    QObject::connect(gl.get(), &GLControl::BeforeFillCustomFormat, [&] { fired << "before"; });
    QObject::connect(gl.get(), &GLControl::FillAutoFormat, [&] { fired << "after"; });
    EXPECT_FALSE(gl->FillAutoFormatNow());  // inputs not ready
    gl->setInputValueReady(true);
    ASSERT_TRUE(gl->FillAutoFormatNow());
    EXPECT_EQ(fired, QStringList({"before", "before", "after"}));
    // 1000 + 70.0007 rounded; X3 - X1 = -100 goes to the debit side.
    const QList<GLLine> lines = gl->GETGLList();
    ASSERT_EQ(lines.size(), 4);
    EXPECT_EQ(lines[0].debit, money("1070"));
    EXPECT_EQ(lines[2].account, "2100");
    EXPECT_EQ(lines[2].credit, money("70"));
    EXPECT_EQ(lines[2].description, "ภาษีขาย");
    EXPECT_EQ(lines[3].debit, money("100"));
    EXPECT_EQ(gl->GLBook(), "JV");
    EXPECT_EQ(gl->GetInputVATType(), GLInputVATTypeSale);

    // 100.00 over three thirds: rounded shares, the last takes the rest.
    gl->ClearOldRecord();
    gl->FillAutoLineTR({}, true, money("100"), nullptr, "5100");
    ASSERT_EQ(gl->grid()->Rows(), 3);
    EXPECT_EQ(gl->GETSumDebit(), money("100"));
    EXPECT_EQ(gl->grid()->GetValue(3, GLControl::ColDebit).value<Currency>(), money("33.34"));
    EXPECT_EQ(gl->grid()->TextMatrix(1, 15), "B1");

    // F9 on the credit of a new line balances the voucher; a line added with Insert starts
    // with what is left open.
    gl->show();
    auto* view = gl->grid()->findChild<QAbstractItemView*>();
    QTest::keyClick(view, Qt::Key_Insert);
    EXPECT_EQ(gl->grid()->GetValue(4, GLControl::ColCredit).value<Currency>(), money("100"));
    gl->grid()->SetValue(4, GLControl::ColCredit, QVariant::fromValue(money("1")));
    gl->grid()->setRow(4), gl->grid()->setCol(GLControl::ColCredit);
    QTest::keyClick(view, Qt::Key_F9);
    EXPECT_EQ(gl->GETSumCredit(), money("100"));
    gl->grid()->setCol(GLControl::ColDebit);
    QTest::keyClick(view, Qt::Key_F9);  // on the debit side the balance is negative: it stays a credit
    EXPECT_EQ(gl->grid()->GetValue(4, GLControl::ColCredit).value<Currency>(), money("100"));
}

TEST(GLAmounts, FormulasAndShares)
{
    Currency x[20];
    x[0] = money("10");
    x[1] = money("3");
    const std::pair<const char*, std::optional<Currency>> formulas[] = {{"X1+X2*2", money("16")}, {"(X1+X2)*2", money("26")},
        {"X1/X2", money("3.3333")}, {"-X1 + 0.5", money("-9.5")}, {"X1/0", std::nullopt}, {"X21", std::nullopt},
        {"X1; DROP TABLE QD8TGLTrans", std::nullopt}, {"X1 +", std::nullopt}};
    for (const auto& [formula, expected] : formulas)
        EXPECT_EQ(evaluateFormula(QString::fromLatin1(formula), x), expected) << formula;
    const std::pair<const char*, QList<Currency>> splits[] = {{"1/3 1/3 1/3", {money("33.33"), money("33.33"), money("33.34")}},
        {"30% 0.3 40%", {money("30"), money("30"), money("40")}}, {"2/3 1/3", {money("66.67"), money("33.33")}}};
    for (const auto& [ratios, expected] : splits) {
        QList<ShareRatio> parsed;
        for (const QString& r : QString::fromLatin1(ratios).split(' '))
            parsed << *parseShareRatio(r);
        EXPECT_EQ(splitByShares(money("100"), parsed), expected) << ratios;
    }
    EXPECT_FALSE(parseShareRatio("1/0"));
    EXPECT_FALSE(parseShareRatio("abc"));
}

TEST(GLRecognition, VatAndWithholdingIgnoreDashes)
{
    const std::tuple<const char*, GLInputVATType, GLInputWHTType> cases[] = {{"ภาษี-ขาย", GLInputVATTypeSale, GLInputWHTTypeNone},
        {"ภาษีซื้อ===ภาษีขาย", GLInputVATTypeSale, GLInputWHTTypeNone}, {"ภาษี-ซื้อ", GLInputVATTypePurchase, GLInputWHTTypeNone},
        {"ภาษีถูก-หัก ณ ที่จ่าย", GLInputVATTypeNone, GLInputWHTTypeSale}, {"ภาษีหัก ณ ที่จ่าย", GLInputVATTypeNone, GLInputWHTTypePurchase},
        {"เงินสด", GLInputVATTypeNone, GLInputWHTTypeNone}};
    for (const auto& [text, vat, wht] : cases) {
        GLControl p;
        const QStringList parts = QString::fromUtf8(text).split("===");
        p.grid()->AddItem({"1", parts[0], parts.value(1)});
        EXPECT_EQ(p.GetInputVATType(), vat) << text;
        EXPECT_EQ(p.GetInputWHTType(), wht) << text;
        p.grid()->DeleteRow(1);
        EXPECT_EQ(p.GetInputVATType(), GLInputVATTypeNone) << "a deleted line is not read";
    }
}

TEST_P(GLControlTest, ASecondUserCannotOverwriteUnseen)
{
    twoLines(*gl);
    const QString number = save(*gl);
    for (const bool deleted : {false, true}) {
        auto a = panel(), b = panel();
        a->FillData(number);
        b->FillData(number);
        a->setRUNMODE("EDIT"), b->setRUNMODE("EDIT");
        if (deleted) {
            db->run({QStringLiteral("DELETE FROM QD8TGLTransSub"), QStringLiteral("DELETE FROM QD8TGLTrans")});
        } else {
            b->grid()->SetValue(1, GLControl::ColDescription, "B changed");
            EXPECT_EQ(save(*b), number);
        }
        scriptedMessages().reset();
        a->grid()->SetValue(1, GLControl::ColDescription, "A changed");
        EXPECT_EQ(save(*a), "");
        ASSERT_EQ(scriptedMessages().shown.size(), 1);
        EXPECT_TRUE(scriptedMessages().shown[0].text.contains("ผู้ใช้อื่น"));
        EXPECT_EQ(count("SELECT COUNT(*) FROM QD8TGLTransSub WHERE TGTSDescription='A changed'"), 0);
        EXPECT_EQ(save(*b), deleted ? "" : number) << "the one who saved last may save again";
    }
}

TEST_P(GLControlTest, OnTheHostsConnectionTheVoucherCommitsWithTheDocument)
{
    for (const bool commit : {false, true}) {
        auto p = panel();
        twoLines(*p);
        {
            Connection c;
            c.open(db->connectionString());
            TransactionGuard transaction(c);
            c.execute(Sql("INSERT INTO QD8TAR (TARNCode) VALUES ('C1')"));
            p->setSaveConnection(&c);
            EXPECT_EQ(save(*p), "JV26110001");
            if (commit)
                transaction.commit();
        }
        EXPECT_EQ(count("SELECT COUNT(*) FROM QD8TAR"), commit ? 1 : 0);
        EXPECT_EQ(count("SELECT COUNT(*) FROM QD8TGLTransSub"), commit ? 2 : 0);
        EXPECT_EQ(count("SELECT COUNT(*) FROM QD8TRunningNumber"), commit ? 1 : 0);
    }
}

// Child processes of this same program: QD8_GL_CHILD names the work, QD8_GL_DB the database.
//   kill: re-saves the voucher and is killed (SIGKILL) when its first line is being written;
//   many: saves 500 new vouchers.
struct Child {
    Child()
    {
        const QByteArray work = qgetenv("QD8_GL_CHILD");
        if (work.isEmpty())
            return;
        static int argc = 1;
        static char name[] = "child";
        static char* argv[] = {name, nullptr};
        QApplication app(argc, argv);
        GLControl p;
        const QString cs = qEnvironmentVariable("QD8_GL_DB");
        p.SetFirst(nullptr, std::make_shared<DbDataObject>(cs, QString(), 1, QStringLiteral("SOMCHAI")), nullptr, nullptr, {});
        p.setGLBook("JV");
        bool detailOnly = false;
        if (work == "kill") {
            p.FillData("JV26110001");
            p.setRUNMODE("EDIT");
            p.FillLine("1100", true, money("1"));
            p.FillLine("4100", false, money("1"));
            SqlTrace::addListener([](const SqlTrace::Entry& e) {
                if (e.composed.startsWith("SELECT * FROM QD8TGLTransSub"))
                    raise(SIGKILL);
            });
            p.UpdateGL8(Day, {}, {}, {}, {}, nullptr, {}, 0, {}, {}, {}, {}, {}, {}, 0, 0, detailOnly);
        } else {
            p.FillLine("1100", true, money("12.34"));
            p.FillLine("4100", false, money("12.34"));
            for (int i = 0; i < 500; ++i) {
                p.setGLDocNo({});
                p.UpdateGL8(Day, {}, {}, {}, {}, nullptr, {}, 0, {}, {}, {}, {}, {}, {}, 0, 0, detailOnly);
            }
        }
        std::_Exit(0);
    }
} child;

QProcess* startChild(const QString& work, const QString& cs)
{
    auto* process = new QProcess;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert("QD8_GL_CHILD", work);
    env.insert("QD8_GL_DB", cs);
    env.insert("QT_QPA_PLATFORM", "offscreen");
    process->setProcessEnvironment(env);
    process->start(QCoreApplication::applicationFilePath(), {});
    return process;
}

TEST_P(GLControlTest, AKilledSaveLeavesThePreviousVoucher)
{
    twoLines(*gl);
    gl->setDescription("ก่อน");
    ASSERT_EQ(save(*gl), "JV26110001");
    for (int round = 0; round < 3; ++round) {
        std::unique_ptr<QProcess> killed(startChild("kill", db->connectionString()));
        ASSERT_TRUE(killed->waitForFinished(30000));
        EXPECT_EQ(killed->exitStatus(), QProcess::CrashExit);
        auto p = panel();
        p->FillData("JV26110001");
        EXPECT_EQ(p->Description(), "ก่อน");
        EXPECT_EQ(p->grid()->Rows(), 2);
        EXPECT_EQ(p->GETSumDebit(), money("100"));
    }
}

TEST_P(GLControlTest, TwoProcessesSavingAtOnceNumberEveryVoucherOnce)
{
    std::unique_ptr<QProcess> one(startChild("many", db->connectionString())), two(startChild("many", db->connectionString()));
    ASSERT_TRUE(one->waitForFinished(120000));
    ASSERT_TRUE(two->waitForFinished(120000));
    EXPECT_EQ(one->exitCode() + two->exitCode(), 0);
    EXPECT_EQ(count("SELECT COUNT(DISTINCT TGLTNo) FROM QD8TGLTrans"), 1000);
    EXPECT_EQ(count("SELECT COUNT(DISTINCT TGTSTGLTNo) FROM QD8TGLTransSub"), 1000);
    EXPECT_EQ(count("SELECT COUNT(*) FROM (SELECT TGTSTGLTNo FROM QD8TGLTransSub GROUP BY TGTSTGLTNo "
                    "HAVING SUM(TGTSDebit) <> SUM(TGTSCredit) OR COUNT(*) <> 2) x"),
        0);
}

QD8_ON_BOTH_ENGINES(GLControlTest);

} // namespace
