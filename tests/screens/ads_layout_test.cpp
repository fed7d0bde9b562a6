// Draws every kind of ad as screens place it and keeps pictures in the folder "pictures" beside the test.

#include "ads/ads_phone.h"
#include "ads/native_ad_card_view.h"
#include "ads/native_ad_view_xmark.h"
#include "ads/native_with_generate_button.h"
#include "demo/ad_picture.h"
#include "looks.h"
#include "resting.h"
#include "screens/ad_images.h"
#include "screens/sample_ads.h"
#include "screens/screens.h"

#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>

#include <algorithm>
#include <filesystem>

namespace orl {

namespace {

constexpr Look adLooks[] = {
    {"phone"},
    {"phone_dark", 390, 844, true},
    {"narrow_large_text", 360, 640, false, 2},
    {"right_to_left", 390, 844, false, 1, true},
    {"desktop_dark", 1000, 700, true},
};

struct AdsLayoutTest : AdsTest, testing::WithParamInterface<Look> {
    AdsLayoutTest() {
        complaints.clear();
        previous = qInstallMessageHandler(noteComplaint);
    }
    ~AdsLayoutTest() override {
        window.reset();
        engine.reset();
        qInstallMessageHandler(previous);
    }

    static AdAssets rich() {
        return richAd(demo::adPicture(QStringLiteral("harbour"), QStringLiteral("icon")),
                      {demo::adPicture(QStringLiteral("harbour"), QStringLiteral("film")), demo::filmFrames,
                       std::chrono::milliseconds(5)});
    }

    /// The item of this QML text; `view` is its state.
    void show(const QByteArray &qml, QObject *view) {
        engine = std::make_unique<QQmlEngine>();
        prepareScreens(*engine, process->platform());
        prepareAds(*engine, *process);
        const Look &look = GetParam();
        const auto flag = [](bool on) { return on ? QByteArray("true") : QByteArray("false"); };
        QQmlComponent component(engine.get());
        component.setData("import QtQuick\nimport Orl.Screens\nRectangle {\n required property var view\n"
                          " color: Theme.background\n LayoutMirroring.enabled: " +
                              flag(look.rightToLeft) +
                              "\n LayoutMirroring.childrenInherit: true\n Component.onCompleted: { "
                              "Theme.reducedMotion = true; Theme.dark = " +
                              flag(look.dark) + "; Theme.textScale = " + QByteArray::number(look.textScale) +
                              " }\n" + qml + "\n}",
                          QUrl(QStringLiteral("qrc:/Orl/Screens/Test.qml")));
        ASSERT_TRUE(component.isReady()) << component.errorString().toStdString();
        std::unique_ptr<QObject> root(
            component.createWithInitialProperties({{QStringLiteral("view"), QVariant::fromValue(view)}}));
        ASSERT_TRUE(root) << component.errorString().toStdString();
        window = std::make_unique<QQuickWindow>();
        window->resize(look.width, look.height);
        auto *item = qobject_cast<QQuickItem *>(root.release());
        item->setParentItem(window->contentItem());
        item->setParent(window.get());
        item->setSize(QSizeF(look.width, look.height));
        window->show();
    }

    /// Keeps a picture and gives the height of the item that is named "subject".
    double look(const char *station) {
        const auto *subject = window->findChild<QQuickItem *>(QStringLiteral("subject"));
        comeToRest(*window->contentItem());
        const QImage picture = window->grabWindow();
        std::filesystem::create_directories("pictures");
        picture.save(QStringLiteral("pictures/ad-%1-%2.png")
                         .arg(QString::fromLatin1(station), QString::fromLatin1(GetParam().name)));
        EXPECT_EQ(std::exchange(complaints, {}).join(u'\n').toStdString(), "");
        return subject ? subject->height() : -1;
    }

