#pragma once

#include <QDate>
#include <QString>
#include <QStringList>

namespace qd8 {

class Connection;

// Fills the document table of a document list with made-up documents, for trying the
// lists on a company of realistic size: numbered after the documents already there
// (list prefix + 7 digits: PR0000019 ...), dated over the three years up to today, in
// every status the lists filter by (drafts, waiting for approval with the approve notes
// '', 'A', 'B' and Null, approved, billed, cancelled), with Thai and English descriptions
// and the branches, projects, divisions, employees, customers and suppliers the company
// has. One INSERT ... SELECT over a generated row series in one transaction, so a
// million documents take seconds.
class DocumentGenerator {
public:
    struct Outcome {
        QString table;
        qint64 rows = 0;
        QString firstNo;
        QString lastNo;
    };

    // The lists it fills: PURPR, PUPO, SOORDER, ARINVOICE, ICISSUEUSE.
    static QStringList listAliases();
    // The table the list's documents go to; "" for a list it does not know.
    static QString tableOf(const QString& listAlias);

    explicit DocumentGenerator(const QString& dataConnectionString, const QDate& today = QDate::currentDate());

    // Adds `rows` documents of the list in one transaction. DbError when the list is
    // unknown, the numbers would pass 7 digits or the database refuses.
    Outcome generate(const QString& listAlias, qint64 rows);

private:
    QString m_connectionString;
    QDate m_today;
};

} // namespace qd8
