// Regular expressions, and the cursor that queries are read with.
#include "token_queue.h"

#include <orl/html/exception.h>
#include <orl/html/pattern.h>

#include <gtest/gtest.h>

namespace orl::html {
namespace {

TEST(PatternTest, FindsAllMatchesWithTheirGroups) {
    Matcher matcher = Pattern::compile("(\\w)(\\d)?").matcher("a1-\u00e9");
    EXPECT_EQ(matcher.count(), 2U);
    EXPECT_FALSE(matcher.group());
    ASSERT_TRUE(matcher.find());
    EXPECT_EQ(matcher.group(), "a1");
    EXPECT_EQ(matcher.group(2), "1");
    EXPECT_FALSE(matcher.group(3));
    ASSERT_TRUE(matcher.find());
    EXPECT_EQ(matcher.group(1), "\u00e9");
    EXPECT_FALSE(matcher.group(2));
    EXPECT_FALSE(matcher.find());
    EXPECT_FALSE(matcher.find());
    EXPECT_FALSE(matcher.group());
}

TEST(PatternTest, EmptyMatchesEnd) {
    EXPECT_EQ(Pattern::compile("x*").matcher("axb").count(), 4U);
    Matcher none = Pattern::compile("z").matcher("axb");
    EXPECT_FALSE(none.find());
    EXPECT_EQ(none.count(), 0U);
}

TEST(PatternTest, WhatIsNoExpressionFailsWhenItIsUsed) {
    const Pattern broken = Pattern::compile("a(");
    EXPECT_EQ(broken.toString(), "a(");
    for (const auto use : {+[](const Pattern &p) { p.validate(); }, +[](const Pattern &p) { p.matcher("x"); },
                           +[](const Pattern &p) { p.isFoundIn("x"); }}) {
        try {
            use(broken);
            FAIL();
        } catch (const Exception::Error &error) {
            EXPECT_EQ(error.type, ExceptionType::SelectorParseException);
            EXPECT_EQ(error.Message, "Pattern syntax error: a(");
        }
    }
}

TEST(PatternTest, ExpressionsThatWouldRunForEverAreStopped) {
    const std::string text(50, 'a'), longText(4'000'000, 'a');
    EXPECT_THROW(Pattern::compile("(a|a)*$").isFoundIn(text + "b"), Exception::Error);
    EXPECT_THROW(Pattern::compile("(a|b)*c").isFoundIn(longText), Exception::Error);
    EXPECT_FALSE(Pattern::compile("[b-z]\\d").isFoundIn(longText));
}

using core::TokenQueue;

TEST(TokenQueueTest, LooksAhead) {
    const TokenQueue queue("Ab\u00c9 c");
    EXPECT_TRUE(queue.matches("aB\u00e9"));
    EXPECT_FALSE(queue.matchesCS("ab"));
    EXPECT_FALSE(queue.matches("ab\u00e9 cd"));
    EXPECT_TRUE(queue.matchesAny({"x", "AB"}));
    EXPECT_TRUE(queue.matchesAny("xA"));
    EXPECT_FALSE(queue.matchesAny("a"));
    EXPECT_TRUE(queue.matchesWord());
    EXPECT_TRUE(TokenQueue("<p").matchesStartTag());
    EXPECT_FALSE(TokenQueue("<").matchesStartTag());
    EXPECT_FALSE(TokenQueue("</p").matchesStartTag());
    EXPECT_TRUE(TokenQueue("").isEmpty());
    EXPECT_FALSE(TokenQueue("").matchesAny("a"));
}

TEST(TokenQueueTest, Consumes) {
    TokenQueue queue("one Two-three four");
    EXPECT_EQ(queue.consumeWord(), "one");
    EXPECT_TRUE(queue.consumeWhitespace());
    EXPECT_FALSE(queue.consumeWhitespace());
    queue.consume("tWo");
    EXPECT_EQ(queue.peek(), "-");
    EXPECT_EQ(queue.chompTo("three"), "-");
    EXPECT_THROW(queue.consume("x"), Exception::Error);
    EXPECT_EQ(queue.consumeToIgnoreCase("OUR"), " f");
    EXPECT_EQ(queue.consumeTo("none"), "our");
    EXPECT_TRUE(queue.isEmpty());
    EXPECT_EQ(queue.consume(), "");
    queue.advance();
    queue.addFirst("a:b_c|d.e");
    EXPECT_EQ(queue.consumeTagName(), "a:b_c");
    queue.addFirst("x|*|");
    EXPECT_EQ(queue.consumeElementSelector(), "x|*||d");
    EXPECT_EQ(queue.remainder(), ".e");
    EXPECT_EQ(TokenQueue("a-b_c:d").consumeCssIdentifier(), "a-b_c");
    EXPECT_EQ(TokenQueue("a-b_c:d=e").consumeAttributeKey(), "a-b_c:d");
    EXPECT_EQ(TokenQueue("k ^= v").consumeToAny({"=", "^="}), "k ");
    EXPECT_EQ(TokenQueue("aXb").chompToIgnoreCase("x"), "a");
    EXPECT_EQ(TokenQueue("e\u0301\u0663x!").consumeWord(), "e\u0301\u0663x");
    EXPECT_EQ(TokenQueue("\xff<").consume(), "\ufffd");
}

TEST(TokenQueueTest, TakesWhatStandsBetweenBrackets) {
    const struct {
        const char *text, *inside, *rest;
    } cases[] = {
        {"(one (two) three) four", "one (two) three", " four"},
        {"(a \\) b) c", "a \\) b", " c"},
        {"(a \\\\) c", "a \\\\", " c"},
        {"(a ')' b) c", "a ')' b", " c"},
        {"(a \"(\" b) c", "a \"(\" b", " c"},
        {"() c", "", " c"},
        {"(a", "", ""},
        {"(a ' )", "", ""},
        {"(a\\", "", ""},
        {"", "", ""},
    };
    for (const auto &row : cases) {
        TokenQueue queue(row.text);
        EXPECT_EQ(queue.chompBalanced('(', ')'), row.inside) << row.text;
        EXPECT_EQ(queue.remainder(), row.rest) << row.text;
    }
}

TEST(TokenQueueTest, Unescapes) {
    EXPECT_EQ(TokenQueue::unescape("one \\( \\\\ two\\"), "one ( \\ two\\");
    EXPECT_EQ(TokenQueue::unescape("\\\\\\a"), "\\a");
}

} // namespace
} // namespace orl::html
