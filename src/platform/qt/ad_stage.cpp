#include "platform/qt/ad_stage.h"

#include <utility>

namespace orl {

using namespace std::chrono_literals;

void AdStage::setReady(bool ready) {
    ready_ = ready;
    if (!ready) close();
}

bool AdStage::show(Showing showing) {
    if (!ready_ || up_) return false;
    showing_ = std::move(showing);
    up_ = true;
    secondsLeft_ = static_cast<int>(showing_.reward.count());
    if (secondsLeft_ > 0) timer_ = queue_.every(1s, [this] { countDown(); });
    Q_EMIT changed();
    return true;
}

void AdStage::countDown() {
    --secondsLeft_;
    if (secondsLeft_ == 0) timer_.reset();
    Q_EMIT changed();
    if (secondsLeft_ == 0 && showing_.rewardEarned) showing_.rewardEarned();
}

// What is told of the end may put the next ad up.
void AdStage::close() {
    if (!up_) return;
    const Showing ended = std::exchange(showing_, {});
    timer_.reset();
    up_ = false;
    secondsLeft_ = 0;
    Q_EMIT changed();
    if (ended.closed) ended.closed();
}

void AdStage::tap() {
    if (up_ && showing_.tapped) showing_.tapped();
}

} // namespace orl
