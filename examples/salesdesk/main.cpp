// salesdesk COMPANY-FOLDER [--user NAME] [--password PASSWORD] [--screenshot DIR]
//
// Opens the SQLite company in the folder (`qd8-admin init <folder>` makes the sample one),
// logs the user in (SOMCHAI, who works in Thai, unless told; JOHN works in English) and shows
// the sales desk. With --screenshot it draws each form offscreen into DIR as a PNG, prints
// "<form> <rows>" for each, and exits with 1 when a form shows no rows.
#include "SalesDesk.h"

#include <QD8Designer2/foundation/DbError.h>
#include <QD8Designer2/foundation/Services.h>

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QTabWidget>
#include <cstring>
#include <iostream>

int main(int argc, char* argv[])
{
    for (int i = 1; i < argc; ++i)
        if (std::strcmp(argv[i], "--screenshot") == 0 && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
            qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QCommandLineParser options;
    options.setApplicationDescription(QStringLiteral("A sales desk built from .ui forms on a company's databases."));
    options.addHelpOption();
    options.addPositionalArgument(QStringLiteral("folder"), QStringLiteral("Folder of the SQLite company."));
    options.addOptions({{"user", "Login name.", "NAME", "SOMCHAI"}, {"password", "Password.", "PASSWORD", "1234"},
        {"screenshot", "Write a PNG of each form into DIR and exit.", "DIR"}});
    options.process(app);
    if (options.positionalArguments().size() != 1)
        options.showHelp(2);

    qd8::HostSession session = qd8::HostSession::inFolder(options.positionalArguments().first());
    try {
        if (!session.logIn(options.value("user"), options.value("password"))) {
            std::cerr << "salesdesk: wrong login name or password\n";
            return 2;
        }
        qd8::Services::messages().setLanguage(session.languageId);
        SalesDesk desk(session);
        desk.open();
        if (!options.isSet("screenshot")) {
            desk.show();
            return app.exec();
        }
        const QDir folder(options.value("screenshot"));
        folder.mkpath(QStringLiteral("."));
        desk.show();
        int empty = 0;
        const QList<QPair<QString, int>> rows = desk.shownRows();
        for (int i = 0; i < rows.size(); ++i) {
            desk.forms()->setCurrentIndex(i);
            QApplication::processEvents();
            desk.grab().save(folder.filePath(rows[i].first + QStringLiteral(".png")));
            std::cout << rows[i].first.toStdString() << ' ' << rows[i].second << std::endl;
            empty += rows[i].second == 0;
        }
        return empty ? 1 : 0;
    } catch (const qd8::DbError& error) {
        std::cerr << "salesdesk: " << error.userText(session.languageId).toStdString() << std::endl;
        return 1;
    }
}
