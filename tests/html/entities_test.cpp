// The named characters, escaping and unescaping.
#include "character_reader.h"
#include "escape.h"

#include <orl/html/entities.h>
#include <orl/html/output_settings.h>

#include <gtest/gtest.h>

namespace orl::html {
namespace {

using Mode = Entities::EscapeMode;

TEST(EntitiesTest, HasThePublishedTables) {
    EXPECT_EQ(Mode::xhtml().tableText(), "amp=12;1\ngt=1q;3\nlt=1o;2\nquot=y;0");
    EXPECT_EQ(Mode::base().tableText().size(), 1215U);
    EXPECT_EQ(Mode::extended().tableText().size(), 31799U);
    EXPECT_EQ(Mode::xhtml().entitiesByName().size(), 4U);
    EXPECT_EQ(Mode::base().entitiesByName().size(), 106U);
    EXPECT_EQ(Mode::extended().entitiesByName().size(), 2125U);
    std::array<char32_t, 2> scalars;
    int two = 0;
    for (const auto &entry : Mode::extended().entitiesByName())
        two += Entities::codepointsForName(entry.name, scalars) == 2;
    EXPECT_EQ(two, 93);
}

TEST(EntitiesTest, AgreesBetweenTheTables) {
    for (const Mode *mode : {&Mode::xhtml(), &Mode::base()}) {
        for (const auto &entry : mode->entitiesByName())
            EXPECT_EQ(Mode::extended().codepointForName(entry.name), entry.scalar) << entry.name;
    }
}

TEST(EntitiesTest, FindsNamesAndScalars) {
    EXPECT_EQ(Mode::base().codepointForName("eacute"), U'é');
    EXPECT_EQ(Mode::base().codepointForName("hearts"), std::nullopt);
    EXPECT_EQ(Mode::base().codepointForName(""), std::nullopt);
    EXPECT_EQ(Mode::base().nameForCodepoint('&'), "amp");
    EXPECT_EQ(Mode::xhtml().nameForCodepoint('>'), "gt");
    EXPECT_EQ(Mode::xhtml().nameForCodepoint(0xe9), "");
    EXPECT_EQ(Mode::extended().nameForCodepoint(0), "");
    EXPECT_TRUE(Entities::isNamedEntity("hearts"));
    EXPECT_FALSE(Entities::isBaseNamedEntity("hearts"));
    EXPECT_EQ(Entities::getByName("NotEqualTilde"), "\u2242\u0338");
    EXPECT_EQ(Entities::getByName("hearts"), "♥");
    EXPECT_EQ(Entities::getByName("nothing"), "");
}

struct EscapeCase {
    const char *name;
    std::string_view text;
    std::string_view expected;
    const Mode &mode = Mode::base();
    const char *charset = "UTF-8";
    bool inAttribute = false, normaliseWhite = false, stripLeadingWhite = false;
};

using namespace std::string_view_literals;

TEST(EntitiesTest, Escapes) {
    const EscapeCase cases[] = {
        {"markup", "<a&b>", "&lt;a&amp;b&gt;"},
        {"quotes outside", "\"'", "\"'"},
        {"attribute", "<a&b>\"'", "<a&amp;b>&quot;'", Mode::base(), "UTF-8", true},
        {"attribute of XHTML", "<a>", "&lt;a>", Mode::xhtml(), "UTF-8", true},
        {"no-break space", "a\u00a0b", "a&nbsp;b"},
        {"no-break space in XHTML", "a\u00a0b", "a&#xa0;b", Mode::xhtml()},
        {"other letters of the same lead byte", "£é日😀", "£é日😀"},
        {"ASCII", "é日😀", "&eacute;&#x65e5;&#x1f600;", Mode::base(), "ascii"},
        {"ASCII, all names", "é∉日😀", "&eacute;&notinva;&#x65e5;&#x1f600;", Mode::extended(), "ascii"},
        {"beyond the first plane always by number", "\U0001d504", "&#x1d504;", Mode::extended(), "ascii"},
        {"Latin-1", "é€", "é&#x20ac;", Mode::base(), "ISO-8859-1"},
        {"one digit is padded", "\x05", "\x05", Mode::base(), "ascii"},
        {"white kept", " a \n b ", " a \n b "},
        {"white normalised", " \na \t\v b  ", " a b ", Mode::base(), "UTF-8", false, true},
        {"white stripped", " \na  b", "a b", Mode::base(), "UTF-8", false, true, true},
        {"only white", " \n ", " ", Mode::base(), "UTF-8", false, true},
        {"only white, stripped", " \n ", "", Mode::base(), "UTF-8", false, true, true},
        {"white in ASCII", " \ná  b", " &aacute; b", Mode::base(), "ascii", false, true},
        {"long runs", "0123456789 0123456789  0123456789 &0123456789 0123456789\n.",
         "0123456789 0123456789 0123456789 &amp;0123456789 0123456789 .", Mode::base(), "UTF-8", false, true},
        {"controls are no white space", "a\x01 b", "a\x01 b", Mode::base(), "UTF-8", false, true},
        {"cut off sequence", "ab\xc2"sv, "ab\xc2"sv},
    };
    for (const EscapeCase &c : cases) {
        OutputSettings settings;
        settings.escapeMode(c.mode).charset(c.charset);
        std::string out;
        Entities::escape(out, c.text, settings, c.inAttribute, c.normaliseWhite, c.stripLeadingWhite);
        EXPECT_EQ(out, c.expected) << c.name;
    }
    EXPECT_EQ(Entities::escape("<é>"), "&lt;é&gt;");
}

TEST(EntitiesTest, Unescapes) {
    EXPECT_EQ(Entities::unescape("&lt;a&gt; &amp b&unknown; &#65;&"), "<a> & b&unknown; A&");
    EXPECT_EQ(Entities::unescape("?a&lt=1"), "?a<=1");
    EXPECT_EQ(Entities::unescape("?a&lt=1", true), "?a&lt=1");
    EXPECT_EQ(Entities::unescape("a\xff&amp;\xe6\x97"), "a\ufffd&\ufffd");
    std::string text;
    for (const auto &entry : Mode::extended().entitiesByName())
        text.append("&").append(entry.name).append(";");
    std::string expected;
    for (const auto &entry : Mode::extended().entitiesByName())
        expected += Entities::getByName(entry.name);
    EXPECT_EQ(Entities::unescape(text), expected);
}

/// Names of two scalars stand under their first one, and the last name in order is taken.
TEST(EntitiesTest, NamesOfTwoScalarsMayStandForTheirFirst) {
    OutputSettings settings;
    settings.escapeMode(Mode::extended()).charset("US-ASCII");
    EXPECT_EQ(Entities::escape("\u228a", settings), "&vsubne;");
    EXPECT_EQ(Entities::unescape("&vsubne;"), "\u228a\ufe00");
    settings.charset("UTF-8");
    EXPECT_EQ(Entities::escape("\u228a", settings), "\u228a");
}

TEST(EntitiesTest, KnowsEncodings) {
    EXPECT_EQ(TextEncoding::named("utf8")->name(), "UTF-8");
    EXPECT_EQ(TextEncoding::named("latin1")->name(), "ISO-8859-1");
    EXPECT_EQ(TextEncoding::named("ascii"), TextEncoding::ascii());
    EXPECT_FALSE(TextEncoding::named("no such charset"));
    EXPECT_FALSE(TextEncoding::named(""));
    EXPECT_TRUE(TextEncoding::named("koi8-r")->canEncode(U'я'));
    EXPECT_FALSE(TextEncoding::named("koi8-r")->canEncode(U'é'));
}

TEST(CharacterReaderTest, MovesByScalarsAndRuns) {
    const core::PaddedText text("aé日😀 bc12 <tag/>]]>x");
    core::CharacterReader reader(text.view());
    EXPECT_EQ(reader.consumeLetterThenDigitSequence(), "aé日");
    EXPECT_EQ(reader.getPos(), 3U);
    EXPECT_EQ(reader.consume(), U'😀');
    reader.unconsume();
    EXPECT_EQ(reader.consumeAsString(), "😀");
    EXPECT_TRUE(reader.matchConsume(' '));
    reader.markPos();
    EXPECT_EQ(reader.consumeLetterThenDigitSequence(), "bc12");
    reader.rewindToMark();
    EXPECT_EQ(reader.getPos(), 5U);
    EXPECT_EQ(reader.consumeData(), "bc12 ");
    reader.advance();
    EXPECT_TRUE(reader.matches("TAG", true));
    EXPECT_FALSE(reader.matches("TAG"));
    EXPECT_EQ(reader.consumeTagName(), "tag");
    EXPECT_TRUE(reader.containsIgnoreCase("]]>X"));
    EXPECT_FALSE(reader.containsIgnoreCase("</tag"));
    EXPECT_EQ(reader.consumeTo("]]>"), "/>");
    EXPECT_EQ(reader.consumeToAny("x"), "]]>");
    EXPECT_EQ(reader.consumeToEnd(), "x");
    EXPECT_EQ(reader.consume(), core::CharacterReader::endOfInput);
    EXPECT_TRUE(reader.isEmpty());
}

TEST(Utf8Test, ReplacesWhatIsIllFormed) {
    struct Case {
        std::string_view text, expected;
    };
    const Case cases[] = {
        {"abc", "abc"},
        {"a\xff"
         "b",
         "a\ufffd"
         "b"},
        {"\xc3", "\ufffd"},
        {"\xc0\x80", "\ufffd\ufffd"},
        {"\xe0\x80\x80", "\ufffd\ufffd\ufffd"},
        {"\xed\xa0\x80", "\ufffd\ufffd\ufffd"},
        {"\xe6\x97z", "\ufffdz"},
        {"\xf0\x9f\x98", "\ufffd"},
        {"\xf4\x90\x80\x80", "\ufffd\ufffd\ufffd\ufffd"},
        {"日\x97本", "日\ufffd本"},
    };
    for (const Case &c : cases) {
        EXPECT_EQ(core::repaired(c.text), c.expected);
        EXPECT_EQ(core::validPrefix(c.expected), c.expected.size());
    }
}

} // namespace
} // namespace orl::html
