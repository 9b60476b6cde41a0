#include "navigation/ShortCutBar.h"

#include "database/LookupScope_p.h"

#include <QAction>
#include <QEvent>
#include <QKeyEvent>
#include <QListWidget>
#include <QMenu>
#include <QMouseEvent>
#include <QPushButton>
#include <QVBoxLayout>

namespace qd8 {

namespace {

constexpr int TagRole = Qt::UserRole;           // the command's alias
constexpr int SmallIconRole = Qt::UserRole + 1;  // key of the small picture
constexpr int LargeIconRole = Qt::UserRole + 2;  // key of the large picture

int index(CommandSet set)
{
    return int(set) - 1;
}

// The header buttons from top to bottom and the lists they open.
constexpr CommandSet HeaderOrder[] = {CommandSet::Main, CommandSet::User, CommandSet::Module};

QString headerCaption(CommandSet set)
{
    switch (set) {
    case CommandSet::Main: return QStringLiteral("Group Menu");
    case CommandSet::User: return QStringLiteral("User Menu");
    case CommandSet::Module: return QStringLiteral("Module Menu");
    }
    return {};
}

QListWidget* newListView(QWidget* parent)
{
    auto* list = new QListWidget(parent);
    // One entry a row: the large picture beside a caption of up to two lines.
    list->setViewMode(QListView::ListMode);
    list->setMovement(QListView::Static);
    list->setResizeMode(QListView::Adjust);
    list->setIconSize(QSize(32, 32));
    list->setWordWrap(true);
    list->setSpacing(1);
    list->setTextElideMode(Qt::ElideRight);
    list->setSelectionMode(QAbstractItemView::SingleSelection);
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    return list;
}

} // namespace

ShortCutBar::ShortCutBar(QWidget* parent)
    : CommandLauncher(parent)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(1);
    for (CommandSet set : HeaderOrder) {
        auto* header = new QPushButton(headerCaption(set), this);
        header->setObjectName(headerCaption(set));
        connect(header, &QPushButton::clicked, this, [this, set] { showList(int(set)); });
        QListWidget* list = newListView(this);
        list->setObjectName(headerCaption(set) + QStringLiteral(" list"));
        list->installEventFilter(this);
        list->viewport()->installEventFilter(this);
        connect(list, &QListWidget::itemClicked, this, [this, set](QListWidgetItem* item) { selectItem(set, item); });
        connect(list, &QListWidget::currentItemChanged, this, [this, set](QListWidgetItem* item) {
            if (item)
                selectItem(set, item);
        });
        connect(list, &QListWidget::itemDoubleClicked, this, [this, set](QListWidgetItem* item) {
            selectItem(set, item);
            launchSelected();
        });
        layout->addWidget(header);
        layout->addWidget(list, 1);
        m_headers[index(set)] = header;
        m_lists[index(set)] = list;
    }

    m_configMenu = new QMenu(QStringLiteral("Config"), this);
    m_addAction = m_configMenu->addAction(QStringLiteral("Add"), this, &ShortCutBar::mnuAdd_click);
    m_removeAction = m_configMenu->addAction(QStringLiteral("Remove"), this, &ShortCutBar::mnuDelete_click);

    showList(1);
}

ShortCutBar::~ShortCutBar() = default;

QListWidget* ShortCutBar::listView(CommandSet set) const
{
    return m_lists[index(set)];
}

QPushButton* ShortCutBar::headerButton(CommandSet set) const
{
    return m_headers[index(set)];
}

QStringList ShortCutBar::propertyKeysRead() const
{
    // The icon folder is read from "mIconPath" but written as "IconPath": it never
    // survives a save and reload, the host sets it every time.
    return {QStringLiteral("ConnectionString"), QStringLiteral("CommandGroup"), QStringLiteral("mIconPath")};
}

QStringList ShortCutBar::propertyKeysWritten() const
{
    return {QStringLiteral("ConnectionString"), QStringLiteral("CommandGroup"), QStringLiteral("IconPath")};
}

QString ShortCutBar::designProperty(const QString& key) const
{
    return key == QLatin1String("mIconPath") ? IconPath() : CommandLauncher::designProperty(key);
}

void ShortCutBar::setDesignProperty(const QString& key, const QString& value)
{
    if (key == QLatin1String("mIconPath"))
        setIconPath(value);
    else
        CommandLauncher::setDesignProperty(key, value);
}

