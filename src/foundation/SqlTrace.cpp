#include "foundation/SqlTrace.h"

#include <QMutex>
#include <atomic>
#include <map>

namespace qd8 {

namespace {
QMutex mutex;
std::map<int, SqlTrace::Listener> listeners;
std::atomic<int> listenerCount{0};
int nextId = 1;
} // namespace

int SqlTrace::addListener(Listener listener)
{
    QMutexLocker lock(&mutex);
    listeners.emplace(nextId, std::move(listener));
    listenerCount = int(listeners.size());
    return nextId++;
}

void SqlTrace::removeListener(int id)
{
    QMutexLocker lock(&mutex);
    listeners.erase(id);
    listenerCount = int(listeners.size());
}

bool SqlTrace::active()
{
    return listenerCount.load(std::memory_order_relaxed) > 0;
}

void SqlTrace::report(const Entry& entry)
{
    if (!active())
        return;
    QMutexLocker lock(&mutex);
    for (const auto& [id, listener] : listeners)
        listener(entry);
}

SqlTrace::Recorder::Recorder()
    : m_id(addListener([this](const Entry& e) { m_entries.append(e); }))
{
}

SqlTrace::Recorder::~Recorder()
{
    removeListener(m_id);
}

QStringList SqlTrace::Recorder::composed() const
{
    QStringList out;
    for (const auto& e : m_entries)
        out << e.composed;
    return out;
}

QStringList SqlTrace::Recorder::sent() const
{
    QStringList out;
    for (const auto& e : m_entries)
        out << e.sent;
    return out;
}

} // namespace qd8
