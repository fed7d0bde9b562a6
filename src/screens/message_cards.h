#pragma once

#include "platform/process.h"
#include "platform/queues.h"
#include "screens/keyed_rows.h"
#include "screens/message_card_view.h"

#include <QHash>

#include <chrono>
#include <functional>
#include <memory>

namespace orl {

/// The cards of the recent list. A message that is still on the page keeps its row, and what a card shows is
/// worked out when a view asks for it, so that a long list costs little.
class MessageCards : public orl::KeyedRows {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by HomeView")
public:
    static constexpr std::chrono::seconds tick{10};

    /// The sender whose face a card shows, for the one that came with the message.
    using Listed = std::function<SMSSender(const SMSSender &)>;

    MessageCards(Process &process, Listed listed, QObject *parent = nullptr);

    /// Shows these messages; the places of ads only where `withAds`. All cards appear now: their ages are
    /// true again and their ticks begin.
    void show(const QList<Message> &messages, bool withAds);

    /// The senders were worked out anew, and with them the faces.
    void facesChanged() { changed({"face"}); }

protected:
    QVariant shown(const QString &key, qsizetype role) const override;

private:
    void age();

    Process &process_;
    const Listed listed_;
    QHash<QString, MessageCardView> cards_;
    std::unique_ptr<RepeatingTimer> timer_;
};

} // namespace orl
