#include "numbers/link_detector.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace orl;

namespace {

struct LinkCase {
    const char *name;
    const char *text;
    const char *link; ///< empty: there is none
};

class FirstLink : public testing::TestWithParam<LinkCase> {};

TEST_P(FirstLink, IsFoundAsItStands) {
    const LinkCase &row = GetParam();
    EXPECT_EQ(firstLink(QString::fromUtf8(row.text)).value_or(QString()).toStdString(), row.link);
}

std::string nameOf(const testing::TestParamInfo<LinkCase> &row) {
    return row.param.name;
}

INSTANTIATE_TEST_SUITE_P(
    WithScheme, FirstLink,
    testing::Values(
        LinkCase{"end_of_sentence", "See https://a.example/x.", "https://a.example/x"},
        LinkCase{"first_of_two", "http://a.example or http://b.example", "http://a.example"},
        LinkCase{"two_joined_by_a_comma", "http://a.example/x,https://b.example", "http://a.example/x"},
        LinkCase{"file_transfer", "get ftp://files.example/a.iso now", "ftp://files.example/a.iso"},
        LinkCase{"upper_case_scheme", "HTTPS://A.example", "HTTPS://A.example"},
        LinkCase{"port", "http://a.example:8080/x", "http://a.example:8080/x"},
        LinkCase{"port_alone", "on http://localhost:3000.", "http://localhost:3000"},
        LinkCase{"colon_without_port", "http://a.example: read it", "http://a.example"},
        LinkCase{"user", "https://me:pw@a.example/x", "https://me:pw@a.example/x"},
        LinkCase{"numeric_host", "http://192.0.2.7/setup", "http://192.0.2.7/setup"},
        LinkCase{"numeric_host_in_brackets", "(http://[2001:db8::1]:80/)", "http://[2001:db8::1]:80/"},
        LinkCase{"underscore_in_host", "https://my_shop.a.example", "https://my_shop.a.example"},
        LinkCase{"query", "https://a.example/?q=1&r=a,b%20c;d, now", "https://a.example/?q=1&r=a,b%20c;d"},
        LinkCase{"query_without_path", "https://a.example?q=1!", "https://a.example?q=1"},
        LinkCase{"fragment", "https://a.example/#top.", "https://a.example/#top"},
        LinkCase{"sentence_goes_on_without_a_blank", "https://shop.com.Thanks", "https://shop.com"},
        LinkCase{"scheme_alone", "https:// is a scheme", ""}, LinkCase{"no_host", "http:///x", ""},
        LinkCase{"within_a_word", "xhttps://a.example", ""},
        LinkCase{"scheme_of_a_program", "tg://resolve", ""}),
    nameOf);

INSTANTIATE_TEST_SUITE_P(
    Punctuation, FirstLink,
    testing::Values(LinkCase{"in_brackets", "(https://a.example/x)", "https://a.example/x"},
                    LinkCase{"own_brackets", "https://a.example/x_(y)", "https://a.example/x_(y)"},
                    LinkCase{"own_brackets_in_brackets", "(see https://a.example/x_(y)).",
                             "https://a.example/x_(y)"},
                    LinkCase{"in_square_brackets", "[https://a.example/x]", "https://a.example/x"},
                    LinkCase{"in_angle_brackets", "<https://a.example/x>", "https://a.example/x"},
                    LinkCase{"quoted", "\"https://a.example/x\"", "https://a.example/x"},
                    LinkCase{"quoted_once", "'https://a.example/x', he said", "https://a.example/x"},
                    LinkCase{"curly_quotes", "\u201chttps://a.example/x\u201d", "https://a.example/x"},
                    LinkCase{"guillemets", "\u00abhttps://a.example/x\u00bb", "https://a.example/x"},
                    LinkCase{"ellipsis", "https://a.example/x... more", "https://a.example/x"},
                    LinkCase{"one_character_ellipsis", "https://a.example/x\u2026", "https://a.example/x"},
                    LinkCase{"emphasis", "*https://a.example/x*", "https://a.example/x"},
                    LinkCase{"end_of_an_id", "https://a.example/dQw4_-", "https://a.example/dQw4_-"},
                    LinkCase{"emoji", "https://a.example/x\U0001F44D", "https://a.example/x"},
                    LinkCase{"line_separator", "https://a.example/x\u2028next", "https://a.example/x"},
                    LinkCase{"behind_a_label", "Link:https://a.example/x", "https://a.example/x"}),
    nameOf);

INSTANTIATE_TEST_SUITE_P(
    BareDomain, FirstLink,
    testing::Values(LinkCase{"domain", "Log in at example.com", "example.com"},
                    LinkCase{"end_of_sentence", "Have you seen example.com?", "example.com"},
                    LinkCase{"path", "Pay: pay.shop.co.uk/i/8Fq-2, thanks", "pay.shop.co.uk/i/8Fq-2"},
                    LinkCase{"short_link", "t.me/joinchat/AAA_b", "t.me/joinchat/AAA_b"},
                    LinkCase{"port", "example.com:8443", "example.com:8443"},
                    LinkCase{"www", "www.shop.example/x", "www.shop.example/x"},
                    LinkCase{"digits", "mail.163.com", "mail.163.com"},
                    LinkCase{"upper_case", "GOTO EXAMPLE.COM/X", "EXAMPLE.COM/X"},
                    LinkCase{"name_in_capitals", "YouTube.com", "YouTube.com"},
                    LinkCase{"next_sentence_joined", "example.com.Thanks", "example.com"},
                    LinkCase{"in_brackets", "(example.com)", "example.com"},
                    LinkCase{"behind_equals", "site=example.com", "example.com"},
                    LinkCase{"bound_to_a_host", "@foo:bar.com 8812 #8812", "bar.com"},
                    LinkCase{"later_one", "v1.2 of notes.txt is on example.org", "example.org"}),
    nameOf);

INSTANTIATE_TEST_SUITE_P(
    NoLink, FirstLink,
    testing::Values(LinkCase{"empty", "", ""}, LinkCase{"plain", "Your code is 123-456.", ""},
                    LinkCase{"version", "Version 1.2.3 and v10.0", ""},
                    LinkCase{"numeric_address", "10.0.0.1 answers", ""},
                    LinkCase{"time", "at 10.30 or 9.am or 5.pm", ""},
                    LinkCase{"price", "$5.99, 12.50EUR and 3.000,00", ""}, LinkCase{"quantity", "2.kg", ""},
                    LinkCase{"file", "report.pdf, photo.jpeg, notes.txt, setup.zip, run.sh", ""},
                    LinkCase{"file_with_path", "src/main.com and C:\\tools\\more.com", ""},
                    LinkCase{"file_with_underscore", "my_file.com", ""},
                    LinkCase{"abbreviations", "e.g. the U.S. at 5 p.m., i.e. now", ""},
                    LinkCase{"joined_sentences", "Use it now.It expires soon.Do not share", ""},
                    LinkCase{"joined_sentences_in_lower_case", "here it is.to stop reply no.me", ""},
                    LinkCase{"word_behind_the_domain", "example.company_x", ""},
                    LinkCase{"unknown_domain", "example.invalidtld", ""},
                    LinkCase{"www_alone", "www. and www.x", ""}, LinkCase{"dots", "..... a..b ..com", ""},
                    LinkCase{"handle", "@example.com", ""}),
    nameOf);

INSTANTIATE_TEST_SUITE_P(
    MailAddress, FirstLink,
    testing::Values(LinkCase{"address", "Write to jo.doe+x@mail.example.com.", "jo.doe+x@mail.example.com"},
                    LinkCase{"ahead_of_a_link", "a@b.com or http://b.com", "a@b.com"},
                    LinkCase{"with_scheme", "mailto:a@b.example", "mailto:a@b.example"},
                    LinkCase{"in_brackets", "Jo <jo@b.example>", "jo@b.example"},
                    LinkCase{"no_domain", "meet @ 5, me@home", ""}, LinkCase{"number", "2 kg @1.50", ""}),
    nameOf);

INSTANTIATE_TEST_SUITE_P(
    Languages, FirstLink,
    testing::Values(LinkCase{"russian", "Код на пример.рф/вход.", "пример.рф/вход"},
                    LinkCase{"german", "Konto bei https://müller.example/über",
                             "https://müller.example/über"},
                    LinkCase{"arabic", "زوروا موقع.شبكة الآن", "موقع.شبكة"},
                    LinkCase{"hindi", "देखें उदाहरण.भारत", "उदाहरण.भारत"},
                    LinkCase{"japanese_domain", "詳細は 例え.jp/a", "例え.jp/a"},
                    LinkCase{"encoded", "xn--e1afmkfd.xn--p1ai", "xn--e1afmkfd.xn--p1ai"},
                    LinkCase{"chinese_around_domain", "验证码请访问example.com完成验证", "example.com"},
                    LinkCase{"chinese_around_path", "点击https://t.cn/AbC1立即领取", "https://t.cn/AbC1"},
                    LinkCase{"chinese_stop", "请看https://t.cn/AbC。谢谢", "https://t.cn/AbC"},
                    LinkCase{"chinese_brackets", "（https://t.cn/AbC）", "https://t.cn/AbC"},
                    LinkCase{"chinese_path", "https://zh.example/wiki/中文,", "https://zh.example/wiki/中文"},
                    LinkCase{"korean_particle", "https://naver.com에서 확인", "https://naver.com"},
                    LinkCase{"russian_joined", "Вход:example.comКод", "example.com"},
                    LinkCase{"thai", "ดูที่example.com/pathนะ", "example.com/path"},
                    LinkCase{"half_a_character", "\xed\xa0\xbd https://a.example", "https://a.example"}),
    nameOf);

/// Whatever stands in a message, looking for a link ends soon: every row is a way to begin many links.
TEST(FirstLinkTest, LongTextsOfBeginningsHoldNoLink) {
    for (const char *beginning :
         {"http:///", "a@", "a.", "a-", "www.-", "https://[", "https://[1:", "mailto:", "aя1", "(", "a@a."}) {
        SCOPED_TRACE(beginning);
        EXPECT_EQ(firstLink(QString::fromUtf8(beginning).repeated(100'000)), std::nullopt);
    }
}

} // namespace
