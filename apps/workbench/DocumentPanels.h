#pragma once

#include <QString>
#include <QTabWidget>

class QPushButton;

namespace qd8 {

class Connection;
class DocumentJob;
class DocumentStatus;
class HostedControl;
class JobSelector;
struct DocumentDefinition;

// Hands `form`'s session (connections, user, language, session objects) to a control it hosts.
void shareSession(HostedControl& to, const HostedControl& form);

// The panes beside a document form's fields: its history (the header's state and every
// event QD8TDocHistory holds, with the workflow buttons Confirm, Approve, Reject and
// Cancel that write both), and on a stock document the job selector with the job,
// production order and purchase request behind the chosen line. Masters have none.
class DocumentPanels : public QTabWidget {
    Q_OBJECT

public:
    DocumentPanels(const DocumentDefinition& definition, HostedControl* form);

    // Whether the document keeps a history (documents do, masters do not).
    static bool wanted(const DocumentDefinition& definition);

    JobSelector* jobSelector() const { return m_selector; }
    DocumentJob* jobDetail() const { return m_jobDetail; }
    DocumentStatus* status() const { return m_status; }

    // The form's session, again after a change of language.
    void attach();
    void startNew(const QString& documentCode);
    // Adding or editing: the job may be chosen and the workflow buttons wait for a save.
    void setWritable(bool writable);
    void load(const QString& key);
    // "" when the document may be saved, else why not (what the job selector lacks).
    QString problem() const;
    // Inside the form's transaction: the job choice onto the row, and the event.
    void write(Connection& data, const QString& key, bool added, const QString& changes);
    // A workflow step on the loaded document ("Confirm", "Approve", "Reject", "Cancel"):
    // its statuses and its history in one transaction; false when refused or failed.
    bool step(const QString& action);
    // Tabs, buttons and names in the form's language.
    void retranslate();

Q_SIGNALS:
    void changed();

private:
    void showDetail();
    void showHistory();

    const DocumentDefinition& m_definition;
    HostedControl* m_form;
    QString m_key;
    QString m_prefix;  // the document's column prefix ("TInv")
    JobSelector* m_selector = nullptr;
    DocumentJob* m_jobDetail = nullptr;
    DocumentStatus* m_status = nullptr;
    QList<QPushButton*> m_steps;
};

} // namespace qd8
