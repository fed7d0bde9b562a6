// The pages that the benchmarks read.
//
// The documentation of Python as it stands on this machine (the package python3-doc; ORL_BENCH_PAGES names
// another folder), a page of messages, a page that is nearly all text and one that is nearly all attributes.
#pragma once

#include <cstddef>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace orl::bench {

using Pages = std::vector<std::string>;

inline Pages documentation() {
    const char *const folder = std::getenv("ORL_BENCH_PAGES");
    Pages pages;
    std::error_code ignored;
    const auto options = std::filesystem::directory_options::follow_directory_symlink;
    for (const auto &entry : std::filesystem::recursive_directory_iterator(
             folder ? folder : "/usr/share/doc/python3.11/html", options, ignored)) {
        if (entry.path().extension() != ".html") continue;
        std::ifstream file(entry.path(), std::ios::binary);
        pages.emplace_back(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
    }
    return pages;
}

/// A page of received messages, as the sites that show them build it.
inline std::string messages(std::size_t bytes) {
    std::string page =
        "<!DOCTYPE html>\n<html lang=\"en\"><head><meta charset=\"utf-8\"><title>Messages</title>"
        "<link rel=\"stylesheet\" href=\"/style.css\"></head>\n<body class=\"page\"><div id=\"list\">\n";
    for (int i = 0; page.size() < bytes; ++i) {
        const std::string number = std::to_string(i);
        page += "<div class=\"row border-bottom table-hover\"><div class=\"col-xs-12 col-md-2\"><div "
                "class=\"mobile_hide\">"
                "<a href=\"/messages/" +
                number + "?from=list&amp;page=2\">+1 555 0" + number +
                "</a></div></div>\n"
                "<div class=\"col-xs-12 col-md-8\"><p>Your code is <b>" +
                number +
                "</b>. Don&#39;t share it with anybody "
                "&mdash; we will never ask for it.</p></div>\n"
                "<div class=\"col-xs-12 col-md-2\"><time datetime=\"2026-01-01T00:00:00Z\">" +
                number +
                " minutes ago</time>"
                "</div></div>\n";
    }
    return page + "</div></body></html>\n";
}

inline std::string prose(std::size_t bytes) {
    std::string page = "<!DOCTYPE html><title>Prose</title>\n";
    while (page.size() < bytes)
        page += "<p>The quick brown fox jumps over the lazy dog, and the dog, who had seen it coming for a "
                "while, sighs and\n"
                "turns over in the sun. Nothing else happens for a long time: the afternoon is warm and the "
                "road is empty.\n";
    return page;
}

inline std::string attributes(std::size_t bytes) {
    std::string page = "<!DOCTYPE html><title>Attributes</title>\n";
    while (page.size() < bytes)
        page += "<a class=\"button large\" id=\"b1\" href=\"/path/to/something\" title=\"A title\" "
                "data-kind=\"x\" "
                "aria-label=\"Label\" style=\"color: red\" onclick=\"go(1)\"><img src=\"a.png\" alt=\"\" "
                "width=10 height=10></a>\n";
    return page;
}

inline const Pages &pagesOf(int set) {
    static const Pages sets[] = {documentation(),
                                 {messages(100'000)},
                                 {messages(1'000'000)},
                                 {prose(1'000'000)},
                                 {attributes(1'000'000)}};
    return sets[set];
}

inline constexpr const char *setNames[] = {"documentation", "messages_100K", "messages_1M", "prose_1M",
                                           "attributes_1M"};

inline std::size_t bytesOf(const Pages &pages) {
    std::size_t bytes = 0;
    for (const auto &page : pages)
        bytes += page.size();
    return bytes;
}

} // namespace orl::bench
