#pragma once

#include "platform/queues.h"

#include <chrono>
#include <cstdint>
#include <map>
#include <optional>
#include <utility>

namespace orl {

/// Tasks by their due time and, among those of the same due time, in the order in which they were added. What
/// "now" is comes from the caller, so that the real main queue and the played one keep the very same order.
/// Not for several threads.
class TaskSchedule {
public:
    /// Counted from any moment that the caller holds on to.
    using Time = std::chrono::microseconds;

    void add(Time due, Task task) { tasks_.emplace(Key{due, next_++}, std::move(task)); }

    /// When the first task is due; nothing when there is none.
    std::optional<Time> firstDue() const;

    /// Takes the first task out if it is due at `now`.
    std::optional<Task> takeDue(Time now);

    void clear();

private:
    using Key = std::pair<Time, std::uint64_t>;
    std::map<Key, Task> tasks_;
    std::uint64_t next_ = 0;
};

} // namespace orl
