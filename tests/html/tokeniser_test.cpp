// Pages and the tokens that come of them.
#include "tokeniser.h"

#include <orl/html/exception.h>

#include <gtest/gtest.h>
#include <memory>

namespace orl::html::core {
namespace {

struct ArenaDeleter {
    void operator()(Arena *arena) const { arena->destroy(); }
};
using ArenaPtr = std::unique_ptr<Arena, ArenaDeleter>;

/// Text stands in single quotes, "/>" shows the self-closing mark, "?!" a bogus comment.
std::string describe(Token &token) {
    switch (token.type) {
    case TokenType::StartTag: {
        std::string text = token.toString();
        if (token.asStartTag().selfClosing) text.insert(text.size() - 1, "/");
        return text;
    }
    case TokenType::EndTag: return token.toString();
    case TokenType::Comment: return std::string(token.asComment().bogus ? "?!" : "").append(token.toString());
    case TokenType::Char: return std::string("'").append(token.toString()).append("'");
    case TokenType::Doctype: {
        const auto &doctype = token.asDoctype();
        return "<!doctype " + doctype.name + "|" + doctype.pubSysKey.value_or("-") + "|" +
               doctype.publicIdentifier + "|" + doctype.systemIdentifier +
               (doctype.forceQuirks ? "|quirks>" : ">");
    }
    case TokenType::Eof: return "";
    }
    return "";
}

/// How the tree builder sets the tokeniser behind some start tags.
void followTag(Tokeniser &tokeniser, const Token::Tag &tag) {
    switch (tag.id()) {
    case TagId::Title:
    case TagId::Textarea: return tokeniser.transition(TokeniserState::Rcdata);
    case TagId::Style: return tokeniser.transition(TokeniserState::Rawtext);
    case TagId::Script: return tokeniser.transition(TokeniserState::ScriptData);
    case TagId::Plaintext: return tokeniser.transition(TokeniserState::PLAINTEXT);
    default: return;
    }
}

std::string tokens(std::string_view page, ParseErrorList *errors = nullptr,
                   const ParseSettings &settings = ParseSettings::htmlDefault) {
    const ArenaPtr arena(Arena::create(page.size()));
    CharacterReader reader({arena->retain(page), page.size()});
    Tokeniser tokeniser(reader, *arena, errors, settings);
    std::string dump;
    for (;;) {
        Token &token = tokeniser.read();
        if (token.isEOF()) return dump;
        dump += describe(token);
        if (token.isStartTag()) {
            followTag(tokeniser, token.asStartTag());
            tokeniser.acknowledgeSelfClosingFlag();
        }
    }
}

struct Case {
    const char *name;
    std::string_view page;
    std::string_view expected;
};

void check(std::initializer_list<Case> cases) {
    for (const Case &c : cases)
        EXPECT_EQ(tokens(c.page), c.expected) << c.name << ": " << c.page;
}

using namespace std::string_view_literals;

TEST(TokeniserTest, ReadsTextAndTags) {
    check({
        {"nothing", "", ""},
        {"text", "a b\nc", "'a b\nc'"},
        {"tags", "<p>a</p>", "<p>'a'</p>"},
        {"upper case", "<DIV>a</Div>", "<DIV>'a'</Div>"},
        {"long text", "0123456789012345678901234567890123456789<b>",
         "'0123456789012345678901234567890123456789'<b>"},
        {"letters of any script open a tag", "<日本>a</日本>", "<日本>'a'</日本>"},
        {"a sign does not", "a<1>b < c", "'a<1>b < c'"},
        {"self-closing", "<br/><x />", "<br/><x/>"},
        {"slash within", "<a / b/ c>", "<a b c>"},
        {"end tag without a name", "a</>b", "'ab'"},
        {"end of page in a tag", "a<b", "'a'"},
        {"end of page in an attribute", "a<b c='d", "'a'"},
        {"end of page behind the sign", "a<", "'a<'"},
        {"end of page behind the slash", "a</", "'a</'"},
        {"NUL in a name", "<a\0b>"sv,
         "<a\xef\xbf\xbd"
         "b>"},
        {"NUL in text stays for the tree builder", "a\0b"sv, "'a\0b'"sv},
        {"a name ends at any white space", "<a\tb\fc\nd\re>", "<a b c d e>"},
        {"the scalar that stands for the end ends the page",
         "<b>\xef\xbf\xbf"
         "abc",
         "<b>"},
        {"and is text within text",
         "a\xef\xbf\xbf"
         "b",
         "'a\xef\xbf\xbf"
         "b'"},
    });
}

TEST(TokeniserTest, ReadsAttributes) {
    check({
        {"all forms", R"(<a b="1" c='2' d=3 e f="">)", R"(<a b="1" c="2" d="3" e f="">)"},
        {"blanks around the sign", "<a b = 1 c= '2'>", R"(<a b="1" c="2">)"},
        {"lower case", "<a HREF=X>", R"(<a href="X">)"},
        {"lower case of other letters", "<a ÄÖ=X>", R"(<a äö="X">)"},
        {"the last value in the first place", "<a x=1 y=2 x=3>", R"(<a x="3" y="2">)"},
        {"written differently is another attribute", "<a x=1 X=2>", R"(<a x="1" x="2">)"},
        {"a value can lose its value", "<a x=1 x>", "<a x>"},
        {"no value before the end", "<a b=>", "<a b>"},
        {"no blank between", R"(<a b="1"c="2">)", R"(<a b="1" c="2">)"},
        {"signs in a name", R"(<a b"c'd<e=1>)", R"(<a b"c'd<e="1">)"},
        {"name starts with the sign", "<a =b=c>", R"(<a =b="c">)"},
        {"signs in an unquoted value", R"(<a b=c"d'e<f=g`h>)", R"(<a b="c"d'e<f=g`h">)"},
        {"unquoted value with slash", "<a b=c/d/>", R"(<a b="c/d/">)"},
        {"NUL", "<a b\0=c\0 d=\"\0\">"sv, "<a b\xef\xbf\xbd=\"c\xef\xbf\xbd\" d=\"\xef\xbf\xbd\">"},
        {"greater sign in quotes", "<a b='>'>c", R"(<a b=">">'c')"},
        {"line feeds in quotes", "<a b='c\nd'>", "<a b=\"c\nd\">"},
        {"surrounded by odd white space",
         "<a \x0b"
         "b\xc2\xa0=1 \x0b>",
         R"(<a b="1">)"},
        {"attributes of an end tag", "<a></a b=1>", "<a></a>"},
    });
}

// A long tag is told from a short one, a name of the page's own from a known one and from one in other
// letters, and a tag's names from those of the long tag before it, where they stand elsewhere.
TEST(TokeniserTest, FindsRepeatedAttributesAmongMany) {
    for (const int count : {11, 12, 13, 5000}) {
        SCOPED_TRACE(count);
        std::string page, expected;
        for (const int first : {0, 3}) {
            page += "<a class=1 Class=1 viewBox=1";
            expected += "<a class=\"3\" class=\"2\" viewbox=\"2\"";
            for (int i = first; i < count; ++i)
                page += " n" + std::to_string(i) + "=1 N" + std::to_string(i) + "=1";
            for (int i = first; i < count; i += 2)
                page += " n" + std::to_string(i) + "=2";
            page += " class=2 Class=2 viewBox=2 class = 3>"; // the last one is none of the plain ones
            for (int i = first; i < count; ++i) {
                const std::string name = " n" + std::to_string(i);
                expected += name + ((i - first) % 2 ? "=\"1\"" : "=\"2\"") + name + "=\"1\"";
            }
            expected += ">";
        }
        EXPECT_EQ(tokens(page), expected);
    }
}

TEST(TokeniserTest, ResolvesReferences) {
    check({
        {"with a semicolon", "&lt;&amp;&notin;", "'<&∉'"},
        {"without one in the base set", "&amp x", "'& x'"},
        {"without one elsewhere", "&notin x", "'&notin x'"},
        {"the longest name counts", "&amper;&copy1", "'&amper;&copy1'"},
        {"two scalars", "&NotEqualTilde;", "'\u2242\u0338'"},
        {"decimal", "&#65;&#66", "'AB'"},
        {"hexadecimal", "&#x41;&#X42;&#x1F600;", "'AB😀'"},
        {"no digits", "&#;&#x;&#xg", "'&#;&#x;&#xg'"},
        {"no remapping", "&#128;", "'\u0080'"},
        {"surrogate", "&#xD800;", "'\ufffd'"},
        {"too large", "&#x110000;&#99999999999999999999;", "'\ufffd\ufffd'"},
        {"no reference", "a & b && c &", "'a & b && c &'"},
        {"unknown", "&unknown; &é;", "'&unknown; &é;'"},
        {"in a value", R"(<a b="&lt;&#65;c">)", R"(<a b="<Ac">)"},
        {"in a query", R"(<a b="?a=1&copy=2&lt3&gt_&amp-">)", R"(<a b="?a=1&copy=2&lt3&gt_&amp-">)"},
        {"at the end of a value", "<a b='&lt' c=&gt>", R"(<a b="<" c=">">)"},
        {"the quote ends it", R"(<a b="&">)", R"(<a b="&">)"},
        {"in the middle of long text", "0123456789abcdef&amp;0123456789abcdef",
         "'0123456789abcdef&0123456789abcdef'"},
    });
}

TEST(TokeniserTest, ReadsCommentsAndDeclarations) {
    check({
        {"comment", "<!-- a -->", "<!-- a -->"},
        {"dashes", "<!---a-b--c---->", "<!---a-b--c---->"},
        {"empty", "<!----><!--><!--->", "<!----><!----><!---->"},
        {"bang", "<!--a--!><!--a--!b-->", "<!--a--><!--a--!b-->"},
        {"bang and dash", "<!--a--!-->", "<!--a--!-->"},
        {"unclosed", "<!--a--", "<!--a-->"},
        {"NUL", "<!--\0-\0--\0-->"sv, "<!--\ufffd-\ufffd--\ufffd-->"},
        {"declaration of XML", "<?xml a?>b", "?!<!--?xml a?-->'b'"},
        {"unknown declaration", "<!x>a", "?!<!--!x-->'a'"},
        {"end tag with a sign", "</ a>b", "?!<!-- a-->'b'"},
        {"unclosed declaration", "<?a", "?!<!--?a-->"},
        {"character data", "a<![CDATA[<b>&amp;]]>c", "'a<b>&amp;c'"},
        {"unclosed character data", "<![CDATA[<b>]]", "'<b>]]'"},
        {"in another case", "<![cdata[x]]>", "?!<!--![cdata[x]]-->"},
    });
}

TEST(TokeniserTest, ReadsDocumentTypes) {
    check({
        {"plain", "<!DOCTYPE html>", "<!doctype html|-||>"},
        {"any case", "<!docTYPE HTML >", "<!doctype html|-||>"},
        {"public", R"(<!doctype html PUBLIC "a" 'b'>)", "<!doctype html|PUBLIC|a|b>"},
        {"public only", "<!doctype html public 'a'>", "<!doctype html|PUBLIC|a|>"},
        {"system", "<!doctype html SYSTEM \"b\">", "<!doctype html|SYSTEM||b>"},
        {"no blanks", R"(<!doctypehtml PUBLIC"a""b">)", "<!doctype html|PUBLIC|a|b>"},
        {"no name", "<!doctype>", "<!doctype |-|||quirks>"},
        {"unclosed", "<!doctype html", "<!doctype html|-|||quirks>"},
        {"no identifier", "<!doctype html PUBLIC>", "<!doctype html|PUBLIC|||quirks>"},
        {"unclosed identifier", "<!doctype html PUBLIC 'a>", "<!doctype html|PUBLIC|a||quirks>"},
        {"something else", "<!doctype html x 'y'>a", "<!doctype html|-|||quirks>'a'"},
        {"behind all", "<!doctype html SYSTEM 'b' x>a", "<!doctype html|SYSTEM||b>'a'"},
        {"NUL", "<!doctype a\0b>"sv,
         "<!doctype a\ufffd"
         "b|-||>"},
    });
}

TEST(TokeniserTest, ReadsTextOfTitlesToTheirEnd) {
    check({
        {"closed", "<title>a<b>&amp;</title>c", "<title>'a<b>&'</title>'c'"},
        {"closed in upper case", "<title>a<b></TITLE>c", "<title>'a<b>'</TITLE>'c'"},
        {"mixed case is not looked for ahead", "<title>a<b>c</Title>", "<title>'a'</title><b>'c'</Title>"},
        {"never closed", "<title>Hello", "<title>'Hello'"},
        {"never closed, cut at the next tag", "<title>a<b>c", "<title>'a'</title><b>'c'"},
        {"an end tag of another name is text", "<title>a</b></title>", "<title>'a</b>'</title>"},
        {"blanks in the end tag", "<title>a</title >b", "<title>'a'</title>'b'"},
        {"slash in the end tag", "<title>a</title/>b", "<title>'a'</title>'b'"},
        {"a longer name", "<title>a</titles></title>", "<title>'a</titles>'</title>"},
        {"end of page in the end tag", "<title>a</title", "<title>'a</title'"},
        {"NUL", "<textarea>\0</textarea>"sv, "<textarea>'\ufffd'</textarea>"},
    });
}

TEST(TokeniserTest, ReadsRawText) {
    check({
        {"style", "<style>a<b>&amp;</b></STYLE>c", "<style>'a<b>&amp;</b>'</STYLE>'c'"},
        {"unclosed style", "<style>a</styl", "<style>'a</styl'"},
        {"plain text", "<plaintext>a</plaintext><b>", "<plaintext>'a</plaintext><b>'"},
        {"NUL in plain text", "<plaintext>\0"sv, "<plaintext>'\ufffd'"},
        {"script", "<script>a<b>'</p>'</script>c", "<script>'a<b>'</p>''</script>'c'"},
        {"comment in a script", "<script><!-- </script>a", "<script>'<!-- '</script>'a'"},
        {"script in its comment", "<script><!--<script>a</script>b--></script>c",
         "<script>'<!--<script>a</script>b-->'</script>'c'"},
        {"other tags in its comment", "<script><!--<b></b>--></script>c",
         "<script>'<!--<b></b>-->'</script>'c'"},
        {"dashes end the comment", "<script><!--<script>---></script>c",
         "<script>'<!--<script>--->'</script>'c'"},
        {"unclosed comment", "<script><!-- a", "<script>'<!-- a'"},
        {"NUL in a script", "<script>\0<!--\0<script \0"sv, "<script>'\ufffd<!--\ufffd<script \ufffd'"},
    });
}

TEST(TokeniserTest, KeepsCaseWhenToldTo) {
    EXPECT_EQ(tokens("<A Bc=D></A>", nullptr, ParseSettings::preserveCase), R"(<A Bc="D"></A>)");
    EXPECT_EQ(tokens("<A b=1 B=2 b=3>", nullptr, ParseSettings::preserveCase), R"(<A b="3" B="2">)");
    const std::string many = " C D E F G H I J K L M N O"; // their names are read another way
    EXPECT_EQ(tokens("<A" + many + " b=1 B=2 b=3>", nullptr, ParseSettings::preserveCase),
              "<A" + many + R"( b="3" B="2">)");
}

TEST(TokeniserTest, GivesViewsWhereNothingChanges) {
    const std::string page = "<a href='x'>text</a><!-- c --><script>a < b && '</x'</script>";
    const ArenaPtr arena(Arena::create(page.size()));
    const char *const begin = arena->retain(page), *const end = begin + page.size();
    CharacterReader reader({begin, page.size()});
    Tokeniser tokeniser(reader, *arena, nullptr, ParseSettings::htmlDefault);
    const auto inPage = [&](std::string_view text) {
        return text.data() >= begin && text.data() + text.size() <= end;
    };
    int views = 0;
    for (;;) {
        Token &token = tokeniser.read();
        if (token.isEOF()) break;
        if (token.isStartTag()) followTag(tokeniser, token.asStartTag());
        if (token.isStartTag() && !token.asStartTag().attributes.empty())
            views += inPage({token.asStartTag().attributes[0].value, 1});
        if (token.isCharacter()) views += inPage(token.asCharacter().data);
        if (token.isComment()) views += inPage(token.asComment().data);
    }
    EXPECT_EQ(views, 4);
}

TEST(TokeniserTest, RefusesASecondTokenBeforeTheFirstIsRead) {
    const ArenaPtr arena(Arena::createLoose());
    CharacterReader reader({arena->retain(""), 0});
    Tokeniser tokeniser(reader, *arena, nullptr, ParseSettings::htmlDefault);
    Token::EndTag end;
    end.resetTo(TagId::P);
    tokeniser.emit(end);
    try {
        tokeniser.emit(end);
        FAIL();
    } catch (const Exception::Error &error) {
        EXPECT_EQ(error.Message, "There is an unread token pending!");
        EXPECT_EQ(error.type, ExceptionType::IllegalArgumentException);
    }
}

std::string errorsOf(std::string_view page, std::size_t limit = 100) {
    auto errors = ParseErrorList::tracking(limit);
    tokens(page, &errors);
    std::string text;
    for (const ParseError &error : errors)
        text += error.toString() + "\n";
    return text;
}

TEST(TokeniserTest, RecordsErrors) {
    const Case cases[] = {
        {"none", "<!doctype html><p a=\"b\">c &amp; d</p><!-- e -->", ""},
        {"character", "é\0x"sv, "1: Unexpected character '\0' in input state [TokeniserState]\n"sv},
        {"position counts scalars", "日本\0"sv,
         "2: Unexpected character '\0' in input state [TokeniserState]\n"sv},
        {"end", "<a", "2: Unexpectedly reached end of file (EOF) in input state [TokeniserState]\n"},
        {"no numerals", "&#x;", "3: Invalid character reference: numeric reference with no numerals\n"},
        {"no semicolon", "&lt", "3: Invalid character reference: missing semicolon\n"},
        {"no scalar", "&#xD800;", "8: Invalid character reference: character outside of valid range\n"},
        {"no name", "&x1;", "1: Invalid character reference: invalid named referenece 'x1'\n"},
        {"end tag with attributes", "</p a>", "6: Attributes incorrectly present on end tag\n"},
    };
    for (const Case &c : cases)
        EXPECT_EQ(errorsOf(c.page), c.expected) << c.name;
    EXPECT_EQ(errorsOf("&lt &lt &lt", 2).size(), errorsOf("&lt &lt ").size());
}

TEST(TokeniserTest, ReportsASelfClosingMarkThatNobodyAcknowledged) {
    auto errors = ParseErrorList::tracking(10);
    const std::string_view page = "<div/>a";
    const ArenaPtr arena(Arena::createLoose());
    CharacterReader reader({arena->retain(page), page.size()});
    Tokeniser tokeniser(reader, *arena, &errors, ParseSettings::htmlDefault);
    tokeniser.read();
    EXPECT_TRUE(errors.empty());
    tokeniser.read();
    ASSERT_EQ(errors.size(), 1U);
    EXPECT_EQ(errors[0].getErrorMessage(), "Self closing flag not acknowledged");
}

TEST(TokeniserTest, SearchesAheadOnce) {
    std::string page = "<title>";
    for (int i = 0; i < 200000; ++i)
        page += i % 2 ? "<title><a" : "<textarea><b";
    EXPECT_GT(tokens(page).size(), page.size());
    std::string closed = "<title>";
    for (int i = 0; i < 200000; ++i)
        closed += "<a";
    EXPECT_EQ(tokens(closed + "</TITLE>").size(), closed.size() + 10);
}

} // namespace
} // namespace orl::html::core
