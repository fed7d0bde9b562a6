// What selectors mean: each row is a query and what it finds.
#include "naive_matching.h"

#include <orl/html/css_selector.h>
#include <orl/html/parser.h>
#include <orl/html/query_parser.h>

#include <gtest/gtest.h>
#include <random>

namespace orl::html {
namespace {

/// The elements by their ids, or by their tag names where they have none.
std::string names(const Elements &elements) {
    std::string all;
    for (const Element &element : elements) {
        if (!all.empty()) all += ' ';
        all += element.id().empty() ? element.tagName() : element.id();
    }
    return all;
}

std::string failure(const std::string &query) {
    try {
        QueryParser::parse(query);
    } catch (const Exception::Error &error) {
        const bool isSelector = error.type == ExceptionType::SelectorParseException;
        return (isSelector ? "selector: " : "argument: ") + error.Message;
    }
    return "none";
}

struct Case {
    const char *query;
    const char *found;
};

void expectFound(const Element &root, std::initializer_list<Case> cases) {
    for (const Case &row : cases)
        EXPECT_EQ(names(root.select(row.query)), row.found) << row.query;
}

class SelectorTest : public testing::Test {
protected:
    const Document page =
        Parser::parse("<body id=body><div id=d1 class='one  TWO' title=' Hello '>"
                      "<p id=p1 class=x>One <b id=b1>Bold</b></p>"
                      "<p id=p2 class='x y'>Two</p><!-- c --><span id=s1 data-k=v></span></div>"
                      "<div id=d2><ul id=u><li id=l1>1<li id=l2>2<li id=l3>3<li id=l4>4</ul>"
                      "<a id=a1 href='HTTP://Example.org/Some.PNG'>Link (one)</a>"
                      "<a id=a2 href='/rel?x=1' name='q'>x</a></div>"
                      "<p id=p3><i id=i1></i><i id=i2> </i></p></body>",
                      "http://base.test/dir/");
};

TEST_F(SelectorTest, ByName) {
    expectFound(page, {{"p", "p1 p2 p3"},
                       {"DIV", "d1 d2"},
                       {" \t div\n", "d1 d2"},
                       {"#p2", "p2"},
                       {"#P2", ""},
                       {"p#p2", "p2"},
                       {".x", "p1 p2"},
                       {".X.y", "p2"},
                       {".two", "d1"},
                       {".tw", ""},
                       {"p.x, .two", "d1 p1 p2"},
                       {"*|p", "p1 p2 p3"},
                       {"nothing", ""},
                       {"div *", "p1 b1 p2 s1 u l1 l2 l3 l4 a1 a2"}});
    EXPECT_EQ(page.select("*").size(), page.getAllElements().size());
}

TEST_F(SelectorTest, ByNamespace) {
    Document feed =
        Parser::xmlParser().parseInput("<r><dc:t id='1'/><t id='2'/><x:dc:t id='3'/><dc:T id='4'/></r>", "");
    expectFound(feed, {{"dc|t", "1 4"}, {"*|t", "1 2 3"}, {"r > *|t", "1 2 3"}, {"DC|T", "1 4"}});
}

TEST_F(SelectorTest, ByAttribute) {
    expectFound(page, {{"[href]", "a1 a2"},
                       {"[HREF]", "a1 a2"},
                       {"[ href ]", "a1 a2"},
                       {"a[name]", "a2"},
                       {"[^data-]", "s1"},
                       {"[^DATA]", "s1"},
                       {"[title=hello]", "d1"},
                       {"[title=\"Hello\"]", "d1"},
                       {"[title='HELLO']", "d1"},
                       {"[title= ' hello ' ]", "d1"},
                       {"[title=\"hello']", ""},
                       {"[href^=HTTP]", "a1"},
                       {"[href^=http:]", "a1"},
                       {"[href$=.png]", "a1"},
                       {"[href*=\"/REL\"]", "a2"},
                       {"[href*=example][href$=PNG]", "a1"},
                       {"a[name!=q]", "a1"},
                       {"p[class!=x]", "p2 p3"},
                       {"[href~=^/rel\\?x=\\d$]", "a2"},
                       {"[href~=(?i)EXAMPLE]", "a1"},
                       {"[href=/rel?x=1]", "a2"},
                       {"[abs:href=http://base.test/rel?x=1]", "a2"},
                       {"[abs:href^=http]", "a1 a2"},
                       {"[abs:name^=http]", "a2"},
                       {"[abs:title]", "d1"},
                       {"[id='']", ""},
                       {"i[id*='']", "i1 i2"}});
}

/// An attribute is read only where it is there, except to see whether it differs.
TEST_F(SelectorTest, FailsWhereReadingAnAttributeFails) {
    expectFound(page, {{"p[abs:=z]", ""}, {"nothing[abs:!=z]", ""}, {"p:has([abs:!=z])", ""}});
    EXPECT_THROW(page.select("p[abs:!=z]"), Exception::Error);
    // That an element is too deep to be found does not keep the question from it.
    for (const char *query : {"> p[abs:!=z]", "> p:not(b > [abs:!=z])", ":not([abs:!=z] > b):root",
                              ":not([abs:!=z] b):root", ":not([abs:!=z] + p):root"})
        EXPECT_THROW(page.select(query), Exception::Error) << query;
}

TEST_F(SelectorTest, ByRelation) {
    expectFound(page, {{"div p", "p1 p2"},
                       {"body > p", "p3"},
                       {"body>p", "p3"},
                       {"div > p > b", "b1"},
                       {"div b", "b1"},
                       {"div > b", ""},
                       {"p + p", "p2"},
                       {"p + span", "s1"},
                       {"p ~ span", "s1"},
                       {"div ~ p", "p3"},
                       {"li + li + li", "l3 l4"},
                       {"li ~ li ~ li", "l3 l4"},
                       {"p\tb", "b1"},
                       {"div\tp\nb", "b1"},
                       {"i, b, div", "d1 b1 d2 i1 i2"},
                       {"body > div , p i", "d1 d2 i1 i2"},
                       {"p, ul > li + li", "p1 p2 l2 l3 l4 p3"}});
}

TEST_F(SelectorTest, FromAnElementAsRoot) {
    const Element div = page.getElementById("d2");
    expectFound(div, {{"> a", "a1 a2"},
                      {"> li", ""},
                      {"> ul > li:eq(0)", "l1"},
                      {"div a", "a1 a2"},
                      {"body a", ""},
                      {"div", "d2"},
                      {", li", "d2 l1 l2 l3 l4"},
                      {"+ p", ""},
                      {":root", "d2"},
                      {":root > a", "a1 a2"}});
    expectFound(page, {{":root", "html"}, {"> html", "html"}, {":root > body", "body"}});
    EXPECT_EQ(names(Element(Tag::valueOf("p"), "").select("p:root")), "p");
    EXPECT_EQ(names(Document("").select(":root")), "");
}

TEST_F(SelectorTest, ByPlace) {
    expectFound(page, {{"li:lt(2)", "l1 l2"},
                       {"li:gt(1)", "l3 l4"},
                       {"li:eq( 1 )", "l2"},
                       {"li:EQ(1)", "l2"},
                       {"li:lt(99999999999999999999)", "l1 l2 l3 l4"},
                       {"html:eq(0)", "html"},
                       {"li:nth-child(2n+1)", "l1 l3"},
                       {"li:nth-child(ODD)", "l1 l3"},
                       {"li:nth-child(even)", "l2 l4"},
                       {"li:nth-child(-n+2)", "l1 l2"},
                       {"li:nth-child( 2n - 1 )", "l1 l3"},
                       {"li:nth-child(+3n + 1)", "l1 l4"},
                       {"li:nth-child(n)", "l1 l2 l3 l4"},
                       {"li:nth-child(0n+3)", "l3"},
                       {"li:nth-child(3)", "l3"},
                       {"li:nth-child(+3)", "l3"},
                       {"li:nth-child(-3)", ""},
                       {"li:nth-child(n+3)", "l3 l4"},
                       {"li:nth-child(-2n+3)", "l1 l3"},
                       {"li:nth-last-child(1)", "l4"},
                       {"li:nth-last-child(2n)", "l1 l3"},
                       {"div p:nth-of-type(2)", "p2"},
                       {"div > span:nth-child(3)", "s1"},
                       {"div > span:nth-of-type(1)", "s1"},
                       {"a:nth-last-of-type(1)", "a2"},
                       {"a:first-of-type", "a1"},
                       {"a:last-of-type", "a2"},
                       {"div > :first-child", "p1 u"},
                       {"li:last-child", "l4"},
                       {"html:first-child", ""},
                       {"html:nth-child(1)", ""},
                       {"html:only-child", ""},
                       {"html:only-of-type", ""},
                       {"p > b:only-child", "b1"},
                       {"ul:only-of-type", "u"},
                       {"i:only-of-type", ""}});
}

TEST_F(SelectorTest, LastChildCountsNodesWhereItsPlaceCountsElements) {
    const auto last = [](const char *list) {
        return names(Parser::parseBodyFragment(list, "").select("li:last-child"));
    };
    EXPECT_EQ(last("<ul><li id=a><li id=b></ul>"), "b");
    EXPECT_EQ(last("<ul> <li id=a></li> <li id=b></li> </ul>"), "");
    EXPECT_EQ(last("<ul><li id=a></li> <li id=b></li></ul>"), "");
    EXPECT_EQ(last("<ul><li id=a></li><li id=b></li><!-- --></ul>"), "");
}

TEST_F(SelectorTest, ByContent) {
    expectFound(page, {{":empty", "head s1 i1"},
                       {"p:contains(ONE)", "p1"},
                       {"p:contains(one bold)", "p1"},
                       {"p:containsOwn(bold)", ""},
                       {"p:containsOwn(one)", "p1"},
                       {"a:contains(Link \\(one)", "a1"},
                       {"a:contains((one))", "a1"},
                       {"p:matches(^One\\s\\w+$)", "p1"},
                       {"p:matchesOwn(^One$)", "p1"},
                       {"li:matches([23])", "l2 l3"},
                       {"div:has(b)", "d1"},
                       {"b:has(b)", ""},
                       {"div:has(> b)", ""},
                       {"div:has(> p > b)", "d1"},
                       {"div:has(p b)", "d1"},
                       {"div:has(> p b)", "d1"},
                       {"body:has(> ul)", ""},
                       {"ul:has(> li + li)", "u"},
                       {"p:has(i:empty + i)", "p3"},
                       {"p:has(b, i)", "p1 p3"},
                       {"div:has(ul:has(li:eq(3)))", "d2"},
                       {"p:not(.x)", "p3"},
                       {"p:not(.y):not(#p3)", "p1"},
                       {"li:not(:lt(1), :gt(2))", "l2 l3"},
                       {"div:not(:has(a))", "d1"},
                       {"p:not(div p)", "p3"}});
}

TEST_F(SelectorTest, HasLooksAtTheElementItselfAsRootOnly) {
    const Document nested = Parser::parseBodyFragment("<div id=a><div id=b><p></p></div></div>", "");
    expectFound(nested, {{"div:has(p)", "a b"},
                         {"div:has(> p)", "b"},
                         {"div:has(> div > p)", "a"},
                         {"div:has(div p)", "a b"},
                         {"div:has(body p)", ""},
                         {"div:has(div > div)", "a"},
                         {"div:has(p:not(> p))", "a"},
                         {"div:has(div:root)", ""},
                         {"div:has(div + p)", ""},
                         {"div:has(div ~ div)", ""},
                         {"body:has(div ~ div)", ""}});
}

TEST_F(SelectorTest, WhatCannotBeParsedSaysWhy) {
    const std::string deep = [] {
        std::string query = "p";
        for (int i = 0; i < 2000; ++i)
            query = ":not(" + query + ")";
        return query;
    }();
    const Case cases[] = {
        {"", "argument: String must not be empty"},
        {" \n", "argument: String must not be empty"},
        {"div:foo", "selector: Could not parse query div:foo: unexpected token at :foo"},
        {"div:first-childx%", "selector: Could not parse query div:first-childx%: unexpected token at %"},
        {"div > ", "selector: Could not parse query : unexpected token at "},
        {"div, ,p", "selector: Could not parse query : unexpected token at "},
        {"p b:bar", "selector: Could not parse query b:bar: unexpected token at :bar"},
        {":lt(a)", "argument: Index must be numeric"},
        {":eq()", "argument: Index must be numeric"},
        {":gt(-1)", "argument: Index must be numeric"},
        {"#", "argument: String must not be empty"},
        {"p.", "argument: String must not be empty"},
        {"*|", "argument: String must not be empty"},
        {"[]", "argument: String must not be empty"},
        {"[=x]", "argument: String must not be empty"},
        {"[x=]", "argument: String must not be empty"},
        {"[^]", "argument: String must not be empty"},
        {"[x", "argument: String must not be empty"},
        {":has()", "argument: :has(el) subselect must not be empty"},
        {":has(p", "argument: :has(el) subselect must not be empty"},
        {":not()", "argument: :not(selector) subselect must not be empty"},
        {":contains()", "argument: :contains(text) query must not be empty"},
        {":containsOwn()", "argument: :contains(text) query must not be empty"},
        {":matches()", "argument: :matches(regex) query must not be empty"},
        {":matchesOwn()", "argument: :matches(regex) query must not be empty"},
        {":matches(a{)", "selector: Pattern syntax error: a{"},
        {"[a~=[]", "argument: String must not be empty"},
        {"[a~=(]", "selector: Pattern syntax error: ("},
        {":nth-child(x)", "selector: Could not parse nth-index 'x': unexpected format"},
        {":nth-child()", "selector: Could not parse nth-index '': unexpected format"},
        {":nth-child(2N+ )", "selector: Could not parse nth-index '2n+': unexpected format"},
        {":nth-of-type(n n)", "selector: Could not parse nth-index 'n n': unexpected format"},
    };
    for (const Case &row : cases)
        EXPECT_EQ(failure(row.query), row.found) << row.query;
    EXPECT_NE(failure(deep).find("it nests too deep"), std::string::npos);
}

TEST_F(SelectorTest, QueriesPrintInTheFormOfTheirEvaluators) {
    const Case cases[] = {
        {"Div.a#b", "div .a #b"},
        {"*[K=\"V w\"][^Da][h~=x]", "* [k=v w] [^da] [h~=x]"},
        {"a[b!=c][b^=c][b$=c][b*=c][b]", "a [b!=c] [b^=c] [b$=c] [b*=c] [b]"},
        {"a b", "b a:parent"},
        {"a > b", "b a:ImmediateParent"},
        {"a + b", "b a:prev"},
        {"a ~ b", "b a:prev*"},
        {"> b", "b :ImmediateParent"},
        {"a, b, c > d", "a:orb:ord c:ImmediateParent"},
        {"a, b c", "a:orc b:parent"},
        {"*|t", "t:or:t"},
        {":lt(1):gt(2):eq(3)", ":lt(1) :gt(2) :eq(3)"},
        {":nth-child(odd)", ":nth-child(2n+1)"},
        {":nth-last-child(3)", ":nth-last-child(3)"},
        {":nth-of-type(-n)", ":nth-of-type(-1n)"},
        {":nth-last-of-type(2n - 1)", ":nth-last-of-type(2n+-1)"},
        {":first-child:last-child:only-child:only-of-type:empty:root",
         ":first-child :last-child :only-child :only-of-type :empty :root"},
        {":first-of-type:last-of-type", ":first-of-type :last-of-type"},
        {":has(a):not(b)", ":has(a) :notb"},
        {":contains(Ab):containsOwn(C\\)d)", ":contains(ab) :containsOwn(c)d)"},
        {":matches(A+):matchesOwn(\\()", ":matches(A+) :matchesOwn(\\()"},
    };
    for (const Case &row : cases)
        EXPECT_EQ(QueryParser::parse(row.query)->toString(), row.found) << row.query;
}

TEST_F(SelectorTest, IsAsksFromTheParent) {
    const Element bold = page.getElementById("b1");
    EXPECT_TRUE(bold.is("b"));
    EXPECT_TRUE(bold.is(" p > b "));
    EXPECT_FALSE(bold.is("div b")); // the parent is as far as it looks up
    EXPECT_FALSE(bold.is("p"));
    EXPECT_FALSE(page.is("*"));
    EXPECT_FALSE(Element(Tag::valueOf("p"), "").is("p"));
    EXPECT_THROW(bold.is(""), Exception::Error);
    EXPECT_TRUE(bold.is(*QueryParser::parse("#b1")));
}

TEST_F(SelectorTest, ListsSearchEachRootOnce) {
    const Elements nested = page.select("body, div, p");
    EXPECT_EQ(names(nested.select("b, li:lt(1)")), "b1 l1");
    EXPECT_EQ(names(page.select("b, div, ul").select("div *")), "p1 b1 p2 s1 u l1 l2 l3 l4 a1 a2");
    EXPECT_EQ(names(page.select("b, p, div").select("> *")), "p1 p2 s1 b1 u a1 a2 i1 i2");
    EXPECT_EQ(names(Elements({page.getElementById("u"), page.getElementById("d2")}).select("li, a")),
              "l1 l2 l3 l4 a1 a2");
    EXPECT_EQ(names(page.select("p, b").not_("b")), "p1 p2 p3");
    EXPECT_EQ(names(page.select("div, p").not_("div")), "p1 p2 p3");
    EXPECT_EQ(names(page.select("p").not_(".y, i")), "p1 p3");
    EXPECT_TRUE(page.select("div, i").is(":empty"));
    EXPECT_FALSE(page.select("div").is(":empty"));
    EXPECT_FALSE(Elements().is("*"));
    EXPECT_THROW(Elements().select(""), Exception::Error);
}

TEST_F(SelectorTest, SearchesByOneProperty) {
    EXPECT_EQ(names(page.getElementsByTag(" LI ")), "l1 l2 l3 l4");
    EXPECT_EQ(page.getElementById("l2").id(), "l2");
    EXPECT_FALSE(page.getElementById("none"));
    EXPECT_EQ(names(page.getElementsByClass("X")), "p1 p2");
    EXPECT_EQ(names(page.getElementsByClass("x Y")), "p2");
    EXPECT_EQ(names(page.getElementsByAttribute(" HREF ")), "a1 a2");
    EXPECT_EQ(names(page.getElementsByAttributeStarting("Data-")), "s1");
    EXPECT_EQ(names(page.getElementsByAttributeValue("TITLE", "'hello'")), "d1");
    EXPECT_EQ(names(page.getElementById("u").getElementsByAttributeValueNot("id", "L1")), "u l2 l3 l4");
    EXPECT_EQ(names(page.getElementsByAttributeValueStarting("href", "http")), "a1");
    EXPECT_EQ(names(page.getElementsByAttributeValueEnding("href", "PNG")), "a1");
    EXPECT_EQ(names(page.getElementsByAttributeValueContaining("href", "some")), "a1");
    EXPECT_EQ(names(page.getElementsByAttributeValueMatching("href", "x=\\d")), "a2");
    EXPECT_EQ(names(page.getElementById("u").getElementsByIndexLessThan(1)), "u l1");
    EXPECT_EQ(names(page.getElementsByIndexGreaterThan(2)), "l4");
    EXPECT_EQ(names(page.getElementById("u").getElementsByIndexEquals(3)), "l4");
    EXPECT_EQ(names(page.getElementById("d1").getElementsContainingText("BOLD")), "d1 p1 b1");
    EXPECT_EQ(names(page.getElementsContainingOwnText("one")), "p1 a1");
    EXPECT_EQ(names(page.getElementById("d1").getElementsMatchingText("^Bo")), "b1");
    EXPECT_EQ(names(page.getElementsMatchingOwnText(Pattern::compile("^[1-3]$"))), "l1 l2 l3");
    EXPECT_EQ(page.getElementById("u").getAllElements().size(), 5U);
}

TEST_F(SelectorTest, SearchesByOnePropertyCheckTheirArguments) {
    const auto message = [](auto search) {
        try {
            search();
        } catch (const Exception::Error &error) {
            return error.Message;
        }
        return std::string("none");
    };
    const std::string empty = "String must not be empty";
    EXPECT_EQ(message([&] { page.getElementsByTag(""); }), empty);
    EXPECT_EQ(message([&] { page.getElementById(""); }), empty);
    EXPECT_EQ(message([&] { page.getElementsByClass(""); }), empty);
    EXPECT_EQ(message([&] { page.getElementsByAttribute(""); }), empty);
    EXPECT_EQ(message([&] { page.getElementsByAttributeStarting(""); }), empty);
    EXPECT_EQ(message([&] { page.getElementsByAttributeValue("", "x"); }), empty);
    EXPECT_EQ(message([&] { page.getElementsByAttributeValueNot("x", ""); }), empty);
    EXPECT_EQ(message([&] { page.getElementsMatchingText("a("); }), "Pattern syntax error: a(");
    EXPECT_EQ(message([&] { page.getElementsMatchingOwnText("+"); }), "Pattern syntax error: +");
    EXPECT_EQ(message([&] { page.getElementsByAttributeValueMatching("k", "["); }),
              "Pattern syntax error: [");
}

TEST_F(SelectorTest, CssSelectorFindsTheElementAgain) {
    const Document plain =
        Parser::parse("<div><ul><li class='a  b a'>1<li>2</ul><ns:x></ns:x></div><div></div>"
                      "<p id=p><b>x</b></p>",
                      "");
    const Case cases[] = {
        {"li:eq(0)", "html > body > div:nth-child(1) > ul > li.a.b"},
        {"li:eq(1)", "html > body > div:nth-child(1) > ul > li:nth-child(2)"},
        {"ns|x", "html > body > div:nth-child(1) > ns|x"},
        {"p", "#p"},
        {"b", "#p > b"},
        {"html", "html"},
    };
    for (const Case &row : cases) {
        const Element element = plain.select(row.query).first();
        EXPECT_EQ(element.cssSelector(), row.found);
        EXPECT_EQ(plain.select(row.found).first(), element);
    }
}

TEST(EvaluatorTest, CombinationsMayBeChanged) {
    const Document page = Parser::parseBodyFragment("<p class=a></p><b></b><i class=a></i>", "");
    CombiningEvaluator::Or any({std::make_shared<Evaluator::Tag>("b")});
    EXPECT_EQ(names(Collector::collect(any, page)), "b");
    any.add(std::make_shared<Evaluator::Class>("a"));
    EXPECT_EQ(any.num(), 2U);
    EXPECT_EQ(names(Collector::collect(any, page)), "p b i");
    any.replaceRightMostEvaluator(std::make_shared<Evaluator::Tag>("i"));
    EXPECT_EQ(any.rightMostEvaluator()->toString(), "i");
    EXPECT_EQ(names(Collector::collect(any, page)), "b i");
    EXPECT_EQ(CombiningEvaluator::Or().rightMostEvaluator(), nullptr);
    EXPECT_EQ(names(Collector::collect(CombiningEvaluator::Or(), page)), "");
}

TEST(EvaluatorTest, KeysAndValuesAreNormalised) {
    const Evaluator::AttributeWithValue pair(" KEY ", "' Va ");
    EXPECT_EQ(pair.toString(), "[key=' va]");
    EXPECT_EQ(Evaluator::AttributeWithValue("k", "\" V \"").value(), "v");
    EXPECT_EQ(Evaluator::AttributeWithValue("k", "\"").value(), "\"");
    EXPECT_EQ(Evaluator::AttributeWithValueMatching(" K ", Pattern::compile("X")).toString(), "[k~=X]");
    EXPECT_THROW(Evaluator::AttributeWithValue("", "v"), Exception::Error);
}

/// Fails on the elements called x and matches those called y.
class Picky final : public Evaluator {
public:
    bool matches(const Element &root, const Element &element) const override {
        roots.push_back(root);
        if (element.tagName() == "x") throw Exception::Error(ExceptionType::IOException, "no");
        return element.tagName() == "y";
    }
    std::string toString() const override { return "picky"; }

