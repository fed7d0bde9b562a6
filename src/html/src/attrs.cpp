#include "attrs.h"

#include "utf8.h"

#include <algorithm>
#include <cstring>

namespace orl::html::core {

AnyCaseKey::AnyCaseKey(std::string_view key) : lower_(lowerCase(key)) {
    const NameRec *known = knownName(lower_);
    known_ = known ? refOf(known) : 0;
}

std::string_view storeText(Arena &arena, std::string_view text) {
    if (validPrefix(text) == text.size()) [[likely]]
        return arena.store(text);
    return arena.store(repaired(text));
}

namespace {

AttrRec linkTo(const AttrRec &entry) {
    if (!entry.name) return entry;
    return {0, 0, reinterpret_cast<const char *>(&entry)};
}

void setCount(NodeRec *node, std::uint32_t count) {
    if (node->attrCount == NodeRec::manyAttrs)
        attrHeader(node)->count = count;
    else
        node->attrCount = count;
}

/// Moves the list to a block with room for one more; the records behind it stay where they are if others
/// refer to them.
void moveBlock(NodeRec *node, std::uint32_t room) {
    const AttrBlock old = attrBlock(node);
    const bool shared = node->flags & NodeRec::SharedAttrs;
    AttrRec *block = arenaOf(node).newAttrs(node, room);
    for (std::uint32_t i = 0; i < old.count; ++i)
        block[i] = shared ? linkTo(old.first[i]) : old.first[i];
    setCount(node, old.count);
    node->flags &= ~std::uint32_t(NodeRec::SharedAttrs);
}

/// After this the entries may be moved and replaced.
void own(NodeRec *node) {
    if (node->flags & NodeRec::SharedAttrs) moveBlock(node, attrCount(node));
}

/// Finds the attribute of the same name as a record of another arena or of this one.
struct SameName {
    Ref name;
    bool matches(Ref other) const { return sameName(name, other); }
};

} // namespace

void appendAttr(NodeRec *node, const AttrRec &attr) {
    const std::uint32_t count = attrCount(node);
    const bool many = node->attrCount == NodeRec::manyAttrs;
    if (!many || attrHeader(node)->capacity == count || (node->flags & NodeRec::SharedAttrs))
        moveBlock(node, many || count + 1 >= NodeRec::manyAttrs ? count * 2 : count + 1);
    setCount(node, count + 1);
    attrBlock(node).first[count] = attr;
}

void ensureAttributes(NodeRec *node) {
    if (hasBranch(node)) return;
    const NameId key = kindOf(node) == Kind::Text   ? NameId::Text
                       : kindOf(node) == Kind::Data ? NameId::Data
                                                    : NameId::Comment;
    const AttrRec attr{nameRef(key), node->length, node->text ? node->text : ""};
    node->flags |= NodeRec::TextInAttrs;
    node->tag = 0;
    node->branch = {0, 0};
    *arenaOf(node).newAttrs(node, 1) = attr;
}

AttrRec makeAttr(Arena &arena, std::string_view key, const std::string_view *value) {
    const Ref name = validPrefix(key) == key.size() ? arena.internName(key) : arena.internName(repaired(key));
    if (!value) return {name, 0, nullptr};
    const std::string_view text = storeText(arena, *value);
    return {name, std::uint32_t(text.size()), text.data()};
}

void setAttrValue(AttrRec &attr, std::string_view value) {
    const bool boolean = attr.isBoolean();
    const std::string_view text = storeText(arenaOf(&attr), value);
    attr.value = boolean && text.empty() ? nullptr : text.data();
    attr.length = std::uint32_t(text.size()) | (boolean && !text.empty() ? AttrRec::booleanBit : 0);
}

void putAttr(NodeRec *node, const AttrRec &attr) {
    ++arenaOf(node).version;
    const std::uint32_t place = placeOfAttr(node, SameName{attr.target().name});
    if (place == noAttr) return appendAttr(node, attr);
    own(node);
    attrBlock(node).first[place] = attr;
}

void putAttr(NodeRec *node, std::string_view key, std::string_view value) {
    putAttr(node, makeAttr(arenaOf(node), key, &value));
}

void removeAttrAt(NodeRec *node, std::uint32_t place) {
    ++arenaOf(node).version;
    own(node);
    const AttrBlock block = attrBlock(node);
    std::copy(block.first + place + 1, block.end(), block.first + place);
    setCount(node, block.count - 1);
}

AttrRec *pinnedAttr(NodeRec *node, std::uint32_t place) {
    node->flags |= NodeRec::SharedAttrs;
    return &attrBlock(node).first[place].target();
}

} // namespace orl::html::core
