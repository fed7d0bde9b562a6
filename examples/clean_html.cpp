// Leaves of untrusted markup, read from standard input, what a text may need.
#include <orl/html/html.h>

#include <iostream>
#include <iterator>

int main() {
    const std::string markup(std::istreambuf_iterator<char>(std::cin), {});
    std::cout << orl::html::clean(markup, orl::html::Whitelist::relaxed()) << '\n';
}
