#include "predicate.h"

#include "orl/html/evaluator.h"
#include "tables.h"

#include <algorithm>

namespace orl::html::core {

namespace {

/// Predicate::findIn, but not deeper than so many levels.
Found findWithin(Predicate &predicate, NodeRec *top, std::uint32_t levels) {
    Found found;
    std::uint32_t level = 0;
    for (NodeRec *node = top;;) {
        if (isElement(node) && predicate.holds(node)) found.push_back(refOf(node));
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
        : Predicate({.growing = false, .cheap = false, .sure = false}),
          evaluator_(evaluator),
          scope_(scope) {}

    bool holds(NodeRec *element) override {
        return evaluator_.matches(Element(scope_.root), Element(element));
    }

private:
    const Evaluator &evaluator_;
    Scope &scope_;
};

} // namespace

namespace {

void appendKind(std::string &question, char kind, std::size_t count) {
    question += kind;
    for (; count > 0; count /= 10)
        question += char('0' + count % 10);
    question += ' ';
}

} // namespace

bool appendNameQuestion(std::string &question, char kind, std::string_view name) {
    appendKind(question, kind, name.size());
    question += name;
    return true;
}

bool appendQuestionOf(std::string &question, char kind, const Predicate &inner) {
    question += kind;
    return inner.appendQuestion(question);
}

bool appendQuestionOfAll(std::string &question, char kind, const std::vector<PredicatePtr> &parts) {
    appendKind(question, kind, parts.size());
    return std::ranges::all_of(
        parts, [&question](const PredicatePtr &part) { return part->appendQuestion(question); });
}

Search::Search(const Evaluator &evaluator)
    : scope_{nullptr, places_}, predicate_(evaluator.compile(scope_)) {}

void Search::setRoot(NodeRec *root) {
    if (scope_.root == root) return;
    const bool changed = scope_.root;
    scope_.root = root;
    if (changed) predicate_->rootChanged();
}

/// The answers about a whole tree are kept: those are the searches that take long.
SharedRefs Search::run() {
    Arena &arena = arenaOf(scope_.root);
    if (scope_.root->parent || arena.isLoose()) return SharedRefs(find());
    std::string question;
    question.reserve(100);
    if (!predicate_->appendQuestion(question)) return SharedRefs(find());
    if (const SharedRefs *known = arena.tables().answers.find(arena.version, scope_.root, question))
        return *known;
    SharedRefs found(find());
    arena.tables().answers.add(arena.version, scope_.root, question, found);
    return found;
}

/// What may fail is asked about every element: it may fail at one that is too deep to be found.
Found Search::find() {
    if (traits().reach == Traits::unlimited || !traits().sure) return predicate_->findIn(scope_.root);
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
