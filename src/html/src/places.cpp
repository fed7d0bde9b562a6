#include "places.h"

#include "tree.h"

#include <string>

namespace orl::html::core {

namespace {

constexpr std::uint32_t fewChildren = 16; ///< so many are counted anew each time

template<class Counts>
Places::Place countAmong(const NodeRec *element, const NodeRec *parent, Counts counts) {
    Places::Place place{0, 0};
    for (const NodeRec *node = firstElement(parent); node; node = nextElement(node)) {
        if (node == element) place.index = place.count;
        place.count += counts(node);
    }
    return place;
}

/// Numbers the tags of siblings, equal ones alike.
class Types {
public:
    std::uint32_t of(const TagRec *tag) {
        const auto known = byTag_.find(tag);
        if (known != byTag_.end()) return known->second;
        const std::string meaning =
            std::string(tag->name()) + '\n' + std::to_string(tag->flags & TagRec::behaviour);
        const std::uint32_t type =
            byMeaning_.emplace(meaning, std::uint32_t(byMeaning_.size())).first->second;
        return byTag_[tag] = type;
    }

private:
    std::unordered_map<const TagRec *, std::uint32_t> byTag_;
    std::unordered_map<std::string, std::uint32_t> byMeaning_;
};

} // namespace

bool sameTag(const TagRec *left, const TagRec *right) {
    return left == right || (left->name() == right->name() &&
                             (left->flags & TagRec::behaviour) == (right->flags & TagRec::behaviour));
}

Places::Place Places::among(NodeRec *element) {
    NodeRec *parent = parentOf(element);
    if (!parent) return {0, 1};
    Index *index = isLinked(element) ? indexOf(parent) : nullptr;
    if (!index) return countAmong(element, parent, [](const NodeRec *) { return 1; });
    return {index->places[siblingIndex(element)], index->count};
}

Places::Place Places::amongType(NodeRec *element) {
    NodeRec *parent = parentOf(element);
    if (!parent) return {0, 1};
    Index *index = isLinked(element) ? indexOf(parent) : nullptr;
    if (!index) {
        const TagRec *tag = tagOf(element);
        return countAmong(element, parent, [tag](const NodeRec *node) { return sameTag(tagOf(node), tag); });
    }
    if (index->types.empty()) addTypes(*index, parent);
    const std::uint32_t at = siblingIndex(element);
    return {index->typePlaces[at], index->typeCounts[index->types[at]]};
}

/// Null for a parent of few children.
Places::Index *Places::indexOf(NodeRec *parent) {
    const std::uint32_t nodes = childCount(parent);
    if (nodes <= fewChildren) return nullptr;
    if (parent == lastParent_) return lastIndex_;
    Index &index = indices_[parent];
    if (index.places.empty()) {
        index.places.reserve(nodes);
        for (const NodeRec *node = firstChild(parent); node; node = nextSibling(node)) {
            index.places.push_back(index.count);
            index.count += isElement(node);
        }
    }
    lastParent_ = parent;
    return lastIndex_ = &index;
}

void Places::addTypes(Index &index, const NodeRec *parent) {
    Types types;
    index.types.reserve(index.places.size());
    index.typePlaces.reserve(index.places.size());
    for (const NodeRec *node = firstChild(parent); node; node = nextSibling(node)) {
        const std::uint32_t type = isElement(node) ? types.of(tagOf(node)) : 0;
        if (type >= index.typeCounts.size()) index.typeCounts.resize(type + 1);
        index.types.push_back(type);
        index.typePlaces.push_back(index.typeCounts[type]);
        index.typeCounts[type] += isElement(node);
    }
}

} // namespace orl::html::core
