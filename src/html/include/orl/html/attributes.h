#pragma once

#include <orl/html/export.h>

#include <cstddef>
#include <iterator>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace orl::html {

class OutputSettings;
class StringBuilder;

namespace core {
struct AttrRec;
struct NodeRec;
} // namespace core

/// One attribute, as a handle: copies of the handle are the same attribute, and what is set on one is seen by
/// all, and by every list that the attribute stands in. Equality compares value and key.
class ORL_HTML_API Attribute {
public:
    /// The key is trimmed; an empty one fails with "String must not be empty".
    Attribute(std::string_view key, std::string_view value);
    Attribute(const Attribute &other);
    Attribute(Attribute &&other) noexcept : record_(std::exchange(other.record_, nullptr)) {}
    Attribute &operator=(Attribute other) noexcept {
        std::swap(record_, other.record_);
        return *this;
    }
    ~Attribute();

    /// The value's character references are resolved as they are in a page.
    static Attribute createFromEncoded(std::string_view key, std::string_view encodedValue);

    std::string getKey() const;
    /// Trimmed; an empty key fails with "String must not be empty".
    void setKey(std::string_view key) const;
    std::string getValue() const;
    /// Returns the value before.
    std::string setValue(std::string_view value) const;

    /// `key="value"`, or the bare key of a boolean attribute that has no value of its own.
    std::string html() const;
    void html(StringBuilder &accum, const OutputSettings &settings) const;
    std::string toString() const { return html(); }

    /// Whether the key starts with "data-" and goes on.
    bool isDataAttribute() const;
    /// Whether it was made as a BooleanAttribute, or its key is one of HTML's boolean attributes in any case.
    bool isBooleanAttribute() const;

    std::size_t hashCode() const;
    bool equals(const Attribute &other) const;
    friend bool operator==(const Attribute &left, const Attribute &right) { return left.equals(right); }

    /// Another attribute with the same key and value.
    Attribute clone() const;

    explicit Attribute(core::AttrRec *record);
    core::AttrRec *record() const { return record_; }

protected:
    struct Boolean {};
    Attribute(std::string_view key, Boolean);

private:
    core::AttrRec *record_;
};

/// A key without a value. In the `html` syntax it prints as the bare key, whatever the key.
class ORL_HTML_API BooleanAttribute : public Attribute {
public:
    explicit BooleanAttribute(std::string_view key) : Attribute(key, Boolean()) {}
};

/// An ordered list of attributes, as a handle to it: that of a node, or one of its own. Keys may differ in
/// case only; the operations say whether they compare exactly. Costs are linear in the number of attributes.
class ORL_HTML_API Attributes {
public:
    /// A new, empty list.
    Attributes();
    Attributes(const Attributes &other) : Attributes(other.carrier_) {}
    Attributes(Attributes &&other) noexcept : carrier_(std::exchange(other.carrier_, nullptr)) {}
    Attributes &operator=(Attributes other) noexcept {
        std::swap(carrier_, other.carrier_);
        return *this;
    }
    ~Attributes();

    /// The value under exactly this key; "" without it.
    std::string get(std::string_view key) const;
    /// Whatever the key's case, the first one. An empty key fails with "String must not be empty".
    std::string getIgnoreCase(std::string_view key) const;
    /// In place of the first attribute with exactly this key, or at the end. An empty key fails with "String
    /// must not be empty".
    void put(std::string_view key, std::string_view value) const;
    void put(std::string_view key, const char *value) const { put(key, std::string_view(value)); }
    /// True puts a BooleanAttribute, false removes the key.
    void put(std::string_view key, bool flag) const;
    /// The list has this very attribute then.
    void put(const Attribute &attribute) const;
    /// Removes the first match. An empty key fails with "String must not be empty".
    void remove(std::string_view key) const;
    void removeIgnoreCase(std::string_view key) const;
    bool hasKey(std::string_view key) const;
    bool hasKeyIgnoreCase(std::string_view key) const;
    std::size_t size() const;
    bool isEmpty() const { return size() == 0; }
    /// Puts every attribute of the other list.
    void addAll(const Attributes &other) const;
    std::vector<Attribute> asList() const;
    /// The values by the keys that start with "data-" and go on, without that prefix. Two keys that become
    /// the same fail with "Duplicate values for key: '", the key and "'".
    std::map<std::string, std::string> dataset() const;

    /// Each attribute with a blank before it.
    std::string html() const;
    void html(StringBuilder &accum, const OutputSettings &settings) const;
    std::string toString() const { return html(); }

    /// Whether both have equal attributes in the same order.
    bool equals(const Attributes &other) const;
    friend bool operator==(const Attributes &left, const Attributes &right) { return left.equals(right); }

    /// In place.
    void lowercaseAllKeys() const;
    /// A list of its own with the same attributes: what is put or removed on one side is not seen on the
    /// other, what is set on an attribute is.
    Attributes clone() const;

    /// Walks the list as it is at each step.
    class Iterator {
    public:
        using value_type = Attribute;
        using difference_type = std::ptrdiff_t;

        Iterator(const Attributes *list, std::size_t index) : list_(list), index_(index) {}
        Attribute operator*() const { return list_->at(index_); }
        Iterator &operator++() {
            ++index_;
            return *this;
        }
        bool operator==(const Iterator &) const = default;

    private:
        const Attributes *list_;
        std::size_t index_;
    };
    Iterator begin() const { return {this, 0}; }
    Iterator end() const { return {this, size()}; }

    explicit Attributes(core::NodeRec *carrier);
    core::NodeRec *carrier() const { return carrier_; }

private:
    Attribute at(std::size_t index) const;

    core::NodeRec *carrier_; ///< the node, or a record that only carries the list
};

} // namespace orl::html
