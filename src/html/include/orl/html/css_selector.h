#pragma once

#include <orl/html/elements.h>
#include <orl/html/evaluator.h>
#include <orl/html/export.h>

#include <string_view>

namespace orl::html {

/// One walk over an element and everything below it.
struct ORL_HTML_API Collector {
    /// What the evaluator matches, in document order; the root may be among it. An evaluator's failure ends
    /// the walk and reaches the caller.
    static Elements collect(const Evaluator &evaluator, const Element &root);
};

/// A query and the element below which it is asked. An empty query fails with "String must not be empty",
/// others as QueryParser says.
class ORL_HTML_API CssSelector {
public:
    CssSelector(std::string_view query, const Element &root);

    Elements select() const;

    static Elements select(std::string_view query, const Element &root);
    static Elements select(const EvaluatorPtr &evaluator, const Element &root);
    /// Each root in turn; an element that is found several times counts once.
    static Elements select(std::string_view query, const Elements &roots);

private:
    EvaluatorPtr evaluator_;
    Element root_;
};

} // namespace orl::html
