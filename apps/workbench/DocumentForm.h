#pragma once

#include "DocumentSales.h"
#include "DocumentVoucher.h"
#include "foundation/DateText.h"
#include "widgets/HostedControl.h"

#include <QHash>
#include <QList>
#include <QVariant>
#include <functional>
#include <memory>

class QCheckBox;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QVBoxLayout;

namespace qd8 {

class Connection;
class DataObject;
class DocumentAttachments;
class DocumentPanels;
class ListPrinter;
class Recordset;

// One header field of a document or master form.
struct DocumentField {
    enum class Kind {
        Text,
        Date,    // a DateEdit: dd/MM/yyyy in the user's era
        Number,
        Money,   // exact to four decimals, shown with thousands separators
        Code,    // a key of another table, F2 picks it
        Status   // a flag the workflow sets; shown, never written
    };
    enum class Initial { None, Today, UserBranch, UserProject };

    QString field;
    QString caption;   // Thai
    QString caption2;  // English
    Kind kind = Kind::Text;
    bool required = false;
    bool readOnly = false;  // shown, never written (amounts kept by other documents)
    Initial initial = Initial::None;
    // Code fields: the table the code comes from, its key, its name column ("{N}" is the
    // language's name suffix: "" Thai, "2" English) and the filter of the pick list ("" for
    // every row).
    QString pickTable;
    QString pickKey;
    QString pickName;
    QString pickWhere;
    // Amounts the form works out: the sum of other fields (shown, not typed, written), or a
    // percentage of another field (proposed when that one changes, the clerk may correct it).
    QStringList sumOf;
    QString percentOf;
    int percent = 0;

    static DocumentField text(const QString& field, const QString& caption, const QString& caption2);
    static DocumentField date(const QString& field, const QString& caption, const QString& caption2);
    static DocumentField number(const QString& field, const QString& caption, const QString& caption2);
    static DocumentField money(const QString& field, const QString& caption, const QString& caption2);
    static DocumentField status(const QString& field, const QString& caption, const QString& caption2);
    static DocumentField code(const QString& field, const QString& caption, const QString& caption2, const QString& table,
        const QString& key, const QString& name);
    // The codes every module shares, active ones offered by F2.
    static DocumentField branch(const QString& field);
    static DocumentField project(const QString& field);
    static DocumentField customer(const QString& field);
    static DocumentField supplier(const QString& field);
    static DocumentField employee(const QString& field, const QString& caption, const QString& caption2);
    static DocumentField division(const QString& field);

    DocumentField& mandatory() { required = true; return *this; }
    DocumentField& shownOnly() { readOnly = true; return *this; }
    DocumentField& startsAs(Initial value) { initial = value; return *this; }
    DocumentField& sumOfFields(const QStringList& parts) { sumOf = parts; return *this; }
    DocumentField& percentOfField(const QString& source, int rate) { percentOf = source; percent = rate; return *this; }
};

// The lines under a document's header: printed with it and deleted with it.
struct DocumentLines {
    QString table;
    QString keyField;  // the line's column holding the document's number
    QString fields;    // printed, comma list; the first orders them
    QString captions;  // Thai
    QString captions2; // English
    bool isEmpty() const { return table.isEmpty(); }
};

// What a document or master form edits: one row of one table, found by a single key.
struct DocumentDefinition {
    QString title;   // Thai
    QString title2;  // English
    QString table;
    QString keyField;
    QString keyCaption;
    QString keyCaption2;
    // Documents: a new number is the prefix and seven digits ("PR0000013"), one after the
    // largest such number of the table. Masters leave it "": the clerk types the code.
    QString numberPrefix;
    // "<prefix>CreateBy", "CreateDate", "EditBy", "EditDate" are written when the table
    // has them.
    QString auditPrefix;
    QList<DocumentField> fields;
    // Columns a new row starts with the value of a field: column -> field (an invoice
    // is wholly outstanding when it is added).
    QHash<QString, QString> copiedOnAdd;
    // Columns a new row starts with a fixed value: column -> value (the kind of a stock
    // document, which its list selects by).
    QHash<QString, QString> fixedOnAdd;
    // A document that posts its voucher through a posting format (empty: none).
    DocumentPosting posting;
    // A sales document with the customer's credit and point panels (empty: none).
    DocumentSalesFields sales;
    DocumentLines lines;
    // Columns of other tables that hold this row's key (table, column): while one does, the
    // row is in use and cannot be deleted.
    QList<QPair<QString, QString>> usedBy;

