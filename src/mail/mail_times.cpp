#include "mail/mail_times.h"

#include <QDateTime>

#include <cmath>
#include <unicode/locid.h>
#include <unicode/smpdtfmt.h>

namespace orl {

std::optional<QString> mailTime(const QString &createdAt, const QTimeZone &zone) {
    UErrorCode status = U_ZERO_ERROR;
    thread_local icu::SimpleDateFormat format(icu::UnicodeString(u"yyyy-MM-dd'T'HH:mm:ssZ"),
                                              icu::Locale("en_US"), status);
    if (U_FAILURE(status)) return std::nullopt;
    format.setLenient(false);
    const icu::UnicodeString text(reinterpret_cast<const char16_t *>(createdAt.utf16()),
                                  int32_t(createdAt.size()));
    icu::ParsePosition end;
    const UDate moment = format.parse(text, end);
    if (end.getErrorIndex() >= 0 || end.getIndex() != text.length()) return std::nullopt;
    return QDateTime::fromMSecsSinceEpoch(qint64(moment), zone).toString(QStringLiteral("HH:mm"));
}

QString readMark(double now, const QTimeZone &zone) {
    const QDateTime time = QDateTime::fromMSecsSinceEpoch(qint64(std::floor(now * 1000)), zone);
    const QString text = time.toString(QStringLiteral("yyyy-MM-dd'T'HH:mm:ss"));
    const int minutes = time.offsetFromUtc() / 60;
    if (minutes == 0) return text + QLatin1Char('Z');
    return text + QStringLiteral("%1%2:%3")
                      .arg(QLatin1Char(minutes < 0 ? '-' : '+'))
                      .arg(std::abs(minutes) / 60, 2, 10, QLatin1Char('0'))
                      .arg(std::abs(minutes) % 60, 2, 10, QLatin1Char('0'));
}

} // namespace orl
