#pragma once

#include "support/SampleCompany.h"
#include "support/ScriptedServices.h"
#include "widgets/HostedControl.h"

#include <QImage>
#include <QTemporaryDir>

namespace qd8::test {

// The sample company plus a module "TST" whose commands cover every way a command can
// fail to show, an icon folder with real and misleading files, and TST's module and user
// lists. Users 1 (Thai) and 2 (English) have the same rights on TST.
//
//   id    alias  sort  shows in main list  why not
//   9010  TSTJ   0     yes                 (icon named but missing)
//   9001  TSTA   1     yes                 (T1.ico as large and small icon)
//   9002  TSTB   2     yes                 ("&&" in both names, lower-case .ico)
//   9003  TSTC   3     no                  not on the list bar
//   9004  TSTD   4     no                  not active
//   9005  TSTE   5     no                  not in use (TCmdFlag1 0)
//   9006  TSTF   6     no                  Run 1, Show 0
//   9007  TSTG   7     no                  Run 2, Show 1
//   9008  TSTH   8     no                  no rights row
//   9009  TSTI   9     yes                 (no name: caption " "; .bmp large, .ICO small)
class NavigationTest : public SampleCompanyTest {
protected:
    void SetUp() override
    {
        SampleCompanyTest::SetUp();
        if (IsSkipped())
            return;
        QImage picture(32, 32, QImage::Format_ARGB32);
        picture.fill(Qt::darkBlue);
        for (const char* name : {"T1.ico", "t2.ico", "T3.ICO", "T4.bmp"})
            ASSERT_TRUE(picture.save(icons.filePath(QString::fromLatin1(name)), QByteArray(name).endsWith("bmp") ? "BMP" : "ICO"));
        QStringList app = {QStringLiteral("INSERT INTO QD8TCommandGroup (TCmGAlias, TCmGName, TCmGName2, TCmGSort, TCmGShow, TCmGFlag1) VALUES ('TST', 'ทดสอบ', 'Test', 50, 1, 1)")};
        const auto command = [&](int id, const char* alias, const QString& name, const QString& name2, int sort, int listBar,
                                 int active, int flag, const char* icon, const char* smallIcon) {
            const auto text = [](const QString& v) { return v.isNull() ? QStringLiteral("NULL") : QLatin1Char('\'') + v + QLatin1Char('\''); };
            app << QStringLiteral("INSERT INTO QD8TCommand (TCmdID, TCmdAlias, TCmdName, TCmdName2, TCmdTCmGAlias, TCmdType, TCmdIcon, TCmdSmallIcon, "
                                  "TCmdSort, TCmdShowListBar, TCmdActiveStatus, TCmdFlag1) VALUES (%1, '%2', %3, %4, 'TST', 'F', %5, %6, %7, %8, %9, %10)")
                       .arg(id).arg(QLatin1String(alias), text(name), text(name2), text(QLatin1String(icon)), text(QLatin1String(smallIcon)))
                       .arg(sort).arg(listBar).arg(active).arg(flag);
        };
        command(9010, "TSTJ", QStringLiteral("คำสั่งเจ"), QStringLiteral("Juliet"), 0, 1, 1, 1, "missing.ico", nullptr);
        command(9001, "TSTA", QStringLiteral("คำสั่ง&เอ"), QStringLiteral("&Alpha"), 1, 1, 1, 1, "T1.ico", "T1.ico");
        command(9002, "TSTB", QStringLiteral("บี && ซี"), QStringLiteral("B && C"), 2, 1, 1, 1, "t2.ico", nullptr);
        command(9003, "TSTC", QStringLiteral("ซี"), QStringLiteral("Charlie"), 3, 0, 1, 1, nullptr, nullptr);
        command(9004, "TSTD", QStringLiteral("ดี"), QStringLiteral("Delta"), 4, 1, 0, 1, nullptr, nullptr);
        command(9005, "TSTE", QStringLiteral("อี"), QStringLiteral("Echo"), 5, 1, 1, 0, nullptr, nullptr);
        command(9006, "TSTF", QStringLiteral("เอฟ"), QStringLiteral("Foxtrot"), 6, 1, 1, 1, nullptr, nullptr);
        command(9007, "TSTG", QStringLiteral("จี"), QStringLiteral("Golf"), 7, 1, 1, 1, nullptr, nullptr);
        command(9008, "TSTH", QStringLiteral("เอช"), QStringLiteral("Hotel"), 8, 1, 1, 1, nullptr, nullptr);
        command(9009, "TSTI", QString(), QStringLiteral("India"), 9, 1, 1, 1, "T4.bmp", "T3.ICO");
        runOnApp(app);

        QStringList data;
        for (int user : {1, 2})
            for (const char* alias : {"TSTJ", "TSTA", "TSTB", "TSTC", "TSTD", "TSTE", "TSTF", "TSTG", "TSTI"}) {
                const QByteArray a(alias);
                const int run = a == "TSTG" ? 2 : 1;
                const int show = a == "TSTF" ? 0 : 1;
                data << QStringLiteral("INSERT INTO QD8TUserRight (TURtTUsrID, TURtTCmdAlias, TURtRun, TURtShow) VALUES (%1, '%2', %3, %4)")
                            .arg(user).arg(QLatin1String(alias)).arg(run).arg(show);
            }
        // Module TST: only TSTI and TSTA are shown (TSTE is not in use, 9999 is gone, TSTF is denied).
        for (auto [id, sort] : {std::pair{9009, 1}, {9005, 2}, {9999, 3}, {9001, 4}, {9006, 5}})
            data << QStringLiteral("INSERT INTO QD8TModuleCommand (TMdCTCmGAlias, TMdCTCmdID, TMdCSort) VALUES ('TST', %1, %2)").arg(id).arg(sort);
        // User 1's own list: TSTG (denied), TSTB, TSTA.
        data << QStringLiteral("DELETE FROM QD8TUserCommand WHERE TUsCTUsrID=1");
        for (auto [id, sort] : {std::pair{9007, 1}, {9002, 2}, {9001, 3}})
            data << QStringLiteral("INSERT INTO QD8TUserCommand (TUsCTUsrID, TUsCTCmdID, TUsCSort) VALUES (1, %1, %2)").arg(id).arg(sort);
        runOnData(data);
    }

    // The session as the host hands it over (properties, then Refresh by the caller).
    void attach(HostedControl& control, qint32 user, const QString& group = QStringLiteral("TST")) const
    {
        control.setConnectionString(sessionConnectionString());
        control.setAppConnectionString(appConnectionString());
        control.setUserID(user);
        control.setIconPath(icons.path());
        control.setCommandGroup(group);
    }

    QTemporaryDir icons;
};

} // namespace qd8::test
