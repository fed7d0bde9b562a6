#include <orl/html/html.h>

#include <iostream>

int main() {
    const auto page = orl::html::parse("<p>Hello <b class=x>there</b>", "http://host/");
    std::cout << page.select("p > .x").text() << ' '
              << orl::html::clean("<i onclick=a>b", orl::html::Whitelist::basic());
    try {
        page.select("p:none");
    } catch (const orl::html::Exception::Error &error) {
        std::cout << ' ' << error.Message << '\n';
    }
}
