#include "platform/queued_background_scheduler.h"

#include "platform/clock.h"

#include <algorithm>
#include <chrono>
#include <utility>

namespace orl {

namespace {

std::chrono::milliseconds until(double moment, double now) {
    return std::chrono::ceil<std::chrono::milliseconds>(
        std::chrono::duration<double>(std::max(0.0, moment - now)));
}

} // namespace

struct QueuedBackgroundScheduler::State : std::enable_shared_from_this<State> {
    const Clock &clock;
    MainQueue &mainQueue;
    Scene &scene;
    std::set<QString> permitted;
    std::map<QString, Task> handlers;
    std::map<QString, BackgroundRequest> pending;
    QMetaObject::Connection phases;

    State(const Clock &c, MainQueue &queue, Scene &s, std::set<QString> identifiers)
        : clock(c), mainQueue(queue), scene(s), permitted(std::move(identifiers)) {}

    void launchDue() {
        if (scene.phase() != ScenePhase::Background) return;
        std::vector<Task> due;
        std::erase_if(pending, [&](const auto &entry) {
            if (entry.second.earliestBegin > clock.now()) return false;
            due.push_back(handlers.at(entry.first));
            return true;
        });
        for (const Task &launch : due)
            launch();
    }

    void wakeAt(double moment) {
        mainQueue.postAfter(until(moment, clock.now()), [weak = weak_from_this()] {
            if (const auto self = weak.lock()) self->launchDue();
        });
    }
};

QueuedBackgroundScheduler::QueuedBackgroundScheduler(const Clock &clock, MainQueue &mainQueue, Scene &scene,
                                                     std::set<QString> permittedIdentifiers)
    : state_(std::make_shared<State>(clock, mainQueue, scene, std::move(permittedIdentifiers))) {
    state_->phases =
        QObject::connect(&scene, &Scene::phaseChanged, [state = state_.get()] { state->launchDue(); });
}

QueuedBackgroundScheduler::~QueuedBackgroundScheduler() {
    QObject::disconnect(state_->phases);
}

bool QueuedBackgroundScheduler::registerTask(const QString &identifier, Task launchHandler) {
    if (!state_->permitted.contains(identifier)) return false;
    return state_->handlers.emplace(identifier, std::move(launchHandler)).second;
}

std::optional<Error> QueuedBackgroundScheduler::submit(const BackgroundRequest &request) {
    if (!state_->handlers.contains(request.identifier))
        return Error{QStringLiteral("Nothing is registered for %1.").arg(request.identifier)};
    if (request.requiresNetworkConnectivity || request.requiresExternalPower)
        return Error{QStringLiteral("Neither the network nor the mains can be waited for here.")};
    state_->pending.insert_or_assign(request.identifier, request);
    state_->wakeAt(request.earliestBegin);
    return std::nullopt;
}

std::map<QString, BackgroundRequest> QueuedBackgroundScheduler::pending() const {
    return state_->pending;
}

} // namespace orl
