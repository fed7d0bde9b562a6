#include "screens/message_cards.h"

#include "platform/clock.h"
#include "screens/avatar_face.h"
#include "screens/message_text.h"

namespace orl {

namespace {

enum Role { Sender, Content, Age, Exports, Face, Slot };

/// Every fetch makes new records of the messages on the page; this tells which of them are the same message.
QString keyOf(const Message &message) {
    const QString moment = message.time.value_or(QString());
    return QStringList{message.sender.name, moment, message.content}.join(QChar(0x1e));
}

} // namespace

MessageCards::MessageCards(Process &process, Listed listed, QObject *parent)
    : KeyedRows({"sender", "content", "age", "exports", "face", "slot"}, parent),
      process_(process),
      listed_(std::move(listed)) {}

void MessageCards::show(const QList<Message> &messages, bool withAds) {
    const double now = process_.platform().clock.now();
    QStringList keys;
    QList<MessageCardView> cards;
    for (const Message &message : messages) {
        if (isAd(message) && !withAds) continue;
        keys << keyOf(message);
        cards << MessageCardView(message, now);
    }
    keys = withOccurrence(keys);
    QHash<QString, MessageCardView> byKey;
    for (qsizetype i = 0; i < keys.size(); ++i)
        byKey.insert(keys[i], cards[i]);

    cards_.insert(byKey);
    arrange(keys);
    cards_ = byKey;
    changed({"age", "face"});
    timer_ = process_.platform().mainQueue.every(tick, [this] { age(); });
}

void MessageCards::age() {
    for (MessageCardView &card : cards_)
        card.tick();
    changed({"age"});
}

QVariant MessageCards::shown(const QString &key, qsizetype role) const {
    const auto card = cards_.constFind(key);
    if (card == cards_.cend()) return {};
    switch (Role(role)) {
    case Sender: return card->message().sender.name;
    case Content: return card->content();
    case Age: return card->age(process_.platform().clock.now());
    case Exports: return card->messagesExports();
    case Face: return QVariant::fromValue(avatarFace(listed_(card->message().sender)));
    case Slot: return isAd(card->message()) ? QStringLiteral("inside_messages") : QString();
    }
    return {};
}

} // namespace orl
