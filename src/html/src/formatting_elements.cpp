#include "formatting_elements.h"

namespace orl::html::core {

namespace {

bool sameAttributes(const NodeRec *left, const NodeRec *right) {
    const AttrBlock a = attrBlock(left), b = attrBlock(right);
    if (a.count != b.count) return false;
    for (std::uint32_t i = 0; i < a.count; ++i) {
        const AttrRec &mine = a.first[i].target(), &other = b.first[i].target();
        if (!sameName(mine.name, other.name) || mine.text() != other.text()) return false;
    }
    return true;
}

std::uint64_t keyOf(const NodeRec *node, TagId id, std::uint32_t level) {
    std::uint64_t key = (std::uint64_t(level) << 8 | unsigned(id)) * 0x9e3779b97f4a7c15U;
    for (const AttrRec &entry : attrBlock(node)) {
        const AttrRec &attribute = entry.target();
        key = (key ^ attribute.name ^ std::uint64_t(hashOf(attribute.text())) << 32) * 0xd6e8feb86659fd93U;
        key ^= key >> 29;
    }
    return key;
}

} // namespace

const NodeRec FormattingElements::alwaysOpen = {.parent = 0,
                                                .next = 0,
                                                .prev = 0,
                                                .kind = 0,
                                                .flags = NodeRec::OpenElement,
                                                .attrCount = 0,
                                                .holders = 0,
                                                .index = 0,
                                                .tag = 0,
                                                .branch = {0, 0}};

FormattingElements::Entry *FormattingElements::find(TagId id) const {
    Entry *const entry = newestOfName_[unsigned(id)];
    return entry && entry->level == level() ? entry : nullptr;
}

FormattingElements::Entry *FormattingElements::entryOf(const NodeRec *node, TagId id) const {
    Entry *entry = newestOfName_[unsigned(id)];
    while (entry && entry->node != node)
        entry = entry->olderOfName;
    return entry;
}

FormattingElements::Entry *FormattingElements::make(NodeRec *node, TagId id, std::uint32_t level) {
    Entry *entry;
    if (spare_.empty()) {
        entry = &pool_.emplace_back();
    } else {
        entry = spare_.back();
        spare_.pop_back();
    }
    *entry = {.node = node, .id = id, .level = level};
    return entry;
}

void FormattingElements::link(Entry *entry, Entry *behind) {
    entry->older = behind;
    entry->newer = behind ? behind->newer : oldest_;
    (behind ? behind->newer : oldest_) = entry;
    (entry->newer ? entry->newer->older : newest_) = entry;
    lookAtNewest();
    if (!entry->node) return;
    Entry *&ofName = newestOfName_[unsigned(entry->id)];
    entry->olderOfName = ofName;
    if (ofName) ofName->newerOfName = entry;
    ofName = entry;
    ++levels_[entry->level].count;
}

void FormattingElements::hashEntry(Entry *entry) {
    entry->hashed = true;
    entry->key = keyOf(entry->node, entry->id, entry->level);
    Entry *&ofKey = newestOfKey_[entry->key];
    entry->olderOfKey = ofKey;
    if (ofKey) ofKey->newerOfKey = entry;
    ofKey = entry;
}

void FormattingElements::unhash(Entry *entry) {
    if (entry->olderOfKey) entry->olderOfKey->newerOfKey = entry->newerOfKey;
    if (entry->newerOfKey)
        entry->newerOfKey->olderOfKey = entry->olderOfKey;
    else if (entry->olderOfKey)
        newestOfKey_[entry->key] = entry->olderOfKey;
    else
        newestOfKey_.erase(entry->key);
    entry->olderOfKey = entry->newerOfKey = nullptr;
}

void FormattingElements::reopen(Entry *entry, NodeRec *copy, std::uint32_t place) {
    entry->node = copy;
    entry->place = place;
    lookAtNewest();
}

void FormattingElements::replace(Entry *entry, NodeRec *node) {
    entry->node = node;
    lookAtNewest();
    if (!entry->hashed) return;
    unhash(entry);
    hashEntry(entry);
}

/// Hashes the entries of the newest level, the oldest first.
void FormattingElements::hashLevel() {
    levels_.back().hashed = true;
    Entry *entry = newest_;
    while (entry->older && entry->older->node)
        entry = entry->older;
    for (; entry; entry = entry->newer)
        hashEntry(entry);
}

FormattingElements::Entry *FormattingElements::thirdOfTheSame(const NodeRec *node, TagId id,
                                                              std::uint64_t key) const {
    Entry *entry = newest_;
    if (levels_.back().hashed) {
        const auto found = newestOfKey_.find(key);
        entry = found == newestOfKey_.end() ? nullptr : found->second;
    }
    const bool byKey = levels_.back().hashed;
    for (int same = 0; entry && entry->node; entry = byKey ? entry->olderOfKey : entry->older) {
        if (entry->id == id && sameAttributes(entry->node, node) && ++same == 3) return entry;
    }
    return nullptr;
}

void FormattingElements::push(NodeRec *node, TagId id, std::uint32_t place) {
    if (!levels_.back().hashed && levels_.back().count > few) hashLevel();
    const bool hashed = levels_.back().hashed;
    const std::uint64_t key = hashed ? keyOf(node, id, level()) : 0;
    if (Entry *const third = thirdOfTheSame(node, id, key)) remove(third);
    Entry *const entry = make(node, id, level());
    entry->place = place;
    link(entry, newest_);
    if (hashed) hashEntry(entry);
}

void FormattingElements::pushMarker() {
    levels_.push_back({});
    link(make(nullptr, TagId::Unknown, level()), newest_);
}

void FormattingElements::clearToLastMarker() {
    while (newest_) {
        const bool marker = !newest_->node;
        remove(newest_);
        if (marker) break;
    }
}

void FormattingElements::clear() {
    while (newest_)
        remove(newest_);
}

void FormattingElements::remove(Entry *entry) {
    (entry->older ? entry->older->newer : oldest_) = entry->newer;
    (entry->newer ? entry->newer->older : newest_) = entry->older;
    lookAtNewest();
    if (entry->node) {
        if (entry->olderOfName) entry->olderOfName->newerOfName = entry->newerOfName;
        (entry->newerOfName ? entry->newerOfName->olderOfName : newestOfName_[unsigned(entry->id)]) =
            entry->olderOfName;
        --levels_[entry->level].count;
    } else {
        levels_.pop_back();
    }
    if (entry->hashed) unhash(entry);
    spare_.push_back(entry);
}

FormattingElements::Entry *FormattingElements::insertBehind(Entry *behind, NodeRec *node, TagId id,
                                                            std::uint32_t itsLevel) {
    Entry *const entry = make(node, id, itsLevel);
    link(entry, behind);
    if (levels_[itsLevel].hashed) hashEntry(entry);
    return entry;
}

} // namespace orl::html::core
