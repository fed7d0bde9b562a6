// Small numbers for the different texts of a page.
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>
#include <vector>

namespace orl::html::core {

/// Gives equal texts equal numbers: an open table, half empty at least. Nearly all texts of a page are told
/// apart by their lengths and their ends. Pages repeat the same few, so those met last are looked at first.
class TextNumbers {
public:
    TextNumbers() : places_(64) {}

    std::uint32_t numberOf(std::string_view text) {
        if (text.size() < end) return numberInTable(text);
        Recent &recent =
            recent_[(text.size() * 7 + static_cast<unsigned char>(text.back())) % recent_.size()];
        if (recent.size == text.size() && same(recent.text, text.data(), text.size())) return recent.number;
        const std::uint32_t number = numberInTable(text);
        recent = {text.data(), text.size(), number};
        return number;
    }

private:
    static constexpr std::size_t end = sizeof(std::uint64_t);

    struct Recent {
        const char *text = nullptr;
        std::size_t size = 0;
        std::uint32_t number = 0;
    };

    static std::uint64_t wordAt(const char *text) {
        std::uint64_t word;
        std::memcpy(&word, text, sizeof word);
        return word;
    }
    static bool same(const char *left, const char *right, std::size_t size) {
        return wordAt(left) == wordAt(right) && wordAt(left + size - end) == wordAt(right + size - end) &&
               sameInside(left, right, size);
    }

    std::uint32_t numberInTable(std::string_view text) {
        const Ends ends(text);
        std::size_t i = ends.hash() & (places_.size() - 1);
        for (; places_[i].number; i = (i + 1) & (places_.size() - 1)) {
            const Place &place = places_[i];
            if (place.ends == ends && place.text.size() == text.size() &&
                sameInside(place.text.data(), text.data(), text.size()))
                return place.number - 1;
        }
        places_[i] = {ends, text, ++count_};
        if (count_ * 2 > places_.size()) grow();
        return count_ - 1;
    }

    /// The first and the last eight bytes, or what there is.
    struct Ends {
        std::uint64_t first = 0, last = 0;

        Ends() = default;
        explicit Ends(std::string_view text) {
            if (text.size() >= end) [[likely]] {
                first = wordAt(text.data());
                last = wordAt(text.data() + text.size() - end);
            } else if (!text.empty()) {
                std::memcpy(&first, text.data(), text.size());
                last = text.size();
            }
        }
        std::uint64_t hash() const {
            const std::uint64_t mixed = (first ^ std::rotl(last, 29)) * 0x9e3779b97f4a7c15U;
            return mixed >> 32;
        }
        bool operator==(const Ends &) const = default;
    };
    struct Place {
        Ends ends;
        std::string_view text;
        std::uint32_t number = 0; ///< plus one; 0 for a free place
    };

    /// For texts of one length whose ends are the same. Up to 32 bytes the next eight on both sides are the
    /// rest.
    static bool sameInside(const char *left, const char *right, std::size_t size) {
        if (size <= 2 * end) return true;
        if (size > 4 * end) return std::memcmp(left + end, right + end, size - 2 * end) == 0;
        return wordAt(left + end) == wordAt(right + end) &&
               wordAt(left + size - 2 * end) == wordAt(right + size - 2 * end);
    }
    void grow() {
        std::vector<Place> old(places_.size() * 2);
        old.swap(places_);
        for (const Place &place : old) {
            if (!place.number) continue;
            std::size_t i = place.ends.hash() & (places_.size() - 1);
            while (places_[i].number)
                i = (i + 1) & (places_.size() - 1);
            places_[i] = place;
        }
    }

    std::array<Recent, 64> recent_{}; ///< by length and last character
    std::vector<Place> places_;
    std::uint32_t count_ = 0;
};

} // namespace orl::html::core
