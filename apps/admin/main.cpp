#include "AdminCommand.h"

#include <QCoreApplication>

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    QTextStream out(stdout);
    QTextStream err(stderr);
    return qd8::AdminCommand(out, err).run(app.arguments().mid(1));
}
