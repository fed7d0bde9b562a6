#pragma once

#include "config/values_in_force.h"
#include "numbers/request_view_model.h"
#include "support/played_notifications.h"
#include "support/played_platform.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>

namespace orl {

namespace test {

/// One message as the first website shows it.
struct Sms {
    QString sender;
    QString content;
    QString time;
};

inline QByteArray element(const char *classes, const QByteArray &inner) {
    return "<div class=\"" + QByteArray(classes) + "\">" + inner + "</div>";
}

/// A page of the first website in the markup that the compiled recipe reads.
inline QByteArray messagePage(const QList<Sms> &list) {
    QByteArray body;
    for (const Sms &sms : list) {
        body += element("shadow-sm bg-light rounded border-start border-info border-5",
                        element("mb-1", sms.sender.toHtmlEscaped().toUtf8()) +
                            element("placeholder text-break", sms.content.toHtmlEscaped().toUtf8()));
        body += element("mt-3", "<span data-created=\"" + sms.time.toUtf8() + "\"></span>");
    }
    return "<html><body>" + body + "</body></html>";
}

/// `count` messages "PREFIX 1", "PREFIX 2"... from as many senders.
inline QList<Sms> manySms(int count, const QString &prefix = QStringLiteral("text")) {
    QList<Sms> list;
    for (int i = 1; i <= count; ++i) {
        list.append({QStringLiteral("Sender %1").arg(i), QStringLiteral("%1 %2").arg(prefix).arg(i), {}});
    }
    return list;
}

inline QByteArray countryElement(const QByteArray &name, const QByteArray &href) {
    const QByteArray text = element("placeholder h5", name);
    return element("col-sm-12 col-md-6 col-lg-4",
                   href.isEmpty() ? text : "<a href=\"" + href + "\">" + text + "</a>");
}

inline QByteArray countryPage(const QByteArray &elements) {
    return "<html><body>" + element("container-fluid mt-3 p-0", elements) + "</body></html>";
}

inline QByteArray numbersPage(const QList<QByteArray> &numbers) {
    QByteArray body;
    for (const QByteArray &number : numbers)
        body += element("fw-bold text-primary placeholder", number);
    return "<html><body>" + body + "</body></html>";
}

inline Country country(const QString &name, const QString &domain = QStringLiteral("/en/local")) {
    return {.name = name,
            .domain = domain,
            .prefix = QStringLiteral("+1"),
            .continent = QStringLiteral("Europe"),
            .icon = QStringLiteral("xx"),
            .format = QStringLiteral("+X XXX")};
}

inline QByteArray encodedCountries(const QList<Country> &list) {
    QJsonArray json;
    for (const Country &entry : list)
        json.append(entry.encoded());
    return encodeJson(json);
}

inline PhoneNumber phoneNumber(const QString &number,
                               std::optional<WebsiteService> website = WebsiteService::SMS24) {
    return {.id = QUuid::createUuid(), .number = number, .website = website};
}

template<class Record>
QStringList names(const QList<Record> &list) {
    QStringList all;
    for (const Record &record : list)
        all.append(record.name);
    return all;
}

inline QStringList contents(const QList<Message> &list) {
    QStringList all;
    for (const Message &message : list)
        all.append(message.content);
    return all;
}

} // namespace test

/// The number service on a played phone whose hosts answer with empty catalogues. Ads are off unless a test
/// turns them on.
struct NumbersTest : testing::Test {
    NumbersTest() {
        phone.bundle.resources[QStringLiteral("countries.json")] = test::encodedCountries(
            {test::country(QStringLiteral("Niger")), test::country(QStringLiteral("Nigeria")),
             test::country(QStringLiteral("Norway"))});
        phone.urls.answer(iconsUrl, "[]");
        phone.urls.answer(tpnCountriesUrl, "[]");
        phone.urls.answer(countriesUrl, test::countryPage({}));
        restart();
    }

    /// A new run of the program on the same store; `make` then creates its state.
    void restart() {
        phone.endProcess();
        numbers.reset();
        process = std::make_unique<Process>(playedWith(phone.platform(), notifications, haptics));
        setAds(false);
    }

    RequestViewModel &make() {
        numbers = std::make_unique<RequestViewModel>(*process);
        return *numbers;
    }

    /// As make, with the catalogues arrived and a number of the first website chosen.
    RequestViewModel &makeWithNumber(const QString &number = QStringLiteral("+1 555 0100")) {
        make().chooseNumber(test::country(QStringLiteral("Norway")), test::phoneNumber(number), false);
        phone.settle();
        return *numbers;
    }

    void setAds(bool on) {
        AppConfiguration configuration;
        configuration.admob.nativeAdEnabled = on;
        process->shared<ValuesInForce>().currentConfiguration->set(configuration);
    }

    void setRecipe(const ScrapingConfig &recipe) {
        process->shared<ValuesInForce>().currentScrapingConfig->set(recipe);
    }

    void answerMessages(const QList<test::Sms> &list) {
        phone.urls.answer(messagesUrl, test::messagePage(list));
    }

    void fetch(bool force = false) {
        numbers->fetchMessages(force);
        phone.settle();
    }

    /// Counts how often a published field notifies.
    template<class Signal>
    std::shared_ptr<int> notified(Signal signal) {
        auto count = std::make_shared<int>(0);
        QObject::connect(numbers.get(), signal, [count] { ++*count; });
        return count;
    }

    const QString iconsUrl = QStringLiteral("https://configuration.example/KeLo/OnlineSMS/icons.json");
    const QString tpnCountriesUrl =
        QStringLiteral("https://configuration.example/KeLo/Android/tpn_site_countries.json");
    const QString countriesUrl = QStringLiteral("https://first.example/en");
    const QString messagesUrl = QStringLiteral("https://first.example/en/numbers/15550100");
    const QString secondPageUrl = messagesUrl + QStringLiteral("/2");

    PlayedPlatform phone;
    PlayedNotifications notifications;
    PlayedHaptics haptics;
    std::unique_ptr<Process> process;
    std::unique_ptr<RequestViewModel> numbers;
};

} // namespace orl
