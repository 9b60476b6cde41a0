#include "DiagramForms.h"
#include "LoginDialog.h"
#include "WorkbenchForms.h"
#include "WorkbenchWindow.h"

#include "foundation/DbError.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QFontDatabase>
#include <QIcon>
#include <QMessageBox>
#include <QRawFont>
#include <QShortcut>
#include <QTextStream>
#include <QTimer>
#include <cstring>

using namespace qd8;

namespace {

// Headless runs (--screenshot, or no display at all) use the offscreen platform.
void chooseHeadlessPlatform(int argc, char** argv)
{
    bool screenshot = false;
    for (int i = 1; i < argc; ++i)
        screenshot = screenshot || std::strcmp(argv[i], "--screenshot") == 0;
    const bool noDisplay = qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
    if ((screenshot || noDisplay) && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
}

// A touch station (--touch) types text through Qt Virtual Keyboard. The input method is
// the process's, chosen before the application starts, so it is an option of the station
// rather than of the user who logs in.
void chooseTouchKeyboard(int argc, char** argv)
{
    for (int i = 1; i < argc; ++i)
        if (std::strcmp(argv[i], "--touch") == 0 && qEnvironmentVariableIsEmpty("QT_IM_MODULE"))
            qputenv("QT_IM_MODULE", "qtvirtualkeyboard");
}

// The family that draws Thai text, "" when no font has Thai glyphs.
QString thaiFontFamily()
{
    const QStringList families = QFontDatabase::families(QFontDatabase::Thai);
    return families.isEmpty() ? QString() : families.first();
}

} // namespace

int main(int argc, char* argv[])
{
    chooseHeadlessPlatform(argc, argv);
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);  // the browser tabs' web engine asks for it
    chooseTouchKeyboard(argc, argv);
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("qd8-workbench"));
    // The same picture as the menu entry, so the window and its launcher look alike.
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/qd8-workbench/qd8-workbench.svg")));
    QGuiApplication::setDesktopFileName(QStringLiteral("qd8-workbench"));
    QCommandLineParser options;
    options.setApplicationDescription(QStringLiteral("QD8 Workbench: the suite's launchers and forms on a company's databases."));
    options.addHelpOption();
    options.addOptions({
        {"dir", "Folder of the SQLite sample company (created when missing).", "DIR", QDir::home().filePath(".qd8/sample")},
        {"app", "Connection string of the application database.", "CONN"},
        {"data", "Connection string of the company data database.", "CONN"},
        {"files", "Folder of icons and INI files for --app/--data.", "DIR"},
        {"user", "Log in as this user (no login dialog).", "NAME"},
        {"password", "Password of --user.", "PASSWORD"},
        {"lang", "Language: th or en (stored as the user's setting).", "LANG"},
        {"module", "Module shown at start (command group alias).", "ALIAS"},
        {"size", "Size of the main window, e.g. 1024x768.", "WxH"},
        {"touch", "A touch screen: text is typed on Qt Virtual Keyboard."},
        {"screenshot", "Write PNGs of the main window and every form into DIR, then exit.", "DIR"},
        {"log", "Append status messages and opened forms to FILE.", "FILE"},
        {"admin", "The qd8-admin program that creates the sample company.", "PATH",
            QCoreApplication::applicationDirPath() + QStringLiteral("/qd8-admin")},
    });
    options.process(app);

    QFile logFile(options.value("log"));
    QTextStream log(&logFile);
    if (options.isSet("log"))
        logFile.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Text);
    const auto note = [&](const QString& line) {
        if (logFile.isOpen()) {
            log << line << Qt::endl;
        }
    };

    WorkbenchSession session;
    try {
        if (options.isSet("app") || options.isSet("data")) {
            session = WorkbenchSession::fromConnectionStrings(options.value("app"), options.value("data"), options.value("files"));
        } else {
            session = WorkbenchSession::sampleCompany(options.value("dir"), options.value("admin"));
        }
        const QString lang = options.value("lang");
        QString user = options.value("user");
        if (user.isEmpty() && options.isSet("screenshot"))
            user = lang == QLatin1String("en") ? QStringLiteral("JOHN") : QStringLiteral("SOMCHAI");
        QString password = options.value("password");
        if (password.isEmpty() && options.isSet("screenshot"))
            password = QStringLiteral("1234");
        if (!user.isEmpty()) {
            if (!session.logIn(user, password)) {
                QTextStream(stderr) << "qd8-workbench: cannot log in as " << user << " (unknown user or wrong password)\n";
                return 2;
            }
        } else {
            LoginDialog login(session);
            if (login.exec() != QDialog::Accepted)
                return 0;
        }
        if (!lang.isEmpty())
            session.setLanguage(lang == QLatin1String("en") ? 1 : 0, true);
    } catch (const DbError& error) {
        QTextStream(stderr) << "qd8-workbench: " << error.report(1, QStringLiteral(": ")) << '\n';
        return 1;
    } catch (const std::exception& error) {
        QTextStream(stderr) << "qd8-workbench: " << error.what() << '\n';
        return 1;
    }

    registerWorkbenchForms();
    // One window per login: logging out closes it and asks who works next; changing company
    // closes it and opens the next on the chosen company.
    for (;;) {
        WorkbenchWindow window(session, options.value("module"));
        QObject::connect(&window, &WorkbenchWindow::statusChanged, [&](const QString& message) { note("status " + message); });
        QObject::connect(&window, &WorkbenchWindow::formOpened, [&](const QString& alias) { note("opened " + alias); });
        if (const QStringList size = options.value("size").split(QLatin1Char('x')); size.size() == 2)
            window.resize(size[0].toInt(), size[1].toInt());
        if (startsInKeypad(session))
            startInKeypad(window);
        window.show();

        if (options.isSet("screenshot")) {
            const QStringList files = window.saveScreenshots(options.value("screenshot"));
            for (const QString& file : files)
                QTextStream(stdout) << file << '\n';
            return files.isEmpty() ? 1 : 0;
        }
        // Ctrl+Shift+P keeps a picture of the window beside the log (or in the sample folder).
        auto* picture = new QShortcut(QKeySequence(QStringLiteral("Ctrl+Shift+P")), &window);
        QObject::connect(picture, &QShortcut::activated, [&] {
            const QString folder = logFile.isOpen() ? QFileInfo(logFile.fileName()).absolutePath() : session.appPath;
            note("picture " + window.savePicture(QDir(folder).filePath(QStringLiteral("workbench.png"))));
        });
        note("thai-font " + thaiFontFamily());
        QTimer::singleShot(0, &window, [&] { note("ready"); });
        const int code = app.exec();
        if (window.nextCompany()) {
            session = *window.nextCompany();
            note("company " + session.companyName());
            continue;
        }
        if (!window.loggedOut())
            return code;
        note("logged out");
        LoginDialog login(session);
        if (login.exec() != QDialog::Accepted)
            return 0;
    }
}
