// A selector finds what a naive walk finds, or both fail. The first line is the query, the rest a page.
#include "law.h"
#include "naive_matching.h"

using namespace orl::html;

namespace {

/// What is found, or nothing if the search fails.
template<class Search>
std::optional<Elements> attempt(Search search) {
    try {
        return search();
    } catch (const Exception::Error &) {
        return {};
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const std::string_view input = fuzz::textOf(data, size);
    const std::string_view query = input.substr(0, input.find('\n'));
    // The naive way takes its time: the more so, the deeper a query nests.
    if (query.size() > 120 || input.size() > 600) return 0;
    EvaluatorPtr evaluator;
    try {
        evaluator = QueryParser::parse(query);
    } catch (const Exception::Error &) {
        return 0;
    }
    const Document page = parse(input.substr(query.size()));
    const Elements all = page.getAllElements();
    if (all.size() > 80) return 0;
    for (const std::size_t at : {std::size_t(0), all.size() / 2}) {
        const Element root = all[at];
        const auto expected = attempt([&] { return naive::select(*evaluator, root); });
        for (int time = 0; time < 3; ++time) // the last time a page may have its answer ready
            fuzz::require(attempt([&] { return root.select(query); }) == expected,
                          "a selector finds what a naive walk finds", evaluator->toString());
    }
    return 0;
}
