#include "orl/html/node.h"

#include "attrs.h"
#include "checks.h"
#include "orl/html/document.h"
#include "orl/html/string_builder.h"
#include "orl/html/string_util.h"
#include "print.h"
#include "text.h"
#include "tree.h"
#include "utf8.h"

#include <functional>

namespace orl::html {

using namespace core;

namespace {

constexpr std::string_view absPrefix = "abs:";

NodeRec *rec(const Node &node) {
    return node.record();
}

/// The parent in whose list the node stands.
NodeRec *requiredParent(NodeRec *node) {
    checkPresent(isLinked(node));
    return parent(node);
}

NodeRec *contextFor(NodeRec *parent) {
    return parent && isElement(parent) ? parent : nullptr;
}

std::vector<NodeRec *> parseInside(NodeRec *parent, std::string_view html) {
    Arena &arena = arenaOf(parent);
    ++arena.version;
    return parseFragmentInto(arena, html, contextFor(parent));
}

NodeRec *newLoose(Kind kind, std::string_view text, std::string_view baseUri) {
    Arena *arena = Arena::createLoose(sizeof(NodeRec) + text.size() + baseUri.size());
    arena->setBaseUri(baseUri);
    return arena->newLeaf(kind, storeText(*arena, text));
}

} // namespace

void Node::hold(core::NodeRec *record) {
    core::hold(record);
}

void Node::release(core::NodeRec *record) {
    core::release(record);
}

bool Node::hasSameValue(const Node &other) const {
    return equals(other) || (record_ && other.record_ && outerHtml() == other.outerHtml());
}

std::size_t Node::hashValue() const {
    const std::hash<std::string_view> hash;
    const std::string_view baseUri = baseUriOf(record_);
    return (hash(outerHtml()) * 31 + !baseUri.empty()) * 31 + hash(baseUri);
}

std::string Node::nodeName() const {
    switch (kindOf(record_)) {
    case Kind::Element:
    case Kind::Form: return std::string(tagOf(record_)->name());
    case Kind::Document: return "#document";
    case Kind::Text: return "#text";
    case Kind::Data: return "#data";
    case Kind::Comment: return "#comment";
    case Kind::Doctype: return "#doctype";
    case Kind::XmlDeclaration: return "#declaration";
    }
    return {};
}

// ---- Attributes ----

std::string Node::attr(std::string_view key) const {
    checkNotEmpty(key);
    ensureAttributes(record_);
    const AnyCaseKey lower(key);
    const AttrRec *found = findAttr(record_, lower);
    if (found && !found->text().empty()) return std::string(found->text());
    if (!lower.lower().starts_with(absPrefix)) return {};
    return absUrl(key.substr(absPrefix.size()));
}

const Node &Node::attr(std::string_view key, std::string_view value) const {
    getAttributes().put(key, value);
    return *this;
}

bool Node::hasAttr(std::string_view key) const {
    ensureAttributes(record_);
    const AnyCaseKey lower(key);
    if (lower.lower().starts_with(absPrefix)) {
        const std::string_view rest = key.substr(absPrefix.size());
        if (findAttr(record_, AnyCaseKey(rest)) && !absUrl(rest).empty()) return true;
    }
    return findAttr(record_, lower);
}

const Node &Node::removeAttr(std::string_view key) const {
    getAttributes().removeIgnoreCase(key);
    return *this;
}

Attributes Node::getAttributes() const {
    ensureAttributes(record_);
    return Attributes(record_);
}

std::string Node::getBaseUri() const {
    return std::string(baseUriOf(record_));
}

void Node::setBaseUri(std::string_view uri) const {
    const std::string_view text = storeText(arenaOf(record_), uri);
    for (NodeRec *node = record_; node; node = nextInTree(node, record_))
        setOwnBaseUri(node, text);
}

std::string Node::absUrl(std::string_view key) const {
    checkNotEmpty(key);
    return hasAttr(key) ? StringUtil::resolve(baseUriOf(record_), attr(key)) : std::string();
}

// ---- Around the node ----

Node Node::childNode(std::size_t index) const {
    return Node(childNodeAt(record_, index));
}

std::vector<Node> Node::getChildNodes() const {
    std::vector<Node> nodes;
    for (NodeRec *child = core::firstChild(record_); child; child = core::nextSibling(child))
        nodes.emplace_back(child);
    return nodes;
}

std::vector<Node> Node::childNodesCopy() const {
    std::vector<Node> nodes;
    for (NodeRec *child = core::firstChild(record_); child; child = core::nextSibling(child))
        nodes.emplace_back(copyTree(child));
    return nodes;
}

std::size_t Node::childNodeSize() const {
    return childCount(record_);
}

Node Node::firstChild() const {
    return Node(core::firstChild(record_));
}

Node Node::lastChild() const {
    return Node(core::lastChild(record_));
}

Node Node::parent() const {
    return Node(parentOf(record_));
}

Document Node::ownerDocument() const {
    for (NodeRec *node = record_; node; node = parentOf(node))
        if (kindOf(node) == Kind::Document) return Document(node);
    return {};
}

std::vector<Node> Node::siblingNodes() const {
    std::vector<Node> nodes;
    const NodeRec *above = parentOf(record_);
    for (NodeRec *child = above ? core::firstChild(above) : nullptr; child; child = core::nextSibling(child))
        if (child != record_) nodes.emplace_back(child);
    return nodes;
}

Node Node::nextSibling() const {
    return Node(core::nextSibling(record_));
}

Node Node::previousSibling() const {
    return Node(core::previousSibling(record_));
}

std::size_t Node::siblingIndex() const {
    return core::siblingIndex(record_);
}

// ---- Surgery ----

void Node::remove() const {
    if (const Node above = parent()) above.removeChild(*this);
}

const Node &Node::before(const Node &node) const {
    checkPresent(bool(node));
    place(requiredParent(record_), record_, rec(node));
    return *this;
}

const Node &Node::before(std::string_view html) const {
    NodeRec *above = requiredParent(record_);
    for (NodeRec *node : parseInside(above, html))
        placeUnchecked(above, record_, node);
    return *this;
}

const Node &Node::after(const Node &node) const {
    checkPresent(bool(node));
    place(requiredParent(record_), core::nextSibling(record_), rec(node));
    return *this;
}

const Node &Node::after(std::string_view html) const {
    NodeRec *above = requiredParent(record_);
    NodeRec *reference = core::nextSibling(record_);
    for (NodeRec *node : parseInside(above, html))
        placeUnchecked(above, reference, node);
    return *this;
}

Node Node::wrap(std::string_view html) const {
    checkNotEmpty(html);
    NodeRec *above = requiredParent(record_);
    const std::vector<NodeRec *> nodes = parseInside(above, html);
    if (nodes.empty() || !isElement(nodes.front())) {
        for (NodeRec *node : nodes)
            dropIfUnheld(node);
        return {};
    }
    NodeRec *wrapper = nodes.front();
    NodeRec *innermost = wrapper;
    while (NodeRec *inner = firstElement(innermost))
        innermost = inner;
    placeUnchecked(above, record_, wrapper);
    placeUnchecked(innermost, nullptr, record_);
    for (std::size_t i = 1; i < nodes.size(); ++i)
        placeUnchecked(wrapper, nullptr, nodes[i]);
    return Node(wrapper);
}

Node Node::unwrap() const {
    NodeRec *above = requiredParent(record_);
    Node first(core::firstChild(record_));
    while (NodeRec *child = core::firstChild(record_))
        placeUnchecked(above, record_, child);
    remove();
    return first;
}

void Node::replaceWith(const Node &node) const {
    checkPresent(bool(node));
    Node(requiredParent(record_)).replaceChild(*this, node);
}

void Node::setParentNode(const Node &parent) const {
    checkPresent(bool(parent));
    place(rec(parent), nullptr, record_);
}

void Node::replaceChild(const Node &out, const Node &in) const {
    checkPresent(out && in);
    checkTrue(isLinked(rec(out)) && core::parent(rec(out)) == record_);
    if (out == in) return;
    place(record_, rec(out), rec(in));
    leaveParent(rec(out));
}

void Node::removeChild(const Node &node) const {
    checkPresent(bool(node));
    checkTrue(parentOf(rec(node)) == record_);
    ++arenaOf(record_).version;
    leaveParent(rec(node));
}

namespace {

void checkPlaces(NodeRec *parent, const std::vector<Node> &nodes) {
    for (const Node &node : nodes) {
        checkPresent(bool(node));
        checkPlace(parent, rec(node));
    }
}

} // namespace

void Node::addChildren(const std::vector<Node> &nodes) const {
    checkPlaces(record_, nodes);
    for (const Node &node : nodes)
        place(record_, nullptr, rec(node));
}

void Node::addChildren(std::size_t index, const std::vector<Node> &nodes) const {
    checkPlaces(record_, nodes);
    NodeRec *reference = childNodeAt(record_, index);
    for (std::size_t i = nodes.size(); i-- > 0;) {
        NodeRec *node = rec(nodes[i]);
        // A node that was a child already makes those after it move up before it is put at the place.
        const bool wasChild = isLinked(node) && core::parent(node) == record_;
        if (wasChild) {
            ++arenaOf(record_).version;
            leaveParent(node);
            reference = childNodeAt(record_, index);
        }
        place(record_, reference, node);
        reference = node;
    }
}

void Node::reparentChild(const Node &node) const {
    addChildren({node});
}

// ---- Walks, printing, copies ----

const Node &Node::traverse(NodeVisitor &visitor) const {
    NodeTraversor(visitor).traverse(*this);
    return *this;
}

void NodeTraversor::traverse(const Node &root) const {
    Node node = root;
    int depth = 0;
    while (node) {
        visitor_->head(node, depth);
        if (Node child = node.firstChild()) {
            node = std::move(child);
            ++depth;
            continue;
        }
        while (depth > 0 && !node.nextSibling()) {
            visitor_->tail(node, depth);
            node = node.parent();
            if (!node) return;
            --depth;
        }
        visitor_->tail(node, depth);
        if (node == root) return;
        node = node.nextSibling();
    }
}

std::string Node::outerHtml() const {
    if (kindOf(record_) == Kind::Document) return innerHtml(record_);
    Output out;
    printNode(out, record_, printSettings(record_));
    return out.text();
}

void Node::outerHtml(StringBuilder &accum) const {
    accum.append(outerHtml());
}

void Node::html(StringBuilder &accum) const {
    Output out;
    printChildren(out, record_, printSettings(record_));
    accum.append(out.text());
}

Node Node::copy() const {
    return Node(copyTree(record_));
}

// ---- Leaves ----

namespace {

void setLeafText(NodeRec *leaf, std::string_view text) {
    ++arenaOf(leaf).version;
    if (leaf->flags & NodeRec::TextInAttrs) {
        const Kind kind = kindOf(leaf);
        putAttr(leaf, kind == Kind::Text ? "text" : kind == Kind::Data ? "data" : "comment", text);
        return;
    }
    const std::string_view stored = storeText(arenaOf(leaf), text);
    leaf->text = stored.data();
    leaf->length = std::uint32_t(stored.size());
}

/// The byte at which the character of this number starts; the size if there are fewer.
std::size_t byteOf(std::string_view text, std::size_t character) {
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool isStart = (text[i] & 0xc0) != 0x80;
        if (isStart && character-- == 0) return i;
    }
    return text.size();
}

} // namespace

