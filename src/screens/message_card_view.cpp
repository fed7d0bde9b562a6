#include "screens/message_card_view.h"

#include "numbers/moments.h"
#include "numbers/text_helpers.h"
#include "platform/clock.h"

namespace orl {

MessageCardView::MessageCardView(Process &process, Message message, QObject *parent)
    : QObject(parent), process_(process), message_(std::move(message)) {
    appear();
    timer_ = process_.platform().mainQueue.every(tick, [this] {
        if (!time_) return;
        *time_ -= secondsPerTick;
        Q_EMIT ageChanged();
    });
}

void MessageCardView::appear() {
    messagesExports_ = extractNumbers(shortestCode, message_.content);
    if (const auto link = firstLink(message_.content)) messagesExports_ << *link;

    if (message_.time)
        time_ = messageMoment(*message_.time).value_or(process_.platform().clock.now() - unreadableAge);
    else
        time_ = message_.timeDateForTPN;
}

QString MessageCardView::content() const {
    return QString(message_.content).replace(QChar(0x2028), u' ');
}

QString MessageCardView::age() const {
    return time_ ? relativeTime(*time_, process_.platform().clock.now()) : QString();
}

} // namespace orl
