#include "widgets/Twips.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

namespace qd8 {

namespace {

double logicalDpi(const QWidget* widget)
{
    if (widget)
        return widget->logicalDpiX();
    if (const QScreen* screen = QGuiApplication::primaryScreen())
        return screen->logicalDotsPerInchX();
    return 96.0;
}

} // namespace

int twipsToPixels(int twips, const QWidget* widget)
{
    return int(twips * logicalDpi(widget) / 1440.0 + 0.5);
}

int pixelsToTwips(int pixels, const QWidget* widget)
{
    return int(pixels * 1440.0 / logicalDpi(widget) + 0.5);
}

} // namespace qd8
