// The node space: one reserved stretch of addresses for all pages of the process, and who has which part of
// it.
//
// The space is cut into granules of 64 KiB. A chunk of an arena is a run of granules, or, for the few nodes
// that a caller makes on their own, a slot in a granule that is cut into slots of 128 or of 512 bytes. Runs
// that come back are handed out again while they are still in the machine's memory: some of it is kept, more
// is the system's to take as soon as it needs memory, and what is above that it gets at once. Long runs ask
// the system for its large pages: the first touch of a small one costs more than filling it with nodes does,
// and that of any on a virtual machine whose host has to find it first costs many times as much.
#pragma once

#include <cstddef>
#include <cstdint>

#if defined(__SANITIZE_ADDRESS__)
#define ORL_HTML_ASAN 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define ORL_HTML_ASAN 1
#endif
#endif

namespace orl::html::core {

using Ref = std::uint32_t; ///< 16-byte steps from the base of the node space; 0 is "none".

constexpr std::size_t granuleSize = std::size_t(64) << 10;
constexpr std::size_t smallSlot = 128, largeSlot = 512;

extern char *spaceBase; ///< Set once, before the first arena exists.
extern std::size_t spaceSize;

inline bool isInSpace(const void *address) {
    return std::uintptr_t(address) - std::uintptr_t(spaceBase) < spaceSize;
}

template<class T>
inline T *at(Ref ref) {
    return reinterpret_cast<T *>(spaceBase + (std::uintptr_t(ref) << 4));
}

inline Ref refOf(const void *record) {
    return Ref((static_cast<const char *>(record) - spaceBase) >> 4);
}

class Arena;

/// The head of each piece of memory that an arena holds.
struct alignas(16) Chunk {
    Arena *arena;
    Chunk *next;
    const char *baseUri; ///< of the nodes in it
    std::uint32_t baseUriLength;
    std::uint32_t steps; ///< its size in steps of 16 bytes: whole granules or one slot

    /// Bytes, this head included.
    std::size_t size() const { return std::size_t(steps) << 4; }
};
static_assert(sizeof(Chunk) == 32, "a small slot is to have room for a node and some text");

namespace detail {
/// What stands in each granule: null, the chunk that it belongs to, or the size of the slots in it.
extern Chunk *granules[];
} // namespace detail

/// The chunk that holds this address of the space.
inline Chunk *chunkOf(const void *record) {
    Chunk *chunk = detail::granules[(static_cast<const char *>(record) - spaceBase) / granuleSize];
    const auto slot = std::uintptr_t(chunk);
    if (slot > largeSlot) [[likely]]
        return chunk;
    return reinterpret_cast<Chunk *>(std::uintptr_t(record) & ~(slot - 1));
}

/// Opens the space; later calls cost one load.
void openSpace();

/// A chunk of at least `bytes`, its size set, the rest of its head not. Throws std::bad_alloc when the space
/// is full.
Chunk *takeChunk(std::size_t bytes);

void giveBack(Chunk *chunk);

/// Asks the system for its large pages where nothing was written yet. A hint that changes nothing else.
void askForLargePages(void *memory, std::size_t bytes);

/// Bytes of the space that chunks have now.
std::size_t spaceInUse();

} // namespace orl::html::core
