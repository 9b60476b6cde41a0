#include "WorkbenchSession.h"

#include "database/Schema.h"
#include "foundation/ConnectionString.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>

namespace qd8 {

WorkbenchSession WorkbenchSession::sampleCompany(const QString& folder, const QString& adminProgram)
{
    const QDir dir(folder);
    if (!QFileInfo::exists(dir.filePath(QStringLiteral("QD8Data.dat")))) {
        QProcess admin;
        admin.start(adminProgram, {QStringLiteral("init"), dir.absolutePath()});
        if (!admin.waitForFinished(120000) || admin.exitStatus() != QProcess::NormalExit || admin.exitCode() != 0)
            throw std::runtime_error(QStringLiteral("Cannot create the sample company in %1 with %2:\n%3")
                                         .arg(dir.absolutePath(), adminProgram,
                                             QString::fromLocal8Bit(admin.readAllStandardError() + admin.readAllStandardOutput()))
                                         .toStdString());
    }
    return inFolder(dir.absolutePath());
}

QList<WorkbenchSession> WorkbenchSession::companies() const
{
    QList<WorkbenchSession> found{*this};
    const ConnectionString data = ConnectionString::parse(dataConnectionString);
    if (data.engine() != Engine::SQLite)
        return found;
    const QDir folder = QFileInfo(data.sqliteFile()).absoluteDir();
    QDir parent = folder;
    if (!parent.cdUp())
        return found;
    for (const QFileInfo& sibling : parent.entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name)) {
        const QDir dir(sibling.absoluteFilePath());
        if (dir != folder && dir.exists(Schema::fileName(DatabaseRole::CompanyData))
            && dir.exists(Schema::fileName(DatabaseRole::Application)))
            found << inFolder(dir.absolutePath());
    }
    return found;
}

} // namespace qd8
