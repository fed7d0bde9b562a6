// The places of ads in the tabs of mail and identities, each kind with its switch on and off, the ad at the
// opening of the application, and a tablet.
#include "ads_walker.h"

#include <QTest>

#include <functional>

namespace orl {
namespace {

class AdPlacesWalk : public AdsWalker {
protected:
    /// How many ads each station has.
    struct Places {
        int builder, inbox, mail, identity, saved;
    };

    void SetUp() override {
        Walker::SetUp();
        serve();
    }

    /// Past the stations, a first launch onwards.
    void visit(const Places &places) {
        ASSERT_NO_FATAL_FAILURE(press(tab(QStringLiteral("EMail")), "the mail tab"));
        const std::optional<Accessible> field = wait(named(QStringLiteral("Name")));
        ASSERT_TRUE(field);
        expect(places.builder, "mail-builder");
        type(*field, QStringLiteral("walker"));
        ASSERT_NO_FATAL_FAILURE(press(named(QStringLiteral("Create")), "the button that creates"));
        const Fits welcome = [](const Accessible &control) {
            return isButton(control) && control.name().contains(QStringLiteral("Welcome to your inbox"));
        };
        ASSERT_TRUE(wait(welcome));
        expect(places.inbox, "mail-inbox");
        ASSERT_NO_FATAL_FAILURE(press(welcome, "a mail"));
        ASSERT_TRUE(wait(named(QStringLiteral("Subject:"))));
        expect(places.mail, "mail");
        ASSERT_NO_FATAL_FAILURE(press(named(QStringLiteral("Back")), "the way back"));

        ASSERT_NO_FATAL_FAILURE(press(tab(QStringLiteral("Identity")), "the identity tab"));
        ASSERT_TRUE(wait(named(QStringLiteral("Customize Your Identity"))));
        expect(places.identity, "identity");
        ASSERT_NO_FATAL_FAILURE(press(named(QStringLiteral("Generate")), "the button"));
        ASSERT_NO_FATAL_FAILURE(press(named(QStringLiteral("Save this identity")), "the button that saves"));
        const std::optional<Accessible> name = wait(named(QStringLiteral("Enter name")));
        ASSERT_TRUE(name);
        type(*name, QStringLiteral("work"));
        ASSERT_NO_FATAL_FAILURE(press(named(QStringLiteral("Save")), "the confirmation of the name"));
        ASSERT_TRUE(gone(named(QStringLiteral("Enter name"))));
        ASSERT_TRUE(gone(named(QStringLiteral("Saved"))));
        ASSERT_NO_FATAL_FAILURE(press(named(QStringLiteral("Saved identities")), "the saved list"));
        ASSERT_TRUE(wait(named(QStringLiteral("Your Saved Identities"))));
        expect(places.saved, "saved");
    }

    /// Ads that come are waited for. That others never come shows in what the host was asked for.
    void expect(int ads, const char *station) {
        EXPECT_TRUE(QTest::qWaitFor([&] { return adsInPlace() == ads; }, 30000))
            << station << ": " << adsInPlace() << " ads instead of " << ads;
        look(QStringLiteral("ads-2-%1-%2").arg(QLatin1String(kind), QLatin1String(station)));
    }

    /// Does this until an ad covers the screen, and closes that.
    void expectFullScreenAd(const std::function<void()> &action, const char *what) {
        EXPECT_TRUE(QTest::qWaitFor(
            [&] {
                action();
                return QTest::qWaitFor([&] { return !all(fullScreenAd()).isEmpty(); }, 5000);
            },
            60000))
            << "no ad at " << what;
        ASSERT_NO_FATAL_FAILURE(press(named(QStringLiteral("Close")), "the way out of the ad"));
        ASSERT_TRUE(gone(fullScreenAd()));
    }

    void onWindow(const QStringList &commands) {
        desk.run(QStringLiteral("xdotool"),
                 QStringList{QStringLiteral("search"), QStringLiteral("--name"), QStringLiteral("^orl$")} +
                     commands);
    }

