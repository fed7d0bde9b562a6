#pragma once

#include <QString>
#include <QTimeZone>

#include <optional>

namespace orl {

/// Hour and minute of a mail's `created_at` ("yyyy-MM-dd'T'HH:mm:ssZ") in the zone, as "09:05"; nothing for a
/// text of another form.
std::optional<QString> mailTime(const QString &createdAt,
                                const QTimeZone &zone = QTimeZone::systemTimeZone());

/// A moment (seconds since 1970) as read marks tell it: "2026-01-01T09:05:00+01:00", with "Z" for an offset
/// of nothing.
QString readMark(double now, const QTimeZone &zone = QTimeZone::systemTimeZone());

} // namespace orl
