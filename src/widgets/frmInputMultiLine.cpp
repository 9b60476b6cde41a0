#include "widgets/frmInputMultiLine.h"

#include "foundation/Language.h"

#include <QDialogButtonBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

namespace qd8 {

frmInputMultiLine::frmInputMultiLine(int languageId, QWidget* parent)
    : QDialog(parent)
    , m_edit(new QPlainTextEdit(this))
{
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Ok)->setText(inLanguage(languageId, "ตกลง", "OK"));
    buttons->button(QDialogButtonBox::Cancel)->setText(inLanguage(languageId, "ยกเลิก", "Cancel"));
    m_edit->setAccessibleName(inLanguage(languageId, "ข้อความ", "Text"));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_edit);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &frmInputMultiLine::takeText);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    // Enter makes a new line; Ctrl+Enter is the keyboard's OK.
    for (const QKeySequence& key : {QKeySequence(Qt::CTRL | Qt::Key_Return), QKeySequence(Qt::CTRL | Qt::Key_Enter)})
        connect(new QShortcut(key, this), &QShortcut::activated, this, &frmInputMultiLine::takeText);
    resize(420, 240);
}

void frmInputMultiLine::setText(const QString& text)
{
    m_edit->setPlainText(text);
}

QString frmInputMultiLine::text() const
{
    return m_edit->toPlainText();
}

void frmInputMultiLine::takeText()
{
    m_result = text();
    accept();
}

} // namespace qd8
