// What the entries have in common: saying that a law is broken, and laws about trees.
#pragma once

#include <orl/html/html.h>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orl::html::fuzz {

/// Stops the fuzzer, which keeps the input.
inline void require(bool holds, const char *law, const std::string &detail = {}) {
    if (holds) return;
    std::fprintf(stderr, "Broken law: %s\n%s\n", law, detail.c_str());
    std::abort();
}

inline std::string_view textOf(const std::uint8_t *data, std::size_t size) {
    return {reinterpret_cast<const char *>(data), size};
}

/// Prints a tree as it is, without blanks of the printer's own.
inline void printPlainly(const Document &document) {
    document.outputSettings().prettyPrint(false);
}

/// Every node names its parent and its place, and what is below it does too.
inline void requireSoundTree(const Node &root) {
    struct Checker final : NodeVisitor {
        void head(const Node &node, int) override {
            std::size_t place = 0;
            for (Node child = node.firstChild(); child; child = child.nextSibling(), ++place) {
                require(child.parent() == node, "a child names its parent");
                require(place > 64 || child.siblingIndex() == place, "a child knows its place");
            }
            require(node.childNodeSize() == place, "a parent knows how many children it has");
        }
        void tail(const Node &, int) override {}
    } checker;
    root.traverse(checker);
}

/// Whether a page holds an element whose content is read as raw text, so that printed references in it are
/// not read as such again.
inline bool hasRawText(const Element &root) {
    for (const char *name :
         {"plaintext", "xmp", "iframe", "noembed", "noframes", "noscript", "script", "style"})
        if (!root.getElementsByTag(name).isEmpty()) return true;
    return false;
}

} // namespace orl::html::fuzz
