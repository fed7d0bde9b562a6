#include "mail/mail_times.h"
#include "mail_phone.h"

namespace orl {
namespace {

const QTimeZone kathmandu(QByteArray("Asia/Kathmandu")); // five hours and three quarters ahead

TEST(MailTimes, TheTimeOfAMailIsHourAndMinuteWhereTheDeviceIs) {
    const std::pair<const char *, const char *> cases[] = {
        {"2026-01-01T09:05:00+0000", "09:05"},
        {"2026-01-01T09:05:59Z", "09:05"},
        {"2026-01-01T00:30:00+0200", "22:30"},
        {"2026-01-01T09:05:00-11:00", "20:05"},
    };
    for (const auto &[text, expected] : cases)
        EXPECT_EQ(mailTime(text, QTimeZone::utc()).value_or("none"), expected) << text;
    EXPECT_EQ(mailTime("2026-01-01T20:00:00+0000", kathmandu), "01:45");
}

TEST(MailTimes, AnotherFormIsNoTime) {
    for (const char *text :
         {"", "yesterday", "2026-01-01 09:05:00+0000", "2026-01-01T09:05:00", "2026-01-01T09:05:00.123+0000",
          "2026-13-01T09:05:00+0000", "2026-02-30T09:05:00+0000", "2026-01-01T24:05:00+0000",
          "2026-01-01T09:05:00+0000 ", "1767225600"})
        EXPECT_EQ(mailTime(text, QTimeZone::utc()), std::nullopt) << text;
}

TEST(MailTimes, AReadMarkTellsTheOffsetOfTheDevice) {
    EXPECT_EQ(readMark(1767225600.9, QTimeZone::utc()), "2026-01-01T00:00:00Z");
    EXPECT_EQ(readMark(1767225600, kathmandu), "2026-01-01T05:45:00+05:45");
    EXPECT_EQ(readMark(1767225600, QTimeZone(-(3 * 3600 + 1800))), "2025-12-31T20:30:00-03:30");
}

} // namespace
} // namespace orl
