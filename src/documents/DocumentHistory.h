#pragma once

#include <QDateTime>
#include <QList>
#include <QString>
#include <QVariantMap>

namespace qd8 {

class Connection;
class DataObject;

// One event of a document's life as QD8TDocHistory keeps it: created, edited (with what
// changed), confirmed, approved, rejected, cancelled, or a memorandum (a note on the
// document).
struct HistoryEvent {
    qint64 id = 0;
    QString table;
    QString documentNo;
    QString action;
    QDateTime when;
    QString by;
    QString changes;
    QString remark;
};

// The document history of the company data database.
class DocumentHistory {
public:
    static const QString Memo;  // the action of a memorandum

    // Writes an event on the caller's connection, inside its transaction, so the event
    // and the change it tells of are kept or lost together. Its number is the running
    // number "QD8TDocHistory" (through `numbers` when given). DbError.
    static void record(Connection& connection, DataObject* numbers, const QString& table, const QString& documentNo,
        const QString& action, const QString& by, const QString& changes = {}, const QString& remark = {});
    // The events of one document, oldest first; `action` "" for all. DbError.
    static QList<HistoryEvent> read(const QString& connectionString, const QString& table, const QString& documentNo,
        const QString& action = {});
    // Every memorandum, newest first. DbError.
    static QList<HistoryEvent> memos(const QString& connectionString);
    // Removes one event (a memorandum); false when it was not there. DbError.
    static bool remove(const QString& connectionString, qint64 id);
    // What an edit changed: "field: old -> new" for each field of `after` whose value
    // differs from `before`, joined by "; ".
    static QString changes(const QVariantMap& before, const QVariantMap& after);
};

} // namespace qd8
