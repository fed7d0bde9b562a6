// Laws of parsing: it ends, whatever the text; its tree hangs together; recording errors changes nothing.
//
// The first byte chooses what is parsed: a page, a fragment in one of several contexts, XML.
#include <orl/html/parser.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

using namespace orl::html;

namespace {

void require(bool law) {
    if (!law) std::abort();
}

/// Every child names its parent and its neighbours, and no node comes twice.
std::size_t checkTree(const Node &root, std::size_t limit) {
    std::vector<Node> left{root};
    std::size_t count = 0;
    while (!left.empty()) {
        const Node node = left.back();
        left.pop_back();
        require(++count <= limit);
        if (!node.is<Element>()) continue;
        Node previous;
        for (const Node &child : node.getChildNodes()) {
            require(child.parent() == node);
            require(child.previousSibling() == previous);
            if (previous) require(previous.nextSibling() == child);
            previous = child;
            left.push_back(child);
        }
        if (previous) require(!previous.nextSibling());
    }
    return count;
}

void page(std::string_view text, std::size_t limit) {
    const Document plain = parse(text, "http://a/");
    require(bool(plain.head()) && (plain.body() || !plain.getElementsByTag("frameset").isEmpty()));
    Parser parser = Parser::htmlParser();
    parser.setTrackErrors(50);
    const Document tracked = parser.parseInput(text, "http://a/");
    require(parser.getErrors().size() <= 50);
    require(checkTree(plain, limit) == checkTree(tracked, limit));
    require(plain.outerHtml() == tracked.outerHtml());
}

void fragment(std::string_view text, std::string_view context, std::size_t limit) {
    const Document document = parse("<form><p>", "http://a/");
    const Element element = document.createElement(context);
    document.getElementsByTag("p").first().appendChild(element);
    for (const Node &node : Parser::parseFragment(text, element, "http://b/")) {
        require(!node.parent());
        element.appendChild(node);
    }
    checkTree(document, limit);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    static constexpr std::string_view contexts[] = {
        "div",  "table",   "tbody",    "tr",       "td",   "select", "title",  "script",
        "html", "caption", "colgroup", "frameset", "head", "body",   "option", "p"};
    if (size == 0) return 0;
    const std::string_view text(reinterpret_cast<const char *>(data) + 1, size - 1);
    const std::size_t limit = 100'000 + 64 * size;
    const unsigned choice = data[0];
    if (choice < 160) {
        page(text, limit);
    } else if (choice < 240) {
        fragment(text, contexts[choice % std::size(contexts)], limit);
    } else {
        Parser xml = Parser::xmlParser();
        checkTree(xml.parseInput(text, ""), limit);
    }
    return 0;
}
