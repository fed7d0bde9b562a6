// Reading elements: text, classes, searches, siblings, and how they print.
#include "page.h"
#include "utf8.h"

#include <orl/html/string_builder.h>

namespace orl::html {
namespace {

const char *const emptyText = "String must not be empty";

/// The first element of the body.
Element only(std::string_view html) {
    return page(html).body().child(0);
}

TEST(ElementTextTest, TextAndOwnText) {
    struct Case {
        const char *html, *text, *ownText;
    };
    const Case cases[] = {
        {"<p>One<br>Two</p>", "One Two", "One Two"},
        {"<p>Hello <b>there</b> now! </p>", "Hello there now!", "Hello now!"},
        {"<div>One<p>Two</p>Three</div>", "One TwoThree", "OneThree"},
        {"<div><p>One</p> <p>Two</p></div>", "One Two", ""},
        {"<div> \n a\t<i> b </i> c </div>", "a b c", "a c"},
        {"<pre>\n\n a\n  b <b> c\n d</b>  </pre>", "a\n  b  c\n d", "a\n  b"},
        {"<pre><b><i> a  b </i></b></pre>", "a b", ""},
        {"<p>a\u00a0 b\u00a0</p>", "a\u00a0 b", "a\u00a0 b"},
        {"<p>x<script>var a</script><!-- c -->y</p>", "x y", "xy"},
        {"<div><br>a<br><br>b</div>", "a b", "a b"},
        {"<p></p>", "", ""},
    };
    for (const Case &c : cases) {
        const Element element = only(c.html);
        EXPECT_EQ(element.text(), c.text) << c.html;
        EXPECT_EQ(element.ownText(), c.ownText) << c.html;
        EXPECT_EQ(element.hasText(), *c.text != '\0') << c.html;
    }
}

TEST(ElementTextTest, Data) {
    const Document document = page("<div>a<script>one</script><style>two</style><p><script>three");
    EXPECT_EQ(document.body().data(), "onetwothree");
    EXPECT_EQ(first(document, "script").data(), "one");
    EXPECT_EQ(first(document, "script").dataNodes().at(0).getWholeData(), "one");
    EXPECT_EQ(first(document, "div").textNodes().at(0).getWholeText(), "a");
    EXPECT_EQ(first(document, "div").data(), "onetwothree");
    EXPECT_FALSE(first(document, "script").hasText());
}

TEST(ElementTextTest, SettingText) {
    const Element element = only("<p>a<b>c</b></p>");
    const Element b = first(element, "b");
    element.text("<x> & y");
    EXPECT_EQ(element.outerHtml(), "<p>&lt;x&gt; &amp; y</p>");
    element.appendText("1").prependText("2");
    EXPECT_EQ(element.text(), "2<x> & y1");
    EXPECT_EQ(element.childNodeSize(), 3U);
    element.text("bad \xff\xc3");
    EXPECT_EQ(element.text(), "bad \ufffd\ufffd");
}

TEST(ElementClassTest, HasClass) {
    struct Case {
        const char *value, *name;
        bool has;
    };
    const Case cases[] = {
        {"one  TWO", "two", true},
        {"one  TWO", "one", true},
        {"one  TWO", "ONE", true},
        {"one  TWO", "on", false},
        {"one  TWO", "wo", false},
        {"one  TWO", "", false},
        {"", "", false},
        {"", "a", false},
        {"one two", "one two", true},
        {"ONE two", "one TWO", true},
        {"one two ", "one two", false},
        {"two one", "one two", false},
        {"one two three", "one two", false},
        {"one-two", "one", false},
        {"\ta\nb\fc\rd\r\ne ", "e", true},
        {"\ta\nb\fc\rd\r\ne ", "c", true},
        {"a\vb", "a", false},
        {"a\vb", "b", false},
        {" ab", "abc", false},
        {"abcabcabcabcabc abcabcabcabcabcd abc", "abc", true},
        {"abcabcabcabcabc abcabcabcabcabcd", "abc", false},
        {"abcabcabcabcabc abcabcabcabcabcd", "abcabcabcabcabcd", true},
        {"0123456789abcde x", "X", true},
        {"0123456789abcdefg xx x", "x", true},
        {"\u00c4rger b", "\u00e4RGER", true},
        {"\u00c4rger b", "b", true},
        {"\u212a b", "k", true},
        {"\u212a", "k", true},
        {"k x", "\u212a", true},
        {"one\u00a0two", "one", false},
    };
    for (const Case &c : cases) {
        const Document document("");
        const Element element = document.appendElement("p").attr("class", c.value);
        EXPECT_EQ(element.hasClass(c.name), c.has) << c.value << " has " << c.name;
        if (*c.name) {
            EXPECT_EQ(document.getElementsByClass(c.name).size(), c.has ? 1U : 0U) << c.value << c.name;
        }
    }
    EXPECT_FALSE(only("<p CLASS=x>").attr("Class", "y").hasClass("y")) << "the key is compared exactly";
    EXPECT_FALSE(only("<p>").hasClass("x"));
}

TEST(ElementClassTest, NamesAreASet) {
    const Element element = only("<p class='  a b\n a\tc '>");
    EXPECT_EQ(element.className(), "a b\n a\tc");
    EXPECT_EQ(element.classNames().toString(), "OrderedSet (3 object(s)): [a, b, c]");
    EXPECT_EQ(
        element.addClass("b").addClass("d").removeClass("a").toggleClass("c").toggleClass("e").attr("class"),
        "b d e");
    EXPECT_EQ(element.classNames({"x", "y"}).className(), "x y");
    EXPECT_EQ(only("<p>").addClass("n").outerHtml(), "<p class=\"n\"></p>");
}

const char *const searchPage =
    "<body id=body><div id=d1 class='a b' title=One data-x=1 href='/r'>Hello <p id=p1 lang=EN>World"
    "<p id=p2 title=' one ' Data-Y=2 class=B>World <span id=s1>Here</span></div>"
    "<center id=c1 title='two one'>x</center><x-y id=x1>HELLO</x-y><x-y id=x2 href=http://a.b/></x-y>";

TEST(ElementSearchTest, ByEveryKindOfSign) {
    const Document document = page(searchPage, "http://h/");
    const Element body = document.body();
    struct Case {
        const char *what;
        Elements found;
        const char *ids;
    };
    const Case cases[] = {
        {"tag", body.getElementsByTag("p"), "p1 p2"},
        {"tag, other case, blanks", body.getElementsByTag(" DIV "), "d1"},
        {"unregistered tag", body.getElementsByTag("center"), "c1"},
        {"unknown tag", body.getElementsByTag("X-Y"), "x1 x2"},
        {"no such tag", body.getElementsByTag("q"), ""},
        {"blank tag", body.getElementsByTag(" "), ""},
        {"itself", body.getElementsByTag("body"), "body"},
        {"class", body.getElementsByClass("b"), "d1 p2"},
        {"two classes", body.getElementsByClass("a b"), "d1"},
        {"attribute", body.getElementsByAttribute(" TITLE "), "d1 p2 c1"},
        {"absolute attribute", body.getElementsByAttribute("abs:href"), "d1 x2"},
        {"attribute starting", body.getElementsByAttributeStarting(" DATA- "), "d1 p2"},
        {"value", body.getElementsByAttributeValue("title", "ONE"), "d1 p2"},
        {"quoted value", body.getElementsByAttributeValue(" Title ", "\"one\""), "d1 p2"},
        {"quoted value, blanks", body.getElementsByAttributeValue("title", "' one '"), "d1 p2"},
        {"absolute value", body.getElementsByAttributeValue("abs:href", "http://h/r"), "d1"},
        {"value not", body.getElementsByAttributeValueNot("title", "one"), "body p1 p2 s1 c1 x1 x2"},
        {"value starting", body.getElementsByAttributeValueStarting("title", "T"), "c1"},
        {"value ending", body.getElementsByAttributeValueEnding("title", "ONE"), "d1 c1"},
        {"value containing", body.getElementsByAttributeValueContaining("title", "Ne"), "d1 p2 c1"},
        {"index below", body.getElementsByIndexLessThan(1), "d1 p1 s1"},
        {"index above", body.getElementsByIndexGreaterThan(1), "x1 x2"},
        {"index", body.getElementsByIndexEquals(1), "body p2 c1"},
        {"text", body.getElementsContainingText("hello w"), "body d1"},
        {"text of one", body.getElementsContainingText("HERE"), "body d1 p2 s1"},
        {"own text", body.getElementsContainingOwnText("hello"), "d1 x1"},
        {"all", body.getAllElements(), "body d1 p1 p2 s1 c1 x1 x2"},
        {"simple selector", body.select("p"), "p1 p2"},
    };
    for (const Case &c : cases)
        EXPECT_EQ(ids(c.found), c.ids) << c.what;
    EXPECT_EQ(document.getElementById("p2"), body.getElementsByTag("p").get(1));
    EXPECT_FALSE(document.getElementById("P2"));
}

/// Searches of an unchanged tree are answered from columns; every change must be seen by the next one.
TEST(ElementSearchTest, RepeatedSearchesSeeEveryChange) {
    const Document document = page("");
    const Element body = document.body();
    for (int i = 0; i < 300; ++i)
        body.append("<p class='a b'>x<i class=a></i></p>");
    const Element p = body.child(150), i = p.child(0);
    const Attribute attribute = p.getAttributes().asList().at(0);
    const Element removed = body.child(7), loose = document.createElement("p").addClass("a");
    struct Change {
        const char *what;
        std::function<void()> act;
    };
    const std::vector<Change> changes = {
        {"nothing", [] {}},
        {"class", [&] { i.addClass("q"); }},
        {"attribute", [&] { attribute.setValue("q"); }},
        {"key", [&] { attribute.setKey("id"); }},
        {"list", [&] { i.getAttributes().remove("class"); }},
        {"put", [&] { i.getAttributes().put(Attribute("class", "a")); }},
        {"tag", [&] { i.tagName("p"); }},
        {"removal", [&] { removed.remove(); }},
        {"return", [&] { body.prependChild(removed); }},
        {"new element", [&] { body.appendElement("p"); }},
        {"loose element", [&] { body.appendChild(loose); }},
        {"fragment", [&] { p.append("<p class=a>"); }},
        {"fragment before", [&] { p.before("<i></i>"); }},
        {"inner", [&] { p.html("<i class='a b'></i>"); }},
        {"wrap", [&] { p.wrap("<div class=a></div>"); }},
        {"unwrap", [&] { p.parent().unwrap(); }},
        {"text", [&] { body.child(3).text(""); }},
        {"empty", [&] { body.child(4).empty(); }},
        {"replacement", [&] { body.child(5).replaceWith(Element(Tag::valueOf("i"), "")); }},
        {"normal form", [&] { document.normalise(); }},
        {"keys", [&] { p.attr("CLASS", "z").removeAttr("class").getAttributes().lowercaseAllKeys(); }},
    };
    for (const Change &change : changes) {
        for (const Element &root : {Element(document), body}) {
            root.getElementsByTag("p");
            root.getElementsByTag("p");
            change.act();
            Elements tags, classes;
            for (const Element &element : root.getAllElements()) {
                if (element.tagName() == "p") tags.add(element);
                if (element.hasClass("a")) classes.add(element);
            }
            for (int round = 0; round < 3; ++round) {
                EXPECT_EQ(root.getElementsByTag("p"), tags) << change.what;
                EXPECT_EQ(root.getElementsByClass("a"), classes) << change.what;
            }
        }
    }
}

/// The search by text looks at stretches of the whole tree's text; each element's own text() is what counts.
TEST(ElementSearchTest, ContainedTextIsThatOfEachElement) {
    const Document document =
        page("<div> <p> a <b>b </b><br>c</p>x<i> y</i> <pre> d  e <u> f</u></pre>G\u00dcg</div>"
             "<p>  <b> b</b>c<div><div> x </div></div>");
    const Elements all = document.getAllElements();
    for (const char *wanted :
         {"a", "b", "a b", "b c", "bc", " c", "c ", "d  e", "f", "x y", "xy", "y ", "g\u00fcG", "", "zz"}) {
        Elements expected;
        const std::string lower = core::lowerCase(wanted);
        for (const Element &element : all)
            if (core::lowerCase(element.text()).find(lower) != std::string::npos) expected.add(element);
        EXPECT_EQ(document.getElementsContainingText(wanted), expected) << wanted;
    }
}

TEST(ElementSearchTest, NothingToLookForFails) {
    const Element body = page("").body();
    EXPECT_EQ(failure([&] { body.getElementsByTag(""); }), emptyText);
    EXPECT_EQ(failure([&] { body.getElementById(""); }), emptyText);
    EXPECT_EQ(failure([&] { body.getElementsByClass(""); }), emptyText);
    EXPECT_EQ(failure([&] { body.getElementsByAttribute(""); }), emptyText);
    EXPECT_EQ(failure([&] { body.getElementsByAttributeStarting(""); }), emptyText);
    EXPECT_EQ(failure([&] { body.getElementsByAttributeValue("", "x"); }), emptyText);
    EXPECT_EQ(failure([&] { body.getElementsByAttributeValueNot("x", ""); }), emptyText);
    EXPECT_EQ(failure([&] { body.select(" "); }), emptyText);
}

TEST(ElementSiblingTest, ElementsAmongOtherNodes) {
    const Document document =
        page("<ul>x<li id=a>1</li> <!-- --><li id=b>2</li>y<li id=c>3</li></ul><p id=p>z");
    const Element a = document.getElementById("a"), b = document.getElementById("b"),
                  c = document.getElementById("c");
    EXPECT_EQ(a.nextElementSibling(), b);
    EXPECT_EQ(c.previousElementSibling(), b);
    EXPECT_FALSE(a.previousElementSibling());
    EXPECT_FALSE(c.nextElementSibling());
    EXPECT_EQ(b.firstElementSibling(), a);
    EXPECT_EQ(a.firstElementSibling(), a);
    EXPECT_EQ(a.lastElementSibling(), c);
    EXPECT_EQ(ids(b.siblingElements()), "a c");
    EXPECT_EQ(b.elementSiblingIndex(), 1U);
    EXPECT_EQ(b.siblingIndex(), 4U);
    EXPECT_EQ(ids(a.parent().children()), "a b c");
    EXPECT_EQ(a.parent().child(2), c);
    EXPECT_FALSE(a.parent().child(3));
    EXPECT_EQ(b.siblingNodes().size(), 6U);

    const Element lone = document.appendElement("x").appendElement("y");
    EXPECT_FALSE(lone.firstElementSibling()) << "an only child has no first sibling, not even itself";
    EXPECT_FALSE(lone.lastElementSibling());
    const Element root = document.createElement("z");
    EXPECT_FALSE(root.nextElementSibling());
    EXPECT_FALSE(root.firstElementSibling());
    EXPECT_TRUE(root.siblingElements().isEmpty());
    EXPECT_EQ(root.elementSiblingIndex(), 0U);
    EXPECT_TRUE(root.siblingNodes().empty());
}

TEST(ElementSiblingTest, PlacesAmongManySiblings) {
    const Document document("");
    const Element list = document.appendElement("ul");
    for (int i = 0; i < 200; ++i)
        list.appendElement("li").attr("id", std::to_string(i)).before(TextNode(" ", ""));
    for (const int removed : {0, 100, 50}) {
        list.child(std::size_t(removed)).remove();
        const Elements items = list.children();
        for (std::size_t i = 0; i < items.size(); ++i) {
            EXPECT_EQ(items[i].elementSiblingIndex(), i);
            EXPECT_EQ(list.child(i), items[i]);
        }
        const std::vector<Node> nodes = list.getChildNodes();
        for (std::size_t i = 0; i < nodes.size(); ++i) {
            EXPECT_EQ(nodes[i].siblingIndex(), i);
            EXPECT_EQ(list.childNode(i), nodes[i]);
        }
    }
    EXPECT_FALSE(list.child(1000));
}

TEST(ElementTest, ParentsFromTheNearestUp) {
    const Document document = page("<div id=d><p id=p><b id=b>");
    const Elements parents = document.getElementById("b").parents();
    EXPECT_EQ(ids(parents), "p d   ") << "body, html and the document have no id";
    EXPECT_EQ(parents.last(), document);
    EXPECT_EQ(document.getElementById("b").ownerDocument(), document);
    EXPECT_FALSE(document.parent());
}

TEST(ElementTest, CssSelector) {
    const Document document =
        page("<ul><li>1<li>2<li class='x  y x'>3<li class=y>4</ul><div id=d><p><b>5</b><o:p>6");
    const Elements items = document.getElementsByTag("li");
    EXPECT_EQ(items[1].cssSelector(), "html > body > ul > li:nth-child(2)");
    EXPECT_EQ(items[2].cssSelector(), "html > body > ul > li.x.y");
    EXPECT_EQ(items[3].cssSelector(), "html > body > ul > li.y:nth-child(4)");
    EXPECT_EQ(first(document, "b").cssSelector(), "#d > p > b");
    EXPECT_EQ(first(document, "o:p").cssSelector(), "#d > p > o|p");
    EXPECT_EQ(document.getElementById("d").cssSelector(), "#d");
    EXPECT_EQ(document.createElement("i").addClass("z").cssSelector(), "i.z");
}

TEST(ElementTest, TagsAndValues) {
    const Document document = plainPage("<p id=i Title=t data-one=1>x");
    const Element element = first(document, "p");
    EXPECT_EQ(element.tagName("DIV").outerHtml(), "<DIV id=\"i\" title=\"t\" data-one=\"1\">x</DIV>");
    EXPECT_EQ(element.tagNameNormal(), "div");
    EXPECT_FALSE(element.isBlock());
    EXPECT_EQ(element.nodeName(), "DIV");
    EXPECT_EQ(failure([&] { element.tagName(""); }), "Tag name must not be empty.");
    EXPECT_EQ(element.dataset().at("one"), "1");
    EXPECT_EQ(element.attr("hidden", true).attr("id", "new").attr("data-one", false).getAttributes().html(),
              " id=\"new\" title=\"t\" hidden");
    EXPECT_EQ(element.id(), "new");
    EXPECT_EQ(element.getAttributes().size(), 3U);

    EXPECT_EQ(only("<textarea> a </textarea>").val(), "a");
    EXPECT_EQ(only("<input value=v>").val(), "v");
    EXPECT_EQ(only("<textarea value=x>a</textarea>").val("b").outerHtml(),
              "<textarea value=\"x\">b</textarea>");
    EXPECT_EQ(only("<input>").val("b").outerHtml(), "<input value=\"b\">");
}

TEST(ElementTest, AbsoluteAddresses) {
    const Document document =
        page("<a href='/x'>1</a><a>2</a><a href=''>3</a><a abs:href=own href=/y>4", "http://h/p/");
    const Elements links = document.getElementsByTag("a");
    EXPECT_EQ(links[0].attr("abs:href"), "http://h/x");
    EXPECT_EQ(links[0].attr("ABS:HREF"), "http://h/x");
    EXPECT_EQ(links[0].absUrl("href"), "http://h/x");
    EXPECT_TRUE(links[0].hasAttr("abs:href"));
    EXPECT_EQ(links[1].attr("abs:href"), "");
    EXPECT_FALSE(links[1].hasAttr("abs:href"));
    EXPECT_EQ(links[2].absUrl("href"), "http://h/p/");
    EXPECT_EQ(links[3].attr("abs:href"), "own");
    EXPECT_EQ(failure([&] { links[0].absUrl(""); }), emptyText);
    EXPECT_EQ(failure([&] { links[0].attr(""); }), emptyText);
    document.setBaseUri("");
    EXPECT_EQ(links[0].getBaseUri(), "");
    EXPECT_FALSE(links[0].hasAttr("abs:href"));
    links[0].setBaseUri("http://other/");
    EXPECT_EQ(links[0].absUrl("href"), "http://other/x");
    EXPECT_EQ(links[0].firstChild().getBaseUri(), "http://other/");
    EXPECT_EQ(links[1].getBaseUri(), "");
    EXPECT_EQ(links[0].copy().absUrl("href"), "http://other/x");
}

TEST(PrintTest, Prettily) {
    struct Case {
        const char *html, *printed;
    };
    const Case cases[] = {
        {"<div><p>a<b>b</b></p><p>c</p></div>", "<div>\n <p>a<b>b</b></p>\n <p>c</p>\n</div>"},
        {"<div>  a \n b <span> c</span></div>", "<div>\n  a b \n <span> c</span>\n</div>"},
        {"<div></div>x", "<div></div>x"},
        {"<pre> a\n  b </pre>", "<pre> a\n  b </pre>"},
        {"<p>a<br>b<img src=x></p>", "<p>a<br>b<img src=\"x\"></p>"},
        {"<p>x</p><!-- c --><p>y</p>", "<p>x</p>\n<!-- c -->\n<p>y</p>"},
        {"<p><script>if (a < b) x()</script>", "<p><script>if (a < b) x()</script></p>"},
        {"<ul><li>1<li>2<p>3</ul>", "<ul>\n <li>1</li>\n <li>2<p>3</p></li>\n</ul>"},
        {"<foo/><foo></foo>", "<foo />\n<foo></foo>"},
        {"<x-y><x-z>t</x-z></x-y>", "<x-y>\n <x-z>\n  t\n </x-z>\n</x-y>"},
        {"<table><tr><td>1</table>",
         "<table>\n <tbody>\n  <tr>\n   <td>1</td>\n  </tr>\n </tbody>\n</table>"},
        {"<input disabled checked='' value='a\"b'>", "<input disabled checked value=\"a&quot;b\">"},
    };
    for (const Case &c : cases)
        EXPECT_EQ(page(c.html).body().html(), c.printed) << c.html;
    EXPECT_EQ(page("<!doctype html><title> a  b </title>x").outerHtml(),
              "<!doctype html>\n<html>\n <head>\n  <title> a  b </title>\n </head>\n <body>\n  x\n "
              "</body>\n</html>");
}

TEST(PrintTest, BySettings) {
    const char *html = "<div a=a checked>x &amp; <b>\u00e4\u20ac\U0001f600</b><br></div>";
    const Document document = page(html);
    const Element body = document.body();
    OutputSettings &settings = document.outputSettings();
    settings.prettyPrint(false);
    EXPECT_EQ(body.html(), "<div a=\"a\" checked>x &amp; <b>\u00e4\u20ac\U0001f600</b><br></div>");
    settings.syntax(OutputSettings::Syntax::xml).escapeMode(Entities::EscapeMode::xhtml());
    EXPECT_EQ(body.html(), "<div a=\"a\" checked=\"\">x &amp; <b>\u00e4\u20ac\U0001f600</b><br /></div>");
    settings.syntax(OutputSettings::Syntax::html).escapeMode(Entities::EscapeMode::base()).charset("ascii");
    EXPECT_EQ(body.html(), "<div a=\"a\" checked>x &amp; <b>&auml;&#x20ac;&#x1f600;</b><br></div>");
    settings.charset("UTF-8").prettyPrint(true).outline(true).indentAmount(3);
    EXPECT_EQ(body.html(),
              "<div a=\"a\" checked>\n   x &amp; \n   <b>\u00e4\u20ac\U0001f600</b>\n   <br>\n</div>");
    EXPECT_EQ(failure([&] { settings.charset("no such thing"); }), "Unknown charset: no such thing");
}

TEST(PrintTest, ASingleNodeAsInItsPlace) {
    const Document document = page("<div><p>a</p><!-- c --> t </div>");
    const Element div = first(document, "div");
    EXPECT_EQ(div.child(0).outerHtml(), "<p>a</p>");
    EXPECT_EQ(div.childNode(1).outerHtml(), "\n<!-- c -->");
    EXPECT_EQ(div.childNode(2).outerHtml(), " t ");
    EXPECT_EQ(TextNode("  a < ", "").outerHtml(), "  a &lt; ") << "white space collapses in elements only";
    EXPECT_EQ(document.outerHtml(), document.html());
    StringBuilder text;
    div.html(text);
    div.child(0).outerHtml(text);
    EXPECT_EQ(text.toString(), "<p>a</p>\n<!-- c --> t <p>a</p>");
}

TEST(PrintTest, EveryTextAndValueIsReadBackAsItWas) {
    const std::string text = "a<b>&amp;\u00a0\"'\u00e4 & &copy; c";
    const Document document = plainPage("<p>");
    first(document, "p").text(text).attr("title", text);
    const Element again = first(page(document.outerHtml()), "p");
    EXPECT_EQ(again.textNodes().at(0).getWholeText(), text);
    EXPECT_EQ(again.attr("title"), text);
}

TEST(ElementsTest, BulkOperations) {
    const Document document = plainPage("<p id=a></p><p id=b class=x>b</p><p id=c title=t>c</p>");
    Elements list = document.getElementsByTag("p");
    EXPECT_EQ(list.text(), "b c") << "no blank before the first text";
    EXPECT_EQ(Elements().text(), "");
    EXPECT_EQ(list.attr("title"), "t") << "of the first that has it";
    EXPECT_TRUE(list.hasAttr("title"));
    EXPECT_TRUE(list.hasClass("x"));
    EXPECT_TRUE(list.hasText());
    EXPECT_EQ(list.html(), "\nb\nc");
    EXPECT_EQ(ids(list.eq(1)), "b");
    EXPECT_TRUE(list.eq(5).isEmpty());
    EXPECT_FALSE(Elements().first());
    EXPECT_EQ(list.last().id(), "c");
    EXPECT_EQ(list.parents().size(), 3U);
    EXPECT_EQ(
        list.addClass("y")
            .removeClass("x")
            .toggleClass("z")
            .attr("lang", "en")
            .removeAttr("id")
            .val("v")
            .outerHtml(),
        "<p class=\"y z\" lang=\"en\" value=\"v\"></p>\n<p class=\"y z\" lang=\"en\" value=\"v\">b</p>\n"
        "<p title=\"t\" class=\"y z\" lang=\"en\" value=\"v\">c</p>");
    EXPECT_EQ(list.val(), "v");
    EXPECT_EQ(Elements().val(), "");
    EXPECT_EQ(list.copy().size(), 3U);
    EXPECT_FALSE(list.copy() == list);
    EXPECT_EQ(list, document.getElementsByTag("p"));
    list.tagName("q").before("<i></i>").after("<u></u>").append("2").prepend("1");
    EXPECT_EQ(failure([&] { list.tagName(""); }), "Tag name must not be empty.");
    EXPECT_EQ(failure([&] { list.wrap(""); }), emptyText);
    EXPECT_EQ(document.body().text(), "121b21c2");
    EXPECT_EQ(document.getElementsByTag("i").size(), 3U);
    list.wrap("<s></s>").html("<b>h</b>");
    document.getElementsByTag("s").unwrap();
    EXPECT_EQ(list.get(0).outerHtml(), "<q class=\"y z\" lang=\"en\" value=\"v\"><b>h</b></q>");
    EXPECT_EQ(list.remove().size(), 3U);
    EXPECT_FALSE(list.get(0).parent());
    EXPECT_EQ(list.empty().text(), "");
    list.add(0, document.body());
    list.add(document.head());
    EXPECT_EQ(list.get(0), document.body());
    EXPECT_EQ(Elements::filterOut(list, {document.body(), list[1]}).size(), 3U);
    EXPECT_EQ(Elements(OrderedSet<Element>{list[1], list[0], list[1]}), (Elements{list[1], list[0]}));
}

} // namespace
} // namespace orl::html
