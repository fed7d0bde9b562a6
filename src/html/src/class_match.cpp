#include "class_match.h"

#include "scan.h"
#include "text.h"
#include "utf8.h"

#include <algorithm>
#include <bit>
#include <cstring>

namespace orl::html::core {

namespace {

bool isAscii(std::string_view text) {
    return std::ranges::all_of(text, [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

char lowerAscii(char c) {
    return c >= 'A' && c <= 'Z' ? char(c | 0x20) : c;
}

} // namespace

ClassName::ClassName(std::string_view name) : lower_(lowerCase(name)), ascii_(isAscii(name)) {
    canBeWord_ = !lower_.empty() && std::ranges::none_of(lower_, isWhite);
    if (!canBeWord_) return;
    first_ = upperFirst_ = lower_.front();
    if (first_ >= 'a' && first_ <= 'z') upperFirst_ = char(first_ & ~0x20);
}

bool ClassName::equals(const char *text) const {
    if (std::memcmp(text, lower_.data(), lower_.size()) == 0) return true;
    for (std::size_t i = 0; i < lower_.size(); ++i)
        if (lowerAscii(text[i]) != lower_[i]) return false;
    return true;
}

bool ClassName::isWordAt(std::string_view value, std::size_t place) const {
    const std::size_t end = place + lower_.size();
    return end <= value.size() && (place == 0 || isWhite(value[place - 1])) &&
           (end == value.size() || isWhite(value[end])) && equals(value.data() + place);
}

/// Looks at the places where the name's first letter stands. A value of another script goes the long way,
/// since a letter of it may be an ASCII one in lower case.
bool ClassName::isAWordOf(std::string_view value) const {
#ifdef ORL_SCAN_VECTORS
    if (isInSpace(value.data())) {
        using namespace scan;
        constexpr std::uint64_t all = bitsPerByte == 4 ? ~std::uint64_t(0) : 0xffff;
        constexpr std::uint64_t one = (std::uint64_t(1) << bitsPerByte) - 1;
        if (!canBeWord_) return !isAscii(value) && isInAnyScript(value);
        for (std::size_t start = 0; start < value.size(); start += 16) {
            const Vector v = load(value.data() + start);
            const std::size_t left = value.size() - start;
            const std::uint64_t inside = left < 16 ? (std::uint64_t(1) << (left * bitsPerByte)) - 1 : all;
            if (~mask(atMost(v, 0x7f)) & inside) return isInAnyScript(value);
            std::uint64_t found = mask(either(equal(v, first_), equal(v, upperFirst_))) & inside;
            while (found) {
                const unsigned place = unsigned(std::countr_zero(found)) / bitsPerByte;
                if (isWordAt(value, start + place)) return true;
                found &= ~(one << (place * bitsPerByte));
            }
        }
        return false;
    }
#endif
    return isInAnyScript(value);
}

bool ClassName::isInAnyScript(std::string_view value) const {
    const std::size_t length = countScalars(value), wanted = countScalars(lower_);
    if (value.empty() || length < wanted) return false;
    if (length == wanted) return lowerCase(value) == lower_;
    for (std::size_t start = 0; start < value.size();) {
        std::size_t end = start;
        while (end < value.size() && !isWhite(value[end]))
            ++end;
        if (end > start && countScalars(value.substr(start, end - start)) == wanted &&
            lowerCase(value.substr(start, end - start)) == lower_)
            return true;
        start = end + 1;
    }
    return false;
}

} // namespace orl::html::core
