#pragma once

#include "editors/OptionEditor.h"

namespace qd8 {

// The options of one workstation (QD8THostOption), stored under its name. The host names
// the workstation and its configuration file; without both (or with a file that cannot
// be read) the editor says so and loads nothing.
class HostOption : public OptionEditor {
    Q_OBJECT

public:
    explicit HostOption(QWidget* parent = nullptr);
    using OptionEditor::SetLast2;
    // The shared SetLast2, then the workstation's name and configuration file.
    Q_INVOKABLE void SetLast2(const QString& FolderPathName, const QString& ControlName, const QString& UserID,
        const QString& DataConnectionString, const QString& AppConnectionString, const QString& HostName,
        const QString& HostConfigFileName);
    // The same with the user as a number.
    Q_INVOKABLE void SetLast3(const QString& FolderPathName, const QString& ControlName, qint32 UserID,
        const QString& DataConnectionString, const QString& AppConnectionString, const QString& HostName,
        const QString& HostConfigFileName);
    QString HostName() const { return activeKey(); }
    QString HostConfigFileName() const { return m_configFile; }

protected:
    QString unusableReason() const override;

private:
    QString m_configFile;
};

} // namespace qd8
