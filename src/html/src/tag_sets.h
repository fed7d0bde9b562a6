// Which of the tree builder's sets a tag name belongs to, as the bits of TagRec::sets.
//
// Each set is a table here, by the name that the tree builder knows it under; the bits are computed from the
// tables once, when the records of the known names are made.
#pragma once

#include <cstdint>
#include <string_view>

namespace orl::html::core {

// clang-format off
#define ORL_HTML_TAG_SETS(X)                                                                               \
    /* Where the search for an open element ends. */                                                       \
    X(TagsSearchInScope, "applet", "caption", "html", "table", "td", "th", "marquee", "object")            \
    X(TagSearchList, "ol", "ul")                                                                           \
    X(TagSearchButton, "button")                                                                           \
    X(TagSearchTableScope, "html", "table")                                                                \
    X(TagSearchSelectScope, "optgroup", "option")                                                          \
    /* What closes by itself, and what counts as more than phrasing. */                                    \
    X(TagSearchEndTags, "dd", "dt", "li", "option", "optgroup", "p", "rp", "rt")                           \
    X(TagSearchSpecial, "address", "applet", "area", "article", "aside", "base", "basefont", "bgsound",    \
      "blockquote", "body", "br", "button", "caption", "center", "col", "colgroup", "command", "dd",       \
      "details", "dir", "div", "dl", "dt", "embed", "fieldset", "figcaption", "figure", "footer", "form",  \
      "frame", "frameset", "h1", "h2", "h3", "h4", "h5", "h6", "head", "header", "hgroup", "hr", "html",   \
      "iframe", "img", "input", "isindex", "li", "link", "listing", "marquee", "menu", "meta", "nav",      \
      "noembed", "noframes", "noscript", "object", "ol", "p", "param", "plaintext", "pre", "script",       \
      "section", "select", "style", "summary", "table", "tbody", "td", "textarea", "tfoot", "th", "thead", \
      "title", "tr", "ul", "wbr", "xmp")                                                                   \
    /* How the text of a fragment's context is read. */                                                    \
    X(TagsRcdata, "title", "textarea")                                                                     \
    X(TagsRawtext, "iframe", "noembed", "noframes", "style", "xmp")                                        \
    /* What the insertion modes tell apart. */                                                             \
    X(BeforeHtmlToHead, "head", "body", "html", "br")                                                      \
    X(BeforeHeadEnd, "body", "html", "br")                                                                 \
    X(AfterHeadBody, "body", "html")                                                                       \
    X(InHeadEmpty, "base", "basefont", "bgsound", "command", "link")                                       \
    X(InHeadNoscriptIgnore, "basefont", "bgsound", "link", "meta", "noframes", "style")                    \
    X(AfterHeadMove, "base", "basefont", "bgsound", "link", "meta", "noframes", "script", "style", "title")\
    X(InHeadNoscriptEnd, "head", "noscript")                                                               \
    X(InTableFoster, "table", "tbody", "tfoot", "thead", "tr")                                             \
    X(InTableBodyTags, "tbody", "tfoot", "thead")                                                          \
    X(InTableEndIgnore, "body", "caption", "col", "colgroup", "html", "tbody", "td", "tfoot", "th",        \
      "thead", "tr")                                                                                       \
    X(InCaptionIgnore, "body", "col", "colgroup", "html", "tbody", "td", "tfoot", "th", "thead", "tr")     \
    X(InCaptionExit, "caption", "col", "colgroup", "tbody", "tfoot", "thead")                              \
    X(InTableBodyIgnore, "body", "caption", "col", "colgroup", "html", "td", "th", "tr")                   \
    X(InRowExit, "caption", "col", "colgroup", "tbody", "tfoot", "thead", "tr")                            \
    X(InRowIgnore, "body", "caption", "col", "colgroup", "html", "td", "th")                               \
    X(InCellIgnore, "body", "caption", "col", "colgroup", "html")                                          \
    X(InCellClose, "caption", "table", "tbody", "tfoot", "thead", "tr", "td", "th")                        \
    X(InCellExit, "caption", "col", "colgroup", "tbody", "td", "tfoot", "th", "thead", "tr")               \
    X(InCellNames, "th", "td")                                                                             \
    X(InSelectExit, "input", "keygen", "textarea")                                                         \
    X(InBodyStartToHead, "base", "basefont", "bgsound", "command", "link", "meta", "noframes", "script",   \
      "style", "title")                                                                                    \
    X(InBodyStartPClosers, "address", "article", "aside", "blockquote", "center", "details", "dir", "div", \
      "dl", "fieldset", "figcaption", "figure", "footer", "header", "hgroup", "menu", "nav", "ol", "p",    \
      "section", "summary", "ul")                                                                          \
    X(Headings, "h1", "h2", "h3", "h4", "h5", "h6")                                                        \
    X(InBodyStartPreListing, "pre", "listing")                                                             \
    X(InBodyStartLiBreakers, "address", "div", "p")                                                        \
    X(DdDt, "dd", "dt")                                                                                    \
    X(Formatters, "b", "big", "code", "em", "font", "i", "s", "small", "strike", "strong", "tt", "u")      \
    X(InBodyStartApplets, "applet", "marquee", "object")                                                   \
    X(InBodyStartEmptyFormatters, "area", "br", "embed", "img", "keygen", "wbr")                           \
    X(InBodyStartMedia, "param", "source", "track")                                                        \
    X(InBodyStartOptions, "optgroup", "option")                                                            \
    X(InBodyStartRuby, "rp", "rt")                                                                         \
    X(InBodyStartDrop, "caption", "col", "colgroup", "frame", "head", "tbody", "td", "tfoot", "th",        \
      "thead", "tr")                                                                                       \
    X(InBodyEndClosers, "address", "article", "aside", "blockquote", "button", "center", "details", "dir", \
      "div", "dl", "fieldset", "figcaption", "figure", "footer", "header", "hgroup", "listing", "menu",    \
      "nav", "ol", "pre", "section", "summary", "ul")                                                      \
    X(InBodyEndAdoptionFormatters, "a", "b", "big", "code", "em", "font", "i", "nobr", "s", "small",       \
      "strike", "strong", "tt", "u")                                                                       \
    X(InBodyEndTableFosters, "table", "tbody", "tfoot", "thead", "tr")
// clang-format on

enum class TagSet : std::uint8_t {
#define ORL_HTML_TAG_SET_ID(id, ...) id,
    ORL_HTML_TAG_SETS(ORL_HTML_TAG_SET_ID)
#undef ORL_HTML_TAG_SET_ID
        Count
};
static_assert(unsigned(TagSet::Count) <= 64);

constexpr std::uint64_t bitOf(TagSet set) {
    return std::uint64_t(1) << unsigned(set);
}

/// The sets that hold this name.
constexpr std::uint64_t tagSets(std::string_view name) {
    const auto holds = [name](auto... members) { return ((name == members) || ...); };
    std::uint64_t sets = 0;
#define ORL_HTML_TAG_SET_BIT(id, ...)                                                                        \
    if (holds(__VA_ARGS__)) sets |= bitOf(TagSet::id);
    ORL_HTML_TAG_SETS(ORL_HTML_TAG_SET_BIT)
#undef ORL_HTML_TAG_SET_BIT
    return sets;
}

} // namespace orl::html::core
