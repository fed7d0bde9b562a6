#include "search.h"

#include "checks.h"
#include "class_match.h"
#include "columns.h"
#include "orl/html/elements.h"
#include "text.h"
#include "tree.h"
#include "utf8.h"

#include <algorithm>

namespace orl::html {

using namespace core;

namespace {

Elements asElements(const Found &found) {
    std::vector<Element> all;
    all.reserve(found.size());
    for (NodeRec *node : found) {
        hold(node);
        all.emplace_back(node, Node::Held());
    }
    return all;
}

/// A key and a value to compare with, as the searches by value take them.
struct KeyAndValue {
    KeyAndValue(std::string_view givenKey, std::string_view givenValue)
        : key(trimmed(checked(givenKey))), value(lowerCase(trimmed(unquoted(checked(givenValue))))) {}

    static std::string_view checked(std::string_view text) {
        checkNotEmpty(text);
        return text;
    }
    static std::string_view unquoted(std::string_view text) {
        const bool quoted =
            text.size() > 1 && text.front() == text.back() && (text.front() == '"' || text.front() == '\'');
        return quoted ? text.substr(1, text.size() - 2) : text;
    }

    std::string key, value;
};

/// The attribute as attr() reads it, for elements that have it.
class AttrReader {
public:
    explicit AttrReader(std::string_view key)
        : key_(key), lower_(key), absolute_(lower_.lower().starts_with("abs:")) {}

    bool isOn(NodeRec *element) const {
        return absolute_ ? Node(element).hasAttr(key_) : findAttr(element, lower_) != nullptr;
    }
    std::string on(NodeRec *element) const {
        if (absolute_) return Node(element).attr(key_);
        const AttrRec *found = findAttr(element, lower_);
        return found ? std::string(found->text()) : std::string();
    }

private:
    std::string key_;
    AnyCaseKey lower_;
    bool absolute_;
};

template<class Compares>
Elements byValue(NodeRec *root, std::string_view key, std::string_view value, Compares compares) {
    const KeyAndValue wanted(key, value);
    const AttrReader reader(wanted.key);
    return asElements(findAll(root, [&](NodeRec *element) {
        return reader.isOn(element) && compares(lowerCase(reader.on(element)), wanted.value);
    }));
}

template<class Compares>
Elements byIndex(NodeRec *root, Compares compares) {
    return asElements(
        findAll(root, [&](NodeRec *element) { return compares(std::ptrdiff_t(elementIndex(element))); }));
}

} // namespace

namespace core {

namespace {

/// The text of a tree in lower case, and where in it that of each element stands. What an element's text() is
/// on its own is its stretch, trimmed: whatever stands before an element only decides about blanks at its
/// start.
class LowerText {
public:
    explicit LowerText(NodeRec *root) {
        std::vector<std::size_t> open;
        for (NodeRec *node = root;;) {
            enter(node, open);
            if (NodeRec *child = firstChild(node)) {
                node = child;
                continue;
            }
            leave(node, open);
            while (node != root && !node->next) {
                node = parent(node);
                leave(node, open);
            }
            if (node == root) return;
            node = nextSibling(node);
        }
    }

    Found elementsWith(std::string_view wanted) const {
        std::vector<std::size_t> places;
        for (std::size_t at = text_.find(wanted); at < text_.size(); at = text_.find(wanted, at + 1))
            places.push_back(at);
        Found found;
        for (const Stretch &stretch : elements_) {
            const std::string_view own =
                trimmed(std::string_view(text_).substr(stretch.begin, stretch.end - stretch.begin));
            const auto begin = std::size_t(own.data() - text_.data());
            const auto place = std::ranges::lower_bound(places, begin);
            if (wanted.empty() || (place != places.end() && *place + wanted.size() <= begin + own.size()))
                found.push_back(stretch.element);
        }
        return found;
    }

private:
    struct Stretch {
        NodeRec *element;
        std::size_t begin, end;
    };

    void enter(NodeRec *node, std::vector<std::size_t> &open) {
        if (isText(node)) {
            Output piece;
            appendTextNode(piece, node, preservesWhitespace(parentOf(node)), text_.ends_with(' '));
            text_ += lowerCase(piece.view());
        } else if (isElement(node)) {
            open.push_back(elements_.size());
            elements_.push_back({node, text_.size(), 0});
            if (breaksText(tagOf(node)) && !text_.empty() && text_.back() != ' ') text_ += ' ';
        }
    }
    void leave(const NodeRec *node, std::vector<std::size_t> &open) {
        if (!isElement(node)) return;
        elements_[open.back()].end = text_.size();
        open.pop_back();
    }

