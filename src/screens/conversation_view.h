#pragma once

#include "numbers/request_view_model.h"
#include "screens/avatar_face.h"
#include "screens/keyed_list_model.h"

#include <chrono>

namespace orl {

class CopyViewModel;

/// The messages of one sender as a chat. It slides over everything while RequestViewModel's
/// conversation_isPresented holds.
class ConversationView : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by ContentView")
    Q_PROPERTY(QString name READ name NOTIFY headerChanged)
    Q_PROPERTY(orl::AvatarFace face READ face NOTIFY headerChanged)
    Q_PROPERTY(QString messageText READ messageText WRITE setMessageText NOTIFY messageTextChanged)
    Q_PROPERTY(orl::KeyedListModel *cards READ cards CONSTANT)
public:
    /// When the chat scrolls to its end after it appeared. The second time is for what is laid out late.
    static constexpr std::chrono::seconds firstScroll{1};
    static constexpr std::chrono::seconds secondScroll{3};

    /// The sender name of the other side of a chat. The service cannot send, so no message bears it yet.
    static QString otherSide();

    ConversationView(Process &process, RequestViewModel &request, CopyViewModel &copy,
                     QObject *parent = nullptr);

    QString name() const;
    AvatarFace face() const;

    /// What was typed. It is sent nowhere.
    const QString &messageText() const { return messageText_; }
    void setMessageText(const QString &text);

    const QList<Message> &messages() const { return messages_; }
    /// ChatMessageCardView's rows: content, time, exports, and whether the other side sent it.
    KeyedListModel *cards() { return &cards_; }

    /// The height of the empty state on a screen of this height; both in points, 0 for an unknown screen.
    Q_INVOKABLE double emptyHeight(double screenHeight) const;

    Q_INVOKABLE void back();
    /// Does nothing and leaves the text: the service cannot send.
    Q_INVOKABLE void send() {}
    Q_INVOKABLE void tapExport(const QString &entry);

Q_SIGNALS:
    void headerChanged();
    void messageTextChanged();
    void scrollToLastItem();

private:
    void appear();
    void disappear();
    void setMessages(const QList<Message> &messages);
    void followSenders();
    void scrollAfter(std::chrono::seconds delay);

    Process &process_;
    RequestViewModel &request_;
    CopyViewModel &copy_;
    QString messageText_;
    QList<Message> messages_;
    KeyedListModel cards_;
    int appearances_ = 0;
};

} // namespace orl
