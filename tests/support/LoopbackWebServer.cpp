#include "support/LoopbackWebServer.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QTcpServer>
#include <QTcpSocket>
#include <QThread>

namespace qd8::test {

LoopbackWebServer::LoopbackWebServer(const QList<std::pair<QString, QString>>& pages)
{
    for (const auto& [name, html] : pages) {
        QFile file(m_dir.filePath(name));
        if (!file.open(QIODevice::WriteOnly))
            return;
        file.write(html.toUtf8());
    }
    QTcpServer probe;
    if (!probe.listen(QHostAddress::LocalHost))
        return;
    const quint16 port = probe.serverPort();
    probe.close();
    m_server.setStandardOutputFile(QProcess::nullDevice());
    m_server.setStandardErrorFile(QProcess::nullDevice());
    m_server.start(QStringLiteral("/usr/bin/python3"),
        {"-m", "http.server", QString::number(port), "--bind", "127.0.0.1", "--directory", m_dir.path()});
    for (QDeadlineTimer deadline(10000); !deadline.hasExpired(); QThread::msleep(50)) {
        QTcpSocket socket;
        socket.connectToHost(QHostAddress::LocalHost, port);
        if (socket.waitForConnected(200)) {
            m_port = port;
            return;
        }
    }
}

LoopbackWebServer::~LoopbackWebServer()
{
    m_server.kill();
    m_server.waitForFinished();
}

QString LoopbackWebServer::url(const QString& page) const
{
    return QStringLiteral("http://127.0.0.1:%1/%2").arg(m_port).arg(page);
}

} // namespace qd8::test