    std::string text_;
    std::vector<Stretch> elements_; ///< in document order
};

} // namespace

Found elementsContaining(NodeRec *root, std::string_view lowerText) {
    return LowerText(root).elementsWith(lowerText);
}

} // namespace core

Elements Element::getElementsByTag(std::string_view tagName) const {
    checkNotEmpty(tagName);
    const std::string lower = lowerCase(tagName);
    const TagName name(trimmed(lower));
    return asElements(findInColumn(record_, &Columns::tags, &Columns::tagExamples,
                                   [&](const NodeRec *element) { return name.isOf(element); }));
}

Element Element::getElementById(std::string_view id) const {
    checkNotEmpty(id);
    return Element(findFirst(record_, [&](NodeRec *element) { return idOf(element) == id; }));
}

Elements Element::getElementsByClass(std::string_view className) const {
    checkNotEmpty(className);
    const ClassName name(className);
    return asElements(findInColumn(record_, &Columns::classes, &Columns::classExamples,
                                   [&](const NodeRec *element) { return name.isIn(element); }));
}

Elements Element::getElementsByAttribute(std::string_view key) const {
    checkNotEmpty(key);
    const AttrReader reader(trimmed(key));
    return asElements(findAll(record_, [&](NodeRec *element) { return reader.isOn(element); }));
}

Elements Element::getElementsByAttributeStarting(std::string_view keyPrefix) const {
    checkNotEmpty(keyPrefix);
    const std::string prefix = lowerCase(trimmed(keyPrefix));
    return asElements(findAll(record_, [&](NodeRec *element) {
        return std::ranges::any_of(attrBlock(element), [&](const AttrRec &entry) {
            const auto *name = at<NameRec>(entry.target().name);
            return at<NameRec>(name->lower)->name().starts_with(prefix);
        });
    }));
}

Elements Element::getElementsByAttributeValue(std::string_view key, std::string_view value) const {
    return byValue(record_, key, value,
                   [](std::string_view has, std::string_view wanted) { return trimmed(has) == wanted; });
}

Elements Element::getElementsByAttributeValueNot(std::string_view key, std::string_view value) const {
    const KeyAndValue wanted(key, value);
    const AttrReader reader(wanted.key);
    return asElements(
        findAll(record_, [&](NodeRec *element) { return lowerCase(reader.on(element)) != wanted.value; }));
}

Elements Element::getElementsByAttributeValueStarting(std::string_view key,
                                                      std::string_view valuePrefix) const {
    return byValue(record_, key, valuePrefix,
                   [](std::string_view has, std::string_view wanted) { return has.starts_with(wanted); });
}

Elements Element::getElementsByAttributeValueEnding(std::string_view key,
                                                    std::string_view valueSuffix) const {
    return byValue(record_, key, valueSuffix,
                   [](std::string_view has, std::string_view wanted) { return has.ends_with(wanted); });
}

Elements Element::getElementsByAttributeValueContaining(std::string_view key, std::string_view match) const {
    return byValue(record_, key, match, [](std::string_view has, std::string_view wanted) {
        return has.find(wanted) != std::string_view::npos;
    });
}

Elements Element::getElementsByIndexLessThan(std::ptrdiff_t index) const {
    return byIndex(record_, [index](std::ptrdiff_t place) { return place < index; });
}

Elements Element::getElementsByIndexGreaterThan(std::ptrdiff_t index) const {
    return byIndex(record_, [index](std::ptrdiff_t place) { return place > index; });
}

Elements Element::getElementsByIndexEquals(std::ptrdiff_t index) const {
    return byIndex(record_, [index](std::ptrdiff_t place) { return place == index; });
}

Elements Element::getElementsContainingText(std::string_view searchText) const {
    return asElements(elementsContaining(record_, lowerCase(searchText)));
}

Elements Element::getElementsContainingOwnText(std::string_view searchText) const {
    const std::string wanted = lowerCase(searchText);
    return asElements(findAll(record_, [&](NodeRec *element) {
        return lowerCase(ownTextOf(element)).find(wanted) != std::string::npos;
    }));
}

Elements Element::getAllElements() const {
    return asElements(findAll(record_, [](NodeRec *) { return true; }));
}

Elements Element::select(std::string_view cssQuery) const {
    const std::string_view query = trimmed(cssQuery);
    checkNotEmpty(query);
    const auto isNameCharacter = [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '-' ||
               c == '_';
    };
    const auto rest = std::size_t(std::ranges::find_if_not(query, isNameCharacter) - query.begin());
    if (rest < query.size()) {
        throw Exception::Error(ExceptionType::SelectorParseException,
                               "Could not parse query " + std::string(query) + ": unexpected token at " +
                                   std::string(query.substr(rest)));
    }
    return getElementsByTag(query);
}

} // namespace orl::html
