#include "orl/html/node_list.h"

#include "core.h"

namespace orl::html::core {

void SharedRefs::insert(std::size_t place, std::uint32_t ref) {
    if (!block_ || block_->users > 1) {
        auto *own = new Block{1, block_ ? block_->refs : Refs()};
        if (block_) --block_->users;
        block_ = own;
    }
    block_->refs.insert(block_->refs.begin() + std::ptrdiff_t(place), ref);
}

bool operator==(const SharedRefs &left, const SharedRefs &right) {
    return left.block_ == right.block_ ||
           (left.block_ && right.block_ && left.block_->refs == right.block_->refs);
}

NodeList::NodeList(SharedRefs refs) : refs_(std::move(refs)) {
    if (!refs_.empty()) keepArena();
}

NodeList::NodeList(const NodeList &other) : refs_(other.refs_) {
    if (other.keepsArena()) {
        keepArena();
        return;
    }
    for (const Ref ref : refs_)
        if (ref) hold(at<NodeRec>(ref));
}

NodeList::NodeList(NodeList &&other) noexcept {
    takePlaceOf(other);
}

NodeList &NodeList::operator=(NodeList other) noexcept {
    NodeList old(std::move(*this));
    takePlaceOf(other);
    return *this;
}

/// This list is empty.
void NodeList::takePlaceOf(NodeList &other) {
    refs_ = std::move(other.refs_);
    if (!other.keepsArena()) return;
    const bool isAlone = other.next_ == &other;
    next_ = isAlone ? this : std::exchange(other.next_, nullptr);
    previous_ = isAlone ? this : std::exchange(other.previous_, nullptr);
    next_->previous_ = this;
    previous_->next_ = this;
    other.next_ = other.previous_ = nullptr;
    NodeList *&first = arenaOf(at<NodeRec>(refs_[0])).lists_;
    if (first == &other) first = this;
}

void NodeList::keepArena() {
    Arena &arena = arenaOf(at<NodeRec>(refs_[0]));
    ++arena.held_;
    next_ = arena.lists_ ? arena.lists_ : this;
    previous_ = arena.lists_ ? next_->previous_ : this;
    next_->previous_ = previous_->next_ = this;
    arena.lists_ = this;
}

void NodeList::leaveRing(Arena &arena) {
    next_->previous_ = previous_;
    previous_->next_ = next_;
    if (arena.lists_ == this) arena.lists_ = next_ == this ? nullptr : next_;
    next_ = previous_ = nullptr;
}

void NodeList::countEach() {
    for (const Ref ref : refs_)
        hold(at<NodeRec>(ref));
    Arena &arena = arenaOf(at<NodeRec>(refs_[0]));
    leaveRing(arena);
    --arena.held_;
}

void NodeList::insert(std::size_t place, NodeRec *node) {
    if (keepsArena()) countEach();
    refs_.insert(place, node ? refOf(node) : 0);
    if (node) hold(node);
}

void NodeList::release() {
    const SharedRefs refs = std::move(refs_);
    if (keepsArena()) {
        Arena &arena = arenaOf(at<NodeRec>(refs[0]));
        leaveRing(arena);
        if (--arena.held_ == 0) arena.destroy();
        return;
    }
    for (const Ref ref : refs)
        if (ref) core::release(at<NodeRec>(ref));
}

// ---- What the arena does with them ----

void Arena::countLists() {
    while (lists_)
        lists_->countEach();
}

void Arena::mergeLists(Arena &goes) {
    NodeList *const others = goes.lists_;
    if (others && lists_) {
        NodeList *const last = lists_->previous_, *const othersLast = others->previous_;
        last->next_ = others;
        others->previous_ = last;
        othersLast->next_ = lists_;
        lists_->previous_ = othersLast;
    } else if (others) {
        lists_ = others;
    }
}

} // namespace orl::html::core
