#include "ads/native_ad_view_xmark.h"
#include "demo/ad_picture.h"
#include "looks.h"
#include "platform/qt/stored_consent.h"
#include "resting.h"
#include "screens/ad_images.h"
#include "screens/conversation_view.h"
#include "screens/full_screen_ad_view.h"
#include "screens/full_swipe_pop_helper.h"
#include "screens/review_prompt.h"
#include "screens/sample_ads.h"
#include "screens/screens.h"
#include "screens_phone.h"

#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>

#include <filesystem>

using namespace orl;
using test::Sms;

namespace {

constexpr Look looks[] = {
    {"phone"},
    {"phone_dark", 390, 844, true},
    {"narrow", 360, 640},
    {"narrow_dark_large_text", 360, 640, true, 2},
    {"large_text", 390, 844, false, 2},
    {"right_to_left", 390, 844, false, 1, true},
    {"desktop", 1000, 700},
};

/// Draws the real screens and looks at what can be measured of them. Keeps a picture of each in the folder
/// "pictures" beside the test.
class LayoutTest : public ScreensTest, public testing::WithParamInterface<Look> {
protected:
    LayoutTest() {
        complaints.clear();
        previous_ = qInstallMessageHandler(noteComplaint);
        setUp(appearance, GetParam());
    }

    ~LayoutTest() override {
        engine_.reset();
        qInstallMessageHandler(previous_);
    }

    /// Whether what is on the screen must lie within the window; a screen that is dragged away does not.
    enum class Within { Window, Nothing };

    void open() {
        makeContent();
        show();
    }

    void show() {
        showSplash();
        if (content->splashIsPresented()) phone.advance(SplashView::wait + SplashView::fade);
    }

    void showSplash() {
        fullScreenAd_ = std::make_unique<FullScreenAdView>(*process, stage_);
        makeEngine({{QStringLiteral("content"), QVariant::fromValue(content.get())},
                    {QStringLiteral("reviewPrompt"), QVariant::fromValue(&prompt_)},
                    {QStringLiteral("fullScreenAd"), QVariant::fromValue(fullScreenAd_.get())},
                    {QStringLiteral("trackingQuestion"), QVariant::fromValue(&question_)},
                    {QStringLiteral("consentQuestion"), QVariant::fromValue(&consentQuestion_)}});
        engine_->load(QUrl(QString::fromLatin1(mainWindow)));
        takeWindow();
    }

    /// A window with nothing but this in it.
    void show(const QByteArray &qml, const QVariantMap &properties) {
        makeEngine(properties);
        engine_->loadData(qml);
        takeWindow();
    }

    void makeEngine(const QVariantMap &properties) {
        engine_ = std::make_unique<QQmlApplicationEngine>();
        prepareScreens(*engine_, process->platform());
        prepareAds(*engine_, *process);
        engine_->setInitialProperties(properties);
    }

    void takeWindow() {
        window_ = qobject_cast<QQuickWindow *>(engine_->rootObjects().value(0));
        ASSERT_NE(window_, nullptr) << complaints.join(u'\n').toStdString();
        window_->resize(GetParam().width, GetParam().height);
    }

    /// Lets everything arrive, keeps a picture and checks what is on the screen.
    void look(const char *station, Within within = Within::Window) {
        comeToRest();
        const QImage picture = window_->grabWindow();
        std::filesystem::create_directories("pictures");
        picture.save(QStringLiteral("pictures/%1-%2.png")
                         .arg(QString::fromLatin1(station), QString::fromLatin1(GetParam().name)),
                     nullptr, fastPng);
        SCOPED_TRACE(station);
        EXPECT_GT(coloursOf(picture), 20) << "a blank screen";
        if (within == Within::Window) check(*window_->contentItem());
        EXPECT_EQ(std::exchange(complaints, {}).join(u'\n').toStdString(), "");
    }

    /// A finger that moves by this share of the width, in the direction in which a screen is dragged away.
    void drag(double share) {
        const int sign = GetParam().rightToLeft ? -1 : 1;
        const QPoint from(window_->width() / 2 - sign * window_->width() / 3, window_->height() / 2);
        finger_ = QTest::createTouchDevice();
        QTest::touchEvent(window_, finger_).press(0, from, window_);
        for (int step = 1; step <= 10; ++step) {
            const int x = from.x() + int(sign * share * window_->width() * step / 10);
            QTest::touchEvent(window_, finger_).move(0, QPoint(x, from.y()), window_);
            last_ = QPoint(x, from.y());
        }
    }

