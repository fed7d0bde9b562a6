#include "platform/qt/qt_reachability.h"

#include <QHostAddress>
#include <QUrl>

#include <algorithm>
#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

namespace orl {

namespace {

/// Connecting a datagram socket sends nothing; it only looks the way up in the routing table.
template<class Address>
bool findsRoute(const Address &address, sa_family_t family) {
    const int datagrams = ::socket(family, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    if (datagrams < 0) return false;
    const bool found =
        ::connect(datagrams, reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0;
    ::close(datagrams);
    return found;
}

// Both addresses are set apart for documentation, so that only a default route leads to them.
bool hasRouteOut() {
    sockaddr_in v4{};
    v4.sin_family = AF_INET;
    v4.sin_port = htons(443);
    ::inet_pton(AF_INET, "192.0.2.1", &v4.sin_addr);
    sockaddr_in6 v6{};
    v6.sin6_family = AF_INET6;
    v6.sin6_port = htons(443);
    ::inet_pton(AF_INET6, "2001:db8::1", &v6.sin6_addr);
    return findsRoute(v4, AF_INET) || findsRoute(v6, AF_INET6);
}

bool isPrivate(const QHostAddress &address) {
    static const QPair<QHostAddress, int> subnets[] = {
        QHostAddress::parseSubnet(QStringLiteral("10.0.0.0/8")),
        QHostAddress::parseSubnet(QStringLiteral("172.16.0.0/12")),
        QHostAddress::parseSubnet(QStringLiteral("192.168.0.0/16")),
        QHostAddress::parseSubnet(QStringLiteral("fc00::/7"))};
    return std::ranges::any_of(subnets, [&](const auto &subnet) { return address.isInSubnet(subnet); });
}

} // namespace

bool QtReachability::canTarget(const QString &name) const {
    return !hostOf(name).isEmpty();
}

std::optional<unsigned> QtReachability::flags(const QString &name) const {
    const QString host = hostOf(name);
    if (host.isEmpty()) return std::nullopt;
    const HostPlace place = placeOf(host);
    if (place == HostPlace::Device) return flagsFor(place, QNetworkInformation::Reachability::Unknown, false);
    return flagsFor(place, system(), hasRouteOut());
}

QNetworkInformation::Reachability QtReachability::system() const {
    // Once: where there is none to load, looking for it again costs as much each time.
    static const bool loaded =
        QNetworkInformation::loadBackendByFeatures(QNetworkInformation::Feature::Reachability);
    return loaded ? QNetworkInformation::instance()->reachability()
                  : QNetworkInformation::Reachability::Unknown;
}

QString QtReachability::hostOf(const QString &name) {
    if (name.contains(QLatin1String("://"))) return QUrl(name, QUrl::StrictMode).host();
    QUrl url;
    url.setHost(name, QUrl::StrictMode);
    return url.host();
}

HostPlace QtReachability::placeOf(const QString &host) {
    const QString name = host.endsWith(QLatin1Char('.')) ? host.chopped(1) : host;
    const QHostAddress address(name);
    if (address.isLoopback() || name == QLatin1String("localhost") ||
        name.endsWith(QLatin1String(".localhost"))) {
        return HostPlace::Device;
    }
    const bool local = isPrivate(address) || address.isLinkLocal() || name.endsWith(QLatin1String(".local"));
    return local ? HostPlace::Local : HostPlace::Internet;
}

unsigned QtReachability::flagsFor(HostPlace place, QNetworkInformation::Reachability system, bool hasRoute) {
    if (place == HostPlace::Device) return Reachable;
    switch (system) {
    case QNetworkInformation::Reachability::Online: return Reachable;
    case QNetworkInformation::Reachability::Local:
    case QNetworkInformation::Reachability::Site: return place == HostPlace::Local ? Reachable : 0U;
    case QNetworkInformation::Reachability::Disconnected: return 0;
    case QNetworkInformation::Reachability::Unknown: break;
    }
    return hasRoute ? Reachable : 0U;
}

} // namespace orl
