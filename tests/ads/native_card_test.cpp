#include "ads/native_ad_card_view.h"
#include "ads_phone.h"

namespace orl {

using namespace std::chrono_literals;

namespace {

struct NativeCardTest : AdsTest {
    NativeModel model(const char *id, NativeAdType type = NativeAdType::INSIDE_CHAT) {
        return {QLatin1String(id), type};
    }

    std::unique_ptr<NativeAdCardView> card(const char *id, NativeAdType type = NativeAdType::INSIDE_CHAT) {
        return std::make_unique<NativeAdCardView>(*process, *appVM, model(id, type));
    }

    static QString headline(const std::unique_ptr<NativeAdCardView> &card) {
        return card->nativeAdView() ? card->nativeAdView()->face().headline() : QString();
    }
};

} // namespace

TEST_F(NativeCardTest, EachTypeHasItsUnitAndLayout) {
    struct Case {
        NativeAdType type;
        const char *name;
        const char *unit;
        const char *layout;
    };
    const Case cases[] = {
        {NativeAdType::INSIDE_MESSAGES, "INSIDE_MESSAGES", "message-list", "Messages_NativeAdView"},
        {NativeAdType::IN_HOME_SCREEN, "IN_HOME_SCREEN", "home", "Home_NativeAdView"},
        {NativeAdType::IDENTITY_HOME, "IDENTITY_HOME", "identity-home", "FullWidth_NativeAdView"},
        {NativeAdType::IDENTITY_AFTER_BUTTON, "IDENTITY_AFTER_BUTTON", "identity-button",
         "FullWidth_NativeAdView"},
        {NativeAdType::INSIDE_CHAT, "INSIDE_CHAT", "message-list", "Chat_NativeAdView"},
    };
    for (const Case &row : cases) {
        EXPECT_EQ(rawValue(row.type), QLatin1String(row.name));
        NativeAdController controller(*process, {QLatin1String(row.name), row.type});
        controller.viewDidLoad();
        EXPECT_EQ(ads.asked(), QStringList{QStringLiteral("native ") + QLatin1String(row.unit)}) << row.name;
        EXPECT_EQ(controller.nativeAdView()->layout(), QLatin1String(row.layout)) << row.name;
    }
}

TEST_F(NativeCardTest, ModelsAreEqualWhereAllThreeAgree) {
    const NativeModel one = model("a");
    EXPECT_EQ(one, model("a"));
    EXPECT_NE(one, model("b"));
    EXPECT_NE(one, model("a", NativeAdType::IDENTITY_HOME));
    EXPECT_NE(one, (NativeModel{one.id, one.adType, QSizeF(1, 0)}));
}

TEST_F(NativeCardTest, AHeldAdIsUsedAgainForNinetyNineSeconds) {
    struct Case {
        const char *name;
        std::chrono::milliseconds age;
        bool reused;
    };
    const Case cases[] = {{"at once", 0ms, true},
                          {"99 s", 99s, true},
                          {"99.999 s are 99 whole ones", 99999ms, true},
                          {"100 s", 100s, false}};
    for (const Case &row : cases) {
        SCOPED_TRACE(row.name);
        restart();
        NativeAdController first(*process, model("slot"));
        first.viewDidLoad();
        ads.natives.last()->receive("kept");
        ads.asked();
        phone.advance(row.age);
        NativeAdController again(*process, model("slot"));
        again.viewDidLoad();
        EXPECT_EQ(ads.asked().isEmpty(), row.reused);
        EXPECT_EQ(again.nativeAdView()->face().headline(), row.reused ? QStringLiteral("kept") : QString());
        EXPECT_EQ(again.nativeAdView()->spinning(), !row.reused);
        EXPECT_EQ(again.alpha(), row.reused ? 1 : 0);
        NativeAdController other(*process, model("another slot"));
        other.viewDidLoad();
        EXPECT_EQ(ads.asked().size(), 1) << "ads are held for each slot";
    }
}

TEST_F(NativeCardTest, ARatingHasAPictureFromThreeAndAHalfOn) {
    struct Case {
        std::optional<double> rating;
        const char *image;
    };
    const Case cases[] = {{std::nullopt, ""}, {0.0, ""},           {3.4, ""},        {3.49, ""},
                          {3.5, "stars_3_5"}, {3.99, "stars_3_5"}, {4.0, "stars_4"}, {4.4, "stars_4"},
                          {4.5, "stars_4_5"}, {4.99, "stars_4_5"}, {5.0, "stars_5"}, {7.0, "stars_5"}};
    for (const Case &row : cases)
        EXPECT_EQ(starImage(row.rating), QLatin1String(row.image)) << row.rating.value_or(-1);
}

TEST_F(NativeCardTest, AFilledCardShowsTheAssetsThatTheAdHas) {
    NativeAdController controller(*process, model("slot"));
    controller.viewDidLoad();
    EXPECT_EQ(controller.alpha(), 0);
    const auto ad =
        ads.natives.last()->receive(AdAssets{.headline = QStringLiteral("Tea"),
                                             .callToAction = QStringLiteral("Sip"),
                                             .starRating = 4.5,
                                             .media = {.picture = "png", .frames = 20, .frameTime = 100ms}});
    NativeAdView &view = *controller.nativeAdView();
    EXPECT_EQ(controller.alpha(), 1);
    EXPECT_FALSE(view.spinning());
    const AdFace face = view.face();
    EXPECT_EQ(face.headline(), QStringLiteral("Tea"));
    EXPECT_EQ(face.callToAction(), QStringLiteral("Sip"));
    EXPECT_EQ(face.body() + face.advertiser() + face.store() + face.price() + face.icon(), QString());
    EXPECT_EQ(face.stars(), QStringLiteral("stars_4_5"));
    EXPECT_EQ(process->shared<AdPictures>().bytes(face.media()), QByteArray("png"));
    EXPECT_TRUE(face.hasVideoContent());
    EXPECT_EQ(face.frames() * face.frameMilliseconds(), 2000);
    view.tap();
    EXPECT_EQ(ad->taps, 1);
    view.videoDidEnd();
    EXPECT_EQ(takeLines(), QStringList{QStringLiteral("Video playback has ended.")});
    const NativeAd &shared = process->shared<NativeAd>();
    EXPECT_EQ(shared.view(NativeAdType::INSIDE_CHAT).get(), &view);
    EXPECT_EQ(shared.state(NativeAdType::INSIDE_CHAT), NativeAdState::loaded);
}

TEST_F(NativeCardTest, PicturesStayAsLongAsAFaceShowsThem) {
    auto &pictures = process->shared<AdPictures>();
    auto face = std::make_unique<AdFace>(*process, AdAssets{.icon = "icon", .media = {.picture = "media"}});
    const AdFace copy = *face;
    const QString key = face->icon();
    face.reset();
    EXPECT_EQ(pictures.bytes(key), QByteArray("icon"));
    EXPECT_EQ(pictures.bytes(copy.media()), QByteArray("media"));
    EXPECT_TRUE(pictures.bytes(QStringLiteral("another key")).isEmpty());
    QString gone;
    for (int i = 0; i < 100; ++i)
        gone = AdFace(*process, AdAssets{.icon = "many"}).icon();
    EXPECT_TRUE(pictures.bytes(gone).isEmpty());
    EXPECT_LE(pictures.held(), 3) << "hours of ads do not pile up";
}

TEST_F(NativeCardTest, ACardIsShownAtTheTickAfterItsAdArrived) {
    letAdsLoad();
    const auto home = card("home", NativeAdType::IN_HOME_SCREEN);
    EXPECT_EQ(ads.asked(), QStringList{QStringLiteral("native home")}) << "the load begins at once";
    phone.advance(600ms);
    ads.natives.last()->receive("here");
    EXPECT_FALSE(home->isLoaded());
    phone.advance(400ms);
    EXPECT_TRUE(home->isLoaded());
    EXPECT_EQ(headline(home), QStringLiteral("here"));
}

TEST_F(NativeCardTest, CardsOfOneTypeShowTheCardThatArrivedLast) {
    letAdsLoad();
    const auto first = card("inside_chat_0");
    const auto second = card("inside_chat_5");
    const auto other = card("inside_messages", NativeAdType::INSIDE_MESSAGES);
    ASSERT_EQ(ads.natives.size(), 3);
    ads.natives[1]->receive("second");
    ads.natives[0]->receive("first, but later");
    phone.advance(500ms);
    EXPECT_EQ(headline(first), QStringLiteral("first, but later"));
    EXPECT_EQ(first->nativeAdView(), second->nativeAdView());
    EXPECT_FALSE(other->isLoaded());
    ads.natives[1]->receive("too late");
    ads.natives[0]->refuse();
    phone.advance(500ms);
    EXPECT_TRUE(first->isLoaded());
    EXPECT_EQ(headline(first), QStringLiteral("first, but later")) << "a shown card stays as it is";
}

TEST_F(NativeCardTest, AFailureIsALineAndHidesCardsUntilALaterSuccess) {
    letAdsLoad();
    const auto failed = card("a");
    ads.natives[0]->refuse();
    phone.advance(500ms);
    EXPECT_EQ(failed->nativeAdState(), NativeAdState::failed);
    EXPECT_EQ(takeLines(), QStringList{QStringLiteral("<loader message-list> failed with error: no fill")});
    ads.asked();
    const auto next = card("b");
    phone.advance(10s);
    EXPECT_EQ(ads.asked(), QStringList{QStringLiteral("native message-list")})
        << "no retry but by a new card";
    EXPECT_EQ(next->nativeAdState(), NativeAdState::failed) << "its own load is still under way";
    ads.natives[1]->receive("at last");
    phone.advance(500ms);
    EXPECT_TRUE(next->isLoaded());
}

TEST_F(NativeCardTest, LoadsNothingBeforeConsentOrWhereItIsSwitchedOff) {
    makeAppVM();
    const auto early = card("a");
    appVM->loadAds();
    EXPECT_TRUE(ads.asked().isEmpty());
    arrive({.nativeAdEnabled = false});
    EXPECT_TRUE(ads.asked().filter(QStringLiteral("native")).isEmpty());
    device.tablet = true;
    restart();
    letAdsLoad({.ipadAdEnabled = false});
    const auto onTablet = card("a");
    EXPECT_TRUE(ads.asked().isEmpty());
    phone.advance(1s);
    EXPECT_FALSE(onTablet->isLoaded());
}

TEST_F(NativeCardTest, ACardThatGoesTakesItsLoadAlong) {
    letAdsLoad();
    card("a");
    EXPECT_TRUE(ads.natives.isEmpty());
    phone.advance(1s);
}

TEST_F(NativeCardTest, TheSharedCardOutlivesTheOneThatLoadedIt) {
    letAdsLoad();
    {
        const auto gone = card("a");
        ads.natives[0]->receive("stays");
    }
    const auto next = card("b");
    phone.advance(500ms);
    EXPECT_EQ(headline(next), QStringLiteral("stays"));
}

} // namespace orl