    bool isMaster() const { return numberPrefix.isEmpty(); }
    // The confirm, approve and cancel flags of a document table ("<prefix>ConfirmStatus"...).
    DocumentDefinition& withWorkflowStatuses(const QString& prefix);
};

// A document or master form of the workbench: the header fields of one row, read with a
// recordset and written back in one transaction (INSERT when adding, UPDATE of the changed
// fields when editing; a row someone else changed or deleted meanwhile is reported and the
// clerk's values stay in the form). A list opens it through the host's form collection and
// drives it by name: RUNMODE, Setbuttons, NewDocNo/DocNo or NewMasterCode/MasterCode, then
// FillData. Keyboard first: Enter moves on, F2 picks a code, and the tool bar's commands
// have the editors' keys (Add Ctrl+N, Edit Ctrl+E, Save Ctrl+S, Delete Ctrl+Delete, Print
// Ctrl+P, Close Esc); leaving unsaved changes (closing, Add, Edit) asks Save / Discard /
// Cancel first. A command the mode does not allow is disabled, never hidden, so the
// buttons keep their places.
class DocumentForm : public HostedControl {
    Q_OBJECT
    Q_PROPERTY(QString RUNMODE READ RUNMODE WRITE setRUNMODE)
    Q_PROPERTY(QString NewDocNo READ NewDocNo WRITE setNewDocNo)
    Q_PROPERTY(QString DocNo READ DocNo WRITE setDocNo)
    Q_PROPERTY(QString FormFunction READ FormFunction WRITE setFormFunction)
    Q_PROPERTY(QString NewMasterCode READ NewMasterCode WRITE setNewMasterCode)
    Q_PROPERTY(QString MasterCode READ MasterCode WRITE setMasterCode)

public:
    explicit DocumentForm(const DocumentDefinition& definition, QWidget* parent = nullptr);
    ~DocumentForm() override;

    const DocumentDefinition& definition() const { return m_definition; }

    // "ADD", "EDIT" or "VIEW" (anything else is VIEW).
    QString RUNMODE() const { return m_mode; }
    void setRUNMODE(const QString& mode);
    // The number a new document starts with ("" proposes the next one); the document shown.
    QString NewDocNo() const { return m_newKey; }
    void setNewDocNo(const QString& key) { setNewKey(key); }
    QString DocNo() const { return m_key; }
    void setDocNo(const QString& key) { m_key = key.trimmed(); }
    // Masters: the list's form function (kept for the form), the new and the shown code.
    QString FormFunction() const { return m_formFunction; }
    void setFormFunction(const QString& value) { m_formFunction = value; }
    QString NewMasterCode() const { return m_newKey; }
    void setNewMasterCode(const QString& key) { setNewKey(key); }
    QString MasterCode() const { return m_key; }
    void setMasterCode(const QString& key) { m_key = key.trimmed(); }

    // Shows and enables the buttons and fields of the mode; ADD starts a new row.
    Q_INVOKABLE void Setbuttons();
    // Loads the row of DocNo/MasterCode; ADD clears the form and fills the defaults.
    Q_INVOKABLE void FillData();
    // "<title> - <key>" in the session language; the host titles the tab with it.
    Q_INVOKABLE QString caption() const;

    // The box of a field (the key included), nullptr for a status or an unknown field.
    QLineEdit* box(const QString& field) const;
    QCheckBox* statusBox(const QString& field) const;
    QLineEdit* keyBox() const { return box(m_definition.keyField); }
    // Whether a field differs from what was loaded or proposed.
    bool hasChanges() const;
    // Validates and writes the row; true when it was written.
    bool save();
    bool hasUnsavedChanges() const override { return hasChanges(); }
    bool saveChanges() override { return save(); }
    // Esc and the close button: asks Save / Discard / Cancel first when there are unsaved changes.
    void requestClose();
    // Ctrl+N: a new row (after the unsaved-changes question).
    void addNew();
    // Ctrl+E: the row shown becomes editable, read again as it stands now.
    void editShown();
    // Ctrl+Delete: refused while the row is in use or its status forbids it, else asked
    // and deleted with its lines and its history event; the form then closes. True when deleted.
    bool deleteShown();
    // Ctrl+P: a preview of the printed row (header, lines, date in the user's era).
    void print();
    // What print() prints, as HTML.
    QString printout() const;

