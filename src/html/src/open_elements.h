// The stack of open elements, which never has to be searched.
//
// Every entry remembers, for each question that the tree builder asks, what the answer was before the entry
// came: the newest open element of the same name, and the newest of the sets at which searches end. So "is a
// p in button scope?" is one comparison however deep the page nests, and popping restores the answers.
#pragma once

#include "core.h"
#include "pile.h"
#include "tag_sets.h"

#include <array>
#include <cstdint>

namespace orl::html::core {

class OpenElements {
public:
    /// A place on the stack, counted from 1 at the bottom; 0 is "nowhere".
    using Place = std::uint32_t;

    OpenElements() = default;
    OpenElements(const OpenElements &) = delete;
    OpenElements &operator=(const OpenElements &) = delete;
    ~OpenElements() { clear(); }

    Place size() const { return Place(entries_.size()); }
    bool empty() const { return entries_.empty(); }
    NodeRec *node(Place place) const { return at<NodeRec>(entries_[place - 1].node); }
    /// The tag by which the element is looked for.
    const TagRec *tag(Place place) const { return at<TagRec>(entries_[place - 1].tag); }
    NodeRec *top() const { return at<NodeRec>(entries_.back().node); }
    const TagRec *topTag() const { return at<TagRec>(entries_.back().tag); }

    void push(NodeRec *node, const TagRec *tag);
    NodeRec *pop();
    /// Pops everything above that place.
    void popDownTo(Place place);
    void clear() { popDownTo(0); }

    static bool contains(const NodeRec *node) { return node->flags & NodeRec::OpenElement; }
    /// Constant if the guess is right, else linear in the distance from the top; 0 if the node is not there.
    Place placeOf(const NodeRec *node, Place guess = 0) const;

    // These move all that is above.
    void remove(Place place);
    void insertAbove(Place place, NodeRec *node, const TagRec *tag);
    /// The element in that place by another of the same tag.
    void replace(Place place, NodeRec *node);

    Place newest(const TagRec *tag) const {
        return tag->id != TagId::Unknown ? newest(tag->id) : tag->newestOpen;
    }
    Place newest(TagId id) const { return newest_[unsigned(id)]; }
    /// Whether an element of a name that the page brought along is open.
    bool hasUnknown() const { return unknown_ > 0; }
    Place newestScope() const { return bounds_.scope; }
    Place newestSpecial() const { return bounds_.special; }
    /// Special, and none of those that an open li, dd or dt reaches through.
    Place newestItemBound() const { return bounds_.item; }

private:
    struct Bounds {
        Place scope = 0, special = 0, item = 0;
    };
    struct Entry {
        Ref node, tag;
        Place olderOfTag;
        Bounds older;
    };

    Place &newestOf(const TagRec *tag) {
        return tag->id != TagId::Unknown ? newest_[unsigned(tag->id)] : tag->newestOpen;
    }

    Pile<Entry> entries_;
    Bounds bounds_;
    Place unknown_ = 0;
    std::array<Place, tagCount> newest_{};
};

inline void OpenElements::push(NodeRec *node, const TagRec *tag) {
    Place &newest = newestOf(tag);
    entries_.push_back({refOf(node), refOf(tag), newest, bounds_});
    const Place place = size();
    newest = place;
    unknown_ += tag->id == TagId::Unknown;
    if (const std::uint64_t sets = tag->sets) {
        if (sets & bitOf(TagSet::TagsSearchInScope)) bounds_.scope = place;
        if (sets & bitOf(TagSet::TagSearchSpecial)) {
            bounds_.special = place;
            if (!(sets & bitOf(TagSet::InBodyStartLiBreakers))) bounds_.item = place;
        }
    }
    node->flags |= NodeRec::OpenElement;
}

inline NodeRec *OpenElements::pop() {
    const Entry &entry = entries_.back();
    NodeRec *const gone = at<NodeRec>(entry.node);
    newestOf(at<TagRec>(entry.tag)) = entry.olderOfTag;
    bounds_ = entry.older;
    unknown_ -= at<TagRec>(entry.tag)->id == TagId::Unknown;
    gone->flags &= ~std::uint32_t(NodeRec::OpenElement);
    entries_.pop_back();
    return gone;
}

inline void OpenElements::popDownTo(Place place) {
    while (size() > place)
        pop();
}

} // namespace orl::html::core
