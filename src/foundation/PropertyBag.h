#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

class QSettings;

namespace qd8 {

// A control's design-time settings: string keys to string values, read back with the
// default "" (empty string). Hosts keep bags wherever they like; load/save put one into
// a group of an INI file.
class PropertyBag {
public:
    QString read(const QString& key, const QString& defaultValue = QString()) const;
    void write(const QString& key, const QString& value);
    bool contains(const QString& key) const { return m_values.contains(key); }
    QStringList keys() const { return m_values.keys(); }

    void load(QSettings& settings, const QString& group);
    void save(QSettings& settings, const QString& group) const;

    bool operator==(const PropertyBag&) const = default;

private:
    QMap<QString, QString> m_values;
};

} // namespace qd8
