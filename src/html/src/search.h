// Finding elements. All searches walk an element and what is below it once, in document order.
#pragma once

#include "attrs.h"
#include "core.h"
#include "orl/html/node_list.h"

#include <string_view>

namespace orl::html {
class Elements;
} // namespace orl::html

namespace orl::html::core {

using Found = SharedRefs::Refs;

Elements asElements(Found found);

/// A tag name in lower case, compared with the normal names of elements.
class TagName {
public:
    explicit TagName(std::string_view lower) : name_(lower) {
        const TagRec *known = knownTag(lower);
        known_ = known ? refOf(known) : 0;
    }
    bool isOf(const NodeRec *element) const {
        if (element->tag == known_) return true;
        if (isStatic(element->tag)) return false;
        return tagOf(element)->normalName() == name_;
    }

private:
    std::string_view name_;
    Ref known_;
};

/// The elements of the subtree for which `matches` is true.
template<class Matches>
Found findAll(NodeRec *root, Matches matches) {
    Found found;
    for (NodeRec *node = root; node; node = nextInTree(node, root))
        if (isElement(node) && matches(node)) found.push_back(refOf(node));
    return found;
}

/// The first element of the subtree for which `matches` is true; null without one.
template<class Matches>
NodeRec *findFirst(NodeRec *root, Matches matches) {
    for (NodeRec *node = root; node; node = nextInTree(node, root))
        if (isElement(node) && matches(node)) return node;
    return nullptr;
}

inline std::string_view idOf(const NodeRec *element) {
    static const AnyCaseKey key("id");
    const AttrRec *found = findAttr(element, key);
    return found ? found->text() : std::string_view();
}

} // namespace orl::html::core
