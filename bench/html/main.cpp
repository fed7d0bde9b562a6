// The document engine beside libxml2 and gumbo on the same pages.
//
//     orl_html_bench                         all of it, as the tables of bench/README.md
//     orl_html_bench --benchmark_filter=...  some of it; names are "group/row/column"
//     orl_html_bench --raw ...               as Google Benchmark prints it
#include "bench.h"

#include <malloc.h>
#include <string_view>
#include <vector>

namespace {

/// The C library gives long strings and emptied heaps back to the system and takes them anew, which costs
/// ever so often many times what a parser does with them, at some size and not at half of it. Here it keeps
/// them, for all parsers.
void keepMemory() {
    mallopt(M_MMAP_MAX, 0);
    mallopt(M_TRIM_THRESHOLD, -1);
}

} // namespace

int main(int argc, char **argv) {
    using namespace orl::bench;
    keepMemory();
    addOperations();
    addHeap();
    addShapes();

    char interleave[] = "--benchmark_enable_random_interleaving=true", repeat[] = "--benchmark_repetitions=3",
         time[] = "--benchmark_min_time=0.05";
    const bool raw = argc > 1 && argv[1] == std::string_view("--raw");
    std::vector<char *> arguments{argv[0]};
    if (!raw) arguments.insert(arguments.end(), {interleave, repeat, time});
    arguments.insert(arguments.end(), argv + (raw ? 2 : 1), argv + argc);
    int count = int(arguments.size());
    arguments.push_back(nullptr);
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data())) return 2;
    if (raw)
        benchmark::RunSpecifiedBenchmarks();
    else
        benchmark::RunSpecifiedBenchmarks(&tableReporter());
}
