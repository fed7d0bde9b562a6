#include "screens/sender_cards.h"

#include "screens/avatar_face.h"
#include "screens/message_text.h"

namespace orl {

namespace {

enum Role { Name, Content, Time, Unseen, Face };

} // namespace

SenderCards::SenderCards(const RequestViewModel &request, QObject *parent)
    : KeyedRows({"name", "content", "time", "unseen", "face"}, parent), request_(request) {}

void SenderCards::show(const QList<SMSSender> &senders) {
    QStringList keys;
    QHash<QString, qsizetype> places;
    for (qsizetype i = 0; i < senders.size(); ++i) {
        const SMSSender &sender = senders[i];
        if (isAd(sender) || sender.messages.isEmpty() || places.contains(sender.name)) continue;
        keys << sender.name;
        places.insert(sender.name, i);
    }
    senders_ = senders;
    places_ = places;
    arrange(keys);
    changed({"content", "time", "unseen", "face"});
}

const SMSSender *SenderCards::named(const QString &name) const {
    const auto place = places_.constFind(name);
    return place == places_.cend() ? nullptr : &senders_[*place];
}

QVariant SenderCards::shown(const QString &key, qsizetype role) const {
    const SMSSender *sender = named(key);
    if (!sender) return {};
    const Message &last = sender->messages.front();
    switch (Role(role)) {
    case Name: return sender->name;
    case Content: return shownContent(last);
    case Time: return clockTime(momentOf(last));
    case Unseen: {
        const std::optional<int> unseen = request_.unseenCount(*sender);
        return unseen ? QString::number(*unseen) : QString();
    }
    case Face: return QVariant::fromValue(avatarFace(*sender));
    }
    return {};
}

} // namespace orl
