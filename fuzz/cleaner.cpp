// What a cleaner leaves holds nothing that the whitelist forbids, also when it is printed and parsed again.
// The first byte chooses the whitelist and the base URI.
#include "law.h"

#include <algorithm>
#include <cctype>

using namespace orl::html;

namespace {

/// The scheme that a browser sees in a link; "" in a relative one.
std::string schemeOf(const std::string &link) {
    std::string scheme;
    bool started = false;
    for (const char c : link) {
        if (c == '\t' || c == '\n' || c == '\r' || (!started && static_cast<unsigned char>(c) <= ' '))
            continue;
        started = true;
        if (c == ':') return scheme;
        const auto byte = static_cast<unsigned char>(c);
        if (byte >= 0x80 || !(std::isalnum(byte) || ((c == '+' || c == '-' || c == '.') && !scheme.empty())))
            return "";
        if (scheme.empty() && !std::isalpha(byte)) return "";
        scheme += char(std::tolower(byte));
    }
    return "";
}

void requireSafe(const Element &element, const Whitelist &whitelist, bool relativeLinks,
                 const std::string &output) {
    constexpr std::string_view keys[] = {"href",    "title",  "cite", "span",    "width",   "align",
                                         "alt",     "height", "src",  "start",   "type",    "rel",
                                         "summary", "abbr",   "axis", "colspan", "rowspan", "scope"};
    constexpr std::string_view links[] = {"href", "src", "cite"};
    constexpr std::string_view schemes[] = {"http", "https", "ftp", "mailto"};
    fuzz::require(whitelist.isSafeTag(element.tagName()), "a tag is on the list", output);
    for (const Attribute &attribute : element.getAttributes()) {
        fuzz::require(std::ranges::count(keys, attribute.getKey()), "an attribute is on the list", output);
        if (!std::ranges::count(links, attribute.getKey())) continue;
        const std::string scheme = schemeOf(attribute.getValue());
        const bool isSafe = scheme.empty() ? relativeLinks : std::ranges::count(schemes, scheme) > 0;
        fuzz::require(isSafe, "a link has a protocol of the list", output);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    if (size == 0) return 0;
    const unsigned choice = data[0];
    const Whitelist lists[] = {Whitelist::none(), Whitelist::simpleText(), Whitelist::basic(),
                               Whitelist::basicWithImages(), Whitelist::relaxed()};
    Whitelist whitelist = lists[choice % std::size(lists)];
    const bool preserve = choice & 64, based = choice & 128;
    whitelist.preserveRelativeLinks(preserve);

    const std::string output =
        clean(fuzz::textOf(data + 1, size - 1), based ? "http://host/dir/" : "", whitelist);
    const Document again = Parser::parseBodyFragment(output, "");
    for (const Node &node : again.body().getChildNodes())
        fuzz::require(node.is<TextNode>() || node.is<Element>(), "there is nothing but elements and text",
                      output);
    for (const Element &element : again.select("body *"))
        requireSafe(element, whitelist, preserve && based, output);
    fuzz::require(isValid(clean(output, "http://host/dir/", whitelist), whitelist) || preserve ||
                      choice % std::size(lists) == 2 || choice % std::size(lists) == 3,
                  "what is clean stays so", output);
    return 0;
}
