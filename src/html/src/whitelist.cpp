#include "orl/html/whitelist.h"

#include "checks.h"
#include "orl/html/string_util.h"
#include "scan.h"
#include "utf8.h"

#include <algorithm>

namespace orl::html {

namespace {

constexpr std::string_view everyTag = ":all";

std::string_view notEmpty(std::string_view text) {
    core::checkNotEmpty(text);
    return text;
}

const Whitelist::Texts &checkedKeys(const Whitelist::Texts &keys) {
    if (keys.empty()) core::failArgument("No attributes supplied.");
    std::ranges::for_each(keys, core::checkNotEmpty);
    return keys;
}

const Whitelist::Texts &checked(const Whitelist::Texts &texts) {
    std::ranges::for_each(texts, core::checkNotEmpty);
    return texts;
}

bool isAnchor(std::string_view value) {
    return value.starts_with('#') &&
           std::ranges::none_of(value, [](char c) { return core::isWhite(c) || c == '\v'; });
}

bool startsWithProtocol(std::string_view value, const std::string &protocol) {
    return value.size() > protocol.size() && value[protocol.size()] == ':' &&
           core::equalsIgnoringAsciiCase(value.substr(0, protocol.size()), core::lowerCase(protocol));
}

} // namespace

// ---- Presets
// ------------------------------------------------------------------------------------------------------

Whitelist Whitelist::none() {
    return {};
}

Whitelist Whitelist::simpleText() {
    return Whitelist().addTags({"b", "em", "i", "strong", "u"});
}

Whitelist Whitelist::basic() {
    Whitelist list;
    list.addTags({"a",     "b",    "blockquote", "br",     "cite", "code", "dd",  "dl",
                  "dt",    "em",   "i",          "li",     "ol",   "p",    "pre", "q",
                  "small", "span", "strike",     "strong", "sub",  "sup",  "u",   "ul"})
        .addAttributes("a", {"href"})
        .addAttributes("blockquote", {"cite"})
        .addAttributes("q", {"cite"})
        .addProtocols("a", "href", {"ftp", "http", "https", "mailto"})
        .addProtocols("blockquote", "cite", {"http", "https"})
        .addProtocols("q", "cite", {"http", "https"})
        .addEnforcedAttribute("a", "rel", "nofollow");
    return list;
}

Whitelist Whitelist::basicWithImages() {
    return basic()
        .addTags({"img"})
        .addAttributes("img", {"align", "alt", "height", "src", "title", "width"})
        .addProtocols("img", "src", {"http", "https"});
}

Whitelist Whitelist::relaxed() {
    Whitelist list;
    list.addTags({"a",     "b",    "blockquote", "br",     "caption", "cite", "code",  "col",   "colgroup",
                  "dd",    "div",  "dl",         "dt",     "em",      "h1",   "h2",    "h3",    "h4",
                  "h5",    "h6",   "i",          "img",    "li",      "ol",   "p",     "pre",   "q",
                  "small", "span", "strike",     "strong", "sub",     "sup",  "table", "tbody", "td",
                  "tfoot", "th",   "thead",      "tr",     "u",       "ul"})
        .addAttributes("a", {"href", "title"})
        .addAttributes("blockquote", {"cite"})
        .addAttributes("col", {"span", "width"})
        .addAttributes("colgroup", {"span", "width"})
        .addAttributes("img", {"align", "alt", "height", "src", "title", "width"})
        .addAttributes("ol", {"start", "type"})
        .addAttributes("q", {"cite"})
        .addAttributes("table", {"summary", "width"})
        .addAttributes("td", {"abbr", "axis", "colspan", "rowspan", "width"})
        .addAttributes("th", {"abbr", "axis", "colspan", "rowspan", "scope", "width"})
        .addAttributes("ul", {"type"})
        .addProtocols("a", "href", {"ftp", "http", "https", "mailto"})
        .addProtocols("blockquote", "cite", {"http", "https"})
        .addProtocols("img", "src", {"http", "https"})
        .addProtocols("q", "cite", {"http", "https"});
    return list;
}

// ---- Rules
// --------------------------------------------------------------------------------------------------------

Whitelist &Whitelist::addTags(const Texts &tags) {
    for (const std::string &tag : checked(tags))
        tagNames_.insert(TagName::valueOf(tag));
    return *this;
}

Whitelist &Whitelist::removeTags(const Texts &tags) {
    for (const std::string &text : checked(tags)) {
        const TagName tag = TagName::valueOf(text);
        tagNames_.erase(tag);
        attributes_.erase(tag);
        enforcedAttributes_.erase(tag);
        protocols_.erase(tag);
    }
    return *this;
}

Whitelist &Whitelist::addAttributes(std::string_view tag, const Texts &keys) {
    core::checkNotEmpty(tag);
    for (const std::string &key : checkedKeys(keys))
        attributes_[TagName::valueOf(tag)].insert(AttributeKey::valueOf(key));
    return *this;
}

Whitelist &Whitelist::removeAttributes(std::string_view tag, const Texts &keys) {
    core::checkNotEmpty(tag);
    for (const std::string &key : checkedKeys(keys))
        for (auto &[name, allowed] : attributes_)
            if (tag == everyTag || name.value == tag) allowed.erase(AttributeKey::valueOf(key));
    return *this;
}

Whitelist &Whitelist::addEnforcedAttribute(std::string_view tag, std::string_view key,
                                           std::string_view value) {
    core::checkNotEmpty(tag);
    core::checkNotEmpty(key);
    enforcedAttributes_[TagName::valueOf(tag)].insert_or_assign(AttributeKey::valueOf(key),
                                                                AttributeValue::valueOf(notEmpty(value)));
    return *this;
}

Whitelist &Whitelist::removeEnforcedAttribute(std::string_view tag, std::string_view key) {
    core::checkNotEmpty(tag);
    const auto enforced = enforcedAttributes_.find(TagName::valueOf(tag));
    core::checkNotEmpty(key);
    if (enforced != enforcedAttributes_.end()) enforced->second.erase(AttributeKey::valueOf(key));
    return *this;
}

Whitelist &Whitelist::preserveRelativeLinks(bool preserve) {
    preserveRelativeLinks_ = preserve;
    return *this;
}

Whitelist &Whitelist::addProtocols(std::string_view tag, std::string_view key, const Texts &protocols) {
    core::checkNotEmpty(tag);
    core::checkNotEmpty(key);
    for (const std::string &protocol : checked(protocols))
        protocols_[TagName::valueOf(tag)][AttributeKey::valueOf(key)].insert(Protocol::valueOf(protocol));
    return *this;
}

/// The rule stays when its last protocol goes: then no link passes.
Whitelist &Whitelist::removeProtocols(std::string_view tag, std::string_view key, const Texts &protocols) {
    core::checkNotEmpty(tag);
    core::checkNotEmpty(key);
    checked(protocols);
    const auto ofTag = protocols_.find(TagName::valueOf(tag));
    if (ofTag == protocols_.end()) return *this;
    const auto ofKey = ofTag->second.find(AttributeKey::valueOf(key));
    if (ofKey == ofTag->second.end()) return *this;
    for (const std::string &protocol : protocols)
        ofKey->second.erase(Protocol::valueOf(protocol));
    return *this;
}

// ---- Questions
// ----------------------------------------------------------------------------------------------------

bool Whitelist::isSafeTag(std::string_view tag) const {
    return tagNames_.contains(TagName::valueOf(tag));
}

bool Whitelist::hasRule(const TagName &tag, const AttributeKey &key) const {
    const auto rules = attributes_.find(tag);
    return rules != attributes_.end() && rules->second.contains(key);
}

/// Null where any protocol will do.
const std::set<Whitelist::Protocol> *Whitelist::protocolsOf(const TagName &tag,
                                                            const AttributeKey &key) const {
    for (const TagName &name : {tag, TagName::valueOf(everyTag)}) {
        const auto ofTag = protocols_.find(name);
        if (ofTag == protocols_.end()) continue;
        const auto ofKey = ofTag->second.find(key);
        if (ofKey != ofTag->second.end()) return &ofKey->second;
    }
    return nullptr;
}

Whitelist::Verdict Whitelist::judge(const TagName &tag, std::string_view key, std::string_view value,
                                    std::string_view baseUri, std::string &newValue) const {
    const AttributeKey attributeKey = AttributeKey::valueOf(key);
    if (!hasRule(tag, attributeKey) && !hasRule(TagName::valueOf(everyTag), attributeKey))
        return Verdict::Unsafe;
    const std::set<Protocol> *protocols = protocolsOf(tag, attributeKey);
    if (!protocols) return Verdict::Safe;

    // Not by the attribute's name: names that differ in case only may both be there.
    newValue = StringUtil::resolve(baseUri, value);
    if (newValue.empty()) newValue = value;
    const bool passes = std::ranges::any_of(*protocols, [&newValue](const Protocol &protocol) {
        return protocol.value == "#" ? isAnchor(newValue) : startsWithProtocol(newValue, protocol.value);
    });
    if (passes) return preserveRelativeLinks_ || newValue == value ? Verdict::Safe : Verdict::SafeWithValue;
    // A link inside the page stays one, whatever the page's address.
    return protocols->contains(Protocol::valueOf("#")) && isAnchor(value) ? Verdict::Safe : Verdict::Unsafe;
}

bool Whitelist::isSafeAttribute(std::string_view tagName, const Element &element,
                                const Attribute &attribute) const {
    std::string newValue;
    const Verdict verdict = judge(TagName::valueOf(tagName), attribute.getKey(), attribute.getValue(),
                                  element.getBaseUri(), newValue);
    if (verdict == Verdict::SafeWithValue) attribute.setValue(newValue);
    return verdict != Verdict::Unsafe;
}

Attributes Whitelist::getEnforcedAttributes(std::string_view tagName) const {
    Attributes list;
    const auto enforced = enforcedAttributes_.find(TagName::valueOf(tagName));
    if (enforced == enforcedAttributes_.end()) return list;
    for (const auto &[key, value] : enforced->second)
        list.put(key.value, value.value);
    return list;
}

} // namespace orl::html
