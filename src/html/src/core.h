// The memory of a parsed page.
//
// Every node of every page lives in one process-wide reserved stretch of addresses, the node space, so that a
// link between two nodes is a 32-bit number of 16-byte steps from its base and a node is half the size that
// pointers would make it. An arena takes chunks out of the space for one document and only ever moves forward
// in them; it goes as a whole, with no walk over its nodes, when the last handle that a caller holds into it
// goes.
//
//     node space   |names|chunk            |chunk|chunk  | ...   reserved, mapped as needed
//                         \_______________/       \_____/
//     arena               nodes, attributes >      nodes of the same document, appended later
//                              < texts, page
//
// Parents own children, and nobody counts that: only the handles that callers hold are counted, once in the
// node and once in the arena's sum. A node whose last handle goes while it has no parent is given back with
// all below it, except that a descendant which somebody holds is cut loose and becomes a root of its own. A
// node that is put under a parent of another arena merges the two arenas; nothing moves, as links are
// absolute.
//
// Used by one thread at a time, except the space itself and the static names.
#pragma once

#include "class_index.h"
#include "names.h"
#include "space.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

/// Hides a value from the compiler, so that it keeps a branch which would give the same value on both sides.
#if defined(__GNUC__)
#define ORL_HTML_KEEP_BRANCH(value) asm volatile("" : "+r"(value))
#else
#define ORL_HTML_KEEP_BRANCH(value) static_cast<void>(value)
#endif

namespace orl::html {
class OutputSettings;
enum class QuirksMode : unsigned char;
} // namespace orl::html

namespace orl::html::core {

class NodeList;

/// Kinds up to Document are elements and may have children.
enum class Kind : std::uint8_t { Element, Form, Document, Text, Data, Comment, Doctype, XmlDeclaration };

/// One attribute: 16 bytes. `value` is null for an attribute that was written without a value.
///
/// The record is the attribute's identity: a copy of a node shares the attributes of its original. Where the
/// lists of two nodes part, or a caller holds an attribute, an entry is a link: `name` is 0 and `value` is
/// the address of the record that is meant.
struct AttrRec {
    static constexpr std::uint32_t booleanBit =
        0x80000000; ///< in `length`: a boolean attribute that got a value

    Ref name;
    std::uint32_t length;
    const char *value;

    const AttrRec &target() const { return name ? *this : *reinterpret_cast<const AttrRec *>(value); }
    AttrRec &target() { return name ? *this : *reinterpret_cast<AttrRec *>(const_cast<char *>(value)); }

    // Of a record that is no link.
    std::string_view text() const { return {value, length & ~booleanBit}; }
    std::string_view key() const { return at<NameRec>(name)->name(); }
    bool isBoolean() const { return !value || (length & booleanBit); }
};

/// One node: 32 bytes.
///
/// `prev` of a first child is its parent's last child, so that appending needs no further link; `next` of a
/// last child is 0. A node with `prev` 0 stands in no list of children: it is a root, or it was dropped by
/// its parent while somebody held it and still names that parent.
///
/// The place of a child is its `index` less that of the first child, while the parent carries IndexValid; so
/// taking the first child away leaves the places right. `number` makes them right again.
struct alignas(16) NodeRec {
    enum Flag : std::uint32_t {
        IndexValid = 1, ///< the children's `index` fields are right
        SharedAttrs =
            2, ///< others refer to the records of the attribute block: no record may move or be replaced
        OwnBaseUri = 4,  ///< the base URI differs from the chunk's and stands in a table of the arena
        TextInAttrs = 8, ///< of a Text, Data or Comment: its text has moved into its attributes
        ProcessingInstruction = 8, ///< of an XmlDeclaration
        OpenElement = 8,           ///< of an element: the tree builder has it on its stack
        SideData = 16, ///< the arena holds a form's list or a document's output settings in a table
    };
    static constexpr std::uint32_t manyAttrs = 255;     ///< the true count stands before the block
    static constexpr std::uint32_t manyHolders = 65535; ///< more holders are counted in a table of the arena

    struct Branch {
        Ref firstChild;
        Ref attrs; ///< AttrRec[attrCount]
    };