    void drop() {
        QTest::touchEvent(window_, finger_).release(0, last_, window_);
        comeToRest();
    }

    void comeToRest() {
        orl::comeToRest(*window_->contentItem(), [this] { phone.settle(); });
    }

    void checkWithinWindow(const QQuickItem &item, const std::string &who) {
        const QRectF place = item.mapRectToScene(QRectF(0, 0, item.width(), item.height()));
        EXPECT_GE(place.left(), -0.5) << who;
        EXPECT_LE(place.right(), window_->width() + 0.5) << who;
    }

    /// The button of this name below the item; null where none is in sight.
    static const QQuickItem *button(const QQuickItem &item, const QString &name) {
        if (!item.isVisible()) return nullptr;
        if (item.inherits("QQuickAbstractButton") && item.property("text") == name) return &item;
        for (const QQuickItem *child : item.childItems())
            if (const QQuickItem *found = button(*child, name)) return found;
        return nullptr;
    }

    /// Whether a button can be seen as a whole without scrolling, above the tabs.
    bool isWhollyInSight(const QString &name) {
        const QQuickItem *found = button(*window_->contentItem(), name);
        const QQuickItem *tab = button(*window_->contentItem(), QStringLiteral("EMail"));
        return found && tab && found->mapToScene({0, found->height()}).y() <= tab->mapToScene({0, 0}).y();
    }

private:
    static constexpr int fastPng = 80; ///< of 100; less work for a larger file

    static int coloursOf(const QImage &picture) {
        QSet<QRgb> colours;
        for (int y = 0; y < picture.height(); y += 3) {
            for (int x = 0; x < picture.width(); x += 3)
                colours.insert(picture.pixel(x, y));
        }
        return int(colours.size());
    }

    void check(const QQuickItem &item) {
        if (!item.isVisible() || item.opacity() == 0) return;
        if (item.inherits("QQuickAbstractButton") || item.inherits("QQuickTextField")) checkControl(item);
        if (item.inherits("QQuickText")) checkText(item);
        if (item.property("contentWidth").toDouble() > item.width() && item.inherits("QQuickFlickable"))
            return; // a row that is scrolled sideways
        for (const QQuickItem *child : item.childItems())
            check(*child);
    }

    void checkControl(const QQuickItem &control) {
        const QString name =
            control.property("text").toString() + control.property("placeholderText").toString();
        const std::string who = control.metaObject()->className() + (" '" + name.toStdString() + "'");
        EXPECT_FALSE(name.isEmpty()) << who << " has no name";
        EXPECT_GE(control.width(), 44) << who;
        EXPECT_GE(control.height(), 44) << who;
        checkWithinWindow(control, who);
    }

    void checkText(const QQuickItem &text) {
        const std::string who = "text '" + text.property("text").toString().toStdString() + "'";
        checkWithinWindow(text, who);
        EXPECT_TRUE(holdsItsWords(text)) << who;
        if (text.property("wrapMode").toInt() != 0)
            return; // those that do not wrap are elided or fitted on purpose
        EXPECT_FALSE(text.property("truncated").toBool() && text.property("elide").toInt() == Qt::ElideNone)
            << who;
    }

