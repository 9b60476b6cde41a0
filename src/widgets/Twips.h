#pragma once

class QWidget;

namespace qd8 {

// The suite measures widths in twips: 1440 per inch, so 15 twips are one pixel at 96 dpi.
// Converted with the logical dpi of the widget's screen (the primary screen without one).
int twipsToPixels(int twips, const QWidget* widget = nullptr);
int pixelsToTwips(int pixels, const QWidget* widget = nullptr);

} // namespace qd8
