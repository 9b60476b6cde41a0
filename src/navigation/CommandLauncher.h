#pragma once

#include "navigation/CommandCatalogue.h"
#include "widgets/HostedControl.h"

namespace qd8 {

// The base of the launchers (shortcut bar, document tool bar, ribbon): they read the
// command catalogue and hand the chosen command to the host with Lunch; they never run a
// catalogue command themselves.
class CommandLauncher : public HostedControl {
    Q_OBJECT

public:
    using HostedControl::HostedControl;

    // Derived on Refresh from AppConnectionString ("QD8Command.dat" → "QD8Center.dat").
    QString commandCentreConnectionString() const { return m_commandCentre; }

Q_SIGNALS:
    // ShellFunction: the command's TCmdAlias exactly as stored in the catalogue.
    void Lunch(QString& ShellFunction);

protected:
    void deriveCommandCentre();
    CommandCatalogue catalogue() const { return CommandCatalogue(session(), m_commandCentre); }
    // Looks the alias up again and raises Lunch with the stored alias; an alias no longer
    // in the catalogue launches nothing. False when it was not found.
    bool launch(const QString& alias);
    // The lists launch only with a session database and an icon folder.
    virtual bool canLaunch(const CommandCatalogue& commands) const { return commands.canLoad(); }

private:
    QString m_commandCentre;
};

} // namespace qd8