    QtMessageHandler previous_ = nullptr;
    QPointingDevice *finger_ = nullptr;
    QPoint last_;

protected:
    ReviewPrompt prompt_{browser, QUrl()};
    AdStage stage_{phone.mainQueue};
    StoredQuestion question_, consentQuestion_;
    std::unique_ptr<FullScreenAdView> fullScreenAd_;
    std::unique_ptr<QQmlApplicationEngine> engine_;
    QQuickWindow *window_ = nullptr;
};

AdAssets rich() {
    return richAd(demo::adPicture(QStringLiteral("harbour"), QStringLiteral("icon")),
                  {demo::adPicture(QStringLiteral("harbour"), QStringLiteral("tall"))});
}

AdAssets poor() {
    return poorAd(demo::adPicture(QStringLiteral("harbour"), QStringLiteral("icon")));
}

const QList<Sms> lively{
    {QStringLiteral("Harbourly Pay"),
     QStringLiteral("482-913 is your code. Or tap https://harbourly.example/v/8Xk2 now."),
     QStringLiteral("2025-12-31T23:59:30.000000Z")},
    {QStringLiteral("Kumoboxo"), QStringLiteral("Your access key is 9T2C8ET4. It works once."),
     QStringLiteral("2025-12-31T23:40:00.000000Z")},
    {QStringLiteral("+447700900123"),
     QStringLiteral("مرحبا! رمز التحقق الخاص بك هو 771204. <b>لا تشاركه</b>"),
     QStringLiteral("2025-12-31T22:00:00.000000Z")},
    {QStringLiteral("A sender with a name that is long enough to need a second line"),
     QStringLiteral("Donaudampfschifffahrtselektrizitätenhauptbetriebswerkbauunterbeamtengesellschaft 12"),
     QStringLiteral("2025-12-20T22:00:00.000000Z")},
};

TEST_P(LayoutTest, FirstRun) {
    phone.reachability.setOnline(false);
    open();
    look("no-internet");

    phone.reachability.setOnline(true);
    phone.urls.hold(countriesUrl);
    content->chooser()->retry();
    look("fetching-countries");
    phone.urls.release(countriesUrl);
    look("countries");
    content->chooser()->setSearchTerm(QStringLiteral("xyz"));
    look("no-results");
    content->chooser()->setSearchTerm({});

    phone.urls.hold(norwayUrl);
    content->chooser()->tap(1);
    look("fetching-numbers");
    phone.urls.release(norwayUrl);
    look("numbers");
    phone.urls.answer(norwayUrl, test::numbersPage({}));
    content->chooser()->numbers()->load();
    look("no-numbers");
}

TEST_P(LayoutTest, Home) {
    makeHome(lively);
    show();
    request().fetchNumbers(*request().currentCountry(), [](const auto &) {});
    look("recent");
    content->copyVM()->copy(QStringLiteral("482913"));
    look("copied");
    const auto *banner = window_->findChild<QQuickItem *>(QStringLiteral("copied"));
    ASSERT_NE(banner, nullptr);
    checkWithinWindow(*banner, "what says so");
    phone.advance(std::chrono::seconds(2));
    content->home()->showSenders();
    look("senders");
    content->home()->tapSimilar(0);
    look("confirmation");
    content->home()->choice()->cancel();
    content->home()->openCountries();
    look("change-countries");

    const QString niger = QStringLiteral("https://first.example/en/niger");
    phone.urls.answer(niger, test::numbersPage({"+227 555 0101", "+227 555 0102", "+227 555 0103"}));
    phone.urls.answer(QStringLiteral("https://first.example/en/numbers/2275550101"),
                      test::messagePage(lively));
    content->home()->countries()->tap(0);
    look("change-numbers");
    content->home()->countries()->numbers()->tap(0);
    content->home()->countries()->numbers()->choice()->confirm();
    look("changed");
    EXPECT_EQ(content->home()->similar()->count(), 2);
}

constexpr char conversationOverHome[] = R"(
    import QtQuick
    import Orl.Screens
    Window {
        id: root
        required property Appearance appearance
        required property HomeView home
        required property ConversationView conversation
        required property FullSwipePopHelper swipe
        visible: true
        color: Theme.background
        LayoutMirroring.enabled: appearance.rightToLeft
        LayoutMirroring.childrenInherit: true
        Binding { target: Theme; property: "dark"; value: root.appearance.dark }
        Binding { target: Theme; property: "textScale"; value: root.appearance.textScale }
        Binding { target: Theme; property: "reducedMotion"; value: root.appearance.reducedMotion }
        FullSwipePop {
            anchors.fill: parent
            helper: root.swipe
            content: Component { ConversationScreen { view: root.conversation } }
            HomeScreen {
                anchors.fill: parent
                view: root.home
            }
        }
    })";

