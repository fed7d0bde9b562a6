#include "space.h"

#include "names.h"
#include "orl/html/large_buffer.h"

#include <algorithm>
#include <map>
#include <mutex>
#include <new>
#include <set>
#include <sys/mman.h>
#include <unistd.h>

#ifdef ORL_HTML_ASAN
#include <sanitizer/asan_interface.h>
#else
#define ASAN_POISON_MEMORY_REGION(address, size) ((void)(address), (void)(size))
#define ASAN_UNPOISON_MEMORY_REGION(address, size) ((void)(address), (void)(size))
#endif

namespace orl::html::core {

char *spaceBase = nullptr;
std::size_t spaceSize = 0;

namespace {

constexpr std::size_t largestSpace = std::size_t(64) << 30;
constexpr std::size_t maxGranules = largestSpace / granuleSize;
constexpr std::size_t hotStock = std::size_t(64) << 20; ///< bytes kept ready for the next page
/// Bytes that the system may take when it needs memory: at most a sixteenth of what the machine has.
constexpr std::size_t largestLazyStock = std::size_t(2) << 30;
constexpr std::size_t commitStep = (std::size_t(16) << 20) / granuleSize;

/// The head of a granule that is cut into slots; it stands in the first slot.
struct SlotGranule {
    SlotGranule *previous, *next; ///< in the list of those with a free slot
    struct Free {
        Free *next;
    } * free;
    std::uint32_t used;
    std::uint32_t untouched; ///< index of the first slot that was never handed out

    bool isFull(std::size_t slotSize) const { return !free && untouched == granuleSize / slotSize; }
};

class Space {
public:
    Space();

    std::size_t takeRun(std::size_t count);
    void giveRun(std::size_t first, std::size_t count);
    void *takeSlot(std::size_t size);
    void giveSlot(void *slot, std::size_t size);

    std::mutex mutex;
    std::size_t inUse = 0;

private:
    enum Warmth { Cold, Lazy, Hot }; ///< no memory behind it; what the system has not taken; all of it
    struct Run {
        std::size_t count;
        Warmth warmth;
    };
    struct Stock {
        std::set<std::pair<std::size_t, std::size_t>> bySize; ///< (count, first)
        std::size_t bytes = 0;
    };
    using Runs = std::map<std::size_t, Run>;

    void insert(std::size_t first, Run run);
    void erase(Runs::iterator run);
    void commit(std::size_t end);
    Warmth coolDown(std::size_t first, std::size_t count);
    void askForLarge(std::size_t first, std::size_t count);
    static void link(SlotGranule *&list, SlotGranule *granule);
    static void unlink(SlotGranule *&list, SlotGranule *granule);
    SlotGranule *&listOf(std::size_t slotSize) { return slotGranules_[slotSize == largeSlot]; }

