#include "tree.h"

#include "attrs.h"
#include "checks.h"
#include "tables.h"
#include "utf8.h"

namespace orl::html::core {

namespace {

/// Up to this place a child is found by walking.
constexpr std::size_t nearby = 16;

/// The children of the parent in question, indexed.
const ChildIndex &childIndex(NodeRec *parent) {
    Arena &arena = arenaOf(parent);
    ChildIndex &index = arena.tables().children;
    if (index.parent == parent && index.version == arena.version) return index;
    index.parent = parent;
    index.version = arena.version;
    index.nodes.clear();
    index.elements.clear();
    index.elementPlaces.clear();
    index.nodes.reserve(childCount(parent));
    index.elementPlaces.reserve(childCount(parent));
    for (NodeRec *child = firstChild(parent); child; child = nextSibling(child)) {
        index.nodes.push_back(refOf(child));
        index.elementPlaces.push_back(std::uint32_t(index.elements.size()));
        if (isElement(child)) index.elements.push_back(refOf(child));
    }
    return index;
}

} // namespace

void checkPlace(const NodeRec *parent, const NodeRec *node) {
    checkTrue(isElement(parent));
    checkFalse(parent == node);
    if (!firstChild(node) || &arenaOf(parent) != &arenaOf(node)) return;
    for (const NodeRec *above = parentOf(parent); above; above = parentOf(above))
        checkFalse(above == node);
}

void placeUnchecked(NodeRec *parent, NodeRec *reference, NodeRec *node) {
    ++arenaOf(parent).version;
    leaveParent(node);
    if (reference)
        insertBefore(reference, node);
    else
        append(parent, node);
}

void place(NodeRec *parent, NodeRec *reference, NodeRec *node) {
    checkPlace(parent, node);
    if (reference == node) reference = nextSibling(node);
    Arena::merge(arenaOf(parent), arenaOf(node));
    placeUnchecked(parent, reference, node);
}

NodeRec *copyTree(NodeRec *root) {
    Arena &arena = arenaOf(root);
    ++arena.version;
    NodeRec *const copy = arena.shallowCopy(root);
    NodeRec *from = root, *to = copy;
    for (;;) {
        if (NodeRec *child = firstChild(from)) {
            from = child;
        } else {
            while (from != root && !from->next) {
                from = parent(from);
                to = parent(to);
            }
            if (from == root) return copy;
            from = nextSibling(from);
            to = parent(to);
        }
        NodeRec *next = arena.shallowCopy(from);
        append(to, next);
        to = next;
    }
}

const TagRec *tagNamed(Arena &arena, std::string_view name) {
    name = trimmed(name);
    checkNotEmpty(name);
    return validPrefix(name) == name.size() ? arena.tag(name) : arena.tag(repaired(name));
}

NodeRec *newElementLike(NodeRec *like, std::string_view tagName) {
    Arena &arena = arenaOf(like);
    NodeRec *node = arena.newElement(Kind::Element, tagNamed(arena, tagName));
    setOwnBaseUri(node, baseUriOf(like));
    return node;
}

NodeRec *newTextLike(NodeRec *like, std::string_view text) {
    Arena &arena = arenaOf(like);
    NodeRec *node = arena.newText(storeText(arena, text));
    setOwnBaseUri(node, baseUriOf(like));
    return node;
}

NodeRec *childNodeAt(NodeRec *parent, std::size_t index) {
    NodeRec *child = firstChild(parent);
    for (std::size_t i = 0; child && i < nearby; ++i, child = nextSibling(child))
        if (i == index) return child;
    if (!child) return nullptr;
    const ChildIndex &children = childIndex(parent);
    return index < children.nodes.size() ? at<NodeRec>(children.nodes[index]) : nullptr;
}

NodeRec *childElementAt(NodeRec *parent, std::size_t index) {
    NodeRec *child = firstElement(parent);
    for (std::size_t i = 0; child && i < nearby; ++i, child = nextElement(child))
        if (i == index) return child;
    if (!child) return nullptr;
    const ChildIndex &children = childIndex(parent);
    return index < children.elements.size() ? at<NodeRec>(children.elements[index]) : nullptr;
}

std::size_t elementIndex(NodeRec *element) {
    if (!isLinked(element)) return 0;
    std::size_t before = 0;
    const NodeRec *sibling = previousSibling(element);
    for (std::size_t steps = 0; sibling && steps < nearby; ++steps, sibling = previousSibling(sibling))
        before += isElement(sibling);
    if (!sibling) return before;
    return childIndex(parent(element)).elementPlaces[siblingIndex(element)];
}

NodeRec *nextElement(const NodeRec *node) {
    NodeRec *sibling = nextSibling(node);
    while (sibling && !isElement(sibling))
        sibling = nextSibling(sibling);
    return sibling;
}

NodeRec *previousElement(const NodeRec *node) {
    NodeRec *sibling = previousSibling(node);
    while (sibling && !isElement(sibling))
        sibling = previousSibling(sibling);
    return sibling;
}

NodeRec *firstElement(const NodeRec *parent) {
    NodeRec *child = firstChild(parent);
    return !child || isElement(child) ? child : nextElement(child);
}

} // namespace orl::html::core
