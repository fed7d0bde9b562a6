// What every evaluator means, written down as plainly as possible over the public interface: one question at
// a time, with nothing kept and nothing shared. Searches are checked against it.
#pragma once

#include "utf8.h"

#include <orl/html/css_selector.h>
#include <orl/html/elements.h>
#include <orl/html/evaluator.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

namespace orl::html::naive {

inline std::string lower(const std::string &text) {
    return core::lowerCase(text);
}

inline std::string trim(const std::string &text) {
    return std::string(core::trimmed(text));
}

inline bool hasParentElement(const Element &element) {
    const Element parent = element.parent();
    return parent && !parent.Node::is<Document>();
}

/// The parent's child elements; the element alone without a parent.
inline std::vector<Element> family(const Element &element) {
    const Element parent = element.parent();
    return parent ? parent.children().array() : std::vector<Element>{element};
}

inline std::vector<Element> familyOfType(const Element &element) {
    std::vector<Element> all = family(element);
    std::erase_if(all, [&](const Element &other) { return !(other.tag() == element.tag()); });
    return all;
}

inline std::ptrdiff_t placeIn(const std::vector<Element> &all, const Element &element) {
    return std::find(all.begin(), all.end(), element) - all.begin();
}

inline bool nth(const Evaluator::CssNthEvaluator &evaluator, const Element &element) {
    using E = Evaluator;
    if (!hasParentElement(element)) return false;
    const bool ofType = dynamic_cast<const E::IsNthOfType *>(&evaluator) ||
                        dynamic_cast<const E::IsNthLastOfType *>(&evaluator);
    const bool fromEnd = dynamic_cast<const E::IsNthLastChild *>(&evaluator) ||
                         dynamic_cast<const E::IsNthLastOfType *>(&evaluator);
    const std::vector<Element> all = ofType ? familyOfType(element) : family(element);
    const std::ptrdiff_t place = placeIn(all, element);
    const std::ptrdiff_t position = fromEnd ? std::ptrdiff_t(all.size()) - place : place + 1;
    const std::ptrdiff_t a = evaluator.a(), past = position - evaluator.b();
    return a == 0 ? past == 0 : past * a >= 0 && past % a == 0;
}

bool matches(const Evaluator &evaluator, const Element &root, const Element &element);

/// A failing evaluator does not match.
inline bool matchesOrFails(const Evaluator &evaluator, const Element &root, const Element &element) {
    try {
        return matches(evaluator, root, element);
    } catch (const Exception::Error &) {
        return false;
    }
}

inline bool matchesRelated(const StructuralEvaluator &evaluator, const Element &root,
                           const Element &element) {
    using S = StructuralEvaluator;
    const Evaluator &inner = *evaluator.evaluator();
    if (dynamic_cast<const S::Not *>(&evaluator)) return !matches(inner, root, element);
    if (dynamic_cast<const S::Has *>(&evaluator)) {
        for (const Element &below : element.getAllElements())
            if (below != element && matchesOrFails(inner, element, below)) return true;
        return false;
    }
    if (element == root) return false;
    const std::vector<Element> all = family(element);
    const auto place = std::size_t(placeIn(all, element));
    if (dynamic_cast<const S::ImmediatePreviousSibling *>(&evaluator))
        return place > 0 && matches(inner, root, all[place - 1]);
    if (dynamic_cast<const S::PreviousSibling *>(&evaluator))
        return std::any_of(all.begin(), all.begin() + std::ptrdiff_t(place),
                           [&](const Element &other) { return matchesOrFails(inner, root, other); });
    if (dynamic_cast<const S::ImmediateParent *>(&evaluator))
        return element.parent() && matches(inner, root, element.parent());
    for (Element above = element.parent(); above; above = above.parent()) {
        if (matches(inner, root, above)) return true;
        if (above == root) return false;
    }
    return false;
}

inline bool matchesAttribute(const Evaluator::AttributeKeyPair &evaluator, const Element &element) {
    using E = Evaluator;
    const bool differs = dynamic_cast<const E::AttributeWithValueNot *>(&evaluator);
    if (!differs && !element.hasAttr(evaluator.key())) return false;
    const std::string has = lower(element.attr(evaluator.key())), &wanted = evaluator.value();
    if (differs) return has != wanted;
    if (dynamic_cast<const E::AttributeWithValue *>(&evaluator)) return trim(has) == wanted;
    if (dynamic_cast<const E::AttributeWithValueStarting *>(&evaluator)) return has.starts_with(wanted);
    if (dynamic_cast<const E::AttributeWithValueEnding *>(&evaluator)) return has.ends_with(wanted);
    return has.find(wanted) != std::string::npos;
}

inline bool isEmpty(const Element &element) {
    const std::vector<Node> nodes = element.getChildNodes();
    return std::all_of(nodes.begin(), nodes.end(), [](const Node &node) {
        return node.is<Comment>() || node.is<XmlDeclaration>() || node.is<DocumentType>();
    });
}

inline bool matches(const Evaluator &evaluator, const Element &root, const Element &element) {
    using E = Evaluator;
    const auto as = [&evaluator]<class Kind>(Kind *) { return dynamic_cast<const Kind *>(&evaluator); };
#define ORL_IF(name, type) if (const auto *name = as(static_cast<type *>(nullptr)))
    ORL_IF(all, CombiningEvaluator::And)
    return std::all_of(all->evaluators().begin(), all->evaluators().end(),
                       [&](const EvaluatorPtr &part) { return matches(*part, root, element); });
    ORL_IF(any, CombiningEvaluator::Or)
    return std::any_of(any->evaluators().begin(), any->evaluators().end(),
                       [&](const EvaluatorPtr &part) { return matches(*part, root, element); });
    ORL_IF(structural, StructuralEvaluator) return matchesRelated(*structural, root, element);
    ORL_IF(start, StructuralEvaluator::Root) return start && element == root;

    ORL_IF(tag, E::Tag) return element.tagNameNormal() == tag->tagNameNormal();
    ORL_IF(tagEnd, E::TagEndsWith) return element.tagName().ends_with(tagEnd->tagName());
    ORL_IF(id, E::Id) return element.id() == id->id();
    ORL_IF(classed, E::Class) return element.hasClass(classed->className());
    ORL_IF(attribute, E::Attribute) return element.hasAttr(attribute->key());
    ORL_IF(pair, E::AttributeKeyPair) return matchesAttribute(*pair, element);
    ORL_IF(matching, E::AttributeWithValueMatching)
    return element.hasAttr(matching->key()) &&
           matching->pattern().matcher(element.attr(matching->key())).find();
    ORL_IF(starting, E::AttributeStarting) {
        for (const Attribute &each : element.getAttributes())
            if (lower(each.getKey()).starts_with(starting->keyPrefix())) return true;
        return false;
    }

    ORL_IF(every, E::AllElements) return every != nullptr;
    const std::ptrdiff_t place = placeIn(family(element), element);
    ORL_IF(less, E::IndexLessThan) return place < less->index();
    ORL_IF(greater, E::IndexGreaterThan) return place > greater->index();
    ORL_IF(equal, E::IndexEquals) return place == equal->index();
    ORL_IF(places, E::CssNthEvaluator) return nth(*places, element);
    ORL_IF(first, E::IsFirstChild) return first && hasParentElement(element) && place == 0;
    ORL_IF(last, E::IsLastChild)
    return last && hasParentElement(element) && place == std::ptrdiff_t(element.parent().childNodeSize()) - 1;
    ORL_IF(only, E::IsOnlyChild) return only && hasParentElement(element) && family(element).size() == 1;
    ORL_IF(onlyType, E::IsOnlyOfType)
    return onlyType && hasParentElement(element) && familyOfType(element).size() == 1;
    ORL_IF(pageRoot, E::IsRoot) {
        if (!root.Node::is<Document>()) return pageRoot && element == root;
        return !root.children().isEmpty() && element == root.child(0);
    }
    ORL_IF(empty, E::IsEmpty) return empty && isEmpty(element);

    ORL_IF(text, E::ContainsText) return lower(element.text()).find(text->searchText()) != std::string::npos;
    ORL_IF(own, E::ContainsOwnText)
    return lower(element.ownText()).find(own->searchText()) != std::string::npos;
    ORL_IF(regex, E::Matches) return regex->pattern().matcher(element.text()).find();
    ORL_IF(ownRegex, E::MatchesOwn) return ownRegex->pattern().matcher(element.ownText()).find();
#undef ORL_IF
    return evaluator.matches(root, element);
}

inline Elements select(const Evaluator &evaluator, const Element &root) {
    Elements found;
    for (const Element &element : root.getAllElements())
        if (matches(evaluator, root, element)) found.add(element);
    return found;
}

} // namespace orl::html::naive
