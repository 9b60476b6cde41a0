#pragma once

#include "navigation/IconList.h"
#include "navigation/ToolLauncher.h"

class QMenu;

namespace qd8 {

class Ribbon;

// The main window's ribbon: the command catalogue's three sets on the tabs "Module",
// "Group" and "User", and the fixed tabs of tools ("Standard"), the organizer and help.
// A button either acts here (calculator, clipboard keys, folders, web pages, theme),
// opens one of the host's registered forms (document search, memorandum forms), or hands
// a catalogue command to the host with Lunch.
class NUVRibbon : public ToolLauncher {
    Q_OBJECT
    Q_PROPERTY(QColor BackColor READ BackColor)
    Q_PROPERTY(bool LoadBackground READ LoadBackground)

public:
    // The registered form names the ribbon opens.
    static const QString SearchForm;        // "DocumentSearch"
    static const QString MemoEntryForm;     // "MemoEntry"
    static const QString MemoViewerForm;    // "MemoViewer"
    static const QString MemoRemovalForm;   // "MemoRemoval"

    explicit NUVRibbon(QWidget* parent = nullptr);
    ~NUVRibbon() override;

    Ribbon* ribbon() const { return m_ribbon; }
    QColor BackColor() const;
    bool LoadBackground() const;
    QMenu* userMenu() const { return m_userMenu; }

public Q_SLOTS:
    // Derives the command-centre connection, applies the user's stored theme and loads
    // the three command sets as the shortcut bar does: user, module, main.
    void Refresh() override;
    void DOMAINLIST();
    void DOMODULELIST();
    void DOUSERLIST();
    // The action of a ribbon button (keys compared in upper case).
    void buttonClick(const QString& key);
    // Lets the user pick a command for his own list / one to take off it.
    void mnuAdd_click();
    void mnuDelete_click();

Q_SIGNALS:
    // After the user picked a theme: its number and the ribbon it was applied to.
    void ThemeChange(int iTheme, QObject* iACPRibbon);

private:
    void buildFixedTabs();
    void fill(CommandSet set, const QString& tabKey, const QString& groupKey);
    void pickTheme();
    void openWebPage(const QString& key);
    void showForm(const QString& name);
    // Opens a page or a mail address; says so when no program on the desktop can.
    void openUrl(const QString& url);
    // A button that is neither a local action nor a catalogue command says what it is.
    void notInThisBuild(const QString& key);
    void showAbout();

    Ribbon* m_ribbon = nullptr;
    QMenu* m_userMenu = nullptr;
    IconList m_images;
};

} // namespace qd8
