// Small numbers for the different texts of a page.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>
#include <vector>

namespace orl::html::core {

/// Gives equal texts equal numbers: an open table, half empty at least. Nearly all texts of a page are told
/// apart by their lengths and their ends.
class TextNumbers {
public:
    TextNumbers() : places_(64) {}

    std::uint32_t numberOf(std::string_view text) {
        const Ends ends(text);
        std::size_t i = ends.hash() & (places_.size() - 1);
        for (; places_[i].number; i = (i + 1) & (places_.size() - 1)) {
            const Place &place = places_[i];
            if (place.ends == ends && place.text.size() == text.size() && sameInside(place.text, text))
                return place.number - 1;
        }
        places_[i] = {ends, text, ++count_};
        if (count_ * 2 > places_.size()) grow();
        return count_ - 1;
    }

private:
    /// The first and the last eight bytes, or what there is.
    struct Ends {
        std::uint64_t first = 0, last = 0;

        Ends() = default;
        explicit Ends(std::string_view text) {
            if (text.size() >= sizeof first) [[likely]] {
                std::memcpy(&first, text.data(), sizeof first);
                std::memcpy(&last, text.data() + text.size() - sizeof last, sizeof last);
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
    static bool sameInside(std::string_view left, std::string_view right) {
        constexpr std::size_t end = sizeof(std::uint64_t);
        const std::size_t size = left.size();
        if (size <= 2 * end) return true;
        if (size > 4 * end) return std::memcmp(left.data() + end, right.data() + end, size - 2 * end) == 0;
        return std::memcmp(left.data() + end, right.data() + end, end) == 0 &&
               std::memcmp(left.data() + size - 2 * end, right.data() + size - 2 * end, end) == 0;
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

    std::vector<Place> places_;
    std::uint32_t count_ = 0;
};

} // namespace orl::html::core
