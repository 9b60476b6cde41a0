#include "navigation/CommandLauncher.h"

#include "foundation/ConnectionString.h"

namespace qd8 {

void CommandLauncher::deriveCommandCentre()
{
    m_commandCentre = qd8::commandCentreConnectionString(AppConnectionString());
}

bool CommandLauncher::launch(const QString& alias)
{
    const CommandCatalogue commands = catalogue();
    if (!canLaunch(commands))
        return false;
    QString stored = commands.storedAlias(alias);
    if (stored.isEmpty())
        return false;
    Q_EMIT Lunch(stored);
    return true;
}

} // namespace qd8