    std::unique_ptr<QQmlEngine> engine;
    std::unique_ptr<QQuickWindow> window;
    QtMessageHandler previous = nullptr;
};

} // namespace

TEST_P(AdsLayoutTest, NativeCards) {
    letAdsLoad();
    const std::pair<const char *, NativeAdType> types[] = {{"messages", NativeAdType::INSIDE_MESSAGES},
                                                           {"chat", NativeAdType::INSIDE_CHAT},
                                                           {"full-width", NativeAdType::IDENTITY_HOME}};
    for (const auto &[station, type] : types) {
        SCOPED_TRACE(station);
        NativeAdCardView card(*process, *appVM, {QLatin1String(station), type});
        show("NativeAdCard { objectName: \"subject\"; view: parent.view\n anchors.left: parent.left;"
             " anchors.right: parent.right; anchors.margins: Theme.margin }",
             &card);
        EXPECT_EQ(look("empty"), 0) << "no ad, no gap";
        ads.natives.last()->receive(rich());
        phone.advance(std::chrono::milliseconds(500));
        EXPECT_GT(look(station), 80);
        window.reset();
        engine.reset();
    }
    NativeAdCardView bare(*process, *appVM, {QStringLiteral("bare"), NativeAdType::IDENTITY_AFTER_BUTTON});
    ads.natives.last()->receive(poorAd());
    phone.advance(std::chrono::milliseconds(500));
    show("NativeAdCard { objectName: \"subject\"; view: parent.view\n anchors.left: parent.left;"
         " anchors.right: parent.right; anchors.margins: Theme.margin }",
         &bare);
    EXPECT_LT(look("bare"), GetParam().textScale > 1 ? 260 : 140) << "what an ad has not takes no room";
}

TEST_P(AdsLayoutTest, CardOverTheScreen) {
    letAdsLoad({.useXmarkNative = true});
    NativeAdView_XMARK view(*process, *appVM, {QStringLiteral("home"), NativeAdType::IN_HOME_SCREEN});
    ads.natives.last()->receive(rich());
    show("NativeAdXMark { objectName: \"subject\"; view: parent.view; anchors.fill: parent }", &view);
    EXPECT_FALSE(window->findChild<QQuickItem *>(QStringLiteral("subject"))->isVisible());
    phone.advance(std::chrono::seconds(8));
    look("over-the-screen");
    EXPECT_TRUE(window->findChild<QQuickItem *>(QStringLiteral("subject"))->isVisible());
    view.close();
    comeToRest(*window->contentItem());
    EXPECT_FALSE(window->findChild<QQuickItem *>(QStringLiteral("subject"))->isVisible());
}

TEST_P(AdsLayoutTest, Banners) {
    letAdsLoad();
    BannerView anchored(*process, *appVM);
    show("AdBanner { objectName: \"subject\"; banner: parent.view\n anchors.left: parent.left;"
         " anchors.right: parent.right; anchors.bottom: parent.bottom; height: implicitHeight }",
         &anchored);
    EXPECT_EQ(look("empty"), 0) << "no ad, no gap";
    ads.banners[0]->receive(rich());
    phone.advance(std::chrono::milliseconds(500));
    EXPECT_GE(look("banner"), BannerAd::height);

    InlineBannerView inlined(*process, *appVM, QStringLiteral("chat-inline"), 240);
    ads.banners[1]->receive(rich());
    show("AdBanner { objectName: \"subject\"; banner: parent.view\n anchors.centerIn: parent;"
         " width: parent.width * 0.75; height: implicitHeight }",
         &inlined);
    EXPECT_GE(look("inline-banner"), 240);
}

TEST_P(AdsLayoutTest, CardThatHoldsTheGenerateButtonBack) {
    letAdsLoad();
    NativeWithGenerateButton ad(*process, *appVM);
    ad.setShowNativeBeforeGenerate(true);
    ads.natives.last()->receive(rich());
    phone.advance(std::chrono::milliseconds(1600));
    show("NativeBeforeGenerate { objectName: \"subject\"; ad: parent.view\n anchors.left: parent.left;"
         " anchors.right: parent.right; anchors.margins: Theme.margin }",
         &ad);
    const auto shown = [this](const QString &words) {
        const auto items = window->findChildren<QQuickItem *>();
        return std::ranges::any_of(items, [&](const QQuickItem *item) {
            return item->isVisible() && item->inherits("QQuickText") && item->property("text") == words;
        });
    };
    EXPECT_GT(look("before-generate"), 80);
    EXPECT_TRUE(shown(QStringLiteral("3"))) << "the whole seconds that are left";
    EXPECT_FALSE(shown(QStringLiteral("Generate")));
    phone.advance(std::chrono::seconds(4));
    look("before-generate-over");
    EXPECT_FALSE(shown(QStringLiteral("0")));
    EXPECT_TRUE(shown(QStringLiteral("Generate")));
}

INSTANTIATE_TEST_SUITE_P(Looks, AdsLayoutTest, testing::ValuesIn(adLooks),
                         [](const auto &look) { return std::string(look.param.name); });

} // namespace orl

int main(int argc, char **argv) {
    QGuiApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
