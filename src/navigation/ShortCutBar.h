#pragma once

#include "navigation/CommandLauncher.h"
#include "navigation/IconList.h"


class QListWidget;
class QListWidgetItem;
class QMenu;
class QAction;
class QPushButton;

namespace qd8 {

// The left-hand launcher of the host window: three lists of the command catalogue (the
// main list of the module's list-bar commands, the module's chosen commands, the user's
// own commands) under the header buttons "Group Menu", "User Menu" and "Module Menu", one
// of them open at a time. Opening an entry (double click, Enter) raises Lunch; the user's
// own list is kept with the "Config" menu (right click on it: "Add", "Remove").
class ShortCutBar : public CommandLauncher {
    Q_OBJECT

public:
    explicit ShortCutBar(QWidget* parent = nullptr);
    ~ShortCutBar() override;

    // The list the last click or selection happened in (1 main, 2 module, 3 user).
    int currentList() const { return m_currentList; }
    // The list whose pane is open.
    int shownList() const { return m_shownList; }
    QString selectedAlias() const { return m_selectedAlias; }
    QListWidget* listView(CommandSet set) const;
    QPushButton* headerButton(CommandSet set) const;
    // The keys of the image list, in the order they were added ("Blank" first).
    QStringList imageKeys() const { return m_images.keys(); }
    QMenu* configMenu() const { return m_configMenu; }
    QAction* addAction() const { return m_addAction; }
    QAction* removeAction() const { return m_removeAction; }

public Q_SLOTS:
    void Refresh() override;
    void DOMAINLIST();
    void DOMODULELIST();
    void DOUSERLIST();
    void mnuAdd_click();
    void mnuDelete_click();
    // Opens the pane of a list, as its header button does.
    void showList(int list);
    // Enables "Remove" for a selection in the user list and shows the "Config" menu.
    void showConfigMenu(const QPoint& globalPos);

protected:
    QStringList propertyKeysRead() const override;
    QStringList propertyKeysWritten() const override;
    QString designProperty(const QString& key) const override;
    void setDesignProperty(const QString& key, const QString& value) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void loadList(CommandSet set);
    void selectItem(CommandSet set, QListWidgetItem* item);
    void launchSelected();

    QListWidget* m_lists[3] = {};
    QPushButton* m_headers[3] = {};
    QMenu* m_configMenu = nullptr;
    QAction* m_addAction = nullptr;
    QAction* m_removeAction = nullptr;
    IconList m_images;
    int m_currentList = 1;
    int m_shownList = 1;
    QString m_selectedAlias;
};

} // namespace qd8
