#include "support/played_queues.h"

#include <algorithm>
#include <utility>

namespace orl {

bool PlayedMainQueue::step() {
    std::optional<Task> task = schedule_.takeDue(clock_.elapsed());
    if (!task) return false;
    (*task)();
    return true;
}

void PlayedGlobalQueue::post(Task task) {
    ready_.push_back({std::make_unique<Fiber>(std::move(task))});
}

bool PlayedGlobalQueue::step() {
    if (ready_.empty()) return false;
    Item item = std::move(ready_.front());
    ready_.pop_front();
    item.begun = true;
    parked_ = false;
    item.fiber->resume();
    if (parked_) waiting_.push_back(std::move(item));
    return true;
}

std::size_t PlayedGlobalQueue::notBegun() const {
    return static_cast<std::size_t>(std::ranges::count(ready_, false, &Item::begun));
}

void PlayedGlobalQueue::wait() {
    parked_ = true;
    Fiber::suspend();
}

void PlayedGlobalQueue::wake(Token token) {
    const auto item = std::ranges::find_if(waiting_, [&](const Item &i) { return i.fiber.get() == token; });
    if (item == waiting_.end()) return;
    ready_.push_back(std::move(*item));
    waiting_.erase(item);
}

bool PlayedTime::step() {
    switch (global_.order) {
    case Workers::AfterMain: return main_.step() || global_.step();
    case Workers::BeforeMain: return global_.step() || main_.step();
    case Workers::ByHand: return main_.step();
    }
    return false;
}

void PlayedTime::settle() {
    for (int steps = 0; step(); ++steps) {
        if (steps == 1'000'000)
            throw std::logic_error("settle() comes to no end: tasks post each other in a circle");
    }
}

void PlayedTime::advance(std::chrono::milliseconds time) {
    const TaskSchedule::Time end = clock_.elapsed_ + time;
    settle();
    while (const auto due = main_.schedule_.firstDue()) {
        if (*due > end) break;
        clock_.elapsed_ = std::max(clock_.elapsed_, *due);
        settle();
    }
    clock_.elapsed_ = end;
}

void PlayedTime::dropAll() {
    // Each out of its container first: what goes may still post or wake.
    std::exchange(global_.waiting_, {}).clear();
    std::exchange(global_.ready_, {}).clear();
    main_.schedule_.clear();
}

} // namespace orl
