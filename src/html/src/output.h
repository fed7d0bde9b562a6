// A raw buffer for text on its way out.
//
// Whoever writes asks once for the room of a whole node and then writes bytes without looking. The buffer is
// a piece of the stack first, and then memory of the node space, which is most often still warm; nothing is
// zeroed.
#pragma once

#include "space.h"

#include <cstddef>
#include <cstring>
#include <string>
#include <string_view>

namespace orl::html::core {

/// A string of its own; a long one in large pages.
std::string toString(std::string_view text);

class Output {
public:
    Output() : begin_(local_), cursor_(local_), end_(local_ + sizeof local_) {}
    Output(const Output &) = delete;
    Output &operator=(const Output &) = delete;
    ~Output() {
        if (chunk_) giveBack(chunk_);
    }

    /// Room for so many bytes behind the cursor.
    void ensure(std::size_t bytes) {
        if (std::size_t(end_ - cursor_) < bytes) [[unlikely]]
            grow(bytes);
    }

    // After ensure():
    void put(char c) { *cursor_++ = c; }
    void put(std::string_view text) {
        if (text.empty()) return; // which may have no address
        std::memcpy(cursor_, text.data(), text.size());
        cursor_ += text.size();
    }
    char *cursor() { return cursor_; }
    void moveTo(char *cursor) { cursor_ = cursor; }

    // On their own:
    void push_back(char c) {
        ensure(1);
        put(c);
    }
    void append(const char *text, std::size_t size) {
        ensure(size);
        put({text, size});
    }
    void append(std::string_view text) { append(text.data(), text.size()); }
    void fill(std::size_t count, char c) {
        ensure(count);
        std::memset(cursor_, c, count);
        cursor_ += count;
    }

    bool empty() const { return cursor_ == begin_; }
    std::size_t size() const { return std::size_t(cursor_ - begin_); }
    char last() const { return cursor_[-1]; }
    std::string_view view() const { return {begin_, size()}; }
    std::string text() const { return toString(view()); }

private:
    void grow(std::size_t bytes);

    char *begin_, *cursor_, *end_;
    Chunk *chunk_ = nullptr;
    char local_[1024];
};

} // namespace orl::html::core
