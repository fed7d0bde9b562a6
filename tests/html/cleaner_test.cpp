// What is left of untrusted markup.
#include <orl/html/html.h>

#include <gtest/gtest.h>

namespace orl::html {
namespace {

OutputSettings plain() {
    OutputSettings settings;
    settings.prettyPrint(false);
    return settings;
}

std::string cleaned(std::string_view html, const Whitelist &whitelist, std::string_view baseUri = "") {
    return clean(html, baseUri, whitelist, plain());
}

struct Case {
    const char *html, *left;
};

TEST(CleanerTest, PresetsLeaveWhatTheyName) {
    const char *page =
        "<h1>T</h1><p class=c>x <b onclick=a()>b</b> <a href='http://x.y/' title=t target=_top>l</a> "
        "<img src='http://x.y/i.png' alt=a onerror=a()></p><script>a()</script><!--c-->"
        "<blockquote cite='http://q.r/'>q</blockquote><u>u</u>";
    EXPECT_EQ(cleaned(page, Whitelist::none()), "Tx b l qu");
    EXPECT_EQ(cleaned(page, Whitelist::simpleText()), "Tx <b>b</b> l q<u>u</u>");
    EXPECT_EQ(cleaned(page, Whitelist::basic()),
              "T<p>x <b>b</b> <a href=\"http://x.y/\" rel=\"nofollow\">l</a> </p>"
              "<blockquote cite=\"http://q.r/\">q</blockquote><u>u</u>");
    EXPECT_EQ(cleaned("<img src='http://x.y/i.png' alt=a onerror=a()>", Whitelist::basicWithImages()),
              "<img src=\"http://x.y/i.png\" alt=\"a\">");
    EXPECT_EQ(cleaned(page, Whitelist::relaxed()),
              "<h1>T</h1><p>x <b>b</b> <a href=\"http://x.y/\" title=\"t\">l</a> "
              "<img src=\"http://x.y/i.png\" alt=\"a\"></p><blockquote "
              "cite=\"http://q.r/\">q</blockquote><u>u</u>");
}

TEST(CleanerTest, ChildrenOfUnsafeElementsMoveUp) {
    const Case cases[] = {
        {"<p><x><b>1<y>2</y></b></x>3</p>", "<p><b>12</b>3</p>"},
        {"<x><p>1</p></x><p>2</p>", "<p>1</p><p>2</p>"},
        {"<table><tr><td>1", "1"},
        {"<p>a<textarea><b>x</textarea></p>", "<p>a&lt;b&gt;x</p>"},
        {"<style>p{}</style><p>1<script>2</script></p>", "<p>1</p>"},
        {"<!-- a --><p>1<!-- b --></p>", "<p>1</p>"},
        {"", ""},
    };
    Whitelist whitelist;
    whitelist.addTags({"p", "b"});
    for (const Case &row : cases)
        EXPECT_EQ(cleaned(row.html, whitelist), row.left) << row.html;
}

TEST(CleanerTest, DataStaysInAnElementThatIsSafe) {
    const Whitelist whitelist = Whitelist().addTags({"style"});
    EXPECT_EQ(cleaned("<style>a>b{}</style><script>x</script>", whitelist), "<style>a>b{}</style>");
}

TEST(CleanerTest, LinksNeedAProtocolThatIsListed) {
    const Case cases[] = {
        {"http://x/", "http://x/"},
        {"HTTPS://x/", "HTTPS://x/"},
        {" http://x/a b ", "http://x/a%20b"},
        {"mailto:a@b", "mailto:a@b"},
        {"ftp://x/", "ftp://x/"},
        {"/rel", nullptr},
        {"rel", nullptr},
        {"//x/", nullptr},
        {"#a", nullptr},
        {"", nullptr},
        {"javascript:alert(1)", nullptr},
        {"JaVaScRiPt:alert(1)", nullptr},
        {" javascript:alert(1)", nullptr},
        {"java\tscript:alert(1)", nullptr},
        {"java&#10;script:alert(1)", nullptr},
        {"java&Tab;script&colon;alert(1)", nullptr},
        {"&#1;javascript:alert(1)", nullptr},
        {"&#x6A&#x61vascript:alert(1)", nullptr},
        {"javascript&#58;alert(1)", nullptr},
        {"java&#0;script:alert(1)", nullptr},
        {"http&#9;:x", "http:x"},
        {"vbscript:x", nullptr},
        {"data:text/html,<script>alert(1)</script>", nullptr},
        {"view-source:http://x/", nullptr},
        {"httpx://y/", nullptr},
        {"http", nullptr},
        {"x:http://y/", nullptr},
        {"\\\\x", nullptr},
    };
    for (const Case &row : cases) {
        const std::string left = row.left ? "<a href=\"" + std::string(row.left) + "\" rel=\"nofollow\">x</a>"
                                          : "<a rel=\"nofollow\">x</a>";
        EXPECT_EQ(cleaned("<a href=\"" + std::string(row.html) + "\">x</a>", Whitelist::basic()), left)
            << row.html;
    }
}

TEST(CleanerTest, RelativeLinksAreSeenFromTheBase) {
    const Case cases[] = {
        {"<a href='/x'>", "<a href=\"http://h/x\"></a>"},
        {"<a href='?q'>", "<a href=\"http://h/d/?q\"></a>"},
        {"<a href='javascript:x'>", "<a></a>"},
        {"<img src=i.png>", "<img src=\"http://h/d/i.png\">"},
    };
    const Case preserved[] = {
        {"<a href='/x'>", "<a href=\"/x\"></a>"},   {"<a href=' x y '>", "<a href=\" x y \"></a>"},
        {"<a href='javascript:x'>", "<a></a>"},     {"<a href='java\nscript:x'>", "<a></a>"},
        {"<a href='\x01javascript:x'>", "<a></a>"},
    };
    Whitelist whitelist = Whitelist::relaxed();
    for (const Case &row : cases)
        EXPECT_EQ(cleaned(row.html, whitelist, "http://h/d/"), row.left) << row.html;
    whitelist.preserveRelativeLinks(true);
    for (const Case &row : preserved)
        EXPECT_EQ(cleaned(row.html, whitelist, "http://h/d/"), row.left) << row.html;
    EXPECT_EQ(cleaned("<a href='/x'>", whitelist), "<a></a>");
}

TEST(CleanerTest, NamesThatDifferInCaseOnlyAreDifferentNames) {
    Parser parser = Parser::xmlParser();
    const Document page = parser.parseInput(
        "<html><body><A href='http://x/'/><a HREF='http://x/' href='javascript:x'/></body></html>",
        "http://h/");
    const Document left = Cleaner(Whitelist::relaxed().preserveRelativeLinks(true)).clean(page);
    left.outputSettings(plain());
    EXPECT_EQ(left.body().html(), "<a></a>");
}

TEST(CleanerTest, AnchorsPassWhereTheHashIsListed) {
    const Whitelist whitelist =
        Whitelist().addTags({"a"}).addAttributes("a", {"href"}).addProtocols("a", "href", {"#"});
    const Case cases[] = {
        {"<a href='#x'>", "<a href=\"#x\"></a>"},
        {"<a href='#'>", "<a href=\"#\"></a>"},
        {"<a href='# x'>", "<a></a>"},
        {"<a href='#a b'>", "<a></a>"},
        {"<a href='http://h/#x'>", "<a></a>"},
    };
    for (const Case &row : cases)
        for (const char *base : {"", "http://h/"})
            EXPECT_EQ(cleaned(row.html, whitelist, base), row.left) << row.html << base;
}

TEST(CleanerTest, EnforcedAttributesReplaceThoseOfThePage) {
    const Whitelist whitelist = Whitelist()
                                    .addTags({"a", "b"})
                                    .addAttributes("a", {"rel", "id"})
                                    .addEnforcedAttribute("a", "rel", "x\"y");
    EXPECT_EQ(cleaned("<a rel=me id=i><b rel=z>", whitelist), "<a rel=\"x&quot;y\" id=\"i\"><b></b></a>");
    EXPECT_EQ(whitelist.getEnforcedAttributes("a").get("rel"), "x\"y");
    EXPECT_TRUE(whitelist.getEnforcedAttributes("b").isEmpty());
    EXPECT_EQ(cleaned("<a rel=me>", Whitelist(whitelist).removeEnforcedAttribute("a", "rel")),
              "<a rel=\"me\"></a>");
}

TEST(CleanerTest, RulesForAllTags) {
    Whitelist whitelist =
        Whitelist().addTags({"p", "a"}).addAttributes(":all", {"class", "href"}).addAttributes("p", {"id"});
    EXPECT_EQ(cleaned("<p class=c id=i>1</p><a class=d id=j href=x>", whitelist),
              "<p class=\"c\" id=\"i\">1</p><a class=\"d\" href=\"x\"></a>");
    whitelist.addProtocols("a", "href", {"http"});
    EXPECT_EQ(cleaned("<p href=x></p><a href=javascript:x>", whitelist), "<p href=\"x\"></p><a></a>");
    whitelist.addProtocols(":all", "href", {"ftp"});
    EXPECT_EQ(cleaned("<p href=x></p><a href=http:x>", whitelist), "<p></p><a href=\"http:x\"></a>");
    whitelist.removeAttributes(":all", {"class", "id"});
    EXPECT_EQ(cleaned("<p class=c id=i>", whitelist), "<p></p>");
}

TEST(CleanerTest, RulesCanBeTakenBack) {
    Whitelist whitelist = Whitelist::basic();
    whitelist.removeTags({"b"}).removeAttributes("a", {"href"});
    EXPECT_EQ(cleaned("<b>1</b><a href='http://x/'>2</a>", whitelist), "1<a rel=\"nofollow\">2</a>");
    whitelist = Whitelist::basic().removeProtocols("a", "href", {"http", "https", "ftp", "mailto"});
    EXPECT_EQ(cleaned("<a href='http://x/'>2</a>", whitelist), "<a rel=\"nofollow\">2</a>");
    EXPECT_FALSE(whitelist.isSafeTag("script"));
    EXPECT_TRUE(whitelist.isSafeTag("b"));
}

TEST(CleanerTest, OneAttributeCanBeAskedAbout) {
    const Document page = Parser::parseBodyFragment("<a href='/x' id=i>", "http://h/");
    const Element a = page.select("a").first();
    const Attribute href = *a.getAttributes().begin();
    EXPECT_TRUE(Whitelist::basic().preserveRelativeLinks(true).isSafeAttribute("a", a, href));
    EXPECT_EQ(href.getValue(), "/x");
    EXPECT_TRUE(Whitelist::basic().isSafeAttribute("a", a, href));
    EXPECT_EQ(href.getValue(), "http://h/x");
    EXPECT_FALSE(Whitelist::basic().isSafeAttribute("b", a, href));
    EXPECT_FALSE(Whitelist::basic().isSafeAttribute("a", a, Attribute("id", "i")));
}

TEST(CleanerTest, ArgumentsAreChecked) {
    const auto message = [](auto use) {
        Whitelist whitelist;
        try {
            use(whitelist);
        } catch (const Exception::Error &error) {
            return error.Message;
        }
        return std::string("none");
    };
    const std::string empty = "String must not be empty", none = "No attributes supplied.";
    EXPECT_EQ(message([](Whitelist &w) { w.addTags({"a", ""}); }), empty);
    EXPECT_EQ(message([](Whitelist &w) { w.removeTags({""}); }), empty);
    EXPECT_EQ(message([](Whitelist &w) { w.addAttributes("", {"k"}); }), empty);
    EXPECT_EQ(message([](Whitelist &w) { w.addAttributes("a", {""}); }), empty);
    EXPECT_EQ(message([](Whitelist &w) { w.addAttributes("a", {}); }), none);
    EXPECT_EQ(message([](Whitelist &w) { w.removeAttributes("a", {}); }), none);
    EXPECT_EQ(message([](Whitelist &w) { w.addEnforcedAttribute("a", "", "v"); }), empty);
    EXPECT_EQ(message([](Whitelist &w) { w.addEnforcedAttribute("a", "k", ""); }), empty);
    EXPECT_EQ(message([](Whitelist &w) { w.removeEnforcedAttribute("a", ""); }), empty);
    EXPECT_EQ(message([](Whitelist &w) { w.addProtocols("a", "k", {""}); }), empty);
    EXPECT_EQ(message([](Whitelist &w) { w.removeProtocols("a", "", {"http"}); }), empty);
}

TEST(CleanerTest, ValidMarkupHasNothingToLeaveOut) {
    EXPECT_TRUE(isValid("<p>x <b>y</b></p>", Whitelist::basic()));
    EXPECT_TRUE(isValid("text", Whitelist::none()));
    EXPECT_TRUE(isValid("<a href='http://x/'>y</a>", Whitelist::basic()));
    EXPECT_FALSE(isValid("<p>x<script>y</script></p>", Whitelist::basic()));
    EXPECT_FALSE(isValid("<p onclick=x>y</p>", Whitelist::basic()));
    EXPECT_FALSE(isValid("<a href='javascript:x'>y</a>", Whitelist::basic()));
    EXPECT_FALSE(isValid("<!--x-->", Whitelist::basic()));
    EXPECT_FALSE(isValid("<b>x</b>", Whitelist::none()));
    const Cleaner cleaner(Whitelist::basic());
    EXPECT_TRUE(cleaner.isValid(Document::createShell("")));
    EXPECT_FALSE(cleaner.isValid(Document("")));
    EXPECT_EQ(cleaner.clean(Document("")).select("body *").size(), 0U);
}

TEST(CleanerTest, TheDirtyDocumentStaysAsItIs) {
    const Document page = Parser::parse("<body><a href=/x onclick=y>z</a><script>s</script>", "http://h/");
    const std::string before = page.outerHtml();
    const Document left = Cleaner(Whitelist::basic()).clean(page);
    EXPECT_EQ(page.outerHtml(), before);
    EXPECT_EQ(left.select("a").attr("href"), "http://h/x");
    EXPECT_EQ(left.getBaseUri(), "http://h/");
}

TEST(CleanerTest, AnyDepthWillDo) {
    constexpr int deep = 300'000;
    std::string page;
    for (int i = 0; i < deep; ++i)
        page += "<div><x>";
    const Document left = Cleaner(Whitelist::relaxed()).clean(Parser::parseBodyFragment(page, ""));
    EXPECT_EQ(left.select("div").size(), std::size_t(deep));
}

} // namespace
} // namespace orl::html
