#pragma once

#include <QDialog>
#include <QImage>
#include <QRect>
#include <optional>

class QRubberBand;

namespace qd8 {

// The picture scaled to fit, the part kept under a rubber band. Drag with the mouse, or:
// arrows move the band, Shift+arrows move its right and bottom edges, Ctrl+A takes the whole
// picture again; Enter keeps, Escape gives up.
class CropView : public QWidget {
    Q_OBJECT

public:
    explicit CropView(const QImage& image, QWidget* parent = nullptr);
    // In the picture's pixels.
    QRect selection() const { return m_selection; }
    void setSelection(const QRect& selection);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QRect shown() const;  // where the picture is drawn
    QPoint toImage(const QPoint& point) const;
    void placeBand();

    QImage m_image;
    QRect m_selection;
    QPoint m_anchor;
    QRubberBand* m_band;
};

class CropDialog : public QDialog {
    Q_OBJECT

public:
    CropDialog(const QImage& image, int languageId, QWidget* parent = nullptr);
    CropView* view() const { return m_view; }
    // The part the user kept; nothing when he gave up.
    static std::optional<QRect> ask(const QImage& image, int languageId, QWidget* parent);

private:
    CropView* m_view;
};

} // namespace qd8
