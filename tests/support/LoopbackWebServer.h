#pragma once

#include <QProcess>
#include <QString>
#include <QTemporaryDir>

namespace qd8::test {

// Python's http.server on a free port of 127.0.0.1, serving the pages it was given
// (file name -> HTML) until it goes out of scope.
class LoopbackWebServer {
public:
    explicit LoopbackWebServer(const QList<std::pair<QString, QString>>& pages);
    ~LoopbackWebServer();
    bool isRunning() const { return m_port > 0; }
    QString url(const QString& page) const;

private:
    QTemporaryDir m_dir;
    QProcess m_server;
    quint16 m_port = 0;
};

} // namespace qd8::test
