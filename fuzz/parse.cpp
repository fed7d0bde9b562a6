// Any text is a page: parsing ends with a sound tree, recording errors changes nothing, and printing and
// parsing again settles.
#include "law.h"

using namespace orl::html;

namespace {

void requireSameWithErrors(std::string_view page, const Document &document) {
    constexpr std::size_t maxErrors = 50;
    Parser parser = Parser::htmlParser();
    parser.setTrackErrors(maxErrors);
    const Document tracked = parser.parseInput(page, "");
    fuzz::require(parser.getErrors().size() <= maxErrors, "so many errors are recorded and no more");
    fuzz::require(tracked.outerHtml() == document.outerHtml(), "recording errors changes nothing");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const std::string_view page = fuzz::textOf(data, size);
    const Document document = parse(page);
    fuzz::requireSoundTree(document);
    fuzz::require(document.head() && (document.body() || !document.select("frameset").isEmpty()),
                  "a page has a head and a body or frames");
    fuzz::require(document.getAllElements().size() < 100'000 + 64 * size, "a short page is a small tree");
    requireSameWithErrors(page, document);
    fuzz::require(document.copy().outerHtml() == document.outerHtml(), "a copy prints the same");
    fuzz::printPlainly(document);

    std::string printed = document.outerHtml();
    // A line feed at the start of a pre is lost each time. Raw text may come up later: behind an attribute
    // without a value, one whose name begins with "=" is read as that value, and what it hid as markup.
    for (std::size_t round = 0; round < size + 16; ++round) {
        const Document again = parse(printed);
        if (fuzz::hasRawText(again)) return 0;
        fuzz::printPlainly(again);
        std::string next = again.outerHtml();
        if (next == printed) return 0;
        printed = std::move(next);
    }
    fuzz::require(false, "printing and parsing again settles", printed);
    return 0;
}
