#include "output.h"

#include <algorithm>

namespace orl::html::core {

std::string toString(std::string_view text) {
    std::string string;
    string.reserve(text.size());
    // Nobody has touched such memory: the C library takes it from the system each time.
    constexpr std::size_t fresh = std::size_t(32) << 20;
    if (text.size() >= fresh) askForLargePages(string.data(), text.size());
    string = text;
    return string;
}

void Output::grow(std::size_t bytes) {
    const std::size_t used = size();
    Chunk *chunk = takeChunk(std::max(used * 3, largeSlot) + bytes + sizeof(Chunk));
    chunk->arena = nullptr;
    char *begin = reinterpret_cast<char *>(chunk + 1);
    std::memcpy(begin, begin_, used);
    if (chunk_) giveBack(chunk_);
    chunk_ = chunk;
    begin_ = begin;
    cursor_ = begin + used;
    end_ = reinterpret_cast<char *>(chunk) + chunk->size();
}

} // namespace orl::html::core