    // Why `key` cannot be deleted ("" when it can): a workflow status, or a row that refers
    // to it. DbError.
    static QString deleteRefusal(const DocumentDefinition& definition, const QString& key, Connection& data, int languageId);
    // Deletes the row, its lines and its voucher and records the event, on `data` inside the
    // caller's transaction; a refusal is thrown as a DbError worded for the clerk.
    static void deleteRow(const DocumentDefinition& definition, const QString& key, Connection& data, DataObject* numbers,
        const QString& by);

public Q_SLOTS:
    // Captions and code names in the session language; a row in VIEW is read again.
    void Refresh() override;

Q_SIGNALS:
    void Saved(QString key);
    void Deleted(QString key);
    void CloseAction();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QString defaultProject() const;
    struct Entry {
        DocumentField field;
        QLabel* label = nullptr;
        QLineEdit* box = nullptr;
        QCheckBox* check = nullptr;
        QLabel* name = nullptr;  // the name of a code
        QString clean;           // the text as loaded or proposed
    };

    void buildEntries(QVBoxLayout* layout);
    void addEntry(const DocumentField& field);
    void setNewKey(const QString& key);
    bool adding() const { return m_mode == QLatin1String("ADD"); }
    bool editing() const { return m_mode == QLatin1String("EDIT"); }
    QString shownCaption(const DocumentField& field) const;
    QString pickName(const DocumentField& field) const;
    void retranslate();
    void startNew();
    void loadRow();
    void showRow(const Recordset& rs);
    void clearEntries();
    void markClean();
    void showName(Entry& entry);
    QString proposeNumber(Connection& data) const;
    void pick(Entry& entry);
    bool handleKey(QKeyEvent* event, QObject* from);
    void focusAfter(QObject* from);
    void focusFirst();
    // Why the form cannot be saved as it stands ("" when it can).
    QString problem() const;
    QString missingCode(Connection& data) const;
    QVariant storedValue(const Entry& entry) const;
    QString writeNew(Connection& data, const QString& key);
    void writeChanges(Connection& data);
    // Proposes the percentages and totals that follow a changed field, and the voucher lines.
    void fieldEdited(const QString& field);
    Currency amountOf(const QString& field) const;
    QString textOf(const QString& field) const;
    void refillVoucher();
    void postVoucher(Connection& data, const QString& key);
    void setAudit(Recordset& rs, const char* by, const char* at) const;
    QString conflictWith(const Recordset& rs) const;
    void afterSave(const QString& key);
    void setStatusText(const QString& message);
    QPushButton* addCommand(const QString& key, const char* thai, const char* english, std::function<void()> run);
    void retitle(const QString& key);
    ListPrinter printer() const;
    // "field: old -> new; ..." of what the clerk changed, for the document's history.
    QString changedFields() const;

    DocumentDefinition m_definition;
    QString m_mode = QStringLiteral("VIEW");
    QString m_newKey;
    DateLook m_dateLook;
    QString m_key;
    QString m_formFunction;
    QString m_proposed;       // the number the form proposed, "" when typed
    bool m_started = false;   // a new row is set up in ADD
    bool m_loaded = false;    // the row of m_key is shown
    QList<Entry> m_entries;   // the key first
    QHash<QString, QVariant> m_row;  // every column as read, by lower-cased name
    QLabel* m_title = nullptr;
    QLabel* m_modeLabel = nullptr;
    QLabel* m_status = nullptr;
    struct Command {
        QString key;  // the editor key: its shortcut and its permission
        const char* thai;
        const char* english;
        QPushButton* button;
        std::function<void()> run;
    };
    QList<Command> m_commands;  // the tool bar, in order
    QHBoxLayout* m_toolBar = nullptr;
    QPushButton* m_save = nullptr;
    QPushButton* m_close = nullptr;
    std::unique_ptr<DocumentVoucher> m_voucher;  // documents that post a voucher
    DocumentSales* m_sales = nullptr;              // sales documents
    DocumentAttachments* m_attachments = nullptr;  // documents: the paper copies
    DocumentPanels* m_panels = nullptr;          // documents: history, and the job of a stock document
};

} // namespace qd8
