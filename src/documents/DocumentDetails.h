#pragma once

#include "widgets/HostedControl.h"

#include <QTreeWidget>
#include <memory>

namespace qd8 {

class Recordset;

// What the three detail views share: a read-only list (numbered "No", "Detail",
// "Description" rows, or the status columns), filled by one call that is handed its own
// connection string, and the list's Click and KeyDown events. Dates show in the session
// language's era; quantities as "q1 u1 / q2 u2 / q3 u3".
class DocumentDetailView : public HostedControl {
    Q_OBJECT

public:
    ~DocumentDetailView() override;

    QTreeWidget* list() const { return m_list; }
    // The shown rows, "caption|value" (or the cells of a status row joined by "|").
    QStringList rowTexts() const;

Q_SIGNALS:
    void Click();
    void KeyDown(int KeyCode, int Shift);

protected:
    // `thai`/`english`: what a screen reader calls the list, in the session language.
    DocumentDetailView(const QStringList& columns, const char* thai, const char* english, QWidget* parent);
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;
    // Rows are gathered and handed to the list at once when `Show` ends (one insertion,
    // not one a row): each Show keeps a Batch for its length.
    struct Batch {
        explicit Batch(DocumentDetailView& view) : view(view) { view.list()->clear(); }
        ~Batch() { view.flush(); }
        DocumentDetailView& view;
    };
    void addRow(const QStringList& cells);
    void flush();
    void addDetail(const QString& caption, const QString& value);
    // The option's text, "" when it cannot be read (no session, a failing read).
    QString optionText(const QString& alias, const QString& connectionString);
    QString dateValue(const Recordset& rs, const QString& field) const;
    // "q1 u1 / q2 u2 / q3 u3" of stems like TJbMQuantity and TJbMTUntCode.
    static QString quantities(const Recordset& rs, const QString& quantityStem, const QString& unitStem);
    // The name followed by the non-empty custom fields " ( caption value / ... ) ", each
    // after its option caption (optionStem1.. of the options).
    QString withCustoms(const Recordset& rs, const QString& name, const QString& customStem, int count,
        const QString& optionStem, const QString& connectionString);
    // A failing read: the list keeps what it has and the message says why.
    void report(const class DbError& error);

private:
    void nameList();

    QTreeWidget* m_list;
    const char* m_thaiName;
    const char* m_englishName;
    QList<class QTreeWidgetItem*> m_pending;
    std::shared_ptr<DataObject> m_ownData;
};

// A job order line with its sales order, production order line and materials, and
// purchase-request line. Each Show replaces what was shown.
class DocumentJob : public DocumentDetailView {
    Q_OBJECT

public:
    explicit DocumentJob(QWidget* parent = nullptr);

    Q_INVOKABLE void ShowDocumentJOB(const QString& JobNo, qint32 JobLn, const QString& ConnectionString);
    Q_INVOKABLE void ShowDocumentJOB2(const QString& JobNo, qint32 JobLn, const QString& ProductionNo, qint32 ProductionLn,
        const QString& ConnectionString);
    Q_INVOKABLE void ShowDocumentJOB3(const QString& JobNo, qint32 JobLn, const QString& ProductionNo, qint32 ProductionLn,
        const QString& PRNo, qint32 PRLn, const QString& ConnectionString);

private:
    void showJob(const QString& jobNo, qint32 jobLn, const QString& cs);
    void showProduction(const QString& productionNo, qint32 productionLn, const QString& cs);
    void showRequest(const QString& prNo, qint32 prLn, const QString& cs);
};

// A purchase-request line.
class DocumentPR : public DocumentDetailView {
    Q_OBJECT

public:
    explicit DocumentPR(QWidget* parent = nullptr);
    Q_INVOKABLE void ShowDocumentPR(const QString& PRNo, qint32 PRLn, const QString& ConnectionString);
};

// Who created, edited, checked, approved, cancelled and revised a document, and when:
// the header's latest state, and with DisplayMode 1 every event the document history
// (QD8TDocHistory) holds for it as well.
class DocumentStatus : public DocumentDetailView {
    Q_OBJECT

public:
    explicit DocumentStatus(QWidget* parent = nullptr);

    // NotUseNow, CancelNoAlias and RecorderCode are taken and not used.
    Q_INVOKABLE void ShowDocumentStatus(int& DisplayMode, int& NotUseNow, QString& DocumentNo, QString& CancelNoAlias,
        QString& RecorderCode, QString& PrimaryKey, QString& FieldPrefix, QString& TABLENAME, QString& ConnectionString);
    // The same; a WHERE, when given, follows the key condition after " AND ".
    void ShowDocumentStatus2(int& DisplayMode, int& NotUseNow, QString& DocumentNo, QString& CancelNoAlias, QString& RecorderCode,
        QString& PrimaryKey, QString& FieldPrefix, QString& TABLENAME, QString& ConnectionString, const QString& WHERE = {});

    // The statement the last Show ran.
    QString lastStatement() const { return m_statement; }

private:
    QString m_statement;
};

} // namespace qd8
