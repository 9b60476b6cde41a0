#pragma once

#include "navigation/ToolLauncher.h"

class QToolButton;

namespace qd8 {

// The one-row launcher of a module window: a toggle button that switches between the
// user's, the module's and the main command set, up to fifteen command buttons filled
// from the set, and five tool buttons (help, calculator, image folder, spec
// folder, report search).
class DocumentToolBar : public ToolLauncher {
    Q_OBJECT

public:
    static constexpr int CommandButtons = 15;
    static constexpr int UtilityButtons = 5;
    // The client configuration program started when the host names none, in SystemFolder.
    static const QString ClientConfigurationProgram;  // "QD8ClientConfig.exe"

    explicit DocumentToolBar(QWidget* parent = nullptr);
    ~DocumentToolBar() override;

    // 0 user commands ("U"), 1 module list ("G"), 2 main list ("M").
    int toggleMode() const { return m_mode; }
    // Command button 1..15; 0 is the toggle button.
    QToolButton* commandButton(int index) const;
    // Tool button 0..4.
    QToolButton* utilityButton(int index) const;
    // The alias a command button holds.
    QString commandAlias(int index) const;

public Q_SLOTS:
    // Derives the command-centre connection and shows the user's commands (mode 0).
    void Refresh() override;
    void DOUSERLIST();
    void DOMODULELIST();
    void DOMAINLIST();
    // Mode + 1, back to 0 after 2, then loads that mode's set.
    void toggleButtons();
    void commandButtonClick(int index);
    void utilityButtonClick(int index);
    // Starts the client configuration program with the session's login appended
    // (" /U=" + UserLoginName + " /P=" + UserLoginPassword), then reminds the user that
    // each machine links its commands from the Application Center. Program: the
    // program's command line; "" starts SystemFolder\QD8ClientConfig.exe.
    void ClientConfiguration(const QString& Program = QString());

private:
    void fill(CommandSet set);
    void setMode(int mode);

    QToolButton* m_commands[CommandButtons + 1] = {};
    QToolButton* m_utilities[UtilityButtons] = {};
    QString m_aliases[CommandButtons + 1];
    int m_mode = 0;
};

} // namespace qd8
