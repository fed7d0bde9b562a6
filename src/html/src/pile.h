// A list of plain records that is emptied and filled again all the time.
#pragma once

#include "orl/html/large_buffer.h"

#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <new>
#include <type_traits>

namespace orl::html::core {

/// Like a vector, but emptying it is one store and no branch, and a long one stands where pages are kept.
template<class T>
class Pile {
    static_assert(std::is_trivially_copyable_v<T> && std::is_trivially_destructible_v<T>);

public:
    Pile() = default;
    Pile(const Pile &) = delete;
    Pile &operator=(const Pile &) = delete;
    ~Pile() { giveBack(); }

    void clear() { size_ = 0; }
    void push_back(const T &record) {
        if (size_ == capacity_) [[unlikely]]
            grow();
        records_[size_++] = record;
    }

    void pop_back() { --size_; }

    std::size_t size() const { return size_; }
    bool empty() const { return size_ == 0; }
    const T *data() const { return records_; }
    const T &back() const { return records_[size_ - 1]; }
    T &operator[](std::size_t place) { return records_[place]; }
    const T &operator[](std::size_t place) const { return records_[place]; }
    const T *begin() const { return records_; }
    const T *end() const { return records_ + size_; }

private:
    void grow();

    static bool isLarge(std::size_t capacity) { return capacity * sizeof(T) >= largeBuffer; }
    void giveBack() { isLarge(capacity_) ? giveLargeBuffer(records_) : std::free(records_); }

    T *records_ = nullptr;
    std::size_t size_ = 0, capacity_ = 0;
};

template<class T>
void Pile<T>::grow() {
    const std::size_t capacity = capacity_ ? 2 * capacity_ : 16;
    void *larger;
    if (isLarge(capacity)) {
        larger = takeLargeBuffer(capacity * sizeof(T));
        std::memcpy(larger, static_cast<const void *>(records_), size_ * sizeof(T));
        giveBack();
    } else {
        larger = std::realloc(static_cast<void *>(records_), capacity * sizeof(T));
        if (!larger) throw std::bad_alloc();
    }
    records_ = static_cast<T *>(larger);
    capacity_ = capacity;
}

} // namespace orl::html::core
