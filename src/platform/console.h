#pragma once

#include <QString>

namespace orl {

/// Where failures are told. One call is one line; there is no log file and no level.
class Console {
public:
    virtual ~Console() = default;

    /// Callable from any thread.
    virtual void print(const QString &line) = 0;
};

} // namespace orl
