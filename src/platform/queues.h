#pragma once

#include <chrono>
#include <functional>
#include <memory>

namespace orl {

using Task = std::function<void()>;

/// Fires until it is destroyed. Belongs to the main thread; never fires after its destructor began.
class RepeatingTimer {
public:
    virtual ~RepeatingTimer() = default;
};

/// The main thread's queue: tasks run one at a time, in the order in which they were posted.
class MainQueue {
public:
    virtual ~MainQueue() = default;

    /// Callable from any thread; never runs the task before it returns.
    virtual void post(Task task) = 0;

    /// Callable from any thread. Tasks with the same due time run in the order in which they were posted.
    virtual void postAfter(std::chrono::milliseconds delay, Task task) = 0;

    /// Main thread only. The first tick comes one interval from now.
    [[nodiscard]] virtual std::unique_ptr<RepeatingTimer> every(std::chrono::milliseconds interval,
                                                                Task tick) = 0;
};

/// The queue of default priority for blocking work. Many items may sleep in network reads at once, so the
/// adapter allows far more threads than there are cores.
class GlobalQueue {
public:
    virtual ~GlobalQueue() = default;

    /// Callable from any thread; never runs the task before it returns.
    virtual void post(Task task) = 0;
};

} // namespace orl
