// The predicates that ask others: about the same element, those above it, beside it and below it.
#include "class_index.h"
#include "node_marks.h"
#include "orl/html/evaluator.h"
#include "orl/html/exception.h"
#include "predicate.h"
#include "relations.h"
#include "tree.h"

#include <algorithm>
#include <limits>
#include <unordered_map>
#include <vector>

namespace orl::html {

using namespace core;

namespace {

std::vector<PredicatePtr> compileAll(const CombiningEvaluator &evaluator, Scope &scope) {
    std::vector<PredicatePtr> parts;
    for (std::size_t i = 0; i < std::min(evaluator.num(), evaluator.evaluators().size()); ++i)
        parts.push_back(evaluator.evaluators()[i]->compile(scope));
    return parts;
}

/// A question about the parent, asked for each of its children.
class ParentPredicate final : public Predicate {
public:
    ParentPredicate(PredicatePtr inner, Scope &scope)
        : Predicate({.growing = inner->traits.growing,
                     .cheap = inner->traits.cheap,
                     .reach = inner->traits.reach == Traits::unlimited ? Traits::unlimited
                                                                       : inner->traits.reach + 1,
                     .sure = inner->traits.sure}),
          inner_(std::move(inner)),
          scope_(scope) {}

    bool holds(NodeRec *element) override {
        NodeRec *above = element == scope_.root ? nullptr : parentOf(element);
        if (!above) return false;
        if (inner_->traits.cheap) return inner_->holds(above);
        if (!answers_.isKnown(above)) answers_.set(above, inner_->holds(above));
        return answers_.get(above);
    }
    bool appendQuestion(std::string &question) const override {
        return appendQuestionOf(question, '>', *inner_);
    }
    void rootChanged() override {
        inner_->rootChanged();
        answers_.clear();
    }

private:
    PredicatePtr inner_;
    Scope &scope_;
    NodeAnswers answers_;
};

/// Keeps for each element whether it or one above it matches, so that no element is asked twice on the way
/// up. Where addresses grow in document order, what stands between the last match and the end of it needs no
/// look at all.
class AncestorPredicate final : public Predicate {
public:
    AncestorPredicate(PredicatePtr inner, Scope &scope)
        : Predicate({.growing = inner->traits.growing, .sure = inner->traits.sure}),
          inner_(std::move(inner)),
          scope_(scope) {}

    bool holds(NodeRec *element) override {
        const Ref ref = refOf(element);
        if (ref > match_ && ref < matchEnd_) return true;
        NodeRec *const nearest = next(element);
        if (!nearest) return false;
        // Most often the parent decides, or one of the next few above it.
        const bool cheap = inner_->traits.cheap;
        if (cheap && inner_->holds(nearest)) {
            if (nearest->next && isOrdered()) keep(nearest, nearest->next);
            return true;
        }
        if (answers_.isKnown(nearest)) return answers_.get(nearest);
        NodeRec *above = cheap ? next(nearest) : nearest;
        int steps = 0;
        for (; above && !answers_.isKnown(above); above = next(above), ++steps) {
            if (!inner_->holds(above)) continue;
            remember(above);
            if (cheap && steps < few) return true;
            break;
        }
        const bool answer = above && (!answers_.isKnown(above) || answers_.get(above));
        for (NodeRec *passed = nearest; passed; passed = next(passed)) {
            if (answers_.isKnown(passed)) break;
            answers_.set(passed, answer);
            if (passed == above) break;
        }
        return answer;
    }
    const ClassName *classAbove() const override { return inner_->className(); }
    bool appendQuestion(std::string &question) const override {
        return appendQuestionOf(question, '^', *inner_);
    }
    void rootChanged() override {
        inner_->rootChanged();
        answers_.clear();
        match_ = matchEnd_ = 0;
        order_ = Order::Unasked;
    }

private:
    enum class Order { Unasked, None, OfAddresses };
    static constexpr int few = 8; ///< steps that cost less than keeping what they tell

    NodeRec *next(NodeRec *element) const { return element == scope_.root ? nullptr : parentOf(element); }

    bool isOrdered() {
        if (order_ == Order::Unasked) {
            const ClassIndex *index = ClassIndex::of(scope_.root);
            order_ = index && index->isOrdered() ? Order::OfAddresses : Order::None;
        }
        return order_ == Order::OfAddresses;
    }

    void keep(const NodeRec *match, Ref end) {
        match_ = refOf(match);
        matchEnd_ = end;
    }
    /// Keeps the match and where it ends, if that is near.
    void remember(const NodeRec *match) {
        if (!isOrdered()) return;
        const NodeRec *node = match;
        for (int steps = 0; steps < few && !node->next; ++steps) {
            if (!node->parent) return keep(match, std::numeric_limits<Ref>::max());
            node = parent(node);
        }
        if (node->next)
            keep(match, node->next);
        else
            match_ = matchEnd_ = 0;
    }

