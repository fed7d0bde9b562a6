// Changing and searching the attribute list of a node.
#pragma once

#include "core.h"

#include <string>
#include <string_view>

namespace orl::html::core {

/// A key that is looked for, compared exactly. Keeps a view of it.
class ExactKey {
public:
    explicit ExactKey(std::string_view key) : key_(key) {
        const NameRec *known = knownName(key);
        known_ = known ? refOf(known) : 0;
    }
    bool matches(Ref name) const {
        return known_ ? name == known_ : !isStatic(name) && at<NameRec>(name)->name() == key_;
    }

private:
    std::string_view key_;
    Ref known_;
};

/// A key that is looked for whatever its case.
class AnyCaseKey {
public:
    explicit AnyCaseKey(std::string_view key);
    bool matches(Ref name) const {
        const Ref lower = at<NameRec>(name)->lower;
        return known_ ? lower == known_ : !isStatic(lower) && at<NameRec>(lower)->name() == lower_;
    }
    std::string_view lower() const { return lower_; }

private:
    std::string lower_;
    Ref known_;
};

constexpr std::uint32_t noAttr = ~std::uint32_t(0);

/// The place of the first attribute that matches.
template<class Key>
std::uint32_t placeOfAttr(const NodeRec *node, const Key &key) {
    const AttrBlock block = attrBlock(node);
    for (std::uint32_t i = 0; i < block.count; ++i)
        if (key.matches(block.first[i].target().name)) return i;
    return noAttr;
}

template<class Key>
const AttrRec *findAttr(const NodeRec *node, const Key &key) {
    if (!hasBranch(node)) return nullptr;
    const std::uint32_t place = placeOfAttr(node, key);
    return place == noAttr ? nullptr : &attrBlock(node).first[place].target();
}

/// The text as the arena keeps it, made well-formed.
std::string_view storeText(Arena &arena, std::string_view text);

/// A leaf's text becomes the first attribute of its list; other nodes have a list anyway.
void ensureAttributes(NodeRec *node);

/// A value that is set, null only for a boolean attribute without one.
AttrRec makeAttr(Arena &arena, std::string_view key, const std::string_view *value);
void setAttrValue(AttrRec &attr, std::string_view value);

// All of these are for nodes that have a branch.

/// At the end, whatever is there already.
void appendAttr(NodeRec *node, const AttrRec &attr);
/// In place of the attribute of exactly the same name, or at the end. The record may be a link.
void putAttr(NodeRec *node, const AttrRec &attr);
void putAttr(NodeRec *node, std::string_view key, std::string_view value);
void removeAttrAt(NodeRec *node, std::uint32_t place);
/// An attribute record that callers may hold: from now on it stays where it is.
AttrRec *pinnedAttr(NodeRec *node, std::uint32_t place);

} // namespace orl::html::core
