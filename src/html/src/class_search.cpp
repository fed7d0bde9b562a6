#include "class_search.h"

#include "columns.h"
#include "text_numbers.h"

#include <string_view>
#include <utility>
#include <vector>

namespace orl::html::core {

namespace {

/// What a column of the page says about the subtree.
struct Prepared {
    const Column *column = nullptr;
    Stretch stretch{};

    Prepared(const ClassIndex &index, const NodeRec *top) {
        const Column *all = index.isLong() ? classColumn(index) : nullptr;
        if (!all) return;
        stretch = stretchOf(*all, index, top);
        // Below a small part of the page there are fewer elements than numbers to decide about.
        if (stretch.size() >= all->examples.size()) column = all;
    }
};

} // namespace

Found findByClass(const ClassIndex &index, NodeRec *top, const ClassName &name) {
    const Prepared prepared(index, top);
    if (prepared.column)
        return findInColumn(*prepared.column, prepared.stretch,
                            [&name](const NodeRec *example) { return name.isIn(example); });
    Found found;
    index.forEachIn(top, [&](ClassIndex::Entry entry) {
        if (name.isIn(at<AttrRec>(entry.attr)->text())) found.push_back(entry.element);
    });
    return found;
}

namespace {

enum Mark : char { Outer = 1, Inner = 2 };

/// Gets the elements that have one of the classes or both, in order.
struct Below {
    Found found;
    Ref end = 0; ///< of the last outermost element of the outer class

    void operator()(Ref element, char mark) {
        if ((mark & Inner) && element < end) found.push_back(element);
        if ((mark & Outer) && element >= end) end = ClassIndex::endOf(at<NodeRec>(element));
    }
};

} // namespace

/// Looks at each different value once, whereas two searches look at most values of the page twice.
Found findBelowClass(const ClassIndex &index, NodeRec *top, const ClassName &outer, const ClassName &inner) {
    const auto markOf = [&](const auto &of) {
        return char((outer.isIn(of) ? Outer : 0) | (inner.isIn(of) ? Inner : 0));
    };
    Below below;
    const Prepared prepared(index, top);
    if (const Column *column = prepared.column) {
        const auto marks = decideAll(*column, markOf);
        for (std::size_t i = prepared.stretch.first; i < prepared.stretch.last; ++i)
            if (const char mark = marks[column->numbers[i]]) below(column->elements[i], mark);
        return std::move(below.found);
    }
    TextNumbers numbers;
    std::vector<char> marks;
    index.forEachIn(top, [&](ClassIndex::Entry entry) {
        const std::string_view value = at<AttrRec>(entry.attr)->text();
        const std::uint32_t number = numbers.numberOf(value);
        if (number == marks.size()) marks.push_back(markOf(value));
        if (marks[number]) below(entry.element, marks[number]);
    });
    return std::move(below.found);
}

} // namespace orl::html::core
