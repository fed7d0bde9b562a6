#include "output.h"

#include "orl/html/large_buffer.h"

#include <algorithm>

namespace orl::html::core {

std::string toString(std::string_view text) {
    std::string string;
    string.reserve(text.size());
    if (text.size() >= largeBuffer) askForLargePages(string.data(), text.size());
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
