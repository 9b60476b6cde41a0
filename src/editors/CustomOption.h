#pragma once

#include "editors/OptionEditor.h"

namespace qd8 {

// The options of the company as a whole (QD8TOption); in the modules "JOB" and "SERVICE"
// every group lists "JOBCodeCaption" too.
class CustomOption : public OptionEditor {
    Q_OBJECT

public:
    explicit CustomOption(QWidget* parent = nullptr);
    // SetLast2 with the user as a number.
    Q_INVOKABLE void SetLast3(const QString& FolderPathName, const QString& ControlName, qint32 UserID,
        const QString& DataConnectionString, const QString& AppConnectionString);
};

} // namespace qd8
