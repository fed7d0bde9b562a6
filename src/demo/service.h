#pragma once

#include <QByteArray>
#include <QString>
#include <QUrlQuery>

namespace orl::demo {

struct Request {
    QString path; ///< behind the service's own first segment, decoded, with a leading slash
    double now;   ///< seconds since 1970
    QUrlQuery query = {};
    QByteArray accept = {}; ///< the header of that name
    QByteArray host = {};   ///< under which name and port the client found the server
};

struct Reply {
    int status = 200;
    QByteArray type = "text/html; charset=utf-8";
    QByteArray body;
};

/// One kind of endpoint. The server hands it what lies below its first path segment, always on the server's
/// thread; the answer depends on the request alone, so that a restarted program meets the same world.
class Service {
public:
    virtual ~Service() = default;
    virtual Reply answer(const Request &request) const = 0;
};

/// What a website answers to an address it does not know: a page, not an empty body.
inline Reply notFoundPage() {
    return {
        404, "text/html; charset=utf-8",
        "<!DOCTYPE html>\n<html lang=en><head><meta charset=utf-8><title>404 Not Found</title></head>\n"
        "<body><center><h1>404 Not Found</h1><p>The page you are looking for is gone &mdash; or never was."
        "<hr></center></body></html>\n"};
}

} // namespace orl::demo
