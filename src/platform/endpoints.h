#pragma once

#include <QString>

namespace orl {

/// The base addresses the program reads from, one per kind of endpoint.
///
/// They are constants of the build, empty by default; an empty one means the demo host inside the program. A path
/// that begins with "/" is appended as it stands, so all but secondWebsite end without a slash; secondWebsite ends
/// with one, as country paths are appended to it bare.
struct Endpoints {
    QString configurationHost;
    QString firstWebsite;
    QString secondWebsite;
    QString mailHost;
    QString identityHost;
    QString adHost;
    QString legalHost;
    QString storeHost;
    QString connectivityProbe; ///< a whole URL; only its reachability is asked, it is never read

    bool operator==(const Endpoints &) const = default;
};

} // namespace orl
