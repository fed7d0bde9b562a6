#include "numbers/web_page.h"

#include "platform/url_reader.h"

#include <orl/html/parser.h>

#include <string_view>

namespace orl {

Result<html::Document> readPage(const Platform &platform, const QUrl &url) {
    const Result<QByteArray> text = readText(platform.urlReader, url);
    if (!text) return text.error();
    const QByteArray &bytes = text.value();
    try {
        return html::Parser::parse(std::string_view(bytes.constData(), static_cast<size_t>(bytes.size())),
                                   "");
    } catch (const html::Exception::Error &error) {
        return toError(error);
    }
}

} // namespace orl
