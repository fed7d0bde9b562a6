#pragma once

#include "platform/clock.h"
#include "platform/queues.h"
#include "platform/scheduled_main_queue.h"
#include "platform/task_schedule.h"
#include "support/fiber.h"

#include <chrono>
#include <deque>
#include <memory>
#include <stdexcept>

namespace orl {

/// Time stands still until a test moves it. The wall clock and the due times of the queues go together.
class PlayedClock : public Clock {
public:
    static constexpr double start = 1767225600.0; ///< 2026-01-01 00:00:00 UTC

    double now() const override { return wall_ + std::chrono::duration<double>(elapsed_).count(); }

    /// Sets the wall clock alone, as a user or a time server does; what is due stays due in as long as
    /// before.
    void setNow(double secondsSince1970) { wall_ += secondsSince1970 - now(); }

    TaskSchedule::Time elapsed() const { return elapsed_; }

private:
    friend class PlayedTime;
    double wall_ = start;
    TaskSchedule::Time elapsed_{0};
};

class PlayedMainQueue : public ScheduledMainQueue {
public:
    explicit PlayedMainQueue(const PlayedClock &clock) : clock_(clock) {}

    /// Runs the first task that is due; false when none is.
    bool step();

protected:
    Time now() const override { return clock_.elapsed(); }
    void postAt(Time due, Task task) override { schedule_.add(due, std::move(task)); }

private:
    friend class PlayedTime;
    const PlayedClock &clock_;
    TaskSchedule schedule_;
};

/// When workers get their turn while `settle` runs.
enum class Workers {
    AfterMain,  ///< a worker goes on only while no main task is due
    BeforeMain, ///< a main task runs only while no worker can go on
    ByHand,     ///< only `step` moves a worker
};

/// Blocking work, played one item at a time and on the thread of the test. An item that waits (for a
/// held-back answer) lets the others go on.
class PlayedGlobalQueue : public GlobalQueue {
public:
    Workers order = Workers::AfterMain;

    void post(Task task) override;

    /// Lets the item that waits for its turn longest go on until it ends or has to wait; false when none can.
    bool step();

    /// Items that were posted and have not begun, and those that have begun and not ended.
    std::size_t notBegun() const;
    std::size_t unfinished() const { return ready_.size() + waiting_.size(); }

    /// For the played services: puts the running worker off until `wake` is called with the token.
    using Token = const void *;
    static bool isWorker() { return Fiber::current() != nullptr; }
    static Token currentToken() { return Fiber::current(); }
    void wait();
    void wake(Token token);

private:
    friend class PlayedTime;
    struct Item {
        std::unique_ptr<Fiber> fiber;
        bool begun = false;
    };
    std::deque<Item> ready_;
    std::deque<Item> waiting_;
    bool parked_ = false;
};

/// Moves the clock and lets the queues run.
class PlayedTime {
public:
    PlayedTime(PlayedClock &clock, PlayedMainQueue &main, PlayedGlobalQueue &global)
        : clock_(clock), main_(main), global_(global) {}

    /// Runs all that is due now, and what that posts, until nothing is left. Throws after a million steps:
    /// the code under test then posts in a circle.
    void settle();

    /// Lets this much time pass and runs everything in the order in which it falls due.
    void advance(std::chrono::milliseconds time);

    /// Drops all tasks, timers and workers, as the end of the process does.
    void dropAll();

private:
    bool step();

    PlayedClock &clock_;
    PlayedMainQueue &main_;
    PlayedGlobalQueue &global_;
};

} // namespace orl
