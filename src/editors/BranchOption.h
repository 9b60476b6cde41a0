#pragma once

#include "editors/OptionEditor.h"

namespace qd8 {

// The options of one branch (QD8TBranchOption): the branch the host names, else the
// user's own (his employee's branch). Inactive options are listed too.
class BranchOption : public OptionEditor {
    Q_OBJECT

public:
    explicit BranchOption(QWidget* parent = nullptr);
    // SetLast4 under its older name.
    Q_INVOKABLE void SetLast3(const QString& FolderPathName, const QString& ControlName, qint32 UserID,
        const QString& DataConnectionString, const QString& AppConnectionString, const QString& ActiveBranchCode = QString());
    // SetLast2 with the user as a number, then the branch whose values are edited ("" for
    // the user's own).
    Q_INVOKABLE void SetLast4(const QString& FolderPathName, const QString& ControlName, qint32 UserID,
        const QString& DataConnectionString, const QString& AppConnectionString, const QString& ActiveBranchCode);
    QString ActiveBranchCode() const { return activeKey(); }

protected:
    // Without a branch named and none for the user, there is no branch to edit.
    QString unusableReason() const override;
};

} // namespace qd8
