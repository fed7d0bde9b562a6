// Every screen in the hands of somebody who has a keyboard and no eyes: what can be pressed or typed into has
// a name and a role, and Tab leads to it, with the arrow keys inside of lists and rows of tabs.
#include "identity/sample_identities.h"
#include "mail_screens_phone.h"
#include "platform/json.h"
#include "platform/qt/stored_consent.h"
#include "resting.h"
#include "screens/ad_images.h"
#include "screens/conversation_view.h"
#include "screens/full_screen_ad_view.h"
#include "screens/review_prompt.h"
#include "screens/screens.h"

#include <QAccessible>
#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>

using namespace orl;
using test::Sms;

namespace {

constexpr int mostStops = 300; ///< more than any screen has

const QList<Sms> lively{
    {QStringLiteral("Harbourly Pay"),
     QStringLiteral("482-913 is your code. Or tap https://harbourly.example/v/8Xk2 now."),
     QStringLiteral("2025-12-31T23:59:30.000000Z")},
    {QStringLiteral("Kumoboxo"), QStringLiteral("Your access key has come."),
     QStringLiteral("2025-12-31T23:40:00.000000Z")},
    {QStringLiteral("Voltarine"), QStringLiteral("771204"), QStringLiteral("2025-12-31T22:00:00.000000Z")},
    {QStringLiteral("Gridwick"), QStringLiteral("Your code is 90210."),
     QStringLiteral("2025-12-31T21:00:00.000000Z")},
};

bool contains(const QQuickItem &outer, const QQuickItem *inner) {
    return inner && (inner == &outer || outer.isAncestorOf(inner));
}

struct KeyboardTest : MailScreensTest {
    ~KeyboardTest() override { engine_.reset(); }

    void open() {
        makeContent();
        show();
    }

    void openHome() {
        makeHome(lively);
        request().fetchNumbers(*request().currentCountry(), [](const auto &) {});
        show();
    }

    /// The home screen with an ad among its rows, and one place of an ad that has not come.
    void openAds() {
        phone.bundle.infoValues[QStringLiteral("CFBundleDisplayName")] = QStringLiteral("Orl");
        tracking.answer = TrackingStatus::Denied;
        answerConfiguration(true);
        openHome();
        ASSERT_FALSE(ads.natives.isEmpty());
        ads.natives.front()->receive(advertisement);
        for (auto *banner : ads.banners)
            banner->receive(advertisement);
        phone.advance(std::chrono::seconds(1));
        settle();
    }

    void openIdentity() {
        openHome();
        content->main()->select(2);
        settle();
    }

    void generate() {
        phone.urls.answer(QStringLiteral("https://identity.example/english-united-states/female"),
                          encodeJson(test::wireIdentity()));
        content->main()->fakeGenerator()->chooseGender(2);
        content->main()->fakeGenerator()->tapGenerate();
        phone.advance(std::chrono::seconds(2));
        settle();
    }

    void openMail() {
        makeHome(lively);
        show();
        content->main()->select(1);
        settle();
    }

    void openSettings() {
        openHome();
        content->main()->select(3);
        settle();
    }

