#include "screens/conversation_view.h"

#include "platform/queues.h"
#include "screens/copy_view_model.h"
#include "screens/message_text.h"

#include <QPointer>

#include <algorithm>

namespace orl {

namespace {

constexpr double headerAndInput = 260; ///< points that the empty state leaves to what stands around it
constexpr double emptyHeightOfUnknownScreen = 340;

QString keyOf(const Message &message) {
    return message.time.value_or(QString()) + QChar(0x1e) + message.content;
}

} // namespace

QString ConversationView::otherSide() {
    return QStringLiteral("hkdsflwj kefurew");
}

ConversationView::ConversationView(Process &process, RequestViewModel &request, CopyViewModel &copy,
                                   QObject *parent)
    : QObject(parent),
      process_(process),
      request_(request),
      copy_(copy),
      cards_({"content", "time", "exports", "mine"}) {
    connect(&request_, &RequestViewModel::conversation_isPresentedChanged, this,
            [this] { request_.conversation_isPresented() ? appear() : disappear(); });
    connect(&request_, &RequestViewModel::selectedConversationChanged, this,
            &ConversationView::headerChanged);
    connect(&request_, &RequestViewModel::sendersChanged, this, &ConversationView::followSenders);
}

QString ConversationView::name() const {
    return request_.selectedConversation().value_or(SMSSender()).name;
}

AvatarFace ConversationView::face() const {
    return avatarFace(request_.selectedConversation().value_or(SMSSender()));
}

void ConversationView::setMessageText(const QString &text) {
    if (text == messageText_) return;
    messageText_ = text;
    Q_EMIT messageTextChanged();
}

double ConversationView::emptyHeight(double screenHeight) const {
    return screenHeight > 0 ? screenHeight - headerAndInput : emptyHeightOfUnknownScreen;
}

void ConversationView::appear() {
    ++appearances_;
    setMessages(request_.selectedConversation().value_or(SMSSender()).messages);
    request_.markSeen(messages_);
    scrollAfter(firstScroll);
    scrollAfter(secondScroll);
}

void ConversationView::disappear() {
    ++appearances_;
    setMessageText({});
}

void ConversationView::back() {
    request_.setConversation_isPresented(false);
}

void ConversationView::tapExport(const QString &entry) {
    orl::tapExport(entry, process_, copy_);
}

/// A job of a chat that was left meanwhile scrolls nothing.
void ConversationView::scrollAfter(std::chrono::seconds delay) {
    process_.platform().mainQueue.postAfter(delay, [self = QPointer(this), appearance = appearances_] {
        if (self && self->appearances_ == appearance) Q_EMIT self->scrollToLastItem();
    });
}

/// Each fetch makes new sender records; the same sender is the one of the same name.
void ConversationView::followSenders() {
    if (!request_.conversation_isPresented() || !request_.selectedConversation()) return;
    const QList<SMSSender> &senders = request_.senders();
    const auto found = std::find_if(senders.begin(), senders.end(),
                                    [&](const SMSSender &sender) { return sender.name == name(); });
    if (found == senders.end()) return;
    if (!messages_.isEmpty() && found->messages.size() <= messages_.size()) return;
    const SMSSender sender = *found;
    setMessages(sender.messages);
    request_.setSelectedConversation(sender);
    request_.markSeen(messages_);
}

void ConversationView::setMessages(const QList<Message> &messages) {
    messages_ = messages;
    QList<KeyedListModel::Row> rows;
    for (const Message &message : messages_) {
        rows << KeyedListModel::Row{keyOf(message),
                                    {shownContent(message), clockTime(momentOf(message)),
                                     messageExports(message.content), message.sender.name == otherSide()}};
    }
    cards_.setRows(rows);
}

} // namespace orl
