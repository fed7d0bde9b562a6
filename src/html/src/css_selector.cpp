#include "orl/html/css_selector.h"

#include "checks.h"
#include "node_marks.h"
#include "orl/html/query_parser.h"
#include "predicate.h"

namespace orl::html {

using namespace core;

Elements Collector::collect(const Evaluator &evaluator, const Element &root) {
    Search search(evaluator);
    search.setRoot(root.record());
    return Elements(search.run());
}

CssSelector::CssSelector(std::string_view query, const Element &root)
    : evaluator_(QueryParser::parse(query)), root_(root) {}

Elements CssSelector::select() const {
    return Collector::collect(*evaluator_, root_);
}

Elements CssSelector::select(std::string_view query, const Element &root) {
    return CssSelector(query, root).select();
}

Elements CssSelector::select(const EvaluatorPtr &evaluator, const Element &root) {
    return Collector::collect(*evaluator, root);
}

namespace {

/// Elements below which was searched already.
class SearchedRoots {
public:
    void add(const NodeRec *root) { answers_.set(root, true); }

    /// Whether the element is one of them or below one. The roots of a list mostly stand in document order,
    /// so what was found out on the way up is kept.
    bool cover(const NodeRec *element) {
        const NodeRec *above = element;
        while (above && !answers_.isKnown(above))
            above = parentOf(above);
        const bool answer = above && answers_.get(above);
        for (const NodeRec *passed = element; passed != above; passed = parentOf(passed))
            answers_.set(passed, answer);
        return answer;
    }

private:
    NodeAnswers answers_;
};

} // namespace

Elements CssSelector::select(std::string_view query, const Elements &roots) {
    const EvaluatorPtr evaluator = QueryParser::parse(query);
    Search search(*evaluator);
    SearchedRoots searched;
    NodeSet seen;
    Found all;
    bool isOneTree = true;
    for (const Element &root : roots) {
        isOneTree = isOneTree && &arenaOf(root.record()) == &arenaOf(roots.first().record());
        // What a root inside another one would find, that one has found.
        if (search.traits().growing && searched.cover(root.record())) continue;
        searched.add(root.record());
        search.setRoot(root.record());
        for (const Ref element : search.run())
            if (seen.add(at<NodeRec>(element))) all.push_back(element);
    }
    if (isOneTree) return asElements(std::move(all));
    Elements found;
    for (const Ref element : all)
        found.add(Element(at<NodeRec>(element)));
    return found;
}

} // namespace orl::html
