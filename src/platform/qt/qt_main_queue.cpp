#include "platform/qt/qt_main_queue.h"

#include <QCoreApplication>
#include <QEvent>

#include <algorithm>
#include <utility>

namespace orl {

namespace {

// Longer waits than Qt's timers can hold are cut in pieces.
constexpr std::chrono::milliseconds longestWait = std::chrono::hours(1);

} // namespace

QtMainQueue::QtMainQueue() {
    timer_.setSingleShot(true);
    timer_.setTimerType(Qt::PreciseTimer);
    connect(&timer_, &QTimer::timeout, this, &QtMainQueue::runDue);
}

QtMainQueue::Time QtMainQueue::now() const {
    return std::chrono::duration_cast<Time>(std::chrono::steady_clock::now().time_since_epoch());
}

void QtMainQueue::postAt(Time due, Task task) {
    const std::lock_guard lock(mutex_);
    if (stopped_) return;
    const std::optional<Time> first = schedule_.firstDue();
    schedule_.add(due, std::move(task));
    if (wakePosted_ || (first && *first <= due)) return; // someone sees to it already
    wakePosted_ = true;
    QCoreApplication::postEvent(this, new QEvent(QEvent::User));
}

bool QtMainQueue::event(QEvent *event) {
    if (event->type() != QEvent::User) return QObject::event(event);
    runDue();
    return true;
}

void QtMainQueue::runDue() {
    if (running_) return; // the outer call goes on when its task is done
    running_ = true;
    // Only what is due by now: tasks that post each other must not shut out the events of the screen.
    const Time time = now();
    while (std::optional<Task> task = takeDue(time))
        (*task)();
    running_ = false;
    wakeForNext();
}

std::optional<Task> QtMainQueue::takeDue(Time time) {
    const std::lock_guard lock(mutex_);
    return schedule_.takeDue(time);
}

void QtMainQueue::wakeForNext() {
    const std::lock_guard lock(mutex_);
    wakePosted_ = false;
    const std::optional<Time> due = schedule_.firstDue();
    if (!due) return;
    const auto wait = std::chrono::ceil<std::chrono::milliseconds>(*due - now());
    if (wait.count() > 0) return timer_.start(std::min(wait, longestWait));
    wakePosted_ = true;
    QCoreApplication::postEvent(this, new QEvent(QEvent::User));
}

void QtMainQueue::stop() {
    timer_.stop();
    TaskSchedule dropped;
    const std::lock_guard lock(mutex_);
    stopped_ = true;
    std::swap(dropped, schedule_);
}

} // namespace orl
