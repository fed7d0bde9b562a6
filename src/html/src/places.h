// The places of elements among their siblings.
#pragma once

#include "core.h"
#include "orl/html/large_buffer.h"

#include <cstdint>
#include <unordered_map>
#include <vector>

namespace orl::html::core {

/// Whether two tags have the same name and behave the same.
bool sameTag(const TagRec *left, const TagRec *right);

/// Counted from 0; without a parent an element is alone. Where there are many siblings, their places are
/// worked out once for all, so that asking for each of them is linear. Right as long as the tree stays as it
/// is.
class Places {
public:
    struct Place {
        std::uint32_t index;
        std::uint32_t count;
    };

    /// Among the child elements of the parent.
    Place among(NodeRec *element);
    /// Among those of them that have the same tag.
    Place amongType(NodeRec *element);

private:
    struct Index {
        // One entry for each child node.
        std::vector<std::uint32_t, LargeBuffers<std::uint32_t>> places, typePlaces, types;
        std::vector<std::uint32_t> typeCounts; ///< by type
        std::uint32_t count = 0;
    };

    Index *indexOf(NodeRec *parent);
    static void addTypes(Index &index, const NodeRec *parent);

    std::unordered_map<const NodeRec *, Index> indices_;
    const NodeRec *lastParent_ = nullptr;
    Index *lastIndex_ = nullptr;
};

} // namespace orl::html::core
