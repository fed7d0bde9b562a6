#include "numbers/link_detector.h"

#include <QList>

#include <algorithm>
#include <array>
#include <libpsl.h>
#include <string>
#include <string_view>
#include <unicode/uchar.h>
#include <unicode/uscript.h>
#include <vector>

namespace orl {

namespace {

using Text = std::u32string_view;
using Position = std::size_t;
constexpr Position none = Text::npos;
constexpr Position longestLabel = 63;

bool isAsciiDigit(char32_t c) {
    return c >= U'0' && c <= U'9';
}
bool isAsciiWord(char32_t c) {
    return isAsciiDigit(c) || (c >= U'a' && c <= U'z') || (c >= U'A' && c <= U'Z');
}
bool isWord(char32_t c) {
    constexpr uint32_t marks = U_GC_MN_MASK | U_GC_MC_MASK;
    return isAsciiWord(c) || (c > 0x7f && (u_isalnum(UChar32(c)) || (U_GET_GC_MASK(UChar32(c)) & marks)));
}
bool isLabelCharacter(char32_t c) {
    return isWord(c) || c == U'-';
}
bool isUpper(char32_t c) {
    return u_isupper(UChar32(c));
}
bool isLower(char32_t c) {
    return u_islower(UChar32(c));
}

/// Writings that stand beside each other within one word count as one; digits and marks go with any.
UScriptCode scriptOf(char32_t c) {
    UErrorCode status = U_ZERO_ERROR;
    switch (const UScriptCode script = uscript_getScript(UChar32(c), &status)) {
    case USCRIPT_HIRAGANA:
    case USCRIPT_KATAKANA:
    case USCRIPT_HANGUL:
    case USCRIPT_BOPOMOFO: return USCRIPT_HAN;
    case USCRIPT_INHERITED: return USCRIPT_COMMON;
    default: return script;
    }
}

bool sameWriting(char32_t a, char32_t b) {
    const UScriptCode first = scriptOf(a);
    const UScriptCode second = scriptOf(b);
    return first == second || first == USCRIPT_COMMON || second == USCRIPT_COMMON;
}

QString toQString(Text text) {
    return QString::fromUcs4(text.data(), qsizetype(text.size()));
}

/// Whether a domain may end in this label, by the public suffix list that the system keeps.
bool isTopLevelDomain(Text label) {
    const QByteArray name = toQString(label).toLower().toUtf8();
    return psl_is_public_suffix2(psl_builtin(), name.constData(), PSL_TYPE_ICANN | PSL_TYPE_NO_STAR_RULE);
}

template<std::size_t N>
bool isOneOf(const std::array<const char *, N> &words, Text label) {
    const QString lower = toQString(label).toLower();
    return std::ranges::any_of(words, [&](const char *word) { return lower == QLatin1String(word); });
}

/// Domains that are words, or endings of files, far more often than they end a bare domain of two parts.
constexpr std::array words{"am", "as", "at", "be", "by", "do", "in", "is",
                           "it", "me", "my", "no", "pm", "so", "to", "us"};
constexpr std::array fileEndings{"mov", "ps", "py", "sh", "zip"};

struct Host {
    std::vector<Text> labels;
    Position end = none;

    /// A last label that begins the next sentence ("example.com.Thanks") is given back.
    void dropSentenceStart() {
        while (labels.size() > 2 && isUpper(labels.back().front()) && !isTopLevelDomain(labels.back())) {
            end -= labels.back().size() + 1;
            labels.pop_back();
        }
    }
};

class Scanner {
public:
    explicit Scanner(Text text) : text_(text) {}

    std::optional<Text> first() const {
        for (Position start = 0; start < text_.size(); ++start) {
            if (const Position end = linkAt(start); end != none) return text_.substr(start, end - start);
        }
        return std::nullopt;
    }

private:
    char32_t at(Position i) const { return i < text_.size() ? text_[i] : U'\0'; }

    bool startsWith(Position i, Text word) const {
        if (text_.size() - std::min(i, text_.size()) < word.size()) return false;
        return std::ranges::equal(text_.substr(i, word.size()), word, [](char32_t a, char32_t b) {
            return a == b || (a >= U'A' && a <= U'Z' && a + 32 == b);
        });
    }

    /// Whether a word begins here: behind another writing one does without a blank.
    bool isWordStart(Position i) const {
        return i == 0 || !isWord(text_[i - 1]) || !sameWriting(text_[i - 1], text_[i]);
    }

    Position linkAt(Position start) const {
        if (!isWord(text_[start]) || !isWordStart(start)) return none;
        if (const Position end = withScheme(start); end != none) return end;
        if (const Position end = mailAddress(start); end != none) return end;
        return bareDomain(start);
    }

    Position withScheme(Position start) const {
        for (const Text scheme : {Text(U"https://"), Text(U"http://"), Text(U"ftp://")}) {
            if (!startsWith(start, scheme)) continue;
            const Position authority = start + scheme.size();
            Host host = hostAt(skipUser(authority), true);
            if (host.end == none) return none;
            host.dropSentenceStart();
            return rest(host.end);
        }
        return none;
    }

    /// Behind "user:password@" where the authority begins with it.
    Position skipUser(Position authority) const {
        constexpr Text allowed = U"-._~!$&'()*+,;=:%";
        Position i = authority;
        while (isAsciiWord(at(i)) || (at(i) && allowed.find(at(i)) != none))
            ++i;
        return at(i) == U'@' ? i + 1 : authority;
    }

