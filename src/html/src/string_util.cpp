#include "orl/html/string_util.h"

#include "orl/html/string_builder.h"
#include "output.h"
#include "text.h"

#include <algorithm>

namespace orl::html {

std::string StringUtil::padding(int width) {
    return std::string(std::size_t(std::max(width, 0)), ' ');
}

bool StringUtil::isBlank(std::string_view text) {
    return core::isAllWhite(text);
}

bool StringUtil::isNumeric(std::string_view text) {
    return !text.empty() && std::ranges::all_of(text, [](char c) { return c >= '0' && c <= '9'; });
}

bool StringUtil::isWhitespace(std::string_view character) {
    return character == "\r\n" || (character.size() == 1 && core::isWhite(character.front()));
}

std::string StringUtil::normaliseWhitespace(std::string_view text) {
    core::Output out;
    core::appendNormalised(out, text, false);
    return out.text();
}

void StringUtil::appendNormalisedWhitespace(StringBuilder &accum, std::string_view text, bool stripLeading) {
    core::Output out;
    core::appendNormalised(out, text, stripLeading);
    if (!out.empty()) accum.append(out.text());
}

std::string StringUtil::join(std::span<const std::string> strings, std::string_view separator) {
    std::string joined;
    for (std::size_t i = 0; i < strings.size(); ++i) {
        if (i > 0) joined += separator;
        joined += strings[i];
    }
    return joined;
}

} // namespace orl::html
