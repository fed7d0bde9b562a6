#include "numbers/scraping_utils.h"
#include "numbers_phone.h"

#include <orl/html/parser.h>

#include <gtest/gtest.h>

namespace orl {

namespace {

using test::element;

html::Document parsed(const QByteArray &page) {
    return html::Parser::parse(page.toStdString(), "");
}

struct ScrapingUtilsTest : NumbersTest {
    ScrapingUtils scraping{*process};

    void setItem(ScrapingItem ScrapingConfig::*field, const char *type, const char *id) {
        ScrapingConfig recipe = *process->shared<ValuesInForce>().currentScrapingConfig->get();
        recipe.*field = {QString::fromUtf8(type), QString::fromUtf8(id)};
        setRecipe(recipe);
    }

    QString sender(const QByteArray &text) { return scraping.messageSender(parsed(element("mb-1", text))); }
    QString content(const QByteArray &text) {
        return scraping.messageContent(parsed(element("placeholder text-break", text)));
    }
};

} // namespace

TEST_F(ScrapingUtilsTest, TheTypeOfAnItemChoosesTheLookUp) {
    const html::Document page =
        parsed("<html><body><p class=\"x\">by class</p><x>by tag</x><p x=\"1\">by attribute</p>"
               "<p id=\"x\">by id</p><p class=\"id\">class id</p></body></html>");
    struct Case {
        const char *type;
        const char *listed;  // what the operations that give a list find
        const char *content; // what those that give one element or text find
    };
    const Case cases[] = {
        {"class", "by class", "by class"},
        {"tag", "by tag", "by tag"},
        {"attribute", "by attribute", "by attribute"},
        {"id", "by class", "by id"},
        {"CLASS", "by class", "by class"},
        {"ID", "by class", "by class"},
        {"Tag", "by class", "by class"},
        {"", "by class", "by class"},
    };
    for (const Case &row : cases) {
        setItem(&ScrapingConfig::countriesMainContent, row.type, "x");
        setItem(&ScrapingConfig::countryElement, row.type, "x");
        setItem(&ScrapingConfig::countryName, row.type, "x");
        ASSERT_TRUE(scraping.mainContent(page)) << row.type;
        EXPECT_EQ(scraping.mainContent(page)->text(), row.content) << row.type;
        ASSERT_EQ(scraping.countryElements(page).size(), 1U) << row.type;
        EXPECT_EQ(scraping.countryElements(page)[0].text(), row.listed) << row.type;
        EXPECT_EQ(scraping.countryName(page), QLatin1String(row.content)) << row.type;
    }
    EXPECT_TRUE(phone.console.lines.isEmpty());
}

TEST_F(ScrapingUtilsTest, AClassNameOfSeveralWordsIsOneName) {
    const html::Document page =
        parsed("<div class=\"placeholder h5\">A</div><div class=\"h5 placeholder\">B</div>"
               "<div class=\"placeholder\">C</div><div class=\"PLACEHOLDER H5\">D</div>");
    EXPECT_EQ(scraping.countryName(page), QStringLiteral("A D"));
}

TEST_F(ScrapingUtilsTest, WhatIsNotFoundIsEmptyAndNoFailure) {
    const html::Document page = parsed("<html><body></body></html>");
    EXPECT_FALSE(scraping.mainContent(page));
    EXPECT_TRUE(scraping.messageElements(page).empty());
    EXPECT_TRUE(scraping.messageTimeElements(page).empty());
    EXPECT_TRUE(scraping.phoneNumberElements(page).empty());
    setItem(&ScrapingConfig::messageSender, "id", "nobody");
    EXPECT_EQ(scraping.messageSender(page), QString());
    EXPECT_EQ(scraping.messageContent(page), QString());
    setItem(&ScrapingConfig::countriesMainContent, "id", "nobody");
    EXPECT_FALSE(scraping.mainContent(page));
    EXPECT_TRUE(phone.console.lines.isEmpty());
}

TEST_F(ScrapingUtilsTest, AFailedLookUpIsOneLineAndAnEmptyResult) {
    const html::Document page = parsed(element("mb-1", "x"));
    ScrapingConfig broken;
    for (const auto item : {&ScrapingConfig::countriesMainContent, &ScrapingConfig::countryElement,
                            &ScrapingConfig::countryName, &ScrapingConfig::phoneNumber,
                            &ScrapingConfig::messagesElement, &ScrapingConfig::messageSender,
                            &ScrapingConfig::messageContent, &ScrapingConfig::messageTimesElement}) {
        (broken.*item).id.clear();
    }
    setRecipe(broken);
    EXPECT_FALSE(scraping.mainContent(page));
    EXPECT_TRUE(scraping.countryElements(page).empty());
    EXPECT_EQ(scraping.countryName(page), QString());
    EXPECT_TRUE(scraping.phoneNumberElements(page).empty());
    EXPECT_TRUE(scraping.messageElements(page).empty());
    EXPECT_TRUE(scraping.messageTimeElements(page).empty());
    EXPECT_EQ(scraping.messageSender(page), QString());
    EXPECT_EQ(scraping.messageContent(page), QString());
    EXPECT_EQ(phone.console.lines,
              QStringList(8, QStringLiteral("Failed to fetch data String must not be empty")));
}

TEST_F(ScrapingUtilsTest, SendersLoseTheirLabelsAndTheWebsitesName) {
    phone.bundle.infoValues[QStringLiteral("CFBundleDisplayName")] = QStringLiteral("Orl Phone");
    const std::pair<const char *, const char *> cases[] = {
        {"From: Bank", "Bank"},
        {"From:Bank", "Bank"},
        {"From Bank", "Bank"},
        {"from Bank", "from Bank"},
        {"sms", "SMS"},
        {"Sms", "SMS"},
        {"From: sms", "SMS"},
        {"SMS24", "Orl Phone"},
        {"mysms24 and SMS24", "myOrl Phone and Orl Phone"},
        {"Sms24", "Sms24"},
        {"smsinfo", "smsinfo"},
        {"", ""},
    };
    for (const auto &[text, expected] : cases)
        EXPECT_EQ(sender(text), QLatin1String(expected)) << text;
}

TEST_F(ScrapingUtilsTest, ContentsGetTheDisplayNameAsASlug) {
    EXPECT_EQ(content("go to SMS24"), QStringLiteral("go to app")) << "without a display name";
    phone.bundle.infoValues[QStringLiteral("CFBundleDisplayName")] = QStringLiteral("Orl Phone");
    const std::pair<const char *, const char *> cases[] = {
        {"From: code 1", "code 1"},
        {"#&gt; code", "code"},
        {"a s2 &lt; \" &gt; b", "a  b"},
        {"visit sms24.example or SMS24", "visit orl-phone.example or orl-phone"},
        {"code FromBank", "code Bank"},
    };
    for (const auto &[text, expected] : cases)
        EXPECT_EQ(content(text), QLatin1String(expected)) << text;
}

TEST_F(ScrapingUtilsTest, RemovalsGoInTheirOrderAndAnEmptyOneRemovesNothing) {
    EXPECT_EQ(removing({QStringLiteral("ab"), QStringLiteral("abc")}, QStringLiteral("abc aB")),
              QStringLiteral("c aB"));
    EXPECT_EQ(removing({QString(), QStringLiteral("x")}, QStringLiteral("axb.xx")), QStringLiteral("ab."));
    EXPECT_EQ(withoutLeadingBlank(QStringLiteral("  a")), QStringLiteral(" a"));
}

TEST_F(ScrapingUtilsTest, TheTimeIsCutOutOfTheDescription) {
    struct Case {
        const char *name;
        const char *description;
        std::optional<const char *> time;
    };
    const Case cases[] = {
        {"plain", R"(<b data-created="T">x</b>)", "T"},
        {"runs on over further attributes", R"(<b data-created="T" id="i">x</b>)", R"(T" id="i)"},
        {"first of two", R"(<b data-created="1"></b><b data-created="2"></b>)", "1"},
        {"end ahead of the start does not count", R"(<a x="1"><b data-created="T">)", "T"},
        {"no start", R"(<b created="T">)", std::nullopt},
        {"start in another case", R"(<b Data-Created="T">)", std::nullopt},
        {"no end", R"(<b data-created="T")", std::nullopt},
        {"nothing", "", std::nullopt},
        {"empty time", R"(<b data-created="">)", ""},
    };
    for (const Case &row : cases) {
        const auto expected = row.time ? std::optional(QString::fromLatin1(*row.time)) : std::nullopt;
        EXPECT_EQ(scraping.messageTime(QString::fromLatin1(row.description)), expected) << row.name;
    }
    ScrapingConfig recipe;
    recipe.timeShouldRemove = {QStringLiteral("about "), QStringLiteral("!")};
    setRecipe(recipe);
    EXPECT_EQ(scraping.messageTime(QStringLiteral("<b data-created=\"about 5!!\">")), QStringLiteral("5"));
}

TEST_F(ScrapingUtilsTest, EachLookUpReadsTheRecipeAnew) {
    const html::Document page = parsed("<b>new</b><div class=\"mb-1\">old</div>");
    EXPECT_EQ(scraping.messageSender(page), QStringLiteral("old"));
    setItem(&ScrapingConfig::messageSender, "tag", "b");
    EXPECT_EQ(scraping.messageSender(page), QStringLiteral("new"));
}

} // namespace orl
