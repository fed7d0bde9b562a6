#include "platform/url_reader.h"

#include <QStringConverter>

namespace orl {

namespace {

bool isValidUtf8(const QByteArray &bytes) {
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = decoder(bytes);
    return !decoder.hasError();
}

} // namespace

Result<QByteArray> readText(UrlReader &reader, const QUrl &url) {
    Result<UrlResponse> response = reader.read({.url = url});
    if (!response) return response.error();
    QByteArray body = std::move(response).value().body;
    if (!isValidUtf8(body)) {
        return Error{QStringLiteral("%1: the text is not valid UTF-8").arg(url.toDisplayString())};
    }
    return body;
}

std::optional<QUrl> makeUrl(const QString &text) {
    QUrl url(text, QUrl::StrictMode);
    const bool web = url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https");
    if (!url.isValid() || !web || url.host().isEmpty()) return std::nullopt;
    return url;
}

} // namespace orl
