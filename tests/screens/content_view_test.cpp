#include "screens/content_view.h"
#include "screens_phone.h"

using namespace orl;

namespace {

const QString recipeUrl = QStringLiteral("https://configuration.example/KeLo/OnlineSMS/scraping_config.json");

TEST_F(ScreensTest, StoredCountryDecidesTheRoot) {
    makeContent();
    phone.settle();
    EXPECT_FALSE(content->hasCountry());
    EXPECT_EQ(content->home(), nullptr);
    int changes = 0;
    QObject::connect(content.get(), &ContentView::rootChanged, [&changes] { ++changes; });
    request().chooseNumber(test::country(QStringLiteral("Norway")),
                           test::phoneNumber(QStringLiteral("+1 555 0100")), false);
    EXPECT_TRUE(content->hasCountry());
    EXPECT_NE(content->home(), nullptr);
    request().chooseNumber(test::country(QStringLiteral("Niger")),
                           test::phoneNumber(QStringLiteral("+1 555 0100")), false);
    EXPECT_EQ(changes, 1);

    phone.settle();
    restartScreens();
    EXPECT_TRUE(makeContent().hasCountry());
    EXPECT_EQ(content->chooser(), nullptr);
}

TEST_F(ScreensTest, AppearingChecksTheConnectionAndReadsTheHistory) {
    makeHome();
    restartScreens();
    content = std::make_unique<ContentView>(*process, appearance);
    InternetViewModel &internet = process->shared<InternetViewModel>();
    EXPECT_FALSE(internet.isConnected());
    content->appear();
    EXPECT_TRUE(internet.isConnected());
    phone.settle();
    EXPECT_EQ(request().historyList().size(), 1);
}

TEST_F(ScreensTest, RecipeThatArrivesFetchesACatalogueThatIsMissing) {
    phone.urls.answerOnce(countriesUrl, "<html>");
    phone.urls.answer(recipeUrl, ScrapingConfig().encoded());
    phone.urls.hold(recipeUrl);
    makeContent();
    phone.settle();
    EXPECT_TRUE(request().countries().isEmpty());
    EXPECT_EQ(phone.urls.count(countriesUrl), 1);
    phone.urls.release(recipeUrl);
    phone.settle();
    EXPECT_EQ(request().countries().size(), 2);
}

TEST_F(ScreensTest, RecipeThatArrivesLeavesACatalogueAlone) {
    phone.urls.answer(recipeUrl, ScrapingConfig().encoded());
    phone.urls.hold(recipeUrl);
    makeContent();
    phone.settle();
    phone.urls.release(recipeUrl);
    phone.settle();
    EXPECT_EQ(phone.urls.count(countriesUrl), 1);
}

TEST(AppearanceTest, TextScaleStaysWithinWhatTheLayoutsAreMadeFor) {
    Appearance appearance;
    appearance.setTextScale(3);
    EXPECT_EQ(appearance.textScale(), 2);
    appearance.setTextScale(0.1);
    EXPECT_EQ(appearance.textScale(), 0.75);
}

} // namespace
