#include "output.h"

#include <algorithm>

namespace orl::html::core {

void Output::grow(std::size_t bytes) {
    const std::size_t used = size();
    Chunk *chunk = takeChunk(std::max(used * 3, slotSize) + bytes + sizeof(Chunk));
    chunk->arena = nullptr;
    char *begin = reinterpret_cast<char *>(chunk + 1);
    std::memcpy(begin, begin_, used);
    if (chunk_) giveBack(chunk_);
    chunk_ = chunk;
    begin_ = begin;
    cursor_ = begin + used;
    end_ = reinterpret_cast<char *>(chunk) + chunk->size;
}

} // namespace orl::html::core
