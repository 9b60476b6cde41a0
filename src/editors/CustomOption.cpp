#include "editors/CustomOption.h"

namespace qd8 {

CustomOption::CustomOption(QWidget* parent)
    : OptionEditor({OptionScope::Company, "QD8TOption", "TOpt", " AND TOptFlag1<>0", nullptr, false}, parent)
{
}

void CustomOption::SetLast3(const QString& FolderPathName, const QString& ControlName, qint32 UserID, const QString& DataConnectionString,
    const QString& AppConnectionString)
{
    SetLast2(FolderPathName, ControlName, QString::number(UserID), DataConnectionString, AppConnectionString);
}

} // namespace qd8
