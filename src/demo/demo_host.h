#pragma once

#include "configuration_documents.h"
#include "fault.h"
#include "platform/endpoints.h"

#include <functional>
#include <future>
#include <memory>

namespace orl {

struct DemoHostOptions {
    quint16 port = 0; ///< 0 = any free one
    std::function<double()>
        clock;        ///< seconds since 1970, asked on the host's thread; none = the system's clock
    quint64 seed = 1; ///< another seed is another world: other numbers, other messages
    demo::ConfigurationValues configuration{}; ///< until setConfiguration
    std::function<void(const QString &path)> heard =
        {}; ///< each request, on the host's thread; none = nobody
};

/// Serves every endpoint of the system on one loopback port: lifelike pages, a new message every few seconds.
///
/// It serves from a thread of its own, so a blocking reader on any other thread of the same process never
/// waits for itself. What it serves depends only on the seed, the path and the time; a restarted program sees
/// the same messages. The world is drawn on a thread too: only what needs it waits for it, a first answer
/// above all. Each kind of endpoint has a first path segment of its own: "/config", "/first",
/// "/second"...
class DemoHost {
public:
    explicit DemoHost(DemoHostOptions options = {});
    ~DemoHost();
    DemoHost(const DemoHost &) = delete;
    DemoHost &operator=(const DemoHost &) = delete;

    /// False if the port cannot be had. Call it once.
    bool start();
    /// Where it serves; only after start() gave true.
    Endpoints endpoints() const;
    quint16 port() const { return port_; }

    /// From any thread; the next request meets it. See FaultTable::set for `pathPrefix`.
    void setFault(const QString &pathPrefix, Fault fault);
    void clearFaults();
    /// From any thread; the next request for "orl_config.json" sees them.
    void setConfiguration(const demo::ConfigurationValues &values);

private:
    struct World;
    class Thread;

    World &world() const { return *world_.get(); }

    DemoHostOptions options_;
    std::shared_future<std::unique_ptr<World>> world_;
    std::unique_ptr<Thread> thread_;
    quint16 port_ = 0;
};

/// The lines `key=value` of an endpoints file, the keys being the members of Endpoints.
QByteArray endpointsFile(const Endpoints &endpoints);

} // namespace orl
