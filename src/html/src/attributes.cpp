#include "orl/html/attributes.h"

#include "attrs.h"
#include "checks.h"
#include "orl/html/document.h"
#include "orl/html/string_builder.h"
#include "print.h"
#include "utf8.h"

#include <functional>

namespace orl::html {

using namespace core;

namespace {

std::string_view checkedKey(std::string_view key) {
    key = trimmed(key);
    checkNotEmpty(key);
    return key;
}

AttrRec *newAttribute(std::string_view key, const std::string_view *value) {
    key = checkedKey(key);
    Arena *arena = Arena::createLoose();
    auto *record = static_cast<AttrRec *>(arena->allocate(sizeof(AttrRec)));
    *record = makeAttr(*arena, key, value);
    return record;
}

/// A record that carries a list and is no node of any tree.
NodeRec *newCarrier() {
    return Arena::createLoose()->newElement(Kind::Element, tagRec(TagId::Root));
}

} // namespace

// ---- Attribute ----

Attribute::Attribute(core::AttrRec *record) : record_(record) {
    holdArenaOf(record_);
}

Attribute::Attribute(std::string_view key, std::string_view value) : Attribute(newAttribute(key, &value)) {}

Attribute::Attribute(std::string_view key, Boolean) : Attribute(newAttribute(key, nullptr)) {}

Attribute::Attribute(const Attribute &other) : Attribute(other.record_) {}

Attribute::~Attribute() {
    if (record_) releaseArenaOf(record_);
}

Attribute Attribute::createFromEncoded(std::string_view key, std::string_view encodedValue) {
    return Attribute(key, Entities::unescape(encodedValue, true));
}

std::string Attribute::getKey() const {
    return std::string(record_->key());
}

void Attribute::setKey(std::string_view key) const {
    Arena &arena = arenaOf(record_);
    ++arena.version;
    record_->name = makeAttr(arena, checkedKey(key), nullptr).name;
}

std::string Attribute::getValue() const {
    return std::string(record_->text());
}

std::string Attribute::setValue(std::string_view value) const {
    std::string previous = getValue();
    ++arenaOf(record_).version;
    setAttrValue(*record_, value);
    return previous;
}

std::string Attribute::html() const {
    Output out;
    printAttr(out, *record_, OutputSettings());
    return out.text();
}

void Attribute::html(StringBuilder &accum, const OutputSettings &settings) const {
    Output out;
    printAttr(out, *record_, settings);
    accum.append(out.text());
}

bool Attribute::isDataAttribute() const {
    return core::at<NameRec>(record_->name)->flags & NameRec::Data;
}

bool Attribute::isBooleanAttribute() const {
    return isBooleanAttr(*record_);
}

std::size_t Attribute::hashCode() const {
    const std::hash<std::string_view> hash;
    return hash(record_->key()) * 31 + hash(record_->text());
}

bool Attribute::equals(const Attribute &other) const {
    return record_->text() == other.record_->text() && record_->key() == other.record_->key();
}

Attribute Attribute::clone() const {
    auto *copy = static_cast<AttrRec *>(arenaOf(record_).allocate(sizeof(AttrRec)));
    *copy = *record_;
    return Attribute(copy);
}

// ---- Attributes ----

Attributes::Attributes() : Attributes(newCarrier()) {}

Attributes::Attributes(core::NodeRec *carrier) : carrier_(carrier) {
    hold(carrier_);
}

Attributes::~Attributes() {
    if (carrier_) release(carrier_);
}

std::string Attributes::get(std::string_view key) const {
    const AttrRec *found = findAttr(carrier_, ExactKey(key));
    return found ? std::string(found->text()) : std::string();
}

std::string Attributes::getIgnoreCase(std::string_view key) const {
    checkNotEmpty(key);
    const AttrRec *found = findAttr(carrier_, AnyCaseKey(key));
    return found ? std::string(found->text()) : std::string();
}

void Attributes::put(std::string_view key, std::string_view value) const {
    putAttr(carrier_, checkedKey(key), value);
}

void Attributes::put(std::string_view key, bool flag) const {
    if (flag)
        putAttr(carrier_, makeAttr(arenaOf(carrier_), checkedKey(key), nullptr));
    else
        remove(key);
}

void Attributes::put(const Attribute &attribute) const {
    Arena::merge(arenaOf(carrier_), arenaOf(attribute.record()));
    putAttr(carrier_, AttrRec{0, 0, reinterpret_cast<const char *>(attribute.record())});
}

void Attributes::remove(std::string_view key) const {
    checkNotEmpty(key);
    if (const auto place = placeOfAttr(carrier_, ExactKey(key)); place != noAttr)
        removeAttrAt(carrier_, place);
}

void Attributes::removeIgnoreCase(std::string_view key) const {
    checkNotEmpty(key);
    if (const auto place = placeOfAttr(carrier_, AnyCaseKey(key)); place != noAttr)
        removeAttrAt(carrier_, place);
}

bool Attributes::hasKey(std::string_view key) const {
    return findAttr(carrier_, ExactKey(key));
}

bool Attributes::hasKeyIgnoreCase(std::string_view key) const {
    return findAttr(carrier_, AnyCaseKey(key));
}

std::size_t Attributes::size() const {
    return attrCount(carrier_);
}

Attribute Attributes::at(std::size_t index) const {
    return Attribute(pinnedAttr(carrier_, std::uint32_t(index)));
}

void Attributes::addAll(const Attributes &other) const {
    for (const Attribute &attribute : other.asList())
        put(attribute);
}

std::vector<Attribute> Attributes::asList() const {
    std::vector<Attribute> all;
    for (const Attribute &attribute : *this)
        all.push_back(attribute);
    return all;
}

std::map<std::string, std::string> Attributes::dataset() const {
    std::map<std::string, std::string> values;
    for (const AttrRec &entry : attrBlock(carrier_)) {
        const AttrRec &attr = entry.target();
        if (!(core::at<NameRec>(attr.name)->flags & NameRec::Data)) continue;
        const std::string key(attr.key().substr(5));
        if (!values.emplace(key, attr.text()).second)
            failArgument(("Duplicate values for key: '" + key + "'").c_str());
    }
    return values;
}

std::string Attributes::html() const {
    Output out;
    printAttrs(out, carrier_, OutputSettings());
    return out.text();
}

void Attributes::html(StringBuilder &accum, const OutputSettings &settings) const {
    Output out;
    printAttrs(out, carrier_, settings);
    accum.append(out.text());
}

bool Attributes::equals(const Attributes &other) const {
    const AttrBlock left = attrBlock(carrier_), right = attrBlock(other.carrier_);
    return std::equal(
        left.begin(), left.end(), right.begin(), right.end(), [](const AttrRec &a, const AttrRec &b) {
            return a.target().text() == b.target().text() && a.target().key() == b.target().key();
        });
}

void Attributes::lowercaseAllKeys() const {
    ++arenaOf(carrier_).version;
    for (AttrRec &entry : attrBlock(carrier_)) {
        AttrRec &attr = entry.target();
        attr.name = core::at<NameRec>(attr.name)->lower;
    }
}

Attributes Attributes::clone() const {
    NodeRec *copy = arenaOf(carrier_).newElement(Kind::Element, tagRec(TagId::Root));
    shareAttrs(carrier_, copy);
    return Attributes(copy);
}

} // namespace orl::html
