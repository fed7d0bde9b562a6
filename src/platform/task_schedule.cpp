#include "platform/task_schedule.h"

namespace orl {

std::optional<TaskSchedule::Time> TaskSchedule::firstDue() const {
    if (tasks_.empty()) return std::nullopt;
    return tasks_.begin()->first.first;
}

std::optional<Task> TaskSchedule::takeDue(Time now) {
    if (tasks_.empty() || tasks_.begin()->first.first > now) return std::nullopt;
    return std::move(tasks_.extract(tasks_.begin()).mapped());
}

void TaskSchedule::clear() {
    // What a dropped task held may add another one while it goes.
    while (!tasks_.empty()) {
        std::exchange(tasks_, {}).clear();
    }
}

} // namespace orl
