#include "screens/message_card_view.h"

#include "numbers/moments.h"
#include "screens/message_text.h"

namespace orl {

MessageCardView::MessageCardView(Message message, double now) : message_(std::move(message)) {
    time_ = momentOf(message_);
    if (message_.time && !time_) time_ = now - unreadableAge;
}

QString MessageCardView::content() const {
    return shownContent(message_);
}

QString MessageCardView::age(double now) const {
    return time_ ? relativeTime(*time_, now) : QString();
}

QStringList MessageCardView::messagesExports() const {
    return messageExports(message_.content);
}

void MessageCardView::tick() {
    if (time_) *time_ -= secondsPerTick;
}

} // namespace orl
