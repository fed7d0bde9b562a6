// Any text is an XML document; what it prints parses to what prints the same.
#include "law.h"

using namespace orl::html;

namespace {

/// Declarations that start with "!" print another one at their end, which is part of them when they are read
/// again.
bool hasMarkedDeclaration(const Node &root) {
    struct Finder final : NodeVisitor {
        void head(const Node &node, int) override {
            found =
                found || (node.is<XmlDeclaration>() && node.as<XmlDeclaration>().isProcessingInstruction());
        }
        void tail(const Node &, int) override {}

        bool found = false;
    } finder;
    root.traverse(finder);
    return finder.found;
}

/// Nothing for a document that cannot settle.
std::optional<std::string> reprinted(std::string_view text) {
    Parser parser = Parser::xmlParser();
    const Document document = parser.parseInput(text, "");
    fuzz::requireSoundTree(document);
    fuzz::printPlainly(document);
    std::string printed = document.outerHtml();
    if (hasMarkedDeclaration(document)) return {};
    return printed;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    auto printed = reprinted(fuzz::textOf(data, size));
    for (std::size_t round = 0; round < size + 16; ++round) {
        const auto next = printed ? reprinted(*printed) : printed;
        if (next == printed) return 0;
        printed = next;
    }
    fuzz::require(false, "printing and parsing again settles", *printed);
    return 0;
}
