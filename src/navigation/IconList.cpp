#include "navigation/IconList.h"

#include "navigation/CommandCatalogue.h"

#include <QPixmap>

namespace qd8 {

IconList::IconList()
{
    QPixmap blank(32, 32);
    blank.fill(Qt::transparent);
    m_icons.insert(CommandCatalogue::BlankIcon, QIcon(blank));
    m_keys << CommandCatalogue::BlankIcon;
}

void IconList::add(const QString& key, const QString& file)
{
    if (key.isEmpty() || file.isEmpty() || m_icons.contains(key))
        return;
    m_icons.insert(key, QIcon(file));
    m_keys << key;
}

QIcon IconList::icon(const QString& key) const
{
    return m_icons.value(key, m_icons.value(CommandCatalogue::BlankIcon));
}

} // namespace qd8
