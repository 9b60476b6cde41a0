#pragma once

#include <QColor>
#include <QIcon>
#include <QStringList>
#include <QWidget>

class QTabBar;
class QStackedWidget;
class QToolButton;

namespace qd8 {

// One colour scheme of the ribbon.
struct RibbonTheme {
    QString name;
    QColor background;       // the ribbon's body (BackColor)
    QColor tabBar;           // the strip behind the tab captions
    QColor groupBackground;  // one group's box
    QColor groupCaption;     // the caption line under a group
    QColor text;
    QColor hover;            // a button under the mouse
    bool background_image = false;  // LoadBackground: the theme paints a gradient body
};

// A ribbon: tabs, each holding groups, each holding buttons. Every tab, group and button
// has a key; a button click raises buttonClicked with the button's key. Buttons are large
// (icon above a caption of one or two lines, "\n" breaking the line) or small (icon beside
// a one-line caption, three stacked in a column). Captions follow QToolButton rules: "&&"
// shows one ampersand. Keys are compared exactly as given.
//
// The ribbon keeps one height whatever its tabs hold (two caption lines under a large icon,
// plus the group caption line). A page wider than the ribbon scrolls sideways instead of
// squeezing its buttons, so the ribbon never forces a minimum width on the main window;
// sizeHint() is as wide as the widest page (or the tab captions, if they are wider).
class Ribbon : public QWidget {
    Q_OBJECT

public:
    enum class ButtonSize { Large, Small };

    explicit Ribbon(QWidget* parent = nullptr);
    ~Ribbon() override;

    // A tab key already present keeps its tab (the caption is updated).
    void addTab(const QString& key, const QString& caption);
    // A group key already present in the tab keeps its group. Unknown tab: nothing.
    void addGroup(const QString& tabKey, const QString& key, const QString& caption);
    // Appends a button to the group; nullptr when the tab or group does not exist.
    QToolButton* addButton(const QString& tabKey, const QString& groupKey, const QString& key,
        const QString& caption, const QIcon& largeIcon = {}, const QIcon& smallIcon = {},
        ButtonSize size = ButtonSize::Large);
    void removeTab(const QString& key);
    // Removes every button of the group, keeping the group.
    void clearGroup(const QString& tabKey, const QString& groupKey);

    bool hasTab(const QString& key) const;
    QStringList tabKeys() const;                                        // in display order
    QString tabCaption(const QString& key) const;
    QStringList groupKeys(const QString& tabKey) const;                 // in display order
    QString groupCaption(const QString& tabKey, const QString& groupKey) const;
    QStringList buttonKeys(const QString& tabKey, const QString& groupKey) const;  // in display order
    // The first button with that key in any tab, or nullptr.
    QToolButton* button(const QString& key) const;
    QToolButton* button(const QString& tabKey, const QString& groupKey, const QString& key) const;

    void setCurrentTab(const QString& key);
    QString currentTab() const;

    // The built-in themes; index 0 is the default.
    static const QList<RibbonTheme>& themes();
    static QStringList themeNames();
    int theme() const { return m_theme; }
    // An index out of range applies theme 0.
    void setTheme(int index);
    QColor backColor() const;
    bool loadBackground() const;

Q_SIGNALS:
    void buttonClicked(const QString& key);
    // The user or setCurrentTab changed the tab shown ("" when the last tab was removed).
    void currentTabChanged(const QString& key);
    // A right click inside a group, for a context menu of the host control.
    void groupContextMenuRequested(const QString& tabKey, const QString& groupKey, const QPoint& globalPos);

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Group;
    struct Tab;
    Tab* findTab(const QString& key) const;
    Group* findGroup(const QString& tabKey, const QString& groupKey) const;
    void applyTheme();
    QString fontRule() const;
    // Heights of large buttons and group captions in the current font and theme, measured
    // on Thai text: marks above and below the line need more room than Latin text.
    void measure();
    // Gives a group's parts the measured heights, so groups line up whatever their captions.
    void applyMeasures(Group* group) const;
    // Puts a button in the group's next free place: a large one in a column of its own,
    // small ones three to a column.
    void placeButton(Group* group, QToolButton* button, ButtonSize size);
    void resetGroupLayout(Group* group);
    // The widget a newly added button follows in the focus chain.
    QWidget* focusPredecessor(const QToolButton* button) const;
    // Brings the sizes of a changed group (or all groups) up to its tab's page and the ribbon
    // at once, so sizeHint() is right before the posted layout requests run.
    void pageChanged(Tab* tab, Group* group = nullptr);

    QTabBar* m_tabBar = nullptr;
    QStackedWidget* m_pages = nullptr;
    QList<Tab*> m_tabs;
    int m_theme = 0;
    int m_largeHeight = 0;         // a large button with a two-line caption
    int m_largeOneLineHeight = 0;  // ... with a one-line caption
    int m_captionHeight = 0;       // the caption strip of a group
};

} // namespace qd8