TEST_P(LayoutTest, Conversation) {
    QList<Sms> messages = lively;
    for (int i = 1; i <= 6; ++i) {
        messages << Sms{lively[0].sender, QStringLiteral("%1 is your code %2").arg(482900 + i).arg(i),
                        QStringLiteral("2025-12-31T2%1:00:00.000000Z").arg(i % 4)};
    }
    messages << Sms{ConversationView::otherSide(), QStringLiteral("Is 12345 right?"), {}};
    phone.urls.answer(secondPageUrl, test::messagePage({}));
    makeHome(messages);
    ConversationView conversation(*process, request(), *content->copyVM());
    FullSwipePopHelper swipe(request());
    show(conversationOverHome, {{QStringLiteral("appearance"), QVariant::fromValue(&appearance)},
                                {QStringLiteral("home"), QVariant::fromValue(content->home())},
                                {QStringLiteral("conversation"), QVariant::fromValue(&conversation)},
                                {QStringLiteral("swipe"), QVariant::fromValue(&swipe)}});
    content->home()->showSenders();
    content->home()->tapSender(0);
    look("conversation");
    phone.advance(std::chrono::seconds(1));
    look("conversation-end");
    drag(0.37);
    look("conversation-half", Within::Nothing);
    drop();
    EXPECT_TRUE(request().conversation_isPresented());
    drag(0.6);
    drop();
    EXPECT_FALSE(request().conversation_isPresented());
    look("conversation-left");
    content->home()->tapSender(4);
    look("conversation-other-side");
    request().setConversation_isPresented(false);
    request().setSelectedConversation(std::nullopt);
    request().setConversation_isPresented(true);
    look("conversation-empty");
    engine_.reset();
}

TEST_P(LayoutTest, HomeWithoutMessages) {
    makeHome();
    restartScreens();
    phone.reachability.setOnline(false);
    open();
    look("offline-alert");
    content->home()->dismissOffline();
    look("offline");
    EXPECT_TRUE(isWhollyInSight(QStringLiteral("Try again!")));
    phone.reachability.setOnline(true);
    phone.urls.hold(messagesUrl);
    content->home()->retry();
    look("fetching-messages");
    phone.urls.release(messagesUrl);
    look("nothing-yet");
}

TEST_P(LayoutTest, Start) {
    phone.bundle.infoValues[QStringLiteral("CFBundleDisplayName")] = QStringLiteral("Orl");
    tracking.answer = TrackingStatus::NotDetermined;
    makeContent();
    showSplash();
    look("splash");
    phone.advance(SplashView::wait);
    look("idfa");
}

TEST_P(LayoutTest, Tabs) {
    makeHome(lively);
    phone.urls.answer(QStringLiteral("https://first.example/en/numbers/15550122"), test::messagePage({}));
    request().chooseNumber(test::country(QStringLiteral("Niger")),
                           test::phoneNumber(QStringLiteral("+1 555 0122")), false);
    phone.settle();
    phone.clock.setNow(phone.clock.now() + 100000);
    request().chooseNumber(test::country(QStringLiteral("Norway")),
                           test::phoneNumber(QStringLiteral("+1 555 0100")), false);
    phone.settle();
    request().loadHistory();
    show();
    MainView &main = *content->main();
    main.select(1);
    look("mail");
    main.select(2);
    look("identity");
    main.select(3);
    look("settings");
    SettingsView &settings = *main.settings();
    settings.setMessageSoundEnabled(false);
    settings.tap(7);
    look("share");
    settings.shareSheet()->dismiss();
    settings.tap(0);
    look("history");
    used(3);
    settings.history()->tap(1);
    look("limit");
    settings.history()->choice()->dismissLimit();
    settings.history()->tap(0);
    look("current-number");
    settings.history()->dismissCurrentNumberAlert();
    settings.closeHistory();
    prompt_.requestReview();
    look("review");
}

TEST_P(LayoutTest, NoHistory) {
    makeHome();
    phone.store.values.erase(QStringLiteral("history_key"));
    restartScreens();
    makeContent();
    show();
    content->main()->select(3);
    content->main()->settings()->tap(0);
    look("no-history");
}

