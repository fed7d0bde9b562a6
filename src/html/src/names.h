// The names of tags and attributes: one record a name, so that comparing names is comparing 32-bit numbers.
//
// The names of HTML stand in the first stretch of the node space and live as long as the process; a name that
// a page brings along gets a record in the page's arena.
#pragma once

#include "space.h"

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace orl::html::core {

// clang-format off
/// Every tag name that the registry or a rule of the tree builder mentions, and a few that pages often use.
#define ORL_HTML_TAGS(X)                                                                                   \
    X(Html, "html") X(Head, "head") X(Body, "body") X(Frameset, "frameset") X(Script, "script")            \
    X(Noscript, "noscript") X(Style, "style") X(Meta, "meta") X(Link, "link") X(Title, "title")            \
    X(Frame, "frame") X(Noframes, "noframes") X(Section, "section") X(Nav, "nav") X(Aside, "aside")        \
    X(Hgroup, "hgroup") X(Header, "header") X(Footer, "footer") X(P, "p") X(H1, "h1") X(H2, "h2")          \
    X(H3, "h3") X(H4, "h4") X(H5, "h5") X(H6, "h6") X(Ul, "ul") X(Ol, "ol") X(Pre, "pre") X(Div, "div")    \
    X(Blockquote, "blockquote") X(Hr, "hr") X(Address, "address") X(Figure, "figure")                      \
    X(Figcaption, "figcaption") X(Form, "form") X(Fieldset, "fieldset") X(Ins, "ins") X(Del, "del")        \
    X(S, "s") X(Dl, "dl") X(Dt, "dt") X(Dd, "dd") X(Li, "li") X(Table, "table") X(Caption, "caption")      \
    X(Thead, "thead") X(Tfoot, "tfoot") X(Tbody, "tbody") X(Colgroup, "colgroup") X(Col, "col")            \
    X(Tr, "tr") X(Th, "th") X(Td, "td") X(Video, "video") X(Audio, "audio") X(Canvas, "canvas")            \
    X(Details, "details") X(Menu, "menu") X(Plaintext, "plaintext") X(Template, "template")                \
    X(Article, "article") X(Main, "main") X(Svg, "svg") X(Math, "math") X(Object, "object")                \
    X(Base, "base") X(Font, "font") X(Tt, "tt") X(I, "i") X(B, "b") X(U, "u") X(Big, "big")                \
    X(Small, "small") X(Em, "em") X(Strong, "strong") X(Dfn, "dfn") X(Code, "code") X(Samp, "samp")        \
    X(Kbd, "kbd") X(Var, "var") X(Cite, "cite") X(Abbr, "abbr") X(Time, "time") X(Acronym, "acronym")      \
    X(Mark, "mark") X(Ruby, "ruby") X(Rt, "rt") X(Rp, "rp") X(A, "a") X(Img, "img") X(Br, "br")            \
    X(Wbr, "wbr") X(Map, "map") X(Q, "q") X(Sub, "sub") X(Sup, "sup") X(Bdo, "bdo") X(Iframe, "iframe")    \
    X(Embed, "embed") X(Span, "span") X(Input, "input") X(Select, "select") X(Textarea, "textarea")        \
    X(Label, "label") X(Button, "button") X(Optgroup, "optgroup") X(Option, "option")                      \
    X(Legend, "legend") X(Datalist, "datalist") X(Keygen, "keygen") X(Output, "output")                    \
    X(Progress, "progress") X(Meter, "meter") X(Area, "area") X(Param, "param") X(Source, "source")        \
    X(Track, "track") X(Summary, "summary") X(Command, "command") X(Device, "device")                      \
    X(Basefont, "basefont") X(Bgsound, "bgsound") X(Menuitem, "menuitem") X(Data, "data") X(Bdi, "bdi")    \
    X(Applet, "applet") X(Center, "center") X(Marquee, "marquee") X(Nobr, "nobr") X(Listing, "listing")    \
    X(Xmp, "xmp") X(Noembed, "noembed") X(Strike, "strike") X(Dir, "dir") X(Isindex, "isindex")            \
    X(Image, "image") X(Sarcasm, "sarcasm") X(Rb, "rb") X(Rtc, "rtc") X(Dialog, "dialog")                  \
    X(Search, "search") X(Picture, "picture") X(Slot, "slot") X(Path, "path") X(G, "g") X(Rect, "rect")    \
    X(Circle, "circle") X(Use, "use") X(Defs, "defs") X(Root, "#root")
// clang-format on

/// Known tag names. `Unknown` is any other name, and a known one in another case, such as "DIV".
enum class TagId : std::uint8_t {
    Unknown,
#define ORL_HTML_TAG_ID(id, name) id,
    ORL_HTML_TAGS(ORL_HTML_TAG_ID)
#undef ORL_HTML_TAG_ID
        Count
};

/// What a tag name means.
struct alignas(16) TagRec {
    enum Flag : std::uint16_t {
        Block = 1,
        FormatAsBlock = 2,
        CanContainBlock = 4,
        CanContainInline = 8,
        Empty = 16,
        SelfClosing = 32,
        PreserveWhitespace = 64,
        FormListed = 128,
        FormSubmittable = 256,
        Registered = 512, ///< stands in the registry of known tags
    };
    /// The nine flags that make two tags of one name the same.
    static constexpr std::uint16_t behaviour = 511;
    /// Of a name that is not registered.
    static constexpr std::uint16_t unknown = FormatAsBlock | CanContainBlock | CanContainInline;

    std::uint64_t key[2]; ///< the first 16 bytes of the name, padded with zeros
    const char *text;
    const char *normalText;
    std::uint32_t length;
    std::uint32_t normalLength;
    std::uint64_t sets; ///< the tree builder's sets that the name belongs to
    std::uint16_t flags;
    TagId id;       ///< of the name as it is
    TagId normalId; ///< of the name in lower case
    /// Of a name that the page brought along: the tree builder's newest open element of it, counted from 1.
    mutable std::uint32_t newestOpen = 0;

    std::string_view name() const { return {text, length}; }
    std::string_view normalName() const { return {normalText, normalLength}; }
    bool has(Flag flag) const { return flags & flag; }
    bool closesItself() const { return flags & (Empty | SelfClosing); }
};
static_assert(sizeof(TagRec) == 64);

/// An attribute name. The names that the engine itself asks for.
enum class NameId : std::uint8_t {
    Class,
    Id,
    Href,
    Src,
    Text,
    Data,
    Comment,
    Name,
    Type,
    Value,
    Content,
    Charset,
    PubSysKey,
    PublicId,
    SystemId,
    Version,
    Encoding,
    Action,
    Prompt,
    Color,
    Face,
    Size
};

struct alignas(16) NameRec {
    enum Flag : std::uint32_t {
        Boolean = 1, ///< in lower case, one of the boolean attributes
        Data = 2,    ///< starts with "data-" and goes on
    };

    const char *text;
    std::uint32_t length;
    Ref lower; ///< the record of the name in lower case; its own if it is that
    std::uint32_t flags;
    std::uint32_t hash;
    std::uint32_t place = 0; ///< in the last long tag that had it; of use to the tokeniser alone

    std::string_view name() const { return {text, length}; }
};
static_assert(sizeof(NameRec) == 32);

constexpr std::size_t tagCount = std::size_t(TagId::Count);
constexpr std::size_t maxKnownNames = 512;

constexpr Ref firstTag = 16;
constexpr Ref firstName = firstTag + tagCount * sizeof(TagRec) / 16;
constexpr Ref endOfStatics = firstName + maxKnownNames * sizeof(NameRec) / 16;
static_assert(std::size_t(endOfStatics) * 16 <= granuleSize);

/// A record that lives as long as the process. Two static records of one sort are the same name only if they
/// are the same record.
constexpr bool isStatic(Ref ref) {
    return ref < endOfStatics;
}

constexpr Ref tagRef(TagId id) {
    return firstTag + Ref(id) * (sizeof(TagRec) / 16);
}
constexpr Ref nameRef(NameId id) {
    return firstName + Ref(id) * (sizeof(NameRec) / 16);
}
inline const TagRec *tagRec(TagId id) {
    return at<TagRec>(tagRef(id));
}
inline const NameRec *nameRec(NameId id) {
    return at<NameRec>(nameRef(id));
}

/// The first 16 bytes of a name as two numbers.
struct NameKey {
    std::uint64_t low, high;
    bool operator==(const NameKey &) const = default;
};

/// Names of at most 16 bytes that are known from the start: an open table of small numbers, half empty at
/// least.
template<std::size_t Size>
struct KeyTable {
    static constexpr unsigned shift = 64 - std::bit_width(Size - 1);

    NameKey keys[Size] = {};
    std::uint16_t ids[Size] = {}; ///< number plus one; 0 for a free place

    static std::size_t place(NameKey key) {
        return ((key.low ^ (key.high * 0x9e3779b97f4a7c15U)) * 0xd6e8feb86659fd93U) >> shift;
    }
    void insert(NameKey key, std::size_t id) {
        std::size_t i = place(key);
        while (ids[i])
            i = (i + 1) % Size;
        keys[i] = key;
        ids[i] = std::uint16_t(id + 1);
    }
    int find(NameKey key) const {
        for (std::size_t i = place(key); ids[i]; i = (i + 1) % Size)
            if (keys[i] == key) return ids[i] - 1;
        return -1;
    }
};

extern KeyTable<512> tagTable;
extern KeyTable<512> nameTable;

/// The key of a name of 1 to 16 bytes behind which 16 more may be read.
inline NameKey keyOfPadded(const char *name, std::size_t length) {
    NameKey key;
    std::memcpy(&key, name, sizeof key);
    const std::uint64_t all = ~std::uint64_t(0);
    if (length > 8) return {key.low, key.high & (all >> (8 * (16 - length)))};
    return {key.low & (all >> (8 * (8 - length))), 0};
}

/// The record of an exact, lower-case tag name; null if it is none of the list above. The space must be open.
const TagRec *knownTag(std::string_view name);
/// The same for a name of 1 to 16 bytes behind which 16 more may be read.
inline const TagRec *knownTagPadded(const char *name, std::size_t length) {
    const int id = tagTable.find(keyOfPadded(name, length));
    return id < 0 ? nullptr : tagRec(TagId(id));
}

/// The record of an exact attribute name; null if the page has to bring its own.
const NameRec *knownName(std::string_view name);
inline const NameRec *knownNamePadded(const char *name, std::size_t length) {
    const int id = nameTable.find(keyOfPadded(name, length));
    return id < 0 ? nullptr : nameRec(NameId(id));
}

std::uint32_t hashOf(std::string_view text);

bool isBooleanAttribute(std::string_view lowerName);

inline bool sameName(Ref left, Ref right) {
    if (left == right) return true;
    if (isStatic(left) || isStatic(right)) return false;
    const auto *a = at<NameRec>(left);
    const auto *b = at<NameRec>(right);
    return a->hash == b->hash && a->name() == b->name();
}

/// Fills the first stretch of the space; called once, when the space opens.
void fillStatics();

} // namespace orl::html::core
