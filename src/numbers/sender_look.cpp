#include "numbers/sender_look.h"

namespace orl {

std::optional<QString> senderIcon(const Endpoints &endpoints, const QStringList &icons,
                                  const QString &senderName) {
    const QString icon = senderName.toLower();
    if (!icons.contains(icon)) return std::nullopt;
    return endpoints.configurationHost + QStringLiteral("/KeLo/OnlineSMS/SendersIcon/") + icon +
           QStringLiteral(".jpg");
}

SMSSender withGradient(SMSSender sender, std::atomic<int> &index) {
    const int pair = index;
    index = nextGradient(pair);
    sender.light = gradientPairs.at(pair).light;
    sender.dark = gradientPairs.at(pair).dark;
    sender.iconText = iconText(sender.name);
    return sender;
}

} // namespace orl
