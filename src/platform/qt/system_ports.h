#pragma once

#include "platform/clock.h"
#include "platform/console.h"
#include "platform/platform.h"

#include <mutex>

namespace orl {

class SystemClock : public Clock {
public:
    double now() const override;
};

/// One line on the standard error output, written at once and whole, whichever threads print. Line breaks
/// within a text become blanks, so that one call stays one line.
class StandardErrorConsole : public Console {
public:
    void print(const QString &line) override;

private:
    std::mutex mutex_;
};

/// Prints "Fatal error: " with the message and aborts, so that a core dump shows where.
class AbortingFatalErrors : public FatalErrors {
public:
    explicit AbortingFatalErrors(Console &console) : console_(console) {}
    [[noreturn]] void fatalError(const QString &message) override;

private:
    Console &console_;
};

} // namespace orl
