#include "widgets/Ribbon.h"

#include "foundation/Language.h"
#include "foundation/Services.h"

#include <QContextMenuEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <QPointer>
#include <QRegularExpression>
#include <QStackedWidget>
#include <QStyle>
#include <QTabBar>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <algorithm>
#include <functional>

namespace qd8 {

namespace {

constexpr int LargeIconSize = 32;
constexpr int SmallIconSize = 16;
constexpr int MinimumLargeWidth = 48;
constexpr int SmallButtonsPerColumn = 3;
// Room between groups; the separator line runs down its middle.
constexpr int GroupSpacing = 7;
// Margins of the buttons inside a group box, above and below.
constexpr int ButtonsTopMargin = 1;
constexpr int ButtonsBottomMargin = 0;
const QMargins CaptionMargins(6, 0, 6, 1);
// Thai with marks above and below the line, and Latin with an accent and a descender.
const QString MeasureText = QStringLiteral("ปุ่มที่ญั่ฏุ Ág");

// A transparent icon: a button without one still keeps the icon's room, so captions line up.
QIcon placeholderIcon(int size)
{
    QPixmap pixmap(size, size);
    pixmap.fill(Qt::transparent);
    return QIcon(pixmap);
}

// The caption of a large button: at most two lines, broken only where the caption says so.
QString largeCaption(const QString& caption)
{
    QStringList lines = QString(caption).remove(QLatin1Char('\r')).split(QLatin1Char('\n'));
    if (lines.size() > 2)
        lines = {lines.first(), lines.mid(1).join(QLatin1Char(' '))};
    return lines.join(QLatin1Char('\n'));
}

QString oneLine(const QString& caption)
{
    return QString(caption).remove(QLatin1Char('\r')).replace(QLatin1Char('\n'), QLatin1Char(' '));
}

// The text a caption shows: "&&" is one ampersand, a single "&" marks the mnemonic.
QString shownText(const QString& caption)
{
    QString shown;
    shown.reserve(caption.size());
    for (qsizetype i = 0; i < caption.size(); ++i) {
        if (caption[i] == QLatin1Char('&') && i + 1 < caption.size())
            ++i;
        shown += caption[i];
    }
    return shown;
}

// A line between the group background and the theme's text, readable on light and dark themes.
QColor borderColor(const RibbonTheme& theme)
{
    const QColor a = theme.groupCaption;
    const QColor b = theme.text;
    constexpr double t = 0.28;
    return QColor::fromRgbF(float(a.redF() + (b.redF() - a.redF()) * t), float(a.greenF() + (b.greenF() - a.greenF()) * t),
        float(a.blueF() + (b.blueF() - a.blueF()) * t));
}

// The top of the page body; the selected tab takes this colour so it joins the page.
QColor pageTop(const RibbonTheme& theme)
{
    return theme.background_image ? theme.background.lighter(108) : theme.background;
}

const RibbonTheme& themeOf(const Ribbon* ribbon)
{
    return Ribbon::themes().at(ribbon->theme());
}

// One group: a framed box, its buttons above a caption strip along the bottom.
class RibbonGroupBox : public QWidget {
public:
    RibbonGroupBox(const Ribbon* ribbon, QWidget* parent)
        : QWidget(parent)
        , m_ribbon(ribbon)
    {
        setObjectName(QStringLiteral("ribbonGroup"));
        setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    }

    std::function<void(const QPoint&)> contextMenuRequested;
    QLabel* caption = nullptr;

protected:
    void paintEvent(QPaintEvent*) override
    {
        const RibbonTheme& theme = themeOf(m_ribbon);
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        QPainterPath frame;
        frame.addRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
        painter.fillPath(frame, theme.groupBackground);
        if (caption) {
            painter.save();
            painter.setClipPath(frame);
            painter.fillRect(QRect(0, caption->y(), width(), height() - caption->y()), theme.groupCaption);
            painter.restore();
        }
        painter.setPen(QPen(borderColor(theme), 1));
        painter.drawPath(frame);
    }

