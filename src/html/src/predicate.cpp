#include "predicate.h"

#include "orl/html/evaluator.h"

namespace orl::html::core {

namespace {

/// Predicate::findIn, but not deeper than so many levels.
Found findWithin(Predicate &predicate, NodeRec *top, std::uint32_t levels) {
    Found found;
    std::uint32_t level = 0;
    for (NodeRec *node = top;;) {
        if (isElement(node) && predicate.holds(node)) found.push_back(node);
        if (NodeRec *child = level < levels ? firstChild(node) : nullptr) {
            node = child;
            ++level;
            continue;
        }
        while (node != top && !node->next) {
            node = parent(node);
            --level;
        }
        if (node == top) return found;
        node = nextSibling(node);
    }
}

/// An evaluator that is none of the engine's own.
class CustomPredicate final : public Predicate {
public:
    CustomPredicate(const Evaluator &evaluator, Scope &scope)
        : Predicate({.growing = false, .cheap = false}), evaluator_(evaluator), scope_(scope) {}

    bool holds(NodeRec *element) override {
        return evaluator_.matches(Element(scope_.root), Element(element));
    }

private:
    const Evaluator &evaluator_;
    Scope &scope_;
};

} // namespace

Search::Search(const Evaluator &evaluator)
    : scope_{nullptr, places_}, predicate_(evaluator.compile(scope_)) {}

void Search::setRoot(NodeRec *root) {
    if (scope_.root == root) return;
    const bool changed = scope_.root;
    scope_.root = root;
    if (changed) predicate_->rootChanged();
}

Found Search::run() {
    if (traits().reach == Traits::unlimited) return predicate_->findIn(scope_.root);
    return findWithin(*predicate_, scope_.root, traits().reach);
}

} // namespace orl::html::core

namespace orl::html {

std::unique_ptr<core::Predicate> Evaluator::compile(core::Scope &scope) const {
    return std::make_unique<core::CustomPredicate>(*this, scope);
}

bool Evaluator::BuiltIn::matches(const Element &root, const Element &element) const {
    core::Search search(*this);
    search.setRoot(root.record());
    return search.matches(element.record());
}

} // namespace orl::html
