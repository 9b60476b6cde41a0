#pragma once

#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

namespace qd8::test {

// Python's http.server on a free port of 127.0.0.1 serving the pages given (file name, HTML)
// while it lives. Port 0 lets the system pick the port; the server's first line names it.
class LoopbackWebServer {
public:
    explicit LoopbackWebServer(const QList<std::pair<QString, QString>>& pages)
    {
        for (const auto& [name, html] : pages) {
            QFile file(m_dir.filePath(name));
            file.open(QIODevice::WriteOnly) && file.write(html.toUtf8());
        }
        m_server.start("/usr/bin/python3", {"-u", "-m", "http.server", "0", "--bind", "127.0.0.1", "--directory", m_dir.path()});
        if (m_server.waitForReadyRead(10000))
            m_port = QRegularExpression(" port (\\d+) ").match(QString::fromLatin1(m_server.readLine())).captured(1);
    }
    ~LoopbackWebServer() { m_server.kill(), m_server.waitForFinished(); }
    QString url(const QString& page) const { return "http://127.0.0.1:" + m_port + "/" + page; }

private:
    QTemporaryDir m_dir;
    QProcess m_server;
    QString m_port;
};

} // namespace qd8::test
