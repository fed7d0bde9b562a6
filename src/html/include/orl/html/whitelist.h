#pragma once

#include <orl/html/element.h>
#include <orl/html/export.h>

#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace orl::html {

/// What untrusted markup may hold: tags, attributes by tag, and by attribute the protocols that its URLs may
/// have. What is not listed is not allowed; names are compared exactly, as the parser of HTML gives them in
/// lower case.
///
/// The pseudo tag ":all" stands for every tag in the rules about attributes and protocols. A rule for a tag's
/// own attribute goes before one for ":all".
///
/// In all operations an empty tag, key, value or protocol fails with "String must not be empty", and an empty
/// list of keys with "No attributes supplied.", both of type IllegalArgumentException.
class ORL_HTML_API Whitelist {
public:
    using Texts = std::vector<std::string>;

    /// Nothing, like none().
    Whitelist() = default;

    /// Text only.
    static Whitelist none();
    /// b, em, i, strong, u.
    static Whitelist simpleText();
    /// Text with structure, quotations and links; links are marked `rel="nofollow"`.
    static Whitelist basic();
    /// basic() and images from http and https.
    static Whitelist basicWithImages();
    /// All that a text may need: headings, tables, images too. No marks on links.
    static Whitelist relaxed();

    Whitelist &addTags(const Texts &tags);
    /// With all rules about them.
    Whitelist &removeTags(const Texts &tags);
    Whitelist &addAttributes(std::string_view tag, const Texts &keys);
    /// From ":all" means from every tag.
    Whitelist &removeAttributes(std::string_view tag, const Texts &keys);
    /// Every such element gets this attribute, in place of its own.
    Whitelist &addEnforcedAttribute(std::string_view tag, std::string_view key, std::string_view value);
    Whitelist &removeEnforcedAttribute(std::string_view tag, std::string_view key);
    /// Whether links stay as they are written. Otherwise, as at first, those that have rules about protocols
    /// become absolute. Either way it is the absolute form whose protocol counts, so without a base URI no
    /// relative link passes.
    Whitelist &preserveRelativeLinks(bool preserve);
    /// Protocols are written without their colon. "#" stands for links inside the page.
    Whitelist &addProtocols(std::string_view tag, std::string_view key, const Texts &protocols);
    Whitelist &removeProtocols(std::string_view tag, std::string_view key, const Texts &protocols);

    bool isSafeTag(std::string_view tag) const;
    /// Whether an element of this tag may keep the attribute. It is given its absolute form if there is a
    /// rule about its protocols and relative links are not preserved.
    bool isSafeAttribute(std::string_view tagName, const Element &element, const Attribute &attribute) const;
    /// A new list of them.
    Attributes getEnforcedAttributes(std::string_view tagName) const;

private:
    friend class Cleaner;

    /// A text that means one thing only.
    template<class Meaning>
    struct TypedValue {
        static TypedValue valueOf(std::string_view text) { return {std::string(text)}; }
        bool operator==(const TypedValue &) const = default;
        bool operator<(const TypedValue &other) const { return value < other.value; }

        std::string value;
    };
    using TagName = TypedValue<struct TagNameMeaning>;
    using AttributeKey = TypedValue<struct AttributeKeyMeaning>;
    using AttributeValue = TypedValue<struct AttributeValueMeaning>;
    using Protocol = TypedValue<struct ProtocolMeaning>;
    using Enforced = std::map<AttributeKey, AttributeValue>;

    enum class Verdict { Unsafe, Safe, SafeWithValue };
    Verdict judge(const TagName &tag, std::string_view key, std::string_view value, std::string_view baseUri,
                  std::string &newValue) const;
    bool hasRule(const TagName &tag, const AttributeKey &key) const;
    const std::set<Protocol> *protocolsOf(const TagName &tag, const AttributeKey &key) const;

    std::set<TagName> tagNames_;
    std::map<TagName, std::set<AttributeKey>> attributes_;
    std::map<TagName, Enforced> enforcedAttributes_;
    std::map<TagName, std::map<AttributeKey, std::set<Protocol>>> protocols_;
    bool preserveRelativeLinks_ = false;
};

} // namespace orl::html
