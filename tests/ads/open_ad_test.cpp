#include "ads_phone.h"

namespace orl {

using namespace std::chrono_literals;

namespace {

struct OpenAdTest : AdsTest {
    OpenAd &openAd() { return process->shared<OpenAd>(); }

    std::shared_ptr<PlayedFullScreenAd> heldAd() {
        openAd().loadAd();
        ads.asked();
        return ads.deliver();
    }

    const QStringList request{QStringLiteral("open app-open")};
};

} // namespace

TEST_F(OpenAdTest, AnAdOfFourHoursIsShownNoMoreAndNoneFollowsIt) {
    struct Case {
        const char *name;
        std::chrono::milliseconds age;
        bool shown;
    };
    const Case cases[] = {{"fresh", 0ms, true},
                          {"3 h 59 min", 239min, true},
                          {"just below 4 h", 4h - 1ms, true},
                          {"4 h", 4h, false},
                          {"a day", 24h, false}};
    for (const Case &row : cases) {
        SCOPED_TRACE(row.name);
        restart();
        phone.advance(10h); // its age counts from its arrival, not from the start
        const auto ad = heldAd();
        phone.advance(row.age);
        openAd().showAdIfAvailable();
        EXPECT_EQ(ad->presented, row.shown ? 1 : 0);
        EXPECT_EQ(openAd().adWasShown(), row.shown);
        openAd().loadAd();
        EXPECT_TRUE(ads.asked().isEmpty()) << "the held ad blocks the next one";
    }
}

TEST_F(OpenAdTest, ADismissedAdIsFollowedByTheNextLoadAtOnce) {
    const auto ad = heldAd();
    openAd().showAdIfAvailable();
    ad->dismiss();
    EXPECT_FALSE(openAd().holdsAd());
    EXPECT_EQ(ads.asked(), request);
    openAd().showAdIfAvailable();
    EXPECT_EQ(ad->presented, 1);
}

TEST_F(OpenAdTest, AnAdThatCouldNotBePresentedIsKept) {
    const auto ad = heldAd();
    ad->fails = true;
    openAd().showAdIfAvailable();
    EXPECT_TRUE(openAd().holdsAd());
    EXPECT_TRUE(ads.asked().isEmpty());
    EXPECT_EQ(phone.console.lines.size(), 1);
}

TEST_F(OpenAdTest, NothingIsPresentedWithoutAnAdOrAScreen) {
    openAd().showAdIfAvailable();
    const auto ad = heldAd();
    ads.topScreen = false;
    openAd().showAdIfAvailable();
    EXPECT_EQ(ad->presented, 0);
    ads.topScreen = true;
    openAd().showAdIfAvailable();
    EXPECT_EQ(ad->presented, 1);
}

TEST_F(OpenAdTest, FollowsTheSwitchesInForce) {
    const auto ad = heldAd();
    putInForce({.openAdEnabled = false});
    openAd().showAdIfAvailable();
    device.tablet = true;
    putInForce({.ipadAdEnabled = false});
    openAd().showAdIfAvailable();
    EXPECT_EQ(ad->presented, 0);
    restart();
    putInForce({.ipadAdEnabled = false});
    openAd().loadAd();
    EXPECT_TRUE(ads.asked().isEmpty());
    device.tablet = false;
    openAd().loadAd();
    EXPECT_EQ(ads.asked(), request);
}

TEST_F(OpenAdTest, AFailedLoadIsALineAndLeavesTheSlotEmpty) {
    EXPECT_EQ(openAd().loadTime(), phone.clock.now());
    openAd().loadAd();
    ads.refuse();
    EXPECT_EQ(takeLines().size(), 1);
    ads.asked();
    openAd().loadAd();
    EXPECT_EQ(ads.asked(), request);
}

} // namespace orl
