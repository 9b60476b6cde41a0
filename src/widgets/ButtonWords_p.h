#pragma once

#include <QAbstractButton>
#include <QRegularExpression>

namespace qd8 {

// A button whose face is a mark ("...", "…") says what it does in its tool tip. A screen
// reader names it with the same words less the key in brackets, and reads the tool tip,
// key included, as its description.
inline void setButtonWords(QAbstractButton* button, const QString& toolTip)
{
    static const QRegularExpression key(QStringLiteral("\\s*\\([^()]*\\)$"));
    button->setToolTip(toolTip);
    button->setAccessibleName(QString(toolTip).remove(key));
}

} // namespace qd8
