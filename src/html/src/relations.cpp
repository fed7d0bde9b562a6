#include "relations.h"

#include "class_search.h"
#include "node_marks.h"
#include "orl/html/evaluator.h"
#include "orl/html/exception.h"
#include "tree.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <unordered_map>

namespace orl::html::core {

namespace {

// ---- All and any

Traits traitsOfAll(const std::vector<PredicatePtr> &parts) {
    Traits all;
    for (const PredicatePtr &part : parts) {
        all.growing = all.growing && part->traits.growing;
        all.cheap = all.cheap && part->traits.cheap;
        all.reach = std::min(all.reach, part->traits.reach);
        all.sure = all.sure && part->traits.sure;
    }
    return all;
}

Traits traitsOfAny(const std::vector<PredicatePtr> &parts) {
    Traits any = traitsOfAll(parts);
    any.reach = 0;
    for (const PredicatePtr &part : parts)
        any.reach = std::max(any.reach, part->traits.reach);
    return any;
}

class AndPredicate final : public Predicate {
public:
    explicit AndPredicate(std::vector<PredicatePtr> parts)
        : Predicate(traitsOfAll(parts)), parts_(std::move(parts)) {
        // A class finds faster than a tag does; neither can fail, so their order changes no answer.
        std::stable_sort(
            parts_.begin(), std::ranges::find(parts_, Walk::Tree, walkOf),
            [](const PredicatePtr &left, const PredicatePtr &right) { return left->walk() > right->walk(); });
    }

    bool holds(NodeRec *element) override {
        return std::ranges::all_of(parts_,
                                   [element](const PredicatePtr &part) { return part->holds(element); });
    }
    Found findIn(NodeRec *top) override {
        if (parts_.empty()) return Predicate::findIn(top);
        if (auto found = findBelow(top)) return *std::move(found);
        Found found = parts_.front()->findIn(top);
        for (std::size_t i = 1; i < parts_.size(); ++i)
            parts_[i]->filter(found);
        return found;
    }
    bool appendQuestion(std::string &question) const override {
        return appendQuestionOfAll(question, '&', parts_);
    }
    void rootChanged() override {
        for (const PredicatePtr &part : parts_)
            part->rootChanged();
    }
    std::vector<PredicatePtr> takeParts() { return std::move(parts_); }

private:
    static Walk walkOf(const PredicatePtr &part) { return part->walk(); }

    /// For ".x b", ".x .y" and the like, if the page has an index of its classes: what stands below elements
    /// of the class ".x" is looked at, and nothing else.
    std::optional<Found> findBelow(NodeRec *top) {
        const ClassIndex *index = ClassIndex::of(top);
        if (!index || !index->isOrdered()) return {};
        const auto above = std::ranges::find_if(parts_, [](const auto &part) { return part->classAbove(); });
        if (above == parts_.end()) return {};
        // What may fail does so at every element for which it is asked, below one of the class or not.
        const auto first = std::ranges::find(parts_, Walk::Tree, walkOf);
        if (first != above) return {};

        const ClassName &outer = *(*above)->classAbove();
        const ClassName *inner = parts_.front()->className();
        Found found = inner ? findBelowClass(*index, top, outer, *inner)
                            : findBelowClass(*index, top, outer, [&](NodeRec *element) {
                                  return std::all_of(parts_.begin(), above, [element](const auto &part) {
                                      return part->holds(element);
                                  });
                              });
        for (auto part = parts_.begin() + (inner ? 1 : 0); part != parts_.end(); ++part)
            if (part > above || (inner && part < above)) (*part)->filter(found);
        return found;
    }

    std::vector<PredicatePtr> parts_;
};

class OrPredicate final : public Predicate {
public:
    explicit OrPredicate(std::vector<PredicatePtr> parts)
        : Predicate(traitsOfAny(parts)), parts_(std::move(parts)) {}

    bool holds(NodeRec *element) override {
        return std::ranges::any_of(parts_,
                                   [element](const PredicatePtr &part) { return part->holds(element); });
    }
    bool appendQuestion(std::string &question) const override {
        return appendQuestionOfAll(question, '|', parts_);
    }
    void rootChanged() override {
        for (const PredicatePtr &part : parts_)
            part->rootChanged();
    }

private:
    std::vector<PredicatePtr> parts_;
};

// ---- From an element to others. These are scope-free.

/// Some element below. What is below an element is looked through once, and every element on the way up from
/// a match is marked, as far as it is not marked already.
class DescendantPredicate final : public Predicate {
public:
    /// With `failureIsNo` an element about which the question fails does not match.
    DescendantPredicate(PredicatePtr inner, bool failureIsNo)
        : Predicate({}), inner_(std::move(inner)), failureIsNo_(failureIsNo) {}

    bool holds(NodeRec *element) override {
        if (!(marks_.get(element) & Covered)) cover(element);
        return marks_.get(element) & Has;
    }

private:
    enum Mark : unsigned { Has = 1, Covered = 2 };

