#pragma once

#include <cstddef>
#include <optional>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace orl::html {

/// A map without order.
template<class Key, class Value>
class SimpleDictionary {
public:
    std::optional<Value> get(const Key &key) const {
        const auto found = values_.find(key);
        return found == values_.end() ? std::nullopt : std::optional(found->second);
    }
    void put(const Key &key, Value value) { values_.insert_or_assign(key, std::move(value)); }
    void remove(const Key &key) { values_.erase(key); }
    bool containsKey(const Key &key) const { return values_.contains(key); }
    std::unordered_set<Key> keySet() const {
        std::unordered_set<Key> keys;
        for (const auto &[key, value] : values_)
            keys.insert(key);
        return keys;
    }
    std::size_t count() const { return values_.size(); }
    void clear() { values_.clear(); }

private:
    std::unordered_map<Key, Value> values_;
};

} // namespace orl::html