    Ref parent;
    Ref next;
    Ref prev;
    std::uint32_t kind : 3;
    std::uint32_t flags : 5;
    std::uint32_t attrCount : 8;
    std::uint32_t holders : 16;
    std::uint32_t index;
    union {
        Ref tag;              ///< TagRec of an Element, Form, Document or XmlDeclaration
        std::uint32_t length; ///< bytes of a Text, Data or Comment
    };
    union {
        Branch branch; ///< of all with attributes
        const char
            *text; ///< of a Text, Data or Comment: into the retained page where nothing had to be changed
    };
};
static_assert(sizeof(NodeRec) == 32 && sizeof(AttrRec) == 16);

/// What stands before a block of many attributes.
struct alignas(16) AttrHeader {
    std::uint32_t count;
    std::uint32_t capacity;
};

/// A document's node and what only a document has.
struct DocumentRec {
    NodeRec node;
    const char *location;
    std::uint32_t locationLength;
    QuirksMode quirksMode;
    bool updateMetaCharset;
};
static_assert(sizeof(DocumentRec) == 48);

inline Kind kindOf(const NodeRec *node) {
    return Kind(node->kind);
}
inline bool isElement(const NodeRec *node) {
    return kindOf(node) <= Kind::Document;
}
inline bool isText(const NodeRec *node) {
    return kindOf(node) == Kind::Text;
}
/// Text, Data or Comment: one string and nothing else, as long as nobody asks for its attributes.
inline bool isLeaf(const NodeRec *node) {
    return kindOf(node) >= Kind::Text && kindOf(node) <= Kind::Comment;
}
inline bool hasBranch(const NodeRec *node) {
    return !isLeaf(node) || (node->flags & NodeRec::TextInAttrs);
}
inline const TagRec *tagOf(const NodeRec *element) {
    return at<TagRec>(element->tag);
}
inline DocumentRec *documentOf(NodeRec *document) {
    return reinterpret_cast<DocumentRec *>(document);
}

// ---- Links ----

inline NodeRec *nodeAt(Ref ref) {
    return ref ? at<NodeRec>(ref) : nullptr;
}
inline NodeRec *firstChild(const NodeRec *node) {
    return isElement(node) ? nodeAt(node->branch.firstChild) : nullptr;
}
inline NodeRec *lastChild(const NodeRec *node) {
    const NodeRec *first = firstChild(node);
    return first ? at<NodeRec>(first->prev) : nullptr;
}
inline NodeRec *nextSibling(const NodeRec *node) {
    return nodeAt(node->next);
}
inline bool isLinked(const NodeRec *node) {
    return node->prev != 0;
}
inline NodeRec *previousSibling(const NodeRec *node) {
    if (!isLinked(node)) return nullptr;
    NodeRec *previous = at<NodeRec>(node->prev);
    return previous->next ? previous : nullptr;
}
/// The parent of a node in a list of children.
inline NodeRec *parent(const NodeRec *node) {
    return nodeAt(node->parent);
}
/// A record that was given back names itself as its parent.
inline bool isFree(const NodeRec *node) {
    return node->parent == refOf(node);
}
/// The parent of any node: also right for one that was dropped, whose parent may have gone since.
inline NodeRec *parentOf(const NodeRec *node) {
    NodeRec *above = nodeAt(node->parent);
    return above && !isLinked(node) && isFree(above) ? nullptr : above;
}

/// Appends a node that stands in no list.
inline void append(NodeRec *to, NodeRec *child) {
    const Ref ref = refOf(child);
    child->parent = refOf(to);
    child->next = 0;
    if (to->branch.firstChild) {
        NodeRec *first = at<NodeRec>(to->branch.firstChild);
        NodeRec *last = at<NodeRec>(first->prev);
        child->prev = first->prev;
        child->index = last->index + 1;
        last->next = ref;
        first->prev = ref;
    } else {
        to->branch.firstChild = ref;
        to->flags |= NodeRec::IndexValid;
        child->prev = ref;
        child->index = 0;
    }
}

/// Puts a node that stands in no list before one that does.
inline void insertBefore(NodeRec *reference, NodeRec *child) {
    const Ref ref = refOf(child);
    NodeRec *above = at<NodeRec>(reference->parent);
    NodeRec *previous = at<NodeRec>(reference->prev);
    child->parent = reference->parent;
    child->prev = reference->prev;
    child->next = refOf(reference);
    child->index = reference->index - 1;
    reference->prev = ref;
    if (previous->next) {
        previous->next = ref;
        above->flags &= ~std::uint32_t(NodeRec::IndexValid);
    } else {
        above->branch.firstChild = ref;
    }
}

/// Takes the node out of its parent's list, if it is in one; it then has no parent.
inline void detach(NodeRec *child) {
    if (isLinked(child)) {
        NodeRec *above = at<NodeRec>(child->parent);
        NodeRec *previous = at<NodeRec>(child->prev);
        if (previous->next)
            previous->next = child->next;
        else
            above->branch.firstChild = child->next;
        if (child->next) {
            at<NodeRec>(child->next)->prev = child->prev;
            if (previous->next) above->flags &= ~std::uint32_t(NodeRec::IndexValid);
        } else if (above->branch.firstChild) {
            at<NodeRec>(above->branch.firstChild)->prev = child->prev;
        }
    }
    child->parent = child->prev = child->next = 0;
}

/// Appends all children of `from` to `to`; linear in their number, as each learns its new parent.
inline void moveChildren(NodeRec *from, NodeRec *to) {
    for (NodeRec *child = firstChild(from); child;) {
        NodeRec *next = nextSibling(child);
        append(to, child);
        child = next;
    }
    from->branch.firstChild = 0;
    from->flags |= NodeRec::IndexValid;
}

/// Makes the children's places right, if they are not.
inline void number(NodeRec *node) {
    if (node->flags & NodeRec::IndexValid) return;
    std::uint32_t index = 0;
    for (NodeRec *child = firstChild(node); child; child = nextSibling(child))
        child->index = index++;
    node->flags |= NodeRec::IndexValid;
}

/// The place among all child nodes of the parent; 0 for a node in no list.
inline std::uint32_t siblingIndex(NodeRec *node) {
    if (!isLinked(node)) return 0;
    NodeRec *above = at<NodeRec>(node->parent);
    number(above);
    return node->index - at<NodeRec>(above->branch.firstChild)->index;
}

/// How many child nodes there are; may number them.
inline std::uint32_t childCount(NodeRec *node) {
    const NodeRec *last = lastChild(node);
    if (!last) return 0;
    number(node);
    return last->index - firstChild(node)->index + 1;
}

/// The next node of the subtree of `root` in document order that is not below `node`.
inline NodeRec *nextAfter(const NodeRec *node, const NodeRec *root) {
    while (node != root) {
        if (node->next) return at<NodeRec>(node->next);
        node = at<NodeRec>(node->parent);
    }
    return nullptr;
}

/// Where the node after this one stands if both were made one after the other, as a parser does. The counts
/// that elements mostly have are told apart by branches, so that the processor need not wait for this one's.
inline const NodeRec *likelyNext(const NodeRec *node) {
    const char *after = reinterpret_cast<const char *>(node + 1);
    if (isLeaf(node)) return reinterpret_cast<const NodeRec *>(after);
    switch (node->attrCount) {
    case 0: break;
    case 1:
        ORL_HTML_KEEP_BRANCH(after);
        after += sizeof(AttrRec);
        break;
    case 2:
        ORL_HTML_KEEP_BRANCH(after);
        after += 2 * sizeof(AttrRec);
        break;
    case 3:
        ORL_HTML_KEEP_BRANCH(after);
        after += 3 * sizeof(AttrRec);
        break;
    default: after += node->attrCount * sizeof(AttrRec);
    }
    return reinterpret_cast<const NodeRec *>(after);
}

/// The next node of the subtree of `root` in document order.
///
/// A walk waits for one load after the other, each of which tells where the next one is. So the walk goes on
/// with a guess, and the link only confirms it: the processor does both at once. Twice as fast on a parsed
/// page.
inline NodeRec *nextInTree(const NodeRec *node, const NodeRec *root) {
    auto *guess = const_cast<NodeRec *>(likelyNext(node));
    NodeRec *const compared = guess;
    ORL_HTML_KEEP_BRANCH(guess);
    NodeRec *next = isElement(node) ? nodeAt(node->branch.firstChild) : nullptr;
    if (!next) next = nextAfter(node, root);
    if (next == compared) [[likely]] {
        ORL_HTML_KEEP_BRANCH(guess);
        return guess;
    }
    ORL_HTML_KEEP_BRANCH(next);
    return next;
}

// ---- Attributes ----

inline AttrHeader *attrHeader(const NodeRec *node) {
    return at<AttrHeader>(node->branch.attrs) - 1;
}
inline std::uint32_t attrCount(const NodeRec *node) {
    return node->attrCount != NodeRec::manyAttrs ? node->attrCount : attrHeader(node)->count;
}

/// A node's attribute records, links included; for a node that has a branch.
struct AttrBlock {
    AttrRec *first;
    std::uint32_t count;

