#pragma once

#include "platform/background_scheduler.h"
#include "platform/scene.h"

#include <map>
#include <memory>
#include <set>

namespace orl {

class Clock;

/// Runs background requests inside the program, as long as that lives: a request's handler is launched once
/// its earliest begin has come and the scene is in the background; while the scene is in front, a request
/// that is due waits. What is pending ends with the program.
///
/// There is no way here to watch the network or the mains, so that a request which requires one of them is
/// not taken.
class QueuedBackgroundScheduler : public BackgroundScheduler {
public:
    QueuedBackgroundScheduler(const Clock &clock, MainQueue &mainQueue, Scene &scene,
                              std::set<QString> permittedIdentifiers);
    ~QueuedBackgroundScheduler() override;

    bool registerTask(const QString &identifier, Task launchHandler) override;
    std::optional<Error> submit(const BackgroundRequest &request) override;

    /// Those that were not launched yet, by identifier.
    std::map<QString, BackgroundRequest> pending() const;

private:
    struct State;
    std::shared_ptr<State> state_;
};

} // namespace orl