    // Right clicks on the box, its caption or its buttons (which pass them up) all land here.
    void contextMenuEvent(QContextMenuEvent* event) override
    {
        if (contextMenuRequested)
            contextMenuRequested(event->globalPos());
        event->accept();
    }

private:
    const Ribbon* m_ribbon;
};

// The ribbon's own parts are named in the session language the host handed the message service.
QString partName(const char* thai, const char* english)
{
    return inLanguage(Services::messages().language(), thai, english);
}

QString scrollName(bool back)
{
    return back ? partName("เลื่อนกลับ", "Scroll back") : partName("เลื่อนไปข้างหน้า", "Scroll forward");
}

void nameParts(QWidget* ribbon, QTabBar* tabs)
{
    ribbon->setAccessibleName(partName("ริบบอน", "Ribbon"));
    tabs->setAccessibleName(partName("แท็บริบบอน", "Ribbon tabs"));
    for (QToolButton* button : ribbon->findChildren<QToolButton*>(QRegularExpression(QStringLiteral("^ribbonScroll"))))
        button->setAccessibleName(scrollName(button->objectName() == QLatin1String("ribbonScrollBack")));
}

// One tab's page. The groups sit in a row kept at its natural width: a page wider than the
// ribbon is never squeezed (buttons would overlap) but scrolls sideways, with arrow buttons
// at its edges and the mouse wheel, so every button stays reachable on a small screen.
class RibbonPage : public QWidget {
public:
    RibbonPage(const Ribbon* ribbon, QWidget* parent)
        : QWidget(parent)
        , row(new QWidget(this))
        , groups(new QHBoxLayout(row))
        , back(scrollButton(Qt::LeftArrow, QStringLiteral("ribbonScrollBack")))
        , forward(scrollButton(Qt::RightArrow, QStringLiteral("ribbonScrollForward")))
        , m_ribbon(ribbon)
    {
        setObjectName(QStringLiteral("ribbonPage"));
        row->setObjectName(QStringLiteral("ribbonGroups"));
        groups->setContentsMargins(4, 2, 4, 2);
        groups->setSpacing(GroupSpacing);
        groups->addStretch(1);
        connect(back, &QToolButton::clicked, this, [this] { scrollBy(-width() / 2); });
        connect(forward, &QToolButton::clicked, this, [this] { scrollBy(width() / 2); });
    }

    QSize sizeHint() const override { return row->sizeHint(); }
    QSize minimumSizeHint() const override { return {0, row->minimumSizeHint().height()}; }

    void placeRow()
    {
        const int hidden = std::max(0, row->sizeHint().width() - width());
        m_offset = std::clamp(m_offset, 0, hidden);
        row->setGeometry(-m_offset, 0, std::max(width(), row->sizeHint().width()), height());
        back->setGeometry(0, 0, ScrollButtonWidth, height());
        forward->setGeometry(width() - ScrollButtonWidth, 0, ScrollButtonWidth, height());
        back->setVisible(m_offset > 0);
        forward->setVisible(m_offset < hidden);
        back->raise();
        forward->raise();
        update();
    }
    void scrollBy(int pixels)
    {
        m_offset += pixels;
        placeRow();
    }
    // Scrolls just enough to show a child of the row (a button reached with Tab).
    void reveal(const QWidget* child)
    {
        const QRect r(child->mapTo(row, QPoint()), child->size());
        if (r.left() - m_offset < ScrollButtonWidth)
            scrollBy(r.left() - m_offset - ScrollButtonWidth);
        else if (r.right() - m_offset > width() - ScrollButtonWidth)
            scrollBy(r.right() - m_offset - width() + ScrollButtonWidth);
    }

    QWidget* row;
    QHBoxLayout* groups;
    QToolButton* back;
    QToolButton* forward;

protected:
    void resizeEvent(QResizeEvent*) override { placeRow(); }
    void wheelEvent(QWheelEvent* event) override
    {
        const QPoint delta = event->angleDelta();
        scrollBy(-(delta.x() ? delta.x() : delta.y()) / 2);
    }

    bool event(QEvent* event) override
    {
        // The row is not in a layout of the page: hear about its size changing.
        if (event->type() == QEvent::LayoutRequest) {
            placeRow();
            updateGeometry();
        }
        return QWidget::event(event);
    }

