#pragma once

#include "platform/result.h"

#include <QByteArray>
#include <QHash>
#include <QUrl>

#include <algorithm>
#include <chrono>
#include <optional>

namespace orl {

struct UrlRequest {
    QUrl url;
    bool ignoreCache = false; ///< neither read from nor write to any cache between here and the host
    std::optional<std::chrono::milliseconds> timeout = {}; ///< none: as long as the platform's reads last
    QHash<QByteArray, QByteArray> headers = {};
    bool sameOrigin = false;              ///< a redirect to another scheme, host or port is an error
    std::optional<qint64> mostBytes = {}; ///< a longer body is an error; none: as for all reads
};

/// What a host answered. The status is told and seldom looked at: an error page is bytes like any other.
struct UrlResponse {
    int status = 0;
    QByteArray body;
};

/// Reads whole resources. TLS is verified, redirects stay within http(s), a body above 16 MiB is an error.
class UrlReader {
public:
    static constexpr qint64 maxBodyBytes = qint64{16} * 1024 * 1024;

    virtual ~UrlReader() = default;

    /// Blocks the calling thread until the whole body is here. Callable from any thread; the main thread
    /// calls it only where it is meant to be held up.
    virtual Result<UrlResponse> read(const UrlRequest &request) = 0;

    /// How long the body of this request may be.
    static qint64 mostBytes(const UrlRequest &request) {
        return std::min(request.mostBytes.value_or(maxBodyBytes), maxBodyBytes);
    }
};

/// Reads a URL as UTF-8 text. A body that is no valid UTF-8 is an error: half a page would look like a whole
/// one.
Result<QByteArray> readText(UrlReader &reader, const QUrl &url);

/// Makes a URL of a text as endpoints and catalogues give it; nothing for a text that is no absolute http(s)
/// URL.
std::optional<QUrl> makeUrl(const QString &text);

} // namespace orl
