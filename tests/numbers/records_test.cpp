#include "numbers/records.h"
#include "numbers_phone.h"

#include <gtest/gtest.h>
#include <unordered_set>

namespace orl {

namespace {

const char *const uuid = "0F8FAD5B-D9CB-469F-A165-70867728950E";

const QByteArray countryJson =
    R"({"name":"N","domain":"/d","prefix":"+1","continent":"North_America","icon":"i","format":"X"})";

const Country sampleCountry{QStringLiteral("N"),  QStringLiteral("/d"),
                            QStringLiteral("+1"), QStringLiteral("North_America"),
                            QStringLiteral("i"),  QStringLiteral("X")};

PhoneNumber sampleNumber() {
    return {QUuid(QLatin1String(uuid)), QStringLiteral("+1 2"), WebsiteService::T_P_N};
}

template<class T>
bool decodes(const QByteArray &json) {
    return decodeJson(json, T::decode).ok();
}

} // namespace

TEST(Records, DecodeStrictly) {
    const QByteArray number = R"({"id":")" + QByteArray(uuid) + R"(","number":"1")";
    const QByteArray history = R"({"country":)" + countryJson + ",\"time\":12.5";
    struct Case {
        const char *name;
        bool (*decodes)(const QByteArray &);
        QByteArray json;
        bool accepted;
    };
    const Case cases[] = {
        {"country", decodes<Country>, countryJson, true},
        {"country with an extra key", decodes<Country>, QByteArray(countryJson).replace("{", "{\"flag\":1,"),
         true},
        {"country without format", decodes<Country>, QByteArray(countryJson).replace(",\"format\":\"X\"", ""),
         false},
        {"country with a number as prefix", decodes<Country>, QByteArray(countryJson).replace("\"+1\"", "1"),
         false},
        {"number without website", decodes<PhoneNumber>, number + "}", true},
        {"number with website null", decodes<PhoneNumber>, number + ",\"website\":null}", true},
        {"number with website", decodes<PhoneNumber>, number + ",\"website\":\"T_P_N\"}", true},
        {"number with unknown website", decodes<PhoneNumber>, number + ",\"website\":\"TPN\"}", false},
        {"number with a bad id", decodes<PhoneNumber>, R"({"id":"12","number":"1"})", false},
        {"number without id", decodes<PhoneNumber>, R"({"number":"1"})", false},
        {"history of an old version", decodes<History>, history + ",\"number\":\"+1\"}", true},
        {"history without any number", decodes<History>, history + "}", true},
        {"history with a broken number", decodes<History>, history + ",\"phoneNumber\":{}}", false},
        {"history without time", decodes<History>, R"({"country":)" + countryJson + "}", false},
        {"history without country", decodes<History>, R"({"time":1})", false},
    };
    for (const Case &row : cases)
        EXPECT_EQ(row.decodes(row.json), row.accepted) << row.name;
}

TEST(Records, EncodeWithTheirOwnKeysAndComeBack) {
    const History entry{sampleCountry, sampleNumber(), std::nullopt, 1767225600.123456};
    const QByteArray json = encodeJson(entry.encoded());
    const Result<History> decoded = decodeJson(json, History::decode);
    ASSERT_TRUE(decoded.ok());
    EXPECT_EQ(decoded.value(), entry);
    EXPECT_TRUE(json.contains(uuid)) << "a UUID is written in upper case: " << json.toStdString();
    EXPECT_TRUE(json.contains(R"("website":"T_P_N")"));
    EXPECT_FALSE(json.contains("\"number\":null"));
    EXPECT_FALSE(encodeJson(History{sampleCountry, {}, {}, 1}.encoded()).contains("umber"))
        << "absent means no key";
}

TEST(Records, RawValuesKeepTheirUnderscores) {
    EXPECT_EQ(websiteService(QStringLiteral("T_P_N")), WebsiteService::T_P_N);
    EXPECT_EQ(websiteService(QStringLiteral("sms24")), std::nullopt);
    EXPECT_EQ(continents(QStringLiteral("North America")), std::nullopt);
    QStringList raw;
    for (const Continents continent : allContinents()) {
        raw.append(rawValue(continent));
        EXPECT_EQ(continents(raw.last()), continent);
    }
    EXPECT_EQ(raw.join(QLatin1Char(' ')),
              QStringLiteral("North_America South_America Europe Asia Oceania Africa Antarctica"));
}

TEST(Records, EveryFieldTakesPartInEqualityAndHash) {
    SMSSender sender;
    Message message;
    std::unordered_set<SMSSender> senders{sender};
    std::unordered_set<Message> messages{message};
    const auto changedSender = [&](auto change) {
        SMSSender other = sender;
        change(other);
        EXPECT_TRUE(senders.insert(other).second);
        EXPECT_NE(std::hash<SMSSender>()(other), std::hash<SMSSender>()(sender));
    };
    changedSender([](SMSSender &s) { s.id = QStringLiteral("1"); });
    changedSender([](SMSSender &s) { s.name = QStringLiteral("1"); });
    changedSender([](SMSSender &s) { s.messages = {Message()}; });
    changedSender([](SMSSender &s) { s.icon = QString(); });
    changedSender([](SMSSender &s) { s.light = Color(); });
    changedSender([](SMSSender &s) { s.dark = Color(); });
    changedSender([](SMSSender &s) { s.iconText = QString(); });
    const auto changedMessage = [&](auto change) {
        Message other = message;
        change(other);
        EXPECT_TRUE(messages.insert(other).second);
        EXPECT_NE(std::hash<Message>()(other), std::hash<Message>()(message));
    };
    changedMessage([](Message &m) { m.id = QStringLiteral("1"); });
    changedMessage([](Message &m) { m.content = QStringLiteral("1"); });
    changedMessage([](Message &m) { m.time = QString(); });
    changedMessage([](Message &m) { m.timeDateForTPN = 0; });
    changedMessage([](Message &m) { m.seen = false; });
    changedMessage([](Message &m) { m.seen = true; });
    changedMessage([](Message &m) { m.sender.name = QStringLiteral("1"); });
}

TEST(Records, HashAsTheyCompare) {
    const History positive{sampleCountry, sampleNumber(), std::nullopt, 0.0};
    const History negative{sampleCountry, sampleNumber(), std::nullopt, -0.0};
    EXPECT_EQ(positive, negative);
    EXPECT_EQ(std::hash<History>()(positive), std::hash<History>()(negative));

    PhoneNumber bare = sampleNumber();
    bare.website.reset();
    EXPECT_FALSE(bare == sampleNumber());
    EXPECT_NE(std::hash<PhoneNumber>()(bare), std::hash<PhoneNumber>()(sampleNumber()));
    Country moved = sampleCountry;
    moved.domain.swap(moved.prefix);
    EXPECT_NE(std::hash<Country>()(moved), std::hash<Country>()(sampleCountry));
}

TEST(FreshUuidText, IsARandomUuidInCanonicalForm) {
    QSet<QString> seen;
    for (int i = 0; i < 1000; ++i) {
        const QString text = freshUuidText();
        const std::optional<QUuid> uuid = uuidFromText(text);
        ASSERT_TRUE(uuid) << text.toStdString();
        EXPECT_EQ(uuid->version(), QUuid::Random);
        EXPECT_EQ(uuid->variant(), QUuid::DCE);
        EXPECT_EQ(text, text.toUpper());
        seen.insert(text);
    }
    EXPECT_EQ(seen.size(), 1000);
}

TEST(IconText, IsTwoUpperCaseCharacters) {
    const std::pair<const char *, const char *> cases[] = {
        {"bank", "BA"},
        {"a b", "AB"},
        {"x", "X "},
        {"", "  "},
        {"   ", "  "},
        {"é́cole", "É́C"},
        {"\U0001F1F3\U0001F1F4 norge", "\U0001F1F3\U0001F1F4N"},
        {"12-34", "12"},
    };
    for (const auto &[name, letters] : cases) {
        EXPECT_EQ(iconText(QString::fromUtf8(name)), QString::fromUtf8(letters)) << name;
    }
}

TEST(Gradients, HaveTheirColoursAndStartAgainAfterTheLast) {
    EXPECT_EQ(gradientPairs.front().light.name(), QStringLiteral("#f7b42c"));
    EXPECT_EQ(gradientPairs.at(5).dark.name(), QStringLiteral("#330867"));
    EXPECT_EQ(gradientPairs.back().dark.name(), QStringLiteral("#764ba2"));
    EXPECT_EQ(nextGradient(9), 10);
    EXPECT_EQ(nextGradient(10), 0);
}

} // namespace orl
