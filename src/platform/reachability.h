#pragma once

#include <QString>

#include <optional>

namespace orl {

/// How a host can be reached, as the platform's cached state has it at this moment.
enum ReachabilityFlag : unsigned {
    Reachable = 2,
    ConnectionRequired = 4,
    ConnectionOnTraffic = 8,
    InterventionRequired = 16,
    ConnectionOnDemand = 32,
};

class Reachability {
public:
    virtual ~Reachability() = default;

    /// Whether a target can be made of this text at all.
    virtual bool canTarget(const QString &name) const = 0;

    /// A combination of ReachabilityFlag, or nothing where reading fails. Answers at once, without a name
    /// look-up.
    virtual std::optional<unsigned> flags(const QString &name) const = 0;
};

} // namespace orl