    mutable std::vector<Element> roots;
};

TEST(EvaluatorTest, OneOfTheProgramsOwnIsAskedWithHandles) {
    const Document page =
        Parser::parseBodyFragment("<p id=1><y id=2></y></p><p id=3><x id=4></x></p><y id=5></y>", "");
    const auto picky = std::make_shared<Picky>();
    const Element p = page.getElementById("1");
    EXPECT_EQ(names(CssSelector::select(picky, p)), "2");
    EXPECT_EQ(picky->roots, std::vector<Element>(2, p));
    EXPECT_THROW(CssSelector::select(picky, page), Exception::Error);
}

TEST(EvaluatorTest, FailuresBelowAndBesideCountAsNo) {
    const Document page = Parser::parseBodyFragment(
        "<div id=1><x id=x></x><y id=2></y><b id=3></b></div><div id=4><x id=5></x><b id=6></b></div>", "");
    const auto picky = std::make_shared<Picky>();
    EXPECT_EQ(names(CssSelector::select(std::make_shared<StructuralEvaluator::Has>(picky), page.body())),
              "body 1");
    EXPECT_EQ(names(CssSelector::select(std::make_shared<StructuralEvaluator::PreviousSibling>(picky),
                                        page.body())),
              "3");
    // A pattern that is none fails at every element, and so does not match anywhere.
    const auto broken = std::make_shared<Evaluator::Matches>(Pattern::compile("("));
    EXPECT_EQ(names(CssSelector::select(std::make_shared<StructuralEvaluator::Has>(broken), page)), "");
    EXPECT_THROW(CssSelector::select(std::make_shared<StructuralEvaluator::Not>(broken), page),
                 Exception::Error);
    // Nor can it be found as deep as it fails.
    const auto shallow = std::make_shared<StructuralEvaluator::Root>();
    const auto deep = std::make_shared<Evaluator::Tag>("x");
    for (const EvaluatorPtr &fails :
         {EvaluatorPtr(broken), EvaluatorPtr(std::make_shared<Evaluator::MatchesOwn>(Pattern::compile("("))),
          EvaluatorPtr(
              std::make_shared<Evaluator::AttributeWithValueMatching>("id", Pattern::compile("(")))}) {
        const auto all =
            std::make_shared<CombiningEvaluator::And>(std::vector<EvaluatorPtr>{deep, fails, shallow});
        EXPECT_THROW(CssSelector::select(all, page), Exception::Error) << fails->toString();
    }
}

// ---- Against the naive way

/// Draws trees and queries from a few names, so that much matches.
class Generator {
public:
    explicit Generator(unsigned seed) : random_(seed) {}

