#pragma once

#include "DocumentForm.h"
#include "widgets/HostedControl.h"

class QLabel;
class QLineEdit;
class QPushButton;

namespace qd8 {

class DateEdit;
class DocumentPanels;
class GLControl;

// The journal voucher form the general-journal list opens (detail form "DOCGL"): the
// voucher date and reference above the voucher panel. A list drives it by name: RUNMODE,
// Setbuttons, NewDocNo/DocNo, FillData. Ctrl+S checks the voucher (isReadyToSave) and saves
// it with its history event in one transaction (UpdateGL8 on the form's connection),
// showing the number; Esc closes. The history pane under the lines shows the voucher's
// events and confirms, approves or cancels it like every other document form.
class VoucherForm : public HostedControl {
    Q_OBJECT
    Q_PROPERTY(QString RUNMODE READ RUNMODE WRITE setRUNMODE)
    Q_PROPERTY(QString NewDocNo READ NewDocNo WRITE setNewDocNo)
    Q_PROPERTY(QString DocNo READ DocNo WRITE setDocNo)

public:
    explicit VoucherForm(QWidget* parent = nullptr);
    ~VoucherForm() override;

    // "ADD", "EDIT" or "VIEW".
    QString RUNMODE() const { return m_mode; }
    void setRUNMODE(const QString& mode) { m_mode = mode; }
    // A new voucher's number ("" takes the next of its book and month); the voucher shown.
    QString NewDocNo() const { return m_newNumber; }
    void setNewDocNo(const QString& number) { m_newNumber = number.trimmed(); }
    QString DocNo() const { return m_number; }
    void setDocNo(const QString& number) { m_number = number.trimmed(); }

    Q_INVOKABLE void Setbuttons();
    Q_INVOKABLE void FillData();
    // Checks and saves; true when the voucher was written.
    bool save();
    GLControl* panel() const { return m_gl; }
    DocumentPanels* history() const { return m_panels; }
    DateEdit* dateBox() const { return m_date; }

Q_SIGNALS:
    void Saved(QString key);
    void CloseAction();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    // The panel takes the session the list handed this form, once.
    void ensureSession();
    void retranslate();
    // What the history's Edit event names: the header fields and every line.
    QVariantMap shown() const;

    QString m_mode = QStringLiteral("VIEW");
    QString m_newNumber;
    QString m_number;
    bool m_sessionGiven = false;
    DocumentDefinition m_definition;
    QVariantMap m_loaded;  // shown() as loaded or last saved
    DocumentPanels* m_panels = nullptr;
    GLControl* m_gl = nullptr;
    DateEdit* m_date = nullptr;
    QLineEdit* m_reference = nullptr;
    QLabel* m_dateLabel = nullptr;
    QLabel* m_referenceLabel = nullptr;
    QLabel* m_status = nullptr;
    QPushButton* m_save = nullptr;
    QPushButton* m_close = nullptr;
};

} // namespace qd8
