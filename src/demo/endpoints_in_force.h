#pragma once

#include "platform/endpoints.h"
#include "platform/result.h"

#include <memory>

namespace orl {

class DemoHost;

/// The endpoints of this run of the program: those of a file where one is named, else those of the build. The
/// demo host, started inside the program only when it is needed and with all its advertising on, stands
/// behind each one that is empty.
class EndpointsInForce {
public:
    /// `file` empty: the file that ORL_ENDPOINTS names, if any. An error tells what is wrong with the file,
    /// or that no port could be had.
    static Result<std::shared_ptr<EndpointsInForce>> open(const QString &file);
    ~EndpointsInForce();

    const Endpoints &endpoints() const { return endpoints_; }

private:
    EndpointsInForce() = default;

    Endpoints endpoints_;
    std::unique_ptr<DemoHost> demoHost_;
};

} // namespace orl