    void show() {
        engine_ = std::make_unique<QQmlApplicationEngine>();
        prepareScreens(*engine_, process->platform());
        prepareAds(*engine_, *process);
        fullScreenAd_ = std::make_unique<FullScreenAdView>(*process, stage);
        engine_->setInitialProperties(
            {{QStringLiteral("content"), QVariant::fromValue(content.get())},
             {QStringLiteral("reviewPrompt"), QVariant::fromValue(&prompt)},
             {QStringLiteral("fullScreenAd"), QVariant::fromValue(fullScreenAd_.get())},
             {QStringLiteral("trackingQuestion"), QVariant::fromValue(&trackingQuestion)},
             {QStringLiteral("consentQuestion"), QVariant::fromValue(&consentQuestion)}});
        engine_->load(QUrl(QString::fromLatin1(mainWindow)));
        window_ = qobject_cast<QQuickWindow *>(engine_->rootObjects().value(0));
        ASSERT_NE(window_, nullptr);
        appearance.watchInput(qGuiApp);
        window_->requestActivate();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window_));
        if (leavesSplash && content->splashIsPresented()) phone.advance(SplashView::wait + SplashView::fade);
        settle();
    }

    void settle() {
        comeToRest(*window_->contentItem(), [this] { phone.settle(); });
    }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(window_, key, modifiers);
        QCoreApplication::processEvents();
        if (!focusIsSeen()) settle(); // what has just come may not be laid out yet
        if (!focusIsSeen()) unseen << describe(*focus());
    }

    /// A field shows where it is by its own border and its cursor.
    bool focusIsSeen() const {
        return !focus() || focus()->inherits("QQuickTextInput") || showsItself(*focus());
    }

    /// Whether the eye finds the item that has the focus: by a frame in or around it.
    static bool showsItself(const QQuickItem &item) {
        if (isFrame(item)) return item.isVisible() && !isCut(item);
        const auto children = item.childItems();
        return std::any_of(children.begin(), children.end(),
                           [](const QQuickItem *child) { return showsItself(*child); });
    }
    static bool isFrame(const QQuickItem &item) {
        return QByteArray(item.metaObject()->className()).startsWith("FocusFrame");
    }

    /// Whether a side of it is out of sight.
    static bool isCut(const QQuickItem &frame) {
        for (const QQuickItem *above = frame.parentItem(); above; above = above->parentItem()) {
            const QRectF seen = frame.mapRectToItem(above, QRectF(0, 0, frame.width(), frame.height()));
            if (above->clip() && !QRectF(0, 0, above->width(), above->height()).contains(seen)) return true;
        }
        return false;
    }

    QQuickItem *focus() const { return window_->activeFocusItem(); }

    /// Walks with Tab until it comes back, and through lists with the arrow keys.
    void walk() {
        press(Qt::Key_Tab);
        ASSERT_NE(focus(), nullptr) << "Tab leads nowhere";
        QSet<QQuickItem *> tabbed;
        QPointer<QQuickItem> before;
        do {
            ASSERT_LT(tabStops.size(), mostStops) << "Tab never comes back";
            noteTurn(before);
            before = focus();
            tabbed << focus();
            reached << focus();
            tabStops << describe(*focus());
            walkInside();
            walkWithArrows();
            press(Qt::Key_Tab);
        } while (focus() && !tabbed.contains(focus()));
        noteTurn(before);
    }

    /// Everything that can be pressed or typed into now; below a sheet, nothing can.
    QList<QQuickItem *> controls() const {
        QList<QQuickItem *> found;
        QQuickItem *root = window_->contentItem();
        for (QQuickItem *item = focus(); item; item = item->parentItem()) {
            if (item->inherits("QQuickOverlay")) root = item;
        }
        collect(*root, found);
        return found;
    }

    static QString nameOf(const QQuickItem &item) {
        const auto *shown = QAccessible::queryAccessibleInterface(const_cast<QQuickItem *>(&item));
        return shown ? shown->text(QAccessible::Name) : QString();
    }

    static QString describe(const QQuickItem &item) {
        return QLatin1String(item.metaObject()->className()) + QStringLiteral(" '%1'").arg(nameOf(item));
    }

    bool leavesSplash = true;
    const AdAssets advertisement{.headline = QStringLiteral("Your city by bicycle"),
                                 .callToAction = QStringLiteral("Ride")};
    ReviewPrompt prompt{browser, QUrl()};
    AdStage stage{phone.mainQueue};
    StoredQuestion trackingQuestion, consentQuestion;
    QStringList tabStops; ///< in their order
    QStringList turns;    ///< where Tab went back up
    QSet<QString> unseen; ///< what had the focus without a sign of it
    QSet<QQuickItem *> reached;

