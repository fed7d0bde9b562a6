// The predicates that look at one element: its names, attributes, place and text.
#include "attr_value.h"
#include "class_index.h"
#include "class_match.h"
#include "class_search.h"
#include "columns.h"
#include "orl/html/evaluator.h"
#include "pattern_search.h"
#include "predicate.h"
#include "text.h"
#include "text_index.h"
#include "tree.h"
#include "utf8.h"

#include <algorithm>

namespace orl::html {

using namespace core;

namespace {

constexpr Traits costly{.cheap = false};
constexpr Traits costlyPattern{.cheap = false, .sure = false}; // a pattern may be stopped by its limits

} // namespace

// ---- Names

namespace {

/// Looks at nothing but the tag, so that a column of the tags can answer.
template<class Test>
class TagPredicate final : public Predicate {
public:
    TagPredicate(Test test, char kind, const std::string &name)
        : Predicate({}), test_(std::move(test)), kind_(kind), name_(name) {}

    bool holds(NodeRec *element) override { return test_(element); }
    Walk walk() const override { return Walk::Column; }
    Found findIn(NodeRec *top) override { return findByColumn(top, tagColumn, &Columns::tags, test_); }
    bool appendQuestion(std::string &question) const override {
        return appendNameQuestion(question, kind_, name_);
    }

private:
    Test test_;
    char kind_;
    const std::string &name_;
};

template<class Test>
PredicatePtr makeTagTest(Test test, char kind, const std::string &name) {
    return std::make_unique<TagPredicate<Test>>(std::move(test), kind, name);
}

/// Looks at nothing but the "class" attribute.
class ClassPredicate final : public Predicate {
public:
    explicit ClassPredicate(const std::string &name) : Predicate({}), given_(name), name_(name) {}

