#pragma once

#include "numbers/numbers_phone.h"
#include "platform/browser.h"
#include "platform/pasteboard.h"
#include "played_services.h"
#include "screens/content_view.h"
#include "support/played_ads.h"

#include <QUrl>

namespace orl {

struct PlayedPasteboard : Pasteboard {
    std::optional<QString> text;
    void setString(const QString &copied) override { text = copied; }
};

struct PlayedBrowser : Browser {
    QStringList opened;
    void open(const QUrl &url) override { opened << url.toString(); }
};

namespace test {

inline Country country(const QString &name, const QString &continent, const QString &prefix) {
    Country made = country(name);
    made.continent = continent;
    made.prefix = prefix;
    return made;
}

/// What a model shows in one role, from its first row to its last.
inline QVariantList column(const KeyedRows &model, const QByteArray &role) {
    QVariantList values;
    for (int row = 0; row < model.count(); ++row)
        values << model.value(row, role);
    return values;
}

inline QStringList texts(const KeyedRows &model, const QByteArray &role) {
    QStringList values;
    for (const QVariant &value : column(model, role))
        values << value.toString();
    return values;
}

} // namespace test

/// All screens on a played phone. Its catalogue page lists three countries; "Norway" has two numbers.
struct ScreensTest : NumbersTest {
    ScreensTest() {
        tracking.answer = TrackingStatus::Authorized;
        phone.urls.answer(QStringLiteral("https://configuration.example/KeLo/iOS/orl_config.json"), "");
        phone.urls.answer(QStringLiteral("https://configuration.example/KeLo/OnlineSMS/scraping_config.json"),
                          "");
        phone.urls.answer(countriesUrl, test::countryPage(test::countryElement("Niger", "/en/niger") +
                                                          test::countryElement("Norway", "/en/norway")));
        phone.urls.answer(norwayUrl, test::numbersPage({"+1 555 0100", "+1 555 0199"}));
        answerMessages({});
        restartScreens();
    }

    ~ScreensTest() override { phone.endProcess(); }

    /// A new run of the program on the same store.
    void restartScreens() {
        phone.endProcess();
        content.reset();
        process = std::make_unique<Process>(platform());
        setAds(false);
    }

    /// The shell as it first appears, before anything has arrived.
    ContentView &makeContent() {
        content = std::make_unique<ContentView>(*process, appearance);
        content->appear();
        return *content;
    }

    RequestViewModel &request() { return content->requestVM(); }

    /// The home screen with a number chosen and its first page of messages shown.
    HomeView &makeHome(const QList<test::Sms> &messages = {}) {
        answerMessages(messages);
        makeContent();
        phone.settle();
        request().chooseNumber(test::country(QStringLiteral("Norway"), QStringLiteral("/en/norway")),
                               test::phoneNumber(QStringLiteral("+1 555 0100")), false);
        content->home()->appear();
        phone.settle();
        return *content->home();
    }

    Platform platform() {
        return phone.platform().with(notifications, haptics, pasteboard, browser, ads, consent, tracking,
                                     push, mail, storeReview, scene);
    }

    /// The remote document arrives with everything on, native ads where wanted.
    void answerConfiguration(bool native = true, bool blackBanner = false, bool xMark = false) {
        const auto flag = [](bool on) { return on ? QByteArray("true") : QByteArray("false"); };
        phone.urls.answer(QStringLiteral("https://configuration.example/KeLo/iOS/orl_config.json"),
                          R"({"admob": {"ipad_ad_enabled": true, "banner_ad_enabled": true,
            "open_ad_enabled": true, "reward_ad_enabled": true,
            "interstitial_ad_enabled": true, "show_full_ad_after": 3, "native_ad_enabled": )" +
                              flag(native) + R"(, "use_xmark_native": )" + flag(xMark) +
                              R"(}, "black_banner": {"is_active": )" + flag(blackBanner) +
                              R"(, "on_number_card": true, "random_display": []}})");
    }

    /// How many actions of the user count towards the next full-screen ad.
    qint64 actionsCounted() const { return phone.store.integer(QStringLiteral("SHOW_AD_AFTER")); }

    void used(qint64 choices) { phone.store.setValue(QStringLiteral("chose_numbers_count_key"), choices); }

    const QString norwayUrl = QStringLiteral("https://first.example/en/norway");
    PlayedPasteboard pasteboard;
    PlayedBrowser browser;
    PlayedAds ads;
    PlayedConsent consent;
    PlayedTracking tracking;
    PlayedPush push;
    PlayedMail mail;
    PlayedStoreReview storeReview;
    Scene scene;
    Appearance appearance;
    std::unique_ptr<ContentView> content;
};

} // namespace orl
