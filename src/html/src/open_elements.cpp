#include "open_elements.h"

#include <utility>
#include <vector>

namespace orl::html::core {

OpenElements::Place OpenElements::placeOf(const NodeRec *node, Place guess) const {
    const Ref ref = refOf(node);
    if (guess > 0 && guess <= size() && entries_[guess - 1].node == ref) return guess;
    Place place = size();
    while (place > 0 && entries_[place - 1].node != ref)
        --place;
    return place;
}

void OpenElements::remove(Place place) {
    std::vector<std::pair<NodeRec *, const TagRec *>> above;
    while (size() > place) {
        const TagRec *const itsTag = topTag();
        above.emplace_back(pop(), itsTag);
    }
    pop();
    for (; !above.empty(); above.pop_back())
        push(above.back().first, above.back().second);
}

void OpenElements::insertAbove(Place place, NodeRec *node, const TagRec *tag) {
    std::vector<std::pair<NodeRec *, const TagRec *>> above;
    while (size() > place) {
        const TagRec *const itsTag = topTag();
        above.emplace_back(pop(), itsTag);
    }
    push(node, tag);
    for (; !above.empty(); above.pop_back())
        push(above.back().first, above.back().second);
}

void OpenElements::replace(Place place, NodeRec *node) {
    Entry &entry = entries_[place - 1];
    at<NodeRec>(entry.node)->flags &= ~std::uint32_t(NodeRec::OpenElement);
    entry.node = refOf(node);
    node->flags |= NodeRec::OpenElement;
}

} // namespace orl::html::core
