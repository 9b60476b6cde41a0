#pragma once

#include "foundation/DbError.h"

#include <QElapsedTimer>
#include <QString>

namespace qd8 {

// A statement kept waiting by another writer's lock. Once it has waited a moment, the
// progress service says who waits for what (the operation the user runs, the table) in the
// session language; its Cancel gives the wait up, and the statement then fails with
// cancelledError(), leaving the caller's transaction to roll back.
class LockWait {
public:
    static constexpr qint64 ShowAfterMs = 500;

    LockWait(const QString& statement, const QString& database);
    ~LockWait();
    LockWait(const LockWait&) = delete;
    LockWait& operator=(const LockWait&) = delete;

    // Called again and again while the statement waits; false once the user cancelled.
    bool waiting();
    bool cancelled() const { return m_cancelled; }
    // What a cancelled statement throws: kind Locked, worded for the clerk.
    DbError cancelledError(const QString& sql) const;
    // The words of the progress: "<who> is waiting for <what>...".
    QString text(int languageId) const;

private:
    QString m_who;
    QString m_what;
    QElapsedTimer m_since;
    bool m_shown = false;
    bool m_cancelled = false;
};

} // namespace qd8
