#pragma once

#include <orl/html/export.h>
#include <orl/html/node.h>
#include <orl/html/tag.h>

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace orl::html {

class Elements;
class Evaluator;
class FormElement;
class Pattern;
template<class Value>
class OrderedSet;

/// A node with a tag.
class ORL_HTML_API Element : public Node {
public:
    /// Nothing.
    Element() = default;
    Element(const Tag &tag, std::string_view baseUri);
    /// With a clone of the list.
    Element(const Tag &tag, std::string_view baseUri, const Attributes &attributes);

    std::string tagName() const;
    std::string tagNameNormal() const;
    /// Gives the element another tag, its name taken as it is. An empty name fails with "Tag name must not be
    /// empty.".
    const Element &tagName(std::string_view name) const;
    Tag tag() const;
    bool isBlock() const;
    /// The "id" attribute, or "".
    std::string id() const;

    using Node::attr;
    const Element &attr(std::string_view key, std::string_view value) const;
    const Element &attr(std::string_view key, const char *value) const {
        return attr(key, std::string_view(value));
    }
    /// Puts a boolean attribute, or removes it.
    const Element &attr(std::string_view key, bool flag) const;
    /// See Attributes::dataset.
    std::map<std::string, std::string> dataset() const;

    /// The parent if it is an element; a document is one.
    Element parent() const { return Node::parent().as<Element>(); }
    /// From the parent up, nearest first.
    Elements parents() const;
    /// The child element at this place, which must exist. Constant cost while the children stay as they are.
    Element child(std::size_t index) const;
    Elements children() const;
    std::vector<TextNode> textNodes() const;
    std::vector<DataNode> dataNodes() const;

    // ---- Surgery; see Node. The text forms parse a fragment as it would be parsed inside this element.

    const Element &appendChild(const Node &node) const;
    const Element &prependChild(const Node &node) const;
    /// A negative place counts from the end, -1 being the end itself. A place that does not exist fails with
    /// "Insert position out of bounds.".
    const Element &insertChildren(std::ptrdiff_t index, const std::vector<Node> &nodes) const;
    /// A new element with this element's base URI, its name taken as it is; the new element.
    Element appendElement(std::string_view tagName) const;
    Element prependElement(std::string_view tagName) const;
    const Element &appendText(std::string_view text) const;
    const Element &prependText(std::string_view text) const;
    const Element &append(std::string_view html) const;
    const Element &prepend(std::string_view html) const;
    /// Drops the child nodes. One that is still held goes on naming this element as its parent.
    const Element &empty() const;

    using Node::after;
    using Node::before;
    const Element &before(const Node &node) const;
    const Element &before(std::string_view html) const;
    const Element &after(const Node &node) const;
    const Element &after(std::string_view html) const;
    Element wrap(std::string_view html) const { return Node::wrap(html).as<Element>(); }

    // ---- Among the parent's child elements.

    /// All of them without this one.
    Elements siblingElements() const;
    Element nextElementSibling() const;
    Element previousElementSibling() const;
    /// Nothing without a parent, and nothing if there is no other child element.
    Element firstElementSibling() const;
    Element lastElementSibling() const;
    /// The place among them; 0 without a parent. Constant cost while the siblings stay as they are.
    std::size_t elementSiblingIndex() const;

    // ---- Search. All look at this element and everything below it, in document order. An empty argument
    // fails with "String must not be empty".

    /// The name is taken in lower case and trimmed.
    Elements getElementsByTag(std::string_view tagName) const;
    /// The first element with exactly this id, or nothing.
    Element getElementById(std::string_view id) const;
    /// See hasClass. Without building any list of names.
    Elements getElementsByClass(std::string_view className) const;
    /// The key is trimmed and compared without regard to case.
    Elements getElementsByAttribute(std::string_view key) const;
    /// Some attribute's key starts like this, whatever its case.
    Elements getElementsByAttributeStarting(std::string_view keyPrefix) const;
    // The value may stand between quotes. Values are compared without regard to case.
    Elements getElementsByAttributeValue(std::string_view key, std::string_view value) const;
    /// Those without the attribute are among them.
    Elements getElementsByAttributeValueNot(std::string_view key, std::string_view value) const;
    Elements getElementsByAttributeValueStarting(std::string_view key, std::string_view valuePrefix) const;
    Elements getElementsByAttributeValueEnding(std::string_view key, std::string_view valueSuffix) const;
    Elements getElementsByAttributeValueContaining(std::string_view key, std::string_view match) const;
    /// The pattern is found in the value. A text that is no regular expression fails with "Pattern syntax
    /// error: " and the text, of type SelectorParseException; the same holds below.
    Elements getElementsByAttributeValueMatching(std::string_view key, const Pattern &pattern) const;
    Elements getElementsByAttributeValueMatching(std::string_view key, std::string_view regex) const;
    // By elementSiblingIndex.
    Elements getElementsByIndexLessThan(std::ptrdiff_t index) const;
    Elements getElementsByIndexGreaterThan(std::ptrdiff_t index) const;
    Elements getElementsByIndexEquals(std::ptrdiff_t index) const;
    /// Whatever the case, in text() or in ownText().
    Elements getElementsContainingText(std::string_view searchText) const;
    Elements getElementsContainingOwnText(std::string_view searchText) const;
    /// The pattern is found in text(), or in ownText(). As each element's text is put together on its own,
    /// the first two cost as much as the text times the depth at which it stands.
    Elements getElementsMatchingText(const Pattern &pattern) const;
    Elements getElementsMatchingText(std::string_view regex) const;
    Elements getElementsMatchingOwnText(const Pattern &pattern) const;
    Elements getElementsMatchingOwnText(std::string_view regex) const;
    Elements getAllElements() const;

    /// Those that the selector matches; see QueryParser.
    Elements select(std::string_view cssQuery) const;
    using Node::is;
    /// Whether a selector, asked from the parent as root, matches this element; never without a parent.
    bool is(std::string_view cssQuery) const;
    bool is(const Evaluator &evaluator) const;
    /// A path of tags and classes that leads to this element and no other, from the nearest element with an
    /// id or from the top. Costs a search below each element on the way.
    std::string cssSelector() const;

    // ---- Text.

    /// The text of all text nodes below: runs of white space become one blank, except in elements that
    /// preserve them, a block or a line break counts as a blank, and the whole is trimmed.
    std::string text() const;
    /// The same of the direct child nodes only, where of the child elements only a line break counts.
    std::string ownText() const;
    /// One text node in place of all child nodes.
    const Element &text(std::string_view text) const;
    bool hasText() const;
    /// What stands in data nodes, here and below.
    std::string data() const;

    // ---- Classes.

    /// The "class" attribute, trimmed.
    std::string className() const;
    /// Its words, each once, in order.
    OrderedSet<std::string> classNames() const;
    const Element &classNames(const OrderedSet<std::string> &names) const;
    /// Whether one of the words of the "class" attribute is this name, without regard to case. A name with
    /// blanks in it is no word, but it matches an attribute that is the same as a whole.
    bool hasClass(std::string_view className) const;
    const Element &addClass(std::string_view className) const;
    const Element &removeClass(std::string_view className) const;
    const Element &toggleClass(std::string_view className) const;

    /// The text of a "textarea", else the "value" attribute.
    std::string val() const;
    const Element &val(std::string_view value) const;

    /// What is inside the element, printed by the owner document's settings and trimmed if those print
    /// prettily.
    std::string html() const;
    using Node::html;
    /// Parsed nodes in place of all child nodes.
    const Element &html(std::string_view html) const;

    Element copy() const { return Node::copy().as<Element>(); }

    explicit Element(core::NodeRec *record) : Node(record) {}
    static bool isKindOf(const core::NodeRec *record);
};

/// A form, which knows the controls that belong to it wherever they stand. It keeps them alive.
class ORL_HTML_API FormElement : public Element {
public:
    FormElement() = default;
    FormElement(const Tag &tag, std::string_view baseUri);
    FormElement(const Tag &tag, std::string_view baseUri, const Attributes &attributes);

    /// In the order in which they were added.
    Elements elements() const;
    const FormElement &addElement(const Element &element) const;

    /// A copy has the same list of controls, the original's.
    FormElement copy() const { return Node::copy().as<FormElement>(); }

    explicit FormElement(core::NodeRec *record) : Element(record) {}
    static bool isKindOf(const core::NodeRec *record);
};

} // namespace orl::html

template<>
struct std::hash<orl::html::Element> : std::hash<orl::html::Node> {};
