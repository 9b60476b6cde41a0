#include "foundation/PropertyBag.h"

#include <QSettings>

namespace qd8 {

QString PropertyBag::read(const QString& key, const QString& defaultValue) const
{
    return m_values.value(key, defaultValue);
}

void PropertyBag::write(const QString& key, const QString& value)
{
    m_values.insert(key, value);
}

void PropertyBag::load(QSettings& settings, const QString& group)
{
    m_values.clear();
    settings.beginGroup(group);
    for (const QString& key : settings.childKeys())
        m_values.insert(key, settings.value(key).toString());
    settings.endGroup();
}

void PropertyBag::save(QSettings& settings, const QString& group) const
{
    settings.beginGroup(group);
    settings.remove(QString());
    for (auto it = m_values.cbegin(); it != m_values.cend(); ++it)
        settings.setValue(it.key(), it.value());
    settings.endGroup();
}

} // namespace qd8