    bool holds(NodeRec *element) override { return name_.isIn(element); }
    Walk walk() const override { return Walk::Index; }
    Found findIn(NodeRec *top) override {
        const auto matches = [this](const NodeRec *element) { return name_.isIn(element); };
        const ClassIndex *index = ClassIndex::of(top);
        return index ? findByClass(*index, top, name_)
                     : findByColumn(top, classColumn, &Columns::classes, matches);
    }
    const ClassName *className() const override { return &name_; }
    bool appendQuestion(std::string &question) const override {
        return appendNameQuestion(question, '.', given_);
    }

private:
    const std::string &given_;
    ClassName name_;
};

} // namespace

PredicatePtr Evaluator::Tag::compile(Scope &) const {
    return makeTagTest(
        [name = TagName(tagNameNormal_)](const NodeRec *element) { return name.isOf(element); }, 't',
        tagNameNormal_);
}

PredicatePtr Evaluator::TagEndsWith::compile(Scope &) const {
    return makeTagTest([this](const NodeRec *element) { return tagOf(element)->name().ends_with(tagName_); },
                       'e', tagName_);
}

PredicatePtr Evaluator::Class::compile(Scope &) const {
    return std::make_unique<ClassPredicate>(className_);
}

PredicatePtr Evaluator::Id::compile(Scope &) const {
    return makeLeaf([this](const NodeRec *element) { return idOf(element) == id_; });
}

// ---- Attributes

PredicatePtr Evaluator::Attribute::compile(Scope &) const {
    const AttrReader reader(key_);
    return makeLeaf([reader](NodeRec *element) { return reader.isOn(element); }, {.sure = reader.isSure()});
}

PredicatePtr Evaluator::AttributeStarting::compile(Scope &) const {
    return makeLeaf([this](const NodeRec *element) {
        return std::ranges::any_of(attrBlock(element), [this](const AttrRec &entry) {
            const auto *name = at<NameRec>(entry.target().name);
            return at<NameRec>(name->lower)->name().starts_with(keyPrefix_);
        });
    });
}

namespace {

/// `compare` gets the attribute's value and the evaluator's.
template<class Compare>
PredicatePtr makeComparison(const Evaluator::AttributeKeyPair &evaluator, Compare compare) {
    const AttrReader reader(evaluator.key());
    return makeLeaf(
        [reader, &evaluator, compare](NodeRec *element) {
            return reader.holds(element,
                                [&](std::string_view text) { return compare(text, evaluator.value()); });
        },
        {.sure = reader.isSure()});
}

} // namespace

PredicatePtr Evaluator::AttributeWithValue::compile(Scope &) const {
    return makeComparison(*this, [](std::string_view text, std::string_view wanted) {
        return equalsLower(trimmed(text), wanted);
    });
}

PredicatePtr Evaluator::AttributeWithValueNot::compile(Scope &) const {
    const AttrReader reader(key());
    return makeLeaf(
        [reader, this](NodeRec *element) {
            return reader.reads(element,
                                [this](std::string_view text) { return !equalsLower(text, value()); });
        },
        {.sure = reader.isSure()});
}

PredicatePtr Evaluator::AttributeWithValueStarting::compile(Scope &) const {
    return makeComparison(*this, startsWithLower);
}

PredicatePtr Evaluator::AttributeWithValueEnding::compile(Scope &) const {
    return makeComparison(*this, endsWithLower);
}

PredicatePtr Evaluator::AttributeWithValueContaining::compile(Scope &) const {
    return makeComparison(*this, containsLower);
}

PredicatePtr Evaluator::AttributeWithValueMatching::compile(Scope &) const {
    const auto search = std::make_shared<PatternSearch>(pattern_);
    return makeLeaf(
        [reader = AttrReader(key_), search](NodeRec *element) {
            return reader.holds(element, [&](std::string_view text) { return search->isFoundIn(text); });
        },
        costlyPattern);
}

// ---- Places

PredicatePtr Evaluator::AllElements::compile(Scope &) const {
    return makeLeaf([](const NodeRec *) { return true; });
}

PredicatePtr Evaluator::IndexLessThan::compile(Scope &scope) const {
    return makeLeaf([this, &scope](NodeRec *element) {
        return std::ptrdiff_t(scope.places.among(element).index) < index();
    });
}

PredicatePtr Evaluator::IndexGreaterThan::compile(Scope &scope) const {
    return makeLeaf([this, &scope](NodeRec *element) {
        return std::ptrdiff_t(scope.places.among(element).index) > index();
    });
}

PredicatePtr Evaluator::IndexEquals::compile(Scope &scope) const {
    return makeLeaf([this, &scope](NodeRec *element) {
        return std::ptrdiff_t(scope.places.among(element).index) == index();
    });
}

namespace {

bool isChildOfElement(const NodeRec *element) {
    const NodeRec *above = parentOf(element);
    return above && kindOf(above) != Kind::Document;
}

/// Whether the place, counted from 1, is one of `b`, `b + a`, `b + 2a`...
bool isNth(std::ptrdiff_t place, std::ptrdiff_t a, std::ptrdiff_t b) {
    if (a == 0) return place == b;
    const std::ptrdiff_t past = place - b;
    return (past >= 0) == (a > 0) ? past % a == 0 : past == 0;
}

/// `position` gives the place of an element, counted from 1.
template<class Position>
PredicatePtr makeNth(const Evaluator::CssNthEvaluator &nth, Position position) {
    return makeLeaf([position, a = nth.a(), b = nth.b()](NodeRec *element) {
        return isChildOfElement(element) && isNth(position(element), a, b);
    });
}

} // namespace

PredicatePtr Evaluator::IsNthChild::compile(Scope &scope) const {
    return makeNth(
        *this, [&scope](NodeRec *element) { return std::ptrdiff_t(scope.places.among(element).index) + 1; });
}

PredicatePtr Evaluator::IsNthLastChild::compile(Scope &scope) const {
    return makeNth(*this, [&scope](NodeRec *element) {
        const auto place = scope.places.among(element);
        return std::ptrdiff_t(place.count) - std::ptrdiff_t(place.index);
    });
}

PredicatePtr Evaluator::IsNthOfType::compile(Scope &scope) const {
    return makeNth(*this, [&scope](NodeRec *element) {
        return std::ptrdiff_t(scope.places.amongType(element).index) + 1;
    });
}

PredicatePtr Evaluator::IsNthLastOfType::compile(Scope &scope) const {
    return makeNth(*this, [&scope](NodeRec *element) {
        const auto place = scope.places.amongType(element);
        return std::ptrdiff_t(place.count) - std::ptrdiff_t(place.index);
    });
}

PredicatePtr Evaluator::IsFirstChild::compile(Scope &) const {
    return makeLeaf(
        [](const NodeRec *element) { return isChildOfElement(element) && !previousElement(element); });
}

PredicatePtr Evaluator::IsLastChild::compile(Scope &scope) const {
    return makeLeaf([&scope](NodeRec *element) {
        // As no place among elements is above that among nodes, only the last node can be meant.
        if (nextSibling(element) || !isChildOfElement(element)) return false;
        return scope.places.among(element).index + 1 == childCount(parentOf(element));
    });
}

PredicatePtr Evaluator::IsOnlyChild::compile(Scope &scope) const {
    return makeLeaf([&scope](NodeRec *element) {
        return isChildOfElement(element) && scope.places.among(element).count == 1;
    });
}

PredicatePtr Evaluator::IsOnlyOfType::compile(Scope &scope) const {
    return makeLeaf([&scope](NodeRec *element) {
        return isChildOfElement(element) && scope.places.amongType(element).count == 1;
    });
}

PredicatePtr Evaluator::IsRoot::compile(Scope &scope) const {
    return makeLeaf(
        [&scope](const NodeRec *element) {
            const NodeRec *root = scope.root;
            const bool isPage = root && kindOf(root) == Kind::Document;
            return element == (isPage ? firstElement(root) : root);
        },
        {.growing = false, .reach = 1});
}

PredicatePtr Evaluator::IsEmpty::compile(Scope &) const {
    return makeLeaf(
        [](const NodeRec *element) {
            for (const NodeRec *node = firstChild(element); node; node = nextSibling(node))
                if (kindOf(node) < Kind::Comment) return false;
            return true;
        },
        costly);
}

// ---- Text

PredicatePtr Evaluator::ContainsText::compile(Scope &scope) const {
    return std::make_unique<TextPredicate>(searchText_, scope);
}

PredicatePtr Evaluator::ContainsOwnText::compile(Scope &) const {
    return makeLeaf([this](const NodeRec *element) { return containsLower(ownTextOf(element), searchText_); },
                    costly);
}

PredicatePtr Evaluator::Matches::compile(Scope &) const {
    const auto search = std::make_shared<PatternSearch>(pattern_);
    return makeLeaf([search](const NodeRec *element) { return search->isFoundIn(textOf(element)); },
                    costlyPattern);
}

PredicatePtr Evaluator::MatchesOwn::compile(Scope &) const {
    const auto search = std::make_shared<PatternSearch>(pattern_);
    return makeLeaf([search](const NodeRec *element) { return search->isFoundIn(ownTextOf(element)); },
                    costlyPattern);
}

} // namespace orl::html