    void paintEvent(QPaintEvent*) override
    {
        const RibbonTheme& theme = themeOf(m_ribbon);
        QPainter painter(this);
        if (theme.background_image) {
            QLinearGradient gradient(0, 0, 0, height());
            gradient.setColorAt(0, pageTop(theme));
            gradient.setColorAt(0.45, theme.background);
            gradient.setColorAt(1, theme.background.darker(104));
            painter.fillRect(rect(), gradient);
        } else {
            painter.fillRect(rect(), theme.background);
        }
        const QColor border = borderColor(theme);
        painter.setPen(border);
        painter.drawLine(0, height() - 1, width() - 1, height() - 1);
        // Thin separators between neighbouring groups.
        QWidget* previous = nullptr;
        for (int i = 0; i < groups->count(); ++i) {
            QWidget* box = groups->itemAt(i)->widget();
            if (!box || box->isHidden())
                continue;
            if (previous) {
                const int x = row->x() + (previous->geometry().right() + box->x() + 1) / 2;
                painter.drawLine(x, box->y() + 4, x, box->geometry().bottom() - 4);
            }
            previous = box;
        }
    }

private:
    static constexpr int ScrollButtonWidth = 16;
    QToolButton* scrollButton(Qt::ArrowType arrow, const QString& name)
    {
        auto* button = new QToolButton(this);
        button->setObjectName(name);
        button->setArrowType(arrow);
        button->setAutoRepeat(true);
        button->setFocusPolicy(Qt::NoFocus);
        button->setAccessibleName(scrollName(arrow == Qt::LeftArrow));
        button->hide();
        return button;
    }

    const Ribbon* m_ribbon;
    int m_offset = 0;
};

} // namespace

struct Ribbon::Group {
    QString key;
    QString caption;
    RibbonGroupBox* box = nullptr;
    QWidget* content = nullptr;
    QGridLayout* grid = nullptr;
    struct Button {
        QString key;
        QPointer<QToolButton> widget;  // null once a host deleted the button itself
        ButtonSize size;
    };
    QList<Button> buttons;
    int column = -1;                    // the column the last button went into
    int smallRow = SmallButtonsPerColumn;  // next row for a small button; 3 starts a new column
};

struct Ribbon::Tab {
    QString key;
    QString caption;
    RibbonPage* page = nullptr;
    QList<Group*> groups;

    ~Tab() { qDeleteAll(groups); }
};

const QList<RibbonTheme>& Ribbon::themes()
{
    // name, background, tab bar, group, group caption, text, hover, gradient body
    static const QList<RibbonTheme> list = {
        {QStringLiteral("Blue"), QColor(0xd3, 0xe1, 0xf1), QColor(0xbf, 0xd4, 0xee), QColor(0xe4, 0xed, 0xf8),
            QColor(0xc2, 0xd6, 0xee), QColor(0x15, 0x42, 0x8b), QColor(0xff, 0xe3, 0x94), true},
        {QStringLiteral("Silver"), QColor(0xe4, 0xe7, 0xec), QColor(0xd2, 0xd7, 0xdf), QColor(0xf1, 0xf2, 0xf5),
            QColor(0xd6, 0xda, 0xe1), QColor(0x2e, 0x3a, 0x4b), QColor(0xff, 0xe3, 0x94), true},
        {QStringLiteral("Black"), QColor(0x3a, 0x3a, 0x3d), QColor(0x22, 0x22, 0x24), QColor(0x48, 0x48, 0x4c),
            QColor(0x2e, 0x2e, 0x31), QColor(0xee, 0xee, 0xee), QColor(0x6a, 0x6a, 0x70), false},
        {QStringLiteral("Green"), QColor(0xe1, 0xef, 0xdf), QColor(0xc8, 0xe2, 0xc4), QColor(0xed, 0xf6, 0xeb),
            QColor(0xc9, 0xe2, 0xc5), QColor(0x1e, 0x46, 0x21), QColor(0xff, 0xec, 0xa8), false},
    };
    return list;
}

QStringList Ribbon::themeNames()
{
    QStringList names;
    for (const RibbonTheme& theme : themes())
        names << theme.name;
    return names;
}

Ribbon::Ribbon(QWidget* parent)
    : QWidget(parent)
    , m_tabBar(new QTabBar(this))
    , m_pages(new QStackedWidget(this))
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);

    m_tabBar->setObjectName(QStringLiteral("ribbonTabs"));
    nameParts(this, m_tabBar);
    m_tabBar->setExpanding(false);
    m_tabBar->setDrawBase(false);
    m_tabBar->setUsesScrollButtons(true);
    m_tabBar->setElideMode(Qt::ElideNone);
    m_tabBar->setFocusPolicy(Qt::TabFocus);  // a click on a tab leaves the focus in the document
    m_tabBar->installEventFilter(this);
    m_pages->setObjectName(QStringLiteral("ribbonPages"));

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_tabBar);
    layout->addWidget(m_pages);

    connect(m_tabBar, &QTabBar::currentChanged, this, [this](int index) {
        m_pages->setCurrentIndex(index);
        emit currentTabChanged(index >= 0 && index < m_tabs.size() ? m_tabs[index]->key : QString());
    });
    applyTheme();
}

