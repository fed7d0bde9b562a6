#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <initializer_list>
#include <optional>
#include <sstream>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace orl::html {

namespace detail {
[[noreturn]] inline void stopProgram(const char *message) {
    std::fprintf(stderr, "%s\n", message);
    std::abort();
}
} // namespace detail

/// The elements in the order in which they came in, each once. Looking one up takes constant time. A place
/// that does not exist is a programming fault and stops the program.
template<class Value>
class OrderedSet {
public:
    OrderedSet() = default;
    OrderedSet(std::initializer_list<Value> values) { appendAll(values); }

    /// Does nothing if the element is present.
    void append(const Value &value) {
        if (contents_.emplace(value, count()).second) sequencedContents_.push_back(value);
    }
    template<class Values>
    void appendAll(const Values &values) {
        for (const Value &value : values)
            append(value);
    }
    void appendAll(std::initializer_list<Value> values) {
        for (const Value &value : values)
            append(value);
    }

    void remove(const Value &value) {
        const auto found = contents_.find(value);
        if (found == contents_.end()) return;
        const std::size_t place = found->second;
        contents_.erase(found);
        sequencedContents_.erase(sequencedContents_.begin() + std::ptrdiff_t(place));
        renumber(place, count());
    }
    template<class Values>
    void removeAll(const Values &values) {
        for (const Value &value : values)
            remove(value);
    }
    void removeObject(std::size_t at) {
        if (at >= count())
            detail::stopProgram("Attempting to remove an object at an index that does not exist");
        remove(Value(sequencedContents_[at]));
    }
    void removeAllObjects() {
        contents_.clear();
        sequencedContents_.clear();
    }

    bool contains(const Value &value) const { return contents_.contains(value); }
    std::size_t count() const { return sequencedContents_.size(); }
    bool isEmpty() const { return sequencedContents_.empty(); }
    std::optional<Value> first() const {
        return isEmpty() ? std::nullopt : std::optional(sequencedContents_.front());
    }
    std::optional<Value> last() const {
        return isEmpty() ? std::nullopt : std::optional(sequencedContents_.back());
    }
    const Value &object(std::size_t at) const { return sequencedContents_[at]; }
    const Value &operator[](std::size_t at) const { return object(at); }
    std::optional<std::size_t> index(const Value &of) const {
        const auto found = contents_.find(of);
        return found == contents_.end() ? std::nullopt : std::optional(found->second);
    }

    bool intersects(const OrderedSet &other) const {
        return std::ranges::any_of(sequencedContents_,
                                   [&](const Value &value) { return other.contains(value); });
    }
    bool isSubset(const OrderedSet &of) const {
        return std::ranges::all_of(sequencedContents_,
                                   [&](const Value &value) { return of.contains(value); });
    }

    /// Does nothing unless both are present.
    void swap(const Value &first, const Value &second) {
        const auto left = index(first), right = index(second);
        if (!left || !right) return;
        std::swap(sequencedContents_[*left], sequencedContents_[*right]);
        renumber(*left, *left + 1);
        renumber(*right, *right + 1);
    }
    void move(std::size_t from, std::size_t to) {
        if (from >= count() || to >= count())
            detail::stopProgram("Attempting to move an object at or to an index that does not exist");
        const auto begin = sequencedContents_.begin();
        if (from < to)
            std::rotate(begin + std::ptrdiff_t(from), begin + std::ptrdiff_t(from) + 1,
                        begin + std::ptrdiff_t(to) + 1);
        else
            std::rotate(begin + std::ptrdiff_t(to), begin + std::ptrdiff_t(from),
                        begin + std::ptrdiff_t(from) + 1);
        renumber(std::min(from, to), std::max(from, to) + 1);
    }
    void moveObject(const Value &value, std::size_t to) {
        const auto from = index(value);
        if (!from) detail::stopProgram("Attempting to move an object at an index that does not exist");
        move(*from, to);
    }
    /// Does nothing if the element is present.
    void insert(const Value &value, std::size_t at) {
        if (at > count())
            detail::stopProgram("Attempting to insert an object at an index that does not exist");
        if (!contents_.emplace(value, at).second) return;
        sequencedContents_.insert(sequencedContents_.begin() + std::ptrdiff_t(at), value);
        renumber(at, count());
    }
    /// Those that are not present yet, in their order.
    template<class Values>
    void insertAll(const Values &values, std::size_t at) {
        if (at > count())
            detail::stopProgram("Attempting to insert an object at an index that does not exist");
        std::vector<Value> fresh;
        for (const Value &value : values)
            if (contents_.emplace(value, at).second) fresh.push_back(value);
        sequencedContents_.insert(sequencedContents_.begin() + std::ptrdiff_t(at), fresh.begin(),
                                  fresh.end());
        renumber(at, count());
    }

    auto begin() const { return sequencedContents_.begin(); }
    auto end() const { return sequencedContents_.end(); }
    bool operator==(const OrderedSet &other) const { return sequencedContents_ == other.sequencedContents_; }

    /// "OrderedSet (2 object(s)): [a, b]"
    std::string toString() const {
        std::ostringstream text;
        text << "OrderedSet (" << count() << " object(s)): [";
        const char *separator = "";
        for (const Value &value : sequencedContents_) {
            text << std::exchange(separator, ", ");
            if constexpr (requires { value.toString(); })
                text << value.toString();
            else
                text << value;
        }
        text << "]";
        return text.str();
    }

private:
    void renumber(std::size_t from, std::size_t to) {
        for (std::size_t i = from; i < to; ++i)
            contents_[sequencedContents_[i]] = i;
    }

    std::unordered_map<Value, std::size_t> contents_;
    std::vector<Value> sequencedContents_;
};

} // namespace orl::html
