// What the evaluators keep and how they print.
#include "orl/html/evaluator.h"

#include "checks.h"
#include "places.h"
#include "utf8.h"

namespace orl::html {

namespace {

using core::lowerCase;
using core::trimmed;

std::string wellFormed(std::string_view text) {
    return core::validPrefix(text) == text.size() ? std::string(text) : core::repaired(text);
}

std::string notEmpty(std::string_view text) {
    core::checkNotEmpty(text);
    return wellFormed(text);
}

std::string normal(const std::string &text) {
    return lowerCase(trimmed(text));
}

std::string_view unquoted(std::string_view text) {
    const bool quoted =
        text.size() > 1 && text.front() == text.back() && (text.front() == '"' || text.front() == '\'');
    return quoted ? text.substr(1, text.size() - 2) : text;
}

} // namespace

// ---- Names

Evaluator::Tag::Tag(std::string_view tagName)
    : tagName_(wellFormed(tagName)), tagNameNormal_(lowerCase(tagName_)) {}

Evaluator::TagEndsWith::TagEndsWith(std::string_view tagName) : tagName_(wellFormed(tagName)) {}

Evaluator::Id::Id(std::string_view id) : id_(wellFormed(id)) {}

Evaluator::Class::Class(std::string_view className) : className_(wellFormed(className)) {}

// ---- Attributes

Evaluator::Attribute::Attribute(std::string_view key) : key_(wellFormed(key)) {}

Evaluator::AttributeStarting::AttributeStarting(std::string_view keyPrefix)
    : keyPrefix_(lowerCase(notEmpty(keyPrefix))) {}

Evaluator::AttributeKeyPair::AttributeKeyPair(std::string_view key, std::string_view value)
    : key_(normal(notEmpty(key))), value_(lowerCase(trimmed(unquoted(notEmpty(value))))) {}

Evaluator::AttributeWithValueMatching::AttributeWithValueMatching(std::string_view key, Pattern pattern)
    : key_(normal(wellFormed(key))), pattern_(std::move(pattern)) {}

// ---- Places

std::string Evaluator::CssNthEvaluator::toString() const {
    std::string text = ":";
    text.append(getPseudoClass()).append("(");
    if (a_ != 0) text.append(std::to_string(a_)).append(b_ == 0 ? "n" : "n+");
    if (a_ == 0 || b_ != 0) text.append(std::to_string(b_));
    return text.append(")");
}

namespace {

std::ptrdiff_t fromStart(core::Places::Place place) {
    return std::ptrdiff_t(place.index) + 1;
}
std::ptrdiff_t fromEnd(core::Places::Place place) {
    return std::ptrdiff_t(place.count) - std::ptrdiff_t(place.index);
}

} // namespace

std::ptrdiff_t Evaluator::IsNthChild::calculatePosition(const Element &, const Element &element) const {
    return fromStart(core::Places().among(element.record()));
}

std::ptrdiff_t Evaluator::IsNthLastChild::calculatePosition(const Element &, const Element &element) const {
    return fromEnd(core::Places().among(element.record()));
}

std::ptrdiff_t Evaluator::IsNthOfType::calculatePosition(const Element &, const Element &element) const {
    return fromStart(core::Places().amongType(element.record()));
}

std::ptrdiff_t Evaluator::IsNthLastOfType::calculatePosition(const Element &, const Element &element) const {
    return fromEnd(core::Places().amongType(element.record()));
}

// ---- Text

Evaluator::ContainsText::ContainsText(std::string_view searchText) : searchText_(lowerCase(searchText)) {}

Evaluator::ContainsOwnText::ContainsOwnText(std::string_view searchText)
    : searchText_(lowerCase(searchText)) {}

Evaluator::Matches::Matches(Pattern pattern) : pattern_(std::move(pattern)) {}

Evaluator::MatchesOwn::MatchesOwn(Pattern pattern) : pattern_(std::move(pattern)) {}

// ---- Combinations

CombiningEvaluator::CombiningEvaluator(std::vector<EvaluatorPtr> evaluators)
    : evaluators_(std::move(evaluators)), num_(evaluators_.size()) {}

EvaluatorPtr CombiningEvaluator::rightMostEvaluator() const {
    return evaluators_.empty() ? nullptr : evaluators_.back();
}

void CombiningEvaluator::replaceRightMostEvaluator(EvaluatorPtr evaluator) {
    evaluators_.back() = std::move(evaluator);
}

void CombiningEvaluator::addEvaluator(EvaluatorPtr evaluator) {
    evaluators_.push_back(std::move(evaluator));
    updateNumEvaluators();
}

std::string CombiningEvaluator::joined(const char *separator) const {
    std::string text;
    for (std::size_t i = 0; i < evaluators_.size(); ++i) {
        if (i > 0) text += separator;
        text += evaluators_[i]->toString();
    }
    return text;
}

} // namespace orl::html
