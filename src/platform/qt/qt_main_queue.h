#pragma once

#include "platform/scheduled_main_queue.h"

#include <QObject>
#include <QTimer>

#include <mutex>

namespace orl {

/// The main queue on the event loop of the thread that makes it. Tasks run one at a time: one that spins an
/// event loop of its own holds the others up.
class QtMainQueue : public QObject, public ScheduledMainQueue {
public:
    QtMainQueue();
    ~QtMainQueue() override { stop(); }

    /// On its own thread, or when that has ended: drops all tasks and timers; nothing fires from now on and
    /// what is posted is dropped.
    void stop();

protected:
    Time now() const override;
    void postAt(Time due, Task task) override;
    bool event(QEvent *event) override;

private:
    void runDue();
    std::optional<Task> takeDue(Time time);
    void wakeForNext();

    std::mutex mutex_;
    TaskSchedule schedule_;
    bool wakePosted_ = false;
    bool stopped_ = false;

    // Of its own thread alone.
    bool running_ = false;
    QTimer timer_{this};
};

} // namespace orl