TEST_P(LayoutTest, Ads) {
    phone.bundle.infoValues[QStringLiteral("CFBundleDisplayName")] = QStringLiteral("Orl");
    tracking.answer = TrackingStatus::Denied;
    answerConfiguration(true, true, true);
    makeHome(lively);
    show();
    const auto arrive = [this] {
        for (int round = 0; round < 2; ++round) {
            comeToRest();
            for (auto *banner : ads.banners)
                if (!banner->assets()) banner->receive(poor());
            for (auto *loader : std::exchange(ads.natives, {}))
                loader->receive(rich());
            phone.advance(std::chrono::milliseconds(500));
        }
    };
    arrive();
    look("ads-messages");
    phone.advance(NativeAdView_XMARK::displayDelay + std::chrono::seconds(1));
    look("ads-card-arrives");
    phone.advance(NativeAdView_XMARK::xMarkDelay);
    look("ads-card");
    auto *card = window_->findChild<NativeAdView_XMARK *>();
    ASSERT_NE(card, nullptr);
    card->close();
    content->home()->showSenders();
    arrive();
    look("ads-senders");
    content->home()->tapSender(1);
    phone.advance(std::chrono::seconds(1));
    arrive();
    phone.advance(std::chrono::seconds(2));
    look("ads-conversation");
    request().setConversation_isPresented(false);
    content->home()->openCountries();
    arrive();
    look("ads-countries");
    content->home()->closeCountries();

    stage_.setReady(true);
    stage_.show({.assets = rich(), .reward = std::chrono::seconds(15)});
    look("ads-rewarded");
    phone.advance(std::chrono::seconds(15));
    look("ads-reward-earned");
    stage_.close();
    stage_.show({.assets = poor()});
    look("ads-full-screen-poor");
    stage_.close();
    look("ads-gone");
    question_.setReady(true);
    question_.ask([](auto) {});
    look("ads-tracking");
    question_.answer(false);
    consentQuestion_.setReady(true);
    consentQuestion_.ask([](auto) {});
    look("ads-consent");
    consentQuestion_.answer(true);
    comeToRest();
    EXPECT_FALSE(consentQuestion_.isAsked());
}

/// With motion.
class MovingLayoutTest : public LayoutTest {
protected:
    MovingLayoutTest() { appearance.setReducedMotion(false); }

    /// Whether a text is in sight below the item.
    static bool shows(const QQuickItem &item, const QString &text) {
        if (!item.isVisible()) return false;
        if (item.inherits("QQuickText") && item.property("text") == text) return true;
        return std::ranges::any_of(item.childItems(),
                                   [&](const QQuickItem *child) { return shows(*child, text); });
    }
    bool shows(const QString &text) { return shows(*window_->contentItem(), text); }
};

TEST_P(MovingLayoutTest, CountryTappedWhileTheLastOneSlidesOutShowsItsOwnNumbers) {
    open();
    comeToRest();
    phone.urls.answer(QStringLiteral("https://first.example/en/niger"), test::numbersPage({"+227 555 0101"}));
    ChoosePhoneView &chooser = *content->chooser();
    chooser.tap(1);
    comeToRest();
    ASSERT_TRUE(shows(QStringLiteral("+1 5550100")));
    chooser.setIsPresented(false);
    PlayedAnimations::shared().advance();
    ASSERT_TRUE(shows(QStringLiteral("+1 5550100"))) << "it is still on its way out";
    chooser.tap(0);
    comeToRest();
    EXPECT_TRUE(shows(QStringLiteral("+2 275550101")));
    EXPECT_FALSE(shows(QStringLiteral("+1 5550100")));
    EXPECT_EQ(complaints.join(u'\n').toStdString(), "") << "a screen outlived what it shows";
}

// Of a long list, some cards are still being made when it goes.
TEST_P(MovingLayoutTest, ScreenGoesAheadOfWhatItShows) {
    open();
    comeToRest();
    QList<QByteArray> many;
    for (int i = 10; i < 50; ++i)
        many << "+1 555 01" + QByteArray::number(i);
    phone.urls.answer(norwayUrl, test::numbersPage(many));
    phone.urls.answer(QStringLiteral("https://first.example/en/niger"), test::numbersPage({"+227 555 0101"}));
    ChoosePhoneView &chooser = *content->chooser();
    for (int frames = 1; frames <= 8; ++frames) {
        chooser.tap(1);
        for (int frame = 0; frame < frames; ++frame) {
            phone.settle();
            PlayedAnimations::shared().advance();
            QCoreApplication::processEvents();
        }
        chooser.setIsPresented(false);
        chooser.tap(0);
        chooser.setIsPresented(false);
        comeToRest();
    }
    EXPECT_EQ(complaints.join(u'\n').toStdString(), "");
}

INSTANTIATE_TEST_SUITE_P(Phone, MovingLayoutTest, testing::Values(looks[0]),
                         [](const auto &look) { return std::string(look.param.name); });

INSTANTIATE_TEST_SUITE_P(Looks, LayoutTest, testing::ValuesIn(looks),
                         [](const auto &look) { return std::string(look.param.name); });

} // namespace

int main(int argc, char **argv) {
    QGuiApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
