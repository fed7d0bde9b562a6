#include "orl/html/elements.h"

#include "checks.h"

#include <algorithm>
#include <unordered_set>

namespace orl::html {

namespace {

/// The parts that `part` gives for each element, one a line.
template<class Part>
std::string lines(const std::vector<Element> &elements, Part part) {
    std::string all;
    for (const Element &element : elements) {
        if (&element != elements.data()) all += '\n';
        all += part(element);
    }
    return all;
}

} // namespace

Elements::Elements(const OrderedSet<Element> &elements) : this_(elements.begin(), elements.end()) {}

Elements Elements::copy() const {
    Elements copies;
    for (const Element &element : this_)
        copies.add(element.copy());
    return copies;
}

std::string Elements::attr(std::string_view key) const {
    for (const Element &element : this_)
        if (element.hasAttr(key)) return element.attr(key);
    return {};
}

bool Elements::hasAttr(std::string_view key) const {
    return std::ranges::any_of(this_, [key](const Element &element) { return element.hasAttr(key); });
}

const Elements &Elements::attr(std::string_view key, std::string_view value) const {
    for (const Element &element : this_)
        element.attr(key, value);
    return *this;
}

const Elements &Elements::removeAttr(std::string_view key) const {
    for (const Element &element : this_)
        element.removeAttr(key);
    return *this;
}

const Elements &Elements::addClass(std::string_view className) const {
    for (const Element &element : this_)
        element.addClass(className);
    return *this;
}

const Elements &Elements::removeClass(std::string_view className) const {
    for (const Element &element : this_)
        element.removeClass(className);
    return *this;
}

const Elements &Elements::toggleClass(std::string_view className) const {
    for (const Element &element : this_)
        element.toggleClass(className);
    return *this;
}

bool Elements::hasClass(std::string_view className) const {
    return std::ranges::any_of(this_,
                               [className](const Element &element) { return element.hasClass(className); });
}

std::string Elements::val() const {
    return this_.empty() ? std::string() : this_.front().val();
}

const Elements &Elements::val(std::string_view value) const {
    for (const Element &element : this_)
        element.val(value);
    return *this;
}

std::string Elements::text() const {
    std::string all;
    for (const Element &element : this_) {
        if (!all.empty()) all += ' ';
        all += element.text();
    }
    return all;
}

bool Elements::hasText() const {
    return std::ranges::any_of(this_, [](const Element &element) { return element.hasText(); });
}

std::string Elements::html() const {
    return lines(this_, [](const Element &element) { return element.html(); });
}

std::string Elements::outerHtml() const {
    return lines(this_, [](const Element &element) { return element.outerHtml(); });
}

const Elements &Elements::tagName(std::string_view name) const {
    for (const Element &element : this_)
        element.tagName(name);
    return *this;
}

const Elements &Elements::html(std::string_view html) const {
    for (const Element &element : this_)
        element.html(html);
    return *this;
}

const Elements &Elements::prepend(std::string_view html) const {
    for (const Element &element : this_)
        element.prepend(html);
    return *this;
}

const Elements &Elements::append(std::string_view html) const {
    for (const Element &element : this_)
        element.append(html);
    return *this;
}

const Elements &Elements::before(std::string_view html) const {
    for (const Element &element : this_)
        element.before(html);
    return *this;
}

const Elements &Elements::after(std::string_view html) const {
    for (const Element &element : this_)
        element.after(html);
    return *this;
}

const Elements &Elements::wrap(std::string_view html) const {
    core::checkNotEmpty(html);
    for (const Element &element : this_)
        element.wrap(html);
    return *this;
}

const Elements &Elements::unwrap() const {
    for (const Element &element : this_)
        element.unwrap();
    return *this;
}

const Elements &Elements::empty() const {
    for (const Element &element : this_)
        element.empty();
    return *this;
}

const Elements &Elements::remove() const {
    for (const Element &element : this_)
        element.remove();
    return *this;
}

Elements Elements::eq(std::size_t index) const {
    return index < size() ? Elements{this_[index]} : Elements();
}

Elements Elements::parents() const {
    OrderedSet<Element> all;
    for (const Element &element : this_)
        for (Element above = element.parent(); above && !all.contains(above); above = above.parent())
            all.append(above);
    return Elements(all);
}

const Elements &Elements::traverse(NodeVisitor &visitor) const {
    for (const Element &element : this_)
        element.traverse(visitor);
    return *this;
}

std::vector<FormElement> Elements::forms() const {
    std::vector<FormElement> forms;
    for (const Element &element : this_)
        if (element.is<FormElement>()) forms.push_back(element.as<FormElement>());
    return forms;
}

void Elements::add(std::size_t index, Element element) {
    this_.insert(this_.begin() + std::ptrdiff_t(index), std::move(element));
}

std::size_t Elements::hashValue() const {
    std::size_t hash = 0;
    for (const Element &element : this_)
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
