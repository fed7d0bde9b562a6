#pragma once

#include "platform/queues.h"

#include <QThreadPool>

#include <condition_variable>
#include <deque>
#include <mutex>

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
    void runOne();

    // The tasks pass from thread to thread under a mutex of ours, which the thread sanitizer can see; the
    // pool only lends the threads.
    std::mutex mutex_;
    std::condition_variable idle_;
    std::deque<Task> tasks_;
    int running_ = 0;
    bool stopped_ = false;
    QThreadPool pool_;
};

} // namespace orl
