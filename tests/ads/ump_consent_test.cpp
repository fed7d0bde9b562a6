#include "ads/ump_consent.h"
#include "ads_phone.h"

namespace orl {

namespace {

struct UMPConsentTest : AdsTest {
    UMPConsent &ump() { return process->shared<UMPConsent>(); }

    std::function<void()> count() {
        return [this] { ++completed; };
    }
    void update(bool showForm = true, bool isDebug = false) {
        ump().updateConsent(showForm, isDebug, count());
        phone.settle();
    }
    void present() {
        ump().presentFormIfAvailable(count());
        phone.settle();
    }
    void require() {
        consent.form = ConsentFormStatus::Available;
        consent.status = ConsentStatus::Required;
    }
    QStringList takeEvents() { return std::exchange(consent.events, {}); }

    int completed = 0;
    const QString u = QStringLiteral("update");
    const QString l = QStringLiteral("load");
    const QString p = QStringLiteral("present");
};

} // namespace

TEST_F(UMPConsentTest, EveryPathOfAnUpdateWithAFormCompletes) {
    struct Case {
        const char *name;
        std::function<void()> given;
        QStringList events;
        const char *line;
        bool presented;
    };
    const Case cases[] = {
        {"no form for this region", [] {}, {u}, "", false},
        {"form status unknown", [this] { consent.form = ConsentFormStatus::Unknown; }, {u}, "", false},
        {"consent not required", [this] { consent.form = ConsentFormStatus::Available; }, {u, l}, "", false},
        {"consent given before",
         [this] {
             require();
             consent.status = ConsentStatus::Obtained;
         },
         {u, l},
         "",
         false},
        {"consent required", [this] { require(); }, {u, l, p}, "", true},
        {"tracking denied",
         [this] {
             require();
             tracking.answer = TrackingStatus::Denied;
         },
         {u},
         "",
         false},
        {"tracking restricted does not hide the form",
         [this] {
             require();
             tracking.answer = TrackingStatus::Restricted;
         },
         {u, l, p},
         "",
         true},
        {"update failed",
         [this] {
             require();
             consent.updateFails = true;
         },
         {u},
         "Failed to fetch UMPConsent: no service",
         false},
        {"form failed to load",
         [this] {
             require();
             consent.loadFails = true;
         },
         {u, l},
         "Failed to load UMPConsent form: no form",
         false},
        {"form failed to show",
         [this] {
             require();
             consent.presentFails = true;
         },
         {u, l, p},
         "Failed to present UMPConsent form: no room",
         false},
    };
    for (const Case &row : cases) {
        SCOPED_TRACE(row.name);
        consent = {};
        tracking.answer = TrackingStatus::NotDetermined;
        completed = 0;
        restart();
        row.given();
        update();
        EXPECT_EQ(takeEvents(), row.events);
        EXPECT_EQ(takeLines().join(QLatin1Char('|')), QLatin1String(row.line));
        ASSERT_EQ(consent.isPresented(), row.presented);
        EXPECT_EQ(completed, row.presented ? 0 : 1);
        if (row.presented) consent.dismiss();
        phone.settle();
        EXPECT_EQ(completed, 1);
        EXPECT_FALSE(ump().isAvailable());
    }
}

TEST_F(UMPConsentTest, AnUpdateStartsTheAdServiceEachTimeAndOnTheMainQueue) {
    ump().updateConsent(true, false, {});
    EXPECT_EQ(ads.started, 0);
    phone.settle();
    EXPECT_EQ(ads.started, 1);
    EXPECT_EQ(ads.testDevices, QStringList{QLatin1String(AdService::simulatorDevice)});
    update();
    EXPECT_EQ(ads.started, 2);
    EXPECT_TRUE(ads.requests.isEmpty());
}

TEST_F(UMPConsentTest, ADebugUpdateForgetsAnswersAndPretendsToBeInEurope) {
    update(true, true);
    EXPECT_TRUE(ump().isDebug());
    EXPECT_EQ(takeEvents(),
              (QStringList{QStringLiteral("reset"), QStringLiteral("update in debug geography 1")}));
    update();
    EXPECT_FALSE(ump().isDebug());
    EXPECT_EQ(takeEvents(), QStringList{u});
}

TEST_F(UMPConsentTest, AFormThatIsHeldBackIsFinishedByPresenting) {
    require();
    update(false);
    EXPECT_TRUE(ump().isAvailable());
    EXPECT_EQ(completed, 0) << "presenting is what finishes the matter";
    takeEvents();
    present();
    EXPECT_EQ(takeEvents(), (QStringList{l, p}));
    EXPECT_EQ(completed, 0);
    consent.dismiss();
    phone.settle();
    EXPECT_EQ(completed, 1);
    EXPECT_TRUE(ump().isAvailable()) << "never cleared";
}

TEST_F(UMPConsentTest, AHeldBackUpdateWithoutAFormCompletesAtOnce) {
    update(false);
    EXPECT_EQ(completed, 1);
    EXPECT_FALSE(ump().isAvailable());
}

TEST_F(UMPConsentTest, ADeniedTrackingFinishesWithoutTheForm) {
    require();
    update(false);
    tracking.answer = TrackingStatus::Denied;
    takeEvents();
    present();
    EXPECT_EQ(completed, 1);
    EXPECT_TRUE(takeEvents().isEmpty());
}

TEST_F(UMPConsentTest, PresentingWithoutAFindUpdatesAndCompletesTwice) {
    require();
    consent.holdUpdates = true;
    present();
    EXPECT_EQ(completed, 1) << "at once, whatever the service does";
    consent.answerUpdates();
    phone.settle();
    EXPECT_EQ(completed, 1);
    ASSERT_TRUE(consent.isPresented());
    consent.dismiss();
    phone.settle();
    EXPECT_EQ(completed, 2);
}

TEST_F(UMPConsentTest, AFurtherFormIsLoadedAfterADismissalAndPresentedIfRequiredAgain) {
    require();
    update();
    consent.dismiss(ConsentStatus::Required);
    phone.settle();
    EXPECT_EQ(completed, 1);
    EXPECT_EQ(takeEvents(), (QStringList{u, l, p, l, p}));
    consent.dismiss();
    phone.settle();
    EXPECT_EQ(takeEvents(), QStringList{l});
    EXPECT_EQ(completed, 1) << "the further form belongs to nobody";
}

TEST_F(UMPConsentTest, NoFurtherFormIsLoadedOnceTrackingIsDenied) {
    require();
    update();
    tracking.answer = TrackingStatus::Denied;
    takeEvents();
    consent.dismiss();
    phone.settle();
    EXPECT_TRUE(takeEvents().isEmpty());
}

TEST_F(UMPConsentTest, EmptyCompletionsAreBorne) {
    require();
    ump().presentFormIfAvailable({});
    phone.settle();
    consent.dismiss();
    phone.settle();
    EXPECT_EQ(takeEvents(), (QStringList{u, l, p, l}));
}

TEST_F(UMPConsentTest, WithoutAServiceTheAnswersComeAtOnceAndNoFormIsShown) {
    Platform base = phone.platform();
    Process bare(base);
    bare.shared<UMPConsent>().updateConsent(true, false, count());
    phone.settle();
    EXPECT_EQ(completed, 1);
    int denied = 0;
    base.tracking.request([&](TrackingStatus status) { denied += status == TrackingStatus::Denied; });
    base.push.requestPermission(true, [&](bool granted) { denied += !granted; });
    EXPECT_EQ(denied, 2);
    auto &popUps = bare.shared<PopUpAd>();
    popUps.loadInterstitial();
    popUps.loadRewarded();
    EXPECT_EQ(takeLines(), QStringList()) << "where there is no advertising, none is missed";
}

} // namespace orl
