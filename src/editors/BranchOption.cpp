#include "editors/BranchOption.h"

#include "foundation/DbError.h"

namespace qd8 {

BranchOption::BranchOption(QWidget* parent)
    : OptionEditor({OptionScope::Branch, "QD8TBranchOption", "TBOp", "", "TOpGShowBranch", false}, parent)
{
}

void BranchOption::SetLast3(const QString& FolderPathName, const QString& ControlName, qint32 UserID, const QString& DataConnectionString,
    const QString& AppConnectionString, const QString& ActiveBranchCode)
{
    SetLast4(FolderPathName, ControlName, UserID, DataConnectionString, AppConnectionString, ActiveBranchCode);
}

void BranchOption::SetLast4(const QString& FolderPathName, const QString& ControlName, qint32 UserID, const QString& DataConnectionString,
    const QString& AppConnectionString, const QString& ActiveBranchCode)
{
    SetLast2(FolderPathName, ControlName, QString::number(UserID), DataConnectionString, AppConnectionString);
    setActiveKey(ActiveBranchCode);
}

QString BranchOption::unusableReason() const
{
    try {
        if (!scopeKey().isEmpty())
            return {};
    } catch (const DbError&) {
        return {};  // the load that follows reports it
    }
    return bilingual("ผู้ใช้นี้ไม่ได้สังกัดสาขา กรุณาระบุสาขาที่จะกำหนดตัวเลือก", "This user belongs to no branch: name the branch whose options to set");
}

} // namespace qd8
