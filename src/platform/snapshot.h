#pragma once

#include <memory>
#include <mutex>
#include <utility>

namespace orl {

/// A value that one thread replaces while others read it. A reader gets an immutable copy that stays as it
/// is; two reads may see two different values.
template<class T>
class Snapshot {
public:
    Snapshot() : value_(std::make_shared<const T>()) {}
    explicit Snapshot(T value) : value_(std::make_shared<const T>(std::move(value))) {}

    std::shared_ptr<const T> get() const {
        const std::lock_guard lock(mutex_);
        return value_;
    }

    void set(T value) {
        auto next = std::make_shared<const T>(std::move(value));
        const std::lock_guard lock(mutex_);
        value_.swap(next);
    }

private:
    mutable std::mutex mutex_;
    std::shared_ptr<const T> value_;
};

} // namespace orl