Ribbon::~Ribbon()
{
    m_tabBar->disconnect(this);
    qDeleteAll(m_tabs);
}

Ribbon::Tab* Ribbon::findTab(const QString& key) const
{
    for (Tab* tab : m_tabs) {
        if (tab->key == key)
            return tab;
    }
    return nullptr;
}

Ribbon::Group* Ribbon::findGroup(const QString& tabKey, const QString& groupKey) const
{
    if (Tab* tab = findTab(tabKey)) {
        for (Group* group : tab->groups) {
            if (group->key == groupKey)
                return group;
        }
    }
    return nullptr;
}

void Ribbon::addTab(const QString& key, const QString& caption)
{
    if (Tab* tab = findTab(key)) {
        tab->caption = caption;
        tab->page->setAccessibleName(shownText(oneLine(caption)));
        m_tabBar->setTabText(int(m_tabs.indexOf(tab)), caption);
        return;
    }
    auto* tab = new Tab;
    tab->key = key;
    tab->caption = caption;
    tab->page = new RibbonPage(this, m_pages);
    tab->page->setAccessibleName(shownText(oneLine(caption)));
    m_tabs.append(tab);
    m_pages->addWidget(tab->page);
    // Added last: the tab bar announces the first tab as current, and its page must exist.
    m_tabBar->addTab(caption);
    updateGeometry();
}

void Ribbon::addGroup(const QString& tabKey, const QString& key, const QString& caption)
{
    Tab* tab = findTab(tabKey);
    if (!tab)
        return;
    if (Group* group = findGroup(tabKey, key)) {
        group->caption = caption;
        group->box->caption->setText(shownText(oneLine(caption)));
        group->box->setAccessibleName(shownText(oneLine(caption)));
        pageChanged(tab, group);
        return;
    }
    auto* group = new Group;
    group->key = key;
    group->caption = caption;
    group->box = new RibbonGroupBox(this, tab->page->row);
    group->box->setAccessibleName(shownText(oneLine(caption)));
    group->content = new QWidget(group->box);
    group->content->setObjectName(QStringLiteral("ribbonGroupButtons"));
    resetGroupLayout(group);
    auto* label = new QLabel(shownText(oneLine(caption)), group->box);
    label->setObjectName(QStringLiteral("ribbonGroupCaption"));
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Qt::AlignCenter);
    label->setContentsMargins(CaptionMargins);
    group->box->caption = label;

    auto* column = new QVBoxLayout(group->box);
    column->setContentsMargins(1, 1, 1, 1);
    column->setSpacing(0);
    column->addWidget(group->content, 1);
    column->addWidget(label);
    applyMeasures(group);

    group->box->contextMenuRequested = [this, tabKey, group](const QPoint& globalPos) {
        emit groupContextMenuRequested(tabKey, group->key, globalPos);
    };
    tab->groups.append(group);
    tab->page->groups->insertWidget(tab->page->groups->count() - 1, group->box);
    group->box->show();
    pageChanged(tab, group);
}

QToolButton* Ribbon::addButton(const QString& tabKey, const QString& groupKey, const QString& key,
    const QString& caption, const QIcon& largeIcon, const QIcon& smallIcon, ButtonSize size)
{
    Group* group = findGroup(tabKey, groupKey);
    if (!group)
        return nullptr;
    const bool large = size == ButtonSize::Large;
    const int iconSize = large ? LargeIconSize : SmallIconSize;
    // Either icon serves when the other is missing; QIcon scales it to the button's size.
    QIcon icon = large ? largeIcon : smallIcon;
    if (icon.isNull())
        icon = large ? smallIcon : largeIcon;
    if (icon.isNull())
        icon = placeholderIcon(iconSize);

    auto* button = new QToolButton(group->content);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    button->setToolButtonStyle(large ? Qt::ToolButtonTextUnderIcon : Qt::ToolButtonTextBesideIcon);
    button->setIconSize(QSize(iconSize, iconSize));
    button->setIcon(icon);
    button->setText(large ? largeCaption(caption) : oneLine(caption));
    button->setAccessibleName(shownText(oneLine(caption)));
    button->setProperty("ribbonKey", key);
    button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    button->installEventFilter(this);  // Enter clicks it as Space does
    connect(button, &QToolButton::clicked, this, [this, key] { emit buttonClicked(key); });

    group->buttons.removeIf([](const Group::Button& b) { return b.widget.isNull(); });
    group->buttons.append({key, button, size});
    applyMeasures(group);
    placeButton(group, button, size);
    button->show();
    QWidget::setTabOrder(focusPredecessor(button), button);
    for (Tab* tab : m_tabs) {
        if (tab->groups.contains(group))
            pageChanged(tab, group);
    }
    return button;
}

