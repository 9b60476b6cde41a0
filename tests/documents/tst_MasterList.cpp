#include "support/SampleCompany.h"
#include "support/ScriptedServices.h"

#include "database/AppObject.h"
#include "database/ClientObject.h"
#include "database/DataObject.h"
#include "documents/MasterList.h"
#include "foundation/SqlTrace.h"
#include "widgets/DataView.h"
#include "widgets/FormCollection.h"
#include "widgets/FormRegistry.h"

#include <QComboBox>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>

using namespace qd8;
using namespace qd8::test;

// A master form as a host registers it: the late-bound members a list drives, recorded.
class RecordingMasterForm : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QString RUNMODE MEMBER runMode)
    Q_PROPERTY(QString FormFunction MEMBER formFunction)
    Q_PROPERTY(QString NewMasterCode MEMBER newMasterCode)
    Q_PROPERTY(QString MasterCode MEMBER masterCode)

public:
    using QWidget::QWidget;
    Q_INVOKABLE void Setbuttons() { calls << QStringLiteral("Setbuttons:") + runMode + QLatin1Char(':') + formFunction; }
    Q_INVOKABLE void FillData() { calls << QStringLiteral("FillData:") + masterCode; }

    QString runMode, formFunction, newMasterCode, masterCode;
    QStringList calls;
};

namespace {

RecordingMasterForm* lastForm = nullptr;

class MasterListTest : public SampleCompanyTest {
protected:
    void SetUp() override
    {
        SampleCompanyTest::SetUp();
        if (IsSkipped())
            return;
        runOnData({"DELETE FROM QD8TAR2", "DELETE FROM QD8TAR",
            "INSERT INTO QD8TAR (TARNCode, TARNName, TARNName2, TARNCreditLimit, TARNFlag1) VALUES ('C01', 'ACME Trading', 'Acme', 50000, 1)",
            "INSERT INTO QD8TAR (TARNCode, TARNName, TARNName2, TARNCreditLimit, TARNFlag1) VALUES ('C02', 'บริษัท สยามค้าส่ง', 'Siam Wholesale', 0, 0)",
            "INSERT INTO QD8TAR (TARNCode, TARNName, TARNName2, TARNCreditLimit, TARNFlag1) VALUES ('C03', 'acme north', NULL, 1000, NULL)"});
        runOnApp({"DELETE FROM QD8TFormDocList WHERE TFDLTCmdAlias='TESTAR'",
            "INSERT INTO QD8TFormDocList (TFDLTCmdAlias, TFDLPrimaryKeyList, TFDLColumnList, TFDLNameList, TFDLNameList2, TFDLWidthList, "
            "TFDLTypeList, TFDLQuery, TFDLFormDetail, TFDLFormFunction, TFDLDefaultFilter) VALUES ('TESTAR', 'TARNCode', "
            "'TARNCode,TARNName,TARNName2,TARNCreditLimit,TARNFlag1', 'รหัส,ชื่อ,ชื่ออังกฤษ,วงเงิน,ใช้งาน', 'Code,Name,English,Limit,In use', "
            "'1200,3000,3000,1500,600', '0,0,0,2,1', 'QD8TAR', 'TESTMASTER', 'AR', 1)"});
        FormRegistry::registerForm(QStringLiteral("TESTMASTER"), [](QWidget* parent) {
            lastForm = new RecordingMasterForm(parent);
            return lastForm;
        });
        list.setUserID(1);
        list.SetFilter(QStringLiteral("TESTAR"), QStringLiteral("AR"),
            std::make_shared<DbDataObject>(dataConnectionString(), appConnectionString(), 1),
            std::make_shared<SessionAppObject>(list.session()), std::make_shared<DbClientObject>(dataConnectionString(), 1), &forms,
            QStringLiteral("ลูกค้า"), QStringLiteral("Customers"));
    }
    void TearDown() override
    {
        FormRegistry::unregisterForm(QStringLiteral("TESTMASTER"));
        delete lastForm;
        lastForm = nullptr;
        SampleCompanyTest::TearDown();
    }

    QStringList shown()
    {
        list.dataView()->fetchAll();
        QStringList keys;
        for (int row = 0; row < list.dataView()->fetchedRows(); ++row)
            keys << list.dataView()->value(row, QStringLiteral("TARNCode")).toString();
        keys.sort();
        return keys;
    }
    void search(const QString& text)
    {
        auto* box = list.findChild<QLineEdit*>(QStringLiteral("txtSearch"));
        box->setText(text);
        QTest::keyClick(box, Qt::Key_Return);
    }