    std::string markup(int nodes) {
        std::string page;
        std::vector<std::string> open;
        for (int i = 0; i < nodes; ++i) {
            switch (below(9)) {
            case 0:
            case 1:
            case 2:
            case 3: {
                const std::string tag = one({"a", "b", "c", "d"});
                page += "<" + tag + attributes() + ">";
                open.push_back(tag);
                break;
            }
            case 4:
            case 5:
                if (!open.empty()) {
                    page += "</" + open.back() + ">";
                    open.pop_back();
                }
                break;
            case 6: page += one({"x", "y z", " ", "\n\xc2\xa0", "X ", "\xce\xa3x", "K"}); break;
            case 7: page += "<!--x-->"; break;
            case 8: page += one({"<br/>", "<pre>\n x  y </pre>", "<p>y</p>"}); break;
            }
        }
        while (!open.empty()) {
            page += "</" + open.back() + ">";
            open.pop_back();
        }
        return page;
    }

    /// Many children of one parent.
    std::string row(int children) {
        std::string page = "<c>";
        for (int i = 0; i < children; ++i)
            page += one({"<a", "<b", "<d"}) + attributes() + "/>" + one({"", "", " ", "<!---->"});
        return page + "</c>";
    }

    std::string query(int depth = 2) {
        std::string query = below(8) == 0 ? "> " : "";
        const int steps = 1 + below(3);
        for (int i = 0; i < steps; ++i) {
            if (i > 0) query += one({" ", " > ", " + ", " ~ ", " ", ", "});
            query += compound(depth);
        }
        return query;
    }

private:
    std::string attributes() {
        std::string text;
        if (below(3) == 0) text += " class='" + one({"x", "y", "x y", " X\tz "}) + "'";
        if (below(4) == 0) text += " k='" + one({"v", "V ", "vw", ""}) + "'";
        if (below(6) == 0) text += " id='" + one({"i", "j"}) + "'";
        return text;
    }

