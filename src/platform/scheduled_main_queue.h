#pragma once

#include "platform/queues.h"
#include "platform/task_schedule.h"

#include <chrono>
#include <memory>

namespace orl {

/// The main queue as far as it is the same for every clock: delays, order and repeating timers.
class ScheduledMainQueue : public MainQueue {
public:
    void post(Task task) override;
    void postAfter(std::chrono::milliseconds delay, Task task) override;

    /// The interval is positive. Ticks keep to multiples of it from now on; those that a busy main thread
    /// missed are left out.
    [[nodiscard]] std::unique_ptr<RepeatingTimer> every(std::chrono::milliseconds interval,
                                                        Task tick) override;

protected:
    using Time = TaskSchedule::Time;

    virtual Time now() const = 0;
    virtual void postAt(Time due, Task task) = 0;

private:
    class Timer;
};

} // namespace orl