    Position mailAddress(Position start) const {
        if (start > 0 && isMailCharacter(text_[start - 1]) && !isWord(text_[start - 1])) return none;
        Position i = start;
        if (startsWith(start, U"mailto:")) i += 7;
        const Position name = i;
        while (isMailCharacter(at(i)) && sameWriting(at(i), at(name)))
            ++i;
        if (i == name || at(i) != U'@' || at(i - 1) == U'.') return none;
        Host host = hostAt(i + 1, false);
        host.dropSentenceStart();
        if (host.labels.size() < 2 || host.labels.back().size() < 2 || !isWord(at(i + 1))) return none;
        return isAsciiDigit(host.labels.back().front()) ? none : host.end;
    }

    static bool isMailCharacter(char32_t c) {
        return isWord(c) || c == U'.' || c == U'_' || c == U'%' || c == U'+' || c == U'-';
    }

    Position bareDomain(Position start) const {
        constexpr Text joins = U"@._-/\\";
        if (start > 0 && joins.find(text_[start - 1]) != none) return none;
        Host host = hostAt(start, false);
        host.dropSentenceStart();
        if (host.labels.size() < 2 || at(host.end) == U'@' || at(host.end) == U'_') return none;
        const Position end = rest(host.end);
        const bool isWww = host.labels.size() > 2 && startsWith(start, U"www.");
        return isWww || endsLikeDomain(host, end != host.end) ? end : none;
    }

    static bool endsLikeDomain(const Host &host, bool pathFollows) {
        const Text last = host.labels.back();
        if (!isTopLevelDomain(last)) return false;
        const auto shouts = [](Text label) { return std::ranges::none_of(label, isLower); };
        if (std::ranges::any_of(last, isUpper) && !std::ranges::all_of(host.labels, shouts)) return false;
        if (host.labels.size() > 2 || pathFollows) return true;
        const bool quantity = last.size() == 2 && std::ranges::all_of(host.labels.front(), isAsciiDigit);
        return !quantity && !isOneOf(words, last) && !isOneOf(fileEndings, last);
    }

    /// `end` is none where no host stands. Names that a scheme marks as a host may hold underscores.
    Host hostAt(Position start, bool marked) const {
        if (marked && at(start) == U'[') return addressAt(start);
        Host host;
        for (Position i = start;;) {
            const Position end = labelEnd(i, marked);
            if (end == i) break;
            host.labels.push_back(text_.substr(i, end - i));
            host.end = end;
            if (at(end) != U'.') break;
            i = end + 1;
        }
        return host;
    }

    Position labelEnd(Position start, bool marked) const {
        if (!isWord(at(start)) && !(marked && at(start) == U'_')) return start;
        Position end = start;
        char32_t writing = at(start);
        while (isLabelCharacter(at(end)) || (marked && at(end) == U'_')) {
            if (!sameWriting(writing, at(end))) break;
            if (scriptOf(writing) == USCRIPT_COMMON) writing = at(end);
            ++end;
        }
        while (at(end - 1) == U'-')
            --end;
        return end - start > longestLabel ? start : end;
    }

    /// A numeric address in brackets.
    Host addressAt(Position start) const {
        constexpr Text allowed = U"0123456789abcdefABCDEF:.";
        const Position close = text_.find_first_not_of(allowed, start + 1);
        Host host;
        if (close == none || at(close) != U']') return host;
        const Text address = text_.substr(start + 1, close - start - 1);
        if (address.find(U':') == none) return host;
        host.labels = {address};
        host.end = close + 1;
        return host;
    }

    /// The end of port and path behind a host.
    Position rest(Position hostEnd) const {
        Position end = hostEnd;
        if (at(end) == U':' && isAsciiDigit(at(end + 1))) {
            ++end;
            while (isAsciiDigit(at(end)))
                ++end;
        }
        const char32_t next = at(end);
        if (next != U'/' && next != U'?' && next != U'#') return end;
        return withoutTrailingPunctuation(end, pathEnd(end));
    }

    Position pathEnd(Position start) const {
        Position i = start;
        while (isPathCharacter(i) && !anotherLinkBegins(i))
            ++i;
        return i;
    }

    bool isPathCharacter(Position i) const {
        const char32_t c = at(i);
        constexpr Text excluded = U"\"<>\\^`{|}";
        if (c <= 0x7f) return c > 0x20 && c != 0x7f && excluded.find(c) == none;
        // A letter of another writing goes on with the path only where a new part of it begins.
        const char32_t before = at(i - 1);
        return isWord(c) && (!isWord(before) || (sameWriting(before, c) && !isAsciiDigit(before)));
    }

    bool anotherLinkBegins(Position i) const {
        const bool divides = at(i) == U',' || at(i) == U';';
        return divides && (startsWith(i + 1, U"http://") || startsWith(i + 1, U"https://"));
    }

    Position withoutTrailingPunctuation(Position start, Position end) const {
        constexpr Text closers = U".,;:!?'*";
        const Text path = text_.substr(start, end - start);
        auto round = std::ranges::count(path, U'(') - std::ranges::count(path, U')');
        auto square = std::ranges::count(path, U'[') - std::ranges::count(path, U']');
        for (; end > start; --end) {
            const char32_t last = at(end - 1);
            if (last == U')' && round < 0)
                ++round;
            else if (last == U']' && square < 0)
                ++square;
            else if (closers.find(last) == none)
                break;
        }
        return end;
    }

    const Text text_;
};

} // namespace

std::optional<QString> firstLink(const QString &text) {
    const auto characters = text.toUcs4();
    const std::u32string whole(characters.begin(), characters.end());
    const std::optional<Text> link = Scanner(whole).first();
    return link ? std::optional(toQString(*link)) : std::nullopt;
}

} // namespace orl
