#include "database/AppObject.h"

#include "foundation/ConnectionString.h"

namespace qd8 {

QString SessionAppObject::commandCentreConnectionString() const
{
    return qd8::commandCentreConnectionString(m_session.AppConnectionString);
}

} // namespace qd8
