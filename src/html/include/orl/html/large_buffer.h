// For the engine's own use: memory for lists that may be as long as a page.
#pragma once

#include <orl/html/export.h>

#include <cstddef>
#include <limits>
#include <new>

namespace orl::html::core {

/// From so many bytes on a piece of memory takes large pages, if the system has them.
constexpr std::size_t largeBuffer = std::size_t(8) << 20;

/// Asks the system for its large pages where nothing was written yet: the first touch of a small page costs
/// more than filling it does. A hint that changes nothing else.
ORL_HTML_API void askForLargePages(void *memory, std::size_t bytes) noexcept;

/// What a vector takes its memory from so that a long one gets large pages.
template<class T>
struct LargeBuffers {
    using value_type = T;

    LargeBuffers() = default;
    template<class U>
    LargeBuffers(const LargeBuffers<U> &) noexcept {}

    T *allocate(std::size_t count) {
        if (count > std::numeric_limits<std::size_t>::max() / sizeof(T)) throw std::bad_array_new_length();
        void *const memory = ::operator new(count * sizeof(T));
        if (count * sizeof(T) >= largeBuffer) askForLargePages(memory, count * sizeof(T));
        return static_cast<T *>(memory);
    }
    void deallocate(T *memory, std::size_t) noexcept { ::operator delete(memory); }

    friend bool operator==(const LargeBuffers &, const LargeBuffers &) { return true; }
};

} // namespace orl::html::core
