#include "widgets/SendKeys.h"

#include <QApplication>
#include <QHash>
#include <QKeyEvent>
#include <QWidget>

namespace qd8 {

namespace {

const QHash<QString, int>& namedKeys()
{
    static const QHash<QString, int> keys = [] {
        QHash<QString, int> k{
            {"TAB", Qt::Key_Tab}, {"ENTER", Qt::Key_Return}, {"ESC", Qt::Key_Escape}, {"ESCAPE", Qt::Key_Escape},
            {"BS", Qt::Key_Backspace}, {"BKSP", Qt::Key_Backspace}, {"BACKSPACE", Qt::Key_Backspace},
            {"DEL", Qt::Key_Delete}, {"DELETE", Qt::Key_Delete}, {"INS", Qt::Key_Insert}, {"INSERT", Qt::Key_Insert},
            {"HOME", Qt::Key_Home}, {"END", Qt::Key_End}, {"PGUP", Qt::Key_PageUp}, {"PGDN", Qt::Key_PageDown},
            {"UP", Qt::Key_Up}, {"DOWN", Qt::Key_Down}, {"LEFT", Qt::Key_Left}, {"RIGHT", Qt::Key_Right},
            {"BREAK", Qt::Key_Pause}, {"CAPSLOCK", Qt::Key_CapsLock}, {"HELP", Qt::Key_Help},
        };
        for (int f = 1; f <= 16; ++f)
            k.insert(QStringLiteral("F%1").arg(f), Qt::Key_F1 + f - 1);
        return k;
    }();
    return keys;
}

struct Stroke {
    int key;
    QString text;
    Qt::KeyboardModifiers modifiers;
};

Stroke forCharacter(QChar c, Qt::KeyboardModifiers modifiers)
{
    const QChar upper = c.toUpper();
    int key = upper.unicode();
    if (upper.unicode() >= 'A' && upper.unicode() <= 'Z')
        key = Qt::Key_A + (upper.unicode() - 'A');
    // A control chord carries no text, as a keyboard would send it; Shift types capitals.
    if (modifiers & (Qt::ControlModifier | Qt::AltModifier))
        return {key, QString(), modifiers};
    return {key, QString(modifiers & Qt::ShiftModifier ? upper : c), modifiers};
}

// Parses the key string into strokes; returns false on a malformed string.
bool parse(const QString& keys, QList<Stroke>& strokes)
{
    Qt::KeyboardModifiers pending;
    Qt::KeyboardModifiers group;
    bool inGroup = false;
    for (qsizetype i = 0; i < keys.size(); ++i) {
        const QChar c = keys[i];
        const Qt::KeyboardModifiers current = pending | group;
        switch (c.unicode()) {
        case '+': pending |= Qt::ShiftModifier; continue;
        case '^': pending |= Qt::ControlModifier; continue;
        case '%': pending |= Qt::AltModifier; continue;
        case '(':
            if (inGroup)
                return false;
            inGroup = true;
            group = pending;
            pending = {};
            continue;
        case ')':
            if (!inGroup)
                return false;
            inGroup = false;
            group = {};
            continue;
        case '~':
            strokes.append({Qt::Key_Return, QStringLiteral("\r"), current});
            break;
        case '{': {
            // "{}}" and "{{}" name the braces themselves.
            qsizetype close = keys.indexOf(QLatin1Char('}'), i + 2);
            if (i + 2 < keys.size() && keys[i + 1] == QLatin1Char('}') && keys[i + 2] == QLatin1Char('}'))
                close = i + 2;
            if (close < 0)
                return false;
            QString name = keys.mid(i + 1, close - i - 1);
            int repeat = 1;
            const qsizetype blank = name.lastIndexOf(QLatin1Char(' '));
            if (blank > 0) {
                bool ok = false;
                repeat = name.mid(blank + 1).toInt(&ok);
                if (!ok || repeat < 0)
                    return false;
                name = name.left(blank);
            }
            Stroke stroke;
            if (const auto it = namedKeys().constFind(name.toUpper()); it != namedKeys().constEnd())
                stroke = {*it, *it == Qt::Key_Tab ? QStringLiteral("\t") : QString(), current};
            else if (name.size() == 1)
                stroke = forCharacter(name[0], current);
            else
                return false;
            for (int r = 0; r < repeat; ++r)
                strokes.append(stroke);
            i = close;
            break;
        }
        default:
            strokes.append(forCharacter(c, current));
        }
        pending = {};
    }
    return !inGroup;
}

} // namespace

void SendKeys(const QString& keys, bool wait)
{
    QList<Stroke> strokes;
    if (!parse(keys, strokes))
        return;
    for (const Stroke& s : strokes) {
        QWidget* target = QApplication::focusWidget();
        if (!target)
            return;
        if (wait) {
            QKeyEvent press(QEvent::KeyPress, s.key, s.modifiers, s.text);
            QKeyEvent release(QEvent::KeyRelease, s.key, s.modifiers, s.text);
            QApplication::sendEvent(target, &press);
            QApplication::sendEvent(target, &release);
        } else {
            QApplication::postEvent(target, new QKeyEvent(QEvent::KeyPress, s.key, s.modifiers, s.text));
            QApplication::postEvent(target, new QKeyEvent(QEvent::KeyRelease, s.key, s.modifiers, s.text));
        }
    }
}

} // namespace qd8