    const char *kind = "";
};

TEST_F(AdPlacesWalk, NativeCardsInMailAndIdentities) {
    kind = "native";
    values.nativeAdEnabled = values.useXmarkNative = true;
    host.setConfiguration(values);
    startProgram(options());
    const Fits dismiss = named(QStringLiteral("Dismiss"));
    ASSERT_TRUE(wait(dismiss)) << "no card above the tabs";
    ASSERT_NO_FATAL_FAILURE(press(dismiss, "the way out of the card"));
    ASSERT_TRUE(gone(dismiss));
    visit({.builder = 1, .inbox = 1, .mail = 0, .identity = 2, .saved = 0});
    killProgram();
    EXPECT_EQ(asked(QStringLiteral("banner")), 0);
    for (const char *unit : {"message-list", "identity-home", "identity-button"})
        EXPECT_GT(asked(QLatin1String(unit)), 0) << unit;
}

TEST_F(AdPlacesWalk, BannersInMailAndIdentities) {
    kind = "banner";
    values.bannerAdEnabled = values.bannerIsActive = values.bannerOnNumberCard = true;
    values.bannerRandomDisplay = {true};
    host.setConfiguration(values);
    startProgram(options());
    visit({.builder = 1, .inbox = 0, .mail = 1, .identity = 1, .saved = 1});
    killProgram();
    EXPECT_EQ(asked(), asked(QStringLiteral("banner"))) << "something else was asked for";
}

/// A tablet's user sees none although all are on, and nobody is asked for one.
TEST_F(AdPlacesWalk, NoneOnATablet) {
    kind = "tablet";
    QFile machine(data.filePath(QStringLiteral("machine-info")));
    ASSERT_TRUE(machine.open(QIODevice::WriteOnly) && machine.write("CHASSIS=tablet\n") > 0);
    machine.close();
    desk.setVariable(QStringLiteral("SYSTEMD_ETC_MACHINE_INFO"), machine.fileName());
    values = demo::livelyConfiguration();
    values.ipadAdEnabled = false;
    values.showFullAdAfter = 1;
    host.setConfiguration(values);
    startProgram(options());
    ASSERT_TRUE(wait(message()));
    visit({});
    EXPECT_TRUE(all(fullScreenAd()).isEmpty());
    killProgram();
    EXPECT_EQ(asked(), 0);

    values.ipadAdEnabled = true;
    host.setConfiguration(values);
    startProgram(options());
    EXPECT_TRUE(QTest::qWaitFor([this] { return asked() > 0; }, 60000)) << "none where tablets have them on";
    killProgram();
}

TEST_F(AdPlacesWalk, FullScreenAdsAtWhatIsDoneInMailAndIdentities) {
    values.interstitialAdEnabled = true;
    values.showFullAdAfter = 1;
    host.setConfiguration(values);
    startProgram(options());
    ASSERT_NO_FATAL_FAILURE(press(tab(QStringLiteral("Identity")), "the identity tab"));
    const Fits generate = [](const Accessible &control) {
        return isButton(control) && (control.name() == QStringLiteral("Generate") ||
                                     control.name() == QStringLiteral("Start over"));
    };
    ASSERT_NO_FATAL_FAILURE(
        expectFullScreenAd([&] { press(generate, "the button"); }, "a generation or a reset"));
    look(QStringLiteral("ads-2-after-identity"));

    ASSERT_NO_FATAL_FAILURE(press(tab(QStringLiteral("EMail")), "the mail tab"));
    const std::optional<Accessible> field = wait(named(QStringLiteral("Name")));
    ASSERT_TRUE(field);
    type(*field, QStringLiteral("walker"));
    ASSERT_NO_FATAL_FAILURE(press(named(QStringLiteral("Create")), "the button that creates"));
    ASSERT_NO_FATAL_FAILURE(expectFullScreenAd(
        [&] {
            press(named(QStringLiteral("Change address")), "the tool button");
            press(named(QStringLiteral("Cancel")), "the way out of the builder");
        },
        "a change of address"));
    killProgram();
    EXPECT_EQ(asked(), asked(QStringLiteral("interstitial"))) << "something else was asked for";
}

TEST_F(AdPlacesWalk, AnAdAtTheOpeningOfTheApplication) {
    const auto leaveAndComeBack = [this] {
        onWindow({QStringLiteral("windowunmap"), QStringLiteral("--sync")});
        onWindow({QStringLiteral("windowmap"), QStringLiteral("--sync"), QStringLiteral("windowfocus")});
    };
    startProgram(options());
    leaveAndComeBack();
    ASSERT_TRUE(wait(message()));
    EXPECT_TRUE(all(fullScreenAd()).isEmpty());
    killProgram();
    EXPECT_EQ(asked(), 0) << "it is off";

    values.openAdEnabled = true;
    host.setConfiguration(values);
    startProgram(options());
    ASSERT_TRUE(QTest::qWaitFor([this] { return asked(QStringLiteral("app-open")) > 0; }, 60000));
    ASSERT_NO_FATAL_FAILURE(expectFullScreenAd(leaveAndComeBack, "the opening"));
    look(QStringLiteral("ads-2-after-opening"));
    killProgram();
    EXPECT_EQ(asked(), asked(QStringLiteral("app-open"))) << "something else was asked for";
}

} // namespace
} // namespace orl
