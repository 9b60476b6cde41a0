#pragma once

#include <QDialog>
#include <QPoint>
#include <QSize>

namespace qd8 {

// The window of a date picker: one view, no frame, opened where the caller asks and
// moved as little as needed to stay whole on the screen at that point.
class PickerPopup : public QDialog {
    Q_OBJECT

public:
    PickerPopup(QWidget* view, QWidget* parent = nullptr);
    // Sizes the popup to its view and puts its top left corner at `position`, kept on screen.
    void placeAt(QPoint position);

    // The top left corner of a window of `size` wanted at `position`, clamped to the
    // available geometry of the screen at that point (the primary screen off all screens).
    static QPoint keptOnScreen(QPoint position, QSize size);
};

} // namespace qd8
