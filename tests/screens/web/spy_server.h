#pragma once

#include <QSslCertificate>
#include <QSslConfiguration>
#include <QSslServer>
#include <QSslSocket>
#include <QStringList>
#include <QTcpServer>
#include <QTcpSocket>

#include <memory>

namespace orl {

/// Notes what it is asked for. "/to/PATH" sends on to PATH; everything else is a small page.
class SpyServer {
public:
    SpyServer() : SpyServer(QStringLiteral("http://"), std::make_unique<QTcpServer>()) {}
    explicit SpyServer(const QSslConfiguration &tls)
        : SpyServer(QStringLiteral("https://"), std::make_unique<QSslServer>()) {
        static_cast<QSslServer &>(*server_).setSslConfiguration(tls);
    }

    QString host() const { return QStringLiteral("127.0.0.1:%1").arg(server_->serverPort()); }
    QString url(const QString &path) const { return scheme_ + host() + path; }

    int connections = 0;
    QStringList paths;
    QList<QSslCertificate> certificates; ///< what came with a request to say who asks, if anything

private:
    SpyServer(const QString &scheme, std::unique_ptr<QTcpServer> server)
        : scheme_(scheme), server_(std::move(server)) {
        server_->listen(QHostAddress::LocalHost);
        QObject::connect(server_.get(), &QTcpServer::pendingConnectionAvailable, server_.get(), [this] {
            QTcpSocket *socket = server_->nextPendingConnection();
            ++connections;
            QObject::connect(socket, &QTcpSocket::readyRead, server_.get(),
                             [this, socket] { answer(*socket); });
            if (socket->bytesAvailable() > 0) answer(*socket);
        });
    }

    void answer(QTcpSocket &socket) {
        const QString path = QString::fromLatin1(socket.readAll().split(' ').value(1));
        paths << path;
        const auto *tls = qobject_cast<QSslSocket *>(&socket);
        if (tls && !tls->peerCertificate().isNull()) certificates << tls->peerCertificate();
        const bool moved = path.startsWith(QStringLiteral("/to/"));
        const QByteArray page = "<title>" + path.toLatin1() + "</title>";
        socket.write(moved ? "HTTP/1.1 302 Found\r\nLocation: " + path.mid(3).toLatin1() +
                                 "\r\nContent-Length: 0\r\nConnection: close\r\n\r\n"
                           : "HTTP/1.1 200 OK\r\nContent-Type: text/html\r\nContent-Length: " +
                                 QByteArray::number(page.size()) + "\r\nConnection: close\r\n\r\n" + page);
        socket.disconnectFromHost();
    }

    const QString scheme_;
    const std::unique_ptr<QTcpServer> server_;
};

} // namespace orl
