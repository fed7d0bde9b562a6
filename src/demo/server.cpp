#include "server.h"

#include "random.h"

#include <QHttpServerRequest>
#include <QTimer>
#include <QUrlQuery>

#include <algorithm>
#include <memory>

using namespace Qt::StringLiterals;

namespace orl::demo {

namespace {

constexpr qint64 hugeSize = 50'000'000;

bool isControl(const QHttpServerRequest &request) {
    return request.url().path().startsWith(u"/_control/"_s);
}

QByteArray reason(int status) {
    switch (status) {
    case 200: return "OK";
    case 204: return "No Content";
    case 400: return "Bad Request";
    case 404: return "Not Found";
    case 405: return "Method Not Allowed";
    default: return "Answer";
    }
}

/// How one answer goes out.
struct Delivery {
    Reply reply;
    Fault::Kind fault;
    bool headOnly; ///< the request was HEAD
    bool close;    ///< the client wants no further request on this connection
};

QByteArray headers(const Delivery &delivery, qint64 length) {
    const Reply &reply = delivery.reply;
    return "HTTP/1.1 " + QByteArray::number(reply.status) + ' ' + reason(reply.status) +
           "\r\nServer: orl-demo\r\nContent-Type: " + reply.type +
           "\r\nContent-Length: " + QByteArray::number(length) +
           "\r\nCache-Control: no-store\r\nConnection: " + (delivery.close ? "close" : "keep-alive") +
           "\r\n\r\n";
}

/// Writes filler as fast as the client takes it, so that 50 MB never stand in memory.
void writeHuge(QTcpSocket *socket, const Delivery &delivery) {
    socket->write(headers(delivery, hugeSize));
    socket->write(delivery.reply.body);
    const auto left = std::make_shared<qint64>(hugeSize - delivery.reply.body.size());
    static const QByteArray filler =
        QByteArray("<p>All work and no play makes a long page.</p>\n").repeated(1400);
    const auto more = [socket, left, close = delivery.close] {
        while (*left > 0 && socket->bytesToWrite() < filler.size()) {
            const qint64 written = socket->write(filler.left(*left));
            if (written < 0) return; // the client has gone
            *left -= written;
        }
        if (*left == 0 && close) socket->disconnectFromHost();
    };
    QObject::connect(socket, &QTcpSocket::bytesWritten, socket, more);
    more();
}

void deliver(QTcpSocket *socket, const Delivery &delivery) {
    if (socket->state() != QAbstractSocket::ConnectedState) return; // the client did not wait
    const QByteArray &body = delivery.reply.body;
    if (delivery.fault == Fault::Kind::Dead) return socket->abort();
    if (delivery.fault == Fault::Kind::Huge && !delivery.headOnly) return writeHuge(socket, delivery);
    const bool cutOff = delivery.fault == Fault::Kind::CutOff;
    socket->write(headers(delivery, body.size()));
    if (!delivery.headOnly) socket->write(cutOff ? body.left(body.size() / 2) : body);
    if (cutOff || delivery.close) socket->disconnectFromHost(); // after what is written has gone out
}

} // namespace

Server::Server(const Services &services, const Service &fallback, FaultTable &faults,
               std::function<double()> clock, std::function<void(const QString &path)> heard)
    : services_(services),
      fallback_(fallback),
      faults_(faults),
      clock_(std::move(clock)),
      heard_(std::move(heard)) {}

bool Server::handleRequest(const QHttpServerRequest &request, QTcpSocket *socket) {
    const QString path = request.url().path(QUrl::FullyDecoded);
    if (heard_) heard_(path);
    const Fault fault = isControl(request) ? Fault() : faults_.find(path);
    Reply reply = isControl(request) ? control(request) : answer(request);
    reply = spoiled(std::move(reply), fault.kind, mix(1, path));
    const Delivery delivery{std::move(reply), fault.kind,
                            request.method() == QHttpServerRequest::Method::Head,
                            request.value("Connection").toLower() == "close"};
    // Never from within this call: the base class still uses the socket after it.
    QTimer::singleShot(fault.milliseconds, socket, [socket, delivery] { deliver(socket, delivery); });
    return true;
}

void Server::missingHandler(const QHttpServerRequest &, QTcpSocket *) {} // handleRequest() takes everything

Reply Server::answer(const QHttpServerRequest &request) const {
    const QString path = request.url().path(QUrl::FullyDecoded);
    const QString segment = path.section(u'/', 1, 1);
    if (const auto service = services_.constFind(segment); service != services_.constEnd())
        return (*service)->answer({path.mid(segment.size() + 1), clock_(), request.query(),
                                   request.value("Accept"), request.value("Host")});
    return fallback_.answer({path, clock_()});
}

Reply Server::control(const QHttpServerRequest &request) {
    if (request.method() != QHttpServerRequest::Method::Post) return {405, "text/plain", "Use POST.\n"};
    const QUrlQuery query(request.url());
    const QString path = request.url().path();
    if (path == u"/_control/reset"_s) {
        faults_.clear();
        return {200, "text/plain", "No faults.\n"};
    }
    const auto fault = Fault::named(query.queryItemValue(u"kind"_s), query.queryItemValue(u"ms"_s).toInt());
    if (path != u"/_control/fault"_s || !fault || !query.hasQueryItem(u"path"_s))
        return {400, "text/plain", "Say /_control/fault?path=PREFIX&kind=KIND[&ms=N] or /_control/reset.\n"};
    faults_.set(query.queryItemValue(u"path"_s, QUrl::FullyDecoded), *fault);
    return {200, "text/plain", "Set.\n"};
}

} // namespace orl::demo
