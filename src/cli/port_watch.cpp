#include "cli/port_watch.h"

#include <chrono>

namespace orl {

using namespace std::chrono_literals;

void IdleWatch::post(Task task) {
    running_->fetch_add(1);
    queue_.post([running = running_, task = std::move(task)] {
        task();
        running->fetch_sub(1);
    });
}

void IdleWatch::whenIdle(Task done) {
    // What the last work item posted stands in the main queue ahead of this check, as an item counts until it
    // has returned; and whatever that starts counts again by then.
    mainQueue_.postAfter(5ms, [this, done = std::move(done)]() mutable {
        if (*running_ > 0) return whenIdle(std::move(done));
        mainQueue_.post([this, done = std::move(done)]() mutable {
            if (*running_ > 0) return whenIdle(std::move(done));
            done();
        });
    });
}

Result<UrlResponse> ReadWatch::read(const UrlRequest &request) {
    Result<UrlResponse> response = reader_.read(request);
    if (!response.ok() || response.value().status >= 400) ++failures_;
    return response;
}

} // namespace orl
