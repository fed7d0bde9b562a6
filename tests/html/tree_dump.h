// A tree as text: one line a node behind "| " and two blanks for each level, attributes below their element.
#pragma once

#include <orl/html/document.h>
#include <orl/html/parser.h>

#include <string>
#include <string_view>
#include <vector>

namespace orl::html {

inline std::string dumpLine(const Node &node) {
    if (node.is<TextNode>()) return "\"" + node.as<TextNode>().getWholeText() + "\"";
    if (node.is<DataNode>()) return "#data \"" + node.as<DataNode>().getWholeData() + "\"";
    if (node.is<Comment>()) return "<!--" + node.as<Comment>().getData() + "-->";
    if (node.is<DocumentType>() || node.is<XmlDeclaration>()) return node.outerHtml();
    return "<" + node.nodeName() + ">";
}

/// Walks without recursion, so that it serves for deep trees too.
inline std::string dump(const std::vector<Node> &roots) {
    std::string text;
    std::vector<std::pair<Node, std::size_t>> left;
    for (auto root = roots.rbegin(); root != roots.rend(); ++root)
        left.emplace_back(*root, 0);
    while (!left.empty()) {
        const auto [node, depth] = left.back();
        left.pop_back();
        const std::string margin = "| " + std::string(2 * depth, ' ');
        text.append(margin).append(dumpLine(node)).append("\n");
        if (!node.is<Element>()) continue;
        for (const Attribute &attribute : node.getAttributes())
            text.append(margin)
                .append("  ")
                .append(attribute.getKey())
                .append("=\"")
                .append(attribute.getValue())
                .append("\"\n");
        const auto children = node.getChildNodes();
        for (auto child = children.rbegin(); child != children.rend(); ++child)
            left.emplace_back(*child, depth + 1);
    }
    return text;
}

inline std::string dump(const Node &parent) {
    const auto children = parent.getChildNodes();
    return dump(std::vector<Node>(children.begin(), children.end()));
}

} // namespace orl::html
