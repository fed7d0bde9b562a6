// For the engine's own use: what a list of elements refers to, and what keeps it.
#pragma once

#include <orl/html/export.h>
#include <orl/html/large_buffer.h>

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace orl::html::core {

class Arena;
struct NodeRec;

/// References to nodes in order, in common to all that only read them: lists and their copies, and the
/// answers that a page keeps. Counted without locks, as nodes are: all of them belong to one tree.
class SharedRefs {
public:
    using Refs = std::vector<std::uint32_t, LargeBuffers<std::uint32_t>>;

    SharedRefs() = default;
    explicit SharedRefs(Refs refs) : block_(refs.empty() ? nullptr : new Block{1, std::move(refs)}) {}
    SharedRefs(const SharedRefs &other) : block_(other.block_) {
        if (block_) ++block_->users;
    }
    SharedRefs(SharedRefs &&other) noexcept : block_(std::exchange(other.block_, nullptr)) {}
    SharedRefs &operator=(SharedRefs other) noexcept {
        std::swap(block_, other.block_);
        return *this;
    }
    ~SharedRefs() {
        if (block_ && --block_->users == 0) delete block_;
    }

    bool empty() const { return !block_; }
    std::size_t size() const { return block_ ? block_->refs.size() : 0; }
    const std::uint32_t *begin() const { return block_ ? block_->refs.data() : nullptr; }
    const std::uint32_t *end() const { return begin() + size(); }
    std::uint32_t operator[](std::size_t place) const { return block_->refs[place]; }

    /// Nobody else sees the change.
    void insert(std::size_t place, std::uint32_t ref);
    friend bool operator==(const SharedRefs &left, const SharedRefs &right);

private:
    struct Block {
        std::size_t users;
        Refs refs; ///< never empty
    };

    Block *block_ = nullptr;
};

/// Keeps all nodes that it refers to.
///
/// A list that a search gave keeps the arena as a whole, which costs the same however long it is. Only when
/// something of the arena is about to be given back does it count itself as a holder of each node; who
/// changes it makes it do so too.
class NodeList {
public:
    NodeList() = default;
    /// Nodes of one arena.
    explicit NodeList(SharedRefs refs);
    NodeList(const NodeList &other);
    NodeList(NodeList &&other) noexcept;
    NodeList &operator=(NodeList other) noexcept;
    ~NodeList() {
        if (!refs_.empty()) release();
    }

    const SharedRefs &refs() const { return refs_; }
    /// A node of any arena, or nothing.
    void insert(std::size_t place, NodeRec *node);

private:
    friend class Arena;

    bool keepsArena() const { return next_; }
    void keepArena();
    void leaveRing(Arena &arena);
    void takePlaceOf(NodeList &other);
    void countEach();
    void release();

    SharedRefs refs_;
    NodeList *next_ = nullptr, *previous_ = nullptr; ///< in the ring of the lists that keep the arena
};

} // namespace orl::html::core
