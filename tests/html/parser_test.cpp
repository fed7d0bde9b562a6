// Pages and the trees, errors and costs that come of them.
#include "tree_cases.h"
#include "tree_dump.h"

#include <orl/html/exception.h>

#include <functional>
#include <gtest/gtest.h>
#include <string>

namespace orl::html {
namespace {

class TreeTest : public testing::TestWithParam<Case> {};
class BodyTest : public testing::TestWithParam<Case> {};
class XmlTest : public testing::TestWithParam<Case> {};

TEST_P(TreeTest, IsBuilt) {
    EXPECT_EQ("\n" + dump(parse(GetParam().page, "http://a/")), GetParam().tree) << GetParam().page;
}

TEST_P(BodyTest, IsBuilt) {
    EXPECT_EQ("\n" + dump(parse(GetParam().page, "http://a/").body()), GetParam().tree) << GetParam().page;
}

TEST_P(XmlTest, IsBuilt) {
    Parser parser = Parser::xmlParser();
    EXPECT_EQ("\n" + dump(parser.parseInput(GetParam().page, "")), GetParam().tree) << GetParam().page;
}

INSTANTIATE_TEST_SUITE_P(WholePages, TreeTest, testing::ValuesIn(wholePages));
INSTANTIATE_TEST_SUITE_P(Bodies, BodyTest, testing::ValuesIn(bodies));
INSTANTIATE_TEST_SUITE_P(Tables, BodyTest, testing::ValuesIn(tables));
INSTANTIATE_TEST_SUITE_P(Formatting, BodyTest, testing::ValuesIn(formatting));
INSTANTIATE_TEST_SUITE_P(Pages, XmlTest, testing::ValuesIn(xmlPages));

TEST(FragmentTest, DependsOnTheContext) {
    const Document document = parse("");
    for (const FragmentCase &c : fragments) {
        const Element context = document.createElement(c.context);
        EXPECT_EQ("\n" + dump(Parser::parseFragment(c.fragment, context, "")), c.tree)
            << c.context << ": " << c.fragment;
    }
}

TEST(FragmentTest, WithoutContextIsAPage) {
    EXPECT_EQ(dump(Parser::parseFragment("a", Element(), "http://a/")),
              "| <html>\n|   <head>\n|   <body>\n|     \"a\"\n");
    EXPECT_EQ(dump(Parser::parseXmlFragment("<a>b</a>c", "")), "| <a>\n|   \"b\"\n| \"c\"\n");
}

TEST(FragmentTest, TakesQuirksAndFormFromTheContext) {
    const Document document = parse("<!doctype html SYSTEM><form id=f><p>a</p></form>");
    const Element paragraph = document.getElementsByTag("p").first();
    const auto nodes = Parser::parseFragment("<p><table></table><input name=i><form></form>", paragraph, "");
    EXPECT_EQ(dump(nodes), "| <p>\n|   <table>\n|   <input>\n|     name=\"i\"\n");
    EXPECT_EQ(document.getElementsByTag("form").first().as<FormElement>().elements().size(), 1U);
}

TEST(FragmentTest, HasTheBaseUriItIsGiven) {
    const Document document = parse("<p>", "http://a/");
    const Element paragraph = document.getElementsByTag("p").first();
    const auto nodes = Parser::parseFragment("<a href=c>x</a>", paragraph, "http://b/");
    EXPECT_EQ(nodes.at(0).getBaseUri(), "http://b/");
    EXPECT_EQ(nodes.at(0).childNode(0).getBaseUri(), "http://b/");
    EXPECT_EQ(nodes.at(0).absUrl("href"), "http://b/c");
    EXPECT_EQ(paragraph.getBaseUri(), "http://a/");
}

TEST(FragmentTest, OutlivesItsContext) {
    std::vector<Node> nodes;
    {
        const Document document = parse("<div>");
        nodes = Parser::parseFragment("<p>a<b>c</b></p>d", document.body(), "");
    }
    EXPECT_EQ(dump(nodes), "| <p>\n|   \"a\"\n|   <b>\n|     \"c\"\n| \"d\"\n");
    EXPECT_FALSE(nodes.at(0).parent());
}

TEST(ParserTest, ReadsABodyFragment) {
    EXPECT_EQ(dump(parseBodyFragment("<td>x</td><title>t")),
              "| <html>\n|   <head>\n|   <body>\n|     \"x\"\n|     <title>\n|       \"t\"\n");
    EXPECT_EQ(Parser::parseBodyFragmentRelaxed("<a href=b>", "http://a/").body().child(0).absUrl("href"),
              "http://a/b");
}

TEST(ParserTest, TakesTheBaseFromTheFirstBaseElementWithAnAddress) {
    const Document document =
        parse("<base><base href='/b/'><base href='http://c/'><a href=d>", "http://a/x/y?z");
    EXPECT_EQ(document.getElementsByTag("a").first().absUrl("href"), "http://a/b/d");
    EXPECT_EQ(document.getBaseUri(), "http://a/b/");
    EXPECT_EQ(document.location(), "http://a/x/y?z");
    EXPECT_EQ(parse("<base href='d/'><a href=e>").getElementsByTag("a").first().absUrl("href"), "");
}

TEST(ParserTest, ListsTheControlsOfAForm) {
    const Document document =
        parse("<form id=f><input name=a><table><tr><td><select></table><textarea></textarea><p></form><input "
              "name=b>");
    const auto form = document.getElementById("f").as<FormElement>();
    std::string names;
    for (const Element &control : form.elements())
        names += control.tagName() + " ";
    EXPECT_EQ(names, "input select textarea ");
}

TEST(ParserTest, SetsQuirksOnlyWhereTheDoctypeForcesThem) {
    EXPECT_EQ(parse("a").quirksMode(), QuirksMode::noQuirks);
    EXPECT_EQ(parse("<!doctype html>").quirksMode(), QuirksMode::noQuirks);
    EXPECT_EQ(parse("<!doctype html x>").quirksMode(), QuirksMode::quirks);
}

TEST(ParserTest, KeepsCaseWhenToldTo) {
    Parser parser = Parser::htmlParser();
    parser.settings(ParseSettings::preserveCase);
    EXPECT_EQ(
        dump(parser.parseInput("<DIV Id=a><P>b<P>c</p></Div><Foo>d</FOO>e", "").body()),
        "| <DIV>\n|   Id=\"a\"\n|   <P>\n|     \"b\"\n|   <P>\n|     \"c\"\n| <Foo>\n|   \"d\"\n| \"e\"\n");
    Parser xml = Parser::xmlParser();
    xml.settings(ParseSettings::htmlDefault);
    EXPECT_EQ(dump(xml.parseInput("<A B=1></a>c", "")), "| <a>\n|   b=\"1\"\n| \"c\"\n");
}

TEST(ParserTest, NormalisesNames) {
    EXPECT_EQ(ParseSettings::htmlDefault.normalizeTag(" \tDiV\n"), "div");
    EXPECT_EQ(ParseSettings::preserveCase.normalizeTag(" DiV "), "DiV");
    EXPECT_EQ(ParseSettings::htmlDefault.normalizeAttribute(" ÄB "), "äb");
    EXPECT_EQ(ParseSettings::preserveCase.normalizeAttribute(" aB "), "aB");
}

TEST(ParserTest, RepairsWhatIsNotUtf8) {
    EXPECT_EQ(dump(parse("<p a='\xff'>b\xc3<b\xed\xa0\x80>").body()),
              "| <p>\n|   a=\"\ufffd\"\n|   \"b\ufffd\"\n|   <b\ufffd\ufffd\ufffd>\n");
}

struct ErrorCase {
    const char *name;
    std::string_view page;
    std::string_view errors;
};

std::string errorsOf(std::string_view page, std::size_t limit) {
    Parser parser = Parser::htmlParser();
    parser.setTrackErrors(limit).parseInput(page, "");
    std::string text;
    for (const ParseError &error : parser.getErrors())
        text += error.toString() + "\n";
    return text;
}

TEST(ErrorTest, AreRecordedWithTheirPlace) {
    const ErrorCase cases[] = {
        {"none", "<!doctype html><html><head><title>a</title></head><body><p>b<br/><foo/></p></body></html>",
         ""},
        {"self-closing", "<div/>", "6: Self closing flag not acknowledged\n"},
        {"start tag", "<body><td>", "10: Unexpected token [StartTag] when in state [InBody]\n"},
        {"end tag", "<p>ä</b>", "8: Unexpected token [EndTag] when in state [InBody]\n"},
        {"doctype", "<p><!doctype html>", "18: Unexpected token [Doctype] when in state [InBody]\n"},
        {"end of a title", "<title>", "7: Unexpected token [EOF] when in state [Text]\n"},
        {"characters in a frameset", "<frameset>a",
         "11: Unexpected token [Char] when in state [InFrameset]\n"
         "11: Unexpected token [EOF] when in state [InFrameset]\n"},
        {"select", "<select><a>",
         "11: Unexpected token [StartTag] when in state [InSelect]\n"
         "11: Unexpected token [EOF] when in state [InSelect]\n"},
        {"table", "<table><b>",
         "10: Unexpected token [StartTag] when in state [InTable]\n"
         "10: Unexpected token [EOF] when in state [InTable]\n"},
        {"character", std::string_view("\0", 1),
         "0: Unexpected character '\0' in input state [TokeniserState]\n"
         "1: Unexpected token [Char] when in state [InBody]\n"sv},
    };
    for (const ErrorCase &c : cases)
        EXPECT_EQ(errorsOf(c.page, 10), c.errors) << c.name;
}

TEST(ErrorTest, StopAtTheLimitAndStartAnew) {
    Parser parser = Parser::htmlParser();
    EXPECT_FALSE(parser.isTrackErrors());
    parser.parseInput("</a></a></a>", "");
    EXPECT_EQ(parser.getErrors().size(), 0U);
    parser.setTrackErrors(2);
    EXPECT_TRUE(parser.isTrackErrors());
    for (int round = 0; round < 2; ++round) {
        parser.parseInput("<p></a></a></a>", "");
        EXPECT_EQ(parser.getErrors().size(), 2U);
    }
    parser.parseInput("<p>", "");
    EXPECT_TRUE(parser.getErrors().empty());
}

TEST(ParserTest, UnescapesText) {
    EXPECT_EQ(Parser::unescapeEntities("&lt;", false), "<");
    EXPECT_EQ(Parser::unescapeEntities("?a=1&copy=2", true), "?a=1&copy=2");
    EXPECT_EQ(Parser::unescapeEntities("?a=1&copy=2", false), "?a=1©=2");
}

TEST(ParserTest, ParsesOnManyThreadsAtOnce) {
    const std::string_view text =
        "<!doctype html><x-y a=1 b-c='&notin;&amp;'>&eacute;<table><b>&hearts;<td><svg/></x-y>";
    const std::string expected = dump(parse(text));
    std::vector<std::thread> threads;
    std::atomic<int> equal = 0;
    for (int i = 0; i < 8; ++i)
        threads.emplace_back([&] {
            for (int round = 0; round < 100; ++round)
                equal += dump(parse(text)) == expected;
        });
    for (std::thread &thread : threads)
        thread.join();
    EXPECT_EQ(equal, 800);
}

TEST(ParserTest, IsUsedForManyPages) {
    Parser parser = Parser::htmlParser();
    const Document first = parser.parseInput("<form><b><table><td><x>", "");
    const Document second = parser.parseInput("<input>c</x>", "");
    EXPECT_EQ(dump(second.body()), "| <input>\n| \"c\"\n");
    parser.setTreeBuilder(Parser::xmlParser().getTreeBuilder());
    EXPECT_EQ(dump(parser.parseInput("<b>d", "")), "| <b>\n|   \"d\"\n");
    EXPECT_EQ(first.getElementsByTag("x").size(), 1U);
}

// ---- Pages that are made to cost time, space or the stack ----

std::string repeated(std::string_view text, int count) {
    std::string all;
    for (int i = 0; i < count; ++i)
        all += text;
    return all;
}

std::string numbered(std::string_view before, std::string_view behind, int count) {
    std::string all;
    for (int i = 0; i < count; ++i)
        all.append(before).append(std::to_string(i)).append(behind);
    return all;
}

/// Each of these took somebody's parser seconds to hours; together they take one or two seconds here.
TEST(CostTest, StaysLinear) {
    constexpr int many = 100000;
    const std::string pages[] = {
        repeated("<div>", many) + repeated("</div>", many),
        repeated("<b>", many) + repeated("</b>", many),
        numbered("<b id=", ">", many) + repeated("</i>", many),
        numbered("<b id=", ">", many) + repeated("<p>x", many),
        numbered("<b id=", "><p>", many),
        numbered("<b id=", ">", many) + repeated("<applet></applet><b id=x>", many),
        numbered("<i id=", ">", many) + "</p>" + numbered("<b id=", ">", many) + "<p>" +
            repeated("</i>", many),
        repeated("<b><p>", many) + repeated("</b>", many),
        repeated("<b><div>", 31) + repeated("<br>", many) + repeated("</b>", many),
        repeated("<a><table>", many),
        repeated("<a><table><tr><td>", many),
        repeated("<table><tr><td>", many),
        "<table>" + numbered("<b id=", ">x", many),
        "<a" + numbered(" a", "=1", many) + ">" + repeated("<i a b c d e f g h i j k l m n>", many),
        "<a" + repeated(" aBc=1 AbC=2", many) + ">",
        "<p><b" + numbered(" a", "=1", 1000) + ">" + repeated("<p>x", many),
        numbered("<body a", "=1>", many),
        "<title>" + repeated("<a", many) + "</TITLE>",
        repeated("<title><a<textarea><b", many),
        "<script>" + repeated("</scrip", many),
        "<script><!--" + repeated("<script ", many),
        repeated("<span>", many) + repeated("</foo>", many),
        repeated("<x>", many) + repeated("</y>", many),
        repeated("<span>", many) + repeated("</h1>", many),
        "<div><object>" + repeated("<span>", many) + repeated("</div>", many),
        "<p><button>" + repeated("<div>", many),
        repeated("<div>", many) + repeated("<li></li><dd></dd>", many),
        repeated("<div>", many) + repeated("<select></select><table></table>", many),
        repeated("<form><div></form>", many),
        repeated("<ruby><rt>", many),
        repeated("&notanentity", many),
        "<a b='" + repeated("&amp;", many),
        repeated("\xff\xc3", many),
    };
    for (const std::string &text : pages) {
        const Document document = parse(text);
        EXPECT_TRUE(document.body()) << text.substr(0, 60);
    }
}

TEST(CostTest, KeepsTheTreeOfAShortPageSmall) {
    const std::string page = numbered("<b id=", ">", 2000) + repeated("<p>x", 2000);
    const Document document = parse(page);
    EXPECT_LT(document.getElementsByTag("b").size(), 80000U);
    EXPECT_EQ(document.getElementsByTag("p").size(), 2000U);
}

TEST(CostTest, SurvivesAMillionLevels) {
    constexpr int deep = 1000000;
    const Document document = parse(repeated("<div>", deep) + "x");
    EXPECT_EQ(document.getElementsByTag("div").size(), std::size_t(deep));
    Parser xml = Parser::xmlParser();
    EXPECT_EQ(xml.parseInput(repeated("<a>", deep) + repeated("</b>", deep), "").getElementsByTag("a").size(),
              std::size_t(deep));
}

} // namespace
} // namespace orl::html
