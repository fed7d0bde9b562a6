#pragma once

#include <functional>

namespace orl {

/// What the user lets advertising know about this device, numbered as phones number it.
enum class TrackingStatus { NotDetermined = 0, Restricted = 1, Denied = 2, Authorized = 3 };

/// The phone's own question whether an application may track its user.
class TrackingAuthorization {
public:
    virtual ~TrackingAuthorization() = default;

    /// The stored answer. Callable from any thread.
    virtual TrackingStatus status() const = 0;

    /// Shows the phone's dialog where no answer is stored yet. The completion runs in every case, at once or
    /// later, on the main thread.
    virtual void request(std::function<void(TrackingStatus)> completion) = 0;
};

/// Stands where nobody tracks: the answer is no, and nobody is asked.
class NoTrackingAuthorization final : public TrackingAuthorization {
public:
    TrackingStatus status() const override { return TrackingStatus::Denied; }
    void request(std::function<void(TrackingStatus)> completion) override { completion(status()); }

    static TrackingAuthorization &instance() {
        static NoTrackingAuthorization none;
        return none;
    }
};

} // namespace orl
