#include "orl/html/string_util.h"
#include "scan.h"

#include <cstring>
#include <string>
#include <uriparser/Uri.h>

namespace orl::html {

namespace {

bool isHex(char c) {
    return core::isClass(c, core::HexByte);
}

/// The text as a URL may spell it: what must not stand in one as it is, such as a blank, is encoded.
std::string encoded(std::string_view text) {
    constexpr std::string_view refused = " \"<>\\^`{|}";
    constexpr char digits[] = "0123456789ABCDEF";
    std::string url;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        const bool badEscape =
            byte == '%' && !(i + 2 < text.size() && isHex(text[i + 1]) && isHex(text[i + 2]));
        if (byte > 0x20 && byte < 0x7f && !badEscape && refused.find(text[i]) == std::string_view::npos)
            url += text[i];
        else
            url += {'%', digits[byte >> 4], digits[byte & 15]};
    }
    return url;
}

/// A parsed URL and the text that it points into.
class Url {
public:
    explicit Url(std::string_view text) : text_(encoded(text)) {
        const char *end = text_.c_str() + text_.size();
        parsed_ = uriParseSingleUriExA(&uri_, text_.c_str(), end, nullptr) == URI_SUCCESS;
    }
    /// The relative URL as seen from the base.
    Url(const Url &base, const Url &relative) {
        parsed_ = base.parsed_ && relative.parsed_ &&
                  uriAddBaseUriA(&uri_, &relative.uri_, &base.uri_) == URI_SUCCESS;
    }
    Url(const Url &) = delete;
    Url &operator=(const Url &) = delete;
    ~Url() { uriFreeUriMembersA(&uri_); }

    bool hasScheme() const { return parsed_ && uri_.scheme.first; }
    bool isParsed() const { return parsed_; }
    std::string text() const {
        int size = 0;
        if (uriToStringCharsRequiredA(&uri_, &size) != URI_SUCCESS) return {};
        std::string text(std::size_t(size) + 1, '\0');
        if (uriToStringA(text.data(), &uri_, size + 1, nullptr) != URI_SUCCESS) return {};
        text.resize(std::strlen(text.c_str()));
        return text;
    }

private:
    std::string text_;
    UriUriA uri_{};
    bool parsed_ = false;
};

} // namespace

std::string StringUtil::resolve(std::string_view baseUrl, std::string_view relativeUrl) {
    const Url base(baseUrl), relative(relativeUrl);
    if (base.hasScheme()) {
        const Url absolute(base, relative);
        return absolute.isParsed() ? absolute.text() : std::string();
    }
    return relative.hasScheme() ? relative.text() : std::string();
}

} // namespace orl::html
