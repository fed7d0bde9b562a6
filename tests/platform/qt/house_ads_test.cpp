#include "demo/demo_host.h"
#include "platform/qt/house_ads.h"
#include "platform/qt/network_url_reader.h"
#include "support/played_platform.h"

#include <QBuffer>
#include <QImage>
#include <QSet>

#include <gtest/gtest.h>

namespace orl {

namespace {

QByteArray png(const QSize &size) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::darkCyan);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes;
}

class PlayedBrowser : public Browser {
public:
    QList<QUrl> opened;
    void open(const QUrl &url) override { opened.append(url); }
};

struct HouseAdsTest : testing::Test {
    HouseAdsTest() {
        ads.start();
        ads.stage().setReady(true);
    }

    Platform platform() { return phone.platform().with(browser); }

    static QString url(const char *path) {
        return QStringLiteral("https://ads.example") + QLatin1String(path);
    }

    /// The ad of this document, or why there is none.
    Result<HouseAd> read(const QByteArray &document) {
        phone.urls.answer(url("/units/home/0.json"), document);
        return HouseAdReader(phone.urls, phone.endpoints.adHost).read(QStringLiteral("home"), 0);
    }
    Result<HouseAd> readWith(const QByteArray &more) {
        return read(R"({"headline": "Tea", "link": "/landing/tea", )" + more + "}");
    }

    std::shared_ptr<FullScreenAd> loadRewarded(const QByteArray &more = R"("reward_seconds": 5)") {
        phone.urls.answer(url("/units/rewarded/0.json"),
                          R"({"headline": "Tea", "link": "/landing/tea", )" + more + "}");
        std::shared_ptr<FullScreenAd> ad;
        ads.loadRewarded(QStringLiteral("rewarded"),
                         [&](const Result<std::shared_ptr<FullScreenAd>> &loaded) { ad = loaded.value(); });
        phone.settle();
        return ad;
    }

    PlayedPlatform phone;
    PlayedBrowser browser;
    HouseAds ads{platform()};
};

} // namespace

TEST_F(HouseAdsTest, ReadsAnAdWithAllItsAssets) {
    phone.urls.answer(url("/pictures/i.png"), png({16, 16}));
    phone.urls.answer(url("/pictures/p.png"), png({40, 10}));
    const Result<HouseAd> ad =
        readWith(R"("body": "b", "call_to_action": "c", "advertiser": "a", "store": "s", "price": "p",
                    "star_rating": 4.5, "icon": "/pictures/i.png", "picture": "/pictures/p.png",
                    "video": {"frames": 4, "frame_ms": 100}, "reward_seconds": 20, "unknown": [1])");
    ASSERT_TRUE(ad.ok()) << ad.error().description.toStdString();
    const AdAssets expected{.headline = QStringLiteral("Tea"),
                            .body = QStringLiteral("b"),
                            .callToAction = QStringLiteral("c"),
                            .advertiser = QStringLiteral("a"),
                            .store = QStringLiteral("s"),
                            .price = QStringLiteral("p"),
                            .starRating = 4.5,
                            .icon = png({16, 16}),
                            .media = {png({40, 10}), 4, std::chrono::milliseconds(100)}};
    EXPECT_EQ(ad.value().assets, expected);
    EXPECT_EQ(ad.value().link, QUrl(url("/landing/tea")));
    EXPECT_EQ(ad.value().reward, std::chrono::seconds(20));
}

