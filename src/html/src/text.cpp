#include "text.h"

#include "scan.h"
#include "utf8.h"

#include <algorithm>
#include <bit>
#include <cstring>

namespace orl::html::core {

namespace {

/// What copying a text does to it.
enum class Copy {
    Normalise,       ///< white space collapses
    Escape,          ///< between tags
    EscapeNormalise, ///< both; here the vertical tab is white space too
    EscapeValue,     ///< in a quoted attribute value
};

constexpr bool collapses(Copy how) {
    return how == Copy::Normalise || how == Copy::EscapeNormalise;
}

template<Copy How>
bool isWhiteFor(char c) {
    return isWhite(c) || (How == Copy::EscapeNormalise && c == '\v');
}

/// What is written for a character that is not copied as it is; empty for all others. Starts with the first
/// byte of a no-break space, which is the only one of two.
template<Copy How>
std::string_view reference(const char *p, const char *end) {
    switch (*p) {
    case '&': return "&amp;";
    case '<': return How == Copy::EscapeValue ? "" : "&lt;";
    case '>': return How == Copy::EscapeValue ? "" : "&gt;";
    case '"': return How == Copy::EscapeValue ? "&quot;" : "";
    case '\xc2': return end - p > 1 && p[1] == '\xa0' ? "&nbsp;" : "";
    default: return "";
    }
}

/// The most that a byte of text grows to, and what is written past the end.
constexpr std::size_t growth = 6;
constexpr std::size_t slack = 16;

/// Copies one byte, or collapses the run of white space that starts here, or writes a reference.
template<Copy How>
void copyOne(char *&to, const char *&p, const char *end, bool &afterBlank) {
    if (collapses(How) && isWhiteFor<How>(*p)) {
        if (!afterBlank) *to++ = ' ';
        afterBlank = true;
        while (p != end && isWhiteFor<How>(*p))
            ++p;
        return;
    }
    afterBlank = false;
    const std::string_view written = How == Copy::Normalise ? std::string_view() : reference<How>(p, end);
    if (written.empty()) {
        *to++ = *p++;
        return;
    }
    std::memcpy(to, written.data(), written.size());
    to += written.size();
    p += *p == '\xc2' ? 2 : 1;
}

#ifdef ORL_SCAN_VECTORS

using Mask = std::uint64_t;
constexpr unsigned vectorSize = 16;
constexpr Mask oneByte = (Mask(1) << scan::bitsPerByte) - 1;

/// The bytes that stop plain copying: a character that is written as a reference, and white space after white
/// space. Other white space becomes blanks.
template<Copy How>
Mask stops(scan::Vector &v, Mask afterBlank, Mask &white) {
    using namespace scan;
    Mask found = 0;
    if constexpr (How == Copy::EscapeValue)
        found = mask(either(either(equal(v, '&'), equal(v, '"')), equal(v, '\xc2')));
    else if constexpr (How != Copy::Normalise)
        found = mask(either(either(equal(v, '&'), equal(v, '\xc2')), either(equal(v, '<'), equal(v, '>'))));
    if constexpr (!collapses(How)) return found;
    const Vector control = How == Copy::Normalise
                               ? either(atMost(minus(v, '\t'), 1), atMost(minus(v, '\f'), 1))
                               : atMost(minus(v, '\t'), '\r' - '\t');
    v = larger(v, both(control, all(' ')));
    white = mask(equal(v, ' '));
    return found | (white & (white << bitsPerByte | afterBlank));
}

/// Reads up to 15 bytes past the end. A vector that is copied as a whole is told by a branch, so that the
/// processor need not know how far one was copied before it looks at the next.
template<Copy How>
char *copyWide(char *to, const char *p, const char *end, bool afterBlank) {
    while (p < end) {
        scan::Vector v = scan::load(p);
        Mask white = 0;
        Mask found = stops<How>(v, afterBlank ? oneByte : 0, white);
        scan::store(to, v);
        const auto left = std::size_t(end - p);
        if (found || left < vectorSize) {
            const unsigned size = left < vectorSize ? unsigned(left) : vectorSize;
            if (size < vectorSize) found &= (Mask(1) << (size * scan::bitsPerByte)) - 1;
            const unsigned plain = found ? unsigned(std::countr_zero(found)) / scan::bitsPerByte : size;
            p += plain;
            to += plain;
            if (plain > 0) afterBlank = white >> ((plain - 1) * scan::bitsPerByte) & 1;
            if (found) copyOne<How>(to, p, end, afterBlank);
            continue;
        }
        p += vectorSize;
        to += vectorSize;
        afterBlank = white >> ((vectorSize - 1) * scan::bitsPerByte) & 1;
    }
    return to;
}

bool isReadablePastEnd(const char *text) {
    return isInSpace(text);
}
static_assert(Arena::readable + 1 >= vectorSize);

#else

template<Copy How>
char *copyWide(char *to, const char *p, const char *end, bool afterBlank) {
    while (p != end)
        copyOne<How>(to, p, end, afterBlank);
    return to;
}

bool isReadablePastEnd(const char *) {
    return false;
}

#endif

template<Copy How>
void copyText(Output &out, std::string_view text, bool afterBlank) {
    // In parts, so that a long text does not ask for six times its room at once.
    constexpr std::size_t part = std::size_t(1) << 16;
    constexpr std::size_t times = How == Copy::Normalise ? 1 : growth;
    const char *p = text.data(), *const end = p + text.size();
    const bool wide = isReadablePastEnd(p);
    while (p != end) {
        const char *stop = std::size_t(end - p) <= part ? end : p + part;
        if (stop != end && stop[-1] == '\xc2') --stop;
        out.ensure(std::size_t(stop - p) * times + slack);
        char *to = out.cursor();
        if (wide) {
            to = copyWide<How>(to, p, stop, afterBlank);
            p = stop;
        } else {
            while (p != stop)
                copyOne<How>(to, p, stop, afterBlank);
        }
        out.moveTo(to);
        if (collapses(How) && p != end) afterBlank = isWhiteFor<How>(p[-1]);
    }
}

} // namespace

void appendNormalised(Output &out, std::string_view text, bool afterBlank) {
    copyText<Copy::Normalise>(out, text, afterBlank);
}

void appendEscaped(Output &out, std::string_view text, bool collapse) {
    collapse ? copyText<Copy::EscapeNormalise>(out, text, false) : copyText<Copy::Escape>(out, text, false);
}

void appendEscapedValue(Output &out, std::string_view text) {
    copyText<Copy::EscapeValue>(out, text, false);
}

void appendTextNode(Output &out, const NodeRec *node, bool preserve, bool afterBlank) {
    const std::string_view text = leafText(node);
    if (preserve)
        out.append(text);
    else
        appendNormalised(out, text, afterBlank);
}

std::string textOf(const NodeRec *root) {
    Output out;
    const auto afterBlank = [&out] { return !out.empty() && out.last() == ' '; };
    for (const NodeRec *node = root; node; node = nextInTree(node, root)) {
        if (isText(node))
            appendTextNode(out, node, preservesWhitespace(parentOf(node)), afterBlank());
        else if (isElement(node) && breaksText(tagOf(node)) && !out.empty() && !afterBlank())
            out.push_back(' ');
    }
    return toString(trimmed(out.view()));
}

std::string ownTextOf(const NodeRec *element) {
    Output out;
    const auto afterBlank = [&out] { return !out.empty() && out.last() == ' '; };
    const bool preserve = preservesWhitespace(element);
    for (const NodeRec *node = firstChild(element); node; node = nextSibling(node)) {
        if (isText(node))
            appendTextNode(out, node, preserve, afterBlank());
        else if (isElement(node) && tagOf(node)->id == TagId::Br && !afterBlank())
            out.push_back(' ');
    }
    return toString(trimmed(out.view()));
}

bool hasTextIn(const NodeRec *root) {
    for (const NodeRec *node = root; node; node = nextInTree(node, root))
        if (isText(node) && !isAllWhite(leafText(node))) return true;
    return false;
}

std::string dataOf(const NodeRec *element) {
    Output out;
    for (const NodeRec *node = element; node; node = nextInTree(node, element))
        if (kindOf(node) == Kind::Data) out.append(leafText(node));
    return out.text();
}

} // namespace orl::html::core
