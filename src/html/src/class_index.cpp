#include "class_index.h"

#include "core.h"

#include <cstddef>
#include <limits>

namespace orl::html::core {

namespace {

constexpr std::uint32_t smallest = 254, largest = 8190; // with the head, whole KiB

} // namespace

void ClassIndex::note(Arena &arena, const NodeRec *element) {
    if (state_ != State::Filling) return;
    for (const AttrRec &entry : attrBlock(element)) {
        const AttrRec &attr = entry.target();
        if (attr.name != nameRef(NameId::Class)) continue;
        if (!last_ || last_->count == last_->capacity) addBlock(arena);
        last_->entries[last_->count++] = {refOf(element), refOf(&attr)};
        return;
    }
}

void ClassIndex::addBlock(Arena &arena) {
    const std::uint32_t capacity = last_ ? std::min(last_->capacity * 2 + 2, largest) : smallest;
    auto *block = static_cast<Block *>(arena.allocate(offsetof(Block, entries) + capacity * sizeof(Entry)));
    block->next = nullptr;
    block->count = 0;
    block->capacity = capacity;
    (last_ ? last_->next : first_) = block;
    last_ = block;
}

void ClassIndex::finish(Arena &arena, NodeRec *page) {
    if (state_ != State::Filling) return;
    page_ = page;
    version_ = arena.version;
    chunks_ = arena.chunkCount();
    end_ = arena.nextRecord();
    ordered_ = arena.isInOneRow();
    state_ = State::Ready;
}

const ClassIndex *ClassIndex::of(const NodeRec *node) {
    const Arena &arena = arenaOf(node);
    const ClassIndex &index = arena.classes;
    const bool holds = index.state_ == State::Ready && index.version_ == arena.version &&
                       index.chunks_ == arena.chunkCount() &&
                       (node == index.page_ || (index.ordered_ && refOf(node) < index.end_));
    return holds ? &index : nullptr;
}

std::size_t ClassIndex::size() const {
    std::size_t count = 0;
    for (const Block *block = first_; block; block = block->next)
        count += block->count;
    return count;
}

Ref ClassIndex::endOf(const NodeRec *top) {
    for (const NodeRec *node = top; node; node = parent(node))
        if (node->next) return node->next;
    return std::numeric_limits<Ref>::max();
}

} // namespace orl::html::core
