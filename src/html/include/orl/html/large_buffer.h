// For the engine's own use: memory for lists that may be as long as a page.
#pragma once

#include <cstddef>
#include <limits>
#include <new>

namespace orl::html::core {

/// A list of so many bytes takes its memory where pages do.
constexpr std::size_t largeBuffer = std::size_t(8) << 20;

/// 16-byte aligned memory where pages are kept, most often still warm from an earlier one and else in large
/// pages of the machine. Throws std::bad_alloc.
void *takeLargeBuffer(std::size_t bytes);
void giveLargeBuffer(void *memory) noexcept;

/// What a vector takes its memory from so that a long one costs no first touch of memory each time.
template<class T>
struct LargeBuffers {
    using value_type = T;

    LargeBuffers() = default;
    template<class U>
    LargeBuffers(const LargeBuffers<U> &) noexcept {}

    T *allocate(std::size_t count) {
        if (count > std::numeric_limits<std::size_t>::max() / sizeof(T)) throw std::bad_array_new_length();
        const std::size_t bytes = count * sizeof(T);
        return static_cast<T *>(bytes < largeBuffer ? ::operator new(bytes) : takeLargeBuffer(bytes));
    }
    void deallocate(T *memory, std::size_t count) noexcept {
        count * sizeof(T) < largeBuffer ? ::operator delete(memory) : giveLargeBuffer(memory);
    }

    friend bool operator==(const LargeBuffers &, const LargeBuffers &) { return true; }
};

} // namespace orl::html::core
