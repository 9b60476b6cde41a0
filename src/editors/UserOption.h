#pragma once

#include "editors/OptionEditor.h"

namespace qd8 {

// The options of the session user (QD8TUserOption), stored under the user ID. The option
// group last chosen is kept in the user's folder, in "QD8DEV.ini" (section [UserOption],
// key OptionGroup), and opened again next time.
class UserOption : public OptionEditor {
    Q_OBJECT

public:
    explicit UserOption(QWidget* parent = nullptr);
    // SetLast2 with the user as a number.
    Q_INVOKABLE void SetLast3(const QString& FolderPathName, const QString& ControlName, qint32 UserID,
        const QString& DataConnectionString, const QString& AppConnectionString);
    // The file the choice is kept in: FolderPathName + "\QD8DEV.ini" ("" without a folder).
    QString settingsFile() const;

protected:
    QString rememberedGroup() const override;
    void rememberGroup(const QString& group) override;
};

} // namespace qd8
