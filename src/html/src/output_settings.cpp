#include "orl/html/output_settings.h"

#include "orl/html/exception.h"

namespace orl::html {

OutputSettings &OutputSettings::charset(std::string_view name) {
    auto encoding = TextEncoding::named(name);
    if (!encoding) {
        throw Exception::Error(ExceptionType::IllegalArgumentException,
                               "Unknown charset: " + std::string(name));
    }
    return encoder(*std::move(encoding));
}

} // namespace orl::html
