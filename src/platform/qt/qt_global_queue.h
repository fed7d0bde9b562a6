#pragma once

#include "platform/queues.h"

#include <QThreadPool>

#include <atomic>

namespace orl {

/// Threads for blocking work. They sleep most of their time, so there are far more than cores; the next item
/// waits until one of them is free.
class QtGlobalQueue : public GlobalQueue {
public:
    static constexpr int threads = 64;

    QtGlobalQueue();
    ~QtGlobalQueue() override { stop(); }

    void post(Task task) override;

    /// Drops what has not begun and waits for what has. What is posted from now on is dropped. End the reads
    /// that workers sleep in first.
    void stop();

private:
    QThreadPool pool_;
    std::atomic<bool> stopped_ = false;
};

} // namespace orl
