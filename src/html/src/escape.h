// Writing text so that a parser reads it back.
#pragma once

#include "scan.h"
#include "utf8.h"

#include <orl/html/entities.h>
#include <orl/html/text_encoding.h>

#include <cstdio>
#include <string_view>

namespace orl::html::core {

struct EscapeRules {
    const Entities::EscapeMode *mode;
    const TextEncoding *encoding;
    bool inAttribute = false;
    bool normaliseWhite = false;
    bool stripLeadingWhite = false;

    bool xhtml() const { return mode->value() == 0; }
};

/// The white space of escaping; unlike the tokeniser's it has the vertical tab.
inline bool isEscapeWhite(char32_t c) {
    return (c >= 9 && c <= 13) || c == ' ';
}

/// The reference for a scalar that has no fixed one: by name if the mode has one, else by number.
template<class Out>
void escapeByReference(Out &out, char32_t scalar, const EscapeRules &rules) {
    if (scalar < 0x10000) {
        if (const std::string_view name = rules.mode->nameForCodepoint(scalar); !name.empty()) {
            out.push_back('&');
            out.append(name.data(), name.size());
            out.push_back(';');
            return;
        }
    }
    char number[16];
    out.append(number, std::size_t(std::snprintf(number, sizeof number, "&#x%2x;", unsigned(scalar))));
}

/// One scalar, the bytes of which are `bytes`.
template<class Out>
void escapeScalar(Out &out, char32_t scalar, std::string_view bytes, const EscapeRules &rules) {
    const auto put = [&out](std::string_view text) { out.append(text.data(), text.size()); };
    switch (scalar) {
    case '&': return put("&amp;");
    case 0xa0: return put(rules.xhtml() ? "&#xa0;" : "&nbsp;");
    case '<': return put(!rules.inAttribute || rules.xhtml() ? "&lt;" : "<");
    case '>': return put(rules.inAttribute ? ">" : "&gt;");
    case '"': return put(rules.inAttribute ? "&quot;" : "\"");
    }
    if (rules.encoding->canEncode(scalar)) return put(bytes);
    escapeByReference(out, scalar, rules);
}

/// Whole runs are copied in an encoding that has everything; elsewhere each scalar is looked at.
template<bool White, bool Attribute, class Out>
void escapeRuns(Out &out, std::string_view text, const EscapeRules &rules) {
    const char *const begin = text.data(), *const end = begin + text.size();
    const bool wholeRuns = rules.encoding->isUtf8();
    bool reachedNonWhite = !rules.stripLeadingWhite;
    for (const char *p = begin; p != end;) {
        if (White && isEscapeWhite(static_cast<unsigned char>(*p))) {
            const bool alreadyBlank = p != begin && isEscapeWhite(static_cast<unsigned char>(p[-1]));
            if (reachedNonWhite && !alreadyBlank) out.push_back(' ');
            while (p != end && isEscapeWhite(static_cast<unsigned char>(*p)))
                ++p;
            continue;
        }
        reachedNonWhite = true;
        if (wholeRuns) {
            const char *stop = scan::toEscape<White, Attribute>(p, end);
            out.append(p, std::size_t(stop - p));
            p = stop;
            if (p == end) break;
            if (White && isEscapeWhite(static_cast<unsigned char>(*p))) continue;
        }
        const Scalar scalar = decodeWithin(p, end);
        escapeScalar(out, scalar.value, {p, scalar.size}, rules);
        p += scalar.size;
    }
}

/// Appends the escaped text. `Out` is a string, or anything with its `append(pointer, size)` and `push_back`.
template<class Out>
void escapeTo(Out &out, std::string_view text, const EscapeRules &rules) {
    if (rules.inAttribute) {
        rules.normaliseWhite ? escapeRuns<true, true>(out, text, rules)
                             : escapeRuns<false, true>(out, text, rules);
    } else {
        rules.normaliseWhite ? escapeRuns<true, false>(out, text, rules)
                             : escapeRuns<false, false>(out, text, rules);
    }
}

} // namespace orl::html::core
