#pragma once

#include <QHash>
#include <QString>
#include <any>
#include <functional>

namespace qd8 {

// While a LookupScope lives on a thread, the database-backed session objects read each
// kind of lookup once and answer repeats from memory: all of a user's command rights in
// one statement instead of one per command, all caption overrides of a command centre,
// the existence of an icon file. A control opens one around a refresh, so what it shows
// is consistent with the databases at the start of the refresh and nothing outlives it.
// Scopes nest: an inner scope uses the outer one's values.
class LookupScope {
public:
    LookupScope();
    ~LookupScope();
    LookupScope(const LookupScope&) = delete;
    LookupScope& operator=(const LookupScope&) = delete;

    // The scope in force on this thread, or nullptr.
    static LookupScope* current();

    // The value stored under key, loading it with `load` the first time.
    template <typename T>
    const T& value(const QString& key, const std::function<T()>& load)
    {
        auto it = m_values.constFind(key);
        if (it == m_values.constEnd())
            it = m_values.insert(key, std::any(load()));
        return *std::any_cast<T>(&it.value());
    }

private:
    LookupScope* m_outer = nullptr;
    QHash<QString, std::any> m_values;
};

// Whether the file exists, remembered for the scope in force (asked directly without one).
bool fileExistsInScope(const QString& localPath);

} // namespace qd8
