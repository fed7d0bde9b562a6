// The small helpers: text accumulator, white space, ordered set, URL resolving.
#include "page.h"

#include <orl/html/data_util.h>
#include <orl/html/ordered_set.h>
#include <orl/html/simple_dictionary.h>
#include <orl/html/string_builder.h>
#include <orl/html/string_util.h>

namespace orl::html {
namespace {

using Words = OrderedSet<std::string>;

TEST(StringBuilderTest, PiecesAreJoinedWhenAskedFor) {
    StringBuilder text;
    EXPECT_TRUE(text.isEmpty());
    text.append("a")
        .append(std::string("b"))
        .append('c')
        .append(U'\u00e4')
        .append(42)
        .append(true)
        .appendLine("x");
    text.appendCodePoint(0x1f600).appendCodePoints(std::u32string_view(U"\u00df!"));
    EXPECT_EQ(text.toString(), "abc\u00e442truex\n\U0001f600\u00df!");
    EXPECT_EQ(text.length(), 15U);
    EXPECT_TRUE(text.clear().isEmpty());
    EXPECT_FALSE(text.append("").isEmpty()) << "an empty piece is a piece";
    EXPECT_EQ(text.toString(), "");
    EXPECT_EQ(failure([&] { text.appendCodePoint(0xd800); }), "Not a Unicode scalar");
}

TEST(StringUtilTest, Padding) {
    for (const int width : {-5, 0, 1, 10, 11, 200})
        EXPECT_EQ(StringUtil::padding(width), std::string(width > 0 ? std::size_t(width) : 0, ' '));
}

TEST(StringUtilTest, KindsOfText) {
    struct Case {
        const char *text;
        bool blank, numeric;
    };
    for (const Case &c : {Case{"", true, false},
                          {" \t\n\f\r", true, false},
                          {"\r\n", true, false},
                          {"\v", false, false},
                          {"\u00a0", false, false},
                          {"12", false, true},
                          {"12a", false, false},
                          {"-1", false, false},
                          {" x ", false, false}}) {
        EXPECT_EQ(StringUtil::isBlank(c.text), c.blank) << c.text;
        EXPECT_EQ(StringUtil::isNumeric(c.text), c.numeric) << c.text;
    }
    EXPECT_TRUE(StringUtil::isWhitespace("\r\n"));
    EXPECT_FALSE(StringUtil::isWhitespace("\v"));
    EXPECT_FALSE(StringUtil::isWhitespace("\u00a0"));
}

TEST(StringUtilTest, WhiteSpaceCollapses) {
    struct Case {
        const char *text, *kept, *stripped;
    };
    const Case cases[] = {
        {"", "", ""},
        {"   ", " ", ""},
        {" a  b\r\n\tc ", " a b c ", "a b c "},
        {"\va\v", "\va\v", "\va\v"},
        {"one two three four five six seven eight", "one two three four five six seven eight",
         "one two three four five six seven eight"},
        {"0123456789abcde  0123456789abcde\n 0123456789", "0123456789abcde 0123456789abcde 0123456789",
         "0123456789abcde 0123456789abcde 0123456789"},
        {"\u00e4\u00a0 \u00a0", "\u00e4\u00a0 \u00a0", "\u00e4\u00a0 \u00a0"},
    };
    for (const Case &c : cases) {
        EXPECT_EQ(StringUtil::normaliseWhitespace(c.text), c.kept);
        StringBuilder kept, stripped;
        StringUtil::appendNormalisedWhitespace(kept, c.text, false);
        StringUtil::appendNormalisedWhitespace(stripped, c.text, true);
        EXPECT_EQ(kept.toString(), c.kept);
        EXPECT_EQ(stripped.toString(), c.stripped);
    }
    const std::string words[] = {"a", "", "b"};
    EXPECT_EQ(StringUtil::join(words, ", "), "a, , b");
}

/// What the vectors do at the borders of a block of 16 bytes, against a walk byte by byte.
TEST(StringUtilTest, WhiteSpaceCollapsesTheSameAtEveryPlace) {
    const std::string_view alphabet = "a \n\t\f\r\b\x0e<&\v\xc2\xa0";
    unsigned state = 1;
    for (int round = 0; round < 3000; ++round) {
        std::string text, expected, escaped;
        for (std::size_t i = 0, size = state % 60; i < size; ++i) {
            state = state * 1664525 + 1013904223;
            const std::size_t pick = (state >> 16) % 24;
            text += pick < 11 ? alphabet.substr(pick, 1) : pick == 11 ? alphabet.substr(11) : "a";
        }
        bool blank = false;
        for (const char c : text) {
            const bool white = c == ' ' || c == '\n' || c == '\t' || c == '\f' || c == '\r';
            if (!white) expected += c;
            if (white && !blank) expected += ' ';
            blank = white;
        }
        const Document document("");
        const Element span =
            document.appendElement("b").appendElement("span").attr("title", text).appendText(text);
        EXPECT_EQ(span.textNodes().at(0).text(), expected) << text;

        OutputSettings &settings = document.outputSettings();
        std::string collapsed, value;
        Entities::escape(value, text, settings, true);
        Entities::escape(collapsed, text, settings, false, true);
        EXPECT_EQ(span.outerHtml(), "<span title=\"" + value + "\">" + collapsed + "</span>");
        settings.prettyPrint(false);
        EXPECT_EQ(span.html(), Entities::escape(text)) << text;
    }
}

TEST(StringUtilTest, Resolve) {
    struct Case {
        const char *base, *relative, *absolute;
    };
    const Case cases[] = {
        {"http://a.b/c/d?q", "/x", "http://a.b/x"},
        {"http://a.b/c/d?q", "x", "http://a.b/c/x"},
        {"http://a.b/c/d?q", "../x?y#z", "http://a.b/x?y#z"},
        {"http://a.b/c/d?q", "?r", "http://a.b/c/d?r"},
        {"http://a.b/c/d?q", "//e.f/g", "http://e.f/g"},
        {"http://a.b/c/d?q", "https://e.f/", "https://e.f/"},
        {"http://a.b", "x y/\u00e4?100%", "http://a.b/x%20y/%C3%A4?100%25"},
        {"http://a.b/", "mailto:a@b.c", "mailto:a@b.c"},
        {"", "/x", ""},
        {"", "http://a.b/x", "http://a.b/x"},
        {"a/b", "x", ""},
        {"a/b", "http://a.b/x", "http://a.b/x"},
    };
    for (const Case &c : cases)
        EXPECT_EQ(StringUtil::resolve(c.base, c.relative), c.absolute) << c.base << ' ' << c.relative;
}

TEST(OrderedSetTest, PlacesStayExact) {
    Words set{"a", "b", "c", "b"};
    const auto expectOrder = [&set](std::vector<std::string> order) {
        EXPECT_THAT(std::vector<std::string>(set.begin(), set.end()), testing::ElementsAreArray(order));
        for (std::size_t i = 0; i < order.size(); ++i)
            EXPECT_EQ(set.index(order[i]), i) << order[i];
        EXPECT_EQ(set.count(), order.size());
    };
    expectOrder({"a", "b", "c"});
    set.append("a");
    expectOrder({"a", "b", "c"});
    set.insertAll(std::vector<std::string>{"x", "b", "y"}, 1);
    expectOrder({"a", "x", "y", "b", "c"});
    set.move(0, 3);
    expectOrder({"x", "y", "b", "a", "c"});
    set.move(4, 1);
    expectOrder({"x", "c", "y", "b", "a"});
    set.moveObject("a", 0);
    set.swap("x", "b");
    expectOrder({"a", "b", "c", "y", "x"});
    set.remove("b");
    set.removeObject(0);
    set.remove("none");
    expectOrder({"c", "y", "x"});
    EXPECT_EQ(set.toString(), "OrderedSet (3 object(s)): [c, y, x]");
    EXPECT_EQ(set.first(), "c");
    EXPECT_EQ(set.last(), "x");
    EXPECT_FALSE(set.index("a"));
    EXPECT_TRUE(set.intersects({"q", "y"}));
    EXPECT_FALSE(set.intersects({"q"}));
    EXPECT_TRUE(Words({"x", "c"}).isSubset(set));
    EXPECT_FALSE(set.isSubset({"x", "c"}));
    set.removeAllObjects();
    EXPECT_TRUE(set.isEmpty());
    EXPECT_FALSE(set.first());
}

TEST(OrderedSetDeathTest, APlaceThatDoesNotExistStopsTheProgram) {
    Words set{"a"};
    EXPECT_DEATH(set.removeObject(1), "Attempting to remove an object at an index that does not exist");
    EXPECT_DEATH(set.moveObject("b", 0), "Attempting to move an object at an index that does not exist");
    EXPECT_DEATH(set.move(0, 1), "Attempting to move an object at or to an index that does not exist");
    EXPECT_DEATH(set.insert("b", 2), "Attempting to insert an object at an index that does not exist");
}

TEST(SimpleDictionaryTest, IsAMap) {
    SimpleDictionary<std::string, int> map;
    map.put("a", 1);
    map.put("b", 2);
    map.put("a", 3);
    map.remove("b");
    EXPECT_EQ(map.get("a"), 3);
    EXPECT_FALSE(map.get("b"));
    EXPECT_THAT(map.keySet(), testing::ElementsAre("a"));
    EXPECT_TRUE(map.containsKey("a"));
    map.clear();
    EXPECT_EQ(map.count(), 0U);
}

class FileTest : public testing::Test {
protected:
    ~FileTest() override { std::filesystem::remove(path); }
    void write(std::string_view text) const { std::ofstream(path, std::ios::binary) << text; }

