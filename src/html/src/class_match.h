// Whether a "class" attribute names a class, on the raw value and without any list.
#pragma once

#include "core.h"

#include <string>
#include <string_view>

namespace orl::html::core {

/// A class name that is looked for, whatever its case.
class ClassName {
public:
    explicit ClassName(std::string_view name);

    bool isIn(const NodeRec *element) const {
        if (!element->attrCount) return false;
        for (const AttrRec &entry : attrBlock(element)) {
            const AttrRec &attr = entry.target();
            if (attr.name == nameRef(NameId::Class)) return isIn(attr.text());
        }
        return false;
    }

    /// A value as long as the name must be the name as a whole; in a longer one it must be a word.
    bool isIn(std::string_view value) const {
        if (!ascii_) return isInAnyScript(value);
        if (value.size() < lower_.size()) return false;
        return value.size() == lower_.size() ? !value.empty() && equals(value.data()) : isAWordOf(value);
    }

private:
    bool equals(const char *text) const;
    bool isAWordOf(std::string_view value) const;
    bool isWordAt(std::string_view value, std::size_t place) const;
    bool isInAnyScript(std::string_view value) const;

    std::string lower_;
    char first_ = 0, upperFirst_ = 0;
    bool ascii_, canBeWord_;
};

} // namespace orl::html::core
