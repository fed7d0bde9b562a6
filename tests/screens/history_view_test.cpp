#include "screens_phone.h"

using namespace orl;
using namespace std::chrono_literals;

namespace {

/// Two numbers were chosen earlier, "+1 555 0100" a minute ago and, by an older version, "+1 555 0122".
struct HistoryTest : ScreensTest {
    HistoryView &open() {
        const double now = phone.clock.now();
        History newer{.country = test::country(QStringLiteral("Norway"), QStringLiteral("/en/norway")),
                      .phoneNumber = test::phoneNumber(QStringLiteral("+1 555 0100")),
                      .number = {},
                      .time = now - 60};
        History older{.country = test::country(QStringLiteral("Niger")),
                      .phoneNumber = {},
                      .number = QStringLiteral("+1 555 0122"),
                      .time = now - 86400};
        phone.store.setValue(QStringLiteral("history_key"),
                             encodeJson(QJsonArray{newer.encoded(), older.encoded()}));
        phone.store.setValue(QStringLiteral("chosen_country"), encodeJson(newer.country.encoded()));
        phone.store.setValue(QStringLiteral("chosen_phone_number_new"),
                             encodeJson(newer.phoneNumber->encoded()));
        phone.urls.answer(QStringLiteral("https://first.example/en/numbers/15550122"), test::messagePage({}));
        makeContent();
        phone.settle();
        content->main()->select(3);
        settings().tap(0);
        return *settings().history();
    }

    SettingsView &settings() { return *content->main()->settings(); }
};

TEST_F(HistoryTest, RowsSayWhichNumberFromWhereAndHowLongAgo) {
    HistoryView &history = open();
    EXPECT_EQ(test::texts(*history.rows(), "number"),
              (QStringList{QStringLiteral("+1 5550100"), QStringLiteral("+1 5550122")}));
    EXPECT_EQ(test::texts(*history.rows(), "country"),
              (QStringList{QStringLiteral("Norway"), QStringLiteral("Niger")}));
    EXPECT_EQ(test::texts(*history.rows(), "time"),
              (QStringList{QStringLiteral("1 minute ago"), QStringLiteral("1 day ago")}));
    phone.advance(60s);
    EXPECT_EQ(history.rows()->value(0, "time"), QStringLiteral("2 minutes ago"));
}

TEST_F(HistoryTest, CurrentNumberOnlySaysSo) {
    used(9);
    HistoryView &history = open();
    history.tap(0);
    EXPECT_TRUE(history.currentNumberAlert());
    EXPECT_EQ(history.currentNumberText(), QStringLiteral("That's your current number"));
    EXPECT_FALSE(history.choice()->confirmationSheet());
    EXPECT_FALSE(history.choice()->showLimitAlert());
    history.dismissCurrentNumberAlert();
    EXPECT_FALSE(history.currentNumberAlert());
}

TEST_F(HistoryTest, ConfirmedEntryIsChosenAndTheScreenLeft) {
    HistoryView &history = open();
    const qint64 before = actionsCounted();
    history.tap(1);
    EXPECT_EQ(history.selectedHistoryItem()->shownNumber(), QStringLiteral("+1 555 0122"));
    EXPECT_TRUE(history.choice()->confirmationSheet());
    EXPECT_EQ(history.choice()->title(), QStringLiteral("That's a lovely number \n+1 5550122"));
    EXPECT_TRUE(haptics.impacts.empty());
    history.choice()->confirm();
    EXPECT_EQ(request().currentNumber()->number, QStringLiteral("+1 555 0122"));
    EXPECT_EQ(request().currentCountry()->name, QStringLiteral("Niger"));
    EXPECT_FALSE(settings().historyPresented());
    EXPECT_EQ(actionsCounted(), before + 1);
    phone.advance(200ms);
    EXPECT_EQ(content->main()->selectedIndex(), 0);
}

TEST_F(HistoryTest, UsedUpAllowanceOffersAVideo) {
    used(3);
    HistoryView &history = open();
    history.tap(1);
    EXPECT_TRUE(history.choice()->showLimitAlert());
    EXPECT_FALSE(history.choice()->confirmationSheet());
    Q_EMIT history.choice()->limitAlert()->cancel();
    EXPECT_FALSE(history.choice()->showLimitAlert());

    // No video is loaded, for which the user is not held back.
    history.tap(1);
    Q_EMIT history.choice()->limitAlert()->tapped();
    EXPECT_FALSE(history.choice()->showLimitAlert());
    EXPECT_EQ(phone.store.integer(QStringLiteral("chose_numbers_count_key")), 2);
    history.tap(1);
    EXPECT_TRUE(history.choice()->confirmationSheet());
}

TEST_F(HistoryTest, WithoutRewardsTheAllowanceHoldsNothingBack) {
    used(7);
    HistoryView &history = open();
    AppConfiguration configuration;
    configuration.admob.rewardAdEnabled = false;
    process->shared<ValuesInForce>().currentConfiguration->set(configuration);
    history.tap(1);
    EXPECT_TRUE(history.choice()->confirmationSheet());
}

TEST_F(HistoryTest, TapBesideTheRowsDoesNothing) {
    HistoryView &history = open();
    history.tap(2);
    history.tap(-1);
    EXPECT_FALSE(history.selectedHistoryItem());
}

TEST_F(ScreensTest, LimitAlertSaysWhatAllListsOfNumbersSay) {
    makeHome();
    NumberChoice choice(*process, request());
    const CustomAlertView &alert = *choice.limitAlert();
    EXPECT_EQ(alert.item().image, QStringLiteral("limit_cover"));
    EXPECT_EQ(alert.item().title, QStringLiteral("LIMIT REACHED"));
    EXPECT_EQ(alert.item().subtitle, QStringLiteral("Watch a video to increase\nphone numbers limit"));
    EXPECT_EQ(alert.item().mainButtonTitle, QStringLiteral("Watch"));
    EXPECT_EQ(alert.item().cancelButtonTitle, QStringLiteral("Cancel"));
    EXPECT_EQ(alert.rediuceHeightBy(), 94);
    EXPECT_EQ(alert.iconHeight(), 40);
    EXPECT_FALSE(alert.item().showsLegalLinks());
}

TEST_F(ScreensTest, AlertThatAsksForAnAgreementLinksWhatIsAgreedTo) {
    AlertItem item;
    item.mainButtonTitle = QStringLiteral("agree");
    CustomAlertView alert(*process, item, 0, 40);
    EXPECT_TRUE(alert.item().showsLegalLinks());
    alert.openTermsOfService();
    alert.openPrivacyPolicy();
    EXPECT_EQ(browser.opened, (QStringList{QStringLiteral("https://legal.example/orl/terms-of-service/"),
                                           QStringLiteral("https://legal.example/orl/privacy-policy/")}));
}

} // namespace
