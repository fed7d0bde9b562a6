#include "support/fiber.h"

#include <exception>
#include <ucontext.h>
#include <utility>

// The sanitizers must be told of each change of stack.
#if defined(__SANITIZE_ADDRESS__)
#include <sanitizer/common_interface_defs.h>
#endif
#if defined(__SANITIZE_THREAD__)
#include <sanitizer/tsan_interface.h>
#endif

namespace orl {

namespace {

constexpr std::size_t stackBytes = std::size_t{1024} * 1024;

/// Thrown out of `suspend` into a fiber that is thrown away.
struct Unwinding {};

thread_local Fiber *running = nullptr;

} // namespace

struct Fiber::State {
    enum class Phase { New, Begun, Done };

    std::function<void()> work;
    std::unique_ptr<char[]> stack{
        new char[stackBytes]}; // not cleared: pages that are never touched cost nothing
    ucontext_t own{};
    ucontext_t caller{};
    std::exception_ptr failure;
    Phase phase = Phase::New;
    bool unwinding = false;

#if defined(__SANITIZE_ADDRESS__)
    void *ownFakeStack = nullptr;
    void *callerFakeStack = nullptr;
    const void *callerStack = nullptr;
    std::size_t callerStackBytes = 0;
#endif
#if defined(__SANITIZE_THREAD__)
    void *ownTsan = __tsan_create_fiber(0);
    void *callerTsan = nullptr;
    ~State() {
        __tsan_destroy_fiber(ownTsan);
    }
#endif

    void switchIn() {
#if defined(__SANITIZE_ADDRESS__)
        __sanitizer_start_switch_fiber(&callerFakeStack, stack.get(), stackBytes);
#endif
#if defined(__SANITIZE_THREAD__)
        callerTsan = __tsan_get_current_fiber();
        __tsan_switch_to_fiber(ownTsan, 0);
#endif
        swapcontext(&caller, &own);
#if defined(__SANITIZE_ADDRESS__)
        __sanitizer_finish_switch_fiber(callerFakeStack, nullptr, nullptr);
#endif
    }

    void switchOut() {
#if defined(__SANITIZE_ADDRESS__)
        // Null tells that this stack is left for good.
        __sanitizer_start_switch_fiber(phase == Phase::Done ? nullptr : &ownFakeStack, callerStack,
                                       callerStackBytes);
#endif
#if defined(__SANITIZE_THREAD__)
        __tsan_switch_to_fiber(callerTsan, 0);
#endif
        swapcontext(&own, &caller);
        arrived();
    }

    void arrived() {
#if defined(__SANITIZE_ADDRESS__)
        __sanitizer_finish_switch_fiber(ownFakeStack, &callerStack, &callerStackBytes);
#endif
    }

    void run() {
        arrived();
        try {
            work();
        } catch (const Unwinding &) {
        } catch (...) {
            failure = std::current_exception();
        }
        work = nullptr;
        phase = Phase::Done;
        switchOut();
    }
};

Fiber::Fiber(std::function<void()> work) : state_(std::make_unique<State>()) {
    state_->work = std::move(work);
}

Fiber::~Fiber() {
    if (state_->phase != State::Phase::Begun) return;
    state_->unwinding = true;
    try {
        resume();
    } catch (...) {
        // Thrown while unwinding; the fiber's result is of no interest any more.
    }
}

void Fiber::resume() {
    if (state_->phase == State::Phase::New) {
        getcontext(&state_->own);
        state_->own.uc_stack.ss_sp = state_->stack.get();
        state_->own.uc_stack.ss_size = stackBytes;
        state_->own.uc_link = nullptr;
        makecontext(
            &state_->own, [] { running->state_->run(); }, 0);
        state_->phase = State::Phase::Begun;
    }
    Fiber *const caller = std::exchange(running, this);
    state_->switchIn();
    running = caller;
    if (state_->failure) std::rethrow_exception(std::exchange(state_->failure, nullptr));
}

bool Fiber::isDone() const {
    return state_->phase == State::Phase::Done;
}

void Fiber::suspend() {
    State &state = *running->state_;
    if (!state.unwinding) state.switchOut();
    if (state.unwinding) throw Unwinding{};
}

Fiber *Fiber::current() {
    return running;
}

} // namespace orl
