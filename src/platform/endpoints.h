#pragma once

#include "platform/result.h"

#include <QString>

namespace orl {

/// The base addresses the program reads from, one per kind of endpoint.
///
/// They are constants of the build, empty by default; an empty one means the demo host inside the program. A
/// path that begins with "/" is appended as it stands, so all but secondWebsite end without a slash;
/// secondWebsite ends with one, as country paths are appended to it bare.
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

/// Reads a file of lines `key=value`, where a key is the name of a field above; blanks around both, empty
/// lines and lines that begin with "#" do not count. Missing keys and empty values stay empty. Slashes at the
/// end are put right. An unknown or repeated key, or a value that is no http(s) URL, is an error that names
/// its line.
Result<Endpoints> readEndpointsFile(const QString &path);

} // namespace orl
