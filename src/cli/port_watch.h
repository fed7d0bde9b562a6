#pragma once

#include "platform/console.h"
#include "platform/queues.h"
#include "platform/reachability.h"
#include "platform/url_reader.h"

#include <atomic>
#include <memory>

namespace orl {

/// Tells when the program has come to rest. State objects start work and publish what comes of it, but have
/// no end to wait for; a terminal command needs one. It stands between the state objects and the queue of
/// blocking work: at rest means that no work item is left and that everything those items posted to the main
/// queue has run.
class IdleWatch : public GlobalQueue {
public:
    IdleWatch(GlobalQueue &queue, MainQueue &mainQueue) : queue_(queue), mainQueue_(mainQueue) {}

    void post(Task task) override;

    /// Main thread only. Runs `done` on the main queue once the program is at rest.
    void whenIdle(Task done);

private:
    /// How many main tasks deep a work item's results may be handed on.
    static constexpr int rounds = 4;

    void passRounds(Task done, int left);

    GlobalQueue &queue_;
    MainQueue &mainQueue_;
    std::shared_ptr<std::atomic<int>> running_ = std::make_shared<std::atomic<int>>(0);
};

/// Counts the reads that an endpoint did not answer as it should, which the state objects, by rule, only log.
class ReadWatch : public UrlReader {
public:
    explicit ReadWatch(UrlReader &reader) : reader_(reader) {}

    Result<UrlResponse> read(const UrlRequest &request) override;

    /// Reads that ended in an error or with a status of 400 and above.
    int failures() const { return failures_; }

private:
    UrlReader &reader_;
    std::atomic<int> failures_ = 0;
};

/// Passes lines on until the command has ended: what breaks off then is no failure.
class ConsoleWatch : public Console {
public:
    explicit ConsoleWatch(Console &console) : console_(console) {}

    void print(const QString &line) override {
        if (!ended_) console_.print(line);
    }
    void end() { ended_ = true; }

private:
    Console &console_;
    std::atomic<bool> ended_ = false;
};

/// A network that leads nowhere, for commands that need none: nothing is fetched that nobody waits for.
class NoNetwork : public Reachability {
public:
    bool canTarget(const QString &) const override { return true; }
    std::optional<unsigned> flags(const QString &) const override { return 0; }
};

} // namespace orl