    void cover(NodeRec *top) {
        for (NodeRec *node = firstChild(top); node;) {
            if (!isElement(node)) {
                node = nextAfter(node, top);
                continue;
            }
            const unsigned before = marks_.get(node);
            if ((before & Has) || matches(node)) markAbove(node, top);
            marks_.add(node, Covered);
            node = before & Covered ? nextAfter(node, top) : nextInTree(node, top);
        }
        marks_.add(top, Covered);
    }
    void markAbove(NodeRec *node, const NodeRec *top) {
        do {
            node = parent(node);
            if (marks_.get(node) & Has) return;
            marks_.add(node, Has);
        } while (node != top);
    }
    bool matches(NodeRec *element) {
        try {
            return inner_->holds(element);
        } catch (const Exception::Error &) {
            if (!failureIsNo_) throw;
            return false;
        }
    }

    PredicatePtr inner_;
    NodeMarks marks_;
    bool failureIsNo_;
};

class ChildPredicate final : public Predicate {
public:
    explicit ChildPredicate(PredicatePtr inner) : Predicate({.cheap = false}), inner_(std::move(inner)) {}

    bool holds(NodeRec *element) override {
        for (NodeRec *child = firstElement(element); child; child = nextElement(child))
            if (inner_->holds(child)) return true;
        return false;
    }

private:
    PredicatePtr inner_;
};

class NextSiblingPredicate final : public Predicate {
public:
    explicit NextSiblingPredicate(PredicatePtr inner)
        : Predicate({.cheap = false}), inner_(std::move(inner)) {}

    bool holds(NodeRec *element) override {
        NodeRec *next = nextElement(element);
        return next && inner_->holds(next);
    }

private:
    PredicatePtr inner_;
};

/// Keeps for each parent which of its child elements is the last that matches.
class LaterSiblingPredicate final : public Predicate {
public:
    explicit LaterSiblingPredicate(PredicatePtr inner)
        : Predicate({.cheap = false}), inner_(std::move(inner)) {}

    bool holds(NodeRec *element) override {
        NodeRec *above = isLinked(element) ? parent(element) : nullptr;
        if (!above) return false;
        const auto [found, isNew] = lastMatches_.try_emplace(above, nullptr);
        if (isNew) found->second = lastMatch(above);
        return found->second && siblingIndex(found->second) > siblingIndex(element);
    }

private:
    NodeRec *lastMatch(NodeRec *above) {
        NodeRec *child = lastChild(above);
        while (child && !(isElement(child) && inner_->holds(child)))
            child = previousSibling(child);
        return child;
    }

    PredicatePtr inner_;
    std::unordered_map<const NodeRec *, NodeRec *> lastMatches_;
};

// ---- ":has"

/// Turns a query as seen from an element, which reads from right to left, into one that reads from left to
/// right and is scope-free: ":has(> p b)" asks for a child that is a p and has a b below it. So what is below
/// an element is looked through once for all elements above it.
class HasBuilder {
public:
    explicit HasBuilder(Scope &scope) : scope_(scope) {}

    /// Null for a query of another form than selectors usually have.
    PredicatePtr build(const Evaluator &query) {
        if (isScopeFree(query)) return std::make_unique<DescendantPredicate>(query.compile(scope_), true);
        return build(query, nullptr, false);
    }

private:
    using Rest = std::shared_ptr<Predicate>;

    /// Whether there is an element below the one that is asked about, or with `inclusive` that one itself,
    /// for which the query holds as seen from the one that is asked about, and the rest does too.
    PredicatePtr build(const Evaluator &query, const Rest &rest, bool inclusive) {
        if (const auto *any = dynamic_cast<const CombiningEvaluator::Or *>(&query))
            return buildAny(*any, rest, inclusive);
        std::vector<PredicatePtr> own;
        const Evaluator *related = nullptr;
        if (!split(query, own, related)) return nullptr;
        if (rest) own.push_back(shared(rest));
        PredicatePtr here = makeAnd(std::move(own));

        using S = StructuralEvaluator;
        if (!related) return below(std::move(here), inclusive);
        if (dynamic_cast<const S::Root *>(related)) return inclusive ? std::move(here) : makeOr({});
        const Evaluator &inner = *static_cast<const S *>(related)->evaluator();
        if (dynamic_cast<const S::Parent *>(related))
            return build(inner, std::make_shared<DescendantPredicate>(std::move(here), false), true);
        if (dynamic_cast<const S::ImmediateParent *>(related))
            return build(inner, std::make_shared<ChildPredicate>(std::move(here)), true);
        if (dynamic_cast<const S::PreviousSibling *>(related))
            return build(inner, std::make_shared<LaterSiblingPredicate>(std::move(here)), false);
        return build(inner, std::make_shared<NextSiblingPredicate>(std::move(here)), false);
    }