void Ribbon::placeButton(Group* group, QToolButton* button, ButtonSize size)
{
    if (size == ButtonSize::Large) {
        ++group->column;
        group->grid->addWidget(button, 0, group->column, SmallButtonsPerColumn, 1, Qt::AlignTop | Qt::AlignHCenter);
        group->smallRow = SmallButtonsPerColumn;  // a small button after a large one starts a column
        return;
    }
    if (group->smallRow >= SmallButtonsPerColumn) {
        ++group->column;
        group->smallRow = 0;
    }
    group->grid->addWidget(button, group->smallRow++, group->column, Qt::AlignTop | Qt::AlignLeft);
}

void Ribbon::resetGroupLayout(Group* group)
{
    delete group->grid;
    group->grid = new QGridLayout(group->content);
    group->grid->setContentsMargins(3, ButtonsTopMargin, 3, ButtonsBottomMargin);
    group->grid->setHorizontalSpacing(2);
    group->grid->setVerticalSpacing(0);
    // Three small buttons share the height of a large one evenly.
    for (int row = 0; row < SmallButtonsPerColumn; ++row)
        group->grid->setRowStretch(row, 1);
    group->column = -1;
    group->smallRow = SmallButtonsPerColumn;
}

QWidget* Ribbon::focusPredecessor(const QToolButton* button) const
{
    QWidget* previous = m_tabBar;
    for (const Tab* tab : m_tabs) {
        for (const Group* group : tab->groups) {
            for (const Group::Button& b : group->buttons) {
                if (b.widget == button)
                    return previous;
                if (b.widget)
                    previous = b.widget;
            }
        }
    }
    return previous;
}

void Ribbon::pageChanged(Tab* tab, Group* group)
{
    // Each updateGeometry() drops the widget's cached size hint in its parent's layout.
    for (Group* g : tab->groups) {
        if (!group || g == group) {
            g->content->updateGeometry();
            g->box->updateGeometry();
        }
    }
    tab->page->row->updateGeometry();
    tab->page->placeRow();
    tab->page->updateGeometry();
    tab->page->update();
    m_pages->updateGeometry();
    updateGeometry();
}

void Ribbon::removeTab(const QString& key)
{
    Tab* tab = findTab(key);
    if (!tab)
        return;
    const int index = int(m_tabs.indexOf(tab));
    m_tabs.removeAt(index);
    m_pages->removeWidget(tab->page);
    delete tab->page;
    delete tab;
    // Last: the tab bar announces the new current tab, which must find its page.
    m_tabBar->removeTab(index);
    updateGeometry();
}

void Ribbon::clearGroup(const QString& tabKey, const QString& groupKey)
{
    Group* group = findGroup(tabKey, groupKey);
    if (!group)
        return;
    for (const Group::Button& b : std::as_const(group->buttons))
        delete b.widget;
    group->buttons.clear();
    resetGroupLayout(group);
    pageChanged(findTab(tabKey), group);
}

bool Ribbon::hasTab(const QString& key) const
{
    return findTab(key) != nullptr;
}

QStringList Ribbon::tabKeys() const
{
    QStringList keys;
    for (const Tab* tab : m_tabs)
        keys << tab->key;
    return keys;
}

QString Ribbon::tabCaption(const QString& key) const
{
    const Tab* tab = findTab(key);
    return tab ? tab->caption : QString();
}

QStringList Ribbon::groupKeys(const QString& tabKey) const
{
    QStringList keys;
    if (const Tab* tab = findTab(tabKey)) {
        for (const Group* group : tab->groups)
            keys << group->key;
    }
    return keys;
}

