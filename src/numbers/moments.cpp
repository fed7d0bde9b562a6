#include "numbers/moments.h"

#include <QDateTime>
#include <QRegularExpression>

#include <array>
#include <memory>
#include <unicode/gregocal.h>
#include <unicode/locid.h>
#include <unicode/reldatefmt.h>

namespace orl {

namespace {

struct Unit {
    UCalendarDateFields field;
    URelativeDateTimeUnit unit;
};

constexpr std::array units{
    Unit{UCAL_YEAR, UDAT_REL_UNIT_YEAR},         Unit{UCAL_MONTH, UDAT_REL_UNIT_MONTH},
    Unit{UCAL_WEEK_OF_YEAR, UDAT_REL_UNIT_WEEK}, Unit{UCAL_DATE, UDAT_REL_UNIT_DAY},
    Unit{UCAL_HOUR_OF_DAY, UDAT_REL_UNIT_HOUR},  Unit{UCAL_MINUTE, UDAT_REL_UNIT_MINUTE},
    Unit{UCAL_SECOND, UDAT_REL_UNIT_SECOND}};

icu::Locale icuLocale(const QString &name) {
    return name.isEmpty() ? icu::Locale::getDefault() : icu::Locale(name.toUtf8().constData());
}

void format(const icu::RelativeDateTimeFormatter &formatter, double time, double now,
            icu::UnicodeString &text, UErrorCode &status) {
    icu::GregorianCalendar calendar(*icu::TimeZone::getGMT(), status);
    for (const auto &[field, unit] : units) {
        calendar.setTime(now * 1000, status);
        const int32_t count = calendar.fieldDifference(time * 1000, field, status);
        if (U_FAILURE(status)) return;
        if (count != 0) {
            formatter.formatNumeric(count, unit, text, status);
            return;
        }
    }
    formatter.format(0, UDAT_REL_UNIT_SECOND, text, status);
}

} // namespace

QString relativeTime(double time, double now, const QString &locale) {
    UErrorCode status = U_ZERO_ERROR;
    const icu::RelativeDateTimeFormatter formatter(icuLocale(locale), nullptr, UDAT_STYLE_LONG,
                                                   UDISPCTX_CAPITALIZATION_NONE, status);
    icu::UnicodeString text;
    if (U_SUCCESS(status)) format(formatter, time, now, text, status);
    if (U_FAILURE(status)) return {};
    return QString::fromUtf16(text.getBuffer(), text.length());
}

std::optional<double> messageMoment(const QString &timeStamp) {
    static const QRegularExpression form(
        QStringLiteral(R"(\A(\d{4})-(\d\d)-(\d\d)T(\d\d):(\d\d):(\d\d)(\.\d{1,9})Z\z)"));
    const QRegularExpressionMatch match = form.match(timeStamp);
    if (!match.hasMatch()) return std::nullopt;
    const auto part = [&](int group) { return match.capturedView(group).toInt(); };
    const QDate date(part(1), part(2), part(3));
    const QTime time(part(4), part(5), part(6));
    if (!date.isValid() || !time.isValid()) return std::nullopt;
    const double wholeSeconds = static_cast<double>(QDateTime(date, time, Qt::UTC).toSecsSinceEpoch());
    return wholeSeconds + match.capturedView(7).toDouble();
}

} // namespace orl
