// Elements in document order, with small numbers for what is asked about most.
//
// Different tags and different values of the "class" attribute are few even on a large page. So an element is
// a number here, a search decides once for each number whether it is meant, and then only runs along a
// column. Building a column costs a few searches without one, so a tree gets it when it is searched again.
#pragma once

#include "class_index.h"
#include "core.h"
#include "search.h"

#include <algorithm>
#include <cstdint>
#include <vector>

namespace orl::html::core {

struct Column {
    const NodeRec *root = nullptr; ///< was searched, and
    std::uint64_t version = 0;     ///< had not changed since when the arena was at this version
    bool isFilled = false;         ///< which happens when the root is searched again
    Found elements;
    Found numbers;                         ///< of each element
    std::vector<const NodeRec *> examples; ///< of each number: an element that has it
};

struct Columns {
    /// Trees with fewer elements are walked each time.
    static constexpr std::size_t worthwhile = 256;

    Column tags;
    Column classes; ///< of the elements that have any
};

/// The column of this tree's tags, or classes, if they were looked for before and it has not changed since;
/// else null.
const Column *tagColumn(NodeRec *root);
const Column *classColumn(NodeRec *root);
/// The same for all that the index has, if it was searched before; from now on it was.
const Column *classColumn(const ClassIndex &index);

/// A part of a column.
struct Stretch {
    std::size_t first, last;

    std::size_t size() const { return last - first; }
};
/// Where the subtree of `top` stands in the column of a page as it was parsed, which has an index in the
/// order of addresses or for the page as a whole.
Stretch stretchOf(const Column &column, const ClassIndex &index, const NodeRec *top);

/// What `decide` says for each of the column's numbers.
template<class Decide>
auto decideAll(const Column &column, Decide decide) {
    std::vector<decltype(decide(column.examples.front()))> all;
    all.reserve(column.examples.size());
    for (const NodeRec *example : column.examples)
        all.push_back(decide(example));
    return all;
}

/// Remembers that the tree was searched.
void rememberSearch(NodeRec *root, Column Columns::*column);

/// The elements of the stretch for which `matches` is true.
template<class Matches>
Found findInColumn(const Column &column, Stretch stretch, Matches matches) {
    const auto meant = decideAll(column, [&](const NodeRec *example) { return char(matches(example)); });
    Found found;
    for (std::size_t i = stretch.first; i < stretch.last; ++i)
        if (meant[column.numbers[i]]) found.push_back(column.elements[i]);
    return found;
}

/// The elements of the subtree for which `matches` is true, which looks at nothing but what `column` holds.
template<class Matches>
Found findByColumn(NodeRec *root, const Column *(*columnOf)(NodeRec *), Column Columns::*which,
                   Matches matches) {
    if (const Column *column = columnOf(root))
        return findInColumn(*column, {0, column->elements.size()}, matches);
    std::size_t visited = 0;
    Found found = findAll(root, [&](const NodeRec *element) {
        ++visited;
        return matches(element);
    });
    if (visited >= Columns::worthwhile) rememberSearch(root, which);
    return found;
}

} // namespace orl::html::core
