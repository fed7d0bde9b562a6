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
    mainQueue_.postAfter(5ms,
                         [this, done = std::move(done)]() mutable { passRounds(std::move(done), rounds); });
}

// What the last work item posted stands in the main queue ahead of this round, as an item counts until it has
// returned; what that posts in turn stands ahead of the next round; and whatever work that starts counts
// again by then.
void IdleWatch::passRounds(Task done, int left) {
    if (*running_ > 0) return whenIdle(std::move(done));
    if (left == 0) return done();
    mainQueue_.post(
        [this, done = std::move(done), left]() mutable { passRounds(std::move(done), left - 1); });
}

Result<UrlResponse> ReadWatch::read(const UrlRequest &request) {
    Result<UrlResponse> response = reader_.read(request);
    if (!response.ok() || response.value().status >= 400) ++failures_;
    return response;
}

} // namespace orl
