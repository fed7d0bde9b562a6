// The elements of a parsed page that have a "class" attribute, in document order.
//
// A tree builder makes nearly every page from front to back: each element comes behind all others, in the
// document as in memory. It notes those with a class as it makes them, so that looking for a class need not
// walk the tree. The first thing that breaks the order (an element that moves before a table, formatting that
// is cut in two) and the first change after the parse end the index, and searches walk again.
#pragma once

#include "space.h"

#include <algorithm>
#include <cstdint>

namespace orl::html::core {

struct AttrRec;
struct NodeRec;

class ClassIndex {
public:
    struct Entry {
        Ref element;
        Ref attr; ///< its attribute's record
    };

    /// An empty index, to be filled by a parse that makes the arena's first nodes.
    void start() { state_ = State::Filling; }
    /// Notes an element that was put behind all others, if it has a class.
    void note(Arena &arena, const NodeRec *element);
    /// The order is broken.
    void drop() { state_ = State::Dropped; }
    /// The page is parsed; the index holds as long as the arena is at this version and has no other chunks.
    void finish(Arena &arena, NodeRec *page);

    /// The arena's index, if it can tell what is in the subtree of the node: nothing has changed since the
    /// parse, and the node is the page or one of a page whose addresses grow in document order. Else null.
    static const ClassIndex *of(const NodeRec *node);
    /// Whether the addresses of the page's nodes grow in document order, as they do while each chunk of
    /// memory comes behind the one before.
    bool isOrdered() const { return ordered_; }

    /// The document that was parsed.
    NodeRec *page() const { return page_; }
    /// Whether there are enough entries for searches to be worth some preparation.
    bool isLong() const { return first_ && first_->next; }

    std::size_t size() const;

    /// Calls `visit` with each entry of the node and of what is below it.
    template<class Visit>
    void forEachIn(const NodeRec *top, Visit visit) const {
        if (top == page_) return forEach(visit);
        const Ref from = refOf(top), to = endOf(top);
        for (const Block *block = first_; block; block = block->next) {
            if (block->last() < from) continue;
            const Entry *entry = block->entries;
            if (entry->element < from) entry = lowerBound(*block, from);
            for (const Entry *end = block->entries + block->count; entry != end; ++entry) {
                if (entry->element >= to) return;
                visit(*entry);
            }
        }
    }

    /// Where the nodes behind the subtree of `top` begin. Steps up from `top` as long as that is the last
    /// child.
    static Ref endOf(const NodeRec *top);

private:
    enum class State : std::uint8_t { Dropped, Filling, Ready };

    /// At most 64 KiB, each twice the size of the one before.
    struct Block {
        Block *next;
        std::uint32_t count, capacity;
        Entry entries[1];

        Ref last() const { return entries[count - 1].element; }
    };

    template<class Visit>
    void forEach(Visit visit) const {
        for (const Block *block = first_; block; block = block->next)
            for (const Entry *entry = block->entries; entry != block->entries + block->count; ++entry)
                visit(*entry);
    }
    static const Entry *lowerBound(const Block &block, Ref from) {
        return std::lower_bound(block.entries, block.entries + block.count, from,
                                [](const Entry &entry, Ref ref) { return entry.element < ref; });
    }
    void addBlock(Arena &arena);

    Block *first_ = nullptr, *last_ = nullptr;
    NodeRec *page_ = nullptr;
    std::uint64_t version_ = 0;
    std::uint32_t chunks_ = 0;
    Ref end_ = 0; ///< where the nodes of the page end
    State state_ = State::Dropped;
    bool ordered_ = false;
};

} // namespace orl::html::core
