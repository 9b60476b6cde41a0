// The real qd8-workbench binary on a real X server (Xvfb): it starts on a fresh sample
// company, a shortcut opened from the keyboard through xdotool opens its form, and the
// window's picture is not blank and has a font for its Thai text.
#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QSet>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QThread>
#include <gtest/gtest.h>

namespace {

class WorkbenchSmokeTest : public testing::Test {
protected:
    void SetUp() override
    {
        for (const char* tool : {"Xvfb", "xdotool"})
            if (QStandardPaths::findExecutable(QString::fromLatin1(tool)).isEmpty())
                GTEST_SKIP() << tool << " is not installed (./qd8 installs it)";
        workbench = QString::fromLocal8Bit(qgetenv("QD8_WORKBENCH"));
        ASSERT_TRUE(QFile::exists(workbench)) << "QD8_WORKBENCH names no program";
        display = QStringLiteral(":%1").arg(100 + QCoreApplication::applicationPid() % 800);
        server.start(QStringLiteral("Xvfb"), {display, "-screen", "0", "1280x800x24", "-nolisten", "tcp"});
        ASSERT_TRUE(waitFor([&] { return QFile::exists("/tmp/.X11-unix/X" + display.mid(1)); }, 10000)) << "Xvfb did not start";
    }
    void TearDown() override
    {
        for (QProcess* p : {&program, &server})
            if (p->state() != QProcess::NotRunning) {
                p->terminate();
                if (!p->waitForFinished(5000))
                    p->kill();
                p->waitForFinished(2000);
            }
    }
    static bool waitFor(const std::function<bool()>& done, int milliseconds)
    {
        QElapsedTimer clock;
        clock.start();
        while (!done()) {
            if (clock.elapsed() > milliseconds)
                return false;
            QThread::msleep(100);
        }
        return true;
    }
    QString logText() const
    {
        QFile file(folder.filePath("workbench.log"));
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }
    bool logged(const QString& line, int milliseconds = 30000) const
    {
        return waitFor([&] { return logText().contains(line); }, milliseconds);
    }
    QString xdotool(const QStringList& arguments) const
    {
        QProcess tool;
        tool.setProcessEnvironment(environment());
        tool.start(QStringLiteral("xdotool"), arguments);
        tool.waitForFinished(30000);
        return QString::fromUtf8(tool.readAllStandardOutput()).trimmed();
    }
    QProcessEnvironment environment() const
    {
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert("DISPLAY", display);
        env.insert("QT_QPA_PLATFORM", "xcb");
        return env;
    }

    QTemporaryDir folder;
    QString workbench, display;
    QProcess server, program;
};

TEST_F(WorkbenchSmokeTest, AShortcutOpensItsFormOnARealDisplay)
{
    program.setProcessEnvironment(environment());
    program.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    program.start(workbench, {"--dir", folder.filePath("sample"), "--user", "SOMCHAI", "--password", "1234", "--module", "HR",
                                 "--log", folder.filePath("workbench.log")});
    ASSERT_TRUE(logged("ready")) << logText().toStdString();
    const QString window = xdotool({"search", "--sync", "--onlyvisible", "--name", "QD8 Workbench"}).section('\n', 0, 0);
    ASSERT_FALSE(window.isEmpty());
    xdotool({"windowfocus", "--sync", window});
    // The first entry of the HR module's main list is selected: Enter opens the employees.
    xdotool({"key", "--clearmodifiers", "Return"});
    ASSERT_TRUE(logged("opened HREMPLOYEE", 15000)) << logText().toStdString();

    xdotool({"key", "--clearmodifiers", "ctrl+shift+p"});
    ASSERT_TRUE(logged("picture ", 15000)) << logText().toStdString();
    const QString file = logText().section("picture ", 1).section('\n', 0, 0);
    QImage picture(file);
    ASSERT_FALSE(picture.isNull()) << file.toStdString();
    EXPECT_GE(picture.width(), 800);
    QSet<QRgb> colours;
    for (int y = 0; y < picture.height(); y += 2)
        for (int x = 0; x < picture.width(); x += 2)
            colours.insert(picture.pixel(x, y));
    EXPECT_GT(colours.size(), 100) << "the window's picture is (nearly) blank";
    const QString thaiFont = logText().section("thai-font ", 1).section('\n', 0, 0).trimmed();
    EXPECT_FALSE(thaiFont.isEmpty()) << "no font draws Thai text";
    if (!qEnvironmentVariableIsEmpty("QD8_KEEP_PICTURE"))
        QFile::copy(file, QString::fromLocal8Bit(qgetenv("QD8_KEEP_PICTURE")));
}

} // namespace
