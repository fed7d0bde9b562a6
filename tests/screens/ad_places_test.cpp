#include "screens_phone.h"

using namespace orl;
using namespace std::chrono_literals;

namespace {

struct AdPlacesTest : ScreensTest {
    /// A run of the program in which the configuration arrives, with or without native ads.
    HomeView &makeHomeWith(bool native) {
        answerConfiguration(native);
        return makeHome({{QStringLiteral("A"), QStringLiteral("one"), {}},
                         {QStringLiteral("B"), QStringLiteral("two"), {}},
                         {QStringLiteral("C"), QStringLiteral("three"), {}},
                         {QStringLiteral("D"), QStringLiteral("four"), {}},
                         {QStringLiteral("E"), QStringLiteral("five"), {}}});
    }
};

TEST_F(AdPlacesTest, ListsKeepPlacesForAdsWhileTheyAreOn) {
    HomeView &home = makeHomeWith(true);
    EXPECT_EQ(test::texts(*home.messages(), "slot"),
              (QStringList{QString(), QStringLiteral("inside_messages"), QString(), QString(), QString(),
                           QString()}));
    EXPECT_EQ(test::texts(*home.senders(), "slot"),
              (QStringList{QStringLiteral("inside_chat_0"), QString(), QString(), QString(), QString(),
                           QStringLiteral("inside_chat_5"), QString()}));
    EXPECT_EQ(test::texts(*home.senders(), "name"),
              (QStringList{QString(), QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C"),
                           QStringLiteral("D"), QString(), QStringLiteral("E")}));

    home.tapSender(0);
    EXPECT_FALSE(request().conversation_isPresented()) << "an ad opens no conversation";
    home.tapSender(6);
    EXPECT_EQ(content->conversation()->name(), QStringLiteral("E"));
}

TEST_F(AdPlacesTest, ListsHaveNoPlacesForAdsThatAreOff) {
    HomeView &home = makeHomeWith(false);
    EXPECT_EQ(home.messages()->count(), 5);
    EXPECT_EQ(home.senders()->count(), 5);
}

/// The compiled configuration has them on, and so the lists keep places; only the document shows them.
TEST_F(AdPlacesTest, PlacesShowOnceTheDocumentIsThere) {
    const QString document = QStringLiteral("https://configuration.example/KeLo/iOS/orl_config.json");
    answerConfiguration(true);
    phone.urls.hold(document);
    setAds(true);
    HomeView &home = makeHome({{QStringLiteral("A"), QStringLiteral("one"), {}}});
    EXPECT_EQ(home.messages()->count(), 1);
    EXPECT_FALSE(content->adPlaces()->nativeAdEnabled());
    phone.urls.release(document);
    phone.settle();
    EXPECT_TRUE(content->adPlaces()->nativeAdEnabled());
    EXPECT_EQ(home.messages()->count(), 2);
    EXPECT_EQ(home.senders()->count(), 2);
}

TEST_F(AdPlacesTest, EachPlaceAsksForItsUnit) {
    makeHomeWith(true);
    phone.advance(SplashView::wait);
    AdPlaces &places = *content->adPlaces();
    ads.asked();
    QObject place;
    places.anchoredBanner(&place);
    places.chatBanner(&place);
    places.nativeCard(&place, QStringLiteral("inside_messages"));
    places.nativeCard(&place, QStringLiteral("inside_chat_5"));
    places.nativeCard(&place, QStringLiteral("fake_generator"));
    places.nativeCard(&place, QStringLiteral("identity_after_button"));
    for (const char *slot : {"change_email_top", "tmail_results"})
        places.nativeCard(&place, QLatin1String(slot));
    places.homeCard(&place);
    EXPECT_EQ(ads.asked(),
              (QStringList{QStringLiteral("banner banner"), QStringLiteral("inline chat-inline"),
                           QStringLiteral("native message-list"), QStringLiteral("native message-list"),
                           QStringLiteral("native identity-home"), QStringLiteral("native identity-button"),
                           QStringLiteral("native message-list"), QStringLiteral("native message-list"),
                           QStringLiteral("inline full-screen-inline")}));
    EXPECT_EQ(places.blackBanner(&place)->banner(), nullptr) << "it is off";
}

TEST_F(AdPlacesTest, WhatIsMadeForAPlaceGoesWithIt) {
    makeHomeWith(true);
    phone.advance(SplashView::wait);
    {
        QObject place;
        content->adPlaces()->anchoredBanner(&place);
        EXPECT_EQ(ads.banners.size(), 1);
    }
    EXPECT_EQ(ads.banners.size(), 0) << "nobody is there whom it could tell anything";
}

} // namespace
