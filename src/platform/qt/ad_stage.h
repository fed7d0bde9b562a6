#pragma once

#include "platform/ad_service.h"
#include "platform/queues.h"

#include <QObject>

namespace orl {

/// Where full-screen ads stand: one at a time, over everything else, until the user closes it. A rewarded one
/// counts down and earns its reward at the end; closed before, it earns none. A screen shows what is told
/// here. Main thread.
class AdStage : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool isUp READ isUp NOTIFY changed)
    Q_PROPERTY(bool isRewarded READ isRewarded NOTIFY changed)
    Q_PROPERTY(int secondsLeft READ secondsLeft NOTIFY changed)
public:
    struct Showing {
        AdAssets assets = {};
        std::chrono::seconds reward{0}; ///< zero: nothing to earn
        std::function<void()> tapped = {};
        std::function<void()> rewardEarned = {};
        std::function<void()> closed = {};
    };

    explicit AdStage(MainQueue &queue) : queue_(queue) {}

    /// Whether a screen is there that shows what stands here. One that goes closes the ad.
    bool isReady() const { return ready_; }
    void setReady(bool ready);

    /// False where no screen is there or another ad is up.
    bool show(Showing showing);

    bool isUp() const { return up_; }
    bool isRewarded() const { return up_ && showing_.reward.count() > 0; }
    int secondsLeft() const {
        return secondsLeft_;
    } ///< until the reward; 0 when it is earned or there is none
    const AdAssets &assets() const { return showing_.assets; }

    Q_INVOKABLE void close();
    Q_INVOKABLE void tap();

Q_SIGNALS:
    void changed();

private:
    void countDown();

    MainQueue &queue_;
    bool ready_ = false;
    bool up_ = false;
    int secondsLeft_ = 0;
    Showing showing_;
    std::unique_ptr<RepeatingTimer> timer_;
};

} // namespace orl