    AttrRec *begin() const { return first; }
    AttrRec *end() const { return first + count; }
};
inline AttrBlock attrBlock(const NodeRec *node) {
    return {at<AttrRec>(node->branch.attrs), attrCount(node)};
}

/// The attribute of exactly this name; null without one. `name` is of this node's arena or static.
const AttrRec *findAttr(const NodeRec *node, Ref name);
inline std::string_view attrValue(const NodeRec *node, Ref name) {
    const AttrRec *found = findAttr(node, name);
    return found ? found->text() : std::string_view();
}

/// Gives `to`, which has no attributes, those of `from`: the same records in a list of its own.
void shareAttrs(NodeRec *from, NodeRec *to);

/// The text of a Text, Data or Comment.
std::string_view textInAttrs(const NodeRec *leaf);
inline std::string_view leafText(const NodeRec *leaf) {
    if (leaf->flags & NodeRec::TextInAttrs) [[unlikely]]
        return textInAttrs(leaf);
    return {leaf->text, leaf->length};
}

// ---- Arena ----

class Arena {
public:
    // Nobody holds a new arena yet: whoever makes it makes a handle to a node in it, or destroys it.
    /// For a page of so many bytes.
    static Arena *create(std::size_t inputBytes);
    /// For a few loose nodes, which take so many bytes at first. They go on taking little when they have
    /// become a part of a page.
    static Arena *createLoose(std::size_t bytes = sizeof(NodeRec));
    void destroy();

