#pragma once

#include "platform/process.h"

#include <QObject>

namespace orl {

/// Answers on demand whether the connectivity probe host can be reached. Nothing watches in the background:
/// screens ask when they appear or when the user retries. Main thread; one shared instance per Process.
class InternetViewModel : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool isConnected READ isConnected NOTIFY isConnectedChanged)
public:
    explicit InternetViewModel(Process &process) : process_(process) {}

    /// What the last check found; false until the first one.
    bool isConnected() const { return isConnected_; }

    /// Reads the flags and publishes the answer, also when it has not changed. Returns with the answer in
    /// place.
    Q_INVOKABLE void checkConnection();

    /// The same test, answered now and published nowhere: for fetches that start before any screen has
    /// checked. A probe text of which no target can be made is a fatal error in both.
    bool isReachableNow() const;

    /// Whether ReachabilityFlag bits mean that the host can be reached without asking the user for anything.
    static bool meansReachable(unsigned flags);

Q_SIGNALS:
    void isConnectedChanged();

private:
    Process &process_;
    bool isConnected_ = false;
};

} // namespace orl
