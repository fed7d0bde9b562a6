#include "orl/html/elements.h"

#include "checks.h"
#include "core.h"

#include <algorithm>
#include <unordered_set>

namespace orl::html {

namespace {

/// The parts that `part` gives for each element, one a line.
template<class Part>
std::string lines(const Elements &elements, Part part) {
    std::string all;
    for (auto at = elements.begin(); at != elements.end(); ++at) {
        if (at != elements.begin()) all += '\n';
        all += part(*at);
    }
    return all;
}

} // namespace

const Element &ElementsIterator::operator*() const {
    element_.borrow(core::nodeAt(*ref_));
    return element_;
}

Element Elements::get(std::size_t index) const {
    return Element(core::nodeAt(this_.refs()[index]));
}

// Out of the header, so that what a list is made of stays within the library.
Elements::Elements(const Elements &other) = default;
Elements::Elements(Elements &&other) noexcept = default;
Elements &Elements::operator=(const Elements &other) = default;
Elements &Elements::operator=(Elements &&other) noexcept = default;
Elements::~Elements() = default;

void Elements::add(std::size_t index, const Element &element) {
    this_.insert(index, element.record());
}

bool Elements::operator==(const Elements &other) const {
    return this_.refs() == other.this_.refs();
}

Elements::Elements(const std::vector<Element> &elements) {
    for (const Element &element : elements)
        add(element);
}

Elements::Elements(std::initializer_list<Element> elements) {
    for (const Element &element : elements)
        add(element);
}

Elements::Elements(const OrderedSet<Element> &elements) {
    for (const Element &element : elements)
        add(element);
}

std::vector<Element> Elements::array() const {
    std::vector<Element> all;
    all.reserve(size());
    for (const Element &element : *this)
        all.push_back(element);
    return all;
}

Elements Elements::copy() const {
    Elements copies;
    for (const Element &element : *this)
        copies.add(element.copy());
    return copies;
}

std::string Elements::attr(std::string_view key) const {
    for (const Element &element : *this)
        if (element.hasAttr(key)) return element.attr(key);
    return {};
}

bool Elements::hasAttr(std::string_view key) const {
    return std::ranges::any_of(*this, [key](const Element &element) { return element.hasAttr(key); });
}

const Elements &Elements::attr(std::string_view key, std::string_view value) const {
    for (const Element &element : *this)
        element.attr(key, value);
    return *this;
}

const Elements &Elements::removeAttr(std::string_view key) const {
    for (const Element &element : *this)
        element.removeAttr(key);
    return *this;
}

const Elements &Elements::addClass(std::string_view className) const {
    for (const Element &element : *this)
        element.addClass(className);
    return *this;
}

const Elements &Elements::removeClass(std::string_view className) const {
    for (const Element &element : *this)
        element.removeClass(className);
    return *this;
}

const Elements &Elements::toggleClass(std::string_view className) const {
    for (const Element &element : *this)
        element.toggleClass(className);
    return *this;
}

bool Elements::hasClass(std::string_view className) const {
    return std::ranges::any_of(*this,
                               [className](const Element &element) { return element.hasClass(className); });
}

std::string Elements::val() const {
    return isEmpty() ? std::string() : first().val();
}

const Elements &Elements::val(std::string_view value) const {
    for (const Element &element : *this)
        element.val(value);
    return *this;
}

std::string Elements::text() const {
    std::string all;
    for (const Element &element : *this) {
        if (!all.empty()) all += ' ';
        all += element.text();
    }
    return all;
}

bool Elements::hasText() const {
    return std::ranges::any_of(*this, [](const Element &element) { return element.hasText(); });
}

std::string Elements::html() const {
    return lines(*this, [](const Element &element) { return element.html(); });
}

std::string Elements::outerHtml() const {
    return lines(*this, [](const Element &element) { return element.outerHtml(); });
}

const Elements &Elements::tagName(std::string_view name) const {
    for (const Element &element : *this)
        element.tagName(name);
    return *this;
}

const Elements &Elements::html(std::string_view html) const {
    for (const Element &element : *this)
        element.html(html);
    return *this;
}

const Elements &Elements::prepend(std::string_view html) const {
    for (const Element &element : *this)
        element.prepend(html);
    return *this;
}

const Elements &Elements::append(std::string_view html) const {
    for (const Element &element : *this)
        element.append(html);
    return *this;
}

const Elements &Elements::before(std::string_view html) const {
    for (const Element &element : *this)
        element.before(html);
    return *this;
}

const Elements &Elements::after(std::string_view html) const {
    for (const Element &element : *this)
        element.after(html);
    return *this;
}

const Elements &Elements::wrap(std::string_view html) const {
    core::checkNotEmpty(html);
    for (const Element &element : *this)
        element.wrap(html);
    return *this;
}

const Elements &Elements::unwrap() const {
    for (const Element &element : *this)
        element.unwrap();
    return *this;
}

const Elements &Elements::empty() const {
    for (const Element &element : *this)
        element.empty();
    return *this;
}

const Elements &Elements::remove() const {
    for (const Element &element : *this)
        element.remove();
    return *this;
}

Elements Elements::eq(std::size_t index) const {
    return index < size() ? Elements{get(index)} : Elements();
}

Elements Elements::parents() const {
    OrderedSet<Element> all;
    for (const Element &element : *this)
        for (Element above = element.parent(); above && !all.contains(above); above = above.parent())
            all.append(above);
    return Elements(all);
}

const Elements &Elements::traverse(NodeVisitor &visitor) const {
    for (const Element &element : *this)
        element.traverse(visitor);
    return *this;
}

std::vector<FormElement> Elements::forms() const {
    std::vector<FormElement> forms;
    for (const Element &element : *this)
        if (element.is<FormElement>()) forms.push_back(element.as<FormElement>());
    return forms;
}

std::size_t Elements::hashValue() const {
    std::size_t hash = 0;
    for (const Element &element : *this)
        hash = hash * 31 + element.hashValue();
    return hash;
}

Elements Elements::filterOut(const Elements &elements, const Elements &outs) {
    const std::unordered_set<Element> out(outs.begin(), outs.end());
    Elements kept;
    for (const Element &element : elements)
        if (!out.contains(element)) kept.add(element);
    return kept;
}

} // namespace orl::html