    WindowFormCollection forms;
    MasterList list;
};

const QString Head = QStringLiteral("SELECT TARNCode,TARNName,TARNName2,TARNCreditLimit,TARNFlag1 FROM QD8TAR  WHERE TARNCode<>''");

} // namespace

TEST_P(MasterListTest, TheInUseChoiceFiltersOnFlag1WithNullAsNotInUse)
{
    const struct { int index; QString condition; QStringList customers; } cases[] = {{0, " AND TARNFlag1=1", {"C01"}}, {1, "", {"C01", "C02", "C03"}},
        {2, " AND (TARNFlag1=0 OR TARNFlag1 is null)", {"C02", "C03"}}};
    EXPECT_EQ(list.findChild<QComboBox*>("ComboListDesigner1")->currentIndex(), 1);  // the definition's default
    for (const auto& c : cases) {
        SCOPED_TRACE(c.index);
        list.findChild<QComboBox*>("ComboListDesigner1")->setCurrentIndex(c.index);  // reads the rows again itself
        EXPECT_EQ(list.selectText().text(), Head + c.condition);
        EXPECT_EQ(shown(), c.customers);
    }
}

TEST_P(MasterListTest, SearchLooksInTheTextColumnsWithoutRegardToLatinCase)
{
    search("  acme ");
    EXPECT_EQ(list.selectText().text(),
        Head + " AND (TARNCode LIKE '%acme%' OR TARNName LIKE '%acme%' OR TARNName2 LIKE '%acme%')");
    EXPECT_EQ(shown(), QStringList({"C01", "C03"}));
    search("สยาม");
    EXPECT_EQ(shown(), QStringList({"C02"}));
    search("   ");
    EXPECT_EQ(list.selectText().text(), Head);
}

TEST_P(MasterListTest, AQuoteInTheSearchIsRefusedAndNothingRuns)
{
    const QString before = list.selectText().text();
    // The count of the first reading runs on a thread of its own: let it come back first.
    ASSERT_TRUE(QTest::qWaitFor([&] { return list.dataView()->totalRows() >= 0; }, 10000));
    SqlTrace::Recorder trace;
    search("O'Brien");
    EXPECT_TRUE(trace.composed().isEmpty());
    ASSERT_EQ(scriptedMessages().shown.size(), 1);
    EXPECT_EQ(scriptedMessages().shown[0].kind, "information");
    EXPECT_EQ(list.selectText().text(), before);
    EXPECT_EQ(list.findChild<QLineEdit*>("txtSearch")->text(), "O'Brien");  // kept for correcting
}

TEST(MasterListSearch, OnlyColumnsTypedAsTextTakePart)
{
    const struct { const char* text; const char* columns; const char* types; const char* condition; } cases[] = {
        {"ab", "A,B,C", "0,1,0", " AND (A LIKE '%ab%' OR C LIKE '%ab%')"},
        {"ab", "A,B", "1,2", ""},
        {"ab", "A,B", "0", " AND (A LIKE '%ab%')"},  // a missing type is no text
        {"", "A", "0", ""},
        {" a b ", "A", "0", " AND (A LIKE '%a b%')"},  // one group for the whole phrase
    };
    for (const auto& c : cases)
        EXPECT_EQ(MasterList::searchCondition(c.text, c.columns, c.types).text(), QString::fromUtf8(c.condition)) << c.text << c.types;
}

TEST_P(MasterListTest, TheMasterFormIsDrivenThroughItsMembers)
{
    EXPECT_TRUE(QTest::qWaitFor([&] { return list.countText() == "Total 3 Records"; }, 10000)) << list.countText().toStdString();
    list.dataView()->setCurrentRow(1);
    const QString key = list.dataView()->keyText();
    QSignalSpy captions(&list, &MasterList::ChangeCaption);
    Q_EMIT list.dataView()->editRequested();
    ASSERT_NE(lastForm, nullptr);
    EXPECT_EQ(lastForm->calls, QStringList({"Setbuttons:EDIT:AR", "FillData:" + key}));
    EXPECT_EQ(lastForm->newMasterCode, key);
    EXPECT_EQ(lastForm->windowTitle(), "ลูกค้า - " + key);
    EXPECT_EQ(captions.size(), 1);
}

QD8_ON_BOTH_ENGINES(MasterListTest);

#include "tst_MasterList.moc"
