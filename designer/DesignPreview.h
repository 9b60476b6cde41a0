#pragma once

class QString;
class QWidget;

namespace qd8::designer {

// Names a control whose look is blank until a session fills it: its class and a one-line
// hint over its middle, in the palette's mid colour, through which the mouse passes.
void showDesignPreview(QWidget* control, const QString& name, const QString& hint);

} // namespace qd8::designer
