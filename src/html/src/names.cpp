#include "names.h"

#include "orl/html/exception.h"
#include "tag_sets.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>
#include <iterator>
#include <new>
#include <random>

namespace orl::html::core {

namespace {

using namespace std::string_view_literals;

// The tables from which the registry of tags is made. Names that stand twice stand so in the table that HTML
// tools have long used, and do no harm.
constexpr std::string_view blockTags[] = {
    "html",     "head",       "body",      "frameset", "script",  "noscript",   "style", "meta",
    "link",     "title",      "frame",     "noframes", "section", "nav",        "aside", "hgroup",
    "header",   "footer",     "p",         "h1",       "h2",      "h3",         "h4",    "h5",
    "h6",       "ul",         "ol",        "pre",      "div",     "blockquote", "hr",    "address",
    "figure",   "figcaption", "form",      "fieldset", "ins",     "del",        "s",     "dl",
    "dt",       "dd",         "li",        "table",    "caption", "thead",      "tfoot", "tbody",
    "colgroup", "col",        "tr",        "th",       "td",      "video",      "audio", "canvas",
    "details",  "menu",       "plaintext", "template", "article", "main",       "svg",   "math"};

constexpr std::string_view inlineTags[] = {
    "object",  "base",    "font",     "tt",       "i",       "b",        "u",      "big",    "small",
    "em",      "strong",  "dfn",      "code",     "samp",    "kbd",      "var",    "cite",   "abbr",
    "time",    "acronym", "mark",     "ruby",     "rt",      "rp",       "a",      "img",    "br",
    "wbr",     "map",     "q",        "sub",      "sup",     "bdo",      "iframe", "embed",  "span",
    "input",   "select",  "textarea", "label",    "button",  "optgroup", "option", "legend", "datalist",
    "keygen",  "output",  "progress", "meter",    "area",    "param",    "source", "track",  "summary",
    "command", "device",  "area",     "basefont", "bgsound", "menuitem", "param",  "source", "track",
    "data",    "bdi"};

constexpr std::string_view emptyTags[] = {"meta",    "link",   "base", "frame",    "img",     "br",
                                          "wbr",     "embed",  "hr",   "input",    "keygen",  "col",
                                          "command", "device", "area", "basefont", "bgsound", "menuitem",
                                          "param",   "source", "track"};

constexpr std::string_view formatAsInlineTags[] = {"title",  "a",     "p",   "h1",      "h2", "h3", "h4",
                                                   "h5",     "h6",    "pre", "address", "li", "th", "td",
                                                   "script", "style", "ins", "del",     "s"};

constexpr std::string_view preserveWhitespaceTags[] = {"pre", "plaintext", "title", "textarea"};

constexpr std::string_view formListedTags[] = {"button", "fieldset", "input",  "keygen",
                                               "object", "output",   "select", "textarea"};

constexpr std::string_view formSubmitTags[] = {"input", "keygen", "object", "select", "textarea"};

static_assert(std::size(blockTags) == 64 && std::size(inlineTags) == 65 && std::size(emptyTags) == 21 &&
              std::size(formatAsInlineTags) == 19);

constexpr std::string_view booleanAttributes[] = {
    "allowfullscreen", "async",      "autofocus", "checked",        "compact",   "declare",
    "default",         "defer",      "disabled",  "formnovalidate", "hidden",    "inert",
    "ismap",           "itemscope",  "multiple",  "muted",          "nohref",    "noresize",
    "noshade",         "novalidate", "nowrap",    "open",           "readonly",  "required",
    "reversed",        "seamless",   "selected",  "sortable",       "truespeed", "typemustmatch"};
static_assert(std::size(booleanAttributes) == 30 && std::ranges::is_sorted(booleanAttributes));

constexpr std::string_view tagNames[tagCount] = {"",
#define ORL_HTML_TAG_NAME(id, name) name,
                                                 ORL_HTML_TAGS(ORL_HTML_TAG_NAME)
#undef ORL_HTML_TAG_NAME
};

// In the order of NameId, then names that pages often use, then the boolean ones, then the lower-case forms
// of the three that are not lower case.
constexpr std::string_view attributeNames[] = {"class",
                                               "id",
                                               "href",
                                               "src",
                                               "text",
                                               "data",
                                               "comment",
                                               "name",
                                               "type",
                                               "value",
                                               "content",
                                               "charset",
                                               "pubSysKey",
                                               "publicId",
                                               "systemId",
                                               "version",
                                               "encoding",
                                               "action",
                                               "prompt",
                                               "color",
                                               "face",
                                               "size",
                                               "rel",
                                               "title",
                                               "alt",
                                               "style",
                                               "lang",
                                               "dir",
                                               "target",
                                               "method",
                                               "for",
                                               "width",
                                               "height",
                                               "colspan",
                                               "rowspan",
                                               "align",
                                               "valign",
                                               "border",
                                               "cellpadding",
                                               "cellspacing",
                                               "bgcolor",
                                               "media",
                                               "role",
                                               "tabindex",
                                               "placeholder",
                                               "maxlength",
                                               "autocomplete",
                                               "property",
                                               "itemprop",
                                               "itemtype",
                                               "itemid",
                                               "itemref",
                                               "xmlns",
                                               "summary",
                                               "span",
                                               "start",
                                               "scope",
                                               "abbr",
                                               "axis",
                                               "cite",
                                               "datetime",
                                               "label",
                                               "accept",
                                               "enctype",
                                               "usemap",
                                               "shape",
                                               "coords",
                                               "srcset",
                                               "sizes",
                                               "crossorigin",
                                               "integrity",
                                               "loading",
                                               "http-equiv",
                                               "onclick",
                                               "onload",
                                               "onsubmit",
                                               "onchange",
                                               "aria-label",
                                               "aria-hidden",
                                               "aria-labelledby",
                                               "aria-describedby",
                                               "aria-expanded",
                                               "aria-controls",
                                               "aria-current",
                                               "data-id",
                                               "data-toggle",
                                               "data-target",
                                               "data-src",
                                               "data-value",
                                               "data-type",
                                               "data-url",
                                               "data-name",
                                               "data-title",
                                               "data-href",
                                               "data-number",
                                               "data-time",
                                               "viewbox",
                                               "fill",
                                               "stroke",
                                               "stroke-width",
                                               "d",
                                               "x",
                                               "y",
                                               "cx",
                                               "cy",
                                               "r",
                                               "transform",
                                               "points",
                                               "allowfullscreen",
                                               "async",
                                               "autofocus",
                                               "checked",
                                               "compact",
                                               "declare",
                                               "default",
                                               "defer",
                                               "disabled",
                                               "formnovalidate",
                                               "hidden",
                                               "inert",
                                               "ismap",
                                               "itemscope",
                                               "multiple",
                                               "muted",
                                               "nohref",
                                               "noresize",
                                               "noshade",
                                               "novalidate",
                                               "nowrap",
                                               "open",
                                               "readonly",
                                               "required",
                                               "reversed",
                                               "seamless",
                                               "selected",
                                               "sortable",
                                               "truespeed",
                                               "typemustmatch",
                                               "pubsyskey",
                                               "publicid",
                                               "systemid"};
static_assert(std::size(attributeNames) <= maxKnownNames);
static_assert(attributeNames[std::size_t(NameId::Size)] == "size");

template<class T>
std::uint64_t load(const char *from) {
    T value;
    std::memcpy(&value, from, sizeof value);
    return value;
}

/// The key of a name of any length; reads nothing past its end.
NameKey keyOf(const char *text, std::size_t length) {
    if (length > 8)
        return {load<std::uint64_t>(text), load<std::uint64_t>(text + length - 8) >> (8 * (16 - length))};
    if (length == 8) return {load<std::uint64_t>(text), 0};
    if (length >= 4) {
        const std::uint64_t tail = load<std::uint32_t>(text + length - 4) >> (8 * (8 - length));
        return {load<std::uint32_t>(text) | tail << 32, 0};
    }
    std::uint64_t low = 0;
    for (std::size_t i = 0; i < length; ++i)
        low |= std::uint64_t(static_cast<unsigned char>(text[i])) << (8 * i);
    return {low, 0};
}

int find(const KeyTable<512> &table, std::string_view name) {
    return name.empty() || name.size() > 16 ? -1 : table.find(keyOf(name.data(), name.size()));
}

TagRec *registered(std::string_view name) {
    const TagRec *found = knownTag(name);
    if (!found || !found->has(TagRec::Registered))
        throw Exception::Error(ExceptionType::IllegalArgumentException, "Object must not be null");
    return const_cast<TagRec *>(found);
}

void fillTags() {
    for (std::size_t i = 0; i < tagCount; ++i) {
        const std::string_view name = tagNames[i];
        const NameKey key = keyOf(name.data(), name.size());
        new (at<TagRec>(tagRef(TagId(i)))) TagRec{{key.low, key.high},
                                                  name.data(),
                                                  name.data(),
                                                  std::uint32_t(name.size()),
                                                  std::uint32_t(name.size()),
                                                  tagSets(name),
                                                  TagRec::unknown,
                                                  TagId(i),
                                                  TagId(i)};
        if (i > 0) tagTable.insert(key, i);
    }
    constexpr auto fresh = TagRec::Block | TagRec::FormatAsBlock | TagRec::CanContainBlock |
                           TagRec::CanContainInline | TagRec::Registered;
    for (const auto name : blockTags)
        const_cast<TagRec *>(knownTag(name))->flags = fresh;
    for (const auto name : inlineTags)
        const_cast<TagRec *>(knownTag(name))->flags = TagRec::CanContainInline | TagRec::Registered;
    for (const auto name : emptyTags) {
        TagRec *tag = registered(name);
        tag->flags &= std::uint16_t(~(TagRec::CanContainBlock | TagRec::CanContainInline));
        tag->flags |= TagRec::Empty;
    }
    for (const auto name : formatAsInlineTags)
        registered(name)->flags &= std::uint16_t(~TagRec::FormatAsBlock);
    for (const auto name : preserveWhitespaceTags)
        registered(name)->flags |= TagRec::PreserveWhitespace;
    for (const auto name : formListedTags)
        registered(name)->flags |= TagRec::FormListed;
    for (const auto name : formSubmitTags)
        registered(name)->flags |= TagRec::FormSubmittable;
}

std::string_view lowerFormOf(std::string_view name) {
    if (name == "pubSysKey") return "pubsyskey";
    if (name == "publicId") return "publicid";
    if (name == "systemId") return "systemid";
    return name;
}

void fillNames() {
    for (std::size_t i = 0; i < std::size(attributeNames); ++i)
        nameTable.insert(keyOf(attributeNames[i].data(), attributeNames[i].size()), i);
    for (std::size_t i = 0; i < std::size(attributeNames); ++i) {
        const std::string_view name = attributeNames[i];
        const int lower = find(nameTable, lowerFormOf(name));
        const std::uint32_t flags = (isBooleanAttribute(name) ? NameRec::Boolean : 0U) |
                                    (name.starts_with("data-"sv) && name.size() > 5 ? NameRec::Data : 0U);
        new (at<NameRec>(nameRef(NameId(i))))
            NameRec{name.data(), std::uint32_t(name.size()), nameRef(NameId(lower)), flags, hashOf(name)};
    }
}

} // namespace

KeyTable<512> tagTable;
KeyTable<512> nameTable;

const TagRec *knownTag(std::string_view name) {
    const int id = find(tagTable, name);
    return id < 0 ? nullptr : tagRec(TagId(id));
}

const NameRec *knownName(std::string_view name) {
    const int id = find(nameTable, name);
    return id < 0 ? nullptr : nameRec(NameId(id));
}

namespace {

/// Different in each run of the program, so that no page can be made of names that fall into one place.
const std::array<std::uint64_t, 2> &hashSeeds() {
    static const std::array<std::uint64_t, 2> seeds = [] {
        std::random_device random;
        const auto number = [&random] { return std::uint64_t(random()) << 32 | random(); };
        return std::array<std::uint64_t, 2>{number(), number()};
    }();
    return seeds;
}

/// Both halves of the product.
std::uint64_t multiplied(std::uint64_t left, std::uint64_t right) {
    __extension__ using Product = unsigned __int128;
    const Product product = Product(left) * right;
    return std::uint64_t(product) ^ std::uint64_t(product >> 64);
}

} // namespace

std::uint32_t hashOf(std::string_view text) {
    const char *p = text.data();
    std::size_t left = text.size();
    std::uint64_t hash = left;
    const auto &seeds = hashSeeds();
    const auto mix = [&hash, &seeds](NameKey key) {
        hash = multiplied(key.low ^ hash ^ seeds[0], key.high ^ seeds[1]);
    };
    for (; left > 16; p += 16, left -= 16)
        mix(keyOf(p, 16));
    mix(keyOf(p, left));
    return std::uint32_t(hash ^ (hash >> 32));
}

bool isBooleanAttribute(std::string_view lowerName) {
    return std::ranges::binary_search(booleanAttributes, lowerName);
}

void fillStatics() {
    fillTags();
    fillNames();
}

} // namespace orl::html::core
