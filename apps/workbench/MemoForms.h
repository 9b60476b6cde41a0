#pragma once

#include <QDialog>

class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QTreeWidget;

namespace qd8 {

struct WorkbenchSession;

// Where a document number is kept: the table, its key and the form that shows it.
struct DocumentPlace {
    QString table;
    QString keyField;
    QString form;
    bool isEmpty() const { return table.isEmpty(); }
};

// The memorandum and search forms the ribbon opens by name: a memorandum is a note on a
// document (who, when, what) kept in the document history; the dashboard lists the notes,
// the removal form removes one by its number, the search form finds a document by its
// number across the document tables and opens it. Each reads the session of the
// workbench window it is opened from; Esc and Command2 close it.
class MemoForm : public QDialog {
    Q_OBJECT

public:
    enum class Kind { Dashboard, Entry, Removal, Search };
    MemoForm(Kind kind, QWidget* parent);

    // The document tables searched, in order.
    static QList<DocumentPlace> documentPlaces();
    // The table a document number belongs to (empty when none holds it). DbError.
    static DocumentPlace findDocument(const QString& connectionString, const QString& number);

    // The form's button: saves the note, removes one, or searches.
    bool select();
    // Dashboard: the notes again, newest first.
    void reload();

private:
    const WorkbenchSession* session() const;
    QString word(const char* thai, const char* english) const;

    Kind m_kind;
    QTreeWidget* m_list = nullptr;      // List1
    QLineEdit* m_text = nullptr;        // Text4: a document number, or a memorandum's number
    QPlainTextEdit* m_note = nullptr;   // the memorandum's text
    QPushButton* m_select = nullptr;    // cmdSelect
    QPushButton* m_close = nullptr;     // Command2
};

void registerMemoForms();

} // namespace qd8