    std::string compound(int depth) {
        std::string text = one({"", "a", "b", "c", "*", "*|d", "br", "p"});
        for (int parts = below(3) + (text.empty() ? 1 : 0); parts > 0; --parts)
            text += part(depth);
        return text;
    }

    std::string part(int depth) {
        if (depth > 0 && below(4) == 0) return one({":has(", ":not("}) + query(depth - 1) + ")";
        return one({".x",
                    ".y",
                    "#i",
                    "[k]",
                    "[k=v]",
                    "[k!=v]",
                    "[k^=v]",
                    "[k$=w]",
                    "[k*=v]",
                    "[^k]",
                    "[k~=v$]",
                    ":lt(1)",
                    ":gt(1)",
                    ":eq(1)",
                    ":nth-child(2n+1)",
                    ":nth-child(-n+2)",
                    ":nth-last-child(2)",
                    ":nth-of-type(2n)",
                    ":nth-last-of-type(1)",
                    ":first-child",
                    ":last-child",
                    ":first-of-type",
                    ":last-of-type",
                    ":only-child",
                    ":only-of-type",
                    ":empty",
                    ":root",
                    ":contains(x)",
                    ":contains(x )",
                    ":contains( y)",
                    ":contains(x x)",
                    ":contains(y z)",
                    ":containsOwn(x)",
                    ":matches(^x)",
                    ":matchesOwn(y)"});
    }

