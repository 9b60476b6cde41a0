#include "DesignPreview.h"

#include <QEvent>
#include <QPainter>
#include <QWidget>

namespace qd8::designer {

namespace {

// Lies over the control, takes no mouse, and follows the control's size.
class DesignPreview : public QWidget {
public:
    DesignPreview(QWidget* control, const QString& name, const QString& hint)
        : QWidget(control)
        , m_name(name)
        , m_hint(hint)
    {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setAttribute(Qt::WA_NoSystemBackground);
        setFocusPolicy(Qt::NoFocus);
        setGeometry(control->rect());
        control->installEventFilter(this);
        raise();
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Resize)
            setGeometry(static_cast<QWidget*>(watched)->rect());
        return false;
    }

    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        painter.setPen(palette().color(QPalette::Mid));
        const QRect area = rect().adjusted(8, 8, -8, -8);
        QFont bold = font();
        bold.setBold(true);
        const int line = QFontMetrics(bold).height();
        const QRect upper(area.left(), area.center().y() - line, area.width(), line);
        painter.setFont(bold);
        painter.drawText(upper, Qt::AlignCenter, m_name);
        painter.setFont(font());
        painter.drawText(QRect(area.left(), upper.bottom() + 1, area.width(), area.bottom() - upper.bottom()),
            Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, m_hint);
    }

private:
    const QString m_name;
    const QString m_hint;
};

} // namespace

void showDesignPreview(QWidget* control, const QString& name, const QString& hint)
{
    new DesignPreview(control, name, hint);
}

} // namespace qd8::designer
