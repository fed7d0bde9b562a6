#pragma once

#include <QDBusConnection>
#include <QObject>

#include <atomic>

namespace orl {

/// The part of a system that tells programs whether there is a network; the walk pulls the plug with it.
class PlayedNetwork : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.NetworkManager")
    Q_PROPERTY(uint State READ state)
    Q_PROPERTY(uint Connectivity READ connectivity)
public:
    /// Online at first.
    explicit PlayedNetwork(QDBusConnection bus);

    /// From any thread; programs are told.
    void setOnline(bool online);

    uint state() const { return online_ ? 70 : 20; }      ///< connected to the internet, disconnected
    uint connectivity() const { return online_ ? 4 : 1; } ///< full, none

private:
    QDBusConnection bus_;
    std::atomic<bool> online_ = true;
};

} // namespace orl
