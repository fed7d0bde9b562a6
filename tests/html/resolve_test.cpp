// Addresses as a page gives them, and the URLs that come of them.
#include <orl/html/string_util.h>

#include <gtest/gtest.h>

namespace orl::html {
namespace {

TEST(ResolveTest, LinksOfAPage) {
    const std::string base = "http://user@host:8080/a/b/c.html?q=1#frag";
    const std::string host = "http://user@host:8080";
    const struct {
        const char *link;
        std::string url;
    } cases[] = {
        {"x", host + "/a/b/x"},
        {"./x/.", host + "/a/b/x/"},
        {"../x", host + "/a/x"},
        {"../../../x", host + "/x"},
        {"x//y", host + "/a/b/x//y"},
        {"x;p=1/../y", host + "/a/b/y"},
        {"/x", host + "/x"},
        {"//other/x", "http://other/x"},
        {"?y=2", host + "/a/b/c.html?y=2"},
        {"#z", host + "/a/b/c.html?q=1#z"},
        {"", host + "/a/b/c.html?q=1"},
        {"https://o/p/../q", "https://o/q"},
        {"HTTPS://O/x", "HTTPS://O/x"},
        {"mailto:a@b.c?subject=x y", "mailto:a@b.c?subject=x%20y"},
        {"tel:+1 (2) 3", "tel:+1%20(2)%203"},
        {"data:text/html,<b>", "data:text/html,%3Cb%3E"},
        // What browsers do not see, or encode.
        {" \n x\t ", host + "/a/b/x"},
        {"a\nb", host + "/a/b/ab"},
        {"x y", host + "/a/b/x%20y"},
        {"?a[]=1&b={x}", host + "/a/b/c.html?a%5B%5D=1&b=%7Bx%7D"},
        {"a//[b]", host + "/a/b/a//%5Bb%5D"},
        {"100%", host + "/a/b/100%25"},
        {"%zz%20", host + "/a/b/%25zz%20"},
        {"x#a#b", host + "/a/b/x#a%23b"},
        {"\xc3\xa4", host + "/a/b/%C3%A4"},
        {"http://[::1]:80/x", "http://[0000:0000:0000:0000:0000:0000:0000:0001]:80/x"},
        // What hides a scheme from a hasty look is seen as a browser sees it.
        {"java\nscript:alert(1)", "javascript:alert(1)"},
        {"\x01 JavaScript:alert(1)", "JavaScript:alert(1)"},
        // What is no URL.
        {"http://host:port/", ""},
        {"http://[::1/", ""},
        {":", ""},
    };
    for (const auto &row : cases)
        EXPECT_EQ(StringUtil::resolve(base, row.link), row.url) << row.link;
}

TEST(ResolveTest, BasesOfAPage) {
    const struct {
        const char *base, *link, *url;
    } cases[] = {
        {"", "x", ""},
        {"", "http://o/x y", "http://o/x%20y"},
        {"", "#f", ""},
        {"host/x", "y", ""},
        {"//host/x", "http://o/", "http://o/"},
        {"http://host", "x", "http://host/x"},
        {"http://host?q", "x", "http://host/x"},
        {"http://host", "#f", "http://host#f"},
        {"http://ho st/", "x", "http://ho%20st/x"},
        {" http://host/ ", "x", "http://host/x"},
        {"file:///a/b", "../c", "file:///c"},
        {"http://h:x/", "http://o/", "http://o/"},
        {"http://h:x/", "y", ""},
    };
    for (const auto &row : cases)
        EXPECT_EQ(StringUtil::resolve(row.base, row.link), row.url) << row.base << " + " << row.link;
}

} // namespace
} // namespace orl::html
