#include "orl/html/cleaner.h"

#include "attrs.h"
#include "core.h"
#include "orl/html/parser.h"
#include "tree.h"

namespace orl::html {

using namespace core;

/// Builds the safe nodes of one tree into another.
class Cleaner::CleaningVisitor {
public:
    CleaningVisitor(const Cleaner &cleaner, const Element &root, const Element &destination)
        : whitelist_(cleaner.whitelist_), root_(root.record()), destination_(destination.record()) {}

    void walk() {
        for (NodeRec *node = root_;;) {
            head(node);
            if (NodeRec *child = firstChild(node)) {
                node = child;
                continue;
            }
            tail(node);
            while (node != root_ && !node->next) {
                node = parent(node);
                tail(node);
            }
            if (node == root_) return;
            node = nextSibling(node);
        }
    }

    std::size_t numDiscarded() const { return numDiscarded_; }

private:
    void head(NodeRec *node) {
        if (isElement(node))
            enter(node);
        else if (isText(node) || (kindOf(node) == Kind::Data && isSafe(parent(node))))
            append(destination_, copyOf(node));
        else
            ++numDiscarded_;
    }

    void tail(NodeRec *node) {
        if (isElement(node) && isSafe(node)) destination_ = parent(destination_);
    }

    void enter(NodeRec *element) {
        if (isSafe(element)) {
            NodeRec *made = createSafeElement(element);
            append(destination_, made);
            destination_ = made;
        } else if (element != root_) {
            ++numDiscarded_;
        }
    }

    bool isSafe(const NodeRec *element) const { return whitelist_.isSafeTag(tagOf(element)->name()); }

    NodeRec *copyOf(const NodeRec *leaf) {
        Arena &arena = arenaOf(destination_);
        NodeRec *made = arena.newLeaf(kindOf(leaf), arena.store(leafText(leaf)));
        setOwnBaseUri(made, baseUriOf(leaf));
        return made;
    }

    NodeRec *createSafeElement(NodeRec *source) {
        const auto tag = Whitelist::TagName::valueOf(tagOf(source)->name());
        NodeRec *made = newElementLike(destination_, tag.value);
        setOwnBaseUri(made, baseUriOf(source));
        std::string newValue;
        for (const AttrRec &entry : attrBlock(source)) {
            const AttrRec &attr = entry.target();
            const auto verdict = whitelist_.judge(tag, attr.key(), attr.text(), baseUriOf(source), newValue);
            if (verdict == Whitelist::Verdict::Unsafe)
                ++numDiscarded_;
            else if (verdict == Whitelist::Verdict::SafeWithValue)
                putAttr(made, attr.key(), newValue);
            else
                copyAttribute(attr, made);
        }
        const auto enforced = whitelist_.enforcedAttributes_.find(tag);
        if (enforced == whitelist_.enforcedAttributes_.end()) return made;
        for (const auto &[key, value] : enforced->second)
            putAttr(made, key.value, value.value);
        return made;
    }

    static void copyAttribute(const AttrRec &attr, NodeRec *to) {
        const std::string_view value = attr.text();
        AttrRec copy = makeAttr(arenaOf(to), attr.key(), attr.value ? &value : nullptr);
        copy.length = attr.length; // with the mark of a boolean attribute
        putAttr(to, copy);
    }

    const Whitelist &whitelist_;
    NodeRec *const root_;
    NodeRec *destination_;
    std::size_t numDiscarded_ = 0;
};

std::size_t Cleaner::copySafeNodes(const Element &source, const Element &destination) const {
    CleaningVisitor visitor(*this, source, destination);
    visitor.walk();
    ++arenaOf(destination.record()).version;
    return visitor.numDiscarded();
}

Document Cleaner::clean(const Document &dirtyDocument) const {
    Document cleanDocument = Document::createShell(dirtyDocument.getBaseUri());
    if (const Element body = dirtyDocument.body()) copySafeNodes(body, cleanDocument.body());
    return cleanDocument;
}

bool Cleaner::isValid(const Document &dirtyDocument) const {
    const Element body = dirtyDocument.body();
    return body && copySafeNodes(body, Document::createShell(dirtyDocument.getBaseUri()).body()) == 0;
}

std::string clean(std::string_view bodyHtml, const Whitelist &whitelist) {
    return clean(bodyHtml, "", whitelist);
}

std::string clean(std::string_view bodyHtml, std::string_view baseUri, const Whitelist &whitelist) {
    return clean(bodyHtml, baseUri, whitelist, OutputSettings());
}

std::string clean(std::string_view bodyHtml, std::string_view baseUri, const Whitelist &whitelist,
                  const OutputSettings &outputSettings) {
    const Document cleaned = Cleaner(whitelist).clean(Parser::parseBodyFragment(bodyHtml, baseUri));
    cleaned.outputSettings(outputSettings);
    return cleaned.body().html();
}

bool isValid(std::string_view bodyHtml, const Whitelist &whitelist) {
    return Cleaner(whitelist).isValid(Parser::parseBodyFragment(bodyHtml, ""));
}

} // namespace orl::html
