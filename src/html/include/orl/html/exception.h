#pragma once

#include <orl/html/export.h>

#include <exception>
#include <string>

namespace orl::html {

enum class ExceptionType {
    IllegalArgumentException,
    IOException,
    XmlDeclaration,
    MalformedURLException,
    CloneNotSupportedException,
    SelectorParseException,
};

struct ORL_HTML_API Exception {
    /// The only error that the engine raises. A failed operation leaves the tree as it was unless it says
    /// otherwise.
    class ORL_HTML_API Error : public std::exception {
    public:
        Error(ExceptionType errorType, std::string message) : type(errorType), Message(std::move(message)) {}

        const char *what() const noexcept override { return Message.c_str(); }

        ExceptionType type;
        std::string Message;
    };
};

} // namespace orl::html
