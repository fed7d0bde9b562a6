#include "orl/html/entities.h"

#include "character_reader.h"
#include "escape.h"
#include "names.h"
#include "orl/html/exception.h"
#include "orl/html/output_settings.h"
#include "tokeniser.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <tuple>
#include <utility>

namespace orl::html {

namespace {

#include "entity_tables.inc"

using core::CharacterReader;

constexpr std::string_view tableTexts[] = {xhtmlTable, baseTable, extendedTable};

std::optional<char32_t> base36(std::string_view digits) {
    unsigned value = 0;
    const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), value, 36);
    if (result.ec != std::errc() || digits.empty()) return {};
    return value;
}

char32_t scalarOrFault(std::optional<char32_t> code) {
    const bool isScalar = code && *code < 0x110000 && (*code < 0xd800 || *code > 0xdfff);
    if (!isScalar) throw Exception::Error(ExceptionType::IllegalArgumentException, "Entity table is damaged");
    return *code;
}

} // namespace

struct Entities::EscapeMode::Tables {
    std::vector<NamedCodepoint> byName, byCodepoint;
    std::vector<char32_t> second; ///< by place in byName: the second scalar, 0 without one
    std::vector<std::uint16_t>
        places; ///< hash table of places in byName plus one, half empty; 0 for a free slot

    explicit Tables(std::string_view text);
    void sort();
    void hash();
    /// The place of a name in byName; -1 if it is not there.
    int find(std::string_view name) const;
};

/// The format stands in tools/make_entity_tables.py. The index of an entry is passed over: the lists are
/// sorted here.
Entities::EscapeMode::Tables::Tables(std::string_view text) {
    CharacterReader reader(text);
    while (!reader.isEmpty()) {
        const std::string_view name = reader.consumeTo('=');
        reader.advance();
        byName.push_back({scalarOrFault(base36(reader.consumeToAny(",;"))), name});
        second.push_back(reader.matchConsume(',') ? scalarOrFault(base36(reader.consumeTo(';'))) : 0);
        reader.advance();
        reader.consumeTo('\n');
        reader.advance();
    }
    sort();
    hash();
}

void Entities::EscapeMode::Tables::sort() {
    std::vector<std::pair<NamedCodepoint, char32_t>> entries;
    for (std::size_t i = 0; i < byName.size(); ++i)
        entries.emplace_back(byName[i], second[i]);
    std::sort(entries.begin(), entries.end(), [](auto &a, auto &b) { return a.first.name < b.first.name; });
    for (std::size_t i = 0; i < byName.size(); ++i)
        std::tie(byName[i], second[i]) = entries[i];
    byCodepoint = byName;
    std::stable_sort(byCodepoint.begin(), byCodepoint.end(),
                     [](const auto &a, const auto &b) { return a.scalar < b.scalar; });
}

void Entities::EscapeMode::Tables::hash() {
    places.resize(std::bit_ceil(2 * byName.size()));
    const std::size_t mask = places.size() - 1;
    for (std::size_t i = 0; i < byName.size(); ++i) {
        std::size_t slot = core::hashOf(byName[i].name) & mask;
        while (places[slot])
            slot = (slot + 1) & mask;
        places[slot] = std::uint16_t(i + 1);
    }
}

int Entities::EscapeMode::Tables::find(std::string_view name) const {
    const std::size_t mask = places.size() - 1;
    for (std::size_t slot = core::hashOf(name) & mask; places[slot]; slot = (slot + 1) & mask)
        if (byName[places[slot] - 1].name == name) return places[slot] - 1;
    return -1;
}

const Entities::EscapeMode &Entities::EscapeMode::xhtml() {
    static const EscapeMode mode(0);
    return mode;
}

const Entities::EscapeMode &Entities::EscapeMode::base() {
    static const EscapeMode mode(1);
    return mode;
}

const Entities::EscapeMode &Entities::EscapeMode::extended() {
    static const EscapeMode mode(2);
    return mode;
}

const Entities::EscapeMode::Tables &Entities::EscapeMode::tables() const {
    switch (value_) {
    case 0: {
        static const Tables tables(tableTexts[0]);
        return tables;
    }
    case 1: {
        static const Tables tables(tableTexts[1]);
        return tables;
    }
    default: {
        static const Tables tables(tableTexts[2]);
        return tables;
    }
    }
}

std::string_view Entities::EscapeMode::tableText() const {
    return tableTexts[value_];
}

const std::vector<NamedCodepoint> &Entities::EscapeMode::entitiesByName() const {
    return tables().byName;
}

const std::vector<NamedCodepoint> &Entities::EscapeMode::entitiesByCodepoint() const {
    return tables().byCodepoint;
}

std::optional<char32_t> Entities::EscapeMode::codepointForName(std::string_view name) const {
    const int place = tables().find(name);
    return place < 0 ? std::nullopt : std::optional(tables().byName[std::size_t(place)].scalar);
}

std::string_view Entities::EscapeMode::nameForCodepoint(char32_t scalar) const {
    const auto &list = tables().byCodepoint;
    const auto after =
        std::upper_bound(list.begin(), list.end(), scalar,
                         [](char32_t wanted, const auto &entry) { return wanted < entry.scalar; });
    if (after == list.begin() || std::prev(after)->scalar != scalar) return {};
    return std::prev(after)->name;
}

bool Entities::isNamedEntity(std::string_view name) {
    return EscapeMode::extended().codepointForName(name).has_value();
}

bool Entities::isBaseNamedEntity(std::string_view name) {
    return EscapeMode::base().codepointForName(name).has_value();
}

std::size_t Entities::codepointsForName(std::string_view name, std::array<char32_t, 2> &into) {
    const EscapeMode::Tables &tables = EscapeMode::extended().tables();
    const int place = tables.find(name);
    if (place < 0) return 0;
    into = {tables.byName[std::size_t(place)].scalar, tables.second[std::size_t(place)]};
    return into[1] ? 2 : 1;
}

std::string Entities::getCharacterByName(std::string_view name) {
    std::array<char32_t, 2> scalars;
    const std::size_t count = codepointsForName(name, scalars);
    std::string text;
    for (std::size_t i = 0; i < count; ++i)
        core::appendScalar(text, scalars[i]);
    return text;
}

std::string Entities::escape(std::string_view text) {
    static const TextEncoding utf8;
    std::string out;
    core::escapeTo(out, text, {.mode = &EscapeMode::base(), .encoding = &utf8});
    return out;
}

std::string Entities::escape(std::string_view text, const OutputSettings &settings) {
    std::string out;
    escape(out, text, settings);
    return out;
}

void Entities::escape(std::string &accum, std::string_view text, const OutputSettings &settings,
                      bool inAttribute, bool normaliseWhite, bool stripLeadingWhite) {
    core::escapeTo(accum, text,
                   {.mode = &settings.escapeMode(),
                    .encoding = &settings.encoder(),
                    .inAttribute = inAttribute,
                    .normaliseWhite = normaliseWhite,
                    .stripLeadingWhite = stripLeadingWhite});
}

std::string Entities::unescape(std::string_view text, bool strict) {
    return core::unescapeEntities(text, strict);
}

} // namespace orl::html
