// Lists all links of a page: list_links page.html http://host/page.html
#include <orl/html/html.h>

#include <iostream>

int main(int argc, char **argv) {
    if (argc < 2) return 2;
    const auto page = orl::html::DataUtil::load(argv[1], argc > 2 ? argv[2] : "");
    for (const auto &link : page.select("a[href]"))
        std::cout << link.attr("abs:href") << '\t' << link.text() << '\n';
}
