// Which elements of a subtree contain a text.
#pragma once

#include "node_marks.h"
#include "predicate.h"

#include <string>
#include <string_view>

namespace orl::html::core {

/// Element::text of the element, in lower case, contains the wanted text. A few elements are looked at one by
/// one; then the text of the root is put together once, as what every element contains is a stretch of it.
class TextPredicate final : public Predicate {
public:
    TextPredicate(std::string_view wantedLower, Scope &scope)
        : Predicate({.cheap = false}), wanted_(wantedLower), scope_(scope) {}

    bool holds(NodeRec *element) override;

private:
    bool look(const NodeRec *element) const;
    void lookAtAll();

    std::string wanted_;
    Scope &scope_;
    NodeAnswers answers_;
    const NodeRec *root_ = nullptr; ///< the root when an element was last asked about
    int asked_ = 0;                 ///< elements below it that were looked at on their own
};

} // namespace orl::html::core
