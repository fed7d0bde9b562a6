#include "screens/message_text.h"

#include "numbers/moments.h"
#include "numbers/text_helpers.h"
#include "screens/copy_view_model.h"

#include <QDateTime>
#include <QUrl>

namespace orl {

namespace {

constexpr qsizetype shortestCode = 3;

} // namespace

QString shownContent(const Message &message) {
    return QString(message.content).replace(QChar(0x2028), u' ');
}

std::optional<double> momentOf(const Message &message) {
    return message.time ? messageMoment(*message.time) : message.timeDateForTPN;
}

QString clockTime(const std::optional<double> &moment) {
    if (!moment) return {};
    return QDateTime::fromMSecsSinceEpoch(qint64(*moment * 1000)).toString(QStringLiteral("HH:mm"));
}

QStringList messageExports(const QString &content) {
    QStringList exports = extractNumbers(shortestCode, content);
    if (const auto link = firstLink(content)) exports << *link;
    return exports;
}

void tapExport(const QString &entry, Process &process, CopyViewModel &copy) {
    if (!entry.contains(QStringLiteral("http")))
        copy.copy(entry);
    else if (const QUrl url(entry, QUrl::StrictMode); url.isValid())
        process.platform().browser.open(url);
}

bool isAd(const Message &message) {
    return message.sender.name.toLower() == QStringLiteral("nativead");
}

bool isAd(const SMSSender &sender) {
    return sender.name == QStringLiteral("native_ad");
}

} // namespace orl
