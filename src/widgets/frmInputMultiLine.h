#pragma once

#include <QDialog>

class QPlainTextEdit;

namespace qd8 {

// A plain form for several lines of text. OK (or Ctrl+Enter) copies the text into the
// result; Cancel (or Escape) leaves the result as it was: empty.
class frmInputMultiLine : public QDialog {
    Q_OBJECT

public:
    explicit frmInputMultiLine(int languageId, QWidget* parent = nullptr);

    void setText(const QString& text);
    QString text() const;
    QString result() const { return m_result; }

private:
    void takeText();

    QPlainTextEdit* m_edit;
    QString m_result;
};

} // namespace qd8
