#pragma once

#include <orl/html/evaluator.h>
#include <orl/html/export.h>

#include <string_view>

namespace orl::html {

/// Reads a selector: CSS, and the engine's own :lt, :gt, :eq, :has, :contains, :containsOwn, :matches and
/// :matchesOwn.
///
/// | div, *, ns\|a, *\|a        | by tag name; the last one in any namespace |
/// | #id, .class                | |
/// | [key], [^prefix]           | has the attribute, has one whose key starts like this |
/// | [k=v] [k!=v] [k^=v] [k$=v] [k*=v] [k~=regex] | compares the value, ignoring case |
/// | A B, A > B, A + B, A ~ B   | below, child of, right after, anywhere after |
/// | A, B                       | either |
/// | > B                        | child of the root of the search; likewise the other combinators |
///
/// A search is linear in the size of the tree, except that :matches puts the text of each element together on
/// its own, and that a :has with :root, or with a combinator inside :not, in it is asked anew of each
/// element.
class ORL_HTML_API QueryParser {
public:
    /// A query of white space only fails with "String must not be empty", one that is no selector with an
    /// Error of type SelectorParseException or IllegalArgumentException that says why, one that nests more
    /// than two hundred levels deep with type SelectorParseException.
    static EvaluatorPtr parse(std::string_view query);
};

} // namespace orl::html