TextNode::TextNode(std::string_view text, std::string_view baseUri)
    : TextNode(newLoose(Kind::Text, text, baseUri)) {}

bool TextNode::isKindOf(const core::NodeRec *record) {
    return kindOf(record) == Kind::Text;
}

std::string TextNode::text() const {
    return StringUtil::normaliseWhitespace(leafText(record_));
}

const TextNode &TextNode::text(std::string_view text) const {
    setLeafText(record_, text);
    return *this;
}

std::string TextNode::getWholeText() const {
    return std::string(leafText(record_));
}

bool TextNode::isBlank() const {
    return isAllWhite(leafText(record_));
}

TextNode TextNode::splitText(std::ptrdiff_t offset) const {
    if (offset < 0) failArgument("Split offset must be not be negative");
    const std::string_view whole = leafText(record_);
    const std::size_t at = byteOf(whole, std::size_t(offset));
    if (at == whole.size()) failArgument("Split offset must not be greater than current text length");
    const TextNode tail(newTextLike(record_, whole.substr(at)));
    setLeafText(record_, whole.substr(0, at));
    if (isLinked(record_)) after(tail);
    return tail;
}

DataNode::DataNode(std::string_view data, std::string_view baseUri)
    : DataNode(newLoose(Kind::Data, data, baseUri)) {}