    Arena(const Arena &) = delete;
    Arena &operator=(const Arena &) = delete;

    /// A copy of the page, kept as long as the arena and followed by 64 zero bytes. The page must be shorter
    /// than 2 GiB, or Exception::Error says so.
    const char *retain(std::string_view page);
    static constexpr std::size_t padding = 64;
    /// Bytes that may be read past the end of any text in an arena.
    static constexpr std::size_t readable = 16;

    /// 16-byte aligned memory, uninitialised.
    void *allocate(std::size_t bytes);
    char *allocateText(std::size_t bytes);
    /// A copy of the text that lives as long as the arena.
    std::string_view store(std::string_view text);

    /// The record of an attribute name, exactly as it is written.
    Ref internName(std::string_view name);
    /// Fetches what `internName` will look at soon.
    void expectName(std::string_view name) const;
    /// The record of a tag name, exactly as it is written; the same one for each use.
    const TagRec *tag(std::string_view name);
    /// The same tag, but closing itself, as an unknown tag does that was written with the mark for it.
    const TagRec *selfClosing(const TagRec *tag);
    /// A tag of another arena, or of this one, as this arena keeps it.
    const TagRec *adopt(const TagRec *tag);

    // Nodes are born without a parent and with the arena's base URI. Texts are not copied: they are views of
    // the retained page, of what store() gave, or of static memory. The attribute records are copied.
    NodeRec *newElement(Kind kind, const TagRec *tag, const AttrRec *attrs = nullptr, std::size_t count = 0);
    NodeRec *newText(std::string_view text) { return newLeaf(Kind::Text, text); }
    NodeRec *newData(std::string_view text) { return newLeaf(Kind::Data, text); }
    NodeRec *newComment(std::string_view text) { return newLeaf(Kind::Comment, text); }
    NodeRec *newLeaf(Kind kind, std::string_view text);
    /// The word "PUBLIC" or "SYSTEM" is stored only where it is not empty.
    NodeRec *newDoctype(std::string_view name, std::string_view pubSysKey, std::string_view publicId,
                        std::string_view systemId);
    /// With `processingInstruction` it prints "!" for marks, without it "?".
    NodeRec *newXmlDeclaration(std::string_view name, bool processingInstruction,
                               const AttrRec *attrs = nullptr, std::size_t count = 0);
    NodeRec *newDocument(std::string_view location);

