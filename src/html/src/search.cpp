// The searches of Element and Elements. Each is a walk with one evaluator.
#include "search.h"

#include "checks.h"
#include "orl/html/css_selector.h"
#include "orl/html/query_parser.h"
#include "predicate.h"
#include "utf8.h"

#include <algorithm>

namespace orl::html {

using namespace core;

namespace {

std::string_view notEmpty(std::string_view text) {
    checkNotEmpty(text);
    return text;
}

Pattern compiled(std::string_view regex) {
    Pattern pattern = Pattern::compile(regex);
    pattern.validate();
    return pattern;
}

} // namespace

namespace core {

Elements asElements(Found found) {
    return Elements(SharedRefs(std::move(found)));
}

} // namespace core

// ---- Of an element
// ------------------------------------------------------------------------------------------------

Elements Element::getElementsByTag(std::string_view tagName) const {
    const std::string lower = lowerCase(notEmpty(tagName));
    return Collector::collect(Evaluator::Tag(trimmed(lower)), *this);
}

Element Element::getElementById(std::string_view id) const {
    checkNotEmpty(id);
    return Element(findFirst(record_, [&](NodeRec *element) { return idOf(element) == id; }));
}

Elements Element::getElementsByClass(std::string_view className) const {
    return Collector::collect(Evaluator::Class(notEmpty(className)), *this);
}

Elements Element::getElementsByAttribute(std::string_view key) const {
    return Collector::collect(Evaluator::Attribute(trimmed(notEmpty(key))), *this);
}

Elements Element::getElementsByAttributeStarting(std::string_view keyPrefix) const {
    return Collector::collect(Evaluator::AttributeStarting(trimmed(notEmpty(keyPrefix))), *this);
}

Elements Element::getElementsByAttributeValue(std::string_view key, std::string_view value) const {
    return Collector::collect(Evaluator::AttributeWithValue(key, value), *this);
}

Elements Element::getElementsByAttributeValueNot(std::string_view key, std::string_view value) const {
    return Collector::collect(Evaluator::AttributeWithValueNot(key, value), *this);
}

Elements Element::getElementsByAttributeValueStarting(std::string_view key,
                                                      std::string_view valuePrefix) const {
    return Collector::collect(Evaluator::AttributeWithValueStarting(key, valuePrefix), *this);
}

Elements Element::getElementsByAttributeValueEnding(std::string_view key,
                                                    std::string_view valueSuffix) const {
    return Collector::collect(Evaluator::AttributeWithValueEnding(key, valueSuffix), *this);
}

Elements Element::getElementsByAttributeValueContaining(std::string_view key, std::string_view match) const {
    return Collector::collect(Evaluator::AttributeWithValueContaining(key, match), *this);
}

Elements Element::getElementsByAttributeValueMatching(std::string_view key, const Pattern &pattern) const {
    return Collector::collect(Evaluator::AttributeWithValueMatching(key, pattern), *this);
}

Elements Element::getElementsByAttributeValueMatching(std::string_view key, std::string_view regex) const {
    return getElementsByAttributeValueMatching(key, compiled(regex));
}

Elements Element::getElementsByIndexLessThan(std::ptrdiff_t index) const {
    return Collector::collect(Evaluator::IndexLessThan(index), *this);
}

Elements Element::getElementsByIndexGreaterThan(std::ptrdiff_t index) const {
    return Collector::collect(Evaluator::IndexGreaterThan(index), *this);
}

Elements Element::getElementsByIndexEquals(std::ptrdiff_t index) const {
    return Collector::collect(Evaluator::IndexEquals(index), *this);
}

Elements Element::getElementsContainingText(std::string_view searchText) const {
    return Collector::collect(Evaluator::ContainsText(searchText), *this);
}

Elements Element::getElementsContainingOwnText(std::string_view searchText) const {
    return Collector::collect(Evaluator::ContainsOwnText(searchText), *this);
}

Elements Element::getElementsMatchingText(const Pattern &pattern) const {
    return Collector::collect(Evaluator::Matches(pattern), *this);
}

Elements Element::getElementsMatchingText(std::string_view regex) const {
    return getElementsMatchingText(compiled(regex));
}

Elements Element::getElementsMatchingOwnText(const Pattern &pattern) const {
    return Collector::collect(Evaluator::MatchesOwn(pattern), *this);
}

Elements Element::getElementsMatchingOwnText(std::string_view regex) const {
    return getElementsMatchingOwnText(compiled(regex));
}

Elements Element::getAllElements() const {
    return Collector::collect(Evaluator::AllElements(), *this);
}

Elements Element::select(std::string_view cssQuery) const {
    return CssSelector::select(cssQuery, *this);
}

bool Element::is(std::string_view cssQuery) const {
    return is(*QueryParser::parse(cssQuery));
}

bool Element::is(const Evaluator &evaluator) const {
    const Element root = parent();
    return root && evaluator.matches(root, *this);
}

// ---- Of a list
// ----------------------------------------------------------------------------------------------------

Elements Elements::select(std::string_view query) const {
    return CssSelector::select(query, *this);
}

Elements Elements::not_(std::string_view query) const {
    return filterOut(*this, select(query));
}

bool Elements::is(std::string_view query) const {
    const EvaluatorPtr evaluator = QueryParser::parse(query);
    Search search(*evaluator);
    return std::ranges::any_of(*this, [&search](const Element &element) {
        const Element root = element.parent();
        if (!root) return false;
        search.setRoot(root.record());
        return search.matches(element.record());
    });
}

} // namespace orl::html
