#pragma once

#include <QString>

namespace qd8 {

// The workstation side of the session: which machine, which branch, and the user's
// approval-note filter of the document lists (waiting-for-approval documents are shown
// only when their note is this value or empty).
class ClientObject {
public:
    virtual ~ClientObject() = default;
    virtual QString hostName() const = 0;
    virtual QString branchCode() const = 0;
    virtual bool approveNoteFilter() const = 0;
    virtual QString approveNoteValue() const = 0;
};

// Read once from the session database: the user's settings "ApproveNoteFilter" (a number,
// not 0 sets the filter) and "ApproveNoteValue", and the branch of the user's employee.
class DbClientObject : public ClientObject {
public:
    DbClientObject(const QString& connectionString, qint32 userId, const QString& hostName = {});

    QString hostName() const override { return m_hostName; }
    QString branchCode() const override { return m_branchCode; }
    bool approveNoteFilter() const override { return m_approveNoteFilter; }
    QString approveNoteValue() const override { return m_approveNoteValue; }

private:
    QString m_hostName;
    QString m_branchCode;
    bool m_approveNoteFilter = false;
    QString m_approveNoteValue;
};

} // namespace qd8
