#include "support/SampleCompany.h"

#include "database/PermissionObject.h"
#include "foundation/DbError.h"
#include "widgets/HostedControl.h"

#include <QToolButton>
#include <memory>
#include <stdexcept>

using namespace qd8;
using namespace qd8::test;

namespace {

// A control as the editors are built: eight tool-bar buttons.
class ToolBarControl : public HostedControl {
public:
    ToolBarControl()
    {
        for (const QString& key : PermissionObject::ToolBarKeys) {
            auto* button = new QToolButton(this);
            button->setObjectName(key);
            registerToolButton(key, button);
        }
    }
    QToolButton* button(const QString& key) const { return findChild<QToolButton*>(key); }
};

// A permission object answering from a table and recording the order of the questions.
class TablePermission : public PermissionObject {
public:
    explicit TablePermission(int every) : m_every(every) {}
    void LoadCommandRights(qint32, const QString&, const QString&, const QString&) override {}
    int right(const QString& key) const override
    {
        asked << key;
        return m_every;
    }
    bool hasRight(const QString&) override { return m_every != 0; }
    QString employeeScope(const QString&, int) override { return {}; }
    mutable QStringList asked;

private:
    int m_every;
};

TEST(HostedControl, SetPermissionByNameDisablesInTheSuitesOrderAndNeverEnables)
{
    // Through the meta-object, as a late-binding host calls it; then a C++ call granting all.
    ToolBarControl control;
    TablePermission none(0), all(1);
    ASSERT_TRUE(QMetaObject::invokeMethod(&control, "SetPermission", Q_ARG(qd8::PermissionObject*, &none)));
    EXPECT_EQ(none.asked, PermissionObject::ToolBarKeys);
    EXPECT_EQ(control.permission(), &none);
    control.SetPermission(all);
    for (const QString& key : PermissionObject::ToolBarKeys)
        EXPECT_FALSE(control.button(key)->isEnabled()) << key.toStdString();

    QWidget form;
    int answer = -1;
    ASSERT_TRUE(QMetaObject::invokeMethod(&control, "SetParentForm", Q_RETURN_ARG(int, answer), Q_ARG(QWidget*, &form)));
    EXPECT_EQ(answer, 0);  // no grid to hand the form to
    EXPECT_EQ(control.parentForm(), &form);
}

TEST(HostedControl, TheControlKeepsThePermissionObjectWhileItLives)
{
    ToolBarControl control;
    EXPECT_EQ(control.permission(), nullptr);
    {
        TablePermission passing(1);
        control.SetPermission(passing);
        EXPECT_EQ(control.permission(), &passing);
    }
    EXPECT_EQ(control.permission(), nullptr);  // the host destroyed it: nothing dangles

    auto shared = std::make_shared<TablePermission>(1);
    std::weak_ptr<TablePermission> watch = shared;
    control.SetPermission(std::move(shared));  // handed over; the host lets go
    ASSERT_FALSE(watch.expired());
    EXPECT_EQ(control.permission(), watch.lock().get());
    TablePermission next(1);
    control.SetPermission(next);  // another one replaces it
    EXPECT_TRUE(watch.expired());
    EXPECT_EQ(control.permission(), &next);
    control.SetPermission(nullptr);
    EXPECT_EQ(control.permission(), nullptr);
}

TEST(HostedControl, SetLastIsSetLast2WithoutConnectionStrings)
{
    struct Case { const char* folder; const char* userId; const char* expectedFolder; qint32 expectedUser; };
    const Case cases[] = {
        {"C:\\QD8\\User", "12", "C:\\QD8\\User\\", 12},
        {"C:\\QD8\\User\\", " 7 ", "C:\\QD8\\User\\", 7},
        {"", "0", "\\", 0},
        {"D:\\x", "2.5", "D:\\x\\", 2},
    };
    for (const Case& c : cases) {
        ToolBarControl viaSetLast, viaSetLast2;
        viaSetLast.setDataConnectionString(QStringLiteral("kept?"));
        viaSetLast.SetLast(QLatin1String(c.folder), QStringLiteral("ctl"), QLatin1String(c.userId));
        viaSetLast2.SetLast2(QLatin1String(c.folder), QStringLiteral("ctl"), QLatin1String(c.userId), QString(), QString());
        for (const HostedControl* control : {static_cast<HostedControl*>(&viaSetLast), static_cast<HostedControl*>(&viaSetLast2)}) {
            EXPECT_EQ(control->session().FolderPathName, QLatin1String(c.expectedFolder)) << c.folder;
            EXPECT_EQ(control->UserID(), c.expectedUser) << c.userId;
            EXPECT_EQ(control->LanguageID(), 0);
            EXPECT_EQ(control->nameSuffix(), QString());
            EXPECT_EQ(control->DataConnectionString(), QString());
            EXPECT_EQ(control->session().ControlName, QStringLiteral("ctl"));
        }
    }
    ToolBarControl control;
    EXPECT_THROW(control.SetLast(QStringLiteral("C:\\"), QStringLiteral("ctl"), QStringLiteral("abc")), std::invalid_argument);
}

class HostedControlSession : public SampleCompanyTest {};

TEST_P(HostedControlSession, TheLanguageComesFromTheUsersSettingAndPicksTheColumnSuffix)
{
    ToolBarControl thai, english;
    thai.SetLast2(QStringLiteral("C:\\u"), QStringLiteral("qg"), QStringLiteral("1"), dataConnectionString(), appConnectionString());
    english.SetLast2(QStringLiteral("C:\\u"), QStringLiteral("qg"), QStringLiteral("2"), dataConnectionString(), appConnectionString());
    EXPECT_EQ(thai.LanguageID(), 0);
    EXPECT_EQ(thai.session().column(QStringLiteral("TCmdName")), QStringLiteral("TCmdName"));
    EXPECT_EQ(english.LanguageID(), 1);
    EXPECT_EQ(english.session().column(QStringLiteral("TCmdName")), QStringLiteral("TCmdName2"));
    EXPECT_EQ(english.AppConnectionString(), appConnectionString());

    runOnData({QStringLiteral("UPDATE QD8TUserSetting SET TUsSValue='2.6' WHERE TUsSTUsrID=2 AND TUsSAlias='LanguageID'")});
    english.SetLast2(QStringLiteral("C:\\u"), QStringLiteral("qg"), QStringLiteral("2"), dataConnectionString(), appConnectionString());
    EXPECT_EQ(english.LanguageID(), 3);
    EXPECT_EQ(english.nameSuffix(), QStringLiteral("2"));

    // The language lookup is not guarded: a broken database reaches the host.
    ToolBarControl broken;
    EXPECT_THROW(broken.SetLast2(QStringLiteral("C:\\u"), QStringLiteral("qg"), QStringLiteral("1"),
                     QStringLiteral("Driver=SQLite;Data Source=/nonexistent/QD8Data.dat"), QString()),
        DbError);
}

QD8_ON_BOTH_ENGINES(HostedControlSession);

} // namespace