TEST_F(HouseAdsTest, AHeadlineAndALinkAreEnough) {
    const Result<HouseAd> ad = read(R"({"headline": "Tea", "link": "https://shop.example/tea"})");
    ASSERT_TRUE(ad.ok());
    EXPECT_EQ(ad.value().assets, AdAssets{.headline = QStringLiteral("Tea")});
    EXPECT_EQ(ad.value().link, QUrl(QStringLiteral("https://shop.example/tea")));
    EXPECT_EQ(phone.urls.requests.size(), 1);
    EXPECT_TRUE(phone.urls.requests[0].sameOrigin);
    EXPECT_TRUE(phone.urls.requests[0].timeout.has_value());
}

TEST_F(HouseAdsTest, ThereAreNoHalfAds) {
    phone.urls.answer(url("/ok.png"), png({40, 10}));
    phone.urls.answer(url("/cut.png"), png({400, 300}).left(200));
    phone.urls.answer(url("/garbage.png"), "neither this nor that");
    phone.urls.answer(url("/drawing.png"),
                      R"(<svg xmlns="http://www.w3.org/2000/svg" width="9" height="9"/>)");
    phone.urls.answer(url("/wide.png"), png({4000, 2001}));
    phone.urls.answer(url("/20mb.png"), QByteArray(20 * 1000 * 1000, 'x'));
    phone.urls.answer(url("/gone.png"), UrlResponse{404, "<html>"});
    phone.urls.answer(url("/dead.png"), Error{QStringLiteral("no route")});
    struct Case {
        const char *name;
        QByteArray document;
    };
    const auto with = [](const QByteArray &more) {
        return R"({"headline": "Tea", "link": "/tea", )" + more + "}";
    };
    const Case cases[] = {
        {"no JSON", "<html>"},
        {"a list", "[]"},
        {"an empty body", ""},
        {"too long", QByteArray(HouseAdReader::mostDocumentBytes + 1, ' ')},
        {"no headline", R"({"link": "/tea"})"},
        {"no link", R"({"headline": "Tea"})"},
        {"a link that runs", R"({"headline": "Tea", "link": "javascript:run"})"},
        {"a link into the device", R"({"headline": "Tea", "link": "file:///etc/passwd"})"},
        {"a link without a scheme", R"({"headline": "Tea", "link": "//elsewhere.example/"})"},
        {"mistyped text", with(R"("body": 5)")},
        {"mistyped rating", with(R"("star_rating": "five")")},
        {"a picture elsewhere", with(R"("picture": "https://elsewhere.example/p.png")")},
        {"a picture elsewhere, without a scheme", with(R"("picture": "//elsewhere.example/p.png")")},
        {"a picture that breaks off", with(R"("picture": "/cut.png")")},
        {"a picture of garbage", with(R"("picture": "/garbage.png")")},
        {"a drawing", with(R"("picture": "/drawing.png")")},
        {"too many pixels", with(R"("picture": "/wide.png")")},
        {"20 MB", with(R"("picture": "/20mb.png")")},
        {"a missing picture", with(R"("icon": "/gone.png")")},
        {"no network for it", with(R"("icon": "/dead.png")")},
        {"one frame", with(R"("picture": "/ok.png", "video": {"frames": 1, "frame_ms": 100})")},
        {"frames that do not fit", with(R"("picture": "/ok.png", "video": {"frames": 3, "frame_ms": 100})")},
        {"no frame time", with(R"("picture": "/ok.png", "video": {"frames": 4, "frame_ms": 0})")},
        {"an hour for a reward", with(R"("reward_seconds": 3600)")},
    };
    for (const Case &row : cases)
        EXPECT_FALSE(read(row.document).ok()) << row.name;
    EXPECT_TRUE(readWith(R"("picture": "/ok.png")").ok());
}

TEST_F(HouseAdsTest, TheDemoHostHasAVariedStockForEachUnit) {
    DemoHost host;
    ASSERT_TRUE(host.start());
    NetworkUrlReader network;
    const HouseAdReader reader(network, host.endpoints().adHost);
    for (const char *unit :
         {"interstitial", "rewarded", "app-open", "banner", "chat-inline", "full-screen-inline",
          "message-list", "home", "identity-home", "identity-button"}) {
        QSet<QString> headlines;
        int videos = 0;
        int unrated = 0;
        int iconless = 0;
        for (int number = 0; number < 7; ++number) {
            const Result<HouseAd> ad = reader.read(QLatin1String(unit), number);
            ASSERT_TRUE(ad.ok()) << unit << ' ' << ad.error().description.toStdString();
            const AdAssets &assets = ad.value().assets;
            headlines.insert(assets.headline);
            videos += assets.media.hasVideoContent();
            unrated += !assets.starRating;
            iconless += assets.icon.isEmpty();
            EXPECT_EQ(network.read({.url = ad.value().link}).value().status, 200);
        }
        EXPECT_EQ(headlines.size(), 7) << unit;
        EXPECT_GT(unrated, 0) << unit;
        EXPECT_GT(iconless, 0) << unit;
        const bool native = QByteArray(unit).contains('-') && QByteArray(unit) != "app-open";
        EXPECT_EQ(videos > 0, native || QByteArray(unit) == "home") << unit;
    }
    EXPECT_FALSE(reader.read(QStringLiteral("nobody"), 0).ok());
    for (const Fault::Kind kind : {Fault::Kind::Dead, Fault::Kind::Garbage, Fault::Kind::Huge,
                                   Fault::Kind::CutOff, Fault::Kind::Empty, Fault::Kind::NotFound}) {
        host.setFault(QStringLiteral("/ads/pictures"), kind);
        EXPECT_FALSE(reader.read(QStringLiteral("home"), 0).ok()) << static_cast<int>(kind);
    }
}

TEST_F(HouseAdsTest, NothingIsAskedForBeforeTheStart) {
    HouseAds fresh(platform());
    QString error;
    fresh.loadAppOpen(QStringLiteral("app-open"), [&](const Result<std::shared_ptr<FullScreenAd>> &loaded) {
        error = loaded.error().description;
    });
    EXPECT_TRUE(error.isEmpty());
    phone.settle();
    EXPECT_FALSE(error.isEmpty());
    EXPECT_TRUE(phone.urls.requests.empty());
}

TEST_F(HouseAdsTest, EachLoadOfAUnitAsksForItsNextAd) {
    for (const char *path : {"/units/banner/0.json", "/units/banner/1.json", "/units/home/0.json"})
        phone.urls.answer(url(path), R"({"headline": "Tea", "link": "/tea"})");
    QList<std::shared_ptr<Banner>> banners;
    for (const char *unit : {"banner", "banner", "home"}) {
        banners.append(ads.makeBanner(QLatin1String(unit), BannerSize::Inline, {}));
        banners.last()->load();
    }
    phone.settle();
    EXPECT_EQ(phone.urls.urls(), (QStringList{url("/units/banner/0.json"), url("/units/banner/1.json"),
                                              url("/units/home/0.json")}));
    for (const PlayedRequest &request : phone.urls.requests)
        EXPECT_TRUE(request.byWorker);
}

TEST_F(HouseAdsTest, BannersAndNativeAdsTellWhatBecameOfThem) {
    const QString bannerUrl = url("/units/banner/0.json");
    phone.urls.answerOnce(bannerUrl, R"({"headline": "Tea", "link": "/landing/tea"})");
    QStringList events;
    const auto note = [&](const char *what) {
        return [&events, what] { events.append(QLatin1String(what)); };
    };
    const auto banner = ads.makeBanner(
        QStringLiteral("banner"), BannerSize::AnchoredAdaptive,
        {note("received"), [&](const Error &error) { events.append(error.description); }, note("clicked")});
    banner->tap();
    banner->load();
    phone.settle();
    ASSERT_NE(banner->assets(), nullptr);
    EXPECT_EQ(banner->assets()->headline, QStringLiteral("Tea"));
    banner->tap();
    EXPECT_EQ(browser.opened, QList{QUrl(url("/landing/tea"))});
    phone.urls.answer(url("/units/banner/1.json"), Error{QStringLiteral("no route")});
    banner->load();
    phone.settle();
    EXPECT_EQ(events, (QStringList{QStringLiteral("received"), QStringLiteral("clicked"),
                                   QStringLiteral("no route")}));

    phone.urls.answer(url("/units/home/0.json"), R"({"headline": "Home", "link": "/landing/home"})");
    const auto loader = ads.makeNativeLoader(QStringLiteral("home"));
    std::shared_ptr<NativeAdContent> native;
    loader->load([&](const Result<std::shared_ptr<NativeAdContent>> &loaded) { native = loaded.value(); });
    phone.settle();
    ASSERT_TRUE(native);
    native->tap();
    EXPECT_EQ(browser.opened.last(), QUrl(url("/landing/home")));
    EXPECT_TRUE(loader->description().contains(QStringLiteral("home")));
}

TEST_F(HouseAdsTest, WhatHasGoneIsToldNothing) {
    phone.urls.answer(url("/units/banner/0.json"), "garbage");
    phone.urls.answer(url("/units/home/0.json"), "garbage");
    auto banner = ads.makeBanner(QStringLiteral("banner"), BannerSize::Inline,
                                 {[] { FAIL(); }, [](const Error &) { FAIL(); }, [] { FAIL(); }});
    banner->load();
    auto loader = ads.makeNativeLoader(QStringLiteral("home"));
    loader->load([](const Result<std::shared_ptr<NativeAdContent>> &) { FAIL(); });
    banner.reset();
    loader.reset();
    phone.settle();
    EXPECT_EQ(phone.urls.requests.size(), 2);
}

TEST_F(HouseAdsTest, ARewardedAdIsPresentedCountsDownAndIsDismissed) {
    const auto ad = loadRewarded();
    QStringList events;
    const auto note = [&](const char *what) {
        return [&events, what] { events.append(QLatin1String(what)); };
    };
    ad->setEvents(
        {note("present"), [&](const Error &error) { events.append(error.description); }, note("dismiss")});
    ad->present(note("reward"));
    EXPECT_EQ(ads.stage().assets().headline, QStringLiteral("Tea"));
    ads.stage().tap();
    EXPECT_EQ(browser.opened, QList{QUrl(url("/landing/tea"))});
    phone.advance(std::chrono::seconds(5));
    ads.stage().close();
    EXPECT_EQ(events,
              (QStringList{QStringLiteral("present"), QStringLiteral("reward"), QStringLiteral("dismiss")}));
}

TEST_F(HouseAdsTest, AnAdThatFindsNoPlaceSaysSo) {
    const auto ad = loadRewarded();
    QStringList errors;
    ad->setEvents({[] {}, [&](const Error &error) { errors.append(error.description); }, [] {}});
    ad->present([] {});
    ad->present([] {});
    EXPECT_EQ(errors, QStringList{QStringLiteral("another ad is on show")});
    ads.stage().setReady(false);
    EXPECT_FALSE(ads.hasTopScreen());
    ad->present([] {});
    EXPECT_EQ(errors.size(), 2);
}

} // namespace orl
