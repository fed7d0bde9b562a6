#pragma once

#include "cli/port_watch.h"
#include "demo/demo_host.h"
#include "numbers/request_view_model.h"
#include "platform/console.h"
#include "platform/qt/linux_platform.h"

#include <QTemporaryDir>

#include <atomic>
#include <memory>
#include <mutex>

namespace orl {

/// Keeps what is printed.
class KeptConsole : public Console {
public:
    void print(const QString &line) override {
        const std::lock_guard lock(mutex_);
        lines_ << line;
    }
    /// What was printed since the last call.
    QStringList take() {
        const std::lock_guard lock(mutex_);
        return std::exchange(lines_, {});
    }

private:
    std::mutex mutex_;
    QStringList lines_;
};

/// Lets reads give up a hundred times sooner than they do for users.
class HastyReader : public UrlReader {
public:
    static constexpr int haste = 100;

    explicit HastyReader(UrlReader &reader) : reader_(reader) {}
    Result<UrlResponse> read(const UrlRequest &request) override {
        UrlRequest hasty = request;
        hasty.timeout = request.timeout.value_or(NetworkUrlReader::defaultTimeout) / haste;
        return reader_.read(hasty);
    }

private:
    UrlReader &reader_;
};

/// The real program without its screens: real queues, store, network and engine, against a demo host of its
/// own whose clock only the test moves.
class WholePhone {
public:
    WholePhone();
    ~WholePhone();

    /// A new run of the program on the same store. Reads give up soon where `hasty`.
    void start(bool hasty = false);
    void stop();

    /// Lets the program work until nothing is left to do.
    void settle();

    /// Chooses the first number that a website has in the country, and shows its messages.
    void choose(const QString &country, WebsiteService website);

    /// What comes of a fetch after a minute in which new messages arrived.
    QStringList fetchLater(bool force = false);

    QStringList contents() const;

    std::atomic<double> now{1'795'000'000};
    DemoHost host{{0, [this] { return now.load(); }, 1}};
    KeptConsole console;
    std::unique_ptr<Process> process;
    std::unique_ptr<RequestViewModel> numbers;

private:
    QTemporaryDir data_;
    std::unique_ptr<LinuxPlatform> linux_;
    std::unique_ptr<HastyReader> hasty_;
    std::unique_ptr<IdleWatch> idle_;
};

} // namespace orl
