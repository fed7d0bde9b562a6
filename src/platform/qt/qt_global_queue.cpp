#include "platform/qt/qt_global_queue.h"

#include <utility>

namespace orl {

QtGlobalQueue::QtGlobalQueue() {
    pool_.setMaxThreadCount(threads);
}

void QtGlobalQueue::post(Task task) {
    if (stopped_) return;
    pool_.start([this, task = std::move(task)] {
        if (!stopped_) task();
    });
}

void QtGlobalQueue::stop() {
    stopped_ = true;
    pool_.clear();
    pool_.waitForDone();
}

} // namespace orl
