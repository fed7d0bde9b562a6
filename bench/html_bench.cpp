// How fast pages become trees and go again, beside other parsers on the same pages.
//
//     orl_html_bench [--benchmark_filter=...]
#include "html_pages.h"

#include <orl/html/parser.h>

#include <benchmark/benchmark.h>
#include <string>

#ifdef ORL_BENCH_LIBXML2
#include <libxml/HTMLparser.h>
#endif
#ifdef ORL_BENCH_GUMBO
#include <gumbo.h>
#endif

namespace {

using namespace orl::bench;

/// One page after the other, parsed and destroyed.
template<class Parse>
void run(benchmark::State &state, int set, Parse parse) {
    const Pages &pages = pagesOf(set);
    for (auto _ : state) {
        for (const auto &page : pages)
            parse(page);
    }
    state.SetBytesProcessed(std::int64_t(bytesOf(pages)) * std::int64_t(state.iterations()));
}

void ours(benchmark::State &state, int set) {
    run(state, set, [](const std::string &page) { benchmark::DoNotOptimize(orl::html::parse(page)); });
}

#ifdef ORL_BENCH_LIBXML2
void viaLibxml2(benchmark::State &state, int set) {
    run(state, set, [](const std::string &page) {
        constexpr int quiet =
            HTML_PARSE_RECOVER | HTML_PARSE_NOERROR | HTML_PARSE_NOWARNING | HTML_PARSE_NONET;
        htmlDocPtr document = htmlReadMemory(page.data(), int(page.size()), nullptr, "utf-8", quiet);
        benchmark::DoNotOptimize(document);
        xmlFreeDoc(document);
    });
}
#endif

#ifdef ORL_BENCH_GUMBO
void viaGumbo(benchmark::State &state, int set) {
    run(state, set, [](const std::string &page) {
        GumboOutput *output = gumbo_parse_with_options(&kGumboDefaultOptions, page.data(), page.size());
        benchmark::DoNotOptimize(output);
        gumbo_destroy_output(&kGumboDefaultOptions, output);
    });
}
#endif

void add(const std::string &parser, void (*measure)(benchmark::State &, int)) {
    for (int set = 0; set < int(std::size(setNames)); ++set) {
        if (!pagesOf(set).empty())
            benchmark::RegisterBenchmark((parser + "/" + setNames[set]).c_str(), measure, set)
                ->Unit(benchmark::kMillisecond);
    }
}

} // namespace

int main(int argc, char **argv) {
    add("orl", ours);
#ifdef ORL_BENCH_LIBXML2
    add("libxml2", viaLibxml2);
#endif
#ifdef ORL_BENCH_GUMBO
    add("gumbo", viaGumbo);
#endif
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
