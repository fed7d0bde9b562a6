#include "numbers/tpn_service.h"
#include "numbers_phone.h"

#include <gtest/gtest.h>

namespace orl {

namespace {

using test::country;
using test::countryElement;
using test::countryPage;
using test::names;

struct CataloguesTest : NumbersTest {
    const QString countryUrl = QStringLiteral("https://first.example/en/local");
    const QString tpnNumbersUrl = QStringLiteral("https://second.example/norway/");
    QList<QStringList> completions;

    void fetchNumbers(const QString &name = QStringLiteral("Norway")) {
        numbers->fetchNumbers(country(name), [this](const QList<PhoneNumber> &list) {
            QStringList texts;
            for (const PhoneNumber &number : list)
                texts.append(number.number);
            completions.append(texts);
        });
        phone.settle();
    }
};

} // namespace

TEST_F(CataloguesTest, TheLocalCatalogueIsThereWhenCreationReturns) {
    EXPECT_EQ(names(make().localCountries()),
              (QStringList{QStringLiteral("Niger"), QStringLiteral("Nigeria"), QStringLiteral("Norway")}));
    EXPECT_TRUE(phone.urls.requests.empty());
    phone.settle();
    EXPECT_EQ(phone.urls.urls(), (QStringList{iconsUrl, tpnCountriesUrl, countriesUrl}));
}

TEST_F(CataloguesTest, WithoutALocalCatalogueOnlyTheIconsAreFetched) {
    struct Case {
        const char *name;
        std::optional<QByteArray> file;
        int lines;
    };
    for (const Case &row :
         {Case{"missing", {}, 0}, Case{"no JSON", "{", 1}, Case{"key missing", "[{\"name\":\"x\"}]", 1}}) {
        phone.urls.requests.clear();
        phone.console.lines.clear();
        phone.bundle.resources.clear();
        if (row.file) phone.bundle.resources[QStringLiteral("countries.json")] = *row.file;
        make();
        phone.settle();
        EXPECT_EQ(phone.urls.urls(), QStringList{iconsUrl}) << row.name;
        EXPECT_TRUE(numbers->localCountries().isEmpty()) << row.name;
        ASSERT_EQ(phone.console.lines.size(), row.lines) << row.name;
        if (row.lines == 0) continue;
        EXPECT_TRUE(phone.console.lines[0].startsWith(QLatin1String("Failed to fetch local countries: ")));
    }
}

TEST_F(CataloguesTest, OfflineNothingIsFetchedUntilAScreenAsksAgain) {
    phone.reachability.setOnline(false);
    make();
    phone.settle();
    EXPECT_TRUE(phone.urls.requests.empty());
    EXPECT_EQ(numbers->localCountries().size(), 3);
    phone.reachability.setOnline(true);
    numbers->fetchCountries();
    phone.settle();
    EXPECT_EQ(phone.urls.urls(), (QStringList{tpnCountriesUrl, countriesUrl}));
}

TEST_F(CataloguesTest, AListThatHasArrivedIsNotFetchedAgain) {
    phone.urls.answer(countriesUrl, countryPage(countryElement("Norway", "/n")));
    make();
    phone.settle();
    numbers->fetchCountries();
    phone.settle();
    EXPECT_EQ(phone.urls.count(countriesUrl), 1);
    EXPECT_EQ(phone.urls.count(tpnCountriesUrl), 2) << "its list is still empty";
    phone.urls.answer(tpnCountriesUrl, test::encodedCountries({country(QStringLiteral("Norway"))}));
    numbers->fetchCountries();
    phone.settle();
    numbers->fetchCountries();
    phone.settle();
    EXPECT_EQ(phone.urls.count(tpnCountriesUrl), 3);
    EXPECT_EQ(names(numbers->tpnCountriesList()), QStringList{QStringLiteral("Norway")});
}

TEST_F(CataloguesTest, IconsReachTheSecondWebsitesServiceToo) {
    phone.urls.answer(iconsUrl, R"(["bank","shop"])");
    make();
    phone.settle();
    EXPECT_EQ(numbers->icons(), (QStringList{QStringLiteral("bank"), QStringLiteral("shop")}));
    EXPECT_EQ(process->shared<TPNService>().icons(), numbers->icons());
}

TEST_F(CataloguesTest, BadDocumentsAreOneLineEach) {
    struct Case {
        const char *name;
        PlayedUrls::Answer answer;
    };
    const Case cases[] = {
        {"unreadable", Error{QStringLiteral("no route")}},
        {"404 page", UrlResponse{404, "<html>Not found</html>"}},
        {"empty", ""},
        {"an object", "{}"},
        {"a wrong type inside", "[1]"},
    };
    for (const Case &row : cases) {
        phone.console.lines.clear();
        phone.urls.answer(iconsUrl, row.answer);
        phone.urls.answer(tpnCountriesUrl, row.answer);
        make();
        phone.settle();
        EXPECT_TRUE(numbers->icons().isEmpty()) << row.name;
        EXPECT_TRUE(numbers->tpnCountriesList().isEmpty()) << row.name;
        ASSERT_EQ(phone.console.lines.size(), 2) << row.name;
        EXPECT_TRUE(phone.console.lines[0].startsWith(QLatin1String("Failed to fetch icons: "))) << row.name;
        EXPECT_TRUE(phone.console.lines[1].startsWith(QLatin1String("Failed to fetch TPN Countries: ")))
            << row.name;
    }
}

TEST_F(CataloguesTest, TheWebsitesListIsFilteredThroughTheLocalOne) {
    struct Case {
        const char *name;
        QByteArray element;
        QStringList found; // NAME DOMAIN
    };
    const QString niger = QStringLiteral("Niger ");
    const Case cases[] = {
        {"plain", countryElement("Norway", "/en/n"), {QStringLiteral("Norway /en/n")}},
        {"longer name in another case",
         countryElement("free NORWAY numbers", "/en/n"),
         {QStringLiteral("Norway /en/n")}},
        {"name that holds two local names",
         countryElement("Nigeria", "/x"),
         {niger + QStringLiteral("/x"), QStringLiteral("Nigeria /x")}},
        {"no link keeps the local path", countryElement("Norway", ""), {QStringLiteral("Norway /en/local")}},
        {"unknown country", countryElement("Atlantis", "/a"), {}},
        {"no country elements", "<p>Norway</p>", {}},
    };
    for (const Case &row : cases) {
        phone.urls.answer(countriesUrl, countryPage(row.element));
        make();
        phone.settle();
        QStringList found;
        for (const Country &entry : numbers->countries())
            found.append(entry.name + QLatin1Char(' ') + entry.domain);
        EXPECT_EQ(found, row.found) << row.name;
        EXPECT_TRUE(phone.console.lines.isEmpty()) << row.name;
    }
}

TEST_F(CataloguesTest, TheRecipesRemovalsApplyToNames) {
    ScrapingConfig recipe;
    recipe.countryShouldRemove = {QStringLiteral("xx")};
    setRecipe(recipe);
    phone.urls.answer(countriesUrl, countryPage(countryElement("Norxxway", "/n")));
    make();
    phone.settle();
    EXPECT_EQ(names(numbers->countries()), QStringList{QStringLiteral("Norway")});
}

TEST_F(CataloguesTest, AnUnreadableListShowsTheLocalCatalogue) {
    for (const PlayedUrls::Answer &answer :
         {PlayedUrls::Answer(Error{QStringLiteral("no route")}), PlayedUrls::Answer("\xc3\x28")}) {
        phone.console.lines.clear();
        phone.urls.answer(countriesUrl, answer);
        make();
        const auto published = notified(&RequestViewModel::countriesChanged);
        phone.settle();
        EXPECT_EQ(numbers->countries(), numbers->localCountries());
        EXPECT_EQ(*published, 1);
        ASSERT_EQ(phone.console.lines.size(), 1);
        EXPECT_TRUE(
            phone.console.lines[0].startsWith(QLatin1String("Failed to fetch countries from server: ")));
    }
}

TEST_F(CataloguesTest, APageOfAnotherSiteLeavesTheListAlone) {
    for (const PlayedUrls::Answer &answer :
         {PlayedUrls::Answer(""), PlayedUrls::Answer("<html><body><h1>Shop</h1></body></html>"),
          PlayedUrls::Answer(UrlResponse{404, "<html>Not found</html>"})}) {
        phone.urls.answer(countriesUrl, answer);
        make();
        const auto published = notified(&RequestViewModel::countriesChanged);
        phone.settle();
        EXPECT_TRUE(numbers->countries().isEmpty());
        EXPECT_EQ(*published, 0);
        EXPECT_TRUE(phone.console.lines.isEmpty());
    }
}

TEST_F(CataloguesTest, TwoParsesAtOnceShowEachCountryOnce) {
    phone.urls.answer(countriesUrl,
                      countryPage(countryElement("Nigeria", "/x") + countryElement("Norway", "/n")));
    for (const Workers order : {Workers::AfterMain, Workers::BeforeMain}) {
        phone.globalQueue.order = order;
        make().fetchCountries();
        const auto published = notified(&RequestViewModel::countriesChanged);
        phone.settle();
        EXPECT_EQ(numbers->countries().size(), 3);
        // Two times emptied; those appends that came in time.
        EXPECT_EQ(*published, order == Workers::BeforeMain ? 2 + 3 : 2 + 3 + 3);
    }
}

TEST_F(CataloguesTest, AWorkersWriteIsInForceAtOnceAndToldAheadOfTheAppends) {
    // The first parse fails and shows the local catalogue; the second began while the list was still empty.
    phone.urls.answerOnce(countriesUrl, Error{QStringLiteral("no route")});
    phone.urls.answerOnce(countriesUrl, countryPage(countryElement("Norway", "/n")));
    phone.urls.hold(countriesUrl);
    make().fetchCountries();
    phone.settle();
    phone.urls.releaseOne(countriesUrl);
    phone.settle();
    ASSERT_EQ(numbers->countries().size(), 3);

    QList<qsizetype> sizes;
    QObject::connect(numbers.get(), &RequestViewModel::countriesChanged,
                     [&] { sizes.append(numbers->countries().size()); });
    phone.globalQueue.order = Workers::ByHand;
    phone.urls.release(countriesUrl);
    while (phone.globalQueue.step()) {
    }
    EXPECT_TRUE(numbers->countries().isEmpty()) << "emptied by the worker itself";
    EXPECT_TRUE(sizes.isEmpty()) << "but told on the main queue";
    phone.settle();
    EXPECT_EQ(sizes, (QList<qsizetype>{0, 1}));
}

TEST_F(CataloguesTest, TheNumbersOfTheFirstWebsiteCompleteOnce) {
    ScrapingConfig recipe;
    recipe.phoneNumberShouldRemove = {QStringLiteral("No. ")};
    setRecipe(recipe);
    phone.urls.answer(countryUrl, test::numbersPage({"\u00a0No. +47 1 ", "+47 2"}));
    make();
    fetchNumbers();
    const QStringList expected{QStringLiteral("+47 1"), QStringLiteral("+47 2")};
    EXPECT_EQ(completions, QList<QStringList>{expected});
    ASSERT_EQ(numbers->currentCountryNumbers().size(), 2);
    EXPECT_EQ(numbers->currentCountryNumbers()[0].website, WebsiteService::SMS24);
    const QList<PhoneNumber> before = numbers->currentCountryNumbers();
    fetchNumbers();
    EXPECT_NE(numbers->currentCountryNumbers(), before) << "each scrape makes new records";
}

TEST_F(CataloguesTest, TheNumbersOfBothWebsitesCompleteTwice) {
    phone.urls.answer(tpnCountriesUrl,
                      test::encodedCountries({country(QStringLiteral("Norway"), QStringLiteral("norway"))}));
    phone.urls.answer(countryUrl, test::numbersPage({"+47 1"}));
    phone.urls.answer(tpnNumbersUrl, test::element("col-sm-6 col-md-4 col-lg-3 col-xs-12",
                                                   test::element("info-box-number", "+47 9")));
    make();
    phone.settle();
    fetchNumbers();
    const QStringList first{QStringLiteral("+47 1")};
    EXPECT_EQ(completions, (QList{first, QStringList{first[0], QStringLiteral("+47 9")}}));
    EXPECT_EQ(numbers->currentCountryNumbers().size(), 1) << "only the completion sees the merged list";
    completions.clear();
    fetchNumbers(QStringLiteral("norway"));
    EXPECT_EQ(completions.size(), 1) << "names are compared exactly";
}

TEST_F(CataloguesTest, AnUnreadableNumberPageChangesNothing) {
    phone.urls.answer(countryUrl, Error{QStringLiteral("no route")});
    make();
    fetchNumbers();
    EXPECT_TRUE(completions.isEmpty());
    EXPECT_EQ(phone.console.lines, QStringList{QStringLiteral("Failed to fetch phone numbers: no route")});
}

TEST_F(CataloguesTest, LateAnswersDoNotTouchADestroyedObject) {
    for (const QString &url : {iconsUrl, tpnCountriesUrl, countriesUrl, countryUrl})
        phone.urls.hold(url);
    phone.urls.answer(countriesUrl, countryPage(countryElement("Norway", "/n")));
    phone.urls.answer(countryUrl, test::numbersPage({"+47 1"}));
    make();
    fetchNumbers();
    numbers.reset();
    process.reset();
    for (const QString &url : {iconsUrl, tpnCountriesUrl, countriesUrl, countryUrl})
        phone.urls.release(url);
    phone.settle();
    EXPECT_TRUE(completions.isEmpty());
    EXPECT_TRUE(phone.console.lines.isEmpty());
}

} // namespace orl
