#pragma once

#include "platform/queues.h"
#include "platform/result.h"

#include <QString>

#include <optional>

namespace orl {

/// A request to be run once while the program is in the background.
struct BackgroundRequest {
    enum class Kind {
        AppRefresh, ///< a short look at what is new
        Processing  ///< longer work, which may need the network or the mains
    };

    Kind kind = Kind::AppRefresh;
    QString identifier;
    double earliestBegin = 0;                 ///< seconds since 1970
    bool requiresNetworkConnectivity = false; ///< of a Processing request
    bool requiresExternalPower = false;       ///< of a Processing request

    bool operator==(const BackgroundRequest &) const = default;
};

/// Whoever runs the program's requests while it is in the background. Main thread.
class BackgroundScheduler {
public:
    virtual ~BackgroundScheduler() = default;

    /// Names what runs for an identifier, once per identifier and before the first screen. False for an
    /// identifier that the program is not permitted to use.
    virtual bool registerTask(const QString &identifier, Task launchHandler) = 0;

    /// Takes the request in the place of a pending one of the same identifier. The error says why it was not
    /// taken.
    virtual std::optional<Error> submit(const BackgroundRequest &request) = 0;
};

/// Stands where nothing runs in the background: takes no request.
class NoBackgroundScheduler final : public BackgroundScheduler {
public:
    bool registerTask(const QString &, Task) override { return false; }
    std::optional<Error> submit(const BackgroundRequest &) override {
        return Error{QStringLiteral("Nothing runs in the background here.")};
    }

    static BackgroundScheduler &instance() {
        static NoBackgroundScheduler none;
        return none;
    }
};

} // namespace orl
