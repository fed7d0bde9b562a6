// How fast pages become trees and go again, and how fast the trees answer.
#include "bench.h"
#include "pages.h"
#include "parsers.h"

#include <algorithm>
#include <functional>

namespace orl::bench {

namespace {

using Function = std::function<void(benchmark::State &)>;

benchmark::internal::Benchmark *add(const std::string &name, Function function) {
    return benchmark::RegisterBenchmark(name.c_str(), std::move(function))
        ->UseManualTime()
        ->Unit(benchmark::kMillisecond);
}

/// For questions that need a fresh parse each, so that it is not parsing that takes the time.
std::int64_t fewRounds(const Input &input) {
    constexpr std::size_t bytes = 30'000'000;
    return std::int64_t(std::max<std::size_t>(bytes / input.bytes, 1));
}

std::string nameOf(const std::string &group, const std::string &row, const std::string &column) {
    return group + '/' + row + '/' + column;
}

template<class Parser>
std::vector<typename Parser::Tree> parseAll(const Input &input) {
    std::vector<typename Parser::Tree> trees;
    trees.reserve(input.pages.size());
    for (const auto &page : input.pages)
        trees.push_back(Parser::parse(page));
    return trees;
}

void countBytes(benchmark::State &state, const Input &input) {
    state.SetBytesProcessed(std::int64_t(input.bytes) * std::int64_t(state.iterations()));
}

/// One page after the other, parsed and destroyed.
template<class Parser>
void addParse(const Input &input) {
    add(nameOf("operation", std::string("parse and destroy, ") + input.name, Parser::name),
        [&input](benchmark::State &state) {
            for (auto _ : state) {
                timed(state, [&input] {
                    for (const auto &page : input.pages)
                        benchmark::DoNotOptimize(Parser::parse(page));
                });
            }
            countBytes(state, input);
        });
}

/// Asks each tree once. `fresh` parses the pages anew each time, so that it is the first question.
template<class Parser, class Work>
void addQuestion(const std::string &operation, const Input &input, bool fresh, Work work) {
    auto *const added = add(nameOf("operation", operation + ", " + input.name, Parser::name),
                            [&input, fresh, work](benchmark::State &state) {
                                auto trees = parseAll<Parser>(input);
                                for (auto _ : state) {
                                    if (fresh) {
                                        trees.clear();
                                        trees = parseAll<Parser>(input);
                                    }
                                    timed(state, [&] {
                                        for (const auto &tree : trees)
                                            benchmark::DoNotOptimize(work(tree, input));
                                    });
                                }
                                countBytes(state, input);
                            });
    if (fresh) added->Iterations(fewRounds(input));
}

template<class Parser>
void addByClass(const Input &input) {
    addQuestion<Parser>(
        "elements of a class, first call", input, true,
        [](const auto &tree, const Input &in) { return Parser::byClass(tree, in.className); });
}

template<class Parser>
void addText(const Input &input) {
    addQuestion<Parser>("text", input, false,
                        [](const auto &tree, const Input &) { return Parser::text(tree); });
}

template<class Parser>
void addMarkup(const Input &input) {
    addQuestion<Parser>("outerHtml", input, false,
                        [](const auto &tree, const Input &) { return Parser::markup(tree); });
}

/// The tree has changed since it was parsed.
void addByClassAfterChange(const Input &input) {
    add(nameOf("operation", std::string("elements of a class, after a change, ") + input.name, Orl::name),
        [&input](benchmark::State &state) {
            const auto trees = parseAll<Orl>(input);
            for (auto _ : state) {
                for (const auto &tree : trees)
                    tree.attr("changed", "");
                timed(state, [&] {
                    for (const auto &tree : trees)
                        benchmark::DoNotOptimize(Orl::byClass(tree, input.className));
                });
            }
            countBytes(state, input);
        });
}

// ---- Selectors beside the class lookup

/// What the query takes of the processor on a tree that was never asked before; the median of some.
double secondsAtFirst(const html::Evaluator &evaluator, const Input &input) {
    std::vector<double> seconds(std::size_t(fewRounds(input)));
    for (double &taken : seconds) {
        const html::Document tree = Orl::parse(input.pages.front());
        const double start = cpuSeconds();
        benchmark::DoNotOptimize(html::Collector::collect(evaluator, tree));
        taken = cpuSeconds() - start;
    }
    const auto middle = seconds.begin() + std::ptrdiff_t(seconds.size() / 2);
    std::nth_element(seconds.begin(), middle, seconds.end());
    return *middle;
}

/// The class alone is the first query; the others are to take no more than 1.5 times its time. A first call
/// takes a tenth of a millisecond: only many runs, on memory that others have not left, tell which is which.
void addSelect(const Input &input, bool fresh) {
    const std::string name = input.className;
    const std::string row = std::string(input.name) + (fresh ? ", first call" : ", repeated");
    for (const std::string &query : {"." + name, "div ." + name, ".row ." + name, ".page ." + name,
                                     ".none ." + name, "." + name + " b"}) {
        const auto firstCalls = [&input, query](benchmark::State &state) {
            const auto evaluator = html::QueryParser::parse(query);
            for (auto _ : state) {
                const auto seconds = apart([&] { return secondsAtFirst(*evaluator, input); });
                if (!seconds) return state.SkipWithError("the query's process failed");
                state.SetIterationTime(*seconds);
            }
            countBytes(state, input);
        };
        const auto repeated = [&input, query](benchmark::State &state) {
            const auto evaluator = html::QueryParser::parse(query);
            const html::Document tree = Orl::parse(input.pages.front());
            for (auto _ : state)
                timed(state, [&] { benchmark::DoNotOptimize(html::Collector::collect(*evaluator, tree)); });
            countBytes(state, input);
        };
        if (fresh)
            add(nameOf("select", row, query), firstCalls)->Iterations(1)->Repetitions(15);
        else
            add(nameOf("select", row, query), repeated);
    }
}

/// On trees that do not change; the counter is nanoseconds for each element of the tree.
template<class Search>
void addRepeated(const std::string &search, const Input &input, bool changed, Search find) {
    const std::string column = changed ? "changed once after the parse" : "as parsed";
    add(nameOf("repeated", search + ", " + input.name, column),
        [&input, changed, find](benchmark::State &state) {
            const auto trees = parseAll<Orl>(input);
            std::size_t elements = 0;
            for (const auto &tree : trees) {
                if (changed) tree.attr("changed", "");
                elements += tree.getAllElements().size();
                find(tree, input);
                find(tree, input);
            }
            double seconds = 0;
            for (auto _ : state) {
                const double start = cpuSeconds();
                for (const auto &tree : trees)
                    benchmark::DoNotOptimize(find(tree, input));
                const double taken = cpuSeconds() - start;
                seconds += taken;
                state.SetIterationTime(taken);
            }
            state.counters["ns"] = 1e9 * seconds / double(state.iterations()) / double(elements);
        });
}

} // namespace

void addOperations() {
    for (const Input &input : inputs()) {
        addParse<Orl>(input);
        addByClass<Orl>(input);
        addByClassAfterChange(input);
        addText<Orl>(input);
        addMarkup<Orl>(input);
#ifdef ORL_BENCH_LIBXML2
        if (!input.isDeepForLibxml2) {
            addParse<Libxml2>(input);
            addByClass<Libxml2>(input);
            addText<Libxml2>(input);
            addMarkup<Libxml2>(input);
        }
#endif
#ifdef ORL_BENCH_GUMBO
        addParse<Gumbo>(input);
        addByClass<Gumbo>(input);
        addText<Gumbo>(input);
#endif
        for (const bool changed : {false, true}) {
            addRepeated("class", input, changed, [](const auto &tree, const Input &in) {
                return tree.getElementsByClass(in.className).size();
            });
            addRepeated("tag", input, changed, [](const auto &tree, const Input &in) {
                return tree.getElementsByTag(in.tagName).size();
            });
        }
        if (std::string(input.name) != "messages 1 MB") continue;
        addSelect(input, true);
        addSelect(input, false);
    }
}

} // namespace orl::bench
