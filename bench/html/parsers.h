// What is compared: each parser as its users use it.
//
// A parser has a Tree, made from a page and destroyed with its last copy, and those of the operations that
// its library has, or that its users write in a few lines: the elements of a class, the text, the page as
// markup.
#pragma once

#include <orl/html/html.h>

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#ifdef ORL_BENCH_LIBXML2
#include <libxml/HTMLparser.h>
#include <libxml/HTMLtree.h>
#endif
#ifdef ORL_BENCH_GUMBO
#include <gumbo.h>
#endif

namespace orl::bench {

struct Orl {
    static constexpr const char *name = "orl";
    using Tree = html::Document;

    static Tree parse(const std::string &page) {
        Tree tree = html::parse(page);
        tree.outputSettings().prettyPrint(false);
        return tree;
    }
    static std::size_t byClass(const Tree &tree, const char *className) {
        return tree.getElementsByClass(className).size();
    }
    static std::size_t text(const Tree &tree) { return tree.text().size(); }
    static std::size_t markup(const Tree &tree) { return tree.outerHtml().size(); }
};

/// Whether a word of the value is the class.
bool hasWord(const char *value, const char *word);

#ifdef ORL_BENCH_LIBXML2

/// Classes are looked for by a walk over the tree's own structures: xmlGetProp would copy every value, and an
/// XPath expression would build sets of nodes.
struct Libxml2 {
    static constexpr const char *name = "libxml2";
    using Tree = std::shared_ptr<xmlDoc>;

    static Tree parse(const std::string &page);
    static std::size_t byClass(const Tree &tree, const char *className);
    static std::size_t text(const Tree &tree);
    static std::size_t markup(const Tree &tree);
};

#endif
#ifdef ORL_BENCH_GUMBO

/// It has no operations on its trees but reading an attribute; these walk as the examples in its manual do.
struct Gumbo {
    static constexpr const char *name = "gumbo";
    using Tree = std::shared_ptr<GumboOutput>;

    static Tree parse(const std::string &page);
    static std::size_t byClass(const Tree &tree, const char *className);
    static std::size_t text(const Tree &tree);
};

#endif

} // namespace orl::bench