private:
    void noteTurn(const QQuickItem *before) {
        if (before && placeOf(*focus()).bottom() <= placeOf(*before).top() + 1)
            turns << describe(*before) + QStringLiteral(" -> ") + describe(*focus());
    }

    static QRectF placeOf(const QQuickItem &item) {
        return item.mapRectToScene(QRectF(0, 0, item.width(), item.height()));
    }

    static bool isControl(const QQuickItem &item) {
        const auto *shown = QAccessible::queryAccessibleInterface(const_cast<QQuickItem *>(&item));
        if (!shown) return false;
        switch (shown->role()) {
        case QAccessible::Button:
        case QAccessible::CheckBox:
        case QAccessible::EditableText:
        case QAccessible::Link:
        case QAccessible::PageTab: return true;
        default: return false;
        }
    }

    void collect(QQuickItem &item, QList<QQuickItem *> &found) const {
        if (!item.isVisible() || !item.isEnabled() || item.opacity() == 0) return;
        if (isControl(item)) found << &item;
        for (QQuickItem *child : item.childItems())
            collect(*child, found);
    }

    void walkWithArrows() {
        if (focus()->inherits("QQuickTextInput")) return; // they move its cursor
        if (isTab(*focus())) {                            // they leave the screen; see the test of the tabs
            for (QQuickItem *tab : focus()->parentItem()->childItems())
                reached << tab;
            return;
        }
        const QPointer<QQuickItem> stop = focus();
        int steps = 0;
        for (bool isNew = true; isNew && walkDown(isNew); ++steps)
            walkInside();
        for (; steps > 0; --steps)
            press(Qt::Key_Up);
        if (stop) stop->forceActiveFocus(Qt::TabFocusReason);
    }

    static bool isTab(const QQuickItem &item) {
        return QByteArray(item.metaObject()->className()).startsWith("TabBarButton");
    }

    /// Whether there was a way.
    bool walkDown(bool &isNew) {
        const QQuickItem *before = focus();
        press(Qt::Key_Down);
        isNew = !reached.contains(focus());
        reached << focus();
        return focus() != before;
    }

    /// A row of a list may hold controls of its own, which Tab reaches from it.
    void walkInside() {
        const QPointer<QQuickItem> row = focus();
        for (press(Qt::Key_Tab); row && contains(*row, focus()) && focus() != row; press(Qt::Key_Tab))
            reached << focus();
        if (row) row->forceActiveFocus(Qt::TabFocusReason);
    }

    std::unique_ptr<FullScreenAdView> fullScreenAd_;
    std::unique_ptr<QQmlApplicationEngine> engine_;

protected:
    QQuickWindow *window_ = nullptr;
};

struct Station {
    const char *name;
    void (*open)(KeyboardTest &);
    qsizetype controls; ///< at least so many are there
};

void PrintTo(const Station &station, std::ostream *out) {
    *out << station.name;
}

