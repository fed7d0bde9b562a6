#include "screens/sender_cards.h"

#include "screens/avatar_face.h"
#include "screens/message_text.h"

namespace orl {

namespace {

enum Role { Name, Content, Time, Unseen, Face, Slot };

/// An ad's row is known by its id, which no sender's name begins like.
QString keyOf(const SMSSender &sender) {
    return isAd(sender) ? QChar(0x1e) + sender.id : sender.name;
}

} // namespace

SenderCards::SenderCards(const RequestViewModel &request, QObject *parent)
    : KeyedRows({"name", "content", "time", "unseen", "face", "slot"}, parent), request_(request) {}

void SenderCards::show(const QList<SMSSender> &senders, bool withAds) {
    QStringList keys;
    QHash<QString, qsizetype> places;
    for (qsizetype i = 0; i < senders.size(); ++i) {
        const SMSSender &sender = senders[i];
        if (isAd(sender) ? !withAds : sender.messages.isEmpty()) continue;
        const QString key = keyOf(sender);
        if (places.contains(key)) continue;
        keys << key;
        places.insert(key, i);
    }
    senders_ = senders;
    places_ = places;
    arrange(keys);
    changed({"content", "time", "unseen", "face"});
}

const SMSSender *SenderCards::at(int row) const {
    const SMSSender *sender = named(key(row));
    return sender && !isAd(*sender) ? sender : nullptr;
}

const SMSSender *SenderCards::named(const QString &name) const {
    const auto place = places_.constFind(name);
    return place == places_.cend() ? nullptr : &senders_[*place];
}

QVariant SenderCards::shown(const QString &key, qsizetype role) const {
    const SMSSender *sender = named(key);
    if (!sender) return {};
    if (isAd(*sender)) return Role(role) == Slot ? QVariant(sender->id) : QVariant();
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
    case Slot: return QString();
    }
    return {};
}

} // namespace orl
