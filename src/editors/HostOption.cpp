#include "editors/HostOption.h"

#include "foundation/SessionContext.h"

#include <QFileInfo>

namespace qd8 {

HostOption::HostOption(QWidget* parent)
    : OptionEditor({OptionScope::Host, "QD8THostOption", "THop", "  AND THopFlag1<>0", "TOpGShowHost", true}, parent)
{
}

void HostOption::SetLast2(const QString& FolderPathName, const QString& ControlName, const QString& UserID, const QString& DataConnectionString,
    const QString& AppConnectionString, const QString& HostName, const QString& HostConfigFileName)
{
    OptionEditor::SetLast2(FolderPathName, ControlName, UserID, DataConnectionString, AppConnectionString);
    setActiveKey(HostName);
    m_configFile = HostConfigFileName;
}

void HostOption::SetLast3(const QString& FolderPathName, const QString& ControlName, qint32 UserID, const QString& DataConnectionString,
    const QString& AppConnectionString, const QString& HostName, const QString& HostConfigFileName)
{
    SetLast2(FolderPathName, ControlName, QString::number(UserID), DataConnectionString, AppConnectionString, HostName, HostConfigFileName);
}

QString HostOption::unusableReason() const
{
    // The workstation is named by the host, and its configuration file (which the
    // installation gives each workstation that may use the company) must be readable.
    const QFileInfo file(localPath(m_configFile));
    if (activeKey().trimmed().isEmpty() || m_configFile.isEmpty() || !file.isFile() || !file.isReadable())
        return QStringLiteral("กรุณาระบุรายละเอียดไฟล์ หรือกำหนดสิทธิการใช้แหล่งข้อมูลให้ถูกต้อง");
    return {};
}

} // namespace qd8
