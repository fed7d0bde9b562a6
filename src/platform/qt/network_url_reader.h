#pragma once

#include "platform/qt/qt_main_queue.h"
#include "platform/url_reader.h"

#include <QThread>

#include <memory>
#include <mutex>
#include <set>

namespace orl {

/// Reads over http and https on a network thread of its own, on which the calling threads wait. Needs a
/// QCoreApplication, not its event loop.
///
/// Certificates are verified, and a redirect neither leaves http(s) nor steps down from https to http.
/// Nothing is cached. A body that ends before the length that was announced is an error, as half a page would
/// look like a whole one.
class NetworkUrlReader : public UrlReader {
public:
    /// How long a read without a time-out of its own may go on without any byte arriving.
    static constexpr std::chrono::milliseconds defaultTimeout = std::chrono::seconds(60);

    NetworkUrlReader();
    ~NetworkUrlReader() override { stop(); }

    Result<UrlResponse> read(const UrlRequest &request) override;

    /// Ends all reads with an error at once. Reads that are asked for from now on fail likewise.
    void stop();

private:
    class Loader;
    struct Job;

    std::shared_ptr<Job> begin(const UrlRequest &request);

    std::mutex mutex_;
    std::set<std::shared_ptr<Job>> jobs_;
    bool stopped_ = false;
    QThread thread_;
    QtMainQueue queue_; // lives on thread_
    Loader *loader_;    // lives and goes on thread_
};

} // namespace orl
