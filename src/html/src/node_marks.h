// Two bits for every node, found by its address.
#pragma once

#include "core.h"

#include <array>
#include <cstdint>
#include <memory>
#include <unordered_map>

namespace orl::html::core {

/// Costs a page of 1 KiB for each granule of the node space that has a marked node in it, and next to no
/// time. Right as long as the nodes live.
class NodeMarks {
public:
    /// 0 for a node that was never marked.
    unsigned get(const NodeRec *node) const {
        const Ref ref = refOf(node);
        const Page *page = ref / perPage == last_ ? page_ : find(ref / perPage);
        return page ? (*page)[ref % perPage / perWord] >> shiftOf(ref) & 3U : 0;
    }
    /// Sets bits of a value of 0 to 3.
    void add(const NodeRec *node, unsigned bits) {
        const Ref ref = refOf(node);
        Page *page = page_ && ref / perPage == last_ ? page_ : make(ref / perPage);
        (*page)[ref % perPage / perWord] |= std::uint64_t(bits) << shiftOf(ref);
    }
    void clear() {
        pages_.clear();
        last_ = nowhere;
    }

private:
    static constexpr Ref perPage = granuleSize / 16;
    static constexpr Ref perWord = 32;
    static constexpr Ref nowhere = ~Ref(0);
    using Page = std::array<std::uint64_t, perPage / perWord>;

    static unsigned shiftOf(Ref ref) { return ref % perWord * 2; }

    const Page *find(Ref number) const {
        const auto found = pages_.find(number);
        if (found == pages_.end()) return nullptr;
        last_ = number;
        return page_ = found->second.get();
    }
    Page *make(Ref number) {
        auto &page = pages_[number];
        if (!page) page = std::make_unique<Page>();
        last_ = number;
        return page_ = page.get();
    }

    std::unordered_map<Ref, std::unique_ptr<Page>> pages_;
    mutable Ref last_ = nowhere; ///< the page that was used last
    mutable Page *page_ = nullptr;
};

/// A set of nodes.
class NodeSet {
public:
    bool contains(const NodeRec *node) const { return marks_.get(node) & 1; }
    /// Whether the node is new to the set.
    bool add(const NodeRec *node) {
        if (contains(node)) return false;
        marks_.add(node, 1);
        return true;
    }
    void clear() { marks_.clear(); }

private:
    NodeMarks marks_;
};

/// Answers about nodes that were worked out before.
class NodeAnswers {
public:
    bool isKnown(const NodeRec *node) const { return marks_.get(node) & 2; }
    bool get(const NodeRec *node) const { return marks_.get(node) & 1; }
    void set(const NodeRec *node, bool answer) { marks_.add(node, answer ? 3 : 2); }
    void clear() { marks_.clear(); }

private:
    NodeMarks marks_;
};

} // namespace orl::html::core
