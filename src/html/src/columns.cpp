#include "columns.h"

#include "tables.h"

#include <bit>
#include <cstring>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace orl::html::core {

namespace {

/// Gives equal texts equal numbers: an open table, half empty at least. Its hash looks at both ends of a
/// text, which is enough for the few and short values of a page.
class TextNumbers {
public:
    TextNumbers() : places_(64) {}

    std::uint32_t numberOf(std::string_view text) {
        const std::uint64_t hash = hashOfEnds(text);
        std::size_t i = hash & (places_.size() - 1);
        for (; places_[i].number; i = (i + 1) & (places_.size() - 1)) {
            const Place &place = places_[i];
            if (place.hash == hash && place.text == text) return place.number - 1;
        }
        places_[i] = {hash, text, ++count_};
        if (count_ * 2 > places_.size()) grow();
        return count_ - 1;
    }

private:
    struct Place {
        std::uint64_t hash = 0;
        std::string_view text;
        std::uint32_t number = 0; ///< plus one; 0 for a free place
    };

    static std::uint64_t hashOfEnds(std::string_view text) {
        std::uint64_t first = 0, last = 0;
        const std::size_t size = std::min<std::size_t>(text.size(), sizeof first);
        if (size > 0) {
            std::memcpy(&first, text.data(), size);
            std::memcpy(&last, text.data() + text.size() - size, size);
        }
        const std::uint64_t mixed = (first ^ std::rotl(last, 29) ^ text.size()) * 0x9e3779b97f4a7c15U;
        return mixed ^ (mixed >> 32);
    }
    void grow() {
        std::vector<Place> old(places_.size() * 2);
        old.swap(places_);
        for (const Place &place : old) {
            if (!place.number) continue;
            std::size_t i = place.hash & (places_.size() - 1);
            while (places_[i].number)
                i = (i + 1) & (places_.size() - 1);
            places_[i] = place;
        }
    }

    std::vector<Place> places_;
    std::uint32_t count_ = 0;
};

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

/// The column if it is that of the tree as it is now; filled when this is the second time that it is asked
/// for.
template<class Fill>
const Column *columnOf(NodeRec *root, Column Columns::*which, Fill fill) {
    Arena &arena = arenaOf(root);
    if (!arena.tablesIfAny()) return nullptr;
    Column &column = arena.tables().columns.*which;
    if (column.root != root || column.version != arena.version) return nullptr;
    if (column.elements.empty()) fill(column, root);
    return &column;
}

} // namespace

const Column *tagColumn(NodeRec *root) {
    return columnOf(root, &Columns::tags, fillTags);
}

const Column *classColumn(NodeRec *root) {
    return columnOf(root, &Columns::classes, fillClasses);
}

const Column *classColumn(const ClassIndex &index) {
    NodeRec *const all = index.page();
    const Column *column = columnOf(all, &Columns::classes, [&index](Column &empty, const NodeRec *page) {
        TextNumbers numbers;
        index.forEachIn(page, [&](ClassIndex::Entry entry) {
            add(empty, at<NodeRec>(entry.element), numbers.numberOf(at<AttrRec>(entry.attr)->text()));
        });
    });
    if (!column) rememberSearch(all, &Columns::classes);
    return column;
}

bool putClassColumnOff(const ClassIndex &index) {
    Arena &arena = arenaOf(index.page());
    if (!arena.tablesIfAny()) return false;
    Column &column = arena.tables().columns.classes;
    const bool isDue =
        column.root == index.page() && column.version == arena.version && column.elements.empty();
    return isDue && !std::exchange(column.isPutOff, true);
}

void rememberSearch(NodeRec *root, Column Columns::*which) {
    Arena &arena = arenaOf(root);
    Column &column = arena.tables().columns.*which;
    column = {};
    column.root = root;
    column.version = arena.version;
}

} // namespace orl::html::core
