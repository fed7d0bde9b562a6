// Looking for classes on pages whose elements were noted while they were parsed, and on those whose order the
// parse has broken: both find what a naive walk finds, from whatever root.
#include "class_index.h"
#include "naive_matching.h"
#include "text_numbers.h"

#include <orl/html/parser.h>
#include <orl/html/query_parser.h>

#include <algorithm>
#include <gtest/gtest.h>
#include <random>
#include <string>
#include <vector>

namespace orl::html {
namespace {

bool isIndexed(const Node &node) {
    return core::ClassIndex::of(node.record());
}

void expectNaiveAnswers(const Document &page, const std::string &markup) {
    for (const char *query : {".a", ".B", "p.a", "* .b", ".a .b", ".a .a .b", "p .b", ".a b", ".a:not(.a .a)",
                              "b.a, .b", ".none .a", "td.b"}) {
        const EvaluatorPtr evaluator = QueryParser::parse(query);
        for (const Element &root : page.getAllElements())
            for (int time = 0; time < 3; ++time) // the last time a page has its answer ready
                ASSERT_EQ(root.select(query), naive::select(*evaluator, root))
                    << query << " below " << root.cssSelector() << " of " << markup;
    }
}

TEST(ClassIndexTest, HoldsOnPagesMadeFromFrontToBack) {
    struct Case {
        const char *name;
        const char *page;
        bool isIndexed;
    };
    const Case cases[] = {
        {"plain", "<body class=b><div class='a x'><p class=b>1<p>2</div><p class=a>3", true},
        {"reopened formatting", "<p class=a><b class=b>1<p>2<b class=a>3</p>4", true},
        {"formatting without a block", "<p><b class=b>1<i class=a>2</b>3</i><p class=b>4", true},
        {"in the head", "<head><link class=a></head><body class=a><p class=b>", true},
        {"comment behind the body", "<p class=a>1</body><!--c--></html><!--d-->", true},
        {"late head", "</head><link class=b><body class=a><p class=b>", true},
        {"no class", "<p>1<p>2", true},
        {"frames", "<frameset class=a><frame class=b></frameset><noframes class=b></noframes>", true},
        {"foster parent", "<p class=a><table class=a><tr><p class=b>2<td class=b>3", false},
        {"foster parent of text", "<p class=a><table class=a><tr>x<td class=b>3", false},
        {"adoption agency", "<b class=a>1<p class=b>2</b><i class=b>3", false},
        {"late class of the body", "<body><p class=b>1<body class=a>", false},
        {"late class of html", "<p class=b>1<html class=a>", false},
        {"behind the body", "<p class=a>1</body><!--c--><div class=b>2", false},
        {"behind the page", "<p class=a>1</html><!--c--><div class=b>2", false},
        {"formatting reopened behind", "<p class=a><b class=b>1</p></body><!--c--> ", false},
        {"late head behind a comment", "</head><!--c--><link class=b><body class=a>", false},
        {"frames instead of a body", "<div class=a></div><frameset class=b><frame class=a>", false},
        {"noframes behind", "<frameset class=a></frameset></html><!--c--><noframes class=b>", false},
    };
    for (const Case &row : cases) {
        const Document page = parse(row.page);
        EXPECT_EQ(isIndexed(page), row.isIndexed) << row.name << ": " << page.outerHtml();
        expectNaiveAnswers(page, row.name);
    }
    const Document xml = Parser::xmlParser().parseInput(
        "<r><a class='a'/><b CLASS='b' class='b'><c class='a b'/></b></r>", "");
    EXPECT_TRUE(isIndexed(xml));
    expectNaiveAnswers(xml, "XML");
}

TEST(ClassIndexTest, EndsWithTheFirstChange) {
    constexpr const char *markup = "<body><div class=a><p class=b>1<p>2</div><p class=a>3";
    struct Case {
        const char *name;
        void (*change)(const Document &);
    };
    const Case cases[] = {
        {"class set", [](const Document &page) { page.select("p").get(1).addClass("a"); }},
        {"class set by a list that was kept",
         [](const Document &page) { page.body().child(0).getAttributes().asList()[0].setValue("b"); }},
        {"class taken", [](const Document &page) { page.select(".b").removeClass("b"); }},
        {"renamed", [](const Document &page) { page.select(".b").tagName("b"); }},
        {"removed", [](const Document &page) { page.select(".b").remove(); }},
        {"moved", [](const Document &page) { page.body().prependChild(page.select("p.a").first()); }},
        {"emptied", [](const Document &page) { page.body().child(0).empty(); }},
        {"appended", [](const Document &page) { page.body().append("<p class=b>4"); }},
        {"wrapped", [](const Document &page) { page.select(".b").wrap("<div class=a></div>"); }},
        {"unwrapped", [](const Document &page) { page.body().child(0).unwrap(); }},
        {"copied in", [](const Document &page) { page.body().appendChild(page.body().child(0).copy()); }},
        {"taken from another page",
         [](const Document &page) { page.body().appendChild(parse("<i class=b>").body().child(0)); }},
    };
    for (const Case &row : cases) {
        const Document page = parse(markup);
        ASSERT_TRUE(isIndexed(page));
        expectNaiveAnswers(page, markup);
        row.change(page);
        EXPECT_FALSE(isIndexed(page)) << row.name;
        expectNaiveAnswers(page, row.name);
    }
    const Document page = parse(markup);
    const Document copy = page.copy();
    EXPECT_FALSE(isIndexed(copy));
    expectNaiveAnswers(copy, "copy");
    const Element loose = page.createElement("p");
    EXPECT_TRUE(loose.select(".a").isEmpty());
    EXPECT_TRUE(isIndexed(parse(markup)));
}

/// Lists that have an answer in common go their own ways when one of them changes.
TEST(AnswersTest, AreNotChangedThroughAList) {
    const Document page = parse("<p class=a>1<p class=a>2");
    for (int round = 0; round < 4; ++round) {
        Elements list = page.getElementsByClass("a");
        const Elements copy = list;
        list.add(page.body());
        list.add(0, Element());
        EXPECT_EQ(list.size(), 4U);
        EXPECT_EQ(copy.text(), "1 2");
    }
}

TEST(AnswersTest, ManyQuestionsInTurn) {
    const Document page = parse("<p>1<p>2<p>3");
    for (int i = 0; i < 40; ++i) {
        page.body().child(std::size_t(i % 3)).addClass("c" + std::to_string(i / 3));
        for (int round = 0; round < 3; ++round)
            for (int name = 0; name <= i / 3; ++name)
                EXPECT_EQ(page.select("p.c" + std::to_string(name)).size(),
                          std::size_t(std::min(3, i - name * 3 + 1)));
    }
}

/// Long enough for several blocks of the index and several chunks of memory.
TEST(ClassIndexTest, FindsAllOfALongPage) {
    std::string markup;
    for (int i = 0; i < 20'000; ++i)
        markup += i % 3 ? "<u class=b>" : "<u class=a></u>";
    const Document page = parse(markup);
    EXPECT_TRUE(isIndexed(page));
    EXPECT_EQ(page.getElementsByClass("b").size(), 13'333U);
    EXPECT_EQ(page.select(".b .a").size(), 6'666U);
    const Elements all = page.getElementsByTag("u");
    for (const Document &other : {page, page.copy()}) // walked, in part of it
        EXPECT_EQ(other.select("u .a").size(), 6'666U);
    EXPECT_EQ(all.get(10'000).getElementsByClass("A").size(), 3'333U);
    EXPECT_EQ(all.get(19'999).getElementsByClass("b").size(), 1U);
}

/// One search from each of many roots, on a page where every class is another one.
TEST(ClassIndexTest, StaysLinearForManyRootsAndLevels) {
    std::string rows, levels;
    for (int i = 0; i < 100'000; ++i) {
        rows += "<p class=r" + std::to_string(i) + "><i class=x></i>";
        levels += i % 2 ? "<div class=a>" : "<div class=b>";
    }
    const Document page = parse(rows);
    std::size_t found = 0;
    for (const Element &row : page.getElementsByTag("p"))
        found += row.select("p .x").size();
    EXPECT_EQ(found, 100'000U);

    const Document deep = parse(levels);
    for (int round = 0; round < 3; ++round) {
        EXPECT_EQ(deep.select(".a .b").size(), 49'999U);
        EXPECT_EQ(deep.select(".none .b").size(), 0U);
        EXPECT_EQ(deep.select("div .b").size(), 49'999U);
        EXPECT_EQ(deep.select(".a .a .a").size(), 49'998U);
    }
}

/// Texts of every length that differ at one place only, met again and again.
TEST(TextNumbersTest, EqualTextsHaveEqualNumbers) {
    std::vector<std::string> texts;
    for (std::size_t size = 0; size < 45; ++size) {
        texts.emplace_back(size, 'x');
        for (std::size_t place = 0; place < size; ++place)
            texts.emplace_back(size, 'x')[place] = 'y';
    }
    core::TextNumbers numbers;
    for (int round = 0; round < 3; ++round)
        for (std::size_t i = 0; i < texts.size(); ++i) {
            const std::string copy = texts[i];
            EXPECT_EQ(numbers.numberOf(texts[i]), i);
            EXPECT_EQ(numbers.numberOf(texts[i / 2]), i / 2);
            ASSERT_EQ(numbers.numberOf(copy), i) << copy;
        }
}

TEST(ClassIndexTest, RandomPages) {
    constexpr const char *pieces[] = {"<p class=a>",   "<p class='x b'>",
                                      "<div class=a>", "<b class=b>",
                                      "<i class=a>",   "</b>",
                                      "</i>",          "</p>",
                                      "</div>",        "<table>",
                                      "<tr>",          "<td class=b>",
                                      "</table>",      "<li class=b>",
                                      "text",          "<a class=a>",
                                      "</a>",          "<form class=a>",
                                      "</form>",       "</body>",
                                      "<!--c-->",      "</html>",
                                      "<b>",           "<select class=b>"};
    std::mt19937 random(7);
    int indexed = 0;
    for (int round = 0; round < 150; ++round) {
        std::string markup;
        for (int i = 0; i < 12; ++i)
            markup += pieces[random() % std::size(pieces)];
        const Document page = parse(markup);
        indexed += isIndexed(page);
        expectNaiveAnswers(page, markup);
        if (HasFatalFailure()) return;
    }
    EXPECT_GT(indexed, 30);
    EXPECT_LT(indexed, 140);
}

} // namespace
} // namespace orl::html