    const std::filesystem::path path = testing::TempDir() + "orl_html_file_test.html";
};

TEST_F(FileTest, LinesWhateverTheChunks) {
    for (const std::size_t chunk : {1, 2, 3, 4096}) {
        write("one\r\n\r\ntwo\rthree\r\r\nend");
        StreamReader reader(path, "\r\n", {}, chunk);
        for (int round = 0; round < 2; ++round) {
            EXPECT_EQ(reader.nextLine(), "one");
            EXPECT_EQ(reader.nextLine(), "");
            EXPECT_EQ(reader.nextLine(), "two\rthree\r");
            EXPECT_EQ(reader.nextLine(), "end");
            EXPECT_FALSE(reader.nextLine());
            EXPECT_TRUE(reader.atEof());
            reader.rewind();
        }
    }
}

TEST_F(FileTest, PagesInFiles) {
    write("\xef\xbb\xbf<title>a</title>\n<pre>\nb\n");
    EXPECT_EQ(DataUtil::load(path, "http://h/").title(), "a");
    EXPECT_EQ(DataUtil::load(path, "http://h/").body().textNodes().size(), 0U);
    write("<p>\xe4\n\xdf");
    EXPECT_EQ(DataUtil::load(path, "", *TextEncoding::named("latin1")).text(), "\u00e4 \u00df");
    EXPECT_EQ(DataUtil::load(path, "").text(), "\ufffd \ufffd");
    EXPECT_EQ(failure([&] { DataUtil::load(path.string() + ".none", ""); }, ExceptionType::IOException),
              "Cannot open " + path.string() + ".none");
}

} // namespace
} // namespace orl::html
