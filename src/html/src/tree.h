// Changing trees on behalf of callers: between arenas, with held nodes, and without ever making a ring.
#pragma once

#include "core.h"

#include <string_view>
#include <vector>

namespace orl::html::core {

/// Puts a node before another one, or at the end where `reference` is null. The node leaves its present
/// parent, and its arena becomes one with the parent's. "Must be false" if the node is the parent or above
/// it.
void place(NodeRec *parent, NodeRec *reference, NodeRec *node);

/// What place() checks: "Must be true" unless the parent is an element, "Must be false" if a ring would come
/// of it.
void checkPlace(const NodeRec *parent, const NodeRec *node);
/// place() for a node that the parent's arena has just made, or that stood right below `reference`.
void placeUnchecked(NodeRec *parent, NodeRec *reference, NodeRec *node);

/// A deep copy without a parent.
NodeRec *copyTree(NodeRec *root);

/// An element of the tree of `like`, with its base URI, its name taken as it is.
NodeRec *newElementLike(NodeRec *like, std::string_view tagName);
NodeRec *newTextLike(NodeRec *like, std::string_view text);

/// The tag of this name as the arena keeps it, its case kept. An empty one fails with "String must not be
/// empty".
const TagRec *tagNamed(Arena &arena, std::string_view name);

/// The child node at this place; null past the end.
NodeRec *childNodeAt(NodeRec *parent, std::size_t index);
/// The child element at this place; null past the end.
NodeRec *childElementAt(NodeRec *parent, std::size_t index);
/// The place among the parent's child elements; 0 for a node in no list. Constant cost while the siblings
/// stay.
std::size_t elementIndex(NodeRec *element);

NodeRec *nextElement(const NodeRec *node);
NodeRec *previousElement(const NodeRec *node);
NodeRec *firstElement(const NodeRec *parent);

/// Parses the text as it would be parsed inside `context`, which is an element or null. The nodes, in order
/// and without a parent, are of the given arena and have the context's base URI.
std::vector<NodeRec *> parseFragmentInto(Arena &arena, std::string_view html, NodeRec *context);

} // namespace orl::html::core
