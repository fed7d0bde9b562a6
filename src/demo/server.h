#pragma once

#include "fault.h"
#include "service.h"

#include <QAbstractHttpServer>
#include <QHash>
#include <QTcpSocket>

#include <functional>

namespace orl::demo {

/// Shares requests out among the services by the first segment of the path, and plays the faults.
///
/// It writes to the socket itself, as cut-off, dead and endless answers cannot be told through a response
/// object. "POST /_control/fault?path=...&kind=...&ms=..." and "POST /_control/reset" are never subject to
/// faults.
class Server : public QAbstractHttpServer {
    Q_OBJECT
public:
    using Services = QHash<QString, const Service *>;

    /// `fallback` answers what begins with none of the services' segments, with its whole path: links on the
    /// first website's pages begin at the root, and so they work in a browser too. All references outlive the
    /// server.
    Server(const Services &services, const Service &fallback, FaultTable &faults,
           std::function<double()> clock, std::function<void(const QString &path)> heard = {});

protected:
    bool handleRequest(const QHttpServerRequest &request, QTcpSocket *socket) override;
    void missingHandler(const QHttpServerRequest &request, QTcpSocket *socket) override;

private:
    Reply answer(const QHttpServerRequest &request) const;
    Reply control(const QHttpServerRequest &request);

    Services services_;
    const Service &fallback_;
    FaultTable &faults_;
    std::function<double()> clock_;
    std::function<void(const QString &path)> heard_;
};

} // namespace orl::demo
