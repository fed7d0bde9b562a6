#pragma once

#include "config/values_in_force.h"
#include "platform/process.h"

#include <QObject>

#include <optional>

namespace orl {

/// How many numbers may be chosen before a rewarded video must be watched. Main thread; shared by the
/// Process; the count survives restarts.
class ChoiceAllowance : public QObject {
    Q_OBJECT
public:
    static constexpr qint64 maxChosenNumbers = 3;

    explicit ChoiceAllowance(Process &process);

    /// Choices since the last reset; taken from the store at first use, in step with it from then on.
    qint64 chosenNumbersCount();
    void setChosenNumbersCount(qint64 count);

    /// Counts one choice on top of what the store holds.
    void countChoice();

    /// Whether another number may be chosen. Without rewarded videos nothing could refill the allowance, so
    /// it holds nothing back then.
    bool mayChoose();

    /// No video can be watched, and the user is not held back for that: one choice less counts from now on.
    void giveWay();

    /// A rewarded video was watched to its end: starts afresh and emits rewardUser.
    void resetAllowance();

Q_SIGNALS:
    void rewardUser();

private:
    Process &process_;
    std::shared_ptr<const Snapshot<AppConfiguration>> configuration_;
    std::optional<qint64> chosenNumbersCount_;
};

/// Whether a new message is announced at all. Main thread; shared by the Process.
class MessageSound {
public:
    explicit MessageSound(Process &process) : process_(process) {}

    /// Read once from the store, true where nothing is stored.
    bool messageSoundEnabled();

    /// Holds for this run and for the next ones.
    void setMessageSoundEnabled(bool enabled);

private:
    Process &process_;
    std::optional<bool> enabled_;
};

} // namespace orl
