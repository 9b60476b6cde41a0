#include "attachments/CropDialog_p.h"

#include "foundation/Language.h"

#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QRubberBand>
#include <QVBoxLayout>

namespace qd8 {

CropView::CropView(const QImage& image, QWidget* parent)
    : QWidget(parent)
    , m_image(image)
    , m_selection(image.rect())
    , m_band(new QRubberBand(QRubberBand::Rectangle, this))
{
    setFocusPolicy(Qt::StrongFocus);
    setMinimumSize(200, 150);
    m_band->show();
}

QSize CropView::sizeHint() const
{
    return m_image.size().scaled(900, 600, Qt::KeepAspectRatio).expandedTo(minimumSize());
}

void CropView::setSelection(const QRect& selection)
{
    m_selection = selection.normalized().intersected(m_image.rect());
    if (m_selection.isEmpty())
        m_selection = m_image.rect();
    placeBand();
}

QRect CropView::shown() const
{
    QRect r(QPoint(), m_image.size().scaled(size(), Qt::KeepAspectRatio));
    r.moveCenter(rect().center());
    return r;
}

QPoint CropView::toImage(const QPoint& point) const
{
    const QRect r = shown();
    if (r.isEmpty())
        return {};
    return {qBound(0, (point.x() - r.x()) * m_image.width() / r.width(), m_image.width()),
        qBound(0, (point.y() - r.y()) * m_image.height() / r.height(), m_image.height())};
}

void CropView::placeBand()
{
    const QRect r = shown();
    if (m_image.isNull() || r.isEmpty())
        return;
    const double scale = double(r.width()) / m_image.width();
    m_band->setGeometry(QRectF(r.x() + m_selection.x() * scale, r.y() + m_selection.y() * scale, m_selection.width() * scale,
        m_selection.height() * scale).toRect());
}

void CropView::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.drawImage(shown(), m_image);
}

void CropView::resizeEvent(QResizeEvent*)
{
    placeBand();
}

void CropView::mousePressEvent(QMouseEvent* event)
{
    m_anchor = toImage(event->position().toPoint());
}

void CropView::mouseMoveEvent(QMouseEvent* event)
{
    const QRect dragged = QRect(m_anchor, toImage(event->position().toPoint())).normalized();
    if (dragged.width() > 1 && dragged.height() > 1)
        setSelection(dragged);
}

void CropView::keyPressEvent(QKeyEvent* event)
{
    const int step = qMax(1, qMax(m_image.width(), m_image.height()) / 50);
    QPoint by;
    switch (event->key()) {
    case Qt::Key_Left: by = {-step, 0}; break;
    case Qt::Key_Right: by = {step, 0}; break;
    case Qt::Key_Up: by = {0, -step}; break;
    case Qt::Key_Down: by = {0, step}; break;
    default:
        if (event->matches(QKeySequence::SelectAll))
            setSelection(m_image.rect());
        else
            QWidget::keyPressEvent(event);
        return;
    }
    QRect r = m_selection;
    if (event->modifiers() & Qt::ShiftModifier) {
        r.setBottomRight(r.bottomRight() + by);
        if (r.width() < 1 || r.height() < 1)
            return;
    } else {
        // The band moves whole and stays on the picture.
        r.translate(by);
        r.moveLeft(qBound(0, r.left(), m_image.width() - r.width()));
        r.moveTop(qBound(0, r.top(), m_image.height() - r.height()));
    }
    setSelection(r);
}

CropDialog::CropDialog(const QImage& image, int languageId, QWidget* parent)
    : QDialog(parent)
    , m_view(new CropView(image, this))
{
    setWindowTitle(inLanguage(languageId, "ตัดภาพ", "Crop the picture"));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(new QLabel(inLanguage(languageId,
        "ลากเมาส์หรือใช้ลูกศรเลือกส่วนที่เก็บ (Shift+ลูกศร ปรับขนาด, Ctrl+A ทั้งภาพ) แล้วกด Enter",
        "Drag or use the arrows to choose the part to keep (Shift+arrows size it, Ctrl+A the whole picture), then Enter")));
    layout->addWidget(m_view, 1);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Ok)->setText(inLanguage(languageId, "เก็บ", "Keep"));
    buttons->button(QDialogButtonBox::Cancel)->setText(inLanguage(languageId, "ยกเลิก", "Cancel"));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);
    m_view->setAccessibleName(windowTitle());
    m_view->setFocus();
}

std::optional<QRect> CropDialog::ask(const QImage& image, int languageId, QWidget* parent)
{
    CropDialog dialog(image, languageId, parent);
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return dialog.view()->selection();
}

} // namespace qd8
