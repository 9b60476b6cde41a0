#pragma once

#include "database/CompanyUsers.h"
#include "widgets/HostSession.h"

#include <QList>
#include <QString>
#include <stdexcept>

namespace qd8 {

using WorkbenchUser = CompanyUser;

// The workbench's session: a host's, with the sample company and the companies a user may
// change to.
struct WorkbenchSession : HostSession {
    // The sample company in a folder, created with qd8-admin when it is not there yet.
    // std::runtime_error when it cannot be created.
    static WorkbenchSession sampleCompany(const QString& folder, const QString& adminProgram);
    static WorkbenchSession inFolder(const QString& folder) { return {HostSession::inFolder(folder)}; }
    static WorkbenchSession fromConnectionStrings(const QString& app, const QString& data, const QString& files)
    {
        return {HostSession::fromConnectionStrings(app, data, files)};
    }

    // The companies a user may change to, this one first: a SQLite company's sibling folders
    // that hold a company too (~/.qd8/sample, ~/.qd8/branch2, ...). Nobody is logged in to them.
    QList<WorkbenchSession> companies() const;

    QList<WorkbenchUser> users() const { return companyUsers(dataConnectionString); }
};

} // namespace qd8
