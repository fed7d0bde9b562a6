#include "orl/html/string_util.h"
#include "scan.h"

#include <algorithm>
#include <cstring>
#include <string>
#include <uriparser/Uri.h>

namespace orl::html {

namespace {

bool isHex(char c) {
    return core::isClass(c, core::HexByte);
}

/// The text without what a browser does not see in an address: line feeds, carriage returns and tabs
/// anywhere, and controls and blanks around it.
std::string visible(std::string_view text) {
    const auto isInvisible = [](char c) { return static_cast<unsigned char>(c) <= ' '; };
    while (!text.empty() && isInvisible(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isInvisible(text.back()))
        text.remove_suffix(1);
    std::string address(text);
    std::erase_if(address, [](char c) { return c == '\n' || c == '\r' || c == '\t'; });
    return address;
}

/// Where the path starts: behind the host, if there is one. Only a host may have square brackets.
std::size_t startOfPath(std::string_view address) {
    const std::size_t slash = address.find_first_of("/?#");
    const bool hasHost = slash != std::string_view::npos && address.substr(slash, 2) == "//" &&
                         (slash == 0 || address[slash - 1] == ':');
    if (!hasHost) return 0;
    return std::min(address.find_first_of("/?#", slash + 2), address.size());
}

/// The text as a URL may spell it: what must not stand in one as it is, such as a blank, is encoded.
std::string encoded(std::string_view text) {
    constexpr std::string_view refused = " \"<>\\^`{|}";
    constexpr char digits[] = "0123456789ABCDEF";
    const std::string address = visible(text);
    const std::size_t path = startOfPath(address), fragment = address.find('#');
    std::string url;
    for (std::size_t i = 0; i < address.size(); ++i) {
        const char c = address[i];
        const auto byte = static_cast<unsigned char>(c);
        const bool badEscape =
            c == '%' && !(i + 2 < address.size() && isHex(address[i + 1]) && isHex(address[i + 2]));
        const bool misplaced = ((c == '[' || c == ']') && i >= path) || (c == '#' && i != fragment);
        if (byte > 0x20 && byte < 0x7f && !badEscape && !misplaced &&
            refused.find(c) == std::string_view::npos)
            url += c;
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
