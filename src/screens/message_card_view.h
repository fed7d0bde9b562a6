#pragma once

#include "numbers/records.h"
#include "platform/process.h"
#include "platform/queues.h"

#include <QObject>

#include <chrono>
#include <memory>

namespace orl {

/// One message as its card shows it: the text, its age and what can be lifted out of it.
class MessageCardView : public QObject {
    Q_OBJECT
public:
    static constexpr std::chrono::seconds tick{10};
    static constexpr double secondsPerTick = 20; ///< the label ages twice as fast as the clock, on purpose
    static constexpr double unreadableAge =
        180000; ///< seconds; the age of a message whose stamp cannot be read
    static constexpr qsizetype shortestCode = 3;

    /// The card is taken to appear now.
    MessageCardView(Process &process, Message message, QObject *parent = nullptr);

    const Message &message() const { return message_; }
    QString content() const; ///< line separator characters become blanks
    QString age() const;     ///< empty for a message of which no moment is known
    const QStringList &messagesExports() const { return messagesExports_; }

Q_SIGNALS:
    void ageChanged();

private:
    void appear();

    Process &process_;
    const Message message_;
    std::optional<double> time_; ///< seconds since 1970
    QStringList messagesExports_;
    std::unique_ptr<RepeatingTimer> timer_;
};

} // namespace orl
