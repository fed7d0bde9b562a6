// A list of plain records that is emptied and filled again all the time.
#pragma once

#include "orl/html/large_buffer.h"

#include <cstddef>
#include <cstdlib>
#include <memory>
#include <new>
#include <type_traits>

namespace orl::html::core {

/// Like a vector, but emptying it is one store and no branch, and a long one grows without being copied where
/// the system can move its pages.
template<class T>
class Pile {
    static_assert(std::is_trivially_copyable_v<T> && std::is_trivially_destructible_v<T>);

public:
    Pile() = default;
    Pile(const Pile &) = delete;
    Pile &operator=(const Pile &) = delete;

    void clear() { size_ = 0; }
    void push_back(const T &record) {
        if (size_ == capacity_) [[unlikely]]
            grow();
        records_[size_++] = record;
    }

    void pop_back() { --size_; }

    std::size_t size() const { return size_; }
    bool empty() const { return size_ == 0; }
    const T *data() const { return records_.get(); }
    const T &back() const { return records_[size_ - 1]; }
    T &operator[](std::size_t place) { return records_[place]; }
    const T &operator[](std::size_t place) const { return records_[place]; }
    const T *begin() const { return records_.get(); }
    const T *end() const { return records_.get() + size_; }

private:
    void grow();

    struct Free {
        void operator()(T *records) const { std::free(records); }
    };

    std::unique_ptr<T[], Free> records_;
    std::size_t size_ = 0, capacity_ = 0;
};

template<class T>
void Pile<T>::grow() {
    const std::size_t capacity = capacity_ ? 2 * capacity_ : 16;
    void *const larger = std::realloc(static_cast<void *>(records_.get()), capacity * sizeof(T));
    if (!larger) throw std::bad_alloc();
    static_cast<void>(records_.release());
    records_.reset(static_cast<T *>(larger));
    if (capacity * sizeof(T) >= largeBuffer) askForLargePages(larger, capacity * sizeof(T));
    capacity_ = capacity;
}

} // namespace orl::html::core