bool DataNode::isKindOf(const core::NodeRec *record) {
    return kindOf(record) == Kind::Data;
}

std::string DataNode::getWholeData() const {
    return std::string(leafText(record_));
}

const DataNode &DataNode::setWholeData(std::string_view data) const {
    setLeafText(record_, data);
    return *this;
}

Comment::Comment(std::string_view data, std::string_view baseUri)
    : Comment(newLoose(Kind::Comment, data, baseUri)) {}

bool Comment::isKindOf(const core::NodeRec *record) {
    return kindOf(record) == Kind::Comment;
}

std::string Comment::getData() const {
    return std::string(leafText(record_));
}

DocumentType::DocumentType(std::string_view name, std::string_view publicId, std::string_view systemId,
                           std::string_view baseUri)
    : DocumentType(name, {}, publicId, systemId, baseUri) {}

DocumentType::DocumentType(std::string_view name, std::string_view pubSysKey, std::string_view publicId,
                           std::string_view systemId, std::string_view baseUri) {
    Arena *arena = Arena::create(0);
    arena->setBaseUri(baseUri);
    *this = DocumentType(arena->newDoctype(storeText(*arena, name), storeText(*arena, pubSysKey),
                                           storeText(*arena, publicId), storeText(*arena, systemId)));
}

bool DocumentType::isKindOf(const core::NodeRec *record) {
    return kindOf(record) == Kind::Doctype;
}

XmlDeclaration::XmlDeclaration(std::string_view name, std::string_view baseUri,
                               bool isProcessingInstruction) {
    Arena *arena = Arena::create(0);
    arena->setBaseUri(baseUri);
    *this = XmlDeclaration(arena->newXmlDeclaration(storeText(*arena, name), isProcessingInstruction));
}

bool XmlDeclaration::isKindOf(const core::NodeRec *record) {
    return kindOf(record) == Kind::XmlDeclaration;
}

bool XmlDeclaration::isProcessingInstruction() const {
    return record_->flags & NodeRec::ProcessingInstruction;
}

std::string XmlDeclaration::name() const {
    return std::string(tagOf(record_)->name());
}

std::string XmlDeclaration::getWholeDeclaration() const {
    return std::string(trimmed(getAttributes().html()));
}

} // namespace orl::html
