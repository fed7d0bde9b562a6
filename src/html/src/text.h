// Text out of a tree, and its white space.
#pragma once

#include "core.h"
#include "output.h"
#include "scan.h"

#include <string>
#include <string_view>

namespace orl::html::core {

/// The white space of the regular expression "\\s" within ASCII, which has the vertical tab too.
inline bool isPatternSpace(char c) {
    return isWhite(c) || c == '\v';
}

/// Appends the text with each run of white space as one blank; a run at the start becomes nothing if
/// `afterBlank`.
void appendNormalised(Output &out, std::string_view text, bool afterBlank);

/// Appends the text escaped for the space between tags, in UTF-8; runs of white space become one blank if
/// `collapse`.
void appendEscaped(Output &out, std::string_view text, bool collapse);
/// Appends the text escaped for a quoted attribute value, in UTF-8.
void appendEscapedValue(Output &out, std::string_view text);

/// Whether text right below this element, which may be null, keeps its white space.
inline bool preservesWhitespace(const NodeRec *element) {
    if (!element || !isElement(element)) return false;
    if (tagOf(element)->has(TagRec::PreserveWhitespace)) return true;
    const NodeRec *above = parentOf(element);
    return above && isElement(above) && tagOf(above)->has(TagRec::PreserveWhitespace);
}

/// What text() makes of one text node; `afterBlank` says that a blank stands before it.
void appendTextNode(Output &out, const NodeRec *node, bool preserve, bool afterBlank);
/// Whether text() puts a blank where such an element starts.
inline bool breaksText(const TagRec *tag) {
    return tag->has(TagRec::Block) || tag->id == TagId::Br;
}

std::string textOf(const NodeRec *root);
std::string ownTextOf(const NodeRec *element);
bool hasTextIn(const NodeRec *root);
std::string dataOf(const NodeRec *element);

} // namespace orl::html::core
