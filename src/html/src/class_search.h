// Searches for classes in a page as it was parsed, by its index.
#pragma once

#include "class_index.h"
#include "class_match.h"
#include "search.h"

namespace orl::html::core {

/// The elements of the subtree that have the class.
Found findByClass(const ClassIndex &index, NodeRec *top, const ClassName &name);

// The next two need an index in the order of addresses. What stands below an element then stands between it
// and its end, so that it is enough to know where the last outermost element of the outer class ends.

/// The elements of the subtree that have the class `inner` and stand below one of it that has the class
/// `outer`.
Found findBelowClass(const ClassIndex &index, NodeRec *top, const ClassName &outer, const ClassName &inner);

/// Those for which `matches` is true and that stand below one that has the class.
template<class Matches>
Found findBelowClass(const ClassIndex &index, NodeRec *top, const ClassName &outer, Matches matches) {
    Found found;
    Ref end = 0;
    for (const Ref ref : findByClass(index, top, outer)) {
        if (ref < end) continue;
        NodeRec *const above = at<NodeRec>(ref);
        NodeRec *node = nextInTree(above, above);
        for (; node; node = nextInTree(node, above))
            if (isElement(node) && matches(node)) found.push_back(refOf(node));
        end = ClassIndex::endOf(above);
    }
    return found;
}

} // namespace orl::html::core
