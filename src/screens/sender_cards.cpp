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
    QHash<QString, SMSSender> byName;
    for (const SMSSender &sender : senders) {
        if (isAd(sender) || sender.messages.isEmpty() || byName.contains(sender.name)) continue;
        keys << sender.name;
        byName.insert(sender.name, sender);
    }
    senders_.insert(byName);
    arrange(keys);
    senders_ = byName;
    changed({"content", "time", "unseen", "face"});
}

const SMSSender *SenderCards::named(const QString &name) const {
    const auto found = senders_.constFind(name);
    return found == senders_.cend() ? nullptr : &*found;
}

QVariant SenderCards::shown(const QString &key, qsizetype role) const {
    const auto sender = senders_.constFind(key);
    if (sender == senders_.cend()) return {};
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
