// Reading and comparing attributes in searches.
#pragma once

#include "attrs.h"
#include "core.h"

#include <string>
#include <string_view>

namespace orl::html::core {

/// An attribute as Node::attr reads it: whatever the key's case, and resolved where the key starts with
/// "abs:".
class AttrReader {
public:
    explicit AttrReader(std::string_view key)
        : key_(key), anyCase_(key), absolute_(anyCase_.lower().starts_with("abs:")) {}

    /// Whether reading never fails.
    bool isSure() const { return anyCase_.lower() != "abs:"; }

    bool isOn(NodeRec *element) const;
    /// What `test` says of the value; false for an element that has not got it.
    template<class Test>
    bool holds(NodeRec *element, Test test) const {
        if (absolute_) return isOn(element) && test(std::string_view(absoluteOn(element)));
        const AttrRec *found = findAttr(element, anyCase_);
        return found && test(found->text());
    }

    /// What `test` says of the value as Node::attr gives it: "" for an element that has not got it. Fails as
    /// that does for the key "abs:" alone.
    template<class Test>
    bool reads(NodeRec *element, Test test) const {
        if (absolute_) return test(std::string_view(absoluteOn(element)));
        const AttrRec *found = findAttr(element, anyCase_);
        return test(found ? found->text() : std::string_view());
    }

private:
    std::string absoluteOn(NodeRec *element) const;

    std::string key_;
    AnyCaseKey anyCase_;
    bool absolute_;
};

// Of a text, in lower case, and another that is in lower case already.
bool equalsLower(std::string_view text, std::string_view lower);
bool startsWithLower(std::string_view text, std::string_view lower);
bool endsWithLower(std::string_view text, std::string_view lower);
bool containsLower(std::string_view text, std::string_view lower);

/// The first place at or after `from`, in linear time whatever the texts; npos without one.
std::size_t findText(std::string_view text, std::string_view wanted, std::size_t from = 0);

} // namespace orl::html::core