    PredicatePtr inner_;
    Scope &scope_;
    NodeAnswers answers_;
    Ref match_ = 0, matchEnd_ = 0; ///< an element that matches, and where what is behind it begins
    Order order_ = Order::Unasked;
};

/// Keeps for each parent which of its child elements is the first that matches.
class EarlierSiblingPredicate final : public Predicate {
public:
    EarlierSiblingPredicate(PredicatePtr inner, Scope &scope)
        : Predicate({.growing = inner->traits.growing, .reach = inner->traits.reach}),
          inner_(std::move(inner)),
          scope_(scope) {}

    bool holds(NodeRec *element) override {
        NodeRec *parent = element == scope_.root || !isLinked(element) ? nullptr : parentOf(element);
        if (!parent) return false;
        if (parent != lastParent_) {
            lastParent_ = parent;
            lastProgress_ =
                &progress_.try_emplace(parent, Progress{firstElement(parent), false}).first->second;
        }
        Progress &progress = *lastProgress_;
        const std::uint32_t place = siblingIndex(element);
        while (!progress.found && progress.next && siblingIndex(progress.next) < place) {
            progress.found = matches(progress.next);
            if (!progress.found) progress.next = nextElement(progress.next);
        }
        return progress.found && siblingIndex(progress.next) < place;
    }
    bool appendQuestion(std::string &question) const override {
        return appendQuestionOf(question, '~', *inner_);
    }
    void rootChanged() override {
        inner_->rootChanged();
        progress_.clear();
        lastParent_ = nullptr;
    }

private:
    struct Progress {
        NodeRec *next; ///< the first child element that matches, or the first that was not asked yet
        bool found;
    };

    /// A sibling about which the question fails does not match.
    bool matches(NodeRec *sibling) {
        try {
            return inner_->holds(sibling);
        } catch (const Exception::Error &) {
            return false;
        }
    }

    PredicatePtr inner_;
    Scope &scope_;
    std::unordered_map<const NodeRec *, Progress> progress_;
    const NodeRec *lastParent_ = nullptr;
    Progress *lastProgress_ = nullptr;
};

class PreviousSiblingPredicate final : public Predicate {
public:
    PreviousSiblingPredicate(PredicatePtr inner, Scope &scope)
        : Predicate({.growing = inner->traits.growing,
                     .cheap = inner->traits.cheap,
                     .reach = inner->traits.reach,
                     .sure = inner->traits.sure}),
          inner_(std::move(inner)),
          scope_(scope) {}

    bool holds(NodeRec *element) override {
        NodeRec *before = element == scope_.root ? nullptr : previousElement(element);
        return before && inner_->holds(before);
    }
    bool appendQuestion(std::string &question) const override {
        return appendQuestionOf(question, '+', *inner_);
    }
    void rootChanged() override { inner_->rootChanged(); }

private:
    PredicatePtr inner_;
    Scope &scope_;
};

class NotPredicate final : public Predicate {
public:
    NotPredicate(PredicatePtr inner, bool scopeFree)
        : Predicate({.growing = scopeFree, .cheap = inner->traits.cheap, .sure = inner->traits.sure}),
          inner_(std::move(inner)) {}

    bool holds(NodeRec *element) override { return !inner_->holds(element); }
    bool appendQuestion(std::string &question) const override {
        return appendQuestionOf(question, '!', *inner_);
    }
    void rootChanged() override { inner_->rootChanged(); }

private:
    PredicatePtr inner_;
};

} // namespace

PredicatePtr CombiningEvaluator::And::compile(Scope &scope) const {
    return makeAnd(compileAll(*this, scope));
}

PredicatePtr CombiningEvaluator::Or::compile(Scope &scope) const {
    return makeOr(compileAll(*this, scope));
}

PredicatePtr StructuralEvaluator::Root::compile(Scope &scope) const {
    return makeLeaf([&scope](const NodeRec *element) { return element == scope.root; },
                    {.growing = false, .reach = 0});
}

PredicatePtr StructuralEvaluator::Has::compile(Scope &scope) const {
    return makeHas(*evaluator(), scope);
}

PredicatePtr StructuralEvaluator::Not::compile(Scope &scope) const {
    return std::make_unique<NotPredicate>(evaluator()->compile(scope), isScopeFree(*evaluator()));
}

PredicatePtr StructuralEvaluator::Parent::compile(Scope &scope) const {
    return std::make_unique<AncestorPredicate>(evaluator()->compile(scope), scope);
}

PredicatePtr StructuralEvaluator::ImmediateParent::compile(Scope &scope) const {
    return std::make_unique<ParentPredicate>(evaluator()->compile(scope), scope);
}

PredicatePtr StructuralEvaluator::PreviousSibling::compile(Scope &scope) const {
    return std::make_unique<EarlierSiblingPredicate>(evaluator()->compile(scope), scope);
}

PredicatePtr StructuralEvaluator::ImmediatePreviousSibling::compile(Scope &scope) const {
    return std::make_unique<PreviousSiblingPredicate>(evaluator()->compile(scope), scope);
}

} // namespace orl::html
