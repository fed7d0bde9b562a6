#include "screens_phone.h"

using namespace orl;
using namespace std::chrono_literals;

namespace {

TEST_F(ScreensTest, TabsStandInTheirOrderAndTheSelectedOneIsFilled) {
    makeHome();
    MainView &main = *content->main();
    EXPECT_EQ(test::texts(*main.tabs(), "label"),
              (QStringList{QStringLiteral("Messages"), QStringLiteral("EMail"), QStringLiteral("Identity"),
                           QStringLiteral("Settings")}));
    EXPECT_EQ(test::texts(*main.tabs(), "image"),
              (QStringList{QStringLiteral("ic_chat_fill"), QStringLiteral("ic_email"),
                           QStringLiteral("ic_id_card"), QStringLiteral("ic_settings")}));
    main.select(3);
    EXPECT_EQ(test::texts(*main.tabs(), "image"),
              (QStringList{QStringLiteral("ic_chat"), QStringLiteral("ic_email"),
                           QStringLiteral("ic_id_card"), QStringLiteral("ic_settings_fill")}));
}

TEST_F(ScreensTest, SelectedTabIsTheSharedOne) {
    makeHome();
    MainView &main = *content->main();
    const struct {
        Tab tab;
        int row;
    } cases[] = {{Tab::tMail, 1}, {Tab::fakeGenerator, 2}, {Tab::profile, 3}, {Tab::home, 0}};
    for (const auto &[tab, row] : cases) {
        main.select(row);
        EXPECT_EQ(request().selectedTab(), tab);
        request().setSelectedTab(Tab::community);
        EXPECT_EQ(main.selectedIndex(), 0) << "it has no tab of its own";
        EXPECT_EQ(request().selectedTab(), Tab::community) << "but is kept";
        request().setSelectedTab(tab);
        EXPECT_EQ(main.selectedIndex(), row);
    }
    main.select(4);
    main.select(-1);
    EXPECT_EQ(request().selectedTab(), Tab::home);
}

TEST_F(ScreensTest, ComingBackToTheMessagesChecksTheConnectionAgain) {
    makeHome();
    content->main()->select(3);
    phone.reachability.setOnline(false);
    content->main()->select(0);
    EXPECT_TRUE(content->home()->isOffline());
}

/// The choice is read again when the settings appear; as long as it is the same, nothing is lost by that.
TEST_F(ScreensTest, VisitToTheSettingsKeepsTheMessages) {
    makeHome({{QStringLiteral("A"), QStringLiteral("code 1234"), QString()}});
    content->appConfigVM().setBannerTapped(true);
    const qsizetype fetches = phone.urls.count(messagesUrl);
    content->main()->select(3);
    EXPECT_EQ(content->home()->messages()->count(), 1);
    phone.settle();
    EXPECT_EQ(phone.urls.count(messagesUrl), fetches);
    EXPECT_TRUE(content->appConfigVM().bannerTapped());
}

TEST_F(ScreensTest, OtherChoiceInTheStoreIsTakenOverByTheSettings) {
    makeHome();
    const Country niger = test::country(QStringLiteral("Niger"));
    const PhoneNumber other = test::phoneNumber(QStringLiteral("+1 555 0177"));
    phone.store.setValue(QStringLiteral("chosen_country"), encodeJson(niger.encoded()));
    phone.store.setValue(QStringLiteral("chosen_phone_number_new"), encodeJson(other.encoded()));
    phone.urls.answer(QStringLiteral("https://first.example/en/numbers/15550177"), test::messagePage({}));
    content->main()->select(3);
    EXPECT_EQ(request().currentCountry()->name, QStringLiteral("Niger"));
    EXPECT_EQ(request().currentNumber()->number, QStringLiteral("+1 555 0177"));
}

TEST_F(ScreensTest, OtherNumberForgetsThatTheBannerWasTapped) {
    makeHome();
    content->appConfigVM().setBannerTapped(true);
    request().chooseNumber(test::country(QStringLiteral("Norway")),
                           test::phoneNumber(QStringLiteral("+1 555 0199")), false);
    EXPECT_FALSE(content->appConfigVM().bannerTapped());
}

TEST_F(ScreensTest, OpeningAdIsOfferedEachTimeTheSceneBecomesActive) {
    answerConfiguration();
    makeContent();
    phone.advance(3s);
    ASSERT_EQ(ads.asked().last(), QStringLiteral("open app-open"));
    ads.fullScreen.erase(ads.fullScreen.begin(), ads.fullScreen.end() - 1);
    const auto ad = ads.deliver();
    EXPECT_EQ(ad->presented, 0);
    const struct {
        ScenePhase phase;
        int shown;
    } steps[] = {{ScenePhase::Inactive, 0},
                 {ScenePhase::Active, 1},
                 {ScenePhase::Inactive, 1},
                 {ScenePhase::Background, 1},
                 {ScenePhase::Active, 2}};
    for (const auto &[phase, shown] : steps) {
        scene.setPhase(phase);
        EXPECT_EQ(ad->presented, shown);
    }
}

} // namespace
