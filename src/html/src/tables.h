// What an arena holds beside its nodes, for the few pages that need it.
#pragma once

#include "answers.h"
#include "columns.h"
#include "core.h"

#include <memory>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace orl::html::core {

/// The controls of a form, which a copy of the form has in common with it.
using FormList = std::vector<NodeRec *>;

/// The children of the parent that was last asked for one by its place, right as long as the version is the
/// arena's.
struct ChildIndex {
    const NodeRec *parent = nullptr;
    std::uint64_t version = 0;
    using Refs = SharedRefs::Refs;

    Refs nodes;
    Refs elements;
    Refs elementPlaces; ///< of each node: how many elements stand before it
};

struct Arena::Tables {
    ChildIndex children;
    Columns columns;
    Answers answers;
    std::unordered_map<const NodeRec *, std::shared_ptr<FormList>> forms;
    std::unordered_map<const NodeRec *, std::string_view> baseUris;
    std::unordered_map<const NodeRec *, std::uint64_t> moreHolders;
    std::unordered_map<const NodeRec *, std::unique_ptr<OutputSettings>> settings;
};

} // namespace orl::html::core
