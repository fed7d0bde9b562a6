#include "class_match.h"

#include "text.h"
#include "utf8.h"

#include <algorithm>
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

ClassName::Letter::Letter(char c) {
    std::ranges::fill(lower, c);
    std::ranges::fill(caseBit, c >= 'a' && c <= 'z' ? char(0x20) : char(0));
}

// The one ASCII letter that is the lower case of a letter outside of ASCII, the kelvin sign, is "k".
ClassName::ClassName(std::string_view name)
    : lower_(lowerCase(name)),
      first_(lower_.empty() ? '\0' : lower_.front()),
      last_(lower_.empty() ? '\0' : lower_.back()),
      ascii_(isAscii(name)),
      isWord_(!lower_.empty() && std::ranges::none_of(lower_, isWhite)),
      hasTwin_(lower_.find('k') != std::string::npos),
      plain_(ascii_ && isWord_ && !hasTwin_) {}

bool ClassName::equals(const char *text) const {
    if (std::memcmp(text, lower_.data(), lower_.size()) == 0) return true;
    for (std::size_t i = 0; i < lower_.size(); ++i)
        if (lowerAscii(text[i]) != lower_[i]) return false;
    return true;
}

bool ClassName::isWordAt(std::string_view value, std::size_t place) const {
    const std::size_t end = place + lower_.size();
    return (place == 0 || isWhite(value[place - 1])) && (end == value.size() || isWhite(value[end])) &&
           equals(value.data() + place);
}

bool ClassName::isASlowWordOf(std::string_view value) const {
    if (hasTwin_ && !isAscii(value)) return isInAnyScript(value);
    if (!isWord_) return false;
    for (std::size_t start = 0; start + lower_.size() <= value.size(); ++start)
        if (first_.is(value[start]) && isWordAt(value, start)) return true;
    return false;
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
