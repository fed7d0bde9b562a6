// Shapes that kill: twice the input is to take no more than 2.3 times the time.
#include "bench.h"
#include "pages.h"

#include <orl/html/html.h>

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

namespace orl::bench {

namespace {

using namespace orl::html;

using MakePage = std::string (*)(std::size_t size);
using Work = void (*)(Document &page);

std::string repeated(std::string_view text, std::size_t times) {
    std::string all;
    all.reserve(text.size() * times);
    for (std::size_t i = 0; i < times; ++i)
        all += text;
    return all;
}

std::string nested(std::size_t n) {
    return repeated("<div>", n) + "x";
}
std::string siblings(std::size_t n) {
    return repeated("<p class='a b'>x</p>", n);
}
std::string mixedSiblings(std::size_t n) {
    return repeated("<p class=a>x</p><i>y</i>", n / 2);
}
std::string soupOf(std::size_t n) {
    return soup(n);
}

/// `work` null: the page is parsed and destroyed. `size` is what the shape starts with; it is doubled until a
/// run takes long enough.
struct Shape {
    const char *name;
    MakePage page;
    Work work;
    std::size_t size;
};

void select(const Document &page, const char *query) {
    benchmark::DoNotOptimize(page.select(query));
}

constexpr std::size_t million = 1'000'000, hundredThousand = 100'000;

const Shape shapes[] = {
    {"parse nested div", nested, nullptr, million},
    {"parse nested b", [](std::size_t n) { return repeated("<b>", n); }, nullptr, million},
    {"parse nested b in p", [](std::size_t n) { return repeated("<b><p>", n); }, nullptr, hundredThousand},
    {"parse unclosed a in tables", [](std::size_t n) { return repeated("<table><a>", n); }, nullptr,
     hundredThousand},
    {"parse unclosed a in cells", [](std::size_t n) { return repeated("<table><tr><td><a>", n); }, nullptr,
     hundredThousand},
    {"parse many attributes",
     [](std::size_t n) {
         std::string page = "<p";
         for (std::size_t i = 0; i < n; ++i)
             page += " a" + std::to_string(i) + "=1";
         return page + ">";
     },
     nullptr, million},
    {"parse a long attribute", [](std::size_t n) { return "<p a='" + std::string(n, 'x') + "'>"; }, nullptr,
     million},
    {"parse a long attribute with references",
     [](std::size_t n) { return "<p a='" + repeated("x&amp;", n / 6) + "'>"; }, nullptr, million},
    {"parse open tags in a title", [](std::size_t n) { return "<title>" + repeated("<a", n); }, nullptr,
     hundredThousand},
    {"parse references without an end", [](std::size_t n) { return repeated("&amp", n); }, nullptr,
     hundredThousand},
    {"parse tables in tables", [](std::size_t n) { return repeated("<table><tr><td>", n); }, nullptr,
     hundredThousand},
    {"parse text between tables", [](std::size_t n) { return repeated("<table>x", n); }, nullptr,
     hundredThousand},
    {"parse siblings", siblings, nullptr, million},
    {"parse tag soup", soupOf, nullptr, million},
    {":nth-child", siblings, [](Document &page) { select(page, "p:nth-child(3n+1)"); }, million},
    {":nth-last-of-type", siblings, [](Document &page) { select(page, "p:nth-last-of-type(2n)"); }, million},
    {":last-child", siblings, [](Document &page) { select(page, ":last-child"); }, million},
    {":has", siblings, [](Document &page) { select(page, ":has(i)"); }, million},
    {":has of nested div", nested, [](Document &page) { select(page, "div:has(b)"); }, million},
    {"a ~ b", mixedSiblings, [](Document &page) { select(page, "p ~ i"); }, million},
    {"descendants of nested div", nested, [](Document &page) { select(page, "div div div"); }, million},
    {"select on the tag soup", soupOf,
     [](Document &page) { select(page, "div > p:has(b) i, .row td ~ td, li:nth-child(2)"); }, million},
    {"text of siblings", siblings, [](Document &page) { benchmark::DoNotOptimize(page.text()); }, million},
    {"text of nested div", nested, [](Document &page) { benchmark::DoNotOptimize(page.text()); }, million},
    {"outerHtml of siblings", siblings, [](Document &page) { benchmark::DoNotOptimize(page.outerHtml()); },
     million},
    {"outerHtml of nested div", nested, [](Document &page) { benchmark::DoNotOptimize(page.outerHtml()); },
     million},
    {"copy of siblings", siblings, [](Document &page) { benchmark::DoNotOptimize(page.copy()); }, million},
    {"copy of nested div", nested, [](Document &page) { benchmark::DoNotOptimize(page.copy()); }, million},
    {"remove each child from the front", siblings,
     [](Document &page) {
         while (const Node child = page.body().firstChild()) {
             benchmark::DoNotOptimize(child.siblingIndex());
             child.remove();
         }
     },
     million},
    {"insert before each child", siblings,
     [](Document &page) {
         for (const Element &p : page.body().children())
             p.before(TextNode("y", ""));
     },
     million},
    {"place of each sibling", siblings,
     [](Document &page) {
         for (const Element &p : page.body().children())
             benchmark::DoNotOptimize(p.elementSiblingIndex());
     },
     million},
    {"child by its place", siblings,
     [](Document &page) {
         const Element body = page.body();
         for (std::size_t i = body.children().size(); i-- > 0;)
             benchmark::DoNotOptimize(body.child(i));
     },
     million},
    {"destroy siblings", siblings, [](Document &page) { page = Document(""); }, million},
    {"destroy nested div", nested, [](Document &page) { page = Document(""); }, million},
    {"elements containing text, nested div", nested,
     [](Document &page) { benchmark::DoNotOptimize(page.getElementsContainingText("x")); }, million},
    {"empty a body whose elements are held", nested,
     [](Document &page) {
         const Elements all = page.getElementsByTag("div");
         page.body().empty();
     },
     million},
};

double secondsOf(const Shape &shape, const std::string &markup) {
    if (!shape.work) {
        const double start = cpuSeconds();
        benchmark::DoNotOptimize(parse(markup));
        return cpuSeconds() - start;
    }
    Document page = parse(markup);
    page.outputSettings().prettyPrint(false);
    const double start = cpuSeconds();
    shape.work(page);
    return cpuSeconds() - start;
}

/// What disturbs a run only makes it longer, so both sizes are run until neither has got faster for some
/// time. That the ratio is small enough is no reason to stop.
constexpr int mostRounds = 15, settledAfter = 4;

struct Best {
    double seconds = 1e9;

