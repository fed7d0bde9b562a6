// Any node of a tree, and the kinds that have no children.
//
// Handles. A value of type Node, or of a type derived from it, is a handle: eight bytes that name a node,
// which may be "nothing". Copying a handle copies no node; two handles are equal when they name the same
// node. What is called on nothing, except conversion to bool, comparison and assignment, is a programming
// fault.
//
// Lifetimes. A parent owns its children; a handle keeps its node, and so all that is below it, but not what
// is above: when the last handle to a root goes, the root goes, and a descendant that is still held answers
// parent() with nothing. Nodes move between trees freely; two trees between which one has moved count as one
// tree from then on in the rule that a tree is used by one thread at a time. Trees that have nothing to do
// with each other may be used by different threads at once, and a tree may be handed from one thread to
// another.
//
// Memory. Nodes that go while others of their tree are held make room for new ones; texts and attributes that
// are replaced, or go with their nodes, give their bytes back only when the whole tree goes. A tree that
// stays as it is keeps the last few answers that it gave more than once, four bytes for each element found.
// What trees give back is kept for the next ones: 64 MB, and beyond these up to a sixteenth of the machine's
// memory, 2 GB at most, which the system may take whenever it needs some.
//
// Depth. No operation recurses over the depth of a tree; costs are linear in the size of what is visited
// unless an operation says otherwise. Links to parents and siblings are followed in constant time.
//
// Text. All text is UTF-8; what is not well-formed is repaired with U+FFFD when it comes in.
//
// Errors. All failures are Exception::Error, of type IllegalArgumentException unless stated otherwise, and
// leave the tree as it was.
#pragma once

