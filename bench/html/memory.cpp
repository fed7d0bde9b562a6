// Heap bytes that trees take, pages included where a parser keeps them.
#include "bench.h"
#include "pages.h"
#include "parsers.h"
#include "space.h"

#include <malloc.h>

namespace orl::bench {

namespace {

/// What the C library has handed out, and what the engine has taken beside it.
std::size_t heapInUse() {
    const auto info = mallinfo2();
    return info.uordblks + info.hblkhd + html::core::spaceInUse();
}

template<class Parser>
void add(const Input &input) {
    benchmark::RegisterBenchmark(("heap/" + std::string(input.name) + '/' + Parser::name).c_str(),
                                 [&input](benchmark::State &state) {
                                     std::size_t bytes = 0;
                                     for (auto _ : state) {
                                         const std::size_t before = heapInUse();
                                         std::vector<typename Parser::Tree> trees;
                                         for (const auto &page : input.pages)
                                             trees.push_back(Parser::parse(page));
                                         bytes = heapInUse() - before;
                                     }
                                     state.counters["per_byte"] = double(bytes) / double(input.bytes);
                                 })
        ->Iterations(1);
}

} // namespace

void addHeap() {
    for (const Input &input : inputs()) {
        add<Orl>(input);
#ifdef ORL_BENCH_LIBXML2
        if (!input.isDeepForLibxml2) add<Libxml2>(input);
#endif
#ifdef ORL_BENCH_GUMBO
        add<Gumbo>(input);
#endif
    }
}

} // namespace orl::bench
