#include "columns.h"

#include "tables.h"

#include <string_view>
#include <unordered_map>

namespace orl::html::core {

void Columns::fill(NodeRec *from) {
    std::unordered_map<Ref, std::uint32_t> tagNumbers;
    std::unordered_map<std::string_view, std::uint32_t> classNumbers;
    for (NodeRec *node = from; node; node = nextInTree(node, from)) {
        if (!isElement(node)) continue;
        elements.push_back(refOf(node));
        const auto [tag, isNewTag] = tagNumbers.emplace(node->tag, tagExamples.size());
        if (isNewTag) tagExamples.push_back(node);
        tags.push_back(tag->second);
        const auto [value, isNewValue] =
            classNumbers.emplace(attrValue(node, nameRef(NameId::Class)), classExamples.size());
        if (isNewValue) classExamples.push_back(node);
        classes.push_back(value->second);
    }
}

const Columns *columnsOf(NodeRec *root) {
    Arena &arena = arenaOf(root);
    if (!arena.tablesIfAny()) return nullptr;
    Columns &columns = arena.tables().columns;
    if (columns.root != root || columns.version != arena.version) return nullptr;
    if (columns.elements.empty()) columns.fill(root);
    return &columns;
}

void rememberSearch(NodeRec *root) {
    Arena &arena = arenaOf(root);
    arena.tables().columns = {};
    arena.tables().columns.root = root;
    arena.tables().columns.version = arena.version;
}

} // namespace orl::html::core
