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
    const NodeRec *root = nullptr;         ///< was searched, and
    std::uint64_t version = 0;             ///< had not changed since when the arena was at this version
    bool isPutOff = false;                 ///< filling it was put off once
    std::vector<Ref> elements;             ///< empty until the root is searched again
    std::vector<std::uint32_t> numbers;    ///< of each element
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
/// The same for all that the index has, which was searched before if this gives null.
const Column *classColumn(const ClassIndex &index);
/// Whether the next classColumn() would fill that column and nobody has put that off yet: once it is put off,
/// as the search at hand may be the only one.
bool putClassColumnOff(const ClassIndex &index);

/// Remembers that the tree was searched.
void rememberSearch(NodeRec *root, Column Columns::*column);

/// The elements for which `matches` is true, among those of the column from `first` to `last`.
template<class Matches>
Found findInColumn(const Column &column, std::size_t first, std::size_t last, Matches matches) {
    std::vector<char> meant;
    meant.reserve(column.examples.size());
    for (const NodeRec *example : column.examples)
        meant.push_back(matches(example));
    Found found;
    for (std::size_t i = first; i < last; ++i)
        if (meant[column.numbers[i]]) found.push_back(at<NodeRec>(column.elements[i]));
    return found;
}

/// The elements of the subtree for which `matches` is true, which looks at nothing but what `column` holds.
template<class Matches>
Found findByColumn(NodeRec *root, const Column *(*columnOf)(NodeRec *), Column Columns::*which,
                   Matches matches) {
    if (const Column *column = columnOf(root))
        return findInColumn(*column, 0, column->elements.size(), matches);
    std::size_t visited = 0;
    Found found = findAll(root, [&](const NodeRec *element) {
        ++visited;
        return matches(element);
    });
    if (visited >= Columns::worthwhile) rememberSearch(root, which);
    return found;
}

} // namespace orl::html::core