const Station stations[] = {
    {"consent",
     [](KeyboardTest &test) {
         test.tracking.answer = TrackingStatus::NotDetermined;
         test.leavesSplash = false;
         test.open();
         test.phone.advance(SplashView::wait);
         test.settle();
     },
     1},
    {"no_internet",
     [](KeyboardTest &test) {
         test.phone.reachability.setOnline(false);
         test.open();
     },
     1},
    {"countries", [](KeyboardTest &test) { test.open(); }, 3},
    {"search",
     [](KeyboardTest &test) {
         test.open();
         test.press(Qt::Key_Tab);
         for (const char letter : {'n', 'o', 'r'})
             QTest::keyClick(test.focus()->window(), letter);
         test.settle();
     },
     2},
    {"numbers",
     [](KeyboardTest &test) {
         test.open();
         test.content->chooser()->tap(1);
         test.settle();
     },
     3},
    {"no_numbers",
     [](KeyboardTest &test) {
         test.phone.urls.answer(test.norwayUrl, test::numbersPage({}));
         test.open();
         test.content->chooser()->tap(1);
         test.settle();
     },
     2},
    {"recent", [](KeyboardTest &test) { test.openHome(); }, 13},
    {"senders",
     [](KeyboardTest &test) {
         test.openHome();
         test.content->home()->showSenders();
         test.settle();
     },
     13},
    {"old_messages",
     [](KeyboardTest &test) {
         test.openHome();
         test.phone.urls.answer(test.messagesUrl, Error{QStringLiteral("down")});
         test.phone.advance(std::chrono::minutes(2));
         test.settle();
     },
     14},
    {"offline_alert",
     [](KeyboardTest &test) {
         test.makeHome();
         test.restartScreens();
         test.phone.reachability.setOnline(false);
         test.open();
     },
     1},
    {"confirmation",
     [](KeyboardTest &test) {
         test.openHome();
         test.content->home()->tapSimilar(0);
         test.settle();
     },
     2},
    {"change_countries",
     [](KeyboardTest &test) {
         test.openHome();
         test.content->home()->openCountries();
         test.settle();
     },
     8},
    {"change_numbers",
     [](KeyboardTest &test) {
         test.openHome();
         test.content->home()->openCountries();
         test.settle();
         test.content->home()->countries()->tap(1);
         test.settle();
     },
     7},
    {"conversation",
     [](KeyboardTest &test) {
         test.openHome();
         test.content->home()->showSenders();
         test.content->home()->tapSender(0);
         test.settle();
         test.phone.advance(std::chrono::seconds(5));
         test.settle();
     },
     5},
    {"settings", [](KeyboardTest &test) { test.openSettings(); }, 13},
    {"history",
     [](KeyboardTest &test) {
         test.openSettings();
         test.content->main()->settings()->tap(0);
         test.settle();
     },
     6},
    {"current_number",
     [](KeyboardTest &test) {
         test.openSettings();
         test.content->main()->settings()->tap(0);
         test.content->main()->settings()->history()->tap(0);
         test.settle();
     },
     1},
    {"limit",
     [](KeyboardTest &test) {
         test.openHome();
         test.answerConfiguration();
         test.content->appConfigVM().fetchConfiguration();
         test.used(3);
         test.phone.settle();
         test.content->home()->tapSimilar(0);
         test.settle();
     },
     2},
    {"share",
     [](KeyboardTest &test) {
         test.openSettings();
         test.content->main()->settings()->tap(7);
         test.settle();
     },
     4},
    {"review",
     [](KeyboardTest &test) {
         test.openHome();
         test.prompt.requestReview();
         test.settle();
     },
     2},
    {"ads", [](KeyboardTest &test) { test.openAds(); }, 15},
    {"ads_among_senders",
     [](KeyboardTest &test) {
         test.openAds();
         test.content->home()->showSenders();
         test.settle();
     },
     13},
    {"full_screen_ad",
     [](KeyboardTest &test) {
         test.openHome();
         test.stage.setReady(true);
         test.stage.show({.assets = test.advertisement, .reward = std::chrono::seconds(15)});
         test.settle();
     },
     2},
    {"tracking_question",
     [](KeyboardTest &test) {
         test.openHome();
         test.trackingQuestion.setReady(true);
         test.trackingQuestion.ask([](auto) {});
         test.settle();
     },
     2},
    {"consent_question",
     [](KeyboardTest &test) {
         test.openHome();
         test.consentQuestion.setReady(true);
         test.consentQuestion.ask([](auto) {});
         test.settle();
     },
     2},
    {"identity", [](KeyboardTest &test) { test.openIdentity(); }, 8},
    {"identity_offline",
     [](KeyboardTest &test) {
         test.phone.reachability.setOnline(true);
         test.openHome();
         test.phone.reachability.setOnline(false);
         test.content->main()->select(2);
         test.settle();
     },
     5},
    {"generated_identity",
     [](KeyboardTest &test) {
         test.openIdentity();
         test.generate();
     },
     10},
    {"save_identity",
     [](KeyboardTest &test) {
         test.openIdentity();
         test.generate();
         test.content->main()->fakeGenerator()->openSaveDialog();
         test.settle();
     },
     3},
    {"saved_identities",
     [](KeyboardTest &test) {
         test.openIdentity();
         test.generate();
         test.content->main()->fakeGenerator()->setSaveNameText(QStringLiteral("Work"));
         test.content->main()->fakeGenerator()->save();
         test.phone.advance(std::chrono::seconds(3));
         test.content->main()->fakeGenerator()->openSaved();
         test.settle();
     },
     2},
    {"mail_address", [](KeyboardTest &test) { test.openMail(); }, 6},
    {"inbox",
     [](KeyboardTest &test) {
         test.phone.store.setValue(QStringLiteral("selected_email"), test.address);
         test.answerInbox({QStringLiteral("one"), QStringLiteral("two")});
         test.openMail();
         test.phone.advance(std::chrono::seconds(3));
         test.settle();
     },
     7},
};

