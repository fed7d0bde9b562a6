#include "platform/scheduled_main_queue.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace orl {

/// What stands in the schedule only looks at the tick, and the tick lives as long as its timer.
class ScheduledMainQueue::Timer : public RepeatingTimer {
public:
    Timer(ScheduledMainQueue &queue, Time interval, Task task)
        : tick_(std::make_shared<Tick>(Tick{queue, interval, queue.now() + interval, std::move(task)})) {
        arm(tick_);
    }
    ~Timer() override { tick_->stopped = true; }

private:
    struct Tick {
        ScheduledMainQueue &queue;
        Time interval;
        Time due;
        Task task;
        bool stopped = false;
    };

    static void arm(const std::shared_ptr<Tick> &tick) {
        tick->queue.postAt(tick->due, [weak = std::weak_ptr(tick)] {
            const std::shared_ptr<Tick> alive =
                weak.lock(); // also keeps the task while it destroys its timer
            if (!alive || alive->stopped) return;
            const auto passed = (alive->queue.now() - alive->due) / alive->interval;
            alive->due += alive->interval * (passed + 1);
            arm(alive);
            alive->task();
        });
    }

    std::shared_ptr<Tick> tick_;
};

void ScheduledMainQueue::post(Task task) {
    postAt(now(), std::move(task));
}

void ScheduledMainQueue::postAfter(std::chrono::milliseconds delay, Task task) {
    postAt(now() + std::max(delay, std::chrono::milliseconds(0)), std::move(task));
}

std::unique_ptr<RepeatingTimer> ScheduledMainQueue::every(std::chrono::milliseconds interval, Task tick) {
    if (interval.count() <= 0) throw std::invalid_argument("a repeating timer needs an interval");
    return std::make_unique<Timer>(*this, interval, std::move(tick));
}

} // namespace orl
