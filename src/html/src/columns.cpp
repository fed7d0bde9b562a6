#include "columns.h"

#include "tables.h"
#include "text_numbers.h"

#include <unordered_map>
#include <utility>

namespace orl::html::core {

namespace {

void add(Column &column, const NodeRec *element, std::uint32_t number) {
    if (number == column.examples.size()) column.examples.push_back(element);
    column.elements.push_back(refOf(element));
    column.numbers.push_back(number);
}

void fillTags(Column &column, NodeRec *root) {
    std::unordered_map<Ref, std::uint32_t> numbers;
    Ref last = 0;
    std::uint32_t number = 0;
    for (NodeRec *node = root; node; node = nextInTree(node, root)) {
        if (!isElement(node)) continue;
        if (node->tag != last)
            number = numbers.emplace(last = node->tag, column.examples.size()).first->second;
        add(column, node, number);
    }
}

void fillClasses(Column &column, NodeRec *root) {
    TextNumbers numbers;
    for (NodeRec *node = root; node; node = nextInTree(node, root)) {
        if (!isElement(node) || !node->attrCount) continue;
        if (const AttrRec *attr = findAttr(node, nameRef(NameId::Class)))
            add(column, node, numbers.numberOf(attr->text()));
    }
}

void fillClasses(Column &column, const ClassIndex &index) {
    TextNumbers numbers;
    column.elements.resize(index.size());
    column.numbers.resize(index.size());
    Ref *element = column.elements.data();
    std::uint32_t *number = column.numbers.data();
    index.forEachIn(index.page(), [&](ClassIndex::Entry entry) {
        *element++ = entry.element;
        *number++ = numbers.numberOf(at<AttrRec>(entry.attr)->text());
        if (number[-1] == column.examples.size()) column.examples.push_back(at<NodeRec>(entry.element));
    });
}

/// The column if it is that of the tree as it is now, filled; null if nobody asked for it yet.
template<class Fill, class From>
const Column *columnOf(NodeRec *root, Column Columns::*which, Fill fill, From &from) {
    Arena &arena = arenaOf(root);
    if (!arena.tablesIfAny()) return nullptr;
    Column &column = arena.tables().columns.*which;
    if (column.root != root || column.version != arena.version) return nullptr;
    if (!std::exchange(column.isFilled, true)) fill(column, from);
    return &column;
}

} // namespace

const Column *tagColumn(NodeRec *root) {
    return columnOf(root, &Columns::tags, fillTags, root);
}

const Column *classColumn(NodeRec *root) {
    const auto fill = static_cast<void (*)(Column &, NodeRec *)>(fillClasses);
    return columnOf(root, &Columns::classes, fill, root);
}

const Column *classColumn(const ClassIndex &index) {
    const auto fill = static_cast<void (*)(Column &, const ClassIndex &)>(fillClasses);
    const Column *column = columnOf(index.page(), &Columns::classes, fill, index);
    if (!column) rememberSearch(index.page(), &Columns::classes);
    return column;
}

Stretch stretchOf(const Column &column, const ClassIndex &index, const NodeRec *top) {
    if (top == index.page()) return {0, column.elements.size()};
    const auto place = [&column](Ref ref) {
        return std::size_t(std::ranges::lower_bound(column.elements, ref) - column.elements.begin());
    };
    return {place(refOf(top)), place(ClassIndex::endOf(top))};
}

void rememberSearch(NodeRec *root, Column Columns::*which) {
    Arena &arena = arenaOf(root);
    Column &column = arena.tables().columns.*which;
    column = {};
    column.root = root;
    column.version = arena.version;
}

} // namespace orl::html::core
