#include "config/internet_view_model.h"

#include "platform/reachability.h"

namespace orl {

void InternetViewModel::checkConnection() {
    isConnected_ = isReachableNow();
    Q_EMIT isConnectedChanged();
}

bool InternetViewModel::isReachableNow() const {
    const Platform &platform = process_.platform();
    // The whole URL, scheme included, names the target.
    const QString &probe = platform.endpoints.connectivityProbe;
    if (!platform.reachability.canTarget(probe)) {
        platform.fatal.fatalError(QStringLiteral("No reachability target can be made of \"%1\"").arg(probe));
    }
    return meansReachable(platform.reachability.flags(probe).value_or(0));
}

bool InternetViewModel::meansReachable(unsigned flags) {
    const bool reachable = flags & Reachable;
    const bool connectionRequired = flags & ConnectionRequired;
    const bool connectsByItself = flags & (ConnectionOnTraffic | ConnectionOnDemand);
    if (connectsByItself && reachable && connectionRequired) return !(flags & InterventionRequired);
    if (connectsByItself) return reachable;
    return reachable && !connectionRequired;
}

} // namespace orl