void ShortCutBar::Refresh()
{
    deriveCommandCentre();
    LookupScope scope;
    DOUSERLIST();
    DOMODULELIST();
    DOMAINLIST();
    showList(1);
    // The headers keep their given English words; the lists are named in the user's language.
    for (CommandSet set : HeaderOrder)
        listView(set)->setAccessibleName(set == CommandSet::Main ? bilingual("เมนูกลุ่ม", "Group Menu")
                : set == CommandSet::User                      ? bilingual("เมนูผู้ใช้", "User Menu")
                                                                : bilingual("เมนูโมดูล", "Module Menu"));
}

void ShortCutBar::DOMAINLIST()
{
    loadList(CommandSet::Main);
}

void ShortCutBar::DOMODULELIST()
{
    loadList(CommandSet::Module);
}

void ShortCutBar::DOUSERLIST()
{
    loadList(CommandSet::User);
}

void ShortCutBar::loadList(CommandSet set)
{
    const CommandCatalogue commands = catalogue();
    if (!commands.canLoad())
        return;
    QListWidget* list = listView(set);
    list->setUpdatesEnabled(false);
    list->clear();
    commands.load(set, [&](const CommandEntry& entry) {
        if (!entry.listable)
            return true;
        m_images.add(entry.iconKey, entry.iconFile);
        m_images.add(entry.smallIconKey, entry.smallIconFile);
        auto* item = new QListWidgetItem(m_images.icon(entry.iconKey), entry.caption);
        item->setData(TagRole, entry.alias);
        item->setData(SmallIconRole, entry.smallIconKey);
        item->setData(LargeIconRole, entry.iconKey);
        item->setToolTip(entry.caption);
        list->addItem(item);
        return true;
    });
    list->setUpdatesEnabled(true);
    if (list->count() >= 2)
        list->scrollToTop();
    if (list->count() >= 1) {
        QSignalBlocker quiet(list);
        list->setCurrentRow(0);
        selectItem(set, list->item(0));
    }
}

void ShortCutBar::selectItem(CommandSet set, QListWidgetItem* item)
{
    m_selectedAlias = item->data(TagRole).toString();
    m_currentList = int(set);
}

void ShortCutBar::launchSelected()
{
    launch(m_selectedAlias);
}

void ShortCutBar::showList(int list)
{
    if (list < 1 || list > 3)
        return;
    m_shownList = list;
    for (CommandSet set : HeaderOrder) {
        const bool shown = int(set) == list;
        listView(set)->setVisible(shown);
        headerButton(set)->setProperty("shown", shown);
        headerButton(set)->setDown(false);
    }
}

void ShortCutBar::showConfigMenu(const QPoint& globalPos)
{
    m_removeAction->setEnabled(m_currentList == 3 && !m_selectedAlias.trimmed().isEmpty());
    m_configMenu->popup(globalPos);
}

void ShortCutBar::mnuAdd_click()
{
    if (catalogue().addUserCommand())
        DOUSERLIST();
}

void ShortCutBar::mnuDelete_click()
{
    if (m_currentList != 3 || m_selectedAlias.trimmed().isEmpty())
        return;
    const CommandCatalogue commands = catalogue();
    const QString id = commands.commandId(m_selectedAlias);
    if (!id.isEmpty() && commands.removeUserCommand(id))
        DOUSERLIST();
}

bool ShortCutBar::eventFilter(QObject* watched, QEvent* event)
{
    QListWidget* users = listView(CommandSet::User);
    if (event->type() == QEvent::MouseButtonRelease && watched == users->viewport()
        && static_cast<QMouseEvent*>(event)->button() == Qt::RightButton) {
        showConfigMenu(static_cast<QMouseEvent*>(event)->globalPosition().toPoint());
        return true;
    }
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            for (CommandSet set : HeaderOrder)
                if (watched == listView(set)) {
                    launchSelected();
                    return true;
                }
        }
        // Keyboard upkeep of the user's own list: Insert adds, Delete removes.
        if (watched == users && key == Qt::Key_Insert) {
            mnuAdd_click();
            return true;
        }
        if (watched == users && key == Qt::Key_Delete) {
            mnuDelete_click();
            return true;
        }
    }
    return CommandLauncher::eventFilter(watched, event);
}

} // namespace qd8
