#include "numbers/sender_look.h"

#include <algorithm>

namespace orl {

namespace {

/// As QString::toLower, which takes ten times as long for names of plain letters; most are.
QString lowerCase(const QString &name) {
    const auto isPlain = [](QChar c) { return c.unicode() < 128; };
    if (!std::all_of(name.cbegin(), name.cend(), isPlain)) return name.toLower();
    QString lower = name;
    for (QChar &c : lower) {
        if (c >= u'A' && c <= u'Z') c = QChar(c.unicode() - u'A' + u'a');
    }
    return lower;
}

} // namespace

std::optional<QString> senderIcon(const Endpoints &endpoints, const QStringList &icons,
                                  const QString &senderName) {
    const QString icon = lowerCase(senderName);
    if (!icons.contains(icon)) return std::nullopt;
    return endpoints.configurationHost + QStringLiteral("/KeLo/OnlineSMS/SendersIcon/") + icon +
           QStringLiteral(".jpg");
}

SMSSender withGradient(SMSSender sender, std::atomic<int> &index) {
    const int pair = index;
    index = nextGradient(pair);
    sender.light = gradientPairs.at(pair).light;
    sender.dark = gradientPairs.at(pair).dark;
    if (!sender.iconText) sender.iconText = iconText(sender.name);
    return sender;
}

} // namespace orl
