#pragma once

#include <orl/html/export.h>

#include <charconv>
#include <concepts>
#include <cstddef>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace orl::html {

/// Gathers pieces of text and joins them when the text is asked for.
class ORL_HTML_API StringBuilder {
public:
    StringBuilder() = default;
    explicit StringBuilder(std::string_view text) { append(text); }

    std::string toString() const;
    /// Characters, that is Unicode scalars, in all pieces.
    std::size_t length() const;
    /// Whether there are no pieces: one that is empty counts.
    bool isEmpty() const { return pieces_.empty(); }

    StringBuilder &appendCodePoint(char32_t scalar);
    /// An integer that is no scalar fails with an IllegalArgumentException.
    StringBuilder &appendCodePoint(int scalar);
    StringBuilder &appendCodePoints(std::span<const char32_t> scalars);

    StringBuilder &append(char32_t scalar) { return appendCodePoint(scalar); }
    StringBuilder &append(std::span<const char32_t> scalars) { return appendCodePoints(scalars); }
    StringBuilder &append(std::string text) {
        pieces_.push_back(std::move(text));
        return *this;
    }
    StringBuilder &append(std::string_view text) { return append(std::string(text)); }
    StringBuilder &append(const char *text) { return append(std::string(text)); }
    StringBuilder &append(char character) { return append(std::string(1, character)); }
    StringBuilder &append(bool value) { return append(value ? "true" : "false"); }
    template<class Number>
    requires std::integral<Number> || std::floating_point<Number> StringBuilder &append(Number value) {
        char text[64];
        return append(std::string(text, std::to_chars(text, text + sizeof text, value).ptr));
    }
    /// The value and a line feed.
    template<class Value>
    StringBuilder &appendLine(const Value &value) {
        return append(value).append('\n');
    }
    StringBuilder &clear() {
        pieces_.clear();
        return *this;
    }

private:
    std::vector<std::string> pieces_;
};

} // namespace orl::html
