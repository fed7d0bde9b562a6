#pragma once

#include "platform/qt/qt_main_queue.h"

#include <QByteArray>
#include <QString>
#include <QThread>
#include <QUrl>

#include <condition_variable>
#include <functional>
#include <map>
#include <mutex>
#include <vector>

class QTcpServer;
class QTcpSocket;

namespace orl {

/// A host on loopback that sends exactly the bytes it is told, on a thread of its own.
class LoopbackServer {
public:
    enum class Then { Close, StayOpen, RepeatForEver };

    explicit LoopbackServer(bool tls = false);
    ~LoopbackServer();

    /// What is sent for a path once a request for it is complete, status line and headers included.
    void answer(const QString &path, const QByteArray &bytes, Then then = Then::Close);

    /// The same with "HTTP/1.1 200 OK" and a Content-Length.
    void page(const QString &path, const QByteArray &body, const QByteArray &headers = {});

    QUrl url(const QString &path) const;

    /// Waits until this many requests are complete, and gives them, headers and all.
    std::vector<QByteArray> requests(std::size_t atLeast);

private:
    struct Answer {
        QByteArray bytes;
        Then then;
    };

    void listen(bool tls);
    void serve(QTcpSocket &socket, QByteArray &received);
    void send(QTcpSocket &socket, const Answer &answer);

    std::mutex mutex_;
    std::condition_variable requestArrived_;
    std::map<QByteArray, Answer> answers_;
    std::vector<QByteArray> requests_;
    void runThere(const std::function<void()> &work);

    QThread thread_;
    QtMainQueue queue_;            // lives on thread_
    QTcpServer *server_ = nullptr; // lives and goes on thread_
    quint16 port_ = 0;
    const QString scheme_;
};

} // namespace orl
