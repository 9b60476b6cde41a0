#pragma once

#include <QHash>
#include <QIcon>
#include <QStringList>

namespace qd8 {

// A launcher's pictures by key. "Blank" (an empty picture) is always there; the first
// picture added under a key stays and a later add of the same key is ignored.
class IconList {
public:
    IconList();
    // Loads the file under the key unless the key is already taken.
    void add(const QString& key, const QString& file);
    // The picture of a key; the blank one for an unknown key.
    QIcon icon(const QString& key) const;
    // The keys in the order they were added ("Blank" first).
    const QStringList& keys() const { return m_keys; }

private:
    QHash<QString, QIcon> m_icons;
    QStringList m_keys;
};

} // namespace qd8
