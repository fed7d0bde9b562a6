#include "print.h"

#include "escape.h"
#include "text.h"
#include "utf8.h"

namespace orl::html::core {

namespace {

/// One printing: the settings in the form in which they are asked for at every node.
class Printer {
public:
    Printer(Output &out, const OutputSettings &settings)
        : out_(out),
          pretty_(settings.prettyPrint()),
          outline_(settings.outline()),
          html_(settings.syntax() == OutputSettings::Syntax::html),
          indentAmount_(settings.indentAmount()),
          mode_(settings.escapeMode()),
          encoding_(settings.encoder()),
          common_(encoding_.isUtf8() && mode_.value() != Entities::EscapeMode::xhtml().value()) {}

    void tree(const NodeRec *root) {
        std::size_t depth = 0;
        const NodeRec *node = root;
        for (;;) {
            head(node, depth);
            if (const NodeRec *child = firstChild(node)) {
                node = child;
                ++depth;
                continue;
            }
            while (!node->next && depth > 0) {
                tail(node, depth);
                node = parent(node);
                --depth;
            }
            tail(node, depth);
            if (node == root) return;
            node = nextSibling(node);
        }
    }

    void attr(const AttrRec &attr) {
        const std::string_view key = attr.key(), value = attr.text();
        out_.ensure(key.size() + 2);
        out_.put(key);
        if (html_ && mayCollapse(key, value) && isBooleanAttr(attr)) return;
        out_.put("=\"");
        if (common_)
            appendEscapedValue(out_, value);
        else
            escapeTo(out_, value, {&mode_, &encoding_, true, false, false});
        out_.push_back('"');
    }

    void attrs(const NodeRec *node) {
        if (!hasBranch(node)) return;
        for (const AttrRec &entry : attrBlock(node)) {
            out_.push_back(' ');
            attr(entry.target());
        }
    }

private:
    static bool mayCollapse(std::string_view key, std::string_view value) {
        return value.empty() || (value.size() == key.size() && lowerCase(value) == lowerCase(key));
    }

    void indent(std::size_t depth) {
        out_.push_back('\n');
        out_.fill(depth * indentAmount_, ' ');
    }

    void head(const NodeRec *node, std::size_t depth) {
        switch (kindOf(node)) {
        case Kind::Element:
        case Kind::Form:
        case Kind::Document: return elementHead(node, depth);
        case Kind::Text: return text(node, depth);
        case Kind::Data: return out_.append(leafText(node));
        case Kind::Comment:
            if (pretty_) indent(depth);
            out_.append("<!--");
            out_.append(leafText(node));
            return out_.append("-->");
        case Kind::Doctype: return doctype(node);
        case Kind::XmlDeclaration: return declaration(node);
        }
    }

    static bool formatsAsBlock(const NodeRec *element) {
        return element && isElement(element) && tagOf(element)->has(TagRec::FormatAsBlock);
    }
    static bool printsNoEnd(const NodeRec *element) {
        return !element->branch.firstChild && tagOf(element)->closesItself();
    }

    void elementHead(const NodeRec *node, std::size_t depth) {
        const TagRec *tag = tagOf(node);
        if (pretty_ && !out_.empty() && (formatsAsBlock(node) || outline_ || formatsAsBlock(parentOf(node))))
            indent(depth);
        out_.ensure(tag->length + 4);
        out_.put('<');
        out_.put(tag->name());
        if (node->attrCount) attrs(node);
        if (printsNoEnd(node) && !(html_ && tag->has(TagRec::Empty)))
            out_.append(" />");
        else
            out_.push_back('>');
    }

    void tail(const NodeRec *node, std::size_t depth) {
        if (!isElement(node) || printsNoEnd(node)) return;
        const TagRec *tag = tagOf(node);
        if (pretty_ && node->branch.firstChild &&
            (tag->has(TagRec::FormatAsBlock) || (outline_ && isWorthALine(node))))
            indent(depth);
        out_.ensure(tag->length + 3);
        out_.put("</");
        out_.put(tag->name());
        out_.put('>');
    }

    /// More than one child, or one that is no text.
    static bool isWorthALine(const NodeRec *node) {
        const NodeRec *first = firstChild(node);
        return first->next || !isText(first);
    }

    void text(const NodeRec *node, std::size_t depth) {
        const std::string_view text = leafText(node);
        const NodeRec *above = parentOf(node);
        if (pretty_ && breaksBefore(node, above) && !isAllWhite(text)) indent(depth);
        const bool collapse = pretty_ && above && isElement(above) && !preservesWhitespace(above);
        if (common_)
            appendEscaped(out_, text, collapse);
        else
            escapeTo(out_, text, {&mode_, &encoding_, false, collapse, false});
    }

    bool breaksBefore(const NodeRec *text, const NodeRec *above) const {
        if (!isLinked(text)) return false;
        const bool isFirst = above->branch.firstChild == refOf(text);
        return (isFirst && formatsAsBlock(above)) || (outline_ && (!isFirst || text->next));
    }

    void doctype(const NodeRec *node) {
        const auto value = [node](NameId name) { return attrValue(node, nameRef(name)); };
        const std::string_view publicId = value(NameId::PublicId), systemId = value(NameId::SystemId);
        out_.append(html_ && isAllWhite(publicId) && isAllWhite(systemId) ? "<!doctype" : "<!DOCTYPE");
        for (const NameId name : {NameId::Name, NameId::PubSysKey}) {
            if (isAllWhite(value(name))) continue;
            out_.push_back(' ');
            out_.append(value(name));
        }
        for (const std::string_view id : {publicId, systemId}) {
            if (isAllWhite(id)) continue;
            out_.append(" \"");
            out_.append(id);
            out_.push_back('"');
        }
        out_.push_back('>');
    }

    void declaration(const NodeRec *node) {
        const char mark = node->flags & NodeRec::ProcessingInstruction ? '!' : '?';
        out_.push_back('<');
        out_.push_back(mark);
        out_.append(tagOf(node)->name());
        attrs(node);
        out_.push_back(mark);
        out_.push_back('>');
    }

    Output &out_;
    const bool pretty_, outline_, html_;
    const std::size_t indentAmount_;
    const Entities::EscapeMode &mode_;
    const TextEncoding &encoding_;
    const bool common_; ///< no character needs a reference but the fixed few
};

} // namespace

const OutputSettings &printSettings(const NodeRec *node) {
    static const OutputSettings defaults;
    while (kindOf(node) != Kind::Document) {
        node = parentOf(node);
        if (!node) return defaults;
    }
    const OutputSettings *settings = settingsIfAny(node);
    return settings ? *settings : defaults;
}

void printNode(Output &out, const NodeRec *root, const OutputSettings &settings) {
    Printer(out, settings).tree(root);
}

void printChildren(Output &out, const NodeRec *node, const OutputSettings &settings) {
    Printer printer(out, settings);
    for (const NodeRec *child = firstChild(node); child; child = nextSibling(child))
        printer.tree(child);
}

std::string innerHtml(const NodeRec *node) {
    const OutputSettings &settings = printSettings(node);
    Output out;
    printChildren(out, node, settings);
    return toString(settings.prettyPrint() ? trimmed(out.view()) : out.view());
}

void printAttr(Output &out, const AttrRec &attr, const OutputSettings &settings) {
    Printer(out, settings).attr(attr);
}

void printAttrs(Output &out, const NodeRec *node, const OutputSettings &settings) {
    Printer(out, settings).attrs(node);
}

} // namespace orl::html::core
