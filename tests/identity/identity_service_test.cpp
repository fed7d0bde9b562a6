#include "identity/identity_service.h"
#include "identity_phone.h"
#include "platform/process.h"

#include <QDateTime>
#include <QSet>

#include <limits>

namespace orl {
namespace {

using testing::ElementsAre;
using testing::StartsWith;

const QString adaUrl = QStringLiteral("https://identity.example/english-united-states/female");

struct IdentityServiceTest : testing::Test {
    IdentityServiceTest() {
        phone.clock.setNow(double(QDateTime({2024, 5, 16}, {12, 0}, Qt::UTC).toSecsSinceEpoch()));
    }

    Platform platform() {
        Platform made = phone.platform();
        made.endpoints.identityHost = host;
        return made;
    }

    void serve(const QJsonObject &wire) { phone.urls.answer(adaUrl, encodeJson(wire)); }

    /// Generates on a worker.
    void generate(FakeGender gender = FakeGender::Female) {
        const Platform ports = platform();
        phone.globalQueue.post([this, ports, gender] {
            const IdentityPath path =
                identityPath(ports, gender, FakeNameSet::English, FakeCountry::UnitedStates);
            fetchIdentity(ports, path.url, path.gender, [this](const std::optional<FakeIdentity> &made) {
                ++completions;
                result = made;
            });
        });
        phone.settle();
    }