    PredicatePtr buildAny(const CombiningEvaluator::Or &query, const Rest &rest, bool inclusive) {
        std::vector<PredicatePtr> parts;
        for (std::size_t i = 0; i < std::min(query.num(), query.evaluators().size()); ++i) {
            parts.push_back(build(*query.evaluators()[i], rest, inclusive));
            if (!parts.back()) return nullptr;
        }
        return makeOr(std::move(parts));
    }

    /// Takes a query apart into what it asks of the element itself and the one thing it asks of a related
    /// element.
    bool split(const Evaluator &query, std::vector<PredicatePtr> &own, const Evaluator *&related) {
        if (isScopeFree(query)) {
            own.push_back(query.compile(scope_));
            return true;
        }
        if (const auto *all = dynamic_cast<const CombiningEvaluator::And *>(&query)) {
            for (std::size_t i = 0; i < std::min(all->num(), all->evaluators().size()); ++i)
                if (!split(*all->evaluators()[i], own, related)) return false;
            return true;
        }
        using S = StructuralEvaluator;
        const bool isRelation = dynamic_cast<const S::Root *>(&query) ||
                                (dynamic_cast<const S *>(&query) && !dynamic_cast<const S::Not *>(&query));
        if (related || !isRelation) return false;
        related = &query;
        return true;
    }

    static PredicatePtr shared(const Rest &rest) {
        return makeLeaf([rest](NodeRec *element) { return rest->holds(element); }, rest->traits);
    }

    static PredicatePtr below(PredicatePtr here, bool inclusive) {
        if (!inclusive) return std::make_unique<DescendantPredicate>(std::move(here), false);
        const Rest both = std::move(here);
        std::vector<PredicatePtr> parts;
        parts.push_back(shared(both));
        parts.push_back(std::make_unique<DescendantPredicate>(shared(both), false));
        return makeOr(std::move(parts));
    }

    Scope &scope_;
};

class HasPredicate final : public Predicate {
public:
    HasPredicate(const Evaluator &inner, Scope &scope)
        : Predicate({.cheap = false}),
          inner_(inner),
          fast_(HasBuilder(scope).build(inner)),
          slowScope_{nullptr, scope.places} {}

    bool holds(NodeRec *element) override {
        try {
            if (fast_) return fast_->holds(element);
        } catch (const Exception::Error &) {
            // Which elements a failure keeps from matching depends on the order of the questions.
            fast_.reset();
        }
        return search(element);
    }

private:
    /// Asks about one element after the other. This is for queries in which the root matters in a way that
    /// HasBuilder cannot turn round, and for failing patterns; it is not linear for elements inside each
    /// other.
    bool search(NodeRec *top) {
        slowScope_.root = top;
        if (slow_)
            slow_->rootChanged();
        else
            slow_ = inner_.compile(slowScope_);
        for (NodeRec *node = nextInTree(top, top); node; node = nextInTree(node, top))
            if (isElement(node) && matches(node)) return true;
        return false;
    }
    bool matches(NodeRec *element) {
        try {
            return slow_->holds(element);
        } catch (const Exception::Error &) {
            return false;
        }
    }

    const Evaluator &inner_;
    PredicatePtr fast_; ///< null if there is none
    Scope slowScope_;
    PredicatePtr slow_;
};

} // namespace

PredicatePtr makeAnd(std::vector<PredicatePtr> parts) {
    std::vector<PredicatePtr> flat;
    for (PredicatePtr &part : parts) {
        if (auto *nested = dynamic_cast<AndPredicate *>(part.get()))
            std::ranges::move(nested->takeParts(), std::back_inserter(flat));
        else
            flat.push_back(std::move(part));
    }
    if (flat.size() == 1) return std::move(flat.front());
    return std::make_unique<AndPredicate>(std::move(flat));
}

PredicatePtr makeOr(std::vector<PredicatePtr> parts) {
    if (parts.size() == 1) return std::move(parts.front());
    return std::make_unique<OrPredicate>(std::move(parts));
}

bool isScopeFree(const Evaluator &evaluator) {
    if (const auto *several = dynamic_cast<const CombiningEvaluator *>(&evaluator))
        return std::ranges::all_of(several->evaluators(),
                                   [](const EvaluatorPtr &e) { return isScopeFree(*e); });
    if (const auto *negated = dynamic_cast<const StructuralEvaluator::Not *>(&evaluator))
        return isScopeFree(*negated->evaluator());
    if (dynamic_cast<const StructuralEvaluator::Has *>(&evaluator)) return true;
    const bool looksAtRoot = dynamic_cast<const StructuralEvaluator *>(&evaluator) ||
                             dynamic_cast<const StructuralEvaluator::Root *>(&evaluator) ||
                             dynamic_cast<const Evaluator::IsRoot *>(&evaluator);
    return !looksAtRoot && dynamic_cast<const Evaluator::BuiltIn *>(&evaluator);
}

PredicatePtr makeHas(const Evaluator &inner, Scope &scope) {
    return std::make_unique<HasPredicate>(inner, scope);
}

} // namespace orl::html::core
