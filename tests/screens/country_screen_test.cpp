#include "screens/country_screen.h"
#include "screens_phone.h"

using namespace orl;

namespace {

using State = CountryScreen::State;

TEST_F(ScreensTest, CountriesStandInTheOrderOfTheContinents) {
    phone.bundle.resources[QStringLiteral("countries.json")] = test::encodedCountries(
        {test::country(QStringLiteral("Kenya"), QStringLiteral("Africa"), QStringLiteral("254")),
         test::country(QStringLiteral("Norway"), QStringLiteral("Europe"), QStringLiteral("47")),
         test::country(QStringLiteral("Canada"), QStringLiteral("North_America"), QStringLiteral("1"))});
    phone.urls.answer(countriesUrl, test::countryPage(test::countryElement("Kenya", "/k") +
                                                      test::countryElement("Norway", "/n") +
                                                      test::countryElement("Canada", "/c")));
    CountryScreen &screen = *makeContent().chooser();
    phone.settle();
    EXPECT_EQ(test::texts(*screen.countries(), "name"),
              (QStringList{QStringLiteral("Canada"), QStringLiteral("Norway"), QStringLiteral("Kenya")}));
    EXPECT_EQ(
        test::texts(*screen.countries(), "continent"),
        (QStringList{QStringLiteral("North America"), QStringLiteral("Europe"), QStringLiteral("Africa")}));
}

TEST_F(ScreensTest, SearchNarrowsTheListAndSaysWhenNothingIsLeft) {
    CountryScreen &screen = *makeContent().chooser();
    phone.settle();
    EXPECT_EQ(screen.countries()->count(), 2);
    screen.setSearchTerm(QStringLiteral("norw"));
    EXPECT_EQ(test::texts(*screen.countries(), "name"), QStringList{QStringLiteral("Norway")});
    EXPECT_FALSE(screen.noResults());
    screen.setSearchTerm(QStringLiteral("norwx"));
    EXPECT_EQ(screen.countries()->count(), 0);
    EXPECT_TRUE(screen.noResults());
    screen.setSearchTerm({});
    EXPECT_EQ(screen.countries()->count(), 2);
}

TEST_F(ScreensTest, EmptyCatalogueIsOfflineOrFetching) {
    phone.reachability.setOnline(false);
    CountryScreen &screen = *makeContent().chooser();
    EXPECT_EQ(screen.state(), State::NotConnected);
    phone.settle();
    EXPECT_EQ(phone.urls.count(countriesUrl), 0);

    screen.retry();
    EXPECT_EQ(screen.state(), State::NotConnected);
    phone.reachability.setOnline(true);
    screen.retry();
    EXPECT_EQ(screen.state(), State::Fetching);
    phone.settle();
    EXPECT_EQ(screen.state(), State::Sections);
}

TEST_F(ScreensTest, LostConnectionLeavesACatalogueThatIsThere) {
    CountryScreen &screen = *makeContent().chooser();
    phone.settle();
    phone.reachability.setOnline(false);
    screen.retry();
    EXPECT_EQ(screen.state(), State::Sections);
}

TEST_F(ScreensTest, FirstNumberIsChosenAtOnceWhateverTheAllowanceSays) {
    used(7);
    CountryScreen &screen = *makeContent().chooser();
    phone.settle();
    screen.tap(1);
    EXPECT_TRUE(screen.isPresented());
    phone.settle();
    screen.numbers()->tap(1);
    EXPECT_EQ(screen.numbers()->state(), PhoneNumberView::State::Nothing);
    EXPECT_FALSE(screen.numbers()->choice()->confirmationSheet());
    EXPECT_EQ(request().currentCountry()->name, QStringLiteral("Norway"));
    EXPECT_EQ(request().currentNumber()->number, QStringLiteral("+1 555 0199"));
    EXPECT_TRUE(content->hasCountry());
}

TEST_F(ScreensTest, ChangeOfNumberAsksFirstAndThenLeavesBothScreens) {
    HomeView &home = makeHome();
    home.openCountries();
    CountriesView &screen = *home.countries();
    screen.tap(1);
    phone.settle();
    screen.numbers()->tap(1);
    NumberChoice &choice = *screen.numbers()->choice();
    EXPECT_TRUE(choice.confirmationSheet());
    EXPECT_EQ(choice.title(), QStringLiteral("That's a lovely number \n+1 5550199"));

    choice.cancel();
    EXPECT_EQ(request().currentNumber()->number, QStringLiteral("+1 555 0100"));
    EXPECT_TRUE(home.countriesPresented());

    screen.numbers()->tap(1);
    choice.confirm();
    EXPECT_EQ(request().currentNumber()->number, QStringLiteral("+1 555 0199"));
    EXPECT_FALSE(screen.isPresented());
    EXPECT_FALSE(home.countriesPresented());
}

TEST_F(ScreensTest, UsedUpAllowanceShowsTheLimitUnlessRewardsAreOff) {
    used(3);
    HomeView &home = makeHome();
    home.openCountries();
    home.countries()->tap(1);
    phone.settle();
    NumberChoice &choice = *home.countries()->numbers()->choice();
    home.countries()->numbers()->tap(0);
    EXPECT_TRUE(choice.showLimitAlert());
    EXPECT_FALSE(choice.confirmationSheet());
    choice.dismissLimit();
    EXPECT_FALSE(choice.showLimitAlert());

    AppConfiguration configuration;
    configuration.admob.rewardAdEnabled = false;
    process->shared<ValuesInForce>().currentConfiguration->set(configuration);
    home.countries()->numbers()->tap(0);
    EXPECT_FALSE(choice.showLimitAlert());
    EXPECT_TRUE(choice.confirmationSheet());
}

} // namespace
