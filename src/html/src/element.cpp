#include "orl/html/element.h"

#include "attrs.h"
#include "checks.h"
#include "class_match.h"
#include "orl/html/document.h"
#include "orl/html/elements.h"
#include "print.h"
#include "search.h"
#include "text.h"
#include "tree.h"
#include "utf8.h"

#include <algorithm>

namespace orl::html {

using namespace core;

namespace {

NodeRec *newLoose(Kind kind, const Tag &tag, std::string_view baseUri) {
    Arena *arena = Arena::createLoose();
    arena->setBaseUri(baseUri);
    return arena->newElement(kind, arena->adopt(tag.record()));
}

/// With the attributes of the list, which thereby stays in the element's tree.
NodeRec *newLoose(Kind kind, const Tag &tag, std::string_view baseUri, const Attributes &attributes) {
    NodeRec *node = newLoose(kind, tag, baseUri);
    Arena::merge(arenaOf(node), arenaOf(attributes.carrier()));
    shareAttrs(attributes.carrier(), node);
    return node;
}

std::string_view classValue(const NodeRec *element) {
    return attrValue(element, nameRef(NameId::Class));
}

void placeAll(NodeRec *parent, NodeRec *reference, std::string_view html) {
    Arena &arena = arenaOf(parent);
    ++arena.version;
    for (NodeRec *node : parseFragmentInto(arena, html, parent))
        placeUnchecked(parent, reference, node);
}

} // namespace

Element::Element(const Tag &tag, std::string_view baseUri) : Element(newLoose(Kind::Element, tag, baseUri)) {}

Element::Element(const Tag &tag, std::string_view baseUri, const Attributes &attributes)
    : Element(newLoose(Kind::Element, tag, baseUri, attributes)) {}

bool Element::isKindOf(const core::NodeRec *record) {
    return isElement(record);
}

// ---- Tag and identity ----

std::string Element::tagName() const {
    return std::string(tagOf(record_)->name());
}

std::string Element::tagNameNormal() const {
    return std::string(tagOf(record_)->normalName());
}

const Element &Element::tagName(std::string_view name) const {
    if (name.empty()) failArgument("Tag name must not be empty.");
    Arena &arena = arenaOf(record_);
    record_->tag = refOf(tagNamed(arena, name));
    ++arena.version;
    return *this;
}

Tag Element::tag() const {
    return Tag(tagOf(record_));
}

bool Element::isBlock() const {
    return tagOf(record_)->has(TagRec::Block);
}

std::string Element::id() const {
    return std::string(idOf(record_));
}

const Element &Element::attr(std::string_view key, std::string_view value) const {
    Node::attr(key, value);
    return *this;
}

const Element &Element::attr(std::string_view key, bool flag) const {
    getAttributes().put(key, flag);
    return *this;
}

std::map<std::string, std::string> Element::dataset() const {
    return getAttributes().dataset();
}

// ---- Around the element ----

Elements Element::parents() const {
    Found all;
    for (const NodeRec *above = parentOf(record_); above; above = parentOf(above))
        all.push_back(refOf(above));
    return asElements(std::move(all));
}

Element Element::child(std::size_t index) const {
    return Element(childElementAt(record_, index));
}

Elements Element::children() const {
    Found all;
    for (const NodeRec *node = firstElement(record_); node; node = nextElement(node))
        all.push_back(refOf(node));
    return asElements(std::move(all));
}

std::vector<TextNode> Element::textNodes() const {
    std::vector<TextNode> all;
    for (NodeRec *node = core::firstChild(record_); node; node = core::nextSibling(node))
        if (isText(node)) all.emplace_back(node);
    return all;
}

std::vector<DataNode> Element::dataNodes() const {
    std::vector<DataNode> all;
    for (NodeRec *node = core::firstChild(record_); node; node = core::nextSibling(node))
        if (kindOf(node) == Kind::Data) all.emplace_back(node);
    return all;
}

// ---- Surgery ----

const Element &Element::appendChild(const Node &node) const {
    reparentChild(node);
    return *this;
}

const Element &Element::prependChild(const Node &node) const {
    addChildren(0, {node});
    return *this;
}

const Element &Element::insertChildren(std::ptrdiff_t index, const std::vector<Node> &nodes) const {
    const auto count = std::ptrdiff_t(childNodeSize());
    if (index < 0) index += count + 1;
    if (index < 0 || index > count) failArgument("Insert position out of bounds.");
    addChildren(std::size_t(index), nodes);
    return *this;
}

Element Element::appendElement(std::string_view tagName) const {
    const Element made(newElementLike(record_, tagName));
    appendChild(made);
    return made;
}

Element Element::prependElement(std::string_view tagName) const {
    const Element made(newElementLike(record_, tagName));
    prependChild(made);
    return made;
}

const Element &Element::appendText(std::string_view text) const {
    return appendChild(TextNode(newTextLike(record_, text)));
}

const Element &Element::prependText(std::string_view text) const {
    return prependChild(TextNode(newTextLike(record_, text)));
}

const Element &Element::append(std::string_view html) const {
    placeAll(record_, nullptr, html);
    return *this;
}

const Element &Element::prepend(std::string_view html) const {
    placeAll(record_, core::firstChild(record_), html);
    return *this;
}

const Element &Element::empty() const {
    ++arenaOf(record_).version;
    dropChildren(record_);
    return *this;
}

const Element &Element::before(const Node &node) const {
    Node::before(node);
    return *this;
}

const Element &Element::before(std::string_view html) const {
    Node::before(html);
    return *this;
}

const Element &Element::after(const Node &node) const {
    Node::after(node);
    return *this;
}

const Element &Element::after(std::string_view html) const {
    Node::after(html);
    return *this;
}

// ---- Among the child elements of the parent ----

Elements Element::siblingElements() const {
    Found all;
    const NodeRec *above = parentOf(record_);
    for (const NodeRec *node = above ? firstElement(above) : nullptr; node; node = nextElement(node))
        if (node != record_) all.push_back(refOf(node));
    return asElements(std::move(all));
}

Element Element::nextElementSibling() const {
    checkPresent(isLinked(record_) || !parentOf(record_));
    return Element(nextElement(record_));
}

Element Element::previousElementSibling() const {
    checkPresent(isLinked(record_) || !parentOf(record_));
    return Element(previousElement(record_));
}

namespace {

bool hasTwoElements(const NodeRec *parent) {
    const NodeRec *first = parent ? firstElement(parent) : nullptr;
    return first && nextElement(first);
}

} // namespace

Element Element::firstElementSibling() const {
    const NodeRec *above = parentOf(record_);
    return hasTwoElements(above) ? Element(firstElement(above)) : Element();
}

Element Element::lastElementSibling() const {
    const NodeRec *above = parentOf(record_);
    if (!hasTwoElements(above)) return {};
    NodeRec *last = core::lastChild(above);
    return Element(isElement(last) ? last : previousElement(last));
}

std::size_t Element::elementSiblingIndex() const {
    return elementIndex(record_);
}

namespace {

/// How an element is told from its siblings, as far as its tag and classes do that.
std::string ownSelector(const Element &element) {
    std::string selector = element.tagName();
    std::ranges::replace(selector, ':', '|');
    for (const std::string &name : element.classNames())
        selector += '.' + name;
    return selector;
}

/// Whether the parent has another child that the same tag and classes fit.
bool hasDouble(const Element &element) {
    const TagName name(tagOf(element.record())->normalName());
    const OrderedSet<std::string> classes = element.classNames();
    return std::ranges::any_of(element.siblingElements(), [&](const Element &sibling) {
        return name.isOf(sibling.record()) &&
               std::ranges::all_of(classes, [&](const std::string &c) { return sibling.hasClass(c); });
    });
}

} // namespace

std::string Element::cssSelector() const {
    std::vector<std::string> parts;
    for (Element element = *this;; element = element.parent()) {
        if (const std::string id = element.id(); !id.empty()) {
            parts.push_back('#' + id);
            break;
        }
        parts.push_back(ownSelector(element));
        const Element above = element.parent();
        if (!above || above.is<Document>()) break;
        if (hasDouble(element))
            parts.back() += ":nth-child(" + std::to_string(element.elementSiblingIndex() + 1) + ')';
    }
    std::string path = parts.back();
    for (std::size_t i = parts.size() - 1; i-- > 0;)
        path += " > " + parts[i];
    return path;
}

// ---- Text ----

std::string Element::text() const {
    return textOf(record_);
}

std::string Element::ownText() const {
    return ownTextOf(record_);
}

const Element &Element::text(std::string_view text) const {
    const TextNode node(newTextLike(record_, text)); // before the children go: the text may be one of theirs
    empty();
    return appendChild(node);
}

bool Element::hasText() const {
    return hasTextIn(record_);
}

std::string Element::data() const {
    return dataOf(record_);
}

// ---- Classes ----

std::string Element::className() const {
    return std::string(trimmed(attr("class")));
}

OrderedSet<std::string> Element::classNames() const {
    OrderedSet<std::string> names;
    const std::string value = className();
    for (std::size_t start = 0; start < value.size();) {
        std::size_t end = start;
        while (end < value.size() && !isPatternSpace(value[end]))
            ++end;
        if (end > start) names.append(value.substr(start, end - start));
        start = end + 1;
    }
    return names;
}

const Element &Element::classNames(const OrderedSet<std::string> &names) const {
    std::string value;
    for (const std::string &name : names)
        value += (value.empty() ? "" : " ") + name;
    return attr("class", value);
}

bool Element::hasClass(std::string_view className) const {
    return ClassName(className).isIn(classValue(record_));
}

const Element &Element::addClass(std::string_view className) const {
    OrderedSet<std::string> names = classNames();
    names.append(std::string(className));
    return classNames(names);
}

const Element &Element::removeClass(std::string_view className) const {
    OrderedSet<std::string> names = classNames();
    names.remove(std::string(className));
    return classNames(names);
}

const Element &Element::toggleClass(std::string_view className) const {
    return classNames().contains(std::string(className)) ? removeClass(className) : addClass(className);
}

std::string Element::val() const {
    return tagOf(record_)->name() == "textarea" ? text() : attr("value");
}

const Element &Element::val(std::string_view value) const {
    return tagOf(record_)->name() == "textarea" ? text(value) : attr("value", value);
}

std::string Element::html() const {
    return innerHtml(record_);
}

const Element &Element::html(std::string_view html) const {
    empty();
    return append(html);
}

// ---- FormElement ----

FormElement::FormElement(const Tag &tag, std::string_view baseUri)
    : FormElement(newLoose(Kind::Form, tag, baseUri)) {}

FormElement::FormElement(const Tag &tag, std::string_view baseUri, const Attributes &attributes)
    : FormElement(newLoose(Kind::Form, tag, baseUri, attributes)) {}

bool FormElement::isKindOf(const core::NodeRec *record) {
    return kindOf(record) == Kind::Form;
}

Elements FormElement::elements() const {
    Found all;
    for (const NodeRec *control : arenaOf(record_).formControls(record_))
        all.push_back(refOf(control));
    return asElements(std::move(all));
}

const FormElement &FormElement::addElement(const Element &element) const {
    checkPresent(bool(element));
    Arena::merge(arenaOf(record_), arenaOf(element.record())).addToForm(record_, element.record());
    return *this;
}

} // namespace orl::html