class EveryScreen : public KeyboardTest, public testing::WithParamInterface<Station> {};

TEST_P(EveryScreen, IsReachedWithTabAndArrowsInReadingOrder) {
    GetParam().open(*this);
    walk();
    SCOPED_TRACE("Tab goes\n  " + tabStops.join(QStringLiteral("\n  ")).toStdString());
    EXPECT_GE(controls().size(), GetParam().controls);
    for (const QQuickItem *control : controls()) {
        EXPECT_FALSE(nameOf(*control).isEmpty()) << qPrintable(describe(*control));
        EXPECT_TRUE(reached.contains(const_cast<QQuickItem *>(control))) << qPrintable(describe(*control));
    }
    // Going round once, Tab turns back from the bottom to the top once.
    EXPECT_LE(turns.size(), 1) << qPrintable(turns.join(u'\n'));
    EXPECT_TRUE(unseen.isEmpty()) << qPrintable(unseen.values().join(u'\n'));
}

TEST_F(KeyboardTest, ArrowsGoFromTabToTab) {
    openHome();
    while (nameOf(*focus()) != QStringLiteral("Messages"))
        press(Qt::Key_Tab);
    for (const Tab tab : {Tab::tMail, Tab::fakeGenerator, Tab::profile, Tab::home}) {
        press(Qt::Key_Right);
        settle();
        EXPECT_EQ(request().selectedTab(), tab);
    }
    press(Qt::Key_Left);
    EXPECT_EQ(request().selectedTab(), Tab::profile);
}

TEST_F(KeyboardTest, EscapeGoesBackFromWhatLiesOverAScreen) {
    openHome();
    content->home()->openCountries();
    settle();
    content->home()->countries()->tap(1);
    settle();
    press(Qt::Key_Escape);
    settle();
    EXPECT_FALSE(content->home()->countries()->isPresented());
    EXPECT_TRUE(content->home()->countriesPresented());
    press(Qt::Key_Escape);
    settle();
    EXPECT_FALSE(content->home()->countriesPresented());
    content->home()->showSenders();
    content->home()->tapSender(0);
    settle();
    press(Qt::Key_Escape);
    EXPECT_FALSE(request().conversation_isPresented());
}

/// What the keyboard reaches is scrolled to.
TEST_F(KeyboardTest, TheFocusStaysInSight) {
    openHome();
    window_->resize(360, 480);
    settle();
    for (int stop = 0; stop < 12; ++stop) {
        press(Qt::Key_Tab);
        settle();
        const QRectF place = focus()->mapRectToScene(QRectF(0, 0, focus()->width(), focus()->height()));
        EXPECT_GE(place.top(), 0) << qPrintable(describe(*focus()));
        EXPECT_LE(place.top(), window_->height() - 44) << qPrintable(describe(*focus()));
    }
}

INSTANTIATE_TEST_SUITE_P(Stations, EveryScreen, testing::ValuesIn(stations),
                         [](const auto &station) { return std::string(station.param.name); });

} // namespace

int main(int argc, char **argv) {
    QGuiApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
