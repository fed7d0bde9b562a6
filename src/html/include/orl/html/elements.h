#pragma once

#include <orl/html/element.h>
#include <orl/html/export.h>
#include <orl/html/node_list.h>
#include <orl/html/ordered_set.h>

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

namespace orl::html {

/// A place in a list, right until the list changes. The handle that it gives costs nothing, as the list keeps
/// the element, and is the iterator's own: it is another one when the iterator moves. A copy of it is a
/// handle like any other.
class ORL_HTML_API ElementsIterator {
public:
    using iterator_category = std::input_iterator_tag;
    using value_type = Element;
    using difference_type = std::ptrdiff_t;
    using reference = const Element &;
    using pointer = const Element *;

    ElementsIterator() : ElementsIterator(nullptr) {}
    ElementsIterator(const ElementsIterator &other) : ElementsIterator(other.ref_) {}
    ElementsIterator &operator=(const ElementsIterator &other) {
        ref_ = other.ref_;
        return *this;
    }
    ~ElementsIterator() {}

    const Element &operator*() const;
    const Element *operator->() const { return &**this; }

    ElementsIterator &operator++() { return *this += 1; }
    ElementsIterator &operator--() { return *this -= 1; }
    ElementsIterator operator++(int) { return {ref_++}; }
    ElementsIterator operator--(int) { return {ref_--}; }
    ElementsIterator &operator+=(difference_type n) {
        ref_ += n;
        return *this;
    }
    ElementsIterator &operator-=(difference_type n) { return *this += -n; }
    friend ElementsIterator operator+(ElementsIterator at, difference_type n) { return at += n; }
    friend ElementsIterator operator-(ElementsIterator at, difference_type n) { return at -= n; }
    friend difference_type operator-(const ElementsIterator &left, const ElementsIterator &right) {
        return left.ref_ - right.ref_;
    }
    friend bool operator==(const ElementsIterator &left, const ElementsIterator &right) {
        return left.ref_ == right.ref_;
    }

private:
    friend class Elements;

    ElementsIterator(const std::uint32_t *ref) : ref_(ref), element_() {}

    const std::uint32_t *ref_;
    union {
        mutable Element element_; ///< never destroyed: it is not counted
    };
};

/// An ordered list of elements, a value: copying it copies the list, not the elements. An element may stand
/// in several lists and several times in one; as long as it does it is held.
///
/// A list that was found costs four bytes an element, in common to its copies; handles are made as elements
/// are taken out. Walking along a list makes none.
///
/// Operations on "each" run over the entries in order and give the list back. They stop at the first entry
/// that fails, with its failure; the entries before it stay changed.
class ORL_HTML_API Elements {
public:
    using value_type = Element;
    using const_iterator = ElementsIterator;

    Elements() = default;
    Elements(const Elements &other);
    Elements(Elements &&other) noexcept;
    Elements &operator=(const Elements &other);
    Elements &operator=(Elements &&other) noexcept;
    ~Elements();
    Elements(const std::vector<Element> &elements);
    Elements(std::initializer_list<Element> elements);
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
    Element first() const { return isEmpty() ? Element() : get(0); }
    Element last() const { return isEmpty() ? Element() : get(size() - 1); }
    bool isEmpty() const { return this_.refs().empty(); }
    std::size_t size() const { return this_.refs().size(); }
    const Elements &traverse(NodeVisitor &visitor) const;
    std::vector<FormElement> forms() const;

    void add(const Element &element) { add(size(), element); }
    /// The place must not be past the end.
    void add(std::size_t index, const Element &element);
    /// The place must exist.
    Element get(std::size_t index) const;
    std::vector<Element> array() const;

    std::size_t startIndex() const { return 0; }
    std::size_t endIndex() const { return size(); }
    Element operator[](std::size_t index) const { return get(index); }
    const_iterator begin() const { return this_.refs().begin(); }
    const_iterator end() const { return this_.refs().end(); }

    /// The same elements in the same order.
    bool operator==(const Elements &other) const;
    std::size_t hashValue() const;

    /// The entries of `elements` that are none of `outs`.
    static Elements filterOut(const Elements &elements, const Elements &outs);

    /// For the engine's own use: nodes of one arena, which are elements.
    explicit Elements(core::SharedRefs found) : this_(std::move(found)) {}

private:
    core::NodeList this_;
};

} // namespace orl::html
