#include "widgets/PickerPopup_p.h"

#include <QGuiApplication>
#include <QScreen>
#include <QVBoxLayout>

namespace qd8 {

PickerPopup::PickerPopup(QWidget* view, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(1, 1, 1, 1);
    layout->addWidget(view);
    setFocusProxy(view);
    setAccessibleName(view->accessibleName());
}

void PickerPopup::placeAt(QPoint position)
{
    adjustSize();
    move(keptOnScreen(position, size()));
}

QPoint PickerPopup::keptOnScreen(QPoint position, QSize size)
{
    QScreen* screen = QGuiApplication::screenAt(position);
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    if (!screen)
        return position;
    const QRect area = screen->availableGeometry();
    const int x = qMax(area.left(), qMin(position.x(), area.right() + 1 - size.width()));
    const int y = qMax(area.top(), qMin(position.y(), area.bottom() + 1 - size.height()));
    return {x, y};
}

} // namespace qd8