QString Ribbon::groupCaption(const QString& tabKey, const QString& groupKey) const
{
    const Group* group = findGroup(tabKey, groupKey);
    return group ? group->caption : QString();
}

QStringList Ribbon::buttonKeys(const QString& tabKey, const QString& groupKey) const
{
    QStringList keys;
    if (const Group* group = findGroup(tabKey, groupKey)) {
        for (const Group::Button& b : group->buttons) {
            if (b.widget)
                keys << b.key;
        }
    }
    return keys;
}

QToolButton* Ribbon::button(const QString& key) const
{
    for (const Tab* tab : m_tabs) {
        for (const Group* group : tab->groups) {
            for (const Group::Button& b : group->buttons) {
                if (b.widget && b.key == key)
                    return b.widget;
            }
        }
    }
    return nullptr;
}

QToolButton* Ribbon::button(const QString& tabKey, const QString& groupKey, const QString& key) const
{
    if (const Group* group = findGroup(tabKey, groupKey)) {
        for (const Group::Button& b : group->buttons) {
            if (b.widget && b.key == key)
                return b.widget;
        }
    }
    return nullptr;
}

void Ribbon::setCurrentTab(const QString& key)
{
    if (Tab* tab = findTab(key))
        m_tabBar->setCurrentIndex(int(m_tabs.indexOf(tab)));
}

QString Ribbon::currentTab() const
{
    const int index = m_tabBar->currentIndex();
    return index >= 0 && index < m_tabs.size() ? m_tabs[index]->key : QString();
}

void Ribbon::setTheme(int index)
{
    m_theme = index >= 0 && index < themes().size() ? index : 0;
    applyTheme();
}

QColor Ribbon::backColor() const
{
    return themes().at(m_theme).background;
}

bool Ribbon::loadBackground() const
{
    return themes().at(m_theme).background_image;
}

void Ribbon::applyTheme()
{
    const RibbonTheme& theme = themes().at(m_theme);
    const QString text = theme.text.name();
    const QString border = borderColor(theme).name();
    const QString disabled = QStringLiteral("rgba(%1, %2, %3, 115)").arg(theme.text.red()).arg(theme.text.green()).arg(theme.text.blue());
    // The page body, the group boxes and the separators are painted; the stylesheet covers
    // the parts Qt draws: tabs, buttons and caption text.
    const QString sheet = QStringLiteral(
        "QTabBar#ribbonTabs::tab { color: %1; background: transparent; border: 1px solid transparent;"
        " border-bottom: none; border-top-left-radius: 3px; border-top-right-radius: 3px;"
        " padding: 2px 12px 2px 12px; margin: 2px 1px 0px 1px; }"
        "QTabBar#ribbonTabs::tab:first { margin-left: 4px; }"
        "QTabBar#ribbonTabs::tab:selected { background: %2; border-color: %3; }"
        "QTabBar#ribbonTabs::tab:hover:!selected { background: %4; }"
        "QTabBar#ribbonTabs[keyboardFocus=\"true\"]::tab:selected { border: 1px dotted %1; border-bottom: none; }"
        "QTabBar#ribbonTabs QToolButton { background: %5; border: 1px solid %3; }"
        "QWidget#ribbonGroupButtons QToolButton { color: %1; background: transparent;"
        " border: 1px solid transparent; border-radius: 3px; padding: 1px; }"
        "QWidget#ribbonGroupButtons QToolButton:hover { background: %6; border-color: %7; }"
        "QWidget#ribbonGroupButtons QToolButton:pressed { background: %8; border-color: %7; }"
        "QWidget#ribbonGroupButtons QToolButton:checked { background: %8; border-color: %7; }"
        "QWidget#ribbonGroupButtons QToolButton:focus { border: 1px dotted %1; }"
        "QWidget#ribbonGroupButtons QToolButton:disabled { color: %9; }"
        "QLabel#ribbonGroupCaption { color: %1; background: transparent; }")
                      .arg(text, pageTop(theme).name(), border, theme.hover.lighter(112).name(), theme.tabBar.name(),
                          theme.hover.name(), theme.hover.darker(135).name(), theme.hover.darker(112).name(),
                          disabled)
        + fontRule();
    if (sheet != styleSheet())
        setStyleSheet(sheet);
    measure();
    update();
    for (Tab* tab : m_tabs)
        tab->page->update();
}