    /// A node of the same kind with the same tag, base URI and attribute records, the latter shared, no
    /// children and no parent.
    NodeRec *shallowCopy(NodeRec *node);

    /// The base URI of all nodes of the arena that have none of their own, and of those to come. The text is
    /// stored.
    void setBaseUri(std::string_view uri);
    std::string_view baseUri() const { return {chunks_->baseUri, chunks_->baseUriLength}; }

    /// Adds a control of this arena to a form's list, which keeps the control alive.
    void addToForm(NodeRec *form, NodeRec *control);
    const std::vector<NodeRec *> &formControls(const NodeRec *form) const;

    /// Moves all that the other arena holds into this one, or the other way round; the survivor. Linear in
    /// the smaller number of chunks.
    static Arena &merge(Arena &left, Arena &right);

    /// Changes with each change of the tree or of an attribute that a caller makes.
    std::uint64_t version = 0;

    /// The elements with a class, while the tree is as it was parsed.
    ClassIndex classes;

    /// An address that stays in the arena, whatever it merges with; see holdArenaOf.
    const void *anchor() const { return oldest_; }
    std::uint32_t chunkCount() const { return chunkCount_; }
    /// Whether it has but a few nodes, which a caller made on their own.
    bool isLoose() const { return size_ < granuleSize; }
    /// Whether each chunk has a higher address than those that were taken before it.
    bool isInOneRow() const;
    /// Where the next record will stand, if it fits into the chunk.
    Ref nextRecord() const { return refOf(cursor_); }

    struct Tables; ///< what few pages need: see tables.h
    Tables &tables();
    const Tables *tablesIfAny() const { return tables_.get(); }

    AttrRec *newAttrs(NodeRec *node, std::size_t count);

private:
    friend void hold(NodeRec *node);
    friend class NodeList;
    friend void release(NodeRec *node);
    friend void dropIfUnheld(NodeRec *node);
    friend void dropChildren(NodeRec *node);
    friend void leaveParent(NodeRec *node);
    friend void holdArenaOf(const void *record);
    friend void releaseArenaOf(const void *record);

    struct TablesDeleter {
        void operator()(Tables *tables) const;
    };

    /// Names that the page brought along: an open table of references in the arena's own memory.
    /// A table by hashes, which stand in it so that looking something up touches what has the same hash only.
    struct Interned {
        struct Place {
            Ref ref; ///< 0: free
            std::uint32_t hash;
        };
        Place *places = nullptr;
        std::uint32_t capacity = 0; ///< a power of two
        std::uint32_t count = 0;
    };

    explicit Arena(Chunk *first);
    ~Arena() = default;

    void grow(std::size_t bytes);
    void addChunk(std::size_t bytes);
    void startChunk(Chunk *chunk);
    NodeRec *newNode();
    const TagRec *dynamicTag(std::string_view name, std::uint16_t flags, const TagRec *like);
    void reclaim(NodeRec *root);
    /// Lets the lists that keep the arena be counted in their nodes. Before a caller takes nodes out of their
    /// parents, and before nodes go, as who holds which of them decides what goes.
    void countLists();
    void mergeLists(Arena &goes);
    void freeNode(NodeRec *node, std::vector<NodeRec *> &orphans);
    void holdMore(NodeRec *node);
    bool releaseMore(NodeRec *node);

