// What the parts of the benchmark give each other.
#pragma once

#include <benchmark/benchmark.h>
#include <ctime>
#include <string>

namespace orl::bench {

// Each part registers its benchmarks. Their names are "group/row/column"; a "/" inside a part is written "|".
void addOperations(); ///< groups "operation", "select" and "repeated"
void addHeap();       ///< group "heap"
void addShapes();     ///< group "twice"

/// Seconds of this thread's own work: what other programs do meanwhile does not count.
inline double cpuSeconds() {
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return double(now.tv_sec) + 1e-9 * double(now.tv_nsec);
}

/// Runs `work` once and tells the benchmark how long it took.
template<class Work>
void timed(benchmark::State &state, Work work) {
    const double start = cpuSeconds();
    work();
    state.SetIterationTime(cpuSeconds() - start);
}

/// Gathers all results and prints them as Markdown tables: medians, and each parser beside the engine.
benchmark::BenchmarkReporter &tableReporter();

} // namespace orl::bench
