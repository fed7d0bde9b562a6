#include "attr_value.h"

#include "orl/html/node.h"
#include "utf8.h"

#include <algorithm>
#include <cstring>

namespace orl::html::core {

bool AttrReader::isOn(NodeRec *element) const {
    return absolute_ ? Node(element).hasAttr(key_) : findAttr(element, anyCase_) != nullptr;
}

std::string AttrReader::absoluteOn(NodeRec *element) const {
    return Node(element).attr(key_);
}

namespace {

/// Whether the texts, of one size, are equal in lower case; `isAscii` is false if that cannot be told by
/// bytes.
bool equalBytes(std::string_view text, std::string_view lower, bool &isAscii) {
    bool equal = true;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (static_cast<unsigned char>(c) >= 0x80) isAscii = false;
        equal = equal && (c >= 'A' && c <= 'Z' ? char(c | 0x20) : c) == lower[i];
    }
    return equal;
}

bool isAscii(std::string_view text) {
    return std::ranges::all_of(text, [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

} // namespace

bool equalsLower(std::string_view text, std::string_view lower) {
    bool ascii = text.size() == lower.size() || isAscii(text);
    if (text.size() != lower.size()) return !ascii && lowerCase(text) == lower;
    const bool equal = equalBytes(text, lower, ascii);
    return ascii ? equal : lowerCase(text) == lower;
}

bool startsWithLower(std::string_view text, std::string_view lower) {
    // A letter whose lower case depends on what follows must be seen with it.
    if (!isAscii(text)) return lowerCase(text).starts_with(lower);
    return text.size() >= lower.size() && equalsLower(text.substr(0, lower.size()), lower);
}

bool endsWithLower(std::string_view text, std::string_view lower) {
    if (!isAscii(text)) return lowerCase(text).ends_with(lower);
    return text.size() >= lower.size() && equalsLower(text.substr(text.size() - lower.size()), lower);
}

bool containsLower(std::string_view text, std::string_view lower) {
    if (text.size() < lower.size() && isAscii(text)) return false;
    return findText(lowerCase(text), lower) != std::string_view::npos;
}

std::size_t findText(std::string_view text, std::string_view wanted, std::size_t from) {
    if (from > text.size()) return std::string_view::npos;
    if (wanted.empty()) return from;
    const void *found = memmem(text.data() + from, text.size() - from, wanted.data(), wanted.size());
    return found ? std::size_t(static_cast<const char *>(found) - text.data()) : std::string_view::npos;
}

} // namespace orl::html::core