    char *cursor_;              ///< records grow up from here
    char *end_;                 ///< texts grow down from here
    std::uint64_t held_ = 0;    ///< handles of callers into this arena, and lists that keep it
    NodeList *lists_ = nullptr; ///< one of those, in a ring
    Ref freeNodes_ = 0;         ///< records that were given back, linked by `next`
    std::uint32_t dropped_ = 0; ///< held nodes that name a parent which dropped them
    Chunk *chunks_;             ///< the newest one first
    Chunk *oldest_;
    std::size_t size_;
    std::uint32_t chunkCount_ = 1;
    Interned names_, tags_;
    std::unique_ptr<Tables, TablesDeleter> tables_;
};

inline Arena &arenaOf(const void *record) {
    return *chunkOf(record)->arena;
}

std::string_view baseUriOf(const NodeRec *node);
void setOwnBaseUri(NodeRec *node, std::string_view uri);

/// The document's output settings, made with their defaults when first asked for.
OutputSettings &settingsOf(NodeRec *document);
/// Null for a document whose settings nobody has asked for.
const OutputSettings *settingsIfAny(const NodeRec *document);

inline void *Arena::allocate(std::size_t bytes) {
    bytes = (bytes + 15) & ~std::size_t(15);
    if (std::size_t(end_ - cursor_) < bytes) [[unlikely]]
        grow(bytes);
    char *memory = cursor_;
    cursor_ += bytes;
    return memory;
}

inline char *Arena::allocateText(std::size_t bytes) {
    if (std::size_t(end_ - cursor_) < bytes) [[unlikely]]
        grow(bytes);
    return end_ -= bytes;
}

inline NodeRec *Arena::newNode() {
    if (freeNodes_) [[unlikely]] {
        NodeRec *node = at<NodeRec>(freeNodes_);
        freeNodes_ = node->next;
        return node;
    }
    return static_cast<NodeRec *>(allocate(sizeof(NodeRec)));
}

inline NodeRec *Arena::newLeaf(Kind kind, std::string_view text) {
    NodeRec *node = newNode();
    *node = NodeRec{.parent = 0,
                    .next = 0,
                    .prev = 0,
                    .kind = std::uint32_t(kind),
                    .flags = 0,
                    .attrCount = 0,
                    .holders = 0,
                    .index = 0,
                    .length = std::uint32_t(text.size()),
                    .text = text.data()};
    return node;
}

inline NodeRec *Arena::newElement(Kind kind, const TagRec *tag, const AttrRec *attrs, std::size_t count) {
    NodeRec *node = newNode();
    *node = NodeRec{.parent = 0,
                    .next = 0,
                    .prev = 0,
                    .kind = std::uint32_t(kind),
                    .flags = NodeRec::IndexValid,
                    .attrCount = 0,
                    .holders = 0,
                    .index = 0,
                    .tag = refOf(tag),
                    .branch = {0, 0}};
    if (count > 0) {
        AttrRec *to = newAttrs(node, count);
        for (std::size_t i = 0; i < count; ++i)
            to[i] = attrs[i];
    }
    return node;
}

inline AttrRec *Arena::newAttrs(NodeRec *node, std::size_t count) {
    const bool many = count >= NodeRec::manyAttrs;
    auto *block = static_cast<AttrRec *>(allocate((count + many) * sizeof(AttrRec)));
    if (many) {
        *reinterpret_cast<AttrHeader *>(block) = {std::uint32_t(count), std::uint32_t(count)};
        ++block;
    }
    node->attrCount = many ? NodeRec::manyAttrs : std::uint32_t(count);
    node->branch.attrs = refOf(block);
    return block;
}

// ---- Holders ----

inline void hold(NodeRec *node) {
    ++arenaOf(node).held_;
    if (node->holders != NodeRec::manyHolders) [[likely]]
        ++node->holders;
    else
        arenaOf(node).holdMore(node);
}

inline void release(NodeRec *node) {
    Arena &arena = arenaOf(node);
    if (--arena.held_ == 0) return arena.destroy();
    if (node->holders == NodeRec::manyHolders && arena.releaseMore(node)) [[unlikely]]
        return;
    --node->holders;
    if (!node->holders && !isLinked(node)) arena.reclaim(node);
}

/// Gives the node and what is below it back unless it has a parent or somebody holds it. For nodes that the
/// engine detached or made itself while a caller holds something of the arena.
void dropIfUnheld(NodeRec *node);

/// Empties a node. A child that somebody holds goes on naming it as its parent.
void dropChildren(NodeRec *node);

/// detach() for a node that a caller may hold.
void leaveParent(NodeRec *node);

// Handles to what is no node keep the arena of its address, which merges may change.
inline void holdArenaOf(const void *record) {
    ++arenaOf(record).held_;
}
inline void releaseArenaOf(const void *record) {
    Arena &arena = arenaOf(record);
    if (--arena.held_ == 0) arena.destroy();
}

/// Keeps an arena while no node of it is held.
class ArenaHold {
public:
    explicit ArenaHold(const Arena *arena) : anchor_(arena->anchor()) { holdArenaOf(anchor_); }
    ArenaHold(const ArenaHold &) = delete;
    ArenaHold &operator=(const ArenaHold &) = delete;
    ~ArenaHold() { releaseArenaOf(anchor_); }

private:
    const void *anchor_;
};

} // namespace orl::html::core
