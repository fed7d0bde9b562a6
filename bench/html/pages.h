// The pages that the benchmarks read.
//
// The documentation of Python as it stands on this machine (the package python3-doc; ORL_BENCH_PAGES names
// another folder), pages of messages, a page that is nearly all text, one that is nearly all attributes, and
// tag soup.
#pragma once

#include <cstddef>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <utility>
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

/// Wrongly nested formatting, rows and cells without tables, cells without rows, text between cells, end tags
/// of nothing.
inline std::string soup(std::size_t bytes) {
    std::string page = "<title>Soup</title>";
    for (int i = 0; page.size() < bytes; ++i)
        page += "<div class='row x" + std::to_string(i % 7) +
                "'><p><b>one<i>two</b>three</i><table>lost<td>cell<a href=x>link<td>other<tr><b>bold</table>"
                "</span><ul><li>item<p>para<li class=large>&amp&copy;text&nosuch;</ul></p><br/></br><font "
                "color=red>red<p>still</font>no more</td><h1>one<h2>two</h1><!-- a > b --!><select><option>a"
                "<option selected>b<td></select><nobr>x<nobr>y</nobr></div></div>\n";
    return page;
}

/// A set of pages that all parsers read, and what is looked for in it.
struct Input {
    const char *name;
    Pages pages;
    const char *className; ///< on part of the elements
    const char *tagName;
    std::size_t bytes = 0;
    bool isDeepForLibxml2 = false; ///< it stops at 256 levels, of which it makes more than others here

    Input(const char *name_, Pages pages_, const char *className_, const char *tagName_)
        : name(name_), pages(std::move(pages_)), className(className_), tagName(tagName_) {
        for (const auto &page : pages)
            bytes += page.size();
    }
};

inline const std::vector<Input> &inputs() {
    static const std::vector<Input> all = [] {
        std::vector<Input> made;
        made.emplace_back("documentation", documentation(), "reference", "a");
        made.emplace_back("messages 30 KB", Pages{messages(30'000)}, "mobile_hide", "b");
        made.emplace_back("messages 100 KB", Pages{messages(100'000)}, "mobile_hide", "b");
        made.emplace_back("messages 1 MB", Pages{messages(1'000'000)}, "mobile_hide", "b");
        made.emplace_back("text 1 MB", Pages{prose(1'000'000)}, "none", "p");
        made.emplace_back("attributes 1 MB", Pages{attributes(1'000'000)}, "large", "img");
        made.emplace_back("tag soup 1 MB", Pages{soup(1'000'000)}, "large", "td");
        made.back().isDeepForLibxml2 = true;
        std::erase_if(made, [](const Input &input) { return input.pages.empty(); });
        return made;
    }();
    return all;
}

} // namespace orl::bench
