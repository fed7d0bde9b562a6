#include "demo/message_texts.h"
#include "demo/messages.h"

#include <QRegularExpression>
#include <QSet>

#include <cmath>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace orl::demo {

namespace {

constexpr double moment = 1'795'000'000.25;

const Number &livelyNumber(const Catalogue &catalogue) {
    return catalogue.countries().front().first.front();
}

template<class Visit>
void forEachNumber(const Catalogue &catalogue, Visit visit) {
    for (const DemoCountry &country : catalogue.countries()) {
        for (const Number &number : country.first)
            visit(number);
        for (const Number &number : country.second)
            visit(number);
    }
}

TEST(MessageScheduleTest, LivelyNumberGetsAMessageEveryTwoToTwelveSeconds) {
    const Catalogue catalogue(1);
    forEachNumber(catalogue, [](const Number &number) {
        if (number.quiet) return;
        const auto messages = MessageSchedule(1, number).newest(moment, 0, 40);
        if (number.brief) {
            ASSERT_GE(messages.size(), 3u);
            ASSERT_LE(messages.size(), 7u) << "less than makes a reader ask for a second page";
        } else {
            ASSERT_EQ(messages.size(), 40u);
        }
        const auto now = static_cast<qint64>(std::floor(moment * 1e6));
        EXPECT_LE(messages.front().microseconds, now);
        EXPECT_GE(messages.front().microseconds, now - 12'000'000);
        for (std::size_t i = 1; i < messages.size(); ++i) {
            const qint64 gap = messages[i - 1].microseconds - messages[i].microseconds;
            EXPECT_GE(gap, 2'000'000) << qPrintable(number.digits);
            EXPECT_LE(gap, 12'000'000) << qPrintable(number.digits);
        }
    });
}

TEST(MessageScheduleTest, MessageAppearsAtItsTimeAndNotBefore) {
    const Catalogue catalogue(1);
    const MessageSchedule schedule(1, livelyNumber(catalogue));
    const auto newest = schedule.newest(moment, 0, 2);
    const auto justBefore = schedule.newest(static_cast<double>(newest[0].microseconds - 10) / 1e6, 0, 1);
    const auto justAfter = schedule.newest(static_cast<double>(newest[0].microseconds + 10) / 1e6, 0, 1);
    EXPECT_EQ(justBefore[0], newest[1]);
    EXPECT_EQ(justAfter[0], newest[0]);
}

TEST(MessageScheduleTest, LaterLookSeesTheSameMessagesFurtherDown) {
    const Catalogue catalogue(1);
    const MessageSchedule schedule(1, livelyNumber(catalogue));
    const auto before = schedule.newest(moment, 0, 10);
    const auto after = schedule.newest(moment + 60, 0, 40);
    const auto shifted = std::find(after.begin(), after.end(), before.front());
    ASSERT_NE(shifted, after.end());
    EXPECT_GE(shifted - after.begin(), 5);
    EXPECT_TRUE(std::equal(before.begin(), before.end(), shifted));
}

TEST(MessageScheduleTest, SeedAndNumberAloneDecide) {
    const Catalogue catalogue(1), again(1), other(2);
    const auto messages = MessageSchedule(1, livelyNumber(catalogue)).newest(moment, 0, 20);
    EXPECT_EQ(messages, MessageSchedule(1, livelyNumber(again)).newest(moment, 0, 20));
    EXPECT_NE(messages, MessageSchedule(2, livelyNumber(catalogue)).newest(moment, 0, 20));
    EXPECT_NE(messages, MessageSchedule(1, catalogue.countries().front().first[1]).newest(moment, 0, 20));
    EXPECT_NE(livelyNumber(catalogue).digits, livelyNumber(other).digits);
}

TEST(MessageScheduleTest, SomeNumbersAreQuiet) {
    const Catalogue catalogue(1);
    int quiet = 0, all = 0;
    forEachNumber(catalogue, [&](const Number &number) {
        ++all;
        if (!number.quiet) return;
        ++quiet;
        const auto messages = MessageSchedule(1, number).newest(moment, 0, 50);
        EXPECT_GE(messages.size(), 3u);
        EXPECT_LE(messages.size(), 7u);
        EXPECT_GT(messages[0].microseconds - messages[1].microseconds, 3'600'000'000);
    });
    EXPECT_GT(quiet, all / 12);
    EXPECT_LT(quiet, all / 4);
}

TEST(MessageScheduleTest, TheLastNumberOfEachCountryIsBrief) {
    const Catalogue catalogue(1);
    for (const DemoCountry &country : catalogue.countries()) {
        EXPECT_TRUE(country.first.back().brief && !country.first.back().quiet) << country.name.toStdString();
        EXPECT_EQ(std::ranges::count(country.first, true, &Number::brief), 1);
        EXPECT_EQ(std::ranges::count(country.second, true, &Number::brief), 0);
    }
}

TEST(MessageScheduleTest, AnyClockIsServed) {
    const Catalogue catalogue(1);
    const MessageSchedule schedule(1, livelyNumber(catalogue));
    for (const double now : {-1e9, -3.5, 0.0, 3.5, 4e9}) {
        const auto messages = schedule.newest(now, 0, 3);
        ASSERT_EQ(messages.size(), 3u) << now;
        const double age = now - static_cast<double>(messages[0].microseconds) / 1e6;
        EXPECT_GE(age, -1e-5) << now;
        EXPECT_LE(age, 12.0001) << now;
    }
}

/// What a world of messages must contain somewhere for the program to meet it.
class MessageVarietyTest : public testing::Test {
protected:
    MessageVarietyTest() {
        const Catalogue catalogue(1);
        forEachNumber(catalogue, [this](const Number &number) {
            for (const ReceivedMessage &message : MessageSchedule(1, number).newest(moment, 0, 20)) {
                senders.insert(message.sender);
                texts << message.text;
            }
        });
    }

    int matching(const QString &pattern) const {
        return static_cast<int>(
            texts.filter(QRegularExpression(pattern, QRegularExpression::UseUnicodePropertiesOption)).size());
    }

    QSet<QString> senders;
    QStringList texts;
};

TEST_F(MessageVarietyTest, EveryScriptAndEveryKindOfContentTurnsUp) {
    for (const char16_t *script : {u"Cyrillic", u"Greek", u"Arabic", u"Hebrew", u"Devanagari", u"Thai",
                                   u"Han", u"Hiragana", u"Hangul"})
        EXPECT_GT(matching(u"\\p{%1}"_s.arg(QStringView(script))), 10)
            << qPrintable(QString::fromUtf16(script));
    struct Case {
        const char *name;
        const char16_t *pattern;
    };
    for (const Case &kind :
         {Case{"four digits", u"\\b[0-9]{4}\\b"}, Case{"eight digits", u"\\b[0-9]{8}\\b"},
          Case{"hyphen", u"[0-9]{3}-[0-9]{3}"}, Case{"blank", u"[0-9]{3} [0-9]{3}"},
          Case{"one-time word", u"[A-Z2-9]{3}-[A-Z2-9]{3}"}, Case{"link", u"https://\\S+"},
          Case{"link with a query", u"\\?id=[0-9]+&"}, Case{"emoji", u"[\\x{1f300}-\\x{1faff}]"},
          Case{"markup", u"<b>"}, Case{"no-break space", u"\\x{a0}"}, Case{"line", u"\\n"},
          Case{"line separator", u"\\x{2028}"}, Case{"long", u"(?s).{300}"}, Case{"umlaut", u"ü"},
          Case{"quote", u"[\"']"}, Case{"Turkish", u"ğ|ı"}, Case{"Vietnamese", u"ư|ệ"}})
        EXPECT_GT(matching(QString::fromUtf16(kind.pattern)), 3) << kind.name;
}

TEST_F(MessageVarietyTest, NoPlaceInATextStaysUnfilled) {
    EXPECT_EQ(matching(u"[{}]"_s), 0);
    EXPECT_EQ(matching(u"^\\s*$"_s), 0);
}

TEST_F(MessageVarietyTest, SendersAreManyAndMostHaveNoIcon) {
    EXPECT_GT(senders.size(), 60);
    int withIcon = 0;
    for (const ServiceName &service : serviceNames())
        withIcon += service.hasIcon && senders.contains(QString::fromUtf8(service.name)) ? 1 : 0;
    EXPECT_GT(withIcon, 8);
    EXPECT_LT(withIcon, senders.size() / 2);
    const auto numeric = QRegularExpression(u"^\\+?[0-9]+$"_s);
    EXPECT_TRUE(std::any_of(senders.begin(), senders.end(),
                            [&](const QString &s) { return numeric.match(s).hasMatch(); }));
    for (const char16_t *sender : {u"sms", u"SMS24", u"Z", u"Salt & Pebble", u"Банк"})
        EXPECT_TRUE(senders.contains(QString::fromUtf16(sender))) << qPrintable(QString::fromUtf16(sender));
}

TEST(TimeStampTest, GivesSixPlacesInUtc) {
    EXPECT_EQ(timeStamp(0), u"1970-01-01T00:00:00.000000Z"_s);
    EXPECT_EQ(timeStamp(1'795'253'400'000'042), u"2026-11-21T09:30:00.000042Z"_s);
    EXPECT_EQ(timeStamp(-1), u"1969-12-31T23:59:59.999999Z"_s);
}

TEST(AgeInWordsTest, NamesTheLargestWholeUnit) {
    struct Case {
        qint64 seconds;
        const char16_t *words;
    };
    for (const Case &age :
         {Case{0, u"0 seconds ago"}, Case{1, u"1 second ago"}, Case{59, u"59 seconds ago"},
          Case{60, u"1 minute ago"}, Case{3599, u"59 minutes ago"}, Case{7200, u"2 hours ago"},
          Case{86400, u"1 day ago"}, Case{40 * 86400LL, u"1 month ago"}, Case{800 * 86400LL, u"2 years ago"}})
        EXPECT_EQ(ageInWords(age.seconds * 1'000'000), QString::fromUtf16(age.words));
}

} // namespace
} // namespace orl::demo
