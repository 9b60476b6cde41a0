#pragma once

#include "foundation/SessionContext.h"

#include <QString>

namespace qd8 {

// The application side of the session: the application database, the command centre
// beside it, the installation's folders and the session language.
class AppObject {
public:
    virtual ~AppObject() = default;
    virtual QString connectionString() const = 0;
    virtual QString commandCentreConnectionString() const = 0;
    virtual const SessionContext& session() const = 0;
};

// An application object over a session context the host filled in.
class SessionAppObject : public AppObject {
public:
    explicit SessionAppObject(const SessionContext& session) : m_session(session) {}
    QString connectionString() const override { return m_session.AppConnectionString; }
    QString commandCentreConnectionString() const override;
    const SessionContext& session() const override { return m_session; }

private:
    SessionContext m_session;
};

} // namespace qd8
