#pragma once

#include <QString>

#include <functional>

namespace orl {

/// The service that would send messages to the phone from afar.
class PushService {
public:
    virtual ~PushService() = default;

    /// How talkative the service is, from 0 on.
    virtual void setLogLevel(int) {}

    /// Starts the service for this program. What the program was launched with is not passed on.
    virtual void initialize(const QString & /*appId*/) {}

    /// Asks for the permission to notify. With `fallbackToSettings` a user who refused before is led to the
    /// phone's settings. The completion runs in every case, at once or later, on the main thread.
    virtual void requestPermission(bool fallbackToSettings, std::function<void(bool granted)> completion) = 0;
};

/// Stands where nothing is pushed: permission is refused at once.
class NoPushService final : public PushService {
public:
    void requestPermission(bool, std::function<void(bool granted)> completion) override { completion(false); }

    static PushService &instance() {
        static NoPushService none;
        return none;
    }
};

} // namespace orl