#include <orl/html/attributes.h>
#include <orl/html/exception.h>
#include <orl/html/export.h>

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace orl::html {

namespace core {
struct NodeRec;
} // namespace core

class Document;
class Element;
class NodeVisitor;
class StringBuilder;

class ORL_HTML_API Node {
public:
    /// Nothing.
    Node() = default;
    Node(const Node &other) : Node(other.record_) {}
    Node(Node &&other) noexcept : record_(std::exchange(other.record_, nullptr)) {}
    Node &operator=(const Node &other) { return *this = Node(other); }
    Node &operator=(Node &&other) noexcept {
        std::swap(record_, other.record_);
        return *this;
    }
    ~Node() {
        if (record_) release(record_);
    }

    explicit operator bool() const { return record_; }

    /// Identity, which is what `==` compares too.
    bool equals(const Node &other) const { return record_ == other.record_; }
    friend bool operator==(const Node &left, const Node &right) { return left.equals(right); }

    /// The same node, or one that prints the same.
    bool hasSameValue(const Node &other) const;
    /// Of the printed form and the base URI; linear in the size of the subtree.
    std::size_t hashValue() const;

    /// This node as a handle of a kind that it is of, such as `as<Element>()`; nothing if it is not of that
    /// kind.
    template<class Kind>
    Kind as() const {
        return record_ && Kind::isKindOf(record_) ? Kind(record_) : Kind();
    }
    template<class Kind>
    bool is() const {
        return record_ && Kind::isKindOf(record_);
    }

    /// The tag name of an element, and "#text", "#data", "#comment", "#doctype", "#declaration" or
    /// "#document".
    std::string nodeName() const;

    // ---- Attributes. Every node has a list of them; the text of a text, data or comment node stands in its
    // list under "text", "data" or "comment".

    /// The value of the first attribute with this key, whatever its case; "" without one. "abs:" and a key is
    /// the absUrl of that key, unless there is an attribute of the whole name. An empty key fails with
    /// "String must not be empty".
    std::string attr(std::string_view key) const;
    /// Puts the attribute under exactly this key, in the place of one that had it or at the end.
    const Node &attr(std::string_view key, std::string_view value) const;
    /// Whatever the key's case. With "abs:", whether the rest of the key names an attribute that gives a URL.
    bool hasAttr(std::string_view key) const;
    /// Removes the first attribute with this key, whatever its case.
    const Node &removeAttr(std::string_view key) const;
    /// The list itself: what is done to it is done to the node.
    Attributes getAttributes() const;

    std::string getBaseUri() const;
    /// Of this node and all below it.
    void setBaseUri(std::string_view uri) const;
    /// The attribute's value as a URL resolved against the base URI; "" without one, or if no absolute URL
    /// comes of it. An empty key fails with "String must not be empty".
    std::string absUrl(std::string_view key) const;

    // ---- Around the node.

    /// The child node at this place, which must exist. Constant cost while the children stay as they are.
    Node childNode(std::size_t index) const;
    std::vector<Node> getChildNodes() const;
    /// Deep copies of the child nodes, without a parent.
    std::vector<Node> childNodesCopy() const;
    std::size_t childNodeSize() const;
    Node firstChild() const;
    Node lastChild() const;

    Node parent() const;
    /// This node if it is a document, else the document above it, else nothing. Linear in the depth.
    Document ownerDocument() const;

    /// The parent's other child nodes; none without a parent.
    std::vector<Node> siblingNodes() const;
    Node nextSibling() const;
    Node previousSibling() const;
    /// The place among the parent's child nodes; 0 without a parent. Constant cost while the siblings stay as
    /// they are, or change at their ends only.
    std::size_t siblingIndex() const;

    // ---- Surgery. A node that is put somewhere leaves its present parent first; constant cost, except that
    // a node with children is checked against all that is above its new place if that is of the same tree.
    // Putting a node below itself fails with "Must be false".

    /// Leaves the parent, if there is one.
    void remove() const;
    /// Puts nodes next to this one. A node or parent that is nothing fails with "Object must not be null".
    /// The text forms parse a fragment as it would be parsed inside the parent.
    const Node &before(const Node &node) const;
    const Node &before(std::string_view html) const;
    const Node &after(const Node &node) const;
    const Node &after(std::string_view html) const;
    /// Puts the node into the innermost first element of the fragment's first element, which takes its place;
    /// the rest of the fragment goes to that element's end. Nothing happens, and nothing is the result, if
    /// the fragment does not start with an element. An empty text fails with "String must not be empty", no
    /// parent with "Object must not be null".
    Node wrap(std::string_view html) const;
    /// Puts the child nodes in this node's place; the first of them or nothing. Without a parent it fails
    /// with "Object must not be null".
    Node unwrap() const;
    /// Puts the other node in this one's place. A node or parent that is nothing fails with "Object must not
    /// be null".
    void replaceWith(const Node &node) const;
    /// Becomes the last child of the parent.
    void setParentNode(const Node &parent) const;
    /// A first argument that is no child of this node fails with "Must be true".
    void replaceChild(const Node &out, const Node &in) const;
    void removeChild(const Node &node) const;
    /// Appends the nodes.
    void addChildren(const std::vector<Node> &nodes) const;
    /// Inserts the nodes in their order; the place must not be past the end.
    void addChildren(std::size_t index, const std::vector<Node> &nodes) const;
    /// Appends the node.
    void reparentChild(const Node &node) const;

    /// Calls the visitor for this node and all below it, in document order. The visitor must not detach the
    /// node at hand; what it throws ends the walk and reaches the caller.
    const Node &traverse(NodeVisitor &visitor) const;

    /// The node as HTML, printed by the owner document's settings, or the default ones without a document.
    std::string outerHtml() const;
    void outerHtml(StringBuilder &accum) const;
    /// What is inside the node.
    void html(StringBuilder &accum) const;
    /// outerHtml().
    std::string toString() const { return outerHtml(); }

    /// A deep copy without a parent. Its attributes are the original's, in lists of its own: adding and
    /// replacing on one side leave the other alone, while Attribute::setValue is seen by both. The copy stays
    /// part of the original's tree as far as threads are concerned.
    Node copy() const;

    // ---- For the engine's own use.

    explicit Node(core::NodeRec *record) : record_(record) {
        if (record) hold(record);
    }
    /// For a handle that somebody else keeps and that is never destroyed.
    void borrow(core::NodeRec *record) { record_ = record; }
    core::NodeRec *record() const { return record_; }
    static bool isKindOf(const core::NodeRec *) { return true; }

protected:
    core::NodeRec *record_ = nullptr;

private:
    static void hold(core::NodeRec *record);
    static void release(core::NodeRec *record);
};

/// Sees each node of a walk when it is entered and when it is left; `depth` is 0 for the node where it began.
class ORL_HTML_API NodeVisitor {
public:
    virtual ~NodeVisitor() = default;
    virtual void head(const Node &node, int depth) = 0;
    virtual void tail(const Node &node, int depth) = 0;
};

/// A depth-first walk.
class ORL_HTML_API NodeTraversor {
public:
    explicit NodeTraversor(NodeVisitor &visitor) : visitor_(&visitor) {}
    void traverse(const Node &root) const;

private:
    NodeVisitor *visitor_;
};

class ORL_HTML_API TextNode : public Node {
public:
    TextNode() = default;
    TextNode(std::string_view text, std::string_view baseUri);

    /// With each run of white space as one blank.
    std::string text() const;
    const TextNode &text(std::string_view text) const;
    std::string getWholeText() const;
    bool isBlank() const;
    /// Leaves the first `offset` characters here and gives the rest as a new text node, put right after this
    /// one if it has a parent. A negative offset fails with "Split offset must be not be negative", one that
    /// is not inside the text with "Split offset must not be greater than current text length".
    TextNode splitText(std::ptrdiff_t offset) const;

    TextNode copy() const { return Node::copy().as<TextNode>(); }

    explicit TextNode(core::NodeRec *record) : Node(record) {}
    static bool isKindOf(const core::NodeRec *record);
};

/// What stands in a script or style element, printed as it is.
class ORL_HTML_API DataNode : public Node {
public:
    DataNode() = default;
    DataNode(std::string_view data, std::string_view baseUri);

    std::string getWholeData() const;
    const DataNode &setWholeData(std::string_view data) const;

    DataNode copy() const { return Node::copy().as<DataNode>(); }

    explicit DataNode(core::NodeRec *record) : Node(record) {}
    static bool isKindOf(const core::NodeRec *record);
};

class ORL_HTML_API Comment : public Node {
public:
    Comment() = default;
    Comment(std::string_view data, std::string_view baseUri);

    std::string getData() const;

    Comment copy() const { return Node::copy().as<Comment>(); }

    explicit Comment(core::NodeRec *record) : Node(record) {}
    static bool isKindOf(const core::NodeRec *record);
};

/// Its parts are the attributes "name", "publicId", "systemId" and, where it is given, "pubSysKey".
class ORL_HTML_API DocumentType : public Node {
public:
    DocumentType() = default;
    DocumentType(std::string_view name, std::string_view publicId, std::string_view systemId,
                 std::string_view baseUri);
    /// `pubSysKey` is "PUBLIC" or "SYSTEM".
    DocumentType(std::string_view name, std::string_view pubSysKey, std::string_view publicId,
                 std::string_view systemId, std::string_view baseUri);

    DocumentType copy() const { return Node::copy().as<DocumentType>(); }

    explicit DocumentType(core::NodeRec *record) : Node(record) {}
    static bool isKindOf(const core::NodeRec *record);
};

/// Prints its name and attributes between two marks: "!" on both sides if it is a processing instruction and
/// "?" if it is not, as in `<?xml version="1.0"?>`.
class ORL_HTML_API XmlDeclaration : public Node {
public:
    XmlDeclaration() = default;
    XmlDeclaration(std::string_view name, std::string_view baseUri, bool isProcessingInstruction);

    bool isProcessingInstruction() const;
    std::string name() const;
    /// The attributes as they print, without the name.
    std::string getWholeDeclaration() const;

    XmlDeclaration copy() const { return Node::copy().as<XmlDeclaration>(); }

    explicit XmlDeclaration(core::NodeRec *record) : Node(record) {}
    static bool isKindOf(const core::NodeRec *record);
};

} // namespace orl::html

/// By identity, as equality is; hashValue() is another matter.
template<>
struct std::hash<orl::html::Node> {
    std::size_t operator()(const orl::html::Node &node) const { return std::hash<void *>()(node.record()); }
};
