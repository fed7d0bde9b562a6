// What the parts of the benchmark give each other.
#pragma once

#include <benchmark/benchmark.h>
#include <ctime>
#include <optional>
#include <string>
#include <sys/wait.h>
#include <type_traits>
#include <unistd.h>

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

/// What `work` gives when it runs in a process of its own, where it does not find the memory in the pieces
/// that what ran before has left; nothing if the process fails.
template<class Work>
auto apart(Work work) -> std::optional<decltype(work())> {
    using Result = decltype(work());
    static_assert(std::is_trivially_copyable_v<Result>);
    int ends[2];
    if (pipe(ends) != 0) return {};
    const pid_t child = fork();
    if (child == 0) {
        const Result result = work();
        _exit(write(ends[1], &result, sizeof result) == sizeof result ? 0 : 1);
    }
    close(ends[1]);
    Result result{};
    const bool isRead = child > 0 && read(ends[0], &result, sizeof result) == sizeof result;
    close(ends[0]);
    if (child > 0) waitpid(child, nullptr, 0);
    return isRead ? std::optional(result) : std::nullopt;
}

/// Gathers all results and prints them as Markdown tables: medians, and each parser beside the engine.
benchmark::BenchmarkReporter &tableReporter();

} // namespace orl::bench
