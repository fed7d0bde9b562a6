#include "platform/qt/qt_global_queue.h"

#include <utility>

namespace orl {

QtGlobalQueue::QtGlobalQueue() {
    pool_.setMaxThreadCount(threads);
}

void QtGlobalQueue::post(Task task) {
    {
        const std::lock_guard lock(mutex_);
        if (stopped_) return;
        tasks_.push_back(std::move(task));
    }
    pool_.start([this] { runOne(); });
}

void QtGlobalQueue::runOne() {
    Task task;
    {
        const std::lock_guard lock(mutex_);
        if (tasks_.empty()) return; // dropped
        task = std::move(tasks_.front());
        tasks_.pop_front();
        ++running_;
    }
    task();
    task = nullptr; // what it holds goes before the queue counts as idle
    const std::lock_guard lock(mutex_);
    if (--running_ == 0) idle_.notify_all();
}

void QtGlobalQueue::stop() {
    std::deque<Task> dropped;
    {
        const std::lock_guard lock(mutex_);
        stopped_ = true;
        dropped.swap(tasks_);
    }
    dropped.clear();
    {
        std::unique_lock lock(mutex_);
        idle_.wait(lock, [this] { return running_ == 0; });
    }
    pool_.waitForDone();
}

} // namespace orl