    std::size_t granules_ = 0;
    std::size_t top_ =
        1; ///< granules below were handed out at least once; the first one has the static names
    std::size_t committed_ = 0;
    std::size_t lazyStock_ = 0;
    Runs free_;
    Stock stocks_[3];                                   ///< by warmth
    SlotGranule *slotGranules_[2] = {nullptr, nullptr}; ///< of small and of large slots
};

char *granuleAddress(std::size_t index) {
    return spaceBase + index * granuleSize;
}

Space::Space() {
    for (std::size_t size = largestSpace; size >= granuleSize * 16; size /= 2) {
        void *memory =
            mmap(nullptr, size + granuleSize, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
        if (memory == MAP_FAILED) continue;
        const auto aligned = (std::uintptr_t(memory) + granuleSize - 1) & ~std::uintptr_t(granuleSize - 1);
        spaceBase = reinterpret_cast<char *>(aligned);
        granules_ = size / granuleSize;
        spaceSize = size;
        const long pages = sysconf(_SC_PHYS_PAGES), pageSize = sysconf(_SC_PAGESIZE);
        if (pages > 0 && pageSize > 0)
            lazyStock_ = std::min(largestLazyStock, std::size_t(pages) * std::size_t(pageSize) / 16);
        commit(1);
        return;
    }
    throw std::bad_alloc();
}

void Space::commit(std::size_t end) {
    if (end <= committed_) return;
    const std::size_t wanted = std::min(granules_, (end + commitStep - 1) / commitStep * commitStep);
    if (mprotect(granuleAddress(committed_), (wanted - committed_) * granuleSize, PROT_READ | PROT_WRITE) !=
        0)
        throw std::bad_alloc();
    committed_ = wanted;
}

void Space::askForLarge(std::size_t first, std::size_t count) {
    const std::size_t bytes = count * granuleSize;
    if (bytes >= largeBuffer) askForLargePages(granuleAddress(first), bytes);
}

void Space::insert(std::size_t first, Run run) {
    free_.emplace(first, run);
    Stock &stock = stocks_[run.warmth];
    stock.bySize.emplace(run.count, first);
    stock.bytes += run.count * granuleSize;
}

void Space::erase(Runs::iterator run) {
    Stock &stock = stocks_[run->second.warmth];
    stock.bySize.erase({run->second.count, run->first});
    stock.bytes -= run->second.count * granuleSize;
    free_.erase(run);
}

std::size_t Space::takeRun(std::size_t count) {
    for (const Warmth warmth : {Hot, Lazy, Cold}) {
        const auto fit = stocks_[warmth].bySize.lower_bound({count, 0});
        if (fit == stocks_[warmth].bySize.end()) continue;
        const auto found = free_.find(fit->second);
        const std::size_t first = found->first, size = found->second.count;
        erase(found);
        if (size > count) insert(first + count, {size - count, warmth});
        if (warmth == Cold) askForLarge(first, count);
        return first;
    }
    if (count > granules_ - top_) throw std::bad_alloc();
    commit(top_ + count);
    const std::size_t first = top_;
    top_ += count;
    askForLarge(first, count);
    return first;
}

/// Gives the system what is above the stocks.
Space::Warmth Space::coolDown(std::size_t first, std::size_t count) {
    const std::size_t bytes = count * granuleSize;
    if (stocks_[Hot].bytes + bytes <= hotStock) return Hot;
#ifdef MADV_FREE
    if (stocks_[Lazy].bytes + bytes <= lazyStock_ && madvise(granuleAddress(first), bytes, MADV_FREE) == 0)
        return Lazy;
#endif
    madvise(granuleAddress(first), bytes, MADV_DONTNEED);
    return Cold;
}

/// Runs of different warmth do not merge: what the next page is to find ready must not go with a neighbour
/// that is too large for the stock.
void Space::giveRun(std::size_t first, std::size_t count) {
    Run run{count, coolDown(first, count)};
    auto after = free_.lower_bound(first);
    if (after != free_.end() && after->first == first + count && after->second.warmth == run.warmth) {
        run.count += after->second.count;
        erase(after++);
    }
    if (after != free_.begin()) {
        const auto before = std::prev(after);
        if (before->first + before->second.count == first && before->second.warmth == run.warmth) {
            first = before->first;
            run.count += before->second.count;
            erase(before);
        }
    }
    insert(first, run);
}

void Space::link(SlotGranule *&list, SlotGranule *granule) {
    granule->previous = nullptr;
    granule->next = list;
    if (list) list->previous = granule;
    list = granule;
}

void Space::unlink(SlotGranule *&list, SlotGranule *granule) {
    (granule->previous ? granule->previous->next : list) = granule->next;
    if (granule->next) granule->next->previous = granule->previous;
}

void *Space::takeSlot(std::size_t size) {
    SlotGranule *&list = listOf(size);
    SlotGranule *granule = list;
    if (!granule) {
        const std::size_t index = takeRun(1);
        detail::granules[index] = reinterpret_cast<Chunk *>(size);
        granule = reinterpret_cast<SlotGranule *>(granuleAddress(index));
        ASAN_UNPOISON_MEMORY_REGION(granule, sizeof(SlotGranule));
        *granule = {nullptr, nullptr, nullptr, 0, 1};
        link(list, granule);
    }
    char *slot = reinterpret_cast<char *>(granule->free);
    if (slot) {
        ASAN_UNPOISON_MEMORY_REGION(slot, size);
        granule->free = granule->free->next;
    } else {
        slot = reinterpret_cast<char *>(granule) + granule->untouched++ * size;
        ASAN_UNPOISON_MEMORY_REGION(slot, size);
    }
    ++granule->used;
    if (granule->isFull(size)) unlink(list, granule);
    return slot;
}

void Space::giveSlot(void *slot, std::size_t size) {
    SlotGranule *&list = listOf(size);
    const std::size_t index = std::size_t(static_cast<char *>(slot) - spaceBase) / granuleSize;
    auto *granule = reinterpret_cast<SlotGranule *>(granuleAddress(index));
    const bool wasFull = granule->isFull(size);
    granule->free = new (slot) SlotGranule::Free{granule->free};
    ASAN_POISON_MEMORY_REGION(slot, size);
    if (wasFull) link(list, granule);
    if (--granule->used > 0) return;
    unlink(list, granule);
    detail::granules[index] = nullptr;
    giveRun(index, 1);
}

Space &space() {
    static Space *const only = [] {
        auto *made = new Space;
        fillStatics();
        return made;
    }();
    return *only;
}

} // namespace

namespace detail {
Chunk *granules[maxGranules];
} // namespace detail

void askForLargePages([[maybe_unused]] void *memory, [[maybe_unused]] std::size_t bytes) {
#ifdef MADV_HUGEPAGE
    constexpr std::uintptr_t largePage = std::uintptr_t(2) << 20;
    const std::uintptr_t first = (std::uintptr_t(memory) + largePage - 1) & ~(largePage - 1);
    const std::uintptr_t end = (std::uintptr_t(memory) + bytes) & ~(largePage - 1);
    if (first < end) madvise(reinterpret_cast<void *>(first), end - first, MADV_HUGEPAGE);
#endif
}

void openSpace() {
    space();
}

Chunk *takeChunk(std::size_t bytes) {
    Space &all = space();
    const std::lock_guard lock(all.mutex);
    Chunk *chunk;
    std::size_t size = bytes <= smallSlot ? smallSlot : largeSlot;
    if (bytes <= largeSlot) {
        chunk = static_cast<Chunk *>(all.takeSlot(size));
    } else {
        const std::size_t count = (bytes + granuleSize - 1) / granuleSize;
        const std::size_t first = all.takeRun(count);
        chunk = reinterpret_cast<Chunk *>(granuleAddress(first));
        size = count * granuleSize;
        ASAN_UNPOISON_MEMORY_REGION(chunk, size);
        std::fill_n(detail::granules + first, count, chunk);
    }
    chunk->steps = std::uint32_t(size >> 4);
    all.inUse += size;
    return chunk;
}

void giveBack(Chunk *chunk) {
    Space &all = space();
    const std::size_t size = chunk->size();
    const std::lock_guard lock(all.mutex);
    all.inUse -= size;
    if (size <= largeSlot) return all.giveSlot(chunk, size);
    const std::size_t first = std::size_t(reinterpret_cast<char *>(chunk) - spaceBase) / granuleSize;
    const std::size_t count = size / granuleSize;
    ASAN_POISON_MEMORY_REGION(chunk, size);
    std::fill_n(detail::granules + first, count, nullptr);
    all.giveRun(first, count);
}

void *takeLargeBuffer(std::size_t bytes) {
    openSpace();
    Chunk *const chunk = takeChunk(sizeof(Chunk) + bytes);
    chunk->arena = nullptr;
    return chunk + 1;
}

void giveLargeBuffer(void *memory) noexcept {
    giveBack(static_cast<Chunk *>(memory) - 1);
}

std::size_t spaceInUse() {
    Space &all = space();
    const std::lock_guard lock(all.mutex);
    return all.inUse;
}

} // namespace orl::html::core
