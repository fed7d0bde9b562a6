// What a search runs: an evaluator compiled to work on raw nodes, with the memory that keeps the search
// linear.
//
// A predicate belongs to one search of a tree that stays as it is meanwhile. Within a search each predicate
// is asked only a few times about the same element, whatever the query: those that ask about parents,
// siblings and descendants keep the answers.
#pragma once

#include "class_match.h"
#include "core.h"
#include "orl/html/node_list.h"
#include "places.h"
#include "search.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace orl::html {
class Evaluator;
} // namespace orl::html

namespace orl::html::core {

/// What the predicates of one search have in common.
struct Scope {
    NodeRec *root; ///< where the search began
    Places &places;
};

/// What is known about a predicate whatever the tree.
struct Traits {
    static constexpr std::uint32_t unlimited = ~std::uint32_t(0);

    bool growing = true;             ///< what matches as seen from a root also matches from any root above it
    bool cheap = true;               ///< asking again costs less than remembering
    std::uint32_t reach = unlimited; ///< so many levels below the root it can hold, and no deeper
    bool sure = true;                ///< never fails
};

class Predicate {
public:
    explicit Predicate(const Traits &known) : traits(known) {}
    Predicate(const Predicate &) = delete;
    Predicate &operator=(const Predicate &) = delete;
    virtual ~Predicate() = default;

    virtual bool holds(NodeRec *element) = 0;

    /// The elements of the subtree for which it holds, in document order.
    virtual Found findIn(NodeRec *top) {
        return findAll(top, [this](NodeRec *element) { return holds(element); });
    }

    /// Leaves those in the list, which is in document order, for which it holds.
    virtual void filter(Found &elements) {
        std::erase_if(elements, [this](Ref element) { return !holds(at<NodeRec>(element)); });
    }

    /// How little findIn looks at. What looks at less than the tree cannot fail.
    enum class Walk { Tree, Column, Index };
    virtual Walk walk() const { return Walk::Tree; }

    /// The class, if it asks for nothing else.
    virtual const ClassName *className() const { return nullptr; }
    /// The class, if it asks for nothing but that an element above has it.
    virtual const ClassName *classAbove() const { return nullptr; }
    /// Appends a text that says all it asks: predicates with the same one have the same answers as long as no
    /// tree changes. False where there is none.
    virtual bool appendQuestion(std::string &) const { return false; }

    /// The scope has another root now.
    virtual void rootChanged() {}

    const Traits traits;
};

using PredicatePtr = std::unique_ptr<Predicate>;

// Predicate::appendQuestion of a predicate that asks for one name, and of one that asks others; `kind` tells
// it from all the other ones.
bool appendNameQuestion(std::string &question, char kind, std::string_view name);
bool appendQuestionOf(std::string &question, char kind, const Predicate &inner);
bool appendQuestionOfAll(std::string &question, char kind, const std::vector<PredicatePtr> &parts);

/// A predicate that looks at the element and asks no other.
template<class Test>
class LeafPredicate final : public Predicate {
public:
    LeafPredicate(Test test, const Traits &known) : Predicate(known), test_(std::move(test)) {}

    bool holds(NodeRec *element) override { return test_(element); }
    Found findIn(NodeRec *top) override {
        return findAll(top, [this](NodeRec *element) { return test_(element); });
    }

private:
    Test test_;
};

template<class Test>
PredicatePtr makeLeaf(Test test, const Traits &known = {}) {
    return std::make_unique<LeafPredicate<Test>>(std::move(test), known);
}

/// One search: all that `evaluator` matches below a root, or one question. The root may change between them.
class Search {
public:
    explicit Search(const Evaluator &evaluator);

    void setRoot(NodeRec *root);
    bool matches(NodeRec *element) { return predicate_->holds(element); }
    SharedRefs run();

    const Traits &traits() const { return predicate_->traits; }

private:
    Found find();

    Places places_;
    Scope scope_;
    PredicatePtr predicate_;
};

} // namespace orl::html::core