    /// Whether it is better by more than nothing to speak of.
    bool add(double run) {
        const bool better = run < 0.98 * seconds;
        seconds = std::min(seconds, run);
        return better;
    }
};

struct Measured {
    double size, seconds, ratio;
};

Measured measured(const Shape &shape) {
    constexpr double longEnough = 0.1;
    constexpr std::size_t largest = 64'000'000; // bytes of the smaller page
    std::size_t size = shape.size;
    std::string once = shape.page(size);
    while (once.size() * 2 <= largest && secondsOf(shape, once) < longEnough)
        once = shape.page(size *= 2);
    const std::string twice = shape.page(2 * size);
    Best shorter, longer;
    for (int round = 0, settled = 0; round < mostRounds && settled < settledAfter; ++round) {
        const bool isShorter = shorter.add(secondsOf(shape, once));
        const bool isLonger = longer.add(secondsOf(shape, twice));
        settled = isShorter || isLonger ? 0 : settled + 1;
    }
    return {double(size), shorter.seconds, longer.seconds / shorter.seconds};
}

void measure(benchmark::State &state, const Shape &shape) {
    for (auto _ : state) {
        const auto result = apart([&shape] { return measured(shape); });
        if (!result) return state.SkipWithError("the shape's process failed");
        state.counters["size"] = result->size;
        state.counters["seconds"] = result->seconds;
        state.counters["ratio"] = result->ratio;
    }
}

} // namespace

void addShapes() {
    for (const Shape &shape : shapes)
        benchmark::RegisterBenchmark((std::string("twice/") + shape.name + "/orl").c_str(),
                                     [&shape](benchmark::State &state) { measure(state, shape); })
            ->Iterations(1)
            ->Repetitions(1);
}

} // namespace orl::bench
