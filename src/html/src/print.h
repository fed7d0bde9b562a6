// Writing nodes as HTML.
#pragma once

#include "attrs.h"
#include "core.h"
#include "output.h"

#include <orl/html/output_settings.h>

namespace orl::html::core {

/// The settings of the document that the node stands in, or the default ones.
const OutputSettings &printSettings(const NodeRec *node);

/// The node and all below it. Pretty printing may break the line before it, as if more stood around it.
void printNode(Output &out, const NodeRec *root, const OutputSettings &settings);
/// The same of each child in turn.
void printChildren(Output &out, const NodeRec *node, const OutputSettings &settings);
/// What is inside a node, trimmed if the settings print prettily.
std::string innerHtml(const NodeRec *node);

void printAttr(Output &out, const AttrRec &attr, const OutputSettings &settings);
/// Each with a blank before it.
void printAttrs(Output &out, const NodeRec *node, const OutputSettings &settings);

inline bool isBooleanAttr(const AttrRec &attr) {
    return attr.isBoolean() || (at<NameRec>(at<NameRec>(attr.name)->lower)->flags & NameRec::Boolean);
}

} // namespace orl::html::core
