#include "orl/html/tag.h"

#include "checks.h"
#include "core.h"
#include "orl/html/parse_settings.h"

#include <functional>
#include <utility>

namespace orl::html {

using namespace core;

namespace {

bool isDynamic(const TagRec *record) {
    return record && !isStatic(refOf(record));
}

} // namespace

Tag::Tag(const core::TagRec *record) : record_(record) {
    if (isDynamic(record_)) holdArenaOf(record_);
}

Tag::Tag(const Tag &other) : Tag(other.record_) {}

Tag::Tag(Tag &&other) noexcept : record_(std::exchange(other.record_, nullptr)) {}

Tag &Tag::operator=(Tag other) noexcept {
    std::swap(record_, other.record_);
    return *this;
}

Tag::~Tag() {
    if (isDynamic(record_)) releaseArenaOf(record_);
}

Tag Tag::valueOf(std::string_view tagName, const ParseSettings &settings) {
    if (isKnownTag(tagName)) return Tag(knownTag(tagName));
    const std::string name = settings.normalizeTag(tagName);
    checkNotEmpty(name);
    openSpace();
    if (const TagRec *known = knownTag(name)) return Tag(known);
    return Tag(Arena::createLoose()->tag(name));
}

Tag Tag::valueOf(std::string_view tagName) {
    return valueOf(tagName, ParseSettings::preserveCase);
}

bool Tag::isKnownTag(std::string_view name) {
    openSpace();
    const TagRec *known = knownTag(name);
    return known && known->has(TagRec::Registered);
}

std::string Tag::getName() const {
    return std::string(record_->name());
}
std::string Tag::getNameNormal() const {
    return std::string(record_->normalName());
}
bool Tag::isBlock() const {
    return record_->has(TagRec::Block);
}
bool Tag::formatAsBlock() const {
    return record_->has(TagRec::FormatAsBlock);
}
bool Tag::canContainBlock() const {
    return record_->has(TagRec::CanContainBlock);
}
bool Tag::canContainInline() const {
    return record_->has(TagRec::CanContainInline);
}
bool Tag::isInline() const {
    return !isBlock();
}
bool Tag::isData() const {
    return !canContainInline() && !isEmpty();
}
bool Tag::isEmpty() const {
    return record_->has(TagRec::Empty);
}
bool Tag::isSelfClosing() const {
    return record_->closesItself();
}
bool Tag::isKnownTag() const {
    return isKnownTag(record_->name());
}
bool Tag::preserveWhitespace() const {
    return record_->has(TagRec::PreserveWhitespace);
}
bool Tag::isFormListed() const {
    return record_->has(TagRec::FormListed);
}
bool Tag::isFormSubmittable() const {
    return record_->has(TagRec::FormSubmittable);
}

Tag &Tag::setSelfClosing() {
    if (isSelfClosing() || record_->has(TagRec::Registered)) return *this;
    return *this = Tag(Arena::createLoose()->selfClosing(record_));
}

bool Tag::equals(const Tag &other) const {
    return record_ == other.record_ ||
           (record_->name() == other.record_->name() &&
            (record_->flags & TagRec::behaviour) == (other.record_->flags & TagRec::behaviour));
}

std::size_t Tag::hashValue() const {
    return std::hash<std::string_view>()(record_->name()) * 31 + (record_->flags & TagRec::behaviour);
}

} // namespace orl::html
