// Whether a "class" attribute names a class, on the raw value and without any list.
#pragma once

#include "core.h"
#include "scan.h"

#include <bit>
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
        if (value.size() > lower_.size()) return isAWordOf(value);
        return !value.empty() && first_.is(value.front()) && equals(value.data());
    }

private:
    bool equals(const char *text) const;
    bool isAWordOf(std::string_view value) const;
    bool isASlowWordOf(std::string_view value) const;
    bool isWordAt(std::string_view value, std::size_t place) const;
    bool isInAnyScript(std::string_view value) const;

    /// A character sixteen times, and the bit that tells its cases apart, if it has cases.
    struct Letter {
        char lower[16];
        char caseBit[16];

        explicit Letter(char c);
        bool is(char c) const { return (c | caseBit[0]) == lower[0]; }
    };

    std::string lower_;
    Letter first_, last_;
    bool ascii_;
    bool isWord_;  ///< not empty and without white space
    bool hasTwin_; ///< a letter outside of ASCII has one of the name's letters as its lower case
    bool plain_;   ///< a word of ASCII letters without a twin, as nearly all are
};

/// Looks at the places where the name's first letter stands and its last one at the right distance.
inline bool ClassName::isAWordOf(std::string_view value) const {
#ifdef ORL_SCAN_VECTORS
    if (plain_ && isInSpace(value.data())) [[likely]] {
        using namespace scan;
        constexpr std::uint64_t one = (std::uint64_t(1) << bitsPerByte) - 1;
        const std::size_t starts = value.size() - lower_.size() + 1;
        const Vector first = load(first_.lower), firstCase = load(first_.caseBit);
        const Vector last = load(last_.lower), lastCase = load(last_.caseBit);
        for (std::size_t start = 0; start < starts; start += 16) {
            const Vector firsts = either(load(value.data() + start), firstCase);
            const Vector lasts = either(load(value.data() + start + lower_.size() - 1), lastCase);
            std::uint64_t found = mask(both(equal(firsts, first), equal(lasts, last)));
            if (starts - start < 16) found &= (std::uint64_t(1) << ((starts - start) * bitsPerByte)) - 1;
            while (found)
                [[unlikely]] {
                    const unsigned place = unsigned(std::countr_zero(found)) / bitsPerByte;
                    if (isWordAt(value, start + place)) return true;
                    found &= ~(one << (place * bitsPerByte));
                }
        }
        return false;
    }
#endif
    return isASlowWordOf(value);
}

} // namespace orl::html::core
