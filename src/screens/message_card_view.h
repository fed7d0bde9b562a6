#pragma once

#include "numbers/records.h"

#include <optional>

namespace orl {

/// One message of the recent list as its card shows it: the text, its age and what can be lifted out of it.
class MessageCardView {
public:
    static constexpr double secondsPerTick = 20; ///< the label ages twice as fast as the clock, on purpose
    static constexpr double unreadableAge =
        180000; ///< seconds; the age of a message whose stamp cannot be read

    /// The card appears now, in seconds since 1970.
    MessageCardView(Message message, double now);

    const Message &message() const { return message_; }
    QString content() const;       ///< line separator characters become blanks
    QString age(double now) const; ///< empty for a message of which no moment is known
    QStringList messagesExports() const;

    /// Ten seconds have passed.
    void tick();

private:
    Message message_;
    std::optional<double> time_; ///< seconds since 1970
};

} // namespace orl
