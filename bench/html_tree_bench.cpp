// How fast a tree answers and prints, beside libxml2 on the same pages; and that twice the tree takes twice
// the time.
//
//     orl_html_tree_bench [--benchmark_filter=...]
#include "html_pages.h"

#include <orl/html/html.h>

#include <benchmark/benchmark.h>
#include <chrono>
#include <cstdint>
#include <cstring>
#include <functional>
#include <string>
#include <vector>

#ifdef ORL_BENCH_LIBXML2
#include <libxml/HTMLparser.h>
#include <libxml/HTMLtree.h>
#endif

namespace {

using namespace orl::bench;
using namespace orl::html;

constexpr const char *searched[] = {"reference", "mobile_hide", "mobile_hide", "none", "large"};

std::vector<Document> &documents(int set) {
    static std::vector<Document> sets[std::size(setNames)];
    if (sets[set].empty()) {
        for (const auto &page : pagesOf(set)) {
            sets[set].push_back(parse(page));
            sets[set].back().outputSettings().prettyPrint(false);
        }
    }
    return sets[set];
}

template<class Work>
void onEach(benchmark::State &state, int set, Work work) {
    std::vector<Document> &all = documents(set);
    for (auto _ : state) {
        for (const Document &document : all)
            work(document);
    }
    state.SetBytesProcessed(std::int64_t(bytesOf(pagesOf(set))) * std::int64_t(state.iterations()));
}

void text(benchmark::State &state, int set) {
    onEach(state, set, [](const Document &document) { benchmark::DoNotOptimize(document.text()); });
}

void outerHtml(benchmark::State &state, int set) {
    onEach(state, set, [](const Document &document) { benchmark::DoNotOptimize(document.outerHtml()); });
}

/// The tree changes before each search.
void firstByClass(benchmark::State &state, int set) {
    onEach(state, set, [set](const Document &document) {
        document.attr("changed", "");
        benchmark::DoNotOptimize(document.getElementsByClass(searched[set]));
    });
}

void nextByClass(benchmark::State &state, int set) {
    onEach(state, set, [set](const Document &document) {
        benchmark::DoNotOptimize(document.getElementsByClass(searched[set]));
    });
}

void copy(benchmark::State &state, int set) {
    onEach(state, set, [](const Document &document) { benchmark::DoNotOptimize(document.copy()); });
}

#ifdef ORL_BENCH_LIBXML2

std::vector<htmlDocPtr> &peers(int set) {
    static std::vector<htmlDocPtr> sets[std::size(setNames)];
    if (sets[set].empty()) {
        constexpr int quiet =
            HTML_PARSE_RECOVER | HTML_PARSE_NOERROR | HTML_PARSE_NOWARNING | HTML_PARSE_NONET;
        for (const auto &page : pagesOf(set))
            sets[set].push_back(htmlReadMemory(page.data(), int(page.size()), nullptr, "utf-8", quiet));
    }
    return sets[set];
}

template<class Work>
void onEachPeer(benchmark::State &state, int set, Work work) {
    std::vector<htmlDocPtr> &all = peers(set);
    for (auto _ : state) {
        for (htmlDocPtr document : all)
            work(document);
    }
    state.SetBytesProcessed(std::int64_t(bytesOf(pagesOf(set))) * std::int64_t(state.iterations()));
}

void peerText(benchmark::State &state, int set) {
    onEachPeer(state, set, [](htmlDocPtr document) {
        xmlFree(xmlNodeGetContent(reinterpret_cast<xmlNodePtr>(document)));
    });
}

void peerOuterHtml(benchmark::State &state, int set) {
    onEachPeer(state, set, [](htmlDocPtr document) {
        xmlChar *printed = nullptr;
        int size = 0;
        htmlDocDumpMemoryFormat(document, &printed, &size, 0);
        xmlFree(printed);
    });
}

bool hasWord(const char *value, const char *word) {
    const std::size_t size = std::strlen(word);
    const auto isEnd = [](char c) { return c == '\0' || c == ' ' || (c >= '\t' && c <= '\r'); };
    for (const char *p = value; (p = std::strstr(p, word)); p += size)
        if ((p == value || isEnd(p[-1])) && isEnd(p[size])) return true;
    return false;
}

void collect(xmlNodePtr node, const char *word, std::vector<xmlNodePtr> &found) {
    for (; node; node = node->next) {
        if (node->type != XML_ELEMENT_NODE) continue;
        if (xmlChar *value = xmlGetProp(node, reinterpret_cast<const xmlChar *>("class"))) {
            if (hasWord(reinterpret_cast<const char *>(value), word)) found.push_back(node);
            xmlFree(value);
        }
        collect(node->children, word, found);
    }
}

void peerByClass(benchmark::State &state, int set) {
    onEachPeer(state, set, [set](htmlDocPtr document) {
        std::vector<xmlNodePtr> found;
        collect(xmlDocGetRootElement(document), searched[set], found);
        benchmark::DoNotOptimize(found.data());
    });
}

#endif

// ---- Shapes that could take more than their share ----

using Work = std::function<void(const Document &)>;

std::string repeated(std::string_view text, std::size_t times) {
    std::string all;
    for (std::size_t i = 0; i < times; ++i)
        all += text;
    return all;
}

/// The time for a size and for twice the size; the counter is their ratio.
void twice(benchmark::State &state, const std::function<std::string(std::size_t)> &page, std::size_t size,
           const Work &work) {
    using Clock = std::chrono::steady_clock;
    const auto seconds = [&](std::size_t n) {
        const std::string markup = page(n);
        double best = 1e9;
        for (int round = 0; round < 5; ++round) {
            const Document document = parse(markup);
            document.outputSettings().prettyPrint(false);
            const auto start = Clock::now();
            work(document);
            best = std::min(best, std::chrono::duration<double>(Clock::now() - start).count());
        }
        return best;
    };
    double ratio = 0;
    for (auto _ : state)
        ratio = seconds(2 * size) / seconds(size);
    state.counters["twice"] = ratio;
}

void addShapes() {
    const auto nested = [](std::size_t n) { return repeated("<div>", n) + "x"; };
    const auto siblings = [](std::size_t n) { return repeated("<p class='a b'>x", n); };
    struct Shape {
        const char *name;
        std::function<std::string(std::size_t)> page;
        Work work;
    };
    const Shape shapes[] = {
        {"nested/text", nested, [](const Document &d) { benchmark::DoNotOptimize(d.text()); }},
        {"nested/outerHtml", nested, [](const Document &d) { benchmark::DoNotOptimize(d.outerHtml()); }},
        {"nested/copy", nested, [](const Document &d) { benchmark::DoNotOptimize(d.copy()); }},
        {"nested/containing", nested,
         [](const Document &d) { benchmark::DoNotOptimize(d.getElementsContainingText("x")); }},
        {"nested/unwrap", nested, [](const Document &d) { d.body().child(0).unwrap(); }},
        {"nested/cutLoose", nested,
         [](const Document &d) {
             const Elements all = d.getElementsByTag("div");
             d.body().empty();
         }},
        {"siblings/removeFromFront", siblings,
         [](const Document &d) {
             while (const Node child = d.body().firstChild()) {
                 benchmark::DoNotOptimize(child.siblingIndex());
                 child.remove();
             }
         }},
        {"siblings/places", siblings,
         [](const Document &d) {
             for (const Element &p : d.body().children())
                 benchmark::DoNotOptimize(p.elementSiblingIndex());
         }},
        {"siblings/childByPlace", siblings,
         [](const Document &d) {
             const Element body = d.body();
             const std::size_t count = body.children().size();
             for (std::size_t i = 0; i < count; ++i)
                 benchmark::DoNotOptimize(body.child(i));
         }},
        {"siblings/insertBeforeEach", siblings,
         [](const Document &d) {
             for (const Element &p : d.body().children())
                 p.before(TextNode("y", ""));
         }},
    };
    for (const Shape &shape : shapes) {
        benchmark::RegisterBenchmark(
            (std::string("twice/") + shape.name).c_str(),
            [shape](benchmark::State &state) { twice(state, shape.page, 300'000, shape.work); })
            ->Iterations(1);
    }
}

void add(const char *name, void (*measure)(benchmark::State &, int)) {
    for (int set = 0; set < int(std::size(setNames)); ++set) {
        if (pagesOf(set).empty()) continue;
        benchmark::RegisterBenchmark((std::string(name) + '/' + setNames[set]).c_str(), measure, set)
            ->Unit(benchmark::kMillisecond);
    }
}

} // namespace

int main(int argc, char **argv) {
    add("text/orl", text);
    add("outerHtml/orl", outerHtml);
    add("byClass_first/orl", firstByClass);
    add("byClass_next/orl", nextByClass);
    add("copy/orl", copy);
#ifdef ORL_BENCH_LIBXML2
    add("text/libxml2", peerText);
    add("outerHtml/libxml2", peerOuterHtml);
    add("byClass/libxml2", peerByClass);
#endif
    addShapes();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