    PlayedPlatform phone;
    QString host = QStringLiteral("https://identity.example");
    int completions = 0;
    std::optional<FakeIdentity> result;
};

QStringList lines(const QList<ExtraInfo> &rows) {
    QStringList list;
    for (const ExtraInfo &row : rows)
        list << row.title + QStringLiteral(": ") + row.content;
    return list;
}

TEST_F(IdentityServiceTest, PathJoinsTheChoicesAsTheyStand) {
    struct Case {
        FakeGender gender;
        FakeNameSet nameSet;
        FakeCountry country;
        const char *url;
    };
    const Case cases[] = {
        {FakeGender::Male, FakeNameSet::English, FakeCountry::UnitedStates, "/english-united-states/male"},
        {FakeGender::Female, FakeNameSet::Bengali, FakeCountry::Bangladesh, "/Bengali-bangladesh/female"},
        {FakeGender::Male, FakeNameSet::Montenegro, FakeCountry::Montenegrin, "/montenegro-montenegrin/male"},
        {FakeGender::Male, FakeNameSet::Portuguese, FakeCountry::Moldova, "/portuguese-moldova/male"},
    };
    for (const Case &row : cases) {
        const IdentityPath path = identityPath(platform(), row.gender, row.nameSet, row.country);
        EXPECT_EQ(path.gender, row.gender);
        ASSERT_TRUE(path.url);
        EXPECT_EQ(path.url->toString(), QStringLiteral("https://identity.example") + QLatin1String(row.url));
    }
}

// The high words of 6 * word are 0 to 5, three of each gender; a low word in the incomplete stretch, below
// 2^64 mod 6 = 4, is drawn again.
TEST_F(IdentityServiceTest, OpenGenderIsDrawnWithoutBias) {
    const quint64 sixth = std::numeric_limits<quint64>::max() / 6;
    struct Case {
        const char *name;
        std::deque<quint64> words;
        FakeGender gender;
    };
    const Case cases[] = {
        {"first", {1}, FakeGender::Male},
        {"end of the third", {3 * sixth}, FakeGender::Male},
        {"begin of the fourth", {3 * sixth + 3}, FakeGender::Female},
        {"last", {std::numeric_limits<quint64>::max()}, FakeGender::Female},
        {"rejected, then last", {0, std::numeric_limits<quint64>::max()}, FakeGender::Female},
        {"rejected in the middle", {quint64{1} << 63, 1}, FakeGender::Male},
    };
    for (const Case &row : cases) {
        std::deque<quint64> words = row.words;
        const IdentityPath path =
            identityPath(platform(), FakeGender::Random, FakeNameSet::French, FakeCountry::Canada, [&words] {
                const quint64 word = words.front();
                words.pop_front();
                return word;
            });
        EXPECT_EQ(path.gender, row.gender) << row.name;
        EXPECT_EQ(path.url->path(), QStringLiteral("/french-canada/") + rawValue(row.gender)) << row.name;
        EXPECT_TRUE(words.empty()) << row.name;
    }
}

TEST_F(IdentityServiceTest, AnswerBecomesSectionsInOrder) {
    serve(test::wireIdentity());
    generate();
    ASSERT_TRUE(result);
    EXPECT_EQ(result->full_name, QStringLiteral("Ada Ferris"));
    EXPECT_EQ(result->address, QStringLiteral("12 Mill Lane\nLeeds LS1 4AB"));
    EXPECT_EQ(result->gender, FakeGender::Female);
    EXPECT_THAT(lines(result->more_section),
                ElementsAre(QStringLiteral("Geo coordinates: 12.5, -3.0"),
                            QStringLiteral("Mother's maiden name: Holt"),
                            QStringLiteral("Date of birth: 1990-05-17"), QStringLiteral("Age: 33")));
    EXPECT_THAT(lines(result->phone_section), ElementsAre(QStringLiteral("Home phone: 0113 496 0001"),
                                                          QStringLiteral("Work phone: 0113 496 0002")));
    EXPECT_THAT(lines(result->internet_section),
                ElementsAre(QStringLiteral("Email address: ada@example.com"),
                            QStringLiteral("Username: ferris"),
                            QStringLiteral("Browser user agent: Browser/1.0")));
    EXPECT_THAT(lines(result->body_section),
                ElementsAre(QStringLiteral("Height: 180.0"), QStringLiteral("Weight: 71.25"),
                            QStringLiteral("Eye color: Green"), QStringLiteral("Blood type: O+"),
                            QStringLiteral("Hair: Long, black")));
    EXPECT_THAT(lines(result->other_section), ElementsAre(QStringLiteral("Company: Tide & Sons"),
                                                          QStringLiteral("Favorite sport: Fencing")));
    EXPECT_EQ(phone.urls.requests.size(), 1U);
    EXPECT_TRUE(phone.urls.requests.front().headers.isEmpty());
    EXPECT_TRUE(phone.urls.requests.front().byWorker);
}

TEST_F(IdentityServiceTest, EachGenerationIsAnotherRequestAndAnotherId) {
    serve(test::wireIdentity());
    QSet<QString> ids;
    for (int i = 0; i < 3; ++i) {
        generate();
        ids.insert(result.value().id);
        EXPECT_EQ(result->id, result->id.toUpper());
        EXPECT_TRUE(uuidFromText(result->id));
    }
    EXPECT_EQ(ids.size(), 3);
    EXPECT_EQ(phone.urls.count(adaUrl), 3);
}

TEST_F(IdentityServiceTest, WhatIsNoIdentityIsToldOnceAndCompletesWithNothing) {
    const auto without = [](const char *key) {
        QJsonObject wire = test::wireIdentity();
        wire.remove(QLatin1String(key));
        return encodeJson(wire);
    };
    const auto with = [](const char *key, const QJsonValue &value) {
        QJsonObject wire = test::wireIdentity();
        wire.insert(QLatin1String(key), value);
        return encodeJson(wire);
    };
    struct Case {
        const char *name;
        PlayedUrls::Answer answer;
        const char *description;
    };
    std::vector<Case> cases = {
        {"host down", Error{QStringLiteral("Connection refused")}, "Connection refused"},
        {"error page", UrlResponse{500, "<html>500</html>"}, "no valid JSON"},
        {"empty", "", "no valid JSON"},
        {"a list", "[]", ""},
        {"cut off", encodeJson(test::wireIdentity()).chopped(40), "no valid JSON"},
        {"text as number", with("height", QStringLiteral("180")), "height"},
        {"number as text", with("phone_h", 113), "phone_h"},
        {"null", with("sport", QJsonValue::Null), "sport"},
    };
    const QStringList keys = test::wireIdentity().keys();
    for (const QString &key : keys)
        cases.push_back({"key missing", without(key.toLatin1().constData()), ""});
    for (const Case &row : cases) {
        phone.urls.answerOnce(adaUrl, row.answer);
        phone.console.lines.clear();
        completions = 0;
        result = FakeIdentity();
        generate();
        EXPECT_EQ(completions, 1) << row.name;
        EXPECT_FALSE(result) << row.name;
        ASSERT_EQ(phone.console.lines.size(), 1) << row.name;
        EXPECT_THAT(phone.console.lines.front().toStdString(),
                    StartsWith(std::string("Failed to generate new identity: ") + row.description))
            << row.name;
    }
}

// The status is not looked at.
TEST_F(IdentityServiceTest, WholeIdentityBehindAnErrorStatusIsTaken) {
    phone.urls.answer(adaUrl, UrlResponse{503, encodeJson(test::wireIdentity())});
    generate();
    EXPECT_TRUE(result);
}

TEST_F(IdentityServiceTest, SlowHostHoldsTheWorkerAndNothingElse) {
    serve(test::wireIdentity());
    phone.urls.hold(adaUrl);
    generate();
    phone.advance(std::chrono::minutes(5));
    EXPECT_EQ(completions, 0);
    phone.urls.release(adaUrl);
    phone.settle();
    EXPECT_EQ(completions, 1);
    EXPECT_TRUE(result);
}

TEST_F(IdentityServiceTest, WithoutAnAddressNothingHappens) {
    host = QStringLiteral("not a host");
    generate();
    EXPECT_EQ(completions, 0);
    EXPECT_TRUE(phone.console.lines.isEmpty());
    EXPECT_TRUE(phone.urls.requests.empty());
}

TEST_F(IdentityServiceTest, BirthDateInAnotherFormIsFatal) {
    for (const char *date : {"17.05.1990", "1990-02-30", "", "1990-05-17T00:00"}) {
        QJsonObject wire = test::wireIdentity();
        wire.insert(QStringLiteral("birth_data"), QLatin1String(date));
        serve(wire);
        EXPECT_THROW(generate(), PlayedFatalError) << date;
        EXPECT_EQ(completions, 0) << date;
    }
}

TEST(WholeYears, AreCountedByTheCalendar) {
    struct Case {
        const char *name;
        QDate from;
        QDate to;
        std::optional<int> years;
    };
    const Case cases[] = {
        {"day before the birthday", {1990, 5, 17}, {2024, 5, 16}, 33},
        {"birthday", {1990, 5, 17}, {2024, 5, 17}, 34},
        {"same day", {2024, 5, 17}, {2024, 5, 17}, 0},
        {"leap day in a common year", {2000, 2, 29}, {2023, 2, 28}, 23},
        {"day before that", {2000, 2, 29}, {2023, 2, 27}, 22},
        {"leap day in a leap year", {2000, 2, 29}, {2024, 2, 28}, 23},
        {"not yet born", {2024, 5, 17}, {2023, 5, 18}, 0},
        {"born in two years", {2024, 5, 17}, {2022, 5, 16}, -2},
        {"no day", {}, {2024, 5, 17}, std::nullopt},
        {"no today", {1990, 5, 17}, {}, std::nullopt},
    };
    for (const Case &row : cases)
        EXPECT_EQ(wholeYears(row.from, row.to), row.years) << row.name;
}

TEST(NumberText, IsTheShortestThatReadsBack) {
    struct Case {
        double number;
        const char *text;
    };
    const Case cases[] = {{12.5, "12.5"},           {3, "3.0"},
                          {180, "180.0"},           {0, "0.0"},
                          {-0.1, "-0.1"},           {0.1 + 0.2, "0.30000000000000004"},
                          {-73.98513, "-73.98513"}, {0.0001, "0.0001"},
                          {0.00001, "1e-05"},       {1e15, "1000000000000000.0"},
                          {1e16, "1e+16"},          {1.7976931348623157e308, "1.7976931348623157e+308"}};
    for (const Case &row : cases) {
        EXPECT_EQ(numberText(row.number), QLatin1String(row.text));
        EXPECT_EQ(numberText(row.number).toDouble(), row.number);
    }
}

} // namespace
} // namespace orl
