#pragma once

#include "platform/reachability.h"

#include <QNetworkInformation>

namespace orl {

/// How far a host is away, as far as its name tells.
enum class HostPlace {
    Device,  ///< this device itself
    Local,   ///< on the local network: a private or link-local address, a ".local" name
    Internet ///< all others
};

/// Answers from what the system knows of its network; asks no name server and no host. Where no network
/// service tells, the routing table does: with a route out, a host counts as reachable.
class QtReachability : public Reachability {
public:
    /// On the main thread.
    QtReachability() = default;

    /// A whole URL or a bare host name; it needs a host in it.
    bool canTarget(const QString &name) const override;

    /// On the main thread. What watches the network is loaded when it is first asked about a host that is not
    /// this device, as that takes as long as everything else in the making of a LinuxPlatform.
    std::optional<unsigned> flags(const QString &name) const override;

    /// The host of a target: of a URL its host, otherwise the text itself. Empty where there is none.
    static QString hostOf(const QString &name);
    static HostPlace placeOf(const QString &host);

    /// The rule itself. `hasRoute` is whether a packet to the internet would find a way out.
    static unsigned flagsFor(HostPlace place, QNetworkInformation::Reachability system, bool hasRoute);

private:
    QNetworkInformation::Reachability system() const;
};

} // namespace orl
