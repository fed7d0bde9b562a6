#include "html_tree_builder.h"
#include "tree.h"

namespace orl::html::core {

std::vector<NodeRec *> parseFragmentInto(Arena &arena, std::string_view html, NodeRec *context) {
    HtmlTreeBuilder builder;
    ParseErrorList errors = ParseErrorList::noTracking();
    return builder.parseFragment(arena, html, context, context ? baseUriOf(context) : arena.baseUri(), errors,
                                 builder.defaultSettings());
}

} // namespace orl::html::core
