#include "client.h"

#include <QUrl>

#include <gtest/gtest.h>

namespace orl::demo {

namespace {

constexpr int patience = 30'000; // milliseconds; only a broken server makes a test wait as long

} // namespace

void sendRequest(QTcpSocket &socket, quint16 port, const QString &path, const QByteArray &method,
                 const QByteArray &headers) {
    socket.connectToHost(QStringLiteral("127.0.0.1"), port);
    ASSERT_TRUE(socket.waitForConnected(patience));
    socket.write(method + ' ' + path.toUtf8() + " HTTP/1.1\r\nHost: 127.0.0.1\r\nConnection: close\r\n" +
                 headers + "\r\n");
    socket.flush();
}

Answer readAnswer(QTcpSocket &socket) {
    QByteArray bytes;
    do
        bytes += socket.readAll();
    while (socket.state() == QAbstractSocket::ConnectedState && socket.waitForReadyRead(patience));
    bytes += socket.readAll();

    Answer answer;
    const qsizetype end = bytes.indexOf("\r\n\r\n");
    if (end < 0) return answer;
    answer.body = bytes.mid(end + 4);
    auto lines = bytes.left(end).split('\n');
    answer.status = lines.takeFirst().split(' ').value(1).toInt();
    for (const QByteArray &line : lines) {
        const qsizetype colon = line.indexOf(':');
        answer.headers.insert(line.left(colon).toLower(), line.mid(colon + 1).trimmed());
    }
    return answer;
}

Answer fetch(quint16 port, const QString &path, const QByteArray &method, const QByteArray &headers) {
    QTcpSocket socket;
    sendRequest(socket, port, path, method, headers);
    return readAnswer(socket);
}

PlayedHost::PlayedHost(double start, quint64 seed)
    : now(start), host({0, [this] { return now.load(); }, seed}) {
    EXPECT_TRUE(host.start());
}

} // namespace orl::demo
