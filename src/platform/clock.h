#pragma once

namespace orl {

/// What time it is. Tests play it together with the queues.
class Clock {
public:
    virtual ~Clock() = default;

    /// Seconds since 1970, UTC, with fractions.
    virtual double now() const = 0;
};

} // namespace orl
