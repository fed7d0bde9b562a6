// Argument checks, with the words that callers see.
#pragma once

#include <orl/html/exception.h>

#include <string_view>

namespace orl::html::core {

[[noreturn]] inline void failArgument(const char *message) {
    throw Exception::Error(ExceptionType::IllegalArgumentException, message);
}
inline void checkPresent(bool present) {
    if (!present) failArgument("Object must not be null");
}
inline void checkNotEmpty(std::string_view text) {
    if (text.empty()) failArgument("String must not be empty");
}
inline void checkTrue(bool condition) {
    if (!condition) failArgument("Must be true");
}
inline void checkFalse(bool condition) {
    if (condition) failArgument("Must be false");
}

} // namespace orl::html::core
