#pragma once

#include "demo/demo_host.h"

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QTcpSocket>

#include <atomic>

namespace orl::demo {

/// What came back on the wire, header names in lower case.
struct Answer {
    int status = 0; ///< 0 = the connection closed without an answer
    QMap<QByteArray, QByteArray> headers;
    QByteArray body;

    qsizetype announced() const { return headers.value("content-length", "-1").toLongLong(); }
};

/// Blocking, on the caller's thread, as the program's own readers are.
/// `headers` are whole lines, each with its end.
Answer fetch(quint16 port, const QString &path, const QByteArray &method = "GET",
             const QByteArray &headers = {});
void sendRequest(QTcpSocket &socket, quint16 port, const QString &path, const QByteArray &method = "GET",
                 const QByteArray &headers = {});
Answer readAnswer(QTcpSocket &socket);

/// A host on a clock that only the test moves.
class PlayedHost {
public:
    explicit PlayedHost(double now = 1'795'000'000, quint64 seed = 1);

    Answer get(const QString &path) const { return fetch(host.port(), path); }
    QString text(const QString &path) const { return QString::fromUtf8(get(path).body); }
    void advance(double seconds) { now = now + seconds; }

    std::atomic<double> now;
    DemoHost host;
};

} // namespace orl::demo