QString Ribbon::fontRule() const
{
    // Under a stylesheet Qt no longer hands the ribbon's font down to its parts, so the
    // sheet names it; a font set on the ribbon (or the application) rebuilds the sheet.
    const QFont f = font();
    const QString size = f.pointSizeF() > 0 ? QString::number(f.pointSizeF()) + QStringLiteral("pt")
                                            : QString::number(f.pixelSize()) + QStringLiteral("px");
    QString family = f.family();
    family.remove(QLatin1Char('"'));
    return QStringLiteral("QTabBar#ribbonTabs, QWidget#ribbonGroupButtons QToolButton, QLabel#ribbonGroupCaption"
                          " { font-family: \"%1\"; font-size: %2; font-weight: %3; font-style: %4; }")
        .arg(family, size, QString::number(f.weight()),
            f.style() == QFont::StyleNormal ? QStringLiteral("normal") : QStringLiteral("italic"));
}

void Ribbon::measure()
{
    // Stand-alone parts styled like the ribbon's own.
    QWidget holder;
    holder.setStyleSheet(styleSheet());
    holder.setFont(font());
    holder.setObjectName(QStringLiteral("ribbonGroupButtons"));
    QToolButton probe(&holder);
    probe.setAutoRaise(true);
    probe.setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    probe.setIconSize(QSize(LargeIconSize, LargeIconSize));
    probe.setIcon(placeholderIcon(LargeIconSize));
    probe.setText(MeasureText);
    const int oneLine = probe.sizeHint().height();
    probe.setText(MeasureText + QLatin1Char('\n') + MeasureText);
    const int twoLines = probe.sizeHint().height();
    QLabel caption(MeasureText, &holder);
    caption.setObjectName(QStringLiteral("ribbonGroupCaption"));
    caption.setContentsMargins(CaptionMargins);
    const int captionHeight = caption.sizeHint().height();
    if (oneLine == m_largeOneLineHeight && twoLines == m_largeHeight && captionHeight == m_captionHeight)
        return;
    m_largeOneLineHeight = oneLine;
    m_largeHeight = twoLines;
    m_captionHeight = captionHeight;
    for (Tab* tab : m_tabs) {
        for (Group* group : tab->groups)
            applyMeasures(group);
        pageChanged(tab);
    }
}

void Ribbon::applyMeasures(Group* group) const
{
    group->content->setMinimumHeight(m_largeHeight + ButtonsTopMargin + ButtonsBottomMargin);
    group->box->caption->setFixedHeight(m_captionHeight);
    for (const Group::Button& b : group->buttons) {
        // One-line captions of Thai and Latin text share a baseline under the icons.
        if (b.widget && b.size == ButtonSize::Large)
            b.widget->setMinimumSize(MinimumLargeWidth, b.widget->text().contains(QLatin1Char('\n')) ? m_largeHeight : m_largeOneLineHeight);
    }
}

void Ribbon::paintEvent(QPaintEvent*)
{
    // The strip behind the tab captions; the page paints its own body.
    QPainter painter(this);
    painter.fillRect(rect(), themes().at(m_theme).tabBar);
}

bool Ribbon::eventFilter(QObject* watched, QEvent* event)
{
    // The stylesheet marks the current tab while the tab bar has the keyboard focus.
    if (watched == m_tabBar && (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)) {
        m_tabBar->setProperty("keyboardFocus", event->type() == QEvent::FocusIn);
        m_tabBar->style()->unpolish(m_tabBar);
        m_tabBar->style()->polish(m_tabBar);
        m_tabBar->update();
    }
    if (event->type() == QEvent::FocusIn && watched != m_tabBar) {
        // A button reached with the keyboard scrolls into view on a narrow ribbon.
        auto* button = qobject_cast<QToolButton*>(watched);
        for (QObject* o = button ? button->parent() : nullptr; o; o = o->parent())
            if (o->objectName() == QLatin1String("ribbonPage")) {
                static_cast<RibbonPage*>(o)->reveal(button);
                break;
            }
    }
    if (event->type() == QEvent::KeyPress && watched != m_tabBar) {
        const auto* key = static_cast<QKeyEvent*>(event);
        auto* button = qobject_cast<QToolButton*>(watched);
        if (button && (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter)
            && (key->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier) {
            button->click();
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void Ribbon::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::FontChange)
        applyTheme();
    if (event->type() == QEvent::LanguageChange)
        nameParts(this, m_tabBar);
    QWidget::changeEvent(event);
}

} // namespace qd8
