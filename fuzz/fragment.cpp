// A fragment parses in any context, and its nodes are roots of sound trees. The first byte chooses the
// context.
#include "law.h"

using namespace orl::html;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    constexpr const char *contexts[] = {
        "",         "div",  "p",    "table",     "tbody",    "tr",       "td",     "select", "colgroup",
        "caption",  "head", "html", "frameset",  "title",    "textarea", "script", "style",  "pre",
        "template", "form", "a",    "plaintext", "noscript", "svg",      "ruby",   "option", "x-y"};
    if (size == 0) return 0;
    const std::string_view name = contexts[data[0] % std::size(contexts)];
    const std::string_view markup = fuzz::textOf(data + 1, size - 1);

    const Document around = Document::createShell("http://host/");
    const Element context = name.empty() ? Element() : around.body().appendElement(name);
    const std::vector<Node> nodes = Parser::parseFragment(markup, context, "http://host/");
    for (const Node &node : nodes) {
        fuzz::require(!node.parent(), "a node of a fragment has no parent");
        fuzz::requireSoundTree(node);
    }
    if (!context) return 0;
    context.append(markup);
    fuzz::requireSoundTree(around);
    std::string printed;
    for (const Node &node : nodes)
        printed += node.outerHtml();
    std::string appended;
    for (const Node &node : context.getChildNodes())
        appended += Node(node.copy()).outerHtml();
    fuzz::require(printed == appended, "appending markup is appending its nodes", printed + "\n" + appended);
    return 0;
}
