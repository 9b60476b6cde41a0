#include "support/SampleCompany.h"

#include "database/QuickFormPick.h"
#include "foundation/Services.h"
#include "widgets/DefaultServices_p.h"
#include "widgets/PickListDialog.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QLineEdit>
#include <QTest>
#include <QTableView>
#include <QTimer>

using namespace qd8;
using namespace qd8::test;

namespace {

// The library's own pick list, reached the way a control reaches it: a quick form through
// the list service and the default picker service, on the sample company.
class DefaultPickerTest : public SampleCompanyTest {
protected:
    void SetUp() override
    {
        SampleCompanyTest::SetUp();
        Services::setPicker(nullptr);  // the dialog, not the test script
    }
    // Types into the modal pick list once it is up, notes how many rows are left, then
    // presses `key`.
    void whenTheDialogOpens(const QString& typed, Qt::Key key)
    {
        QTimer::singleShot(0, [this, typed, key] {
            auto* dialog = qobject_cast<PickListDialog*>(QApplication::activeModalWidget());
            if (!dialog) {
                ADD_FAILURE() << "no pick list is showing";
                return;
            }
            typeText(dialog->searchBox(), typed);
            rowsShown = dialog->view()->model()->rowCount();
            QTest::keyClick(dialog->searchBox(), key);
            if (dialog->isVisible())
                dialog->reject();  // Enter over an empty list picks nothing and stays open
        });
    }
    int rowsShown = -1;
};

TEST_P(DefaultPickerTest, TypingNarrowsTheListAndEnterReturnsTheHiddenKey)
{
    whenTheDialogOpens(QStringLiteral("ขาย"), Qt::Key_Return);
    EXPECT_EQ(QuickFormPick(QStringLiteral("EMPTYPE"), appConnectionString(), dataConnectionString()), QStringLiteral("02"));
    EXPECT_EQ(rowsShown, 1);
    whenTheDialogOpens(QString(), Qt::Key_Escape);
    EXPECT_EQ(QuickFormPick(QStringLiteral("EMPTYPE"), appConnectionString(), dataConnectionString()), QString());
    EXPECT_EQ(rowsShown, 3);  // "พนักงานรายวัน" is not in use (TEmTFlag1=0): not offered
}

QD8_ON_BOTH_ENGINES(DefaultPickerTest);

// The Qt message boxes word their buttons in the session language, not the desktop's, and
// answer what was clicked.
TEST(DefaultMessages, ButtonsSpeakTheSessionLanguageAndAnswerWhatWasClicked)
{
    using Answer = MessageService::SaveAnswer;
    QtMessageService messages;
    enum Kind { Information, Question, Save };
    // The buttons in the box's order, the default one first; the one clicked ("" presses
    // Escape); the answer (question: 1 Yes; save: the SaveAnswer).
    const struct { int language; Kind kind; QStringList buttons; const char* click; int answer; } cases[] = {
        {0, Question, {"ไม่ใช่", "ใช่"}, "ไม่ใช่", 0},
        {1, Question, {"No", "Yes"}, "Yes", 1},
        {0, Information, {"ตกลง"}, "ตกลง", 0},
        {1, Information, {"OK"}, "OK", 0},
        {0, Save, {"ยกเลิก", "บันทึก", "ไม่บันทึก"}, "บันทึก", int(Answer::Save)},
        {0, Save, {"ยกเลิก", "บันทึก", "ไม่บันทึก"}, "ไม่บันทึก", int(Answer::Discard)},
        {1, Save, {"Cancel", "Save", "Discard"}, "Cancel", int(Answer::Cancel)},
        {1, Save, {"Cancel", "Save", "Discard"}, "", int(Answer::Cancel)},
        {1, Save, {"Cancel", "Save", "Discard"}, "Discard", int(Answer::Discard)},
    };
    for (const auto& c : cases) {
        messages.setLanguage(c.language);
        QStringList shown;
        QTimer::singleShot(0, [&shown, &c] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (!box)
                return ADD_FAILURE() << "no message box is showing";
            shown << box->defaultButton()->text();
            QAbstractButton* clicked = nullptr;
            for (QAbstractButton* button : box->buttons()) {
                if (button != box->defaultButton())
                    shown << button->text();
                if (button->text() == QString::fromUtf8(c.click))
                    clicked = button;
            }
            if (clicked)
                clicked->click();
            else
                QTest::keyClick(box, Qt::Key_Escape);
        });
        int answer = 0;
        if (c.kind == Question)
            answer = messages.question("t", "q");
        else if (c.kind == Save)
            answer = int(messages.askToSave("t", "s"));
        else
            messages.information("t", "i");
        EXPECT_EQ(shown, c.buttons) << c.language << c.click;
        EXPECT_EQ(answer, c.answer) << c.language << c.click;
    }
}

} // namespace
