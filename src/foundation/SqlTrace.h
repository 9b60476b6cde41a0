#pragma once

#include <QList>
#include <QString>
#include <functional>

namespace qd8 {

// Lets a test or a host observe every statement: as composed by the control (with its
// "#$" date markers) and as sent to the engine. Statements refused before sending are
// reported with an empty `sent` and `refused` set.
class SqlTrace {
public:
    struct Entry {
        QString composed;
        QString sent;
        QString connection;  // the connection string it ran on
        bool refused = false;
        QString error;       // the engine's message when it failed
    };
    using Listener = std::function<void(const Entry&)>;

    static int addListener(Listener listener);
    static void removeListener(int id);
    static bool active();
    static void report(const Entry& entry);

    // Records every statement while it lives.
    class Recorder {
    public:
        Recorder();
        ~Recorder();
        Recorder(const Recorder&) = delete;
        Recorder& operator=(const Recorder&) = delete;
        const QList<Entry>& entries() const { return m_entries; }
        QStringList composed() const;
        QStringList sent() const;
        void clear() { m_entries.clear(); }

    private:
        int m_id;
        QList<Entry> m_entries;
    };
};

} // namespace qd8
