#include "ads/ump_consent.h"
#include "platform/qt/stored_consent.h"
#include "support/played_platform.h"

#include <gtest/gtest.h>

namespace orl {

namespace {

struct StoredConsentTest : testing::Test {
    StoredConsentTest() { restart(); }

    void restart(const char *region = "DE") {
        phone.endProcess();
        process.reset();
        consent = std::make_unique<StoredConsent>(phone.mainQueue, phone.store, QLatin1String(region));
        tracking = std::make_unique<StoredTracking>(phone.store);
        consent->question().setReady(true);
        tracking->question().setReady(true);
        process = std::make_unique<Process>(phone.platform().with(*consent, *tracking));
    }

    void update(bool showForm = true, bool isDebug = false) {
        process->shared<UMPConsent>().updateConsent(showForm, isDebug, [this] { ++completed; });
        phone.settle();
    }

    PlayedPlatform phone;
    std::unique_ptr<StoredConsent> consent;
    std::unique_ptr<StoredTracking> tracking;
    std::unique_ptr<Process> process;
    int completed = 0;
};

} // namespace

TEST(ConsentRegionTest, TheEconomicAreaTheKingdomAndSwitzerlandWantConsent) {
    for (const char *region : {"DE", "fr", "IE", "HR", "IS", "LI", "NO", "GB", "CH", "RE", "AX"})
        EXPECT_TRUE(regionWantsConsent(QLatin1String(region))) << region;
    for (const char *region : {"US", "TR", "RS", "UA", "GL", "BR", "", "D", "DEU"})
        EXPECT_FALSE(regionWantsConsent(QLatin1String(region))) << region;
}

TEST_F(StoredConsentTest, TheFormIsAskedOncePerInstallation) {
    for (const bool yes : {true, false}) {
        forgetConsent(phone.store);
        restart();
        completed = 0;
        update();
        ASSERT_TRUE(consent->question().isAsked());
        EXPECT_EQ(completed, 0);
        consent->question().answer(yes);
        phone.settle();
        EXPECT_EQ(completed, 1);
        EXPECT_EQ(consent->consentStatus(), ConsentStatus::Obtained);
        EXPECT_FALSE(consent->question().isAsked());
        restart();
        update();
        EXPECT_FALSE(consent->question().isAsked());
        EXPECT_EQ(completed, 2);
    }
}

TEST_F(StoredConsentTest, ElsewhereNoFormComesUnlessDebugging) {
    restart("US");
    update();
    EXPECT_EQ(consent->formStatus(), ConsentFormStatus::Unavailable);
    EXPECT_EQ(consent->consentStatus(), ConsentStatus::NotRequired);
    EXPECT_EQ(completed, 1);
    update(true, true);
    EXPECT_TRUE(consent->question().isAsked());
}

TEST_F(StoredConsentTest, AFormThatIsHeldBackIsStillAskedWhenItIsPresented) {
    update(false);
    EXPECT_FALSE(consent->question().isAsked());
    process->shared<UMPConsent>().presentFormIfAvailable([this] { ++completed; });
    phone.settle();
    ASSERT_TRUE(consent->question().isAsked());
    consent->question().answer(true);
    phone.settle();
    EXPECT_EQ(completed, 1);
}

TEST_F(StoredConsentTest, WithoutAScreenNothingHangsAndNothingIsStored) {
    consent->question().setReady(false);
    tracking->question().setReady(false);
    TrackingStatus told = TrackingStatus::NotDetermined;
    tracking->request([&](TrackingStatus status) { told = status; });
    EXPECT_EQ(told, TrackingStatus::Denied);
    EXPECT_EQ(tracking->status(), TrackingStatus::NotDetermined);
    update();
    EXPECT_EQ(completed, 1);
    EXPECT_EQ(consent->consentStatus(), ConsentStatus::Required);
    EXPECT_EQ(phone.console.lines.size(), 1);
    EXPECT_TRUE(phone.store.writes.isEmpty());
}

TEST_F(StoredConsentTest, AScreenThatGoesLeavesTheQuestionOpenForTheNextRun) {
    update();
    ASSERT_TRUE(consent->question().isAsked());
    consent->question().setReady(false);
    phone.settle();
    EXPECT_EQ(completed, 1);
    restart();
    update();
    EXPECT_TRUE(consent->question().isAsked());
}

TEST_F(StoredConsentTest, TrackingIsAskedOnceAndRemembered) {
    struct Case {
        bool yes;
        TrackingStatus status;
    };
    for (const Case &row : {Case{true, TrackingStatus::Authorized}, Case{false, TrackingStatus::Denied}}) {
        forgetConsent(phone.store);
        restart();
        EXPECT_EQ(tracking->status(), TrackingStatus::NotDetermined);
        QList<TrackingStatus> told;
        const auto tell = [&](TrackingStatus status) { told.append(status); };
        tracking->request(tell);
        tracking->request(tell);
        EXPECT_TRUE(told.isEmpty());
        tracking->question().answer(row.yes);
        EXPECT_EQ(told, (QList{row.status, row.status}));
        restart();
        EXPECT_EQ(tracking->status(), row.status);
        tracking->request(tell);
        EXPECT_EQ(told.last(), row.status);
        EXPECT_FALSE(tracking->question().isAsked());
    }
}

TEST_F(StoredConsentTest, AStoredStatusThatIsNoneCountsAsUnanswered) {
    phone.store.setValue(QStringLiteral("tracking_authorization_status"), qint64{7});
    EXPECT_EQ(tracking->status(), TrackingStatus::NotDetermined);
}

} // namespace orl