    int below(int limit) { return int(random_() % unsigned(limit)); }
    std::string one(std::initializer_list<const char *> choices) {
        return choices.begin()[below(int(choices.size()))];
    }

    std::mt19937 random_;
};

TEST(SelectorOracle, SearchesFindWhatANaiveWalkFinds) {
    Generator generator(20261121);
    int hits = 0;
    for (int tree = 0; tree < 60; ++tree) {
        Parser parser = tree % 2 ? Parser::xmlParser() : Parser::htmlParser();
        const std::string markup = tree % 5 == 0 ? generator.row(40) : generator.markup(10 + tree * 3);
        const Document page = parser.parseInput(markup, "");
        const Elements all = page.getAllElements();
        for (int i = 0; i < 60; ++i) {
            const std::string query = generator.query();
            const EvaluatorPtr evaluator = QueryParser::parse(query);
            const Element root = i % 3 ? Element(page) : all[std::size_t(i) % all.size()];
            const Elements expected = naive::select(*evaluator, root);
            hits += int(expected.size());
            ASSERT_EQ(root.select(query), expected) << query << "\nin " << root.tagName() << " of\n"
                                                    << markup;
        }
    }
    EXPECT_GT(hits, 5000);
}

TEST(SelectorOracle, ListsFindWhatEachRootFinds) {
    Generator generator(7);
    for (int tree = 0; tree < 40; ++tree) {
        const Document page = Parser::parseBodyFragment(generator.markup(80), "");
        const Elements roots = page.select(generator.query(0));
        for (int i = 0; i < 20; ++i) {
            const std::string query = generator.query();
            const EvaluatorPtr evaluator = QueryParser::parse(query);
            Elements expected;
            for (const Element &root : roots)
                for (const Element &found : naive::select(*evaluator, root))
                    if (std::find(expected.begin(), expected.end(), found) == expected.end())
                        expected.add(found);
            ASSERT_EQ(roots.select(query), expected) << query;
            const bool any = std::any_of(roots.begin(), roots.end(), [&](const Element &root) {
                return root.parent() && naive::matches(*evaluator, root.parent(), root);
            });
            ASSERT_EQ(roots.is(query), any) << query;
        }
    }
}

// ---- Trees that are made to cost time or the stack

std::string repeated(const std::string &text, int count) {
    std::string all;
    for (int i = 0; i < count; ++i)
        all += text;
    return all;
}

/// A search that looks at every pair of elements here takes hours.
TEST(SelectorCost, StaysLinearOnAMillionLevels) {
    constexpr std::size_t deep = 1'000'000;
    const Document page = Parser::parse(repeated("<div>", deep) + "<p>Hello", "");
    const struct {
        const char *query;
        std::size_t hits;
    } cases[] = {{"div div p", 1},
                 {"div > div > p", 1},
                 {"div p div", 0},
                 {"div:has(p)", deep},
                 {"div:has(b)", 0},
                 {"div:has(> p)", 1},
                 {"div:has(> div p)", deep - 1},
                 {"div:has(div + p)", 0},
                 {"div:not(:has(p))", 0},
                 {"div:not(div div)", 1},
                 {"div:contains(hello)", deep},
                 {"div:has(p:contains(hello))", deep},
                 {"div:only-of-type", deep}};
    for (const auto &row : cases)
        EXPECT_EQ(page.select(row.query).size(), row.hits) << row.query;
    const Elements nested = page.select("div");
    EXPECT_EQ(nested.select("div p").size(), 1U);
    EXPECT_EQ(nested.select("> div").size(), deep - 1);
    EXPECT_TRUE(nested.is("div > :contains(hello)"));
    EXPECT_EQ(nested.not_("p").size(), deep);
    EXPECT_TRUE(page.select("p").first().cssSelector().ends_with("div > p"));
}

TEST(SelectorCost, StaysLinearOnAMillionSiblings) {
    constexpr std::size_t pairs = 500'000;
    const Document page = Parser::parse("<ul>" + repeated("<b></b> <!--c--><li>x</li>", pairs), "");
    const struct {
        const char *query;
        std::size_t hits;
    } cases[] = {{"li:nth-child(2n)", pairs},
                 {"li:nth-last-child(2n+1)", pairs},
                 {"li:nth-of-type(5n)", pairs / 5},
                 {"li:nth-last-of-type(5n)", pairs / 5},
                 {"li:eq(999999)", 1},
                 {"li:last-child", 0},
                 {"li:only-child", 0},
                 {"b:only-of-type", 0},
                 {"b ~ li", pairs},
                 {"li ~ li ~ li", pairs - 2},
                 {"b + li + b", pairs - 1},
                 {"ul:has(li) > li", pairs},
                 {"ul:contains(x) > li", pairs},
                 {"ul:matches(x) > li", pairs},
                 {"ul:has(b ~ b) > b:has(li)", 0},
                 {"ul:has(b + li + b)", 1},
                 {"li:contains(x)", pairs},
                 {"li:not(b ~ li)", 0}};
    for (const auto &row : cases)
        EXPECT_EQ(page.select(row.query).size(), row.hits) << row.query;
    EXPECT_FALSE(page.select("li").is("b ~ :nth-child(2n+1)"));
}

} // namespace
} // namespace orl::html
