#pragma once

#include <orl/html/export.h>

#include <cstddef>
#include <string>
#include <string_view>

namespace orl::html {

class ParseSettings;

namespace core {
struct TagRec;
} // namespace core

/// What a tag name means. The tags of HTML stand in a registry that is the same for the whole process; every
/// other name is a tag that may hold blocks but is none.
class ORL_HTML_API Tag {
public:
    /// The registered tag of this name, tried as it is and then as the settings normalise it, or a new tag. A
    /// name that normalises to "" fails with "String must not be empty".
    static Tag valueOf(std::string_view tagName, const ParseSettings &settings);
    /// By ParseSettings::preserveCase: the name is only trimmed.
    static Tag valueOf(std::string_view tagName);
    /// Whether exactly this name is registered.
    static bool isKnownTag(std::string_view name);

    Tag(const Tag &other);
    Tag(Tag &&other) noexcept;
    Tag &operator=(Tag other) noexcept;
    ~Tag();

    std::string getName() const;
    std::string getNameNormal() const;
    bool isBlock() const;
    bool formatAsBlock() const;
    bool canContainBlock() const;
    bool canContainInline() const;
    bool isInline() const;
    /// Neither inline content nor empty.
    bool isData() const;
    bool isEmpty() const;
    bool isSelfClosing() const;
    bool isKnownTag() const;
    bool preserveWhitespace() const;
    bool isFormListed() const;
    bool isFormSubmittable() const;

    /// Makes this tag one that closes itself. A registered tag stays as it is, and so does an element that
    /// the tag was taken from: it has a record of its own.
    Tag &setSelfClosing();

    /// Equal names and equal behaviour.
    bool equals(const Tag &other) const;
    friend bool operator==(const Tag &left, const Tag &right) { return left.equals(right); }
    std::size_t hashValue() const;

    explicit Tag(const core::TagRec *record);
    const core::TagRec *record() const { return record_; }

private:
    const core::TagRec *record_;
};

} // namespace orl::html
