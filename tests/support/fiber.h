#pragma once

#include <functional>
#include <memory>

namespace orl {

/// A stack of its own for a played worker, so that a blocking call in the middle of its work can be put off
/// while the test goes on, all on one thread.
class Fiber {
public:
    explicit Fiber(std::function<void()> work);

    /// A fiber that has begun and not ended is unwound: the `suspend` it stands in throws, destructors run.
    ~Fiber();
    Fiber(const Fiber &) = delete;
    Fiber &operator=(const Fiber &) = delete;

    /// Runs the work until it ends or suspends. What the work throws comes out here.
    void resume();
    bool isDone() const;

    /// Goes back to whom resumed the running fiber. Returns at the next resume.
    static void suspend();

    /// The fiber that runs right now; null outside of any.
    static Fiber *current();

private:
    struct State;
    std::unique_ptr<State> state_;
};

} // namespace orl
