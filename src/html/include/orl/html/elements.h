#pragma once

#include <orl/html/element.h>
#include <orl/html/export.h>
#include <orl/html/ordered_set.h>

#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace orl::html {

/// An ordered list of elements, a value: copying it copies the list, not the elements. An element may stand
/// in several lists and several times in one; as long as it does it is held.
///
/// Operations on "each" run over the entries in order and give the list back. They stop at the first entry
/// that fails, with its failure; the entries before it stay changed.
class ORL_HTML_API Elements {
public:
    using value_type = Element;
    using const_iterator = std::vector<Element>::const_iterator;

    Elements() = default;
    Elements(std::vector<Element> elements) : this_(std::move(elements)) {}
    Elements(std::initializer_list<Element> elements) : this_(elements) {}
    explicit Elements(const OrderedSet<Element> &elements);

    /// Deep copies of the elements.
    Elements copy() const;

    /// The value of the first element that has the attribute; "" if none has it.
    std::string attr(std::string_view key) const;
    bool hasAttr(std::string_view key) const;
    const Elements &attr(std::string_view key, std::string_view value) const;
    const Elements &removeAttr(std::string_view key) const;
    const Elements &addClass(std::string_view className) const;
    const Elements &removeClass(std::string_view className) const;
    const Elements &toggleClass(std::string_view className) const;
    bool hasClass(std::string_view className) const;
    /// That of the first element; "" without one.
    std::string val() const;
    const Elements &val(std::string_view value) const;

    /// The texts, with a blank between them; elements without text at the start leave none.
    std::string text() const;
    bool hasText() const;
    // With a line feed between them.
    std::string html() const;
    std::string outerHtml() const;
    std::string toString() const { return outerHtml(); }

    /// An empty name fails with "Tag name must not be empty.".
    const Elements &tagName(std::string_view name) const;
    const Elements &html(std::string_view html) const;
    const Elements &prepend(std::string_view html) const;
    const Elements &append(std::string_view html) const;
    const Elements &before(std::string_view html) const;
    const Elements &after(std::string_view html) const;
    /// An empty text fails with "String must not be empty".
    const Elements &wrap(std::string_view html) const;
    const Elements &unwrap() const;
    const Elements &empty() const;
    /// Out of their tree; they stay in the list.
    const Elements &remove() const;

    /// What the selector matches from each entry as root, each element once.
    Elements select(std::string_view query) const;
    /// The entries that select(query) does not find. `not` itself is a word of the language.
    Elements not_(std::string_view query) const;
    /// Whether any entry is(query).
    bool is(std::string_view query) const;

    /// A list of the entry at this place, empty if there is none.
    Elements eq(std::size_t index) const;
    /// All parents of all entries, each once, first seen first.
    Elements parents() const;
    Element first() const { return this_.empty() ? Element() : this_.front(); }
    Element last() const { return this_.empty() ? Element() : this_.back(); }
    bool isEmpty() const { return this_.empty(); }
    std::size_t size() const { return this_.size(); }
    const Elements &traverse(NodeVisitor &visitor) const;
    std::vector<FormElement> forms() const;

    void add(Element element) { this_.push_back(std::move(element)); }
    /// The place must not be past the end.
    void add(std::size_t index, Element element);
    const Element &get(std::size_t index) const { return this_[index]; }
    const std::vector<Element> &array() const { return this_; }

    std::size_t startIndex() const { return 0; }
    std::size_t endIndex() const { return size(); }
    const Element &operator[](std::size_t index) const { return this_[index]; }
    const_iterator begin() const { return this_.begin(); }
    const_iterator end() const { return this_.end(); }

    /// The same elements in the same order.
    friend bool operator==(const Elements &, const Elements &) = default;
    std::size_t hashValue() const;

    /// The entries of `elements` that are none of `outs`.
    static Elements filterOut(const Elements &elements, const Elements &outs);

private:
    std::vector<Element> this_;
};

} // namespace orl::html
