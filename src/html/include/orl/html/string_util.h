#pragma once

#include <orl/html/export.h>

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

namespace orl::html {

class StringBuilder;

/// White space here is blank, tab, line feed, form feed and carriage return.
struct ORL_HTML_API StringUtil {
    /// So many blanks; "" below 1.
    static std::string padding(int width);
    /// Empty, or all white space.
    static bool isBlank(std::string_view text);
    /// Not empty, and all digits.
    static bool isNumeric(std::string_view text);
    /// Of one character, which may be "\r\n".
    static bool isWhitespace(std::string_view character);
    /// Each run of white space as one blank.
    static std::string normaliseWhitespace(std::string_view text);
    /// The same, appended; `stripLeading` drops a run at the start of the text.
    static void appendNormalisedWhitespace(StringBuilder &accum, std::string_view text, bool stripLeading);
    static std::string join(std::span<const std::string> strings, std::string_view separator);
    /// The relative URL as seen from the base. Without a base that has a scheme, the relative one alone if
    /// that has a scheme; "" where no absolute URL comes of it.
    static std::string resolve(std::string_view baseUrl, std::string_view relativeUrl);
};

} // namespace orl::html
