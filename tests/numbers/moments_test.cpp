#include "numbers/moments.h"
#include "numbers_phone.h"

#include <gtest/gtest.h>

namespace orl {

TEST(RelativeTime, UsesTheLargestUnitThatHasPassed) {
    constexpr double minute = 60;
    constexpr double hour = 60 * minute;
    constexpr double day = 24 * hour;
    constexpr double now = 1767225600; // 2026-01-01
    struct Case {
        double offset;
        const char *locale;
        const char *text;
    };
    const Case cases[] = {
        {0, "en", "now"},
        {-0.9, "en", "now"},
        {-1, "en", "1 second ago"},
        {-59, "en", "59 seconds ago"},
        {-60, "en", "1 minute ago"},
        {-3 * minute - 20, "en", "3 minutes ago"},
        {-hour, "en", "1 hour ago"},
        {-23.9 * hour, "en", "23 hours ago"},
        {-day, "en", "1 day ago"},
        {2 * day, "en", "in 2 days"},
        {-7 * day, "en", "1 week ago"},
        {-31 * day, "en", "1 month ago"}, // December has 31 days
        {-30 * day, "en", "4 weeks ago"},
        {-365 * day, "en", "1 year ago"},
        {-364 * day, "en", "11 months ago"},
        {-3 * minute, "de", "vor 3 Minuten"},
        {2 * day, "fr", "dans 2 jours"},
        {-2 * hour, "ar", "قبل ساعتين"},
        {-22 * minute, "ru", "22 минуты назад"},
        {-25 * minute, "ru", "25 минут назад"},
        {-5 * hour, "pl", "5 godzin temu"},
        {-3 * day, "ja", "3 日前"},
        {-minute, "zh", "1分钟前"},
        {-2 * day, "pt-BR", "há 2 dias"},
        {0, "es", "ahora"},
    };
    for (const Case &row : cases) {
        EXPECT_EQ(relativeTime(now + row.offset, now, QLatin1String(row.locale)), QString::fromUtf8(row.text))
            << row.offset;
    }
}

TEST(MessageMoment, ReadsTheTimeStampsOfTheFirstWebsite) {
    struct Case {
        const char *text;
        std::optional<double> moment;
    };
    const Case cases[] = {
        {"2026-01-01T00:00:00.000000Z", 1767225600.0},
        {"2026-01-01T00:00:01.250000Z", 1767225601.25},
        {"2024-02-29T12:00:00.000000Z", 1709208000.0},
        {"2026-02-29T12:00:00.000000Z", std::nullopt},
        {"2026-01-01T24:00:00.000000Z", std::nullopt},
        {"2026-01-01T00:00:00Z", std::nullopt},
        {"2026-01-01 00:00:00.000000Z", std::nullopt},
        {"2026-01-01T00:00:00.000000", std::nullopt},
        {"2026-01-01T00:00:00.000000Z\n", std::nullopt},
        {"just now", std::nullopt},
        {"", std::nullopt},
    };
    for (const Case &row : cases)
        EXPECT_EQ(messageMoment(QLatin1String(row.text)), row.moment) << row.text;
}

} // namespace orl
