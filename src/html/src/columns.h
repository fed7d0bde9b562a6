// A tree's elements in document order, with small numbers for what is asked about most.
//
// Different tags and different values of the "class" attribute are few even on a large page. So an element is
// two numbers here, a search decides once for each number whether it is meant, and then only runs along a
// column.
#pragma once

#include "core.h"
#include "search.h"

#include <cstdint>
#include <vector>

namespace orl::html::core {

struct Columns {
    /// Trees with fewer elements are walked each time.
    static constexpr std::size_t worthwhile = 256;

    const NodeRec *root = nullptr;            ///< was searched, and
    std::uint64_t version = 0;                ///< had not changed since when the arena was at this version
    std::vector<Ref> elements;                ///< empty until the root is searched again
    std::vector<std::uint32_t> tags, classes; ///< of each element: its tag and its class value, by number
    std::vector<const NodeRec *> tagExamples; ///< of each number: an element that has it
    std::vector<const NodeRec *> classExamples;

    void fill(NodeRec *from);
};

/// The columns of this tree, if it was searched before and has not changed since; else null.
const Columns *columnsOf(NodeRec *root);
/// Remembers that the tree was searched.
void rememberSearch(NodeRec *root);

/// The elements that `matches`, which looks at nothing but the tag or nothing but the "class" attribute:
/// `column` and `examples` are those of what it looks at.
template<class Matches>
Found findInColumn(NodeRec *root, std::vector<std::uint32_t> Columns::*column,
                   std::vector<const NodeRec *> Columns::*examples, Matches matches) {
    if (const Columns *columns = columnsOf(root)) {
        std::vector<char> meant;
        for (const NodeRec *example : columns->*examples)
            meant.push_back(matches(example));
        Found found;
        const auto &numbers = columns->*column;
        for (std::size_t i = 0; i < numbers.size(); ++i)
            if (meant[numbers[i]]) found.push_back(at<NodeRec>(columns->elements[i]));
        return found;
    }
    std::size_t visited = 0;
    Found found = findAll(root, [&](const NodeRec *element) {
        ++visited;
        return matches(element);
    });
    if (visited >= Columns::worthwhile) rememberSearch(root);
    return found;
}

} // namespace orl::html::core
