#pragma once

#include <QString>

#include <optional>

namespace orl {

/// A moment relative to another one in words, full style: "3 minutes ago", "in 2 days"; less than a second
/// apart is "now". Counts in the largest of years, months, weeks, days, hours, minutes and seconds of which
/// at least one has passed on the calendar. Both in seconds since 1970; the locale is an ICU name such as
/// "de", empty for the device's.
QString relativeTime(double time, double now, const QString &locale = {});

/// A time stamp "yyyy-MM-dd'T'HH:mm:ss.SSSSSS'Z'" in seconds since 1970; nothing for any other text.
std::optional<double> messageMoment(const QString &timeStamp);

} // namespace orl
