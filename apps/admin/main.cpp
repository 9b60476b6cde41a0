#include "AdminCommand.h"

#include <QGuiApplication>

int main(int argc, char* argv[])
{
    // The icons are drawn with text, which needs a GUI application; without a display
    // (servers, CI) the offscreen platform provides one.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") && qEnvironmentVariableIsEmpty("DISPLAY")
        && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    QTextStream out(stdout);
    QTextStream err(stderr);
    return qd8::AdminCommand(out, err).run(app.arguments().mid(1));
}
