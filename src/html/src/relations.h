// Combinations of predicates, and ":has".
#pragma once

#include "predicate.h"

#include <vector>

namespace orl::html::core {

/// All of them, asked in order.
PredicatePtr makeAnd(std::vector<PredicatePtr> parts);
/// Any of them.
PredicatePtr makeOr(std::vector<PredicatePtr> parts);

/// Whether the root of the search makes no difference to the answer.
bool isScopeFree(const Evaluator &evaluator);

/// Some element below the one that is asked about matches, as seen from that one as root.
PredicatePtr makeHas(const Evaluator &inner, Scope &scope);

} // namespace orl::html::core
