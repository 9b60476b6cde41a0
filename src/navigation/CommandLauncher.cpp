#include "navigation/CommandLauncher.h"

#include "foundation/ConnectionString.h"

namespace qd8 {

void CommandLauncher::deriveCommandCentre()
{
    m_commandCentre = qd8::commandCentreConnectionString(AppConnectionString());
}

void CommandLauncher::launch(const QString& alias)
{
    QString stored = catalogue().storedAlias(alias);
    if (!stored.isEmpty())
        Q_EMIT Lunch(stored);
}

} // namespace qd8
