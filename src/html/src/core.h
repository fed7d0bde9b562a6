// The memory of a parsed page.
//
// Every node of every page lives in one process-wide reserved stretch of addresses, the node space, so that a
// link between two nodes is a 32-bit number of 16-byte steps from its base and a node is half the size that
// pointers would make it. An arena takes runs of granules out of the space for one document and only ever
// moves forward in them; it goes as a whole, with no walk over its nodes, when the last handle that a caller
// holds into it goes.
//
//     node space   |granule|granule|granule|granule| ...          at most 64 GiB, reserved, mapped as needed
//                      \______/        |
//     arena            page, nodes,    nodes of the same document, appended later
//                      attributes
//
// Parents own children, and nobody counts that: only the handles that callers hold are counted, once in the
// node and once in the arena's sum. A node whose last handle goes while it has no parent is given back with
// all below it, except that a descendant which somebody holds is cut loose and becomes a root of its own. A node
// that is put under a parent of another arena merges the two arenas; nothing moves, as links are absolute.
//
// Used by one thread at a time, except the space itself and the static tables.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace orl::html::core {

using Ref = std::uint32_t; ///< 16-byte steps from the base of the node space; 0 is "none".

extern char *spaceBase; ///< Set once, before the first arena exists.

template<class T>
inline T *at(Ref ref) {
    return reinterpret_cast<T *>(spaceBase + (std::uintptr_t(ref) << 4));
}

inline Ref refOf(const void *record) {
    return Ref((static_cast<const char *>(record) - spaceBase) >> 4);
}

enum class Kind : std::uint8_t { Element, Form, Document, Text, Data, Comment, Doctype, XmlDeclaration };

/// What a tag name means. Known tags are static records; each unknown name gets a record of its arena.
struct alignas(16) TagRec;

/// An interned attribute name. Known names are static records, others belong to their arena, so two records are
/// the same name when they are the same record or, both being dynamic, spell the same.
struct alignas(16) NameRec;

/// One attribute of a start tag: 16 bytes. `value` is null for an attribute written without a value.
struct AttrRec {
    Ref name;
    std::uint32_t length;
    const char *value;
};

/// One node: 32 bytes.
///
/// `prev` of a first child is its parent's last child, so that appending needs no further link; `next` of a last
/// child is 0. `index` is the place among the parent's child nodes and is right only while the parent carries
/// IndexValid; whoever needs it has the parent's children numbered once (see Arena::number).
struct alignas(16) NodeRec {
    enum Flag : std::uint32_t {
        IndexValid = 1,   ///< the children's `index` fields are right
        SharedAttrs = 2,  ///< the attribute block belongs to a copy too; duplicate before a structural change
        OwnBaseUri = 4,   ///< the base URI differs from the arena's and stands in a side table
        SideData = 8,     ///< the arena holds more about this node in a side table
        InFormList = 16,  ///< some form lists this element among its controls
    };
    static constexpr std::uint32_t manyAttrs = 255; ///< the true count stands in the block's header

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
    std::uint32_t holders : 16; ///< handles of callers; saturated counts go on in a side table of the arena
    std::uint32_t index;
    union {
        Ref tag;              ///< TagRec of an Element, Form, Document, Doctype or XmlDeclaration
        std::uint32_t length; ///< bytes of a Text, Data or Comment
    };
    union {
        Branch branch;    ///< of an Element, Form, Document, Doctype or XmlDeclaration
        const char *text; ///< of a Text, Data or Comment: into the retained page where nothing had to be changed
    };
};
static_assert(sizeof(NodeRec) == 32 && sizeof(AttrRec) == 16);

} // namespace orl::html::core
