// The list of active formatting elements.
//
// A linked list whose entries are also chained by name and, where the list is long, found by a hash of name
// and attributes, so that no step has to walk it. Markers cut the list into levels; only the newest level is
// looked at, except where an entry is looked for by its element.
#pragma once

#include "core.h"

#include <array>
#include <cstdint>
#include <deque>
#include <unordered_map>
#include <vector>

namespace orl::html::core {

class FormattingElements {
public:
    struct Entry {
        NodeRec *node = nullptr; ///< null for a marker
        TagId id = TagId::Unknown;
        bool hashed = false;
        std::uint32_t level = 0;
        std::uint32_t place =
            0; ///< where the element stood on the stack of open elements when it was entered
        std::uint64_t key = 0;
        Entry *older = nullptr, *newer = nullptr;
        Entry *olderOfName = nullptr, *newerOfName = nullptr;
        Entry *olderOfKey = nullptr, *newerOfKey = nullptr;
    };

    FormattingElements() = default;
    FormattingElements(const FormattingElements &) = delete;
    FormattingElements &operator=(const FormattingElements &) = delete;

    /// Whether the newest entry, if there is one, is a marker or an element that is open: nothing is to be
    /// opened again.
    bool isSettled() const { return newestNode_->flags & NodeRec::OpenElement; }
    /// The newest entry, which may be a marker; null for an empty list.
    Entry *newest() const { return newest_; }
    /// The newest entry of that name above the last marker.
    Entry *find(TagId id) const;
    /// The entry of an element on any level.
    Entry *entryOf(const NodeRec *node, TagId id) const;

    /// Appends. If three entries above the last marker are already the same in name and attributes, the
    /// oldest of the three goes: a page does not fit more than a family of each kind into the ark.
    void push(NodeRec *node, TagId id, std::uint32_t place);
    void pushMarker();
    /// Drops all entries up to and including the last marker.
    void clearToLastMarker();
    void clear();
    void remove(Entry *entry);
    /// A copy with the same attributes in the place of an entry's element.
    void reopen(Entry *entry, NodeRec *copy, std::uint32_t place);
    /// Another element in the place of an entry's.
    void replace(Entry *entry, NodeRec *node);
    /// Puts an element behind `entry`, which may be null for the start of the list. The newest of its name.
    Entry *insertBehind(Entry *entry, NodeRec *node, TagId id, std::uint32_t level);
    std::uint32_t level() const { return std::uint32_t(levels_.size() - 1); }

private:
    /// Entries of one level that are compared one by one; from there on they are hashed.
    static constexpr unsigned few = 16;

    static const NodeRec alwaysOpen;

    struct Level {
        std::uint32_t count = 0;
        bool hashed = false;
    };

    Entry *make(NodeRec *node, TagId id, std::uint32_t level);
    void link(Entry *entry, Entry *behind);
    void lookAtNewest() { newestNode_ = newest_ && newest_->node ? newest_->node : &alwaysOpen; }
    void hashEntry(Entry *entry);
    void unhash(Entry *entry);
    void hashLevel();
    Entry *thirdOfTheSame(const NodeRec *node, TagId id, std::uint64_t key) const;

    Entry *newest_ = nullptr, *oldest_ = nullptr;
    const NodeRec *newestNode_ = &alwaysOpen; ///< the newest entry's element; without one, one that is open
    std::array<Entry *, tagCount> newestOfName_{};
    std::unordered_map<std::uint64_t, Entry *> newestOfKey_;
    std::vector<Level> levels_{1};
    std::deque<Entry> pool_;
    std::vector<Entry *> spare_;
};

} // namespace orl::html::core
