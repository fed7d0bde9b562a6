#pragma once

#include <QStringList>
#include <QTcpServer>
#include <QTcpSocket>

namespace orl {

/// Notes what it is asked for. "/to/PATH" sends on to PATH; everything else is a small page.
class SpyServer {
public:
    SpyServer() {
        server_.listen(QHostAddress::LocalHost);
        QObject::connect(&server_, &QTcpServer::newConnection, &server_, [this] {
            while (QTcpSocket *socket = server_.nextPendingConnection()) {
                ++connections;
                QObject::connect(socket, &QTcpSocket::readyRead, &server_,
                                 [this, socket] { answer(*socket); });
            }
        });
    }

    QString host() const { return QStringLiteral("127.0.0.1:%1").arg(server_.serverPort()); }
    QString url(const QString &path) const { return QStringLiteral("http://") + host() + path; }

    int connections = 0;
    QStringList paths;

private:
    void answer(QTcpSocket &socket) {
        const QString path = QString::fromLatin1(socket.readAll().split(' ').value(1));
        paths << path;
        const bool moved = path.startsWith(QStringLiteral("/to/"));
        const QByteArray page = "<title>" + path.toLatin1() + "</title>";
        socket.write(moved ? "HTTP/1.1 302 Found\r\nLocation: " + path.mid(3).toLatin1() +
                                 "\r\nContent-Length: 0\r\nConnection: close\r\n\r\n"
                           : "HTTP/1.1 200 OK\r\nContent-Type: text/html\r\nContent-Length: " +
                                 QByteArray::number(page.size()) + "\r\nConnection: close\r\n\r\n" + page);
        socket.disconnectFromHost();
    }

    QTcpServer server_;
};

} // namespace orl
